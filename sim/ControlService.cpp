namespace udsim {}

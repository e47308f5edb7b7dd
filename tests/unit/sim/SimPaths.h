// The scenario file of the tests, and where the simulator writes the registry and the setting files.
#pragma once

inline constexpr char SCENARIO[] = "/tmp/room.udsim";
inline constexpr char REGISTRY[] = "/opt/arven/Ulmar Disc Maker/conf/registry.txt";
inline constexpr char SETTINGS[] = "/opt/arven/Ulmar Disc Maker/conf/RegPublisher";

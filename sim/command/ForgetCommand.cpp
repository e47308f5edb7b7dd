// udsim forget SCENARIO: removes the publishers that udsim registered for this scenario.
#include <sys/socket.h>

#include "InstallationFiles.h"
#include "Sockets.h"
#include "Subcommands.h"
#include "TellSocket.h"

namespace udsim {

int forgetScenario(const Arguments& arguments)
{
    if (arguments.size() != 1) {
        return wrongUsage("forget takes one scenario");
    }
    const std::string& path = arguments.front();
    std::string error;
    const auto scenario = Scenario::load(path, error);
    if (!scenario) {
        return failure(error);
    }
    if (isServed(SOCK_STREAM, DEFAULT_TELL_SOCKET)) {
        return failure("udsim is running; stop it first");
    }
    std::vector<std::string> removed;
    const bool done = removeRegistration(scenario->publishers, scenario->servers, removed, error);
    for (const std::string& name : removed) {
        printLine(name + ": removed");
    }
    if (!done) {
        return failureOfRights(error);
    }
    if (removed.empty()) {
        printLine(path + ": none of its publishers is registered");
    }
    return EXIT_DONE;
}

} // namespace udsim

// Uses any bytes as a scenario. What is accepted runs for five seconds of simulated time and replies to every
// request; what is refused has a message with a line.
#include "Scenario.h"
#include "ServiceReplies.h"
#include "World.h"

#include <cassert>
#include <set>

namespace {

constexpr uint64_t SOME_TIME = 5'000; ///< milliseconds
constexpr uint64_t LAST_CONTROL = 40; ///< higher than the last one of the protocol
constexpr size_t MOST_MACHINES = 8;   ///< more take time and run no other code

void AskService(udsim::World& world)
{
    for (udsim::Publisher& publisher : world.publishers()) {
        for (uint64_t control = 0; control <= LAST_CONTROL; ++control) {
            const udsim::Request request{control, publisher.state().registId, "", 0};
            assert(udsim::replyTo(request, &publisher, world.publishers(), 1).control == control);
        }
        assert(publisher.jobs().size() <= udsim::Publisher::MAX_JOBS + udsim::Publisher::MAX_ENDED_JOBS);
    }
}

void AskServers(udsim::World& world)
{
    const char* const targets[] = {"/webapp2/ServerModeGetter?ifversion=02000000",
                                   "/webapp2/DevStatusGetter?ifversion=02000000&type=5",
                                   "/webapp2/JobInfoGetter?ifversion=02000000&type=3",
                                   "/webapp2/DevInfoGetter?ifversion=02000000&type=0"};
    for (udsim::PublisherServer& server : world.servers()) {
        for (const char* const target : targets) {
            udsim::HttpRequest request;
            request.method = "GET";
            request.target = target;
            request.version = "HTTP/1.1";
            assert(server.answer(request).status == 200);
        }
    }
}

/// Names and ids are unique, so that each request and each file belongs to one machine.
void CheckNames(const udsim::World& world)
{
    std::set<std::string> names;
    for (const udsim::MachineState& state : world.states()) {
        assert(!state.name.empty() && names.insert(state.name).second);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    std::string error;
    const auto scenario = udsim::Scenario::parse(text, error);
    assert(scenario.has_value() == error.empty());
    if (!scenario) {
        assert(error.starts_with("line ") && error.find(": ") != std::string::npos);
        return 0;
    }
    if (scenario->publishers.size() + scenario->servers.size() > MOST_MACHINES) {
        return 0;
    }
    udsim::World world(*scenario);
    CheckNames(world);
    world.advance(SOME_TIME);
    assert(world.now() == SOME_TIME);
    CheckNames(world);
    AskService(world);
    AskServers(world);
    return 0;
}

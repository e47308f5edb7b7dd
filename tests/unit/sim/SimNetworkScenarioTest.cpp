// Scenarios with network publishers: their meaning and their error messages.
#include "NetworkFixture.h"

using udsim::HttpFault;
using udsim::Scenario;

TEST(SimNetworkScenario, Defaults)
{
    const Scenario scenario = scenarioOf("[network A]\nmodel = RT-300N\n[network B]\nmodel = RT-300NII\n"
                                         "[network C]\nmodel = RT-300NII BD-XL\n");
    ASSERT_EQ(scenario.servers.size(), 3U);
    const char* const versions[] = {"1.20", "2.30", "3.30"};
    for (size_t i = 0; i < 3; ++i) {
        const udsim::ServerSetup& server = scenario.servers[i];
        EXPECT_EQ(server.host, "127.0.0.1" + std::to_string(i + 1));
        EXPECT_EQ(server.serverVersion, versions[i]);
        EXPECT_EQ(server.serverMode(), 2U);
        EXPECT_TRUE(server.listening);
        EXPECT_FALSE(server.isOld());
        EXPECT_EQ(server.knownKind, 0U);
    }
    EXPECT_TRUE(scenario.publishers.empty());
    EXPECT_EQ(udsim::networkModels().size(), 3U);
}

TEST(SimNetworkScenario, StackersOfEachServerMode)
{
    const std::array<uint32_t, 4> media[] = {
        {1, 0, 32, 0}, {1, 0, 32, 0}, {1, 0, 32, 0}, {1, 1, 32, 0}, {1, 1, 0, 32}};
    for (uint32_t mode = 0; mode < 5; ++mode) {
        const Scenario scenario =
            scenarioOf("[network A]\nmodel = RT-300NII\nserver-mode = " + std::to_string(mode));
        ASSERT_EQ(scenario.servers.size(), 1U);
        EXPECT_EQ(scenario.servers[0].serverMode(), mode);
        for (size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(scenario.servers[0].machine.stackers[i].media, media[mode][i]) << mode << " " << i;
        }
    }
}

TEST(SimNetworkScenario, EventsAndFaults)
{
    const Scenario scenario = scenarioOf("[event]\nat = 1s\npublisher = A\ndo = server off\n[network A]\n"
                                         "model = RT-300N\n[network-fault]\npublisher = A\nmethod = PUT\n"
                                         "path = /uploads/\nafter = 2\ntimes = 3\ndo = http 403\n");
    ASSERT_EQ(scenario.events.size(), 1U);
    EXPECT_EQ(scenario.events[0].command.kind, udsim::Command::Kind::server);
    ASSERT_EQ(scenario.networkFaults.size(), 1U);
    const HttpFault& fault = scenario.networkFaults[0];
    EXPECT_EQ(fault.kind, HttpFault::Kind::http);
    EXPECT_EQ(fault.number, 403U);
    EXPECT_EQ(fault.publisher, "A");
    EXPECT_EQ(fault.method, "PUT");
    EXPECT_EQ(fault.path, "/uploads/");
    EXPECT_EQ(fault.after, 2U);
    EXPECT_EQ(fault.times, 3U);
}

TEST(SimNetworkScenario, EveryFault)
{
    using Kind = HttpFault::Kind;
    const std::pair<const char*, Kind> table[] = {
        {"stall", Kind::stall},          {"close", Kind::close},
        {"delay 5", Kind::delay},        {"status 255", Kind::status},
        {"http 200", Kind::http},        {"empty", Kind::empty},
        {"size 3", Kind::size},          {"length 65535", Kind::length},
        {"extra-item", Kind::extraItem}, {"cut 7", Kind::cut},
        {"chunked", Kind::chunked},      {"chunk-extension", Kind::chunkExtension},
        {"interim 2", Kind::interim},    {"content-length 18446744073709551615", Kind::contentLength},
        {"drip 1", Kind::drip},
    };
    for (const auto& [text, kind] : table) {
        std::string error;
        const auto fault = HttpFault::parse(text, error);
        ASSERT_TRUE(fault) << text << ": " << error;
        EXPECT_EQ(fault->kind, kind) << text;
    }
    for (const char* const wrong : {"", "nonsense", "stall 1", "status", "status 256", "http 199",
                                    "http 1000", "http x", "length 65536", "interim 1001", "chunked 2"}) {
        std::string error;
        EXPECT_FALSE(HttpFault::parse(wrong, error)) << wrong;
        EXPECT_NE(error, "") << wrong;
    }
}

TEST(SimNetworkScenario, Mistakes)
{
    const std::string start = "[network A]\nmodel = RT-300N\n";
    const std::pair<std::string, std::string> table[] = {
        {"[network]\n", "line 1: a publisher needs a name: [network NAME]"},
        {"[network A]\n", "line 1: the network publisher \"A\" needs a model"},
        {"[network A]\nmodel = RT-30\n",
         "line 2: unknown network model \"RT-30\" (did you mean \"RT-300N\"?)"},
        {"[publisher A]\nmodel = RT-300N\n", "line 2: unknown model \"RT-300N\" (did you mean \"RT-300\"?)"},
        {start + "host = example.org\n",
         "line 3: \"host\" needs an address of the loopback network, such as 127.0.0.11"},
        {start + "host = 10.0.0.1\n",
         "line 3: \"host\" needs an address of the loopback network, such as 127.0.0.11"},
        {start + "server-mode = 5\n", "line 3: \"server-mode\" needs a number up to 4"},
        {start + "known-kind = 4\n", "line 3: \"known-kind\" needs a number up to 3"},
        {start + "mode = 1\n",
         "line 3: unknown key \"mode\" of a network publisher (did you mean \"server-mode\"?)"},
        {start + "hots = x\n", "line 3: unknown key \"hots\" of a publisher (did you mean \"host\"?)"},
        {start + "guid = x\n", "line 3: unknown key \"guid\" of a network publisher"},
        {start + "disc-space = x\n", "line 3: \"disc-space\" needs a number up to 1000000"},
        {start + "third-stacker = 1\n", "line 3: \"third-stacker\" needs yes or no"},
        {start + "[network B]\nmodel = RT-300N\nhost = 127.0.0.11\n",
         "line 3: another publisher has this name, host or id"},
        {start + "[publisher A]\nmodel = RT-30\n", "line 1: another publisher has this name, host or id"},
        {start + "[event]\nat = 1s\npublisher = A\ndo = service off\n",
         "line 3: an event needs a publisher unless it applies to the service"},
        {"[publisher A]\nmodel = RT-30\n[event]\nat = 1s\npublisher = A\ndo = server off\n",
         "line 3: only a network publisher has a server"},
        {start + "[network-fault]\npath = /\n", "line 3: a fault needs \"do\""},
        {start + "[network-fault]\ndo = wrong\n", "line 4: unknown server fault \"wrong\""},
        {start + "[network-fault]\ndo = stall\npublisher = B\n", "line 5: unknown network publisher \"B\""},
        {start + "[network-fault]\ndo = stall\ncontrol = 1\n",
         "line 5: unknown key \"control\" of a network fault"},
    };
    for (const auto& [text, expected] : table) {
        std::string error;
        EXPECT_FALSE(Scenario::parse(text, error)) << text;
        EXPECT_EQ(error, expected) << text;
    }
}

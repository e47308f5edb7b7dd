// Every good reply of the control service and of a publisher server, cut off at every byte and with every bit
// inverted: each operation ends with a defined result. With a sanitizer, one bit of every byte is inverted.
#include "LibraryOperations.h"
#include "NetworkExpectations.h"
#include "Operation.h"
#include "PublisherFiles.h"
#include "ScriptedControlService.h"
#include "ScriptedNetwork.h"
#include "ServiceOperations.h"
#include "ServiceReplies.h"
#include "SimulatedServer.h"
#include "Win_def_log.h"

#include <gmock/gmock.h>

#include <cstring>
#include <functional>
#include <map>
#include <mutex>
#include <set>

namespace {

using Replies = std::map<std::string, std::string>; ///< by request

constexpr size_t BITS = 8;
#ifdef ULMAR_SANITIZED
constexpr size_t FLIPS = 1; ///< of each byte, another bit from byte to byte: eight would take too long
#else
constexpr size_t FLIPS = BITS;
#endif

size_t NumberOfAlterations(const std::string& good)
{
    return good.size() * (FLIPS + 1);
}

/// `good` with one alteration: first those that cut it off, then those that invert a bit.
std::string Altered(std::string good, size_t number)
{
    if (number < good.size()) {
        return good.substr(0, number);
    }
    const size_t flip = number - good.size();
    const size_t byte = flip / FLIPS;
    good[byte] = static_cast<char>(good[byte] ^ (1 << (flip % FLIPS + byte) % BITS));
    return good;
}

// ---------------------------------------------------------------------------------------------------------------------
// Publisher servers

bool IsDefined(long code)
{
    return code == NetworkAnswer::UNTOUCHED || (code >= -3 && code <= long{NCL_ERR_CALC_HASH}) ||
           (code >= long{NCL_ERR_SERVER_OTHER} && code <= long{NCL_ERR_SPOOL_JOB_LIMIT});
}

/// Runs `operation`, whose result is its code, with good replies, and then with each alteration of each of
/// them from the request `first` on.
void RunWithAlteredReplies(const std::function<long()>& operation, const ScriptedNetwork::Answer& server,
                           size_t first)
{
    Replies replies;
    std::vector<std::string> requests;
    const ScriptedNetwork network([&](const std::string& request) {
        requests.push_back(request);
        const auto found = replies.find(request);
        return found != replies.end() ? found->second : replies[request] = server(request);
    });
    operation();
    ASSERT_GT(requests.size(), first);
    const Replies good = replies;
    const std::set<std::string> altered(requests.begin() + static_cast<std::ptrdiff_t>(first),
                                        requests.end());
    size_t runs = 0;
    for (const std::string& request : altered) {
        const std::string reply = good.at(request);
        for (size_t number = 0; number < NumberOfAlterations(reply); ++number) {
            requests.clear();
            replies = good;
            replies[request] = Altered(reply, number);
            const long code = operation();
            ASSERT_TRUE(IsDefined(code)) << code << " after " << request << replies[request];
            ++runs;
        }
    }
    while (DestroyOldestUnclaimedNCL()) { // connections to servers in a secure mode stay open
    }
    EXPECT_THAT(g_pvarrNCL, testing::Each(nullptr));
    std::printf("%zu altered replies\n", runs);
    EXPECT_GT(runs, 0U);
}

class AlteredServerReplies : public testing::TestWithParam<NetworkOperation>
{
};

TEST_P(AlteredServerReplies, EndWithADefinedCode)
{
    const NetworkOperation& operation = GetParam();
    WritePublisher("R", "[Common]\nPublisherName=Lab\nPublisherURL=server\n");
    CNetworkPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    SimulatedServer server;
    const auto answer = [&](const std::string& request) { return server.Answer(request); };
    {
        const ScriptedNetwork network(answer);
        ExpectSuccess(operation, operation.call(mgr, "R", true));
    }
    // The replies of the connection are the same for all operations.
    SimulatedServer another;
    RunWithAlteredReplies([&] { return operation.call(mgr, "R", true).code; },
                          [&](const std::string& request) { return another.Answer(request); },
                          operation.requests == 0 ? 0 : OF_CONNECTION);
}

INSTANTIATE_TEST_SUITE_P(Each, AlteredServerReplies, testing::ValuesIn(NetworkOperations()));

/// A reply that the operations of the library accept.
std::string LibraryReply(const std::string& request)
{
    const std::pair<const char*, std::string> rows[] = {
        {"ServerModeGetter", "\2"},       {"DevInfoIntGetter", WireWord(0)},
        {"DevInfoGetter", "3.30"},        {"DevStatusGetter", WireWords({1, 1})},
        {"JobSetter", WireWord(1)},       {"PublishIDGetter", "an id"},
        {"UploadInfoGetter", "password"},
    };
    for (const auto& [path, data] : rows) {
        if (request.find(path) != std::string::npos) {
            return GoodReply(data);
        }
    }
    return GoodReply("");
}

class AlteredLibraryReplies : public testing::TestWithParam<LibraryOperation>
{
};

TEST_P(AlteredLibraryReplies, EndWithADefinedCode)
{
    const auto run = [] {
        DWORD handle = 0;
        EXPECT_EQ(StartConnection(0, "server", &handle), 0U);
        const DWORD code = GetParam().call(handle);
        EndConnection(handle);
        return static_cast<long>(code);
    };
    RunWithAlteredReplies(run, LibraryReply, OF_CONNECTION);
}

INSTANTIATE_TEST_SUITE_P(Each, AlteredLibraryReplies, testing::ValuesIn(LibraryOperations()));

// ---------------------------------------------------------------------------------------------------------------------
// The control service

constexpr size_t HEADER = 24;
constexpr size_t RESULT_AT = 8;
constexpr size_t LENGTH_AT = 16;

std::string ServiceAnswer(const std::string& bytes)
{
    udsim::PublisherSetup setup = udsim::PublisherSetup::ofModel(*udsim::findModel("RT-300III BD"));
    setup.registId = "R";
    udsim::JobSetup job;
    job.id = "J";
    setup.jobs = {job, udsim::JobSetup{}};
    udsim::Publisher machine(setup);
    udsim::Reply reply = udsim::replyTo(udsim::decodeRequest(bytes), &machine, {machine}, 1);
    reply.result = 0; // also for a command that needs a stopped or a failed job
    return udsim::encodeReply(reply);
}

unsigned long long NumberAt(const std::string& bytes, size_t offset)
{
    unsigned long long value = 0;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

/// Whether the client reads an inverted bit as a success with a payload of another size. For some operations
/// this stops the process by contract: the upper half of a result code is not evaluated, and a smaller length
/// is complete.
bool IsSuccessOfOtherSize(const std::string& altered, const std::string& good)
{
    return altered.size() == good.size() && NumberAt(altered, 0) == NumberAt(good, 0) &&
           static_cast<int>(NumberAt(altered, RESULT_AT)) == 0 &&
           (NumberAt(altered, RESULT_AT) != 0 || NumberAt(altered, LENGTH_AT) < NumberAt(good, LENGTH_AT));
}

class AlteredServiceReplies : public testing::TestWithParam<ServiceOperation>
{
protected:
    AlteredServiceReplies()
    {
        SetLogLevel(0);
    }

    /// Runs the operation. The replies are those in the map; the machine supplies the others, which are
    /// added.
    bool Run(Replies& replies)
    {
        Use(&replies);
        const bool result = GetParam().run(m_mgr);
        Use(nullptr);
        return result;
    }

    C300MODPublisherMgr m_mgr{true, PUBLISHER_SETTING_DIR};

private:
    void Use(Replies* replies)
    {
        const std::lock_guard lock(m_mutex);
        m_replies = replies;
    }
    std::string Reply(const std::string& request)
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_replies->find(request);
        return found != m_replies->end() ? found->second : (*m_replies)[request] = ServiceAnswer(request);
    }

    std::mutex m_mutex;
    Replies* m_replies = nullptr; ///< set during a run
    ScriptedControlService m_service{
        [this](UnixPeer& peer, const std::string& request) { peer.Write(Reply(request)); }};
};

TEST_P(AlteredServiceReplies, EndWithADefinedResult)
{
    const ServiceOperation& operation = GetParam();
    const bool resultOfFailure = std::string(operation.name) == "IsFatalErrorInPublisher";
    Replies good;
    EXPECT_EQ(Run(good), !resultOfFailure);
    size_t runs = 0;
    size_t stops = 0;
    for (const auto& [request, reply] : Replies(good)) {
        ASSERT_GE(reply.size(), HEADER);
        for (size_t number = 0; number < NumberOfAlterations(reply); ++number) {
            const std::string altered = Altered(reply, number);
            if (operation.stopsOnOtherSize && IsSuccessOfOtherSize(altered, reply)) {
                ++stops;
                continue;
            }
            Replies replies = good;
            replies[request] = altered;
            const bool result = Run(replies);
            if (altered.size() < reply.size()) {
                EXPECT_EQ(result, resultOfFailure) << "cut off at " << altered.size();
            }
            EXPECT_FALSE(m_mgr.IsRunningCommunicateService());
            ++runs;
        }
    }
    std::printf("%zu altered replies, %zu that stop the process by contract\n", runs, stops);
    EXPECT_GT(runs, 0U);
    EXPECT_EQ(stops > 0, operation.stopsOnOtherSize);
}

INSTANTIATE_TEST_SUITE_P(Each, AlteredServiceReplies, testing::ValuesIn(ServiceOperations()));

} // namespace

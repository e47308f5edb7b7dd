// Every operation against a server that refuses each of its requests in turn, with every result code.
#include "NetworkOperations.h"
#include "NetworkScriptFixture.h"

namespace {

/// All named codes and some unnamed ones.
std::vector<DWORD> FailureCodes()
{
    std::vector<DWORD> codes;
    for (DWORD code = NCL_ERR_PARAMETER; code <= NCL_ERR_CALC_HASH; ++code) {
        codes.push_back(code);
    }
    for (DWORD code = NCL_ERR_SERVER_OTHER; code <= NCL_ERR_SPOOL_JOB_LIMIT; ++code) {
        codes.push_back(code);
    }
    codes.insert(codes.end(), {15, 20, 10'000, 0x7FFFFFFF, 0xFFFFFFFF});
    return codes;
}

size_t CountOf(const std::vector<std::string>& calls, const std::string& beginning)
{
    return static_cast<size_t>(std::count_if(
        calls.begin(), calls.end(), [&](const std::string& call) { return call.starts_with(beginning); }));
}

class NetworkCodes : public NetworkScriptFixture
{
protected:
    NetworkAnswer Ask(const NetworkOperation& operation, bool takesCode = true)
    {
        m_library.Forget();
        return operation.call(m_mgr, "R", takesCode);
    }
    /// The number of requests, without the end of the connection and calls that need no server.
    size_t Requests() const
    {
        return m_library.calls.size() - CountOf(m_library.calls, "EndConnection") -
               CountOf(m_library.calls, "GetNPType");
    }
    void Fail(size_t request, DWORD code)
    {
        m_library.failAt = request;
        m_library.failCode = code;
    }
};

} // namespace

TEST_F(NetworkCodes, WithoutFailuresEachMakesItsRequestsOnOneConnection)
{
    for (const NetworkOperation& operation : NetworkOperations()) {
        SCOPED_TRACE(operation.name);
        const NetworkAnswer answer = Ask(operation);
        EXPECT_EQ(answer.code, operation.CodeWhenDone());
        EXPECT_EQ(Requests(), 1 + operation.requests);
        EXPECT_EQ(m_library.calls.front(), "StartConnection(1, server)");
        EXPECT_EQ(m_library.calls.back(), "EndConnection(7)");
        EXPECT_EQ(CountOf(m_library.calls, "StartConnection"), 1U);
        EXPECT_EQ(CountOf(m_library.calls, "EndConnection"), 1U);
        EXPECT_EQ(m_library.open, 0);
    }
}

TEST_F(NetworkCodes, AnUnreachableServer)
{
    for (const NetworkOperation& operation : NetworkOperations()) {
        for (const DWORD code : FailureCodes()) {
            SCOPED_TRACE(std::string(operation.name) + " " + std::to_string(code));
            Fail(0, code);
            const NetworkAnswer answer = Ask(operation);
            EXPECT_EQ(answer.result, operation.ResultWhenUnreachable());
            EXPECT_EQ(answer.code, CodeBy(operation.codeWhenUnreachable, code));
            EXPECT_TRUE(answer.isKept);
            EXPECT_THAT(m_library.calls, testing::ElementsAre("StartConnection(1, server)"));
        }
    }
}

TEST_F(NetworkCodes, EachRequestRefusedInTurn)
{
    for (const NetworkOperation& operation : NetworkOperations()) {
        for (size_t request = 1; operation.endsAtOnce && request <= operation.requests; ++request) {
            for (const DWORD code : FailureCodes()) {
                SCOPED_TRACE(std::string(operation.name) + " " + std::to_string(request) + " " +
                             std::to_string(code));
                if (operation.name == std::string("GetPublisherInfo") && request == 4 &&
                    code == NCL_ERR_SERVER_OTHER) {
                    continue; // the server has no stacker 3; not a failure
                }
                Fail(request, code);
                const NetworkAnswer answer = Ask(operation);
                EXPECT_EQ(answer.result, operation.resultWhenRefused);
                EXPECT_EQ(answer.code, CodeBy(operation.codeWhenRefused, code));
                if (operation.keepsOutput) {
                    EXPECT_TRUE(answer.isKept);
                }
                EXPECT_EQ(Requests(), request + 1) << "no request follows a refusal";
                EXPECT_EQ(m_library.calls.back(), "EndConnection(7)");
                EXPECT_EQ(m_library.open, 0);
            }
        }
    }
}

TEST_F(NetworkCodes, TheResultCodeIsOptional)
{
    for (const NetworkOperation& operation : NetworkOperations()) {
        for (size_t request = 0; request <= operation.requests + 1; ++request) {
            SCOPED_TRACE(std::string(operation.name) + " " + std::to_string(request));
            Fail(request, NCL_ERR_NETWORK_TIMEOUT);
            m_library.failOn = true;
            const NetworkAnswer with = Ask(operation, true);
            const std::vector<std::string> calls = m_library.calls;
            const NetworkAnswer without = Ask(operation, false);
            EXPECT_EQ(with.result, without.result);
            EXPECT_EQ(with.isKept, without.isKept);
            EXPECT_EQ(m_library.calls, calls);
            EXPECT_EQ(m_library.open, 0);
        }
    }
}

TEST_F(NetworkCodes, AListOfAllJobsSucceedsIfOneQueryDoes)
{
    const NetworkOperation& operation = NetworkOperationOf("GetServiceJobStatus");
    for (const DWORD code : FailureCodes()) {
        for (const size_t refused : {1U, 2U}) {
            Fail(refused, code);
            const NetworkAnswer answer = Ask(operation);
            EXPECT_EQ(answer.result, 1) << code;
            EXPECT_FALSE(answer.isKept);
            EXPECT_EQ(Requests(), 3U);
            JobStatusArray jobs;
            m_library.Forget();
            EXPECT_TRUE(m_mgr.GetServiceJobStatus("R", &jobs, nullptr));
            ASSERT_EQ(jobs.GetSize(), 1);
            EXPECT_STREQ(jobs[0].acJobID, refused == 1 ? "R.2A" : "J");
        }
        Fail(1, code);
        m_library.failOn = true;
        const NetworkAnswer answer = Ask(operation);
        EXPECT_EQ(answer.result, 0) << code;
        EXPECT_TRUE(answer.isKept) << code;
        EXPECT_EQ(Requests(), 3U);
        EXPECT_EQ(m_library.open, 0);
        m_library.failOn = false;
    }
}

TEST_F(NetworkCodes, ARefusedCancel)
{
    const NetworkOperation& operation = NetworkOperationOf("SetServiceJobCancel");
    for (const DWORD code : FailureCodes()) {
        Fail(1, code); // the list
        EXPECT_EQ(Ask(operation).result, 0) << code;
        EXPECT_EQ(Requests(), 2U);
        EXPECT_EQ(m_library.open, 0);
        Fail(2, code);
        const NetworkAnswer answer = Ask(operation);
        EXPECT_EQ(answer.result, 0) << code;
        EXPECT_EQ(answer.code, CodeBy(CodeRule::mapped, code)) << code;
        EXPECT_EQ(Requests(), 3U);
        EXPECT_EQ(m_library.open, 0);
    }
}

TEST_F(NetworkCodes, ARefusedCancelContinuesWithTheNextJobOfTheId)
{
    m_library.unfinished.resize(3, m_library.unfinished.front());
    m_library.unfinished[1].nServerJobID = 6;
    m_library.unfinished[2].nServerJobID = 7;
    Fail(2, NCL_ERR_NETWORK_TIMEOUT);
    const NetworkAnswer second = Ask(NetworkOperationOf("SetServiceJobCancel"));
    EXPECT_EQ(second.result, 1);
    EXPECT_EQ(second.code, 0);
    EXPECT_EQ(CountOf(m_library.calls, "CancelJob"), 2U);
    m_library.failOn = true;
    const NetworkAnswer none = Ask(NetworkOperationOf("SetServiceJobCancel"));
    EXPECT_EQ(none.result, 0);
    EXPECT_EQ(none.code, -2);
    EXPECT_THAT(m_library.calls,
                testing::ElementsAre("StartConnection(1, server)", "GetJobStatusEx(7, 3, 1000)",
                                     "CancelJob(7, 5)", "CancelJob(7, 6)", "CancelJob(7, 7)",
                                     "EndConnection(7)"));
}

TEST_F(NetworkCodes, VersionsReadBeforeAFailureStay)
{
    const std::vector<CString PUBLISHERVERSIONINFO::*> order = {
        &PUBLISHERVERSIONINFO::strSerialNo,         &PUBLISHERVERSIONINFO::strAutoLoaderVersion,
        &PUBLISHERVERSIONINFO::strPrinterModelName, &PUBLISHERVERSIONINFO::strPrinterVersion,
        &PUBLISHERVERSIONINFO::strDrive1ModelName,  &PUBLISHERVERSIONINFO::strDrive1Version,
        &PUBLISHERVERSIONINFO::strDrive2ModelName,  &PUBLISHERVERSIONINFO::strDrive2Version,
        &PUBLISHERVERSIONINFO::strSSSVersion,       &PUBLISHERVERSIONINFO::strUDNAVersion,
    };
    const std::vector<std::string> texts = {"serial", "ald",      "prname", "prn",    "drname 1",
                                            "drv1",   "drname 2", "drv2",   "server", "web"};
    for (size_t read = 0; read < order.size(); ++read) {
        Fail(read + 1, NCL_ERR_DEVICE_OFFLINE);
        m_library.Forget();
        PUBLISHERVERSIONINFO info;
        for (const auto field : order) {
            info.*field = "old";
        }
        EXPECT_FALSE(m_mgr.GetPublisherVersionInfo("R", &info, nullptr));
        EXPECT_EQ(info.strPublisherRegistID, "R");
        for (size_t i = 0; i < order.size(); ++i) {
            EXPECT_EQ(info.*order[i], i < read ? texts[i] : "old") << read << " " << i;
        }
    }
}

TEST_F(NetworkCodes, TheModeIsSetOnFailureToo)
{
    for (const DWORD code : FailureCodes()) {
        Fail(1, code);
        m_library.Forget();
        ULONG mode = 4711;
        long result = 77;
        EXPECT_FALSE(m_mgr.GetServicePublishMode("R", &mode, &result));
        EXPECT_EQ(result, static_cast<long>(code));
        EXPECT_EQ(mode, 0xFFFFFFFFU) << "the value for an unknown mode";
    }
}

TEST_F(NetworkCodes, TheConnectionTestReturnsItsCode)
{
    EXPECT_EQ(m_mgr.ConnectionTest("\\\\other"), 0U);
    EXPECT_THAT(m_library.calls, testing::ElementsAre("StartConnection(1, \\\\other)", "EndConnection(7)"));
    for (const DWORD code : FailureCodes()) {
        m_library.Forget();
        Fail(0, code);
        EXPECT_EQ(m_mgr.ConnectionTest("other"), code);
        EXPECT_THAT(m_library.calls, testing::ElementsAre("StartConnection(1, other)"));
    }
    m_library.Forget();
    EXPECT_EQ(m_mgr.ConnectionTest(nullptr), 8000U);
    EXPECT_TRUE(m_library.calls.empty());
}

TEST_F(NetworkCodes, AConnectionOwnedByTheCaller)
{
    DWORD handle = 0;
    DWORD code = 77;
    EXPECT_TRUE(m_mgr.StartConnection("R", &handle, &code));
    EXPECT_EQ(handle, 7U);
    EXPECT_EQ(code, 0U);
    EXPECT_TRUE(m_mgr.EndConnection(handle));
    EXPECT_TRUE(m_mgr.StartConnection("R", &handle, nullptr));
    EXPECT_TRUE(m_mgr.EndConnection(handle));
    EXPECT_THAT(m_library.calls, testing::ElementsAre("StartConnection(1, server)", "EndConnection(7)",
                                                      "StartConnection(1, server)", "EndConnection(7)"));
    for (const DWORD failure : FailureCodes()) {
        m_library.Forget();
        Fail(0, failure);
        EXPECT_FALSE(m_mgr.StartConnection("R", &handle, &code));
        EXPECT_EQ(code, failure);
        m_library.Forget();
        EXPECT_FALSE(m_mgr.StartConnection("R", &handle, nullptr));
        EXPECT_THAT(m_library.calls, testing::ElementsAre("StartConnection(1, server)"));
    }
}

TEST_F(NetworkCodes, WithoutAFileNoServerIsQueried)
{
    for (const NetworkOperation& operation : NetworkOperations()) {
        m_library.Forget();
        const NetworkAnswer answer = operation.call(m_mgr, "absent", true);
        EXPECT_EQ(answer.result, operation.ResultWhenUnreachable()) << operation.name;
        if (operation.codeWhenUnreachable != CodeRule::raw) {
            EXPECT_EQ(answer.code, CodeBy(operation.codeWhenUnreachable, 0)) << operation.name;
        }
        EXPECT_TRUE(m_library.calls.empty()) << operation.name;
    }
}

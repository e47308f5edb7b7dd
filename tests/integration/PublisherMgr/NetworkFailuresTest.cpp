// Tests every operation against a server that fails at each of its requests in turn: the operation returns
// the expected result, leaves its outputs unchanged, and closes the connection in every case.
#include "NetworkExpectations.h"
#include "NetworkRoom.h"

namespace {

/// A fault and its effect.
struct Failure
{
    const char* fault;
    DWORD code;       ///< of the library
    size_t exchanges; ///< for the request that fails; a lost connection is retried once
};

const Failure FAILURES[] = {
    {"status 2", NCL_ERR_DEVICE_OFFLINE, 1}, {"status 12", NCL_ERR_SERVER_BUSY, 1},
    {"http 500", NCL_ERR_SERVER_OTHER, 1},   {"http 401", NCL_ERR_SERVER_JOB_ID, 1},
    {"empty", NCL_ERR_INVALID_COMM_SPEC, 1}, {"length 60000", NCL_ERR_INVALID_COMM_SPEC, 1},
    {"close", NCL_ERR_CONNECTION_CLOSE, 2},  {"cut 30", NCL_ERR_CONNECTION_CLOSE, 2},
};

bool IsTolerated(size_t request, DWORD code)
{
    return request == OF_VERSION || (request == OF_LARGE_DISCS && code == NCL_ERR_SERVER_OTHER);
}

class NetworkFailures : public testing::Test
{
protected:
    /// Ensures that there is one unfinished job with the id "J".
    void PrepareJob()
    {
        for (const udsim::Job& job : m_open.room.jobs("A")) {
            if (job.reference == "J" && !job.isEnded()) {
                return;
            }
        }
        udsim::JobSetup setup;
        setup.reference = "J";
        ASSERT_NE(m_open.room.addJob("A", setup), "");
    }
    NetworkAnswer Ask(const NetworkOperation& operation, bool takesCode = true)
    {
        const size_t before = m_open.room.httpRequests().size();
        const NetworkAnswer answer = operation.call(m_open.mgr, "R", takesCode);
        m_exchanges = m_open.room.httpRequests().size() - before;
        EXPECT_TRUE(m_open.AllClosed()) << operation.name;
        return answer;
    }

    NetworkRoom m_open{"[network A]\nid = R\nmodel = RT-300NII\n"};
    size_t m_exchanges = 0; ///< of the last operation
};

} // namespace

TEST_F(NetworkFailures, EachOperationSucceedsWithoutAFault)
{
    for (const NetworkOperation& operation : NetworkOperations()) {
        PrepareJob();
        ExpectSuccess(operation, Ask(operation));
        EXPECT_EQ(m_exchanges, OF_CONNECTION + operation.requests) << operation.name;
    }
}

namespace {

/// One kind of failure, in its own room.
class NetworkFailureOf : public NetworkFailures, public testing::WithParamInterface<Failure>
{
};

/// The fault as a part of the test's name: "status2" for "status 2".
std::string NameOf(const testing::TestParamInfo<Failure>& info)
{
    std::string name = info.param.fault;
    std::erase(name, ' ');
    return name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Each, NetworkFailureOf, testing::ValuesIn(FAILURES), NameOf);

TEST_P(NetworkFailureOf, EachRequestOfEachOperationInTurn)
{
    const Failure& failure = GetParam();
    for (const NetworkOperation& operation : NetworkOperations()) {
        const size_t requests = OF_CONNECTION + operation.requests;
        for (size_t request = 0; request < (operation.endsAtOnce ? requests : OF_CONNECTION); ++request) {
            SCOPED_TRACE(std::string(operation.name) + " at " + std::to_string(request));
            const bool isThirdStacker = operation.name == std::string("GetPublisherInfo") &&
                                        request == OF_CONNECTION + 3 && failure.code == NCL_ERR_SERVER_OTHER;
            PrepareJob();
            m_open.Befall(failure.fault, request, failure.exchanges);
            const NetworkAnswer answer = Ask(operation);
            m_open.room.clearFaults();
            if (IsTolerated(request, failure.code) || isThirdStacker) {
                ExpectSuccess(operation, answer);
                EXPECT_EQ(m_exchanges, requests + failure.exchanges - 1);
            } else {
                ExpectFailure(operation, request, failure.code, answer);
                EXPECT_EQ(m_exchanges, request + failure.exchanges) << "no request follows the failure";
            }
        }
    }
}

TEST_F(NetworkFailures, TheResultCodeIsOptional)
{
    for (const NetworkOperation& operation : NetworkOperations()) {
        for (size_t request = 0; request < OF_CONNECTION + operation.requests; ++request) {
            PrepareJob();
            m_open.Befall("status 2", request);
            const NetworkAnswer with = Ask(operation, true);
            m_open.Befall("status 2", request);
            const NetworkAnswer without = Ask(operation, false);
            EXPECT_EQ(with.result, without.result) << operation.name << " " << request;
            m_open.room.clearFaults();
        }
    }
}

TEST_F(NetworkFailures, AListOfAllJobsSucceedsIfOneHalfSucceeds)
{
    const NetworkOperation& operation = NetworkOperationOf("GetServiceJobStatus");
    PrepareJob();
    for (const Failure& failure : FAILURES) {
        SCOPED_TRACE(failure.fault);
        for (const size_t half : {0U, 1U}) {
            m_open.Befall(failure.fault, OF_CONNECTION + half, failure.exchanges);
            const NetworkAnswer answer = Ask(operation);
            EXPECT_EQ(answer.result, 1);
            EXPECT_EQ(answer.code, 77);
            EXPECT_FALSE(answer.isKept);
            EXPECT_EQ(m_exchanges, OF_CONNECTION + 1 + failure.exchanges);
        }
        m_open.Befall(failure.fault, OF_CONNECTION);
        const NetworkAnswer answer = Ask(operation);
        EXPECT_EQ(answer.result, 0);
        EXPECT_EQ(answer.code, 77);
        EXPECT_TRUE(answer.isKept);
        m_open.room.clearFaults();
    }
}

TEST_F(NetworkFailures, ACancelFailsIfItsListOrCommandFails)
{
    const NetworkOperation& operation = NetworkOperationOf("SetServiceJobCancel");
    for (const Failure& failure : FAILURES) {
        SCOPED_TRACE(failure.fault);
        PrepareJob();
        m_open.Befall(failure.fault, OF_CONNECTION, failure.exchanges);
        EXPECT_EQ(Ask(operation).result, 0);
        EXPECT_EQ(m_exchanges, OF_CONNECTION + failure.exchanges) << "no cancel request without a job list";
        PrepareJob();
        m_open.Befall(failure.fault, OF_CONNECTION + 1, failure.exchanges);
        const NetworkAnswer answer = Ask(operation);
        EXPECT_EQ(answer.result, 0);
        EXPECT_EQ(answer.code, -1);
        EXPECT_EQ(m_exchanges, OF_CONNECTION + 1 + failure.exchanges);
        m_open.room.clearFaults();
    }
}

TEST_F(NetworkFailures, TheConnectionTestReturnsTheCauseAndCloses)
{
    for (const Failure& failure : FAILURES) {
        for (size_t request = 0; request < OF_CONNECTION; ++request) {
            SCOPED_TRACE(std::string(failure.fault) + " at " + std::to_string(request));
            m_open.Befall(failure.fault, request, failure.exchanges);
            EXPECT_EQ(m_open.mgr.ConnectionTest("127.0.0.11"),
                      IsTolerated(request, failure.code) ? NCL_SUCCESS : failure.code);
            EXPECT_TRUE(m_open.AllClosed());
            m_open.room.clearFaults();
        }
    }
}

TEST_F(NetworkFailures, TheCallersOwnConnectionReturnsTheCause)
{
    for (const Failure& failure : FAILURES) {
        m_open.Befall(failure.fault, 0, failure.exchanges);
        DWORD handle = 77;
        DWORD code = 77;
        EXPECT_FALSE(m_open.mgr.StartConnection("R", &handle, &code)) << failure.fault;
        EXPECT_EQ(code, failure.code) << failure.fault;
        m_open.Befall(failure.fault, 0, failure.exchanges);
        EXPECT_FALSE(m_open.mgr.StartConnection("R", &handle, nullptr)) << failure.fault;
        EXPECT_TRUE(m_open.AllClosed());
    }
}

TEST_F(NetworkFailures, NoConnectionRemainsInTheTable)
{
    for (int round = 0; round < 120; ++round) {
        m_open.Befall("status 2", static_cast<size_t>(round % 5));
        EXPECT_EQ(m_open.mgr.GetJobCount("R", nullptr), -1);
    }
    m_open.room.clearFaults();
    EXPECT_EQ(m_open.mgr.GetJobCount("R", nullptr), 0);
}

TEST_F(NetworkFailures, RepliesOfTheWrongSize)
{
    const std::pair<const char*, const char*> rows[] = {
        {"GetJobCount", "size 1"},
        {"GetJobCount", "size 3"},
        {"GetCommunicateJobCount", "size 4"},
        {"IsFatalErrorInPublisher", "size 3"},
        {"GetServiceInkStatus", "size 20"},
        {"GetServiceAldStatus", "size 12"},
        {"GetServiceDriveStatus", "size 8"},
        {"GetServicePrinterStatus", "size 8"},
        {"GetServiceStackerStatus", "size 12"},
        {"GetServiceEstimateCirculation", "size 2"},
        {"GetServicePublishMode", "size 4"},
        {"GetPublisherMaintenanceInfo", "size 52"},
        {"GetServiceJobStatusUnfinish", "size 1178"},
        {"GetCopiesMax", "size 2"},
        {"GetServiceInkStatus", "extra-item"},
    };
    for (const auto& [name, fault] : rows) {
        SCOPED_TRACE(std::string(name) + " " + fault);
        PrepareJob();
        m_open.Befall(fault, OF_CONNECTION, 1);
        ExpectFailure(NetworkOperationOf(name), OF_CONNECTION, NCL_ERR_INVALID_COMM_SPEC,
                      Ask(NetworkOperationOf(name)));
    }
    m_open.Befall("size 1178", OF_CONNECTION, 1);
    EXPECT_EQ(Ask(NetworkOperationOf("GetServiceJobStatusFinish")).result, 1)
        << "the padded item is a job of zeros";
}

TEST_F(NetworkFailures, TextsTooLongForTheirBuffers)
{
    const std::tuple<const char*, size_t, bool> rows[] = {
        {"GetSupportWriteSpeedString", 1023, true},
        {"GetSupportWriteSpeedString", 1024, false},
        {"GetPublisherVersionInfo", 1023, true},
        {"GetPublisherVersionInfo", 1024, false},
        {"GetDeviceInfo", 4095, true},
        {"GetDeviceInfo", 4096, false},
    };
    for (const auto& [name, size, isTaken] : rows) {
        const NetworkOperation& operation = NetworkOperationOf(name);
        m_open.Befall("size " + std::to_string(size), OF_CONNECTION, 1);
        const NetworkAnswer answer = Ask(operation);
        EXPECT_EQ(answer.result != 0, isTaken) << name << " " << size;
        if (operation.codeWhenRefused == CodeRule::raw) {
            EXPECT_EQ(answer.code, isTaken ? 0 : 1);
        }
    }
}

TEST_F(NetworkFailures, UnusualTransfersAreAccepted)
{
    for (const char* const harmless : {"chunked", "interim 3", "drip 0", "delay 5"}) {
        for (const NetworkOperation& operation : NetworkOperations()) {
            SCOPED_TRACE(std::string(operation.name) + " " + harmless);
            PrepareJob();
            m_open.Befall(harmless);
            ExpectSuccess(operation, Ask(operation));
        }
    }
}

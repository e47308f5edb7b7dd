// Tests servers that disappear between two requests.
#include "JobRecord.h"
#include "NetworkExpectations.h"
#include "PublisherFiles.h"
#include "Servlets.h"
#include "TcpPeer.h"

namespace {

/// The answers of a server that has one job.
std::string AnswerOf(const std::string& request)
{
    const auto asks = [&](const char* what) { return request.find(what) != std::string::npos; };
    if (asks("ServerModeGetter")) {
        return GoodReply(std::string(1, 2));
    }
    if (asks("DevInfoGetter")) {
        return GoodReply(asks("type=5 ") ? "2.30" : "text");
    }
    if (asks("DevInfoIntGetter")) {
        return GoodReply(WireWord(0));
    }
    if (asks("type=10 ")) {
        return GoodReply(std::string(68, '\0'));
    }
    if (asks("JobInfoGetter")) {
        return GoodReply(JobRecord(asks("type=3 ") ? JobRecord::SIZE_EX : JobRecord::SIZE)
                             .Identification(u"J")
                             .ServerJobID(1)
                             .Bytes());
    }
    return GoodReply("");
}

/// Answers `requests` requests, reads another, and closes the connection.
TcpServer::Script Answering(size_t requests)
{
    return [requests](TcpServer& server, TcpPeer& peer) {
        for (size_t i = 0; i < requests; ++i) {
            const std::string request = server.TakeRequest(peer);
            if (request.empty()) {
                return;
            }
            peer.Write(AnswerOf(request));
        }
        server.TakeRequest(peer);
    };
}

} // namespace

TEST(NetworkVanishing, AfterEachRequestOfEachOperation)
{
    WritePublisher("R", "[Common]\nPublisherURL=127.0.0.1\n");
    for (const NetworkOperation& operation : NetworkOperations()) {
        for (size_t answered = 0; answered < OF_CONNECTION + operation.requests; ++answered) {
            SCOPED_TRACE(std::string(operation.name) + " after " + std::to_string(answered));
            CNetworkPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
            TcpServer server({Answering(answered)}, "127.0.0.1", 80);
            const NetworkAnswer answer = operation.call(mgr, "R", true);
            const size_t lost = answered == OF_VERSION ? OF_CONNECTION : answered;
            if (operation.requests == 0 && lost == OF_CONNECTION) {
                ExpectSuccess(operation, answer);
            } else if (operation.name == std::string("GetServiceJobStatus") && lost > OF_CONNECTION) {
                EXPECT_EQ(answer.result, 1) << "one of the two lists was received";
            } else if (operation.name == std::string("SetServiceJobCancel") && lost == OF_CONNECTION) {
                EXPECT_EQ(answer.result, 0);
            } else {
                // The start of a connection returns the cause; after that every loss returns the same code.
                ExpectFailure(operation, lost,
                              lost < OF_CONNECTION ? NCL_ERR_SOCK_CONNECTION : NCL_ERR_CONNECTION_CLOSE,
                              answer);
            }
            EXPECT_EQ(server.Connections(), 1);
        }
    }
}

TEST(NetworkVanishing, DuringASubmission)
{
    WritePublisher("R", "[Common]\nPublisherURL=127.0.0.1\n");
    CNetworkPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    TcpServer server({Answering(OF_CONNECTION)}, "127.0.0.1", 80);
    DWORD handle = 0;
    DWORD code = 77;
    ASSERT_TRUE(mgr.StartConnection("R", &handle, &code));
    const BYTE data[] = {1};
    int job = 4711;
    EXPECT_TRUE(mgr.SendJobData(handle, data, 1, &job, &code));
    EXPECT_EQ(code, 9U);
    EXPECT_EQ(job, 4711);
    EXPECT_EQ(mgr.GetPublishID(handle, &code), "");
    EXPECT_EQ(code, 9U);
    EXPECT_FALSE(mgr.CommitJob(handle, 1, &code));
    EXPECT_EQ(code, 9U);
    long result = 77;
    EXPECT_FALSE(mgr.CancelJob("R", "J", handle, 1, &result));
    EXPECT_EQ(result, 9);
    EXPECT_TRUE(mgr.EndConnection(handle));
}

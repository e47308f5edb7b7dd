#include "FakePublisher.h"
#include "SyslogLines.h"

#include <span>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::string FORM_TYPE = "application/x-www-form-urlencoded";

struct Action
{
    JobControlType type;
    const char* value;
};

using Control = DWORD (*)(DWORD handle, int id);

struct ControlOperation
{
    const char* name;
    Control run;
    const char* action;
    const char* trace; ///< the last line of the log after a bad reply
};

const ControlOperation submitting[] = {
    {"CommitJob", [](DWORD handle, int id) { return CommitJob(handle, id); }, "0",
     "<3>\t## trace ## CommitJob ControlJob() Server Job ID"},
    {"CancelJob", [](DWORD handle, int id) { return CancelJob(handle, id); }, "1",
     "<3>\t## trace ## CancelJob ControlJob(1234) Server Job ID"},
};

const ControlOperation monitor[] = {
    {"CancelJobForMonitor", [](DWORD handle, int id) { return CancelJobForMonitor(handle, id, "u", "p"); },
     "1", "<3>\t## trace ## CancelJobForMonitor ControlJobForMonitor() Server Job ID"},
    {"StopJobForMonitor", [](DWORD handle, int id) { return StopJobForMonitor(handle, id, "u", "p"); }, "2",
     "<3>\t## trace ## StopJobForMonitor ControlJobForMonitor() Server Job ID"},
    {"RestartJobForMonitor", [](DWORD handle, int id) { return RestartJobForMonitor(handle, id, "u", "p"); },
     "3", "<3>\t## trace ## RestartJobForMonitor ControlJobForMonitor() Server Job ID"},
    {"ChangeJobPriorityForMonitor",
     [](DWORD handle, int id) { return ChangeJobPriorityForMonitor(handle, id, "u", "p"); }, "6",
     "<3>\t## trace ## ChangeJobPriorityForMonitor ControlJobForMonitor() Server Job ID"},
};

std::string ControlBody(const std::string& action)
{
    return "action=" + action + "&serverjobid=000004d2";
}

} // namespace

TEST(JobControl, EachTypeHasItsAction)
{
    const Action actions[] = {{JOB_CONTROL_TYPE_COMMIT, "0"},
                              {JOB_CONTROL_TYPE_CANCEL, "1"},
                              {JOB_CONTROL_TYPE_STOP, "2"},
                              {JOB_CONTROL_TYPE_RESTART, "3"},
                              {JOB_CONTROL_TYPE_CHANGE_PRIORITY, "6"},
                              {JOB_CONTROL_TYPE_COMMIT_DISC_INFO, "4"},
                              {JOB_CONTROL_TYPE_PRE_COMMIT_EMPTY_DISC_INFO, "5"}};
    for (const Action& action : actions) {
        for (const BOOL isSpecial : {FALSE, TRUE}) {
            FakePublisher publisher({GoodReply("not looked at")});
            publisher->m_dwNPType = NCL_NPTYPE_UNKNOWN;
            ST_HTTP_RESPONSE response;
            std::list<ST_COMM_REPLY> items;
            EXPECT_EQ(ControlJob(&publisher.Object(), &response, items, 1234, action.type, isSpecial),
                      NCL_SUCCESS);
            const FakeRequest request = publisher.Requests().at(0);
            EXPECT_EQ(request.head, "POST /webapp2/JobController HTTP/1.1\r\nHost:localhost\r\n"
                                    "Content-Type:application/x-www-form-urlencoded\r\n"
                                    "Content-Length: 29\r\n\r\n");
            EXPECT_EQ(request.body, ControlBody(action.value));
            EXPECT_EQ(publisher->m_dwNPType, NCL_NPTYPE_UNKNOWN);
        }
    }
}

TEST(JobControl, JobIdsAreEightHexadecimalDigits)
{
    EXPECT_EQ(ServerJobIDText(1234), "000004d2");
    EXPECT_EQ(ServerJobIDText(0), "00000000");
    EXPECT_EQ(ServerJobIDText(0x7FFFFFFF), "7fffffff");
    EXPECT_EQ(ServerJobIDText(-1), "ffffffff");
}

TEST(JobControl, OnlySpecialJobsAreControlledInASecureMode)
{
    FakePublisher publisher({Done()});
    publisher->m_dwServerMode = NCL_MODE_SECURITY;
    publisher->m_strJSessionID = "s";
    ST_HTTP_RESPONSE response;
    std::list<ST_COMM_REPLY> items;
    EXPECT_EQ(ControlJob(&publisher.Object(), &response, items, 1, JOB_CONTROL_TYPE_STOP, FALSE),
              NCL_ERR_SSL_INITIALIZATION);
    EXPECT_THAT(publisher.Requests(), IsEmpty());
    EXPECT_EQ(ControlJob(&publisher.Object(), &response, items, 1, JOB_CONTROL_TYPE_STOP, TRUE), NCL_SUCCESS);
    EXPECT_EQ(publisher.Requests().at(0).Header("Cookie"), "(none)");
}

TEST(JobControl, OtherJobsSendTheSessionCookie)
{
    FakePublisher publisher({Done()});
    publisher->m_strJSessionID = "s";
    ST_HTTP_RESPONSE response;
    std::list<ST_COMM_REPLY> items;
    EXPECT_EQ(ControlJob(&publisher.Object(), &response, items, 1, JOB_CONTROL_TYPE_STOP, FALSE),
              NCL_SUCCESS);
    EXPECT_EQ(publisher.Requests().at(0).Header("Cookie"), "s");
}

TEST(JobControl, TheReplyHasOneItem)
{
    FakePublisher publisher({HttpResponse(ReplyItem("") + ReplyItem("")), HttpResponse("")});
    ST_HTTP_RESPONSE response;
    std::list<ST_COMM_REPLY> items;
    EXPECT_EQ(ControlJob(&publisher.Object(), &response, items, 1, JOB_CONTROL_TYPE_STOP, FALSE),
              NCL_ERR_INVALID_COMM_SPEC);
    EXPECT_EQ(ControlJob(&publisher.Object(), &response, items, 1, JOB_CONTROL_TYPE_STOP, FALSE),
              NCL_ERR_INVALID_COMM_SPEC);
}

TEST(JobControl, CommitAndCancelEndTheSubmission)
{
    for (const ControlOperation& operation : submitting) {
        SyslogLines log;
        FakePublisher publisher({Done()});
        publisher->m_nServerJobID = 1234;
        EXPECT_EQ(operation.run(publisher.Handle(), 1234), NCL_SUCCESS);
        EXPECT_EQ(publisher->m_nServerJobID, 0);
        EXPECT_EQ(publisher.Requests().at(0).body, ControlBody(operation.action));
        const std::string begin = std::string("<6>server , ") + operation.name;
        EXPECT_THAT(log.Take(), ElementsAre(begin + " , Start(1234)", begin + " , End"));
    }
}

TEST(JobControl, AFailureDoesNotEndTheSubmission)
{
    for (const ControlOperation& operation : submitting) {
        SyslogLines log;
        FakePublisher publisher({HttpResponse(ReplyItem("", 7))});
        publisher->m_nServerJobID = 1234;
        EXPECT_EQ(operation.run(publisher.Handle(), 1234), NCL_ERR_SERVER_JOB_ID);
        EXPECT_EQ(publisher->m_nServerJobID, 1234);
        EXPECT_THAT(log.Take(), ElementsAre(std::string("<6>server , ") + operation.name + " , Start(1234)",
                                            "<3>[Servlet] ServerJobID", operation.trace));
    }
}

TEST(JobControl, AMonitorDoesNotEndTheSubmission)
{
    for (const ControlOperation& operation : monitor) {
        SyslogLines log;
        FakePublisher publisher({Done()});
        publisher->m_nServerJobID = 1234;
        EXPECT_EQ(operation.run(publisher.Handle(), 1234), NCL_SUCCESS);
        EXPECT_EQ(publisher->m_nServerJobID, 1234);
        const FakeRequest request = publisher.Requests().at(0);
        EXPECT_EQ(request.Line(), "POST /webapp2/JobController");
        EXPECT_EQ(request.body, ControlBody(operation.action));
        EXPECT_EQ(request.Header("Authorization"), "(none)");
        const std::string begin = std::string("<6>server , ") + operation.name;
        EXPECT_THAT(log.Take(), ElementsAre(begin + " , Start(1234)", begin + " , End"));
    }
}

TEST(JobControl, AMonitorLogsAFailureTwice)
{
    for (const ControlOperation& operation : monitor) {
        SyslogLines log;
        FakePublisher publisher({HttpResponse(ReplyItem("", 7))});
        EXPECT_EQ(operation.run(publisher.Handle(), 1234), NCL_ERR_SERVER_JOB_ID);
        EXPECT_THAT(log.Take(),
                    ElementsAre(std::string("<6>server , ") + operation.name + " , Start(1234)",
                                "<3>[Servlet] ServerJobID",
                                "<3>\t## trace ## ControlJobForMonitor ControlJob()", operation.trace));
    }
}

TEST(JobControl, AMonitorRequiresUserAndPassword)
{
    SyslogLines log;
    FakePublisher publisher;
    const DWORD handle = publisher.Handle();
    EXPECT_EQ(CancelJobForMonitor(handle, 1, nullptr, "p"), NCL_ERR_PARAMETER);
    EXPECT_EQ(StopJobForMonitor(handle, 1, "u", nullptr), NCL_ERR_PARAMETER);
    EXPECT_EQ(RestartJobForMonitor(handle, 1, nullptr, nullptr), NCL_ERR_PARAMETER);
    EXPECT_EQ(ChangeJobPriorityForMonitor(handle, 1, nullptr, "p"), NCL_ERR_PARAMETER);
    EXPECT_THAT(publisher.Requests(), IsEmpty());
    EXPECT_EQ(log.Take().size(), 8U);
}

TEST(JobControl, AnInvalidHandleHasNoHost)
{
    for (const auto& operations :
         {std::span<const ControlOperation>(submitting), std::span<const ControlOperation>(monitor)}) {
        for (const ControlOperation& operation : operations) {
            SyslogLines log;
            EXPECT_EQ(operation.run(0, 1234), NCL_ERR_PARAMETER);
            EXPECT_THAT(
                log.Take(),
                ElementsAre(std::string("<6>(null) , ") + operation.name + " , Start(1234)", COMMON_LINE));
        }
    }
}

TEST(JobControl, OnlyTheCallerTracesAFailedExchange)
{
    for (const ControlOperation& operation : submitting) {
        SyslogLines log;
        FakePublisher publisher({HttpResponse("", "401 Unauthorized")});
        EXPECT_EQ(operation.run(publisher.Handle(), 1234), NCL_ERR_SERVER_JOB_ID);
        EXPECT_THAT(log.Take(),
                    ElementsAre(std::string("<6>server , ") + operation.name + " , Start(1234)",
                                "<3>[Apache/Tomcat] HTTP 401 error (POST, /webapp2/JobController)",
                                operation.trace));
    }
}

TEST(JobControl, AClosingConnectionRefusesOperations)
{
    FakePublisher publisher;
    publisher->m_bEndConnection = TRUE;
    for (const ControlOperation& operation : submitting) {
        EXPECT_EQ(operation.run(publisher.Handle(), 1), NCL_ERR_PARAMETER);
    }
    for (const ControlOperation& operation : monitor) {
        EXPECT_EQ(operation.run(publisher.Handle(), 1), NCL_ERR_PARAMETER);
    }
    publisher->m_bEndConnection = FALSE;
    EXPECT_THAT(publisher.Requests(), IsEmpty());
}

TEST(JobControlDeathTest, NullPointersAreProgrammingErrors)
{
    FakePublisher publisher;
    ST_NCL* ncl = &publisher.Object();
    ST_HTTP_RESPONSE response;
    std::list<ST_COMM_REPLY> items;
    const JobControlType stop = JOB_CONTROL_TYPE_STOP;
    EXPECT_DEATH(ControlJob(nullptr, &response, items, 1, stop, FALSE), "");
    EXPECT_DEATH(ControlJob(ncl, nullptr, items, 1, stop, FALSE), "");
    EXPECT_DEATH(ControlJobForMonitor(nullptr, &response, items, 1, stop, "u", "p"), "");
    EXPECT_DEATH(ControlJobForMonitor(ncl, nullptr, items, 1, stop, "u", "p"), "");
    EXPECT_DEATH(ControlJobForMonitor(ncl, &response, items, 1, stop, nullptr, "p"), "");
    EXPECT_DEATH(ControlJobForMonitor(ncl, &response, items, 1, stop, "u", nullptr), "");
}

// --- Operations by the submitter's id

TEST(JobBridge, SendsTheIdUnchanged)
{
    SyslogLines log;
    FakePublisher publisher({Done(), Done()});
    EXPECT_EQ(CancelJobForBridge(publisher.Handle(), "J 17&x", "u", "p"), NCL_SUCCESS);
    EXPECT_EQ(ChangeJobPriorityForBridge(publisher.Handle(), "J17", nullptr, nullptr), NCL_SUCCESS);
    const std::vector<FakeRequest> requests = publisher.Requests();
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_EQ(requests[0].Line(), "POST /webapp2/JobControllerExt");
    EXPECT_EQ(requests[0].Header("Content-Type"), FORM_TYPE);
    EXPECT_EQ(requests[0].Header("Authorization"), "(none)");
    EXPECT_EQ(requests[0].body, "action=0&jobid=J 17&x");
    EXPECT_EQ(requests[1].Line(), "POST /webapp2/JobControllerExt");
    EXPECT_EQ(requests[1].body, "action=1&jobid=J17");
    EXPECT_THAT(log.Take(),
                ElementsAre("<6>server , CancelJobForBridge , Start", "<6>server , CancelJobForBridge , End",
                            "<6>server , ChangeJobPriorityForBridge , Start",
                            "<6>server , ChangeJobPriorityForBridge , End"));
}

TEST(JobBridge, BothOperationsTraceUnderOneName)
{
    SyslogLines log;
    FakePublisher publisher({HttpResponse("", "500 Oh"), HttpResponse(ReplyItem("", 10)),
                             HttpResponse("", "500 Oh"), HttpResponse(ReplyItem("", 10))});
    EXPECT_EQ(CancelJobForBridge(publisher.Handle(), "J", "u", "p"), NCL_ERR_SERVER_OTHER);
    EXPECT_EQ(log.Take().back(), "<3>\t## trace ## CancelJobForBridge SendRequest() Server Other");
    EXPECT_EQ(CancelJobForBridge(publisher.Handle(), "J", "u", "p"), NCL_ERR_PERMISSION_DENIED);
    EXPECT_EQ(log.Take().back(), "<3>\t## trace ## CancelJobForBridge ParseCommReply() Permission Denied");
    EXPECT_EQ(ChangeJobPriorityForBridge(publisher.Handle(), "J", "u", "p"), NCL_ERR_SERVER_OTHER);
    EXPECT_EQ(log.Take().back(), "<3>\t## trace ## CancelJobForBridge SendRequest() Server Other");
    EXPECT_EQ(ChangeJobPriorityForBridge(publisher.Handle(), "J", "u", "p"), NCL_ERR_PERMISSION_DENIED);
    EXPECT_EQ(log.Take().back(), "<3>\t## trace ## CancelJobForBridge ParseCommReply() Permission Denied");
}

TEST(JobBridge, RefusesBadParametersButNotAClosingConnection)
{
    SyslogLines log;
    FakePublisher publisher({Done()});
    EXPECT_EQ(CancelJobForBridge(publisher.Handle(), nullptr, "u", "p"), NCL_ERR_PARAMETER);
    EXPECT_EQ(ChangeJobPriorityForBridge(0, "J", "u", "p"), NCL_ERR_PARAMETER);
    EXPECT_THAT(log.Take(), ElementsAre("<6>server , CancelJobForBridge , Start", COMMON_LINE,
                                        "<6>(null) , ChangeJobPriorityForBridge , Start", COMMON_LINE));
    publisher->m_bEndConnection = TRUE;
    EXPECT_EQ(CancelJobForBridge(publisher.Handle(), "J", "u", "p"), NCL_SUCCESS);
    publisher->m_bEndConnection = FALSE;
}

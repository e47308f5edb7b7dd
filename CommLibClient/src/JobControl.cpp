// Operations of a client on a job of the server.
#include "LogManager.h"
#include "Operation.h"

#include <cassert>
#include <cstdio>
#include <functional>
#include <iterator>

const char* const pszJobControlQueryValueConst[7] = {"0", "1", "2", "3", "6", "4", "5"};

namespace {

/// Ends a submission. `logFailure` receives the text of the code.
DWORD EndSubmission(const char* pszOperation, DWORD dwHandle, int nServerJobID, JobControlType eType,
                    NCLNumberedLine start, NCLLine end, const std::function<void(const char*)>& logFailure)
try {
    NCLOperation operation(dwHandle, NCLOperation::ACTION, start, nServerJobID);
    DWORD result = operation.Enter(true);
    if (result != NCL_SUCCESS) {
        return result;
    }
    result =
        ControlJob(operation.Object(), operation.Response(), operation.Items(), nServerJobID, eType, FALSE);
    if (result != NCL_SUCCESS) {
        logFailure(GetNCLErrorString(result));
        return result;
    }
    operation.Object()->m_nServerJobID = 0;
    return operation.End(end);
} catch (const std::bad_alloc&) {
    return OutOfMemory(pszOperation);
}

struct MonitorLines
{
    NCLNumberedLine start;
    NCLLine trace;
    NCLLine end;
};

DWORD ControlForMonitor(const char* pszOperation, DWORD dwHandle, int nServerJobID, JobControlType eType,
                        const char* pszUserName, const char* pszPassword, const MonitorLines& lines)
try {
    NCLOperation operation(dwHandle, NCLOperation::ACTION, lines.start, nServerJobID);
    DWORD result = operation.Enter(pszUserName != nullptr && pszPassword != nullptr);
    if (result != NCL_SUCCESS) {
        return result;
    }
    result = ControlJobForMonitor(operation.Object(), operation.Response(), operation.Items(), nServerJobID,
                                  eType, pszUserName, pszPassword);
    return result == NCL_SUCCESS ? operation.End(lines.end) : LogTrace(lines.trace, result);
} catch (const std::bad_alloc&) {
    return OutOfMemory(pszOperation);
}

} // namespace

std::string ServerJobIDText(int nServerJobID)
{
    char text[9];
    snprintf(text, sizeof text, "%08x", static_cast<unsigned int>(nServerJobID));
    return text;
}

DWORD ControlJob(ST_NCL* pNCL, ST_HTTP_RESPONSE* pstHttpRes, std::list<ST_COMM_REPLY>& rliReply,
                 int nServerJobID, JobControlType eControlType, BOOL bSpecial)
{
    assert(pNCL != nullptr);
    assert(pstHttpRes != nullptr);
    assert(static_cast<size_t>(eControlType) < std::size(pszJobControlQueryValueConst));
    const std::string body = std::string("action=") + pszJobControlQueryValueConst[eControlType] +
                             "&serverjobid=" + ServerJobIDText(nServerJobID);
    const DWORD result =
        SendRequest(pNCL,
                    {.path = "/webapp2/JobController",
                     .method = CHttp::METHOD_POST,
                     .body = body.data(),
                     .bodySize = static_cast<DWORD>(body.size()),
                     .type = bSpecial ? COMM_TYPE_HTTP : COMM_TYPE_SELECT,
                     .option = bSpecial ? SEND_OPTION_FORM : SEND_OPTION_FORM | SEND_OPTION_COOKIE},
                    pstHttpRes);
    if (result != NCL_SUCCESS) {
        return result;
    }
    return ParseCommReply(pstHttpRes->m_pContent, pstHttpRes->m_dwContentLength, rliReply, 1);
}

DWORD CommitJob(DWORD dwHandle, int nServerJobID)
{
    return EndSubmission("CommitJob", dwHandle, nServerJobID, JOB_CONTROL_TYPE_COMMIT,
                         "%s , CommitJob , Start(%d)", "%s , CommitJob , End", [](const char* error) {
                             CLogManager().LOG_ERR("\t## trace ## CommitJob ControlJob() %s", error);
                         });
}

DWORD CancelJob(DWORD dwHandle, int nServerJobID)
{
    return EndSubmission(
        "CancelJob", dwHandle, nServerJobID, JOB_CONTROL_TYPE_CANCEL, "%s , CancelJob , Start(%d)",
        "%s , CancelJob , End", [nServerJobID](const char* error) {
            CLogManager().LOG_ERR("\t## trace ## CancelJob ControlJob(%d) %s", nServerJobID, error);
        });
}

DWORD ControlJobForMonitor(ST_NCL* pNCL, ST_HTTP_RESPONSE* pstHttpRes, std::list<ST_COMM_REPLY>& rliReply,
                           int nServerJobID, JobControlType eType, const char* pszUserName,
                           const char* pszPassword)
{
    assert(pNCL != nullptr);
    assert(pstHttpRes != nullptr);
    assert(pszUserName != nullptr);
    assert(pszPassword != nullptr);
    const DWORD result = ControlJob(pNCL, pstHttpRes, rliReply, nServerJobID, eType, FALSE);
    if (result != NCL_SUCCESS) {
        CLogManager log;
        log.LOG_ERR("\t## trace ## ControlJobForMonitor ControlJob()");
    }
    return result;
}

DWORD CancelJobForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName, const char* pszPassword)
{
    return ControlForMonitor("CancelJobForMonitor", dwHandle, nServerJobID, JOB_CONTROL_TYPE_CANCEL,
                             pszUserName, pszPassword,
                             {.start = "%s , CancelJobForMonitor , Start(%d)",
                              .trace = "\t## trace ## CancelJobForMonitor ControlJobForMonitor() %s",
                              .end = "%s , CancelJobForMonitor , End"});
}

DWORD StopJobForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName, const char* pszPassword)
{
    return ControlForMonitor("StopJobForMonitor", dwHandle, nServerJobID, JOB_CONTROL_TYPE_STOP, pszUserName,
                             pszPassword,
                             {.start = "%s , StopJobForMonitor , Start(%d)",
                              .trace = "\t## trace ## StopJobForMonitor ControlJobForMonitor() %s",
                              .end = "%s , StopJobForMonitor , End"});
}

DWORD RestartJobForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName, const char* pszPassword)
{
    return ControlForMonitor("RestartJobForMonitor", dwHandle, nServerJobID, JOB_CONTROL_TYPE_RESTART,
                             pszUserName, pszPassword,
                             {.start = "%s , RestartJobForMonitor , Start(%d)",
                              .trace = "\t## trace ## RestartJobForMonitor ControlJobForMonitor() %s",
                              .end = "%s , RestartJobForMonitor , End"});
}

DWORD ChangeJobPriorityForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName,
                                  const char* pszPassword)
{
    return ControlForMonitor("ChangeJobPriorityForMonitor", dwHandle, nServerJobID,
                             JOB_CONTROL_TYPE_CHANGE_PRIORITY, pszUserName, pszPassword,
                             {.start = "%s , ChangeJobPriorityForMonitor , Start(%d)",
                              .trace = "\t## trace ## ChangeJobPriorityForMonitor ControlJobForMonitor() %s",
                              .end = "%s , ChangeJobPriorityForMonitor , End"});
}

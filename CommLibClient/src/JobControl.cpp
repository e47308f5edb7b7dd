// What a client makes a server do with a job.
#include "LogManager.h"
#include "Operation.h"

#include <cassert>
#include <cstdio>
#include <iterator>

const char* const pszJobControlQueryValueConst[7] = {"0", "1", "2", "3", "6", "4", "5"};

namespace {

/// What a submission ends with. A failure is logged as one of `pszCallee`.
DWORD EndSubmission(const char* pszOperation, const char* pszCallee, DWORD dwHandle, int nServerJobID,
                    JobControlType eType)
try {
    NCLOperation operation(dwHandle, pszOperation, NCLOperation::ACTION, nServerJobID);
    DWORD result = operation.Enter(true);
    if (result != NCL_SUCCESS) {
        return result;
    }
    result =
        ControlJob(operation.Object(), operation.Response(), operation.Items(), nServerJobID, eType, FALSE);
    if (result != NCL_SUCCESS) {
        return operation.Trace(pszCallee, result);
    }
    operation.Object()->m_nServerJobID = 0;
    return operation.End();
} catch (const std::bad_alloc&) {
    return OutOfMemory(pszOperation);
}

/// One of the operations of a monitor.
DWORD ControlForMonitor(const char* pszOperation, DWORD dwHandle, int nServerJobID, JobControlType eType,
                        const char* pszUserName, const char* pszPassword)
try {
    NCLOperation operation(dwHandle, pszOperation, NCLOperation::ACTION, nServerJobID);
    DWORD result = operation.Enter(pszUserName != nullptr && pszPassword != nullptr);
    if (result != NCL_SUCCESS) {
        return result;
    }
    result = ControlJobForMonitor(operation.Object(), operation.Response(), operation.Items(), nServerJobID,
                                  eType, pszUserName, pszPassword);
    return result == NCL_SUCCESS ? operation.End() : operation.Trace("ControlJobForMonitor()", result);
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
    return EndSubmission("CommitJob", "ControlJob()", dwHandle, nServerJobID, JOB_CONTROL_TYPE_COMMIT);
}

DWORD CancelJob(DWORD dwHandle, int nServerJobID)
try {
    const std::string callee = "ControlJob(" + std::to_string(nServerJobID) + ")";
    return EndSubmission("CancelJob", callee.c_str(), dwHandle, nServerJobID, JOB_CONTROL_TYPE_CANCEL);
} catch (const std::bad_alloc&) {
    return OutOfMemory("CancelJob");
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
                             pszUserName, pszPassword);
}

DWORD StopJobForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName, const char* pszPassword)
{
    return ControlForMonitor("StopJobForMonitor", dwHandle, nServerJobID, JOB_CONTROL_TYPE_STOP, pszUserName,
                             pszPassword);
}

DWORD RestartJobForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName, const char* pszPassword)
{
    return ControlForMonitor("RestartJobForMonitor", dwHandle, nServerJobID, JOB_CONTROL_TYPE_RESTART,
                             pszUserName, pszPassword);
}

DWORD ChangeJobPriorityForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName,
                                  const char* pszPassword)
{
    return ControlForMonitor("ChangeJobPriorityForMonitor", dwHandle, nServerJobID,
                             JOB_CONTROL_TYPE_CHANGE_PRIORITY, pszUserName, pszPassword);
}

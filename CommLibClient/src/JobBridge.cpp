// Job control by the id that the submitter gave to a job. These operations are not counted, and a connection
// that is being closed does not refuse them.
#include "Operation.h"

namespace {

DWORD ControlForBridge(const char* pszOperation, const char* pszAction, DWORD dwHandle, const char* pszJobID,
                       NCLLine start, NCLLine end)
try {
    ST_NCL* pNCL = GetNCLObj(dwHandle);
    start.Info(GetNCLHostName(pNCL));
    if (pNCL == nullptr || pszJobID == nullptr) {
        return ReturnErrParam();
    }
    const std::string body = std::string("action=") + pszAction + "&jobid=" + pszJobID;
    ST_HTTP_RESPONSE response;
    DWORD result = SendRequest(pNCL,
                               {.path = "/webapp2/JobControllerExt",
                                .method = CHttp::METHOD_POST,
                                .body = body.data(),
                                .bodySize = static_cast<DWORD>(body.size()),
                                .type = COMM_TYPE_HTTP,
                                .option = SEND_OPTION_FORM},
                               &response);
    if (result != NCL_SUCCESS) {
        // Both operations log their failures under the name of the first.
        return LogTrace("\t## trace ## CancelJobForBridge SendRequest() %s", result);
    }
    NoteAnswer(*pNCL);
    std::list<ST_COMM_REPLY> items;
    result = ParseCommReply(response.m_pContent, response.m_dwContentLength, items, 1);
    if (result != NCL_SUCCESS) {
        return LogTrace("\t## trace ## CancelJobForBridge ParseCommReply() %s", result);
    }
    end.Info(GetNCLHostName(pNCL));
    return NCL_SUCCESS;
} catch (const std::bad_alloc&) {
    return OutOfMemory(pszOperation);
}

} // namespace

DWORD CancelJobForBridge(DWORD dwHandle, const char* pszJobID, const char*, const char*)
{
    return ControlForBridge("CancelJobForBridge", "0", dwHandle, pszJobID, "%s , CancelJobForBridge , Start",
                            "%s , CancelJobForBridge , End");
}

DWORD ChangeJobPriorityForBridge(DWORD dwHandle, const char* pszJobID, const char*, const char*)
{
    return ControlForBridge("ChangeJobPriorityForBridge", "1", dwHandle, pszJobID,
                            "%s , ChangeJobPriorityForBridge , Start",
                            "%s , ChangeJobPriorityForBridge , End");
}

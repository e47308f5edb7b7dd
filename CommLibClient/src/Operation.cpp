#include "Operation.h"

#include "LogManager.h"

DWORD LogTrace(const char* pszOperation, const char* pszCallee, DWORD dwCode)
{
    CLogManager log;
    log.LOG_ERR("\t## trace ## %s %s %s", pszOperation, pszCallee, GetNCLErrorString(dwCode));
    return dwCode;
}

DWORD OutOfMemory(const char* pszOperation)
{
    return LogTrace(pszOperation, "allocation", NCL_ERR_GET_MEMORY);
}

void NoteAnswer(ST_NCL& ncl)
{
    if (ncl.m_dwNPType == NCL_NPTYPE_UNKNOWN) {
        ncl.m_dwNPType = NCL_NPTYPE_300NII;
    }
}

NCLOperation::NCLOperation(DWORD dwHandle, const char* pszName, Level eLevel, std::optional<int> value)
    : m_guard(dwHandle), m_pszName(pszName), m_eLevel(eLevel)
{
    LogLine("Start", value);
}

bool NCLOperation::MayStart() const
{
    return Object() != nullptr && std::atomic_ref(Object()->m_bEndConnection) == FALSE;
}

DWORD NCLOperation::Exchange(const NCLRequest& request, DWORD dwItemCount)
{
    DWORD result = SendRequest(Object(), request, &m_response);
    if (result != NCL_SUCCESS) {
        return Trace("SendRequest()", result);
    }
    NoteAnswer(*Object());
    result = ParseCommReply(m_response.m_pContent, m_response.m_dwContentLength, m_items, dwItemCount);
    return result == NCL_SUCCESS ? result : Trace("ParseCommReply()", result);
}

DWORD NCLOperation::Invalid(int nCheck) const
{
    CLogManager log;
    log.LOG_ERR("[CommLib] %s %s %d", m_pszName, GetNCLErrorString(NCL_ERR_INVALID_COMM_SPEC), nCheck);
    return NCL_ERR_INVALID_COMM_SPEC;
}

DWORD NCLOperation::End(std::optional<int> value) const
{
    LogLine("End", value);
    return NCL_SUCCESS;
}

void NCLOperation::LogLine(const char* pszWhat, std::optional<int> value) const
{
    CLogManager log;
    const char* const host = GetNCLHostName(Object());
    // A null host goes on as it is, which is why the whole line is left to the log's own formatting.
    const std::string number = value ? "(" + std::to_string(*value) + ")" : "";
    if (m_eLevel == QUERY) {
        log.LOG_DEBUG("%s , %s , %s%s", host, m_pszName, pszWhat, number.c_str());
    } else {
        log.LOG_INFO("%s , %s , %s%s", host, m_pszName, pszWhat, number.c_str());
    }
}

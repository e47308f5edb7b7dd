#include "Operation.h"

#include "LogManager.h"

DWORD LogTrace(NCLLine line, DWORD dwCode)
{
    line.Error(GetNCLErrorString(dwCode));
    return dwCode;
}

DWORD LogInvalid(NCLLine line)
{
    return LogTrace(line, NCL_ERR_INVALID_COMM_SPEC);
}

DWORD LogInvalid(NCLNumberedLine line, int nCheck)
{
    line.Error(GetNCLErrorString(NCL_ERR_INVALID_COMM_SPEC), nCheck);
    return NCL_ERR_INVALID_COMM_SPEC;
}

DWORD OutOfMemory(const char* pszOperation)
{
    CLogManager log;
    log.LOG_ERR("\t## trace ## %s allocation %s", pszOperation, GetNCLErrorString(NCL_ERR_GET_MEMORY));
    return NCL_ERR_GET_MEMORY;
}

void NoteAnswer(ST_NCL& ncl)
{
    if (ncl.m_dwNPType == NCL_NPTYPE_UNKNOWN) {
        ncl.m_dwNPType = NCL_NPTYPE_300NII;
    }
}

NCLOperation::NCLOperation(DWORD dwHandle, Level eLevel, NCLLine line) : m_guard(dwHandle), m_eLevel(eLevel)
{
    Log<>(line);
}

NCLOperation::NCLOperation(DWORD dwHandle, Level eLevel, NCLNumberedLine line, int nValue)
    : m_guard(dwHandle), m_eLevel(eLevel)
{
    Log<int>(line, nValue);
}

bool NCLOperation::MayStart() const
{
    return Object() != nullptr && std::atomic_ref(Object()->m_bEndConnection) == FALSE;
}

DWORD NCLOperation::Exchange(const NCLRequest& request, DWORD dwItemCount, const NCLExchangeLines& lines)
{
    DWORD result = SendRequest(Object(), request, &m_response);
    if (result != NCL_SUCCESS) {
        return LogTrace(lines.request, result);
    }
    NoteAnswer(*Object());
    result = ParseCommReply(m_response.m_pContent, m_response.m_dwContentLength, m_items, dwItemCount);
    return result == NCL_SUCCESS ? result : LogTrace(lines.reply, result);
}

DWORD NCLOperation::End(NCLLine line) const
{
    Log<>(line);
    return NCL_SUCCESS;
}

DWORD NCLOperation::End(NCLNumberedLine line, int nValue) const
{
    Log<int>(line, nValue);
    return NCL_SUCCESS;
}

template <class... Args>
void NCLOperation::Log(LogFormat<const char*, Args...> line, Args... args) const
{
    // A null host is passed to the log's formatting as it is.
    const char* const host = GetNCLHostName(Object());
    if (m_eLevel == QUERY) {
        line.Debug(host, args...);
    } else {
        line.Info(host, args...);
    }
}

// The id of a new job. The server returns each id only once, so an id that did not fit is kept for the next
// call.
#include "LogManager.h"
#include "Operation.h"

#include <cstring>

namespace {

/// False, with the size needed, if the id and a zero byte do not fit.
bool CopyID(const std::string& id, char* pszOut, DWORD dwSize, DWORD* pdwNeedSize)
{
    if (dwSize < id.size() + 1) {
        *pdwNeedSize = static_cast<DWORD>(id.size() + 1);
        return false;
    }
    std::memcpy(pszOut, id.c_str(), id.size() + 1);
    return true;
}

} // namespace

DWORD GetPublishID(DWORD dwHandle, char* pszPublishIDOut, DWORD dwSize, DWORD* pdwNeedSize)
try {
    NCLOperation operation(dwHandle, NCLOperation::ACTION, "%s , GetPublishID , Start");
    DWORD result = operation.Enter(pszPublishIDOut != nullptr && pdwNeedSize != nullptr);
    if (result != NCL_SUCCESS) {
        return result;
    }
    *pdwNeedSize = 0;
    std::string& kept = operation.Object()->m_strPublishID;
    if (!kept.empty()) {
        if (!CopyID(kept, pszPublishIDOut, dwSize, pdwNeedSize)) {
            return NCL_ERR_BUF_SIZE;
        }
        kept.clear();
        return NCL_SUCCESS;
    }

    result = operation.Exchange({.path = "/webapp2/PublishIDGetter"}, 1,
                                {.request = "\t## trace ## GetPublishID SendRequest() %s",
                                 .reply = "\t## trace ## GetPublishID ParseCommReply() %s"});
    if (result != NCL_SUCCESS) {
        return result;
    }
    const ST_COMM_REPLY& item = operation.Item();
    const std::string id = item.m_pData != nullptr ? std::string(item.m_pData, item.m_dwDataSize) : "";
    if (!CopyID(id, pszPublishIDOut, dwSize, pdwNeedSize)) {
        kept = id;
        CLogManager log;
        log.LOG_ERR("%s , GetPublishID , ErrBuffer", GetNCLHostName(operation.Object()));
        return NCL_ERR_BUF_SIZE;
    }
    return operation.End("%s , GetPublishID , End");
} catch (const std::bad_alloc&) {
    return OutOfMemory("GetPublishID");
}

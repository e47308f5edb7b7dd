#include "LogManager.h"
#include "NW_Com_Lib_internal.h"

namespace {

constexpr DWORD ITEM_HEAD_SIZE = 3;

/// The reply that is not as agreed: it is logged with the number of the check that found it.
DWORD Invalid(std::list<ST_COMM_REPLY>& items, int check)
{
    CLogManager log;
    log.LOG_ERR("[CommLib] ParseCommReply %s %d", GetNCLErrorString(NCL_ERR_INVALID_COMM_SPEC), check);
    items.clear();
    return NCL_ERR_INVALID_COMM_SPEC;
}

} // namespace

DWORD ParseCommReply(const char* pContent, DWORD dwContentLen, std::list<ST_COMM_REPLY>& rliReply,
                     DWORD dwCheckReplyCount)
{
    rliReply.clear();
    if (pContent == nullptr) {
        return Invalid(rliReply, 1);
    }
    DWORD offset = 0;
    while (offset < dwContentLen) {
        const DWORD left = dwContentLen - offset;
        if (left < ITEM_HEAD_SIZE) {
            return Invalid(rliReply, 2);
        }
        const auto* head = reinterpret_cast<const BYTE*>(pContent + offset);
        const DWORD result = ConvertServerStatus(head[0]);
        if (result != NCL_SUCCESS) {
            rliReply.clear();
            return result;
        }
        ST_COMM_REPLY item;
        item.m_dwDataSize = static_cast<DWORD>(head[1]) << 8 | head[2];
        if (item.m_dwDataSize > left - ITEM_HEAD_SIZE) {
            return Invalid(rliReply, 3);
        }
        if (item.m_dwDataSize != 0) {
            item.m_pData = pContent + offset + ITEM_HEAD_SIZE;
        }
        rliReply.push_back(item);
        offset += ITEM_HEAD_SIZE + item.m_dwDataSize;
    }
    if (dwCheckReplyCount != 0 && rliReply.size() != dwCheckReplyCount) {
        return Invalid(rliReply, 4);
    }
    return NCL_SUCCESS;
}

void DEBUG_HTTP_REPLY(const char*, DWORD) {}

#include "NW_Com_Lib_internal.h"

#include <new>

namespace {

constexpr DWORD ITEM_HEAD_SIZE = 3;

DWORD Refuse(std::list<ST_COMM_REPLY>& items, DWORD code, NCLLine line)
{
    line.Error(GetNCLErrorString(code));
    items.clear();
    return code;
}

DWORD Invalid(std::list<ST_COMM_REPLY>& items, NCLLine line)
{
    return Refuse(items, NCL_ERR_INVALID_COMM_SPEC, line);
}

DWORD RefuseForMemory(std::list<ST_COMM_REPLY>& items)
{
    return Refuse(items, NCL_ERR_GET_MEMORY, "[CommLib] ParseCommReply %s 5");
}

} // namespace

DWORD ParseCommReply(const char* pContent, DWORD dwContentLen, std::list<ST_COMM_REPLY>& rliReply,
                     DWORD dwCheckReplyCount)
try {
    rliReply.clear();
    if (pContent == nullptr) {
        return Invalid(rliReply, "[CommLib] ParseCommReply %s 1");
    }
    const DWORD limit = dwCheckReplyCount != 0 ? dwCheckReplyCount : MAX_REPLY_ITEMS;
    DWORD count = 0;
    DWORD offset = 0;
    while (offset < dwContentLen) {
        const DWORD left = dwContentLen - offset;
        if (left < ITEM_HEAD_SIZE) {
            return Invalid(rliReply, "[CommLib] ParseCommReply %s 2");
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
            return Invalid(rliReply, "[CommLib] ParseCommReply %s 3");
        }
        if (item.m_dwDataSize != 0) {
            item.m_pData = pContent + offset + ITEM_HEAD_SIZE;
        }
        if (count < limit) {
            rliReply.push_back(item);
        }
        ++count;
        offset += ITEM_HEAD_SIZE + item.m_dwDataSize;
    }
    if (dwCheckReplyCount != 0 && count != dwCheckReplyCount) {
        return Invalid(rliReply, "[CommLib] ParseCommReply %s 4");
    }
    return count > limit ? RefuseForMemory(rliReply) : DWORD{NCL_SUCCESS};
} catch (const std::bad_alloc&) {
    return RefuseForMemory(rliReply);
}

void DEBUG_HTTP_REPLY(const char*, DWORD) {}

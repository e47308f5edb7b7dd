// Feeds any bytes to the parser as the body of a servlet's reply: the first byte is the number of items
// expected, the rest are the items.
#include "NW_Com_Lib_internal.h"

#include <cstring>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0) {
        return 0;
    }
    const DWORD count = data[0];
    const auto length = static_cast<DWORD>(size - 1);
    const std::unique_ptr<char[]> body(new char[length]); // of exactly this size, for the sanitizers
    std::memcpy(body.get(), data + 1, length);

    std::list<ST_COMM_REPLY> items(2);
    const DWORD result = ParseCommReply(body.get(), length, items, count);
    if (result != NCL_SUCCESS) {
        assert(items.empty());
        assert(result == NCL_ERR_INVALID_COMM_SPEC ||
               (result >= NCL_ERR_SERVER_OTHER && result <= NCL_ERR_SPOOL_JOB_LIMIT));
        return 0;
    }
    assert(count == 0 || items.size() == count);
    const char* place = body.get();
    for (const ST_COMM_REPLY& item : items) {
        assert(item.m_dwServerStatus == 0);
        assert(item.m_dwDataSize == 0 ? item.m_pData == nullptr : item.m_pData == place + 3);
        place += 3 + item.m_dwDataSize;
    }
    assert(place == body.get() + length);
    return 0;
}

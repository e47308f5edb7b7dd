// The table of connections, and the counting that keeps an object alive while an operation uses it.
#include "LogManager.h"
#include "Operation.h"

namespace {

constexpr size_t MAX_CONNECTIONS = 100;

/// The size of the table, for readers that do not hold its mutex.
std::atomic<size_t> tableSize = 0;

/// Held between the lookup of a handle and the increment of its object's counter, and while an entry is
/// freed.
std::mutex lookups;

std::vector<ST_NCL*> EmptyTable()
{
    std::vector<ST_NCL*> table;
    table.reserve(MAX_CONNECTIONS);
    return table;
}

std::atomic_ref<ST_NCL*> Entry(size_t index)
{
    return std::atomic_ref(g_pvarrNCL.data()[index]);
}

/// The index of a handle. It is beyond the table for an invalid handle: 0 wraps around.
size_t Index(DWORD dwHandle)
{
    return dwHandle - DWORD{1};
}

/// Number of objects left unclaimed so far.
std::atomic<ULONGLONG> unclaimedCount = 0;

void Destroy(CHttp* http)
{
    if (http != nullptr) {
        http->Close();
        delete http;
    }
}

void SendHashAtEnd(ST_NCL& ncl)
try {
    const DWORD result = SendHashOfImage(&ncl, ncl.m_nServerJobID);
    if (result != NCL_SUCCESS) {
        LogTrace("\t## trace ## EndConnection SendHash() %s", result);
    }
} catch (const std::bad_alloc&) {
    OutOfMemory("EndConnection");
}

} // namespace

std::vector<ST_NCL*> g_pvarrNCL = EmptyTable();
std::mutex g_csNCLArray;

DWORD SetNCLObj(ST_NCL* pstNCL)
{
    if (pstNCL == nullptr) {
        return 0;
    }
    const std::lock_guard lock(g_csNCLArray);
    const size_t size = g_pvarrNCL.size();
    for (size_t index = 0; index < size; ++index) {
        if (Entry(index) == nullptr) {
            Entry(index) = pstNCL;
            return static_cast<DWORD>(index + 1);
        }
    }
    if (size >= MAX_CONNECTIONS) {
        return 0;
    }
    g_pvarrNCL.push_back(pstNCL);
    tableSize = size + 1;
    return static_cast<DWORD>(size + 1);
}

ST_NCL* GetNCLObj(DWORD dwHandle)
{
    const size_t index = Index(dwHandle);
    return index < tableSize ? Entry(index).load() : nullptr;
}

DWORD DeleteNCLObj(DWORD dwHandle)
{
    const size_t index = Index(dwHandle);
    ASSERT(index < tableSize);
    Entry(index) = nullptr;
    return NCL_SUCCESS;
}

const char* GetNCLHostName(ST_NCL* pNCL)
{
    return pNCL == nullptr ? nullptr : pNCL->m_strServerAddress.c_str();
}

DWORD ReturnErrParam()
{
    CLogManager log;
    log.LOG_ERR("[CommLib] ***Common Parameta Error***");
    return NCL_ERR_PARAMETER;
}

NCLGuard::NCLGuard(DWORD dwHandle)
{
    const std::lock_guard lock(lookups);
    m_pNCL = GetNCLObj(dwHandle);
    if (m_pNCL != nullptr) {
        m_counter.emplace(m_pNCL->m_refCount);
    }
}

void StopOperations(ST_NCL& ncl)
{
    std::atomic_ref(ncl.m_bEndConnection) = TRUE;
    // Sequentially consistent: an operation increments the counter before it reads the flag, so one that
    // reads the old flag is counted here.
    while (ncl.m_refCount.load() != 0) {
    }
}

void DestroyNCL(DWORD dwHandle, ST_NCL* pNCL)
{
    Destroy(pNCL->m_pHttp);
    Destroy(pNCL->m_pHttpSecure);
    {
        const std::lock_guard lock(lookups);
        DeleteNCLObj(dwHandle);
    }
    // Every operation that found the object before its entry was freed is counted. It returns as soon as it
    // sees the flag.
    StopOperations(*pNCL);
    delete pNCL;
}

void LeaveUnclaimed(ST_NCL& ncl)
{
    ncl.m_ullUnclaimed = ++unclaimedCount;
}

bool DestroyOldestUnclaimedNCL()
{
    DWORD handle = 0;
    ST_NCL* oldest = nullptr;
    {
        const std::scoped_lock lock(g_csNCLArray, // no two threads choose the same object
                                    lookups);     // no object is deleted while it is examined
        for (size_t index = 0; index < g_pvarrNCL.size(); ++index) {
            ST_NCL* const ncl = Entry(index);
            if (ncl != nullptr && ncl->m_ullUnclaimed != 0 &&
                (oldest == nullptr || ncl->m_ullUnclaimed < oldest->m_ullUnclaimed)) {
                handle = static_cast<DWORD>(index + 1);
                oldest = ncl;
            }
        }
        if (oldest == nullptr) {
            return false;
        }
        oldest->m_ullUnclaimed = 0;
    }
    StopOperations(*oldest); // of callers with a stale handle
    DestroyNCL(handle, oldest);
    return true;
}

void EndConnection(DWORD dwHandle)
{
    ST_NCL* const ncl = GetNCLObj(dwHandle);
    if (ncl == nullptr) {
        ReturnErrParam();
        return;
    }
    StopOperations(*ncl);
    if (ncl->m_pMD != nullptr && ncl->m_dwCompatiMode != 1) {
        SendHashAtEnd(*ncl);
    }
    DestroyNCL(dwHandle, ncl);
}

DWORD GetNPType(DWORD dwHandle, DWORD* dwNPType)
{
    const NCLGuard guard(dwHandle);
    const DWORD kind = guard.Object() == nullptr ? NCL_NPTYPE_UNKNOWN : guard.Object()->m_dwNPType;
    CLogManager log;
    log.LOG_DEBUG("%s , GetNPType , %d", GetNCLHostName(guard.Object()), static_cast<int>(kind));
    if (dwNPType != nullptr) {
        *dwNPType = kind;
    }
    return NCL_SUCCESS;
}

// The jobs of a network publisher: lists, counts, cancellation and submission.
#include "NetworkPublisherMgr.h"

#include "NW_Com_Lib.h"
#include "OptionalOutput.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstring>
#include <type_traits>
#include <vector>

#include <sys/mman.h>

namespace {

constexpr DWORD LONGEST_LIST = 1000; // records; servers keep at most this many

/// The library function that lists jobs as records of this type.
template <class Record>
using List = DWORD (*)(DWORD dwHandle, DWORD dwType, Record* pRecords, DWORD dwLength, DWORD* pdwCount);

/// Memory for the longest list of jobs (1.8 MB). The process keeps one block for its next query, because
/// new pages cost more CPU time than the query itself. Concurrent queries map further blocks and unmap them;
/// on the heap, every polling thread would keep a block.
class ListMemory
{
public:
    static constexpr size_t SIZE = LONGEST_LIST * std::max(sizeof(JobStatus), sizeof(JobStatusEx));

    ListMemory() : m_pPages(s_pSpare.exchange(nullptr))
    {
        if (m_pPages == nullptr) {
            void* pPages = mmap(nullptr, SIZE, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
            m_pPages = pPages != MAP_FAILED ? pPages : nullptr;
        }
    }
    ListMemory(const ListMemory&) = delete;
    ListMemory& operator=(const ListMemory&) = delete;
    ~ListMemory()
    {
        if (m_pPages != nullptr) {
            m_pPages = s_pSpare.exchange(m_pPages);
        }
        if (m_pPages != nullptr) {
            munmap(m_pPages, SIZE);
        }
    }

    /// Null if the allocation failed.
    void* Pages() const
    {
        return m_pPages;
    }

private:
    static inline std::atomic<void*> s_pSpare = nullptr;

    void* m_pPages;
};

/// The jobs of a server as the library returns them.
template <class Record>
class JobList
{
public:
    JobList() : m_pRecords(static_cast<Record*>(m_memory.Pages())) {}

    /// Reads the jobs of an NCL_JST_ kind. On failure the list stays empty.
    bool Ask(DWORD dwHandle, List<Record> pList, DWORD dwType)
    {
        DWORD dwCount = 0;
        if (m_pRecords == nullptr ||
            pList(dwHandle, dwType, m_pRecords, LONGEST_LIST, &dwCount) != NCL_SUCCESS) {
            return false;
        }
        m_dwCount = dwCount;
        return true;
    }
    const Record* begin() const
    {
        return m_pRecords;
    }
    const Record* end() const
    {
        return m_pRecords + m_dwCount;
    }

private:
    static_assert(std::is_trivial_v<Record>);

    ListMemory m_memory;
    Record* m_pRecords;
    DWORD m_dwCount = 0;
};

/// Converts the jobs of an NCL_JST_ kind and appends them to the array.
template <class Record>
bool AppendJobs(DWORD dwHandle, List<Record> pList, DWORD dwType, LPCTSTR szPublisherRegistID,
                JobStatusArray& arrJobStatus)
{
    JobList<Record> records;
    const bool bListed = records.Ask(dwHandle, pList, dwType);
    for (const Record& record : records) {
        arrJobStatus.Add(
            CNetworkPublisherMgr::ConvertComLibValueToPubMgrValue_JobStatus(record, szPublisherRegistID));
    }
    return bListed;
}

} // namespace

// ---------------------------------------------------------------------------------------------------------------------
// Lists and counts

bool CNetworkPublisherMgr::ListJobs(LPCTSTR szPublisherRegistID, bool bUnfinished, bool bFinished,
                                    JobStatusArray* parrJobStatus, long* pResultCode)
{
    ASSERT(parrJobStatus != nullptr);
    const Connection connection(*this, szPublisherRegistID, pResultCode);
    if (!connection.IsOpen()) {
        return false;
    }
    JobStatusArray jobs;
    bool bListed = false;
    if (bUnfinished && AppendJobs<JobStatusEx>(connection.Handle(), ::GetJobStatusEx, NCL_JST_PROCESS_JOB_EX,
                                               szPublisherRegistID, jobs)) {
        bListed = true;
    }
    if (bFinished && AppendJobs<JobStatus>(connection.Handle(), ::GetJobStatus, NCL_JST_FINISH_JOB,
                                           szPublisherRegistID, jobs)) {
        bListed = true;
    }
    if (bListed) {
        parrJobStatus->swap(jobs);
    }
    return bListed;
}

bool CNetworkPublisherMgr::GetServiceJobStatus(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus,
                                               long* pResultCode)
{
    return ListJobs(szPublisherRegistID, true, true, parrJobStatus, pResultCode);
}

bool CNetworkPublisherMgr::GetServiceJobStatusUnfinish(LPCTSTR szPublisherRegistID,
                                                       JobStatusArray* parrJobStatus, long* pResultCode)
{
    return ListJobs(szPublisherRegistID, true, false, parrJobStatus, pResultCode);
}

bool CNetworkPublisherMgr::GetServiceJobStatusFinish(LPCTSTR szPublisherRegistID,
                                                     JobStatusArray* parrJobStatus, long* pResultCode)
{
    return ListJobs(szPublisherRegistID, false, true, parrJobStatus, pResultCode);
}

int CNetworkPublisherMgr::CountJobs(LPCTSTR szPublisherRegistID, DWORD dwType, long* pResultCode)
{
    const Connection connection(*this, szPublisherRegistID, pResultCode);
    DWORD dwCount = 0;
    if (!connection.IsOpen() || ::GetJobNumber(connection.Handle(), dwType, &dwCount) != NCL_SUCCESS) {
        return -1;
    }
    return static_cast<int>(dwCount);
}

int CNetworkPublisherMgr::GetJobCount(LPCTSTR szPublisherRegistID, long* pResultCode)
{
    ASSERT(szPublisherRegistID != nullptr);
    return CountJobs(szPublisherRegistID, NCL_JNT_PROCESS_JOB, pResultCode);
}

int CNetworkPublisherMgr::GetCommunicateJobCount(LPCTSTR szPublisherRegistID)
{
    return szPublisherRegistID != nullptr ? CountJobs(szPublisherRegistID, NCL_JNT_SENDING_JOB, nullptr) : -1;
}

// ---------------------------------------------------------------------------------------------------------------------
// Cancellation

bool CNetworkPublisherMgr::SetServiceJobCancel(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode)
{
    ASSERT(szPublisherRegistID != nullptr);
    ASSERT(pJobID != nullptr);
    const Connection connection(*this, szPublisherRegistID, pResultCode);
    if (!connection.IsOpen()) {
        return false;
    }
    JobList<JobStatusEx> records;
    records.Ask(connection.Handle(), ::GetJobStatusEx, NCL_JST_PROCESS_JOB_EX);
    for (const JobStatusEx& record : records) {
        if (std::strcmp(record.wszJobIdentificationID, pJobID) != 0) {
            continue;
        }
        const int nServerJobID = static_cast<int>(record.nServerJobID);
        std::printf("CNetworkPublisherMgr::SetServiceJobCancel(,\"%s\",), %s, %d\n", pJobID,
                    record.wszJobIdentificationID, nServerJobID);
        const DWORD dwCode = ::CancelJob(connection.Handle(), nServerJobID);
        Put(pResultCode, ServiceResult(dwCode));
        if (dwCode == NCL_SUCCESS) {
            return true;
        }
    }
    return false;
}

bool CNetworkPublisherMgr::CancelJob(LPCTSTR szPublisherRegistID, LPCTSTR, DWORD dwHandle, int nServerJobID,
                                     long* pResultCode)
{
    if (szPublisherRegistID == nullptr) {
        return false;
    }
    const DWORD dwCode = ::CancelJob(dwHandle, nServerJobID);
    if (dwCode != NCL_SUCCESS) {
        Put(pResultCode, dwCode);
    }
    return dwCode == NCL_SUCCESS;
}

// ---------------------------------------------------------------------------------------------------------------------
// Submission

CString CNetworkPublisherMgr::GetPublishID(DWORD dwHandle, DWORD* pdwResultCode)
{
    DWORD dwSize = 0;
    char cNone = '\0';
    ::GetPublishID(dwHandle, &cNone, 0, &dwSize); // the handle keeps the server's id for the next call
    std::vector<char> id(dwSize + size_t{1});
    DWORD dwNeeded = 0;
    Put(pdwResultCode, ::GetPublishID(dwHandle, id.data(), dwSize, &dwNeeded));
    return id.data(); // empty after a failure
}

bool CNetworkPublisherMgr::SendJobData(DWORD dwHandle, const BYTE* pData, DWORD dwSize, int* pnServerJobID,
                                       DWORD* pdwResultCode)
{
    Put(pdwResultCode, ::SendJobData(dwHandle, pData, dwSize, pnServerJobID));
    return true;
}

bool CNetworkPublisherMgr::SendPRNData(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize,
                                       DWORD* pdwResultCode)
{
    Put(pdwResultCode, ::SendPrnData(dwHandle, nServerJobID, pData, dwSize));
    return true;
}

bool CNetworkPublisherMgr::SendDiscInfo(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize,
                                        DWORD* pdwResultCode)
{
    Put(pdwResultCode, ::SendDiscInfo(dwHandle, nServerJobID, pData, dwSize));
    return true;
}

bool CNetworkPublisherMgr::CommitJob(DWORD dwHandle, int nServerJobID, DWORD* pdwResultCode)
{
    const DWORD dwCode = ::CommitJob(dwHandle, nServerJobID);
    Put(pdwResultCode, dwCode);
    return dwCode == NCL_SUCCESS;
}

DWORD CNetworkPublisherMgr::SendDiscWriteInfo(DWORD dwHandle, int nServerJobID, const BYTE* pData,
                                              DWORD dwSize)
{
    return ::SendDiscWriteInfo(dwHandle, nServerJobID, pData, dwSize);
}

DWORD CNetworkPublisherMgr::SendDiscImage(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize,
                                          DWORD dwTotalSizeLow, DWORD dwTotalSizeHigh,
                                          const char* pszImageName)
{
    return ::SendDiscImage(dwHandle, nServerJobID, pData, dwSize, dwTotalSizeLow, dwTotalSizeHigh,
                           pszImageName);
}

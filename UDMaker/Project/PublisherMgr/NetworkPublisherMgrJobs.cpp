// The jobs of a network publisher: their lists and their number, their end, and their submission.
#include "NetworkPublisherMgr.h"

#include "NW_Com_Lib.h"
#include "OptionalOutput.h"

#include <cstdio>
#include <cstring>
#include <type_traits>
#include <vector>

#include <sys/mman.h>

namespace {

constexpr DWORD LONGEST_LIST = 1000; // records; no server keeps more

/// The operation of the library that lists jobs as such records.
template <class Record>
using List = DWORD (*)(DWORD dwHandle, DWORD dwType, Record* pRecords, DWORD dwLength, DWORD* pdwCount);

/// The jobs of a server as the library hands them out. The list takes 1.8 MB for the moment of a query, on as
/// many threads as there are publishers: its pages come from the system and go back there, for of the heap
/// each thread would keep its share.
template <class Record>
class JobList
{
public:
    JobList()
    {
        void* pPages =
            mmap(nullptr, SIZE, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0); // all zero
        m_pRecords = pPages != MAP_FAILED ? static_cast<Record*>(pPages) : nullptr;
    }
    JobList(const JobList&) = delete;
    JobList& operator=(const JobList&) = delete;
    ~JobList()
    {
        if (m_pRecords != nullptr) {
            munmap(m_pRecords, SIZE);
        }
    }

    /// Asks for the jobs of an NCL_JST_ kind; without success there are none.
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
    static constexpr size_t SIZE = LONGEST_LIST * sizeof(Record);

    Record* m_pRecords;
    DWORD m_dwCount = 0;
};

/// The jobs of an NCL_JST_ kind, converted, behind what the array holds.
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
// Lists and numbers

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
// The end of a job

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
    ::GetPublishID(dwHandle, &cNone, 0, &dwSize); // the server's id waits on the handle for the next call
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

// The number of jobs on a server, and their status.
#include "BigEndian.h"
#include "Operation.h"

#include <cstring>

namespace {

const char* const jobNumberQueryValues[] = {"0", "1", "2"};      ///< by NCL_JNT_
const char* const jobStatusQueryValues[] = {"1", "2", "0", "3"}; ///< by NCL_JST_

/// Requests a list and fills `*pdwCount` records from it. Before that, clears `clearSize` * `dwLength` bytes
/// from the start of the array. `unpack` fills one record from an item.
template <class Record, class Unpack>
DWORD ListJobs(NCLOperation& operation, DWORD dwType, Record* pJobs, DWORD dwLength, size_t clearSize,
               DWORD* pdwCount, const NCLExchangeLines& lines, NCLNumberedLine invalid, Unpack unpack)
{
    *pdwCount = 0;
    const DWORD result =
        operation.Exchange({.path = std::string("/webapp2/JobInfoGetter?ifversion=02000000&type=") +
                                    jobStatusQueryValues[dwType]},
                           0, lines);
    if (result != NCL_SUCCESS) {
        return result;
    }
    const std::list<ST_COMM_REPLY>& items = operation.Items();
    if (items.empty() || items.front().m_dwDataSize == 0) {
        return NCL_SUCCESS; // no jobs
    }
    if (items.size() > dwJobCountMaxCost[dwType]) {
        return LogInvalid(invalid, 1);
    }
    std::memset(static_cast<void*>(pJobs), 0, clearSize * dwLength);
    DWORD count = 0;
    for (const ST_COMM_REPLY& item : items) {
        if (count == dwLength) {
            break;
        }
        const JobRecordCheck check = unpack(item, &pJobs[count]);
        if (check == JOB_RECORD_BAD_PUBLISH_MODE) {
            return NCL_ERR_BAD_PUBLISH_MODE;
        }
        if (check != JOB_RECORD_GOOD) {
            return LogInvalid(invalid, check);
        }
        ++count;
    }
    *pdwCount = count;
    return NCL_SUCCESS;
}

} // namespace

DWORD GetJobNumber(DWORD dwHandle, DWORD dwType, DWORD* pdwJobNum)
try {
    NCLOperation operation(dwHandle, NCLOperation::QUERY, "%s , GetJobNumber , Start");
    DWORD result = operation.Enter(dwType <= NCL_JNT_FINISH_JOB && pdwJobNum != nullptr);
    if (result == NCL_SUCCESS) {
        result = operation.Exchange(
            {.path = std::string("/webapp2/JobNumGetter?type=") + jobNumberQueryValues[dwType]}, 1,
            {.request = "\t## trace ## GetJobNumber SendRequest() %s",
             .reply = "\t## trace ## GetJobNumber ParseCommReply() %s"});
    }
    if (result != NCL_SUCCESS) {
        return result;
    }
    if (operation.Item().m_dwDataSize != sizeof(WORD)) {
        return LogInvalid("[CommLib] GetJobNumber %s 1");
    }
    *pdwJobNum = BigEndian16(operation.Item().m_pData);
    return operation.End("%s , GetJobNumber , End(%d)", static_cast<int>(*pdwJobNum));
} catch (const std::bad_alloc&) {
    return OutOfMemory("GetJobNumber");
}

DWORD GetPrnPossibilityNumber(DWORD dwHandle, DWORD* pdwNum)
try {
    NCLOperation operation(dwHandle, NCLOperation::QUERY, "%s , GetPrnPossibilityNumber , Start");
    DWORD result = operation.Enter(pdwNum != nullptr);
    if (result == NCL_SUCCESS) {
        result = operation.Exchange({.path = "/webapp2/PrnPosNumGetter"}, 1,
                                    {.request = "\t## trace ## GetPrnPossibilityNumber SendRequest() %s",
                                     .reply = "\t## trace ## GetPrnPossibilityNumber ParseCommReply() %s"});
    }
    if (result != NCL_SUCCESS) {
        return result;
    }
    if (operation.Item().m_dwDataSize != sizeof(DWORD)) {
        return LogInvalid("[CommLib] GetPrnPossibilityNumber %s 1");
    }
    *pdwNum = BigEndian32(operation.Item().m_pData);
    return operation.End("%s , GetPrnPossibilityNumber , End(%d)", static_cast<int>(*pdwNum));
} catch (const std::bad_alloc&) {
    return OutOfMemory("GetPrnPossibilityNumber");
}

DWORD GetJobStatus(DWORD dwHandle, DWORD dwType, JobStatus* pJobStatusArrayOut, DWORD dwLength,
                   DWORD* pdwGetLengthOut)
try {
    NCLOperation operation(dwHandle, NCLOperation::QUERY, "%s , GetJobStatus , Start");
    DWORD result = operation.Enter(dwType <= NCL_JST_ALL_JOB && pJobStatusArrayOut != nullptr &&
                                   pdwGetLengthOut != nullptr);
    if (result == NCL_SUCCESS) {
        result = ListJobs(operation, dwType, pJobStatusArrayOut, dwLength, sizeof(JobStatus), pdwGetLengthOut,
                          {.request = "\t## trace ## GetJobStatus SendRequest() %s",
                           .reply = "\t## trace ## GetJobStatus ParseCommReply() %s"},
                          "[CommLib] GetJobStatus %s %d", [](const ST_COMM_REPLY& item, JobStatus* pJob) {
                              return UnpackJobStatus(item.m_pData, item.m_dwDataSize, pJob);
                          });
    }
    return result == NCL_SUCCESS
               ? operation.End("%s , GetJobStatus , End(%d)", static_cast<int>(*pdwGetLengthOut))
               : result;
} catch (const std::bad_alloc&) {
    return OutOfMemory("GetJobStatus");
}

DWORD GetJobStatusEx(DWORD dwHandle, DWORD dwType, JobStatusEx* pJobStatusArrayOut, DWORD dwLength,
                     DWORD* pdwGetLengthOut)
try {
    NCLOperation operation(dwHandle, NCLOperation::QUERY, "%s , GetJobStatusEx , Start");
    DWORD result = operation.Enter(dwType <= NCL_JST_PROCESS_JOB_EX && pJobStatusArrayOut != nullptr &&
                                   pdwGetLengthOut != nullptr);
    if (result == NCL_SUCCESS) {
        // Callers rely on this: the bytes after an array of the smaller records are not cleared.
        const size_t clearSize = dwType == NCL_JST_PROCESS_JOB_EX ? sizeof(JobStatusEx) : sizeof(JobStatus);
        result = ListJobs(operation, dwType, pJobStatusArrayOut, dwLength, clearSize, pdwGetLengthOut,
                          {.request = "\t## trace ## GetJobStatusEx SendRequest() %s",
                           .reply = "\t## trace ## GetJobStatusEx ParseCommReply() %s"},
                          "[CommLib] GetJobStatusEx %s %d",
                          [dwType](const ST_COMM_REPLY& item, JobStatusEx* pJob) {
                              return UnpackJobStatusEx(item.m_pData, item.m_dwDataSize, dwType, pJob);
                          });
    }
    return result == NCL_SUCCESS ? operation.End("%s , GetJobStatusEx , End") : result;
} catch (const std::bad_alloc&) {
    return OutOfMemory("GetJobStatusEx");
}

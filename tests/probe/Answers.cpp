#include "Answers.h"

#include <array>
#include <cstdio>
#include <vector>

namespace probe {

namespace {

constexpr size_t TEXT_SIZE = 1024;
constexpr size_t BLOCK_SIZE = 4096;
constexpr DWORD MOST_JOBS = 1000;

void printLine(const std::string& name, const std::string& value)
{
    std::printf("%s = %s\n", name.c_str(), value.c_str());
}

/// The fields of a record that contains only numbers, in their order.
template <class Record>
std::string numbersOf(const Record& record)
{
    static_assert(sizeof(Record) % sizeof(DWORD) == 0);
    std::string text;
    const auto* const words = reinterpret_cast<const DWORD*>(&record);
    for (size_t i = 0; i < sizeof(Record) / sizeof(DWORD); ++i) {
        text += (i == 0 ? "" : " ") + std::to_string(words[i]);
    }
    return text;
}

template <class Record>
void askStatus(const char* name, DWORD (*operation)(DWORD, Record*), DWORD handle, int& failed)
{
    Record record{};
    const DWORD result = operation(handle, &record);
    if (result == NCL_SUCCESS) {
        printLine(name, numbersOf(record));
    } else {
        failed += report(name, result) ? 0 : 1;
    }
}

void askBlock(const char* name, DWORD (*operation)(DWORD, BYTE*, DWORD, DWORD*), DWORD handle, int& failed)
{
    std::array<BYTE, BLOCK_SIZE> block{};
    DWORD size = 0;
    const DWORD result = operation(handle, block.data(), static_cast<DWORD>(block.size()), &size);
    if (result == NCL_SUCCESS) {
        printLine(name, std::to_string(size) + " bytes");
    } else {
        failed += report(name, result) ? 0 : 1;
    }
}

void askTexts(DWORD handle, DWORD mode, int& failed)
{
    for (DWORD type = NCL_DIT_SERIAL_NO_OF_ALD; type <= NCL_DIT_NAME_OF_DRV2; ++type) {
        if (type == NCL_DIT_VERSION_OF_SECURITY && mode != NCL_MODE_SECURITY) {
            continue;
        }
        std::array<char, TEXT_SIZE> text{};
        const std::string name = "GetDeviceInfo " + std::to_string(type);
        const DWORD result = GetDeviceInfo(handle, type, text.data(), static_cast<DWORD>(text.size()));
        if (result == NCL_SUCCESS) {
            printLine(name, text.data());
        } else {
            failed += report(name, result) ? 0 : 1;
        }
    }
}

void askNumbers(DWORD handle, int& failed)
{
    for (DWORD type = NCL_DIT_DRV_USED; type <= NCL_DIT_SUPPORT_BDXL; ++type) {
        DWORD value = 0;
        const std::string name = "GetDeviceInfoInt " + std::to_string(type);
        const DWORD result = GetDeviceInfoInt(handle, type, &value);
        if (result == NCL_SUCCESS) {
            printLine(name, std::to_string(value));
        } else if (!report(name, result) && result != NCL_ERR_SERVER_OTHER) {
            ++failed; // an older server does not know every type
        }
    }
}

void askMaintenance(DWORD handle, int& failed)
{
    MaintenanceInfo plain{};
    MaintenanceInfoEx extended{};
    const DWORD first = GetMaintenanceInfo(handle, &plain);
    const DWORD second = GetMaintenanceInfoEx(handle, &extended);
    if (first == NCL_SUCCESS) {
        printLine("GetMaintenanceInfo", numbersOf(plain));
    }
    if (second == NCL_SUCCESS) {
        printLine("GetMaintenanceInfoEx", numbersOf(extended));
    }
    if ((first == NCL_SUCCESS) == (second == NCL_SUCCESS)) { // each server supports one of the two
        report("GetMaintenanceInfo", first);
        report("GetMaintenanceInfoEx", second);
        ++failed;
    }
}

template <class Record>
void printJob(const char* name, const Record& job, DWORD remaining)
{
    std::printf(
        "%s = job %08x \"%s\" by \"%s\", id \"%s\", status %u, factor %u, %u of %u, type %u, from %u to %u, "
        "mode %u, time %u, remaining %u, history %d%d%d\n",
        name, job.nServerJobID, job.wszJobName, job.wszPublicationPerson, job.wszJobIdentificationID,
        job.dwJobStatus, job.dwFactor, job.dwCompletionNumber, job.dwPublicationNumber, job.dwJobType,
        job.dwSource, job.dwDestination, job.dwPubMode, job.dwEstimateTime, remaining,
        job.ErrorHistory.bWriteError, job.ErrorHistory.bCoverOpen, job.ErrorHistory.bStacker4Open);
}

void askJobs(DWORD handle, int& failed)
{
    for (DWORD type = NCL_JST_PROCESS_JOB; type <= NCL_JST_ALL_JOB; ++type) {
        std::vector<JobStatus> jobs(MOST_JOBS);
        DWORD count = 0;
        const std::string name = "GetJobStatus " + std::to_string(type);
        failed += report(name, GetJobStatus(handle, type, jobs.data(), MOST_JOBS, &count)) ? 0 : 1;
        for (DWORD i = 0; i < count; ++i) {
            printJob(name.c_str(), jobs[i], 0);
        }
    }
    for (DWORD type = NCL_JST_PROCESS_JOB; type <= NCL_JST_PROCESS_JOB_EX; ++type) {
        std::vector<JobStatusEx> jobs(MOST_JOBS);
        DWORD count = 0;
        const std::string name = "GetJobStatusEx " + std::to_string(type);
        failed += report(name, GetJobStatusEx(handle, type, jobs.data(), MOST_JOBS, &count)) ? 0 : 1;
        for (DWORD i = 0; i < count; ++i) {
            printJob(name.c_str(), jobs[i], jobs[i].dwRemainingTime);
        }
    }
}

/// First passes a buffer that is too small, to get the size needed.
void askPublishId(DWORD handle, int& failed)
{
    DWORD size = 0;
    char small = 0;
    const DWORD first = GetPublishID(handle, &small, 0, &size);
    std::vector<char> text(size + 1);
    const DWORD second = GetPublishID(handle, text.data(), size, &size);
    if (first == NCL_ERR_BUF_SIZE && second == NCL_SUCCESS) {
        printLine("GetPublishID", text.data());
    } else {
        report("GetPublishID", first);
        report("GetPublishID", second);
        ++failed;
    }
}

} // namespace

bool report(const std::string& name, DWORD result)
{
    if (result == NCL_SUCCESS) {
        std::printf("%s: %s\n", name.c_str(), GetNCLErrorString(result));
    } else {
        std::printf("%s: %s (%u)\n", name.c_str(), GetNCLErrorString(result), result);
    }
    return result == NCL_SUCCESS;
}

void printEverything(DWORD handle, int& failed)
{
    DWORD kind = 0;
    DWORD mode = 0;
    GetNPType(handle, &kind);
    printLine("GetNPType", std::to_string(kind));
    failed += report("GetServerMode", GetServerMode(handle, &mode)) ? 0 : 1;
    printLine("GetServerMode", std::to_string(mode));
    askTexts(handle, mode, failed);
    askNumbers(handle, failed);
    askStatus("GetALDStatus", GetALDStatus, handle, failed);
    askStatus("GetStackerStatus", GetStackerStatus, handle, failed);
    askStatus("GetDrvStatus", GetDrvStatus, handle, failed);
    askStatus("GetDrvStatusEx", GetDrvStatusEx, handle, failed);
    askStatus("GetPrnStatus", GetPrnStatus, handle, failed);
    askStatus("GetInkStatus", GetInkStatus, handle, failed);
    askStatus("GetDeviceFatalError", GetDeviceFatalError, handle, failed);
    askStatus("GetNotifyStatus", GetNotifyStatus, handle, failed);
    askBlock("GetASBStatus", GetASBStatus, handle, failed);
    askBlock("GetPrnStStatus", GetPrnStStatus, handle, failed);
    askMaintenance(handle, failed);
    for (DWORD type = NCL_JNT_PROCESS_JOB; type <= NCL_JNT_FINISH_JOB; ++type) {
        DWORD number = 0;
        const std::string name = "GetJobNumber " + std::to_string(type);
        failed += report(name, GetJobNumber(handle, type, &number)) ? 0 : 1;
        printLine(name, std::to_string(number));
    }
    DWORD discs = 0;
    failed += report("GetPrnPossibilityNumber", GetPrnPossibilityNumber(handle, &discs)) ? 0 : 1;
    printLine("GetPrnPossibilityNumber", std::to_string(discs));
    askPublishId(handle, failed);
    askJobs(handle, failed);
}

} // namespace probe

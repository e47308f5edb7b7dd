// A table of the operations of the network library that no operation in NetworkOperations.h calls:
// submissions and the operations of other programs.
#pragma once

#include "NW_Com_Lib.h"

#include <ostream>
#include <vector>

struct LibraryOperation
{
    const char* name;
    DWORD (*call)(DWORD handle);
};

/// The name of a test's parameter.
inline void PrintTo(const LibraryOperation& operation, std::ostream* out)
{
    *out << operation.name;
}

namespace library_operations {

inline constexpr int JOB = 7;
inline constexpr BYTE DATA[] = {1, 2, 3};

template <class Record, DWORD (*operation)(DWORD, Record*)>
DWORD Fill(DWORD handle)
{
    Record record{};
    return operation(handle, &record);
}

template <DWORD (*operation)(DWORD, BYTE*, DWORD, DWORD*)>
DWORD Block(DWORD handle)
{
    BYTE block[16];
    DWORD size = 0;
    return operation(handle, block, sizeof block, &size);
}

template <DWORD (*operation)(DWORD, int, const char*, const char*)>
DWORD Monitor(DWORD handle)
{
    return operation(handle, JOB, "", "");
}

/// All operations. Each succeeds if the server answers its requests with one item without data, or, where it
/// needs data, with the number or the text 1.
inline const std::vector<LibraryOperation>& LibraryOperations()
{
    static const std::vector<LibraryOperation> operations = {
        {"GetDrvStatus", Fill<DrvStatus, ::GetDrvStatus>},
        {"GetNotifyStatus", Fill<NotifyStatus, ::GetNotifyStatus>},
        {"GetMaintenanceInfo", Fill<MaintenanceInfo, ::GetMaintenanceInfo>},
        {"GetASBStatus", Block<::GetASBStatus>},
        {"GetPrnStStatus", Block<::GetPrnStStatus>},
        {"GetPublishID",
         [](DWORD handle) {
             char id[64];
             DWORD size = 0;
             return GetPublishID(handle, id, sizeof id, &size);
         }},
        {"CommitJob", [](DWORD handle) { return CommitJob(handle, JOB); }},
        {"CancelJob", [](DWORD handle) { return CancelJob(handle, JOB); }},
        {"CancelJobForMonitor", Monitor<::CancelJobForMonitor>},
        {"StopJobForMonitor", Monitor<::StopJobForMonitor>},
        {"RestartJobForMonitor", Monitor<::RestartJobForMonitor>},
        {"ChangeJobPriorityForMonitor", Monitor<::ChangeJobPriorityForMonitor>},
        {"CancelJobForBridge", [](DWORD handle) { return CancelJobForBridge(handle, "J", "", ""); }},
        {"ChangeJobPriorityForBridge",
         [](DWORD handle) { return ChangeJobPriorityForBridge(handle, "J", "", ""); }},
        {"SendJobData",
         [](DWORD handle) {
             int id = 0;
             return SendJobData(handle, DATA, sizeof DATA, &id);
         }},
        {"SendDiscInfo", [](DWORD handle) { return SendDiscInfo(handle, 0, DATA, sizeof DATA); }},
        {"SendDiscWriteInfo", [](DWORD handle) { return SendDiscWriteInfo(handle, 0, DATA, sizeof DATA); }},
        {"SendPrnData", [](DWORD handle) { return SendPrnData(handle, 0, DATA, sizeof DATA); }},
        {"SendDiscImage",
         [](DWORD handle) { return SendDiscImage(handle, 0, DATA, sizeof DATA, sizeof DATA, 0, "image"); }},
        {"SendSpecialJobData",
         [](DWORD handle) {
             int id = 0;
             return SendSpecialJobData(handle, DATA, sizeof DATA, DATA, sizeof DATA, &id);
         }},
    };
    return operations;
}

} // namespace library_operations

using library_operations::LibraryOperations;

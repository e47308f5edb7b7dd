// A table of all operations that query a publisher server: how each is called, how many requests it makes,
// and what it returns if the server is unreachable or refuses a request.
#pragma once

#include "NW_Com_LibConst.h"
#include "NetworkPublisherMgr.h"

#include <cstring>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

/// How an operation sets the result code of the caller.
enum class CodeRule
{
    kept,    ///< unchanged
    mapped,  ///< the library's code, mapped to one of the control service
    raw,     ///< the library's code
    offline, ///< 11
    lost,    ///< -1
    broken,  ///< 7
};

/// The results of an operation.
struct NetworkAnswer
{
    static constexpr long UNTOUCHED = 77; ///< the caller's code before the call

    long result = 0; ///< 1 for true; for a text, its length
    long code = UNTOUCHED;
    bool isKept = true; ///< the caller's output is unchanged
};

inline long CodeBy(CodeRule rule, DWORD code)
{
    switch (rule) {
    case CodeRule::mapped:
        return code == NCL_SUCCESS               ? 0
               : code == NCL_ERR_NETWORK_TIMEOUT ? -2
               : code == NCL_ERR_CANCEL_SENDING  ? -3
                                                 : -1;
    case CodeRule::raw:
        return static_cast<long>(code);
    case CodeRule::offline:
        return 11;
    case CodeRule::lost:
        return -1;
    case CodeRule::broken:
        return 7;
    default:
        return NetworkAnswer::UNTOUCHED;
    }
}

struct NetworkOperation
{
    using Call = NetworkAnswer (*)(CNetworkPublisherMgr& mgr, LPCTSTR id, bool takesCode);

    const char* name;
    size_t requests; ///< after those of the connection
    CodeRule codeWhenUnreachable;
    long resultWhenRefused; ///< also if unreachable, unless codeWhenRefused is `offline`: then 0
    CodeRule codeWhenRefused;
    bool keepsOutput; ///< if a request is refused; if unreachable, every operation does
    /// True if the refusal of any request ends the operation. The other operations have separate tests.
    bool endsAtOnce;
    Call call;

    long ResultWhenUnreachable() const
    {
        return codeWhenRefused == CodeRule::offline ? 0 : resultWhenRefused;
    }
    long CodeWhenDone() const
    {
        return codeWhenRefused == CodeRule::mapped || codeWhenRefused == CodeRule::raw
                   ? 0
                   : NetworkAnswer::UNTOUCHED;
    }
};

/// The name of a test's parameter.
inline void PrintTo(const NetworkOperation& operation, std::ostream* out)
{
    *out << operation.name;
}

namespace network_operations {

/// Calls an operation that fills one plain record.
template <class Record, bool (CNetworkPublisherMgr::*operation)(LPCTSTR, Record*, long*)>
NetworkAnswer Fill(CNetworkPublisherMgr& mgr, LPCTSTR id, bool takesCode)
{
    NetworkAnswer answer;
    Record record;
    std::memset(&record, 0x5A, sizeof record);
    const std::string before(reinterpret_cast<const char*>(&record), sizeof record);
    answer.result = (mgr.*operation)(id, &record, takesCode ? &answer.code : nullptr) ? 1 : 0;
    answer.isKept = before == std::string(reinterpret_cast<const char*>(&record), sizeof record);
    return answer;
}

/// Calls an operation that fills a list of jobs.
template <bool (CNetworkPublisherMgr::*operation)(LPCTSTR, JobStatusArray*, long*)>
NetworkAnswer FillJobs(CNetworkPublisherMgr& mgr, LPCTSTR id, bool takesCode)
{
    NetworkAnswer answer;
    JobStatusArray jobs;
    ST_PC_JOB_STATUS old{};
    old.ulJobStatus = 4711;
    jobs.Add(old);
    answer.result = (mgr.*operation)(id, &jobs, takesCode ? &answer.code : nullptr) ? 1 : 0;
    answer.isKept = jobs.GetSize() == 1 && jobs[0].ulJobStatus == 4711;
    return answer;
}

/// Does not check the record, because the operation always fills in the local part.
inline NetworkAnswer Info(CNetworkPublisherMgr& mgr, LPCTSTR id, bool)
{
    NetworkAnswer answer;
    PUBLISHERINFO info;
    answer.result = mgr.GetPublisherInfo(id, &info, FALSE) ? 1 : 0;
    return answer;
}

inline NetworkAnswer Copies(CNetworkPublisherMgr& mgr, LPCTSTR id, bool)
{
    NetworkAnswer answer;
    answer.result = mgr.GetCopiesMax(id, true);
    return answer;
}

inline NetworkAnswer WriteSpeeds(CNetworkPublisherMgr& mgr, LPCTSTR id, bool)
{
    NetworkAnswer answer;
    answer.result = static_cast<long>(mgr.GetSupportWriteSpeedString(id, 1).size());
    return answer;
}

inline NetworkAnswer Possible(CNetworkPublisherMgr& mgr, LPCTSTR id, bool takesCode)
{
    NetworkAnswer answer;
    answer.result = mgr.IsPossibleCommunicate(id, takesCode ? &answer.code : nullptr) ? 1 : 0;
    return answer;
}

inline NetworkAnswer Count(CNetworkPublisherMgr& mgr, LPCTSTR id, bool takesCode)
{
    NetworkAnswer answer;
    answer.result = mgr.GetJobCount(id, takesCode ? &answer.code : nullptr);
    return answer;
}

inline NetworkAnswer SendingCount(CNetworkPublisherMgr& mgr, LPCTSTR id, bool)
{
    NetworkAnswer answer;
    answer.result = mgr.GetCommunicateJobCount(id);
    return answer;
}

inline NetworkAnswer Fatal(CNetworkPublisherMgr& mgr, LPCTSTR id, bool takesCode)
{
    NetworkAnswer answer;
    answer.result = mgr.IsFatalErrorInPublisher(id, takesCode ? &answer.code : nullptr) ? 1 : 0;
    return answer;
}

/// Cancels the job that its submitter calls "J".
inline NetworkAnswer Cancel(CNetworkPublisherMgr& mgr, LPCTSTR id, bool takesCode)
{
    NetworkAnswer answer;
    answer.result = mgr.SetServiceJobCancel(id, "J", takesCode ? &answer.code : nullptr) ? 1 : 0;
    return answer;
}

inline NetworkAnswer Versions(CNetworkPublisherMgr& mgr, LPCTSTR id, bool takesCode)
{
    NetworkAnswer answer;
    PUBLISHERVERSIONINFO info;
    info.strPublisherRegistID = info.strSerialNo = info.strUDNAVersion = "old";
    answer.result = mgr.GetPublisherVersionInfo(id, &info, takesCode ? &answer.code : nullptr) ? 1 : 0;
    answer.isKept =
        info.strPublisherRegistID == "old" && info.strSerialNo == "old" && info.strUDNAVersion == "old";
    return answer;
}

inline NetworkAnswer Figures(CNetworkPublisherMgr& mgr, LPCTSTR id, bool takesCode)
{
    NetworkAnswer answer;
    PUBLISHERMAINTENANCEINFO info;
    info.uiPrintCount = info.midrvDrive2.uiWriteBDLife = info.uiUsedPlugin = 4711;
    info.strSerialNo = "old";
    answer.result = mgr.GetPublisherMaintenanceInfo(id, &info, takesCode ? &answer.code : nullptr) ? 1 : 0;
    answer.isKept = info.uiPrintCount == 4711 && info.midrvDrive2.uiWriteBDLife == 4711 &&
                    info.uiUsedPlugin == 4711 && info.strSerialNo == "old";
    return answer;
}

inline NetworkAnswer Drives(CNetworkPublisherMgr& mgr, LPCTSTR id, bool takesCode)
{
    NetworkAnswer answer;
    ST_PC_DRV_STATUS drives[2];
    std::memset(drives, 0x5A, sizeof drives);
    const std::string before(reinterpret_cast<const char*>(drives), sizeof drives);
    answer.result =
        mgr.GetServiceDriveStatus(id, &drives[0], &drives[1], takesCode ? &answer.code : nullptr) ? 1 : 0;
    answer.isKept = before == std::string(reinterpret_cast<const char*>(drives), sizeof drives);
    return answer;
}

inline NetworkAnswer Stackers(CNetworkPublisherMgr& mgr, LPCTSTR id, bool takesCode)
{
    NetworkAnswer answer;
    ULONG values[4] = {4711, 4712, 4713, 4714};
    answer.result = mgr.GetServiceStackerStatus(id, &values[0], &values[1], &values[2], &values[3],
                                                takesCode ? &answer.code : nullptr)
                        ? 1
                        : 0;
    answer.isKept = values[0] == 4711 && values[1] == 4712 && values[2] == 4713 && values[3] == 4714;
    return answer;
}

inline NetworkAnswer Prints(CNetworkPublisherMgr& mgr, LPCTSTR id, bool takesCode)
{
    NetworkAnswer answer;
    answer.result = mgr.GetServiceEstimateCirculation(id, takesCode ? &answer.code : nullptr);
    return answer;
}

/// Always passes a result code.
inline NetworkAnswer Mode(CNetworkPublisherMgr& mgr, LPCTSTR id, bool)
{
    return Fill<ULONG, &CNetworkPublisherMgr::GetServicePublishMode>(mgr, id, true);
}

inline NetworkAnswer Text(CNetworkPublisherMgr& mgr, LPCTSTR id, bool)
{
    NetworkAnswer answer;
    DWORD code = static_cast<DWORD>(NetworkAnswer::UNTOUCHED);
    answer.result = static_cast<long>(mgr.GetDeviceInfo(id, NCL_DIT_SERIAL_NO_OF_ALD, &code).size());
    answer.code = static_cast<long>(code);
    return answer;
}

/// All operations.
inline const std::vector<NetworkOperation>& NetworkOperations()
{
    using Mgr = CNetworkPublisherMgr;
    using Rule = CodeRule;
    static const std::vector<NetworkOperation> operations = {
        {"GetPublisherInfo", 7, Rule::kept, 0, Rule::kept, false, true, Info},
        {"GetCopiesMax", 1, Rule::kept, 0, Rule::kept, true, true, Copies},
        {"GetSupportWriteSpeedString", 1, Rule::kept, 0, Rule::kept, true, true, WriteSpeeds},
        {"IsPossibleCommunicate", 0, Rule::raw, 0, Rule::raw, true, true, Possible},
        {"GetJobCount", 1, Rule::lost, -1, Rule::kept, true, true, Count},
        {"GetCommunicateJobCount", 1, Rule::kept, -1, Rule::kept, true, true, SendingCount},
        {"IsFatalErrorInPublisher", 1, Rule::lost, 1, Rule::offline, true, true, Fatal},
        {"SetServiceJobCancel", 2, Rule::lost, 0, Rule::mapped, true, false, Cancel},
        {"GetPublisherVersionInfo", 10, Rule::lost, 0, Rule::kept, false, true, Versions},
        {"GetPublisherMaintenanceInfo", 2, Rule::lost, 0, Rule::kept, false, true, Figures},
        {"GetServiceJobStatus", 2, Rule::lost, 0, Rule::kept, true, false,
         FillJobs<&Mgr::GetServiceJobStatus>},
        {"GetServiceJobStatusUnfinish", 1, Rule::lost, 0, Rule::kept, true, true,
         FillJobs<&Mgr::GetServiceJobStatusUnfinish>},
        {"GetServiceJobStatusFinish", 1, Rule::lost, 0, Rule::kept, true, true,
         FillJobs<&Mgr::GetServiceJobStatusFinish>},
        {"GetServiceInkStatus", 1, Rule::lost, 0, Rule::mapped, true, true,
         Fill<ST_PC_INK_STATUS, &Mgr::GetServiceInkStatus>},
        {"GetServiceAldStatus", 1, Rule::lost, 0, Rule::mapped, true, true,
         Fill<ULONG, &Mgr::GetServiceAldStatus>},
        {"GetServiceDriveStatus", 1, Rule::lost, 0, Rule::mapped, true, true, Drives},
        {"GetServicePrinterStatus", 1, Rule::lost, 0, Rule::mapped, true, true,
         Fill<ULONG, &Mgr::GetServicePrinterStatus>},
        {"GetServiceStackerStatus", 1, Rule::lost, 0, Rule::mapped, true, true, Stackers},
        {"GetServiceEstimateCirculation", 1, Rule::lost, -1, Rule::mapped, true, true, Prints},
        {"GetServicePublishMode", 1, Rule::lost, 0, Rule::raw, false, true, Mode},
        {"GetDeviceInfo", 1, Rule::broken, 0, Rule::raw, true, true, Text},
    };
    return operations;
}

} // namespace network_operations

using network_operations::NetworkOperations;

/// The operation of this name, which must be in the table.
inline const NetworkOperation& NetworkOperationOf(std::string_view name)
{
    for (const NetworkOperation& operation : NetworkOperations()) {
        if (operation.name == name) {
            return operation;
        }
    }
    return NetworkOperations().front();
}

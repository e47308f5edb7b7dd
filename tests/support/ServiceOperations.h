// A table of all operations that exchange messages with the control service.
#pragma once

#include "300MODPublisherMgr.h"

#include <ostream>
#include <vector>

struct ServiceOperation
{
    const char* name;
    ULONG control;         ///< which a good answer repeats; of the first of several commands
    bool stopsOnOtherSize; ///< a successful answer of another size stops the process, by contract
    bool (*run)(C300MODPublisherMgr& mgr);
};

/// The name of a test's parameter.
inline void PrintTo(const ServiceOperation& operation, std::ostream* out)
{
    *out << operation.name;
}

namespace service_operations {

using Mgr = C300MODPublisherMgr;
using Basic = CBasicPublisherMgr;

template <class Result, class Answer>
bool Ask(Mgr& mgr, Result (Basic::*query)(LPCTSTR, Answer*, long*))
{
    Answer answer{};
    long code = 0;
    return static_cast<bool>((mgr.*query)("R", &answer, &code));
}

inline bool AskFour(Mgr& mgr, bool (Basic::*query)(LPCTSTR, ULONG*, ULONG*, ULONG*, ULONG*, long*))
{
    ULONG values[4] = {};
    return (mgr.*query)("R", &values[0], &values[1], &values[2], &values[3], nullptr);
}

inline bool AskDrives(Mgr& mgr)
{
    ST_PC_DRV_STATUS drives[2] = {};
    return mgr.GetServiceDriveStatus("R", &drives[0], &drives[1], nullptr);
}

inline bool AskBox(Mgr& mgr)
{
    ULONG value = 0;
    return mgr.GetServiceMaintenanceboxStatus("R", &value, nullptr);
}

inline bool AskRawFigures(Mgr& mgr)
{
    ST_PC_MAINTENANCE_INFO figures{};
    return mgr.GetPublisherMaintenanceInfo("R", &figures, nullptr);
}

inline bool ForJob(Mgr& mgr, bool (Basic::*command)(LPCTSTR, LPCTSTR, long*))
{
    return (mgr.*command)("R", "J", nullptr);
}

/// All operations. The seeds of ServiceReplyFuzz select them by their place.
inline const std::vector<ServiceOperation>& ServiceOperations()
{
    static const std::vector<ServiceOperation> operations = {
        {"GetServiceJobStatus", 4, false, [](Mgr& m) { return Ask(m, &Basic::GetServiceJobStatus); }},
        {"GetServiceJobStatusUnfinish", 4, false,
         [](Mgr& m) { return Ask(m, &Basic::GetServiceJobStatusUnfinish); }},
        {"GetServiceAldStatus", 5, false, [](Mgr& m) { return Ask(m, &Basic::GetServiceAldStatus); }},
        {"GetServiceInkStatus", 6, false, [](Mgr& m) { return Ask(m, &Basic::GetServiceInkStatus); }},
        {"GetServiceDriveStatus", 7, false, AskDrives},
        {"GetServiceStackerStatus", 9, false,
         [](Mgr& m) { return AskFour(m, &Basic::GetServiceStackerStatus); }},
        {"GetPublisherVersionInfo", 10, false,
         [](Mgr& m) { return Ask(m, &Basic::GetPublisherVersionInfo); }},
        {"GetJobCount", 13, false, [](Mgr& m) { return m.GetJobCount("R", nullptr) != -1; }},
        {"IsFatalErrorInPublisher", 22, false,
         [](Mgr& m) { return m.IsFatalErrorInPublisher("R", nullptr); }},
        {"GetServiceNotifyStatus", 24, false, [](Mgr& m) { return Ask(m, &Basic::GetServiceNotifyStatus); }},
        {"GetServiceAbilityPnumPrecision", 26, false,
         [](Mgr& m) { return m.GetServiceAbilityPnumPrecision("R", nullptr) != 0xFFFFFFFF; }},
        {"GetServicePrinterStatus", 8, false, [](Mgr& m) { return Ask(m, &Basic::GetServicePrinterStatus); }},
        {"GetServiceEstimateCirculation", 14, false,
         [](Mgr& m) { return m.GetServiceEstimateCirculation("R", nullptr) != -1; }},
        {"GetServiceStackerDiscType", 17, false,
         [](Mgr& m) { return AskFour(m, &Basic::GetServiceStackerDiscType); }},
        {"GetServicePublishMode", 18, false, [](Mgr& m) { return Ask(m, &Basic::GetServicePublishMode); }},
        {"GetServiceJobStatusFinish", 4, false,
         [](Mgr& m) { return Ask(m, &Basic::GetServiceJobStatusFinish); }},
        {"IsPossibleCommunicateService", 13, false,
         [](Mgr& m) { return m.IsPossibleCommunicateService(nullptr); }},
        {"GetServiceFatalCode", 22, false, [](Mgr& m) { return Ask(m, &Basic::GetServiceFatalCode); }},
        {"SetServiceJobCancel", 3, false, [](Mgr& m) { return ForJob(m, &Basic::SetServiceJobCancel); }},
        {"SetServiceJobErrorCancel", 23, false,
         [](Mgr& m) { return ForJob(m, &Basic::SetServiceJobErrorCancel); }},
        {"SetServiceJobStop", 1, false, [](Mgr& m) { return ForJob(m, &Basic::SetServiceJobStop); }},
        {"SetServiceJobContinue", 2, false, [](Mgr& m) { return ForJob(m, &Basic::SetServiceJobContinue); }},
        {"SetServiceJobMove", 29, false, [](Mgr& m) { return ForJob(m, &Basic::SetServiceJobMove); }},
        {"SetServiceNotifyChange", 16, false, [](Mgr& m) { return m.SetServiceNotifyChange("R", nullptr); }},
        {"SetServicePublishMode", 21, false, [](Mgr& m) { return m.SetServicePublishMode("R", 0, nullptr); }},
        {"SetServiceUpdateErrorDiscContinueCount", 30, false,
         [](Mgr& m) { return m.SetServiceUpdateErrorDiscContinueCount(nullptr, "R"); }},
        {"GetServiceMaintenanceboxStatus", 27, true, AskBox},
        {"GetPublisherMaintenanceInfo", 28, true,
         [](Mgr& m) { return Ask(m, &Basic::GetPublisherMaintenanceInfo); }},
        {"GetRawMaintenanceInfo", 28, true, AskRawFigures},
        {"GetServiceUSBMode", 31, true, [](Mgr& m) { return Ask(m, &Basic::GetServiceUSBMode); }},
    };
    return operations;
}

} // namespace service_operations

using service_operations::ServiceOperations;

// The interface to a publisher: the signature of each operation and its position in the virtual table.
#include "300MODPublisherMgr.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

namespace {

using Id = LPCTSTR;
using Jobs = CArray<ST_PC_JOB_STATUS, const ST_PC_JOB_STATUS&>*;
using Notifications = CArray<unsigned int, unsigned int const&>*;

// The types are part of the interface: a 64-bit `ULONG` would change it.
static_assert(sizeof(UINT) == 4 && sizeof(DWORD) == 4 && sizeof(ULONG) == 4 && sizeof(long) == 8);
static_assert(std::is_abstract_v<IPublisherMgr> && std::has_virtual_destructor_v<IPublisherMgr>);

/// The position of a virtual function in the table, in bytes from an origin common to all functions.
template <class Class, class Result, class... Arguments>
std::uintptr_t Place(Result (Class::*function)(Arguments...))
{
    std::uintptr_t words[2] = {};
    static_assert(sizeof words == sizeof function);
    std::memcpy(words, &function, sizeof words);
    return words[0];
}

/// Selects the operation with exactly this signature among its overloads.
template <class Signature, class Class = IPublisherMgr>
std::uintptr_t Slot(Signature Class::* function)
{
    return Place(function);
}

/// Expects each position to follow the previous one without a gap.
void ExpectInARow(const std::vector<std::uintptr_t>& places)
{
    for (size_t i = 1; i < places.size(); ++i) {
        EXPECT_EQ(places[i] - places[i - 1], sizeof(void*)) << "between operations " << i - 1 << " and " << i;
    }
}

TEST(PublisherInterface, OperationsAreInOrderWithTheirSignatures)
{
    using I = IPublisherMgr;
    using JobCommand = bool(Id, Id, long*);
    using OneValue = bool(Id, ULONG*, long*);
    using FourValues = bool(Id, ULONG*, ULONG*, ULONG*, ULONG*, long*);
    using JobList = bool(Id, Jobs, long*);
    const std::vector<std::uintptr_t> places = {
        Slot<UINT()>(&I::GetPublisherMgrType),
        Slot<bool(PUBLISHERINFO)>(&I::UpdatePublisherInfo),
        Slot<bool(Id, const PUBLISHERINFO*, bool, bool*)>(&I::UpdatePublishMode),
        Slot<bool(Id, PUBLISHERINFO*, BOOL)>(&I::GetPublisherInfo),
        Slot<CString(Id)>(&I::GetPublisherGUID),
        Slot<UINT(Id, bool)>(&I::GetCopiesMax),
        Slot<CString(Id, UINT)>(&I::GetSupportWriteSpeedString),
        Slot<bool(long*)>(&I::IsPossibleCommunicateService),
        Slot<bool(Id, long*)>(&I::IsPossibleCommunicate),
        Slot<int(Id, long*)>(&I::GetJobCount),
        Slot<bool(Id, long*)>(&I::IsFatalErrorInPublisher),
        Slot<JobCommand>(&I::SetServiceJobCancel),
        Slot<JobCommand>(&I::SetServiceJobErrorCancel),
        Slot<JobCommand>(&I::SetServiceJobStop),
        Slot<JobCommand>(&I::SetServiceJobContinue),
        Slot<bool(Id, long*)>(&I::SetServiceNotifyChange),
        Slot<bool(Id, PUBLISHERVERSIONINFO*, long*)>(&I::GetPublisherVersionInfo),
        Slot<bool(Id, PUBLISHERMAINTENANCEINFO*, long*)>(&I::GetPublisherMaintenanceInfo),
        Slot<JobList>(&I::GetServiceJobStatus),
        Slot<JobList>(&I::GetServiceJobStatusUnfinish),
        Slot<JobList>(&I::GetServiceJobStatusFinish),
        Slot<bool(Id, ST_PC_INK_STATUS*, long*)>(&I::GetServiceInkStatus),
        Slot<OneValue>(&I::GetServiceAldStatus),
        Slot<bool(Id, ST_PC_DRV_STATUS*, ST_PC_DRV_STATUS*, long*)>(&I::GetServiceDriveStatus),
        Slot<OneValue>(&I::GetServicePrinterStatus),
        Slot<FourValues>(&I::GetServiceStackerStatus),
        Slot<int(Id, long*)>(&I::GetServiceEstimateCirculation),
        Slot<OneValue>(&I::GetServiceFatalCode),
        Slot<bool(Id, Notifications, long*)>(&I::GetServiceNotifyStatus),
        Slot<OneValue>(&I::GetServicePublishMode),
        Slot<bool(Id, ULONG, long*)>(&I::SetServicePublishMode),
        Slot<FourValues>(&I::GetServiceStackerDiscType),
        Slot<OneValue>(&I::GetServiceUSBMode),
        Slot<bool()>(&I::IsRunningCommunicateService),
        Slot<bool(long*, Id)>(&I::SetServiceUpdateErrorDiscContinueCount),
        Slot<bool(Id, DWORD*, DWORD*)>(&I::StartConnection),
        Slot<bool(DWORD)>(&I::EndConnection),
        Slot<CString(DWORD, DWORD*)>(&I::GetPublishID),
        Slot<bool(DWORD, const BYTE*, DWORD, int*, DWORD*)>(&I::SendJobData),
        Slot<bool(DWORD, int, const BYTE*, DWORD, DWORD*)>(&I::SendPRNData),
        Slot<bool(DWORD, int, DWORD*)>(&I::CommitJob),
        Slot<bool(DWORD, int, const BYTE*, DWORD, DWORD*)>(&I::SendDiscInfo),
        Slot<bool(Id, Id, DWORD, int, long*)>(&I::CancelJob),
        Slot<CString(Id)>(&I::GetHostName),
        Slot<CString(Id, DWORD, DWORD*)>(&I::GetDeviceInfo),
        Slot<int(Id)>(&I::GetCommunicateJobCount),
    };
    ExpectInARow(places);
}

TEST(PublisherInterface, LocalPublishersAddTheirOwnAfterIt)
{
    using Basic = CBasicPublisherMgr;
    using Mod = C300MODPublisherMgr;
    ExpectInARow({
        Slot<int(Id)>(&IPublisherMgr::GetCommunicateJobCount),
        Slot<bool(UINT), Basic>(&Basic::IsSupportPublishMode),
        Slot<bool(UINT), Basic>(&Basic::IsSupportDiscType),
        Slot<bool(), Basic>(&Basic::IsSupportUseDrive),
        Slot<bool(), Basic>(&Basic::IsSupportStacker4),
        Slot<bool(Id, ULONG*, long*), Mod>(&Mod::GetServiceMaintenanceboxStatus),
        Slot<bool(Id, ST_PC_MAINTENANCE_INFO*, long*), Mod>(&Mod::GetPublisherMaintenanceInfo),
    });
}

} // namespace

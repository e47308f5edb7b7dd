// The public constants of a device, and the order of the fields of its records.
#include "NW_Com_Lib_internal.h"

#include <cstddef>

#include <gtest/gtest.h>

namespace {

/// Every field has four bytes and directly follows the previous one.
template <typename Record>
void ExpectOrder(const std::vector<size_t>& offsets)
{
    EXPECT_EQ(sizeof(Record), offsets.size() * 4);
    for (size_t index = 0; index < offsets.size(); ++index) {
        EXPECT_EQ(offsets[index], index * 4);
    }
}

} // namespace

TEST(DeviceConstants, MatchTheServer)
{
    EXPECT_EQ(NCL_DIT_SERIAL_NO_OF_ALD, 0U);
    EXPECT_EQ(NCL_DIT_VERSION_OF_ALD, 1U);
    EXPECT_EQ(NCL_DIT_VERSION_OF_PRN, 2U);
    EXPECT_EQ(NCL_DIT_VERSION_OF_DRV1, 3U);
    EXPECT_EQ(NCL_DIT_VERSION_OF_DRV2, 4U);
    EXPECT_EQ(NCL_DIT_VERSION_OF_SERVER_APP, 5U);
    EXPECT_EQ(NCL_DIT_VERSION_OF_WEB_APP, 6U);
    EXPECT_EQ(NCL_DIT_VERSION_OF_SECURITY, 7U);
    EXPECT_EQ(NCL_DIT_REMAINDER_OF_HARD_DISC, 8U);
    EXPECT_EQ(NCL_DIT_CAPACITY_OF_HARD_DISC, 9U);
    EXPECT_EQ(NCL_DIT_WRITE_SPEED_OF_DRV1, 10U);
    EXPECT_EQ(NCL_DIT_WRITE_SPEED_OF_DRV2, 11U);
    EXPECT_EQ(NCL_DIT_NAME_OF_PRN, 12U);
    EXPECT_EQ(NCL_DIT_NAME_OF_DRV1, 13U);
    EXPECT_EQ(NCL_DIT_NAME_OF_DRV2, 14U);
    EXPECT_EQ(NCL_DIT_DRV_USED, 0U);
    EXPECT_EQ(NCL_DIT_DRV_CONFIRM, 1U);
    EXPECT_EQ(NCL_DIT_WRITE_ERR_RETRY_COUNT, 2U);
    EXPECT_EQ(NCL_DIT_PRINT_ERR_DISC_MARK, 3U);
    EXPECT_EQ(NCL_DIT_STACKER1_DISC_TYPE, 4U);
    EXPECT_EQ(NCL_DIT_STACKER2_DISC_TYPE, 5U);
    EXPECT_EQ(NCL_DIT_STACKER3_DISC_TYPE, 6U);
    EXPECT_EQ(NCL_DIT_BATCH_JOB_SUSPEND, 7U);
    EXPECT_EQ(NCL_DIT_SUPPORT_BDXL, 8U);
    EXPECT_EQ(NCL_DRV_USED_ALL, 0U);
    EXPECT_EQ(NCL_DRV_USED_DRIVE1, 1U);
    EXPECT_EQ(NCL_DRV_USED_DRIVE2, 2U);
    EXPECT_EQ(NCL_DRV_CONFIRM_VERIFY, 1U);
    EXPECT_EQ(NCL_DRV_CONFIRM_COMPARE, 2U);
    EXPECT_EQ(NCL_PRINT_DISC_ERR_MARK_OFF, 0U);
    EXPECT_EQ(NCL_PRINT_DISC_ERR_MARK_ON, 1U);
    EXPECT_EQ(NCL_SUPPORT_BDXL_NO, 0U);
    EXPECT_EQ(NCL_SUPPORT_BDXL_YES, 1U);
    EXPECT_EQ(NCL_STACKER_DISCHARGE, 0U);
    EXPECT_EQ(NCL_STACKER_CD_R, 1U);
    EXPECT_EQ(NCL_STACKER_DVD_MINUS_R, 2U);
    EXPECT_EQ(NCL_STACKER_DVD_MINUS_R_DL, 3U);
    EXPECT_EQ(NCL_STACKER_DVD_PLUS_R, 4U);
    EXPECT_EQ(NCL_STACKER_DVD_PLUS_R_DL, 5U);
    EXPECT_EQ(NCL_STACKER_DVD, 6U);
    EXPECT_EQ(NCL_STACKER_DVD_DL, 7U);
    EXPECT_EQ(NCL_STACKER_BD, 8U);
    EXPECT_EQ(NCL_STACKER_BD_DL, 9U);
    EXPECT_EQ(NCL_STACKER_BD_TL, 10U);
    EXPECT_EQ(NCL_STACKER_BD_QL, 11U);
    EXPECT_EQ(NCL_STACKER_DONTUSE, 999U);
    EXPECT_EQ(NCL_STACKER_STATUS_EMPTY, 0U);
    EXPECT_EQ(NCL_STACKER_STATUS_FULL, 100U);
    EXPECT_EQ(NCL_STACKER_STATUS_UNKNOWN, 101U);
    EXPECT_EQ(NCL_STACKER_STATUS_NOT_FULL, 102U);
    EXPECT_EQ(NCL_STACKER_STATUS_OVERFLOW, 103U);
    EXPECT_EQ(NCL_DRV_STATUS_IDLE, 0U);
    EXPECT_EQ(NCL_DRV_STATUS_WRITING, 1U);
    EXPECT_EQ(NCL_DRV_STATUS_WRITING_COMFIRMATION, 2U);
    EXPECT_EQ(NCL_DRV_STATUS_ERROR, 3U);
    EXPECT_EQ(NCL_DRV_STATUS_NOTUSE, 4U);
    EXPECT_EQ(NCL_DRV_STATUS_CONVEYING, 5U);
    EXPECT_EQ(NCL_DRV_STATUS_PAUSE, 6U);
    EXPECT_EQ(NCL_PRN_STATUS_IDLE, 0U);
    EXPECT_EQ(NCL_PRN_STATUS_CONVEYING, 1U);
    EXPECT_EQ(NCL_PRN_STATUS_PRINTING, 2U);
    EXPECT_EQ(NCL_PRN_STATUS_CLEANING, 3U);
    EXPECT_EQ(NCL_PRN_STATUS_DRYING, 4U);
    EXPECT_EQ(NCL_PRN_STATUS_PAUSE, 5U);
    EXPECT_EQ(NCL_INK_CARTRIDGE_REMOVED, 101U);
    EXPECT_EQ(NCL_INK_CARTRIDGE_INVALID, 102U);
    EXPECT_EQ(NCL_INK_UNKNOWN, 103U);
    EXPECT_EQ(NCL_INK_CARTRIDGE_NON_STANDARD, 104U);
    EXPECT_EQ(NCL_FATAL_ERR_NONE, 0U);
    EXPECT_EQ(NCL_FATAL_ERR_DISC_PICK, 1U);
    EXPECT_EQ(NCL_FATAL_ERR_DISC_DROP, 2U);
    EXPECT_EQ(NCL_FATAL_ERR_DISC_RELEASE, 3U);
    EXPECT_EQ(NCL_FATAL_ERR_DRV_TRAY, 4U);
    EXPECT_EQ(NCL_FATAL_ERR_PRN_TRAY, 5U);
    EXPECT_EQ(NCL_FATAL_ERR_ARM_MOVE, 6U);
    EXPECT_EQ(NCL_FATAL_ERR_CONDITION_FAILURE, 7U);
    EXPECT_EQ(NCL_FATAL_ERR_PRN_FATAL, 8U);
    EXPECT_EQ(NCL_FATAL_ERR_INK_PAD_OVERFLOW, 9U);
    EXPECT_EQ(NCL_FATAL_ERR_PRN_MANTENANCE, 10U);
    EXPECT_EQ(NCL_FATAL_ERR_DISC_SUPPLY, 11U);
    EXPECT_EQ(NCL_FATAL_ERR_ALD_FATAL, 12U);
    EXPECT_EQ(NCL_FATAL_ERR_DRV_FATAL, 13U);
}

TEST(DeviceConstants, TypesOnTheWire)
{
    EXPECT_EQ(DEV_STATUS_TYPE_ALD, 0);
    EXPECT_EQ(DEV_STATUS_TYPE_STACKER, 1);
    EXPECT_EQ(DEV_STATUS_TYPE_DRV, 2);
    EXPECT_EQ(DEV_STATUS_TYPE_PRN, 3);
    EXPECT_EQ(DEV_STATUS_TYPE_INK, 4);
    EXPECT_EQ(DEV_STATUS_TYPE_DEV_FATAL_ERR, 5);
    EXPECT_EQ(DEV_STATUS_TYPE_NOTIFY, 6);
    EXPECT_EQ(DEV_STATUS_TYPE_ASB, 7);
    EXPECT_EQ(DEV_STATUS_TYPE_PRN_ST, 8);
    EXPECT_EQ(DEV_STATUS_TYPE_RETIRED01, 9);
    EXPECT_EQ(DEV_STATUS_TYPE_MAINTENANCE_INFO, 10);
    EXPECT_EQ(DEV_STATUS_TYPE_DRV_EX, 11);
}

TEST(DeviceRecords, HaveTheirFieldsInOrder)
{
    ExpectOrder<ALDStatus>({offsetof(ALDStatus, bStacker1Removed),
                            offsetof(ALDStatus, bStacker2Removed),
                            offsetof(ALDStatus, bStacker3Removed),
                            offsetof(ALDStatus, bStacker4Opened),
                            offsetof(ALDStatus, bDiscCoverOpen),
                            offsetof(ALDStatus, bInkCoverOpen),
                            offsetof(ALDStatus, bStacker1Overflow),
                            offsetof(ALDStatus, bStacker2Overflow),
                            offsetof(ALDStatus, bStacker3Overflow),
                            offsetof(ALDStatus, bDetectDiscQuantity),
                            offsetof(ALDStatus, bStopAtDiscCoverClose),
                            offsetof(ALDStatus, bElectronLock),
                            offsetof(ALDStatus, bStackerDiscPickError),
                            offsetof(ALDStatus, bOutputDisc),
                            offsetof(ALDStatus, bStacker2Operated),
                            offsetof(ALDStatus, bStacker1_2TotalOverflow),
                            offsetof(ALDStatus, bBackup),
                            offsetof(ALDStatus, bRestore),
                            offsetof(ALDStatus, bDiscNoAdjustment),
                            offsetof(ALDStatus, bFanLow),
                            offsetof(ALDStatus, bStacker2DiscLeftAtPowerOn),
                            offsetof(ALDStatus, bUnexpectedPowerOff)});
    ExpectOrder<MaintenanceInfo>(
        {offsetof(MaintenanceInfo, nPrintCount), offsetof(MaintenanceInfo, nDrv1TrayOpenCount),
         offsetof(MaintenanceInfo, nDrv1TrayOpenLimit), offsetof(MaintenanceInfo, nDrv1CDWriteSeconds),
         offsetof(MaintenanceInfo, nDrv1CDWriteLimit), offsetof(MaintenanceInfo, nDrv1DVDWriteSeconds),
         offsetof(MaintenanceInfo, nDrv1DVDWriteLimit), offsetof(MaintenanceInfo, nDrv2TrayOpenCount),
         offsetof(MaintenanceInfo, nDrv2TrayOpenLimit), offsetof(MaintenanceInfo, nDrv2CDWriteSeconds),
         offsetof(MaintenanceInfo, nDrv2CDWriteLimit), offsetof(MaintenanceInfo, nDrv2DVDWriteSeconds),
         offsetof(MaintenanceInfo, nDrv2DVDWriteLimit)});
    ExpectOrder<MaintenanceInfoEx>(
        {offsetof(MaintenanceInfoEx, nPrintCount), offsetof(MaintenanceInfoEx, nDrv1TrayOpenCount),
         offsetof(MaintenanceInfoEx, nDrv1TrayOpenLimit), offsetof(MaintenanceInfoEx, nDrv1CDWriteSeconds),
         offsetof(MaintenanceInfoEx, nDrv1CDWriteLimit), offsetof(MaintenanceInfoEx, nDrv1DVDWriteSeconds),
         offsetof(MaintenanceInfoEx, nDrv1DVDWriteLimit), offsetof(MaintenanceInfoEx, nDrv1BDWriteSeconds),
         offsetof(MaintenanceInfoEx, nDrv1BDWriteLimit), offsetof(MaintenanceInfoEx, nDrv2TrayOpenCount),
         offsetof(MaintenanceInfoEx, nDrv2TrayOpenLimit), offsetof(MaintenanceInfoEx, nDrv2CDWriteSeconds),
         offsetof(MaintenanceInfoEx, nDrv2CDWriteLimit), offsetof(MaintenanceInfoEx, nDrv2DVDWriteSeconds),
         offsetof(MaintenanceInfoEx, nDrv2DVDWriteLimit), offsetof(MaintenanceInfoEx, nDrv2BDWriteSeconds),
         offsetof(MaintenanceInfoEx, nDrv2BDWriteLimit)});
    ExpectOrder<StackerStatus>(
        {offsetof(StackerStatus, Stacker1.dwDiscQuantity), offsetof(StackerStatus, Stacker1.bSupply),
         offsetof(StackerStatus, Stacker2.dwDiscQuantity), offsetof(StackerStatus, Stacker2.bSupply),
         offsetof(StackerStatus, Stacker3.dwDiscQuantity), offsetof(StackerStatus, Stacker3.bSupply),
         offsetof(StackerStatus, Stacker4.dwDiscQuantity), offsetof(StackerStatus, Stacker4.bSupply)});
    ExpectOrder<DrvStatus>({offsetof(DrvStatus, Drv1.dwStatus), offsetof(DrvStatus, Drv2.dwStatus)});
    ExpectOrder<DrvStatusEx>({offsetof(DrvStatusEx, Drv1.dwStatus), offsetof(DrvStatusEx, Drv1.dwProgress),
                              offsetof(DrvStatusEx, Drv2.dwStatus), offsetof(DrvStatusEx, Drv2.dwProgress)});
    ExpectOrder<PrnStatus>({offsetof(PrnStatus, dwStatus), offsetof(PrnStatus, bInkPadOverflowWarn)});
    ExpectOrder<InkStatus>(
        {offsetof(InkStatus, Black.dwInkCartridge), offsetof(InkStatus, Black.bInkNearEnd),
         offsetof(InkStatus, Cyan.dwInkCartridge), offsetof(InkStatus, Cyan.bInkNearEnd),
         offsetof(InkStatus, LightCyan.dwInkCartridge), offsetof(InkStatus, LightCyan.bInkNearEnd),
         offsetof(InkStatus, Magenta.dwInkCartridge), offsetof(InkStatus, Magenta.bInkNearEnd),
         offsetof(InkStatus, LightMagenta.dwInkCartridge), offsetof(InkStatus, LightMagenta.bInkNearEnd),
         offsetof(InkStatus, Yellow.dwInkCartridge), offsetof(InkStatus, Yellow.bInkNearEnd)});
    ExpectOrder<DeviceFatalError>({offsetof(DeviceFatalError, dwDevStatus)});
    ExpectOrder<NotifyStatus>(
        {offsetof(NotifyStatus, DevActive.bALDArm), offsetof(NotifyStatus, DevActive.bDrv1),
         offsetof(NotifyStatus, DevActive.bDrv2), offsetof(NotifyStatus, DevActive.bPrn),
         offsetof(NotifyStatus, DevActive.bDisc), offsetof(NotifyStatus, JobFactor.bStacker1Empty),
         offsetof(NotifyStatus, JobFactor.bStacker2Empty), offsetof(NotifyStatus, JobFactor.bStacker2Full),
         offsetof(NotifyStatus, JobFactor.bStacker3Full), offsetof(NotifyStatus, JobFactor.bStacker4Full),
         offsetof(NotifyStatus, JobFactor.bDiscWriteError), offsetof(NotifyStatus, JobFactor.bDrvMultiFeed),
         offsetof(NotifyStatus, JobFactor.bPrnMultiFeed), offsetof(NotifyStatus, JobFactor.bInkEmpty),
         offsetof(NotifyStatus, JobFactor.bDiscTypeError), offsetof(NotifyStatus, JobFactor.bNotBlankDisc),
         offsetof(NotifyStatus, JobFactor.bRemainDisc),
         offsetof(NotifyStatus, JobFactor.bInkCartridgeNonStandard),
         offsetof(NotifyStatus, JobFactor.bTakeOut)});
}

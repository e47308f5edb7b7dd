// The layout of the service's records and the defaults of the publisher records.
#include "PublisherMgrIF.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <type_traits>
#include <vector>

namespace {

// ---------------------------------------------------------------------------------------------------------------------
// Wire records: offset and size of every field

template <class T, class Member>
constexpr size_t SizeOf(Member T::*)
{
    return sizeof(Member);
}

#define FIELD(record, field, offset, size)                                                                   \
    static_assert(offsetof(record, field) == (offset) && SizeOf(&record::field) == (size))

FIELD(ST_PC_SERVICE_CONTROL, ulControlID, 0, 8);
FIELD(ST_PC_SERVICE_CONTROL, acPublisherName, 8, 129);
FIELD(ST_PC_SERVICE_CONTROL, acJobID, 137, 256);
FIELD(ST_PC_SERVICE_CONTROL, ulSubParam, 400, 8);
static_assert(sizeof(ST_PC_SERVICE_CONTROL) == 408);

FIELD(ST_PC_RESPONSE_HEADER, ulResponseID, 0, 8);
FIELD(ST_PC_RESPONSE_HEADER, ulResultCode, 8, 8);
FIELD(ST_PC_RESPONSE_HEADER, ulDataLength, 16, 8);
static_assert(sizeof(ST_PC_RESPONSE_HEADER) == 24);

FIELD(ST_PC_JOB_STATUS, acJobID, 0, 256);
FIELD(ST_PC_JOB_STATUS, acJobName, 256, 256);
FIELD(ST_PC_JOB_STATUS, ulJobStatus, 512, 8);
FIELD(ST_PC_JOB_STATUS, ulFactor, 520, 8);
FIELD(ST_PC_JOB_STATUS, ulCompletionNumber, 528, 8);
FIELD(ST_PC_JOB_STATUS, ulJobIndex, 536, 8);
FIELD(ST_PC_JOB_STATUS, ulEstimateTime, 544, 8);
FIELD(ST_PC_JOB_STATUS, ulRemainingTime, 552, 8);
FIELD(ST_PC_JOB_STATUS, ulErrorNumber, 560, 8);
FIELD(ST_PC_JOB_STATUS, ulPublicationNumber, 568, 8);
FIELD(ST_PC_JOB_STATUS, ulImproperNumber, 576, 8);
FIELD(ST_PC_JOB_STATUS, acPublicationPerson, 584, 65);
FIELD(ST_PC_JOB_STATUS, acApprovalPerson, 649, 65);
FIELD(ST_PC_JOB_STATUS, ulJobType, 720, 8);
FIELD(ST_PC_JOB_STATUS, ulSource, 728, 8);
FIELD(ST_PC_JOB_STATUS, ulDestination, 736, 8);
FIELD(ST_PC_JOB_STATUS, acPlugInAppID, 744, 41);
FIELD(ST_PC_JOB_STATUS, ulHistory, 792, 8);
FIELD(ST_PC_JOB_STATUS, ulPubMode, 800, 8);
FIELD(ST_PC_JOB_STATUS, acReadErrorPath, 808, 260);
FIELD(ST_PC_JOB_STATUS, ulReadResult, 1072, 8);
FIELD(ST_PC_JOB_STATUS, ulStacker3, 1080, 8);
static_assert(sizeof(ST_PC_JOB_STATUS) == 1088);

FIELD(ST_PC_INK_STATUS, ulCyan, 0, 8);
FIELD(ST_PC_INK_STATUS, ulMagenta, 8, 8);
FIELD(ST_PC_INK_STATUS, ulYellow, 16, 8);
FIELD(ST_PC_INK_STATUS, ulLightCyan, 24, 8);
FIELD(ST_PC_INK_STATUS, ulLightMagenta, 32, 8);
FIELD(ST_PC_INK_STATUS, ulBlack, 40, 8);
static_assert(sizeof(ST_PC_INK_STATUS) == 48);

FIELD(ST_PC_DRV_STATUS, ulDrvStatus, 0, 8);
FIELD(ST_PC_DRV_STATUS, acPlugInAppID, 8, 41);
FIELD(ST_PC_DRV_STATUS, ulDrvProgressStatus, 56, 8);
static_assert(sizeof(ST_PC_DRV_STATUS) == 64);

FIELD(ST_PC_ALD_INFO, acManufacture, 0, 32);
FIELD(ST_PC_ALD_INFO, acDeviceName, 32, 32);
FIELD(ST_PC_ALD_INFO, acFirmwareVersion, 64, 32);
FIELD(ST_PC_ALD_INFO, acSerialNumber, 96, 32);
static_assert(sizeof(ST_PC_ALD_INFO) == 128);

FIELD(ST_PC_PRT_INFO, acManufacture, 0, 32);
FIELD(ST_PC_PRT_INFO, acDeviceName, 32, 32);
FIELD(ST_PC_PRT_INFO, acFirmwareVersion, 64, 32);
FIELD(ST_PC_PRT_INFO, acSerialNumber, 96, 32);
static_assert(sizeof(ST_PC_PRT_INFO) == 128);

FIELD(ST_PC_DRV_INFO, acVenderName, 0, 32);
FIELD(ST_PC_DRV_INFO, acProductInfo, 32, 32);
FIELD(ST_PC_DRV_INFO, acFirmwareVersion, 64, 32);
FIELD(ST_PC_DRV_INFO, acReleaseDate, 96, 32);
FIELD(ST_PC_DRV_INFO, acSerialNumber, 128, 32);
static_assert(sizeof(ST_PC_DRV_INFO) == 160);

FIELD(ST_PC_MAINTENANCE_INFO, ulPrintCount, 0, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulPrintCountMAX, 8, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulMaintenanceBox, 16, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulMaintenanceBoxLife, 24, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulCompleteCDNum, 32, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulCompleteDVDMRNum, 40, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulCompleteDVDPRNum, 48, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulCompleteDVDMRDLNum, 56, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulCompleteDVDPRDLNum, 64, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulCompleteBDNum, 72, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulCompleteBDDLNum, 80, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive1TrayNum, 88, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive1TrayNumLife, 96, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive1WriteTimeCD, 104, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive1WriteTimeCDLife, 112, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive1WriteTimeDVD, 120, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive1WriteTimeDVDLife, 128, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive1WriteTimeBD, 136, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive1WriteTimeBDLife, 144, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive1WriteTimeTotal, 152, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive1WriteTimeTotalLife, 160, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive1ReadTimeTotal, 168, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive1ReadTimeTotalLife, 176, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive2TrayNum, 184, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive2TrayNumLife, 192, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive2WriteTimeCD, 200, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive2WriteTimeCDLife, 208, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive2WriteTimeDVD, 216, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive2WriteTimeDVDLife, 224, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive2WriteTimeBD, 232, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive2WriteTimeBDLife, 240, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive2WriteTimeTotal, 248, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive2WriteTimeTotalLife, 256, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive2ReadTimeTotal, 264, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDrive2ReadTimeTotalLife, 272, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulPlugInUsed, 280, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDRV1Life, 288, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulDRV2Life, 296, 8);
FIELD(ST_PC_MAINTENANCE_INFO, ulCompleteDiscNum, 304, 8);
FIELD(ST_PC_MAINTENANCE_INFO, acUlmarUnitSN, 312, 32);
static_assert(sizeof(ST_PC_MAINTENANCE_INFO) == 344);

#undef FIELD

// ---------------------------------------------------------------------------------------------------------------------
// Publisher records

constexpr UINT unknown = 0xFFFFFFFF;

void ExpectDefaults(const PUBLISHERINFO& info, UINT errorMark)
{
    EXPECT_EQ(info.strGUID, "");
    EXPECT_EQ(info.strPublisherRegistID, "");
    EXPECT_EQ(info.strPublisherName, "");
    EXPECT_EQ(info.uiPublishMode, 0u);
    EXPECT_EQ(info.uiStacker1DiscType, 1u);
    EXPECT_EQ(info.uiStacker2DiscType, 0u);
    EXPECT_EQ(info.uiStacker3DiscType, 32u);
    EXPECT_EQ(info.uiStacker4DiscType, 0u);
    EXPECT_EQ(info.uiUseDrive, 0u);
    EXPECT_EQ(info.uiRetryCount, 3u);
    EXPECT_EQ(info.strPrinterName, "");
    EXPECT_TRUE(info.bAddErrorMark);
    EXPECT_EQ(info.uiPublisherType, 0u);
    EXPECT_EQ(info.strHostName, "");
    EXPECT_EQ(info.uiAddErrorMark, errorMark);
    EXPECT_EQ(info.uiPublisherDevType, 0u);
    EXPECT_EQ(info.uiRetryCountR, 3u);
    EXPECT_EQ(info.uiRetryCountW, 3u);
    EXPECT_TRUE(info.bContinuePublish);
    EXPECT_EQ(info.uiNetPublisherType, 0u);
}

PUBLISHERINFO Filled()
{
    PUBLISHERINFO info;
    info.strGUID = "{G}";
    info.strPublisherRegistID = "R";
    info.strPublisherName = "N";
    info.uiPublishMode = 6;
    info.uiStacker1DiscType = 16;
    info.uiStacker2DiscType = 17;
    info.uiStacker3DiscType = 18;
    info.uiStacker4DiscType = 19;
    info.uiUseDrive = 2;
    info.uiRetryCount = 7;
    info.strPrinterName = "P";
    info.bAddErrorMark = false;
    info.uiPublisherType = 1;
    info.strHostName = "H";
    info.uiAddErrorMark = 9;
    info.uiPublisherDevType = 8;
    info.uiRetryCountR = 11;
    info.uiRetryCountW = 12;
    info.bContinuePublish = false;
    info.uiNetPublisherType = 3;
    return info;
}

void ExpectFilled(const PUBLISHERINFO& info)
{
    EXPECT_EQ(info.strGUID, "{G}");
    EXPECT_EQ(info.strPublisherRegistID, "R");
    EXPECT_EQ(info.strPublisherName, "N");
    EXPECT_EQ(info.uiPublishMode, 6u);
    EXPECT_EQ(info.uiStacker1DiscType, 16u);
    EXPECT_EQ(info.uiStacker2DiscType, 17u);
    EXPECT_EQ(info.uiStacker3DiscType, 18u);
    EXPECT_EQ(info.uiStacker4DiscType, 19u);
    EXPECT_EQ(info.uiUseDrive, 2u);
    EXPECT_EQ(info.uiRetryCount, 7u);
    EXPECT_EQ(info.strPrinterName, "P");
    EXPECT_FALSE(info.bAddErrorMark);
    EXPECT_EQ(info.uiPublisherType, 1u);
    EXPECT_EQ(info.strHostName, "H");
    EXPECT_EQ(info.uiAddErrorMark, 9u);
    EXPECT_EQ(info.uiPublisherDevType, 8u);
    EXPECT_EQ(info.uiRetryCountR, 11u);
    EXPECT_EQ(info.uiRetryCountW, 12u);
    EXPECT_FALSE(info.bContinuePublish);
    EXPECT_EQ(info.uiNetPublisherType, 3u);
}

TEST(PublisherInfo, NewRecordHasTheDefaults)
{
    ExpectDefaults(PUBLISHERINFO(), 1);
}

TEST(PublisherInfo, ClearDiffersFromNewOnlyInTheErrorMarkNumber)
{
    PUBLISHERINFO info = Filled();
    info.Clear();
    ExpectDefaults(info, 0);
}

TEST(PublisherInfo, CopiesHaveAllFields)
{
    const PUBLISHERINFO original = Filled();
    const PUBLISHERINFO copy(original);
    PUBLISHERINFO assigned;
    assigned = original;
    ExpectFilled(copy);
    ExpectFilled(assigned);
}

TEST(PublisherVersionInfo, NewRecordIsEmpty)
{
    const PUBLISHERVERSIONINFO info;
    for (const CString& text :
         {info.strPublisherRegistID, info.strSerialNo, info.strAutoLoaderVersion, info.strPrinterModelName,
          info.strPrinterVersion, info.strDrive1ModelName, info.strDrive1Version, info.strDrive2ModelName,
          info.strDrive2Version, info.strSSSVersion, info.strUDNAVersion}) {
        EXPECT_EQ(text, "");
    }
}

bool Ascend(const std::vector<const void*>& fields)
{
    return std::is_sorted(fields.begin(), fields.end(), std::less<>());
}

TEST(PublisherVersionInfo, FieldsAreInOrder)
{
    const PUBLISHERVERSIONINFO i;
    static_assert(sizeof(i) == 11 * sizeof(CString));
    EXPECT_TRUE(
        Ascend({&i.strPublisherRegistID, &i.strSerialNo, &i.strAutoLoaderVersion, &i.strPrinterModelName,
                &i.strPrinterVersion, &i.strDrive1ModelName, &i.strDrive1Version, &i.strDrive2ModelName,
                &i.strDrive2Version, &i.strSSSVersion, &i.strUDNAVersion}));
}

TEST(PublisherMaintenanceInfo, FieldsAreInOrder)
{
    const PUBLISHERMAINTENANCEINFO i;
    const PUBMAINTINFODRIVE& d = i.midrvDrive1;
    static_assert(std::is_standard_layout_v<PUBMAINTINFODRIVE> && sizeof(d) == 12 * sizeof(UINT));
    EXPECT_TRUE(
        Ascend({&d.uiTrayCount, &d.uiTrayLife, &d.uiWriteCDCount, &d.uiWriteCDLife, &d.uiWriteDVDCount,
                &d.uiWriteDVDLife, &d.uiWriteBDCount, &d.uiWriteBDLife, &d.uiDriveWriteTimeTotal,
                &d.uiDriveWriteTimeTotalLife, &d.uiDriveReadTimeTotal, &d.uiDriveReadTimeTotalLife}));
    EXPECT_TRUE(Ascend({&i.uiPrintCount, &i.uiCompleteDiscNum, &i.uiMainteBoxCount, &i.uiMainteBoxLife,
                        &i.midrvDrive1, &i.midrvDrive2, &i.uiUsedPlugin, &i.strSerialNo, &i.ulDRV1Life,
                        &i.ulDRV2Life}));
}

void ExpectUnknown(const PUBMAINTINFODRIVE& drive)
{
    const UINT fields[] = {drive.uiTrayCount,           drive.uiTrayLife,
                           drive.uiWriteCDCount,        drive.uiWriteCDLife,
                           drive.uiWriteDVDCount,       drive.uiWriteDVDLife,
                           drive.uiWriteBDCount,        drive.uiWriteBDLife,
                           drive.uiDriveWriteTimeTotal, drive.uiDriveWriteTimeTotalLife,
                           drive.uiDriveReadTimeTotal,  drive.uiDriveReadTimeTotalLife};
    for (const UINT field : fields) {
        EXPECT_EQ(field, unknown);
    }
}

TEST(PublisherMaintenanceInfo, NewRecordHasOnlyUnknownValues)
{
    const PUBLISHERMAINTENANCEINFO info;
    EXPECT_EQ(info.uiPrintCount, unknown);
    EXPECT_EQ(info.uiCompleteDiscNum, unknown);
    EXPECT_EQ(info.uiMainteBoxCount, unknown);
    EXPECT_EQ(info.uiMainteBoxLife, unknown);
    ExpectUnknown(info.midrvDrive1);
    ExpectUnknown(info.midrvDrive2);
    EXPECT_EQ(info.uiUsedPlugin, unknown);
    EXPECT_EQ(info.strSerialNo, "");
    EXPECT_EQ(info.ulDRV1Life, 0xFFFFFFFFul);
    EXPECT_EQ(info.ulDRV2Life, 0xFFFFFFFFul);
    static_assert(sizeof info.ulDRV1Life == 8 && sizeof info.ulDRV2Life == 8);
}

} // namespace

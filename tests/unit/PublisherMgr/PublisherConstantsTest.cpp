// The numbers and words of publisher management, of the setting files and of the registry.
#include "ConstantRows.h"
#include "JobMgrConst.h"
#include "NW_Com_LibConst.h"
#include "PubMgrConst.h"
#include "PublisherCtrlConst.h"

#include <gtest/gtest.h>

namespace {

TEST(Constants, PublishModes)
{
    ExpectAll(std::vector<Number>{
        NUMBER(PUBMGR_PUBLISHMODE_ERROR, 0xFFFFFFFF),
        NUMBER(PUBMGR_PUBLISHMODE_NORMAL, 0),
        NUMBER(PUBMGR_PUBLISHMODE_BATCH, 1),
        NUMBER(PUBMGR_PUBLISHMODE_OUTPUT, 2),
        NUMBER(PUBMGR_PUBLISHMODE_LOWVOLUME, 2),
        NUMBER(PUBMGR_PUBLISHMODE_SECURITY, 3),
        NUMBER(PUBMGR_PUBLISHMODE_EJECTCONTROL, 4),
        NUMBER(PUBMGR_PUBLISHMODE_ERRORRATE, 5),
        NUMBER(PUBMGR_PUBLISHMODE_READ, 6),
    });
}

TEST(Constants, StackerDiscTypes)
{
    ExpectAll(std::vector<Number>{
        NUMBER(PUBMGR_STACKERDISCTYPE_ERROR, 0xFFFFFFFF),
        NUMBER(PUBMGR_STACKERDISCTYPE_OUTPUT, 0),
        NUMBER(PUBMGR_STACKERDISCTYPE_CDR, 1),
        NUMBER(PUBMGR_STACKERDISCTYPE_DVDMINUSR, 2),
        NUMBER(PUBMGR_STACKERDISCTYPE_DVDMINUSRDL, 3),
        NUMBER(PUBMGR_STACKERDISCTYPE_DVDPLUSR, 4),
        NUMBER(PUBMGR_STACKERDISCTYPE_DVDPLUSRDL, 5),
        NUMBER(PUBMGR_STACKERDISCTYPE_DVDR, 6),
        NUMBER(PUBMGR_STACKERDISCTYPE_DVDRDL, 7),
        NUMBER(PUBMGR_STACKERDISCTYPE_BDR, 8),
        NUMBER(PUBMGR_STACKERDISCTYPE_BDRDL, 9),
        NUMBER(PUBMGR_STACKERDISCTYPE_BDRTL, 10),
        NUMBER(PUBMGR_STACKERDISCTYPE_BDRQL, 11),
        NUMBER(PUBMGR_STACKERDISCTYPE_INPUT, 16),
        NUMBER(PUBMGR_STACKERDISCTYPE_NOTUSE, 32),
    });
}

TEST(Constants, UseDrive)
{
    ExpectAll(std::vector<Number>{
        NUMBER(PUBMGR_USEDRIVE_ERROR, 0xFFFFFFFF),
        NUMBER(PUBMGR_USEDRIVE_AUTO, 0),
        NUMBER(PUBMGR_USEDRIVE_DRIVE1, 1),
        NUMBER(PUBMGR_USEDRIVE_DRIVE2, 2),
    });
}

TEST(Constants, PublisherTypes)
{
    ExpectAll(std::vector<Number>{
        NUMBER(PUBMGR_PUBLISHERTYPE_BASIC, 0),
        NUMBER(PUBMGR_PUBLISHERTYPE_NETWORK, 1),
        NUMBER(PUBMGR_PUBLISHERTYPE_AP, 2),
        NUMBER(PUBMGR_PUBLISHERTYPE_SD, 3),
        NUMBER(PUBMGR_PUBLISHERTYPE_30BD, 4),
        NUMBER(PUBMGR_PUBLISHERTYPE_300MOD, 0x10000005),
        NUMBER(PUBMGR_PUBLISHERTYPE_30BDA, 6),
        NUMBER(PUBMGR_PUBLISHERTYPE_300II_DVD, 0x10000007),
        NUMBER(PUBMGR_PUBLISHERTYPE_300II_BD, 0x20000007),
        NUMBER(PUBMGR_PUBLISHERTYPE_30II, 8),
        NUMBER(PUBMGR_PUBLISHERTYPE_300III_DVD, 0x10000009),
        NUMBER(PUBMGR_PUBLISHERTYPE_300III_BD, 0x20000009),
        NUMBER(PUBMGR_PUBLISHERTYPE_30II_BDXL, 0x30000008),
        NUMBER(PUBMGR_PUBLISHERTYPE_300III_BDXL, 0x30000009),
    });
}

TEST(Constants, PublisherTypesAreFamilyAndDriveClass)
{
    const struct
    {
        UINT type;
        UINT family;
        UINT driveClass;
    } rows[] = {
        {PUBMGR_PUBLISHERTYPE_BASIC, 0, 0},        {PUBMGR_PUBLISHERTYPE_NETWORK, 1, 0},
        {PUBMGR_PUBLISHERTYPE_AP, 2, 0},           {PUBMGR_PUBLISHERTYPE_SD, 3, 0},
        {PUBMGR_PUBLISHERTYPE_30BD, 4, 0},         {PUBMGR_PUBLISHERTYPE_300MOD, 5, 0x1},
        {PUBMGR_PUBLISHERTYPE_30BDA, 6, 0},        {PUBMGR_PUBLISHERTYPE_300II_DVD, 7, 0x1},
        {PUBMGR_PUBLISHERTYPE_300II_BD, 7, 0x2},   {PUBMGR_PUBLISHERTYPE_30II, 8, 0},
        {PUBMGR_PUBLISHERTYPE_300III_DVD, 9, 0x1}, {PUBMGR_PUBLISHERTYPE_300III_BD, 9, 0x2},
        {PUBMGR_PUBLISHERTYPE_30II_BDXL, 8, 0x3},  {PUBMGR_PUBLISHERTYPE_300III_BDXL, 9, 0x3},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.type & ARV_PC_DEVICETYPE_MASK, row.family);
        EXPECT_EQ(row.type >> 28, row.driveClass);
    }
}

TEST(Constants, DriveClasses)
{
    ExpectAll(std::vector<Number>{
        NUMBER(ARV_PC_DEVICETYPE_MASK, 0xF),
        NUMBER(ARV_PC_DEVICETYPE_DRV_UNKNOWN, 0),
        NUMBER(REG_PUB_DEVICE_DPTYPE_DVD_SUPPORT, 0x10000000),
        NUMBER(REG_PUB_DEVICE_DPTYPE_BD_SUPPORT, 0x20000000),
        NUMBER(REG_PUB_DEVICE_DPTYPE_BDXL_SUPPORT, 0x30000000),
    });
}

TEST(Constants, FamiliesOfTheService)
{
    ExpectAll(std::vector<Number>{
        NUMBER(ARV_PC_DEVICETYPE_NON, 0),
        NUMBER(ARV_PC_DEVICETYPE_RT300, 1),
        NUMBER(ARV_PC_DEVICETYPE_RT300AP, 2),
        NUMBER(ARV_PC_DEVICETYPE_RT30, 3),
        NUMBER(ARV_PC_DEVICETYPE_RT30BD, 4),
        NUMBER(ARV_PC_DEVICETYPE_RT300MOD, 5),
        NUMBER(ARV_PC_DEVICETYPE_RT30BDA, 6),
        NUMBER(ARV_PC_DEVICETYPE_RT300II, 7),
        NUMBER(ARV_PC_DEVICETYPE_RT30II, 8),
        NUMBER(ARV_PC_DEVICETYPE_RT300III, 9),
    });
}

TEST(Constants, FamiliesInTheRegistry)
{
    ExpectAll(std::vector<Number>{
        NUMBER(REG_PUB_DEVICE_DPTYPE_AP, 2),
        NUMBER(REG_PUB_DEVICE_DPTYPE_SD, 3),
        NUMBER(REG_PUB_DEVICE_DPTYPE_30BD, 4),
        NUMBER(REG_PUB_DEVICE_DPTYPE_300MOD, 5),
        NUMBER(REG_PUB_DEVICE_DPTYPE_30BDA, 6),
        NUMBER(REG_PUB_DEVICE_DPTYPE_300II, 7),
        NUMBER(REG_PUB_DEVICE_DPTYPE_30II, 8),
        NUMBER(REG_PUB_DEVICE_DPTYPE_300III, 9),
    });
}

TEST(Constants, Families)
{
    const struct
    {
        size_t family;
        int drives;
        std::string section;
        std::string prefix;
    } rows[] = {
        {1, 2, "SUPPORT_300", "RT-300 "},       {2, 0, "SUPPORT_AP", "RT-300AP "},
        {3, 1, "SUPPORT_30", "RT-30 "},         {4, 1, "SUPPORT_30BD", "RT-30BD "},
        {5, 2, "SUPPORT_5300EX", "RT-5300EX "}, {6, 1, "SUPPORT_7030BD", "RT-7030BD "},
        {7, 2, "SUPPORT_300II", "RT-300II "},   {8, 1, "SUPPORT_30II", "RT-30II "},
        {9, 2, "SUPPORT_300III", "RT-300III "},
    };
    ASSERT_EQ(std::size(PUBLISHER_FAMILIES), 10u);
    for (const auto& row : rows) {
        EXPECT_EQ(PUBLISHER_FAMILIES[row.family].nDrives, row.drives);
        EXPECT_EQ(PUBLISHER_FAMILIES[row.family].szSupportSection, row.section);
        EXPECT_EQ(PUBLISHER_FAMILIES[row.family].szNamePrefix, row.prefix);
    }
}

TEST(Constants, PrinterDrivers)
{
    ExpectAll(std::vector<Word>{
        WORD(ARV_PC_PRINTERDRIVER_NAME, "ARVEN RT-300PRN"),
        WORD(ARV_PC_PRINTERDRIVER_NAME_AP, "ARVEN RT-300APPRN"),
        WORD(ARV_PC_PRINTERDRIVER_NAME_SD, "ARVEN RT-30PRN"),
    });
}

TEST(Constants, ConnectTypes)
{
    ExpectAll(std::vector<Number>{
        NUMBER(PUBMGR_CONNECTTYPE_LOCAL, 0),
        NUMBER(PUBMGR_CONNECTTYPE_NETWORK, 1),
    });
}

TEST(Constants, NetworkPublisherTypes)
{
    ExpectAll(std::vector<Number>{
        NUMBER(PUBMGR_NPTYPE_UNKNOWN, 0),
        NUMBER(PUBMGR_NPTYPE_300N, 1),
        NUMBER(PUBMGR_NPTYPE_300NII, 2),
        NUMBER(PUBMGR_NPTYPE_300NII_BDXL, 3),
    });
}

TEST(Constants, Defaults)
{
    ExpectAll(std::vector<Number>{
        NUMBER(PUBMGR_DEFAULT_PUBLISHMODE, 0),
        NUMBER(PUBMGR_DEFAULT_STACKERTYPE, 1),
        NUMBER(PUBMGR_DEFAULT_USEDRIVE, 0),
        NUMBER(PUBMGR_DEFAULT_RETRYCOUNT, 3),
        NUMBER(PUBMGR_DEFAULT_RETRYCOUNT_READ, 150000),
    });
}

TEST(Constants, EndJobNotify)
{
    ExpectAll(std::vector<Number>{
        NUMBER(PUBMGR_ENDJOBNOTIFY_OFF, 0),
        NUMBER(PUBMGR_ENDJOBNOTIFY_EVERYJOB, 1),
        NUMBER(PUBMGR_ENDJOBNOTIFY_ALLJOB, 2),
    });
}

TEST(Constants, NotifyStyle)
{
    ExpectAll(std::vector<Number>{
        NUMBER(PUBMGR_NOTIFYSTYLE_OFF, 0),
        NUMBER(PUBMGR_NOTIFYSTYLE_MESSAGEBOX, 1),
        NUMBER(PUBMGR_NOTIFYSTYLE_BUZZER, 2),
    });
}

TEST(Constants, CreateSettingFileErrors)
{
    ExpectAll(std::vector<Number>{
        NUMBER(PUBMGR_NUM_ERROR_OTHER, -1),
        NUMBER(PUBMGR_NUM_ERROR_SUCCESS, 0),
        NUMBER(PUBMGR_NUM_ERROR_CREATEFILE, 1),
        NUMBER(PUBMGR_NUM_ERROR_CREATEFOLDER, 2),
    });
}

TEST(Constants, LoadStackers)
{
    ExpectAll(std::vector<Number>{});
}

TEST(Constants, EjectStackers)
{
    ExpectAll(std::vector<Number>{});
}

TEST(Constants, PrintModes)
{
    ExpectAll(std::vector<Number>{});
}

TEST(Constants, MediaIndices)
{
    ExpectAll(std::vector<Number>{
        NUMBER(MEDIA_CD_R, 0),
        NUMBER(MEDIA_DVD_MR, 1),
        NUMBER(MEDIA_DVD_PR, 2),
        NUMBER(MEDIA_DVD_MR_DL, 3),
        NUMBER(MEDIA_DVD_PR_DL, 4),
        NUMBER(MEDIA_MAX_DVD, 5),
        NUMBER(MEDIA_BD_R, 5),
        NUMBER(MEDIA_BD_R_DL, 6),
        NUMBER(MEDIA_MAX_BD, 7),
    });
}

TEST(Constants, SettingKeys)
{
    ExpectAll(std::vector<Word>{
        WORD(REG_PUB_SETUP_VAL_GUID, "GUID"),
        WORD(REG_PUB_SETUP_VAL_PUBLISH_NAME, "PublisherName"),
        WORD(REG_PUB_SETUP_VAL_PUBLISH_MODE, "PublishMode"),
        WORD(REG_PUB_SETUP_VAL_STK1, "Stacker1"),
        WORD(REG_PUB_SETUP_VAL_STK2, "Stacker2"),
        WORD(REG_PUB_SETUP_VAL_STK3, "Stacker3"),
        WORD(REG_PUB_SETUP_VAL_STK4, "Stacker4"),
        WORD(REG_PUB_SETUP_VAL_PRINTER_NAME, "PrinterName"),
        WORD(REG_PUB_SETUP_VAL_TYPE, "PublisherConnectionType"),
        WORD(REG_PUB_SETUP_VAL_USEDRIVE, "UseDrive"),
        WORD(REG_PUB_SETUP_VAL_RETRYCOUNT, "RetryTimes"),
        WORD(REG_PUB_SETUP_VAL_RETRYCOUNT_W, "RetryTimesW"),
        WORD(REG_PUB_SETUP_VAL_RETRYCOUNT_R, "RetryTimesR"),
        WORD(REG_PUB_SETUP_VAL_READBACKCONTINUE, "ReadBackContinue"),
        WORD(REG_PUB_SETUP_VAL_ERRORMARK, "AddErrorMark"),
        WORD(REG_PUB_SETUP_VAL_HOST, "PublisherURL"),
        WORD(REG_PUB_SETUP_VAL_NPTYPE, "NPType"),
    });
}

TEST(Constants, SettingFileWords)
{
    ExpectAll(std::vector<Word>{
        WORD(REG_PUB_SETUP_SECTION_COMMON, "Common"),
        WORD(REG_PUB_SETUP_STRING_DEFAULT, "NotSet"),
        WORD(REG_PUB_SETUP_INT_FORMAT, "%s=%d"),
        WORD(REG_PUB_SETUP_STR_FORMAT, "%s=%s"),
        WORD(REG_PUB_SETTING_FILE, "%s/%s.ini"),
        WORD(ARV_PC_PUBLISHED_ID_NAME, "{ARPUB%4d%02d%02d_%d}"),
        WORD(ARV_PC_PUBLISHED_ID_FILENAME, "{ARPUB%4lu%02lu%02lu_%lu}.ini"),
        WORD(ARV_PUBLISHER_ID_EXTENSION, ".ini"),
        WORD(PUBMGR_STR_WORKFOLDER, "UlmarDiscMakerWork"),
        WORD(PUBMGR_STR_WORKFOLDERADDNUM, "UlmarDiscMakerWork %d"),
        WORD(PUBMGR_STR_FOLDER_LOG, "LOG"),
        WORD(PUBMGR_STR_EXT_LOG, "log"),
    });
}

TEST(Constants, SettingFileNumbers)
{
    ExpectAll(std::vector<Number>{
        NUMBER(REG_PUB_SETUP_INT_DEFAULT, -1),
        NUMBER(ARV_PC_PUBID_NUM, 1000),
        NUMBER(ARV_PC_PUBNAME_NUM, 1000),
    });
}

TEST(Constants, RegistryKeys)
{
    ExpectAll(std::vector<Word>{
        WORD(REG_PUB_KEY_ROOT, "Software\\ARVEN\\Ulmar Disc Maker"),
        WORD(REG_PUB_CTRL_REGKEY_ROOT, "Software\\ARVEN\\Ulmar Disc Maker"),
        WORD(REG_PUB_DEVICE_KEY_ROOT, "Software\\ARVEN\\Ulmar Disc Maker\\Local"),
        WORD(REG_PUB_SETUP_KEY_ROOT, "Software\\ARVEN\\Ulmar Disc Maker\\RegPublisher"),
    });
}

TEST(Constants, RegistryValues)
{
    ExpectAll(std::vector<Word>{
        WORD(REG_PUB_OPTION_VAL_C1ERROR, "C1Error"),
        WORD(REG_PUB_OPTION_VAL_PIEsum8, "PIEsum8"),
        WORD(REG_PUB_OPTION_VAL_RSER, "RSER"),
        WORD(REG_PUB_OPTION_VAL_BURSTERROR, "BurstError"),
        WORD(REG_PUB_OPTION_VAL_ERRORRATECONTINUECOUNT, "ErrorRateContinueCount"),
        WORD(REG_PUB_OPTION_VAL_ERRORRATELOGFOLDER, "ErrorRateLogFolder"),
        WORD(REG_PUB_OPTION_VAL_NOTIFY_JOBEND, "EndJobNotifyType"),
        WORD(REG_PUB_OPTION_VAL_NOTIFY_STYLE, "NotifyStyleJobEnd"),
        WORD(REG_PUB_OPTION_COMPATIMODE, "CompatiMode"),
        WORD(REG_PUB_OPTION_VAL_OUTPUTLOG, "OutputLog"),
        WORD(REG_PUB_OPTION_VAL_WORKFOLDER, "Workfolder"),
        WORD(REG_PUB_CTRL_VAL_CONNECTED, "Connected"),
        WORD(REG_PUB_CTRL_DEVICETYPE, "DPType"),
        WORD(REG_PUB_CTRL_USB_MODE, "USBMode"),
        WORD(REG_PRN_REG_VAL_DRV1_SUPPORT_WR_SPEED, "DRV1SupportWriteSpeed"),
        WORD(REG_PRN_REG_VAL_DRV2_SUPPORT_WR_SPEED, "DRV2SupportWriteSpeed"),
        WORD(REG_PRN_REG_VAL_DRV_SUPPORT_WR_SPEED, "DRVSupportWriteSpeed"),
    });
}

TEST(Constants, DeviceStates)
{
    ExpectAll(std::vector<Number>{
        NUMBER(ARV_PC_CONNECTED, 1),
        NUMBER(ARV_PC_USBMODE_DISCONNECT, 0),
        NUMBER(ARV_PC_USBMODE_SUPER, 3),
        NUMBER(ARV_PC_USBMODE_UNKNOWN, 16),
        NUMBER(ARV_PC_MAINTENANCEINFO_UNKNOWN, 0xFFFFFFFF),
        NUMBER(ARV_PC_PLUGIN_USED_DRIVE1, 1),
        NUMBER(ARV_PC_PLUGIN_USED_DRIVE2, 2),
        NUMBER(ARV_PC_DRV_LIFESUPPORT, 1),
        NUMBER(ARV_PC_DRV_LIFEUNSUPPORT, 0),
    });
}

TEST(Constants, WriteSpeedSeparators)
{
    ExpectAll(std::vector<Number>{
        NUMBER(PUBMGR_STR_SEPARATOR_WRITESPEEDSET, ';'),
        NUMBER(PUBMGR_STR_SEPARATOR_DISCTYPE, ':'),
        NUMBER(PUBMGR_STR_SEPARATOR_WRITESPEED, ','),
    });
}

TEST(Constants, DiscTypeWords)
{
    ExpectAll(std::vector<Word>{
        WORD(PUBMGR_STR_DISCTYPE_CDR, "CD-R"),
        WORD(PUBMGR_STR_DISCTYPE_DVDR, "DVD-R"),
        WORD(PUBMGR_STR_DISCTYPE_DVDRDL, "DVD-R DL"),
        WORD(PUBMGR_STR_DISCTYPE_DVDPLUSR, "DVD+R"),
        WORD(PUBMGR_STR_DISCTYPE_DVDPLUSRDL, "DVD+R DL"),
        WORD(PUBMGR_STR_DISCTYPE_BDR, "BD-R"),
        WORD(PUBMGR_STR_DISCTYPE_BDRDL, "BD-R DL"),
        WORD(PUBMGR_STR_DISCTYPE_BDRTL, "BD-R TL"),
        WORD(PUBMGR_STR_DISCTYPE_BDRQL, "BD-R QL"),
    });
}

// One number, two words; a family and a class in one number.
static_assert(PUBMGR_PUBLISHMODE_LOWVOLUME == PUBMGR_PUBLISHMODE_OUTPUT);
static_assert((PUBMGR_PUBLISHERTYPE_30II_BDXL & 0xF) == 8 && PUBMGR_PUBLISHERTYPE_30II_BDXL >> 28 == 3);

TEST(Constants, NetworkResultCodes)
{
    ExpectAll(std::vector<Number>{
        NUMBER(NCL_SUCCESS, 0),
        NUMBER(NCL_ERR_PARAMETER, 1),
        NUMBER(NCL_ERR_GET_MEMORY, 2),
        NUMBER(NCL_ERR_SOCK_INITIALIZATION, 3),
        NUMBER(NCL_ERR_SOCK_CONNECTION, 4),
        NUMBER(NCL_ERR_SSL_INITIALIZATION, 5),
        NUMBER(NCL_ERR_SSL_CONNECTION, 6),
        NUMBER(NCL_ERR_COMMUNICATION, 7),
        NUMBER(NCL_ERR_NETWORK_TIMEOUT, 8),
        NUMBER(NCL_ERR_CONNECTION_CLOSE, 9),
        NUMBER(NCL_ERR_BUF_SIZE, 10),
        NUMBER(NCL_ERR_PROCESS_CREATE, 11),
        NUMBER(NCL_ERR_CANCEL_SENDING, 12),
        NUMBER(NCL_ERR_INVALID_COMM_SPEC, 13),
        NUMBER(NCL_ERR_CALC_HASH, 14),
        NUMBER(NCL_ERR_SERVER_OTHER, 8000),
        NUMBER(NCL_ERR_APP_VERSION, 8001),
        NUMBER(NCL_ERR_DEVICE_OFFLINE, 8002),
        NUMBER(NCL_ERR_AUTHENTICATION, 8003),
        NUMBER(NCL_ERR_PASSWORD_EXPIRED, 8004),
        NUMBER(NCL_ERR_REGISTRATION_BUSY, 8005),
        NUMBER(NCL_ERR_HARD_DISC_CAPACITY, 8006),
        NUMBER(NCL_ERR_SERVER_JOB_ID, 8007),
        NUMBER(NCL_ERR_JOB_FILE_INVALID, 8008),
        NUMBER(NCL_ERR_PERMISSION_DENIED, 8009),
        NUMBER(NCL_ERR_USER_NOT_REGISTERED, 8010),
        NUMBER(NCL_ERR_SERVER_BUSY, 8011),
        NUMBER(NCL_ERR_SPOOL_JOB_LIMIT, 8012),
    });
}

TEST(Constants, NetworkTextTypes)
{
    ExpectAll(std::vector<Number>{
        NUMBER(NCL_DIT_SERIAL_NO_OF_ALD, 0),
        NUMBER(NCL_DIT_VERSION_OF_ALD, 1),
        NUMBER(NCL_DIT_VERSION_OF_PRN, 2),
        NUMBER(NCL_DIT_VERSION_OF_DRV1, 3),
        NUMBER(NCL_DIT_VERSION_OF_DRV2, 4),
        NUMBER(NCL_DIT_VERSION_OF_SERVER_APP, 5),
        NUMBER(NCL_DIT_VERSION_OF_WEB_APP, 6),
        NUMBER(NCL_DIT_VERSION_OF_SECURITY, 7),
        NUMBER(NCL_DIT_REMAINDER_OF_HARD_DISC, 8),
        NUMBER(NCL_DIT_CAPACITY_OF_HARD_DISC, 9),
        NUMBER(NCL_DIT_WRITE_SPEED_OF_DRV1, 10),
        NUMBER(NCL_DIT_WRITE_SPEED_OF_DRV2, 11),
        NUMBER(NCL_DIT_NAME_OF_PRN, 12),
        NUMBER(NCL_DIT_NAME_OF_DRV1, 13),
        NUMBER(NCL_DIT_NAME_OF_DRV2, 14),
    });
}

} // namespace

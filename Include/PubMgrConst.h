// Constants of publisher management: modes, stacker media, models, connection kinds, the keys of the
// publisher setting files and the registry values.
#pragma once

#include "Win_def.h"

// ---------------------------------------------------------------------------------------------------------------------
// Settings of a publisher

enum enPublishMode : UINT
{
    PUBMGR_PUBLISHMODE_ERROR = 0xFFFFFFFF,
    PUBMGR_PUBLISHMODE_NORMAL = 0,
    PUBMGR_PUBLISHMODE_BATCH = 1,
    PUBMGR_PUBLISHMODE_OUTPUT = 2,
    PUBMGR_PUBLISHMODE_LOWVOLUME = 2, ///< name of the same mode on single-drive models
    PUBMGR_PUBLISHMODE_SECURITY = 3,
    PUBMGR_PUBLISHMODE_EJECTCONTROL = 4,
    PUBMGR_PUBLISHMODE_ERRORRATE = 5,
    PUBMGR_PUBLISHMODE_READ = 6
};

/// What a stacker holds.
enum enOrlaStackerDiscType : UINT
{
    PUBMGR_STACKERDISCTYPE_ERROR = 0xFFFFFFFF,
    PUBMGR_STACKERDISCTYPE_OUTPUT = 0,
    PUBMGR_STACKERDISCTYPE_CDR = 1,
    PUBMGR_STACKERDISCTYPE_DVDMINUSR = 2,
    PUBMGR_STACKERDISCTYPE_DVDMINUSRDL = 3,
    PUBMGR_STACKERDISCTYPE_DVDPLUSR = 4,
    PUBMGR_STACKERDISCTYPE_DVDPLUSRDL = 5,
    PUBMGR_STACKERDISCTYPE_DVDR = 6,
    PUBMGR_STACKERDISCTYPE_DVDRDL = 7,
    PUBMGR_STACKERDISCTYPE_BDR = 8,
    PUBMGR_STACKERDISCTYPE_BDRDL = 9,
    PUBMGR_STACKERDISCTYPE_BDRTL = 10,
    PUBMGR_STACKERDISCTYPE_BDRQL = 11,
    PUBMGR_STACKERDISCTYPE_INPUT = 16,
    PUBMGR_STACKERDISCTYPE_NOTUSE = 32
};

enum enUseDrive : UINT
{
    PUBMGR_USEDRIVE_ERROR = 0xFFFFFFFF,
    PUBMGR_USEDRIVE_AUTO = 0,
    PUBMGR_USEDRIVE_DRIVE1 = 1,
    PUBMGR_USEDRIVE_DRIVE2 = 2
};

enum enPublisherConnectType : UINT
{
    PUBMGR_CONNECTTYPE_LOCAL = 0,
    PUBMGR_CONNECTTYPE_NETWORK = 1
};

enum enNetworkPublisherType : UINT
{
    PUBMGR_NPTYPE_UNKNOWN = 0,
    PUBMGR_NPTYPE_300N = 1,
    PUBMGR_NPTYPE_300NII = 2,
    PUBMGR_NPTYPE_300NII_BDXL = 3
};

enum enPublisherInfoDefault : UINT
{
    PUBMGR_DEFAULT_PUBLISHMODE = 0,
    PUBMGR_DEFAULT_STACKERTYPE = 1,
    PUBMGR_DEFAULT_USEDRIVE = 0,
    PUBMGR_DEFAULT_RETRYCOUNT = 3,
    PUBMGR_DEFAULT_RETRYCOUNT_READ = 150000 ///< retries of a read job that never stops on a read error
};

enum enEndJobNotifyType : UINT
{
    PUBMGR_ENDJOBNOTIFY_OFF = 0,
    PUBMGR_ENDJOBNOTIFY_EVERYJOB = 1,
    PUBMGR_ENDJOBNOTIFY_ALLJOB = 2
};

enum enNotifyStyleJobEnd : UINT
{
    PUBMGR_NOTIFYSTYLE_OFF = 0,
    PUBMGR_NOTIFYSTYLE_MESSAGEBOX = 1,
    PUBMGR_NOTIFYSTYLE_BUZZER = 2
};

enum enCreateSettingFileError : int
{
    PUBMGR_NUM_ERROR_OTHER = -1,
    PUBMGR_NUM_ERROR_SUCCESS = 0,
    PUBMGR_NUM_ERROR_CREATEFILE = 1,
    PUBMGR_NUM_ERROR_CREATEFOLDER = 2
};

// ---------------------------------------------------------------------------------------------------------------------
// Models. The low four bits of a model value are the family (ARV_PC_DEVICETYPE_*), the top four the drive
// class.

constexpr UINT REG_PUB_DEVICE_DPTYPE_AP = 2;
constexpr UINT REG_PUB_DEVICE_DPTYPE_SD = 3;
constexpr UINT REG_PUB_DEVICE_DPTYPE_30BD = 4;
constexpr UINT REG_PUB_DEVICE_DPTYPE_300MOD = 5;
constexpr UINT REG_PUB_DEVICE_DPTYPE_30BDA = 6;
constexpr UINT REG_PUB_DEVICE_DPTYPE_300II = 7;
constexpr UINT REG_PUB_DEVICE_DPTYPE_30II = 8;
constexpr UINT REG_PUB_DEVICE_DPTYPE_300III = 9;

constexpr UINT REG_PUB_DEVICE_DPTYPE_DVD_SUPPORT = 0x10000000;
constexpr UINT REG_PUB_DEVICE_DPTYPE_BD_SUPPORT = 0x20000000;
constexpr UINT REG_PUB_DEVICE_DPTYPE_BDXL_SUPPORT = 0x30000000;

enum enPublisherType : UINT
{
    PUBMGR_PUBLISHERTYPE_BASIC = 0,
    PUBMGR_PUBLISHERTYPE_NETWORK = 1,
    PUBMGR_PUBLISHERTYPE_AP = 2,
    PUBMGR_PUBLISHERTYPE_SD = 3,
    PUBMGR_PUBLISHERTYPE_30BD = 4,
    PUBMGR_PUBLISHERTYPE_300MOD = 0x10000005,
    PUBMGR_PUBLISHERTYPE_30BDA = 6,
    PUBMGR_PUBLISHERTYPE_300II_DVD = 0x10000007,
    PUBMGR_PUBLISHERTYPE_300II_BD = 0x20000007,
    PUBMGR_PUBLISHERTYPE_30II = 8,
    PUBMGR_PUBLISHERTYPE_300III_DVD = 0x10000009,
    PUBMGR_PUBLISHERTYPE_300III_BD = 0x20000009,
    PUBMGR_PUBLISHERTYPE_30II_BDXL = 0x30000008,
    PUBMGR_PUBLISHERTYPE_300III_BDXL = 0x30000009
};

constexpr char PC_DEV_SUPPORT_SECTION[] = "SUPPORT_300";
constexpr char PC_DEV_SUPPORT_SECTION_AP[] = "SUPPORT_AP";
constexpr char PC_DEV_SUPPORT_SECTION_SD[] = "SUPPORT_30";
constexpr char PC_DEV_SUPPORT_SECTION_30BD[] = "SUPPORT_30BD";
constexpr char PC_DEV_SUPPORT_SECTION_300MOD[] = "SUPPORT_5300EX";
constexpr char PC_DEV_SUPPORT_SECTION_30BDA[] = "SUPPORT_7030BD";
constexpr char PC_DEV_SUPPORT_SECTION_300II[] = "SUPPORT_300II";
constexpr char PC_DEV_SUPPORT_SECTION_30II[] = "SUPPORT_30II";
constexpr char PC_DEV_SUPPORT_SECTION_300III[] = "SUPPORT_300III";

/// Properties shared by all models of a family.
struct PublisherFamily
{
    const char* szSupportSection; ///< section of the support table
    const char* szNamePrefix;     ///< start of a default publisher name
};

/// Indexed by the family number; family 0 is no model.
constexpr PublisherFamily PUBLISHER_FAMILIES[] = {
    {"", ""},
    {PC_DEV_SUPPORT_SECTION, "RT-300 "},
    {PC_DEV_SUPPORT_SECTION_AP, "RT-300AP "},
    {PC_DEV_SUPPORT_SECTION_SD, "RT-30 "},
    {PC_DEV_SUPPORT_SECTION_30BD, "RT-30BD "},
    {PC_DEV_SUPPORT_SECTION_300MOD, "RT-5300EX "},
    {PC_DEV_SUPPORT_SECTION_30BDA, "RT-7030BD "},
    {PC_DEV_SUPPORT_SECTION_300II, "RT-300II "},
    {PC_DEV_SUPPORT_SECTION_30II, "RT-30II "},
    {PC_DEV_SUPPORT_SECTION_300III, "RT-300III "},
};

// ---------------------------------------------------------------------------------------------------------------------
// Publisher setting files

constexpr char REG_PUB_SETTING_FILE[] = "%s/%s.ini"; ///< folder, regist id
constexpr char ARV_PUBLISHER_ID_EXTENSION[] = ".ini";
constexpr char ARV_PC_PUBLISHED_ID_NAME[] = "{ARPUB%4d%02d%02d_%d}"; ///< year, month, day, sequence number
constexpr char ARV_PC_PUBLISHED_ID_FILENAME[] = "{ARPUB%4lu%02lu%02lu_%lu}.ini";
constexpr int ARV_PC_PUBID_NUM = 1000;   ///< limit of the sequence number of a regist id
constexpr int ARV_PC_PUBNAME_NUM = 1000; ///< limit of the sequence number of a default name

constexpr char REG_PUB_SETUP_SECTION_COMMON[] = "Common";
constexpr char REG_PUB_SETUP_STRING_DEFAULT[] = "NotSet";
constexpr int REG_PUB_SETUP_INT_DEFAULT = -1;
constexpr char REG_PUB_SETUP_INT_FORMAT[] = "%s=%d";
constexpr char REG_PUB_SETUP_STR_FORMAT[] = "%s=%s";

constexpr char REG_PUB_SETUP_VAL_GUID[] = "GUID";
constexpr char REG_PUB_SETUP_VAL_PUBLISH_NAME[] = "PublisherName";
constexpr char REG_PUB_SETUP_VAL_PUBLISH_MODE[] = "PublishMode";
constexpr char REG_PUB_SETUP_VAL_STK1[] = "Stacker1";
constexpr char REG_PUB_SETUP_VAL_STK2[] = "Stacker2";
constexpr char REG_PUB_SETUP_VAL_STK3[] = "Stacker3";
constexpr char REG_PUB_SETUP_VAL_STK4[] = "Stacker4";
constexpr char REG_PUB_SETUP_VAL_PRINTER_NAME[] = "PrinterName";
constexpr char REG_PUB_SETUP_VAL_TYPE[] = "PublisherConnectionType";
constexpr char REG_PUB_SETUP_VAL_USEDRIVE[] = "UseDrive";
constexpr char REG_PUB_SETUP_VAL_RETRYCOUNT[] = "RetryTimes";
constexpr char REG_PUB_SETUP_VAL_RETRYCOUNT_W[] = "RetryTimesW";
constexpr char REG_PUB_SETUP_VAL_RETRYCOUNT_R[] = "RetryTimesR";
constexpr char REG_PUB_SETUP_VAL_READBACKCONTINUE[] = "ReadBackContinue";
constexpr char REG_PUB_SETUP_VAL_ERRORMARK[] = "AddErrorMark";
constexpr char REG_PUB_SETUP_VAL_HOST[] = "PublisherURL";
constexpr char REG_PUB_SETUP_VAL_NPTYPE[] = "NPType";

// ---------------------------------------------------------------------------------------------------------------------
// Registry, under HKEY_LOCAL_MACHINE

constexpr char REG_PUB_KEY_ROOT[] = "Software\\ARVEN\\Ulmar Disc Maker";
constexpr char REG_PUB_CTRL_REGKEY_ROOT[] = "Software\\ARVEN\\Ulmar Disc Maker";
/// One sub key, named by its GUID, for each device that the service has detected.
constexpr char REG_PUB_DEVICE_KEY_ROOT[] = "Software\\ARVEN\\Ulmar Disc Maker\\Local";
/// Declared for the suite; the settings are stored in the setting files.
constexpr char REG_PUB_SETUP_KEY_ROOT[] = "Software\\ARVEN\\Ulmar Disc Maker\\RegPublisher";

// Values of the common key.
constexpr char REG_PUB_OPTION_VAL_C1ERROR[] = "C1Error";
constexpr char REG_PUB_OPTION_VAL_PIEsum8[] = "PIEsum8";
constexpr char REG_PUB_OPTION_VAL_RSER[] = "RSER";
constexpr char REG_PUB_OPTION_VAL_BURSTERROR[] = "BurstError";
constexpr char REG_PUB_OPTION_VAL_ERRORRATECONTINUECOUNT[] = "ErrorRateContinueCount";
constexpr char REG_PUB_OPTION_VAL_ERRORRATELOGFOLDER[] = "ErrorRateLogFolder";
constexpr char REG_PUB_OPTION_VAL_NOTIFY_JOBEND[] = "EndJobNotifyType";
constexpr char REG_PUB_OPTION_VAL_NOTIFY_STYLE[] = "NotifyStyleJobEnd";
constexpr char REG_PUB_OPTION_COMPATIMODE[] = "CompatiMode";
constexpr char REG_PUB_OPTION_VAL_OUTPUTLOG[] = "OutputLog";
constexpr char REG_PUB_OPTION_VAL_WORKFOLDER[] = "Workfolder";

// Values of a device key; the service writes them.
constexpr char REG_PUB_CTRL_VAL_CONNECTED[] = "Connected";
constexpr char REG_PUB_CTRL_DEVICETYPE[] = "DPType";
constexpr char REG_PUB_CTRL_USB_MODE[] = "USBMode";
constexpr char REG_PRN_REG_VAL_DRV1_SUPPORT_WR_SPEED[] = "DRV1SupportWriteSpeed";
constexpr char REG_PRN_REG_VAL_DRV2_SUPPORT_WR_SPEED[] = "DRV2SupportWriteSpeed";
constexpr char REG_PRN_REG_VAL_DRV_SUPPORT_WR_SPEED[] = "DRVSupportWriteSpeed"; ///< single-drive models
// Further values, for other programs of the suite.
constexpr char REG_PUB_CTRL_VAL_ATTACHSTATUS[] = "AttachStatus";
constexpr char REG_PRN_REG_VAL_PRT_PORT_NAME[] = "PRTPortName";
constexpr char REG_PRN_REG_VAL_DRV1_POSITION[] = "DRV1Position";
constexpr char REG_PRN_REG_VAL_DRV2_POSITION[] = "DRV2Position";
constexpr char REG_PRN_REG_VAL_DRV1_LIFE[] = "DRV1Life";
constexpr char REG_PRN_REG_VAL_DRV2_LIFE[] = "DRV2Life";
constexpr char REG_PRN_REG_VAL_DRV1_SUPPORT_CONFIRM[] = "DRV1SupportConfirm";
constexpr char REG_PRN_REG_VAL_DRV2_SUPPORT_CONFIRM[] = "DRV2SupportConfirm";
constexpr char REG_PRN_REG_VAL_DRV_SUPPORT_CONFIRM[] = "DRVSupportConfirm";

// ---------------------------------------------------------------------------------------------------------------------
// Write speed strings: "type:speed,speed;type:speed"

constexpr char PUBMGR_STR_SEPARATOR_WRITESPEEDSET = ';';
constexpr char PUBMGR_STR_SEPARATOR_DISCTYPE = ':';
constexpr char PUBMGR_STR_SEPARATOR_WRITESPEED = ',';

constexpr char PUBMGR_STR_DISCTYPE_CDR[] = "CD-R";
constexpr char PUBMGR_STR_DISCTYPE_DVDR[] = "DVD-R";
constexpr char PUBMGR_STR_DISCTYPE_DVDRDL[] = "DVD-R DL";
constexpr char PUBMGR_STR_DISCTYPE_DVDPLUSR[] = "DVD+R";
constexpr char PUBMGR_STR_DISCTYPE_DVDPLUSRDL[] = "DVD+R DL";
constexpr char PUBMGR_STR_DISCTYPE_BDR[] = "BD-R";
constexpr char PUBMGR_STR_DISCTYPE_BDRDL[] = "BD-R DL";
constexpr char PUBMGR_STR_DISCTYPE_BDRTL[] = "BD-R TL";
constexpr char PUBMGR_STR_DISCTYPE_BDRQL[] = "BD-R QL";

// ---------------------------------------------------------------------------------------------------------------------
// Folders of the common settings

constexpr char PUBMGR_STR_WORKFOLDER[] = "UlmarDiscMakerWork";
constexpr char PUBMGR_STR_WORKFOLDERADDNUM[] = "UlmarDiscMakerWork %d";
constexpr char PUBMGR_STR_FOLDER_LOG[] = "LOG";
constexpr char PUBMGR_STR_EXT_LOG[] = "log";

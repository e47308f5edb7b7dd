// Constants and records of the control service: its pipe, its controls, its payload records and their values.
//
// Records are raw memory images, little-endian. Texts are NUL-terminated in fixed fields (a peer may omit the
// NUL).
#pragma once

#include "Win_def.h"

constexpr char ARV_PC_SERVICE_NAME[] = "ARVEN Ulmar Disc Control Service";
constexpr char ARV_PC_PIPE_NAME[] = "\\\\.\\pipe\\ARVEN RT-300 Service Control";

constexpr char ARV_PC_PRINTERDRIVER_NAME[] = "ARVEN RT-300PRN";
constexpr char ARV_PC_PRINTERDRIVER_NAME_AP[] = "ARVEN RT-300APPRN";
constexpr char ARV_PC_PRINTERDRIVER_NAME_SD[] = "ARVEN RT-30PRN";

// ---------------------------------------------------------------------------------------------------------------------
// Control ids

constexpr ULONG ARV_PC_JOB_STOP = 1;
constexpr ULONG ARV_PC_JOB_CONTINUE = 2;
constexpr ULONG ARV_PC_JOB_CANCEL = 3;
constexpr ULONG ARV_PC_GET_JOB_STATUS = 4;
constexpr ULONG ARV_PC_GET_ALD_STATUS = 5;
constexpr ULONG ARV_PC_GET_INK_STATUS = 6;
constexpr ULONG ARV_PC_GET_DRV_STATUS = 7;
constexpr ULONG ARV_PC_GET_PRT_STATUS = 8;
constexpr ULONG ARV_PC_GET_STK_STATUS = 9;
constexpr ULONG ARV_PC_GET_ALD_INFO = 10;
constexpr ULONG ARV_PC_GET_DRV_INFO = 11;
constexpr ULONG ARV_PC_GET_PRT_INFO = 12;
constexpr ULONG ARV_PC_GET_JOB_NUM = 13;
constexpr ULONG ARV_PC_GET_ESTIMATE_CIRCULATION = 14;
constexpr ULONG ARV_PC_GET_PRT_NAME = 15;
constexpr ULONG ARV_PC_NOTIFY_CHANGE = 16;
constexpr ULONG ARV_PC_GET_STACKER_DISC_TYPE = 17;
constexpr ULONG ARV_PC_GET_PUBLISH_MODE = 18;
constexpr ULONG ARV_PC_GET_DEVICE_STATUS = 19;
constexpr ULONG ARV_PC_NOTIFY_READ = 20;
constexpr ULONG ARV_PC_SET_PUBLISH_MODE = 21;
constexpr ULONG ARV_PC_GET_FATAL_ERR_CODE = 22;
constexpr ULONG ARV_PC_DELETE_DISC_IMAGE = 23;
constexpr ULONG ARV_PC_GET_NOTIFY_STATUS = 24;
constexpr ULONG ARV_PC_UPDATE_WORKING_FOLDER = 25;
constexpr ULONG ARV_PC_GET_ABILITY_PNUM_PRECISION = 26;
constexpr ULONG ARV_PC_GET_MAINTENANCEBOX_STATUS = 27;
constexpr ULONG ARV_PC_GET_MAINTENANCEINFO = 28;
constexpr ULONG ARV_PC_JOB_MOVE = 29;
constexpr ULONG ARV_PC_NOTIFY_CHANGE_ERRORRATE_TIMES = 30;
constexpr ULONG ARV_PC_GET_USB_MODE = 31;
constexpr ULONG ARV_PC_GET_UNIQUE_STRING_FOR_ID = 32;

// Parameters of ARV_PC_GET_JOB_STATUS; they may be combined by OR.
constexpr ULONG ARV_PC_GET_PROCESSING_JOB = 1;
constexpr ULONG ARV_PC_GET_COMPLETE_JOB = 2;

// Parameter of ARV_PC_JOB_MOVE.
constexpr ULONG ARV_PC_JOBMOVE_PRIORITY_HIGH = 1;

// ---------------------------------------------------------------------------------------------------------------------
// Frames

struct ST_PC_SERVICE_CONTROL
{
    unsigned long ulControlID;
    char acPublisherName[129]; ///< regist id; all zero if none
    char acJobID[256];         ///< all zero if none
    unsigned long ulSubParam;
};
static_assert(sizeof(ST_PC_SERVICE_CONTROL) == 408);

/// Followed by `ulDataLength` bytes of payload.
struct ST_PC_RESPONSE_HEADER
{
    unsigned long ulResponseID; ///< the control id of the request
    unsigned long ulResultCode; ///< 0 or an ARV_PC_ERROR_* value
    unsigned long ulDataLength;
};
static_assert(sizeof(ST_PC_RESPONSE_HEADER) == 24);

// ---------------------------------------------------------------------------------------------------------------------
// Payload records

struct ST_PC_JOB_STATUS
{
    char acJobID[256];
    char acJobName[256];
    unsigned long ulJobStatus; ///< ARV_PC_JOB_WAITING and following
    unsigned long ulFactor;    ///< ARV_PC_ERROR_* value
    unsigned long ulCompletionNumber;
    unsigned long ulJobIndex;
    unsigned long ulEstimateTime;
    unsigned long ulRemainingTime;
    unsigned long ulErrorNumber;
    unsigned long ulPublicationNumber;
    unsigned long ulImproperNumber;
    char acPublicationPerson[65];
    char acApprovalPerson[65];
    unsigned long ulJobType;     ///< ARV_PC_JOB_TYPE_* value
    unsigned long ulSource;      ///< sum of ARV_PC_STACKER*
    unsigned long ulDestination; ///< sum of ARV_PC_STACKER*
    char acPlugInAppID[41];
    unsigned long ulHistory;
    unsigned long ulPubMode; ///< enPublishMode
    char acReadErrorPath[260];
    unsigned long ulReadResult; ///< ARV_PC_READ_* bits
    unsigned long ulStacker3;
};
static_assert(sizeof(ST_PC_JOB_STATUS) == 1088);

/// Each a percentage or a value of the ink table below.
struct ST_PC_INK_STATUS
{
    unsigned long ulCyan;
    unsigned long ulMagenta;
    unsigned long ulYellow;
    unsigned long ulLightCyan;
    unsigned long ulLightMagenta;
    unsigned long ulBlack;
};
static_assert(sizeof(ST_PC_INK_STATUS) == 48);

struct ST_PC_DRV_STATUS
{
    unsigned long ulDrvStatus; ///< ARV_PC_DRV_STATE_* bits
    char acPlugInAppID[41];
    unsigned long ulDrvProgressStatus;
};
static_assert(sizeof(ST_PC_DRV_STATUS) == 64);

struct ST_PC_ALD_INFO
{
    char acManufacture[32];
    char acDeviceName[32];
    char acFirmwareVersion[32];
    char acSerialNumber[32];
};
static_assert(sizeof(ST_PC_ALD_INFO) == 128);

struct ST_PC_PRT_INFO
{
    char acManufacture[32];
    char acDeviceName[32];
    char acFirmwareVersion[32];
    char acSerialNumber[32];
};
static_assert(sizeof(ST_PC_PRT_INFO) == 128);

struct ST_PC_DRV_INFO
{
    char acVenderName[32];
    char acProductInfo[32];
    char acFirmwareVersion[32];
    char acReleaseDate[32];
    char acSerialNumber[32];
};
static_assert(sizeof(ST_PC_DRV_INFO) == 160);

struct ST_PC_MAINTENANCE_INFO
{
    unsigned long ulPrintCount;
    unsigned long ulPrintCountMAX;
    unsigned long ulMaintenanceBox;
    unsigned long ulMaintenanceBoxLife;
    unsigned long ulCompleteCDNum;
    unsigned long ulCompleteDVDMRNum;
    unsigned long ulCompleteDVDPRNum;
    unsigned long ulCompleteDVDMRDLNum;
    unsigned long ulCompleteDVDPRDLNum;
    unsigned long ulCompleteBDNum;
    unsigned long ulCompleteBDDLNum;
    unsigned long ulDrive1TrayNum;
    unsigned long ulDrive1TrayNumLife;
    unsigned long ulDrive1WriteTimeCD;
    unsigned long ulDrive1WriteTimeCDLife;
    unsigned long ulDrive1WriteTimeDVD;
    unsigned long ulDrive1WriteTimeDVDLife;
    unsigned long ulDrive1WriteTimeBD;
    unsigned long ulDrive1WriteTimeBDLife;
    unsigned long ulDrive1WriteTimeTotal;
    unsigned long ulDrive1WriteTimeTotalLife;
    unsigned long ulDrive1ReadTimeTotal;
    unsigned long ulDrive1ReadTimeTotalLife;
    unsigned long ulDrive2TrayNum;
    unsigned long ulDrive2TrayNumLife;
    unsigned long ulDrive2WriteTimeCD;
    unsigned long ulDrive2WriteTimeCDLife;
    unsigned long ulDrive2WriteTimeDVD;
    unsigned long ulDrive2WriteTimeDVDLife;
    unsigned long ulDrive2WriteTimeBD;
    unsigned long ulDrive2WriteTimeBDLife;
    unsigned long ulDrive2WriteTimeTotal;
    unsigned long ulDrive2WriteTimeTotalLife;
    unsigned long ulDrive2ReadTimeTotal;
    unsigned long ulDrive2ReadTimeTotalLife;
    unsigned long ulPlugInUsed; ///< ARV_PC_PLUGIN_USED_* bits
    unsigned long ulDRV1Life;   ///< ARV_PC_DRV_LIFE* value
    unsigned long ulDRV2Life;   ///< ARV_PC_DRV_LIFE* value
    unsigned long ulCompleteDiscNum;
    char acUlmarUnitSN[32];
};
static_assert(sizeof(ST_PC_MAINTENANCE_INFO) == 344);

constexpr ULONG ARV_PC_MAINTENANCEINFO_UNKNOWN = 0xFFFFFFFF;
constexpr ULONG ARV_PC_PLUGIN_USED_DRIVE1 = 1;
constexpr ULONG ARV_PC_PLUGIN_USED_DRIVE2 = 2;
constexpr ULONG ARV_PC_DRV_LIFEUNSUPPORT = 0;
constexpr ULONG ARV_PC_DRV_LIFESUPPORT = 1;

// ---------------------------------------------------------------------------------------------------------------------
// Result codes

// The client's own failures.
constexpr int ERR_SERVICE_NOT_COMMUNICATION = -1;
constexpr int ERR_SERVICE_TIMEOUT = -2;
constexpr int ERR_SERVICE_CANCEL = -3;

constexpr int ARV_PC_SUCCESS = 0;

// Device and job errors.
constexpr int ARV_PC_ERROR_DISC_PICK = 1;
constexpr int ARV_PC_ERROR_DISC_DROP = 2;
constexpr int ARV_PC_ERROR_DISC_RELEASE = 3;
constexpr int ARV_PC_ERROR_DRV_TRAY = 4;
constexpr int ARV_PC_ERROR_PRT_TRAY = 5;
constexpr int ARV_PC_ERROR_ARM_MOVE = 6;
constexpr int ARV_PC_ERROR_DISC_EMPTY = 7;
constexpr int ARV_PC_ERROR_DISC_FULL = 8;
constexpr int ARV_PC_ERROR_DISC_COVER_OPEN = 9;
constexpr int ARV_PC_ERROR_INK_COVER_OPEN = 10;
constexpr int ARV_PC_ERROR_OFFLINE = 11;
constexpr int ARV_PC_ERROR_NO_DRIVE = 12;
constexpr int ARV_PC_ERROR_STK_SETTING = 13;
constexpr int ARV_PC_ERROR_DISC_CAPACITY = 14;
constexpr int ARV_PC_ERROR_DISC_TYPE = 15;
constexpr int ARV_PC_ERROR_DISC_NOT_BLANK = 16;
constexpr int ARV_PC_ERROR_JOB_FAILURE = 17;
constexpr int ARV_PC_ERROR_DRV_FAILURE = 18;
constexpr int ARV_PC_ERROR_INK_EMPTY = 19;
constexpr int ARV_PC_ERROR_DISC_WRITE = 20;
constexpr int ARV_PC_ERROR_PUB_NAME = 21;
constexpr int ARV_PC_ERROR_JOB_ID = 22;
constexpr int ARV_PC_ERROR_INVALID_CONTROL = 23;
constexpr int ARV_PC_ERROR_STACKER_REMOVED = 24;
constexpr int ARV_PC_ERROR_CONDITION_FAILURE = 25;
constexpr int ARV_PC_ERROR_PRT_FATAL = 26;
constexpr int ARV_PC_ERROR_DEVICE_NOT_SUPPORT_VER = 27;
constexpr int ARV_PC_ERROR_INK_PAD_OVERFLOW = 28;
constexpr int ARV_PC_ERROR_PRT_MAINTENANCE = 29;
constexpr int ARV_PC_ERROR_DISC_FAILURE = 30;
constexpr int ARV_PC_ERROR_INK_CARTRIDGE_REMOVED = 31;
constexpr int ARV_PC_ERROR_INK_CARTRIDGE_INVALID = 32;
constexpr int ARV_PC_ERROR_MULTIFEED_DRV = 33;
constexpr int ARV_PC_ERROR_MULTIFEED_PRN = 34;
constexpr int ARV_PC_ERROR_MORE_MEMORY = 35;
constexpr int ARV_PC_ERROR_UNKNOWN = 36;
constexpr int ARV_PC_ERROR_PUB_MODE = 37;
constexpr int ARV_PC_ERROR_DISC_IMAGE = 38;
constexpr int ARV_PC_ERROR_DISC_SUPPLY = 39;
constexpr int ARV_PC_ERROR_PRT_OFFLINE = 40;
constexpr int ARV_PC_ERROR_PRT_NAME_INVALID = 41;
constexpr int ARV_PC_ERROR_ALD_FATAL = 42;
constexpr int ARV_PC_ERROR_DRV_FATAL = 43;
constexpr int ARV_PC_ERROR_BATCH_CONDITION_FAILURE = 44;
constexpr int ARV_PC_ERROR_STACKER3_CONDITION = 45;
constexpr int ARV_PC_ERROR_STACKER4_OPEN = 46;
constexpr int ARV_PC_ERROR_STACKER_DISC_PICK = 48;
constexpr int ARV_PC_ERROR_STK_OVERFLOW = 49;
constexpr int ARV_PC_ERROR_DISC_UNKNOWN = 50;
constexpr int ARV_PC_ERROR_STACKER4_OPENED = 51;
constexpr int ARV_PC_ERROR_PUBMODE_WRITE = 52;
constexpr int ARV_PC_ERROR_PUBMODE_READ = 53;
constexpr int ARV_PC_ERROR_BATCH_DISC_FULL = 54;
constexpr int ARV_PC_ERROR_DEVICE_NOTFOUND = 55;
constexpr int ARV_PC_ERROR_MAINTENANCEBOX_FULL = 56;
constexpr int ARV_PC_ERROR_MAINTENANCEBOX_COVER_OPEN = 57;
constexpr int ARV_PC_ERROR_MAINTENANCEBOX_REMOVED = 58;
constexpr int ARV_PC_ERROR_MAINTENANCEBOX_INVALID = 59;
constexpr int ARV_PC_ERROR_PLUGIN_STARTUP = 60;
constexpr int ARV_PC_ERROR_PLUGIN_FAILURE = 61;
constexpr int ARV_PC_ERROR_PLUGIN_JOB_CANCEL = 62;
constexpr int ARV_PC_ERROR_PRN_MECHANISM = 63;
constexpr int ARV_PC_ERROR_ALD_MAINTENANCE = 64;
constexpr int ARV_PC_ERROR_PLUGIN_INVALID_INTERACTIVE = 65;
constexpr int ARV_PC_ERROR_PLUGIN_INVALID_RECORDED_DISC = 66;
constexpr int ARV_PC_ERROR_ERRORRATE_LOG = 67;
constexpr int ARV_PC_ERROR_DISC_BLANK = 68;
constexpr int ARV_PC_ERROR_DISC_ERRORRATE = 69;
constexpr int ARV_PC_ERROR_ERRORRATE_FAILURE = 70;
constexpr int ARV_PC_ERROR_DRV_CONNECTION = 71;
constexpr int ARV_PC_ERROR_UDREADER_INVALID = 72;
constexpr int ARV_PC_ERROR_DISC_READING = 73;

// Service errors.
constexpr int ARV_PC_ERROR_INTERNAL = 1000;
constexpr int ARV_PC_ERROR_FAILURE = 1001;
constexpr int ARV_PC_ERROR_BUFFER_OVERFLOW = 1002;
constexpr int ARV_PC_ERROR_DISC_OVERFLOW = 1003;
constexpr int ARV_PC_ERROR_BUSY = 1004;
constexpr int ARV_PC_ERROR_INITIALIZE = 1005;
constexpr int ARV_PC_ERROR_NO_EXIST = 1006;
constexpr int ARV_PC_ERROR_MEMORY_IO = 1007;
constexpr int ARV_PC_ERROR_CANCELLED = 1008;
constexpr int ARV_PC_ERROR_DEVICE_FATAL = 1010;
constexpr int ARV_PC_ERROR_UNKNOWN_DRIVE = 1011;
constexpr int ARV_PC_ERROR_DRV_HARDWARE = 1012;
constexpr int ARV_PC_ERROR_DRV_OTHER = 1013;
constexpr int ARV_PC_ERROR_CPT_NORMAL = 1015;
constexpr int ARV_PC_ERROR_DISC_NODISC = 1016;
constexpr int ARV_PC_ERROR_PREVENT_DISC_COVER_CLOSE = 1017;
constexpr int ARV_PC_ERROR_INTERRUPTED_DISC_COVER = 1018;
constexpr int ARV_PC_ERROR_NO_ITEM = 1019;
constexpr int ARV_PC_ERROR_NO_SCENARIO = 1020;
constexpr int ARV_PC_ERROR_UNSUPPORTED_COMMAND = 1021;
constexpr int ARV_PC_ERROR_HUB_NOT_CONNECTED = 1022;

// Hindrance causes.
constexpr int ARV_PC_ERROR_HINDRANCE_BASE = 2000;
constexpr int ARV_PC_ERROR_STK1_EMPTY = 2001;
constexpr int ARV_PC_ERROR_STK2_EMPTY = 2002;
constexpr int ARV_PC_ERROR_STK2_FULL = 2003;
constexpr int ARV_PC_ERROR_STK3_FULL = 2004;
constexpr int ARV_PC_ERROR_STK4_FULL = 2005;
constexpr int ARV_PC_ERROR_STK1_OVERFLOW = 2006;
constexpr int ARV_PC_ERROR_STK2_OVERFLOW = 2007;
constexpr int ARV_PC_ERROR_STK3_OVERFLOW = 2008;
constexpr int ARV_PC_ERROR_STK3_EXIST = 2009;
constexpr int ARV_PC_ERROR_STK1_REMOVED = 2010;
constexpr int ARV_PC_ERROR_STK2_REMOVED = 2011;
constexpr int ARV_PC_ERROR_STK3_REMOVED = 2012;
constexpr int ARV_PC_ERROR_BATCH_START = 2013;

// ---------------------------------------------------------------------------------------------------------------------
// Devices

constexpr ULONG ARV_PC_DEVICETYPE_MASK = 0xF;
constexpr ULONG ARV_PC_DEVICETYPE_NON = 0;
constexpr ULONG ARV_PC_DEVICETYPE_RT300 = 1;
constexpr ULONG ARV_PC_DEVICETYPE_RT300AP = 2;
constexpr ULONG ARV_PC_DEVICETYPE_RT30 = 3;
constexpr ULONG ARV_PC_DEVICETYPE_RT30BD = 4;
constexpr ULONG ARV_PC_DEVICETYPE_RT300MOD = 5;
constexpr ULONG ARV_PC_DEVICETYPE_RT30BDA = 6;
constexpr ULONG ARV_PC_DEVICETYPE_RT300II = 7;
constexpr ULONG ARV_PC_DEVICETYPE_RT30II = 8;
constexpr ULONG ARV_PC_DEVICETYPE_RT300III = 9;
constexpr ULONG ARV_PC_DEVICETYPE_DRV_UNKNOWN = 0; ///< unknown drive class

constexpr ULONG ARV_PC_CONNECTED = 1;

constexpr ULONG ARV_PC_USBMODE_DISCONNECT = 0;
constexpr ULONG ARV_PC_USBMODE_SUPER = 3;
constexpr ULONG ARV_PC_USBMODE_UNKNOWN = 16;

// ---------------------------------------------------------------------------------------------------------------------
// Jobs

constexpr ULONG ARV_PC_JOB_WAITING = 1;
constexpr ULONG ARV_PC_JOB_RUNNING = 2;
constexpr ULONG ARV_PC_JOB_CANCEL_PENDING = 3;
constexpr ULONG ARV_PC_JOB_PAUSE_PENDING = 4;
constexpr ULONG ARV_PC_JOB_PAUSED = 5;
constexpr ULONG ARV_PC_JOB_STOP_PENDING = 6;
constexpr ULONG ARV_PC_JOB_STOPPED = 7;
constexpr ULONG ARV_PC_JOB_CANCELLED = 8;
constexpr ULONG ARV_PC_JOB_FINISHED = 9;

constexpr ULONG ARV_PC_JOB_TYPE_WRITE = 1;
constexpr ULONG ARV_PC_JOB_TYPE_PRINT = 2;
constexpr ULONG ARV_PC_JOB_TYPE_ERRORRATE = 16;
constexpr ULONG ARV_PC_JOB_TYPE_UNCONVEYANCE = 0x80000000;
constexpr ULONG ARV_PC_JOB_TYPE_CLEANING = 0x80000003;
constexpr ULONG ARV_PC_JOB_TYPE_NOZZLECHECK = 4;
constexpr ULONG ARV_PC_JOB_TYPE_GAPADJUSTMENT_CONVEYANCE = 5;
constexpr ULONG ARV_PC_JOB_TYPE_GAPADJUSTMENT_UNCONVEYANCE = 0x80000006;
constexpr ULONG ARV_PC_JOB_TYPE_POSITIONOFFSET_CONVEYANCE = 7;
constexpr ULONG ARV_PC_JOB_TYPE_POSITIONOFFSET_UNCONVEYANCE = 0x80000008;
constexpr ULONG ARV_PC_JOB_TYPE_READ = 9;

// Source and destination.
constexpr ULONG ARV_PC_NOSETTING = 0;
constexpr ULONG ARV_PC_STACKER1 = 1;
constexpr ULONG ARV_PC_STACKER2 = 2;
constexpr ULONG ARV_PC_STACKER3 = 4;
constexpr ULONG ARV_PC_STACKER4 = 8;

// Warnings.
constexpr ULONG ARV_PC_WARN_COVER_OPEN = 0x01000000;
constexpr ULONG ARV_PC_WARN_INVALID_DISC = 0x02000000;
constexpr ULONG ARV_PC_WARN_DISC_WRITE = 0x04000000;
constexpr ULONG ARV_PC_WARN_STACKER4_OPEN = 0x08000000;
constexpr ULONG ARV_PC_WARN_INVALID_RECORDED_DISC = 0x10000000;
constexpr ULONG ARV_PC_WARN_DISC_ERRORRATE = 0x20000000;

// Read results: one bit each, from the first to the last.
constexpr ULONG ARV_PC_READ_DISC_BLANK = 1;
constexpr ULONG ARV_PC_READ_DATA_FAILURE = 0x20000;

// ---------------------------------------------------------------------------------------------------------------------
// Auto loader status

constexpr ULONG ARV_PC_ALD_STATE_STACKER1_REMOVED = 0x1;
constexpr ULONG ARV_PC_ALD_STATE_STACKER2_REMOVED = 0x2;
constexpr ULONG ARV_PC_ALD_STATE_STACKER3_REMOVED = 0x4;
constexpr ULONG ARV_PC_ALD_STATE_STACKER4_REMOVED = 0x8;
constexpr ULONG ARV_PC_ALD_STATE_STACKER4_OPEN = 0x8;
constexpr ULONG ARV_PC_ALD_STATE_DISC_COVER_OPEN = 0x10;
constexpr ULONG ARV_PC_ALD_STATE_INK_COVER_OPEN = 0x20;
constexpr ULONG ARV_PC_ALD_STATE_POWER_OFF = 0x40;
constexpr ULONG ARV_PC_ALD_STATE_PRT_FATAL_ERROR = 0x80;
constexpr ULONG ARV_PC_ALD_STATE_PRT_MAINTENANCE = 0x100;
constexpr ULONG ARV_PC_ALD_STATE_PRT_ERROR = 0x200;
constexpr ULONG ARV_PC_ALD_STATE_STACKER1_OVERFLOW = 0x400;
constexpr ULONG ARV_PC_ALD_STATE_STACKER2_OVERFLOW = 0x800;
constexpr ULONG ARV_PC_ALD_STATE_AUTOMATION = 0x1000;
constexpr ULONG ARV_PC_ALD_STATE_ALD_FATAL_ERROR = 0x2000;
constexpr ULONG ARV_PC_ALD_STATE_ALD_MAINTENANCE_ERROR = 0x4000;
constexpr ULONG ARV_PC_ALD_STATE_ALD_ERROR = 0x8000;
constexpr ULONG ARV_PC_ALD_STATE_STACKER3_OVERFLOW = 0x10000;
constexpr ULONG ARV_PC_ALD_STATE_INITIALIZE = 0x20000;
constexpr ULONG ARV_PC_ALD_STATE_RECOVER_DISC_COVER_OPEN = 0x40000;
constexpr ULONG ARV_PC_ALD_STATE_FINALIZE = 0x80000;
constexpr ULONG ARV_PC_ALD_STATE_INITIALIZE_SUSPEND = 0x100000;
constexpr ULONG ARV_PC_ALD_STATE_RECOVER_DISC_COVER_OPEN_SUSPEND = 0x200000;
constexpr ULONG ARV_PC_ALD_STATE_STK_DISC_PICK = 0x400000;
constexpr ULONG ARV_PC_ALD_STATE_MB_OUT = 0x800000;
constexpr ULONG ARV_PC_ALD_STATE_MB_COVER_OPEN = 0x1000000;
constexpr ULONG ARV_PC_ALD_STATE_MB_FULL = 0x2000000;
constexpr ULONG ARV_PC_ALD_STATE_ALD_MAINTENANCE_WARNING = 0x4000000;
constexpr ULONG ARV_PC_ALD_STATE_UNDER_MAINTENANCE = 0x8000000;
constexpr ULONG ARV_PC_ALD_STATE_ERROR_DISC_MANAGEMENT = 0x10000000;
constexpr ULONG ARV_PC_ALD_STATE_FAN_ERROR = 0x20000000;

// ---------------------------------------------------------------------------------------------------------------------
// Printer status

constexpr ULONG PRT_STATE_NORMALMASK = 0xFF;
constexpr ULONG PRT_STATE_WARNINGMASK = 0xFF00;
constexpr ULONG PRT_STATE_ERRORMASK = 0xFFFF0000;

constexpr ULONG ARV_PC_PRT_STATE_IDLE = 1;
constexpr ULONG ARV_PC_PRT_STATE_CONVEYING = 2;
constexpr ULONG ARV_PC_PRT_STATE_PRINTING = 4;
constexpr ULONG ARV_PC_PRT_STATE_PAUSE = 8;
constexpr ULONG ARV_PC_PRT_STATE_CLEANING = 0x10;
constexpr ULONG ARV_PC_PRT_STATE_DRYING = 0x20;
constexpr ULONG ARV_PC_PRT_STATE_ERROR = 0x40;
constexpr ULONG ARV_PC_PRT_STATE_BUSY = 0x80;
constexpr ULONG ARV_PC_PRT_STATE_WARN_MAINTENANCE = 0x100;
constexpr ULONG ARV_PC_PRT_STATE_WARN_INKPAD_FULL = 0x200;
constexpr ULONG ARV_PC_PRT_STATE_WARN_MECHANISM = 0x400;
constexpr ULONG ARV_PC_PRT_STATE_ERROR_OFFLINE = 0x10000;
constexpr ULONG ARV_PC_PRT_STATE_ERROR_INKPAD_OVERFLOW = 0x20000;
constexpr ULONG ARV_PC_PRT_STATE_ERROR_MAINTENANCE = 0x40000;
constexpr ULONG ARV_PC_PRT_STATE_ERROR_FATAL = 0x80000;
constexpr ULONG ARV_PC_PRT_STATE_ERROR_DISC_COVER_OPEN = 0x100000;
constexpr ULONG ARV_PC_PRT_STATE_ERROR_INK_COVER_OPEN = 0x200000;
constexpr ULONG ARV_PC_PRT_STATE_ERROR_INK_OUT = 0x400000;
constexpr ULONG ARV_PC_PRT_STATE_ERROR_MB_COVER_OPEN = 0x800000;
constexpr ULONG ARV_PC_PRT_STATE_ERROR_MB_OUT = 0x1000000;
constexpr ULONG ARV_PC_PRT_STATE_ERROR_MB_FULL = 0x2000000;
constexpr ULONG ARV_PC_PRT_STATE_ERROR_MECHANISM = 0x4000000;
// No printer reports these: the values are 0, so no test for them is true.
constexpr ULONG ARV_PC_PRT_STATE_WARN_OVERHEAT = 0;
constexpr ULONG ARV_PC_PRT_STATE_ERROR_PAPER_JAM = 0;
constexpr ULONG ARV_PC_PRT_STATE_ERROR_TRAY_OUT = 0;
constexpr ULONG ARV_PC_PRT_STATE_ERROR_PAPER_OUT = 0;

// ---------------------------------------------------------------------------------------------------------------------
// Drive status

constexpr ULONG ARV_PC_DRV_STATE_IDLE = 1;
constexpr ULONG ARV_PC_DRV_STATE_CONTAINING = 2;
constexpr ULONG ARV_PC_DRV_STATE_WRITING = 4;
constexpr ULONG ARV_PC_DRV_STATE_VERIFYING = 8;
constexpr ULONG ARV_PC_DRV_STATE_ERROR = 0x10;
constexpr ULONG ARV_PC_DRV_STATE_NOTUSE = 0x20;
constexpr ULONG ARV_PC_DRV_STATE_CONVEYING = 0x40;
constexpr ULONG ARV_PC_DRV_STATE_PAUSE = 0x80;
constexpr ULONG ARV_PC_DRV_STATE_PLUGIN_EXECUTE = 0x100;
constexpr ULONG ARV_PC_DRV_STATE_ERRORRATE_MEASURING = 0x200;
constexpr ULONG ARV_PC_DRV_STATE_READING = 0x400;

// ---------------------------------------------------------------------------------------------------------------------
// Ink and maintenance box: values beside the percentage

constexpr ULONG ARV_PC_INK_CARTRIDGE_REMOVED = 0x100;
constexpr ULONG ARV_PC_INK_CARTRIDGE_INVALID = 0x200;
constexpr ULONG ARV_PC_INK_UNKNOWN = 0x400;
constexpr ULONG ARV_PC_NON_STANDARD_INK = 0x8000000;
constexpr ULONG ARV_PC_INK_NEAR_EMPTY = 0x80000000; ///< combined with the percentage by OR

constexpr ULONG ARV_PC_MAINTENANCEBOX_REMOVED = 0x100;
constexpr ULONG ARV_PC_MAINTENANCEBOX_INVALID = 0x200;
constexpr ULONG ARV_PC_MAINTENANCEBOX_UNKNOWN = 0x400;
constexpr ULONG ARV_PC_NON_STANDARD_MAINTENANCEBOX = 0x8000000;
constexpr ULONG ARV_PC_MAINTENANCEBOX_NEAR_FULL = 0x80000000; ///< combined with the percentage by OR

// ---------------------------------------------------------------------------------------------------------------------
// Stackers, prints, notifications

// A disc quantity of 0 to 100, or one of these.
constexpr ULONG ARV_PC_STK_STATUS_EMPTY = 0;
constexpr ULONG ARV_PC_STK_STATUS_FULL = 100;
constexpr ULONG ARV_PC_STK_STATUS_UNKNOWN = 101;
constexpr ULONG ARV_PC_STK_STATUS_NOT_FULL = 102;
constexpr ULONG ARV_PC_STK_STATUS_OVERFLOW = 103;
constexpr ULONG ARV_PC_STK_STATUS_SUPPLY = 0x80000000; ///< set by OR for the stacker that supplies discs

constexpr ULONG ARV_PC_CIRCULATION_UNKNOWN = 0xFFFF; ///< estimated prints

constexpr ULONG ARV_PC_NOTIFY_ARM_ACTIVE = 1;
constexpr ULONG ARV_PC_NOTIFY_DRV1_ACTIVE = 2;
constexpr ULONG ARV_PC_NOTIFY_DRV2_ACTIVE = 4;
constexpr ULONG ARV_PC_NOTIFY_PRT_ACTIVE = 8;
constexpr ULONG ARV_PC_NOTIFY_DISC_WORKING = 16;

constexpr ULONG ARV_PC_PNUM_PRECISION_LOW = 0;
constexpr ULONG ARV_PC_PNUM_PRECISION_HIGH = 1;

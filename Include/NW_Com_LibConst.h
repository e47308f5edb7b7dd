// Public constants of the network library.
#pragma once

#include "Win_def.h"

// ---------------------------------------------------------------------------------------------------------------------
// Result codes: from 1 on those of the client, from 8000 on those of the server.

constexpr DWORD NCL_SUCCESS = 0;
constexpr DWORD NCL_ERR_PARAMETER = 1;
constexpr DWORD NCL_ERR_GET_MEMORY = 2;
constexpr DWORD NCL_ERR_SOCK_INITIALIZATION = 3;
constexpr DWORD NCL_ERR_SOCK_CONNECTION = 4;
constexpr DWORD NCL_ERR_SSL_INITIALIZATION = 5;
constexpr DWORD NCL_ERR_SSL_CONNECTION = 6;
constexpr DWORD NCL_ERR_COMMUNICATION = 7;
constexpr DWORD NCL_ERR_NETWORK_TIMEOUT = 8;
constexpr DWORD NCL_ERR_CONNECTION_CLOSE = 9;
constexpr DWORD NCL_ERR_BUF_SIZE = 10;
constexpr DWORD NCL_ERR_PROCESS_CREATE = 11;
constexpr DWORD NCL_ERR_CANCEL_SENDING = 12;
constexpr DWORD NCL_ERR_INVALID_COMM_SPEC = 13;
constexpr DWORD NCL_ERR_CALC_HASH = 14;

constexpr DWORD NCL_ERR_SERVER_OTHER = 8000;
constexpr DWORD NCL_ERR_APP_VERSION = 8001;
constexpr DWORD NCL_ERR_DEVICE_OFFLINE = 8002;
constexpr DWORD NCL_ERR_AUTHENTICATION = 8003;
constexpr DWORD NCL_ERR_PASSWORD_EXPIRED = 8004;
constexpr DWORD NCL_ERR_REGISTRATION_BUSY = 8005;
constexpr DWORD NCL_ERR_HARD_DISC_CAPACITY = 8006;
constexpr DWORD NCL_ERR_SERVER_JOB_ID = 8007;
constexpr DWORD NCL_ERR_JOB_FILE_INVALID = 8008;
constexpr DWORD NCL_ERR_PERMISSION_DENIED = 8009;
constexpr DWORD NCL_ERR_USER_NOT_REGISTERED = 8010;
constexpr DWORD NCL_ERR_SERVER_BUSY = 8011;
constexpr DWORD NCL_ERR_SPOOL_JOB_LIMIT = 8012;

// ---------------------------------------------------------------------------------------------------------------------
// Information types of a device with text values.

constexpr DWORD NCL_DIT_SERIAL_NO_OF_ALD = 0;
constexpr DWORD NCL_DIT_VERSION_OF_ALD = 1;
constexpr DWORD NCL_DIT_VERSION_OF_PRN = 2;
constexpr DWORD NCL_DIT_VERSION_OF_DRV1 = 3;
constexpr DWORD NCL_DIT_VERSION_OF_DRV2 = 4;
constexpr DWORD NCL_DIT_VERSION_OF_SERVER_APP = 5;
constexpr DWORD NCL_DIT_VERSION_OF_WEB_APP = 6;
constexpr DWORD NCL_DIT_VERSION_OF_SECURITY = 7;
constexpr DWORD NCL_DIT_REMAINDER_OF_HARD_DISC = 8; ///< free bytes as decimal text
constexpr DWORD NCL_DIT_CAPACITY_OF_HARD_DISC = 9;
constexpr DWORD NCL_DIT_WRITE_SPEED_OF_DRV1 = 10;
constexpr DWORD NCL_DIT_WRITE_SPEED_OF_DRV2 = 11;
constexpr DWORD NCL_DIT_NAME_OF_PRN = 12;
constexpr DWORD NCL_DIT_NAME_OF_DRV1 = 13;
constexpr DWORD NCL_DIT_NAME_OF_DRV2 = 14;

// ---------------------------------------------------------------------------------------------------------------------
// Kinds and modes of a publisher server.

constexpr DWORD NCL_NPTYPE_UNKNOWN = 0;
constexpr DWORD NCL_NPTYPE_300N = 1;
constexpr DWORD NCL_NPTYPE_300NII = 2;
constexpr DWORD NCL_NPTYPE_300NII_BDXL = 3;

constexpr DWORD NCL_MODE_SECURITY = 0;
constexpr DWORD NCL_MODE_OUTPUT_CONTROL = 1;
constexpr DWORD NCL_MODE_NORMAL = 2;
constexpr DWORD NCL_MODE_OUTPUT = 3;
constexpr DWORD NCL_MODE_BATCH = 4;

// ---------------------------------------------------------------------------------------------------------------------
// Information types of a device with numeric values, and these values.

constexpr DWORD NCL_DIT_DRV_USED = 0;
constexpr DWORD NCL_DIT_DRV_CONFIRM = 1;
constexpr DWORD NCL_DIT_WRITE_ERR_RETRY_COUNT = 2;
constexpr DWORD NCL_DIT_PRINT_ERR_DISC_MARK = 3;
constexpr DWORD NCL_DIT_STACKER1_DISC_TYPE = 4;
constexpr DWORD NCL_DIT_STACKER2_DISC_TYPE = 5;
constexpr DWORD NCL_DIT_STACKER3_DISC_TYPE = 6;
constexpr DWORD NCL_DIT_BATCH_JOB_SUSPEND = 7;
constexpr DWORD NCL_DIT_SUPPORT_BDXL = 8;

constexpr DWORD NCL_DRV_USED_ALL = 0;
constexpr DWORD NCL_DRV_USED_DRIVE1 = 1;
constexpr DWORD NCL_DRV_USED_DRIVE2 = 2;

constexpr DWORD NCL_DRV_CONFIRM_VERIFY = 1;
constexpr DWORD NCL_DRV_CONFIRM_COMPARE = 2;

constexpr DWORD NCL_PRINT_DISC_ERR_MARK_OFF = 0;
constexpr DWORD NCL_PRINT_DISC_ERR_MARK_ON = 1;

constexpr DWORD NCL_SUPPORT_BDXL_NO = 0;
constexpr DWORD NCL_SUPPORT_BDXL_YES = 1;

// Disc types of a stacker.
constexpr DWORD NCL_STACKER_DISCHARGE = 0;
constexpr DWORD NCL_STACKER_CD_R = 1;
constexpr DWORD NCL_STACKER_DVD_MINUS_R = 2;
constexpr DWORD NCL_STACKER_DVD_MINUS_R_DL = 3;
constexpr DWORD NCL_STACKER_DVD_PLUS_R = 4;
constexpr DWORD NCL_STACKER_DVD_PLUS_R_DL = 5;
constexpr DWORD NCL_STACKER_DVD = 6;
constexpr DWORD NCL_STACKER_DVD_DL = 7;
constexpr DWORD NCL_STACKER_BD = 8;
constexpr DWORD NCL_STACKER_BD_DL = 9;
constexpr DWORD NCL_STACKER_BD_TL = 10;
constexpr DWORD NCL_STACKER_BD_QL = 11;
constexpr DWORD NCL_STACKER_DONTUSE = 999;

// ---------------------------------------------------------------------------------------------------------------------
// Status of a device. In all flags 1 means that the condition holds.

/// The parts of a device, as the server numbers them.
enum DeviceStatusType
{
    DEV_STATUS_TYPE_ALD = 0,
    DEV_STATUS_TYPE_STACKER = 1,
    DEV_STATUS_TYPE_DRV = 2,
    DEV_STATUS_TYPE_PRN = 3,
    DEV_STATUS_TYPE_INK = 4,
    DEV_STATUS_TYPE_DEV_FATAL_ERR = 5,
    DEV_STATUS_TYPE_NOTIFY = 6,
    DEV_STATUS_TYPE_ASB = 7,
    DEV_STATUS_TYPE_PRN_ST = 8,
    DEV_STATUS_TYPE_RETIRED01 = 9, ///< requested by no operation
    DEV_STATUS_TYPE_MAINTENANCE_INFO = 10,
    DEV_STATUS_TYPE_DRV_EX = 11
};

/// The autoloader.
struct ALDStatus
{
    BOOL bStacker1Removed;
    BOOL bStacker2Removed;
    BOOL bStacker3Removed;
    BOOL bStacker4Opened;
    BOOL bDiscCoverOpen;
    BOOL bInkCoverOpen;
    BOOL bStacker1Overflow;
    BOOL bStacker2Overflow;
    BOOL bStacker3Overflow;
    BOOL bDetectDiscQuantity;
    BOOL bStopAtDiscCoverClose;
    BOOL bElectronLock;
    BOOL bStackerDiscPickError;
    BOOL bOutputDisc;
    BOOL bStacker2Operated;
    BOOL bStacker1_2TotalOverflow;
    BOOL bBackup;
    BOOL bRestore;
    BOOL bDiscNoAdjustment;
    BOOL bFanLow;
    BOOL bStacker2DiscLeftAtPowerOn;
    BOOL bUnexpectedPowerOff;
};

// Special disc quantities of a stacker. The others, 1 to 99, are the quantity itself.
constexpr DWORD NCL_STACKER_STATUS_EMPTY = 0;
constexpr DWORD NCL_STACKER_STATUS_FULL = 100;
constexpr DWORD NCL_STACKER_STATUS_UNKNOWN = 101;
constexpr DWORD NCL_STACKER_STATUS_NOT_FULL = 102;
constexpr DWORD NCL_STACKER_STATUS_OVERFLOW = 103;

struct StackerStatusBase
{
    DWORD dwDiscQuantity; ///< 0 to 100, or an NCL_STACKER_STATUS_ value
    BOOL bSupply;
};

struct StackerStatus
{
    StackerStatusBase Stacker1;
    StackerStatusBase Stacker2;
    StackerStatusBase Stacker3;
    StackerStatusBase Stacker4;
};

constexpr DWORD NCL_DRV_STATUS_IDLE = 0;
constexpr DWORD NCL_DRV_STATUS_WRITING = 1;
constexpr DWORD NCL_DRV_STATUS_WRITING_COMFIRMATION = 2;
constexpr DWORD NCL_DRV_STATUS_ERROR = 3;
constexpr DWORD NCL_DRV_STATUS_NOTUSE = 4;
constexpr DWORD NCL_DRV_STATUS_CONVEYING = 5;
constexpr DWORD NCL_DRV_STATUS_PAUSE = 6;

struct DrvStatusBase
{
    DWORD dwStatus; ///< an NCL_DRV_STATUS_ value
};

struct DrvStatus
{
    DrvStatusBase Drv1;
    DrvStatusBase Drv2;
};

struct DrvStatusBaseEx
{
    DWORD dwStatus; ///< an NCL_DRV_STATUS_ value
    DWORD dwProgress;
};

struct DrvStatusEx
{
    DrvStatusBaseEx Drv1;
    DrvStatusBaseEx Drv2;
};

constexpr DWORD NCL_PRN_STATUS_IDLE = 0;
constexpr DWORD NCL_PRN_STATUS_CONVEYING = 1;
constexpr DWORD NCL_PRN_STATUS_PRINTING = 2;
constexpr DWORD NCL_PRN_STATUS_CLEANING = 3;
constexpr DWORD NCL_PRN_STATUS_DRYING = 4;
constexpr DWORD NCL_PRN_STATUS_PAUSE = 5;

struct PrnStatus
{
    DWORD dwStatus; ///< an NCL_PRN_STATUS_ value
    BOOL bInkPadOverflowWarn;
};

// Special values of an ink cartridge.
constexpr DWORD NCL_INK_CARTRIDGE_REMOVED = 101;
constexpr DWORD NCL_INK_CARTRIDGE_INVALID = 102;
constexpr DWORD NCL_INK_UNKNOWN = 103;
constexpr DWORD NCL_INK_CARTRIDGE_NON_STANDARD = 104;

struct InkStatusBase
{
    DWORD dwInkCartridge; ///< remaining amount from 0 to 100, or a value above
    BOOL bInkNearEnd;
};

struct InkStatus
{
    InkStatusBase Black;
    InkStatusBase Cyan;
    InkStatusBase LightCyan;
    InkStatusBase Magenta;
    InkStatusBase LightMagenta;
    InkStatusBase Yellow;
};

constexpr DWORD NCL_FATAL_ERR_NONE = 0;
constexpr DWORD NCL_FATAL_ERR_DISC_PICK = 1;
constexpr DWORD NCL_FATAL_ERR_DISC_DROP = 2;
constexpr DWORD NCL_FATAL_ERR_DISC_RELEASE = 3;
constexpr DWORD NCL_FATAL_ERR_DRV_TRAY = 4;
constexpr DWORD NCL_FATAL_ERR_PRN_TRAY = 5;
constexpr DWORD NCL_FATAL_ERR_ARM_MOVE = 6;
constexpr DWORD NCL_FATAL_ERR_CONDITION_FAILURE = 7;
constexpr DWORD NCL_FATAL_ERR_PRN_FATAL = 8;
constexpr DWORD NCL_FATAL_ERR_INK_PAD_OVERFLOW = 9;
constexpr DWORD NCL_FATAL_ERR_PRN_MANTENANCE = 10;
constexpr DWORD NCL_FATAL_ERR_DISC_SUPPLY = 11;
constexpr DWORD NCL_FATAL_ERR_ALD_FATAL = 12;
constexpr DWORD NCL_FATAL_ERR_DRV_FATAL = 13;

struct DeviceFatalError
{
    DWORD dwDevStatus; ///< an NCL_FATAL_ERR_ value
};

/// The parts in operation.
struct DeviceActiveStatus
{
    BOOL bALDArm;
    BOOL bDrv1;
    BOOL bDrv2;
    BOOL bPrn;
    BOOL bDisc;
};

/// The causes that stop jobs.
struct JobHindranceFactor
{
    BOOL bStacker1Empty;
    BOOL bStacker2Empty;
    BOOL bStacker2Full;
    BOOL bStacker3Full;
    BOOL bStacker4Full;
    BOOL bDiscWriteError;
    BOOL bDrvMultiFeed;
    BOOL bPrnMultiFeed;
    BOOL bInkEmpty;
    BOOL bDiscTypeError;
    BOOL bNotBlankDisc;
    BOOL bRemainDisc;
    BOOL bInkCartridgeNonStandard;
    BOOL bTakeOut;
};

struct NotifyStatus
{
    DeviceActiveStatus DevActive;
    JobHindranceFactor JobFactor;
};

/// Counters since manufacture, and the life limits of the drives.
struct MaintenanceInfo
{
    int nPrintCount;
    int nDrv1TrayOpenCount;
    int nDrv1TrayOpenLimit;
    int nDrv1CDWriteSeconds;
    int nDrv1CDWriteLimit;
    int nDrv1DVDWriteSeconds;
    int nDrv1DVDWriteLimit;
    int nDrv2TrayOpenCount;
    int nDrv2TrayOpenLimit;
    int nDrv2CDWriteSeconds;
    int nDrv2CDWriteLimit;
    int nDrv2DVDWriteSeconds;
    int nDrv2DVDWriteLimit;
};

/// The same for a device whose drives write Blu-ray discs.
struct MaintenanceInfoEx
{
    int nPrintCount;
    int nDrv1TrayOpenCount;
    int nDrv1TrayOpenLimit;
    int nDrv1CDWriteSeconds;
    int nDrv1CDWriteLimit;
    int nDrv1DVDWriteSeconds;
    int nDrv1DVDWriteLimit;
    int nDrv1BDWriteSeconds;
    int nDrv1BDWriteLimit;
    int nDrv2TrayOpenCount;
    int nDrv2TrayOpenLimit;
    int nDrv2CDWriteSeconds;
    int nDrv2CDWriteLimit;
    int nDrv2DVDWriteSeconds;
    int nDrv2DVDWriteLimit;
    int nDrv2BDWriteSeconds;
    int nDrv2BDWriteLimit;
};

// ---------------------------------------------------------------------------------------------------------------------
// Types of digest, and their result codes. Every upload carries a SHA-1 digest. The error codes never occur,
// because the digests cannot fail.

constexpr DWORD BCH_HASH_TYPE_AUTO = 0;
constexpr DWORD BCH_HASH_TYPE_MD2 = 1;
constexpr DWORD BCH_HASH_TYPE_MD4 = 2;
constexpr DWORD BCH_HASH_TYPE_MD5 = 3;
constexpr DWORD BCH_HASH_TYPE_SHA1 = 4;
constexpr DWORD BCH_HASH_TYPE_SHA256 = 5;
constexpr DWORD BCH_HASH_TYPE_SHA384 = 6;
constexpr DWORD BCH_HASH_TYPE_SHA512 = 7;

constexpr DWORD BCH_SUCCESS = 0;
constexpr DWORD BCH_ERR_NOT_INITIALIZE = 1;
constexpr DWORD BCH_ERR_CLAC_HASH = 2;
constexpr DWORD BCH_ERR_MEMORY = 3;
constexpr DWORD BCH_ERR_GET_HASH = 4;
constexpr DWORD BCH_ERR_OTHER = 99;

// ---------------------------------------------------------------------------------------------------------------------
// Jobs of a publisher server.

// The state of a job.
constexpr DWORD NCL_JOB_STATUS_WAITING = 0;
constexpr DWORD NCL_JOB_STATUS_RUNNING = 1;
constexpr DWORD NCL_JOB_STATUS_CANCEL_PENDING = 2;
constexpr DWORD NCL_JOB_STATUS_STOP_PENDING = 3;
constexpr DWORD NCL_JOB_STATUS_STOPPED = 4;
constexpr DWORD NCL_JOB_STATUS_PAUSE_PENDING = 5;
constexpr DWORD NCL_JOB_STATUS_PAUSED = 6;
constexpr DWORD NCL_JOB_STATUS_ERROR = 7;
constexpr DWORD NCL_JOB_STATUS_FINISHED = 8;
constexpr DWORD NCL_JOB_STATUS_FINISHED_WARNING = 9;
constexpr DWORD NCL_JOB_STATUS_CANCELLED = 10;

// The reason for the status of a job.
constexpr DWORD NCL_JOB_STATUS_FACTOR_NONE = 0;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_PICK = 1;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_DROP = 2;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_RELEASE = 3;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DRV_TRAY = 4;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_PRT_TRAY = 5;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_ARM_MOVE = 6;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_EMPTY = 7;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_FULL = 8;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_COVER_OPEN = 9;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_INK_COVER_OPEN = 10;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_OFFLINE = 11;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_NO_DRIVE = 12;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_STK_SETTING = 13;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_CAPACITY = 14;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_TYPE = 15;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_NOT_BLANK = 16;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_JOB_FAILURE = 17;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DRV_FAILURE = 18;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_INK_EMPTY = 19;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_WRITE = 20;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_PUB_NAME = 21;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_JOB_ID = 22;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_INVALID_CONTROL = 23;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_STACKER_REMOVED = 24;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_CONDITION_FAILURE = 25;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_PRT_FATAL = 26;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DEVICE_NOT_SUPPORT_VER = 27;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_INK_PAD_OVERFLOW = 28;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_PRT_MAINTENANCE = 29;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_FAILURE = 30;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_INK_CARTRIDGE_REMOVED = 31;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_INK_CARTRIDGE_INVALID = 32;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_MULTIFEED_DRV = 33;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_MULTIFEED_PRN = 34;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_MORE_MEMORY = 35;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_UNKNOWN = 36;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_PUB_MODE = 37;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_IMAGE = 38;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_SUPPLY = 39;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_PRT_OFFLINE = 40;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_PRT_NAME_INVALID = 41;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_ALD_FATAL = 42;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DRV_FATAL = 43;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_BATCH_CONDITION_FAILURE = 44;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_STACKER3_CONDITION = 45;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_STACKER4_OPEN = 46;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_STACKER_DISC_PICK = 48;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_STK_OVERFLOW = 49;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_UNKNOWN = 50;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_STACKER4_OPENED = 51;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_PUBMODE_WRITE = 52;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_PUBMODE_READ = 53;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_DISC_UNMATCH = 54;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_STK2_DISC_LEFT = 55;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_STK2_HIGHT = 56;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_STK1_2_OVER = 57;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_TAKEOUT_PROCESSING = 204;
constexpr DWORD NCL_JOB_STATUS_FACTOR_ERR_KEY_UNLOCK = 205;

// The kind of work of a job.
constexpr DWORD NCL_JOB_TYPE_WRITE_PRN = 0;
constexpr DWORD NCL_JOB_TYPE_WRITE = 1;
constexpr DWORD NCL_JOB_TYPE_PRN = 2;
constexpr DWORD NCL_JOB_TYPE_NOZZLE_CHECK = 3;
constexpr DWORD NCL_JOB_TYPE_CLEANING = 4;
constexpr DWORD NCL_JOB_TYPE_GAP_ADJUSTMENT = 5;
constexpr DWORD NCL_JOB_TYPE_PRN_POSITION_CORRECTION = 6;

// Stackers, one bit each.
constexpr DWORD NCL_STACKER_NOSETTING = 0;
constexpr DWORD NCL_STACKER1 = 1;
constexpr DWORD NCL_STACKER2 = 2;
constexpr DWORD NCL_STACKER3 = 4;
constexpr DWORD NCL_STACKER4 = 8;

// Which jobs are counted.
constexpr DWORD NCL_JNT_PROCESS_JOB = 0;
constexpr DWORD NCL_JNT_SENDING_JOB = 1;
constexpr DWORD NCL_JNT_FINISH_JOB = 2;

// Which jobs are listed.
constexpr DWORD NCL_JST_PROCESS_JOB = 0;
constexpr DWORD NCL_JST_FINISH_JOB = 1;
constexpr DWORD NCL_JST_ALL_JOB = 2;
constexpr DWORD NCL_JST_PROCESS_JOB_EX = 3; ///< with the remaining times; used by GetJobStatusEx only

// Sizes of the texts below: three bytes of UTF-8 for each UTF-16 unit that the server may send, and a NUL.
constexpr DWORD NCL_PERSON_SIZE = 64 * 3 + 1;
constexpr DWORD NCL_JOB_TEXT_SIZE = 255 * 3 + 1;

/// The errors that occurred during a job.
struct JobErrorHistory
{
    BOOL bWriteError;
    BOOL bCoverOpen;
    BOOL bStacker4Open;
};

/// One job. The texts are UTF-8, despite their prefix "wsz".
struct JobStatus
{
    DWORD dwJobStatus;         ///< NCL_JOB_STATUS_
    DWORD dwFactor;            ///< NCL_JOB_STATUS_FACTOR_
    DWORD dwPublicationNumber; ///< copies ordered
    DWORD dwCompletionNumber;  ///< copies finished
    char wszPublicationPerson[NCL_PERSON_SIZE];
    DWORD dwJobType;      ///< NCL_JOB_TYPE_
    DWORD dwSource;       ///< stackers to load from
    DWORD dwDestination;  ///< stackers to eject to
    DWORD dwEstimateTime; ///< in the server's unit
    DWORD dwErrorNumber;
    char wszJobName[NCL_JOB_TEXT_SIZE];
    JobErrorHistory ErrorHistory;
    DWORD dwPubMode;
    char wszJobIdentificationID[NCL_JOB_TEXT_SIZE]; ///< the submitter's own name for the job
    DWORD nServerJobID;
};

/// A job with its remaining time.
struct JobStatusEx
{
    DWORD dwJobStatus;
    DWORD dwFactor;
    DWORD dwPublicationNumber;
    DWORD dwCompletionNumber;
    char wszPublicationPerson[NCL_PERSON_SIZE];
    DWORD dwJobType;
    DWORD dwSource;
    DWORD dwDestination;
    DWORD dwEstimateTime;
    DWORD dwRemainingTime; ///< in the server's unit; 0 unless requested by NCL_JST_PROCESS_JOB_EX
    DWORD dwErrorNumber;
    char wszJobName[NCL_JOB_TEXT_SIZE];
    JobErrorHistory ErrorHistory;
    DWORD dwPubMode;
    char wszJobIdentificationID[NCL_JOB_TEXT_SIZE];
    DWORD nServerJobID;
};

/// The operation on a job. On the wire the server uses numbers of its own.
enum JobControlType
{
    JOB_CONTROL_TYPE_COMMIT = 0,
    JOB_CONTROL_TYPE_CANCEL = 1,
    JOB_CONTROL_TYPE_STOP = 2,
    JOB_CONTROL_TYPE_RESTART = 3,
    JOB_CONTROL_TYPE_CHANGE_PRIORITY = 4,
    JOB_CONTROL_TYPE_COMMIT_DISC_INFO = 5,
    JOB_CONTROL_TYPE_PRE_COMMIT_EMPTY_DISC_INFO = 6
};

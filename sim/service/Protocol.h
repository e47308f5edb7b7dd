// The numbers in the control service's protocol.
#pragma once

#include <cstddef>
#include <cstdint>

namespace udsim {

inline constexpr char SERVICE_SOCKET[] = "/var/run/arvenUlmarDiscControl.socket";
inline constexpr char AGENT_SOCKET[] = "/var/run/arvenUlmarDiscControlLog.socket";
inline constexpr unsigned SERVICE_SOCKET_RIGHTS = 0666; ///< of both sockets: every user may connect

inline constexpr size_t REQUEST_SIZE = 408;
inline constexpr size_t HEADER_SIZE = 24;
inline constexpr size_t RESULT_AT = 8;          ///< in a reply's header
inline constexpr size_t PAYLOAD_LENGTH_AT = 16; ///< in a reply's header
inline constexpr size_t JOB_STATUS_SIZE = 1088;
inline constexpr size_t PUBLISHER_NAME_FIELD = 129;
inline constexpr size_t JOB_ID_FIELD = 256;

namespace control {
inline constexpr uint64_t JOB_STOP = 1;
inline constexpr uint64_t JOB_CONTINUE = 2;
inline constexpr uint64_t JOB_CANCEL = 3;
inline constexpr uint64_t GET_JOB_STATUS = 4;
inline constexpr uint64_t GET_ALD_STATUS = 5;
inline constexpr uint64_t GET_INK_STATUS = 6;
inline constexpr uint64_t GET_DRV_STATUS = 7;
inline constexpr uint64_t GET_PRT_STATUS = 8;
inline constexpr uint64_t GET_STK_STATUS = 9;
inline constexpr uint64_t GET_ALD_INFO = 10;
inline constexpr uint64_t GET_DRV_INFO = 11;
inline constexpr uint64_t GET_PRT_INFO = 12;
inline constexpr uint64_t GET_JOB_NUM = 13;
inline constexpr uint64_t GET_ESTIMATE_CIRCULATION = 14;
inline constexpr uint64_t GET_PRT_NAME = 15;
inline constexpr uint64_t NOTIFY_CHANGE = 16;
inline constexpr uint64_t GET_STACKER_DISC_TYPE = 17;
inline constexpr uint64_t GET_PUBLISH_MODE = 18;
inline constexpr uint64_t GET_DEVICE_STATUS = 19;
inline constexpr uint64_t NOTIFY_READ = 20;
inline constexpr uint64_t SET_PUBLISH_MODE = 21;
inline constexpr uint64_t GET_FATAL_ERR_CODE = 22;
inline constexpr uint64_t DELETE_DISC_IMAGE = 23;
inline constexpr uint64_t GET_NOTIFY_STATUS = 24;
inline constexpr uint64_t UPDATE_WORKING_FOLDER = 25;
inline constexpr uint64_t GET_ABILITY_PNUM_PRECISION = 26;
inline constexpr uint64_t GET_MAINTENANCEBOX_STATUS = 27;
inline constexpr uint64_t GET_MAINTENANCEINFO = 28;
inline constexpr uint64_t JOB_MOVE = 29;
inline constexpr uint64_t NOTIFY_CHANGE_ERRORRATE_TIMES = 30;
inline constexpr uint64_t GET_USB_MODE = 31;
inline constexpr uint64_t GET_UNIQUE_STRING_FOR_ID = 32;
} // namespace control

namespace result {
inline constexpr uint64_t SUCCESS = 0;
inline constexpr uint32_t DISC_EMPTY = 7;
inline constexpr uint32_t DISC_FULL = 8;
inline constexpr uint32_t DISC_COVER_OPEN = 9;
inline constexpr uint32_t INK_COVER_OPEN = 10;
inline constexpr uint32_t OFFLINE = 11;
inline constexpr uint32_t DISC_TYPE = 15;
inline constexpr uint32_t DISC_NOT_BLANK = 16;
inline constexpr uint32_t INK_EMPTY = 19;
inline constexpr uint32_t DISC_WRITE = 20;
inline constexpr uint32_t INK_PAD_OVERFLOW = 28;
inline constexpr uint32_t MULTIFEED_DRIVE = 33;
inline constexpr uint32_t MULTIFEED_PRINTER = 34;
inline constexpr uint32_t STACKER4_OPEN = 46;
inline constexpr uint32_t STACKER_DISC_PICK = 48;
inline constexpr uint64_t PUB_NAME = 21;
inline constexpr uint64_t JOB_ID = 22;
inline constexpr uint64_t INVALID_CONTROL = 23;
inline constexpr uint64_t CONDITION_FAILURE = 25;
inline constexpr uint64_t PUB_MODE = 37;
inline constexpr uint64_t FAILURE = 1001;
inline constexpr uint64_t BUSY = 1004;
} // namespace result

namespace job_status {
inline constexpr uint64_t WAITING = 1;
inline constexpr uint64_t RUNNING = 2;
inline constexpr uint64_t CANCEL_PENDING = 3;
inline constexpr uint64_t PAUSE_PENDING = 4;
inline constexpr uint64_t PAUSED = 5;
inline constexpr uint64_t STOP_PENDING = 6;
inline constexpr uint64_t STOPPED = 7;
inline constexpr uint64_t CANCELLED = 8;
inline constexpr uint64_t FINISHED = 9;
} // namespace job_status

/// Parameter of GET_JOB_STATUS, a sum of bits.
inline constexpr uint64_t PROCESSING_JOBS = 1;
inline constexpr uint64_t COMPLETE_JOBS = 2;
/// Parameter of JOB_MOVE.
inline constexpr uint64_t MOVE_PRIORITY_HIGH = 1;

inline constexpr uint64_t JOB_TYPE_WRITE = 1;
inline constexpr uint64_t JOB_TYPE_PRINT = 2;
inline constexpr uint64_t JOB_TYPE_NOZZLE_CHECK = 4;
inline constexpr uint64_t JOB_TYPE_CLEANING = 0x80000003;

/// Sources and destinations of a job, a sum of bits.
inline constexpr uint64_t STACKER1 = 1;
inline constexpr uint64_t STACKER2 = 2;
inline constexpr uint64_t STACKER3 = 4;
inline constexpr uint64_t STACKER4 = 8;

/// Errors that occurred during a job, a sum of bits.
namespace history {
inline constexpr uint32_t WRITE_ERROR = 1;
inline constexpr uint32_t COVER_OPEN = 2;
inline constexpr uint32_t STACKER4_OPEN = 4;
} // namespace history

namespace mode {
inline constexpr uint32_t NORMAL = 0;
inline constexpr uint32_t BATCH = 1;
inline constexpr uint32_t OUTPUT = 2;
inline constexpr uint32_t SECURITY = 3;       ///< of servers only
inline constexpr uint32_t OUTPUT_CONTROL = 4; ///< of servers only
inline constexpr uint32_t ERROR_RATE = 5;
inline constexpr uint32_t READ = 6;
} // namespace mode

namespace media {
inline constexpr uint32_t OUTPUT = 0;
inline constexpr uint32_t CDR = 1;
inline constexpr uint32_t INPUT = 16;
inline constexpr uint32_t NOT_USED = 32;
} // namespace media

namespace ald {
inline constexpr uint64_t STACKER4_OPEN = 0x8;
inline constexpr uint64_t DISC_COVER_OPEN = 0x10;
inline constexpr uint64_t INK_COVER_OPEN = 0x20;
inline constexpr uint64_t POWER_OFF = 0x40;
inline constexpr uint64_t PRT_FATAL_ERROR = 0x80;
inline constexpr uint64_t PRT_MAINTENANCE = 0x100;
inline constexpr uint64_t PRT_ERROR = 0x200;
inline constexpr uint64_t AUTOMATION = 0x1000;
inline constexpr uint64_t ALD_FATAL_ERROR = 0x2000;
inline constexpr uint64_t ALD_MAINTENANCE_ERROR = 0x4000;
inline constexpr uint64_t ALD_ERROR = 0x8000;
inline constexpr uint64_t STK_DISC_PICK = 0x400000;
inline constexpr uint64_t MB_OUT = 0x800000;
inline constexpr uint64_t MB_COVER_OPEN = 0x1000000;
inline constexpr uint64_t MB_FULL = 0x2000000;
} // namespace ald

namespace printer {
inline constexpr uint64_t IDLE = 0x1;
inline constexpr uint64_t CONVEYING = 0x2;
inline constexpr uint64_t PRINTING = 0x4;
inline constexpr uint64_t PAUSE = 0x8;
inline constexpr uint64_t CLEANING = 0x10;
inline constexpr uint64_t ERROR = 0x40;
inline constexpr uint64_t ERROR_OFFLINE = 0x10000;
inline constexpr uint64_t ERROR_INKPAD_OVERFLOW = 0x20000;
inline constexpr uint64_t ERROR_MAINTENANCE = 0x40000;
inline constexpr uint64_t ERROR_FATAL = 0x80000;
inline constexpr uint64_t ERROR_DISC_COVER_OPEN = 0x100000;
inline constexpr uint64_t ERROR_INK_COVER_OPEN = 0x200000;
inline constexpr uint64_t ERROR_INK_OUT = 0x400000;
inline constexpr uint64_t ERROR_MB_COVER_OPEN = 0x800000;
inline constexpr uint64_t ERROR_MB_OUT = 0x1000000;
inline constexpr uint64_t ERROR_MB_FULL = 0x2000000;
inline constexpr uint64_t ERROR_MECHANISM = 0x4000000;
} // namespace printer

namespace drive {
inline constexpr uint64_t IDLE = 0x1;
inline constexpr uint64_t CONTAINING = 0x2;
inline constexpr uint64_t WRITING = 0x4;
inline constexpr uint64_t VERIFYING = 0x8;
inline constexpr uint64_t ERROR = 0x10;
inline constexpr uint64_t NOT_USED = 0x20;
inline constexpr uint64_t CONVEYING = 0x40;
inline constexpr uint64_t PAUSE = 0x80;
} // namespace drive

namespace ink {
inline constexpr uint64_t UNKNOWN = 0x400;
inline constexpr uint64_t NEAR_EMPTY = 0x80000000;
} // namespace ink

namespace stacker {
inline constexpr uint64_t UNKNOWN = 101;
inline constexpr uint64_t SUPPLY = 0x80000000;
} // namespace stacker

namespace notify {
inline constexpr uint64_t ARM_ACTIVE = 1;
inline constexpr uint64_t DRV1_ACTIVE = 2;
inline constexpr uint64_t DRV2_ACTIVE = 4;
inline constexpr uint64_t PRT_ACTIVE = 8;
inline constexpr uint64_t DISC_WORKING = 16;
} // namespace notify

inline constexpr uint64_t MAINTENANCEBOX_UNKNOWN = 0x400;
inline constexpr uint64_t MAINTENANCEBOX_NEAR_FULL = 0x80000000;
inline constexpr uint64_t CIRCULATION_UNKNOWN = 0xFFFF;
inline constexpr uint64_t MAINTENANCE_FIGURE_UNKNOWN = 0xFFFFFFFF;
inline constexpr uint64_t USB_DISCONNECTED = 0;
inline constexpr uint64_t USB_SUPER_SPEED = 3;

} // namespace udsim

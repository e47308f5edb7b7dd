// The numbers in the protocol of the publisher server's servlets.
#pragma once

#include <cstddef>
#include <cstdint>

namespace udsim {

inline constexpr uint16_t HTTP_PORT = 80;
inline constexpr char INTERFACE_VERSION[] = "02000000"; ///< required of clients

inline constexpr size_t ITEM_HEAD = 3; ///< bytes before the data of a reply item: its status and length

/// Status: the first byte of a reply item.
namespace servlet_status {
inline constexpr uint8_t SUCCESS = 0;
inline constexpr uint8_t VERSION = 1;
inline constexpr uint8_t OFFLINE = 2;
inline constexpr uint8_t CAPACITY = 6;
inline constexpr uint8_t JOB_ID = 7;
inline constexpr uint8_t JOB_FILE = 8;
inline constexpr uint8_t OTHER = 9;
inline constexpr uint8_t SPOOL_LIMIT = 13;
} // namespace servlet_status

namespace server_mode {
inline constexpr uint32_t SECURITY = 0;
inline constexpr uint32_t OUTPUT_CONTROL = 1;
inline constexpr uint32_t NORMAL = 2;
inline constexpr uint32_t OUTPUT = 3;
inline constexpr uint32_t BATCH = 4;
} // namespace server_mode

/// Types of text information.
namespace text_info {
inline constexpr uint32_t SERIAL = 0;
inline constexpr uint32_t LOADER_VERSION = 1;
inline constexpr uint32_t PRINTER_VERSION = 2;
inline constexpr uint32_t DRIVE1_VERSION = 3;
inline constexpr uint32_t DRIVE2_VERSION = 4;
inline constexpr uint32_t SERVER_VERSION = 5;
inline constexpr uint32_t WEB_VERSION = 6;
inline constexpr uint32_t SECURITY_VERSION = 7;
inline constexpr uint32_t FREE_SPACE = 8;
inline constexpr uint32_t SPACE = 9;
inline constexpr uint32_t DRIVE1_SPEEDS = 10;
inline constexpr uint32_t DRIVE2_SPEEDS = 11;
inline constexpr uint32_t PRINTER_NAME = 12;
inline constexpr uint32_t DRIVE1_NAME = 13;
inline constexpr uint32_t DRIVE2_NAME = 14;
} // namespace text_info

/// Types of numeric information.
namespace number_info {
inline constexpr uint32_t DRIVES_USED = 0;
inline constexpr uint32_t CONFIRMATION = 1;
inline constexpr uint32_t RETRIES = 2;
inline constexpr uint32_t ERROR_MARK = 3;
inline constexpr uint32_t STACKER1 = 4;
inline constexpr uint32_t STACKER2 = 5;
inline constexpr uint32_t STACKER3 = 6;
inline constexpr uint32_t SUSPENDED = 7;
inline constexpr uint32_t BDXL = 8;
inline constexpr uint32_t MEDIA_NOT_USED = 999;
} // namespace number_info

/// Types of device status.
namespace device_status {
inline constexpr uint32_t LOADER = 0;
inline constexpr uint32_t STACKERS = 1;
inline constexpr uint32_t DRIVES = 2;
inline constexpr uint32_t PRINTER = 3;
inline constexpr uint32_t INK = 4;
inline constexpr uint32_t FATAL_ERROR = 5;
inline constexpr uint32_t NOTICE = 6;
inline constexpr uint32_t LOADER_BLOCK = 7;
inline constexpr uint32_t PRINTER_BLOCK = 8;
inline constexpr uint32_t MAINTENANCE = 10;
inline constexpr uint32_t DRIVES_EX = 11;
} // namespace device_status

/// Actions of the job controller.
namespace action {
inline constexpr uint32_t COMMIT = 0;
inline constexpr uint32_t CANCEL = 1;
inline constexpr uint32_t STOP = 2;
inline constexpr uint32_t RESTART = 3;
inline constexpr uint32_t COMMIT_DISC_INFO = 4;
inline constexpr uint32_t OPEN_DISC_INFO = 5;
inline constexpr uint32_t PRIORITY = 6;
} // namespace action

/// Selects the jobs in a list.
namespace job_list {
inline constexpr uint32_t ALL = 0;
inline constexpr uint32_t UNFINISHED = 1;
inline constexpr uint32_t ENDED = 2;
inline constexpr uint32_t UNFINISHED_EX = 3; ///< with the remaining times
} // namespace job_list

} // namespace udsim

// Constants of the network library's public face.
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
// Information types of a device that are texts.

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

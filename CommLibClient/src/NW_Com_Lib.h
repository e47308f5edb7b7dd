// The network client library's public face: a publisher server behind a handle.
//
// Every operation reports by an NCL_ result code (NW_Com_LibConst.h) and throws nothing.
#pragma once

#include "NW_Com_LibConst.h"

// ---------------------------------------------------------------------------------------------------------------------
// Result codes

/// The text of a result code, for logs; never null. A code without a text of its own reads as the first of
/// its table: "Success" below 8000, "Server Other" from there on.
const char* GetNCLErrorString(DWORD dwNCLRet);

// ---------------------------------------------------------------------------------------------------------------------
// Locale

/// Sets the locale of the process to "en_US.utf8", under which the texts of servers become UTF-8. The library
/// calls it for each text. A program with several threads also calls it once before the first operation:
/// the later calls then change nothing that another thread may be reading. False if the system lacks that
/// locale.
bool SetTextLocale();

// ---------------------------------------------------------------------------------------------------------------------
// Connections. A handle is good from StartConnection to EndConnection; a stale one may name a later
// connection. The server is reached on port 80. Connecting takes 5 seconds at most, and a reply may pause for
// 2 minutes. Sending has no time limit. One operation at a time on a handle; handles are independent of each
// other.

/// Connects, finds out what kind of server it is and whether it can be served, and remembers its kind in its
/// setting file. `*pdwHandleOut` becomes 0 before anything else. Of the address only what follows the last
/// backslash counts. A server in a secure mode cannot be used (NCL_ERR_SSL_INITIALIZATION); its connection
/// stays open until all 100 connections are in use. `dwAppVersion` is not used.
DWORD StartConnection(DWORD dwAppVersion, const char* pszServerAddress, DWORD* pdwHandleOut);

/// Lets no new operation start, waits for those in progress, and closes. A disc image that was left
/// unfinished gets the digest of what was sent.
void EndConnection(DWORD dwHandle);

/// The publisher kind, an NCL_NPTYPE_ value; 0 for an unknown handle. NCL_SUCCESS always.
DWORD GetNPType(DWORD dwHandle, DWORD* dwNPType);

// ---------------------------------------------------------------------------------------------------------------------
// The device. Each operation asks the server once. A failure leaves the caller's record as it was, unless a
// conversion fails after the reply has come.

/// A text of type NCL_DIT_SERIAL_NO_OF_ALD to NCL_DIT_NAME_OF_DRV2, ended by a zero byte. NCL_ERR_PARAMETER
/// also when `dwSize` bytes are too few, and for NCL_DIT_VERSION_OF_SECURITY out of security mode.
DWORD GetDeviceInfo(DWORD dwHandle, DWORD dwInfoType, char* pszBuf, DWORD dwSize);
/// A number of type NCL_DIT_DRV_USED to NCL_DIT_SUPPORT_BDXL.
DWORD GetDeviceInfoInt(DWORD dwHandle, DWORD dwInfoType, DWORD* pdwValueOut);
/// An NCL_MODE_ value.
DWORD GetServerMode(DWORD dwHandle, DWORD* pdwModeOut);

DWORD GetALDStatus(DWORD dwHandle, ALDStatus* pStatusOut);
/// NCL_ERR_INVALID_COMM_SPEC for a quantity beyond NCL_STACKER_STATUS_OVERFLOW; the stackers before it are
/// filled.
DWORD GetStackerStatus(DWORD dwHandle, StackerStatus* pStatusOut);
DWORD GetDrvStatus(DWORD dwHandle, DrvStatus* pStatusOut);
DWORD GetDrvStatusEx(DWORD dwHandle, DrvStatusEx* pStatusOut);
DWORD GetPrnStatus(DWORD dwHandle, PrnStatus* pStatusOut);
DWORD GetInkStatus(DWORD dwHandle, InkStatus* pStatusOut);
DWORD GetDeviceFatalError(DWORD dwHandle, DeviceFatalError* pStatusOut);
DWORD GetNotifyStatus(DWORD dwHandle, NotifyStatus* pStatusOut);

/// A block of bytes as the device gave it. `*pdwGetSize` becomes its size, also with NCL_ERR_BUF_SIZE, when
/// `dwBufSize` is less; with any other failure it is 0.
DWORD GetASBStatus(DWORD dwHandle, BYTE* pBuf, DWORD dwBufSize, DWORD* pdwGetSize);
DWORD GetPrnStStatus(DWORD dwHandle, BYTE* pBuf, DWORD dwBufSize, DWORD* pdwGetSize);

// The server answers both with what its device has: each refuses the other's reply
// (NCL_ERR_INVALID_COMM_SPEC).
DWORD GetMaintenanceInfo(DWORD dwHandle, MaintenanceInfo* pStatusOut);
DWORD GetMaintenanceInfoEx(DWORD dwHandle, MaintenanceInfoEx* pStatusOut);

// ---------------------------------------------------------------------------------------------------------------------
// Jobs

/// How many jobs there are of a kind, NCL_JNT_PROCESS_JOB to NCL_JNT_FINISH_JOB.
DWORD GetJobNumber(DWORD dwHandle, DWORD dwType, DWORD* pdwJobNum);
/// A new id for a job, as text. When `dwSize` bytes are too few the result is NCL_ERR_BUF_SIZE,
/// `*pdwNeedSize` becomes the size needed, and the next call gives the same id; otherwise it is 0.
DWORD GetPublishID(DWORD dwHandle, char* pszPublishIDOut, DWORD dwSize, DWORD* pdwNeedSize);
/// How many discs the ink is good for.
DWORD GetPrnPossibilityNumber(DWORD dwHandle, DWORD* pdwNum);

/// The jobs of a kind, NCL_JST_PROCESS_JOB to NCL_JST_ALL_JOB, as many as `dwLength` records take.
/// `*pdwGetLengthOut` becomes their number; 0 after a failure, when the records before the bad one are
/// filled. Without jobs the array stays as it was. It sets the locale of the process to "en_US.utf8". A job
/// of an unknown publish mode makes the result 0xFFFFFFFF.
DWORD GetJobStatus(DWORD dwHandle, DWORD dwType, JobStatus* pJobStatusArrayOut, DWORD dwLength,
                   DWORD* pdwGetLengthOut);
/// The same, and with NCL_JST_PROCESS_JOB_EX the remaining times too. For the other kinds the last
/// 4 * `dwLength` bytes of the array are not cleared beforehand: the caller hands over a cleared array.
DWORD GetJobStatusEx(DWORD dwHandle, DWORD dwType, JobStatusEx* pJobStatusArrayOut, DWORD dwLength,
                     DWORD* pdwGetLengthOut);

// Both end the submission of a job on this handle.
DWORD CommitJob(DWORD dwHandle, int nServerJobID);
DWORD CancelJob(DWORD dwHandle, int nServerJobID);

// What a monitor does to a job, whoever submitted it. User name and password must be there, and are not used.
DWORD CancelJobForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName, const char* pszPassword);
DWORD StopJobForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName, const char* pszPassword);
DWORD RestartJobForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName,
                           const char* pszPassword);
DWORD ChangeJobPriorityForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName,
                                  const char* pszPassword);

// The same under the id that the submitter gave to the job. User name and password are not used. They do not
// keep EndConnection waiting: nobody may close the handle meanwhile.
DWORD CancelJobForBridge(DWORD dwHandle, const char* pszJobID, const char* pszUserName,
                         const char* pszPassword);
DWORD ChangeJobPriorityForBridge(DWORD dwHandle, const char* pszJobID, const char* pszUserName,
                                 const char* pszPassword);

// ---------------------------------------------------------------------------------------------------------------------
// Submission of a job: SendJobData, then its files, then CommitJob or CancelJob. Sizes are in bytes. After a
// failure the job stays on the server until it is cancelled.

/// Registers a job and makes its folder. `*pnServerJobIDOut` becomes its id.
DWORD SendJobData(DWORD dwHandle, const BYTE* pJobData, DWORD dwSendSize, int* pnServerJobIDOut);
DWORD SendDiscInfo(DWORD dwHandle, int nServerJobID, const BYTE* pDiscInfo, DWORD dwSendSize);
DWORD SendDiscWriteInfo(DWORD dwHandle, int nServerJobID, const BYTE* pDiscWriteInfo, DWORD dwSendSize);
/// The next piece of a disc image; the one that reaches the total ends it, and the next begins another. A
/// null image cancels a call on another thread; that is the one operation that may run beside another on a
/// handle. The call ends between two requests of 10 MiB (NCL_ERR_CANCEL_SENDING): a request under way is sent
/// to its end, however long that takes, and a call at its last request succeeds.
DWORD SendDiscImage(DWORD dwHandle, int nServerJobID, const BYTE* pDiscImage, DWORD dwSendSize,
                    DWORD dwTotalDiscSizeLow, DWORD dwTotalDiscSizeHigh, const char* pszImageName);
/// The next file of print data.
DWORD SendPrnData(DWORD dwHandle, int nServerJobID, const BYTE* pPrnData, DWORD dwSendSize);
/// The file of print data with this index, below 1000.
DWORD SendPrnDataExt(DWORD dwHandle, int nServerJobID, const BYTE* pPrnData, DWORD dwSendSize, DWORD dwIndex);
/// A whole job for maintenance, committed too. A job that is being submitted on the handle is not disturbed.
DWORD SendSpecialJobData(DWORD dwHandle, const BYTE* pJobData, DWORD dwJobDataSize, const BYTE* pPrnData,
                         DWORD dwPrnDataSize, int* pnServerJobIDOut);

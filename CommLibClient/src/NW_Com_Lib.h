// The public interface of the network client library: access to a publisher server through a handle.
//
// Operations return an NCL_ result code (NW_Com_LibConst.h) and throw nothing.
#pragma once

#include "NW_Com_LibConst.h"

// ---------------------------------------------------------------------------------------------------------------------
// Result codes

/// The text of a result code, for logs; never null. A code without its own text has the first text of its
/// table: "Success" below 8000, "Server Other" from 8000.
const char* GetNCLErrorString(DWORD dwNCLRet);

// ---------------------------------------------------------------------------------------------------------------------
// Locale

/// Sets the locale of the process to "en_US.utf8", in which texts of servers are converted to UTF-8. The
/// library calls it for each text. A program with several threads also calls it once before the first
/// operation, so that the later calls change nothing that another thread may be reading. False if the system
/// lacks that locale.
bool SetTextLocale();

// ---------------------------------------------------------------------------------------------------------------------
// Connections. A handle is valid from StartConnection to EndConnection; a stale one may refer to a later
// connection. The port of the server is 80. Connecting takes at most 5 seconds. A reply may pause for
// 2 minutes and last 10 minutes. Sending has no time limit. One operation at a time per handle; handles are
// independent of each other.

/// Connects, determines the kind of the server and whether it is supported, and stores the kind in the
/// setting file of the server. First sets `*pdwHandleOut` to 0. Only the part of the address after the last
/// backslash is used. A server in a secure mode is not supported (NCL_ERR_SSL_INITIALIZATION); its connection
/// stays open until all 100 connections are in use. `dwAppVersion` is not used.
DWORD StartConnection(DWORD dwAppVersion, const char* pszServerAddress, DWORD* pdwHandleOut);

/// Refuses new operations, waits for those in progress, and closes the connection. If a disc image is
/// unfinished, sends the digest of its pieces so far.
void EndConnection(DWORD dwHandle);

/// The publisher kind, an NCL_NPTYPE_ value; 0 for an unknown handle. Always returns NCL_SUCCESS.
DWORD GetNPType(DWORD dwHandle, DWORD* dwNPType);

// ---------------------------------------------------------------------------------------------------------------------
// The device. Each operation sends one request. A failure leaves the caller's record unchanged, unless the
// conversion of a received reply fails.

/// A zero-terminated text of type NCL_DIT_SERIAL_NO_OF_ALD to NCL_DIT_NAME_OF_DRV2. NCL_ERR_PARAMETER also if
/// `dwSize` is too small, and for NCL_DIT_VERSION_OF_SECURITY outside security mode.
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

/// A block of bytes, unchanged from the device. `*pdwGetSize` receives its size, also with NCL_ERR_BUF_SIZE,
/// if `dwBufSize` is less. If the request fails, it is 0; NCL_ERR_PARAMETER leaves it unchanged.
DWORD GetASBStatus(DWORD dwHandle, BYTE* pBuf, DWORD dwBufSize, DWORD* pdwGetSize);
DWORD GetPrnStStatus(DWORD dwHandle, BYTE* pBuf, DWORD dwBufSize, DWORD* pdwGetSize);

// The server answers both with the record of its device, so each operation rejects the record of the other
// (NCL_ERR_INVALID_COMM_SPEC).
DWORD GetMaintenanceInfo(DWORD dwHandle, MaintenanceInfo* pStatusOut);
DWORD GetMaintenanceInfoEx(DWORD dwHandle, MaintenanceInfoEx* pStatusOut);

// ---------------------------------------------------------------------------------------------------------------------
// Jobs

/// The number of jobs of a kind, NCL_JNT_PROCESS_JOB to NCL_JNT_FINISH_JOB.
DWORD GetJobNumber(DWORD dwHandle, DWORD dwType, DWORD* pdwJobNum);
/// A new id for a job, as text. If `dwSize` is too small, the result is NCL_ERR_BUF_SIZE, `*pdwNeedSize`
/// receives the size needed, and the next call returns the same id; otherwise `*pdwNeedSize` is 0.
DWORD GetPublishID(DWORD dwHandle, char* pszPublishIDOut, DWORD dwSize, DWORD* pdwNeedSize);
/// The number of discs for which the ink suffices.
DWORD GetPrnPossibilityNumber(DWORD dwHandle, DWORD* pdwNum);

/// The jobs of a kind, NCL_JST_PROCESS_JOB to NCL_JST_ALL_JOB, at most `dwLength` of them.
/// `*pdwGetLengthOut` receives their number. After a failure it is 0, although the records before the bad one
/// are filled. Without jobs the array is not changed. The texts set the locale of the process to
/// "en_US.utf8". The result is 0xFFFFFFFF if a job has an unknown publish mode.
DWORD GetJobStatus(DWORD dwHandle, DWORD dwType, JobStatus* pJobStatusArrayOut, DWORD dwLength,
                   DWORD* pdwGetLengthOut);
/// Like GetJobStatus, and with NCL_JST_PROCESS_JOB_EX also the remaining times. For the other kinds the last
/// 4 * `dwLength` bytes of the array are not cleared: the caller passes a cleared array.
DWORD GetJobStatusEx(DWORD dwHandle, DWORD dwType, JobStatusEx* pJobStatusArrayOut, DWORD dwLength,
                     DWORD* pdwGetLengthOut);

// Both end the submission of a job on this handle.
DWORD CommitJob(DWORD dwHandle, int nServerJobID);
DWORD CancelJob(DWORD dwHandle, int nServerJobID);

// Operations of a monitor on any job, including those of other submitters. User name and password must not be
// null; they are not used.
DWORD CancelJobForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName, const char* pszPassword);
DWORD StopJobForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName, const char* pszPassword);
DWORD RestartJobForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName,
                           const char* pszPassword);
DWORD ChangeJobPriorityForMonitor(DWORD dwHandle, int nServerJobID, const char* pszUserName,
                                  const char* pszPassword);

// Operations on a job by the id that its submitter gave to it. User name and password are not used.
// EndConnection does not wait for these operations: the handle must not be closed meanwhile.
DWORD CancelJobForBridge(DWORD dwHandle, const char* pszJobID, const char* pszUserName,
                         const char* pszPassword);
DWORD ChangeJobPriorityForBridge(DWORD dwHandle, const char* pszJobID, const char* pszUserName,
                                 const char* pszPassword);

// ---------------------------------------------------------------------------------------------------------------------
// Submission of a job: SendJobData, then its files, then CommitJob or CancelJob. Sizes are in bytes. After a
// failure the job stays on the server until it is cancelled.

/// Registers a job and creates its folder. `*pnServerJobIDOut` receives its id.
DWORD SendJobData(DWORD dwHandle, const BYTE* pJobData, DWORD dwSendSize, int* pnServerJobIDOut);
DWORD SendDiscInfo(DWORD dwHandle, int nServerJobID, const BYTE* pDiscInfo, DWORD dwSendSize);
DWORD SendDiscWriteInfo(DWORD dwHandle, int nServerJobID, const BYTE* pDiscWriteInfo, DWORD dwSendSize);
/// Sends the next piece of a disc image. The piece that reaches the total ends the image, and the next piece
/// begins another. A null image cancels a call on another thread; only this operation may run concurrently
/// with another on the same handle. The cancelled call ends between two requests of 10 MiB
/// (NCL_ERR_CANCEL_SENDING): a request in progress is sent completely, however long that takes, and a call
/// that is at its last request succeeds.
DWORD SendDiscImage(DWORD dwHandle, int nServerJobID, const BYTE* pDiscImage, DWORD dwSendSize,
                    DWORD dwTotalDiscSizeLow, DWORD dwTotalDiscSizeHigh, const char* pszImageName);
/// Sends the next file of print data.
DWORD SendPrnData(DWORD dwHandle, int nServerJobID, const BYTE* pPrnData, DWORD dwSendSize);
/// Sends the file of print data with this index, which is below 1000.
DWORD SendPrnDataExt(DWORD dwHandle, int nServerJobID, const BYTE* pPrnData, DWORD dwSendSize, DWORD dwIndex);
/// Submits and commits a complete maintenance job. A job that is being submitted on the handle is not
/// affected.
DWORD SendSpecialJobData(DWORD dwHandle, const BYTE* pJobData, DWORD dwJobDataSize, const BYTE* pPrnData,
                         DWORD dwPrnDataSize, int* pnServerJobIDOut);

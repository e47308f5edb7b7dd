// Declarations that the sources of the network client library share.
#pragma once

#include "Http.h"
#include "LogFormat.h"
#include "MessageDigest.h"
#include "NW_Com_Lib.h"

#include <atomic>
#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

using NCLLine = LogFormat<const char*>;              ///< a text: the host's name, or that of a result code
using NCLNumberedLine = LogFormat<const char*, int>; ///< a text and a number

// ---------------------------------------------------------------------------------------------------------------------
// Replies of a servlet: items of a status byte, a length of 16 bits (big-endian) and that many bytes of data.

/// One item. It points into the body of the response and is valid as long as the body.
struct ST_COMM_REPLY
{
    const char* m_pData = nullptr; ///< null when there is no data
    DWORD m_dwServerStatus = NCL_SUCCESS;
    DWORD m_dwDataSize = 0;
};

/// The maximum length of a list. Servers hold at most 1000 jobs, and no other list is longer.
constexpr DWORD MAX_REPLY_ITEMS = 10000;

/// Splits a body into its items. The first item with a bad status determines the result, even one beyond the
/// expected items; after a failure the list is empty. `dwCheckReplyCount` is the number of items expected, 0
/// for any number up to MAX_REPLY_ITEMS. NCL_ERR_GET_MEMORY if there are more, or if memory runs out.
DWORD ParseCommReply(const char* pContent, DWORD dwContentLen, std::list<ST_COMM_REPLY>& rliReply,
                     DWORD dwCheckReplyCount);

/// A hook for dumps of replies; it does nothing.
void DEBUG_HTTP_REPLY(const char* pszMsg, DWORD dwSize);

// ---------------------------------------------------------------------------------------------------------------------
// Result codes

extern const char* const NCL_ERROR_STRING[15];        ///< from NCL_SUCCESS on
extern const char* const NCL_SERVER_ERROR_STRING[13]; ///< from NCL_ERR_SERVER_OTHER on
extern const DWORD SERVLET_ERR[14];                   ///< by a servlet's status byte
extern const char* const SERVLET_ERR_STRING[14];      ///< by a servlet's status byte; empty for 0

/// Returned by ConvertInternetError for internet results without a code of their own.
constexpr DWORD NCL_ERR_UNNAMED = 10000;

/// The code of an internet result (InternetResult.h).
DWORD ConvertInternetError(int nValue);

/// The code of a servlet's status byte. Logs known failures.
DWORD ConvertServerStatus(DWORD dwValue);

/// The code of an HTTP status. Logs every bad status, with the method of the request and `pszPath`.
DWORD CheckHttpResponseStatus(ST_HTTP_RESPONSE* pstHttpRes, const char* pszPath);

// ---------------------------------------------------------------------------------------------------------------------
// Jobs: conversion of the server's numbers to the client's constants.

extern const DWORD dwJobCountMaxCost[4];     ///< by NCL_JST_: the maximum length of a list
extern const DWORD dwSpecialJobTypeConst[6]; ///< NCL_JOB_TYPE_ by the print modes from 4 on

// -1 means a value that no record may have. A conversion that does not return -1 returns 13 for values beyond
// its table.

int ConvertJobStatus(DWORD dwValue);                    ///< NCL_JOB_STATUS_, never -1
int ConvertJobStatusFactor(DWORD dwValue);              ///< NCL_JOB_STATUS_FACTOR_, never -1
int ConvertJobType(DWORD dwJobType, DWORD dwPrintMode); ///< NCL_JOB_TYPE_; 13 too
int ConvertLoadStacker(WORD wValue);                    ///< a set of stackers
int ConvertEjectStacker(WORD wValue);                   ///< a set of stackers
int ConvertPublishMode(DWORD dwValue);

/// Returned if a job list contains an unknown publish mode.
constexpr DWORD NCL_ERR_BAD_PUBLISH_MODE = 0xFFFFFFFF;

/// Result of UnpackJobStatus and UnpackJobStatusEx. The values from 2 on are the numbers of the checks in the
/// log, in the order of the checks; 3 and 9 belong to conversions that cannot fail.
enum JobRecordCheck
{
    JOB_RECORD_GOOD = 0,
    JOB_RECORD_BAD_PUBLISH_MODE = 1, ///< not logged
    JOB_RECORD_BAD_SIZE = 2,
    JOB_RECORD_BAD_PERSON_SIZE = 4,
    JOB_RECORD_BAD_JOB_TYPE = 5,
    JOB_RECORD_BAD_LOAD_STACKER = 6,
    JOB_RECORD_BAD_EJECT_STACKER = 7,
    JOB_RECORD_BAD_NAME_SIZE = 8
};

/// Fills a cleared record from a job of `dwSize` bytes as the server sends it. After a failure the fields
/// before the bad one are filled. toUTF8 converts the texts.
JobRecordCheck UnpackJobStatus(const char* pData, DWORD dwSize, JobStatus* pJob);
/// Like UnpackJobStatus. With `dwType` NCL_JST_PROCESS_JOB_EX the job has four more bytes, its remaining
/// time.
JobRecordCheck UnpackJobStatusEx(const char* pData, DWORD dwSize, DWORD dwType, JobStatusEx* pJob);

// ---------------------------------------------------------------------------------------------------------------------
// Connections

/// The connection that a request uses.
enum CommType
{
    COMM_TYPE_HTTP = 0,
    COMM_TYPE_HTTPS = 1, ///< not available in this system
    COMM_TYPE_SELECT = 2 ///< the secure one for a server in a secure mode, otherwise the plain one
};

/// The object of a handle. One operation at a time. Fields that another thread accesses meanwhile are
/// accessed through std::atomic_ref.
struct ST_NCL
{
    BOOL m_bDiscImageCancelSending = FALSE; ///< the upload of a disc image is to stop; atomic_ref
    BOOL m_bEndConnection = FALSE;          ///< no new operation may start; atomic_ref
    BOOL m_bFinishStartConnection = FALSE;  ///< StartConnection succeeded
    int m_nServerJobID = 0;                 ///< of the job being submitted
    unsigned int m_unPrnIndex = 0;          ///< running number of the next file of print data
    DWORD m_dwServerMode = 0;               ///< an NCL_MODE_ value
    DWORD m_dwNPType = NCL_NPTYPE_UNKNOWN;
    ULONGLONG m_ullDiscImageOfs = 0; ///< bytes of the disc image sent so far
    CHttp* m_pHttp = nullptr;        ///< owned
    CHttp* m_pHttpSecure = nullptr;  ///< owned; nothing creates it
    std::string m_strServerAddress;
    std::string m_strUploadUserName; ///< of the current job
    std::string m_strUploadPassword;
    std::string m_strPublishID;                ///< kept for a second call of GetPublishID
    std::string m_strJSessionID;               ///< nothing fills it
    std::atomic<int> m_refCount = 0;           ///< operations in progress
    std::string m_strImageFileName;            ///< of the disc image being uploaded
    std::unique_ptr<MessageDigestIF> m_pMD;    ///< of the disc image being uploaded
    DWORD m_dwCompatiMode = 0;                 ///< 1: an old server, which accepts no digests
    std::atomic<ULONGLONG> m_ullUnclaimed = 0; ///< 0 unless unclaimed; a lower number is older
};

/// Increments an atomic counter for the duration of its scope.
template <typename Counter>
class CAutoRefCounter
{
public:
    explicit CAutoRefCounter(Counter& counter) : m_counter(counter)
    {
        ++m_counter;
    }
    ~CAutoRefCounter()
    {
        --m_counter;
    }
    CAutoRefCounter(const CAutoRefCounter&) = delete;
    CAutoRefCounter& operator=(const CAutoRefCounter&) = delete;

private:
    Counter& m_counter;
};

/// The table of the handles: a handle is an index plus 1. It grows to 100 entries and never shrinks; a free
/// entry is null. Readers take no lock, so entries are accessed through std::atomic_ref and the storage never
/// moves.
extern std::vector<ST_NCL*> g_pvarrNCL;
extern std::mutex g_csNCLArray; ///< held by SetNCLObj and DestroyOldestUnclaimedNCL

/// Stores the object in the first free entry and returns its handle; 0 if there is no free entry, and for
/// null.
DWORD SetNCLObj(ST_NCL* pstNCL);
/// Null if the handle is invalid.
ST_NCL* GetNCLObj(DWORD dwHandle);
/// Frees the entry, not the object. Always returns NCL_SUCCESS. A handle beyond the table is a programming
/// error.
DWORD DeleteNCLObj(DWORD dwHandle);
/// The server's address for the log; null for a null object.
const char* GetNCLHostName(ST_NCL* pNCL);

/// Logs that a parameter is bad. Returns NCL_ERR_PARAMETER.
DWORD ReturnErrParam();

// The flags of `dwOption` of SendRequest.
constexpr DWORD SEND_OPTION_FORM = 1;   ///< the body is a form
constexpr DWORD SEND_OPTION_COOKIE = 2; ///< with the session's cookie, if there is one

/// Sends every request of the library, and logs failures. After StartConnection has succeeded, every loss of
/// the connection results in NCL_ERR_CONNECTION_CLOSE; the next request connects again. Success includes a
/// good HTTP status.
DWORD SendRequest(ST_NCL* pNCL, CHttp::METHOD eMethod, const char* pszPath, CHttp::VERSION eVersion,
                  const char* pszHost, const char* pszUser, const char* pszPassword, const char* pszAddHeader,
                  const char* pMsgBody, DWORD dwMsgSize, ST_HTTP_RESPONSE* pstHttpRes, CommType eCommType,
                  DWORD dwOption);

/// Asks the server whether it accepts this version of the interface; NCL_ERR_APP_VERSION if not.
DWORD CheckIFVersion(ST_NCL* pNCL, const char* pszAppVersion);
/// True for the modes in which a server requires a secure connection.
BOOL CheckSecureMode(DWORD dwMode);

/// A version text as a number: the part before the point in the upper 16 bits, the part after it in the lower
/// 16 bits.
DWORD ServerVersionNumber(const char* pszVersion);
/// True for 2.0 to 2.29 and 3.0 to 3.29. Such a server is supported only in compatibility mode.
bool IsOldServer(DWORD dwVersion);

/// Reads the publisher kind from the setting file of a server. True if there is a file for the address, even
/// one without a kind; the kind is 0 then.
bool ReadNPType(unsigned int* uiNPType, const char* pszServerAddress);
/// Stores the kind. True if there is a file for the address that can be read and written.
bool WriteNPType(unsigned int uiNPType, const char* pszServerAddress);
/// Reads a number from the registry. False, with 0 in `dwData`, if there is none.
bool GetRegistryIntValue(HKEY hKeyRoot, LPCSTR lpstrKeyName, LPCSTR lpstrValueName, DWORD& dwData);

/// Converts UTF-16 in native byte order to UTF-8. Permanently sets the locale of the whole process to
/// "en_US.utf8". If the system lacks that locale, the result is in the current locale: in the C locale, only
/// ASCII remains. Characters that cannot be converted are omitted.
std::string toUTF8(const char16_t* utf16buf, size_t utf16len);

// ---------------------------------------------------------------------------------------------------------------------
// Device status: the request of the family, and the meaning of the bits

/// Requests the status of one part of the device. Null arguments are programming errors.
DWORD GetDeviceStatus(ST_NCL* pNCL, ST_HTTP_RESPONSE* pstHttpRes, std::list<ST_COMM_REPLY>& rliReply,
                      DeviceStatusType eType);

/// The largest value that GetDeviceInfoInt accepts, by information type.
extern const DWORD dwCommValueMaxConst[9];

// Convert words of the wire to values of the public records. Return 0, or -1 for an invalid word, which only
// ConvertStackerStatus returns.
int ConvertStackerStatus(DWORD dwValue, StackerStatusBase* pStatus);
int ConvertDrvStatus(DWORD dwValue, DWORD* pStatus);
int ConvertPrnStatus(DWORD dwValue, PrnStatus* pStatus);
int ConvertInkCartridgeStatus(DWORD dwValue, InkStatusBase* pStatus);
int ConvertDeviceFatalError(DWORD dwValue, DeviceFatalError* pStatus);

// Convert reply items of the sizes below to records. Return 0, or the number of the check that failed: the
// caller's check of the size is number 1, the conversions follow. Fields before that of the failed check are
// filled.
constexpr DWORD ALD_STATUS_SIZE = 16;
constexpr DWORD STACKER_STATUS_SIZE = 16;
constexpr DWORD DRV_STATUS_SIZE = 8;
constexpr DWORD DRV_STATUS_EX_SIZE = 16;
constexpr DWORD PRN_STATUS_SIZE = 4;
constexpr DWORD INK_STATUS_SIZE = 24;
constexpr DWORD DEVICE_FATAL_ERROR_SIZE = 4;
constexpr DWORD NOTIFY_STATUS_SIZE = 32;
constexpr DWORD MAINTENANCE_INFO_SIZE = 52;
constexpr DWORD MAINTENANCE_INFO_EX_SIZE = 68;

int UnpackALDStatus(const char* pData, ALDStatus* pStatus);
int UnpackStackerStatus(const char* pData, StackerStatus* pStatus);
int UnpackDrvStatus(const char* pData, DrvStatus* pStatus);
int UnpackDrvStatusEx(const char* pData, DrvStatusEx* pStatus);
int UnpackPrnStatus(const char* pData, PrnStatus* pStatus);
int UnpackInkStatus(const char* pData, InkStatus* pStatus);
int UnpackDeviceFatalError(const char* pData, DeviceFatalError* pStatus);
/// The mode of the server determines which stackers count as full.
int UnpackNotifyStatus(const char* pData, DWORD dwServerMode, NotifyStatus* pStatus);
int UnpackMaintenanceInfo(const char* pData, MaintenanceInfo* pStatus);
int UnpackMaintenanceInfoEx(const char* pData, MaintenanceInfoEx* pStatus);

// ---------------------------------------------------------------------------------------------------------------------
// Jobs: control

extern const char* const pszJobControlQueryValueConst[7]; ///< by JobControlType

/// A job id as the server expects it: eight hexadecimal digits.
std::string ServerJobIDText(int nServerJobID);

/// `bSpecial`: over the plain connection, for maintenance jobs. Null pointers are programming errors.
DWORD ControlJob(ST_NCL* pNCL, ST_HTTP_RESPONSE* pstHttpRes, std::list<ST_COMM_REPLY>& rliReply,
                 int nServerJobID, JobControlType eControlType, BOOL bSpecial);
/// The user name and the password are not used. Null pointers are programming errors.
DWORD ControlJobForMonitor(ST_NCL* pNCL, ST_HTTP_RESPONSE* pstHttpRes, std::list<ST_COMM_REPLY>& rliReply,
                           int nServerJobID, JobControlType eType, const char* pszUserName,
                           const char* pszPassword);

// ---------------------------------------------------------------------------------------------------------------------
// Jobs: uploads

/// Gets the account of a job's folder from the server. The user name is the job id as text.
DWORD GetFileUploadAuthInfo(ST_NCL* pNCL, int nServerJobID, std::string& rstrUserName,
                            std::string& rstrPassword);
/// The path of a file in a job's folder. Always returns NCL_SUCCESS.
DWORD GetFileUploadPath(int nServerJobID, const char* pszFileName, std::string& rstrPath);
/// Creates a job's folder.
DWORD MakeUploadDir(ST_NCL* pNCL, int nServerJobID, const char* pszUserName, const char* pszPassword,
                    CommType eCommType);

/// Sends a part of a file, in requests of at most 10 MiB, directly from `pData`. A total of 0 bytes means
/// `dwDataSize`. If another thread sets the flag to 1 (through std::atomic_ref), the upload stops before the
/// next request with NCL_ERR_CANCEL_SENDING; the flag may be null. A null `pNCL`, `szFileName` or `pData` is
/// a programming error.
DWORD UploadFile(ST_NCL* pNCL, CommType eCommType, int nServerJobID, const char* pszUserName,
                 const char* pszPassword, const char* szFileName, const BYTE* pData, DWORD dwDataSize,
                 ULONGLONG ullFileOffset, ULONGLONG ullTotalFileSize, BOOL* pbCancelFlag);
/// Ends the digest and sends it to the server. A null `pNCL` or `szFileName` is a programming error.
DWORD SendHash(ST_NCL* pNCL, CommType eCommType, int nServerJobID, const char* szFileName,
               MessageDigestIF& md);

/// A file of a job that is uploaded in one call, and the account that uploads it.
struct NCLUpload
{
    int nServerJobID = 0;
    const char* pszFileName = nullptr;
    const BYTE* pData = nullptr;
    DWORD dwSize = 0;
    std::string userName = {};
    std::string password = {};
};

/// A file of the job that is being submitted, with the account that SendJobData received.
NCLUpload UploadOfJob(const ST_NCL* pNCL, const char* pszFileName, const BYTE* pData, DWORD dwSize);

/// The log lines of a failed digest.
struct NCLHashLines
{
    NCLNumberedLine digest; ///< it cannot be computed; receives the value of the failure
    NCLLine hash;           ///< it cannot be sent
};

/// Uploads the file, and its digest unless the server is an old one. The digest is also sent after a failed
/// upload; the result is then the code of the upload. A failed upload is logged with `line`.
DWORD UploadWithHash(ST_NCL* pNCL, const NCLUpload& upload, NCLLine line, const NCLHashLines& hashLines);
/// The second half of UploadWithHash: sends the digest `md` of the file, and returns the result of both
/// halves. A failed digest counts as NCL_ERR_CANCEL_SENDING.
DWORD SendHashOfUpload(ST_NCL* pNCL, const NCLUpload& upload, MessageDigestIF& md, DWORD dwUploadResult,
                       const NCLHashLines& lines);
/// Logs that a digest failed with the value.
void LogDigestFailure(NCLNumberedLine line, DWORD dwFailure);

/// Ends the digest of the disc image that is being uploaded, which must exist, and sends it to the server.
DWORD SendHashOfImage(ST_NCL* pNCL, int nServerJobID);

/// Sends print data as the file with this index, and counts it as a file of the job.
DWORD SendPrnDataBase(ST_NCL* pNCL, int nServerJobID, const BYTE* pPrnData, DWORD dwSendSize, DWORD dwIndex);

// Uploads the files of a job to its folder on the server, each followed by its digest.
#include "LogManager.h"
#include "Operation.h"

#include <algorithm>
#include <cassert>
#include <cstdio>

namespace {

constexpr DWORD LARGEST_PIECE = 0xA00000; ///< bytes of a file in one request; a cancel waits for one piece

constexpr char HASH_PATH[] = "/webapp2/FileHashSetter";
constexpr char HASH_PATH_300N[] = "/webapp/FileHashSetter";

} // namespace

DWORD GetFileUploadAuthInfo(ST_NCL* pNCL, int nServerJobID, std::string& rstrUserName,
                            std::string& rstrPassword)
{
    const std::string id = ServerJobIDText(nServerJobID);
    ST_HTTP_RESPONSE response;
    DWORD result = SendRequest(pNCL,
                               {.path = "/webapp2/UploadInfoGetter?serverjobid=" + id,
                                .type = COMM_TYPE_SELECT,
                                .option = SEND_OPTION_COOKIE},
                               &response);
    if (result != NCL_SUCCESS) {
        return result;
    }
    std::list<ST_COMM_REPLY> items;
    result = ParseCommReply(response.m_pContent, response.m_dwContentLength, items, 1);
    if (result != NCL_SUCCESS) {
        return result;
    }
    const ST_COMM_REPLY& password = items.front();
    rstrUserName = id;
    rstrPassword.clear();
    if (password.m_pData != nullptr) {
        rstrPassword.assign(password.m_pData, password.m_dwDataSize);
    }
    return NCL_SUCCESS;
}

DWORD GetFileUploadPath(int nServerJobID, const char* pszFileName, std::string& rstrPath)
{
    rstrPath = "/uploads/" + ServerJobIDText(nServerJobID) + "/" + pszFileName;
    return NCL_SUCCESS;
}

DWORD MakeUploadDir(ST_NCL* pNCL, int nServerJobID, const char* pszUserName, const char* pszPassword,
                    CommType eCommType)
{
    std::string path;
    GetFileUploadPath(nServerJobID, "", path); // the path of the folder ends with the slash
    ST_HTTP_RESPONSE response;
    return SendRequest(pNCL, CHttp::METHOD_MKCOL, path.c_str(), CHttp::VERSION_1_1, HOST_OF_REQUESTS,
                       pszUserName, pszPassword, nullptr, nullptr, 0, &response, eCommType, 0);
}

NCLUpload UploadOfJob(const ST_NCL* pNCL, const char* pszFileName, const BYTE* pData, DWORD dwSize)
{
    return {.nServerJobID = pNCL->m_nServerJobID,
            .pszFileName = pszFileName,
            .pData = pData,
            .dwSize = dwSize,
            .userName = pNCL->m_strUploadUserName,
            .password = pNCL->m_strUploadPassword};
}

DWORD UploadFile(ST_NCL* pNCL, CommType eCommType, int nServerJobID, const char* pszUserName,
                 const char* pszPassword, const char* szFileName, const BYTE* pData, DWORD dwDataSize,
                 ULONGLONG ullFileOffset, ULONGLONG ullTotalFileSize, BOOL* pbCancelFlag)
{
    assert(pNCL != nullptr);
    assert(szFileName != nullptr);
    assert(pData != nullptr);
    const ULONGLONG total = ullTotalFileSize != 0 ? ullTotalFileSize : dwDataSize;
    std::string path;
    GetFileUploadPath(nServerJobID, szFileName, path);
    for (DWORD offset = 0; offset < dwDataSize;) {
        // The flag publishes no other data, so relaxed order suffices.
        if (pbCancelFlag != nullptr && std::atomic_ref(*pbCancelFlag).load(std::memory_order_relaxed) == 1) {
            return NCL_ERR_CANCEL_SENDING;
        }
        const DWORD piece = std::min(dwDataSize - offset, LARGEST_PIECE);
        const ULONGLONG first = ullFileOffset + offset;
        const std::string range = "Content-Range: bytes " + std::to_string(first) + "-" +
                                  std::to_string(first + piece - 1) + "/" + std::to_string(total) + "\r\n";
        ST_HTTP_RESPONSE response;
        const DWORD result =
            SendRequest(pNCL, CHttp::METHOD_PUT, path.c_str(), CHttp::VERSION_1_1, HOST_OF_REQUESTS,
                        pszUserName, pszPassword, range.c_str(),
                        reinterpret_cast<const char*>(pData) + offset, piece, &response, eCommType, 0);
        if (result != NCL_SUCCESS) {
            CLogManager log;
            log.LOG_ERR("\t## trace ## UploadFile SendRequest() Range Header = %s", range.c_str());
            return response.m_eStatus == CHttp::STATUS_FORBIDDEN ? NCL_ERR_SERVER_JOB_ID : result;
        }
        offset += piece;
    }
    return NCL_SUCCESS;
}

DWORD SendHash(ST_NCL* pNCL, CommType eCommType, int nServerJobID, const char* szFileName,
               MessageDigestIF& md)
{
    assert(pNCL != nullptr);
    assert(szFileName != nullptr);
    const std::string body = "serverjobid=" + ServerJobIDText(nServerJobID) + "&filename=" + szFileName +
                             "&hashtype=" + md.GetTypeName() + "&hash=" + md.End();
    ST_HTTP_RESPONSE response; // only its HTTP status counts
    const DWORD result =
        SendRequest(pNCL,
                    {.path = pNCL->m_dwNPType == NCL_NPTYPE_300N ? HASH_PATH_300N : HASH_PATH,
                     .method = CHttp::METHOD_POST,
                     .body = body.data(),
                     .bodySize = static_cast<DWORD>(body.size()),
                     .type = eCommType,
                     .option = SEND_OPTION_FORM},
                    &response);
    if (result != NCL_SUCCESS) {
        std::printf("SendPrnDataBase, %s ret %d\n", HASH_PATH, static_cast<int>(result));
    }
    return result;
}

DWORD UploadWithHash(ST_NCL* pNCL, const NCLUpload& upload, NCLLine line, const NCLHashLines& hashLines)
{
    const DWORD result =
        UploadFile(pNCL, COMM_TYPE_SELECT, upload.nServerJobID, upload.userName.c_str(),
                   upload.password.c_str(), upload.pszFileName, upload.pData, upload.dwSize, 0, 0, nullptr);
    if (result != NCL_SUCCESS) {
        LogTrace(line, result);
    }
    if (pNCL->m_dwCompatiMode == 1) {
        return result;
    }
    MessageDigest md(BCH_HASH_TYPE_SHA1);
    return SendHashOfUpload(pNCL, upload, md, result, hashLines);
}

DWORD SendHashOfUpload(ST_NCL* pNCL, const NCLUpload& upload, MessageDigestIF& md, DWORD dwUploadResult,
                       const NCLHashLines& lines)
{
    DWORD result = dwUploadResult;
    const DWORD failure = md.Update(upload.pData, upload.dwSize);
    if (failure != 0) {
        LogDigestFailure(lines.digest, failure);
        if (result == NCL_SUCCESS) {
            result = NCL_ERR_CANCEL_SENDING;
        }
    }
    const DWORD hashResult = SendHash(pNCL, COMM_TYPE_HTTP, upload.nServerJobID, upload.pszFileName, md);
    if (result != NCL_SUCCESS || hashResult == NCL_SUCCESS) {
        return result;
    }
    return LogTrace(lines.hash, hashResult);
}

void LogDigestFailure(NCLNumberedLine line, DWORD dwFailure)
{
    line.Error(GetNCLErrorString(NCL_ERR_CALC_HASH), static_cast<int>(dwFailure));
}

// Submits a job to the server, file by file. DiscImage.cpp sends the disc image.
#include "BigEndian.h"
#include "LogManager.h"
#include "Operation.h"

#include <cstdio>

namespace {

constexpr DWORD PRN_INDEX_LIMIT = 1000; ///< file names have room for three digits

struct RegisterLines
{
    NCLExchangeLines exchange;
    NCLLine invalid;
    NCLLine authInfo;
    NCLLine uploadDir;
};

/// Registers a job and creates its folder.
DWORD RegisterJob(NCLOperation& operation, const NCLRequest& request, int* pnServerJobID,
                  std::string& rstrUserName, std::string& rstrPassword, const RegisterLines& lines)
{
    DWORD result = operation.Exchange(request, 1, lines.exchange);
    if (result != NCL_SUCCESS) {
        return result;
    }
    if (operation.Item().m_dwDataSize != sizeof(DWORD)) {
        return LogInvalid(lines.invalid);
    }
    const int id = static_cast<int>(BigEndian32(operation.Item().m_pData));
    ST_NCL* pNCL = operation.Object();
    result = GetFileUploadAuthInfo(pNCL, id, rstrUserName, rstrPassword);
    if (result != NCL_SUCCESS) {
        return LogTrace(lines.authInfo, result);
    }
    result = MakeUploadDir(pNCL, id, rstrUserName.c_str(), rstrPassword.c_str(), COMM_TYPE_SELECT);
    if (result != NCL_SUCCESS) {
        LogTrace(lines.uploadDir, result);
        if (pNCL->m_dwCompatiMode == 1) {
            return result;
        }
    }
    *pnServerJobID = id;
    return NCL_SUCCESS;
}

struct PrnDataLines
{
    NCLNumberedLine start;
    NCLLine trace;
    NCLNumberedLine end;
};

/// Sends one file of print data. The end line contains the result, even of a failure.
DWORD SendOnePrnData(const char* pszOperation, DWORD dwHandle, int nServerJobID, const BYTE* pPrnData,
                     DWORD dwSendSize, std::optional<DWORD> index, const PrnDataLines& lines)
try {
    NCLOperation operation(dwHandle, NCLOperation::ACTION, lines.start, nServerJobID);
    DWORD result = operation.Enter(pPrnData != nullptr && index.value_or(0) < PRN_INDEX_LIMIT);
    if (result != NCL_SUCCESS) {
        return result;
    }
    ST_NCL* pNCL = operation.Object();
    result = SendPrnDataBase(pNCL, nServerJobID, pPrnData, dwSendSize, index.value_or(pNCL->m_unPrnIndex));
    if (result != NCL_SUCCESS) {
        LogTrace(lines.trace, result);
    }
    operation.End(lines.end, static_cast<int>(result));
    return result;
} catch (const std::bad_alloc&) {
    return OutOfMemory(pszOperation);
}

} // namespace

DWORD SendJobData(DWORD dwHandle, const BYTE* pJobData, DWORD dwSendSize, int* pnServerJobIDOut)
try {
    NCLOperation operation(dwHandle, NCLOperation::ACTION, "%s , SendJobData , Start");
    DWORD result = operation.Enter(pJobData != nullptr && pnServerJobIDOut != nullptr);
    std::string userName;
    std::string password;
    int id = 0;
    if (result == NCL_SUCCESS) {
        result = RegisterJob(operation,
                             {.path = "/webapp2/NormalJobSetter",
                              .method = CHttp::METHOD_POST,
                              .body = reinterpret_cast<const char*>(pJobData),
                              .bodySize = dwSendSize,
                              .type = COMM_TYPE_SELECT,
                              .option = SEND_OPTION_COOKIE},
                             &id, userName, password,
                             {.exchange = {.request = "\t## trace ## SendJobData SendRequest() %s",
                                           .reply = "\t## trace ## SendJobData ParseCommReply() %s"},
                              .invalid = "[CommLib] SendJobData %s 1",
                              .authInfo = "\t## trace ## SendJobData GetFileUploadAuthInfo() %s",
                              .uploadDir = "\t## trace ## SendJobData MakeUploadDir() %s"});
    }
    if (result != NCL_SUCCESS) {
        return result;
    }
    ST_NCL* pNCL = operation.Object();
    pNCL->m_ullDiscImageOfs = 0;
    pNCL->m_unPrnIndex = 0;
    pNCL->m_strUploadUserName = userName;
    pNCL->m_strUploadPassword = password;
    pNCL->m_nServerJobID = id;
    *pnServerJobIDOut = id;
    return operation.End("%s , SendJobData , End(%d)", id);
} catch (const std::bad_alloc&) {
    return OutOfMemory("SendJobData");
}

DWORD SendDiscInfo(DWORD dwHandle, int nServerJobID, const BYTE* pDiscInfo, DWORD dwSendSize)
try {
    NCLOperation operation(dwHandle, NCLOperation::ACTION, "%s , SendDiscInfo , Start(%d)", nServerJobID);
    DWORD result = operation.Enter(pDiscInfo != nullptr);
    if (result != NCL_SUCCESS) {
        return result;
    }
    if (nServerJobID != operation.Object()->m_nServerJobID) {
        CLogManager().LOG_ERR("[CommLib] SendDiscInfo Invalid ServerJobID");
        return NCL_ERR_SERVER_JOB_ID;
    }
    ST_NCL* pNCL = operation.Object();
    result = ControlJob(pNCL, operation.Response(), operation.Items(), nServerJobID,
                        JOB_CONTROL_TYPE_PRE_COMMIT_EMPTY_DISC_INFO, FALSE);
    if (result != NCL_SUCCESS) {
        return LogTrace("\t## trace ## SendDiscInfo ControlJob() 1 %s", result);
    }
    result = UploadWithHash(pNCL, UploadOfJob(pNCL, "DiscInfo.xml", pDiscInfo, dwSendSize),
                            "\t## trace ## SendDiscInfo UploadFile() %s",
                            {.digest = "\t## trace ## SendDiscInfo md.Update %s(%d)",
                             .hash = "\t## trace ## SendDiscInfo SendHash() %s"});
    if (result != NCL_SUCCESS) {
        return result;
    }
    result = ControlJob(pNCL, operation.Response(), operation.Items(), nServerJobID,
                        JOB_CONTROL_TYPE_COMMIT_DISC_INFO, FALSE);
    return result == NCL_SUCCESS ? operation.End("%s , SendDiscInfo , End")
                                 : LogTrace("\t## trace ## SendDiscInfo ControlJob() 2 %s", result);
} catch (const std::bad_alloc&) {
    return OutOfMemory("SendDiscInfo");
}

DWORD SendDiscWriteInfo(DWORD dwHandle, int nServerJobID, const BYTE* pDiscWriteInfo, DWORD dwSendSize)
try {
    NCLOperation operation(dwHandle, NCLOperation::ACTION, "%s , SendDiscWriteInfo , Start(%d)",
                           nServerJobID);
    DWORD result = operation.Enter(pDiscWriteInfo != nullptr);
    if (result != NCL_SUCCESS) {
        return result;
    }
    if (nServerJobID != operation.Object()->m_nServerJobID) {
        CLogManager().LOG_ERR("[CommLib] SendDiscWriteInfo Invalid ServerJobID");
        return NCL_ERR_SERVER_JOB_ID;
    }
    ST_NCL* pNCL = operation.Object();
    result = UploadWithHash(pNCL, UploadOfJob(pNCL, "DiscWriteInfo", pDiscWriteInfo, dwSendSize),
                            "\t## trace ## SendDiscWriteInfo UploadFile() %s",
                            {.digest = "\t## trace ## SendDiscWriteInfo md.Update %s(%d)",
                             .hash = "\t## trace ## SendDiscWriteInfo SendHash() %s"});
    return result == NCL_SUCCESS ? operation.End("%s , SendDiscWriteInfo , End") : result;
} catch (const std::bad_alloc&) {
    return OutOfMemory("SendDiscWriteInfo");
}

DWORD SendPrnData(DWORD dwHandle, int nServerJobID, const BYTE* pPrnData, DWORD dwSendSize)
{
    return SendOnePrnData("SendPrnData", dwHandle, nServerJobID, pPrnData, dwSendSize, std::nullopt,
                          {.start = "%s , SendPrnData , Start(%d)",
                           .trace = "\t## trace ## SendPrnData SendPrnDataBase() %s",
                           .end = "%s , SendPrnData , End(%d)"});
}

DWORD SendPrnDataExt(DWORD dwHandle, int nServerJobID, const BYTE* pPrnData, DWORD dwSendSize, DWORD dwIndex)
{
    return SendOnePrnData("SendPrnDataExt", dwHandle, nServerJobID, pPrnData, dwSendSize, dwIndex,
                          {.start = "%s , SendPrnDataExt , Start(%d)",
                           .trace = "\t## trace ## SendPrnDataExt SendPrnDataBase() %s",
                           .end = "%s , SendPrnDataExt , End(%d)"});
}

DWORD SendPrnDataBase(ST_NCL* pNCL, int nServerJobID, const BYTE* pPrnData, DWORD dwSendSize, DWORD dwIndex)
{
    NCLUpload upload{.nServerJobID = nServerJobID, .pData = pPrnData, .dwSize = dwSendSize};
    const DWORD result = GetFileUploadAuthInfo(pNCL, nServerJobID, upload.userName, upload.password);
    if (result != NCL_SUCCESS) {
        return result;
    }
    char name[32]; // an index has at most ten digits
    snprintf(name, sizeof name, "PrnData_%03u.prn", dwIndex);
    upload.pszFileName = name;
    ++pNCL->m_unPrnIndex;
    return UploadWithHash(pNCL, upload, "\t## trace ## SendPrnDataBase UploadFile() %s",
                          {.digest = "\t## trace ## SendPrnDataBase md.Update %s(%d)",
                           .hash = "\t## trace ## SendPrnDataBase SendHash() %s"});
}

DWORD SendSpecialJobData(DWORD dwHandle, const BYTE* pJobData, DWORD dwJobDataSize, const BYTE* pPrnData,
                         DWORD dwPrnDataSize, int* pnServerJobIDOut)
try {
    NCLOperation operation(dwHandle, NCLOperation::ACTION, "%s , SendSpecialJobData , Start");
    DWORD result = operation.Enter(pJobData != nullptr && pPrnData != nullptr && pnServerJobIDOut != nullptr);
    NCLUpload upload{
        .nServerJobID = 0, .pszFileName = "PrnData_Special.prn", .pData = pPrnData, .dwSize = dwPrnDataSize};
    if (result == NCL_SUCCESS) {
        result = RegisterJob(operation,
                             {.path = "/webapp2/SpecialJobSetter",
                              .method = CHttp::METHOD_POST,
                              .body = reinterpret_cast<const char*>(pJobData),
                              .bodySize = dwJobDataSize,
                              .type = COMM_TYPE_HTTP,
                              .option = 0},
                             &upload.nServerJobID, upload.userName, upload.password,
                             {.exchange = {.request = "\t## trace ## SendSpecialJobData SendRequest() %s",
                                           .reply = "\t## trace ## SendSpecialJobData ParseCommReply() %s"},
                              .invalid = "[CommLib] SendSpecialJobData %s 1",
                              .authInfo = "\t## trace ## SendSpecialJobData GetFileUploadAuthInfo() %s",
                              .uploadDir = "\t## trace ## SendSpecialJobData MakeUploadDir() %s"});
    }
    if (result != NCL_SUCCESS) {
        return result;
    }

    ST_NCL* pNCL = operation.Object();
    result = UploadFile(pNCL, COMM_TYPE_HTTP, upload.nServerJobID, upload.userName.c_str(),
                        upload.password.c_str(), upload.pszFileName, pPrnData, dwPrnDataSize, 0, 0, nullptr);
    if (pNCL->m_dwCompatiMode == 1) {
        if (result != NCL_SUCCESS) {
            return LogTrace("\t## trace ## SendSpecialJobData FileUpload() %s", result);
        }
    } else {
        MessageDigest md(BCH_HASH_TYPE_SHA1);
        // A failed digest is logged under the name of SendDiscInfo, which readers of the log expect.
        result = SendHashOfUpload(pNCL, upload, md, result,
                                  {.digest = "\t## trace ## SendDiscInfo md.Update %s(%d)",
                                   .hash = "\t## trace ## SendSpecialJobData SendHash() %s"});
        if (result != NCL_SUCCESS) {
            return result;
        }
    }

    result = ControlJob(pNCL, operation.Response(), operation.Items(), upload.nServerJobID,
                        JOB_CONTROL_TYPE_COMMIT, TRUE);
    if (result != NCL_SUCCESS) {
        return LogTrace("\t## trace ## SendSpecialJobData ControlJob() %s", result);
    }
    *pnServerJobIDOut = upload.nServerJobID;
    return operation.End("%s , SendSpecialJobData , End(%d)", upload.nServerJobID);
} catch (const std::bad_alloc&) {
    return OutOfMemory("SendSpecialJobData");
}

// Sends a disc image to the server, one piece per call. A second thread sends the piece while the calling
// thread adds it to the digest of the image.
#include "Operation.h"

#include <system_error>
#include <thread>

namespace {

/// Adds the piece to the digest of the image, which the first piece creates. Returns 0, or the error of the
/// digest.
DWORD DigestPiece(ST_NCL* pNCL, const NCLUpload& piece)
{
    if (pNCL->m_pMD == nullptr) {
        pNCL->m_pMD = std::make_unique<MessageDigest>(BCH_HASH_TYPE_SHA1);
    }
    pNCL->m_strImageFileName = piece.pszFileName;
    return pNCL->m_pMD->Update(piece.pData, piece.dwSize);
}

/// Sends the piece. Unless the server is an old one, adds it to the digest at the same time.
DWORD SendPiece(ST_NCL* pNCL, const NCLUpload& piece, ULONGLONG total)
{
    DWORD result = NCL_SUCCESS;
    DWORD digestFailure = 0;
    const auto upload = [&] {
        try {
            result = UploadFile(pNCL, COMM_TYPE_SELECT, piece.nServerJobID, piece.userName.c_str(),
                                piece.password.c_str(), piece.pszFileName, piece.pData, piece.dwSize,
                                pNCL->m_ullDiscImageOfs, total, &pNCL->m_bDiscImageCancelSending);
        } catch (const std::bad_alloc&) {
            result = OutOfMemory("SendDiscImage");
        }
    };
    std::jthread thread;
    try {
        thread = std::jthread(upload);
    } catch (const std::system_error&) {
        result = NCL_ERR_PROCESS_CREATE;
    }
    if (pNCL->m_dwCompatiMode != 1) {
        digestFailure = DigestPiece(pNCL, piece);
    }
    if (thread.joinable()) {
        thread.join();
    }
    if (digestFailure != 0) {
        LogDigestFailure("\t## trace ## SendDiscImage md.Update %s(%d)", digestFailure);
        if (result == NCL_SUCCESS) {
            return NCL_ERR_CANCEL_SENDING;
        }
    }
    return result;
}

} // namespace

DWORD SendHashOfImage(ST_NCL* pNCL, int nServerJobID)
{
    const DWORD result =
        SendHash(pNCL, COMM_TYPE_HTTP, nServerJobID, pNCL->m_strImageFileName.c_str(), *pNCL->m_pMD);
    pNCL->m_pMD.reset();
    pNCL->m_strImageFileName.clear();
    return result;
}

DWORD SendDiscImage(DWORD dwHandle, int nServerJobID, const BYTE* pDiscImage, DWORD dwSendSize,
                    DWORD dwTotalDiscSizeLow, DWORD dwTotalDiscSizeHigh, const char* pszImageName)
try {
    NCLOperation operation(dwHandle, NCLOperation::ACTION, "%s , SendDiscImage , Start(%d)", nServerJobID);
    DWORD result = operation.Enter(pDiscImage == nullptr || pszImageName != nullptr);
    if (result != NCL_SUCCESS) {
        return result;
    }
    if (nServerJobID != operation.Object()->m_nServerJobID) {
        CLogManager().LOG_ERR("[CommLib] SendDiscImage Invalid ServerJobID");
        return NCL_ERR_SERVER_JOB_ID;
    }
    ST_NCL* pNCL = operation.Object();
    const bool isCancel = pDiscImage == nullptr;
    std::atomic_ref(pNCL->m_bDiscImageCancelSending)
        .store(isCancel ? TRUE : FALSE, std::memory_order_relaxed);
    if (isCancel) {
        return operation.End("%s , SendDiscImage , End");
    }

    const std::string name = std::string("DiscImage_") + pszImageName;
    const ULONGLONG total = ULONGLONG{dwTotalDiscSizeHigh} << 32 | dwTotalDiscSizeLow;
    const bool isOldServer = pNCL->m_dwCompatiMode == 1;
    result = SendPiece(pNCL, UploadOfJob(pNCL, name.c_str(), pDiscImage, dwSendSize), total);
    if (result != NCL_SUCCESS) {
        LogTrace("\t## trace ## SendDiscImage UploadFile() %s", result);
        if (!isOldServer) {
            SendHashOfImage(pNCL, nServerJobID);
        }
        return result;
    }

    pNCL->m_ullDiscImageOfs += dwSendSize;
    if (pNCL->m_ullDiscImageOfs == total) {
        pNCL->m_ullDiscImageOfs = 0;
        if (!isOldServer && pNCL->m_pMD != nullptr) {
            result = SendHashOfImage(pNCL, nServerJobID);
            if (result != NCL_SUCCESS) {
                return LogTrace("\t## trace ## SendDiscImage SendHash() %s", result);
            }
        }
    }
    return operation.End("%s , SendDiscImage , End");
} catch (const std::bad_alloc&) {
    return OutOfMemory("SendDiscImage");
}

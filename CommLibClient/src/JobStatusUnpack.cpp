// Decodes a job as the server sends it: numbers are big-endian, texts are little-endian UTF-16.
#include "BigEndian.h"
#include "NW_Com_Lib_internal.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

// Offsets of the fields in bytes.
constexpr size_t STATUS_AT = 0;
constexpr size_t FACTOR_AT = 1;
constexpr size_t PUBLICATION_NUMBER_AT = 2;
constexpr size_t COMPLETION_NUMBER_AT = 4;
constexpr size_t PERSON_SIZE_AT = 6;
constexpr size_t PERSON_AT = 7;
constexpr size_t JOB_TYPE_AT = 135;
constexpr size_t LOAD_STACKER_AT = 136;
constexpr size_t EJECT_STACKER_AT = 138;
constexpr size_t ESTIMATE_TIME_AT = 140;
constexpr size_t ERROR_NUMBER_AT = 144;
constexpr size_t NAME_SIZE_AT = 146;
constexpr size_t NAME_AT = 148;
constexpr size_t HISTORY_AT = 658;
constexpr size_t PRINT_MODE_AT = 662;
constexpr size_t PUBLISH_MODE_AT = 663;
constexpr size_t IDENTIFICATION_AT = 664;
constexpr size_t SERVER_JOB_ID_AT = 1174;
constexpr size_t REMAINING_TIME_AT = 1178;

constexpr DWORD RECORD_SIZE = 1178;
constexpr DWORD RECORD_SIZE_EX = 1182;

constexpr size_t PERSON_ROOM = JOB_TYPE_AT - PERSON_AT; ///< bytes
constexpr size_t TEXT_ROOM = HISTORY_AT - NAME_AT; ///< bytes, of the name and of the identification alike

constexpr DWORD HISTORY_WRITE_ERROR = 0x1;
constexpr DWORD HISTORY_COVER_OPEN = 0x2;
constexpr DWORD HISTORY_STACKER4_OPEN = 0x4;

/// Factors that turn a cancelled job into a failed one: the device aborted it, not a user.
constexpr DWORD fatalFactors[] = {
    NCL_JOB_STATUS_FACTOR_ERR_OFFLINE,          NCL_JOB_STATUS_FACTOR_ERR_DISC_PICK,
    NCL_JOB_STATUS_FACTOR_ERR_DISC_DROP,        NCL_JOB_STATUS_FACTOR_ERR_DISC_SUPPLY,
    NCL_JOB_STATUS_FACTOR_ERR_DISC_RELEASE,     NCL_JOB_STATUS_FACTOR_ERR_DRV_TRAY,
    NCL_JOB_STATUS_FACTOR_ERR_PRT_TRAY,         NCL_JOB_STATUS_FACTOR_ERR_ARM_MOVE,
    NCL_JOB_STATUS_FACTOR_ERR_INK_PAD_OVERFLOW, NCL_JOB_STATUS_FACTOR_ERR_PRT_MAINTENANCE,
    NCL_JOB_STATUS_FACTOR_ERR_PRT_FATAL,        NCL_JOB_STATUS_FACTOR_ERR_DRV_FATAL,
    NCL_JOB_STATUS_FACTOR_ERR_ALD_FATAL,        NCL_JOB_STATUS_FACTOR_ERR_CONDITION_FAILURE,
};

/// Converts a text of `size` bytes to UTF-8 and copies it without a terminating zero byte. An odd last byte
/// is ignored.
template <size_t N>
void CopyText(const BYTE* wire, size_t size, char (&text)[N])
{
    std::array<char16_t, TEXT_ROOM / 2> units;
    const size_t count = std::min(size / 2, units.size());
    for (size_t index = 0; index < count; ++index) {
        units[index] = static_cast<char16_t>(wire[index * 2] | wire[index * 2 + 1] << 8);
    }
    const std::string utf8 = toUTF8(units.data(), count);
    std::memcpy(text, utf8.data(), std::min(utf8.size(), N - 1));
}

/// The status, corrected by the other fields of the job.
DWORD RefinedStatus(DWORD status, DWORD factor, bool isComplete, DWORD history)
{
    if (status == NCL_JOB_STATUS_FINISHED && isComplete && history != 0) {
        return NCL_JOB_STATUS_FINISHED_WARNING;
    }
    if (status == NCL_JOB_STATUS_CANCELLED &&
        std::find(std::begin(fatalFactors), std::end(fatalFactors), factor) != std::end(fatalFactors)) {
        return NCL_JOB_STATUS_ERROR;
    }
    return status;
}

/// Unpacks a record whose size has been checked.
template <class Record>
JobRecordCheck Unpack(const char* data, Record& job)
{
    const auto* wire = reinterpret_cast<const BYTE*>(data);
    job.dwFactor = static_cast<DWORD>(ConvertJobStatusFactor(wire[FACTOR_AT]));
    job.dwPublicationNumber = BigEndian16(data + PUBLICATION_NUMBER_AT);
    job.dwCompletionNumber = BigEndian16(data + COMPLETION_NUMBER_AT);
    if (wire[PERSON_SIZE_AT] > PERSON_ROOM) {
        return JOB_RECORD_BAD_PERSON_SIZE;
    }
    CopyText(wire + PERSON_AT, wire[PERSON_SIZE_AT], job.wszPublicationPerson);

    const int type = ConvertJobType(wire[JOB_TYPE_AT], wire[PRINT_MODE_AT]);
    if (type == -1) {
        return JOB_RECORD_BAD_JOB_TYPE;
    }
    job.dwJobType = static_cast<DWORD>(type);
    const int source = ConvertLoadStacker(BigEndian16(data + LOAD_STACKER_AT));
    if (source == -1) {
        return JOB_RECORD_BAD_LOAD_STACKER;
    }
    job.dwSource = static_cast<DWORD>(source);
    const int destination = ConvertEjectStacker(BigEndian16(data + EJECT_STACKER_AT));
    if (destination == -1) {
        return JOB_RECORD_BAD_EJECT_STACKER;
    }
    job.dwDestination = static_cast<DWORD>(destination);

    job.dwEstimateTime = BigEndian32(data + ESTIMATE_TIME_AT);
    job.dwErrorNumber = BigEndian16(data + ERROR_NUMBER_AT);
    const WORD nameSize = BigEndian16(data + NAME_SIZE_AT);
    if (nameSize > TEXT_ROOM) {
        return JOB_RECORD_BAD_NAME_SIZE;
    }
    CopyText(wire + NAME_AT, nameSize, job.wszJobName);
    const DWORD history = BigEndian32(data + HISTORY_AT);
    job.ErrorHistory.bWriteError = (history & HISTORY_WRITE_ERROR) != 0;
    job.ErrorHistory.bCoverOpen = (history & HISTORY_COVER_OPEN) != 0;
    job.ErrorHistory.bStacker4Open = (history & HISTORY_STACKER4_OPEN) != 0;

    const int publishMode = ConvertPublishMode(wire[PUBLISH_MODE_AT]);
    if (publishMode == -1) {
        return JOB_RECORD_BAD_PUBLISH_MODE;
    }
    job.dwPubMode = static_cast<DWORD>(publishMode);
    CopyText(wire + IDENTIFICATION_AT, TEXT_ROOM, job.wszJobIdentificationID);
    job.nServerJobID = BigEndian32(data + SERVER_JOB_ID_AT);
    job.dwJobStatus = RefinedStatus(static_cast<DWORD>(ConvertJobStatus(wire[STATUS_AT])), job.dwFactor,
                                    job.dwPublicationNumber == job.dwCompletionNumber, history);
    return JOB_RECORD_GOOD;
}

} // namespace

JobRecordCheck UnpackJobStatus(const char* pData, DWORD dwSize, JobStatus* pJob)
{
    if (dwSize != RECORD_SIZE) {
        return JOB_RECORD_BAD_SIZE;
    }
    return Unpack(pData, *pJob);
}

JobRecordCheck UnpackJobStatusEx(const char* pData, DWORD dwSize, DWORD dwType, JobStatusEx* pJob)
{
    const bool hasRemainingTime = dwType == NCL_JST_PROCESS_JOB_EX;
    if (dwSize != (hasRemainingTime ? RECORD_SIZE_EX : RECORD_SIZE)) {
        return JOB_RECORD_BAD_SIZE;
    }
    pJob->dwRemainingTime = hasRemainingTime ? BigEndian32(pData + REMAINING_TIME_AT) : 0;
    return Unpack(pData, *pJob);
}

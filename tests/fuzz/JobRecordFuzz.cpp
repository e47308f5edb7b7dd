// Feeds any bytes to the parser as a server's list of jobs: the first byte is the kind of the list, the rest
// is the reply. No input causes a write beyond the fields of a record.
#include "NW_Com_Lib_internal.h"

#include <cassert>
#include <cstring>

namespace {

/// A record between two guard areas, which must not change.
template <class Record>
class Guarded
{
public:
    Guarded()
    {
        std::memset(m_before, GUARD, sizeof m_before);
        std::memset(m_after, GUARD, sizeof m_after);
    }

    void Check(JobRecordCheck result) const
    {
        for (size_t index = 0; index < sizeof m_before; ++index) {
            assert(m_before[index] == GUARD && m_after[index] == GUARD);
        }
        assert(IsEnded(job.wszPublicationPerson));
        assert(IsEnded(job.wszJobName));
        assert(IsEnded(job.wszJobIdentificationID));
        assert(job.dwFactor < 52);
        if (result == JOB_RECORD_GOOD) {
            assert(job.dwJobStatus <= NCL_JOB_STATUS_CANCELLED || job.dwJobStatus == 13);
            assert(job.dwJobType <= NCL_JOB_TYPE_PRN_POSITION_CORRECTION || job.dwJobType == 13);
            assert(job.dwSource <= 3 && job.dwDestination <= 8 && job.dwPubMode <= 4);
        }
    }

private:
    static constexpr unsigned char GUARD = 0xAB;

    template <size_t N>
    static bool IsEnded(const char (&text)[N])
    {
        return std::memchr(text, 0, N) != nullptr;
    }

    unsigned char m_before[64];

public:
    Record job{};

private:
    unsigned char m_after[64];
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0) {
        return 0;
    }
    const DWORD type = data[0] % 4;
    // A copy of the exact size, so that a sanitizer detects a read beyond it.
    const std::vector<char> reply(data + 1, data + size);
    std::list<ST_COMM_REPLY> items;
    ParseCommReply(reply.data(), static_cast<DWORD>(reply.size()), items, 0);
    for (const ST_COMM_REPLY& item : items) {
        Guarded<JobStatusEx> large;
        large.Check(UnpackJobStatusEx(item.m_pData, item.m_dwDataSize, type, &large.job));
        Guarded<JobStatus> small;
        small.Check(UnpackJobStatus(item.m_pData, item.m_dwDataSize, &small.job));
    }
    return 0;
}

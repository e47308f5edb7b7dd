// Parses the reply with a list of 1000 jobs, compared with a copy of the same bytes.
#include "JobRecord.h"
#include "NW_Com_Lib_internal.h"
#include "Stopwatch.h"

#include <cstdlib>
#include <cstring>

namespace {

constexpr size_t JOBS = 1000;
constexpr int REPETITIONS = 101;

std::string Reply(const JobRecord& record)
{
    std::string body;
    for (size_t count = 0; count < JOBS; ++count) {
        body +=
            {'\0', static_cast<char>(record.Bytes().size() >> 8), static_cast<char>(record.Bytes().size())};
        body += record.Bytes();
    }
    return body;
}

/// Returns the median time of the parsing, in milliseconds.
double Measure(const std::string& what, const std::string& reply)
{
    std::vector<JobStatusEx> jobs(JOBS);
    std::vector<char> copy(reply.size());
    const auto parse = [&] {
        std::list<ST_COMM_REPLY> items;
        ParseCommReply(reply.data(), static_cast<DWORD>(reply.size()), items, 0);
        std::memset(static_cast<void*>(jobs.data()), 0, jobs.size() * sizeof jobs[0]);
        JobStatusEx* job = jobs.data();
        for (const ST_COMM_REPLY& item : items) {
            if (UnpackJobStatusEx(item.m_pData, item.m_dwDataSize, NCL_JST_PROCESS_JOB_EX, job++) !=
                JOB_RECORD_GOOD) {
                std::puts("a bad record");
                std::exit(EXIT_FAILURE);
            }
        }
    };
    const auto plainCopy = [&] {
        std::memcpy(copy.data(), reply.data(), reply.size());
        asm volatile("" : : "r"(copy.data()) : "memory"); // do not optimize the copy away
    };
    return Compare(what, {{"ParseCommReply and UnpackJobStatusEx", parse, {}}, {"memcpy", plainCopy, {}}},
                   REPETITIONS)[0] /
           1000;
}

} // namespace

int main()
{
    JobRecord small(JobRecord::SIZE_EX);
    small.Person(u"Ada").Name(u"Holiday").Identification(u"J-17");
    Measure("1000 jobs with short names", Reply(small));
    JobRecord full(JobRecord::SIZE_EX);
    full.Person(std::u16string(64, u'\u3042')).Name(std::u16string(255, u'\u3042'));
    full.Identification(std::u16string(255, u'\u3042'));
    const double milliseconds = Measure("1000 jobs with texts of full length", Reply(full));
    PrintGoal("1000 job records, full-length texts", milliseconds, 5, "ms");
    return 0;
}

#include "FakePublisher.h"
#include "JobRecord.h"
#include "SyslogLines.h"

#include <cstring>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::string ListOf(const std::vector<JobRecord>& records)
{
    std::string body;
    for (const JobRecord& record : records) {
        body += ReplyItem(record.Bytes());
    }
    return HttpResponse(body);
}

std::vector<JobRecord> Jobs(size_t count, size_t size = JobRecord::SIZE)
{
    std::vector<JobRecord> records;
    for (size_t index = 0; index < count; ++index) {
        records.push_back(JobRecord(size).ServerJobID(static_cast<uint32_t>(index + 1)));
    }
    return records;
}

/// Memory for a list, filled with old data.
template <class Record>
std::vector<Record> Dirty(size_t count)
{
    std::vector<Record> jobs(count);
    std::memset(static_cast<void*>(jobs.data()), 0xAB, sizeof(Record) * count);
    return jobs;
}

template <class Record>
bool IsDirty(const Record& job)
{
    const Record dirty = Dirty<Record>(1).front();
    return std::memcmp(&job, &dirty, sizeof job) == 0;
}

struct BadJob
{
    JobRecord record;
    const char* number;
};

std::vector<BadJob> BadJobs(size_t size)
{
    return {{JobRecord(1177), "2"},
            {JobRecord(size).PersonSize(129), "4"},
            {JobRecord(size).Type(0, 10), "5"},
            {JobRecord(size).LoadStacker(3), "6"},
            {JobRecord(size).EjectStacker(5), "7"},
            {JobRecord(size).NameSize(511), "8"}};
}

} // namespace

// --- Counts

TEST(JobNumber, RequestsEachKind)
{
    for (const DWORD type : {NCL_JNT_PROCESS_JOB, NCL_JNT_SENDING_JOB, NCL_JNT_FINISH_JOB}) {
        SyslogLines log;
        FakePublisher publisher({GoodReply("\x12\x34")});
        publisher->m_dwNPType = NCL_NPTYPE_UNKNOWN;
        DWORD number = 0;
        EXPECT_EQ(GetJobNumber(publisher.Handle(), type, &number), NCL_SUCCESS);
        EXPECT_EQ(number, 0x1234U);
        EXPECT_EQ(publisher->m_dwNPType, NCL_NPTYPE_300NII);
        const std::string digit = std::to_string(type);
        EXPECT_EQ(publisher.Requests().at(0).head,
                  "GET /webapp2/JobNumGetter?type=" + digit + " HTTP/1.1\r\nHost:localhost\r\n\r\n");
        EXPECT_THAT(log.Take(),
                    ElementsAre("<7>server , GetJobNumber , Start", "<7>server , GetJobNumber , End(4660)"));
    }
}

TEST(JobNumber, RefusesBadParameters)
{
    SyslogLines log;
    FakePublisher publisher;
    DWORD number = 7;
    EXPECT_EQ(GetJobNumber(publisher.Handle(), 3, &number), NCL_ERR_PARAMETER);
    EXPECT_EQ(GetJobNumber(publisher.Handle(), 0, nullptr), NCL_ERR_PARAMETER);
    EXPECT_EQ(GetJobNumber(publisher.Handle() + 1, 0, &number), NCL_ERR_PARAMETER);
    EXPECT_EQ(number, 7U);
    EXPECT_THAT(publisher.Requests(), IsEmpty());
    EXPECT_THAT(log.Take(), ElementsAre("<7>server , GetJobNumber , Start", COMMON_LINE,
                                        "<7>server , GetJobNumber , Start", COMMON_LINE,
                                        "<7>(null) , GetJobNumber , Start", COMMON_LINE));
}

TEST(JobNumber, RefusesOtherSizes)
{
    for (const char* bytes : {"", "1", "123", "1234"}) {
        SyslogLines log;
        FakePublisher publisher({GoodReply(bytes)});
        DWORD number = 7;
        EXPECT_EQ(GetJobNumber(publisher.Handle(), 0, &number), NCL_ERR_INVALID_COMM_SPEC);
        EXPECT_EQ(number, 7U);
        EXPECT_EQ(log.Take().back(), "<3>[CommLib] GetJobNumber Invalid Comm Spec 1");
    }
}

TEST(PrnPossibilityNumber, QueriesTheServer)
{
    SyslogLines log;
    FakePublisher publisher({GoodReply(WireWord(0x00010203))});
    DWORD number = 0;
    EXPECT_EQ(GetPrnPossibilityNumber(publisher.Handle(), &number), NCL_SUCCESS);
    EXPECT_EQ(number, 0x00010203U);
    EXPECT_THAT(publisher.Lines(), ElementsAre("GET /webapp2/PrnPosNumGetter"));
    EXPECT_THAT(log.Take(), ElementsAre("<7>server , GetPrnPossibilityNumber , Start",
                                        "<7>server , GetPrnPossibilityNumber , End(66051)"));
}

TEST(PrnPossibilityNumber, RefusesOtherSizesAndParameters)
{
    SyslogLines log;
    FakePublisher publisher({GoodReply("123"), GoodReply("12345")});
    DWORD number = 7;
    EXPECT_EQ(GetPrnPossibilityNumber(publisher.Handle(), &number), NCL_ERR_INVALID_COMM_SPEC);
    EXPECT_EQ(log.Take().back(), "<3>[CommLib] GetPrnPossibilityNumber Invalid Comm Spec 1");
    EXPECT_EQ(GetPrnPossibilityNumber(publisher.Handle(), &number), NCL_ERR_INVALID_COMM_SPEC);
    EXPECT_EQ(GetPrnPossibilityNumber(publisher.Handle(), nullptr), NCL_ERR_PARAMETER);
    EXPECT_EQ(number, 7U);
}

// --- The list

TEST(JobList, RequestsEachKind)
{
    const char* const values[] = {"1", "2", "0", "3"}; // processing, finished, all, processing with times
    for (DWORD type = 0; type < 4; ++type) {
        const std::string line =
            std::string("GET /webapp2/JobInfoGetter?ifversion=02000000&type=") + values[type];
        const std::string reply = ListOf(Jobs(1, type == 3 ? 1182 : 1178));
        DWORD count = 0;
        if (type != 3) {
            FakePublisher publisher({reply});
            JobStatus job{};
            EXPECT_EQ(GetJobStatus(publisher.Handle(), type, &job, 1, &count), NCL_SUCCESS);
            EXPECT_THAT(publisher.Lines(), ElementsAre(line));
            EXPECT_EQ(count, 1U);
            EXPECT_EQ(job.nServerJobID, 1U);
        }
        FakePublisher publisher({reply});
        JobStatusEx job{};
        EXPECT_EQ(GetJobStatusEx(publisher.Handle(), type, &job, 1, &count), NCL_SUCCESS);
        EXPECT_THAT(publisher.Lines(), ElementsAre(line));
        EXPECT_EQ(count, 1U);
        EXPECT_EQ(job.nServerJobID, 1U);
    }
}

TEST(JobList, LogsItsStartAndItsEnd)
{
    SyslogLines log;
    FakePublisher publisher({ListOf(Jobs(2)), ListOf(Jobs(2))});
    DWORD count = 0;
    std::vector<JobStatus> jobs(2);
    EXPECT_EQ(GetJobStatus(publisher.Handle(), NCL_JST_ALL_JOB, jobs.data(), 2, &count), NCL_SUCCESS);
    EXPECT_THAT(log.Take(),
                ElementsAre("<7>server , GetJobStatus , Start", "<7>server , GetJobStatus , End(2)"));
    std::vector<JobStatusEx> jobsEx(2);
    EXPECT_EQ(GetJobStatusEx(publisher.Handle(), NCL_JST_ALL_JOB, jobsEx.data(), 2, &count), NCL_SUCCESS);
    EXPECT_THAT(log.Take(),
                ElementsAre("<7>server , GetJobStatusEx , Start", "<7>server , GetJobStatusEx , End"));
}

TEST(JobList, RefusesBadParameters)
{
    SyslogLines log;
    FakePublisher publisher;
    const DWORD handle = publisher.Handle();
    JobStatus job{};
    JobStatusEx jobEx{};
    DWORD count = 7;
    EXPECT_EQ(GetJobStatus(handle, 3, &job, 1, &count), NCL_ERR_PARAMETER);
    EXPECT_EQ(GetJobStatus(handle, 0, nullptr, 1, &count), NCL_ERR_PARAMETER);
    EXPECT_EQ(GetJobStatus(handle, 0, &job, 1, nullptr), NCL_ERR_PARAMETER);
    EXPECT_EQ(GetJobStatusEx(handle, 4, &jobEx, 1, &count), NCL_ERR_PARAMETER);
    EXPECT_EQ(GetJobStatusEx(handle, 0, nullptr, 1, &count), NCL_ERR_PARAMETER);
    EXPECT_EQ(GetJobStatusEx(handle, 0, &jobEx, 1, nullptr), NCL_ERR_PARAMETER);
    EXPECT_EQ(count, 7U);
    EXPECT_THAT(publisher.Requests(), IsEmpty());
    EXPECT_EQ(log.Take().size(), 12U);
}

TEST(JobList, OneEmptyItemMeansNoJobs)
{
    FakePublisher publisher({Done(), Done()});
    std::vector<JobStatus> jobs = Dirty<JobStatus>(2);
    DWORD count = 7;
    EXPECT_EQ(GetJobStatus(publisher.Handle(), 0, jobs.data(), 2, &count), NCL_SUCCESS);
    EXPECT_EQ(count, 0U);
    EXPECT_TRUE(IsDirty(jobs[0]) && IsDirty(jobs[1]));
    std::vector<JobStatusEx> jobsEx = Dirty<JobStatusEx>(1);
    count = 7;
    EXPECT_EQ(GetJobStatusEx(publisher.Handle(), 3, jobsEx.data(), 1, &count), NCL_SUCCESS);
    EXPECT_EQ(count, 0U);
    EXPECT_TRUE(IsDirty(jobsEx[0]));
}

TEST(JobList, FillsOnlyTheAvailableRecords)
{
    FakePublisher publisher({ListOf(Jobs(2)), ListOf(Jobs(2)), ListOf(Jobs(2))});
    std::vector<JobStatus> jobs = Dirty<JobStatus>(4);
    DWORD count = 7;
    EXPECT_EQ(GetJobStatus(publisher.Handle(), 0, jobs.data(), 1, &count), NCL_SUCCESS);
    EXPECT_EQ(count, 1U);
    EXPECT_EQ(jobs[0].nServerJobID, 1U);
    EXPECT_TRUE(IsDirty(jobs[1]));

    EXPECT_EQ(GetJobStatus(publisher.Handle(), 0, jobs.data(), 3, &count), NCL_SUCCESS);
    EXPECT_EQ(count, 2U);
    EXPECT_EQ(jobs[1].nServerJobID, 2U);
    const JobStatus clear{};
    EXPECT_EQ(std::memcmp(&jobs[2], &clear, sizeof clear), 0); // cleared, not filled
    EXPECT_TRUE(IsDirty(jobs[3]));

    EXPECT_EQ(GetJobStatus(publisher.Handle(), 0, jobs.data(), 0, &count), NCL_SUCCESS);
    EXPECT_EQ(count, 0U);
}

TEST(JobList, HasAMaximumLength)
{
    const size_t limits[] = {1000, 50, 1000};
    for (DWORD type = 0; type < 3; ++type) {
        SyslogLines log;
        FakePublisher publisher({ListOf(Jobs(limits[type])), ListOf(Jobs(limits[type] + 1))});
        std::vector<JobStatus> jobs(limits[type] + 1);
        DWORD count = 0;
        EXPECT_EQ(
            GetJobStatus(publisher.Handle(), type, jobs.data(), static_cast<DWORD>(jobs.size()), &count),
            NCL_SUCCESS);
        EXPECT_EQ(count, limits[type]);
        EXPECT_EQ(jobs[limits[type] - 1].nServerJobID, limits[type]);
        jobs = Dirty<JobStatus>(1);
        EXPECT_EQ(GetJobStatus(publisher.Handle(), type, jobs.data(), 1, &count), NCL_ERR_INVALID_COMM_SPEC);
        EXPECT_EQ(count, 0U);
        EXPECT_TRUE(IsDirty(jobs[0]));
        EXPECT_EQ(log.Take().back(), "<3>[CommLib] GetJobStatus Invalid Comm Spec 1");
    }
    SyslogLines log;
    FakePublisher publisher({ListOf(Jobs(1001, 1182))});
    JobStatusEx job{};
    DWORD count = 0;
    EXPECT_EQ(GetJobStatusEx(publisher.Handle(), 3, &job, 1, &count), NCL_ERR_INVALID_COMM_SPEC);
    EXPECT_EQ(log.Take().back(), "<3>[CommLib] GetJobStatusEx Invalid Comm Spec 1");
}

TEST(JobList, ABadJobEndsTheOperation)
{
    for (const BadJob& bad : BadJobs(1178)) {
        SyslogLines log;
        FakePublisher publisher({ListOf({Jobs(1).front(), bad.record})});
        std::vector<JobStatus> jobs(2);
        DWORD count = 7;
        EXPECT_EQ(GetJobStatus(publisher.Handle(), 0, jobs.data(), 2, &count), NCL_ERR_INVALID_COMM_SPEC);
        EXPECT_EQ(count, 0U);
        EXPECT_EQ(jobs[0].nServerJobID, 1U); // the record before it is filled
        EXPECT_EQ(log.Take().back(),
                  std::string("<3>[CommLib] GetJobStatus Invalid Comm Spec ") + bad.number);
    }
    for (const BadJob& bad : BadJobs(1182)) {
        SyslogLines log;
        FakePublisher publisher({ListOf({Jobs(1, 1182).front(), bad.record})});
        std::vector<JobStatusEx> jobs(2);
        DWORD count = 7;
        EXPECT_EQ(GetJobStatusEx(publisher.Handle(), 3, jobs.data(), 2, &count), NCL_ERR_INVALID_COMM_SPEC);
        EXPECT_EQ(count, 0U);
        EXPECT_EQ(jobs[0].nServerJobID, 1U);
        EXPECT_EQ(log.Take().back(),
                  std::string("<3>[CommLib] GetJobStatusEx Invalid Comm Spec ") + bad.number);
    }
}

TEST(JobList, ABadJobAfterTheLastRecordIsIgnored)
{
    FakePublisher publisher({ListOf({Jobs(1).front(), JobRecord(3).Number(0, 1, 99)})});
    JobStatus job{};
    DWORD count = 7;
    EXPECT_EQ(GetJobStatus(publisher.Handle(), 0, &job, 1, &count), NCL_SUCCESS);
    EXPECT_EQ(count, 1U);
    EXPECT_EQ(job.nServerJobID, 1U);
}

TEST(JobList, AnUnknownPublishModeIsNotLogged)
{
    SyslogLines log;
    const std::string reply = ListOf({JobRecord().PublishMode(5)});
    FakePublisher publisher({reply, reply});
    JobStatus job{};
    JobStatusEx jobEx{};
    DWORD count = 7;
    EXPECT_EQ(GetJobStatus(publisher.Handle(), 0, &job, 1, &count), 0xFFFFFFFFU);
    EXPECT_EQ(count, 0U);
    EXPECT_THAT(log.Take(), ElementsAre("<7>server , GetJobStatus , Start"));
    EXPECT_EQ(GetJobStatusEx(publisher.Handle(), 0, &jobEx, 1, &count), 0xFFFFFFFFU);
    EXPECT_THAT(log.Take(), ElementsAre("<7>server , GetJobStatusEx , Start"));
}

TEST(JobList, FailuresOfTheExchangeAreTraced)
{
    SyslogLines log;
    FakePublisher publisher({HttpResponse("", "404 Not Found"), HttpResponse(ReplyItem("", 3))});
    JobStatus job{};
    DWORD count = 7;
    EXPECT_EQ(GetJobStatus(publisher.Handle(), 0, &job, 1, &count), NCL_ERR_SERVER_OTHER);
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(log.Take().back(), "<3>\t## trace ## GetJobStatus SendRequest() Server Other");
    EXPECT_EQ(GetJobStatus(publisher.Handle(), 0, &job, 1, &count), NCL_ERR_AUTHENTICATION);
    EXPECT_EQ(log.Take().back(), "<3>\t## trace ## GetJobStatus ParseCommReply() Authentication");
}

TEST(JobList, TheLargerRecordsAreClearedAsIfTheyWereSmaller)
{
    for (DWORD type = 0; type < 3; ++type) {
        FakePublisher publisher({ListOf(Jobs(1))});
        std::vector<JobStatusEx> jobs = Dirty<JobStatusEx>(4);
        DWORD count = 0;
        ASSERT_EQ(GetJobStatusEx(publisher.Handle(), type, jobs.data(), 4, &count), NCL_SUCCESS);
        ASSERT_EQ(count, 1U);
        const auto* bytes = reinterpret_cast<const unsigned char*>(jobs.data());
        for (size_t index = sizeof(JobStatusEx); index < 4 * sizeof(JobStatusEx); ++index) {
            ASSERT_EQ(bytes[index], index < 4 * 1788 ? 0 : 0xAB) << index;
        }
    }
    FakePublisher publisher({ListOf(Jobs(1, 1182))});
    std::vector<JobStatusEx> jobs = Dirty<JobStatusEx>(4);
    DWORD count = 0;
    ASSERT_EQ(GetJobStatusEx(publisher.Handle(), NCL_JST_PROCESS_JOB_EX, jobs.data(), 4, &count),
              NCL_SUCCESS);
    const auto* bytes = reinterpret_cast<const unsigned char*>(jobs.data());
    for (size_t index = sizeof(JobStatusEx); index < 4 * sizeof(JobStatusEx); ++index) {
        ASSERT_EQ(bytes[index], 0) << index;
    }
}

TEST(JobList, TheLargerRecordsAreContiguous)
{
    const JobRecord first = JobRecord().ServerJobID(1).Name(u"one");
    const JobRecord second = JobRecord().ServerJobID(2).Name(u"two");
    FakePublisher publisher({ListOf({first, second})});
    std::vector<JobStatusEx> jobs(2);
    DWORD count = 0;
    ASSERT_EQ(GetJobStatusEx(publisher.Handle(), NCL_JST_FINISH_JOB, jobs.data(), 2, &count), NCL_SUCCESS);
    EXPECT_EQ(count, 2U);
    EXPECT_STREQ(jobs[0].wszJobName, "one");
    EXPECT_STREQ(jobs[1].wszJobName, "two");
    EXPECT_EQ(jobs[1].nServerJobID, 2U);
}

TEST(JobList, ASizeOfTheOtherKindIsRefused)
{
    FakePublisher publisher({ListOf(Jobs(1, 1178)), ListOf(Jobs(1, 1182))});
    JobStatusEx job{};
    DWORD count = 0;
    EXPECT_EQ(GetJobStatusEx(publisher.Handle(), 3, &job, 1, &count), NCL_ERR_INVALID_COMM_SPEC);
    EXPECT_EQ(GetJobStatusEx(publisher.Handle(), 0, &job, 1, &count), NCL_ERR_INVALID_COMM_SPEC);
}

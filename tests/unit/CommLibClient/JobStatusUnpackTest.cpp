#include "JobRecord.h"
#include "NW_Com_Lib_internal.h"

#include <cstring>

#include <gtest/gtest.h>

namespace {

/// A record with a guard after it. The guard has no zero byte, which would end a text.
template <class Record>
struct Guarded
{
    Record job;
    unsigned char guard[16];

    Guarded()
    {
        std::memset(static_cast<void*>(&job), 0, sizeof job);
        std::memset(guard, 0xAB, sizeof guard);
    }
    bool IsIntact() const
    {
        for (const unsigned char byte : guard) {
            if (byte != 0xAB) {
                return false;
            }
        }
        return true;
    }
};

JobStatus Unpacked(const JobRecord& record)
{
    Guarded<JobStatus> filled;
    EXPECT_EQ(UnpackJobStatus(record.Bytes().data(), 1178, &filled.job), JOB_RECORD_GOOD);
    EXPECT_TRUE(filled.IsIntact());
    return filled.job;
}

JobRecordCheck Check(const JobRecord& record)
{
    JobStatus job{};
    return UnpackJobStatus(record.Bytes().data(), static_cast<DWORD>(record.Bytes().size()), &job);
}

DWORD StatusOf(uint32_t status, uint32_t factor, uint32_t ordered, uint32_t finished, uint32_t history)
{
    return Unpacked(JobRecord().Status(status).Factor(factor).Copies(ordered, finished).History(history))
        .dwJobStatus;
}

std::u16string Repeated(char16_t unit, size_t count)
{
    return std::u16string(count, unit);
}

std::string Repeated(const std::string& text, size_t count)
{
    std::string all;
    for (size_t index = 0; index < count; ++index) {
        all += text;
    }
    return all;
}

JobRecord FullRecord(size_t size)
{
    JobRecord record(size);
    record.Status(1)
        .Factor(7)
        .Copies(0x0102, 0x0304)
        .Person(u"Ada")
        .Type(1, 3)
        .LoadStacker(2)
        .EjectStacker(4);
    record.EstimateTime(0x01020304).ErrorNumber(0xF1F2).Name(u"Holiday").History(0x5).PublishMode(3);
    record.Identification(u"J-17").ServerJobID(0xFEDCBA98);
    return record;
}

template <class Record>
void ExpectFullRecord(const Record& job)
{
    EXPECT_EQ(job.dwJobStatus, 1U);
    EXPECT_EQ(job.dwFactor, 7U);
    EXPECT_EQ(job.dwPublicationNumber, 0x0102U);
    EXPECT_EQ(job.dwCompletionNumber, 0x0304U);
    EXPECT_STREQ(job.wszPublicationPerson, "Ada");
    EXPECT_EQ(job.dwJobType, 1U);
    EXPECT_EQ(job.dwSource, 2U);
    EXPECT_EQ(job.dwDestination, 8U);
    EXPECT_EQ(job.dwEstimateTime, 0x01020304U);
    EXPECT_EQ(job.dwErrorNumber, 0xF1F2U);
    EXPECT_STREQ(job.wszJobName, "Holiday");
    EXPECT_TRUE(job.ErrorHistory.bWriteError);
    EXPECT_FALSE(job.ErrorHistory.bCoverOpen);
    EXPECT_TRUE(job.ErrorHistory.bStacker4Open);
    EXPECT_EQ(job.dwPubMode, 3U);
    EXPECT_STREQ(job.wszJobIdentificationID, "J-17");
    EXPECT_EQ(job.nServerJobID, 0xFEDCBA98U);
}

} // namespace

TEST(JobStatusUnpack, ReadsEachFieldAtItsOffset)
{
    ExpectFullRecord(Unpacked(FullRecord(1178)));
}

TEST(JobStatusUnpack, TheExtendedRecordEndsWithTheRemainingTime)
{
    Guarded<JobStatusEx> filled;
    const JobRecord record = FullRecord(1182).RemainingTime(0x0A0B0C0D);
    EXPECT_EQ(UnpackJobStatusEx(record.Bytes().data(), 1182, NCL_JST_PROCESS_JOB_EX, &filled.job),
              JOB_RECORD_GOOD);
    ExpectFullRecord(filled.job);
    EXPECT_EQ(filled.job.dwRemainingTime, 0x0A0B0C0DU);
    EXPECT_TRUE(filled.IsIntact());
}

TEST(JobStatusUnpack, OtherListsHaveNoRemainingTime)
{
    for (const DWORD type : {NCL_JST_PROCESS_JOB, NCL_JST_FINISH_JOB, NCL_JST_ALL_JOB}) {
        Guarded<JobStatusEx> filled;
        filled.job.dwRemainingTime = 5; // an old value
        const std::string next = "the next item";
        EXPECT_EQ(UnpackJobStatusEx((FullRecord(1178).Bytes() + next).data(), 1178, type, &filled.job),
                  JOB_RECORD_GOOD);
        ExpectFullRecord(filled.job);
        EXPECT_EQ(filled.job.dwRemainingTime, 0U);
    }
}

TEST(JobStatusUnpack, EveryOtherSizeIsRefused)
{
    const std::string bytes(2000, '\0');
    for (const DWORD size : {0U, 1U, 1177U, 1179U, 1181U, 1182U, 1183U, 2000U}) {
        JobStatus job{};
        EXPECT_EQ(UnpackJobStatus(bytes.data(), size, &job), JOB_RECORD_BAD_SIZE) << size;
        JobStatusEx jobEx{};
        EXPECT_EQ(UnpackJobStatusEx(bytes.data(), size, NCL_JST_ALL_JOB, &jobEx), JOB_RECORD_BAD_SIZE)
            << size;
        if (size != 1182) {
            EXPECT_EQ(UnpackJobStatusEx(bytes.data(), size, NCL_JST_PROCESS_JOB_EX, &jobEx),
                      JOB_RECORD_BAD_SIZE);
        }
    }
    JobStatusEx jobEx{};
    EXPECT_EQ(UnpackJobStatusEx(bytes.data(), 1178, NCL_JST_PROCESS_JOB_EX, &jobEx), JOB_RECORD_BAD_SIZE);
    EXPECT_EQ(UnpackJobStatusEx(nullptr, 0, NCL_JST_PROCESS_JOB_EX, &jobEx), JOB_RECORD_BAD_SIZE);
}

TEST(JobStatusUnpack, ChecksHaveTheirNumbers)
{
    EXPECT_EQ(JOB_RECORD_BAD_SIZE, 2);
    EXPECT_EQ(JOB_RECORD_BAD_PERSON_SIZE, 4);
    EXPECT_EQ(JOB_RECORD_BAD_JOB_TYPE, 5);
    EXPECT_EQ(JOB_RECORD_BAD_LOAD_STACKER, 6);
    EXPECT_EQ(JOB_RECORD_BAD_EJECT_STACKER, 7);
    EXPECT_EQ(JOB_RECORD_BAD_NAME_SIZE, 8);
}

TEST(JobStatusUnpack, EachBadFieldIsDetected)
{
    EXPECT_EQ(Check(JobRecord().PersonSize(128)), JOB_RECORD_GOOD);
    EXPECT_EQ(Check(JobRecord().PersonSize(129)), JOB_RECORD_BAD_PERSON_SIZE);
    EXPECT_EQ(Check(JobRecord().PersonSize(255)), JOB_RECORD_BAD_PERSON_SIZE);
    EXPECT_EQ(Check(JobRecord().Type(0, 9)), JOB_RECORD_GOOD);
    EXPECT_EQ(Check(JobRecord().Type(0, 10)), JOB_RECORD_BAD_JOB_TYPE);
    EXPECT_EQ(Check(JobRecord().LoadStacker(3)), JOB_RECORD_BAD_LOAD_STACKER);
    EXPECT_EQ(Check(JobRecord().EjectStacker(5)), JOB_RECORD_BAD_EJECT_STACKER);
    EXPECT_EQ(Check(JobRecord().NameSize(510)), JOB_RECORD_GOOD);
    EXPECT_EQ(Check(JobRecord().NameSize(511)), JOB_RECORD_BAD_NAME_SIZE);
    EXPECT_EQ(Check(JobRecord().NameSize(0xFFFF)), JOB_RECORD_BAD_NAME_SIZE);
    EXPECT_EQ(Check(JobRecord().PublishMode(4)), JOB_RECORD_GOOD);
    EXPECT_EQ(Check(JobRecord().PublishMode(5)), JOB_RECORD_BAD_PUBLISH_MODE);
}

TEST(JobStatusUnpack, ChecksFollowTheOrderOfTheirNumbers)
{
    JobRecord record = JobRecord().PublishMode(5);
    EXPECT_EQ(Check(record.NameSize(511)), JOB_RECORD_BAD_NAME_SIZE);
    EXPECT_EQ(Check(record.EjectStacker(5)), JOB_RECORD_BAD_EJECT_STACKER);
    EXPECT_EQ(Check(record.LoadStacker(3)), JOB_RECORD_BAD_LOAD_STACKER);
    EXPECT_EQ(Check(record.Type(0, 10)), JOB_RECORD_BAD_JOB_TYPE);
    EXPECT_EQ(Check(record.PersonSize(129)), JOB_RECORD_BAD_PERSON_SIZE);
}

TEST(JobStatusUnpack, FieldsBeforeTheBadOneAreFilled)
{
    JobStatus job{};
    const JobRecord record = FullRecord(1178).EjectStacker(9);
    EXPECT_EQ(UnpackJobStatus(record.Bytes().data(), 1178, &job), JOB_RECORD_BAD_EJECT_STACKER);
    EXPECT_STREQ(job.wszPublicationPerson, "Ada");
    EXPECT_EQ(job.dwSource, 2U);
    EXPECT_EQ(job.dwDestination, 0U);
    EXPECT_STREQ(job.wszJobName, "");
}

TEST(JobStatusUnpack, JapaneseTexts)
{
    const JobStatus job = Unpacked(JobRecord().Person(u"山田").Name(u"ディスク発行").Identification(u"日本"));
    EXPECT_STREQ(job.wszPublicationPerson, "\xE5\xB1\xB1\xE7\x94\xB0");
    EXPECT_STREQ(job.wszJobName, "\xE3\x83\x87\xE3\x82\xA3\xE3\x82\xB9\xE3\x82\xAF\xE7\x99\xBA\xE8\xA1\x8C");
    EXPECT_STREQ(job.wszJobIdentificationID, "\xE6\x97\xA5\xE6\x9C\xAC");
}

TEST(JobStatusUnpack, SurrogatePairs)
{
    const JobStatus job = Unpacked(JobRecord().Name(u"a\xD83D\xDE00z").Person(u"\xDBFF\xDFFF"));
    EXPECT_STREQ(job.wszJobName, "a\xF0\x9F\x98\x80z");
    EXPECT_STREQ(job.wszPublicationPerson, "\xF4\x8F\xBF\xBF");
}

TEST(JobStatusUnpack, LoneSurrogatesAreDropped)
{
    EXPECT_STREQ(Unpacked(JobRecord().Name(u"a\xD83Dz")).wszJobName, "az");       // high alone
    EXPECT_STREQ(Unpacked(JobRecord().Name(u"a\xDE00z")).wszJobName, "az");       // low alone
    EXPECT_STREQ(Unpacked(JobRecord().Name(u"a\xDE00\xD83Dz")).wszJobName, "az"); // in reverse order
    EXPECT_STREQ(Unpacked(JobRecord().Name(u"az\xD83D")).wszJobName, "az");       // cut at the end
    JobRecord cut = JobRecord().Name(u"az\xD83D").Text(154, u"\xDE00"); // its other half lies after the size
    EXPECT_STREQ(Unpacked(cut).wszJobName, "az");
}

TEST(JobStatusUnpack, TextsOfFullLengthFit)
{
    const std::string three = "\xE3\x81\x82"; // three bytes per unit, the maximum
    const JobStatus job = Unpacked(JobRecord()
                                       .Person(Repeated(u'あ', 64))
                                       .Name(Repeated(u'あ', 255))
                                       .Identification(Repeated(u'あ', 255))
                                       .Copies(9, 8)
                                       .ServerJobID(77));
    EXPECT_EQ(std::string(job.wszPublicationPerson), Repeated(three, 64));
    EXPECT_EQ(std::string(job.wszJobName), Repeated(three, 255));
    EXPECT_EQ(std::string(job.wszJobIdentificationID), Repeated(three, 255));
    EXPECT_EQ(job.dwJobType, 0U); // the fields after the texts are not overwritten
    EXPECT_EQ(job.dwPubMode, 0U);
    EXPECT_FALSE(job.ErrorHistory.bWriteError);
    EXPECT_EQ(job.nServerJobID, 77U);
}

TEST(JobStatusUnpack, SurrogatePairsOfFullLengthFit)
{
    std::u16string pairs;
    for (int count = 0; count < 127; ++count) {
        pairs += u"\xD83D\xDE00";
    }
    const JobStatus job = Unpacked(JobRecord().Name(pairs).Identification(pairs));
    EXPECT_EQ(std::string(job.wszJobName), Repeated("\xF0\x9F\x98\x80", 127));
    EXPECT_EQ(std::string(job.wszJobIdentificationID), Repeated("\xF0\x9F\x98\x80", 127));
}

TEST(JobStatusUnpack, TextsEndAtTheirSize)
{
    EXPECT_STREQ(Unpacked(JobRecord().Name(u"Holiday").NameSize(6)).wszJobName, "Hol");
    EXPECT_STREQ(Unpacked(JobRecord().Person(u"Ada").PersonSize(2)).wszPublicationPerson, "A");
    EXPECT_STREQ(Unpacked(JobRecord().Person(u"Ada").PersonSize(0)).wszPublicationPerson, "");
}

TEST(JobStatusUnpack, AnOddByteAtTheEndIsIgnored)
{
    EXPECT_STREQ(Unpacked(JobRecord().Name(u"Holiday").NameSize(7)).wszJobName, "Hol");
    EXPECT_STREQ(Unpacked(JobRecord().Name(Repeated(u'x', 255)).NameSize(509)).wszJobName,
                 Repeated("x", 254).c_str());
    EXPECT_STREQ(Unpacked(JobRecord().Person(u"Ada").PersonSize(1)).wszPublicationPerson, "");
    EXPECT_STREQ(Unpacked(JobRecord().Person(Repeated(u'x', 64)).PersonSize(127)).wszPublicationPerson,
                 Repeated("x", 63).c_str());
}

TEST(JobStatusUnpack, ZeroUnitsOfTheIdentificationAreKept)
{
    JobRecord record = JobRecord().Identification(u"AB").Text(664 + 6, u"CD").Text(664 + 508, u"Z");
    const JobStatus job = Unpacked(record);
    EXPECT_EQ(std::string(job.wszJobIdentificationID, 5), std::string("AB\0CD", 5));
    EXPECT_EQ(job.wszJobIdentificationID[254], 'Z');
    EXPECT_EQ(job.wszJobIdentificationID[255], '\0');
}

TEST(JobStatusUnpack, HistoryBits)
{
    for (uint32_t word = 0; word < 16; ++word) {
        const JobStatus job = Unpacked(JobRecord().History(word));
        EXPECT_EQ(job.ErrorHistory.bWriteError, (word & 1) != 0 ? TRUE : FALSE) << word;
        EXPECT_EQ(job.ErrorHistory.bCoverOpen, (word & 2) != 0 ? TRUE : FALSE) << word;
        EXPECT_EQ(job.ErrorHistory.bStacker4Open, (word & 4) != 0 ? TRUE : FALSE) << word;
    }
}

TEST(JobStatusUnpack, AFinishedJobWithAHistoryIsAWarning)
{
    EXPECT_EQ(StatusOf(8, 0, 5, 5, 0), NCL_JOB_STATUS_FINISHED);
    EXPECT_EQ(StatusOf(8, 0, 5, 5, 1), NCL_JOB_STATUS_FINISHED_WARNING);
    EXPECT_EQ(StatusOf(8, 0, 5, 5, 0x80000000), NCL_JOB_STATUS_FINISHED_WARNING); // unnamed bits count
    EXPECT_EQ(StatusOf(8, 0, 5, 4, 1), NCL_JOB_STATUS_FINISHED);
    EXPECT_EQ(StatusOf(8, 0, 5, 4, 0), NCL_JOB_STATUS_FINISHED);
    EXPECT_EQ(StatusOf(7, 0, 5, 5, 1), NCL_JOB_STATUS_ERROR);
    EXPECT_EQ(StatusOf(8, 1, 5, 5, 0), NCL_JOB_STATUS_FINISHED); // the factor is irrelevant here
}

TEST(JobStatusUnpack, ACancelledJobMayHaveFailed)
{
    // Offline, pick, drop, supply, release, drive tray, printer tray, arm, ink pad, printer maintenance,
    // printer, drive, autoloader, condition.
    const std::vector<uint32_t> fatal = {11, 1, 2, 39, 3, 4, 5, 6, 28, 29, 26, 43, 42, 25};
    for (uint32_t factor = 0; factor < 256; ++factor) {
        const bool isFatal = std::find(fatal.begin(), fatal.end(), factor) != fatal.end();
        EXPECT_EQ(StatusOf(9, factor, 1, 0, 0), isFatal ? 7U : 10U) << factor;
    }
    EXPECT_EQ(StatusOf(1, 1, 1, 0, 0), NCL_JOB_STATUS_RUNNING);
}

TEST(JobStatusUnpack, ValuesBeyondTheTablesBecome13)
{
    EXPECT_EQ(StatusOf(10, 0, 1, 0, 0), 13U);
    EXPECT_EQ(StatusOf(255, 0, 1, 0, 0), 13U);
    EXPECT_EQ(Unpacked(JobRecord().Factor(53)).dwFactor, 13U);
    EXPECT_EQ(Unpacked(JobRecord().Type(3, 0)).dwJobType, 13U);
}

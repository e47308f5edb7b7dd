// Conversion of the jobs of a publisher server to those of the control service.
#include "InstallPaths.h"
#include "NW_Com_Lib.h"
#include "NetworkPublisherMgr.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace {

/// Both kinds of job record are converted alike, except for the remaining time.
template <class Job>
class NetworkJobConvert : public testing::Test
{
protected:
    ST_PC_JOB_STATUS Convert(const Job& job, LPCTSTR id = "R")
    {
        CNetworkPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
        return mgr.ConvertComLibValueToPubMgrValue_JobStatus(job, id);
    }
};
using JobRecords = testing::Types<JobStatus, JobStatusEx>;
TYPED_TEST_SUITE(NetworkJobConvert, JobRecords);

template <size_t size>
void SetText(char (&field)[size], const std::string& text)
{
    ASSERT_LT(text.size(), size);
    std::memcpy(field, text.c_str(), text.size() + 1);
}

std::string Times(size_t count, const std::string& piece)
{
    std::string text;
    for (size_t i = 0; i < count; ++i) {
        text += piece;
    }
    return text;
}

/// 0 to 20, the values around the special ones, and the ends of the range.
std::vector<DWORD> AnyNumbers()
{
    std::vector<DWORD> numbers{53, 54, 55, 56, 57, 204, 205, 1001, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
    for (DWORD number = 0; number <= 20; ++number) {
        numbers.push_back(number);
    }
    return numbers;
}

const std::string UMLAUT = "\xC3\xBC";

} // namespace

TYPED_TEST(NetworkJobConvert, ConvertsEveryField)
{
    TypeParam job{};
    job.dwJobStatus = 1;
    job.dwFactor = 9;
    job.dwPublicationNumber = 30;
    job.dwCompletionNumber = 12;
    SetText(job.wszPublicationPerson, "J" + UMLAUT + "rgen");
    job.dwJobType = 1;
    job.dwSource = 3;
    job.dwDestination = 12;
    job.dwEstimateTime = 400;
    job.dwErrorNumber = 2;
    SetText(job.wszJobName, "Abend" + UMLAUT + "bung");
    job.ErrorHistory = {TRUE, TRUE, TRUE};
    job.dwPubMode = 4;
    SetText(job.wszJobIdentificationID, "J-1");
    job.nServerJobID = 0x2A;
    const ST_PC_JOB_STATUS result = this->Convert(job);
    EXPECT_STREQ(result.acJobID, "J-1");
    EXPECT_EQ(result.acJobName, "Abend" + UMLAUT + "bung");
    EXPECT_EQ(result.ulJobStatus, 2U);
    EXPECT_EQ(result.ulFactor, 9U);
    EXPECT_EQ(result.ulCompletionNumber, 12U);
    EXPECT_EQ(result.ulEstimateTime, 400U);
    EXPECT_EQ(result.ulRemainingTime, 0U);
    EXPECT_EQ(result.ulErrorNumber, 2U);
    EXPECT_EQ(result.ulPublicationNumber, 30U);
    EXPECT_EQ(result.acPublicationPerson, "J" + UMLAUT + "rgen");
    EXPECT_EQ(result.ulJobType, 1U);
    EXPECT_EQ(result.ulSource, 3U);
    EXPECT_EQ(result.ulDestination, 12U);
    EXPECT_EQ(result.ulPubMode, 1U);
    // Fields that a server does not provide.
    EXPECT_EQ(result.ulJobIndex, 0U);
    EXPECT_EQ(result.ulImproperNumber, 0U);
    EXPECT_EQ(std::string(result.acApprovalPerson, sizeof result.acApprovalPerson), std::string(65, '\0'));
    EXPECT_EQ(std::string(result.acPlugInAppID, sizeof result.acPlugInAppID), std::string(41, '\0'));
    EXPECT_EQ(result.ulHistory, 0U);
    EXPECT_EQ(std::string(result.acReadErrorPath, sizeof result.acReadErrorPath), std::string(260, '\0'));
    EXPECT_EQ(result.ulReadResult, 0U);
    EXPECT_EQ(result.ulStacker3, 0U);
}

TYPED_TEST(NetworkJobConvert, NumbersKeepAllBits)
{
    TypeParam job{};
    job.dwPublicationNumber = 0xFFFFFFFF;
    job.dwCompletionNumber = 0xFFFFFFFE;
    job.dwEstimateTime = 0xFFFFFFFD;
    job.dwErrorNumber = 0xFFFFFFFC;
    job.dwSource = 0xFFFFFFFB;
    job.dwDestination = 0xFFFFFFFA;
    const ST_PC_JOB_STATUS result = this->Convert(job);
    EXPECT_EQ(result.ulPublicationNumber, 0xFFFFFFFFU);
    EXPECT_EQ(result.ulCompletionNumber, 0xFFFFFFFEU);
    EXPECT_EQ(result.ulEstimateTime, 0xFFFFFFFDU);
    EXPECT_EQ(result.ulErrorNumber, 0xFFFFFFFCU);
    EXPECT_EQ(result.ulSource, 0xFFFFFFFBU);
    EXPECT_EQ(result.ulDestination, 0xFFFFFFFAU);
}

TEST(NetworkJobRemainingTime, ComesFromTheExtendedRecord)
{
    JobStatusEx job{};
    job.dwEstimateTime = 400;
    job.dwRemainingTime = 0xFFFFFFFF;
    CNetworkPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    EXPECT_EQ(mgr.ConvertComLibValueToPubMgrValue_JobStatus(job, "R").ulRemainingTime, 0xFFFFFFFFU);
    EXPECT_EQ(mgr.ConvertComLibValueToPubMgrValue_JobStatus(job, "R").ulEstimateTime, 400U);
}

TYPED_TEST(NetworkJobConvert, StatusOfEveryNumber)
{
    const std::map<DWORD, unsigned long> rows = {{0, 1}, {1, 2}, {2, 3}, {3, 6}, {4, 7}, {5, 4},
                                                 {6, 5}, {7, 9}, {8, 9}, {9, 9}, {10, 8}};
    for (const DWORD number : AnyNumbers()) {
        TypeParam job{};
        job.dwJobStatus = number;
        const auto row = rows.find(number);
        EXPECT_EQ(this->Convert(job).ulJobStatus, row == rows.end() ? 0 : row->second) << number;
    }
}

TYPED_TEST(NetworkJobConvert, FactorsFrom54OnOverwriteTheStatus)
{
    for (DWORD factor = 0; factor <= 53; ++factor) {
        TypeParam job{};
        job.dwJobStatus = 1;
        job.dwFactor = factor;
        EXPECT_EQ(this->Convert(job).ulFactor, factor);
        EXPECT_EQ(this->Convert(job).ulJobStatus, 2U) << factor;
    }
    for (const DWORD factor : {54U, 55U, 56U, 57U, 204U, 205U, 1000U, 0xFFFFFFFFU}) {
        for (const DWORD status : {0U, 1U, 8U, 10U, 13U}) {
            TypeParam job{};
            job.dwJobStatus = status;
            job.dwFactor = factor;
            EXPECT_EQ(this->Convert(job).ulFactor, 0U) << factor;
            EXPECT_EQ(this->Convert(job).ulJobStatus, 1001U) << factor << " " << status;
        }
    }
}

TYPED_TEST(NetworkJobConvert, TypeOfEveryNumber)
{
    const std::map<DWORD, unsigned long> rows = {{0, 3},          {1, 1}, {2, 2}, {3, 4},
                                                 {4, 0x80000003}, {5, 5}, {6, 7}};
    for (const DWORD number : AnyNumbers()) {
        TypeParam job{};
        job.dwJobType = number;
        const auto row = rows.find(number);
        EXPECT_EQ(this->Convert(job).ulJobType, row == rows.end() ? 0 : row->second) << number;
    }
}

TYPED_TEST(NetworkJobConvert, ModeOfEveryNumber)
{
    const std::map<DWORD, unsigned long> rows = {{0, 3}, {1, 4}, {2, 0}, {3, 2}, {4, 1}};
    for (const DWORD number : AnyNumbers()) {
        TypeParam job{};
        job.dwPubMode = number;
        const auto row = rows.find(number);
        EXPECT_EQ(this->Convert(job).ulPubMode, row == rows.end() ? 0xFFFFFFFF : row->second) << number;
    }
}

TYPED_TEST(NetworkJobConvert, AJobWithoutAnIdGetsOneMadeOfPublisherAndNumber)
{
    struct Row
    {
        std::string id;
        DWORD number;
        std::string jobId;
    };
    const Row rows[] = {
        {"R", 0x2A, "R.2A"},
        {"R", 0, "R.0"},
        {"R", 0xABCDEF, "R.ABCDEF"},
        {"R", 0xFFFFFFFF, "R.FFFFFFFF"},
        {"", 7, ".7"},
        {"{ARPUB20260106_1}", 16, "{ARPUB20260106_1}.10"},
        {"100%d%s", 1, "100%d%s.1"},
        {std::string(36, 'i'), 0x2A, std::string(36, 'i') + ".2A"}, // 39 characters
        {std::string(37, 'i'), 0x2A, std::string(37, 'i') + ".2"},
        {std::string(38, 'i'), 0x2A, std::string(38, 'i') + "."},
        {std::string(39, 'i'), 0x2A, std::string(39, 'i')},
        {std::string(40, 'i'), 0x2A, std::string(39, 'i')},
        {std::string(255, 'i'), 0x2A, std::string(39, 'i')},
        {std::string(100'000, 'i'), 0xFFFFFFFF, std::string(39, 'i')},
    };
    for (const Row& row : rows) {
        TypeParam job{};
        job.nServerJobID = row.number;
        EXPECT_EQ(this->Convert(job, row.id.c_str()).acJobID, row.jobId) << row.id.size();
    }
}

TYPED_TEST(NetworkJobConvert, AnIdOfTheSubmitterIsTruncatedToItsField)
{
    for (const size_t length : {1U, 39U, 40U, 254U, 255U, 256U, 765U}) {
        TypeParam job{};
        SetText(job.wszJobIdentificationID, std::string(length, 'j'));
        job.nServerJobID = 0x2A;
        EXPECT_EQ(this->Convert(job).acJobID, std::string(std::min<size_t>(length, 255), 'j')) << length;
    }
}

TYPED_TEST(NetworkJobConvert, NamesAreTruncatedTo255BytesAndPersonsTo64)
{
    for (const size_t length : {0U, 1U, 254U, 255U, 256U, 765U}) {
        TypeParam job{};
        SetText(job.wszJobName, std::string(length, 'n'));
        const ST_PC_JOB_STATUS result = this->Convert(job);
        EXPECT_EQ(result.acJobName, std::string(std::min<size_t>(length, 255), 'n')) << length;
        EXPECT_EQ(result.ulJobStatus, 1U) << "the next field is intact";
    }
    for (const size_t length : {0U, 1U, 63U, 64U, 65U, 192U}) {
        TypeParam job{};
        SetText(job.wszPublicationPerson, std::string(length, 'p'));
        const ST_PC_JOB_STATUS result = this->Convert(job);
        EXPECT_EQ(result.acPublicationPerson, std::string(std::min<size_t>(length, 64), 'p')) << length;
        EXPECT_STREQ(result.acApprovalPerson, "") << length;
    }
}

TYPED_TEST(NetworkJobConvert, MultibyteTextsFitToo)
{
    TypeParam job{};
    SetText(job.wszJobName, "x" + Times(200, UMLAUT));
    SetText(job.wszPublicationPerson, Times(60, UMLAUT));
    SetText(job.wszJobIdentificationID, Times(19, UMLAUT));
    const ST_PC_JOB_STATUS result = this->Convert(job);
    EXPECT_EQ(result.acJobName, "x" + Times(127, UMLAUT)); // 255 bytes
    EXPECT_EQ(result.acPublicationPerson, Times(32, UMLAUT));
    EXPECT_EQ(result.acJobID, Times(19, UMLAUT));
}

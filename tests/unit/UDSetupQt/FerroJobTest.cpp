// Maintenance jobs on their way: time stamps, job files, and the connection of a network publisher, which a
// scripted publisher manager gives.
#include "FerroJob.h"

#include "ChildProcess.h"
#include "OrdinaryRights.h"
#include "PublisherMgr.h"
#include "StdoutCapture.h"
#include "TextFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <iomanip>
#include <set>
#include <sstream>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

std::vector<std::string> calls; // what the publisher manager was asked
bool connects = false;

} // namespace

CPublisherMgr::CPublisherMgr(bool bPublisherIDMode)
{
    calls.push_back(bPublisherIDMode ? "CPublisherMgr(true)" : "CPublisherMgr(false)");
}

CPublisherMgr::~CPublisherMgr() = default;

bool CPublisherMgr::StartConnection(LPCTSTR szPublisherRegistID, DWORD* pdwHandle, DWORD* pdwResultCode)
{
    calls.push_back(std::string("StartConnection ") + szPublisherRegistID +
                    (pdwResultCode ? " with a place for the result" : ""));
    *pdwHandle = 77;
    return connects;
}

bool CPublisherMgr::EndConnection(DWORD dwHandle)
{
    calls.push_back("EndConnection " + std::to_string(dwHandle));
    return true;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char jobFolder[] = "/opt/arven/Ulmar Disc Maker/JOB";

std::string jobFile(const std::string& name)
{
    return std::string(jobFolder) + "/" + name;
}

/// The job file of the publisher "pub" with that number.
std::string numberedFile(int number)
{
    std::ostringstream name;
    name << "pub_" << std::setw(4) << std::setfill('0') << number << ".epj";
    return jobFile(name.str());
}

std::vector<std::string> jobFiles()
{
    std::set<std::string> names;
    if (std::filesystem::is_directory(jobFolder)) {
        for (const auto& entry : std::filesystem::directory_iterator(jobFolder)) {
            names.insert(entry.path().filename());
        }
    }
    return {names.begin(), names.end()};
}

size_t openDescriptors()
{
    const auto entries = std::filesystem::directory_iterator("/proc/self/fd");
    return static_cast<size_t>(std::distance(begin(entries), end(entries)));
}

PUBLISHERINFO publisher(const std::string& id = "pub", UINT type = 0)
{
    PUBLISHERINFO info;
    info.strPublisherRegistID = id;
    info.uiPublisherType = type;
    return info;
}

/// Submits both jobs with nothing seen on the standard output but the line of the nozzle check.
void submitBoth(const PUBLISHERINFO& info)
{
    StdoutCapture output;
    CFerroJob().SubmitHeadCleaningJob(info, "Reinigung");
    CFerroJob().SubmitNozzleCheckJob(info, "Test");
    EXPECT_EQ(output.Stop(), "CFerroJob::SubmitNozzleCheckJob");
}

/// Takes the lines of ID and Create out of a job text, for they tell the present time.
std::string withoutTime(const std::string& text)
{
    std::istringstream lines(text);
    std::string rest;
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("ID = ") && !line.starts_with("Create = ")) {
            rest += line + "\n";
        }
    }
    return rest;
}

class FerroJob : public testing::Test
{
protected:
    FerroJob()
    {
        std::filesystem::create_directories(jobFolder);
    }
};

timeb moment(time_t second, unsigned short millisecond)
{
    timeb time{};
    time.time = second;
    time.millitm = millisecond;
    return time;
}

TEST(JobStamp, IsNowOrAMillisecondAfterTheLast)
{
    struct StampCase
    {
        const char* name;
        timeb now, last, stamp;
    };
    const StampCase stamps[] = {
        {"the first", moment(1000, 0), moment(0, 0), moment(1000, 0)},
        {"a millisecond later", moment(1000, 501), moment(1000, 500), moment(1000, 501)},
        {"much later in the second", moment(1000, 999), moment(1000, 0), moment(1000, 999)},
        {"the next second, fewer milliseconds", moment(1001, 0), moment(1000, 999), moment(1001, 0)},
        {"the same millisecond", moment(1000, 500), moment(1000, 500), moment(1000, 501)},
        {"the same millisecond, the first of a second", moment(1000, 0), moment(1000, 0), moment(1000, 1)},
        {"an earlier millisecond", moment(1000, 499), moment(1000, 500), moment(1000, 501)},
        {"the last before the carry", moment(1000, 998), moment(1000, 998), moment(1000, 999)},
        {"999 again", moment(1000, 999), moment(1000, 999), moment(1001, 0)},
        {"before 999", moment(1000, 5), moment(1000, 999), moment(1001, 0)},
        {"an earlier second, more milliseconds", moment(999, 999), moment(1000, 500), moment(1000, 501)},
        {"a clock set back by a year", moment(1000, 7), moment(31537000, 999), moment(31537001, 0)},
        {"the end of 32 bits", moment(2147483647, 999), moment(2147483647, 999), moment(2147483648, 0)},
    };
    for (const StampCase& row : stamps) {
        SCOPED_TRACE(row.name);
        const timeb stamp = risingStamp(row.now, row.last);
        EXPECT_EQ(stamp.time, row.stamp.time);
        EXPECT_EQ(stamp.millitm, row.stamp.millitm);
    }
}

TEST(JobStamp, StartsAtThePresentTime)
{
    timespec before{};
    timespec after{};
    timeb time{};
    tm date{};
    clock_gettime(CLOCK_REALTIME, &before);
    CFerroJob().getCurrentTimeForFileName(time, date);
    clock_gettime(CLOCK_REALTIME, &after);
    const long long stamp = time.time * 1000LL + time.millitm;
    EXPECT_GE(stamp, before.tv_sec * 1000LL + before.tv_nsec / 1000000);
    EXPECT_LE(stamp, after.tv_sec * 1000LL + after.tv_nsec / 1000000);
}

TEST(JobStamp, RisesWithEachCallOfAnyObjectAndCarriesAtTheSecond)
{
    timeb last{};
    tm date{};
    CFerroJob().getCurrentTimeForFileName(last, date);
    for (int i = 0; i < 2500; ++i) { // faster than the clock: some begin a second by the carry
        timeb time{};
        CFerroJob().getCurrentTimeForFileName(time, date);
        ASSERT_LT(time.millitm, 1000);
        ASSERT_GT(time.time * 1000LL + time.millitm, last.time * 1000LL + last.millitm);
        ASSERT_EQ(date.tm_sec, time.time % 60);
        last = time;
    }
}

TEST(JobStamp, DateIsLocal)
{
    setenv("TZ", "XYZ-5:45", 1);
    tzset();
    timeb time{};
    tm date{};
    CFerroJob().getCurrentTimeForFileName(time, date);
    const time_t shifted = time.time + (5 * 60 + 45) * 60;
    tm expected{};
    gmtime_r(&shifted, &expected);
    EXPECT_EQ(date.tm_year, expected.tm_year);
    EXPECT_EQ(date.tm_mon, expected.tm_mon);
    EXPECT_EQ(date.tm_mday, expected.tm_mday);
    EXPECT_EQ(date.tm_hour, expected.tm_hour);
    EXPECT_EQ(date.tm_min, expected.tm_min);
    EXPECT_EQ(date.tm_sec, expected.tm_sec);
}

TEST_F(FerroJob, NewFileTakesTheLowestFreeNumber)
{
    struct NumberCase
    {
        std::vector<std::string> present;
        std::string made;
    };
    const NumberCase numbers[] = {
        {{}, "pub_0000.epj"},
        {{"pub_0000.epj"}, "pub_0001.epj"},
        {{"pub_0000.epj", "pub_0001.epj"}, "pub_0002.epj"},
        {{"pub_0001.epj", "pub_0002.epj"}, "pub_0000.epj"},
        {{"pub_0000.epj", "pub_0002.epj"}, "pub_0001.epj"},
        {{"other_0000.epj", "pub_0000.tmp", "pub_000.epj", "pub.epj"}, "pub_0000.epj"},
    };
    for (const NumberCase& row : numbers) {
        SCOPED_TRACE(row.made);
        std::filesystem::remove_all(jobFolder);
        std::filesystem::create_directories(jobFolder);
        for (const std::string& name : row.present) {
            WriteText(jobFile(name), "kept");
        }
        const int fd = CFerroJob().openNewJobFile(publisher());
        ASSERT_GE(fd, 0);
        close(fd);
        EXPECT_EQ(ReadText(jobFile(row.made)), "");
        EXPECT_EQ(jobFiles().size(), row.present.size() + 1);
        for (const std::string& name : row.present) {
            EXPECT_EQ(ReadText(jobFile(name)), "kept");
        }
    }
}

TEST_F(FerroJob, NewFileIsPrivateEmptyWriteOnlyAndClosedInOtherPrograms)
{
    umask(0);
    const int fd = CFerroJob().openNewJobFile(publisher());
    ASSERT_GE(fd, 0);
    struct stat status
    {
    };
    ASSERT_EQ(fstat(fd, &status), 0);
    EXPECT_EQ(status.st_mode, S_IFREG | 0700);
    EXPECT_EQ(status.st_size, 0);
    EXPECT_EQ(fcntl(fd, F_GETFL) & O_ACCMODE, O_WRONLY);
    EXPECT_EQ(fcntl(fd, F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
    close(fd);
}

TEST_F(FerroJob, LinkInTheWayIsNotFollowed)
{
    std::filesystem::create_symlink("/opt/elsewhere", jobFile("pub_0000.epj"));
    const int fd = CFerroJob().openNewJobFile(publisher());
    ASSERT_GE(fd, 0);
    close(fd);
    EXPECT_FALSE(std::filesystem::exists("/opt/elsewhere"));
    EXPECT_TRUE(std::filesystem::exists(jobFile("pub_0001.epj")));
}

TEST_F(FerroJob, JobFolderMayBeALink)
{
    std::filesystem::remove(jobFolder);
    std::filesystem::create_directories("/opt/work/UlmarDiscMakerWork");
    std::filesystem::create_directory_symlink("/opt/work/UlmarDiscMakerWork", jobFolder);
    submitBoth(publisher());
    EXPECT_TRUE(std::filesystem::exists("/opt/work/UlmarDiscMakerWork/pub_0000.epj"));
    EXPECT_TRUE(std::filesystem::exists("/opt/work/UlmarDiscMakerWork/pub_0001.epj"));
}

TEST_F(FerroJob, NoFileWithoutAUsableName)
{
    EXPECT_EQ(CFerroJob().openNewJobFile(publisher(std::string(256, 'i'))), -1);
    EXPECT_EQ(CFerroJob().openNewJobFile(publisher(std::string(100000, 'i'))), -1);
    EXPECT_EQ(CFerroJob().openNewJobFile(publisher("no/folder")), -1);
    EXPECT_THAT(jobFiles(), IsEmpty());
}

TEST_F(FerroJob, LongestAndOddestIDsNameTheirFiles)
{
    const std::string longest(255 - std::string("_0000.epj").size(), 'i');
    for (const std::string& id : {longest, std::string("%s%n"), std::string("caf\xe9"), std::string("")}) {
        const int fd = CFerroJob().openNewJobFile(publisher(id));
        EXPECT_GE(fd, 0) << id;
        close(fd);
        EXPECT_TRUE(std::filesystem::exists(jobFile(id + "_0000.epj"))) << id;
    }
}

TEST_F(FerroJob, ThousandFilesAreAllThatFit)
{
    for (int number = 0; number < 998; ++number) {
        WriteText(numberedFile(number), "kept");
    }
    submitBoth(publisher());
    EXPECT_NE(ReadText(jobFile("pub_0998.epj")), "");
    EXPECT_NE(ReadText(jobFile("pub_0999.epj")), "");
    ASSERT_EQ(jobFiles().size(), 1000U);

    const size_t descriptors = openDescriptors();
    EXPECT_EQ(CFerroJob().openNewJobFile(publisher()), -1);
    submitBoth(publisher());
    EXPECT_EQ(jobFiles().size(), 1000U);
    EXPECT_EQ(openDescriptors(), descriptors);

    std::filesystem::remove(jobFile("pub_0417.epj")); // the service took it
    submitBoth(publisher());
    EXPECT_NE(ReadText(jobFile("pub_0417.epj")), "kept");
    EXPECT_EQ(jobFiles().size(), 1000U);
}

TEST_F(FerroJob, LocalJobsAreWrittenAsFiles)
{
    PUBLISHERINFO info = publisher("{ARPUB20240131_1}");
    info.uiPublishMode = 2;
    info.uiStacker3DiscType = 1;
    const size_t descriptors = openDescriptors();
    submitBoth(info);
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_THAT(jobFiles(), ElementsAre("{ARPUB20240131_1}_0000.epj", "{ARPUB20240131_1}_0001.epj"));
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_EQ(withoutTime(ReadText(jobFile("{ARPUB20240131_1}_0000.epj"))),
              "[Common]\nVersion = 0x01050000\nPublisherID = {ARPUB20240131_1}\nLoad = -1\nEject = -1\n"
              "Count = 0\nPublisher = @UDSetup\nMode = 2\nJobName = Head Cleaning\nSaveJobData = 0\n"
              "PublishID = \nSilent = 0\n\n[Print]\nPrintMode = 3\n"
              "DataPath = /opt/arven/Ulmar Disc Maker/res/prnfile/headCleaning.prn\n"
              "DryingTime = 0\nPrintQuality = 0\n");
    EXPECT_EQ(withoutTime(ReadText(jobFile("{ARPUB20240131_1}_0001.epj"))),
              "[Common]\nVersion = 0x01050000\nPublisherID = {ARPUB20240131_1}\nLoad = 1\nEject = 3\n"
              "Count = 1\nPublisher = @UDSetup\nMode = 2\nJobName = Nozzle Check\nSaveJobData = 0\n"
              "PublishID = \nSilent = 0\n\n[Print]\nPrintMode = 4\n"
              "DataPath = /opt/arven/Ulmar Disc Maker/res/prnfile/nozzleCheck.prn\n"
              "DryingTime = 0\nPrintQuality = 0\n");
}

TEST_F(FerroJob, IDsOfJobsDifferAndTellTheSecondThatCreateTells)
{
    setenv("TZ", "XYZ+3", 1);
    tzset();
    std::string lastID;
    for (int i = 0; i < 20; ++i) {
        CFerroJob().SubmitHeadCleaningJob(publisher(), "");
        std::istringstream lines(ReadText(numberedFile(i)));
        std::string id;
        time_t create = 0;
        for (std::string line; std::getline(lines, line);) {
            id = line.starts_with("ID = ") ? line.substr(5) : id;
            create = line.starts_with("Create = ") ? std::stoll(line.substr(9)) : create;
        }
        const time_t shifted = create - 3 * 60 * 60;
        tm date{};
        gmtime_r(&shifted, &date);
        char second[16] = {};
        strftime(second, sizeof second, "%Y%m%d%H%M%S", &date);
        EXPECT_THAT(
            id, testing::MatchesRegex(std::string("LOCALHOST_") + second + "[0-9][0-9][0-9]_UDSetup_0000"));
        EXPECT_GT(id, lastID);
        lastID = id;
    }
}

TEST_F(FerroJob, OnlyTheNozzleCheckSpeaksOnTheStandardOutput)
{
    StdoutCapture first;
    CFerroJob().SubmitHeadCleaningJob(publisher(), "");
    EXPECT_EQ(first.Stop(), "");
    StdoutCapture second;
    CFerroJob().SubmitNozzleCheckJob(publisher(), "");
    EXPECT_EQ(second.Stop(), "CFerroJob::SubmitNozzleCheckJob");
}

TEST_F(FerroJob, EveryOtherTypeThanNetworkIsLocal)
{
    for (const UINT type : {0U, 2U, 3U, 0x10000009U, 0xFFFFFFFFU}) {
        submitBoth(publisher("type" + std::to_string(type), type));
        EXPECT_TRUE(std::filesystem::exists(jobFile("type" + std::to_string(type) + "_0001.epj"))) << type;
    }
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(FerroJob, NetworkPublisherWithoutConnectionGetsNothing)
{
    connects = false;
    submitBoth(publisher("net", 1));
    EXPECT_THAT(calls, ElementsAre("CPublisherMgr(true)", "StartConnection net", "CPublisherMgr(true)",
                                   "StartConnection net"));
    EXPECT_THAT(jobFiles(), IsEmpty());
}

TEST_F(FerroJob, ConnectionOfANetworkPublisherIsClosedAgain)
{
    connects = true;
    submitBoth(publisher("net", 1));
    EXPECT_THAT(calls, ElementsAre("CPublisherMgr(true)", "StartConnection net", "EndConnection 77",
                                   "CPublisherMgr(true)", "StartConnection net", "EndConnection 77"));
    EXPECT_THAT(jobFiles(), IsEmpty());
}

TEST_F(FerroJob, MissingNameIsNoTrouble)
{
    CFerroJob().SubmitHeadCleaningJob(publisher(), nullptr);
    CFerroJob().SubmitNozzleCheckJob(publisher("net", 1), nullptr);
    EXPECT_THAT(jobFiles(), ElementsAre("pub_0000.epj"));
}

TEST_F(FerroJob, MissingFolderIsSilent)
{
    std::filesystem::remove(jobFolder);
    EXPECT_EQ(CFerroJob().openNewJobFile(publisher()), -1);
    submitBoth(publisher());
    EXPECT_FALSE(std::filesystem::exists(jobFolder));
}

TEST_F(FerroJob, FileInPlaceOfTheFolderIsSilent)
{
    std::filesystem::remove(jobFolder);
    WriteText(jobFolder, "kept");
    submitBoth(publisher());
    EXPECT_EQ(ReadText(jobFolder), "kept");
}

TEST_F(FerroJob, FolderThatTakesNoFilesIsSilent)
{
    std::filesystem::permissions(jobFolder, std::filesystem::perms{0555});
    ASSERT_TRUE(TakeAwayPrivileges());
    submitBoth(publisher());
    EXPECT_THAT(jobFiles(), IsEmpty());
}

TEST_F(FerroJob, DiskThatTakesNoTextIsSilent)
{
    signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlim_t before = limit.rlim_cur;
    const size_t descriptors = openDescriptors();
    limit.rlim_cur = 0;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    CFerroJob().SubmitHeadCleaningJob(publisher(), "");
    limit.rlim_cur = before;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_THAT(jobFiles(), ElementsAre("pub_0000.epj"));
    EXPECT_EQ(ReadText(jobFile("pub_0000.epj")), "");
}

TEST_F(FerroJob, NoDescriptorLeftIsSilent)
{
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlim_t before = limit.rlim_cur;
    limit.rlim_cur = 0;
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
    EXPECT_EQ(CFerroJob().openNewJobFile(publisher()), -1);
    CFerroJob().SubmitHeadCleaningJob(publisher(), "");
    limit.rlim_cur = before;
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
    EXPECT_THAT(jobFiles(), IsEmpty());
}

TEST_F(FerroJob, ProgramsOfTheSuiteNeverTakeTheSameName)
{
    const auto work = [] {
        for (int i = 0; i < 100; ++i) {
            CFerroJob().SubmitHeadCleaningJob(publisher(), "");
        }
        return true;
    };
    const pid_t first = StartChild(work);
    const pid_t second = StartChild(work);
    EXPECT_TRUE(WaitFor(first));
    EXPECT_TRUE(WaitFor(second));
    ASSERT_EQ(jobFiles().size(), 200U);
    EXPECT_EQ(jobFiles().back(), "pub_0199.epj");
    const std::string whole = withoutTime(ReadText(jobFile("pub_0000.epj")));
    for (const std::string& name : jobFiles()) {
        EXPECT_EQ(withoutTime(ReadText(jobFile(name))), whole) << name;
    }
}

} // namespace

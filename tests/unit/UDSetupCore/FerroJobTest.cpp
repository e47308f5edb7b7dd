// Submission of maintenance jobs: job files, and network publishers with a scripted publisher manager and a
// scripted network library.
#include "FerroJob.h"

#include "ChildProcess.h"
#include "NW_Com_Lib.h"
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

struct SentJob
{
    std::string text;
    std::string data;
    int serverJobID; ///< before the call
};

std::vector<std::string> calls; // to the publisher manager and the library
bool connects = false;
DWORD sendResult = 0;
std::vector<SentJob> sent;

} // namespace

DWORD SendSpecialJobData(DWORD dwHandle, const BYTE* pJobData, DWORD dwJobDataSize, const BYTE* pPrnData,
                         DWORD dwPrnDataSize, int* pnServerJobIDOut)
{
    calls.push_back("SendSpecialJobData " + std::to_string(dwHandle));
    sent.push_back({std::string(pJobData, pJobData + dwJobDataSize),
                    std::string(pPrnData, pPrnData + dwPrnDataSize), *pnServerJobIDOut});
    return sendResult;
}

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

/// Submits both jobs. Expects only the line of the nozzle check on standard output.
void submitBoth(const PUBLISHERINFO& info)
{
    StdoutCapture output;
    CFerroJob().SubmitHeadCleaningJob(info, "Reinigung");
    CFerroJob().SubmitNozzleCheckJob(info, "Test");
    EXPECT_EQ(output.Stop(), "CFerroJob::SubmitNozzleCheckJob");
}

constexpr char headCleaningData[] = "/opt/arven/Ulmar Disc Maker/res/prnfile/headCleaning.prn";
constexpr char nozzleCheckData[] = "/opt/arven/Ulmar Disc Maker/res/prnfile/nozzleCheck.prn";

void writePrintData(const std::string& headCleaning, const std::string& nozzleCheck)
{
    std::filesystem::create_directories("/opt/arven/Ulmar Disc Maker/res/prnfile");
    WriteText(headCleaningData, headCleaning);
    WriteText(nozzleCheckData, nozzleCheck);
}

/// Removes the ID and Create lines, which depend on the current time, from a job text.
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

TEST_F(FerroJob, NewFileIsPrivateEmptyWriteOnlyAndCloseOnExec)
{
    umask(0);
    const int fd = CFerroJob().openNewJobFile(publisher());
    ASSERT_GE(fd, 0);
    struct stat status{};
    ASSERT_EQ(fstat(fd, &status), 0);
    EXPECT_EQ(status.st_mode, S_IFREG | 0700);
    EXPECT_EQ(status.st_size, 0);
    EXPECT_EQ(fcntl(fd, F_GETFL) & O_ACCMODE, O_WRONLY);
    EXPECT_EQ(fcntl(fd, F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
    close(fd);
}

TEST_F(FerroJob, ExistingLinkIsNotFollowed)
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

TEST_F(FerroJob, UnusualIDsNameTheirFiles)
{
    const std::string longest(255 - std::string("_0000.epj").size(), 'i');
    for (const std::string& id : {longest, std::string("%s%n"), std::string("caf\xe9"), std::string("")}) {
        const int fd = CFerroJob().openNewJobFile(publisher(id));
        EXPECT_GE(fd, 0) << id;
        close(fd);
        EXPECT_TRUE(std::filesystem::exists(jobFile(id + "_0000.epj"))) << id;
    }
}

TEST_F(FerroJob, AtMostAThousandFilesAreCreated)
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

    std::filesystem::remove(jobFile("pub_0417.epj")); // as the service does
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

TEST_F(FerroJob, JobIDsDifferAndHaveTheSecondOfCreate)
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

TEST_F(FerroJob, OnlyTheNozzleCheckWritesToStandardOutput)
{
    StdoutCapture first;
    CFerroJob().SubmitHeadCleaningJob(publisher(), "");
    EXPECT_EQ(first.Stop(), "");
    StdoutCapture second;
    CFerroJob().SubmitNozzleCheckJob(publisher(), "");
    EXPECT_EQ(second.Stop(), "CFerroJob::SubmitNozzleCheckJob");
}

TEST_F(FerroJob, EveryTypeExceptNetworkIsLocal)
{
    for (const UINT type : {0U, 2U, 3U, 0x10000009U, 0xFFFFFFFFU}) {
        submitBoth(publisher("type" + std::to_string(type), type));
        EXPECT_TRUE(std::filesystem::exists(jobFile("type" + std::to_string(type) + "_0001.epj"))) << type;
    }
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(FerroJob, NetworkPublisherWithoutConnectionIsSentNothing)
{
    writePrintData("c", "n");
    connects = false;
    submitBoth(publisher("net", 1));
    EXPECT_THAT(calls, ElementsAre("CPublisherMgr(true)", "StartConnection net", "CPublisherMgr(true)",
                                   "StartConnection net"));
    EXPECT_THAT(jobFiles(), IsEmpty());
}

const std::vector<std::string> connectedTwice = {"CPublisherMgr(true)", "StartConnection net",
                                                 "EndConnection 77",    "CPublisherMgr(true)",
                                                 "StartConnection net", "EndConnection 77"};

TEST_F(FerroJob, NetworkPublisherIsSentTextAndPrintData)
{
    const std::string cleaning("clean\0\n\xff", 8);
    const std::string check(3 * 1024 * 1024 + 1, 'p');
    writePrintData(cleaning, check);
    connects = true;
    PUBLISHERINFO info = publisher("net", 1);
    info.uiPublishMode = 1;
    const size_t descriptors = openDescriptors();
    submitBoth(info);
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_THAT(calls, ElementsAre("CPublisherMgr(true)", "StartConnection net", "SendSpecialJobData 77",
                                   "EndConnection 77", "CPublisherMgr(true)", "StartConnection net",
                                   "SendSpecialJobData 77", "EndConnection 77"));
    ASSERT_EQ(sent.size(), 2U);
    EXPECT_EQ(withoutTime(sent[0].text),
              "[Common]\nVersion = 0x01030000\nPublisherID = \nLoad = -1\nEject = -1\nCount = 0\n"
              "Publisher = @UDSetup\nMode = 2\nJobName = Reinigung\nSaveJobData = 0\nPublishID = \n"
              "Silent = 0\n\n[Print]\nPrintMode = 4\n"
              "DataPath = /opt/arven/Ulmar Disc Maker/res/prnfile/headCleaning.prn\n"
              "DryingTime = 0\nPrintQuality = 0\n");
    EXPECT_EQ(withoutTime(sent[1].text),
              "[Common]\nVersion = 0x01030000\nPublisherID = \nLoad = 1\nEject = 0\nCount = 1\n"
              "Publisher = @UDSetup\nMode = 2\nJobName = Test\nSaveJobData = 0\nPublishID = \n"
              "Silent = 0\n\n[Print]\nPrintMode = 5\n"
              "DataPath = /opt/arven/Ulmar Disc Maker/res/prnfile/nozzleCheck.prn\n"
              "DryingTime = 0\nPrintQuality = 0\n");
    EXPECT_EQ(sent[0].data, cleaning);
    EXPECT_EQ(sent[1].data, check);
    EXPECT_EQ(sent[0].serverJobID, 0);
    EXPECT_EQ(sent[1].serverJobID, 0);
    EXPECT_THAT(jobFiles(), IsEmpty());
}

TEST_F(FerroJob, TextForANetworkPublisherHasAtMost1023Bytes)
{
    writePrintData("c", "n");
    connects = true;
    const auto sizeWithName = [](size_t nameSize) {
        CFerroJob().SubmitHeadCleaningJob(publisher("net", 1), std::string(nameSize, 'x').c_str());
        return sent.back().text.size();
    };
    const size_t fixed = sizeWithName(0);
    EXPECT_EQ(sizeWithName(1023 - fixed), 1023U);
    EXPECT_TRUE(sent.back().text.ends_with("PrintQuality = 0\n"));
    EXPECT_EQ(sizeWithName(1024 - fixed), 1023U);
    EXPECT_TRUE(sent.back().text.ends_with("PrintQuality = 0"));
    EXPECT_EQ(sizeWithName(100000), 1023U);
}

TEST_F(FerroJob, WithoutPrintDataTheConnectionIsClosed)
{
    connects = true;
    submitBoth(publisher("net", 1)); // no files
    EXPECT_EQ(calls, connectedTwice);

    calls.clear();
    writePrintData("", "");
    submitBoth(publisher("net", 1));
    EXPECT_EQ(calls, connectedTwice);

    calls.clear();
    std::filesystem::remove(headCleaningData);
    std::filesystem::remove(nozzleCheckData);
    std::filesystem::create_directories(headCleaningData); // can be opened and has a size, but cannot be read
    std::filesystem::create_directories(nozzleCheckData);
    const size_t descriptors = openDescriptors();
    submitBoth(publisher("net", 1));
    EXPECT_EQ(calls, connectedTwice);
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_THAT(sent, IsEmpty());
    EXPECT_THAT(jobFiles(), IsEmpty());
}

TEST_F(FerroJob, RefusalByTheServerIsSilent)
{
    writePrintData("c", "n");
    connects = true;
    sendResult = 8005;
    submitBoth(publisher("net", 1));
    EXPECT_EQ(sent.size(), 2U);
    EXPECT_EQ(calls.back(), "EndConnection 77");
    EXPECT_THAT(jobFiles(), IsEmpty());
}

TEST_F(FerroJob, MissingNameIsAccepted)
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

TEST_F(FerroJob, UnwritableFolderIsSilent)
{
    std::filesystem::permissions(jobFolder, std::filesystem::perms{0555});
    ASSERT_TRUE(TakeAwayPrivileges());
    submitBoth(publisher());
    EXPECT_THAT(jobFiles(), IsEmpty());
}

TEST_F(FerroJob, FullDiskIsSilent)
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

TEST_F(FerroJob, LackOfDescriptorsIsSilent)
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

TEST_F(FerroJob, ConcurrentProgramsNeverUseTheSameName)
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

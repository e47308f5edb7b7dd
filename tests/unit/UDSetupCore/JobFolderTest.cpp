// The job folder: the kinds of JOB_DIR, the names of jobs, the creation of a folder, and every line on
// standard error.
#include "JobFolderFixture.h"

namespace {

namespace fs = std::filesystem;

// ---------------------------------------------------------------------------------------------------------------------
// Kinds of the path

TEST_F(JobFolder, ARealFolderIsItself)
{
    EXPECT_EQ(errorsOf([] { EXPECT_EQ(currentJobFolder(), job); }), "");
}

TEST_F(JobFolder, ALinkReturnsTheRealPathOfItsTarget)
{
    fs::create_directories("/tmp/a/real");
    fs::create_directory_symlink("/tmp/a/real", "/tmp/b/alias");
    link("/tmp/b/alias");
    EXPECT_EQ(currentJobFolder(), "/tmp/a/real");
}

TEST_F(JobFolder, ALinkWithoutATargetReturnsItsText)
{
    link("/tmp/gone/UlmarDiscMakerWork");
    EXPECT_EQ(errorsOf([] { EXPECT_EQ(currentJobFolder(), "/tmp/gone/UlmarDiscMakerWork"); }), "");
}

TEST_F(JobFolder, ALinkToAnInaccessibleTargetReturnsItsText)
{
    fs::create_directories("/tmp/a/UlmarDiscMakerWork");
    link("/tmp/a/UlmarDiscMakerWork");
    ASSERT_EQ(chmod("/tmp/a", 0), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    EXPECT_EQ(errorsOf([] { EXPECT_EQ(currentJobFolder(), "/tmp/a/UlmarDiscMakerWork"); }), "");
}

TEST_F(JobFolder, TheTextOfALinkIsTruncatedTo1023Bytes)
{
    for (const size_t length : {1022, 1023, 1024, 2000}) {
        const std::string text = folderOf(length);
        ASSERT_EQ(text.size(), length);
        link(text);
        EXPECT_EQ(currentJobFolder(), text.substr(0, 1023));
    }
}

TEST_F(JobFolder, AMissingPathIsReported)
{
    fs::remove(job);
    EXPECT_EQ(errorsOf([] { EXPECT_EQ(currentJobFolder(), ""); }),
              "realpath(\"/opt/arven/Ulmar Disc Maker/JOB\") failed, errno: 2. readlink also failed, errno: "
              "2\nNo such file or directory\n");
}

TEST_F(JobFolder, AnInaccessiblePathIsReported)
{
    ASSERT_EQ(chmod(base.c_str(), 0), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    EXPECT_EQ(errorsOf([] { EXPECT_EQ(currentJobFolder(), ""); }),
              "realpath(\"/opt/arven/Ulmar Disc Maker/JOB\") failed, errno: 13. readlink also failed, errno: "
              "13\nPermission denied\n");
}

TEST_F(JobFolder, ALoopIsReported)
{
    link("JOB");
    EXPECT_EQ(errorsOf([] { EXPECT_EQ(currentJobFolder(), ""); }),
              "realpath(\"/opt/arven/Ulmar Disc Maker/JOB\") failed, errno: 40\nToo many levels of symbolic "
              "links\n");
}

TEST_F(JobFolder, ALinkBelowAFileIsReported)
{
    WriteText("/tmp/file", "");
    link("/tmp/file/UlmarDiscMakerWork");
    EXPECT_EQ(errorsOf([] { EXPECT_EQ(currentJobFolder(), ""); }),
              "realpath(\"/opt/arven/Ulmar Disc Maker/JOB\") failed, errno: 20\nNot a directory\n");
}

TEST_F(JobFolder, AFileInItsPlaceIsNotBroken)
{
    fs::remove(job);
    WriteText(job, "");
    EXPECT_EQ(repairedJobFolder(), job);
    EXPECT_TRUE(fs::is_regular_file(job));
}

TEST_F(JobFolder, RepairDoesNotChangeAValidPath)
{
    WriteText(job + "/1.epj", "");
    EXPECT_EQ(errorsOf([] { EXPECT_EQ(repairedJobFolder(), job); }), "");
    EXPECT_TRUE(fs::exists(job + "/1.epj"));
    link("/tmp/gone");
    EXPECT_EQ(repairedJobFolder(), "/tmp/gone");
    EXPECT_EQ(fs::read_symlink(job), "/tmp/gone");
}

TEST_F(JobFolder, RepairReplacesABrokenPathByAFolder)
{
    link("JOB");
    EXPECT_EQ(repairedJobFolder(), job);
    EXPECT_EQ(modeOf(job), mode_t{S_IFDIR | 01777});
    fs::remove(job);
    EXPECT_EQ(repairedJobFolder(), job);
    EXPECT_EQ(modeOf(job), mode_t{S_IFDIR | 01777});
}

TEST_F(JobFolder, RepairCanFail)
{
    fs::remove_all("/opt/arven");
    const std::string missing = "realpath(\"/opt/arven/Ulmar Disc Maker/JOB\") failed, errno: 2. readlink "
                                "also failed, errno: 2\nNo such file or directory\n";
    EXPECT_EQ(errorsOf([] { EXPECT_EQ(repairedJobFolder(), ""); }),
              missing +
                  "mkdir(\"/opt/arven/Ulmar Disc Maker/JOB\") failed, errno: 2\nNo such file or directory\n" +
                  missing);
}

TEST(WorkingFolder, IsTheParentOfTheJobFolder)
{
    constexpr struct
    {
        const char* jobFolder;
        const char* shown;
    } table[] = {
        {"/opt/arven/Ulmar Disc Maker/JOB", "/opt/arven/Ulmar Disc Maker"},
        {"/data/discs/UlmarDiscMakerWork", "/data/discs"},
        {"/data/discs/UlmarDiscMakerWork/", "/data/discs"},
        {"/UlmarDiscMakerWork", "/"},
        {"elsewhere/UlmarDiscMakerWork", "elsewhere"},
        {"UlmarDiscMakerWork", "."},
    };
    for (const auto& row : table) {
        EXPECT_EQ(workingFolderOf(row.jobFolder), row.shown);
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// Jobs

struct NameCase
{
    const char* name;
    bool isJob;
};

const NameCase nameTable[] = {
    {"1.epj", true},        {"1.eps", true},   {"a b.epj", true},    {"\xC3\xA4.eps", true},
    {"x.epj.eps", true},    {".epj", false},   {".eps", false},      {".1.epj", false},
    {".hidden.eps", false}, {"..epj", false},  {"1.EPJ", false},     {"1.Eps", false},
    {"1.epj2", false},      {"1.epj~", false}, {"1.epj.tmp", false}, {"epj", false},
    {"xepj", false},        {"1.ep", false},   {"1epj", false},      {"12epj", false},
    {"1.epk", false},       {".", false},      {"..", false},        {"", false},
};

TEST(JobNames, AreRecognized)
{
    for (const NameCase& row : nameTable) {
        EXPECT_EQ(isJobName(row.name), row.isJob) << row.name;
    }
}

TEST_F(JobFolder, TheFolderCountsTheSameNames)
{
    EXPECT_FALSE(jobFolderHasJobs());
    for (const NameCase& row : nameTable) {
        const std::string name = row.name;
        if (name.empty() || name == "." || name == "..") {
            continue;
        }
        WriteText(job + "/" + name, "");
        ASSERT_TRUE(fs::exists(job + "/" + name));
        EXPECT_EQ(jobFolderHasJobs(), row.isJob) << name;
        fs::remove(job + "/" + name);
    }
}

TEST_F(JobFolder, OneJobAmongOthersIsEnough)
{
    for (int i = 0; i < 300; ++i) {
        WriteText(job + "/file" + std::to_string(i) + ".txt", "");
    }
    EXPECT_FALSE(jobFolderHasJobs());
    WriteText(job + "/file150.epj", "");
    EXPECT_TRUE(jobFolderHasJobs());
}

TEST_F(JobFolder, AFolderWithTheNameOfAJobCounts)
{
    fs::create_directory(job + "/1.epj");
    EXPECT_TRUE(jobFolderHasJobs());
}

TEST_F(JobFolder, JobsAreFoundThroughTheLink)
{
    useA();
    EXPECT_FALSE(jobFolderHasJobs());
    WriteText("/tmp/a/UlmarDiscMakerWork/1.eps", "");
    EXPECT_TRUE(jobFolderHasJobs());
}

TEST_F(JobFolder, AFolderThatCannotBeOpenedHasNoJobs)
{
    WriteText(job + "/1.epj", "");
    ASSERT_EQ(chmod(job.c_str(), 0), 0);
    ASSERT_TRUE(jobFolderHasJobs());
    ASSERT_TRUE(TakeAwayPrivileges());
    EXPECT_EQ(errorsOf([] { EXPECT_FALSE(jobFolderHasJobs()); }), "");
}

// ---------------------------------------------------------------------------------------------------------------------
// Creation of a folder

TEST_F(JobFolder, AFolderIsCreatedForEveryUser)
{
    umask(0077);
    EXPECT_TRUE(makeJobFolder("/tmp/new"));
    EXPECT_EQ(modeOf("/tmp/new"), mode_t{S_IFDIR | 01777});
}

TEST_F(JobFolder, AnExistingFolderGetsTheMode)
{
    ASSERT_EQ(chmod("/tmp/a", 0700), 0);
    EXPECT_EQ(errorsOf([] { EXPECT_TRUE(makeJobFolder("/tmp/a")); }), "");
    EXPECT_EQ(modeOf("/tmp/a"), mode_t{S_IFDIR | 01777});
}

TEST_F(JobFolder, FilesAndLinksAreRefused)
{
    WriteText("/tmp/file", "");
    fs::create_directory_symlink("/tmp/a", "/tmp/alias");
    EXPECT_EQ(errorsOf([] { EXPECT_FALSE(makeJobFolder("/tmp/file")); }),
              "mkdir(\"/tmp/file\") failed, errno: 17\nFile exists\n");
    EXPECT_EQ(errorsOf([] { EXPECT_FALSE(makeJobFolder("/tmp/alias")); }),
              "mkdir(\"/tmp/alias\") failed, errno: 17\nFile exists\n");
}

TEST_F(JobFolder, AFolderRequiresItsParent)
{
    EXPECT_EQ(errorsOf([] { EXPECT_FALSE(makeJobFolder("/tmp/gone/new")); }),
              "mkdir(\"/tmp/gone/new\") failed, errno: 2\nNo such file or directory\n");
}

TEST_F(JobFolder, AForeignFolderKeepsItsMode)
{
    EXPECT_EQ(errorsOf([] { EXPECT_FALSE(makeJobFolder("/proc/self")); }),
              "mkdir(\"/proc/self\") failed, errno: 17\nFile exists\n");
    EXPECT_EQ(errorsOf([] { EXPECT_FALSE(makeJobFolder("/usr")); }),
              "chmod failed, errno: 30\nRead-only file system\n");
}

} // namespace

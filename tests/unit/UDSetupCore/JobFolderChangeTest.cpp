// Changes of the working folder: the folders that are refused, and the state of JOB_DIR after a change.
#include "JobFolderFixture.h"

namespace {

namespace fs = std::filesystem;

TEST(JobFolderResult, HasTheDocumentedNumbers)
{
    EXPECT_EQ(changeWorkingFolder_OK, 0);
    EXPECT_EQ(changeWorkingFolder_ProcessingJob, 1);
    EXPECT_EQ(changeWorkingFolder_BadPath, 2);
}

// ---------------------------------------------------------------------------------------------------------------------
// Screening

TEST(JobFolderScreening, RefusesPathsThatBeginLikeTheInstallation)
{
    constexpr struct
    {
        const char* folder;
        bool inside;
    } table[] = {
        {"/opt/arven/Ulmar Disc Maker", false},
        {"/opt/arven/Ulmar Disc Maker/", true},
        {"/opt/arven/Ulmar Disc Maker/JOB", true},
        {"/opt/arven/Ulmar Disc Maker/conf", true},
        {"/opt/arven/Ulmar Disc Maker2", true},
        {"/opt/arven/Ulmar Disc Maker Work", true},
        {"/opt/arven/Ulmar Disc Make", false},
        {"/opt/arven/ulmar disc maker/x", false},
        {"//opt/arven/Ulmar Disc Maker/x", false},
        {"/opt/arven", false},
        {"/", false},
        {"", false},
    };
    for (const auto& row : table) {
        EXPECT_EQ(isInsideInstallation(row.folder), row.inside) << row.folder;
    }
}

TEST_F(JobFolder, FoldersInTheInstallationAreRefused)
{
    fs::create_directories(base + "/conf");
    fs::create_directories(base + " Work");
    expectRefused(base + "/conf", "");
    expectRefused(base + "/", "");
    expectRefused(base + "/gone", "");
    expectRefused(base + " Work", "");
}

TEST_F(JobFolder, IndirectPathsIntoTheInstallationAreRefused)
{
    fs::create_directories(base + "/conf");
    fs::create_directory_symlink(base + "/conf", "/tmp/alias");
    expectRefused("/tmp/alias", "");
    expectRefused("//opt/arven/Ulmar Disc Maker/conf", "");
    expectRefused("/tmp/../opt/arven/Ulmar Disc Maker/conf", "");
    ASSERT_EQ(chdir(base.c_str()), 0);
    expectRefused("conf", "");
}

TEST_F(JobFolder, IndirectPathsToTheInstallationItselfMeanTheDefault)
{
    fs::create_directory_symlink(base, "/tmp/alias");
    for (const char* folder :
         {"/tmp/alias", "//opt/arven/Ulmar Disc Maker", "/tmp/../opt/arven/Ulmar Disc Maker/"}) {
        useA();
        const JobFolderChange change = changeJobFolder(folder);
        EXPECT_EQ(change.result, 0) << folder;
        EXPECT_EQ(change.folder, base);
        EXPECT_TRUE(isRealFolder(job));
    }
}

TEST_F(JobFolder, AFolderThatCannotBeResolvedIsRefused)
{
    expectRefused("/tmp/gone", "realpath(\"/tmp/gone\") failed, errno: 2\nNo such file or directory\n");
    WriteText("/tmp/file", "");
    expectRefused("/tmp/file/x", "realpath(\"/tmp/file/x\") failed, errno: 20\nNot a directory\n");
    fs::create_symlink("loop", "/tmp/loop");
    expectRefused("/tmp/loop",
                  "realpath(\"/tmp/loop\") failed, errno: 40\nToo many levels of symbolic links\n");
    expectRefused(" ", "realpath(\" \") failed, errno: 2\nNo such file or directory\n");
    expectRefused("/tmp/%s%n", "realpath(\"/tmp/%s%n\") failed, errno: 2\nNo such file or directory\n");
    const std::string longName = "/" + std::string(10000, 'y');
    expectRefused(longName, "realpath(\"" + longName + "\") failed, errno: 36\nFile name too long\n");
}

TEST_F(JobFolder, AFileIsRefused)
{
    WriteText("/tmp/file", "");
    expectRefused("/tmp/file",
                  "mkdir(\"/tmp/file/UlmarDiscMakerWork\") failed, errno: 20\nNot a directory\n");
}

TEST_F(JobFolder, AFolderTooDeepForItsWorkFolderIsRefused)
{
    const std::string deep = folderOf(4090);
    ASSERT_EQ(chdir("/tmp"), 0);
    for (size_t at = 5; at < deep.size(); at += 201) {
        const std::string part = deep.substr(at, 200);
        ASSERT_TRUE(mkdir(part.c_str(), 0700) == 0 || errno == EEXIST);
        ASSERT_EQ(chdir(part.c_str()), 0);
    }
    expectRefused(deep, "mkdir(\"" + deep + "/UlmarDiscMakerWork\") failed, errno: 36\nFile name too long\n");
}

// ---------------------------------------------------------------------------------------------------------------------
// The change

TEST_F(JobFolder, ACustomFolderBecomesTheTargetOfTheLink)
{
    umask(0077);
    JobFolderChange change;
    EXPECT_EQ(errorsOf([&] { change = changeJobFolder("/tmp/a"); }), "");
    EXPECT_EQ(change.result, 0);
    EXPECT_EQ(change.folder, "/tmp/a");
    EXPECT_EQ(fs::read_symlink(job), "/tmp/a/UlmarDiscMakerWork");
    EXPECT_EQ(modeOf("/tmp/a/UlmarDiscMakerWork"), mode_t{S_IFDIR | 01777});
    EXPECT_EQ(currentJobFolder(), "/tmp/a/UlmarDiscMakerWork");
    EXPECT_EQ(workingFolderOf(currentJobFolder()), "/tmp/a");
}

TEST_F(JobFolder, AnotherCustomFolderMovesTheLink)
{
    useA();
    EXPECT_EQ(changeJobFolder("/tmp/b").result, 0);
    EXPECT_EQ(fs::read_symlink(job), "/tmp/b/UlmarDiscMakerWork");
    EXPECT_TRUE(isRealFolder("/tmp/a/UlmarDiscMakerWork")) << "the old folder remains";
}

TEST_F(JobFolder, ACustomFolderIsResolvedToItsRealPath)
{
    fs::create_directory_symlink("/tmp/a", "/tmp/alias");
    for (const char* folder : {"/tmp/alias", "/tmp/a/", "/tmp//a", "/tmp/b/../a/."}) {
        EXPECT_EQ(changeJobFolder("").result, 0);
        const JobFolderChange change = changeJobFolder(folder);
        EXPECT_EQ(change.result, 0) << folder;
        EXPECT_EQ(change.folder, "/tmp/a");
        EXPECT_EQ(fs::read_symlink(job), "/tmp/a/UlmarDiscMakerWork");
    }
    ASSERT_EQ(chdir("/tmp/b"), 0);
    EXPECT_EQ(changeJobFolder(".").folder, "/tmp/b");
}

TEST_F(JobFolder, NamesMayContainAnyByte)
{
    for (const char* name :
         {"two  words", "\"quoted\" 'too'", "\xC3\xA4\xE6\xBC\xA2", "\xFF\xFE", "a\nb", "%s"}) {
        const std::string folder = std::string("/tmp/") + name;
        fs::create_directory(folder);
        const JobFolderChange change = changeJobFolder(folder);
        EXPECT_EQ(change.result, 0) << name;
        EXPECT_EQ(change.folder, folder);
        EXPECT_EQ(currentJobFolder(), folder + "/UlmarDiscMakerWork");
    }
}

TEST_F(JobFolder, EmptyAndTheInstallationMeanTheDefault)
{
    for (const char* folder : {"", "/opt/arven/Ulmar Disc Maker"}) {
        useA();
        JobFolderChange change;
        EXPECT_EQ(errorsOf([&] { change = changeJobFolder(folder); }), "");
        EXPECT_EQ(change.result, 0);
        EXPECT_EQ(change.folder, "/opt/arven/Ulmar Disc Maker");
        EXPECT_EQ(modeOf(job), mode_t{S_IFDIR | 01777});
        EXPECT_TRUE(isRealFolder("/tmp/a/UlmarDiscMakerWork"));
    }
}

TEST_F(JobFolder, TheDefaultAgainChangesNothing)
{
    ASSERT_EQ(chmod(job.c_str(), 0700), 0);
    WriteText(job + "/1.epj", "");
    for (const char* folder : {"", "/opt/arven/Ulmar Disc Maker"}) {
        const JobFolderChange change = changeJobFolder(folder);
        EXPECT_EQ(change.result, 0) << "no job check if the folder does not change";
        EXPECT_EQ(change.folder, base);
        EXPECT_EQ(modeOf(job), mode_t{S_IFDIR | 0700});
    }
}

TEST_F(JobFolder, TheDefaultCanFail)
{
    useA();
    ASSERT_EQ(chmod(base.c_str(), 0555), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    JobFolderChange change;
    EXPECT_EQ(errorsOf([&] { change = changeJobFolder(""); }),
              "mkdir(\"/opt/arven/Ulmar Disc Maker/JOB\") failed, errno: 17\nFile exists\n");
    EXPECT_EQ(change.result, 2);
    EXPECT_EQ(change.folder, "");
    EXPECT_EQ(fs::read_symlink(job), "/tmp/a/UlmarDiscMakerWork");
}

TEST_F(JobFolder, AJobPreventsAChangeOfTheLink)
{
    useA();
    for (const char* name : {"1.epj", "1.eps"}) {
        const std::string file = std::string("/tmp/a/UlmarDiscMakerWork/") + name;
        WriteText(file, "");
        for (const char* folder : {"", "/opt/arven/Ulmar Disc Maker", "/tmp/b"}) {
            const JobFolderChange change = changeJobFolder(folder);
            EXPECT_EQ(change.result, 1) << folder;
            EXPECT_EQ(change.folder, "");
            EXPECT_EQ(fs::read_symlink(job), "/tmp/a/UlmarDiscMakerWork");
            EXPECT_FALSE(fs::exists("/tmp/b/UlmarDiscMakerWork"));
        }
        fs::remove(file);
    }
    EXPECT_EQ(changeJobFolder("/tmp/b").result, 0);
}

TEST_F(JobFolder, AJobPreventsAChangeOfTheRealFolder)
{
    WriteText(job + "/1.epj", "");
    EXPECT_EQ(changeJobFolder("/tmp/a").result, 1);
    EXPECT_TRUE(fs::exists(job + "/1.epj"));
    EXPECT_FALSE(fs::exists("/tmp/a/UlmarDiscMakerWork"));
}

TEST_F(JobFolder, OtherFilesDoNotPreventAChange)
{
    useA();
    WriteText("/tmp/a/UlmarDiscMakerWork/.epj", "");
    WriteText("/tmp/a/UlmarDiscMakerWork/.hidden.eps", "");
    EXPECT_EQ(changeJobFolder("/tmp/b").result, 0);
    EXPECT_EQ(fs::read_symlink(job), "/tmp/b/UlmarDiscMakerWork");
}

TEST_F(JobFolder, TheSameFolderAgainNeedsNoJobCheck)
{
    useA();
    WriteText("/tmp/a/UlmarDiscMakerWork/1.epj", "");
    ASSERT_EQ(chmod("/tmp/a/UlmarDiscMakerWork", 0700), 0);
    const JobFolderChange change = changeJobFolder("/tmp/a/");
    EXPECT_EQ(change.result, 0);
    EXPECT_EQ(change.folder, "") << "the folder did not change";
    EXPECT_EQ(modeOf("/tmp/a/UlmarDiscMakerWork"), mode_t{S_IFDIR | 0700}) << "unchanged";
}

TEST_F(JobFolder, TheSameFolderAgainCreatesItsMissingWorkFolder)
{
    useA();
    fs::remove("/tmp/a/UlmarDiscMakerWork");
    JobFolderChange change;
    EXPECT_EQ(errorsOf([&] { change = changeJobFolder("/tmp/a"); }), "");
    EXPECT_EQ(change.result, 0);
    EXPECT_EQ(modeOf("/tmp/a/UlmarDiscMakerWork"), mode_t{S_IFDIR | 01777});
    EXPECT_EQ(fs::read_symlink(job), "/tmp/a/UlmarDiscMakerWork");
}

TEST_F(JobFolder, TheSameFolderAgainRefusesAFile)
{
    useA();
    fs::remove("/tmp/a/UlmarDiscMakerWork");
    WriteText("/tmp/a/UlmarDiscMakerWork", "a file");
    const JobFolderChange change = changeJobFolder("/tmp/a");
    EXPECT_EQ(change.result, 2);
    EXPECT_EQ(change.folder, "");
}

TEST_F(JobFolder, TheSameFolderAgainMayBeUnwritable)
{
    useA();
    fs::remove("/tmp/a/UlmarDiscMakerWork");
    ASSERT_EQ(chmod("/tmp/a", 0555), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    JobFolderChange change = {changeWorkingFolder_OK, ""};
    EXPECT_EQ(errorsOf([&] { change = changeJobFolder("/tmp/a"); }),
              "mkdir(\"/tmp/a/UlmarDiscMakerWork\") failed, errno: 13\nPermission denied\n");
    EXPECT_EQ(change.result, 2);
}

TEST_F(JobFolder, ACustomFolderThatCannotBeWrittenIsRefused)
{
    ASSERT_EQ(chmod("/tmp/a", 0555), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    expectRefused("/tmp/a", "mkdir(\"/tmp/a/UlmarDiscMakerWork\") failed, errno: 13\nPermission denied\n");
}

TEST_F(JobFolder, OtherFilesKeepTheRealFolderAndTheChangeSucceeds)
{
    WriteText(job + "/notes.txt", "");
    const JobFolderChange change = changeJobFolder("/tmp/a");
    EXPECT_EQ(change.result, 0);
    EXPECT_EQ(change.folder, "/tmp/a");
    EXPECT_TRUE(isRealFolder(job));
    EXPECT_TRUE(fs::exists(job + "/notes.txt"));
    EXPECT_TRUE(isRealFolder("/tmp/a/UlmarDiscMakerWork"));
}

TEST_F(JobFolder, TheLinkReplacesABrokenPathOrAFile)
{
    for (const char* text : {"JOB", "/tmp/gone"}) {
        link(text);
        EXPECT_EQ(changeJobFolder("/tmp/a").result, 0) << text;
        EXPECT_EQ(fs::read_symlink(job), "/tmp/a/UlmarDiscMakerWork");
    }
    fs::remove(job);
    EXPECT_EQ(changeJobFolder("/tmp/a").result, 0) << "missing";
    EXPECT_EQ(fs::read_symlink(job), "/tmp/a/UlmarDiscMakerWork");
    fs::remove(job);
    WriteText(job, "");
    EXPECT_EQ(changeJobFolder("/tmp/a").result, 0) << "a file";
    EXPECT_EQ(fs::read_symlink(job), "/tmp/a/UlmarDiscMakerWork");
}

// ---------------------------------------------------------------------------------------------------------------------
// A program with root privileges and its caller. A sandbox has only its own user: the program can switch to
// that user, but not to others.

TEST_F(JobFolder, AFolderThatTheCallerCannotOpenIsReportedAndUsed)
{
    fs::create_directory("/tmp/a/UlmarDiscMakerWork");
    ASSERT_EQ(chmod("/tmp/a", 0311), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    const struct
    {
        const char* pkexec;
        const char* sudo;
        const char* errors;
    } table[] = {
        {"0", nullptr, "opendir(\"/tmp/a\") failed for uid 0, errno: 13\nPermission denied for uid 0\n"},
        {nullptr, "0", "opendir(\"/tmp/a\") failed for uid 0, errno: 13\nPermission denied for uid 0\n"},
        {"0", "1000", "opendir(\"/tmp/a\") failed for uid 0, errno: 13\nPermission denied for uid 0\n"},
        {"1000", "0", ""}, // the first one applies, and this process cannot become that user
        {nullptr, nullptr, ""},
        {"", "0", ""},
        {"nobody", nullptr, ""},
        {"0x", nullptr, ""},
        {"4294967295", nullptr, ""},
        {"99999999999999999999", nullptr, ""},
        {"-1", nullptr, ""},
    };
    for (const auto& row : table) {
        row.pkexec != nullptr ? setenv("PKEXEC_UID", row.pkexec, 1) : unsetenv("PKEXEC_UID");
        row.sudo != nullptr ? setenv("SUDO_UID", row.sudo, 1) : unsetenv("SUDO_UID");
        ASSERT_EQ(changeJobFolder("").result, 0);
        JobFolderChange change;
        EXPECT_EQ(errorsOf([&] { change = changeJobFolder("/tmp/a"); }), row.errors)
            << (row.pkexec != nullptr ? row.pkexec : "unset") << " "
            << (row.sudo != nullptr ? row.sudo : "unset");
        EXPECT_EQ(change.result, 0) << "the report does not affect the result";
        EXPECT_EQ(fs::read_symlink(job), "/tmp/a/UlmarDiscMakerWork");
        EXPECT_EQ(geteuid(), getuid());
    }
}

TEST_F(JobFolder, AFolderThatTheCallerCanOpenIsNotReported)
{
    setenv("PKEXEC_UID", "0", 1);
    EXPECT_EQ(errorsOf([] { EXPECT_EQ(changeJobFolder("/tmp/a").result, 0); }), "");
}

TEST_F(JobFolder, AFileIsReportedForTheCallerToo)
{
    WriteText("/tmp/file", "");
    setenv("SUDO_UID", "0", 1);
    expectRefused("/tmp/file",
                  "opendir(\"/tmp/file\") failed for uid 0, errno: 20\nNot a directory for uid 0\n"
                  "mkdir(\"/tmp/file/UlmarDiscMakerWork\") failed, errno: 20\nNot a directory\n");
}

} // namespace

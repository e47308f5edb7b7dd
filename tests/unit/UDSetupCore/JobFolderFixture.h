// The job folder for tests, and functions that examine it.
#pragma once

#include "JobFolder.h"

#include "InstallPaths.h"
#include "OrdinaryRights.h"
#include "TextFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

inline const std::string base = "/opt/arven/Ulmar Disc Maker";
inline const std::string job = "/opt/arven/Ulmar Disc Maker/JOB";

/// The path of a folder in "/tmp" with `length` bytes. Does not create the folder.
inline std::string folderOf(size_t length)
{
    std::string path = "/tmp";
    while (path.size() + 2 <= length) {
        path += "/" + std::string(std::min<size_t>(200, length - path.size() - 1), 'x');
    }
    return path;
}

inline mode_t modeOf(const std::string& path)
{
    struct stat found = {};
    return lstat(path.c_str(), &found) == 0 ? found.st_mode : 0;
}

inline bool isRealFolder(const std::string& path)
{
    return S_ISDIR(modeOf(path));
}

/// What `work` writes to standard error.
template <class Work>
std::string errorsOf(Work work)
{
    testing::internal::CaptureStderr();
    work();
    return testing::internal::GetCapturedStderr();
}

/// An installation with a real job folder, and two other folders to choose from.
class JobFolder : public testing::Test
{
protected:
    JobFolder()
    {
        unsetenv("PKEXEC_UID");
        unsetenv("SUDO_UID");
        std::filesystem::create_directories(job);
        std::filesystem::create_directories("/tmp/a");
        std::filesystem::create_directories("/tmp/b");
    }

    /// Replaces JOB by a link to `text`.
    static void link(const std::string& text)
    {
        std::filesystem::remove_all(job);
        ASSERT_EQ(symlink(text.c_str(), job.c_str()), 0);
    }

    /// Makes "/tmp/a" the working folder.
    static void useA()
    {
        ASSERT_EQ(changeJobFolder("/tmp/a").result, 0);
        ASSERT_EQ(std::filesystem::read_symlink(job), "/tmp/a/UlmarDiscMakerWork");
    }

    static void expectRefused(const std::string& folder, const std::string& errors)
    {
        SCOPED_TRACE(folder.substr(0, 80));
        JobFolderChange change = {changeWorkingFolder_OK, "x"};
        EXPECT_EQ(errorsOf([&] { change = changeJobFolder(folder); }), errors);
        EXPECT_EQ(change.result, 2);
        EXPECT_EQ(change.folder, "");
        EXPECT_TRUE(isRealFolder(job));
    }
};

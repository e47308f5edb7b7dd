// A small file system at a folder of the sandbox.
#pragma once

#include <array>
#include <cerrno>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

/// Hides the folder, which is created if necessary, behind an empty file system of 256 KiB.
inline void MountSmallDisk(const std::string& folder)
{
    std::filesystem::create_directories(folder);
    ASSERT_EQ(mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=256k"), 0) << errno;
}

/// Fills the file system with a file in the folder. Only the unused ends of the blocks of its files are left.
inline void FillDisk(const std::string& folder)
{
    const int file = open((folder + "/filler").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_GE(file, 0);
    const std::array<char, 4096> block = {};
    while (write(file, block.data(), block.size()) > 0) {
    }
    EXPECT_EQ(errno, ENOSPC);
    close(file);
}

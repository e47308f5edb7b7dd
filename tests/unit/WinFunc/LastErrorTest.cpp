// The thread's errno as a Windows error code: every number, not only those in the table.
#include "Win_def.h"

#include <map>
#include <thread>

#include <gtest/gtest.h>

namespace {

const std::map<int, DWORD> table = {
    {0, 0},       {ENOENT, 2},   {ENXIO, 2},    {ENAMETOOLONG, 3}, {ELOOP, 3},     {EACCES, 5},
    {ETXTBSY, 5}, {ENOMEM, 8},   {EIO, 23},     {EEXIST, 80},      {EINVAL, 87},   {EISDIR, 87},
    {EPIPE, 109}, {ENOSPC, 112}, {EDQUOT, 112}, {EBUSY, 142},      {ENOTDIR, 267}, {EROFS, 6009},
};

TEST(LastErrorTest, MapsEveryErrno)
{
    for (int number = -2; number <= 200; ++number) {
        errno = number;
        const DWORD code = GetLastError();
        const auto row = table.find(number);
        EXPECT_EQ(code, row == table.end() ? 1u : row->second) << "errno " << number;
        EXPECT_EQ(errno, number) << "GetLastError does not change errno";
    }
}

TEST(LastErrorTest, AStoredCodeIsReadThroughTheTable)
{
    for (DWORD code = 0; code <= 200; ++code) {
        SetLastError(code);
        EXPECT_EQ(errno, static_cast<int>(code));
        const auto row = table.find(static_cast<int>(code));
        EXPECT_EQ(GetLastError(), row == table.end() ? 1u : row->second) << code;
    }
    SetLastError(2);
    EXPECT_EQ(GetLastError(), 2u);
    SetLastError(109);
    EXPECT_EQ(GetLastError(), 1u);
    SetLastError(6009);
    EXPECT_EQ(GetLastError(), 1u);
    SetLastError(0xFFFFFFFF);
    EXPECT_EQ(errno, -1);
    EXPECT_EQ(GetLastError(), 1u);
}

TEST(LastErrorTest, EachThreadHasItsOwnError)
{
    SetLastError(2);
    std::thread([] {
        EXPECT_EQ(GetLastError(), 0u);
        SetLastError(17);
        EXPECT_EQ(GetLastError(), 80u);
    }).join();
    EXPECT_EQ(GetLastError(), 2u);
}

} // namespace

// Opening a key loads the file again, but an unchanged file is not parsed again. The contents of the map must
// not depend on whether the parse was skipped.
#include "ChildProcess.h"
#include "LocalMachineKeys.h"
#include "SettledRegistry.h"
#include "TextFiles.h"
#include "WinFunc.h"

#include <chrono>
#include <ctime>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

namespace {

std::string ValueLine(int number)
{
    return "[HKLM/a]\n\"x\"=\"" + std::to_string(number) + "\"\n\n";
}

std::string Value(HKEY key, const char* name = "x")
{
    char text[64] = {};
    DWORD type = 0;
    DWORD size = sizeof text;
    const LSTATUS result = RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<BYTE*>(text), &size);
    return result == 0 ? text : "no value";
}

/// Opens the key, as any program does, and returns the value.
std::string OpenAndRead()
{
    HKEY key = Open();
    std::string value = Value(key);
    RegCloseKey(key);
    return value;
}

void Set(HKEY key, const std::string& text, const char* name = "x")
{
    const auto* data = reinterpret_cast<const BYTE*>(text.c_str());
    EXPECT_EQ(RegSetValueExA(key, name, 0, REG_SZ, data, static_cast<DWORD>(text.size() + 1)), 0);
}

/// True to simulate a file system that stores whole seconds only.
bool g_wholeSeconds = false;

/// Waits for a time between 200 and 500 ms within a second, so that the following steps take place in the
/// same second.
void WaitForTheFirstHalfOfASecond()
{
    timespec now = {};
    do {
        std::this_thread::yield();
        clock_gettime(CLOCK_REALTIME, &now);
    } while (now.tv_nsec < 200'000'000 || now.tv_nsec > 500'000'000);
}

/// Restores the modification time that the file had before a change.
void SetModified(const struct stat& before)
{
    const timespec times[] = {before.st_atim, before.st_mtim};
    ASSERT_EQ(utimensat(AT_FDCWD, REGISTRY_FILE, times, 0), 0);
}

struct stat State()
{
    struct stat info = {};
    EXPECT_EQ(stat(REGISTRY_FILE, &info), 0);
    return info;
}

} // namespace

// Replaces the C library's fstat in this program.
int fstat(int descriptor, struct stat* info) noexcept
{
    const int result = fstatat(descriptor, "", info, AT_EMPTY_PATH);
    if (g_wholeSeconds) {
        info->st_mtim.tv_nsec = 0;
        info->st_ctim.tv_nsec = 0;
    }
    return result;
}

TEST(RegistryReload, ChangesOfTheSameSizeWithinOneTickAreSeen)
{
    WriteRegistry(ValueLine(0));
    for (int round = 0; round < 2000; ++round) {
        WriteText(REGISTRY_FILE, ValueLine(round % 10));
        ASSERT_EQ(OpenAndRead(), std::to_string(round % 10));
    }
}

TEST(RegistryReload, AnUnchangedFileIsLoadedOnce)
{
    WriteRegistry(ValueLine(1));
    WaitUntilSettled();
    EXPECT_EQ(OpenAndRead(), "1");
    g_Registry["HKLM/a"].stringValues["x"] = "in the map only";
    EXPECT_EQ(OpenAndRead(), "in the map only") << "the next load would replace it";
}

TEST(RegistryReload, AChangeByAnotherProcessIsSeen)
{
    WriteRegistry(ValueLine(1));
    WaitUntilSettled();
    EXPECT_EQ(OpenAndRead(), "1");
    EXPECT_EQ(OpenAndRead(), "1");
    ASSERT_TRUE(WaitFor(StartChild([] {
        WriteText(REGISTRY_FILE, ValueLine(2));
        return true;
    })));
    EXPECT_EQ(OpenAndRead(), "2");
    ASSERT_TRUE(WaitFor(StartChild([] {
        HKEY key = Open();
        Set(key, "3");
        return RegCloseKey(key) == 0;
    })));
    EXPECT_EQ(OpenAndRead(), "3");
}

TEST(RegistryReload, AChangeThatKeepsSizeAndModificationTimeIsSeen)
{
    WriteRegistry(ValueLine(1));
    WaitUntilSettled();
    EXPECT_EQ(OpenAndRead(), "1");
    const struct stat before = State();
    WriteText(REGISTRY_FILE, ValueLine(2));
    SetModified(before);
    WaitUntilSettled();
    EXPECT_EQ(OpenAndRead(), "2");
}

TEST(RegistryReload, AReplacedFileIsSeen)
{
    WriteRegistry(ValueLine(1));
    const std::string other = std::string(CONF_DIR) + "/other";
    WriteText(other, ValueLine(2));
    WaitUntilSettled();
    EXPECT_EQ(OpenAndRead(), "1");
    const struct stat before = State();
    ASSERT_EQ(rename(other.c_str(), REGISTRY_FILE), 0);
    SetModified(before);
    WaitUntilSettled();
    EXPECT_EQ(OpenAndRead(), "2");
}

TEST(RegistryReload, ADeletedFileIsCreatedAgainAndTheMapIsKept)
{
    WriteRegistry(ValueLine(1));
    WaitUntilSettled();
    EXPECT_EQ(OpenAndRead(), "1");
    ASSERT_EQ(unlink(REGISTRY_FILE), 0);
    EXPECT_EQ(OpenAndRead(), "1");
    EXPECT_EQ(ReadText(REGISTRY_FILE), "");
    WriteText(REGISTRY_FILE, ValueLine(3));
    EXPECT_EQ(OpenAndRead(), "3");
}

TEST(RegistryReload, OpeningAnyKeyRevertsAnUnsavedValue)
{
    for (const bool settled : {false, true}) {
        WriteRegistry(ValueLine(1));
        if (settled) {
            WaitUntilSettled();
        }
        HKEY key = Open();
        Set(key, "unsaved");
        Set(key, "stays", "beyond the file");
        EXPECT_EQ(Value(key), "unsaved");
        RegCloseKey(Open());
        EXPECT_EQ(Value(key), "1") << settled;
        EXPECT_EQ(Value(key, "beyond the file"), "stays") << settled;
        RegCloseKey(key);
        EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/a]\n\"beyond the file\"=\"stays\"\n\"x\"=\"1\"\n\n")
            << settled;
    }
}

TEST(RegistryReload, AValueThatTheFormatCannotHoldIsReadBackFromTheFile)
{
    WriteRegistry(ValueLine(1));
    HKEY key = Open();
    Set(key, "cut\"here");
    RegCloseKey(key);
    EXPECT_EQ(g_Registry["HKLM/a"].stringValues["x"], "cut\"here");
    EXPECT_EQ(OpenAndRead(), "cut");

    key = Open();
    Set(key, "cut\"here");
    RegCloseKey(key);
    WaitUntilSettled();
    EXPECT_EQ(OpenAndRead(), "cut");
}

TEST(RegistryReload, ADeletedValueIsRemovedFromTheFileButStaysInTheMap)
{
    for (const bool settled : {false, true}) {
        WriteRegistry("[HKLM/a]\n\"x\"=\"1\"\n\"y\"=\"2\"\n\n");
        if (settled) {
            WaitUntilSettled();
        }
        HKEY key = Open();
        EXPECT_EQ(RegDeleteValueA(key, "y"), 0);
        RegCloseKey(key);
        EXPECT_EQ(ReadText(REGISTRY_FILE), ValueLine(1));
        if (settled) {
            WaitUntilSettled();
        }
        key = Open();
        EXPECT_EQ(Value(key, "y"), "2");
        EXPECT_EQ(Value(key), "1");
        RegCloseKey(key);
    }
}

TEST(RegistryReload, ADeletedKeyIsRemovedFromTheFileButStaysInTheMap)
{
    WriteRegistry(ValueLine(1) + "[HKLM/b]\n\n");
    WaitUntilSettled();
    RegCloseKey(Open("b"));
    EXPECT_EQ(RegDeleteKeyA(HKEY_LOCAL_MACHINE, "b"), 0);
    RegCloseKey(Open("b"));
    EXPECT_EQ(ReadText(REGISTRY_FILE), ValueLine(1));
}

TEST(RegistryReload, AFileWithAFutureTimeIsReadEachTime)
{
    WriteRegistry(ValueLine(1));
    timespec times[] = {{0, UTIME_NOW}, {0, 0}};
    clock_gettime(CLOCK_REALTIME, &times[1]);
    times[1].tv_sec += 3600;
    ASSERT_EQ(utimensat(AT_FDCWD, REGISTRY_FILE, times, 0), 0);
    EXPECT_EQ(OpenAndRead(), "1");
    WriteText(REGISTRY_FILE, ValueLine(2));
    ASSERT_EQ(utimensat(AT_FDCWD, REGISTRY_FILE, times, 0), 0);
    EXPECT_EQ(OpenAndRead(), "2");
}

TEST(RegistryReload, ChangesWithinOneSecondOnACoarseFileSystemAreSeen)
{
    g_wholeSeconds = true;
    WaitForTheFirstHalfOfASecond();
    WriteRegistry(ValueLine(1));
    EXPECT_EQ(OpenAndRead(), "1");
    WriteText(REGISTRY_FILE, ValueLine(2));
    EXPECT_EQ(OpenAndRead(), "2");
}

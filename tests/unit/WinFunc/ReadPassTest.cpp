// What a pass shares within one thread, and what ends the sharing.
#include "ReadPass.h"
#include "CountedLocks.h"
#include "OrdinaryRights.h"
#include "TextFiles.h"
#include "WinFunc.h"

#include <gmock/gmock.h>

#include <thread>

namespace {

using testing::ElementsAre;

const std::string FILE_A = "/tmp/a.ini";
const std::string FILE_B = "/tmp/b.ini";

std::string Text(int number)
{
    return "[Common]\nKey=" + std::to_string(number) + "\n";
}

std::string Key(const std::string& path)
{
    const auto profile = ReadPass::Profile(path);
    return profile != nullptr ? profile->Value("Common", "Key", 255) : "no file";
}

void WriteRegistryValue(int number)
{
    WriteRegistry("[HKLM/a]\n\"x\"=dword:0000000" + std::to_string(number) + "\n\n");
}

/// Opens the key, as any program does, and returns the value.
uint32_t RegistryValue()
{
    const std::lock_guard lock(RegistryMutex());
    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "a", 0, KEY_READ, &key), 0);
    uint32_t value = 99;
    DWORD type = 0;
    DWORD size = sizeof value;
    EXPECT_EQ(RegQueryValueExA(key, "x", nullptr, &type, reinterpret_cast<BYTE*>(&value), &size), 0);
    RegCloseKey(key);
    return value;
}

void SetRegistryValue(uint32_t value)
{
    const std::lock_guard lock(RegistryMutex());
    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "a", 0, KEY_READ, &key), 0);
    EXPECT_EQ(RegSetValueExA(key, "x", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof value), 0);
    EXPECT_EQ(RegCloseKey(key), 0);
}

} // namespace

TEST(ReadPassTest, WithoutAPassEachReadReadsTheFile)
{
    WriteText(FILE_A, Text(1));
    EXPECT_EQ(Key(FILE_A), "1");
    WriteText(FILE_A, Text(2));
    EXPECT_EQ(Key(FILE_A), "2");
    EXPECT_THAT(CountedLocks::Take(), ElementsAre("a.ini", "a.ini"));
}

TEST(ReadPassTest, ConsecutiveReadsOfAFileReadItOnce)
{
    WriteText(FILE_A, Text(1));
    WriteText(FILE_B, Text(2));
    {
        const ReadPass pass;
        EXPECT_EQ(Key(FILE_A), "1");
        WriteText(FILE_A, Text(3));
        EXPECT_EQ(Key(FILE_A), "1");
        EXPECT_EQ(Key(FILE_B), "2");
        EXPECT_EQ(Key(FILE_B), "2");
        EXPECT_THAT(CountedLocks::Take(), ElementsAre("a.ini", "b.ini"));
    }
    EXPECT_EQ(Key(FILE_A), "3");
}

TEST(ReadPassTest, ANestedPassSharesTheOuterOne)
{
    WriteText(FILE_A, Text(1));
    const ReadPass pass;
    {
        const ReadPass inner;
        EXPECT_EQ(Key(FILE_A), "1");
    }
    EXPECT_EQ(Key(FILE_A), "1");
    EXPECT_THAT(CountedLocks::Take(), ElementsAre("a.ini"));
}

TEST(ReadPassTest, AThreadReadsWhatItWrote)
{
    WriteText(FILE_A, Text(1));
    const ReadPass pass;
    EXPECT_EQ(Key(FILE_A), "1");
    EXPECT_TRUE(WritePrivateProfileStringA("Common", "Key", "2", FILE_A.c_str()));
    EXPECT_EQ(Key(FILE_A), "2");
    EXPECT_TRUE(WritePrivateProfileSectionA("Common", "Key=3\0", FILE_A.c_str()));
    EXPECT_EQ(Key(FILE_A), "3");
}

TEST(ReadPassTest, AFileCreatedDuringThePassIsSeen)
{
    const ReadPass pass;
    EXPECT_EQ(Key("/tmp/new.ini"), "no file");
    WriteText("/tmp/new.ini", Text(1));
    EXPECT_EQ(Key("/tmp/new.ini"), "1");
}

TEST(ReadPassTest, OtherThreadsDoNotShareThePass)
{
    WriteText(FILE_A, Text(1));
    const ReadPass pass;
    EXPECT_EQ(Key(FILE_A), "1");
    WriteText(FILE_A, Text(2));
    std::thread([] { EXPECT_EQ(Key(FILE_A), "2"); }).join();
    EXPECT_EQ(Key(FILE_A), "1");
}

TEST(ReadPassTest, SingleKeyCallsAlwaysReadTheFile)
{
    WriteText(FILE_A, Text(1));
    const ReadPass pass;
    EXPECT_EQ(Key(FILE_A), "1");
    WriteText(FILE_A, Text(2));
    char text[8] = {};
    GetPrivateProfileStringA("Common", "Key", "", text, sizeof text, FILE_A.c_str());
    EXPECT_STREQ(text, "2");
    EXPECT_EQ(GetPrivateProfileIntA("Common", "Key", 0, FILE_A.c_str()), 2U);
}

TEST(ReadPassTest, TheRegistryIsLoadedOnce)
{
    WriteRegistryValue(1);
    {
        const ReadPass pass;
        EXPECT_EQ(RegistryValue(), 1U);
        WriteRegistryValue(2);
        EXPECT_EQ(RegistryValue(), 1U);
        EXPECT_THAT(CountedLocks::Take(), ElementsAre("registry.txt"));
    }
    EXPECT_EQ(RegistryValue(), 2U);
}

TEST(ReadPassTest, AValueSetByAnyThreadCausesANewLoad)
{
    WriteRegistryValue(1);
    const ReadPass pass;
    EXPECT_EQ(RegistryValue(), 1U);
    std::thread([] { SetRegistryValue(2); }).join();
    EXPECT_EQ(RegistryValue(), 2U);
    SetRegistryValue(3);
    CountedLocks::Take();
    EXPECT_EQ(RegistryValue(), 3U);
    EXPECT_EQ(RegistryValue(), 3U);
    EXPECT_THAT(CountedLocks::Take(), ElementsAre("registry.txt"));
}

TEST(ReadPassTest, OpeningAKeyDuringAPassRevertsAnUnsavedValue)
{
    WriteRegistryValue(1);
    const ReadPass pass;
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "a", 0, KEY_READ, &key), 0);
    const uint32_t unsaved = 2;
    RegSetValueExA(key, "x", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&unsaved), sizeof unsaved);
    EXPECT_EQ(RegistryValue(), 1U);
    RegCloseKey(key);
}

TEST(ReadPassTest, DeletingAKeyCausesANewLoad)
{
    WriteRegistryValue(1);
    const ReadPass pass;
    EXPECT_EQ(RegistryValue(), 1U);
    EXPECT_EQ(RegDeleteKeyA(HKEY_LOCAL_MACHINE, "b"), 0);
    EXPECT_EQ(RegDeleteKeyA(HKEY_LOCAL_MACHINE, "a"), 0);
    CountedLocks::Take();
    EXPECT_EQ(RegistryValue(), 1U); // the map keeps deleted keys
    EXPECT_THAT(CountedLocks::Take(), ElementsAre("registry.txt"));
}

TEST(ReadPassTest, AKeyCreatedDuringAPassCanBeOpened)
{
    WriteRegistryValue(1);
    const ReadPass pass;
    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "new", 0, KEY_READ, &key), ERROR_FILE_NOT_FOUND);
    ASSERT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, "new", 0, nullptr, 0, 0, nullptr, &key, nullptr), 0);
    RegCloseKey(key);
    EXPECT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "new", 0, KEY_READ, &key), 0);
    RegCloseKey(key);
}

TEST(ReadPassTest, AKeyOfAReadOnlyRegistryStaysReadOnlyDuringAPass)
{
    WriteRegistryValue(1);
    std::filesystem::permissions(REGISTRY_FILE, std::filesystem::perms(0444));
    ASSERT_TRUE(TakeAwayPrivileges());
    const ReadPass pass;
    for (int round = 0; round < 2; ++round) {
        HKEY key = nullptr;
        ASSERT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "a", 0, KEY_READ, &key), 0);
        EXPECT_FALSE(static_cast<CRegistryKey*>(key)->bWritable) << round;
        RegCloseKey(key);
    }
    EXPECT_THAT(CountedLocks::Take(), ElementsAre("registry.txt"));
}

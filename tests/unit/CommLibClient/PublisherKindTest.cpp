#include "HeapGrowth.h"
#include "NW_Com_Lib_internal.h"
#include "OrdinaryRights.h"
#include "PublisherFiles.h"
#include "WinFunc.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

constexpr char ROOT_KEY[] = "Software\\ARVEN\\Ulmar Disc Maker";

std::string Settings(const std::string& host, const std::string& rest = "")
{
    return "[Common]\nPublisherURL=" + host + "\n" + rest;
}

struct KindReading
{
    bool isFound;
    unsigned int kind;
};

KindReading Read(const char* address)
{
    KindReading result = {false, 99};
    result.isFound = ReadNPType(&result.kind, address);
    return result;
}

void ExpectKind(const char* address, bool isFound, unsigned int kind)
{
    const KindReading found = Read(address);
    EXPECT_EQ(found.isFound, isFound) << address;
    EXPECT_EQ(found.kind, kind) << address;
}

} // namespace

TEST(PublisherKind, IsUnknownWithoutTheFolderOrAFile)
{
    ExpectKind("server", false, 0);
    EXPECT_FALSE(WriteNPType(2, "server"));
    MakePublisherFolder();
    ExpectKind("server", false, 0);
    EXPECT_FALSE(WriteNPType(2, "server"));
    EXPECT_TRUE(std::filesystem::is_empty(PUBLISHER_SETTING_DIR));
}

TEST(PublisherKind, IsReadFromTheFileOfTheServer)
{
    const std::pair<const char*, unsigned int> rows[] = {
        {"", 0},
        {"NPType=\n", 0},
        {"NPType=0\n", 0},
        {"NPType=1\n", 1},
        {"NPType=2\n", 2},
        {"NPType=3\n", 3},
        {"NPType=4\n", 0},
        {"NPType=-1\n", 0},
        {"NPType=x\n", 0},
        {"NPType=2x\n", 2},
        {"nptype=3\n", 3},
        {"NPType=99999\n", 0},
        {"NPType=0000000000000000000000000000003\n", 3},
        {"NPType=00000000000000000000000000000003\n", 0},
    };
    for (const auto& [line, kind] : rows) {
        WritePublisher("A", Settings("server", line));
        ExpectKind("server", true, kind);
    }
}

TEST(PublisherKind, AcceptsBothSpellingsOfTheSection)
{
    WritePublisher("A", "[COMMON]\nPublisherURL=server\nNPType=2\n");
    ExpectKind("server", true, 2);
    WritePublisher("A", "[Common]\nPublisherURL=server\n[COMMON]\nNPType=3\n");
    ExpectKind("server", true, 3);
}

TEST(PublisherKind, ComparesTheWholeAddress)
{
    WritePublisher("A", Settings("server", "NPType=2\n"));
    for (const char* other : {"serve", "server1", "SERVER", "", "\\\\server"}) {
        ExpectKind(other, false, 0);
        EXPECT_FALSE(WriteNPType(3, other));
    }
    WritePublisher("A", Settings("", "NPType=2\n")); // a file without a server
    ExpectKind("", false, 0);
}

TEST(PublisherKind, TruncatesALongAddress)
{
    WritePublisher("A", Settings(std::string(300, 'a'), "NPType=2\n"));
    ExpectKind(std::string(259, 'a').c_str(), true, 2);
    ExpectKind(std::string(300, 'a').c_str(), false, 0);
}

TEST(PublisherKind, IgnoresFilesThatAreNotSettingFiles)
{
    WritePublisher("A", Settings("other", "NPType=1\n"));
    WriteText(std::string(PUBLISHER_SETTING_DIR) + "/.hidden", Settings("server", "NPType=1\n"));
    std::filesystem::create_directory(std::string(PUBLISHER_SETTING_DIR) + "/folder");
    WritePublisher("B", "PublisherURL=server\n");
    const size_t room = 259 - std::string(PUBLISHER_SETTING_DIR).size() - 1;
    WriteText(std::string(PUBLISHER_SETTING_DIR) + "/" + std::string(room + 1, 'l'),
              Settings("server", "NPType=1\n"));
    ExpectKind("server", false, 0);
    EXPECT_FALSE(WriteNPType(3, "server"));
    WriteText(std::string(PUBLISHER_SETTING_DIR) + "/" + std::string(room, 'l'),
              Settings("server", "NPType=2\n"));
    ExpectKind("server", true, 2);
}

TEST(PublisherKind, IsWrittenToItsOwnSectionInTheFileOfTheServer)
{
    WritePublisher("A", Settings("other", "NPType=1\n"));
    WritePublisher("B", Settings("server", "PublisherName=Lab\n"));
    EXPECT_TRUE(WriteNPType(3, "server"));
    EXPECT_EQ(ReadPublisher("A"), Settings("other", "NPType=1\n"));
    EXPECT_EQ(ReadPublisher("B"), Settings("server", "PublisherName=Lab\n[COMMON]\nNPType=3\n"));
    ExpectKind("server", true, 3);
    EXPECT_TRUE(WriteNPType(2, "server"));
    EXPECT_EQ(ReadPublisher("B"), Settings("server", "PublisherName=Lab\n[COMMON]\nNPType=2\n"));
    ExpectKind("server", true, 2);
}

TEST(PublisherKind, TheKindFromTheRegistrationTakesPrecedence)
{
    WritePublisher("A", Settings("server", "NPType=1\n"));
    EXPECT_TRUE(WriteNPType(3, "server"));
    EXPECT_EQ(ReadPublisher("A"), Settings("server", "NPType=1\n[COMMON]\nNPType=3\n"));
    ExpectKind("server", true, 1);
}

TEST(PublisherKind, IsNotWrittenToAReadOnlyFile)
{
    ASSERT_TRUE(TakeAwayPrivileges());
    WritePublisher("A", Settings("server", "NPType=1\n"));
    for (const mode_t mode : {0444, 0222, 0000}) {
        std::filesystem::permissions(PublisherFile("A"), std::filesystem::perms(mode));
        EXPECT_FALSE(WriteNPType(3, "server")) << mode;
    }
    std::filesystem::permissions(PublisherFile("A"), std::filesystem::perms(0600));
    EXPECT_EQ(ReadPublisher("A"), Settings("server", "NPType=1\n"));
}

TEST(RegistryNumber, SucceedsOnlyForANumber)
{
    WriteRegistry("[HKLM/Software/ARVEN/Ulmar Disc Maker]\n\"CompatiMode\"=dword:00000001\n"
                  "\"Big\"=dword:ffffffff\n\"Text\"=\"abc\"\n\"Long\"=\"abcdefgh\"\n\"Empty\"=\"\"\n");
    DWORD value = 99;
    EXPECT_TRUE(GetRegistryIntValue(HKEY_LOCAL_MACHINE, ROOT_KEY, "CompatiMode", value));
    EXPECT_EQ(value, 1U);
    EXPECT_TRUE(GetRegistryIntValue(HKEY_LOCAL_MACHINE, ROOT_KEY, "Big", value));
    EXPECT_EQ(value, 0xFFFFFFFFU);
    for (const char* name : {"Text", "Long", "Empty", "Absent", ""}) {
        value = 99;
        EXPECT_FALSE(GetRegistryIntValue(HKEY_LOCAL_MACHINE, ROOT_KEY, name, value)) << name;
        EXPECT_EQ(value, 0U) << name;
    }
    value = 99;
    EXPECT_FALSE(GetRegistryIntValue(HKEY_LOCAL_MACHINE, "Software\\Absent", "CompatiMode", value));
    EXPECT_EQ(value, 0U);
}

TEST(RegistryNumber, FailsWithoutARegistry)
{
    MakeConfFolder();
    DWORD value = 99;
    EXPECT_FALSE(GetRegistryIntValue(HKEY_LOCAL_MACHINE, ROOT_KEY, "CompatiMode", value));
    EXPECT_EQ(value, 0U);
}

TEST(RegistryNumber, ReleasesTheRegistryLock)
{
    WriteRegistry("[HKLM/Software/ARVEN/Ulmar Disc Maker]\n\"CompatiMode\"=dword:00000001\n");
    DWORD value = 0;
    GetRegistryIntValue(HKEY_LOCAL_MACHINE, ROOT_KEY, "CompatiMode", value);
    GetRegistryIntValue(HKEY_LOCAL_MACHINE, "Absent", "CompatiMode", value);
    std::thread([] {
        const bool isFree = RegistryMutex().try_lock();
        EXPECT_TRUE(isFree);
        if (isFree) {
            RegistryMutex().unlock();
        }
    }).join();
}

TEST(RegistryNumber, LeavesNoMemoryAllocated)
{
    WriteRegistry("[HKLM/Software/ARVEN/Ulmar Disc Maker]\n\"CompatiMode\"=dword:00000001\n");
    const size_t growth = HeapGrowth([] {
        DWORD value = 0;
        EXPECT_TRUE(GetRegistryIntValue(HKEY_LOCAL_MACHINE, ROOT_KEY, "CompatiMode", value));
    });
    EXPECT_LT(growth, 1000U);
}

TEST(RegistryNumber, SupportsConcurrentReaders)
{
    WriteRegistry("[HKLM/Software/ARVEN/Ulmar Disc Maker]\n\"CompatiMode\"=dword:00000001\n");
    const auto read = [] {
        for (int round = 0; round < 50; ++round) {
            DWORD value = 0;
            EXPECT_TRUE(GetRegistryIntValue(HKEY_LOCAL_MACHINE, ROOT_KEY, "CompatiMode", value));
            EXPECT_EQ(value, 1U);
        }
    };
    std::thread one(read);
    std::thread two(read);
    one.join();
    two.join();
}

// The calls on keys and values: their results, their outputs and what they leave unchanged.
#include "LocalMachineKeys.h"
#include "OrdinaryRights.h"
#include "TextFiles.h"
#include "WinFunc.h"

#include <array>
#include <cstring>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

const HKEY BAD_KEYS[] = {nullptr, INVALID_HANDLE_VALUE};
const char DIED_FALSE[] = "Assertion `false' failed";

/// An open key, closed with the object.
class Key
{
public:
    explicit Key(HKEY key) : m_key(key) {}
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    ~Key()
    {
        RegCloseKey(m_key);
    }
    operator HKEY() const
    {
        return m_key;
    }
    CRegistryKey* operator->() const
    {
        return static_cast<CRegistryKey*>(m_key);
    }

private:
    HKEY m_key;
};

LSTATUS Set(HKEY key, const char* name, DWORD type, const void* data, size_t size)
{
    return RegSetValueExA(key, name, 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size));
}

struct KeyInfo
{
    DWORD count;
    DWORD longest;
    bool operator==(const KeyInfo&) const = default;
};

KeyInfo Info(HKEY key)
{
    KeyInfo info = {99, 99};
    EXPECT_EQ(RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, &info.count, &info.longest, nullptr, nullptr,
                               nullptr, nullptr, nullptr, nullptr),
              0);
    return info;
}

std::vector<std::string> Children(HKEY key)
{
    std::vector<std::string> names;
    for (DWORD index = 0;; ++index) {
        char name[64] = {};
        DWORD size = sizeof name;
        const LSTATUS result = RegEnumKeyExA(key, index, name, &size, nullptr, nullptr, nullptr, nullptr);
        if (result != 0) {
            EXPECT_EQ(result, 259);
            return names;
        }
        EXPECT_EQ(size, sizeof name) << "the size is not changed";
        names.emplace_back(name);
    }
}

using Names = std::vector<std::string>;

class RegistryStore : public testing::Test
{
protected:
    void SetUp() override
    {
        MakeConfFolder();
    }
};

using RegistryStoreDeathTest = RegistryStore;

} // namespace

// ---------------------------------------------------------------------------------------------------------------------
// Opening, creating, closing

TEST_F(RegistryStore, OpeningCreatesAMissingFolderAndFile)
{
    std::filesystem::remove_all(CONF_DIR);
    HKEY key = INVALID_HANDLE_VALUE;
    EXPECT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "K", 0, KEY_READ, &key), 2);
    EXPECT_EQ(key, nullptr);
    EXPECT_TRUE(std::filesystem::is_directory(CONF_DIR));
    EXPECT_TRUE(std::filesystem::is_regular_file(REGISTRY_FILE));
    EXPECT_EQ(std::filesystem::file_size(REGISTRY_FILE), 0U);
}

TEST_F(RegistryStore, OnlyOneLevelOfTheFolderIsCreated)
{
    std::filesystem::remove_all(INSTALL_DIR);
    EXPECT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, "K", 0, nullptr, 0, 0, nullptr, nullptr, nullptr), 5);
    EXPECT_FALSE(std::filesystem::exists(INSTALL_DIR));
}

TEST_F(RegistryStore, OpeningFindsExactPathsOnly)
{
    WriteRegistry("[HKLM/a/b]\n\n");
    RegCloseKey(Open("a\\b"));
    for (const char* absent : {"a", "a\\B", "a\\b\\", "a\\b\\c", ""}) {
        HKEY key = INVALID_HANDLE_VALUE;
        EXPECT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, absent, 0, KEY_READ, &key), 2) << absent;
        EXPECT_EQ(key, nullptr) << absent;
    }
}

TEST_F(RegistryStore, ANullResultPointerOnlyTestsTheKey)
{
    WriteRegistry("[HKLM/a]\n\n");
    EXPECT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "a", 0, KEY_READ, nullptr), 0);
    EXPECT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "b", 0, KEY_READ, nullptr), 2);
}

TEST_F(RegistryStore, ABadHandleReturns6)
{
    for (HKEY bad : BAD_KEYS) {
        HKEY key = nullptr;
        EXPECT_EQ(RegOpenKeyExA(bad, "a", 0, KEY_READ, &key), 6);
        EXPECT_EQ(RegCloseKey(bad), 6);
        EXPECT_EQ(Set(bad, "a", REG_SZ, "x", 2), 6);
    }
    EXPECT_FALSE(std::filesystem::exists(REGISTRY_FILE)) << "an invalid handle does not access the file";
}

TEST_F(RegistryStore, AnOpenedKeyIsWritableAndCleanWithAnyAccessMask)
{
    WriteRegistry("[HKLM/a]\n\n");
    const Key key(Open("a"));
    EXPECT_EQ(key->key, "HKLM/a");
    EXPECT_TRUE(key->bWritable);
    EXPECT_FALSE(key->bDirty);
}

TEST_F(RegistryStore, ACreatedKeyIsWritableAndDirty)
{
    const Key key(Create("a\\b"));
    EXPECT_EQ(key->key, "HKLM/a/b");
    EXPECT_TRUE(key->bWritable);
    EXPECT_TRUE(key->bDirty);
}

TEST_F(RegistryStore, CreatingAKeyDoesNotCreateItsParents)
{
    RegCloseKey(Create("a\\b\\c"));
    EXPECT_EQ(g_Registry.size(), 1U);
    EXPECT_TRUE(g_Registry.contains("HKLM/a/b/c"));
}

TEST_F(RegistryStore, CreatingAnExistingKeyKeepsItsValues)
{
    const std::string text = "[HKLM/a]\n\"x\"=\"1\"\n\n";
    WriteRegistry(text);
    DWORD disposition = 77;
    HKEY key = nullptr;
    EXPECT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, "a", 0, nullptr, 0, 0, nullptr, &key, &disposition), 0);
    EXPECT_EQ(disposition, 77U) << "never written";
    RegCloseKey(key);
    EXPECT_EQ(ReadText(REGISTRY_FILE), text);
}

TEST_F(RegistryStore, CreatingWithoutAResultPointerWritesNothing)
{
    EXPECT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, "a", 0, nullptr, 0, 0, nullptr, nullptr, nullptr), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "");
    EXPECT_TRUE(g_Registry.contains("HKLM/a"));
}

TEST_F(RegistryStore, ClosingACleanKeyDoesNotChangeTheFile)
{
    const std::string text = "# kept as it is\n[HKLM/a]\n\"x\"=\"1\"";
    WriteRegistry(text);
    EXPECT_EQ(RegCloseKey(Open("a")), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), text);
}

TEST_F(RegistryStore, ClosingAKeyThatIsNotWritableDoesNotChangeTheFile)
{
    const std::string text = "# kept as it is\n[HKLM/a]\n\"x\"=\"1\"";
    WriteRegistry(text);
    EXPECT_EQ(RegCloseKey(new CRegistryKey{"HKLM/a", false, true}), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), text);
}

TEST_F(RegistryStore, ValuesAreWrittenWhenTheKeyIsClosed)
{
    const std::string text = "[HKLM/a]\n\n";
    WriteRegistry(text);
    HKEY key = Open("a");
    EXPECT_EQ(Set(key, "x", REG_SZ, "1", 2), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), text);
    EXPECT_EQ(RegCloseKey(key), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/a]\n\"x\"=\"1\"\n\n");
}

TEST_F(RegistryStore, WritingRestoresEntriesThatAnotherProgramRemoved)
{
    WriteRegistry("[HKLM/a]\n\"x\"=\"1\"\n\n");
    HKEY key = Open("a");
    WriteRegistry("[HKLM/b]\n\n");
    Set(key, "y", REG_SZ, "2", 2);
    RegCloseKey(key);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/a]\n\"x\"=\"1\"\n\"y\"=\"2\"\n\n");
}

TEST_F(RegistryStore, AKeyOfAReadOnlyFileIsNotWritable)
{
    WriteRegistry("[HKLM/a]\n\"x\"=\"1\"\n\n");
    ASSERT_EQ(chmod(REGISTRY_FILE, 0444), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    const Key key(Open("a"));
    EXPECT_FALSE(key->bWritable);
    EXPECT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, "a", 0, nullptr, 0, 0, nullptr, nullptr, nullptr), 5);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/a]\n\"x\"=\"1\"\n\n");
}

TEST_F(RegistryStoreDeathTest, SettingAValueOfAKeyThatIsNotWritableStopsTheProcess)
{
    WriteRegistry("[HKLM/a]\n\n");
    ASSERT_EQ(chmod(REGISTRY_FILE, 0444), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    const Key key(Open("a"));
    EXPECT_DEATH(Set(key, "x", REG_SZ, "1", 2), DIED_FALSE);
}

TEST_F(RegistryStoreDeathTest, AFileThatCannotBeReadOrCreatedStopsTheProcess)
{
    std::filesystem::remove_all(CONF_DIR);
    WriteText(CONF_DIR, "in the place of the folder");
    HKEY key = nullptr;
    EXPECT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, "a", 0, nullptr, 0, 0, nullptr, &key, nullptr), 5);
    EXPECT_DEATH(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "a", 0, KEY_READ, &key), DIED_FALSE);
}

TEST_F(RegistryStoreDeathTest, AFailedWriteOnCloseStopsTheProcess)
{
    ASSERT_EQ(symlink("/dev/full", REGISTRY_FILE), 0);
    HKEY key = Create("a");
    EXPECT_DEATH(RegCloseKey(key), DIED_FALSE);
    static_cast<CRegistryKey*>(key)->bDirty = false;
    EXPECT_EQ(RegCloseKey(key), 0);
}

TEST_F(RegistryStoreDeathTest, UsingARootAsAnOpenKeyStopsTheProcess)
{
    EXPECT_DEATH(RegCloseKey(HKEY_LOCAL_MACHINE), DIED_FALSE);
    EXPECT_DEATH(Set(HKEY_LOCAL_MACHINE, "x", REG_SZ, "1", 2), DIED_FALSE);
    EXPECT_DEATH(RegDeleteValueA(HKEY_LOCAL_MACHINE, "x"), DIED_FALSE);
}

// ---------------------------------------------------------------------------------------------------------------------
// Values

struct SetCase
{
    DWORD type;
    DWORD size;
    bool stores;
};

TEST_F(RegistryStore, OnlyTextsAndNumbersOfFourBytesAreStored)
{
    const SetCase cases[] = {
        {REG_SZ, 6, true},      {REG_SZ, 1, true},     {REG_SZ, 0, false},    {REG_DWORD, 4, true},
        {REG_DWORD, 0, false},  {REG_DWORD, 2, false}, {REG_DWORD, 8, false}, {REG_BINARY, 4, false},
        {REG_BINARY, 0, false}, {0, 4, false},         {2, 4, false},         {7, 4, false},
    };
    WriteRegistry("[HKLM/a]\n\n");
    for (const SetCase& c : cases) {
        const Key key(Open("a"));
        const std::string name = "n" + std::to_string(c.type) + "_" + std::to_string(c.size);
        EXPECT_EQ(Set(key, name.c_str(), c.type, "text\0\0\0", c.size), 0) << name;
        EXPECT_EQ(key->bDirty, c.stores) << name;
        const CRegistryValueStore& store = g_Registry["HKLM/a"];
        EXPECT_EQ(store.stringValues.contains(name), c.stores && c.type == REG_SZ) << name;
        EXPECT_EQ(store.dwordValues.contains(name), c.stores && c.type == REG_DWORD) << name;
    }
    EXPECT_EQ(g_Registry["HKLM/a"].stringValues["n1_6"], "text");
    EXPECT_EQ(g_Registry["HKLM/a"].stringValues["n1_1"], "text") << "the stored length is that of the text";
    EXPECT_EQ(g_Registry["HKLM/a"].dwordValues["n4_4"], 0x74786574U);
}

TEST_F(RegistryStore, SettingBinaryDataStoresNothingAndLeavesTheKeyClean)
{
    const std::string text = "[HKLM/a]\n\n\n";
    WriteRegistry(text);
    HKEY key = Open("a");
    EXPECT_EQ(Set(key, "x", REG_BINARY, "1234", 4), 0);
    EXPECT_FALSE(static_cast<CRegistryKey*>(key)->bDirty);
    EXPECT_EQ(RegCloseKey(key), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), text);
}

TEST_F(RegistryStore, SettingAndQueryingCreateTheKeyInTheMap)
{
    const Key key(Create("a"));
    g_Registry.erase("HKLM/a");
    Set(key, "x", REG_BINARY, "1", 1);
    EXPECT_TRUE(g_Registry.contains("HKLM/a"));
    DWORD type = 0;
    DWORD size = 0;
    EXPECT_EQ(RegQueryValueExA(HKEY_CURRENT_USER, "x", nullptr, &type, nullptr, &size), 2);
    EXPECT_TRUE(g_Registry.contains("HKCU"));
}

struct QueryCase
{
    const char* name;
    bool hasBuffer;
    DWORD size;
    LSTATUS result;
    DWORD typeBehind;
    DWORD sizeBehind;
    const char* data; // the first bytes of the buffer; NULL if it is unchanged
    size_t dataSize;
};

TEST_F(RegistryStore, QueryTable)
{
    WriteRegistry("[HKLM/a]\n\"text\"=\"four\"\n\"empty\"=\"\"\n\"both\"=\"s\"\n"
                  "\"number\"=dword:04030201\n\"both\"=dword:00000001\n\n");
    const QueryCase cases[] = {
        {"text", true, 16, 0, 1, 5, "four", 5},
        {"text", true, 5, 0, 1, 5, "four", 5},
        {"text", true, 4, 0, 1, 5, nullptr, 0}, // too small: 0, not 234
        {"text", true, 0, 0, 1, 5, nullptr, 0},
        {"text", false, 0, 0, 1, 5, nullptr, 0},
        {"empty", true, 1, 0, 1, 1, "", 1},
        {"empty", true, 0, 0, 1, 1, nullptr, 0},
        {"number", true, 16, 0, 4, 16, "\1\2\3\4", 4},
        {"number", true, 4, 0, 4, 4, "\1\2\3\4", 4},
        {"number", true, 3, 0, 4, 4, nullptr, 0},
        {"number", false, 16, 0, 4, 16, nullptr, 0},
        {"number", false, 0, 0, 4, 4, nullptr, 0},
        {"both", true, 16, 0, 1, 2, "s", 2},
        {"absent", true, 16, 2, 77, 16, nullptr, 0},
        {"TEXT", true, 16, 2, 77, 16, nullptr, 0},
        {nullptr, true, 16, 2, 77, 16, nullptr, 0},
    };
    const Key key(Open("a"));
    for (const QueryCase& c : cases) {
        SCOPED_TRACE(std::string(c.name == nullptr ? "NULL" : c.name) + " " + std::to_string(c.size));
        std::array<BYTE, 16> buffer;
        buffer.fill(0xEE);
        auto expected = buffer;
        if (c.data != nullptr) {
            std::memcpy(expected.data(), c.data, c.dataSize);
        }
        DWORD type = 77;
        DWORD size = c.size;
        EXPECT_EQ(RegQueryValueExA(key, c.name, nullptr, &type, c.hasBuffer ? buffer.data() : nullptr, &size),
                  c.result);
        EXPECT_EQ(type, c.typeBehind);
        EXPECT_EQ(size, c.sizeBehind);
        EXPECT_EQ(buffer, expected);
    }
}

TEST_F(RegistryStore, AQueryReturnsTheValueLoadedByTheLastOpen)
{
    WriteRegistry("[HKLM/a]\n\"x\"=dword:00000001\n\n[HKLM/b]\n\n");
    const Key key(Open("a"));
    WriteRegistry("[HKLM/a]\n\"x\"=dword:00000002\n\n[HKLM/b]\n\n");
    const auto value = [&] {
        DWORD type = 0;
        DWORD number = 0;
        DWORD size = sizeof number;
        EXPECT_EQ(RegQueryValueExA(key, "x", nullptr, &type, reinterpret_cast<BYTE*>(&number), &size), 0);
        return number;
    };
    EXPECT_EQ(value(), 1U);
    RegCloseKey(Open("b"));
    EXPECT_EQ(value(), 2U) << "opening any key loads the file";
}

// ---------------------------------------------------------------------------------------------------------------------
// Sub keys

TEST_F(RegistryStore, EnumerationListsDirectChildrenInByteOrder)
{
    WriteRegistry("[HKLM/a]\n\n[HKLM/a/b]\n\n[HKLM/a/B]\n\n[HKLM/a/b/c]\n\n[HKLM/a/a]\n\n[HKLM/ab/"
                  "c]\n\n[HKLM/a b/c]\n\n");
    const Key key(Open("a"));
    EXPECT_EQ(Children(key), (Names{"B", "a", "b"}));
    EXPECT_EQ(Info(key), (KeyInfo{4, 1}));
    EXPECT_EQ(Children(HKEY_LOCAL_MACHINE), (Names{"a"}));
}

TEST_F(RegistryStore, AGrandchildIsCountedButNotEnumerated)
{
    WriteRegistry("[HKLM/a]\n\n[HKLM/a/child/grandchild]\n\n");
    const Key key(Open("a"));
    EXPECT_EQ(Children(key), Names{});
    EXPECT_EQ(Info(key), (KeyInfo{1, 5})) << "the longest first component is child";
}

TEST_F(RegistryStore, AKeyWithoutSubKeysEnumeratesNone)
{
    WriteRegistry("[HKLM/a]\n\n");
    const Key key(Open("a"));
    EXPECT_EQ(Children(key), Names{});
    EXPECT_EQ(Info(key), (KeyInfo{0, 0}));
}

TEST_F(RegistryStore, EitherOutputOfTheKeyInformationIsOptional)
{
    WriteRegistry("[HKLM/a]\n\n[HKLM/a/four]\n\n");
    const Key key(Open("a"));
    DWORD number = 0;
    EXPECT_EQ(RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, &number, nullptr, nullptr, nullptr, nullptr,
                               nullptr, nullptr, nullptr),
              0);
    EXPECT_EQ(number, 1U);
    EXPECT_EQ(RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, nullptr, &number, nullptr, nullptr, nullptr,
                               nullptr, nullptr, nullptr),
              0);
    EXPECT_EQ(number, 4U);
}

TEST_F(RegistryStore, AnEnumeratedNameRequiresSpaceForItsNul)
{
    WriteRegistry("[HKLM/a]\n\n[HKLM/a/four]\n\n");
    const Key key(Open("a"));
    char name[8] = "#######";
    DWORD size = 4;
    EXPECT_EQ(RegEnumKeyExA(key, 0, name, &size, nullptr, nullptr, nullptr, nullptr), 234);
    EXPECT_EQ(size, 4U);
    EXPECT_STREQ(name, "#######");
    size = 5;
    EXPECT_EQ(RegEnumKeyExA(key, 0, name, &size, nullptr, nullptr, nullptr, nullptr), 0);
    EXPECT_EQ(size, 5U);
    EXPECT_STREQ(name, "four");
    EXPECT_EQ(RegEnumKeyExA(key, 1, name, &size, nullptr, nullptr, nullptr, nullptr), 259);
}

TEST_F(RegistryStoreDeathTest, EnumerationRequiresItsOutputs)
{
    WriteRegistry("[HKLM/a]\n\n");
    const Key key(Open("a"));
    char name[8];
    DWORD size = sizeof name;
    EXPECT_DEATH(RegEnumKeyExA(key, 0, nullptr, &size, nullptr, nullptr, nullptr, nullptr),
                 "Assertion `lpName != NULL' failed");
    EXPECT_DEATH(RegEnumKeyExA(key, 0, name, nullptr, nullptr, nullptr, nullptr, nullptr),
                 "Assertion `lpcchName != NULL' failed");
}

TEST_F(RegistryStoreDeathTest, KeyInformationSupportsCountAndLengthOnly)
{
    WriteRegistry("[HKLM/a]\n\n");
    const Key key(Open("a"));
    char text[8];
    DWORD n = 0;
    FILETIME time;
    const auto ask = [&](int which) {
        const auto number = [&](int index) { return which == index ? &n : nullptr; };
        RegQueryInfoKeyA(key, which == 0 ? text : nullptr, number(1), number(2), which == 10 ? nullptr : &n,
                         nullptr, number(3), number(4), number(5), number(6), number(7),
                         which == 8 ? &time : nullptr);
    };
    for (const int which : {0, 1, 2, 3, 4, 5, 6, 7, 8, 10}) {
        EXPECT_DEATH(ask(which), DIED_FALSE) << which;
    }
    ask(9); // no unsupported output
}

TEST_F(RegistryStoreDeathTest, EnumeratingValuesStopsTheProcess)
{
    EXPECT_DEATH(RegEnumValueA(HKEY_LOCAL_MACHINE, 0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr),
                 DIED_FALSE);
}

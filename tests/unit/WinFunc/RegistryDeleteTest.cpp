// Deletions edit the text file and do not change the map.
#include "LocalMachineKeys.h"
#include "OrdinaryRights.h"
#include "TextFiles.h"
#include "WinFunc.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

struct DeleteCase
{
    const char* what;
    const char* before;
    const char* name;
    const char* behind; // NULL: unchanged
};

const char TREE[] = "[HKLM/a]\n\"x\"=\"1\"\n\n[HKLM/a/b]\n\"y\"=\"2\"\n\n[HKLM/c]\n\"z\"=\"3\"\n\n";

/// The contents and the change time of the file: rewriting the same bytes changes the time.
std::string FileState()
{
    struct stat info = {};
    EXPECT_EQ(stat(REGISTRY_FILE, &info), 0);
    return ReadText(REGISTRY_FILE) + std::to_string(info.st_ctim.tv_sec) + "." +
           std::to_string(info.st_ctim.tv_nsec);
}

class RegistryDelete : public testing::Test
{
protected:
    void SetUp() override
    {
        MakeConfFolder();
    }
};

using RegistryDeleteDeathTest = RegistryDelete;

} // namespace

TEST_F(RegistryDelete, KeyTable)
{
    const DeleteCase cases[] = {
        {"the section is removed with its values and its empty line", TREE, "c",
         "[HKLM/a]\n\"x\"=\"1\"\n\n[HKLM/a/b]\n\"y\"=\"2\"\n\n"},
        {"children stay", TREE, "a", "[HKLM/a/b]\n\"y\"=\"2\"\n\n[HKLM/c]\n\"z\"=\"3\"\n\n"},
        {"several levels with forward slashes", TREE, "a/b",
         "[HKLM/a]\n\"x\"=\"1\"\n\n[HKLM/c]\n\"z\"=\"3\"\n\n"},
        {"backslashes are not converted and match nothing", TREE, "a\\b", nullptr},
        {"an absent key", TREE, "d", nullptr},
        {"an empty name matches the first section only", TREE, "",
         "[HKLM/a/b]\n\"y\"=\"2\"\n\n[HKLM/c]\n\"z\"=\"3\"\n\n"},
        {"a longer sibling that comes first is removed", "[HKLM/ab]\n\n[HKLM/a]\n\n", "a", "[HKLM/a]\n\n"},
        {"one section per call", "[HKLM/a]\n\n[HKLM/a]\n\n", "a", "[HKLM/a]\n\n"},
        {"a match anywhere in the section line", "[old HKLM/a]\n\n[HKLM/a]\n\n", "a", "[HKLM/a]\n\n"},
        {"text before the section is kept", "# note\n\n[HKLM/a]\n\n", "a", "# note\n\n"},
        {"the name in a value is not a section", "[HKLM/b]\n\"[HKLM/a]\"=\"1\"\n\n", "a", nullptr},
        {"the only section", "[HKLM/a]\n\n", "a", ""},
        {"a last line without a line feed is kept unchanged", "[HKLM/a]\n\n[HKLM/c]\n\"z\"=\"3\"", "a",
         "[HKLM/c]\n\"z\"=\"3\""},
    };
    for (const DeleteCase& c : cases) {
        WriteRegistry(c.before);
        const std::string before = FileState();
        EXPECT_EQ(RegDeleteKeyA(HKEY_LOCAL_MACHINE, c.name), 0) << c.what;
        if (c.behind == nullptr) {
            EXPECT_EQ(FileState(), before) << c.what;
        } else {
            EXPECT_EQ(ReadText(REGISTRY_FILE), c.behind) << c.what;
        }
    }
}

TEST_F(RegistryDelete, ANullNameDeletesTheSectionOfTheKeyItself)
{
    WriteRegistry(TREE);
    HKEY key = Open("c");
    EXPECT_EQ(RegDeleteKeyA(key, nullptr), 0);
    RegCloseKey(key);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/a]\n\"x\"=\"1\"\n\n[HKLM/a/b]\n\"y\"=\"2\"\n\n");
}

TEST_F(RegistryDelete, DeletesASubKeyOfAnOpenKey)
{
    WriteRegistry(TREE);
    HKEY key = Open("a");
    EXPECT_EQ(RegDeleteKeyA(key, "b"), 0);
    RegCloseKey(key);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/a]\n\"x\"=\"1\"\n\n[HKLM/c]\n\"z\"=\"3\"\n\n");
}

TEST_F(RegistryDelete, ValueTable)
{
    const DeleteCase cases[] = {
        {"a string", "[HKLM/k]\n\"a\"=\"1\"\n\"b\"=\"2\"\n\n", "b", "[HKLM/k]\n\"a\"=\"1\"\n\n"},
        {"a number", "[HKLM/k]\n\"m\"=dword:00000001\n\"n\"=dword:00000002\n\n", "m",
         "[HKLM/k]\n\"n\"=dword:00000002\n\n"},
        {"an absent value", "[HKLM/k]\n\"a\"=\"1\"\n\n", "z", nullptr},
        {"only in its own section",
         "[HKLM/j]\n\"a\"=\"0\"\n\n[HKLM/k]\n\"a\"=\"1\"\n\n[HKLM/l]\n\"a\"=\"2\"\n\n", "a",
         "[HKLM/j]\n\"a\"=\"0\"\n\n[HKLM/k]\n\n[HKLM/l]\n\"a\"=\"2\"\n\n"},
        {"not in the section after it", "[HKLM/k]\n\"b\"=\"1\"\n\n[HKLM/l]\n\"a\"=\"2\"\n\n", "a", nullptr},
        {"the first only", "[HKLM/k]\n\"a\"=\"1\"\n\"a\"=\"2\"\n\n", "a", "[HKLM/k]\n\"a\"=\"2\"\n\n"},
        {"an earlier value whose data contains the name", "[HKLM/k]\n\"x\"=\"find b\"\n\"b\"=\"2\"\n\n", "b",
         "[HKLM/k]\n\"b\"=\"2\"\n\n"},
        {"an earlier longer name that contains it", "[HKLM/k]\n\"Connected2\"=\"1\"\n\"Connected\"=\"2\"\n\n",
         "Connected", "[HKLM/k]\n\"Connected\"=\"2\"\n\n"},
        {"case matters", "[HKLM/k]\n\"A\"=\"1\"\n\n", "a", nullptr},
        {"the first section that contains the path", "[HKLM/k/sub]\n\"a\"=\"1\"\n\n[HKLM/k]\n\"a\"=\"2\"\n\n",
         "a", "[HKLM/k/sub]\n\n[HKLM/k]\n\"a\"=\"2\"\n\n"},
    };
    for (const DeleteCase& c : cases) {
        WriteRegistry(c.before);
        HKEY key = Open("k");
        const std::string before = FileState();
        EXPECT_EQ(RegDeleteValueA(key, c.name), 0) << c.what;
        EXPECT_FALSE(static_cast<CRegistryKey*>(key)->bDirty) << c.what;
        RegCloseKey(key);
        if (c.behind == nullptr) {
            EXPECT_EQ(FileState(), before) << c.what;
        } else {
            EXPECT_EQ(ReadText(REGISTRY_FILE), c.behind) << c.what;
        }
    }
}

TEST_F(RegistryDelete, ANullValueNameDeletesNothing)
{
    const std::string text = "[HKLM/k]\n\"a\"=\"1\"\n\n";
    WriteRegistry(text);
    HKEY key = Open("k");
    EXPECT_EQ(RegDeleteValueA(key, nullptr), 0);
    RegCloseKey(key);
    EXPECT_EQ(ReadText(REGISTRY_FILE), text);
}

TEST_F(RegistryDelete, DeletedEntriesStayVisibleInThisProcess)
{
    WriteRegistry(TREE);
    HKEY key = Open("a");
    EXPECT_EQ(RegDeleteKeyA(key, "b"), 0);
    EXPECT_EQ(RegDeleteValueA(key, "x"), 0);
    RegCloseKey(key);
    RegCloseKey(Open("a\\b"));
    EXPECT_EQ(g_Registry["HKLM/a"].stringValues["x"], "1");
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/a]\n\n[HKLM/c]\n\"z\"=\"3\"\n\n");
}

TEST_F(RegistryDelete, ClosingADirtyKeyRestoresADeletedValue)
{
    WriteRegistry("[HKLM/k]\n\"a\"=\"1\"\n\n");
    HKEY key = Open("k");
    EXPECT_EQ(RegDeleteValueA(key, "a"), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/k]\n\n");
    const BYTE text[] = "2";
    EXPECT_EQ(RegSetValueExA(key, "b", 0, REG_SZ, text, sizeof text), 0);
    RegCloseKey(key);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/k]\n\"a\"=\"1\"\n\"b\"=\"2\"\n\n");
}

TEST_F(RegistryDelete, BadHandlesReturn6)
{
    for (HKEY bad : {HKEY{nullptr}, HKEY{INVALID_HANDLE_VALUE}}) {
        EXPECT_EQ(RegDeleteKeyA(bad, "a"), 6);
        EXPECT_EQ(RegDeleteValueA(bad, "a"), 6);
    }
}

TEST_F(RegistryDelete, AFileThatCannotBeOpenedReturns12)
{
    WriteRegistry("[HKLM/k]\n\"a\"=\"1\"\n\n");
    HKEY key = Open("k");
    ASSERT_EQ(unlink(REGISTRY_FILE), 0);
    EXPECT_EQ(RegDeleteKeyA(HKEY_LOCAL_MACHINE, "k"), 12);
    EXPECT_EQ(RegDeleteValueA(key, "a"), 12);
    EXPECT_FALSE(std::filesystem::exists(REGISTRY_FILE));
    RegCloseKey(key);
}

TEST_F(RegistryDelete, AFileThatCannotBeWrittenReturns12AndIsUnchanged)
{
    WriteRegistry(TREE);
    ASSERT_EQ(chmod(REGISTRY_FILE, 0444), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    EXPECT_EQ(RegDeleteKeyA(HKEY_LOCAL_MACHINE, "a"), 12);
    EXPECT_EQ(ReadText(REGISTRY_FILE), TREE);
}

TEST_F(RegistryDelete, AFullDiskReturns12)
{
    WriteRegistry(TREE);
    HKEY key = Open("a");
    signal(SIGXFSZ, SIG_IGN);
    const rlimit tiny = {10, 10};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tiny), 0);
    EXPECT_EQ(RegDeleteValueA(key, "x"), 12);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/a]\n\n");
    EXPECT_EQ(RegDeleteKeyA(HKEY_LOCAL_MACHINE, "z"), 0) << "nothing to write";
    RegCloseKey(key);
}

TEST_F(RegistryDeleteDeathTest, AKeyThatIsNotWritableStopsTheProcess)
{
    WriteRegistry(TREE);
    ASSERT_EQ(chmod(REGISTRY_FILE, 0444), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    HKEY key = Open("a");
    EXPECT_DEATH(RegDeleteValueA(key, "x"), "Assertion `false' failed");
    RegCloseKey(key);
}

TEST_F(RegistryDelete, AllOtherBytesAreKept)
{
    using namespace std::string_literals;
    const std::string odd = "[HKLM/b\0]\n\"nul\"=\"\0\"\n\xFF\xFE\r\n"s + std::string(5000, 'x') + "\n\n";
    WriteRegistry(odd + "[HKLM/a]\n\"x\"=\"1\"\n\n" + odd);
    EXPECT_EQ(RegDeleteKeyA(HKEY_LOCAL_MACHINE, "a"), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), odd + odd);

    WriteRegistry("[HKLM/k]\n" + odd.substr(odd.find('"')) + "\"name\"=\"1\"\n" + odd);
    HKEY key = Open("k");
    EXPECT_EQ(RegDeleteValueA(key, "name"), 0);
    RegCloseKey(key);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/k]\n" + odd.substr(odd.find('"')) + odd);
}

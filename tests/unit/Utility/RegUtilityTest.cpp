// The registry interface: results of every operation, with and without an open key.
#include "RegUtility.h"
#include "HeapGrowth.h"
#include "LogAgent.h"
#include "OrdinaryRights.h"
#include "TextFiles.h"
#include "WinFunc.h"
#include "Win_def_log.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

const char ROOT[] = "Software\\ARVEN\\Ulmar Disc Maker";
const char LOCAL[] = "Software\\ARVEN\\Ulmar Disc Maker\\Local";
const char SECTION[] = "[HKLM/Software/ARVEN/Ulmar Disc Maker]\n";

const char VALUES[] = "[HKLM/k]\n\"empty\"=\"\"\n\"text\"=\"four\"\n\"number\"=dword:0000002a\n\n";
const char DIED_FALSE[] = "Assertion `false' failed";
const char DIED_ZERO[] = "Assertion `\\(0\\) != FALSE' failed";

class RegUtility : public testing::Test
{
protected:
    void SetUp() override
    {
        MakeConfFolder();
    }

    void OpenValues(BOOL readOnly = TRUE)
    {
        WriteRegistry(VALUES);
        ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", readOnly, FALSE), 0);
    }

    CRegUtility reg;
};

using RegUtilityDeathTest = RegUtility;

std::vector<std::string> Names(const CStringArray& array)
{
    return {array.begin(), array.end()};
}

} // namespace

TEST_F(RegUtility, OpeningRequiresARootAndASubKey)
{
    EXPECT_EQ(reg.OpenReg(nullptr, "k", TRUE, FALSE), 87);
    EXPECT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, nullptr, TRUE, TRUE), 87);
}

TEST_F(RegUtility, OpeningWithoutCreateRequiresTheKey)
{
    EXPECT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, FALSE), 2);
    EXPECT_EQ(reg.GetRegNumValue("number", nullptr), -1) << "no key is open";
    EXPECT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, TRUE), 0);
    EXPECT_EQ(reg.CloseReg(), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/k]\n\n");
    EXPECT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, FALSE), 0);
}

TEST_F(RegUtility, CreationIsDeniedIfTheFileIsNotWritable)
{
    WriteRegistry(VALUES);
    ASSERT_EQ(chmod(REGISTRY_FILE, 0444), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    EXPECT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, TRUE), 5);
    EXPECT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, FALSE), 0) << "reading works";
    EXPECT_EQ(reg.CreateRegKey("sub"), 5);
    EXPECT_EQ(reg.DeleteRegKey("sub"), 2);
    EXPECT_FALSE(CRegUtility::SetRegDWORDData(HKEY_LOCAL_MACHINE, "k", "n", 1));
}

TEST_F(RegUtility, OpeningClosesTheOpenKey)
{
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "a", FALSE, TRUE), 0);
    EXPECT_EQ(reg.SetRegNumValue("n", 1), 0);
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "b", FALSE, FALSE), 2);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/a]\n\"n\"=dword:00000001\n\n");
    EXPECT_EQ(reg.SetRegNumValue("n", 2), -1);
}

TEST_F(RegUtility, BadArgumentsDoNotCloseTheOpenKey)
{
    OpenValues();
    EXPECT_EQ(reg.OpenReg(nullptr, "k", TRUE, FALSE), 87);
    DWORD number = 0;
    EXPECT_EQ(reg.GetRegNumValue("number", &number), 0);
}

TEST_F(RegUtility, TheDestructorClosesTheKey)
{
    {
        CRegUtility other;
        ASSERT_EQ(other.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, TRUE), 0);
        EXPECT_EQ(other.SetRegStrValue("a", "1", -1), 0);
        EXPECT_EQ(ReadText(REGISTRY_FILE), "");
    }
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/k]\n\"a\"=\"1\"\n\n");
}

TEST_F(RegUtility, WithoutAnOpenKeyOperationsReturnMinusOne)
{
    DWORD number = 7;
    char text[8] = "text";
    BYTE bytes[4] = {};
    CString string = "kept";
    EXPECT_EQ(reg.CloseReg(), 0);
    EXPECT_EQ(reg.CreateRegKey("a"), -1);
    EXPECT_EQ(reg.CreateRegKey(nullptr), -1);
    EXPECT_EQ(reg.DeleteRegKey("a"), -1);
    EXPECT_EQ(reg.DeleteRegKey(nullptr), -1);
    EXPECT_EQ(reg.GetLongestKeyNameLen(&number), -1);
    EXPECT_EQ(reg.GetLongestKeyNameLen(nullptr), 87);
    EXPECT_EQ(reg.GetLongestValueNameLen(&number), -1);
    EXPECT_EQ(reg.GetLongestValueNameLen(nullptr), 87);
    EXPECT_EQ(reg.EnumRegKey(0, text, &number), -1);
    EXPECT_EQ(reg.EnumRegKey(0, text, nullptr), -1);
    EXPECT_EQ(reg.EnumRegValueName(0, text, &number), -1);
    EXPECT_EQ(reg.GetRegNumValue("a", &number), -1);
    EXPECT_EQ(reg.GetRegNumValue(nullptr, &number), -1);
    EXPECT_EQ(reg.GetRegStrValue("a", text, &number), -1);
    EXPECT_EQ(reg.GetRegStrValue("a", string), -1);
    EXPECT_EQ(reg.GetRegBinValue("a", bytes, &number), -1);
    EXPECT_EQ(reg.SetRegNumValue("a", 1), -1);
    EXPECT_EQ(reg.SetRegStrValue("a", "1", -1), -1);
    EXPECT_EQ(reg.SetRegBinValue("a", bytes, 4), -1);
    EXPECT_EQ(reg.DeleteRegValue("a"), -1);
    EXPECT_EQ(reg.DeleteRegValue(nullptr), -1);
    EXPECT_EQ(number, 7U);
    EXPECT_STREQ(text, "text");
    EXPECT_EQ(string, "kept");
}

TEST_F(RegUtility, NullArgumentsReturnZeroAndDoNothing)
{
    OpenValues(FALSE);
    DWORD number = 7;
    char text[8] = "text";
    EXPECT_EQ(reg.CreateRegKey(nullptr), 0);
    EXPECT_EQ(reg.DeleteRegKey(nullptr), 0);
    EXPECT_EQ(reg.EnumRegKey(0, text, nullptr), 0);
    EXPECT_EQ(reg.GetRegNumValue(nullptr, &number), 0);
    EXPECT_EQ(reg.GetRegNumValue("number", nullptr), 0);
    EXPECT_EQ(reg.GetRegStrValue(nullptr, text, &number), 0);
    EXPECT_EQ(reg.GetRegStrValue("text", text, nullptr), 0);
    EXPECT_EQ(reg.SetRegNumValue(nullptr, 1), 0);
    EXPECT_EQ(reg.SetRegStrValue("text", nullptr, -1), 0);
    EXPECT_EQ(reg.DeleteRegValue(nullptr), 0);
    EXPECT_EQ(reg.GetLongestKeyNameLen(nullptr), 87);
    EXPECT_EQ(number, 7U);
    EXPECT_STREQ(text, "text");
    reg.CloseReg();
    EXPECT_EQ(ReadText(REGISTRY_FILE), VALUES);
}

TEST_F(RegUtility, ANullNameCreatesNoKey)
{
    const std::string unknown = "a line that writing the map would lose\n" + std::string(VALUES);
    WriteRegistry(unknown);
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, FALSE), 0);
    EXPECT_EQ(reg.CreateRegKey(nullptr), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), unknown);
}

TEST_F(RegUtility, AccessMasksAreIgnored)
{
    EXPECT_EQ(CRegUtility::Make64BitRegDesired(0x20019), 0U);
    EXPECT_EQ(CRegUtility::Make64BitRegDesired(0x1F003F), 0U);
}

// ---------------------------------------------------------------------------------------------------------------------
// Values

TEST_F(RegUtility, ReadsNumbersOfAKey)
{
    OpenValues();
    DWORD number = 7;
    EXPECT_EQ(reg.GetRegNumValue("absent", &number), 2);
    EXPECT_EQ(reg.GetRegNumValue("text", &number), 11);
    EXPECT_EQ(reg.GetRegNumValue("empty", &number), 11);
    EXPECT_EQ(number, 7U);
    EXPECT_EQ(reg.GetRegNumValue("number", &number), 0);
    EXPECT_EQ(number, 42U);
}

TEST_F(RegUtility, ATextLongerThanTheNumberBufferIsNotANumber)
{
    WriteRegistry("[HKLM/k]\n\"text\"=\"longer than ten bytes\"\n\n");
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", TRUE, FALSE), 0);
    DWORD number = 7;
    EXPECT_EQ(reg.GetRegNumValue("text", &number), 11);
    EXPECT_EQ(number, 7U);
}

struct TextCase
{
    const char* name;
    bool hasBuffer;
    DWORD size;
    long result;
    DWORD sizeBehind;
    const char* textBehind;
};

TEST_F(RegUtility, TextTable)
{
    const TextCase cases[] = {
        {"text", true, 16, 0, 5, "four"},      {"text", true, 5, 0, 5, "four"},
        {"text", true, 4, 234, 5, "before"},   {"text", true, 0, 234, 5, "before"},
        {"text", false, 16, 234, 5, "before"}, {"empty", true, 1, 0, 1, ""},
        {"empty", true, 0, 234, 1, "before"},  {"number", true, 16, 11, 16, "before"},
        {"absent", true, 16, 2, 16, "before"},
    };
    OpenValues();
    for (const TextCase& c : cases) {
        char text[16] = "before";
        DWORD size = c.size;
        EXPECT_EQ(reg.GetRegStrValue(c.name, c.hasBuffer ? text : nullptr, &size), c.result)
            << c.name << c.size;
        EXPECT_EQ(size, c.sizeBehind) << c.name << c.size;
        EXPECT_STREQ(text, c.textBehind) << c.name << c.size;
    }
}

TEST_F(RegUtility, ReadsATextIntoAString)
{
    OpenValues();
    CString text = "something longer than the value";
    EXPECT_EQ(reg.GetRegStrValue("text", text), 0);
    EXPECT_EQ(text, "four");
    EXPECT_EQ(reg.GetRegStrValue("empty", text), 0);
    EXPECT_EQ(text, "");
    text = "kept";
    EXPECT_EQ(reg.GetRegStrValue("absent", text), 2);
    EXPECT_EQ(reg.GetRegStrValue("number", text), 11);
    EXPECT_EQ(text, "kept");
}

TEST_F(RegUtility, BinaryValuesAreNotStored)
{
    OpenValues(FALSE);
    BYTE bytes[4] = {1, 2, 3, 4};
    DWORD size = 4;
    EXPECT_EQ(reg.SetRegBinValue("binary", bytes, 4), 0);
    EXPECT_EQ(reg.GetRegBinValue("binary", bytes, &size), 2);
    EXPECT_EQ(reg.GetRegBinValue("text", bytes, &size), 11);
    EXPECT_EQ(reg.GetRegBinValue("number", bytes, &size), 11);
    EXPECT_EQ(size, 4U);
    reg.CloseReg();
    EXPECT_EQ(ReadText(REGISTRY_FILE), VALUES);
}

TEST_F(RegUtility, SetValuesAreWrittenToTheFile)
{
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, ROOT, FALSE, TRUE), 0);
    EXPECT_EQ(reg.SetRegNumValue("n", 0xDEADBEEF), 0);
    EXPECT_EQ(reg.SetRegStrValue("whole", "text", -1), 0);
    EXPECT_EQ(reg.SetRegStrValue("sized", "text", 3), 0); // the size does not truncate the text
    EXPECT_EQ(reg.SetRegStrValue("nothing", "text", 0), 0);
    EXPECT_EQ(reg.SetRegStrValue("empty", "", -1), 0);
    EXPECT_EQ(reg.CloseReg(), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), std::string(SECTION) + "\"empty\"=\"\"\n\"sized\"=\"text\"\n"
                                                              "\"whole\"=\"text\"\n\"n\"=dword:deadbeef\n\n");
}

TEST_F(RegUtility, AValueIsDeletedFromTheFile)
{
    OpenValues(FALSE);
    EXPECT_EQ(reg.DeleteRegValue("text"), 0);
    EXPECT_EQ(reg.DeleteRegValue("absent"), 0);
    reg.CloseReg();
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/k]\n\"empty\"=\"\"\n\"number\"=dword:0000002a\n\n");
}

TEST_F(RegUtility, AValueWithAOneLetterNameIsDeleted)
{
    WriteRegistry("[HKLM/k]\n\"n\"=dword:00000001\n\"text\"=\"four\"\n\n");
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, FALSE), 0);
    EXPECT_EQ(reg.DeleteRegValue("n"), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/k]\n\"text\"=\"four\"\n\n");
}

TEST_F(RegUtilityDeathTest, CountingValuesStopsTheProcess)
{
    OpenValues(FALSE);
    DWORD size = 8;
    char text[8];
    EXPECT_DEATH(reg.GetLongestValueNameLen(&size), DIED_FALSE);
    EXPECT_DEATH(reg.EnumRegValueName(0, text, &size), DIED_FALSE);
    EXPECT_DEATH(reg.DeleteRegValue(""), DIED_FALSE);
}

// ---------------------------------------------------------------------------------------------------------------------
// Sub keys

TEST_F(RegUtility, ASubKeyIsCreatedInTheFile)
{
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, TRUE), 0);
    EXPECT_EQ(reg.CreateRegKey("sub"), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/k]\n\n[HKLM/k/sub]\n\n");
}

TEST_F(RegUtility, LongestSubKeyNameIncludesItsNul)
{
    WriteRegistry("[HKLM/k]\n\n[HKLM/k/four]\n\n[HKLM/k/longer/and more]\n\n[HKLM/none]\n\n");
    DWORD length = 0;
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", TRUE, FALSE), 0);
    EXPECT_EQ(reg.GetLongestKeyNameLen(&length), 0);
    EXPECT_EQ(length, 7U);
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "none", TRUE, FALSE), 0);
    EXPECT_EQ(reg.GetLongestKeyNameLen(&length), 0);
    EXPECT_EQ(length, 1U);
}

TEST_F(RegUtility, EnumerationRequiresSpaceForTheLongestName)
{
    WriteRegistry("[HKLM/k]\n\n[HKLM/k/a]\n\n[HKLM/k/four]\n\n");
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", TRUE, FALSE), 0);
    char name[8] = "before";
    DWORD size = 5; // enough for each name, but one short of the longest name's length plus 2
    EXPECT_EQ(reg.EnumRegKey(0, name, &size), 234);
    EXPECT_EQ(size, 6U);
    EXPECT_STREQ(name, "before");
    EXPECT_EQ(reg.EnumRegKey(0, name, &size), 0);
    EXPECT_STREQ(name, "a");
    size = 8;
    EXPECT_EQ(reg.EnumRegKey(1, name, &size), 0);
    EXPECT_EQ(size, 6U);
    EXPECT_STREQ(name, "four");
    size = 8;
    EXPECT_EQ(reg.EnumRegKey(2, name, &size), 259);
    EXPECT_EQ(size, 8U);
}

TEST_F(RegUtility, EnumerationLogsATraceLine)
{
    LogAgent agent;
    DWORD size = 0;
    SetLogLevel(4);
    EXPECT_EQ(reg.EnumRegKey(7, nullptr, &size), -1);
    EXPECT_EQ(agent.Receive(), "MESSAGE=RT300API[" + std::to_string(getpid()) +
                                   "]: CRegUtility::EnumRegKey(7,,)\nPRIORITY=7\n");
    SetLogLevel(3);
    EXPECT_EQ(reg.EnumRegKey(8, nullptr, &size), -1);
    EXPECT_EQ(agent.Receive(0), std::nullopt);
}

TEST_F(RegUtility, EnumRegistryKeyCollectsTheNames)
{
    WriteRegistry(
        "[HKLM/k]\n\n[HKLM/k/b]\n\n[HKLM/k/{A}]\n\n[HKLM/k/b/deep]\n\n[HKLM/k/other/deeper than all]\n\n"
        "[HKLM/none]\n\n");
    CStringArray names;
    names.Add("old");
    EXPECT_EQ(CRegUtility::EnumRegistryKey(HKEY_LOCAL_MACHINE, "k", &names), 2);
    EXPECT_EQ(Names(names), (std::vector<std::string>{"b", "{A}"}));
    EXPECT_EQ(CRegUtility::EnumRegistryKey(HKEY_LOCAL_MACHINE, "k", nullptr), 2);
    EXPECT_EQ(CRegUtility::EnumRegistryKey(HKEY_LOCAL_MACHINE, "none", &names), 0);
    EXPECT_TRUE(names.IsEmpty());
}

TEST_F(RegUtility, EnumRegistryKeyOfAMissingKeyReturnsNoNames)
{
    CStringArray names;
    names.Add("old");
    EXPECT_EQ(CRegUtility::EnumRegistryKey(HKEY_LOCAL_MACHINE, LOCAL, &names), 0);
    EXPECT_TRUE(names.IsEmpty());
}

TEST_F(RegUtility, EnumRegistryKeySupportsLongNames)
{
    const std::string longest(900, 'n');
    WriteRegistry("[HKLM/k]\n\n[HKLM/k/a]\n\n[HKLM/k/" + longest + "]\n\n");
    CStringArray names;
    EXPECT_EQ(CRegUtility::EnumRegistryKey(HKEY_LOCAL_MACHINE, "k", &names), 2);
    EXPECT_EQ(Names(names), (std::vector<std::string>{"a", longest}));
}

TEST_F(RegUtilityDeathTest, EnumRegistryKeyRequiresRootAndKey)
{
    EXPECT_DEATH(CRegUtility::EnumRegistryKey(nullptr, "k", nullptr), "!= FALSE' failed");
    EXPECT_DEATH(CRegUtility::EnumRegistryKey(HKEY_LOCAL_MACHINE, nullptr, nullptr), "!= FALSE' failed");
}

TEST_F(RegUtility, ADeviceKeyIsDeletedWithItsSubKeys)
{
    const std::string rest = "[HKLM/k/{B}]\n\"x\"=\"1\"\n\n";
    WriteRegistry(
        "[HKLM/k]\n\n[HKLM/k/{A}]\n\"Connected\"=dword:00000000\n\n[HKLM/k/{A}/one]\n\"y\"=\"1\"\n\n"
        "[HKLM/k/{A}/two]\n\n" +
        rest);
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, FALSE), 0);
    EXPECT_EQ(reg.DeleteRegKey("{A}"), 0);
    reg.CloseReg();
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/k]\n\n" + rest);
}

TEST_F(RegUtility, ADeeperTreeIsDeletedToo)
{
    WriteRegistry(
        "[HKLM/k]\n\n[HKLM/k/a]\n\n[HKLM/k/a/b]\n\n[HKLM/k/a/b/c]\n\n[HKLM/k/a/b/c/d]\n\n[HKLM/z]\n\n");
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, FALSE), 0);
    EXPECT_EQ(reg.DeleteRegKey("a"), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/k]\n\n[HKLM/z]\n\n");
}

TEST_F(RegUtility, AGrandchildWithoutItsParentDoesNotHang)
{
    WriteRegistry("[HKLM/k]\n\n[HKLM/k/a]\n\n[HKLM/k/a/b/c]\n\n");
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, FALSE), 0);
    EXPECT_EQ(reg.DeleteRegKey("a"), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/k]\n\n[HKLM/k/a/b/c]\n\n")
        << "the enumeration does not list it";
    WriteRegistry("[HKLM/k]\n\n[HKLM/k/b]\n\n[HKLM/k/b/c]\n\n[HKLM/k/b/c/d/e]\n\n");
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, FALSE), 0);
    EXPECT_EQ(reg.DeleteRegKey("b"), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/k]\n\n[HKLM/k/b/c/d/e]\n\n")
        << "each sub key is deleted once, although more keys are counted";
}

TEST_F(RegUtility, DeletingAKeyLeavesNoMemoryAllocated)
{
    WriteRegistry("[HKLM/k]\n\n[HKLM/k/a]\n\n");
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, FALSE), 0);
    const size_t growth =
        HeapGrowth([this] { EXPECT_EQ(reg.DeleteRegKey("a"), 0); }); // the map keeps the key
    EXPECT_LT(growth, 1000U);
}

TEST_F(RegUtility, DeletingAnAbsentSubKeyReturnsTheStatusOfOpening)
{
    WriteRegistry("[HKLM/k]\n\n[HKLM/k/ab]\n\n");
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, FALSE), 0);
    EXPECT_EQ(reg.DeleteRegKey("a"), 2);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/k]\n\n[HKLM/k/ab]\n\n");
}

// ---------------------------------------------------------------------------------------------------------------------
// One-call operations

TEST_F(RegUtility, GetRegDWORDDataKeepsThePresetValueOnFailure)
{
    WriteRegistry(VALUES);
    DWORD number = 7;
    EXPECT_FALSE(CRegUtility::GetRegDWORDData(HKEY_LOCAL_MACHINE, "k", "absent", &number));
    EXPECT_FALSE(CRegUtility::GetRegDWORDData(HKEY_LOCAL_MACHINE, "k", "text", &number));
    EXPECT_FALSE(CRegUtility::GetRegDWORDData(HKEY_LOCAL_MACHINE, "absent", "number", &number));
    EXPECT_EQ(number, 7U);
    EXPECT_TRUE(CRegUtility::GetRegDWORDData(HKEY_LOCAL_MACHINE, "k", "number", &number));
    EXPECT_EQ(number, 42U);
}

TEST_F(RegUtility, GetRegStrDataClearsItsOutputOnFailure)
{
    WriteRegistry(VALUES);
    CString text = "old";
    EXPECT_TRUE(CRegUtility::GetRegStrData(HKEY_LOCAL_MACHINE, "k", "text", &text));
    EXPECT_EQ(text, "four");
    EXPECT_TRUE(CRegUtility::GetRegStrData(HKEY_LOCAL_MACHINE, "k", "empty", &text));
    EXPECT_EQ(text, "");
    for (const char* name : {"absent", "number"}) {
        text = "old";
        EXPECT_FALSE(CRegUtility::GetRegStrData(HKEY_LOCAL_MACHINE, "k", name, &text)) << name;
        EXPECT_EQ(text, "") << name;
    }
    text = "old";
    EXPECT_FALSE(CRegUtility::GetRegStrData(HKEY_LOCAL_MACHINE, "absent", "text", &text));
    EXPECT_EQ(text, "");
    EXPECT_EQ(ReadText(REGISTRY_FILE), VALUES) << "reading creates no key";
}

TEST_F(RegUtility, SetRegDWORDDataCreatesTheKey)
{
    EXPECT_TRUE(CRegUtility::SetRegDWORDData(HKEY_LOCAL_MACHINE, ROOT, "CompatiMode", 1));
    EXPECT_EQ(ReadText(REGISTRY_FILE), std::string(SECTION) + "\"CompatiMode\"=dword:00000001\n\n");
    EXPECT_FALSE(CRegUtility::SetRegDWORDData(nullptr, ROOT, "n", 1));
    EXPECT_FALSE(CRegUtility::SetRegDWORDData(HKEY_LOCAL_MACHINE, nullptr, "n", 1));
    EXPECT_FALSE(CRegUtility::SetRegDWORDData(HKEY_LOCAL_MACHINE, ROOT, nullptr, 1));
    EXPECT_EQ(ReadText(REGISTRY_FILE), std::string(SECTION) + "\"CompatiMode\"=dword:00000001\n\n");
}

TEST_F(RegUtility, SetRegStrDataCreatesTheKey)
{
    EXPECT_TRUE(CRegUtility::SetRegStrData(HKEY_LOCAL_MACHINE, ROOT, "ErrorRateLogFolder", "/var/log/rates"));
    EXPECT_EQ(ReadText(REGISTRY_FILE),
              std::string(SECTION) + "\"ErrorRateLogFolder\"=\"/var/log/rates\"\n\n");
}

TEST_F(RegUtility, DeleteRegEntryIsAlwaysTrue)
{
    WriteRegistry(VALUES);
    EXPECT_TRUE(CRegUtility::DeleteRegEntry(HKEY_LOCAL_MACHINE, "absent", "text"));
    EXPECT_TRUE(CRegUtility::DeleteRegEntry(HKEY_LOCAL_MACHINE, "k", "absent"));
    EXPECT_TRUE(CRegUtility::DeleteRegEntry(nullptr, "k", "text"));
    EXPECT_EQ(ReadText(REGISTRY_FILE), VALUES);
    EXPECT_TRUE(CRegUtility::DeleteRegEntry(HKEY_LOCAL_MACHINE, "k", "text"));
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/k]\n\"empty\"=\"\"\n\"number\"=dword:0000002a\n\n");
}

TEST_F(RegUtilityDeathTest, OneCallOperationsRequireTheirArguments)
{
    DWORD number = 0;
    CString text;
    const HKEY root = HKEY_LOCAL_MACHINE;
    EXPECT_DEATH(CRegUtility::GetRegDWORDData(nullptr, "k", "n", &number), DIED_ZERO);
    EXPECT_DEATH(CRegUtility::GetRegDWORDData(root, nullptr, "n", &number), DIED_ZERO);
    EXPECT_DEATH(CRegUtility::GetRegDWORDData(root, "k", nullptr, &number), DIED_ZERO);
    EXPECT_DEATH(CRegUtility::GetRegDWORDData(root, "k", "n", nullptr), DIED_ZERO);
    EXPECT_DEATH(CRegUtility::GetRegStrData(nullptr, "k", "n", &text), DIED_ZERO);
    EXPECT_DEATH(CRegUtility::GetRegStrData(root, nullptr, "n", &text), DIED_ZERO);
    EXPECT_DEATH(CRegUtility::GetRegStrData(root, "k", nullptr, &text), DIED_ZERO);
    EXPECT_DEATH(CRegUtility::GetRegStrData(root, "k", "n", nullptr), DIED_ZERO);
    EXPECT_DEATH(CRegUtility::SetRegStrData(nullptr, "k", "n", "t"), DIED_ZERO);
    EXPECT_DEATH(CRegUtility::SetRegStrData(root, nullptr, "n", "t"), DIED_ZERO);
    EXPECT_DEATH(CRegUtility::SetRegStrData(root, "k", nullptr, "t"), DIED_ZERO);
    EXPECT_DEATH(CRegUtility::SetRegStrData(root, "k", "n", nullptr), DIED_ZERO);
}

TEST_F(RegUtilityDeathTest, SettingATextOfAKeyThatCannotBeOpenedStopsTheProcess)
{
    std::filesystem::remove_all(CONF_DIR);
    WriteText(CONF_DIR, "in the place of the folder");
    EXPECT_DEATH(CRegUtility::SetRegStrData(HKEY_LOCAL_MACHINE, "k", "n", "t"), DIED_ZERO);
    EXPECT_FALSE(CRegUtility::SetRegDWORDData(HKEY_LOCAL_MACHINE, "k", "n", 1));
}

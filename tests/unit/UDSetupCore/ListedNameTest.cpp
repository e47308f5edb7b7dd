#include "ListedName.h"
#include "SettingFile.h"

#include "PubMgrConst.h"
#include "Win_def_log.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace {

/// Stores names as the publisher manager does, and reads them back.
class ListedNameAgrees : public testing::Test
{
protected:
    ListedNameAgrees()
    {
        SetLogLevel(3);
        std::filesystem::create_directories(folder);
    }

    std::string readBack(const std::string& name) const
    {
        const SettingFile file(folder, "publisher");
        std::filesystem::remove(file.Path());
        SettingLines lines;
        lines.Add(REG_PUB_SETUP_VAL_GUID, "{1}");
        lines.Add(REG_PUB_SETUP_VAL_PUBLISH_NAME, name);
        lines.Add(REG_PUB_SETUP_VAL_PRINTER_NAME, "Printer");
        EXPECT_TRUE(file.Write(lines));
        return file.Read().String(REG_PUB_SETUP_VAL_PUBLISH_NAME);
    }

    void expectAgreement(const std::vector<std::string>& names) const
    {
        for (const std::string& name : names) {
            EXPECT_EQ(listedName(name), readBack(name)) << testing::PrintToString(name);
        }
    }

    const std::string folder = testing::TempDir() + "listed-name";
};

TEST(ListedName, IsWhatTheSettingFileKeeps)
{
    const struct
    {
        std::string name, listed;
    } table[] = {
        {"Studio A", "Studio A"},
        {"~!@#$%^&*()[]{}\\/\"'", "~!@#$%^&*()[]{}\\/\"'"},
        {"B\xC3\xBCro 3", "Bro 3"},
        {"\xE6\x9D\xB1\xE4\xBA\xAC", ""},
        {"\xE6\x9D\xB1\xE4\xBA\xAC 1", "1"},
        {"Studio \xF0\x9F\x92\xBF", "Studio"},
        {"a\tb\x01\x7F", "ab"},
        {"A;B", "A"},
        {"A ; B", "A"},
        {";", ""},
        {"  Studio  A  ", "Studio  A"},
        {"   ", ""},
        {"=", ""},
        {"=x", "x"},
        {" = x", "x"},
        {"==x", "=x"},
        {"a=b", "a=b"},
        {"\"quoted\"", "\"quoted\""},
        {"[Common]", "[Common]"},
        {"first\nsecond", "first"},
        {"first\rsecond", "first"},
        {std::string("first\0second", 12), "first"},
        {"", "NotSet"},
        {"\nsecond", "NotSet"},
        {std::string(255, 'x'), std::string(255, 'x')},
        {std::string(256, 'x'), std::string(255, 'x')},
        {std::string(254, 'x') + " y", std::string(254, 'x') + " "},
        {std::string(1008, ' ') + "x", "x"}, // 1023 bytes with "PublisherName="
        {std::string(1009, ' ') + "x", ""},
    };
    for (const auto& row : table) {
        EXPECT_EQ(listedName(row.name), row.listed) << testing::PrintToString(row.name);
    }
}

TEST_F(ListedNameAgrees, WithEveryByteInEveryPlace)
{
    for (int value = 0; value < 256; ++value) {
        const std::string byte(1, static_cast<char>(value));
        expectAgreement({byte, byte + "Studio", "Stu" + byte + "dio", "Studio" + byte, byte + byte + "x",
                         " " + byte + " x", "x " + byte + " ", "=" + byte, "[" + byte + "]"});
    }
}

TEST_F(ListedNameAgrees, WithMultibyteCharacters)
{
    expectAgreement({"B\xC3\xBCro", "\xC3\xBC", "\xC3\xBC = x", "= \xC3\xBC;x", "\xE6\x9D\xB1\xE4\xBA\xAC 1",
                     "Studio \xF0\x9F\x92\xBF", "\xC2\xA0x\xC2\xA0",
                     "a\xE2\x80\xA8"
                     "b",
                     "\xEF\xBB\xBFx", "\xEF\xBF\xBD"});
}

TEST_F(ListedNameAgrees, WithLongNames)
{
    std::vector<std::string> names;
    for (const size_t size : {254, 255, 256, 1008, 1009, 1010, 1024, 5000}) {
        names.emplace_back(size, 'x');
        names.push_back(std::string(size, ' ') + "xy z");
        names.push_back(std::string(size, 'x') + " ;z");
        names.push_back(std::string(size, '\xC3') + "x");
        names.push_back(std::string(size - 3, 'x') + " y z");
    }
    expectAgreement(names);
}

/// Every sequence of three of the characters that the reader treats specially.
TEST_F(ListedNameAgrees, WithEverySequenceOfSpecialCharacters)
{
    const std::string signs(" =;\t\n[]\"\\x\xC3", 11);
    std::vector<std::string> names;
    for (const char first : signs) {
        for (const char second : signs) {
            for (const char third : signs) {
                names.push_back({first, second, third});
            }
        }
    }
    expectAgreement(names);
}

} // namespace

#include "NewPublisher.h"
#include "OneLine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

CStringArray textsOf(const std::vector<std::string>& texts)
{
    CStringArray array;
    for (const std::string& text : texts) {
        array.Add(CString(text));
    }
    return array;
}

SYSTEMTIME day(WORD year, WORD month, WORD dayOfMonth)
{
    SYSTEMTIME date = {};
    date.wYear = year;
    date.wMonth = month;
    date.wDay = dayOfMonth;
    return date;
}

TEST(FreeDefaultName, IsTheFirstUnusedName)
{
    const struct
    {
        std::vector<std::string> names;
        const char* offered;
    } table[] = {
        {{}, "RT-300N 1"},
        {{"RT-300N 1"}, "RT-300N 2"},
        {{"rt-300n 1"}, "RT-300N 2"},
        {{"Rt-300N 1", "RT-300N 2"}, "RT-300N 3"},
        {{"RT-300N 2", "RT-300N 1", "RT-300N 4"}, "RT-300N 3"},
        {{"RT-300N 2"}, "RT-300N 1"},
        {{"RT-300N 10", "RT-300N 01", "RT-300N 1 ", " RT-300N 1", "RT-300N  1", "RT-300N"}, "RT-300N 1"},
        {{"", "Studio", "NotSet"}, "RT-300N 1"},
        {{"RT-300N 1", "RT-300N 1", "rt-300N 1"}, "RT-300N 2"},
    };
    for (const auto& row : table) {
        EXPECT_EQ(freeDefaultName(textsOf(row.names)), row.offered);
    }
}

TEST(FreeDefaultName, EndsAt999)
{
    std::vector<std::string> names;
    for (int i = 1; i <= 998; ++i) {
        names.push_back("RT-300N " + std::to_string(i));
    }
    EXPECT_EQ(freeDefaultName(textsOf(names)), "RT-300N 999");
    names.emplace_back("RT-300N 1000"); // never offered, so without effect
    EXPECT_EQ(freeDefaultName(textsOf(names)), "RT-300N 999");
    names.emplace_back("rt-300n 999");
    EXPECT_EQ(freeDefaultName(textsOf(names)), "");
}

TEST(IsTakenBy, NameAndHostAreComparedExactly)
{
    const struct
    {
        const char *storedName, *storedHost, *name, *host;
        bool taken;
    } table[] = {
        {"Studio", "server", "Studio", "other", true},
        {"Studio", "server", "Other", "server", true},
        {"Studio", "server", "Studio", "server", true},
        {"Studio", "server", "Other", "other", false},
        {"Studio", "server", "STUDIO", "SERVER", false},
        {"Studio", "server", "Studio ", "server ", false},
        {"Studio", "server", "server", "Studio", false},
        {"Studio", "", "Other", "", true},
        {"Studio", "", "Other", "x", false},
        {"", "server", "", "x", true},
        {"B\xC3\xBCro", "s", "B\xC3\xBCro", "x", true},
        {"Bro", "s", "B\xC3\xBCro", "x", false},
    };
    for (const auto& row : table) {
        PUBLISHERINFO stored;
        stored.strPublisherName = row.storedName;
        stored.strHostName = row.storedHost;
        EXPECT_EQ(isTakenBy(stored, row.name, row.host), row.taken)
            << row.storedName << ", " << row.storedHost << ": " << row.name << ", " << row.host;
    }
}

TEST(NewRegistID, IsTheDayAndANumber)
{
    const struct
    {
        SYSTEMTIME today;
        int number;
        const char* id;
    } table[] = {
        {day(2026, 11, 21), 1, "{ARPUB20261121_1}"},
        {day(2026, 1, 2), 10, "{ARPUB20260102_10}"},
        {day(2026, 12, 31), 1000, "{ARPUB20261231_1000}"},
        {day(999, 1, 1), 1, "{ARPUB 9990101_1}"},
        {day(0xFFFF, 0xFFFF, 0xFFFF), 0x7FFFFFFF, "{ARPUB655356553565535_2147483647}"},
    };
    for (const auto& row : table) {
        EXPECT_EQ(newRegistID(row.today, row.number), row.id);
    }
    EXPECT_EQ(newRegistID(day(0xFFFF, 0xFFFF, 0xFFFF), 0x7FFFFFFF).size(), 33U);
}

/// The ids that are tried if the first `refusals` attempts fail.
std::vector<std::string> tried(const std::vector<std::string>& taken, int refusals, bool& added)
{
    std::vector<std::string> ids;
    added = addUnderFreeID(textsOf(taken), day(2026, 11, 21), "n", "h", [&](const PUBLISHERINFO& info) {
        ids.push_back(info.strPublisherRegistID);
        return refusals-- <= 0;
    });
    return ids;
}

TEST(AddUnderFreeID, UsesTheFirstIdOfTheDayThatWorks)
{
    const struct
    {
        std::vector<std::string> taken;
        int refusals;
        std::vector<std::string> ids;
    } table[] = {
        {{}, 0, {"{ARPUB20261121_1}"}},
        {{"{ARPUB20261121_1}"}, 0, {"{ARPUB20261121_2}"}},
        {{"{arpub20261121_1}", "{ARPUB20261121_2}"}, 0, {"{ARPUB20261121_3}"}},
        {{"{ARPUB20261121_2}", "{ARPUB20261120_1}", "{ARPUB20261121_10}"}, 0, {"{ARPUB20261121_1}"}},
        {{"{ARPUB20261121_1}", "{ARPUB20261121_3}"}, 1, {"{ARPUB20261121_2}", "{ARPUB20261121_4}"}},
    };
    for (const auto& row : table) {
        bool added = false;
        EXPECT_EQ(tried(row.taken, row.refusals, added), row.ids);
        EXPECT_TRUE(added);
    }
}

TEST(AddUnderFreeID, GivesUpAfterAThousand)
{
    std::vector<std::string> all;
    for (int i = 1; i <= 1000; ++i) {
        all.push_back("{ARPUB20261121_" + std::to_string(i) + "}");
    }
    bool added = true;
    EXPECT_EQ(tried({}, 1000, added), all); // all refused
    EXPECT_FALSE(added);
    EXPECT_EQ(tried({}, 999, added), all); // the last one works
    EXPECT_TRUE(added);
    EXPECT_TRUE(tried(all, 0, added).empty()); // all in use
    EXPECT_FALSE(added);
    EXPECT_EQ(tried({all.begin(), all.end() - 1}, 0, added), std::vector{all.back()});
    EXPECT_TRUE(added);
}

TEST(AddUnderFreeID, EveryAttemptHasANewRecord)
{
    int tries = 0;
    addUnderFreeID({}, day(2026, 11, 21), "B\xC3\xBCro", "host", [&](const PUBLISHERINFO& info) {
        const PUBLISHERINFO fresh;
        EXPECT_EQ(info.strPublisherName, "B\xC3\xBCro");
        EXPECT_EQ(info.strHostName, "host");
        EXPECT_EQ(info.uiPublisherType, 1U);
        EXPECT_EQ(info.uiPublisherDevType, 1U);
        EXPECT_EQ(info.strGUID, "");
        EXPECT_EQ(info.strPrinterName, "");
        EXPECT_EQ(info.uiPublishMode, fresh.uiPublishMode);
        EXPECT_EQ(info.uiStacker1DiscType, fresh.uiStacker1DiscType);
        EXPECT_EQ(info.uiRetryCount, fresh.uiRetryCount);
        EXPECT_EQ(info.uiAddErrorMark, 1U);
        EXPECT_EQ(info.uiNetPublisherType, 0U);
        return ++tries == 3;
    });
    EXPECT_EQ(tries, 3);
}

TEST(OneLine, DropsCharactersThatWouldEndTheLine)
{
    const struct
    {
        QString text;
        const char* line;
    } table[] = {
        {"", ""},
        {"Studio", "Studio"},
        {" Studio ", " Studio "},
        {"Studio\n", "Studio"},
        {"\r\nStu\rdio\n\nB", "StudioB"},
        {QString::fromLatin1("a\0b\0", 4), "ab"},
        {"a\tb[c]=d;e\\f", "a\tb[c]=d;e\\f"},
    };
    for (const auto& row : table) {
        EXPECT_EQ(oneLine(row.text).toStdString(), row.line);
    }
}

} // namespace

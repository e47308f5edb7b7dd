#include "ReportWords.h"

#include "SampleReports.h"

#include <gtest/gtest.h>

namespace {

TEST(ReportWords, EveryStatusHasItsWordAndColour)
{
    PublisherReport report = fullReport();
    constexpr struct
    {
        PublisherState state;
        const char* word;
        const char* text;
        const char* colour;
    } table[] = {
        {PublisherState::ready, "ready", "Ready", "32"},
        {PublisherState::notConnected, "not-connected", "Not connected", "33"},
        {PublisherState::error, "error", "Error", "31"},
        {PublisherState::administratorNotRegistered, "administrator-not-registered",
         "Administrator not registered", "33"},
        {PublisherState::unsupportedVersion, "unsupported-version", "Unsupported version", "33"},
    };
    for (const auto& row : table) {
        report.state = row.state;
        EXPECT_STREQ(statusWord(report).word, row.word);
        EXPECT_EQ(statusWord(report).text, row.text);
        EXPECT_STREQ(statusColour(report), row.colour);
    }
    report.answer = Answer::none;
    EXPECT_STREQ(statusWord(report).word, "no-answer");
    EXPECT_EQ(statusWord(report).text, "No answer");
    EXPECT_STREQ(statusColour(report), "31");
}

TEST(ReportWords, InkIsAPercentageOrAState)
{
    constexpr struct
    {
        quint64 value;
        std::optional<quint32> percent;
        const char* word;
    } table[] = {
        {0, 0, "ok"},
        {100, 100, "ok"},
        {0x80000005, 5, "near-empty"},
        {0x100, std::nullopt, "removed"},
        {0x200, std::nullopt, "invalid"},
        {0x400, std::nullopt, "unknown"},
        {0x8000000, std::nullopt, "non-standard"},
        {0x80000100, std::nullopt, "removed"}, // with the flag of a nearly empty cartridge
        {0x80000065, std::nullopt, "unknown"},
        {101, std::nullopt, "unknown"},
        {0xFFFFFFFFFFFFFFFF, std::nullopt, "unknown"},
    };
    for (const auto& row : table) {
        EXPECT_EQ(inkSupply(row.value).percent, row.percent) << row.value;
        EXPECT_STREQ(inkSupply(row.value).state.word, row.word) << row.value;
    }
}

TEST(ReportWords, AStackerHoldsDiscsOrHasAState)
{
    constexpr struct
    {
        quint32 value;
        std::optional<quint32> discs;
        const char* word;
        bool supplies;
    } table[] = {
        {0, 0, "counted", false},
        {0x80000058, 88, "counted", true},
        {100, 100, "counted", false},
        {101, std::nullopt, "unknown", false},
        {102, std::nullopt, "not-full", false},
        {0x80000067, std::nullopt, "overflow", true},
        {104, std::nullopt, "unknown", false},
    };
    for (const auto& row : table) {
        EXPECT_EQ(stackerFill(row.value).discs, row.discs) << row.value;
        EXPECT_STREQ(stackerFill(row.value).state.word, row.word) << row.value;
        EXPECT_EQ(stackerFill(row.value).supplies, row.supplies) << row.value;
    }
}

TEST(ReportWords, SettingsHaveTheTextsOfTheDialog)
{
    EXPECT_EQ(modeWord(0).text, "Standard mode");
    EXPECT_EQ(modeWord(1).text, "Batch mode");
    EXPECT_EQ(modeWord(2).text, "External Output / Low-volume mode");
    EXPECT_EQ(modeWord(3).text, "Security mode"); // the dialog does not have these
    EXPECT_EQ(modeWord(4).text, "Output control mode");
    EXPECT_EQ(modeWord(5).text, "Error rate mode");
    EXPECT_EQ(modeWord(6).text, "Read mode");
    EXPECT_STREQ(modeWord(3).word, "security");
    EXPECT_STREQ(modeWord(99).word, "");
    EXPECT_EQ(modeWord(99).text, "");
    EXPECT_EQ(discTypeWord(2).text, "DVD-R"); // the dialog has one choice for DVD-R and DVD+R
    EXPECT_EQ(discTypeWord(6).text, "DVD(+R/-R)");
    EXPECT_EQ(discTypeWord(16).text, "Input Stacker");
    EXPECT_STREQ(discTypeWord(2).word, "DVD-R");
    EXPECT_EQ(discTypeWord(0).text, "Output Stacker");
    EXPECT_EQ(discTypeWord(32).text, "Do not use");
    EXPECT_STREQ(discTypeWord(99).word, "");
    EXPECT_EQ(discTypeWord(99).text, "");
}

TEST(ReportWords, BitsHaveOneWordEach)
{
    EXPECT_EQ(joinedTexts(driveWords(0)), "");
    EXPECT_EQ(joinedTexts(driveWords(2 | 4)), "contains a disc, writing");
    EXPECT_EQ(driveWords(0x7FF).size(), 11U);
    EXPECT_EQ(printerWords(0x7FF07FF).size(), 22U);
    EXPECT_EQ(loaderWords(0x3FFFFFFF).size(), 30U);
    for (const auto& words : {driveWords(0x7FF), printerWords(0x7FF07FF), loaderWords(0x3FFFFFFF)}) {
        for (const ReportWord& word : words) {
            EXPECT_FALSE(word.text.isEmpty()) << word.word;
        }
    }
    EXPECT_EQ(driveWords(0xFFFFFFFFFFFFF800).size(), 0U);
}

TEST(ReportWords, JobsHaveStatesAndTypes)
{
    EXPECT_STREQ(jobStateWord(2).word, "running");
    EXPECT_STREQ(jobStateWord(1001).word, "");
    EXPECT_STREQ(jobTypeWord(3), "write-and-print");
    EXPECT_STREQ(jobTypeWord(0x80000003), "head-cleaning");
    EXPECT_STREQ(jobTypeWord(0), "");
}

} // namespace

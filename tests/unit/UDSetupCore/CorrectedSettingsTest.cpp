#include "CorrectedSettings.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>

namespace {

using enum ModelFamily;

/// Every defined value, the adjacent numbers, and the ends of the range.
constexpr UINT numbers[] = {0,  1,  2,  3,  4,  5,  6,  7,  8,   9,          10,         11,        12,
                            13, 14, 15, 16, 17, 31, 32, 33, 255, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};

TEST(CorrectedMedia, EveryStoredValueIsShownAsAChoice)
{
    const std::map<UINT, UINT> notCdr = {{0, 0}, {2, 6}, {3, 7}, {4, 6},   {5, 7},  {6, 6},
                                         {7, 7}, {8, 8}, {9, 9}, {10, 10}, {11, 11}};
    for (const UINT stored : numbers) {
        SCOPED_TRACE(stored);
        EXPECT_EQ(correctedMedia(stored), notCdr.contains(stored) ? notCdr.at(stored) : 1);
    }
}

TEST(CorrectedStacker3, EveryStoredValueIsInUseOrNot)
{
    const std::map<UINT, UINT> inUse = {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 0},
                                        {6, 0}, {7, 0}, {8, 0}, {9, 0}, {16, 0}};
    for (const UINT stored : numbers) {
        SCOPED_TRACE(stored);
        EXPECT_EQ(correctedStacker3(stored), inUse.contains(stored) ? inUse.at(stored) : 32);
    }
}

TEST(CorrectedPublishMode, ModesThatAreSetElsewhereAreShownAsNormal)
{
    for (const UINT stored : numbers) {
        SCOPED_TRACE(stored);
        EXPECT_EQ(correctedPublishMode(stored), stored == 3 || stored == 4 ? 0 : stored);
    }
}

TEST(Corrections, DoNotChangeCorrectValues)
{
    std::mt19937 random(21);
    std::uniform_int_distribution<UINT> number;
    for (int i = 0; i < 10000; ++i) {
        const UINT stored = i % 2 == 0 ? number(random) % 64 : number(random);
        ASSERT_EQ(correctedMedia(correctedMedia(stored)), correctedMedia(stored)) << stored;
        ASSERT_EQ(correctedStacker3(correctedStacker3(stored)), correctedStacker3(stored)) << stored;
        ASSERT_EQ(correctedPublishMode(correctedPublishMode(stored)), correctedPublishMode(stored)) << stored;
    }
}

TEST(CorrectedRetryCount, NineAtMost)
{
    for (const UINT stored : numbers) {
        SCOPED_TRACE(stored);
        EXPECT_EQ(correctedRetryCount(stored), stored <= 9 ? stored : 9);
    }
    EXPECT_EQ(correctedRetryCount(150000), 9u);
}

TEST(CorrectedUseDrive, AnUnknownValueSelectsNone)
{
    for (const UINT stored : numbers) {
        SCOPED_TRACE(stored);
        EXPECT_EQ(correctedUseDrive(stored), stored <= 2 ? stored : 0xFFFFFFFF);
    }
}

PUBLISHERINFO record(UINT mode, UINT stacker1, UINT stacker2, UINT stacker3)
{
    PUBLISHERINFO info;
    info.uiPublishMode = mode;
    info.uiStacker1DiscType = stacker1;
    info.uiStacker2DiscType = stacker2;
    info.uiStacker3DiscType = stacker3;
    return info;
}

TEST(CorrectSettings, EachValueIsCorrectedByItself)
{
    for (const ModelFamily family : {rt300, network, unknown}) {
        PUBLISHERINFO info = record(1, 2, 5, 16);
        correctSettings(family, info);
        EXPECT_EQ(info.uiPublishMode, 1u);
        EXPECT_EQ(info.uiStacker1DiscType, 6u);
        EXPECT_EQ(info.uiStacker2DiscType, 7u);
        EXPECT_EQ(info.uiStacker3DiscType, 0u);
        info = record(4, 12, 11, 33);
        correctSettings(family, info);
        EXPECT_EQ(info.uiPublishMode, 0u);
        EXPECT_EQ(info.uiStacker1DiscType, 1u);
        EXPECT_EQ(info.uiStacker2DiscType, 11u);
        EXPECT_EQ(info.uiStacker3DiscType, 32u);
    }
}

TEST(CorrectSettings, OneDriveHasNoBatchModeAndNoStacker3)
{
    for (const UINT stored : numbers) {
        SCOPED_TRACE(stored);
        PUBLISHERINFO info = record(stored, 6, 0, stored);
        correctSettings(rt30, info);
        EXPECT_EQ(info.uiPublishMode, stored == 1 || stored == 3 || stored == 4 ? 0 : stored);
        EXPECT_EQ(info.uiStacker3DiscType, 32u);
    }
}

TEST(CorrectSettings, TheOtherValuesOfTheRecordStay)
{
    PUBLISHERINFO info = record(3, 2, 2, 1);
    info.uiUseDrive = 77;
    info.uiRetryCount = info.uiRetryCountW = 150000;
    info.uiRetryCountR = 12;
    info.uiStacker4DiscType = 99;
    correctSettings(rt30, info);
    EXPECT_EQ(info.uiUseDrive, 77u);
    EXPECT_EQ(info.uiRetryCount, 150000u);
    EXPECT_EQ(info.uiRetryCountW, 150000u);
    EXPECT_EQ(info.uiRetryCountR, 12u);
    EXPECT_EQ(info.uiStacker4DiscType, 99u);
}

struct ShownCase
{
    const char* name;
    ModelFamily family;
    UINT mode;
    UINT stored[3];
    std::optional<UINT> shown[3];
    bool stacker2Enabled;
    std::optional<bool> stacker3Enabled;
    UINT inRecord[2]; ///< stackers 2 and 3
};

const ShownCase shownCases[] = {
    {"normal, stacker 3 in use", rt300, 0, {7, 8, 0}, {7, 0, 0}, false, true, {0, 0}},
    {"normal, stacker 3 not in use", rt300, 0, {7, 8, 32}, {7, 0, 32}, false, true, {0, 32}},
    {"normal, of a server", network, 0, {7, 8, 0}, {7, 0, 0}, false, true, {0, 0}},
    {"normal, one drive", rt30, 0, {7, 8, 32}, {7, 0, 32}, false, false, {0, 32}},
    {"normal, output in stacker 1", rt300, 0, {0, 0, 0}, {{}, 0, 0}, false, true, {0, 0}},
    {"batch", rt300, 1, {7, 8, 0}, {7, 7, 0}, false, false, {8, 0}},
    {"batch, stacker 3 not in use", rt300, 1, {7, 8, 32}, {7, 7, 0}, false, false, {8, 0}},
    {"batch, of a server", network, 1, {7, 8, 32}, {7, 7, 0}, false, false, {8, 0}},
    {"batch, output in stacker 1", rt300, 1, {0, 8, 0}, {{}, {}, 0}, false, false, {8, 0}},
    {"output, stacker 3 in use", rt300, 2, {7, 8, 0}, {7, 8, 0}, true, true, {8, 0}},
    {"output, stacker 3 not in use", rt300, 2, {7, 8, 32}, {7, 8, 32}, true, true, {8, 32}},
    {"output, of a server", network, 2, {7, 8, 32}, {7, 8, 32}, true, true, {8, 32}},
    {"output, one drive", rt30, 2, {7, 8, 32}, {7, 8, 32}, true, true, {8, 32}},
    {"output, no media", rt300, 2, {0, 0, 0}, {{}, {}, 0}, true, true, {0, 0}},
    {"an unknown mode", rt300, 5, {7, 8, 0}, {{}, {}, {}}, false, {}, {8, 0}},
    {"an unknown mode, one drive", rt30, 0xFFFFFFFF, {7, 8, 32}, {{}, {}, {}}, false, {}, {8, 32}},
    {"an unknown mode, of a server", network, 0xFFFFFFFF, {7, 8, 0}, {{}, {}, {}}, false, {}, {8, 0}},
};

TEST(SettleStackers, EveryModeAndModel)
{
    for (const ShownCase& row : shownCases) {
        SCOPED_TRACE(row.name);
        PUBLISHERINFO info = record(row.mode, row.stored[0], row.stored[1], row.stored[2]);
        const ShownStackers shown = settleStackers(row.family, info);
        EXPECT_EQ(shown.stacker1, row.shown[0]);
        EXPECT_EQ(shown.stacker2, row.shown[1]);
        EXPECT_EQ(shown.stacker3, row.shown[2]);
        EXPECT_EQ(shown.stacker2Enabled, row.stacker2Enabled);
        EXPECT_EQ(shown.stacker3Enabled, row.stacker3Enabled);
        EXPECT_EQ(info.uiPublishMode, row.mode);
        EXPECT_EQ(info.uiStacker1DiscType, row.stored[0]);
        EXPECT_EQ(info.uiStacker2DiscType, row.inRecord[0]);
        EXPECT_EQ(info.uiStacker3DiscType, row.inRecord[1]);
    }
}

TEST(SettleStackersDeathTest, AnUnknownModelStopsTheProcess)
{
    for (const UINT mode : {0u, 1u, 2u, 5u}) {
        PUBLISHERINFO info = record(mode, 1, 0, 32);
        EXPECT_DEATH(settleStackers(unknown, info), "Assertion .*unknown");
    }
}

} // namespace

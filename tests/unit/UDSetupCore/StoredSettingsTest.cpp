#include "StoredSettings.h"

#include "CorrectedSettings.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using enum ModelFamily;

struct SavingCase
{
    const char* name;
    ModelFamily family;
    UINT chosenMode;
    UINT chosen2;
    UINT chosen3;
    UINT mode;
    UINT stacker2;
    UINT stacker3;
    UINT stacker4;
};

constexpr SavingCase savings[] = {
    {"batch", rt300, 1, 6, 0, 1, 6, 0, 32},
    {"batch, stacker 3 not in use", rt300, 1, 8, 32, 1, 8, 0, 32},
    {"batch, no media", rt300, 1, 0, 0, 1, 0, 0, 32},
    {"output, stacker 3 in use", rt300, 2, 7, 0, 2, 7, 0, 32},
    {"output, stacker 3 not in use", rt300, 2, 7, 32, 2, 7, 32, 0},
    {"normal, stacker 3 in use", rt300, 0, 0, 0, 0, 0, 0, 32},
    {"normal, stacker 3 not in use", rt300, 0, 0, 32, 0, 0, 32, 0},
    {"normal, media in stacker 2", rt300, 0, 9, 32, 0, 0, 32, 0},
    {"any other mode", rt300, 3, 9, 0, 0, 0, 0, 32},
    {"any other mode, stacker 3 not in use", rt300, 0xFFFFFFFF, 9, 32, 0, 0, 32, 0},
    {"one drive, low volume", rt30, 2, 6, 32, 2, 6, 0, 32},
    {"one drive, low volume, stacker 3 in use", rt30, 2, 11, 0, 2, 11, 0, 32},
    {"one drive, normal", rt30, 0, 0, 32, 0, 0, 0, 32},
    {"one drive, normal, media in stacker 2", rt30, 0, 6, 32, 0, 0, 0, 32},
    {"one drive, batch", rt30, 1, 6, 0, 0, 0, 0, 32},
    {"one drive, any other mode", rt30, 6, 6, 0, 0, 0, 0, 32},
};

TEST(StoreChoices, TheStackersFollowFromTheMode)
{
    for (const SavingCase& row : savings) {
        SCOPED_TRACE(row.name);
        SettingChoices choices;
        choices.publishMode = row.chosenMode;
        choices.stacker1 = 10;
        choices.stacker2 = row.chosen2;
        choices.stacker3 = row.chosen3;
        PUBLISHERINFO info;
        info.uiPublishMode = info.uiStacker1DiscType = info.uiStacker2DiscType = 99;
        info.uiStacker3DiscType = info.uiStacker4DiscType = 99;
        storeChoices(choices, row.family, info);
        EXPECT_EQ(info.uiPublishMode, row.mode);
        EXPECT_EQ(info.uiStacker1DiscType, 10u);
        EXPECT_EQ(info.uiStacker2DiscType, row.stacker2);
        EXPECT_EQ(info.uiStacker3DiscType, row.stacker3);
        EXPECT_EQ(info.uiStacker4DiscType, row.stacker4);
    }
}

TEST(StoreChoices, TheDriveIsStoredOnlyForModelsWithTwo)
{
    for (const UINT drive : {0u, 1u, 2u, 0xFFFFFFFFu}) {
        for (const UINT mode : {0u, 1u, 2u, 3u}) {
            SettingChoices choices;
            choices.publishMode = mode;
            choices.useDrive = drive;
            PUBLISHERINFO info;
            info.uiUseDrive = 77;
            storeChoices(choices, rt300, info);
            EXPECT_EQ(info.uiUseDrive, drive);
            info.uiUseDrive = 77;
            storeChoices(choices, rt30, info);
            EXPECT_EQ(info.uiUseDrive, 77u);
        }
    }
}

TEST(StoreChoices, RetriesAndErrorMarkAreStoredForEveryModel)
{
    for (const ModelFamily family : {rt300, rt30}) {
        for (const bool errorMark : {false, true}) {
            SettingChoices choices;
            choices.retryCount = 7;
            choices.errorMark = errorMark;
            PUBLISHERINFO info;
            info.bAddErrorMark = !errorMark;
            info.uiRetryCountR = 5;
            storeChoices(choices, family, info);
            EXPECT_EQ(info.uiRetryCount, 7u);
            EXPECT_EQ(info.uiRetryCountW, 7u);
            EXPECT_EQ(info.uiRetryCountR, 5u) << "the dialog does not change the read retries";
            EXPECT_EQ(info.bAddErrorMark, errorMark);
        }
    }
}

TEST(StoreChoices, EverythingElseStays)
{
    for (const ModelFamily family : {rt300, rt30}) {
        PUBLISHERINFO info;
        info.strGUID = "{g}";
        info.strPublisherRegistID = "r";
        info.strPublisherName = "n";
        info.strPrinterName = "p";
        info.strHostName = "h";
        info.uiPublisherType = 0;
        info.uiAddErrorMark = 9;
        info.uiPublisherDevType = 0x30000009;
        info.bContinuePublish = false;
        info.uiNetPublisherType = 2;
        storeChoices(SettingChoices(), family, info);
        EXPECT_EQ(info.strGUID, "{g}");
        EXPECT_EQ(info.strPublisherRegistID, "r");
        EXPECT_EQ(info.strPublisherName, "n");
        EXPECT_EQ(info.strPrinterName, "p");
        EXPECT_EQ(info.strHostName, "h");
        EXPECT_EQ(info.uiPublisherType, 0u);
        EXPECT_EQ(info.uiAddErrorMark, 9u);
        EXPECT_EQ(info.uiPublisherDevType, 0x30000009u);
        EXPECT_FALSE(info.bContinuePublish);
        EXPECT_EQ(info.uiNetPublisherType, 2u);
    }
}

TEST(StoreChoices, EveryChoiceGivesAValidRecord)
{
    std::mt19937 random(22);
    std::uniform_int_distribution<UINT> number;
    for (int i = 0; i < 10000; ++i) {
        const ModelFamily family = number(random) % 2 == 0 ? rt300 : rt30;
        SettingChoices choices;
        choices.publishMode = number(random) % 8;
        choices.stacker1 = correctedMedia(number(random) % 64);
        choices.stacker2 = correctedMedia(number(random) % 64);
        choices.stacker3 = correctedStacker3(number(random) % 64);
        PUBLISHERINFO info;
        storeChoices(choices, family, info);
        ASSERT_LE(info.uiPublishMode, 2u);
        ASSERT_FALSE(family == rt30 && info.uiPublishMode == 1);
        // Exactly one of stackers 3 and 4 receives the finished discs.
        ASSERT_EQ(info.uiStacker3DiscType + info.uiStacker4DiscType, 32u);
        ASSERT_TRUE(info.uiStacker3DiscType == 0 || info.uiStacker4DiscType == 0);
        if (info.uiPublishMode == 0) {
            ASSERT_EQ(info.uiStacker2DiscType, 0u);
        }
    }
}

TEST(StoreChoicesDeathTest, OnlyLocalPublishersAreStored)
{
    for (const ModelFamily family : {network, unknown}) {
        PUBLISHERINFO info;
        EXPECT_DEATH(storeChoices(SettingChoices(), family, info), "Assertion");
    }
}

} // namespace

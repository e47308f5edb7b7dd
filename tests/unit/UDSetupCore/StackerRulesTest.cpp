#include "StackerRules.h"

#include "PubMgrConst.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

using enum ModelFamily;

TEST(ModelFamily, EveryModelHasItsFamily)
{
    constexpr struct
    {
        UINT modelType;
        ModelFamily family;
    } models[] = {
        {0x20000009, rt300},   {0x30000009, rt300},   {8, rt30},
        {0x30000008, rt30},    {1, network},          {0, unknown},
        {2, unknown},          {3, unknown},          {4, unknown},
        {0x10000005, unknown}, {6, unknown},          {0x10000007, unknown},
        {7, unknown},          {0x20000007, unknown}, {9, unknown},
        {0x10000009, unknown}, {5, unknown},          {0x20000008, unknown},
        {0x80000000, unknown}, {0xFFFFFFFF, unknown},
    };
    for (const auto& model : models) {
        SCOPED_TRACE(model.modelType);
        EXPECT_EQ(modelFamily(model.modelType), model.family);
    }
}

TEST(ModelFamily, NoOtherNumberIsAModel)
{
    std::mt19937 random(20);
    std::uniform_int_distribution<UINT> number;
    for (int i = 0; i < 10000; ++i) {
        const UINT modelType = number(random);
        const bool model = modelType == 0x20000009 || modelType == 0x30000009 || modelType == 8 ||
                           modelType == 0x30000008 || modelType == 1;
        ASSERT_EQ(modelFamily(modelType) != unknown, model) << modelType;
    }
}

TEST(BdXl, DependsOnTheDriveClassOrTheServer)
{
    constexpr struct
    {
        UINT modelType;
        UINT netPublisherType;
        bool writes;
    } models[] = {
        {0x30000009, 0, true}, {0x30000008, 0, true}, {0x20000009, 0, false}, {0x10000009, 0, false},
        {8, 0, false},         {1, 0, false},         {1, 1, false},          {1, 2, false},
        {1, 3, true},          {1, 4, false},         {1, 0xFFFFFFFF, false}, {0, 0, false},
        {0x20000009, 3, true}, {8, 3, true},          {0, 3, true},           {0x30000009, 2, true},
        {5, 0, false},         {5, 3, true},          {5, 2, false},
    };
    for (const auto& model : models) {
        SCOPED_TRACE(std::to_string(model.modelType) + ", " + std::to_string(model.netPublisherType));
        EXPECT_EQ(writesBdXl(model.modelType, model.netPublisherType), model.writes);
    }
}

TEST(ModelSetUpAs, TheDvdModelIsSetUpAsTheBluRayModelOfItsFamily)
{
    EXPECT_EQ(modelSetUpAs(0x10000009), 0x20000009u);
    for (const UINT modelType : {0u, 1u, 2u, 8u, 0x10000007u, 0x20000009u, 0x30000008u, 0x30000009u, 9u}) {
        EXPECT_EQ(modelSetUpAs(modelType), modelType);
    }
}

TEST(Drive2Version, IsHiddenForOneModelOnly)
{
    EXPECT_FALSE(showsDrive2Version(8));
    for (const UINT modelType : {0u, 1u, 2u, 0x20000009u, 0x30000008u, 0x30000009u, 9u}) {
        EXPECT_TRUE(showsDrive2Version(modelType)) << modelType;
    }
}

TEST(StackerPicture, EveryModeHasItsPicture)
{
    constexpr bool use = true;
    constexpr bool doNotUse = false;
    constexpr struct
    {
        UINT mode;
        ModelFamily family;
        bool stacker3;
        const char* picture;
    } pictures[] = {
        {0, rt300, use, ":/res/A11-9.png"},   {0, rt300, doNotUse, ":/res/A11-1.png"},
        {0, network, use, ":/res/A11-9.png"}, {0, network, doNotUse, ":/res/A11-1.png"},
        {0, rt30, use, ":/res/A11-7.png"},    {0, rt30, doNotUse, ":/res/A11-7.png"},
        {1, rt300, use, ":/res/A11-3.png"},   {1, rt300, doNotUse, ":/res/A11-3.png"},
        {1, network, use, ":/res/A11-3.png"}, {1, network, doNotUse, ":/res/A11-3.png"},
        {1, rt30, use, ":/res/A11-3.png"},    {1, rt30, doNotUse, ":/res/A11-3.png"},
        {2, rt300, use, ":/res/A11-5.png"},   {2, rt300, doNotUse, ":/res/A11-2.png"},
        {2, network, use, ":/res/A11-5.png"}, {2, network, doNotUse, ":/res/A11-2.png"},
        {2, rt30, use, ":/res/A11-6.png"},    {2, rt30, doNotUse, ":/res/A11-6.png"},
    };
    for (const auto& row : pictures) {
        EXPECT_STREQ(stackerPicture(row.mode, row.family, row.stacker3), row.picture);
    }
}

TEST(StackerPicture, AModeThatCannotBeChosenHasNoPicture)
{
    for (const UINT mode : {3u, 4u, 5u, 6u, 7u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        for (const ModelFamily family : {rt300, rt30, network, unknown}) {
            EXPECT_EQ(stackerPicture(mode, family, true), nullptr);
            EXPECT_EQ(stackerPicture(mode, family, false), nullptr);
        }
    }
}

struct DemandCase
{
    UINT mode;
    ModelFamily family;
    bool stacker3Changed;
    Stacker2Rule stacker2;
    std::optional<UINT> stacker3;
    std::optional<bool> stacker3Enabled;
};

constexpr UINT inUse = 0;
constexpr UINT notUsed = 32;

const DemandCase demands[] = {
    {0, rt300, false, Stacker2Rule::output, {}, true},
    {0, rt300, true, Stacker2Rule::output, {}, true},
    {0, network, false, Stacker2Rule::output, {}, true},
    {0, network, true, Stacker2Rule::output, {}, true},
    {0, rt30, false, Stacker2Rule::output, notUsed, false},
    {0, rt30, true, Stacker2Rule::output, notUsed, false},
    {1, rt300, false, Stacker2Rule::followsStacker1, inUse, false},
    {1, rt300, true, Stacker2Rule::followsStacker1, inUse, false},
    {1, network, false, Stacker2Rule::followsStacker1, inUse, false},
    {1, network, true, Stacker2Rule::followsStacker1, inUse, false},
    {1, rt30, false, Stacker2Rule::followsStacker1, inUse, false},
    {1, rt30, true, Stacker2Rule::followsStacker1, inUse, false},
    {1, unknown, false, Stacker2Rule::followsStacker1, inUse, false},
    {2, rt300, false, Stacker2Rule::freeMedia, notUsed, true},
    {2, rt300, true, Stacker2Rule::freeMedia, {}, {}},
    {2, rt30, false, Stacker2Rule::freeMedia, notUsed, true},
    {2, rt30, true, Stacker2Rule::freeMedia, {}, {}},
    {2, network, false, Stacker2Rule::freeMedia, notUsed, true},
};

TEST(StackerDemand, EveryModeAndModelHasItsDemand)
{
    for (const DemandCase& row : demands) {
        SCOPED_TRACE("mode " + std::to_string(row.mode) + ", family " +
                     std::to_string(static_cast<int>(row.family)) + (row.stacker3Changed ? ", 3" : ""));
        const StackerDemand demand = stackerDemand(row.mode, row.family, row.stacker3Changed);
        EXPECT_EQ(demand.stacker2, row.stacker2);
        EXPECT_EQ(demand.stacker3, row.stacker3);
        EXPECT_EQ(demand.stacker3Enabled, row.stacker3Enabled);
    }
}

TEST(StackerDemandDeathTest, AnUnknownModelStopsTheProcess)
{
    for (const UINT mode : {0u, 2u}) {
        for (const bool stacker3Changed : {false, true}) {
            EXPECT_DEATH(stackerDemand(mode, unknown, stacker3Changed), "Assertion .*unknown");
        }
    }
}

TEST(StackerDemandDeathTest, ANetworkPublishersStacker3DoesNotChangeInOutputMode)
{
    EXPECT_DEATH(stackerDemand(2, network, true), "Assertion .*network");
}

} // namespace

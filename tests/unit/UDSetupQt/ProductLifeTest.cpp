// The wear functions of propertyDialogEx.
#include "propertyDialog.h"

#include <gtest/gtest.h>

namespace {

constexpr UINT notKnown = 0xFFFFFFFF;

TEST(DialogProductLife, IsTheUsedShareTruncatedToTwoDecimals)
{
    double life = -1;
    EXPECT_TRUE(propertyDialogEx::CalcProductLife(1, 3, &life));
    EXPECT_DOUBLE_EQ(life, 33.33);
    EXPECT_TRUE(propertyDialogEx::CalcProductLife(9000, 8000, &life));
    EXPECT_DOUBLE_EQ(life, 100.0);
}

TEST(DialogProductLife, FailsAndWritesNothingWithoutACountOrALimit)
{
    double life = -1;
    EXPECT_FALSE(propertyDialogEx::CalcProductLife(notKnown, 8000, &life));
    EXPECT_FALSE(propertyDialogEx::CalcProductLife(1, 0, &life));
    EXPECT_EQ(life, -1);
}

TEST(DialogDriveLife, IsThatOfTheMostWornPart)
{
    PUBMAINTINFODRIVE drive;
    double life = -1;
    EXPECT_FALSE(propertyDialogEx::CalcDriveLifeValue(drive, &life));
    EXPECT_EQ(life, 0.0);
    drive.uiTrayCount = 10;
    drive.uiTrayLife = 100;
    drive.uiWriteBDCount = 90;
    drive.uiWriteBDLife = 100;
    EXPECT_TRUE(propertyDialogEx::CalcDriveLifeValue(drive, &life));
    EXPECT_DOUBLE_EQ(life, 90.0);
}

TEST(DialogWearDeathTest, ANullOutputStopsTheProcess)
{
    EXPECT_DEATH(propertyDialogEx::CalcProductLife(1, 2, nullptr), "Assertion");
    EXPECT_DEATH(propertyDialogEx::CalcDriveLifeValue(PUBMAINTINFODRIVE(), nullptr), "Assertion");
}

} // namespace

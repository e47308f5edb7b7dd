#include "WearFigures.h"

#include <gtest/gtest.h>

#include <QLocale>

#include <cmath>
#include <random>
#include <string>

namespace {

constexpr UINT notKnown = 0xFFFFFFFF;

TEST(ProductLife, IsTheUsedShareTruncatedToTwoDecimals)
{
    constexpr struct
    {
        UINT present;
        UINT limit;
        double life;
    } lives[] = {
        {0, 1, 0.0},
        {0, 8000, 0.0},
        {1, 8000, 0.01},
        {1, 3, 33.33},
        {2, 3, 66.66},
        {1, 7, 14.28},
        {9999, 10000, 99.99},
        {99999, 100000, 99.99},
        {1, 1, 100.0},
        {2, 1, 100.0},
        {8001, 8000, 100.0},
        {0xFFFFFFFE, 1, 100.0},
        {0xFFFFFFFE, 0xFFFFFFFE, 100.0},
        {0x80000000, 0xFFFFFFFE, 50.0},
        {1, 0xFFFFFFFE, 0.0},
    };
    for (const auto& row : lives) {
        SCOPED_TRACE(std::to_string(row.present) + " of " + std::to_string(row.limit));
        double life = -1;
        EXPECT_TRUE(calcProductLife(row.present, row.limit, &life));
        EXPECT_DOUBLE_EQ(life, row.life);
    }
}

TEST(ProductLife, FailsAndWritesNothingWithoutACountOrALimit)
{
    constexpr struct
    {
        UINT present;
        UINT limit;
    } lives[] = {
        {notKnown, 8000}, {0, notKnown}, {1, notKnown}, {notKnown, notKnown},
        {0, 0},           {1, 0},        {notKnown, 0}, {0xFFFFFFFE, notKnown},
    };
    for (const auto& row : lives) {
        SCOPED_TRACE(std::to_string(row.present) + " of " + std::to_string(row.limit));
        double life = -1;
        EXPECT_FALSE(calcProductLife(row.present, row.limit, &life));
        EXPECT_EQ(life, -1);
    }
}

TEST(ProductLife, IsBetween0And100)
{
    std::mt19937 random(23);
    std::uniform_int_distribution<UINT> number;
    for (int i = 0; i < 100000; ++i) {
        const UINT present = number(random);
        const UINT limit = i % 2 == 0 ? number(random) : number(random) % 1000;
        double life = -1;
        if (calcProductLife(present, limit, &life)) {
            ASSERT_GE(life, 0.0) << present << " of " << limit;
            ASSERT_LE(life, 100.0) << present << " of " << limit;
        } else {
            ASSERT_EQ(life, -1) << present << " of " << limit;
        }
    }
}

struct Part
{
    UINT PUBMAINTINFODRIVE::* count;
    UINT PUBMAINTINFODRIVE::* life;
};

constexpr Part parts[] = {
    {&PUBMAINTINFODRIVE::uiTrayCount, &PUBMAINTINFODRIVE::uiTrayLife},
    {&PUBMAINTINFODRIVE::uiWriteCDCount, &PUBMAINTINFODRIVE::uiWriteCDLife},
    {&PUBMAINTINFODRIVE::uiWriteDVDCount, &PUBMAINTINFODRIVE::uiWriteDVDLife},
    {&PUBMAINTINFODRIVE::uiWriteBDCount, &PUBMAINTINFODRIVE::uiWriteBDLife},
    {&PUBMAINTINFODRIVE::uiDriveWriteTimeTotal, &PUBMAINTINFODRIVE::uiDriveWriteTimeTotalLife},
    {&PUBMAINTINFODRIVE::uiDriveReadTimeTotal, &PUBMAINTINFODRIVE::uiDriveReadTimeTotalLife},
};

TEST(DriveLife, UnknownCountsFailAndWriteZero)
{
    double life = -1;
    EXPECT_FALSE(calcDriveLifeValue(PUBMAINTINFODRIVE(), &life));
    EXPECT_EQ(life, 0.0);
    EXPECT_EQ(driveLifeText(PUBMAINTINFODRIVE()), "-");
}

TEST(DriveLife, OneKnownPartIsEnough)
{
    for (const Part& part : parts) {
        PUBMAINTINFODRIVE drive;
        drive.*part.count = 1;
        drive.*part.life = 3;
        double life = -1;
        EXPECT_TRUE(calcDriveLifeValue(drive, &life));
        EXPECT_DOUBLE_EQ(life, 33.33);
        EXPECT_EQ(driveLifeText(drive), "33");
    }
}

TEST(DriveLife, TheMostWornPartDecides)
{
    for (const Part& most : parts) {
        PUBMAINTINFODRIVE drive;
        for (const Part& part : parts) {
            drive.*part.count = 10;
            drive.*part.life = 100;
        }
        drive.*most.count = 90;
        double life = -1;
        EXPECT_TRUE(calcDriveLifeValue(drive, &life));
        EXPECT_DOUBLE_EQ(life, 90.0);
        EXPECT_EQ(driveLifeText(drive), "90");
    }
}

TEST(DriveLife, APartWithALifeOfZeroIsUnknown)
{
    PUBMAINTINFODRIVE drive;
    for (const Part& part : parts) {
        drive.*part.count = 10;
        drive.*part.life = 0;
    }
    EXPECT_EQ(driveLifeText(drive), "-");
}

TEST(DriveLife, IsTruncatedToWholePercentAndAtMost100)
{
    constexpr struct
    {
        UINT count;
        UINT life;
        const char* text;
    } lives[] = {
        {0, 8000, "0"},        {1, 8000, "0"},         {9999, 10000, "99"}, {10000, 10000, "100"},
        {10001, 10000, "100"}, {0xFFFFFFFE, 1, "100"}, {1, 7, "14"},        {99999, 100000, "99"},
    };
    for (const auto& row : lives) {
        PUBMAINTINFODRIVE drive;
        drive.uiTrayCount = row.count;
        drive.uiTrayLife = row.life;
        EXPECT_EQ(driveLifeText(drive), row.text);
    }
}

TEST(DriveLife, AnyCountsGiveAShortText)
{
    std::mt19937 random(24);
    std::uniform_int_distribution<UINT> number;
    for (int i = 0; i < 10000; ++i) {
        PUBMAINTINFODRIVE drive;
        for (const Part& part : parts) {
            drive.*part.count = number(random) % 4 == 0 ? notKnown : number(random);
            drive.*part.life = number(random) % 4 == 0 ? number(random) % 2 : number(random);
        }
        const QString text = driveLifeText(drive);
        if (text != "-") {
            bool isNumber = false;
            const int percent = text.toInt(&isNumber);
            ASSERT_TRUE(isNumber && percent >= 0 && percent <= 100) << text.toStdString();
        }
    }
}

TEST(CountText, IsTheNumberUnlessUnknown)
{
    EXPECT_EQ(countText(0), "0");
    EXPECT_EQ(countText(1234567), "1234567");
    EXPECT_EQ(countText(0x7FFFFFFF), "2147483647");
    EXPECT_EQ(countText(0x80000000), "2147483648");
    EXPECT_EQ(countText(0xFFFFFFFE), "4294967294");
    EXPECT_EQ(countText(0xFFFFFFFF), "-");
}

TEST(MainteBoxText, IsTheFreeSpaceWithTwoDecimals)
{
    constexpr struct
    {
        UINT count;
        UINT life;
        const char* text;
    } boxes[] = {
        {0, 100, "100.00"},
        {1, 3, "66.67"},
        {1, 100000, "100.00"},
        {1, 10000, "99.99"},
        {9999, 10000, "0.01"},
        {100, 100, "0.00"},
        {10001, 10000, "-"},
        {100001, 100000, "0.00"}, // the share is truncated to two decimals before the subtraction
        {101, 100, "-"},
        {200, 100, "-"},
        {1, 0, "-"},
        {0xFFFFFFFE, 0, "-"},
        {0xFFFFFFFF, 0xFFFFFFFF, "0.00"},
        {0xFFFFFFFF, 100, "-"},
        {100, 0xFFFFFFFF, "100.00"},
    };
    for (const auto& row : boxes) {
        SCOPED_TRACE(std::to_string(row.count) + " of " + std::to_string(row.life));
        EXPECT_EQ(mainteBoxText(row.count, row.life), row.text);
    }
}

TEST(MainteBoxText, ZeroOfZeroIsNotANumber)
{
    EXPECT_EQ(mainteBoxText(0, 0), QString::number(std::nan(""), 'f', 2));
    EXPECT_EQ(mainteBoxText(0, 0), "nan");
}

TEST(WearFigures, HaveADecimalPointInEveryLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(mainteBoxText(1, 3), "66.67");
    EXPECT_EQ(countText(1234567), "1234567");
    QLocale::setDefault(before);
}

TEST(WearFiguresDeathTest, ANullOutputStopsTheProcess)
{
    EXPECT_DEATH(calcProductLife(1, 2, nullptr), "Assertion");
    EXPECT_DEATH(calcDriveLifeValue(PUBMAINTINFODRIVE(), nullptr), "Assertion");
}

} // namespace

#include "NaturalOrder.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <algorithm>
#include <string>

namespace {

TEST(NaturalOrder, OneNameSortsBeforeTheOther)
{
    constexpr struct
    {
        const char* first;
        const char* second;
    } pairs[] = {
        {"", "A"},
        {"A", "AB"},
        {"A", "A1"},
        {"A9", "A10"},
        {"A9", "A010"},
        {"A10", "A010"}, // the longest run of digits sorts last
        {"12", "007"},
        {"0xz", "00"}, // the longer run sorts last although both have the value 0
        {"2", "10"},
        {"19", "20"},
        {"A1B", "A1C"},
        {"A1B9", "A1B10"},
        {"A12x", "A123"},
        {"A1", "AB"},
        {"B", "a"}, // case-sensitive, by code unit
        {"Z9", "a1"},
        {"A", "a"},
        {"A 2", "A 10"},
        {"zz", "\u00e4"},
        {"99999999999A", "88888888888B"}, // runs too long for an int are equal
        {"9999999999", "1000000000"},     // too long for an int: 0
        {"x2147483646", "x2147483647"},
    };
    for (const auto& pair : pairs) {
        SCOPED_TRACE(std::string(pair.first) + " before " + pair.second);
        const QString first = QString::fromUtf8(pair.first);
        const QString second = QString::fromUtf8(pair.second);
        EXPECT_TRUE(naturalLess(first, second));
        EXPECT_FALSE(naturalLess(second, first));
    }
}

TEST(NaturalOrder, OfEqualNamesNeitherSortsFirst)
{
    constexpr struct
    {
        const char* a;
        const char* b;
    } pairs[] = {
        {"", ""},
        {"A", "A"},
        {"A10", "A10"},
        {"007", "007"},
        {"99999999999", "88888888888"}, // too long for an int: 0 on both sides
        {"99999999999x1", "88888888888x1"},
    };
    for (const auto& pair : pairs) {
        EXPECT_FALSE(naturalLess(pair.a, pair.b)) << pair.a << ' ' << pair.b;
        EXPECT_FALSE(naturalLess(pair.b, pair.a)) << pair.a << ' ' << pair.b;
    }
}

TEST(NaturalOrder, DigitsOfOtherScriptsAreComparedByTheirRunLength)
{
    const QString two(QChar(0x0662)); // ARABIC-INDIC DIGIT TWO
    EXPECT_TRUE(naturalLess(two, two + two));
    EXPECT_FALSE(naturalLess(two + two, two));
    EXPECT_FALSE(naturalLess(two, QChar(0x0663))) << "no digits of base 10: both have the value 0";
    EXPECT_TRUE(naturalLess(two, "1"));
}

TEST(NaturalOrder, SortsAListOfNames)
{
    QStringList names = {"A010", "b", "A10", "A9", "A", "B", "007", "12"};
    std::sort(names.begin(), names.end(), naturalLess);
    EXPECT_EQ(names, (QStringList{"12", "007", "A", "A9", "A10", "A010", "B", "b"}));
}

} // namespace

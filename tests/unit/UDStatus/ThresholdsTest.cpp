#include "Thresholds.h"

#include <gtest/gtest.h>

namespace {

struct RangeCase
{
    const char* text;
    double value;
    bool alerts;
};

TEST(Thresholds, RangesAlertOutside)
{
    const RangeCase table[] = {
        {"10", -1, true},     {"10", 0, false},     {"10", 10, false},   {"10", 11, true},
        {"10:", 9, true},     {"10:", 10, false},   {"10:", 1e9, false}, {"~:10", -1e9, false},
        {"~:10", 10, false},  {"~:10", 10.5, true}, {":10", -1, true},   {":10", 10, false},
        {"10:20", 9.9, true}, {"10:20", 15, false}, {"10:20", 21, true}, {"2.5:", 2.4, true},
        {"-5:5", -5, false},
    };
    for (const auto& [text, value, alerts] : table) {
        const auto range = Threshold::parse(text);
        ASSERT_TRUE(range) << text;
        EXPECT_EQ(range->alerts(value), alerts) << text << " of " << value;
        EXPECT_EQ(range->text, text);
    }
}

TEST(Thresholds, AnAtSignAlertsInside)
{
    const auto range = Threshold::parse("@10:20");
    ASSERT_TRUE(range);
    EXPECT_FALSE(range->alerts(9));
    EXPECT_TRUE(range->alerts(10));
    EXPECT_TRUE(range->alerts(20));
    EXPECT_FALSE(range->alerts(21));
}

TEST(Thresholds, OtherTextsAreNoRanges)
{
    for (const char* text : {"", ":", "@", "@:", "a", "10:a", "a:10", "20:10", "~", "1:2:3", "1e3", "0x10",
                             " 10", "10 ", "nan", "inf", "~:~", "1,5"}) {
        EXPECT_FALSE(Threshold::parse(text)) << text;
    }
}

} // namespace

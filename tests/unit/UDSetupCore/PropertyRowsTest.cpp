#include "PropertyRows.h"

#include <gtest/gtest.h>

namespace {

TEST(PropertyRows, EveryFamilyHasItsRows)
{
    constexpr struct
    {
        ModelFamily family;
        bool stacker3;
        bool batchMode;
        bool secondDrive;
        bool discAndBoxFigures;
        bool serverVersions;
    } table[] = {
        {ModelFamily::rt300, true, true, true, true, false},
        {ModelFamily::rt30, false, false, false, false, false},
        {ModelFamily::network, true, true, true, false, true},
        {ModelFamily::unknown, true, true, true, true, false},
    };
    for (const auto& row : table) {
        SCOPED_TRACE(static_cast<int>(row.family));
        const PropertyRows rows = propertyRows(row.family);
        EXPECT_EQ(rows.stacker3, row.stacker3);
        EXPECT_EQ(rows.batchMode, row.batchMode);
        EXPECT_EQ(rows.secondDrive, row.secondDrive);
        EXPECT_EQ(rows.discAndBoxFigures, row.discAndBoxFigures);
        EXPECT_EQ(rows.serverVersions, row.serverVersions);
    }
}

} // namespace

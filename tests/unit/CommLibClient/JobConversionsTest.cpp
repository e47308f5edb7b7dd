#include "NW_Com_Lib_internal.h"

#include <gtest/gtest.h>

namespace {

struct Row
{
    DWORD value;
    int result;
};

} // namespace

TEST(JobConversions, StatesUpToFinishedAreUnchanged)
{
    for (DWORD state = 0; state <= 8; ++state) {
        EXPECT_EQ(ConvertJobStatus(state), static_cast<int>(state));
    }
    EXPECT_EQ(ConvertJobStatus(9), 10); // cancelled
    for (const DWORD beyond : {10U, 11U, 13U, 128U, 255U, 0xFFFFFFFFU}) {
        EXPECT_EQ(ConvertJobStatus(beyond), 13) << beyond;
    }
}

TEST(JobConversions, FactorsUpTo51AreUnchanged)
{
    for (DWORD factor = 0; factor < 52; ++factor) {
        EXPECT_EQ(ConvertJobStatusFactor(factor), static_cast<int>(factor));
    }
    // Factors from 52 on have names, but still become 13, the stacker setting.
    for (const DWORD beyond : {52U, 53U, 54U, 55U, 56U, 57U, 204U, 205U, 255U, 0xFFFFFFFFU}) {
        EXPECT_EQ(ConvertJobStatusFactor(beyond), 13) << beyond;
    }
}

TEST(JobConversions, PrintModesBelowFourKeepTheJobType)
{
    for (DWORD mode = 0; mode < 4; ++mode) {
        for (DWORD type = 0; type <= 2; ++type) {
            EXPECT_EQ(ConvertJobType(type, mode), static_cast<int>(type));
        }
    }
}

TEST(JobConversions, OtherPrintModesAreMaintenance)
{
    // Cleaning, nozzle check, gap adjustment twice, print position twice.
    const Row rows[] = {{4, 4}, {5, 3}, {6, 5}, {7, 5}, {8, 6}, {9, 6}};
    for (const Row& row : rows) {
        for (DWORD type = 0; type <= 2; ++type) {
            EXPECT_EQ(ConvertJobType(type, row.value), row.result) << row.value;
        }
    }
    for (const DWORD beyond : {10U, 11U, 255U, 0xFFFFFFFFU}) {
        EXPECT_EQ(ConvertJobType(0, beyond), -1) << beyond;
    }
}

TEST(JobConversions, JobTypesBeyondTheTableBecome13)
{
    for (const DWORD type : {3U, 4U, 13U, 255U, 0xFFFFFFFFU}) {
        EXPECT_EQ(ConvertJobType(type, 0), 13) << type;
        EXPECT_EQ(ConvertJobType(type, 4), 13) << type;
        EXPECT_EQ(ConvertJobType(type, 10), 13) << type; // the type is checked first
    }
}

TEST(JobConversions, LoadStackers)
{
    const Row rows[] = {{0xFFFF, 0}, {0, 3}, {1, 1}, {2, 2}, {3, -1}, {4, -1}, {255, -1}, {0xFFFE, -1}};
    for (const Row& row : rows) {
        EXPECT_EQ(ConvertLoadStacker(static_cast<WORD>(row.value)), row.result) << row.value;
    }
}

TEST(JobConversions, EjectStackers)
{
    const Row rows[] = {{0xFFFF, 0}, {0, 6},  {1, 1},    {2, 2},      {3, 4},
                        {4, 8},      {5, -1}, {255, -1}, {0xFFFE, -1}};
    for (const Row& row : rows) {
        EXPECT_EQ(ConvertEjectStacker(static_cast<WORD>(row.value)), row.result) << row.value;
    }
}

TEST(JobConversions, PublishModes)
{
    for (DWORD mode = 0; mode <= 4; ++mode) {
        EXPECT_EQ(ConvertPublishMode(mode), static_cast<int>(mode));
    }
    for (const DWORD beyond : {5U, 6U, 255U, 0xFFFFFFFFU}) {
        EXPECT_EQ(ConvertPublishMode(beyond), -1) << beyond;
    }
}

TEST(JobConversions, AListHasAMaximumLength)
{
    EXPECT_EQ(dwJobCountMaxCost[NCL_JST_PROCESS_JOB], 1000U);
    EXPECT_EQ(dwJobCountMaxCost[NCL_JST_FINISH_JOB], 50U);
    EXPECT_EQ(dwJobCountMaxCost[NCL_JST_ALL_JOB], 1000U);
    EXPECT_EQ(dwJobCountMaxCost[NCL_JST_PROCESS_JOB_EX], 1000U);
}

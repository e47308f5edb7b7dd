// The public constants of jobs, and the layout of their records.
#include "NW_Com_Lib_internal.h"

#include <cstddef>

#include <gtest/gtest.h>

namespace {

struct ConstantRow
{
    DWORD name;
    DWORD value;
};

void ExpectAll(const std::vector<ConstantRow>& rows)
{
    for (const ConstantRow& row : rows) {
        EXPECT_EQ(row.name, row.value);
    }
}

} // namespace

TEST(JobConstants, States)
{
    ExpectAll({{NCL_JOB_STATUS_WAITING, 0},
               {NCL_JOB_STATUS_RUNNING, 1},
               {NCL_JOB_STATUS_CANCEL_PENDING, 2},
               {NCL_JOB_STATUS_STOP_PENDING, 3},
               {NCL_JOB_STATUS_STOPPED, 4},
               {NCL_JOB_STATUS_PAUSE_PENDING, 5},
               {NCL_JOB_STATUS_PAUSED, 6},
               {NCL_JOB_STATUS_ERROR, 7},
               {NCL_JOB_STATUS_FINISHED, 8},
               {NCL_JOB_STATUS_FINISHED_WARNING, 9},
               {NCL_JOB_STATUS_CANCELLED, 10}});
}

TEST(JobConstants, TypesStackersAndLists)
{
    ExpectAll({{NCL_JOB_TYPE_WRITE_PRN, 0},
               {NCL_JOB_TYPE_WRITE, 1},
               {NCL_JOB_TYPE_PRN, 2},
               {NCL_JOB_TYPE_NOZZLE_CHECK, 3},
               {NCL_JOB_TYPE_CLEANING, 4},
               {NCL_JOB_TYPE_GAP_ADJUSTMENT, 5},
               {NCL_JOB_TYPE_PRN_POSITION_CORRECTION, 6},
               {NCL_STACKER_NOSETTING, 0},
               {NCL_STACKER1, 1},
               {NCL_STACKER2, 2},
               {NCL_STACKER3, 4},
               {NCL_STACKER4, 8},
               {NCL_JNT_PROCESS_JOB, 0},
               {NCL_JNT_SENDING_JOB, 1},
               {NCL_JNT_FINISH_JOB, 2},
               {NCL_JST_PROCESS_JOB, 0},
               {NCL_JST_FINISH_JOB, 1},
               {NCL_JST_ALL_JOB, 2},
               {NCL_JST_PROCESS_JOB_EX, 3}});
}

TEST(JobConstants, Factors)
{
    ExpectAll({
        {NCL_JOB_STATUS_FACTOR_NONE, 0},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_PICK, 1},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_DROP, 2},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_RELEASE, 3},
        {NCL_JOB_STATUS_FACTOR_ERR_DRV_TRAY, 4},
        {NCL_JOB_STATUS_FACTOR_ERR_PRT_TRAY, 5},
        {NCL_JOB_STATUS_FACTOR_ERR_ARM_MOVE, 6},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_EMPTY, 7},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_FULL, 8},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_COVER_OPEN, 9},
        {NCL_JOB_STATUS_FACTOR_ERR_INK_COVER_OPEN, 10},
        {NCL_JOB_STATUS_FACTOR_ERR_OFFLINE, 11},
        {NCL_JOB_STATUS_FACTOR_ERR_NO_DRIVE, 12},
        {NCL_JOB_STATUS_FACTOR_ERR_STK_SETTING, 13},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_CAPACITY, 14},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_TYPE, 15},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_NOT_BLANK, 16},
        {NCL_JOB_STATUS_FACTOR_ERR_JOB_FAILURE, 17},
        {NCL_JOB_STATUS_FACTOR_ERR_DRV_FAILURE, 18},
        {NCL_JOB_STATUS_FACTOR_ERR_INK_EMPTY, 19},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_WRITE, 20},
        {NCL_JOB_STATUS_FACTOR_ERR_PUB_NAME, 21},
        {NCL_JOB_STATUS_FACTOR_ERR_JOB_ID, 22},
        {NCL_JOB_STATUS_FACTOR_ERR_INVALID_CONTROL, 23},
        {NCL_JOB_STATUS_FACTOR_ERR_STACKER_REMOVED, 24},
        {NCL_JOB_STATUS_FACTOR_ERR_CONDITION_FAILURE, 25},
        {NCL_JOB_STATUS_FACTOR_ERR_PRT_FATAL, 26},
        {NCL_JOB_STATUS_FACTOR_ERR_DEVICE_NOT_SUPPORT_VER, 27},
        {NCL_JOB_STATUS_FACTOR_ERR_INK_PAD_OVERFLOW, 28},
        {NCL_JOB_STATUS_FACTOR_ERR_PRT_MAINTENANCE, 29},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_FAILURE, 30},
        {NCL_JOB_STATUS_FACTOR_ERR_INK_CARTRIDGE_REMOVED, 31},
        {NCL_JOB_STATUS_FACTOR_ERR_INK_CARTRIDGE_INVALID, 32},
        {NCL_JOB_STATUS_FACTOR_ERR_MULTIFEED_DRV, 33},
        {NCL_JOB_STATUS_FACTOR_ERR_MULTIFEED_PRN, 34},
        {NCL_JOB_STATUS_FACTOR_ERR_MORE_MEMORY, 35},
        {NCL_JOB_STATUS_FACTOR_ERR_UNKNOWN, 36},
        {NCL_JOB_STATUS_FACTOR_ERR_PUB_MODE, 37},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_IMAGE, 38},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_SUPPLY, 39},
        {NCL_JOB_STATUS_FACTOR_ERR_PRT_OFFLINE, 40},
        {NCL_JOB_STATUS_FACTOR_ERR_PRT_NAME_INVALID, 41},
        {NCL_JOB_STATUS_FACTOR_ERR_ALD_FATAL, 42},
        {NCL_JOB_STATUS_FACTOR_ERR_DRV_FATAL, 43},
        {NCL_JOB_STATUS_FACTOR_ERR_BATCH_CONDITION_FAILURE, 44},
        {NCL_JOB_STATUS_FACTOR_ERR_STACKER3_CONDITION, 45},
        {NCL_JOB_STATUS_FACTOR_ERR_STACKER4_OPEN, 46},
        {NCL_JOB_STATUS_FACTOR_ERR_STACKER_DISC_PICK, 48},
        {NCL_JOB_STATUS_FACTOR_ERR_STK_OVERFLOW, 49},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_UNKNOWN, 50},
        {NCL_JOB_STATUS_FACTOR_ERR_STACKER4_OPENED, 51},
        {NCL_JOB_STATUS_FACTOR_ERR_PUBMODE_WRITE, 52},
        {NCL_JOB_STATUS_FACTOR_ERR_PUBMODE_READ, 53},
        {NCL_JOB_STATUS_FACTOR_ERR_DISC_UNMATCH, 54},
        {NCL_JOB_STATUS_FACTOR_ERR_STK2_DISC_LEFT, 55},
        {NCL_JOB_STATUS_FACTOR_ERR_STK2_HIGHT, 56},
        {NCL_JOB_STATUS_FACTOR_ERR_STK1_2_OVER, 57},
        {NCL_JOB_STATUS_FACTOR_ERR_TAKEOUT_PROCESSING, 204},
        {NCL_JOB_STATUS_FACTOR_ERR_KEY_UNLOCK, 205},
    });
}

TEST(JobConstants, RecordsHaveTheSizesOfTheirFields)
{
    EXPECT_EQ(sizeof(JobStatus), 1788U);
    EXPECT_EQ(sizeof(JobStatusEx), 1792U);
    EXPECT_EQ(sizeof(JobStatus::wszPublicationPerson), 193U);
    EXPECT_EQ(sizeof(JobStatus::wszJobName), 766U);
    EXPECT_EQ(sizeof(JobStatus::wszJobIdentificationID), 766U);
    EXPECT_EQ(sizeof(JobStatusEx::wszPublicationPerson), 193U);
    EXPECT_EQ(sizeof(JobStatusEx::wszJobName), 766U);
    EXPECT_EQ(sizeof(JobStatusEx::wszJobIdentificationID), 766U);
}

TEST(JobConstants, FieldsAreInOrder)
{
    EXPECT_EQ(offsetof(JobStatus, wszPublicationPerson), 16U);
    EXPECT_EQ(offsetof(JobStatus, dwJobType), 212U);
    EXPECT_EQ(offsetof(JobStatus, dwEstimateTime), 224U);
    EXPECT_EQ(offsetof(JobStatus, dwErrorNumber), 228U);
    EXPECT_EQ(offsetof(JobStatus, wszJobName), 232U);
    EXPECT_EQ(offsetof(JobStatus, ErrorHistory), 1000U);
    EXPECT_EQ(offsetof(JobStatus, dwPubMode), 1012U);
    EXPECT_EQ(offsetof(JobStatus, wszJobIdentificationID), 1016U);
    EXPECT_EQ(offsetof(JobStatus, nServerJobID), 1784U);
    EXPECT_EQ(offsetof(JobStatusEx, dwEstimateTime), 224U);
    EXPECT_EQ(offsetof(JobStatusEx, dwRemainingTime), 228U);
    EXPECT_EQ(offsetof(JobStatusEx, dwErrorNumber), 232U);
    EXPECT_EQ(offsetof(JobStatusEx, nServerJobID), 1788U);
}

TEST(JobConstants, ActionsOnTheWire)
{
    EXPECT_EQ(JOB_CONTROL_TYPE_COMMIT, 0);
    EXPECT_EQ(JOB_CONTROL_TYPE_CANCEL, 1);
    EXPECT_EQ(JOB_CONTROL_TYPE_STOP, 2);
    EXPECT_EQ(JOB_CONTROL_TYPE_RESTART, 3);
    EXPECT_EQ(JOB_CONTROL_TYPE_CHANGE_PRIORITY, 4);
    EXPECT_EQ(JOB_CONTROL_TYPE_COMMIT_DISC_INFO, 5);
    EXPECT_EQ(JOB_CONTROL_TYPE_PRE_COMMIT_EMPTY_DISC_INFO, 6);
    EXPECT_STREQ(pszJobControlQueryValueConst[0], "0");
    EXPECT_STREQ(pszJobControlQueryValueConst[1], "1");
    EXPECT_STREQ(pszJobControlQueryValueConst[2], "2");
    EXPECT_STREQ(pszJobControlQueryValueConst[3], "3");
    EXPECT_STREQ(pszJobControlQueryValueConst[4], "6");
    EXPECT_STREQ(pszJobControlQueryValueConst[5], "4");
    EXPECT_STREQ(pszJobControlQueryValueConst[6], "5");
}

#include "Servlets.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

struct Meaning
{
    DWORD word;
    DWORD value;
};

/// The fields of a record of 32-bit numbers, in order.
template <typename Record>
std::vector<DWORD> Fields(const Record& record)
{
    static_assert(sizeof(Record) % sizeof(DWORD) == 0);
    std::vector<DWORD> fields(sizeof(Record) / sizeof(DWORD));
    std::memcpy(fields.data(), &record, sizeof(Record));
    return fields;
}

/// A record filled with old data.
template <typename Record>
Record Dirty()
{
    Record record;
    std::memset(&record, 0xAA, sizeof record);
    return record;
}

/// A flag field, and the bit on the wire that sets it.
template <typename Record>
struct FlagRow
{
    int word;
    DWORD bit;
    BOOL Record::* field;
};

} // namespace

TEST(StackerWord, HoldsAQuantityAndTheSupplyBit)
{
    for (DWORD quantity = 0; quantity <= 103; ++quantity) {
        for (const DWORD top : {0U, 0x80000000U}) {
            auto status = Dirty<StackerStatusBase>();
            ASSERT_EQ(ConvertStackerStatus(quantity | top, &status), 0);
            EXPECT_EQ(status.dwDiscQuantity, quantity);
            EXPECT_EQ(status.bSupply, top != 0 ? 1 : 0);
        }
    }
    StackerStatusBase full;
    ASSERT_EQ(ConvertStackerStatus(0x80000064, &full), 0);
    EXPECT_EQ(full.dwDiscQuantity, 100U);
    EXPECT_EQ(full.bSupply, 1);
}

TEST(StackerWord, IsRefusedBeyondTheKnownValuesAndStoresNothing)
{
    for (const DWORD word : {104U, 105U, 255U, 0x100U, 0x40000000U, 0x7FFFFFFFU, 0x80000068U, 0xFFFFFFFFU}) {
        auto status = Dirty<StackerStatusBase>();
        EXPECT_EQ(ConvertStackerStatus(word, &status), -1) << word;
        EXPECT_EQ(Fields(status), Fields(Dirty<StackerStatusBase>()));
    }
}

TEST(DriveWord, UsesTheFirstSetBitOfTheTable)
{
    const Meaning rows[] = {{0x20, 4}, {0x10, 3}, {0x80, 6}, {0x40, 5}, {0x8, 2}, {0x4, 1}};
    DWORD later = 0xFFFFFFFF;
    for (const Meaning& row : rows) {
        for (const DWORD word : {row.word, row.word | 0x3, later}) {
            DWORD status = 99;
            EXPECT_EQ(ConvertDrvStatus(word, &status), 0);
            EXPECT_EQ(status, row.value) << std::hex << word;
        }
        later &= ~row.word;
    }
    for (const DWORD word : {0U, 0x1U, 0x2U, 0x100U, later}) {
        DWORD status = 99;
        EXPECT_EQ(ConvertDrvStatus(word, &status), 0);
        EXPECT_EQ(status, 0U) << std::hex << word;
    }
    DWORD status = 99;
    ConvertDrvStatus(0x30, &status);
    EXPECT_EQ(status, NCL_DRV_STATUS_NOTUSE);
    ConvertDrvStatus(0x14, &status);
    EXPECT_EQ(status, NCL_DRV_STATUS_ERROR);
}

TEST(PrinterWord, UsesTheFirstSetBitOfTheTable)
{
    const Meaning rows[] = {{0x1, 0}, {0x2, 1}, {0x4, 2}, {0x10, 3}, {0x20, 4}, {0x8, 5}};
    DWORD later = 0xFFFFFFFF;
    for (const Meaning& row : rows) {
        for (const DWORD word : {row.word, row.word | 0x40, later}) {
            auto status = Dirty<PrnStatus>();
            EXPECT_EQ(ConvertPrnStatus(word, &status), 0);
            EXPECT_EQ(status.dwStatus, row.value) << std::hex << word;
            EXPECT_EQ(status.bInkPadOverflowWarn, word == later ? 1 : 0);
        }
        later &= ~row.word;
    }
    for (const DWORD word : {0U, 0x40U, 0x200U, later}) {
        auto status = Dirty<PrnStatus>();
        EXPECT_EQ(ConvertPrnStatus(word, &status), 0);
        EXPECT_EQ(status.dwStatus, 0U) << std::hex << word;
        EXPECT_EQ(status.bInkPadOverflowWarn, (word & 0x200) != 0 ? 1 : 0);
    }
    PrnStatus status;
    ConvertPrnStatus(0x3, &status);
    EXPECT_EQ(status.dwStatus, NCL_PRN_STATUS_IDLE);
}

TEST(InkWord, IsAnAmountUpToAHundred)
{
    for (DWORD amount = 0; amount <= 100; ++amount) {
        for (const DWORD top : {0U, 0x80000000U, 0x40000000U, 0xC0000000U}) {
            auto status = Dirty<InkStatusBase>();
            ASSERT_EQ(ConvertInkCartridgeStatus(amount | top, &status), 0);
            EXPECT_EQ(status.dwInkCartridge, amount);
            EXPECT_EQ(status.bInkNearEnd, (top & 0x80000000) != 0 ? 1 : 0);
        }
    }
}

TEST(InkWord, IsACartridgeFaultBeyondAHundred)
{
    const Meaning rows[] = {
        {0x100, 101}, {0x200, 102}, {0x400, 103},    {0x800, 103},      {0x40000800, 104}, {0xF00, 101},
        {0xE00, 102}, {0x801, 103}, {0xC00, 103},    {0x40000C00, 103}, {0x40000F00, 101}, {101, 0},
        {127, 0},     {0x1000, 0},  {0x3FFFF0FF, 0}, {0x40000065, 0},   {0x100 | 50, 101}, {0x40001800, 104},
    };
    for (const Meaning& row : rows) {
        for (const DWORD top : {0U, 0x80000000U}) {
            auto status = Dirty<InkStatusBase>();
            EXPECT_EQ(ConvertInkCartridgeStatus(row.word | top, &status), 0);
            EXPECT_EQ(status.dwInkCartridge, row.value) << std::hex << row.word;
            EXPECT_EQ(status.bInkNearEnd, top != 0 ? 1 : 0);
        }
    }
}

TEST(FatalErrorWord, IsAJobStatusFactor)
{
    const Meaning known[] = {{1, 1},  {2, 2},  {3, 3},   {4, 4},   {5, 5},   {6, 6},  {25, 7},
                             {26, 8}, {28, 9}, {29, 10}, {39, 11}, {42, 12}, {43, 13}};
    for (DWORD word = 0; word < 300; ++word) {
        DWORD expected = 0;
        for (const Meaning& row : known) {
            expected = row.word == word ? row.value : expected;
        }
        auto status = Dirty<DeviceFatalError>();
        EXPECT_EQ(ConvertDeviceFatalError(word, &status), 0);
        EXPECT_EQ(status.dwDevStatus, expected) << word;
    }
    auto status = Dirty<DeviceFatalError>();
    ConvertDeviceFatalError(0xFFFFFFFF, &status);
    EXPECT_EQ(status.dwDevStatus, 0U);
}

TEST(ALDItem, SetsOneFlagForEachBit)
{
    const FlagRow<ALDStatus> rows[] = {
        {0, 0x1, &ALDStatus::bStacker1Removed},
        {0, 0x2, &ALDStatus::bStacker2Removed},
        {0, 0x4, &ALDStatus::bStacker3Removed},
        {0, 0x8, &ALDStatus::bStacker4Opened},
        {1, 0x1, &ALDStatus::bStacker1Overflow},
        {1, 0x2, &ALDStatus::bStacker2Overflow},
        {1, 0x4, &ALDStatus::bStacker3Overflow},
        {2, 0x1, &ALDStatus::bDiscCoverOpen},
        {2, 0x2, &ALDStatus::bInkCoverOpen},
        {2, 0x4, &ALDStatus::bElectronLock},
        {2, 0x8, &ALDStatus::bOutputDisc},
        {2, 0x10, &ALDStatus::bBackup},
        {2, 0x20, &ALDStatus::bRestore},
        {2, 0x40, &ALDStatus::bDetectDiscQuantity},
        {2, 0x80, &ALDStatus::bStopAtDiscCoverClose},
        {2, 0x2000, &ALDStatus::bStopAtDiscCoverClose},
        {3, 0x1, &ALDStatus::bStackerDiscPickError},
        {3, 0x2, &ALDStatus::bStacker2Operated},
        {3, 0x4, &ALDStatus::bStacker1_2TotalOverflow},
        {3, 0x8, &ALDStatus::bDiscNoAdjustment},
        {3, 0x10, &ALDStatus::bFanLow},
        {3, 0x800, &ALDStatus::bStacker2DiscLeftAtPowerOn},
        {3, 0x1000, &ALDStatus::bUnexpectedPowerOff},
    };
    for (int word = 0; word < 4; ++word) { // every bit, including those without a meaning
        for (int shift = 0; shift < 32; ++shift) {
            std::vector<DWORD> words(4);
            words[word] = DWORD{1} << shift;
            ALDStatus expected = {};
            for (const auto& row : rows) {
                if (row.word == word && row.bit == words[word]) {
                    expected.*row.field = 1;
                }
            }
            auto status = Dirty<ALDStatus>();
            EXPECT_EQ(UnpackALDStatus(WireWords(words).data(), &status), 0);
            EXPECT_EQ(Fields(status), Fields(expected)) << word << " " << shift;
        }
    }
    auto status = Dirty<ALDStatus>();
    UnpackALDStatus(std::string(16, '\xFF').data(), &status);
    EXPECT_EQ(Fields(status), std::vector<DWORD>(22, 1));
}

TEST(StackerItem, HasOneWordPerStacker)
{
    auto status = Dirty<StackerStatus>();
    EXPECT_EQ(UnpackStackerStatus(WireWords({0x80000064, 0, 103, 0x80000065}).data(), &status), 0);
    EXPECT_EQ(Fields(status), (std::vector<DWORD>{100, 1, 0, 0, 103, 0, 101, 1}));
}

TEST(StackerItem, ReportsTheStackerThatFailsAndKeepsThePreviousOnes)
{
    for (int bad = 0; bad < 4; ++bad) {
        std::vector<DWORD> words = {0x80000001, 0x80000002, 0x80000003, 0x80000004};
        words[bad] = 104;
        std::vector<DWORD> expected(8);
        for (int stacker = 0; stacker < bad; ++stacker) {
            expected[stacker * 2] = static_cast<DWORD>(stacker + 1);
            expected[stacker * 2 + 1] = 1;
        }
        auto status = Dirty<StackerStatus>();
        EXPECT_EQ(UnpackStackerStatus(WireWords(words).data(), &status), bad + 2);
        EXPECT_EQ(Fields(status), expected);
    }
}

TEST(DriveItem, HasOneWordPerDrive)
{
    auto status = Dirty<DrvStatus>();
    EXPECT_EQ(UnpackDrvStatus(WireWords({0x4, 0x40}).data(), &status), 0);
    EXPECT_EQ(Fields(status), (std::vector<DWORD>{1, 5}));
}

TEST(DriveItem, StatusWordsPrecedeTheProgress)
{
    auto status = Dirty<DrvStatusEx>();
    EXPECT_EQ(UnpackDrvStatusEx(WireWords({0x8, 0x20, 57, 0xFFFFFFFF}).data(), &status), 0);
    EXPECT_EQ(Fields(status), (std::vector<DWORD>{2, 57, 4, 0xFFFFFFFF}));
}

TEST(PrinterItem, IsOneWord)
{
    auto status = Dirty<PrnStatus>();
    EXPECT_EQ(UnpackPrnStatus(WireWord(0x204).data(), &status), 0);
    EXPECT_EQ(Fields(status), (std::vector<DWORD>{2, 1}));
}

TEST(InkItem, HasOneWordPerCartridge)
{
    auto status = Dirty<InkStatus>();
    const std::string item = WireWords({1, 0x80000002, 0x100, 0x200, 0x400, 0xC0000800});
    EXPECT_EQ(UnpackInkStatus(item.data(), &status), 0);
    EXPECT_EQ(Fields(status.Black), (std::vector<DWORD>{1, 0}));
    EXPECT_EQ(Fields(status.Cyan), (std::vector<DWORD>{2, 1}));
    EXPECT_EQ(Fields(status.LightCyan), (std::vector<DWORD>{101, 0}));
    EXPECT_EQ(Fields(status.Magenta), (std::vector<DWORD>{102, 0}));
    EXPECT_EQ(Fields(status.LightMagenta), (std::vector<DWORD>{103, 0}));
    EXPECT_EQ(Fields(status.Yellow), (std::vector<DWORD>{104, 1}));
}

TEST(FatalErrorItem, IsOneWord)
{
    auto status = Dirty<DeviceFatalError>();
    EXPECT_EQ(UnpackDeviceFatalError(WireWord(43).data(), &status), 0);
    EXPECT_EQ(status.dwDevStatus, NCL_FATAL_ERR_DRV_FATAL);
}

TEST(NotifyItem, SetsOneFlagForEachBit)
{
    const FlagRow<DeviceActiveStatus> active[] = {
        {0, 0x1, &DeviceActiveStatus::bALDArm}, {0, 0x2, &DeviceActiveStatus::bDrv1},
        {0, 0x4, &DeviceActiveStatus::bDrv2},   {0, 0x8, &DeviceActiveStatus::bPrn},
        {0, 0x10, &DeviceActiveStatus::bDisc},
    };
    const FlagRow<JobHindranceFactor> factors[] = {
        {1, 0x1, &JobHindranceFactor::bStacker1Empty},
        {1, 0x2, &JobHindranceFactor::bStacker2Empty},
        {2, 0x2, &JobHindranceFactor::bStacker2Full}, // in normal mode
        {2, 0x8, &JobHindranceFactor::bStacker4Full},
        {6, 0x1, &JobHindranceFactor::bDiscWriteError},
        {6, 0x4, &JobHindranceFactor::bDrvMultiFeed},
        {6, 0x8, &JobHindranceFactor::bPrnMultiFeed},
        {6, 0x40, &JobHindranceFactor::bInkEmpty},
        {7, 0x1, &JobHindranceFactor::bDiscTypeError},
        {7, 0x2, &JobHindranceFactor::bNotBlankDisc},
        {7, 0x10, &JobHindranceFactor::bInkCartridgeNonStandard},
        {7, 0x20, &JobHindranceFactor::bRemainDisc},
        {7, 0x40, &JobHindranceFactor::bTakeOut},
    };
    for (int word = 0; word < 8; ++word) {
        for (int shift = 0; shift < 32; ++shift) {
            std::vector<DWORD> words(8);
            words[word] = DWORD{1} << shift;
            NotifyStatus expected = {};
            for (const auto& row : active) {
                expected.DevActive.*row.field |= row.word == word && row.bit == words[word] ? 1 : 0;
            }
            for (const auto& row : factors) {
                expected.JobFactor.*row.field |= row.word == word && row.bit == words[word] ? 1 : 0;
            }
            auto status = Dirty<NotifyStatus>();
            EXPECT_EQ(UnpackNotifyStatus(WireWords(words).data(), NCL_MODE_NORMAL, &status), 0);
            EXPECT_EQ(Fields(status), Fields(expected)) << word << " " << shift;
        }
    }
}

TEST(NotifyItem, FullStackersDependOnTheMode)
{
    struct Row
    {
        DWORD mode;
        DWORD word2;
        DWORD word7;
        BOOL stacker2;
        BOOL stacker3;
    };
    const Row rows[] = {
        {NCL_MODE_OUTPUT, 0x2, 0, 1, 0},
        {NCL_MODE_OUTPUT, 0x4, 0, 0, 1},
        {NCL_MODE_OUTPUT, 0x6, 0, 1, 1},
        {NCL_MODE_OUTPUT, 0, 0x4, 0, 0},
        {NCL_MODE_OUTPUT, 0xFFFFFFFD, 0xFFFFFFFF, 0, 1}, // all other bits
        {NCL_MODE_OUTPUT, 0xFFFFFFFB, 0xFFFFFFFF, 1, 0},
        {NCL_MODE_BATCH, 0xFFFFFFFD, 0xFFFFFFFB, 0, 0},
        {NCL_MODE_BATCH, 0xFFFFFFFF, 0xFFFFFFFB, 1, 1},
        {NCL_MODE_BATCH, 0xFFFFFFFD, 0xFFFFFFFF, 0, 1},
        {NCL_MODE_BATCH, 0x2, 0, 1, 1},
        {NCL_MODE_BATCH, 0x4, 0, 0, 0},
        {NCL_MODE_BATCH, 0x2, 0x4, 0, 1},
        {NCL_MODE_BATCH, 0, 0x4, 0, 1},
        {NCL_MODE_BATCH, 0, 0, 0, 0},
        {NCL_MODE_NORMAL, 0x6, 0x4, 1, 0},
        {NCL_MODE_NORMAL, 0x4, 0x4, 0, 0},
        {NCL_MODE_SECURITY, 0x6, 0x4, 1, 0},
        {NCL_MODE_OUTPUT_CONTROL, 0x6, 0, 1, 0},
        {5, 0x6, 0x4, 1, 0},
        {255, 0x4, 0x4, 0, 0},
    };
    for (const Row& row : rows) {
        auto status = Dirty<NotifyStatus>();
        const std::string item = WireWords({0, 0, row.word2, 0, 0, 0, 0, row.word7});
        EXPECT_EQ(UnpackNotifyStatus(item.data(), row.mode, &status), 0);
        EXPECT_EQ(status.JobFactor.bStacker2Full, row.stacker2) << row.mode << " " << row.word2;
        EXPECT_EQ(status.JobFactor.bStacker3Full, row.stacker3) << row.mode << " " << row.word2;
    }
}

TEST(MaintenanceItem, IsStoredUnchanged)
{
    std::vector<DWORD> words = {0, 1, 0xFFFFFFFF, 0x80000000, 0x7FFFFFFF, 0x01020304, 0x10203040,
                                7, 8, 9,          10,         11,         12};
    auto info = Dirty<MaintenanceInfo>();
    EXPECT_EQ(UnpackMaintenanceInfo(WireWords(words).data(), &info), 0);
    EXPECT_EQ(Fields(info), words);
    EXPECT_EQ(info.nDrv1TrayOpenLimit, -1);
    EXPECT_EQ(info.nDrv2DVDWriteLimit, 12);

    words.insert(words.end(), {13, 14, 15, 16});
    auto infoEx = Dirty<MaintenanceInfoEx>();
    EXPECT_EQ(UnpackMaintenanceInfoEx(WireWords(words).data(), &infoEx), 0);
    EXPECT_EQ(Fields(infoEx), words);
    EXPECT_EQ(infoEx.nDrv1BDWriteSeconds, 7);
    EXPECT_EQ(infoEx.nDrv2BDWriteLimit, 16);
}

// Conversion of the values of a publisher server to those of the control service: settings and device status.
#include "InstallPaths.h"
#include "NW_Com_Lib.h"
#include "NetworkPublisherMgr.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>
#include <vector>

namespace {

class NetworkConvert : public testing::Test
{
protected:
    CNetworkPublisherMgr m_mgr{true, PUBLISHER_SETTING_DIR};
};
using NetworkConvertDeathTest = NetworkConvert;

/// 0 to 110, the values around the special ones, and the ends of the range.
const std::vector<DWORD>& AnyValues()
{
    static const std::vector<DWORD> values = [] {
        std::vector<DWORD> all;
        for (DWORD value = 0; value <= 110; ++value) {
            all.push_back(value);
        }
        for (const DWORD value : {255U, 256U, 512U, 998U, 999U, 1000U, 8000U, 0x7FFFFFFFU, 0x80000000U,
                                  0x80000002U, 0x80000064U, 0xFFFFFFFEU, 0xFFFFFFFFU}) {
            all.push_back(value);
        }
        return all;
    }();
    return values;
}

// ---------------------------------------------------------------------------------------------------------------------
// Settings

TEST_F(NetworkConvert, ModesOfEveryNumber)
{
    const std::map<DWORD, UINT> rows = {{0, 3}, {1, 4}, {2, 0}, {3, 2}, {4, 1}};
    for (const DWORD value : AnyValues()) {
        const auto row = rows.find(value);
        EXPECT_EQ(m_mgr.ConvertComLibValueToPubMgrValue_PubMode(value),
                  row == rows.end() ? 0xFFFFFFFF : row->second)
            << value;
    }
}

TEST_F(NetworkConvert, SettingsOfEveryTypeAndNumber)
{
    std::map<std::pair<DWORD, DWORD>, UINT> rows = {
        {{0, 0}, 0}, {{0, 1}, 1}, {{0, 2}, 2}, {{1, 1}, 2}, {{1, 2}, 1}, {{3, 0}, 0}, {{3, 1}, 1},
    };
    for (const DWORD type : {4U, 5U, 6U}) {
        for (DWORD media = 0; media <= 11; ++media) {
            rows[{type, media}] = media;
        }
        rows[{type, 999}] = 32;
    }
    std::vector<DWORD> types;
    for (DWORD type = 0; type <= 20; ++type) {
        types.push_back(type);
    }
    types.push_back(0xFFFFFFFF);
    for (const DWORD type : types) {
        for (const DWORD value : AnyValues()) {
            const auto row = rows.find({type, value});
            const UINT expected = type == 2 ? value : row == rows.end() ? 0xFFFFFFFF : row->second;
            EXPECT_EQ(m_mgr.ConvertComLibValueToPubMgrValue(type, value), expected) << type << " " << value;
        }
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// Drives and printer

TEST_F(NetworkConvert, DriveStates)
{
    const DWORD rows[] = {1, 4, 8, 0x10, 0x20, 0x40, 0x80};
    for (DWORD state = 0; state < std::size(rows); ++state) {
        for (const DWORD progress : {0U, 50U, 0xFFFFFFFFU}) {
            const DrvStatusBaseEx drive{state, progress};
            EXPECT_EQ(m_mgr.ConvertComLibValueToPubMgrValue_DrvStatus(drive), rows[state]) << state;
        }
    }
}

TEST_F(NetworkConvertDeathTest, AnUnknownDriveStateStopsTheProcess)
{
    for (DWORD state = 7; state <= 20; ++state) {
        EXPECT_DEATH(m_mgr.ConvertComLibValueToPubMgrValue_DrvStatus(DrvStatusBaseEx{state, 0}), "Assertion")
            << state;
    }
    EXPECT_DEATH(m_mgr.ConvertComLibValueToPubMgrValue_DrvStatus(DrvStatusBaseEx{0xFFFFFFFF, 0}),
                 "Assertion");
}

TEST_F(NetworkConvert, PrinterStates)
{
    const DWORD rows[] = {1, 2, 4, 0x10, 0x20, 8};
    for (DWORD state = 0; state < std::size(rows); ++state) {
        for (const BOOL warning : {FALSE, TRUE}) {
            const PrnStatus printer{state, warning};
            EXPECT_EQ(m_mgr.ConvertComLibValueToPubMgrValue_PrnStatus(printer), rows[state]) << state;
        }
    }
}

TEST_F(NetworkConvertDeathTest, AnUnknownPrinterStateStopsTheProcess)
{
    for (DWORD state = 6; state <= 20; ++state) {
        EXPECT_DEATH(m_mgr.ConvertComLibValueToPubMgrValue_PrnStatus(PrnStatus{state, TRUE}), "Assertion")
            << state;
    }
    EXPECT_DEATH(m_mgr.ConvertComLibValueToPubMgrValue_PrnStatus(PrnStatus{0xFFFFFFFF, FALSE}), "Assertion");
}

// ---------------------------------------------------------------------------------------------------------------------
// Supplies

TEST_F(NetworkConvert, InkOfEveryAmount)
{
    const std::map<DWORD, DWORD> special = {{101, 0x100}, {102, 0x200}, {104, 0x8000000}};
    for (const DWORD value : AnyValues()) {
        const auto row = special.find(value);
        const DWORD plain = value < 101 ? value : row == special.end() ? 0x400 : row->second;
        const DWORD nearEnd = value < 101 ? value | 0x80000000 : plain;
        EXPECT_EQ(m_mgr.ConvertComLibValueToPubMgrValue_InkStatus(InkStatusBase{value, FALSE}), plain)
            << value;
        EXPECT_EQ(m_mgr.ConvertComLibValueToPubMgrValue_InkStatus(InkStatusBase{value, TRUE}), nearEnd)
            << value;
    }
}

TEST_F(NetworkConvert, StackersOfEveryQuantity)
{
    for (const DWORD value : AnyValues()) {
        const DWORD plain = value <= 100 || value == 102 || value == 103 ? value : 101;
        EXPECT_EQ(m_mgr.ConvertComLibValueToPubMgrValue_StackerStatus(StackerStatusBase{value, FALSE}), plain)
            << value;
        EXPECT_EQ(m_mgr.ConvertComLibValueToPubMgrValue_StackerStatus(StackerStatusBase{value, TRUE}),
                  plain | 0x80000000)
            << value;
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// Auto loader

struct LoaderFlag
{
    BOOL ALDStatus::* flag;
    DWORD bits;
};

const LoaderFlag LOADER_FLAGS[] = {
    {&ALDStatus::bStacker1Removed, 0x1},
    {&ALDStatus::bStacker2Removed, 0x2},
    {&ALDStatus::bStacker3Removed, 0x4},
    {&ALDStatus::bStacker4Opened, 0x8},
    {&ALDStatus::bDiscCoverOpen, 0x10},
    {&ALDStatus::bInkCoverOpen, 0x20},
    {&ALDStatus::bStacker1Overflow, 0x400},
    {&ALDStatus::bStacker2Overflow, 0x800},
    {&ALDStatus::bStacker3Overflow, 0x10000},
    {&ALDStatus::bDetectDiscQuantity, 0x40000},
    {&ALDStatus::bStopAtDiscCoverClose, 0x320000},
    {&ALDStatus::bStackerDiscPickError, 0x400000},
    {&ALDStatus::bBackup, 0x8000000},
    {&ALDStatus::bRestore, 0x8000000},
    {&ALDStatus::bDiscNoAdjustment, 0x10000000},
    {&ALDStatus::bFanLow, 0x20000000},
    // These have no bit.
    {&ALDStatus::bElectronLock, 0},
    {&ALDStatus::bOutputDisc, 0},
    {&ALDStatus::bStacker2Operated, 0},
    {&ALDStatus::bStacker1_2TotalOverflow, 0},
    {&ALDStatus::bStacker2DiscLeftAtPowerOn, 0},
    {&ALDStatus::bUnexpectedPowerOff, 0},
};

TEST_F(NetworkConvert, SingleLoaderFlags)
{
    ASSERT_EQ(std::size(LOADER_FLAGS) * sizeof(BOOL), sizeof(ALDStatus)) << "a flag has no row";
    EXPECT_EQ(m_mgr.ConvertComLibValueToPubMgrValue_AldStatus(ALDStatus{}), 0U);
    for (const LoaderFlag& row : LOADER_FLAGS) {
        ALDStatus loader{};
        loader.*row.flag = TRUE;
        EXPECT_EQ(m_mgr.ConvertComLibValueToPubMgrValue_AldStatus(loader), row.bits) << (&row - LOADER_FLAGS);
    }
}

TEST_F(NetworkConvert, LoaderFlagsInPairs)
{
    for (const LoaderFlag& one : LOADER_FLAGS) {
        for (const LoaderFlag& other : LOADER_FLAGS) {
            ALDStatus loader{};
            loader.*one.flag = TRUE;
            loader.*other.flag = TRUE;
            EXPECT_EQ(m_mgr.ConvertComLibValueToPubMgrValue_AldStatus(loader), one.bits | other.bits);
        }
    }
}

TEST_F(NetworkConvert, AllLoaderFlags)
{
    ALDStatus loader{};
    for (const LoaderFlag& row : LOADER_FLAGS) {
        loader.*row.flag = TRUE;
    }
    EXPECT_EQ(m_mgr.ConvertComLibValueToPubMgrValue_AldStatus(loader), 0x38770C3FU);
}

} // namespace

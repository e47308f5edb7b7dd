// The devices and the options in the registry.
#include "LogAgent.h"
#include "ManagerLog.h"
#include "PublisherFiles.h"
#include "PublisherMgr.h"
#include "Win_def_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

const std::string product = "HKLM/Software/ARVEN/Ulmar Disc Maker";

bool HasDevice(const std::string& guid)
{
    return ReadText(REGISTRY_FILE).find("[" + product + "/Local/" + guid + "]\n") != std::string::npos;
}

TEST(ConnectedPublishers, AreTheSubKeysOfTheLocalKey)
{
    MakeConfFolder();
    CPublisherMgr mgr(true);
    CStringArray guids;
    guids.Add("old");
    EXPECT_EQ(mgr.EnumConnectedPublisher(&guids), 0);
    EXPECT_TRUE(guids.IsEmpty());
    WriteRegistry("[" + product + "/Local]\n\n" + DeviceSection("{B}", "") + DeviceSection("{A}", ""));
    EXPECT_EQ(mgr.EnumConnectedPublisher(&guids), 2);
    EXPECT_THAT(std::vector<std::string>(guids.begin(), guids.end()), testing::ElementsAre("{A}", "{B}"));
}

TEST(IsExistConnectedPublisher, RequiresTheValueOne)
{
    WriteRegistry(DeviceSection("{on}", "\"Connected\"=dword:00000001\n") +
                  DeviceSection("{off}", "\"Connected\"=dword:00000000\n") +
                  DeviceSection("{two}", "\"Connected\"=dword:00000002\n") +
                  DeviceSection("{text}", "\"Connected\"=\"1\"\n") + DeviceSection("{none}", ""));
    CPublisherMgr mgr(true);
    EXPECT_TRUE(mgr.IsExistConnectedPublisher("{on}"));
    for (const char* guid : {"{off}", "{two}", "{text}", "{none}", "{absent}", "", "..", "\\"}) {
        EXPECT_FALSE(mgr.IsExistConnectedPublisher(guid)) << guid;
    }
    EXPECT_FALSE(mgr.IsExistConnectedPublisher(std::string(100000, 'g').c_str()));
}

TEST(IsExistConnectedPublisher, WithoutGUIDAnyRecordedDeviceCounts)
{
    MakeConfFolder();
    CPublisherMgr mgr(true);
    EXPECT_FALSE(mgr.IsExistConnectedPublisher(nullptr));
    WriteRegistry(DeviceSection("{off}", ""));
    // Only the sub key is written, not the key itself.
    EXPECT_FALSE(mgr.IsExistConnectedPublisher(nullptr));
    WriteRegistry("[" + product + "/Local]\n\n" + DeviceSection("{off}", ""));
    EXPECT_TRUE(mgr.IsExistConnectedPublisher(nullptr));
}

TEST(IsExistConnectedPublisher, IsTracedAtTheHighestLevel)
{
    MakeConfFolder();
    LogAgent agent;
    CPublisherMgr mgr(true);
    SetLogLevel(3);
    mgr.IsExistConnectedPublisher("{G}");
    EXPECT_TRUE(agent.TakeAll().empty());
    SetLogLevel(4);
    mgr.IsExistConnectedPublisher("{G}");
    const std::vector<std::string> lines = agent.TakeAll();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines[0], LogLine(7, "CPublisherMgr::IsExistConnectedPublisher(\"{G}\")"));
    mgr.IsExistConnectedPublisher(nullptr);
    const std::vector<std::string> linesOfAny = agent.TakeAll();
    ASSERT_FALSE(linesOfAny.empty());
    EXPECT_EQ(linesOfAny[0], LogLine(7, "CPublisherMgr::IsExistConnectedPublisher(\"(null)\")"));
}

TEST(IsExistRegistryKey, IsTrueForAKeyWithASubKey)
{
    WriteRegistry("[HKLM/Empty]\n\n[HKLM/Full]\n\n[HKLM/Full/" + std::string(900, 'k') +
                  "]\n\n[HKLM/Grand]\n\n[HKLM/Grand/a/b]\n\n");
    CPublisherMgr mgr(true);
    EXPECT_TRUE(mgr.IsExistRegistryKey(HKEY_LOCAL_MACHINE, "Full"));
    EXPECT_FALSE(mgr.IsExistRegistryKey(HKEY_LOCAL_MACHINE, "Empty"));
    EXPECT_FALSE(mgr.IsExistRegistryKey(HKEY_LOCAL_MACHINE, "Absent"));
    EXPECT_FALSE(mgr.IsExistRegistryKey(HKEY_LOCAL_MACHINE, "Grand"));
    EXPECT_FALSE(mgr.IsExistRegistryKey(HKEY_CURRENT_USER, "Full"));
}

TEST(IsExistRegistryKeyDeathTest, NullArgumentsStopTheProcess)
{
    EXPECT_DEATH(CPublisherMgr(true).IsExistRegistryKey(nullptr, "Full"), "!= FALSE");
    EXPECT_DEATH(CPublisherMgr(true).IsExistRegistryKey(HKEY_LOCAL_MACHINE, nullptr), "!= FALSE");
}

TEST(IsSuperSpeedUSB, IsTheModeOfAPresentDevice)
{
    WriteRegistry(DeviceSection("{on}", "\"Connected\"=dword:00000001\n\"USBMode\"=dword:00000003\n") +
                  DeviceSection("{off}", "\"Connected\"=dword:00000000\n\"USBMode\"=dword:00000003\n") +
                  DeviceSection("{plain}", "\"Connected\"=dword:00000001\n") +
                  DeviceSection("{odd}", "\"Connected\"=dword:00000001\n\"USBMode\"=dword:00000010\n"));
    CPublisherMgr mgr(true);
    EXPECT_EQ(mgr.IsSuperSpeedUSB("{on}"), 3);
    EXPECT_EQ(mgr.IsSuperSpeedUSB("{odd}"), 16);
    EXPECT_EQ(mgr.IsSuperSpeedUSB("{off}"), 0);
    EXPECT_EQ(mgr.IsSuperSpeedUSB("{plain}"), 0);
    EXPECT_EQ(mgr.IsSuperSpeedUSB("{absent}"), 0);
    EXPECT_EQ(mgr.IsSuperSpeedUSB(nullptr), 0);
}

TEST(ClearUnusedGUID, RemovesOnlyDisconnectedAndUnusedDevices)
{
    WriteRegistry("[" + product + "/Local]\n\n" + DeviceSection("{case}", "") +
                  DeviceSection("{no value}", "") + DeviceSection("{off}", "\"Connected\"=dword:00000000\n") +
                  DeviceSection("{on}", "\"Connected\"=dword:00000001\n") + DeviceSection("{used}", ""));
    WritePublisher("R", "[Common]\nGUID={used}\n");
    WritePublisher("S", "[Common]\nGUID={CASE}\n");
    CPublisherMgr mgr(true);
    mgr.ClearUnusedGUID();
    EXPECT_TRUE(HasDevice("{on}"));
    EXPECT_TRUE(HasDevice("{used}"));
    EXPECT_FALSE(HasDevice("{off}"));
    EXPECT_FALSE(HasDevice("{no value}"));
    EXPECT_FALSE(HasDevice("{case}")); // the comparison is case-sensitive
}

TEST(ClearUnusedGUID, WithoutAnyDeviceNothingHappens)
{
    MakeConfFolder();
    CPublisherMgr mgr(true);
    mgr.ClearUnusedGUID();
    EXPECT_EQ(ReadText(REGISTRY_FILE), "");
}

TEST(FunctionQueries, CompareTheBareFamily)
{
    const struct
    {
        const char* dpType;
        bool found;
    } rows[] = {{"00000006", true}, {"00000005", false}, {"10000006", false}, {"00000000", false}};
    for (const auto& row : rows) {
        WriteLocalPublisher("R", row.dpType);
        CPublisherMgr mgr(true);
        EXPECT_EQ(mgr.IsExistArchiveDiscFunctionPublisher(), row.found) << row.dpType;
        EXPECT_EQ(mgr.IsExistErrorRateFunctionPublisher(), row.found) << row.dpType;
    }
}

TEST(FunctionQueries, AnyRegisteredPublisherCounts)
{
    CPublisherMgr mgr(true);
    EXPECT_FALSE(mgr.IsExistArchiveDiscFunctionPublisher());
    EXPECT_FALSE(mgr.IsExistErrorRateFunctionPublisher());
    EXPECT_FALSE(mgr.IsExistLocalPublisher());
    WritePublisher("N", "[Common]\nPublisherConnectionType=1\nGUID={G}\n");
    WriteRegistry(DeviceSection("{G}", "\"DPType\"=dword:00000006\n"));
    EXPECT_TRUE(mgr.IsExistArchiveDiscFunctionPublisher());
    EXPECT_TRUE(mgr.IsExistErrorRateFunctionPublisher());
    EXPECT_FALSE(mgr.IsExistLocalPublisher());
    WritePublisher("L", "[Common]\n");
    EXPECT_TRUE(mgr.IsExistLocalPublisher());
}

// ---------------------------------------------------------------------------------------------------------------------
// Error-rate options

struct Option
{
    const char* value;
    bool (CPublisherMgr::*get)(UINT*);
    bool (CPublisherMgr::*set)(UINT);
};

const Option options[] = {
    {"C1Error", &CPublisherMgr::GetThresholdOfC1Error, &CPublisherMgr::SetThresholdOfC1Error},
    {"PIEsum8", &CPublisherMgr::GetThresholdOfPIEsum8, &CPublisherMgr::SetThresholdOfPIEsum8},
    {"RSER", &CPublisherMgr::GetThresholdOfRSER, &CPublisherMgr::SetThresholdOfRSER},
    {"BurstError", &CPublisherMgr::GetThresholdOfBurstError, &CPublisherMgr::SetThresholdOfBurstError},
    {"ErrorRateContinueCount", &CPublisherMgr::GetMeasurementContinueCount,
     &CPublisherMgr::SetMeasurementContinueCount},
};

TEST(ErrorRateOptions, NumbersGoToTheCommonKey)
{
    MakeConfFolder();
    CPublisherMgr mgr(true);
    for (const Option& option : options) {
        UINT value = 77;
        EXPECT_FALSE((mgr.*option.get)(&value)) << option.value;
        EXPECT_EQ(value, 77u) << option.value;
        EXPECT_TRUE((mgr.*option.set)(0xABCDEF01)) << option.value;
        EXPECT_TRUE((mgr.*option.get)(&value)) << option.value;
        EXPECT_EQ(value, 0xABCDEF01u) << option.value;
    }
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[" + product +
                                           "]\n"
                                           "\"BurstError\"=dword:abcdef01\n"
                                           "\"C1Error\"=dword:abcdef01\n"
                                           "\"ErrorRateContinueCount\"=dword:abcdef01\n"
                                           "\"PIEsum8\"=dword:abcdef01\n"
                                           "\"RSER\"=dword:abcdef01\n\n");
}

TEST(ErrorRateOptions, TheLogFolderIsAText)
{
    MakeConfFolder();
    CPublisherMgr mgr(true);
    CString path = "old";
    EXPECT_FALSE(mgr.GetErrorRateLogFolderPath(&path));
    EXPECT_EQ(path, "old");
    EXPECT_TRUE(mgr.SetErrorRateLogFolderPath("/var/log/rates"));
    EXPECT_TRUE(mgr.GetErrorRateLogFolderPath(&path));
    EXPECT_EQ(path, "/var/log/rates");
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[" + product + "]\n\"ErrorRateLogFolder\"=\"/var/log/rates\"\n\n");
}

TEST(ErrorRateOptions, AnUnwritableRegistryIsAFailure)
{
    CPublisherMgr mgr(true); // no folder, so no registry
    for (const Option& option : options) {
        EXPECT_FALSE((mgr.*option.set)(1)) << option.value;
    }
    EXPECT_FALSE(mgr.SetErrorRateLogFolderPath("/var/log/rates"));
}

TEST(ErrorRateOptions, AValueOfTheWrongTypeIsNotRead)
{
    WriteRegistry("[" + product + "]\n\"C1Error\"=\"12\"\n\"ErrorRateLogFolder\"=dword:00000001\n\n");
    CPublisherMgr mgr(true);
    UINT value = 77;
    CString path = "old";
    EXPECT_FALSE(mgr.GetThresholdOfC1Error(&value));
    EXPECT_EQ(value, 77u);
    EXPECT_FALSE(mgr.GetErrorRateLogFolderPath(&path));
    EXPECT_EQ(path, "old");
}

} // namespace

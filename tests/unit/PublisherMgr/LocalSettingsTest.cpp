// The settings of local publishers: reading and writing the setting file.
#include "LogAgent.h"
#include "ManagerLog.h"
#include "Models.h"
#include "OrdinaryRights.h"
#include "PublisherFiles.h"
#include "Win_def_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

namespace {

using testing::HasSubstr;

const std::string missing = "\"/opt/arven/Ulmar Disc Maker/conf/RegPublisher/R.ini\" is not found";

const char fullFile[] = "[Common]\n"
                        "GUID={G}\n"
                        "PublisherName=Lab 1\n"
                        "PublishMode=6\n"
                        "Stacker1=16\n"
                        "Stacker2=2\n"
                        "Stacker3=3\n"
                        "Stacker4=4\n"
                        "PrinterName=Printer 1\n"
                        "PublisherConnectionType=0\n"
                        "UseDrive=2\n"
                        "RetryTimes=150000\n"
                        "RetryTimesW=5\n"
                        "RetryTimesR=7\n"
                        "ReadBackContinue=0\n"
                        "AddErrorMark=0\n";

// ---------------------------------------------------------------------------------------------------------------------
// Reading

TEST(GetPublisherInfo, ReadsEveryKey)
{
    WritePublisher("R", fullFile);
    PUBLISHERINFO info;
    info.strHostName = "old";
    info.uiPublisherDevType = 4;
    info.uiPublisherType = 1;
    ASSERT_TRUE(Make<CBasicPublisherMgr>()->GetPublisherInfo("R", &info, TRUE));
    EXPECT_EQ(info.strGUID, "{G}");
    EXPECT_EQ(info.strPublisherRegistID, "R");
    EXPECT_EQ(info.strPublisherName, "Lab 1");
    EXPECT_EQ(info.uiPublishMode, 6u);
    EXPECT_EQ(info.uiStacker1DiscType, 16u);
    EXPECT_EQ(info.uiStacker2DiscType, 2u);
    EXPECT_EQ(info.uiStacker3DiscType, 3u);
    EXPECT_EQ(info.uiStacker4DiscType, 4u);
    EXPECT_EQ(info.uiUseDrive, 2u);
    EXPECT_EQ(info.uiRetryCount, 150000u);
    EXPECT_EQ(info.uiRetryCountW, 5u);
    EXPECT_EQ(info.uiRetryCountR, 7u);
    EXPECT_FALSE(info.bContinuePublish);
    EXPECT_EQ(info.strPrinterName, "Printer 1");
    EXPECT_FALSE(info.bAddErrorMark);
    EXPECT_EQ(info.uiPublisherType, 0u);
    EXPECT_EQ(info.strHostName, "");
    EXPECT_EQ(info.uiPublisherDevType, 0u);
}

TEST(GetPublisherInfo, MissingKeysReadAsDefaultNumbersAndEmptyTexts)
{
    WritePublisher("R", "[Common]\nGUID=\n");
    PUBLISHERINFO info;
    ASSERT_TRUE(Make<CBasicPublisherMgr>()->GetPublisherInfo("R", &info, FALSE));
    EXPECT_EQ(info.strGUID, "");
    EXPECT_EQ(info.strPublisherName, "");
    EXPECT_EQ(info.strPrinterName, "");
    for (const UINT field :
         {info.uiPublishMode, info.uiStacker1DiscType, info.uiStacker2DiscType, info.uiStacker3DiscType,
          info.uiStacker4DiscType, info.uiUseDrive, info.uiRetryCount}) {
        EXPECT_EQ(field, 0xFFFFFFFFu);
    }
    EXPECT_EQ(info.uiRetryCountR, 3u);
    EXPECT_EQ(info.uiRetryCountW, 3u);
    EXPECT_TRUE(info.bContinuePublish);
    EXPECT_TRUE(info.bAddErrorMark);
}

TEST(GetPublisherInfo, FlagsAreTrueWhenNotZero)
{
    WritePublisher("R", "[Common]\nReadBackContinue=2\nAddErrorMark=-5\n");
    PUBLISHERINFO info;
    ASSERT_TRUE(Make<CBasicPublisherMgr>()->GetPublisherInfo("R", &info, FALSE));
    EXPECT_TRUE(info.bContinuePublish);
    EXPECT_TRUE(info.bAddErrorMark);
}

TEST(GetPublisherInfo, AnUnreadableFileReadsAsNotSet)
{
    WritePublisher("R", fullFile);
    std::filesystem::permissions(PublisherFile("R"), std::filesystem::perms::none);
    ASSERT_TRUE(TakeAwayPrivileges());
    PUBLISHERINFO info;
    ASSERT_TRUE(Make<CBasicPublisherMgr>()->GetPublisherInfo("R", &info, FALSE));
    EXPECT_EQ(info.strGUID, "NotSet");
    EXPECT_EQ(info.strPublisherName, "NotSet");
    EXPECT_EQ(info.strPrinterName, "NotSet");
    EXPECT_EQ(info.uiPublishMode, 0xFFFFFFFFu);
}

TEST(GetPublisherInfo, LongTextsAreTruncatedTo255Bytes)
{
    WritePublisher("R", "[Common]\nPublisherName=" + std::string(300, 'n') + "\nPublishMode=2\n");
    PUBLISHERINFO info;
    ASSERT_TRUE(Make<CBasicPublisherMgr>()->GetPublisherInfo("R", &info, FALSE));
    EXPECT_EQ(info.strPublisherName, std::string(255, 'n'));
    EXPECT_EQ(info.uiPublishMode, 2u);
}

TEST(GetPublisherInfo, AnEmptyIdDoesNotChangeTheRecord)
{
    PUBLISHERINFO info;
    info.strPublisherName = "old";
    info.uiAddErrorMark = 5;
    EXPECT_FALSE(Make<CBasicPublisherMgr>()->GetPublisherInfo("", &info, FALSE));
    EXPECT_FALSE(Make<CAPPublisherMgr>()->GetPublisherInfo("", &info, FALSE));
    EXPECT_EQ(info.strPublisherName, "old");
    EXPECT_EQ(info.uiAddErrorMark, 5u);
}

TEST(GetPublisherInfo, AMissingFileClearsTheRecordAndIsLogged)
{
    MakePublisherFolder();
    LogAgent agent;
    SetLogLevel(2);
    PUBLISHERINFO info;
    info.strPublisherName = "old";
    EXPECT_FALSE(Make<CBasicPublisherMgr>()->GetPublisherInfo("R", &info, FALSE));
    EXPECT_EQ(info.strPublisherName, "");
    EXPECT_EQ(info.strPublisherRegistID, "");
    EXPECT_EQ(info.uiAddErrorMark, 0u);
    EXPECT_EQ(agent.TakeAll(), std::vector{LogLine(4, "CBasicPublisherMgr::GetPublisherInfo, " + missing)});

    SetLogLevel(1);
    EXPECT_FALSE(Make<CBasicPublisherMgr>()->GetPublisherInfo("R", &info, FALSE));
    EXPECT_TRUE(agent.TakeAll().empty());
}

TEST(GetPublisherInfo, TheIdMayPointIntoTheRecord)
{
    const std::string id(100, 'i');
    WritePublisher(id, fullFile);
    for (const auto& make : {Make<CBasicPublisherMgr>, Make<CAPPublisherMgr>}) {
        PUBLISHERINFO info;
        info.strPublisherRegistID = id;
        ASSERT_TRUE(make()->GetPublisherInfo(info.strPublisherRegistID.c_str(), &info, FALSE));
        EXPECT_EQ(info.strPublisherRegistID, id);
        EXPECT_EQ(info.strPublisherName, "Lab 1");
    }
}

TEST(GetPublisherInfo, TheModelWithoutDrivesReadsEightKeysAndLogsNothing)
{
    WritePublisher("R", fullFile);
    PUBLISHERINFO info;
    info.uiUseDrive = 9;
    ASSERT_TRUE(Make<CAPPublisherMgr>()->GetPublisherInfo("R", &info, FALSE));
    EXPECT_EQ(info.strGUID, "{G}");
    EXPECT_EQ(info.strPublisherRegistID, "R");
    EXPECT_EQ(info.strPublisherName, "Lab 1");
    EXPECT_EQ(info.uiPublishMode, 6u);
    EXPECT_EQ(info.uiStacker1DiscType, 16u);
    EXPECT_EQ(info.uiStacker2DiscType, 2u);
    EXPECT_EQ(info.uiStacker3DiscType, 3u);
    EXPECT_EQ(info.uiStacker4DiscType, 4u);
    EXPECT_EQ(info.strPrinterName, "Printer 1");
    EXPECT_EQ(info.uiUseDrive, 0u);
    EXPECT_EQ(info.uiRetryCount, 3u);
    EXPECT_EQ(info.uiRetryCountR, 3u);
    EXPECT_EQ(info.uiRetryCountW, 3u);
    EXPECT_TRUE(info.bContinuePublish);
    EXPECT_TRUE(info.bAddErrorMark);

    LogAgent agent;
    SetLogLevel(4);
    EXPECT_FALSE(Make<CAPPublisherMgr>()->GetPublisherInfo("other", &info, FALSE));
    EXPECT_TRUE(agent.TakeAll().empty());
}

TEST(GetPublisherInfoDeathTest, NullArgumentsStopTheProcess)
{
    PUBLISHERINFO info;
    EXPECT_DEATH(Make<CBasicPublisherMgr>()->GetPublisherInfo(nullptr, &info, FALSE), "!= FALSE");
    EXPECT_DEATH(Make<CBasicPublisherMgr>()->GetPublisherInfo("R", nullptr, FALSE), "!= FALSE");
    EXPECT_DEATH(Make<CAPPublisherMgr>()->GetPublisherInfo(nullptr, &info, FALSE), "!= FALSE");
    EXPECT_DEATH(Make<CAPPublisherMgr>()->GetPublisherInfo("R", nullptr, FALSE), "!= FALSE");
}

TEST(GetPublisherGUID, ReadsTheFile)
{
    WritePublisher("R", fullFile);
    EXPECT_EQ(Make<CBasicPublisherMgr>()->GetPublisherGUID("R"), "{G}");
}

TEST(GetPublisherGUID, AMissingFileIsLogged)
{
    MakePublisherFolder();
    LogAgent agent;
    SetLogLevel(2);
    EXPECT_EQ(Make<CBasicPublisherMgr>()->GetPublisherGUID("R"), "");
    EXPECT_EQ(agent.TakeAll(), std::vector{LogLine(4, "CBasicPublisherMgr::GetPublisherGUID, " + missing)});

    SetLogLevel(1);
    EXPECT_EQ(Make<CBasicPublisherMgr>()->GetPublisherGUID("R"), "");
    EXPECT_TRUE(agent.TakeAll().empty());
}

TEST(GetPublisherGUID, AnUnreadableFileReadsAsNotSet)
{
    WritePublisher("R", fullFile);
    std::filesystem::permissions(PublisherFile("R"), std::filesystem::perms::none);
    ASSERT_TRUE(TakeAwayPrivileges());
    EXPECT_EQ(Make<CBasicPublisherMgr>()->GetPublisherGUID("R"), "NotSet");
}

TEST(GetPublisherGUIDDeathTest, ANullIdStopsTheProcess)
{
    EXPECT_DEATH(Make<CBasicPublisherMgr>()->GetPublisherGUID(nullptr), "!= FALSE");
}

// ---------------------------------------------------------------------------------------------------------------------
// Copies and write speeds

TEST(GetCopiesMax, FollowsTheMode)
{
    const struct
    {
        std::unique_ptr<CBasicPublisherMgr> mgr;
        const char* mode;
        UINT copies;
    } rows[] = {
        {Make<CBasicPublisherMgr>(), "0", 1000}, {Make<CBasicPublisherMgr>(), "1", 1000},
        {Make<CBasicPublisherMgr>(), "2", 1000}, {Make<C30BDAPublisherMgr>(), "5", 50},
        {Make<C30BDAPublisherMgr>(), "6", 50},
    };
    for (const auto& row : rows) {
        WritePublisher("R", std::string("[Common]\nPublishMode=") + row.mode + "\n");
        EXPECT_EQ(row.mgr->GetCopiesMax("R", false), row.copies) << row.mode;
        EXPECT_EQ(row.mgr->GetCopiesMax("R", true), row.copies) << row.mode;
    }
}

TEST(GetCopiesMax, WithoutAFileTheDefaultModeApplies)
{
    EXPECT_EQ(Make<CBasicPublisherMgr>()->GetCopiesMax("absent", false), 1000u);
}

/// A future model with a mode that has no limit of copies.
class SecurityModeMgr : public CBasicPublisherMgr
{
public:
    using CBasicPublisherMgr::CBasicPublisherMgr;
    bool IsSupportPublishMode(UINT) override
    {
        return true;
    }
};

TEST(GetCopiesMaxDeathTest, AnUnsupportedModeStopsTheProcess)
{
    WritePublisher("R", "[Common]\nPublishMode=1\n");
    EXPECT_DEATH(Make<CSDPublisherMgr>()->GetCopiesMax("R", false), "!= FALSE");
    EXPECT_DEATH(Make<CBasicPublisherMgr>()->GetCopiesMax(nullptr, false), "!= FALSE");
    WritePublisher("R", "[Common]\nPublishMode=3\n");
    EXPECT_DEATH(Make<SecurityModeMgr>()->GetCopiesMax("R", false), "!= FALSE");
}

TEST(WriteSpeeds, ModelsWithTwoDrivesReturnThemForEachDrive)
{
    WritePublisher("R", fullFile);
    WriteRegistry(DeviceSection("{G}", "\"DRV1SupportWriteSpeed\"=\"CD-R:40\"\n"
                                       "\"DRV2SupportWriteSpeed\"=\"CD-R:48;DVD-R:8,12\"\n"
                                       "\"DRVSupportWriteSpeed\"=\"single\"\n"));
    const auto mgr = Make<C300MODPublisherMgr>();
    EXPECT_EQ(mgr->GetSupportWriteSpeedString("R", 1), "CD-R:40");
    EXPECT_EQ(mgr->GetSupportWriteSpeedString("R", 2), "CD-R:48;DVD-R:8,12");
    EXPECT_EQ(mgr->GetSupportWriteSpeedString("R", 0), "");
    EXPECT_EQ(mgr->GetSupportWriteSpeedString("R", 3), "");
    EXPECT_EQ(mgr->GetSupportWriteSpeedString("absent", 1), "");
}

TEST(WriteSpeeds, ModelsWithOneDriveReturnThemForDrive1)
{
    WritePublisher("R", fullFile);
    WriteRegistry(DeviceSection("{G}", "\"DRV1SupportWriteSpeed\"=\"CD-R:40\"\n"
                                       "\"DRVSupportWriteSpeed\"=\"CD-R:16\"\n"));
    for (const auto& make : {Make<CSDPublisherMgr>, Make<C30BDPublisherMgr>, Make<C30BDAPublisherMgr>,
                             Make<C30IIPublisherMgr>, Make<C30IIBDXLPublisherMgr>}) {
        EXPECT_EQ(make()->GetSupportWriteSpeedString("R", 1), "CD-R:16");
        EXPECT_EQ(make()->GetSupportWriteSpeedString("R", 0), "");
        EXPECT_EQ(make()->GetSupportWriteSpeedString("R", 2), "");
        EXPECT_EQ(make()->GetSupportWriteSpeedString("absent", 1), "");
    }
}

TEST(WriteSpeeds, AMissingDriveReadsNoFile)
{
    LogAgent agent; // a read of the absent file would be logged
    SetLogLevel(2);
    EXPECT_EQ(Make<CBasicPublisherMgr>()->GetSupportWriteSpeedString("R", 3), "");
    EXPECT_EQ(Make<CSDPublisherMgr>()->GetSupportWriteSpeedString("R", 2), "");
    EXPECT_TRUE(agent.TakeAll().empty());
}

TEST(WriteSpeeds, AMissingValueIsAnEmptyText)
{
    WritePublisher("R", fullFile);
    WriteRegistry(DeviceSection("{G}", "\"DRV1SupportWriteSpeed\"=dword:00000001\n"));
    EXPECT_EQ(Make<CBasicPublisherMgr>()->GetSupportWriteSpeedString("R", 1), "");
    EXPECT_EQ(Make<CBasicPublisherMgr>()->GetSupportWriteSpeedString("R", 2), "");
}

TEST(WriteSpeedsDeathTest, ANullIdStopsTheProcess)
{
    EXPECT_DEATH(Make<CBasicPublisherMgr>()->GetSupportWriteSpeedString(nullptr, 3), "!= FALSE");
    EXPECT_DEATH(Make<CSDPublisherMgr>()->GetSupportWriteSpeedString(nullptr, 2), "!= FALSE");
}

// ---------------------------------------------------------------------------------------------------------------------
// Writing the record

PUBLISHERINFO LocalRecord()
{
    PUBLISHERINFO info;
    info.strGUID = "{G}";
    info.strPublisherRegistID = "R";
    info.strPublisherName = "Lab 1";
    info.uiPublishMode = 6;
    info.uiStacker1DiscType = 16;
    info.uiStacker2DiscType = 2;
    info.uiStacker3DiscType = 3;
    info.uiStacker4DiscType = 4;
    info.strPrinterName = "Printer 1";
    info.uiUseDrive = 2;
    info.uiRetryCount = 99;
    info.uiRetryCountW = 5;
    info.uiRetryCountR = 7;
    info.bContinuePublish = true;
    info.bAddErrorMark = false;
    return info;
}

const std::string driveless = "[Common]\n"
                              "GUID={G}\n"
                              "PublisherName=Lab 1\n"
                              "PublishMode=6\n"
                              "Stacker1=16\n"
                              "Stacker2=2\n"
                              "Stacker3=3\n"
                              "Stacker4=4\n"
                              "PrinterName=Printer 1\n"
                              "PublisherConnectionType=0\n";

TEST(UpdatePublisherInfo, WritesTheWholeSectionInOrder)
{
    MakePublisherFolder();
    EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublisherInfo(LocalRecord()));
    EXPECT_EQ(ReadPublisher("R"), driveless + "UseDrive=2\n"
                                              "RetryTimes=150000\n"
                                              "RetryTimesW=5\n"
                                              "RetryTimesR=7\n"
                                              "ReadBackContinue=1\n"
                                              "AddErrorMark=0\n");
}

TEST(UpdatePublisherInfo, EveryModelWithDrivesHasTheDriveKeys)
{
    for (const UINT type : {0u, 3u, 4u, 6u, 8u, 0x10000005u, 0x10000007u, 0x20000007u, 0x10000009u,
                            0x20000009u, 0x30000008u, 0x30000009u}) {
        MakePublisherFolder();
        PUBLISHERINFO info = LocalRecord();
        info.uiPublisherDevType = type;
        EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublisherInfo(info));
        EXPECT_THAT(ReadPublisher("R"), HasSubstr("\nUseDrive=2\nRetryTimes=")) << type;
        std::filesystem::remove(PublisherFile("R"));
    }
    for (const UINT type : {1u, 2u, 5u, 7u, 9u, 0xFFFFFFFFu}) {
        PUBLISHERINFO info = LocalRecord();
        info.uiPublisherDevType = type;
        EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublisherInfo(info));
        EXPECT_EQ(ReadPublisher("R"), driveless) << type;
        std::filesystem::remove(PublisherFile("R"));
    }
}

TEST(UpdatePublisherInfo, TheModelWithoutDrivesLosesTheDriveKeys)
{
    WritePublisher("R", fullFile);
    PUBLISHERINFO info = LocalRecord();
    info.uiPublisherDevType = PUBMGR_PUBLISHERTYPE_AP;
    EXPECT_TRUE(Make<CAPPublisherMgr>()->UpdatePublisherInfo(info));
    PUBLISHERINFO back;
    ASSERT_TRUE(Make<CBasicPublisherMgr>()->GetPublisherInfo("R", &back, FALSE));
    EXPECT_EQ(back.strPublisherName, "Lab 1");
    // The new text is shorter; the end of the old text stays after it.
    EXPECT_THAT(ReadPublisher("R"), testing::StartsWith(driveless));
    EXPECT_EQ(ReadPublisher("R").size(), std::string(fullFile).size());
}

TEST(UpdatePublisherInfo, TheEffectiveRetryCountFollowsTheMode)
{
    const struct
    {
        UINT mode;
        bool goOn;
        const char* line;
    } rows[] = {
        {6, true, "\nRetryTimes=150000\n"}, {6, false, "\nRetryTimes=7\n"}, {0, true, "\nRetryTimes=5\n"},
        {0, false, "\nRetryTimes=5\n"},     {1, true, "\nRetryTimes=5\n"},  {2, false, "\nRetryTimes=5\n"},
        {5, true, "\nRetryTimes=5\n"},
    };
    MakePublisherFolder();
    for (const auto& row : rows) {
        PUBLISHERINFO info = LocalRecord();
        info.uiPublishMode = row.mode;
        info.bContinuePublish = row.goOn;
        EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublisherInfo(info));
        EXPECT_THAT(ReadPublisher("R"), HasSubstr(row.line)) << row.mode << row.goOn;
        std::filesystem::remove(PublisherFile("R"));
    }
}

TEST(UpdatePublisherInfo, EmptyTextsAreWrittenAsNotSetAndUnknownNumbersAsMinusOne)
{
    MakePublisherFolder();
    PUBLISHERINFO info;
    info.strPublisherRegistID = "R";
    info.uiPublishMode = 0xFFFFFFFF;
    info.uiPublisherType = 1;
    info.uiPublisherDevType = 2;
    EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublisherInfo(info));
    EXPECT_EQ(ReadPublisher("R"), "[Common]\nGUID=NotSet\nPublisherName=NotSet\nPublishMode=-1\nStacker1=1\n"
                                  "Stacker2=0\nStacker3=32\nStacker4=0\nPrinterName=NotSet\n"
                                  "PublisherConnectionType=1\n");
}

TEST(UpdatePublisherInfo, AFailureIsLogged)
{
    LogAgent agent; // there is no folder, so the file cannot be created
    SetLogLevel(2);
    EXPECT_FALSE(Make<CBasicPublisherMgr>()->UpdatePublisherInfo(LocalRecord()));
    EXPECT_EQ(agent.TakeAll(),
              std::vector{LogLine(4, "CBasicPublisherMgr::UpdatePublisherInfo, WritePrivateProfileSection "
                                     "failed, \"/opt/arven/Ulmar Disc Maker/conf/RegPublisher/R.ini\"")});

    SetLogLevel(1);
    EXPECT_FALSE(Make<CBasicPublisherMgr>()->UpdatePublisherInfo(LocalRecord()));
    EXPECT_TRUE(agent.TakeAll().empty());
}

TEST(UpdatePublisherInfo, ANameCannotForgeKeys)
{
    for (const std::string& name :
         {std::string("Lab\nPublishMode=99\n[Common]"), std::string("Lab\r\nPublishMode=99"),
          std::string("Lab\0PublishMode=99", 18)}) {
        MakePublisherFolder();
        PUBLISHERINFO info = LocalRecord();
        info.strPublisherName = name;
        info.strPrinterName = "\n[Other]";
        EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublisherInfo(info));
        PUBLISHERINFO back;
        ASSERT_TRUE(Make<CBasicPublisherMgr>()->GetPublisherInfo("R", &back, FALSE));
        EXPECT_EQ(back.strPublisherName, "Lab");
        EXPECT_EQ(back.strPrinterName, "NotSet");
        EXPECT_EQ(back.uiPublishMode, 6u);
        EXPECT_EQ(ReadPublisher("R").find("99"), std::string::npos);
        std::filesystem::remove(PublisherFile("R"));
    }
}

TEST(UpdatePublisherInfo, ANameWithABracketKeepsTheOtherKeys)
{
    MakePublisherFolder();
    for (const char* name : {"Lab [2]", "[Common]", "Lab [2", "]["}) {
        PUBLISHERINFO info = LocalRecord();
        info.strPublisherName = name;
        for (UINT mode : {0u, 1u, 2u}) {
            info.uiPublishMode = mode;
            EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublisherInfo(info));
            PUBLISHERINFO back;
            ASSERT_TRUE(Make<CBasicPublisherMgr>()->GetPublisherInfo("R", &back, FALSE));
            EXPECT_EQ(back.strPublisherName, name);
            EXPECT_EQ(back.uiPublishMode, mode);
            EXPECT_EQ(back.strPrinterName, "Printer 1");
            EXPECT_EQ(back.uiUseDrive, 2u);
        }
    }
}

TEST(UpdatePublisherInfo, NamesOfAnyLengthDoNotChangeOtherFiles)
{
    WritePublisher("other", fullFile);
    for (const size_t length : {255u, 256u, 1000u, 1023u, 1024u, 5000u, 100000u}) {
        PUBLISHERINFO info = LocalRecord();
        info.strPublisherName = std::string(length, 'n');
        info.strGUID = std::string(length, 'g');
        EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublisherInfo(info));
        PUBLISHERINFO back;
        ASSERT_TRUE(Make<CBasicPublisherMgr>()->GetPublisherInfo("R", &back, FALSE));
        EXPECT_EQ(back.strPublisherName, std::string(255, 'n'));
        EXPECT_EQ(back.uiPublishMode, 6u);
        std::filesystem::remove(PublisherFile("R"));
    }
    EXPECT_EQ(ReadPublisher("other"), fullFile);
}

TEST(UpdatePublisherInfo, AnIdOfAnyLengthWritesOneFileOrNone)
{
    MakePublisherFolder();
    PUBLISHERINFO info = LocalRecord();
    info.strPublisherRegistID = std::string(251, 'i');
    EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublisherInfo(info));
    EXPECT_NE(ReadPublisher(std::string(251, 'i')), "");
    info.strPublisherRegistID = std::string(5000, 'i');
    SetLogLevel(2);
    EXPECT_FALSE(Make<CBasicPublisherMgr>()->UpdatePublisherInfo(info));
}

TEST(UpdatePublisherInfoDeathTest, ARecordWithoutAnIdStopsTheProcess)
{
    EXPECT_DEATH(Make<CBasicPublisherMgr>()->UpdatePublisherInfo(PUBLISHERINFO()), "!= FALSE");
}

} // namespace

// The store of setting files: creation, listing, names and removal.
#include "LogAgent.h"
#include "ManagerLog.h"
#include "OpenDescriptors.h"
#include "OrdinaryRights.h"
#include "PublisherFiles.h"
#include "PublisherMgr.h"
#include "Win_def_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const std::string publisherFolder = "/opt/arven/Ulmar Disc Maker/conf/RegPublisher";

std::vector<std::string> Ids(CPublisherMgr& mgr)
{
    CStringArray ids;
    const int count = mgr.EnumRegistedPublisher(&ids);
    EXPECT_EQ(count, ids.GetSize());
    return {ids.begin(), ids.end()};
}

TEST(SettingFolder, IsThatOfTheInstallation)
{
    CPublisherMgr mgr(true);
    EXPECT_EQ(mgr.GetSettingFolderePath(), publisherFolder);
    EXPECT_FALSE(mgr.IsExistSettingFolder());
    EXPECT_TRUE(mgr.CreateSettingFolder());
    EXPECT_FALSE(fs::exists(publisherFolder));
    MakePublisherFolder();
    EXPECT_TRUE(mgr.IsExistSettingFolder());
}

TEST(SettingFolder, ExistsEvenIfItMayNotBeEntered)
{
    MakePublisherFolder();
    fs::permissions(publisherFolder, fs::perms::owner_read);
    ASSERT_TRUE(TakeAwayPrivileges());
    EXPECT_TRUE(CPublisherMgr(true).IsExistSettingFolder());
}

TEST(CreatePublisherSettingFile, CreatesAnEmptyFileOnce)
{
    MakePublisherFolder();
    CPublisherMgr mgr(true);
    EXPECT_EQ(mgr.CreatePublisherSettingFile("{ARPUB20260101_1}"), 0);
    EXPECT_TRUE(fs::is_regular_file(publisherFolder + "/{ARPUB20260101_1}.ini"));
    EXPECT_EQ(ReadPublisher("{ARPUB20260101_1}"), "");
    WritePublisher("{ARPUB20260101_1}", "kept");
    EXPECT_EQ(mgr.CreatePublisherSettingFile("{ARPUB20260101_1}"), 1);
    EXPECT_EQ(ReadPublisher("{ARPUB20260101_1}"), "kept");
}

TEST(CreatePublisherSettingFile, LeavesNoDescriptorOpen)
{
    MakePublisherFolder();
    CPublisherMgr mgr(true);
    const size_t before = OpenDescriptors();
    EXPECT_EQ(mgr.CreatePublisherSettingFile("R"), 0);
    EXPECT_TRUE(mgr.IsExistRegistedPublisher("R", FALSE));
    EXPECT_EQ(OpenDescriptors(), before);
}

TEST(CreatePublisherSettingFile, Failures)
{
    CPublisherMgr mgr(true);
    EXPECT_EQ(mgr.CreatePublisherSettingFile(nullptr), -1);
    EXPECT_EQ(mgr.CreatePublisherSettingFile("R"), 1); // no folder
    MakePublisherFolder();
    EXPECT_EQ(mgr.CreatePublisherSettingFile(std::string(252, 'i').c_str()), 1);
    EXPECT_EQ(mgr.CreatePublisherSettingFile(std::string(100000, 'i').c_str()), 1);
}

TEST(IsExistSettingFile, IsTrueForAnyFileWithTheName)
{
    CPublisherMgr mgr(true);
    EXPECT_FALSE(mgr.IsExistSettingFile("P"));
    WritePublisher("P", "");
    EXPECT_TRUE(mgr.IsExistSettingFile("P"));
    EXPECT_FALSE(mgr.IsExistSettingFile("p"));
    fs::permissions(PublisherFile("P"), fs::perms(0));
    EXPECT_TRUE(mgr.IsExistSettingFile("P"));
    fs::remove(PublisherFile("P"));
    fs::create_symlink("/tmp/nothing", PublisherFile("P"));
    EXPECT_FALSE(mgr.IsExistSettingFile("P"));
}

TEST(AddPublisher, WritesTheRecordUnderItsOwnId)
{
    MakePublisherFolder();
    CPublisherMgr mgr(true);
    PUBLISHERINFO info;
    info.strPublisherRegistID = "mine";
    info.strPublisherName = "Lab";
    info.uiPublisherDevType = PUBMGR_PUBLISHERTYPE_30II;
    EXPECT_TRUE(mgr.AddPublisher("not looked at", info));
    EXPECT_TRUE(mgr.AddPublisher(nullptr, info));
    EXPECT_EQ(mgr.GetPublisherName("mine"), "Lab");
    EXPECT_FALSE(fs::exists(PublisherFile("not looked at")));
    info.uiPublisherDevType = 5;
    EXPECT_FALSE(mgr.AddPublisher("mine", info));
}

TEST(AddPublisher, FailsIfTheRecordCannotBeWritten)
{
    CPublisherMgr mgr(true); // there is no folder, so the file cannot be created
    PUBLISHERINFO info;
    info.strPublisherRegistID = "mine";
    info.uiPublisherDevType = PUBMGR_PUBLISHERTYPE_30II;
    EXPECT_FALSE(mgr.AddPublisher("mine", info));
}

TEST(FacadeUpdatePublisherInfo, FailsIfTheRecordCannotBeWritten)
{
    WriteLocalPublisher("R", "00000008");
    CPublisherMgr mgr(true);
    PUBLISHERINFO info;
    ASSERT_TRUE(mgr.GetPublisherInfo("R", &info, FALSE));
    fs::permissions(PublisherFile("R"), fs::perms::owner_read);
    ASSERT_TRUE(TakeAwayPrivileges());
    EXPECT_FALSE(mgr.UpdatePublisherInfo(info));
}

TEST(FacadeUpdatePublisherInfo, WritesThroughTheModel)
{
    WriteLocalPublisher("R", "00000008");
    CPublisherMgr mgr(true);
    PUBLISHERINFO info;
    ASSERT_TRUE(mgr.GetPublisherInfo("R", &info, FALSE));
    info.strPublisherName = "Other";
    EXPECT_TRUE(mgr.UpdatePublisherInfo(info));
    EXPECT_EQ(mgr.GetPublisherName("R"), "Other");
    info.strPublisherRegistID = "";
    EXPECT_FALSE(mgr.UpdatePublisherInfo(info));
}

TEST(DeletePublisher, RemovesOnlyTheFile)
{
    WriteLocalPublisher("R", "00000008");
    WritePublisher("S", "[Common]\n");
    const std::string registry = ReadText(REGISTRY_FILE);
    CPublisherMgr mgr(true);
    EXPECT_TRUE(mgr.DeletePublisher("R"));
    EXPECT_FALSE(fs::exists(PublisherFile("R")));
    EXPECT_TRUE(fs::exists(PublisherFile("S")));
    EXPECT_EQ(ReadText(REGISTRY_FILE), registry);
}

TEST(DeletePublisher, DoesNotReportAnEarlierError)
{
    WritePublisher("R", "[Common]\n");
    CPublisherMgr mgr(true);
    SetLastError(ERROR_ACCESS_DENIED);
    EXPECT_TRUE(mgr.DeletePublisher("R"));
}

TEST(DeletePublisher, SucceedsForAnAbsentPublisher)
{
    CPublisherMgr mgr(true);
    EXPECT_TRUE(mgr.DeletePublisher("R"));
    MakePublisherFolder();
    EXPECT_TRUE(mgr.DeletePublisher("R"));
}

TEST(DeletePublisher, FailsIfTheFileCannotBeDeleted)
{
    MakePublisherFolder();
    fs::create_directory(PublisherFile("R"));
    CPublisherMgr mgr(true);
    EXPECT_FALSE(mgr.DeletePublisher("R"));
}

TEST(DeletePublisherDeathTest, ANullIdStopsTheProcess)
{
    EXPECT_DEATH(CPublisherMgr(true).DeletePublisher(nullptr), "!= FALSE");
}

TEST(EnumRegistedPublisher, AMissingFolderLeavesTheArrayAsItWas)
{
    CPublisherMgr mgr(true);
    CStringArray ids;
    ids.Add("old");
    EXPECT_EQ(mgr.EnumRegistedPublisher(&ids), 0);
    ASSERT_EQ(ids.GetSize(), 1);
    EXPECT_EQ(ids[0], "old");
}

TEST(EnumRegistedPublisher, AppendsAndCountsOnlyThisCall)
{
    WritePublisher("A", "");
    WritePublisher("B", "");
    WriteText(publisherFolder + "/notes.txt", "");
    CPublisherMgr mgr(true);
    CStringArray ids;
    ids.Add("old");
    EXPECT_EQ(mgr.EnumRegistedPublisher(&ids), 2);
    EXPECT_THAT(std::vector<std::string>(ids.begin(), ids.end()),
                testing::UnorderedElementsAre("old", "A", "B"));
    EXPECT_EQ(ids[0], "old");
}

TEST(EnumRegistedPublisher, TheIdEndsAtTheFirstExtension)
{
    MakePublisherFolder();
    const std::string longest = std::string(251, 'x') + ".ini";
    const std::string bytes = "\xff\xfe\x80 \n\t";
    for (const std::string& name : {std::string("a.ini.bak"), std::string(".ini"), std::string("b.initial"),
                                    std::string("c.INI"), longest, bytes + ".ini", std::string("ini")}) {
        WriteText(publisherFolder + "/" + name, "");
    }
    CPublisherMgr mgr(true);
    EXPECT_THAT(Ids(mgr), testing::UnorderedElementsAre("a", "", "b", std::string(251, 'x'), bytes));
}

TEST(EnumRegistedPublisher, EveryOperationSurvivesOddFileNames)
{
    MakePublisherFolder();
    for (const std::string& name :
         {std::string("a.ini.bak"), std::string(".ini"), std::string(251, 'x') + ".ini",
          std::string("\xff%s%n\n[x].ini"), std::string("..ini")}) {
        WriteText(publisherFolder + "/" + name,
                  "[Common]\nPublisherName=" + std::string(3000, '%') + "\nGUID=..\\..\n");
    }
    WritePublisher("good", "[Common]\nPublisherName=Good\n");
    SetLogLevel(4);
    CPublisherMgr mgr(true);
    for (const std::string& id : Ids(mgr)) {
        PUBLISHERINFO info;
        mgr.GetPublisherInfo(id.c_str(), &info, FALSE);
        mgr.GetPublisherName(id.c_str());
        mgr.GetPublisherGUID(id.c_str());
        mgr.GetPublisherDevType(id.c_str());
        mgr.IsExistRegistedPublisher(id.c_str(), TRUE);
    }
    mgr.ClearUnusedGUID();
    CString found;
    mgr.GetPublisherRegistIDFromName("Good", &found);
    EXPECT_EQ(found, "good");
    EXPECT_EQ(ReadPublisher("good"), "[Common]\nPublisherName=Good\n");
}

TEST(EnumRegistedPublisher, IsTracedAtTheHighestLevel)
{
    LogAgent agent;
    CPublisherMgr mgr(true);
    CStringArray ids;
    SetLogLevel(3);
    mgr.EnumRegistedPublisher(&ids);
    EXPECT_TRUE(agent.TakeAll().empty());
    SetLogLevel(4);
    mgr.EnumRegistedPublisher(&ids);
    EXPECT_EQ(agent.TakeAll(), std::vector{LogLine(7, "CPublisherMgr::EnumRegistedPublisher, "
                                                      "opendir(\"" +
                                                          publisherFolder + "\")")});
}

TEST(PublisherName, ComesFromTheFile)
{
    WritePublisher("R", "[Common]\nPublisherName=Lab 1\n");
    WritePublisher("S", "[Common]\n");
    CPublisherMgr mgr(true);
    EXPECT_EQ(mgr.GetPublisherName("R"), "Lab 1");
    EXPECT_EQ(mgr.GetPublisherName("S"), "");
    EXPECT_EQ(mgr.GetPublisherName("absent"), "");
}

TEST(PublisherName, IsFoundCaseSensitively)
{
    WritePublisher("R", "[Common]\nPublisherName=Lab 1\n");
    WritePublisher("S", "[Common]\nPublisherName=NotSet\n");
    CPublisherMgr mgr(true);
    CString id = "old";
    mgr.GetPublisherRegistIDFromName("lab 1", &id);
    EXPECT_EQ(id, "");
    mgr.GetPublisherRegistIDFromName("Lab 1", &id);
    EXPECT_EQ(id, "R");
    EXPECT_TRUE(mgr.IsExistSameNamePublisher("Lab 1"));
    EXPECT_TRUE(mgr.IsExistSameNamePublisher("NotSet"));
    EXPECT_FALSE(mgr.IsExistSameNamePublisher("LAB 1"));
    EXPECT_FALSE(mgr.IsExistSameNamePublisher("Lab"));
}

TEST(PublisherName, OfSeveralPublishersFindsTheFirst)
{
    for (const char* id : {"A", "B", "C", "D", "E", "F"}) {
        WritePublisher(id, "[Common]\nPublisherName=Lab\n");
    }
    CPublisherMgr mgr(true);
    CString id;
    mgr.GetPublisherRegistIDFromName("Lab", &id);
    EXPECT_EQ(id, Ids(mgr).front());
}

TEST(PublisherNameDeathTest, NullArgumentsStopTheProcess)
{
    CString id;
    EXPECT_DEATH(CPublisherMgr(true).GetPublisherName(nullptr), "!= FALSE");
    EXPECT_DEATH(CPublisherMgr(true).GetPublisherRegistIDFromName(nullptr, &id), "!= FALSE");
    EXPECT_DEATH(CPublisherMgr(true).GetPublisherRegistIDFromName("Lab", nullptr), "!= FALSE");
    EXPECT_DEATH(CPublisherMgr(true).IsExistSameNamePublisher(nullptr), "!= FALSE");
}

TEST(IsExistRegistedPublisher, ACorrectNameHas64BytesAndNoBackslash)
{
    CPublisherMgr mgr(true);
    const struct
    {
        std::string name;
        bool correct;
    } rows[] = {{"Lab", true},   {"", true},   {std::string(64, 'n'), true}, {std::string(65, 'n'), false},
                {"a\\b", false}, {"\\", false}};
    for (const auto& row : rows) {
        WritePublisher("R", "[Common]\nPublisherName=" + row.name + "\n");
        EXPECT_TRUE(mgr.IsExistRegistedPublisher("R", FALSE)) << row.name;
        EXPECT_EQ(mgr.IsExistRegistedPublisher("R", TRUE), row.correct) << row.name;
        EXPECT_EQ(mgr.IsExistRegistedPublisher(nullptr, TRUE), row.correct) << row.name;
    }
    EXPECT_FALSE(mgr.IsExistRegistedPublisher("absent", FALSE));
    EXPECT_FALSE(mgr.IsExistRegistedPublisher("absent", TRUE));
}

TEST(IsExistRegistedPublisher, AnyPublisherMeansOneWithAnId)
{
    CPublisherMgr mgr(true);
    EXPECT_FALSE(mgr.IsExistRegistedPublisher(nullptr, TRUE));
    WritePublisher("", "[Common]\nPublisherName=Lab\n");
    EXPECT_FALSE(mgr.IsExistRegistedPublisher(nullptr, TRUE));
    WritePublisher("R", "[Common]\nPublisherName=Lab\n");
    EXPECT_TRUE(mgr.IsExistRegistedPublisher(nullptr, TRUE));
}

TEST(IsExistRegistedPublisherDeathTest, ANullIdRequiresCorrectNames)
{
    EXPECT_DEATH(CPublisherMgr(true).IsExistRegistedPublisher(nullptr, FALSE), "!= FALSE");
}

} // namespace

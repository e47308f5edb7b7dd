// Changes of the publish mode and their effects.
#include "Models.h"
#include "PublisherFiles.h"
#include "StackerDiscs.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// A publisher in normal mode whose settings already fit the mode.
PUBLISHERINFO Stored()
{
    PUBLISHERINFO info;
    info.strGUID = "{G}";
    info.strPublisherRegistID = "R";
    info.strPublisherName = "Lab";
    info.uiPublishMode = 0;
    info.uiStacker1DiscType = cd;
    info.uiStacker2DiscType = out;
    info.uiStacker3DiscType = none;
    info.uiStacker4DiscType = out;
    info.uiUseDrive = 1;
    info.uiRetryCount = 5;
    info.uiRetryCountW = 5;
    info.uiRetryCountR = 7;
    return info;
}

void Store(const PUBLISHERINFO& info)
{
    MakePublisherFolder();
    std::filesystem::remove(PublisherFile("R"));
    ASSERT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublisherInfo(info));
}

PUBLISHERINFO Load()
{
    PUBLISHERINFO info;
    EXPECT_TRUE(Make<CBasicPublisherMgr>()->GetPublisherInfo("R", &info, FALSE));
    return info;
}

TEST(UpdatePublishMode, WritesThreeKeysAndLeavesTheRest)
{
    for (const auto& make : {Make<CBasicPublisherMgr>, Make<CAPPublisherMgr>}) {
        WritePublisher("R",
                       "[Common]\nPublisherName=Lab\nPublishMode=0\nStacker1=1\nStacker3=3\nStacker4=4\n");
        PUBLISHERINFO wanted = Stored();
        wanted.uiPublishMode = 2;
        wanted.uiStacker1DiscType = 9;
        wanted.uiStacker3DiscType = 8;
        wanted.uiStacker4DiscType = 0;
        bool setDefault = true;
        EXPECT_TRUE(make()->UpdatePublishMode("R", &wanted, false, &setDefault));
        EXPECT_FALSE(setDefault);
        EXPECT_EQ(ReadPublisher("R"),
                  "[Common]\nPublisherName=Lab\nPublishMode=2\nStacker1=1\nStacker3=8\nStacker4=0\n");
        EXPECT_TRUE(make()->UpdatePublishMode("R", &wanted, false, nullptr));
    }
}

TEST(UpdatePublishMode, ANullIdIsRefused)
{
    PUBLISHERINFO wanted;
    bool setDefault = true;
    EXPECT_FALSE(Make<CBasicPublisherMgr>()->UpdatePublishMode(nullptr, &wanted, true, &setDefault));
    EXPECT_FALSE(Make<CAPPublisherMgr>()->UpdatePublishMode(nullptr, &wanted, true, &setDefault));
    EXPECT_TRUE(setDefault);
}

TEST(UpdatePublishMode, UnchangedSettingsWriteNoRecord)
{
    Store(Stored());
    const std::string before = ReadPublisher("R");
    const PUBLISHERINFO wanted = Load();
    bool setDefault = true;
    EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublishMode("R", &wanted, true, &setDefault));
    EXPECT_FALSE(setDefault);
    EXPECT_EQ(ReadPublisher("R"), before);
    EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublishMode("R", &wanted, true, nullptr));
}

TEST(UpdatePublishMode, BatchAdjustsTheStackersAndReportsTheChange)
{
    PUBLISHERINFO stored = Stored();
    stored.bAddErrorMark = false;
    Store(stored);
    PUBLISHERINFO wanted = Load();
    wanted.uiPublishMode = PUBMGR_PUBLISHMODE_BATCH;
    wanted.bAddErrorMark = true;
    bool setDefault = false;
    EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublishMode("R", &wanted, true, &setDefault));
    EXPECT_TRUE(setDefault);
    const PUBLISHERINFO after = Load();
    EXPECT_EQ(after.uiPublishMode, 1u);
    EXPECT_EQ(after.uiStacker1DiscType, cd);
    EXPECT_EQ(after.uiStacker2DiscType, cd);
    EXPECT_EQ(after.uiStacker3DiscType, out);
    EXPECT_EQ(after.uiStacker4DiscType, none);
    EXPECT_TRUE(after.bAddErrorMark);
}

TEST(UpdatePublishMode, TheFieldsOfTheCallerAreStored)
{
    const struct
    {
        const char* name;
        void (*change)(PUBLISHERINFO&);
        bool (*taken)(const PUBLISHERINFO&);
    } rows[] = {
        {"drive", [](PUBLISHERINFO& i) { i.uiUseDrive = 2; },
         [](const PUBLISHERINFO& i) { return i.uiUseDrive == 2; }},
        {"continue", [](PUBLISHERINFO& i) { i.bContinuePublish = false; },
         [](const PUBLISHERINFO& i) { return !i.bContinuePublish; }},
        {"retry W", [](PUBLISHERINFO& i) { i.uiRetryCountW = 11; },
         [](const PUBLISHERINFO& i) { return i.uiRetryCountW == 11; }},
        {"retry R", [](PUBLISHERINFO& i) { i.uiRetryCountR = 12; },
         [](const PUBLISHERINFO& i) { return i.uiRetryCountR == 12; }},
        {"error mark", [](PUBLISHERINFO& i) { i.bAddErrorMark = false; },
         [](const PUBLISHERINFO& i) { return !i.bAddErrorMark; }},
    };
    for (const auto& row : rows) {
        Store(Stored());
        PUBLISHERINFO wanted = Load();
        row.change(wanted);
        bool setDefault = true;
        EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublishMode("R", &wanted, true, &setDefault));
        EXPECT_FALSE(setDefault) << row.name;
        EXPECT_TRUE(row.taken(Load())) << row.name;
    }
}

TEST(UpdatePublishMode, AChangedRetryCountAloneWritesTheRecord)
{
    Store(Stored());
    // An unknown key: it disappears when the record is rewritten.
    ASSERT_TRUE(WritePrivateProfileStringA("Common", "Extra", "1", PublisherFile("R").c_str()));
    ASSERT_EQ(ReadPublisher("R").substr(0, 16), "[Common]\nExtra=1");
    PUBLISHERINFO wanted = Load();
    wanted.uiRetryCount = 9;
    bool setDefault = true;
    EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublishMode("R", &wanted, true, &setDefault));
    EXPECT_FALSE(setDefault);
    EXPECT_NE(ReadPublisher("R").substr(0, 16), "[Common]\nExtra=1");
    EXPECT_EQ(Load().uiRetryCount, 5u); // the effective count follows from mode and retries
}

TEST(UpdatePublishMode, ModelsWithoutDriveChoiceKeepTheirDrive)
{
    PUBLISHERINFO stored = Stored();
    stored.uiStacker3DiscType = out;
    stored.uiStacker4DiscType = none;
    Store(stored);
    const std::string before = ReadPublisher("R");
    PUBLISHERINFO wanted = Load();
    wanted.uiUseDrive = 2;
    bool setDefault = true;
    EXPECT_TRUE(Make<CSDPublisherMgr>()->UpdatePublishMode("R", &wanted, true, &setDefault));
    EXPECT_FALSE(setDefault);
    EXPECT_EQ(ReadPublisher("R"), before);
}

TEST(UpdatePublishMode, AWrittenRecordHasTheDriveKeysForEveryModel)
{
    // The record is read again from the file, which does not contain the model.
    PUBLISHERINFO stored = Stored();
    stored.uiPublisherDevType = PUBMGR_PUBLISHERTYPE_AP;
    stored.uiStacker2DiscType = in;
    Store(stored);
    EXPECT_EQ(ReadPublisher("R").find("UseDrive"), std::string::npos);
    bool setDefault = false;
    EXPECT_TRUE(Make<CAPPublisherMgr>()->UpdatePublishMode("R", &stored, true, &setDefault));
    EXPECT_TRUE(setDefault);
    EXPECT_NE(ReadPublisher("R").find("UseDrive"), std::string::npos);
}

TEST(UpdatePublishModeDeathTest, UnexpectedFailuresStopTheProcess)
{
    PUBLISHERINFO wanted = Stored();
    bool setDefault = false;
    const auto mgr = Make<CBasicPublisherMgr>();
    // No folder, so nothing can be written.
    EXPECT_DEATH(mgr->UpdatePublishMode("R", &wanted, false, &setDefault), "!= FALSE");
    EXPECT_DEATH(mgr->UpdatePublishMode("R", nullptr, false, &setDefault), "!= FALSE");
    Store(Stored());
    wanted.uiPublishMode = 3;
    EXPECT_DEATH(mgr->UpdatePublishMode("R", &wanted, true, &setDefault), "!= FALSE");
    wanted.uiPublishMode = 1;
    EXPECT_DEATH(mgr->UpdatePublishMode("R", &wanted, true, nullptr), "!= FALSE");
}

/// A model with its own functions to read and write the record.
template <class Base>
class OwnRecordMgr : public Base
{
public:
    using Base::Base;

    bool GetPublisherInfo(LPCTSTR, PUBLISHERINFO* psPublisherInfo, BOOL) override
    {
        *psPublisherInfo = record;
        return readable;
    }
    bool UpdatePublisherInfo(PUBLISHERINFO sPublisherInfo) override
    {
        record = sPublisherInfo;
        return writable;
    }

    PUBLISHERINFO record;
    bool readable = true;
    bool writable = true;
};

template <class Base>
void ExpectModelsOwnRecord()
{
    Store(Stored());
    PUBLISHERINFO wanted = Stored();
    OwnRecordMgr<Base> mgr(true, PUBLISHER_SETTING_DIR);
    mgr.record = wanted;
    mgr.record.uiStacker2DiscType = in;
    bool setDefault = false;
    EXPECT_TRUE(mgr.UpdatePublishMode("R", &wanted, true, &setDefault));
    EXPECT_TRUE(setDefault);
    EXPECT_EQ(mgr.record.uiStacker2DiscType, out);

    mgr.record.uiStacker2DiscType = in;
    mgr.writable = false;
    EXPECT_DEATH(mgr.UpdatePublishMode("R", &wanted, true, &setDefault), "!= FALSE");
    mgr.readable = false;
    mgr.writable = true;
    EXPECT_DEATH(mgr.UpdatePublishMode("R", &wanted, true, &setDefault), "!= FALSE");
}

TEST(UpdatePublishModeDeathTest, TheFunctionsOfTheModelReadAndWriteTheRecord)
{
    ExpectModelsOwnRecord<CBasicPublisherMgr>();
    ExpectModelsOwnRecord<CAPPublisherMgr>();
}

TEST(GetCopiesMax, UsesTheRecordOfTheModel)
{
    OwnRecordMgr<C300MODPublisherMgr> mgr(true, PUBLISHER_SETTING_DIR);
    mgr.record.uiPublishMode = PUBMGR_PUBLISHMODE_READ;
    mgr.readable = false; // its result is ignored
    EXPECT_EQ(mgr.GetCopiesMax("R", false), 50u);
}

// ---------------------------------------------------------------------------------------------------------------------
// The model without drives has its own rule

TEST(UpdatePublishMode, RuleOfTheModelWithoutDrives)
{
    const struct
    {
        UINT mode;
        UINT stacker2;
        UINT stacker3;
        UINT stacker4;
        UINT after2;
        UINT after3;
        UINT after4;
    } rows[] = {
        // Normal
        {0, out, none, out, out, none, out},
        {0, cd, none, out, out, none, out},
        {0, out, out, cd, out, out, cd},
        {0, out, cd, cd, out, none, out},
        {0, in, in, none, out, none, out},
        // Batch
        {1, in, out, cd, in, out, cd},
        {1, out, out, none, in, out, none},
        {1, in, none, out, in, out, none},
        {1, cd, cd, cd, in, out, none},
        // Output
        {2, in, none, cd, in, none, cd},
        {2, out, out, out, in, out, out},
        {2, in, cd, none, in, none, out},
    };
    for (const auto& row : rows) {
        PUBLISHERINFO stored = Stored();
        stored.uiStacker1DiscType = 77;
        stored.uiStacker2DiscType = row.stacker2;
        Store(stored);
        PUBLISHERINFO wanted;
        wanted.uiPublishMode = row.mode;
        wanted.uiStacker3DiscType = row.stacker3;
        wanted.uiStacker4DiscType = row.stacker4;
        wanted.uiRetryCountW = 44;
        const bool changes =
            row.stacker2 != row.after2 || row.stacker3 != row.after3 || row.stacker4 != row.after4;
        bool setDefault = !changes;
        EXPECT_TRUE(Make<CAPPublisherMgr>()->UpdatePublishMode("R", &wanted, true, &setDefault));
        EXPECT_EQ(setDefault, changes);
        const PUBLISHERINFO after = Load();
        EXPECT_EQ(after.uiPublishMode, row.mode);
        EXPECT_EQ(after.uiStacker1DiscType, 77u);
        EXPECT_EQ(after.uiStacker2DiscType, row.after2);
        EXPECT_EQ(after.uiStacker3DiscType, row.after3);
        EXPECT_EQ(after.uiStacker4DiscType, row.after4);
        EXPECT_NE(after.uiRetryCountW, 44u);
    }
}

TEST(UpdatePublishMode, TheModelWithoutDrivesAcceptsANullFlag)
{
    Store(Stored());
    PUBLISHERINFO wanted = Stored();
    wanted.uiPublishMode = 1;
    EXPECT_TRUE(Make<CAPPublisherMgr>()->UpdatePublishMode("R", &wanted, true, nullptr));
    EXPECT_EQ(Load().uiStacker2DiscType, in);
}

TEST(UpdatePublishModeDeathTest, AnyOtherModeStopsTheModelWithoutDrives)
{
    Store(Stored());
    PUBLISHERINFO wanted = Stored();
    bool setDefault = false;
    for (const UINT mode : {5u, 6u}) {
        wanted.uiPublishMode = mode;
        EXPECT_DEATH(Make<CAPPublisherMgr>()->UpdatePublishMode("R", &wanted, true, &setDefault), "!= FALSE");
    }
}

} // namespace

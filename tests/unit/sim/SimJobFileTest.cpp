// Validation of job files: their form, their values and their publisher.
#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "JobFile.h"
#include "JobFilesFixture.h"
#include "RoomFixture.h"

namespace {

constexpr char PUBLISHER[] = "[publisher A]\nmodel = RT-300III BD\nid = {ARPUB20260105_1}\nname = Studio\n";

/// The reason why the service refuses a job file; empty if it accepts the file.
std::string refusalIn(OpenRoom& open, const std::string& text)
{
    putFile(JOBS + std::string("x_0000.epj"), text);
    open.room.advance(0);
    open.room.waitForTakenFiles(1);
    EXPECT_FALSE(std::filesystem::exists(JOBS + std::string("x_0000.epj")));
    const auto taken = open.room.takenFiles();
    EXPECT_EQ(taken.back().file, "x_0000.epj");
    EXPECT_EQ(taken.back().job.empty(), !taken.back().refusal.empty());
    return taken.back().refusal;
}

std::string mistakeIn(const std::string& text)
{
    std::string error;
    EXPECT_FALSE(udsim::parseJobFile(text, error)) << text;
    return error;
}

} // namespace

TEST(SimJobFile, AHeadCleaning)
{
    std::string error;
    const auto job = udsim::parseJobFile(HEAD_CLEANING, error);
    ASSERT_TRUE(job) << error;
    EXPECT_EQ(job->id, CLEANING_ID);
    EXPECT_EQ(job->publisher, "{ARPUB20260105_1}");
    EXPECT_EQ(job->dataPath, "/opt/arven/Ulmar Disc Maker/res/prnfile/headCleaning.prn");
    EXPECT_TRUE(job->cleaning);
    EXPECT_EQ(job->load, -1);
    EXPECT_EQ(job->eject, -1);
}

TEST(SimJobFile, ANozzleCheck)
{
    std::string error;
    const auto job = udsim::parseJobFile(NOZZLE_CHECK, error);
    ASSERT_TRUE(job) << error;
    EXPECT_EQ(job->id, NOZZLE_ID);
    EXPECT_EQ(job->dataPath, "/opt/arven/Ulmar Disc Maker/res/prnfile/nozzleCheck.prn");
    EXPECT_FALSE(job->cleaning);
    EXPECT_EQ(job->load, 1);
    EXPECT_EQ(job->eject, 2);
}

TEST(SimJobFile, EveryLineIsRequiredInItsPlace)
{
    const std::string whole = HEAD_CLEANING;
    size_t lines = 0;
    for (size_t start = 0; start < whole.size(); ++lines) {
        const size_t next = whole.find('\n', start) + 1;
        std::string without = whole;
        without.erase(start, next - start);
        EXPECT_EQ(mistakeIn(without).find("line " + std::to_string(lines + 1) + ": "), 0U) << without;
        std::string twice = whole;
        twice.insert(start, whole, start, next - start);
        EXPECT_EQ(mistakeIn(twice).find("line " + std::to_string(lines + 2) + ": "), 0U) << twice;
        start = next;
    }
    EXPECT_EQ(lines, 20U);
}

TEST(SimJobFile, TheFormMustMatchExactly)
{
    const std::string whole = HEAD_CLEANING;
    const std::pair<std::string, std::string> table[] = {
        {"", "the file is empty"},
        {whole.substr(0, whole.size() - 1), "the last line has no end"},
        {"\n" + whole, "line 1: \"[Common]\" expected, not \"\""},
        {whole + "\n", "line 21: more than the job"},
        {with(whole, "[Common]", "[common]"), "line 1: \"[Common]\" expected, not \"[common]\""},
        {with(whole, "[Print]", "Print"), "line 16: \"[Print]\" expected, not \"Print\""},
        {with(whole, "\n\n", "\n \n"), "line 15: \"\" expected, not \" \""},
        {with(whole, "Load = -1", "Load=-1"), "line 5: \"Load = \" expected, not \"Load=-1\""},
        {with(whole, "Load = -1", " Load = -1"), "line 5: \"Load = \" expected, not \" Load = -1\""},
        {with(whole, "PublishID = \n", "PublishID =\n"),
         "line 13: \"PublishID = \" expected, not \"PublishID =\""},
        {with(whole, "Load = -1\nEject = -1", "Eject = -1\nLoad = -1"),
         "line 5: \"Load = \" expected, not \"Eject = -1\""},
        {with(whole, "[Common]\n", "[Common]\r\n"), "line 1: a control character"},
        {with(whole, "Silent = 0", "Silent = 0\t"), "line 14: a control character"},
        {with(whole, "{ARPUB", std::string("{AR\0PUB", 7)), "line 4: a control character"},
        {with(whole, "{ARPUB", "\x7F"), "line 4: a control character"},
    };
    for (const auto& [text, mistake] : table) {
        EXPECT_EQ(mistakeIn(text), mistake);
    }
}

TEST(SimJobFile, EveryRefusal)
{
    struct Row
    {
        const char* piece;
        std::string other;
        std::string refusal;
    };
    const Row cleaning[] = {
        {"0x01050000", "0x01030000", "line 2: Version is \"0x01030000\", not \"0x01050000\""},
        {"LOCALHOST_", "OTHERHOST_", "line 3: \"OTHERHOST_20260105093007042_UDSetup_0000\" is no job id"},
        {"_UDSetup_0000", "_UDSetup_0001",
         "line 3: \"LOCALHOST_20260105093007042_UDSetup_0001\" is no job id"},
        {"20260105", "2026010", "line 3: \"LOCALHOST_2026010093007042_UDSetup_0000\" is no job id"},
        {"20260105", "2026O105", "line 3: \"LOCALHOST_2026O105093007042_UDSetup_0000\" is no job id"},
        {"20260105", "20260005", "line 3: \"LOCALHOST_20260005093007042_UDSetup_0000\" is no job id"},
        {"20260105", "20260230", "line 3: \"LOCALHOST_20260230093007042_UDSetup_0000\" is no job id"},
        {"0105093007", "0105243007", "line 3: \"LOCALHOST_20260105243007042_UDSetup_0000\" is no job id"},
        {"0105093007", "0105096007", "line 3: \"LOCALHOST_20260105096007042_UDSetup_0000\" is no job id"},
        {"ID = LOCALHOST_20260105093007042_UDSetup_0000", "ID = ", "line 3: \"\" is no job id"},
        {"{ARPUB20260105_1}", "", "line 4: no publisher"},
        {"{ARPUB20260105_1}", "nobody", "no publisher \"nobody\" is registered"},
        {"{ARPUB20260105_1}", "spare", "no publisher \"spare\" is registered"},
        {"{ARPUB20260105_1}", "../RegPublisher/{ARPUB20260105_1}",
         "no publisher \"../RegPublisher/{ARPUB20260105_1}\" is registered"},
        {"{ARPUB20260105_1}", std::string(5000, 'x'),
         "no publisher \"" + std::string(80, 'x') + "...\" is registered"},
        {"Load = -1", "Load = 1", "Load is 1, not -1"},
        {"Load = -1", "Load = 7", "line 5: Load is \"7\", not a stacker"},
        {"Load = -1", "Load = -2", "line 5: Load is \"-2\", not a stacker"},
        {"Eject = -1", "Eject = 2", "Eject 2 does not fit publish mode 0"},
        {"Eject = -1", "Eject = ", "line 6: Eject is \"\", not a stacker"},
        {"Eject = -1", "Eject = 4", "line 6: Eject is \"4\", not a stacker"},
        {"Count = 0", "Count = 1", "line 7: Count is \"1\", not 0"},
        {"1767605407", "0", "line 8: Create is \"0\", not the time of the ID"},
        {"1767605407", "now", "line 8: Create is \"now\", not the time of the ID"},
        {"1767605407", "-1767605407", "line 8: Create is \"-1767605407\", not the time of the ID"},
        {"1767605407", "0x695B8A1F", "line 8: Create is \"0x695B8A1F\", not the time of the ID"},
        {"1767605407", "1767605407000", "line 8: Create is \"1767605407000\", not the time of the ID"},
        {"1767605407", "1767691808", "line 8: Create is \"1767691808\", not the time of the ID"},
        {"@UDSetup", "UDSetup", "line 9: Publisher is \"UDSetup\", not \"@UDSetup\""},
        {"\nMode = 2", "\nMode = 0", "line 10: Mode is \"0\", not \"2\""},
        {"Head Cleaning", "Kopfreinigung", "line 11: JobName is \"Kopfreinigung\", not \"Head Cleaning\""},
        {"Head Cleaning", "R\xC3\xA9glage", "line 11: JobName is \"R??glage\", not \"Head Cleaning\""},
        {"SaveJobData = 0", "SaveJobData = 1", "line 12: SaveJobData is \"1\", not \"0\""},
        {"PublishID = ", "PublishID = 7", "line 13: PublishID is \"7\", not \"\""},
        {"Silent = 0", "Silent = 1", "line 14: Silent is \"1\", not \"0\""},
        {"PrintMode = 3", "PrintMode = 5", "line 17: PrintMode is \"5\", not 3 or 4"},
        {"PrintMode = 3", "PrintMode = 4", "line 7: Count is \"0\", not 1"},
        {"/opt/arven/Ulmar Disc Maker/res/prnfile/headCleaning.prn", "headCleaning.prn",
         "line 18: DataPath is \"headCleaning.prn\", not a path from the root"},
        {"/opt/arven/Ulmar Disc Maker/res/prnfile/headCleaning.prn", "/tmp/none.prn",
         "there is no print data \"/tmp/none.prn\""},
        {"/opt/arven/Ulmar Disc Maker/res/prnfile/headCleaning.prn", "/tmp",
         "the print data \"/tmp\" is no file"},
        {"/opt/arven/Ulmar Disc Maker/res/prnfile/headCleaning.prn", "/tmp/empty.prn",
         "the print data \"/tmp/empty.prn\" is empty"},
        {"DryingTime = 0", "DryingTime = 1", "line 19: DryingTime is \"1\", not \"0\""},
        {"PrintQuality = 0", "PrintQuality = 1", "line 20: PrintQuality is \"1\", not \"0\""},
    };
    OpenRoom open(std::string(PUBLISHER) + "[publisher B]\nmodel = RT-30\nid = spare\nregistered = no\n");
    putFile("/tmp/empty.prn", "");
    for (const Row& row : cleaning) {
        EXPECT_EQ(refusalIn(open, with(HEAD_CLEANING, row.piece, row.other)), row.refusal);
    }
    const Row nozzleCheck[] = {
        {"Load = 1", "Load = 2", "Load is 2, not 1"},
        {"Load = 1", "Load = -1", "Load is -1, not 1"},
        {"Count = 1", "Count = 2", "line 7: Count is \"2\", not 1"},
        {"Nozzle Check", "Head Cleaning", "line 11: JobName is \"Head Cleaning\", not \"Nozzle Check\""},
    };
    for (const Row& row : nozzleCheck) {
        EXPECT_EQ(refusalIn(open, with(NOZZLE_CHECK, row.piece, row.other)), row.refusal);
    }
    EXPECT_TRUE(open.room.jobs("A").empty());
    EXPECT_EQ(refusalIn(open, HEAD_CLEANING), "") << "valid after the refusals";
    EXPECT_EQ(refusalIn(open, HEAD_CLEANING), "a job of this ID came before");
    EXPECT_EQ(open.room.jobs("A").size(), 1U);
}

TEST(SimJobFile, TheTimeOfTheIdMayBeInAnyTimeZone)
{
    std::string error;
    for (const char* const created : {"1767564007", "1767655807"}) { // 11.5 and 14 hours apart
        EXPECT_TRUE(udsim::parseJobFile(with(HEAD_CLEANING, "1767605407", created), error)) << error;
    }
    EXPECT_TRUE(udsim::parseJobFile(
        with(with(HEAD_CLEANING, "20260105093007", "20240229235959"), "1767605407", "1709251199"), error))
        << error;
}

TEST(SimJobFile, EjectStackersOfANozzleCheck)
{
    struct Row
    {
        const char* model;
        uint32_t mode;
        uint32_t stacker3;
        std::vector<int> ejects;
    };
    const Row table[] = {
        {"RT-300III BD", 0, 0, {2}},  {"RT-300III BD", 0, 32, {2}}, {"RT-300III BD", 1, 0, {0}},
        {"RT-300III BD", 1, 32, {0}}, {"RT-300III BD", 2, 32, {2}}, {"RT-300III BD", 2, 0, {3}},
        {"RT-300III BD", 2, 16, {3}}, {"RT-300III BD", 5, 0, {2}},  {"RT-300III BD", 6, 0, {2}},
        {"RT-300III BD", 6, 32, {2}}, {"RT-300III BD", 9, 0, {2}},  {"RT-30II", 0, 0, {2}},
        {"RT-30II", 0, 32, {2}},      {"RT-30II", 2, 0, {2, 3}},    {"RT-30II", 2, 32, {2, 3}},
    };
    for (const Row& row : table) {
        udsim::Setting setting;
        setting.mode = row.mode;
        setting.media = {1, 0, row.stacker3, 0};
        for (int eject = -1; eject <= 3; ++eject) {
            udsim::JobFile job;
            job.dataPath = "/proc/self/exe";
            job.load = 1;
            job.eject = eject;
            const bool fits = std::count(row.ejects.begin(), row.ejects.end(), eject) > 0;
            EXPECT_EQ(udsim::refusalOf(job, setting, *udsim::findModel(row.model)).empty(), fits)
                << row.model << ", mode " << row.mode << ", stacker 3 " << row.stacker3 << ", eject "
                << eject;
        }
    }
}

TEST(SimJobFile, AFullListRefusesAJob)
{
    OpenRoom open(std::string(PUBLISHER) + "jobs = 33\n");
    EXPECT_EQ(refusalIn(open, NOZZLE_CHECK), "the publisher's job list is full");
    EXPECT_EQ(open.room.jobs("A").size(), 33U);
}

TEST(SimJobFile, OnlyACompleteFileIsWhole)
{
    const std::string whole = HEAD_CLEANING;
    EXPECT_TRUE(udsim::isWholeJobFile(whole));
    for (size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(udsim::isWholeJobFile(whole.substr(0, length))) << length;
    }
    EXPECT_FALSE(udsim::isWholeJobFile(whole + "X"));
    EXPECT_TRUE(udsim::isWholeJobFile(with(whole, "PrintQuality = 0", "PrintQuality = 9")));
}

TEST(SimJobFile, RandomChangesAreParsedOrRefusedWithAPrintableReason)
{
    std::mt19937 random(20260105); // NOLINT: reproducible bytes
    const auto below = [&](size_t bound) { return static_cast<size_t>(random() % bound); };
    for (int turn = 0; turn < 20'000; ++turn) {
        std::string text = turn % 2 == 0 ? HEAD_CLEANING : NOZZLE_CHECK;
        if (turn % 5 == 0) {
            text.assign(below(600), '\0');
            std::generate(text.begin(), text.end(), [&] { return static_cast<char>(random()); });
        }
        for (size_t change = 0; change <= below(4); ++change) {
            const size_t at = below(text.size() + 1);
            switch (below(3)) {
            case 0:
                text.insert(at, 1 + below(3), static_cast<char>(random()));
                break;
            case 1:
                text.erase(at, 1 + below(40));
                break;
            default:
                text.insert(at, text.substr(below(text.size() + 1), below(60)));
                break;
            }
        }
        udsim::isWholeJobFile(text);
        std::string error;
        if (const auto job = udsim::parseJobFile(text, error)) {
            EXPECT_EQ(job->id.size(), 40U);
            EXPECT_FALSE(job->publisher.empty());
            EXPECT_LE(job->eject, 3);
            continue;
        }
        EXPECT_FALSE(error.empty());
        EXPECT_LT(error.size(), 250U);
        EXPECT_TRUE(std::all_of(error.begin(), error.end(), [](char c) { return c >= ' ' && c <= '~'; }))
            << error;
    }
}

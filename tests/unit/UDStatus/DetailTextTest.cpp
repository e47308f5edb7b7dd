#include "DetailText.h"

#include "SampleReports.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

TEST(DetailText, ShowsEverything)
{
    const QStringList expected{
        "Studio A",
        "  Status                      Ready",
        "  Model name                  RT-300III",
        "  Waiting                     2",
        "  Publish Mode                Standard mode",
        "  Stacker 1                   CD-R, 88/100",
        "  Stacker 2                   Output Stacker, 3/100",
        "  Stacker 4                   Output Stacker, not full",
        "  Ink",
        "    Cyan                      41 %",
        "    Magenta                   100 %",
        "    Yellow                    3 %, nearly empty",
        "    Light cyan                removed",
        "    Light magenta             not recognized",
        "    Black                     unknown",
        "  Prints left                 420",
        "  Autoloader                  in operation",
        "  Printer                     printing",
        "  Drive 1                     contains a disc, writing, 36 %",
        "  Drive 2                     idle",
        "  Total discs published       1840",
        "  Number of printed discs     1841",
        "  Maintenance Box free space  97.25 %",
        "  Service life of Drive 1     12 %",
        "  Service life of Drive 2     -",
        "  Serial number               SIM1",
        "  Version Information",
        "    Autoloader                02.14",
        "    Printer                   PRN 01.37",
        "    Drive 1                   BDR 1.05",
        "    Drive 2                   BDS 1.06",
        "  Job            Status   Discs  Failed  Time left",
        "  Annual report  running   4/10       1       3725",
    };
    EXPECT_EQ(detailLines(fullReport(), {}).join("\n").toStdString(), expected.join("\n").toStdString());
}

TEST(DetailText, ShowsThatNothingWasAnswered)
{
    EXPECT_EQ(detailLines(silentReport(), {}),
              (QStringList{"Library", "  Status           No answer", "  Model name       RT-300NII",
                           "  Host Name        127.0.0.11", "  Waiting          -", "  Transmitting     -",
                           "  Available Space  -"}));
}

TEST(DetailText, AnErrorHasItsCode)
{
    PublisherReport report = silentReport();
    report.answer = Answer::all;
    report.state = PublisherState::error;
    report.fatalCode = 19;
    EXPECT_EQ(detailLines(report, {})[1], "  Status           Error (19)");
}

TEST(DetailText, ShowsTheReasonOfAFault)
{
    PublisherReport report = fullReport();
    report.loader = ARV_PC_ALD_STATE_STACKER1_REMOVED | ARV_PC_ALD_STATE_DISC_COVER_OPEN;
    report.printer = ARV_PC_PRT_STATE_ERROR | ARV_PC_PRT_STATE_ERROR_INK_OUT;
    const QStringList lines = detailLines(report, {});
    EXPECT_TRUE(lines.contains("  Autoloader                  stacker 1 removed, disc cover open"));
    EXPECT_TRUE(lines.contains("  Printer                     error, out of ink"));
}

TEST(DetailText, UnknownSettingsAreDashes)
{
    PublisherReport report = fullReport();
    report.publishMode.reset();
    report.stackers = {{.number = 1, .holds = 99, .input = true, .discs = std::nullopt},
                       {.number = 2, .holds = std::nullopt, .input = false, .discs = 7}};
    const QStringList lines = detailLines(report, {});
    EXPECT_EQ(lines[4], "  Publish Mode                -");
    EXPECT_EQ(lines[5], "  Stacker 1                   -");
    EXPECT_EQ(lines[6], "  Stacker 2                   7/100");
}

TEST(DetailText, ShowsTheDrivesThatTheModelHas)
{
    constexpr struct
    {
        quint32 devType;
        int lines; ///< with a name of a drive: state, wear and version of each
    } table[] = {{PUBMGR_PUBLISHERTYPE_AP, 0},
                 {PUBMGR_PUBLISHERTYPE_SD, 3},
                 {PUBMGR_PUBLISHERTYPE_30II, 3},
                 {PUBMGR_PUBLISHERTYPE_300III_BD, 6},
                 {PUBMGR_PUBLISHERTYPE_NETWORK, 6}};
    for (const auto& row : table) {
        PublisherReport report = fullReport();
        report.devType = row.devType;
        EXPECT_EQ(detailLines(report, {}).filter("Drive").size(), row.lines) << row.devType;
    }
}

TEST(DetailText, OnlyANetworkPublisherHasTheVersionsOfItsServer)
{
    PublisherReport report = fullReport();
    report.versions->server = "3.1";
    report.versions->administrator = "4.0.2";
    const auto versionLines = [&report] {
        return detailLines(report, {}).join("\n").section("Version Information", 1).section("  Job ", 0, 0);
    };
    EXPECT_FALSE(versionLines().contains("3.1")) << versionLines().toStdString();
    report.network = true;
    EXPECT_EQ(versionLines().simplified().toStdString(),
              "Autoloader 02.14 Printer PRN 01.37 Drive 1 BDR 1.05 Drive 2 BDS 1.06 Server 3.1 "
              "Ulmar Disc Net Administrator 4.0.2");
}

TEST(DetailText, NoJobsAreNamed)
{
    PublisherReport report = fullReport();
    report.jobs->clear();
    EXPECT_EQ(detailLines(report, {}).last(), "  No jobs");
}

TEST(DetailText, FitsIntoANarrowTerminal)
{
    ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    for (const int width : {30, 40, 60, 80}) {
        for (const QString& line : detailLines(fullReport(), {width, false})) {
            EXPECT_LE(cellsOf(line), width) << line.toStdString();
        }
    }
}

TEST(DetailText, ANarrowTerminalLosesNothing)
{
    const QStringList lines = detailLines(fullReport(), {40, false});
    for (const char* line :
         {"  Stacker 1         CD-R, 88/100", "  Stacker 2", "                   Output Stacker, 3/100",
          "  Maintenance Box free space", "                    97.25 %", "  Version Information"}) {
        EXPECT_TRUE(lines.contains(line)) << line << "\n" << lines.join("\n").toStdString();
    }
}

TEST(DetailText, UnsafeTextsAreEscaped)
{
    PublisherReport report = fullReport();
    report.name = "a\x1b]0;x\x07";
    report.jobs->front().name = "job\nline";
    report.wear->serialNumber = "s\x1b[2J";
    report.versions->autoloader = "v\r";
    const QString text = detailLines(report, {}).join("\n");
    for (const char* part : {"a\\x1b]0;x\\x07", "job\\x0aline", "s\\x1b[2J", "v\\x0d"}) {
        EXPECT_TRUE(text.contains(part)) << part;
    }
    EXPECT_FALSE(text.contains('\x1b'));
}

TEST(DetailText, AnUnknownRemainingTimeIsADash)
{
    PublisherReport report = fullReport();
    report.jobs->front().remainingTime.reset();
    EXPECT_EQ(detailLines(report, {}).last(), "  Annual report  running   4/10       1          -");
}

} // namespace

#include "MonitorText.h"

#include "SampleReports.h"

#include <gtest/gtest.h>

namespace {

Alerts alerts(const char* warning, const char* critical)
{
    return {Threshold::parse(warning), Threshold::parse(critical)};
}

const QString figures =
    " | 'Studio A ink cyan'=41%;;;0;100 'Studio A ink magenta'=100%;;;0;100"
    " 'Studio A ink yellow'=3%;;;0;100 'Studio A stacker 1'=88;;;0;100 'Studio A waiting'=2;;;0";

TEST(MonitorText, WithoutThresholdsTheStatusCounts)
{
    const MonitorResult result = monitorResult({fullReport()}, {}, {});
    EXPECT_EQ(result.state, MonitorState::ok);
    EXPECT_EQ(result.line, "OK - 1 of 1 publishers ready" + figures);
}

TEST(MonitorText, EveryStatusButReadyIsAnAlert)
{
    constexpr struct
    {
        PublisherState state;
        const char* line;
    } table[] = {
        {PublisherState::notConnected, "CRITICAL - Library: not connected"},
        {PublisherState::error, "CRITICAL - Library: error 19"},
        {PublisherState::administratorNotRegistered, "CRITICAL - Library: administrator not registered"},
        {PublisherState::unsupportedVersion, "CRITICAL - Library: unsupported version"},
    };
    for (const auto& row : table) {
        PublisherReport report = silentReport();
        report.answer = Answer::all;
        report.state = row.state;
        report.fatalCode = 19;
        const MonitorResult result = monitorResult({report}, {}, {});
        EXPECT_EQ(result.state, MonitorState::critical);
        EXPECT_EQ(result.line, row.line);
    }
    const MonitorResult silent = monitorResult({silentReport()}, {}, {});
    EXPECT_EQ(silent.state, MonitorState::unknown);
    EXPECT_EQ(silent.line, "UNKNOWN - Library: no answer");
}

TEST(MonitorText, ThresholdsOfInk)
{
    PublisherReport report = fullReport();
    report.ink = {41, 100, 3, 100, 100, 100};
    const MonitorResult warning = monitorResult({report}, alerts("5:", "2:"), {});
    EXPECT_EQ(warning.state, MonitorState::warning);
    EXPECT_TRUE(warning.line.startsWith("WARNING - Studio A: ink yellow 3% | "))
        << warning.line.toStdString();
    EXPECT_TRUE(warning.line.contains("'Studio A ink yellow'=3%;5:;2:;0;100"));
    const MonitorResult critical = monitorResult({report}, alerts("50:", "5:"), {});
    EXPECT_EQ(critical.state, MonitorState::critical);
    EXPECT_TRUE(critical.line.startsWith("CRITICAL - Studio A: ink cyan 41%; Studio A: ink yellow 3% | "));
}

TEST(MonitorText, ThresholdsOfDiscsConcernInputStackers)
{
    PublisherReport report = fullReport();
    const MonitorResult result = monitorResult({report}, {}, alerts("90:", "10:"));
    EXPECT_EQ(result.state, MonitorState::warning);
    EXPECT_TRUE(result.line.startsWith("WARNING - Studio A: stacker 1 88 | ")) << result.line.toStdString();
    report.stackers->front().discs = ARV_PC_STK_STATUS_NOT_FULL;
    EXPECT_TRUE(monitorResult({report}, {}, alerts("90:", "10:"))
                    .line.startsWith("UNKNOWN - Studio A: stacker 1 not full | "));
    EXPECT_EQ(monitorResult({report}, {}, alerts("90:", "10:")).state, MonitorState::unknown);
}

TEST(MonitorText, WithoutAKnownInputStackerTheDiscsAreUnknown)
{
    PublisherReport report = fullReport();
    for (StackerReport& stacker : *report.stackers) {
        stacker.input = false;
    }
    const MonitorResult result = monitorResult({report}, {}, alerts("90:", "10:"));
    EXPECT_EQ(result.state, MonitorState::unknown);
    EXPECT_TRUE(result.line.startsWith("UNKNOWN - Studio A: discs unknown | ")) << result.line.toStdString();
    EXPECT_EQ(monitorResult({report}, {}, {}).state, MonitorState::ok);
}

TEST(MonitorText, StatesWithoutANumberMatterOnlyWithAThreshold)
{
    PublisherReport report = fullReport();
    report.ink = {41, 100, ARV_PC_INK_NEAR_EMPTY | ARV_PC_INK_CARTRIDGE_REMOVED, 100, 100, 100};
    report.stackers->front().discs = ARV_PC_STK_STATUS_OVERFLOW;
    EXPECT_EQ(monitorResult({report}, {}, {}).state, MonitorState::ok);
    const MonitorResult ink = monitorResult({report}, {Threshold::parse("5:"), {}}, {});
    EXPECT_EQ(ink.state, MonitorState::critical);
    EXPECT_TRUE(ink.line.startsWith("CRITICAL - Studio A: ink yellow removed | ")) << ink.line.toStdString();
    const MonitorResult discs = monitorResult({report}, {}, {Threshold::parse("5:"), {}});
    EXPECT_EQ(discs.state, MonitorState::critical);
    EXPECT_TRUE(discs.line.startsWith("CRITICAL - Studio A: stacker 1 overflow | "));
    report.ink = {41, 100, ARV_PC_NON_STANDARD_INK, 100, 100, 100};
    const MonitorResult other = monitorResult({report}, alerts("5:", "2:"), {});
    EXPECT_EQ(other.state, MonitorState::unknown);
    EXPECT_TRUE(other.line.startsWith("UNKNOWN - Studio A: ink yellow non standard | "));
}

TEST(MonitorText, MissingValuesMatterOnlyWithAThreshold)
{
    PublisherReport report = fullReport();
    report.ink.reset();
    EXPECT_EQ(monitorResult({report}, {}, {}).state, MonitorState::ok);
    const MonitorResult result = monitorResult({report}, alerts("5:", "2:"), {});
    EXPECT_EQ(result.state, MonitorState::unknown);
    EXPECT_TRUE(result.line.startsWith("UNKNOWN - Studio A: ink unknown"));
    PublisherReport noStackers = fullReport();
    noStackers.stackers.reset();
    EXPECT_EQ(monitorResult({noStackers}, {}, {}).state, MonitorState::ok);
    EXPECT_TRUE(monitorResult({noStackers}, {}, alerts("90:", "10:"))
                    .line.startsWith("UNKNOWN - Studio A: discs unknown"));
}

TEST(MonitorText, TheWorstStateDecides)
{
    PublisherReport broken = fullReport();
    broken.state = PublisherState::error;
    EXPECT_EQ(monitorResult({silentReport(), broken, fullReport()}, {}, {}).state, MonitorState::critical);
    EXPECT_EQ(monitorResult({silentReport(), fullReport()}, {}, alerts("90:", "1:")).state,
              MonitorState::unknown);
    PublisherReport partial = fullReport();
    partial.answer = Answer::status;
    EXPECT_EQ(monitorResult({partial}, {}, {}).state, MonitorState::unknown);
    EXPECT_EQ(monitorResult({}, {}, {}).line, "UNKNOWN - no publishers are registered");
}

TEST(MonitorText, PublishersOfOneNameHaveTheirIds)
{
    PublisherReport first = silentReport();
    first.id = "{B}";
    first.answer = Answer::all;
    first.waiting = 1;
    PublisherReport second = first;
    second.id = "{C}";
    second.waiting = 2;
    EXPECT_EQ(monitorResult({first, second}, {}, {}).line,
              "CRITICAL - Library ({B}): not connected; Library ({C}): not connected"
              " | 'Library ({B}) waiting'=1;;;0 'Library ({C}) waiting'=2;;;0");
    first.name = "a|b"; // the same once it is printed
    second.name = "a/b";
    EXPECT_TRUE(monitorResult({first, second}, {}, {}).line.startsWith("CRITICAL - a/b ({B}): not"));
}

TEST(MonitorText, SettingsThatCannotBeReadAreUnknown)
{
    const MonitorResult result = monitorResult({fullReport()}, {}, {}, {"{B}", "C|"});
    EXPECT_EQ(result.state, MonitorState::unknown);
    EXPECT_EQ(result.line,
              "UNKNOWN - cannot read the settings of {B}; cannot read the settings of C/" + figures);
    EXPECT_EQ(monitorResult({}, {}, {}, {"{B}"}).line, "UNKNOWN - cannot read the settings of {B}");
}

TEST(MonitorText, SettingsThatVanishBeforeTheQueryAreUnknown)
{
    PublisherReport report = silentReport();
    report.answer = Answer::all;
    report.failure = QueryFailure::settingsUnreadable;
    const MonitorResult result = monitorResult({report}, {}, {});
    EXPECT_EQ(result.state, MonitorState::unknown);
    EXPECT_EQ(result.line, "UNKNOWN - Library: the setting file cannot be read");
}

TEST(MonitorText, NamesMayContainPercentSigns)
{
    PublisherReport report = fullReport();
    report.name = "%1 %2%3";
    report.ink = {41, 100, 100, 100, 100, 100};
    EXPECT_TRUE(monitorResult({report}, alerts("42:", "1:"), {})
                    .line.startsWith("WARNING - %1 %2%3: ink cyan 41% | "));
    report.state = PublisherState::error;
    report.fatalCode = 19;
    EXPECT_TRUE(monitorResult({report}, {}, {}).line.startsWith("CRITICAL - %1 %2%3: error 19"));
}

TEST(MonitorText, NamesCannotBreakTheLine)
{
    PublisherReport report = fullReport();
    report.name = "a|b'c=d\ne";
    const QString line = monitorResult({report}, {}, {}).line;
    EXPECT_EQ(line.count('|'), 1);
    EXPECT_FALSE(line.contains('\n'));
    EXPECT_TRUE(line.contains("'a/b''c_d\\x0ae waiting'=2;;;0")) << line.toStdString();
    EXPECT_EQ(monitorFailure("a|b\n").line, "UNKNOWN - a/b\\x0a");
}

} // namespace

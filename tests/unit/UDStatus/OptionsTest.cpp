#include "Options.h"

#include <gtest/gtest.h>

namespace {

using std::chrono::milliseconds;

Options parse(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "ulmar-disc-status");
    std::vector<char*> argv;
    for (std::string& argument : arguments) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);
    return parseOptions(static_cast<int>(argv.size()) - 1, argv.data());
}

TEST(Options, NoArgumentsShowTheList)
{
    const Options options = parse({});
    EXPECT_EQ(options.error, "");
    EXPECT_EQ(options.output, Output::text);
    EXPECT_EQ(options.timeout, milliseconds(10000));
    EXPECT_FALSE(options.watch);
    EXPECT_TRUE(options.names.empty());
}

TEST(Options, EveryOptionIsKnown)
{
    EXPECT_EQ(parse({"--json"}).output, Output::json);
    EXPECT_EQ(parse({"--monitor"}).output, Output::monitor);
    EXPECT_EQ(parse({"--metrics"}).output, Output::metrics);
    EXPECT_EQ(parse({"--names"}).output, Output::names);
    EXPECT_EQ(parse({"--help"}).output, Output::help);
    EXPECT_EQ(parse({"-h"}).output, Output::help);
    EXPECT_EQ(parse({"--version"}).output, Output::version);
    EXPECT_EQ(parse({"-V"}).output, Output::version);
    EXPECT_EQ(parse({"--timeout", "2.5"}).timeout, milliseconds(2500));
    EXPECT_EQ(parse({"-t1"}).timeout, milliseconds(1000));
    const Options options = parse({"--monitor", "--ink-warning=20:", "--ink-critical=5:", "--discs-warning",
                                   "10:", "--discs-critical", "1:"});
    EXPECT_EQ(options.error, "");
    EXPECT_EQ(options.ink.warning->text, "20:");
    EXPECT_EQ(options.ink.critical->text, "5:");
    EXPECT_EQ(options.discs.warning->text, "10:");
    EXPECT_EQ(options.discs.critical->text, "1:");
}

TEST(Options, TheIntervalOfAWatchMayFollow)
{
    EXPECT_EQ(parse({"--watch"}).watch, milliseconds(5000));
    EXPECT_EQ(parse({"--watch=2"}).watch, milliseconds(2000));
    EXPECT_EQ(parse({"--watch", "2"}).watch, milliseconds(2000));
    EXPECT_EQ(parse({"-w", "0.5"}).watch, milliseconds(500));
    const Options options = parse({"--watch", "Studio 2"});
    EXPECT_EQ(options.watch, milliseconds(5000));
    EXPECT_EQ(options.names, std::vector<std::string>{"Studio 2"});
    EXPECT_EQ(parse({"--watch", "--", "7"}).names, std::vector<std::string>{"7"});
}

TEST(Options, NamesMayBeAnywhere)
{
    const Options options = parse({"Studio A", "--json", "Lab", "--", "--monitor"});
    EXPECT_EQ(options.output, Output::json);
    EXPECT_EQ(options.names, (std::vector<std::string>{"Studio A", "Lab", "--monitor"}));
}

struct ErrorCase
{
    std::vector<std::string> arguments;
    const char* error;
};

TEST(Options, MistakesAreReported)
{
    const ErrorCase table[] = {
        {{"--bogus"}, "unknown option --bogus"},
        {{"-x"}, "unknown option -x"},
        {{"-hx"}, "unknown option -x"},
        {{"--json", "-zV"}, "unknown option -z"},
        {{"-zV", "--json"}, "unknown option -z"},
        {{"Studio", "-z"}, "unknown option -z"},
        {{"--json", "-\xc3\xa9"}, "unknown option -\\xc3"},
        {{"--bogus=1"}, "unknown option --bogus=1"},
        {{"--json=foo"}, "--json takes no value"},
        {{"--js=foo"}, "--json takes no value"},
        {{"--help=foo"}, "--help takes no value"},
        {{"--json", "--version=foo"}, "--version takes no value"},
        {{"--timeout"}, "--timeout requires a value"},
        {{"-t"}, "-t requires a value"},
        {{"--timeout", "0"}, "--timeout takes a number of seconds from 0.1 to 86400, not \"0\""},
        {{"--timeout", "nan"}, "--timeout takes a number of seconds from 0.1 to 86400, not \"nan\""},
        {{"--timeout", "1e9"}, "--timeout takes a number of seconds from 0.1 to 86400, not \"1e9\""},
        {{"--watch=x"}, "--watch takes a number of seconds from 0.1 to 86400, not \"x\""},
        {{"--json", "--metrics"}, "--json and --metrics exclude each other"},
        {{"--json", "--watch"}, "--watch and --json exclude each other"},
        {{"--monitor", "--ink-warning", "x"},
         "--ink-warning takes a range such as 10 or 10: or 5:20, not \"x\""},
        {{"--ink-warning", "5:"}, "--ink-warning requires --monitor"},
    };
    for (const ErrorCase& row : table) {
        EXPECT_EQ(parse(row.arguments).error, row.error);
    }
}

TEST(Options, AMonitorStaysAMonitorWhateverIsWrong)
{
    EXPECT_EQ(parse({"--monitor", "--bogus"}).output, Output::monitor);
    EXPECT_EQ(parse({"--bogus", "--monitor"}).output, Output::monitor);
    EXPECT_EQ(parse({"--monitor", "--json"}).output, Output::monitor);
}

TEST(Options, TheHelpNamesEveryOption)
{
    const std::string help = helpText();
    for (const char* option :
         {"--watch", "--timeout", "--json", "--metrics", "--monitor", "--ink-warning", "--ink-critical",
          "--discs-warning", "--discs-critical", "--names", "--help", "--version"}) {
        EXPECT_NE(help.find(option), std::string::npos) << option;
    }
}

} // namespace

// The help and the manual page match the program.
#include <regex>
#include <set>

#include <gtest/gtest.h>

#include "Command.h"
#include "ProgramProcess.h"
#include "RawClient.h"
#include "Recording.h"
#include "TextFiles.h"

namespace {

/// All options found in the sources of the program.
std::set<std::string> options()
{
    const std::regex literal("\"(--[a-z]+)\"");
    std::set<std::string> found;
    for (const char* const name :
         {"ForgetCommand.cpp", "RecordCommand.cpp", "RunCommand.cpp", "TellCommand.cpp", "main.cpp"}) {
        const std::string text = ReadText(std::string(UDSIM_SOURCES) + "/command/" + name);
        for (std::sregex_iterator it(text.begin(), text.end(), literal); it != std::sregex_iterator(); ++it) {
            found.insert((*it)[1]);
        }
    }
    return found;
}

std::string manualPage()
{
    return std::regex_replace(ReadText(UDSIM_SOURCES "/udsim.1"), std::regex(R"(\\-)"), "-");
}

} // namespace

TEST(SimHelp, NamesEveryOptionAndCommand)
{
    const std::string help = runProgram(UDSIM, {"--help"}).output;
    const std::string page = manualPage();
    EXPECT_GE(options().size(), 9U);
    for (const std::string& option : options()) {
        EXPECT_NE(help.find(option), std::string::npos) << option << " is missing in --help";
        EXPECT_NE(page.find(option), std::string::npos) << option << " is missing in the manual page";
    }
    for (const std::string& word : udsim::Command::words()) {
        EXPECT_NE(help.find(word), std::string::npos) << word << " is missing in --help";
        EXPECT_NE(page.find("\n.B " + word), std::string::npos) << word << " is missing in the manual page";
    }
    for (const char* const status : {"64", "69", "77"}) {
        EXPECT_NE(help.find(status), std::string::npos);
        EXPECT_NE(page.find(std::string("\n.B ") + status), std::string::npos);
    }
}

TEST(SimHelp, NamesOnlyInstalledScenarios)
{
    const std::regex path("(/?[a-z/]*)/([a-z]+\\.udsim)");
    for (const std::string& text : {runProgram(UDSIM, {"--help"}).output, manualPage()}) {
        size_t found = 0;
        for (std::sregex_iterator it(text.begin(), text.end(), path); it != std::sregex_iterator(); ++it) {
            EXPECT_EQ((*it)[1], "/usr/share/udsim");
            EXPECT_FALSE(ReadText(std::string(UDSIM_SOURCES) + "/scenarios/" + (*it)[2].str()).empty());
            ++found;
        }
        EXPECT_GE(found, 2U);
        EXPECT_NE(text.find("udsim forget"), std::string::npos);
    }
}

TEST(SimHelp, FitsATerminal)
{
    const std::string help = runProgram(UDSIM, {"--help"}).output;
    size_t length = 0;
    for (const char c : help) {
        length = c == '\n' ? 0 : length + 1;
        EXPECT_LE(length, 110U);
    }
}

TEST(SimHelp, TheManualHasItsSections)
{
    const std::string page = manualPage();
    for (const char* const heading :
         {".SH NAME", ".SH SYNOPSIS", ".SH DESCRIPTION", ".SH SCENARIOS", ".SH COMMANDS", ".SH RECORDINGS",
          ".SH EXIT STATUS", ".SH FILES", ".SH EXAMPLES"}) {
        EXPECT_NE(page.find(heading), std::string::npos) << heading;
    }
}

TEST(SimHelp, TheRecordingInTheManualIsValid)
{
    const std::string page = std::regex_replace(manualPage(), std::regex(R"(\\e)"), "\\");
    const size_t start = page.find("\nudsim-recording") + 1;
    const std::string example = page.substr(start, page.find(".EE", start) - start);
    std::string error;
    const auto recording = udsim::Recording::parse(example, error);
    ASSERT_TRUE(recording) << error;
    ASSERT_EQ(recording->messages.size(), 3U);
    for (const udsim::Message& message : recording->messages) {
        EXPECT_TRUE(message.isWhole());
        EXPECT_NE(example.find("\n" + message.line() + "\n"), std::string::npos) << message.line();
    }
    EXPECT_EQ(recording->messages[0].bytes, requestFrame(13, "R"));
    EXPECT_EQ(recording->messages[1].bytes, Bytes(28).u64(0, 13).u64(16, 4).u32(24, 2).str());
}

#include "LogCollection.h"
#include "TextFiles.h"

#include <gtest/gtest.h>

#include <QProcess>

#include <cstdlib>

namespace {

TEST(LogCollection, TheArchiveIsQuotedAndTheLogsAreNot)
{
    EXPECT_EQ(packingCommandLine("/mnt/a.tgz", {"arvenUlmarDiscControl.log", "arvenUlmarDiscControl.log.1"}),
              QString("tar czvf \"/mnt/a.tgz\" /var/log/arvenUlmarDiscControl.log "
                      "/var/log/arvenUlmarDiscControl.log.1"));
}

TEST(LogCollection, WithoutALogThereIsNoOperand)
{
    EXPECT_EQ(packingCommandLine("/mnt/a.tgz", {}), QString("tar czvf \"/mnt/a.tgz\""));
}

TEST(LogCollection, TheArchiveNameIsUnchanged)
{
    EXPECT_EQ(packingCommandLine("/mnt/%s 100% \u00fc", {"b"}),
              QString("tar czvf \"/mnt/%s 100% \u00fc\" /var/log/b"));
}

TEST(LogCollection, BlanksInTheArchiveArePartOfIt)
{
    const QString line = packingCommandLine("/mnt/my logs.tgz", {"b"});
    EXPECT_EQ(QProcess::splitCommand(line), (QStringList{"tar", "czvf", "/mnt/my logs.tgz", "/var/log/b"}));
}

TEST(LogCollection, AQuoteInTheArchiveBreaksTheLine)
{
    const QString line = packingCommandLine("/mnt/my\"logs.tgz", {"b"});
    EXPECT_NE(QProcess::splitCommand(line).value(2), QString("/mnt/my\"logs.tgz"));
}

TEST(LogCollection, ABlankInALogNameBreaksTheLine)
{
    const QString line = packingCommandLine("/mnt/a.tgz", {"arvenUlmarDiscControl.log old"});
    EXPECT_EQ(QProcess::splitCommand(line),
              (QStringList{"tar", "czvf", "/mnt/a.tgz", "/var/log/arvenUlmarDiscControl.log", "old"}));
}

TEST(LogCollection, CollectsEveryEntryWithThePrefixOfTheServiceLog)
{
    EXPECT_EQ(serviceLogNames(), QStringList());
    WriteText("/var/log/arvenUlmarDiscControl.log.b", "");
    WriteText("/var/log/arvenUlmarDiscControl.log", "");
    WriteText("/var/log/arvenUlmarDiscControl.log.C.gz", "");
    WriteText("/var/log/arvenUlmarDiscControl.log.a", "");
    WriteText("/var/log/arvenUlmarDiscControl.lo", "");
    WriteText("/var/log/old.arvenUlmarDiscControl.log", "");
    WriteText("/var/log/syslog", "");
    std::filesystem::create_directory("/var/log/arvenUlmarDiscControl.log.d");
    EXPECT_EQ(serviceLogNames(), (QStringList{"arvenUlmarDiscControl.log", "arvenUlmarDiscControl.log.a",
                                              "arvenUlmarDiscControl.log.b", "arvenUlmarDiscControl.log.C.gz",
                                              "arvenUlmarDiscControl.log.d"}));
}

TEST(LogCollection, TheResultIsTheExitCodeOrAnErrorCode)
{
    EXPECT_EQ(runCommandLine("true"), 0);
    EXPECT_EQ(runCommandLine("sh -c \"exit 2\""), 2);
    EXPECT_EQ(runCommandLine("sh -c \"kill -9 $$\""), -1);
    EXPECT_EQ(runCommandLine("no-such-program-here czvf"), -2);
    EXPECT_EQ(runCommandLine(""), -2);
}

TEST(LogCollection, TheProgramIsLookedUpInPath)
{
    const std::string path = std::getenv("PATH");
    ::setenv("PATH", "/nowhere", 1);
    EXPECT_EQ(runCommandLine(packingCommandLine("/tmp/a.tgz", {})), -2);
    ::setenv("PATH", path.c_str(), 1);
}

TEST(LogCollection, EveryResultHasItsReport)
{
    const QString failure =
        "Failed to execute tar command. Check that installation has been performed correctly.";
    const struct
    {
        int result;
        bool success;
        QString text;
    } table[] = {
        {0, true, "Log collection has finished."},
        {-1, false, failure},
        {-2, false, failure},
        {1, false, failure + " (1)"},
        {2, false, failure + " (2)"},
        {127, false, failure + " (127)"},
        {-3, false, failure + " (-3)"},
    };
    for (const auto& row : table) {
        SCOPED_TRACE(row.result);
        const LogCollectionReport report = logCollectionReport(row.result);
        EXPECT_EQ(report.success, row.success);
        EXPECT_EQ(report.text, row.text);
    }
}

/// A null pointer unsets the variable.
void setVariable(const char* name, const char* value)
{
    if (value) {
        ::setenv(name, value, 1);
    } else {
        ::unsetenv(name);
    }
}

TEST(LogCollection, TheDialogStartsInTheHomeOfTheCaller)
{
    // Users on every Debian system: 0 root, 1 daemon, 65534 nobody.
    const struct
    {
        const char* pkexec;
        const char* sudo;
        QString home;
    } table[] = {
        {nullptr, nullptr, ""},
        {"0", nullptr, "/root"},
        {"1", nullptr, "/usr/sbin"},
        {nullptr, "1", "/usr/sbin"},
        {"1", "0", "/usr/sbin"},      // the first one takes precedence
        {"54321", nullptr, ""},       // no such user
        {"54321", "1", ""},           // the second one is not tried
        {"", "1", "/root"},           // set but empty: 0
        {"daemon", nullptr, "/root"}, // not a number: 0
        {" 1 and more", nullptr, "/usr/sbin"},
        {"-1", nullptr, ""},
        {"65534", nullptr, "/nonexistent"}, // the folder need not exist
    };
    for (const auto& row : table) {
        SCOPED_TRACE(std::string(row.pkexec ? row.pkexec : "(unset)") + "/" +
                     (row.sudo ? row.sudo : "(unset)"));
        setVariable("PKEXEC_UID", row.pkexec);
        setVariable("SUDO_UID", row.sudo);
        EXPECT_EQ(homeOfCallingUser(), row.home);
    }
}

} // namespace

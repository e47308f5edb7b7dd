#include "LogCollection.h"

#include "CallingUser.h"
#include "InstallPaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QThread>

#include <cstdlib>

#include <pwd.h>

namespace {

constexpr unsigned long settleTime = 10000; // milliseconds, for recent events to reach the logs
constexpr int crashed = -1;
constexpr int notStarted = -2;

} // namespace

QStringList serviceLogNames()
{
    return QDir(SERVICE_LOG_DIR, SERVICE_LOG_FILTER, QDir::IgnoreCase, QDir::AllEntries).entryList();
}

QString packingCommandLine(const QString& archive, const QStringList& logNames)
{
    QString commandLine = QStringLiteral("tar czvf \"") + archive + QLatin1Char('"');
    for (const QString& name : logNames) {
        commandLine += QLatin1Char(' ') + QLatin1String(SERVICE_LOG_DIR) + name;
    }
    return commandLine;
}

int runCommandLine(const QString& commandLine)
{
    QStringList arguments = QProcess::splitCommand(commandLine);
    if (arguments.isEmpty()) {
        return notStarted;
    }
    const QString program = arguments.takeFirst();
    return QProcess::execute(program, arguments);
}

int packServiceLogs(const QString& archive)
{
    const QString commandLine = packingCommandLine(archive, serviceLogNames());
    QThread::msleep(settleTime);
    return runCommandLine(commandLine);
}

QString homeOfCallingUser()
{
    QString home;
    if (const char* user = callersUserID()) {
        const passwd* entry = ::getpwuid(static_cast<uid_t>(std::atoi(user)));
        if (entry && entry->pw_dir) {
            home = QFile::decodeName(entry->pw_dir);
        }
    }
    ::endpwent();
    return home;
}

LogCollectionReport logCollectionReport(int result)
{
    switch (result) {
    case 0:
        return {true, QCoreApplication::translate("PubSetup", "Log collection has finished.")};
    case crashed:
    case notStarted:
        return {false, QCoreApplication::translate("PubSetup", "Failed to execute tar command. Check that "
                                                               "installation has been performed correctly.")};
    default:
        return {false, QCoreApplication::translate("PubSetup",
                                                   "Failed to execute tar command. Check that installation "
                                                   "has been performed correctly. (%d)")
                           .replace(QLatin1String("%d"), QString::number(result))};
    }
}

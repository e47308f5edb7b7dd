// The control service's log files in one archive: which ones, by which command, and what the user is told.
#pragma once

#include <QString>
#include <QStringList>

/// The names of the service's log files, in the order in which they are packed.
QStringList serviceLogNames();

/// The command line that packs these log files into `archive`. The archive's path stands between double
/// quotes and must hold none; the names stand as they are.
QString packingCommandLine(const QString& archive, const QStringList& logNames);

/// Runs a command line, split at blanks outside double quotes, and waits for its end. Its exit code, -1 when
/// it crashed, -2 when it could not be started. Any thread.
int runCommandLine(const QString& commandLine);

/// Packs the service's log files into `archive`, ten seconds after it has looked for them. The result is that
/// of runCommandLine. Any thread.
int packServiceLogs(const QString& archive);

/// The home folder of the user for whom the program was started with raised rights; empty when there is no
/// such user. Not to be called on two threads at once: it reads the environment and the user database.
QString homeOfCallingUser();

/// What a result of packServiceLogs means.
struct LogCollectionReport
{
    bool success;
    QString text; ///< translated
};

LogCollectionReport logCollectionReport(int result);

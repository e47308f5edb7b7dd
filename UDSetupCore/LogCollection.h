// Collects the control service's log files in one archive: the files, the command and the message to the
// user.
#pragma once

#include <QString>
#include <QStringList>

/// The names of the service's log files, in the order in which they are packed.
QStringList serviceLogNames();

/// The command line that packs these log files into `archive`. The archive's path is quoted and must not
/// contain a double quote; the names are not quoted.
QString packingCommandLine(const QString& archive, const QStringList& logNames);

/// Runs a command line, split at blanks outside double quotes, and waits until it ends. Returns its exit
/// code, -1 if it crashed, or -2 if it could not be started. Any thread.
int runCommandLine(const QString& commandLine);

/// Lists the service's log files, waits ten seconds and packs them into `archive`. Returns the result of
/// runCommandLine. Any thread.
int packServiceLogs(const QString& archive);

/// The home folder of the user who started the program with elevated privileges; empty if there is none. Not
/// thread-safe: it reads the environment and the user database.
QString homeOfCallingUser();

/// The message for a result of packServiceLogs.
struct LogCollectionReport
{
    bool success;
    QString text; ///< translated
};

LogCollectionReport logCollectionReport(int result);

// What is known about one publisher: plain values as the publisher manager returns them, without any text
// that is made for a reader. The formatters decode the values with ReportWords.
#pragma once

#include "PublisherMgr.h"
#include "StatusPoll.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <array>
#include <functional>
#include <optional>
#include <tuple>
#include <vector>

constexpr size_t stackerCount = 4;
constexpr size_t inkCount = 6; ///< cyan, magenta, yellow, light cyan, light magenta, black
constexpr size_t mostDrives = 2;

/// How much of a query was answered.
enum class Answer : quint8
{
    none,   ///< nothing within the time limit
    status, ///< the status, but not all details that were asked for
    all
};

/// Why a query failed.
enum class QueryFailure : quint8
{
    none,               ///< it did not, or it exceeded the time limit
    settingsUnreadable, ///< the setting file cannot be read any more
    notStarted,         ///< no process could be started for it
    ended               ///< by an invalid reply, most likely, or because the server refused it or was lost
};

struct JobReport
{
    QString id;
    QString name;
    QString person;
    quint64 status = 0; ///< ARV_PC_JOB_*, or any other number
    quint64 type = 0;   ///< ARV_PC_JOB_TYPE_*
    quint64 factor = 0; ///< ARV_PC_ERROR_*; 0 if there is none
    quint64 copies = 0;
    quint64 completed = 0;
    quint64 failed = 0;
    std::optional<quint64> remainingTime; ///< in a unit that the publisher defines

    template <class Self>
    static auto fields(Self& s)
    {
        return std::tie(s.id, s.name, s.person, s.status, s.type, s.factor, s.copies, s.completed, s.failed,
                        s.remainingTime);
    }
};

/// One of the stackers that the publisher uses.
struct StackerReport
{
    quint32 number = 0;                ///< 1 to 4
    std::optional<quint32> holds;      ///< enOrlaStackerDiscType, never NOTUSE
    bool input = false;                ///< discs are taken from it for jobs
    std::optional<quint32> discs = {}; ///< ARV_PC_STK_STATUS_*

    template <class Self>
    static auto fields(Self& s)
    {
        return std::tie(s.number, s.holds, s.input, s.discs);
    }
};

struct DriveReport
{
    quint64 status = 0;   ///< ARV_PC_DRV_STATE_* bits
    quint64 progress = 0; ///< percent

    template <class Self>
    static auto fields(Self& s)
    {
        return std::tie(s.status, s.progress);
    }
};

struct WearReport
{
    QString serialNumber;
    std::optional<quint32> discsPublished;
    std::optional<quint32> discsPrinted;
    std::optional<double> maintenanceBoxFree;                  ///< percent
    std::array<std::optional<double>, mostDrives> driveWear{}; ///< used share of the service life, percent

    template <class Self>
    static auto fields(Self& s)
    {
        return std::tie(s.serialNumber, s.discsPublished, s.discsPrinted, s.maintenanceBoxFree, s.driveWear);
    }
};

struct VersionReport
{
    QString autoloader;
    QString printerModel;
    QString printer;
    std::array<QString, mostDrives> driveModels{};
    std::array<QString, mostDrives> drives{};
    QString server; ///< of network publishers, as the next one
    QString administrator;

    template <class Self>
    static auto fields(Self& s)
    {
        return std::tie(s.autoloader, s.printerModel, s.printer, s.driveModels, s.drives, s.server,
                        s.administrator);
    }
};

struct PublisherReport
{
    QByteArray id; ///< regist id
    QString name;
    bool network = false;
    quint32 devType = 0; ///< enPublisherType
    QString model;
    QString host;
    QDateTime asked; ///< when the query began

    Answer answer = Answer::none;
    QueryFailure failure = QueryFailure::none;
    bool reachable = false;          ///< the device is attached, or the server was reached
    bool serviceUnreachable = false; ///< of a local publisher: the control service did not answer
    PublisherState state = PublisherState::notConnected;
    std::optional<qint64> fatalCode; ///< 0 if the publisher is ready; empty: unknown
    qint64 waiting = -1;             ///< jobs; negative: unknown, as in the next one
    qint64 sending = -1;
    QString space = QStringLiteral("-"); ///< as the list shows it
    std::optional<qint64> freeBytes;

    // The details. Empty: not asked for, not supported or not answered.
    std::optional<quint32> publishMode;                 ///< enPublishMode
    std::optional<std::vector<StackerReport>> stackers; ///< see usedStackers
    std::optional<std::array<quint64, inkCount>> ink;   ///< percent or ARV_PC_INK_*
    std::optional<quint32> printsLeft;
    std::optional<quint32> loader;  ///< ARV_PC_ALD_STATE_* bits
    std::optional<quint32> printer; ///< ARV_PC_PRT_STATE_* bits
    std::optional<std::array<DriveReport, mostDrives>> drives;
    std::optional<std::vector<JobReport>> jobs; ///< unfinished ones
    std::optional<WearReport> wear;
    std::optional<VersionReport> versions;

    template <class Self>
    static auto fields(Self& s)
    {
        return std::tie(s.id, s.name, s.network, s.devType, s.model, s.host, s.asked, s.answer, s.failure,
                        s.reachable, s.serviceUnreachable, s.state, s.fatalCode, s.waiting, s.sending,
                        s.space, s.freeBytes, s.publishMode, s.stackers, s.ink, s.printsLeft, s.loader,
                        s.printer, s.drives, s.jobs, s.wear, s.versions);
    }

    /// How many drives the model has.
    size_t driveCount() const;
    /// Whether the publisher answered everything that was asked. A device that is switched off or detached is
    /// an answer; a server or a service that cannot be reached is none.
    bool isAnswered() const;
};

/// The registered publishers in the order of the list, as they are known before any query. `unreadable`
/// receives the regist ids whose setting files exist, but cannot be read. The list shows a file without
/// permission as a publisher named "NotSet", and the others not at all.
std::vector<PublisherReport> registeredPublishers(CPublisherMgr& publisherMgr,
                                                  std::vector<QByteArray>& unreadable);

/// Queries the publisher that the report names, and fills in the rest: the status, and with `details`
/// everything else. Calls `progress` after each part. Blocks on the service, the device or the server, and
/// stops the process on replies that the publisher manager refuses by an assertion; so run it in a process of
/// its own (see Survey).
void queryPublisher(CPublisherMgr& publisherMgr, bool details, PublisherReport& report,
                    const std::function<void()>& progress);

// ulmar-disc-status: shows the status of disc publishers on a terminal, to scripts and to monitoring systems.
#include "Console.h"
#include "DetailText.h"
#include "InstallPaths.h"
#include "JsonText.h"
#include "ListText.h"
#include "MetricsText.h"
#include "MonitorText.h"
#include "Options.h"
#include "PublisherNames.h"
#include "SafeText.h"
#include "Survey.h"
#include "Watch.h"
#include "Win_def_log.h"

#include <QCoreApplication>
#include <QLocale>
#include <QLoggingCategory>
#include <QTranslator>

#include <algorithm>
#include <cassert>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <map>
#include <optional>
#include <set>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

enum ExitCode : int
{
    exitFine = 0,
    exitFailure = 1, ///< a publisher gave no answer, or an error of reading or writing
    exitUsage = 2    ///< an invalid command line or an unknown name
};

/// Why nothing can be shown.
struct Failure
{
    int exitCode;
    QString reason;
};

/// The registered publishers, or those with the names of the command line, in the order of the list.
class Selection
{
public:
    explicit Selection(const Options& options) : m_options(options) {}

    /// Reads the setting files again.
    std::optional<Failure> read()
    {
        DIR* folder = ::opendir(PUBLISHER_SETTING_DIR);
        if (folder == nullptr) {
            return Failure{exitFailure, QStringLiteral("cannot read the folder %1: %2")
                                            .arg(QLatin1String(PUBLISHER_SETTING_DIR), errorText(errno))};
        }
        ::closedir(folder);
        unreadable.clear();
        CPublisherMgr publisherMgr(true);
        reports = registeredPublishers(publisherMgr, unreadable);
        return m_options.names.empty() ? std::nullopt : keepNamed(publisherMgr);
    }

    std::vector<PublisherReport> reports;
    std::vector<QByteArray> unreadable; ///< regist ids of the setting files that could not be read

private:
    std::optional<Failure> keepNamed(CPublisherMgr& publisherMgr)
    {
        std::set<QByteArray> named;
        for (const std::string& name : m_options.names) {
            bool known = false;
            for (const PublisherReport& report : reports) {
                if (hasName(publisherMgr, report.id.toStdString(), name.c_str())) {
                    named.insert(report.id);
                    known = true;
                }
            }
            if (!known) {
                return Failure{exitUsage, unknownName(QString::fromStdString(name))};
            }
        }
        std::erase_if(reports,
                      [&named](const PublisherReport& report) { return named.count(report.id) == 0; });
        return std::nullopt;
    }

    QString unknownName(const QString& name) const
    {
        QStringList known;
        for (const PublisherReport& report : reports) {
            known << report.name;
        }
        QStringList close;
        for (const QString& one : closeNames(name, known)) {
            close << QLatin1Char('"') + one + QLatin1Char('"');
        }
        const QString reason = QStringLiteral("no publisher is named \"%1\"").arg(name);
        return close.isEmpty()
                   ? reason
                   : reason + QStringLiteral("; did you mean %1?").arg(close.join(QStringLiteral(" or ")));
    }

    const Options& m_options;
};

int fail(const Failure& failure)
{
    complain(failure.reason);
    return failure.exitCode;
}

/// Why a publisher is not answered; the local service has its own line.
QString unansweredReason(const PublisherReport& report)
{
    switch (report.failure) {
    case QueryFailure::settingsUnreadable:
        return QStringLiteral("the setting file cannot be read");
    case QueryFailure::notStarted:
        return QStringLiteral("no process could be started for the query");
    case QueryFailure::ended:
        return QStringLiteral("the query failed; the reply may be invalid");
    case QueryFailure::none:
        break;
    }
    switch (report.answer) {
    case Answer::none:
        return QStringLiteral("no answer within the time limit");
    case Answer::status:
        return QStringLiteral("not all details were received in time");
    case Answer::all:
        break;
    }
    return QStringLiteral("the server cannot be reached or is in a secure mode");
}

void complainAboutSettings(const std::vector<QByteArray>& unreadable)
{
    for (const QByteArray& id : unreadable) {
        complain(QStringLiteral("cannot read the settings of %1").arg(QString::fromUtf8(id)));
    }
}

/// Prints the reason of every failure.
void complainAboutFailures(const std::vector<QByteArray>& unreadable,
                           const std::vector<PublisherReport>& reports)
{
    complainAboutSettings(unreadable);
    bool serviceUnreachable = false;
    for (const PublisherReport& report : reports) {
        if (report.serviceUnreachable) {
            serviceUnreachable = true;
        } else if (!report.isAnswered()) {
            complain(QStringLiteral("%1: %2").arg(report.name, unansweredReason(report)));
        }
    }
    if (serviceUnreachable) {
        complain(QStringLiteral("the control service does not answer"));
    }
}

QStringList textLines(const Options& options, const std::vector<PublisherReport>& reports)
{
    const TableStyle style = {terminalWidth(), showsColours()};
    if (options.names.empty()) {
        return listLines(reports, style);
    }
    QStringList lines;
    for (const PublisherReport& report : reports) {
        if (!lines.isEmpty()) {
            lines << QString();
        }
        lines << detailLines(report, style);
    }
    return lines;
}

QByteArray documentOf(const Options& options, const std::vector<PublisherReport>& reports)
{
    switch (options.output) {
    case Output::json:
        return jsonText(reports, QDateTime::currentDateTimeUtc());
    case Output::metrics:
        return metricsText(reports);
    default:
        return textLines(options, reports).join(QLatin1Char('\n')).toUtf8() + '\n';
    }
}

int printNames(const Options& options)
{
    Selection selection(options);
    const std::optional<Failure> failure = selection.read();
    if (failure) {
        complainAboutSettings(selection.unreadable);
        return fail(*failure);
    }
    QString text;
    for (const PublisherReport& report : selection.reports) {
        text += safeText(report.name) + QLatin1Char('\n');
    }
    if (!print(text.toUtf8())) {
        return exitFailure;
    }
    complainAboutSettings(selection.unreadable);
    return selection.unreadable.empty() ? exitFine : exitFailure;
}

int printOnce(const Options& options)
{
    Selection selection(options);
    const std::optional<Failure> failure = selection.read();
    if (failure) {
        complainAboutSettings(selection.unreadable);
        return fail(*failure);
    }
    const bool details = options.output != Output::text || !options.names.empty();
    surveyPublishers({details, options.timeout}, selection.reports);
    if (!print(documentOf(options, selection.reports))) {
        return exitFailure;
    }
    complainAboutFailures(selection.unreadable, selection.reports);
    const bool answered = std::all_of(selection.reports.begin(), selection.reports.end(),
                                      [](const PublisherReport& report) { return report.isAnswered(); });
    return answered && selection.unreadable.empty() ? exitFine : exitFailure;
}

/// Queries and draws until a signal or a failure.
class RepeatedSurvey
{
public:
    explicit RepeatedSurvey(const Options& options) : m_options(options), m_selection(options) {}

    int run()
    {
        std::optional<Failure> failure = m_selection.read();
        const int code = failure ? failure->exitCode : drawRepeatedly(failure);
        // Reasons are printed after the screen is restored.
        complainAboutFailures(m_selection.unreadable, lastReports());
        return failure ? fail(*failure) : code;
    }

private:
    int drawRepeatedly(std::optional<Failure>& failure)
    {
        assert(m_options.watch);
        Watch watch([this] { return lines(); });
        SurveyOptions survey;
        survey.details = !m_options.names.empty();
        survey.timeout = m_options.timeout;
        survey.interruption = watch.signalDescriptor();
        survey.interrupted = [&watch] { return watch.handleSignals(); };
        survey.finished = [&](const std::vector<size_t>& indices) {
            for (const size_t index : indices) {
                const PublisherReport& report = m_selection.reports[index];
                m_last[report.id] = report;
            }
            return watch.redraw();
        };
        do {
            if (!surveyPublishers(survey, m_selection.reports) || !watch.draw() ||
                !watch.wait(*m_options.watch)) {
                return watch.exitCode();
            }
            failure = m_selection.read();
        } while (!failure);
        return failure->exitCode;
    }

    /// What is known of the registered publishers, also while they are queried again.
    std::vector<PublisherReport> lastReports() const
    {
        std::vector<PublisherReport> reports;
        for (const PublisherReport& report : m_selection.reports) {
            const auto last = m_last.find(report.id);
            if (last != m_last.end()) {
                reports.push_back(last->second);
            }
        }
        return reports;
    }

    /// No line before the first result.
    QStringList lines() const
    {
        const std::vector<PublisherReport> reports = lastReports();
        return reports.empty() && !m_selection.reports.empty() ? QStringList()
                                                               : textLines(m_options, reports);
    }

    const Options& m_options;
    Selection m_selection;
    std::map<QByteArray, PublisherReport> m_last;
};

int monitor(const Options& options)
{
    MonitorResult result;
    Selection selection(options);
    if (!options.error.isEmpty()) {
        result = monitorFailure(options.error);
    } else if (const std::optional<Failure> failure = selection.read()) {
        result = monitorFailure(failure->reason);
    } else {
        surveyPublishers({true, options.timeout}, selection.reports);
        result = monitorResult(selection.reports, options.ink, options.discs, selection.unreadable);
    }
    const bool printed = print(result.line.toUtf8() + '\n');
    return static_cast<int>(printed ? result.state : MonitorState::unknown);
}

/// A file that is opened later must not get the number of a standard stream that the caller has closed.
void replaceClosedStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) < 0) {
            ::open("/dev/null", O_RDWR | O_CLOEXEC); // gets the lowest free number, which is this one
        }
    }
}

int run(const Options& options)
{
    if (options.output == Output::monitor) {
        return monitor(options);
    }
    if (!options.error.isEmpty()) {
        complain(options.error + QStringLiteral("; ulmar-disc-status --help lists the options"));
        return exitUsage;
    }
    switch (options.output) {
    case Output::help:
        return print(helpText()) ? exitFine : exitFailure;
    case Output::version:
        return print("ulmar-disc-status " ULMAR_VERSION "\n") ? exitFine : exitFailure;
    case Output::names:
        return printNames(options);
    default:
        return options.watch ? RepeatedSurvey(options).run() : printOnce(options);
    }
}

} // namespace

int main(int argc, char** argv)
{
    replaceClosedStreams();
    if (std::setlocale(LC_ALL, "") == nullptr) {
        std::setlocale(LC_CTYPE,
                       "C.UTF-8"); // a locale that is not installed: the terminal is most likely UTF-8
    }
    std::signal(SIGPIPE, SIG_IGN); // a write fails instead
    std::signal(SIGCHLD, SIG_DFL); // if it were ignored, the ends of queries could not be read
    SetLogLevel(0);                // a monitor that runs every minute must not fill the log of the service

    // Standard error carries our own lines only. Qt 6 warns if the encoding of the locale is not UTF-8.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));

    const Options options = parseOptions(argc, argv);
    int one = 1; // Qt must not take options of its own
    QCoreApplication application(one, argv);
    QTranslator translator;
    if (translator.load("PubSetupQt_" + QLocale::system().name(), TRANSLATION_DIR)) {
        QCoreApplication::installTranslator(&translator);
    }
    return run(options);
}

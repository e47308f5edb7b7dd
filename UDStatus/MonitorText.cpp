#include "MonitorText.h"

#include "ReportWords.h"
#include "SafeText.h"

#include <QHash>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

constexpr const char* stateNames[] = {"OK", "WARNING", "CRITICAL", "UNKNOWN"};

int severity(MonitorState state)
{
    switch (state) {
    case MonitorState::ok:
        return 0;
    case MonitorState::warning:
        return 1;
    case MonitorState::unknown:
        return 2;
    case MonitorState::critical:
        break;
    }
    return 3;
}

/// A text without what separates the parts of the line.
QString plain(const QString& text)
{
    return safeText(text).replace(QLatin1Char('|'), QLatin1Char('/'));
}

/// The label of a value: quoted, with its quotes doubled, without an equals sign.
QString label(const QString& text)
{
    QString inner = plain(text).replace(QLatin1Char('='), QLatin1Char('_'));
    inner.replace(QLatin1Char('\''), QLatin1String("''"));
    return QLatin1Char('\'') + inner + QLatin1Char('\'');
}

QString textOf(const std::optional<Threshold>& threshold)
{
    return threshold ? threshold->text : QString();
}

class Monitor
{
public:
    Monitor(const std::vector<PublisherReport>& reports, const Alerts& ink, const Alerts& discs)
        : m_ink(ink), m_discs(discs)
    {
        for (const PublisherReport& report : reports) {
            ++m_names[label(report.name)];
        }
    }

    void take(const PublisherReport& report)
    {
        ++m_publishers;
        takeStatus(report);
        if (report.answer != Answer::none && report.state == PublisherState::ready) {
            ++m_ready;
            takeInk(report);
            takeDiscs(report);
        }
        if (report.waiting >= 0) {
            m_data << label(nameOf(report) + QStringLiteral(" waiting")) +
                          QStringLiteral("=%1;;;0").arg(report.waiting);
        }
    }

    void takeUnreadable(const QByteArray& id)
    {
        find(MonitorState::unknown,
             QStringLiteral("cannot read the settings of ") + plain(QString::fromUtf8(id)));
    }

    MonitorResult result() const
    {
        QString text = m_findings.isEmpty()
                           ? QStringLiteral("%1 of %2 publishers ready").arg(m_ready).arg(m_publishers)
                           : m_findings.join(QStringLiteral("; "));
        MonitorState state = m_state;
        if (m_publishers == 0 && m_findings.isEmpty()) {
            state = MonitorState::unknown;
            text = QStringLiteral("no publishers are registered");
        }
        const QString data =
            m_data.isEmpty() ? QString() : QStringLiteral(" | ") + m_data.join(QLatin1Char(' '));
        return {state,
                QLatin1String(stateNames[static_cast<int>(state)]) + QStringLiteral(" - ") + text + data};
    }

private:
    /// The name, with the regist id if others have the same name.
    QString nameOf(const PublisherReport& report) const
    {
        return m_names.value(label(report.name)) > 1
                   ? QStringLiteral("%1 (%2)").arg(report.name, QString::fromUtf8(report.id))
                   : report.name;
    }

    void find(MonitorState state, const QString& text)
    {
        if (severity(state) > severity(m_state)) {
            m_state = state;
        }
        m_findings << text;
    }

    void takeStatus(const PublisherReport& report)
    {
        const QString name = plain(nameOf(report));
        const QString word = QString::fromLatin1(statusWord(report).word).replace('-', ' ');
        if (report.failure == QueryFailure::settingsUnreadable) {
            find(MonitorState::unknown, name + QStringLiteral(": the setting file cannot be read"));
        } else if (report.answer == Answer::none) {
            find(MonitorState::unknown, name + QStringLiteral(": ") + word);
        } else if (report.state == PublisherState::error) {
            find(MonitorState::critical,
                 QStringLiteral("%1: error %2").arg(name, QString::number(report.fatalCode.value_or(0))));
        } else if (report.state != PublisherState::ready) {
            find(MonitorState::critical, name + QStringLiteral(": ") + word);
        } else if (report.failure != QueryFailure::none || report.answer != Answer::all) {
            find(MonitorState::unknown, name + QStringLiteral(": incomplete answer"));
        }
    }

    void takeInk(const PublisherReport& report)
    {
        if (!report.ink) {
            return findMissing(m_ink, report, QStringLiteral("ink"));
        }
        for (size_t i = 0; i < inkCount; ++i) {
            const Supply supply = inkSupply((*report.ink)[i]);
            const QString what = QStringLiteral("ink ") + QLatin1String(inkColorWord(i).word);
            if (supply.percent) {
                check(m_ink, report, what, *supply.percent, QStringLiteral("%"));
            } else {
                findState(m_ink, report, what, supply.state.word, "removed");
            }
        }
    }

    void takeDiscs(const PublisherReport& report)
    {
        const auto isInput = [](const StackerReport& stacker) { return stacker.input; };
        if (!report.stackers || std::none_of(report.stackers->begin(), report.stackers->end(), isInput)) {
            return findMissing(m_discs, report, QStringLiteral("discs"));
        }
        for (const StackerReport& stacker : *report.stackers) {
            if (!stacker.input) {
                continue;
            }
            const QString what = QStringLiteral("stacker %1").arg(stacker.number);
            const StackerFill fill = stackerFill(stacker.discs.value_or(ARV_PC_STK_STATUS_UNKNOWN));
            if (fill.discs) {
                check(m_discs, report, what, *fill.discs, QString());
            } else {
                findState(m_discs, report, what, fill.state.word, "overflow");
            }
        }
    }

    void findMissing(const Alerts& alerts, const PublisherReport& report, const QString& what)
    {
        findState(alerts, report, what, "unknown", "");
    }

    /// A value that has a threshold, but is no number. `bad` is the state that is CRITICAL.
    void findState(const Alerts& alerts, const PublisherReport& report, const QString& what, const char* word,
                   const char* bad)
    {
        if (alerts.warning || alerts.critical) {
            const bool critical = std::strcmp(word, bad) == 0;
            find(critical ? MonitorState::critical : MonitorState::unknown,
                 QStringLiteral("%1: %2 %3")
                     .arg(plain(nameOf(report)), what, QString::fromLatin1(word).replace('-', ' ')));
        }
    }

    void check(const Alerts& alerts, const PublisherReport& report, const QString& what, quint32 value,
               const QString& unit)
    {
        const bool critical = alerts.critical && alerts.critical->alerts(value);
        const bool warning = alerts.warning && alerts.warning->alerts(value);
        if (critical || warning) {
            find(
                critical ? MonitorState::critical : MonitorState::warning,
                QStringLiteral("%1: %2 %3%4").arg(plain(nameOf(report)), what, QString::number(value), unit));
        }
        m_data << label(nameOf(report) + QLatin1Char(' ') + what) +
                      QStringLiteral("=%1%2;%3;%4;0;100")
                          .arg(QString::number(value), unit, textOf(alerts.warning), textOf(alerts.critical));
    }

    const Alerts& m_ink;
    const Alerts& m_discs;
    MonitorState m_state = MonitorState::ok;
    QHash<QString, int> m_names; ///< how often each label occurs
    int m_publishers = 0;
    int m_ready = 0;
    QStringList m_findings;
    QStringList m_data;
};

} // namespace

MonitorResult monitorResult(const std::vector<PublisherReport>& reports, const Alerts& ink,
                            const Alerts& discs, const std::vector<QByteArray>& unreadable)
{
    Monitor monitor(reports, ink, discs);
    for (const PublisherReport& report : reports) {
        monitor.take(report);
    }
    for (const QByteArray& id : unreadable) {
        monitor.takeUnreadable(id);
    }
    return monitor.result();
}

MonitorResult monitorFailure(const QString& reason)
{
    return {MonitorState::unknown, QStringLiteral("UNKNOWN - ") + plain(reason)};
}

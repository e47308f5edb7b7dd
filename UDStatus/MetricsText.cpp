#include "MetricsText.h"

#include "ReportWords.h"
#include "SafeText.h"

#include <QLocale>

namespace {

QString labelValue(const QString& text)
{
    QString value = safeText(text);
    value.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    value.replace(QLatin1Char('"'), QLatin1String("\\\""));
    return value;
}

QString label(const char* name, const QString& value)
{
    return QStringLiteral(",%1=\"%2\"").arg(QLatin1String(name), labelValue(value));
}

/// One metric: its description, and a sample for each value.
class Family
{
public:
    Family(const char* name, const char* unit, const char* help) : m_name(QLatin1String(name))
    {
        m_text = QStringLiteral("# HELP %1 %2\n# TYPE %1 gauge\n").arg(m_name, QLatin1String(help));
        if (*unit != '\0') {
            m_text += QStringLiteral("# UNIT %1 %2\n").arg(m_name, QLatin1String(unit));
        }
    }

    void add(const PublisherReport& report, const QString& labels, double value)
    {
        m_hasSamples = true;
        const QString number = QString::number(value, 'g', QLocale::FloatingPointShortest);
        m_text += QStringLiteral("%1{id=\"%2\",publisher=\"%3\"%4} %5\n")
                      .arg(m_name, labelValue(QString::fromUtf8(report.id)), labelValue(report.name), labels,
                           number);
    }

    /// Empty without samples.
    QString text() const
    {
        return m_hasSamples ? m_text : QString();
    }

private:
    const QString m_name;
    bool m_hasSamples = false;
    QString m_text;
};

constexpr double percentPerRatio = 100;

QString statusMetrics(const std::vector<PublisherReport>& reports)
{
    Family up("ulmar_publisher_up", "", "Whether the publisher is ready.");
    Family status("ulmar_publisher_status", "", "Always 1; the status is a label.");
    Family code("ulmar_publisher_error_code", "",
                "The code of the error that stops the publisher, 0 if there is none.");
    Family waiting("ulmar_jobs_waiting", "", "Jobs that wait.");
    Family sending("ulmar_jobs_transmitting", "", "Jobs that are being sent to the publisher.");
    Family space("ulmar_server_free_bytes", "bytes", "Free space of the publisher's server.");
    for (const PublisherReport& report : reports) {
        const bool answered = report.answer != Answer::none;
        up.add(report, QString(), answered && report.state == PublisherState::ready ? 1 : 0);
        status.add(report,
                   label("status", QLatin1String(statusWord(report).word)) + label("model", report.model), 1);
        if (report.fatalCode) {
            code.add(report, QString(), static_cast<double>(*report.fatalCode));
        }
        if (report.waiting >= 0) {
            waiting.add(report, QString(), static_cast<double>(report.waiting));
        }
        if (report.sending >= 0) {
            sending.add(report, QString(), static_cast<double>(report.sending));
        }
        if (report.freeBytes) {
            space.add(report, QString(), static_cast<double>(*report.freeBytes));
        }
    }
    return up.text() + status.text() + code.text() + waiting.text() + sending.text() + space.text();
}

QString supplyMetrics(const std::vector<PublisherReport>& reports)
{
    Family ink("ulmar_ink_remaining_ratio", "ratio", "Ink left in a cartridge.");
    Family prints("ulmar_prints_remaining", "", "Prints that the ink allows.");
    Family discs("ulmar_stacker_discs", "", "Discs in a stacker.");
    Family box("ulmar_maintenance_box_free_ratio", "ratio", "Free space of the maintenance box.");
    for (const PublisherReport& report : reports) {
        for (size_t i = 0; report.ink && i < inkCount; ++i) {
            const Supply supply = inkSupply((*report.ink)[i]);
            if (supply.percent) {
                ink.add(report, label("color", QLatin1String(inkColorWord(i).word)),
                        *supply.percent / percentPerRatio);
            }
        }
        if (report.printsLeft) {
            prints.add(report, QString(), *report.printsLeft);
        }
        for (const StackerReport& stacker : report.stackers.value_or(std::vector<StackerReport>())) {
            const StackerFill fill = stackerFill(stacker.discs.value_or(ARV_PC_STK_STATUS_UNKNOWN));
            const QString holds =
                stacker.holds ? QLatin1String(discTypeWord(*stacker.holds).word) : QString();
            if (fill.discs) {
                discs.add(report, label("stacker", QString::number(stacker.number)) + label("holds", holds),
                          *fill.discs);
            }
        }
        if (report.wear && report.wear->maintenanceBoxFree) {
            box.add(report, QString(), *report.wear->maintenanceBoxFree / percentPerRatio);
        }
    }
    return ink.text() + prints.text() + discs.text() + box.text();
}

QString workMetrics(const std::vector<PublisherReport>& reports)
{
    Family jobs("ulmar_jobs_unfinished", "", "Jobs in the publisher's list that have not ended.");
    Family published("ulmar_discs_published", "", "Discs published so far.");
    Family printed("ulmar_discs_printed", "", "Discs printed so far.");
    Family wear("ulmar_drive_wear_ratio", "ratio", "The used share of a drive's service life.");
    for (const PublisherReport& report : reports) {
        if (report.jobs) {
            jobs.add(report, QString(), static_cast<double>(report.jobs->size()));
        }
        if (!report.wear) {
            continue;
        }
        const WearReport& figures = *report.wear;
        if (figures.discsPublished) {
            published.add(report, QString(), *figures.discsPublished);
        }
        if (figures.discsPrinted) {
            printed.add(report, QString(), *figures.discsPrinted);
        }
        for (size_t i = 0; i < report.driveCount(); ++i) {
            const std::optional<double>& share = figures.driveWear[i];
            if (share) {
                wear.add(report, label("drive", QString::number(i + 1)), *share / percentPerRatio);
            }
        }
    }
    return jobs.text() + published.text() + printed.text() + wear.text();
}

} // namespace

QByteArray metricsText(const std::vector<PublisherReport>& reports)
{
    return (statusMetrics(reports) + supplyMetrics(reports) + workMetrics(reports)).toUtf8() + "# EOF\n";
}

#include "DetailText.h"

#include "PropertyRows.h"
#include "ReportWords.h"
#include "SafeText.h"
#include "StackerRules.h"

#include <QCoreApplication>

#include <cmath>

namespace {

QString listText(const char* text)
{
    return QCoreApplication::translate("PubSetup", text);
}

/// A label without the colon of some of them.
QString labelText(const char* context, const char* text)
{
    QString label = QCoreApplication::translate(context, text).trimmed();
    for (const ushort colon : {ushort{':'}, ushort{0xFF1A}}) { // the second is the wide one
        if (label.endsWith(QChar(colon))) {
            label.chop(1);
        }
    }
    return label.trimmed();
}

QString dialogText(const char* text)
{
    return labelText("propertyDialog", text);
}

QString ownText(const char* text)
{
    return QCoreApplication::translate("StatusProgram", text);
}

QString orDash(const QString& text)
{
    return text.isEmpty() ? QStringLiteral("-") : text;
}

QString percentText(std::optional<double> percent)
{
    return percent ? QString::number(std::floor(*percent)) + QStringLiteral(" %") : QStringLiteral("-");
}

/// With two decimals, as in the property dialog.
QString exactPercentText(std::optional<double> percent)
{
    return percent ? QString::number(*percent, 'f', 2) + QStringLiteral(" %") : QStringLiteral("-");
}

QString countText(std::optional<quint32> count)
{
    return count ? QString::number(*count) : QStringLiteral("-");
}

/// The parts that are not empty, after each other.
QString together(std::initializer_list<QString> parts)
{
    QStringList list;
    for (const QString& part : parts) {
        if (!part.isEmpty()) {
            list << part;
        }
    }
    return list.join(QStringLiteral(", "));
}

struct Line
{
    QString label;
    QString text;
    const char* colour = nullptr;
};

class Details
{
public:
    Details(const PublisherReport& report, const TableStyle& style) : m_report(report), m_style(style) {}

    QStringList lines()
    {
        addStatus();
        if (m_report.stackers) {
            addSettings();
        }
        addInk();
        addParts();
        addWear();
        addVersions();
        align();
        addJobs();
        return m_lines;
    }

private:
    void add(const QString& label, const QString& text, const char* colour = nullptr)
    {
        m_entries.push_back({label, orDash(safeText(text)), colour});
    }

    void addHeading(const QString& label)
    {
        m_entries.push_back({label, QString()});
    }

    /// The label of an entry below a heading.
    static QString below(const QString& label)
    {
        return QStringLiteral("  ") + label;
    }

    void addStatus()
    {
        m_lines << cut(safeText(m_report.name));
        const bool fatal = m_report.state == PublisherState::error && m_report.fatalCode;
        const QString code = fatal ? QStringLiteral(" (%1)").arg(*m_report.fatalCode) : QString();
        add(listText(QT_TRANSLATE_NOOP("PubSetup", "Status")), statusWord(m_report).text + code,
            statusColour(m_report));
        add(listText(QT_TRANSLATE_NOOP("PubSetup", "Model name")), m_report.model);
        if (m_report.network) {
            add(listText(QT_TRANSLATE_NOOP("PubSetup", "Host Name")), m_report.host);
        }
        add(listText(QT_TRANSLATE_NOOP("PubSetup", "Waiting")),
            jobCountText(static_cast<int>(m_report.waiting)));
        if (m_report.network) {
            add(listText(QT_TRANSLATE_NOOP("PubSetup", "Transmitting")),
                jobCountText(static_cast<int>(m_report.sending)));
            add(listText(QT_TRANSLATE_NOOP("PubSetup", "Available Space")), m_report.space);
        }
    }

    void addSettings()
    {
        add(dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Publish Mode")),
            m_report.publishMode ? modeWord(*m_report.publishMode).text : QString());
        const QString labels[stackerCount] = {dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Stacker 1")),
                                              dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Stacker 2")),
                                              dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Stacker 3")),
                                              ownText(QT_TRANSLATE_NOOP("StatusProgram", "Stacker 4"))};
        for (const StackerReport& stacker : m_report.stackers.value_or(std::vector<StackerReport>())) {
            add(labels[stacker.number - 1],
                together({stacker.holds ? discTypeWord(*stacker.holds).text : QString(),
                          fillText(stacker.discs)}));
        }
    }

    /// "88/100" discs of a stacker's capacity.
    static QString fillText(std::optional<quint32> value)
    {
        if (!value) {
            return QString();
        }
        const StackerFill fill = stackerFill(*value);
        return fill.discs ? QStringLiteral("%1/%2").arg(*fill.discs).arg(ARV_PC_STK_STATUS_FULL)
                          : fill.state.text;
    }

    void addInk()
    {
        if (m_report.ink) {
            addHeading(ownText(QT_TRANSLATE_NOOP("StatusProgram", "Ink")));
        }
        for (size_t i = 0; m_report.ink && i < inkCount; ++i) {
            const Supply supply = inkSupply((*m_report.ink)[i]);
            add(below(inkColorWord(i).text),
                together({supply.percent ? percentText(*supply.percent) : QString(), supply.state.text}));
        }
        if (m_report.printsLeft) {
            add(ownText(QT_TRANSLATE_NOOP("StatusProgram", "Prints left")), countText(m_report.printsLeft));
        }
    }

    QString driveLabel(size_t index) const
    {
        if (m_report.driveCount() == 1) {
            return labelText("propertyDialogEx", QT_TRANSLATE_NOOP("propertyDialogEx", "Drive:"));
        }
        return dialogText(index == 0 ? QT_TRANSLATE_NOOP("propertyDialog", "Drive 1:")
                                     : QT_TRANSLATE_NOOP("propertyDialog", "Drive 2:"));
    }

    void addParts()
    {
        if (m_report.loader) {
            add(dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Autoloader:")),
                joinedTexts(loaderWords(*m_report.loader)));
        }
        if (m_report.printer) {
            add(dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Printer:")),
                joinedTexts(printerWords(*m_report.printer)));
        }
        for (size_t i = 0; m_report.drives && i < m_report.driveCount(); ++i) {
            const DriveReport& drive = (*m_report.drives)[i];
            constexpr quint64 atWork =
                ARV_PC_DRV_STATE_WRITING | ARV_PC_DRV_STATE_VERIFYING | ARV_PC_DRV_STATE_READING;
            const bool shows = (drive.status & atWork) != 0 && drive.progress <= 100;
            add(driveLabel(i), together({joinedTexts(driveWords(drive.status)),
                                         shows ? QStringLiteral("%1 %").arg(drive.progress) : QString()}));
        }
    }

    void addWear()
    {
        if (!m_report.wear) {
            return;
        }
        const WearReport& wear = *m_report.wear;
        if (propertyRows(modelFamily(m_report.devType)).discAndBoxFigures) {
            add(dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Total discs published:")),
                countText(wear.discsPublished));
        }
        add(dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Number of printed discs:")),
            countText(wear.discsPrinted));
        if (propertyRows(modelFamily(m_report.devType)).discAndBoxFigures) {
            add(dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Maintenance Box free space:")),
                exactPercentText(wear.maintenanceBoxFree));
        }
        const QString labels[mostDrives] = {
            m_report.driveCount() == 1
                ? labelText("propertyDialogEx",
                            QT_TRANSLATE_NOOP("propertyDialogEx", "Service life of Drive:"))
                : dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Service life of Drive 1:")),
            dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Service life of Drive 2:"))};
        for (size_t i = 0; i < m_report.driveCount(); ++i) {
            add(labels[i], percentText(wear.driveWear[i]));
        }
        add(dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Serial number:")), wear.serialNumber);
    }

    void addVersions()
    {
        if (!m_report.versions) {
            return;
        }
        const VersionReport& versions = *m_report.versions;
        addHeading(dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Version Information")));
        add(below(dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Autoloader:"))), versions.autoloader);
        add(below(dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Printer:"))),
            (versions.printerModel + QLatin1Char(' ') + versions.printer).trimmed());
        for (size_t i = 0; i < m_report.driveCount(); ++i) {
            add(below(driveLabel(i)),
                (versions.driveModels[i] + QLatin1Char(' ') + versions.drives[i]).trimmed());
        }
        if (m_report.network) {
            add(below(dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Server:"))), versions.server);
            add(below(dialogText(QT_TRANSLATE_NOOP("propertyDialog", "Ulmar Disc Net Administrator:"))),
                versions.administrator);
        }
    }

    QString cut(const QString& line) const
    {
        return m_style.width > 0 ? cutToCells(line, m_style.width) : line;
    }

    /// Writes the entries with their texts in one column. Where the terminal is too narrow for a label and
    /// its text, the text is on a line of its own.
    void align()
    {
        constexpr int indent = 2;
        constexpr int gap = 2;
        int widest = 0;
        for (const Line& entry : m_entries) {
            widest = std::max(widest, entry.text.isEmpty() ? 0 : cellsOf(entry.label));
        }
        if (m_style.width > 0) { // half of a narrow terminal remains for the texts
            widest = std::min(widest, std::max(0, m_style.width / 2 - indent - gap));
        }
        const int column = indent + widest + gap;
        for (const Line& entry : m_entries) {
            const QString label = QString(indent, QLatin1Char(' ')) + entry.label;
            const bool fits = cellsOf(entry.label) <= widest &&
                              (m_style.width == 0 || column + cellsOf(entry.text) <= m_style.width);
            if (entry.text.isEmpty()) {
                m_lines << cut(label);
            } else if (fits) {
                m_lines << label + QString(column - cellsOf(label), QLatin1Char(' ')) +
                               coloured(entry.text, entry.colour, m_style);
            } else {
                const int left = std::min(column, m_style.width - cellsOf(entry.text));
                const QString blanks(std::max(left, 2 * indent), QLatin1Char(' '));
                const QString text = cutToCells(entry.text, m_style.width - static_cast<int>(blanks.size()));
                m_lines << cut(label) << blanks + coloured(text, entry.colour, m_style);
            }
        }
    }

    void addJobs()
    {
        if (!m_report.jobs) {
            return;
        }
        if (m_report.jobs->empty()) {
            m_lines << QStringLiteral("  ") + ownText(QT_TRANSLATE_NOOP("StatusProgram", "No jobs"));
            return;
        }
        const std::vector<TableColumn> columns = {
            {QStringLiteral("  ") + ownText(QT_TRANSLATE_NOOP("StatusProgram", "Job")), false, 8},
            {listText("Status"), false, 6},
            {ownText(QT_TRANSLATE_NOOP("StatusProgram", "Discs")), true, 5},
            {ownText(QT_TRANSLATE_NOOP("StatusProgram", "Failed")), true, 2},
            {ownText(QT_TRANSLATE_NOOP("StatusProgram", "Time left")), true, 4},
        };
        std::vector<std::vector<TableCell>> rows;
        for (const JobReport& job : *m_report.jobs) {
            const QString name = safeText(job.name.isEmpty() ? job.id : job.name);
            rows.push_back({{QStringLiteral("  ") + orDash(name)},
                            {orDash(jobStateWord(job.status).text)},
                            {QStringLiteral("%1/%2").arg(job.completed).arg(job.copies)},
                            {QString::number(job.failed)},
                            {job.remainingTime ? QString::number(*job.remainingTime) : QStringLiteral("-")}});
        }
        m_lines << tableLines(columns, rows, m_style);
    }

    const PublisherReport& m_report;
    const TableStyle& m_style;
    std::vector<Line> m_entries;
    QStringList m_lines;
};

} // namespace

QStringList detailLines(const PublisherReport& report, const TableStyle& style)
{
    return Details(report, style).lines();
}

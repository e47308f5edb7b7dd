#include "ListText.h"

#include "ReportWords.h"
#include "SafeText.h"

#include <QCoreApplication>

namespace {

QString heading(const char* text)
{
    return QCoreApplication::translate("PubSetup", text);
}

} // namespace

QStringList listLines(const std::vector<PublisherReport>& reports, const TableStyle& style)
{
    if (reports.empty()) {
        return {QCoreApplication::translate("PubSetup", "No publishers are registered.")};
    }
    const std::vector<TableColumn> columns = {
        {heading(QT_TRANSLATE_NOOP("PubSetup", "Name")), false, 8},
        {heading(QT_TRANSLATE_NOOP("PubSetup", "Model name")), false, 4},
        {heading(QT_TRANSLATE_NOOP("PubSetup", "Host Name")), false, 4},
        {heading(QT_TRANSLATE_NOOP("PubSetup", "Status")), false, 8},
        {heading(QT_TRANSLATE_NOOP("PubSetup", "Waiting")), true, 2},
        {heading(QT_TRANSLATE_NOOP("PubSetup", "Transmitting")), true, 2},
        {heading(QT_TRANSLATE_NOOP("PubSetup", "Available Space")), true, 6},
    };
    std::vector<std::vector<TableCell>> rows;
    rows.reserve(reports.size());
    for (const PublisherReport& report : reports) {
        rows.push_back({{safeText(report.name)},
                        {safeText(report.model)},
                        {safeText(hostNameText(report.host))},
                        {statusWord(report).text, statusColour(report)},
                        {jobCountText(static_cast<int>(report.waiting))},
                        {jobCountText(static_cast<int>(report.sending))},
                        {safeText(report.space)}});
    }
    return tableLines(columns, rows, style);
}

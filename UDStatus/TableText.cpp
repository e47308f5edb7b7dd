#include "TableText.h"

#include "CodePoint.h"

#include <QVector>

#include <algorithm>
#include <clocale>
#include <cwchar>
#include <numeric>
#include <string_view>

#include <langinfo.h>

namespace {

/// While an object exists, its thread uses the widths of UTF-8, in which all output is.
class Utf8Widths
{
public:
    Utf8Widths()
    {
        static const locale_t utf8 = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
        m_previous = ::uselocale(utf8); // without it, the widths of the current locale are used
    }
    ~Utf8Widths()
    {
        ::uselocale(m_previous);
    }
    Utf8Widths(const Utf8Widths&) = delete;
    Utf8Widths& operator=(const Utf8Widths&) = delete;

private:
    locale_t m_previous;
};

int cellsOf(uint character)
{
    const int cells = ::wcwidth(static_cast<wchar_t>(character));
    return cells < 0 ? 1 : cells;
}

QString ellipsis()
{
    const bool utf8 = std::string_view(::nl_langinfo(CODESET)) == "UTF-8";
    return utf8 ? QString(QChar(0x2026)) : QStringLiteral("~");
}

/// Cuts the widest columns, measured by what exceeds their least width, until the line fits.
void fitWidths(const std::vector<TableColumn>& columns, std::vector<int>& widths, int available)
{
    while (std::accumulate(widths.begin(), widths.end(), 0) > available) {
        size_t widest = 0;
        int excess = 0;
        for (size_t i = 0; i < widths.size(); ++i) {
            if (widths[i] - columns[i].least > excess) {
                excess = widths[i] - columns[i].least;
                widest = i;
            }
        }
        if (excess == 0) {
            return;
        }
        --widths[widest];
    }
}

QString padded(const QString& text, int width, bool number)
{
    const QString blanks(std::max(0, width - cellsOf(text)), QLatin1Char(' '));
    return number ? blanks + text : text + blanks;
}

} // namespace

int cellsOf(const QString& text)
{
    const Utf8Widths widths;
    const QVector<uint> characters = text.toUcs4();
    return std::accumulate(characters.begin(), characters.end(), 0,
                           [](int sum, uint character) { return sum + cellsOf(character); });
}

QString cutToCells(const QString& text, int cells)
{
    if (cellsOf(text) <= cells) {
        return text;
    }
    if (cells <= 0) {
        return QString();
    }
    const QString end = ellipsis();
    const Utf8Widths widths;
    int left = cells - cellsOf(end);
    QString kept;
    for (const uint character : text.toUcs4()) {
        left -= cellsOf(character);
        if (left < 0) {
            break;
        }
        appendCodePoint(kept, character);
    }
    return kept + end;
}

QString coloured(const QString& text, const char* colour, const TableStyle& style)
{
    if (!style.colours || colour == nullptr) {
        return text;
    }
    return QStringLiteral("\x1b[%1m%2\x1b[0m").arg(QLatin1String(colour), text);
}

QStringList tableLines(std::vector<TableColumn> columns, const std::vector<std::vector<TableCell>>& rows,
                       const TableStyle& style)
{
    std::vector<int> widths;
    for (size_t i = 0; i < columns.size(); ++i) {
        int widest = cellsOf(columns[i].heading);
        for (const std::vector<TableCell>& row : rows) {
            widest = std::max(widest, cellsOf(row[i].text));
        }
        widths.push_back(widest);
    }
    int gap = 2;
    if (style.width > 0) {
        const int gaps = static_cast<int>(columns.size()) - 1;
        const int whole = std::accumulate(widths.begin(), widths.end(), 0) + gaps * gap;
        gap = whole > style.width ? 1 : gap;
        fitWidths(columns, widths, style.width - gaps * gap);
    }

    const auto line = [&](const std::vector<TableCell>& cells) {
        QString text;
        for (size_t i = 0; i < columns.size(); ++i) {
            const bool last = i + 1 == columns.size();
            QString cell = padded(cutToCells(cells[i].text, widths[i]), widths[i], columns[i].number);
            if (last && !columns[i].number) {
                cell = cell.trimmed();
            }
            text += coloured(cell, cells[i].colour, style) + QString(last ? 0 : gap, QLatin1Char(' '));
        }
        return text;
    };
    std::vector<TableCell> headings;
    headings.reserve(columns.size());
    for (const TableColumn& column : columns) {
        headings.push_back({column.heading, nullptr});
    }
    QStringList lines{line(headings)};
    for (const std::vector<TableCell>& row : rows) {
        lines << line(row);
    }
    return lines;
}

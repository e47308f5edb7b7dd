// Tables for a terminal: columns aligned by the cells that their characters take, and cut to a width.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// The number of terminal cells: 2 for a wide character, 0 for a combining one. Depends on the locale's
/// character set; a character that it does not have counts as one cell.
int cellsOf(const QString& text);

/// The text, cut to at most `cells` with an ellipsis at the end.
QString cutToCells(const QString& text, int cells);

struct TableColumn
{
    QString heading;
    bool number = false; ///< right-aligned
    int least = 1;       ///< the smallest width in cells to which it is cut
};

struct TableCell
{
    QString text;
    const char* colour = nullptr; ///< parameters of the control sequence; null: none
};

struct TableStyle
{
    int width = 0; ///< cells of a line; 0: unlimited
    bool colours = false;
};

/// One line per row, after a line of headings. The columns that exceed their least width most are cut first.
/// Texts must be safe.
QStringList tableLines(std::vector<TableColumn> columns, const std::vector<std::vector<TableCell>>& rows,
                       const TableStyle& style);

/// The text in a colour if the style has colours.
QString coloured(const QString& text, const char* colour, const TableStyle& style);

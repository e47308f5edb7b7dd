// The list of publishers as a table: the columns of the program's window.
#pragma once

#include "PublisherReport.h"
#include "TableText.h"

/// One line for the headings and one per report; a single line if there is no report.
QStringList listLines(const std::vector<PublisherReport>& reports, const TableStyle& style);

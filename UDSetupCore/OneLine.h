// Texts that fit one line of a setting file.
#pragma once

#include <QString>

/// Removes line ends and NULs from the text of a field. Pasted text may contain line ends, which a field
/// keeps and draws as blanks, and NULs, which would end the text.
inline QString oneLine(QString text)
{
    for (const char end : {'\r', '\n', '\0'}) {
        text.remove(QLatin1Char(end));
    }
    return text;
}

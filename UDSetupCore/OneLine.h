// Texts that are one line of a setting file.
#pragma once

#include <QString>

/// What a field holds, as one line: a pasted text may bring line ends along, which a field keeps and only
/// draws as blanks, and NULs, at which the text would end.
inline QString oneLine(QString text)
{
    for (const char end : {'\r', '\n', '\0'}) {
        text.remove(QLatin1Char(end));
    }
    return text;
}

// Single characters of a text.
#pragma once

#include <QString>

/// Appends the character with this code point.
inline void appendCodePoint(QString& text, uint codePoint)
{
    if (QChar::requiresSurrogates(codePoint)) {
        text += QChar(QChar::highSurrogate(codePoint));
        text += QChar(QChar::lowSurrogate(codePoint));
    } else {
        text += QChar(static_cast<ushort>(codePoint));
    }
}

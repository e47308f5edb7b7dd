// Texts with characters beyond ASCII.
#pragma once

#include <QString>

inline QString utf8(const char* text)
{
    return QString::fromUtf8(text);
}

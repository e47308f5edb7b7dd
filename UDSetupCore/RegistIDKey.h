// A regist id is the stem of a file name: any bytes but NUL and "/". Rows store it as a QString that is never
// displayed, so the mapping must be lossless but need not be readable: one character per byte.
#pragma once

#include "Win_def_MFC.h"

#include <QString>

inline QString keyFromRegistID(const CString& id)
{
    return QString::fromLatin1(id.data(), static_cast<int>(id.size()));
}

inline CString registIDFromKey(const QString& key)
{
    return CString(key.toLatin1().toStdString());
}

// A regist id is the stem of a file name: any bytes but NUL and "/". Rows carry it as a QString that no one
// ever sees, so the mapping has to be lossless and need not be readable: one character a byte.
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

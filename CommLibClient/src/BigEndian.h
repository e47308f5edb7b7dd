// Reads the big-endian numbers of the wire.
#pragma once

#include "Win_def.h"

/// `pData` holds at least two bytes.
inline WORD BigEndian16(const char* pData)
{
    const auto* bytes = reinterpret_cast<const BYTE*>(pData);
    return static_cast<WORD>(bytes[0] << 8 | bytes[1]);
}

/// `pData` holds at least four bytes.
inline DWORD BigEndian32(const char* pData)
{
    return static_cast<DWORD>(BigEndian16(pData)) << 16 | BigEndian16(pData + 2);
}

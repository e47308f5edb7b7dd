// Texts in the fixed fields of records.
#pragma once

#include "Win_def_MFC.h"

#include <cstddef>
#include <cstring>
#include <string>

/// The text of a fixed field, whose NUL a peer may have left out.
template <size_t size>
CString WireText(const char (&field)[size])
{
    return std::string(field, strnlen(field, size));
}

// Texts in fixed-size fields of records.
#pragma once

#include "Win_def_MFC.h"

#include <cstddef>
#include <cstring>
#include <string>

/// The text of a fixed-size field. The peer may omit the terminating NUL.
template <size_t size>
CString WireText(const char (&field)[size])
{
    return std::string(field, strnlen(field, size));
}

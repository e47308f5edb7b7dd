// A made-up model. A program that links the library ExtraModel uses the product's table of models with one
// more row.
#pragma once

#include "ModelTable.h"

/// One BD-XL drive in a family of its own. It supports the error-rate and read modes.
constexpr UINT EXTRA_MODEL = 0x3000000B;
constexpr DWORD EXTRA_MODEL_FAMILY_CODE = 0xB;
constexpr char EXTRA_MODEL_NAME[] = "RT-31 (BD-XL)";

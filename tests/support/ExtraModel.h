// A made-up model. A program that links the library ExtraModel is the product with one more row in its table
// of models.
#pragma once

#include "ModelTable.h"

/// One BD-XL drive in a family of its own. It measures error rates and reads.
constexpr UINT EXTRA_MODEL = 0x3000000B;
constexpr DWORD EXTRA_MODEL_FAMILY_CODE = 0xB;
constexpr char EXTRA_MODEL_NAME[] = "RT-31 (BD-XL)";

// Keys of HKEY_LOCAL_MACHINE, as the tests create and open them.
#pragma once

#include "WinFunc.h"

#include <gtest/gtest.h>

inline HKEY Create(const char* subKey)
{
    HKEY key = nullptr;
    EXPECT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, subKey, 0, nullptr, 0, 0, nullptr, &key, nullptr), 0);
    return key;
}

inline HKEY Open(const char* subKey = "a")
{
    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, subKey, 0, KEY_READ, &key), 0);
    return key;
}

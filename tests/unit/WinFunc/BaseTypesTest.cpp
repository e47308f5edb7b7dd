#include "HeapGrowth.h"
#include "Win_def.h"

#include <cstddef>
#include <type_traits>

#include <gtest/gtest.h>

// The widths and layouts of the base types: files, sockets and other programs rely on them.

static_assert(std::is_same_v<BOOL, int>);
static_assert(std::is_same_v<INT, int>);
static_assert(std::is_same_v<UINT, unsigned int>);
static_assert(std::is_same_v<BYTE, unsigned char>);
static_assert(std::is_same_v<WORD, uint16_t>);
static_assert(std::is_same_v<DWORD, uint32_t>);
static_assert(std::is_same_v<ULONG, uint32_t>);
static_assert(std::is_same_v<LONG, int32_t>);
static_assert(std::is_same_v<LONGLONG, int64_t>);
static_assert(std::is_same_v<ULONGLONG, uint64_t>);
static_assert(std::is_same_v<HANDLE, void*>);
static_assert(std::is_same_v<HKEY, void*>);
static_assert(std::is_same_v<INT_PTR, intptr_t>);
static_assert(std::is_same_v<LPCSTR, const char*>);
static_assert(std::is_same_v<LPCTSTR, const char*>);
static_assert(std::is_same_v<LPSTR, char*>);
static_assert(std::is_same_v<CRITICAL_SECTION, pthread_mutex_t>);
static_assert(std::is_same_v<WPARAM, UINT_PTR>);
static_assert(std::is_same_v<LPARAM, LONG_PTR>);
static_assert(sizeof(WPARAM) == 8 && sizeof(LPARAM) == 8);

static_assert(std::is_same_v<decltype(GUID::Data1), unsigned long> && sizeof(GUID::Data1) == 8);
static_assert(std::is_same_v<decltype(GUID::Data2), unsigned short>);
static_assert(std::is_same_v<decltype(GUID::Data3), unsigned short>);
static_assert(sizeof(GUID::Data4) == 8);
static_assert(offsetof(GUID, Data1) < offsetof(GUID, Data2) &&
              offsetof(GUID, Data2) < offsetof(GUID, Data3) && offsetof(GUID, Data3) < offsetof(GUID, Data4));

static_assert(offsetof(FILETIME, dwLowDateTime) == 0 && offsetof(FILETIME, dwHighDateTime) == 4);

static_assert(sizeof(SYSTEMTIME) == 16);
static_assert(offsetof(SYSTEMTIME, wYear) == 0 && offsetof(SYSTEMTIME, wMonth) == 2 &&
              offsetof(SYSTEMTIME, wDayOfWeek) == 4 && offsetof(SYSTEMTIME, wDay) == 6 &&
              offsetof(SYSTEMTIME, wHour) == 8 && offsetof(SYSTEMTIME, wMinute) == 10 &&
              offsetof(SYSTEMTIME, wSecond) == 12 && offsetof(SYSTEMTIME, wMilliseconds) == 14);

static_assert(std::is_same_v<decltype(TIME_ZONE_INFORMATION::Bias), LONG>);
static_assert(offsetof(TIME_ZONE_INFORMATION, Bias) == 0 &&
              offsetof(TIME_ZONE_INFORMATION, StandardDate) == 4 &&
              offsetof(TIME_ZONE_INFORMATION, StandardBias) == 20);

static_assert(offsetof(tagMSG, hwnd) == 0 && offsetof(tagMSG, message) == 8 &&
              offsetof(tagMSG, wParam) == 16 && offsetof(tagMSG, lParam) == 24);
static_assert(std::is_same_v<MSG, tagMSG>);

static_assert(std::is_empty_v<_bstr_t> && std::is_same_v<bstr_t, _bstr_t>);
static_assert(std::is_constructible_v<bstr_t, const char*>);

TEST(BaseTypes, AssertTextContainsTheExpandedExpression)
{
    EXPECT_DEATH(ASSERT(FALSE), "\\(0\\) != FALSE");
    int zero = 0;
    EXPECT_DEATH(ASSERT(zero > 0), "\\(zero > 0\\) != FALSE");
    ASSERT(zero == 0);
}

TEST(BaseTypes, CoCreateGuidDoesNotChangeTheStructure)
{
    GUID guid{0x0123456789abcdefUL, 0x1122, 0x3344, {1, 2, 3, 4, 5, 6, 7, 8}};
    EXPECT_EQ(CoCreateGuid(&guid), 0);
    EXPECT_EQ(guid.Data1, 0x0123456789abcdefUL);
    EXPECT_EQ(guid.Data2, 0x1122);
    EXPECT_EQ(guid.Data3, 0x3344);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(guid.Data4[i], i + 1);
    }
}

TEST(BaseTypes, VersionQueriesReturnZeroAndWriteNothing)
{
    DWORD handle = 77;
    EXPECT_EQ(GetFileVersionInfoSize("/bin/sh", &handle), 0U);
    EXPECT_EQ(handle, 77U);

    char block[4] = {'a', 'b', 'c', 0};
    EXPECT_EQ(GetFileVersionInfo("/bin/sh", 0, sizeof block, block), 0);
    EXPECT_STREQ(block, "abc");

    LPVOID value = block;
    UINT length = 5;
    EXPECT_EQ(VerQueryValue(block, "\\", &value, &length), 0);
    EXPECT_EQ(value, block);
    EXPECT_EQ(length, 5U);
}

TEST(BaseTypes, GlobalAllocUsesTheHeapWithAnyFlag)
{
    for (const UINT flags : {0U, 0x40U, 0xFFFFFFFFU}) {
        auto* memory = static_cast<char*>(GlobalAlloc(flags, 100));
        ASSERT_NE(memory, nullptr);
        memory[0] = 'x';
        memory[99] = 'y';
        EXPECT_EQ(GlobalFree(memory), nullptr);
    }
    EXPECT_EQ(GlobalFree(nullptr), nullptr);
    EXPECT_EQ(HeapGrowth([] { GlobalFree(GlobalAlloc(0, 100)); }), 0u);
}

#include "Win_def.h"

#include <climits>
#include <cstring>
#include <string>

#include <dlfcn.h>
#include <gtest/gtest.h>

namespace {

int CallVsprintf(char* buffer, size_t size, const char* format, ...) __attribute__((format(printf, 3, 4)));
int CallVsprintf(char* buffer, size_t size, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const int length = vsprintf_s(buffer, size, format, args);
    va_end(args);
    return length;
}

int CallVsnprintf(char* buffer, size_t size, size_t count, const char* format, ...)
    __attribute__((format(printf, 4, 5)));
int CallVsnprintf(char* buffer, size_t size, size_t count, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const int length = _vsnprintf_s(buffer, size, count, format, args);
    va_end(args);
    return length;
}

int CallVscprintf(const char* format, ...) __attribute__((format(printf, 1, 2)));
int CallVscprintf(const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const int length = _vscprintf(format, args);
    va_end(args);
    return length;
}

constexpr char formatted[] = "a text of 24 bytes, #042";

} // namespace

TEST(Formatting, UnboundedFunctionsIgnoreTheSize)
{
    char buffer[64];
    EXPECT_EQ(snprintf(buffer, 4, "a text of %d bytes, #%03d", 24, 42), 24);
    EXPECT_STREQ(buffer, formatted);
    buffer[0] = '\0';
    EXPECT_EQ(snprintf(buffer, 0, "a text of %d bytes, #%03d", 24, 42), 24);
    EXPECT_STREQ(buffer, formatted);
    buffer[0] = '\0';
    EXPECT_EQ(swprintf_s(buffer, 4, "a text of %d bytes, #%03d", 24, 42), 24);
    EXPECT_STREQ(buffer, formatted);
    buffer[0] = '\0';
    EXPECT_EQ(CallVsprintf(buffer, 4, "a text of %d bytes, #%03d", 24, 42), 24);
    EXPECT_STREQ(buffer, formatted);
    buffer[0] = '\0';
    EXPECT_EQ(wsprintf(buffer, "a text of %d bytes, #%03d", 24, 42), 24);
    EXPECT_STREQ(buffer, formatted);
}

TEST(Formatting, VsnprintfIsBoundedByTheCountOnly)
{
    char buffer[64];
    EXPECT_EQ(CallVsnprintf(buffer, 4, 8, "%s", formatted), 24);
    EXPECT_STREQ(buffer, "a text ");
    EXPECT_EQ(CallVsnprintf(buffer, 4, 64, "%s", formatted), 24);
    EXPECT_STREQ(buffer, formatted);
}

TEST(Formatting, VscprintfReturnsTheLength)
{
    EXPECT_EQ(CallVscprintf("%s", formatted), 24);
    EXPECT_EQ(CallVscprintf("%5000d", 1), 5000);
    EXPECT_EQ(CallVscprintf("%s", ""), 0);
}

TEST(Formatting, TheCLibrarysSnprintfIsNotReplaced)
{
    // The symbol that other libraries of this process find.
    void* symbol = dlsym(RTLD_DEFAULT, "snprintf");
    ASSERT_NE(symbol, nullptr);
    Dl_info library{};
    Dl_info program{};
    ASSERT_NE(dladdr(symbol, &library), 0);
    ASSERT_NE(dladdr(reinterpret_cast<void*>(&swprintf_s), &program), 0);
#ifndef ULMAR_SANITIZED // the sanitizers replace it, those of clang in the program itself
    EXPECT_NE(library.dli_fbase, program.dli_fbase);
    EXPECT_NE(std::string(library.dli_fname).find("libc.so"), std::string::npos) << library.dli_fname;
#endif

    using Function = int (*)(char*, size_t, const char*, ...);
    char buffer[64];
    EXPECT_EQ(reinterpret_cast<Function>(symbol)(buffer, 4, "%s", "abcdef"), 6);
    EXPECT_STREQ(buffer, "abc");
}

TEST(Formatting, DecimalConversionsAlwaysReturn22)
{
    char buffer[32] = "old";
    EXPECT_EQ(_itoa_s(5, buffer, 16, 10), 22);
    EXPECT_STREQ(buffer, "5");
    EXPECT_EQ(_itoa_s(INT_MIN, buffer, 16, 10), 22);
    EXPECT_STREQ(buffer, "-2147483648");
    EXPECT_EQ(_ltoa_s(LONG_MIN, buffer, 32, 10), 22);
    EXPECT_STREQ(buffer, "-9223372036854775808");
    EXPECT_EQ(_ultoa_s(ULONG_MAX, buffer, 32, 10), 22);
    EXPECT_STREQ(buffer, "18446744073709551615");
    EXPECT_EQ(_itoa_s(12345, buffer, 1, 10), 22); // the size is only compared with 0
    EXPECT_STREQ(buffer, "12345");
}

TEST(Formatting, DecimalConversionsWriteNothingForOtherArguments)
{
    struct Row
    {
        size_t size;
        int radix;
    };
    const Row rows[] = {{16, 16}, {16, 8}, {16, 2}, {16, 36}, {16, 1}, {16, 37}, {16, 0}, {16, -10}, {0, 10}};
    for (const Row& row : rows) {
        char buffer[32] = "old";
        EXPECT_EQ(_itoa_s(5, buffer, row.size, row.radix), 22) << row.radix;
        EXPECT_STREQ(buffer, "old");
        EXPECT_EQ(_ltoa_s(5, buffer, row.size, row.radix), 22) << row.radix;
        EXPECT_STREQ(buffer, "old");
        EXPECT_EQ(_ultoa_s(5, buffer, row.size, row.radix), 22) << row.radix;
        EXPECT_STREQ(buffer, "old");
    }
    EXPECT_EQ(_itoa_s(5, nullptr, 16, 10), 22);
    EXPECT_EQ(_ltoa_s(5, nullptr, 16, 10), 22);
    EXPECT_EQ(_ultoa_s(5, nullptr, 16, 10), 22);
}

TEST(Formatting, LtowSupportsThreeRadixes)
{
    struct Row
    {
        long value;
        int radix;
        const char* buffer;
        int result;
    };
    const Row rows[] = {{255, 16, "ff", 0},  {-1, 16, "ffffffffffffffff", 0},
                        {255, 10, "255", 0}, {-255, 10, "-255", 0},
                        {255, 8, "377", 0},  {255, 2, "old", 22},
                        {255, 36, "old", 22}};
    for (const Row& row : rows) {
        char buffer[32] = "old";
        EXPECT_EQ(_ltow_s(row.value, buffer, 1, row.radix), row.result) << row.value << " " << row.radix;
        EXPECT_STREQ(buffer, row.buffer);
    }
    EXPECT_EQ(_ltow_s(1, nullptr, 16, 10), 22);
}

TEST(Formatting, ConvertsTextsToNumbers)
{
    EXPECT_EQ(_atoi64(" -9223372036854775808x"), LLONG_MIN);
    EXPECT_EQ(_atoi64("none"), 0);
    EXPECT_EQ(_wtoi("42nd"), 42);
    EXPECT_EQ(_wtoi(""), 0);
    EXPECT_EQ(_wtol("-5000000000"), -5000000000L);
    EXPECT_EQ(_totupper('q'), 'Q');
    EXPECT_EQ(_totupper('1'), '1');
}

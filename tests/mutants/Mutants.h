// Included by the rewritten sources of tests/mutants/run: selects the mutant whose number is in ULMAR_MUTANT,
// or with ULMAR_MUTANT=trace:FILE sets the byte FILE[number] of each mutant that is reached.
#pragma once

#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <type_traits>
#include <unistd.h>

namespace mutants {

struct State
{
    unsigned selected = 0;
    unsigned char* reached = nullptr;
};

/// Uses system calls without the functions of the C library, which tests replace.
inline State Load() noexcept
{
    State state;
    const char* text = std::getenv("ULMAR_MUTANT");
    if (text == nullptr) {
        return state;
    }
    if (std::strncmp(text, "trace:", 6) != 0) {
        state.selected = static_cast<unsigned>(std::strtoul(text, nullptr, 10));
        return state;
    }
    const long file = syscall(SYS_openat, AT_FDCWD, text + 6, O_RDWR | O_CLOEXEC);
    struct stat status = {};
    if (file < 0 || syscall(SYS_newfstatat, file, "", &status, AT_EMPTY_PATH) != 0) {
        std::abort();
    }
    const long memory =
        syscall(SYS_mmap, nullptr, status.st_size, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0L);
    if (memory == -1) {
        std::abort();
    }
    state.reached = reinterpret_cast<unsigned char*>(memory);
    syscall(SYS_close, file);
    return state;
}

inline bool Is(unsigned mutant) noexcept
{
    static const State state = Load();
    if (state.reached != nullptr) {
        __atomic_store_n(state.reached + mutant, 1, __ATOMIC_RELAXED);
    }
    return mutant == state.selected;
}

// Loads the state before main: a test may limit files, memory or system calls. No mutant has the number 0.
inline const bool g_loaded = Is(0);

inline bool True(unsigned mutant, bool condition) noexcept
{
    return Is(mutant) || condition;
}

inline bool False(unsigned mutant, bool condition) noexcept
{
    return !Is(mutant) && condition;
}

inline const char* Text(unsigned mutant, const char* text) noexcept
{
    return Is(mutant) ? "" : text;
}

/// Another value: 0 and 1, false and true change places, other numbers grow by 1, a pointer becomes null, and
/// an object becomes a default-constructed one.
template <class Value>
std::decay_t<Value> Changed(unsigned mutant, Value&& value)
{
    using Result = std::decay_t<Value>;
    if (!Is(mutant)) {
        return static_cast<Value&&>(value);
    }
    if constexpr (std::is_same_v<Result, bool>) {
        return !value;
    } else if constexpr (std::is_arithmetic_v<Result>) {
        return static_cast<Result>(value == 1 ? 0 : value + 1);
    } else if constexpr (std::is_enum_v<Result>) {
        return static_cast<Result>(static_cast<std::underlying_type_t<Result>>(value) + 1);
    } else {
        return Result();
    }
}

// Both operands are evaluated once, as in the original.
#define MUTANTS_OPERATION(name, original, replacement)                                                       \
    template <class Left, class Right>                                                                       \
    auto name(unsigned mutant, Left left, Right right) noexcept -> decltype(left original right)             \
    {                                                                                                        \
        return Is(mutant) ? left replacement right : left original right;                                    \
    }

MUTANTS_OPERATION(Less, <, <=)
MUTANTS_OPERATION(LessEqual, <=, <)
MUTANTS_OPERATION(Greater, >, >=)
MUTANTS_OPERATION(GreaterEqual, >=, >)
MUTANTS_OPERATION(Plus, +, -)
MUTANTS_OPERATION(Minus, -, +)
MUTANTS_OPERATION(Times, *, /)
MUTANTS_OPERATION(Divide, /, *)
MUTANTS_OPERATION(Modulo, %, /)
MUTANTS_OPERATION(And, &, |)
MUTANTS_OPERATION(Or, |, &)
MUTANTS_OPERATION(Xor, ^, |)
MUTANTS_OPERATION(ShiftLeft, <<, >>)
MUTANTS_OPERATION(ShiftRight, >>, <<)

#undef MUTANTS_OPERATION

} // namespace mutants

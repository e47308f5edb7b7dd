// Linked into all programs of the preset "coverage": stores gcov's counts of a process that ends by _exit, as
// the child processes of ulmar-disc-status do, or by a failed assertion. gcov itself stores them only at a
// normal end.
#include <sys/wait.h>
#include <unistd.h>

extern "C" {

#include <gcov.h> // has no declarations for C++

[[noreturn]] void __real__exit(int status);
[[noreturn]] void __real__Exit(int status);
[[noreturn]] void __real___assert_fail(const char* expression, const char* file, unsigned line,
                                       const char* function);
}

/// The fork of the C library. With --coverage, gcc replaces calls of the name fork, and the replacement sets
/// the counts of the child to 0.
pid_t PlainFork() asm("fork");

namespace {

/// Another process stores the counts: this one may be killed at any time, and a file that is written in part
/// loses the counts of all earlier processes.
void StoreCounts()
{
    const pid_t child = PlainFork();
    if (child > 0) {
        waitpid(child, nullptr, 0);
        return;
    }
    __gcov_dump();
    if (child == 0) {
        __real__exit(0);
    }
}

} // namespace

// The linker option --wrap redirects the calls to these functions.
extern "C" {

[[noreturn]] void __wrap__exit(int status)
{
    StoreCounts();
    __real__exit(status);
}

[[noreturn]] void __wrap__Exit(int status)
{
    StoreCounts();
    __real__Exit(status);
}

[[noreturn]] void __wrap___assert_fail(const char* expression, const char* file, unsigned line,
                                       const char* function)
{
    StoreCounts();
    __real___assert_fail(expression, file, line, function);
}
}

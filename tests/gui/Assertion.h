// Runs a failing assertion in a child process.
#pragma once

#include <csignal>
#include <fcntl.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

/// Runs `work` in a child process. Returns what it wrote to standard error if an assertion failed; empty if
/// it ended in any other way.
template <class Work>
std::string assertionOf(Work work)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        return {};
    }
    const pid_t child = fork();
    if (child == 0) {
        const rlimit none{0, 0};
        setrlimit(RLIMIT_CORE, &none);
        std::signal(SIGABRT, SIG_DFL); // QtTest must not report it
        dup2(ends[1], STDERR_FILENO);
        work();
        _exit(0);
    }
    close(ends[1]);
    std::string said;
    char piece[512];
    ssize_t count = 0;
    while ((count = read(ends[0], piece, sizeof piece)) > 0) {
        said.append(piece, static_cast<size_t>(count));
    }
    close(ends[0]);
    int status = 0;
    const bool ended = child > 0 && waitpid(child, &status, 0) == child;
    const bool stopped = ended && WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT;
    return stopped && said.find("Assertion") != std::string::npos ? said : "";
}

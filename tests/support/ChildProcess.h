// Child processes that act as other programs of the suite.
#pragma once

#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

/// Runs `work` in a child process. WaitFor returns whether it returned true.
template <class Work>
pid_t StartChild(Work work)
{
    const pid_t child = fork();
    if (child == 0) {
        _exit(work() ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    return child;
}

inline bool WaitFor(pid_t child)
{
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) &&
           WEXITSTATUS(status) == EXIT_SUCCESS;
}

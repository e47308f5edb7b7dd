// Closing the console does not end a program, even if it only prints and opens no handle.
#include "Win_def.h"
#include "Win_def_log.h"

#include <array>
#include <csignal>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Evaluated during static initialization, before main.
const bool brokenPipesWereIgnoredAtStart = [] {
    struct sigaction action = {};
    return sigaction(SIGPIPE, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}();

TEST(BrokenPipeTest, TheSignalIsIgnoredBeforeMain)
{
    EXPECT_TRUE(brokenPipesWereIgnoredAtStart);
}

TEST(BrokenPipeTest, PrintingToABrokenPipeDoesNotEndTheProcess)
{
    std::array<int, 2> ends = {};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    close(ends[0]);
    const pid_t child = fork();
    if (child == 0) {
        dup2(ends[1], STDOUT_FILENO);
        SetLogLevel(4);
        SetEvent(nullptr);
        std::printf("more");
        const bool failed = std::fflush(stdout) != 0 && errno == EPIPE;
        _exit(failed ? 42 : 1);
    }
    close(ends[1]);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status)) << "ended by signal " << WTERMSIG(status);
    EXPECT_EQ(WEXITSTATUS(status), 42);
}

} // namespace

// Runs the program with a console that closes before the first line is printed.
#include <array>
#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

TEST(BrokenConsoleTest, DoesNotKillTheProgram)
{
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        unsetenv(variable); // so that it reports an error at once and exits with 1
    }
    std::array<int, 2> ends = {};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    close(ends[0]);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t deadly;
    sigemptyset(&deadly);
    sigaddset(&deadly, SIGPIPE);
    posix_spawnattr_setsigdefault(&attributes, &deadly); // whatever this process has inherited
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    char program[] = UDSETUP_PROGRAM;
    std::array<char*, 2> arguments = {program, nullptr};
    pid_t child = 0;
    ASSERT_EQ(posix_spawn(&child, program, &actions, &attributes, arguments.data(), environ), 0);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);

    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status)) << "ended by signal " << WTERMSIG(status);
    EXPECT_EQ(WEXITSTATUS(status), 1);
}

} // namespace

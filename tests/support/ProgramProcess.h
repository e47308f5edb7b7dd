// A program run as a process: its output and its exit code.
#pragma once

#include <cerrno>
#include <csignal>
#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

/// Runs a program with these arguments. A pipe carries its standard output and standard error.
class ProgramProcess
{
public:
    static constexpr int PATIENCE = 30'000; ///< milliseconds, for any event that a test expects

    ProgramProcess(const std::string& program, std::vector<std::string> arguments)
    {
        int ends[2] = {-1, -1};
        EXPECT_EQ(::pipe2(ends, O_CLOEXEC), 0);
        start(program, std::move(arguments), ends[1]);
        ::close(ends[1]);
        m_output = ends[0];
    }
    /// Uses a terminal instead of the pipe. `output` is the other end of the terminal.
    ProgramProcess(const std::string& program, std::vector<std::string> arguments, int terminal, int output)
        : m_output(output)
    {
        start(program, std::move(arguments), terminal);
        ::close(terminal);
    }
    ProgramProcess(const ProgramProcess&) = delete;
    ProgramProcess& operator=(const ProgramProcess&) = delete;
    ~ProgramProcess()
    {
        if (m_pid > 0) {
            ::kill(m_pid, SIGKILL);
            ::waitpid(m_pid, nullptr, 0);
        }
        ::close(m_output);
    }

    /// Reads until the text arrives or the output ends. Returns everything read so far.
    std::string readUntil(const std::string& text)
    {
        while (text.empty() || m_read.find(text) == std::string::npos) {
            pollfd entry{m_output, POLLIN, 0};
            char piece[4096];
            if (::poll(&entry, 1, PATIENCE) <= 0) {
                ADD_FAILURE() << "timed out waiting for \"" << text << "\" after: " << m_read;
                break;
            }
            const ssize_t count = ::read(m_output, piece, sizeof piece);
            if (count <= 0) {
                break;
            }
            m_read.append(piece, static_cast<size_t>(count));
        }
        return m_read;
    }
    std::string readToTheEnd()
    {
        return readUntil("");
    }
    void signal(int number) const
    {
        ::kill(m_pid, number);
    }
    /// The exit code, or 1000 plus the number of the signal that ended the program.
    int wait()
    {
        int status = 0;
        ::waitpid(std::exchange(m_pid, -1), &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
    }

    /// Ends the program by SIGINT, like Ctrl-C. Returns all of its output.
    std::string end()
    {
        signal(SIGINT);
        std::string output = readToTheEnd();
        EXPECT_EQ(wait(), 0) << output;
        return output;
    }

private:
    void start(const std::string& program, std::vector<std::string> arguments, int output)
    {
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions, output, STDERR_FILENO);
        arguments.insert(arguments.begin(), program);
        std::vector<char*> argv;
        for (std::string& argument : arguments) {
            argv.push_back(argument.data());
        }
        argv.push_back(nullptr);
        EXPECT_EQ(::posix_spawn(&m_pid, program.c_str(), &actions, nullptr, argv.data(), environ), 0);
        posix_spawn_file_actions_destroy(&actions);
    }

    pid_t m_pid = -1;
    int m_output = -1;
    std::string m_read;
};

struct Ended
{
    int status;
    std::string output; ///< standard output and standard error
};

/// Runs a program until it exits.
inline Ended runProgram(const std::string& program, std::vector<std::string> arguments)
{
    ProgramProcess process(program, std::move(arguments));
    std::string output = process.readToTheEnd();
    return {process.wait(), std::move(output)};
}

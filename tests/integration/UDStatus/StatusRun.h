// Runs ulmar-disc-status as a user does, with its standard streams on pipes or on a terminal.
#pragma once

#include "ProgramProcess.h"

#include <chrono>
#include <cstdlib>
#include <map>

#include <pty.h>
#include <sys/ioctl.h>
#include <termios.h>

struct StatusEnd
{
    int code = -1; ///< 1000 plus the number of the signal that ended it
    std::string out;
    std::string err;
    std::chrono::milliseconds time{0};
};

/// A running program. Nothing of the environment but these variables is inherited.
class StatusRun
{
public:
    using Variables = std::map<std::string, std::string>;

    /// Standard output is a terminal with `columns` columns, or a pipe if that is 0.
    explicit StatusRun(std::vector<std::string> arguments, unsigned short columns = 0,
                       Variables variables = {{"LC_ALL", "C.UTF-8"}})
    {
        int out[2] = {-1, -1};
        int err[2] = {-1, -1};
        EXPECT_EQ(::pipe2(err, O_CLOEXEC), 0);
        if (columns > 0) {
            const winsize size{24, columns, 0, 0};
            EXPECT_EQ(::openpty(&out[0], &out[1], nullptr, nullptr, &size), 0);
            ::fcntl(out[0], F_SETFD, FD_CLOEXEC);
            ::fcntl(out[1], F_SETFD, FD_CLOEXEC);
        } else {
            EXPECT_EQ(::pipe2(out, O_CLOEXEC), 0);
        }
        m_out = out[0];
        m_err = err[0];
        spawn(std::move(arguments), variables, out[1], err[1]);
        ::close(out[1]);
        ::close(err[1]);
    }
    StatusRun(const StatusRun&) = delete;
    StatusRun& operator=(const StatusRun&) = delete;
    ~StatusRun()
    {
        if (m_pid > 0) {
            ::kill(m_pid, SIGKILL);
            ::waitpid(m_pid, nullptr, 0);
        }
        closeOutput();
        ::close(m_err);
    }

    /// Reads until standard output contains the text, at the earliest after what was found before.
    bool waitFor(const std::string& text)
    {
        while (true) {
            const size_t place = m_end.out.find(text, m_searched);
            if (place != std::string::npos) {
                m_searched = place + text.size();
                return true;
            }
            if (!readSome()) {
                return false;
            }
        }
    }
    void signal(int number) const
    {
        ::kill(m_pid, number);
    }
    void resize(unsigned short columns) const
    {
        const winsize size{24, columns, 0, 0};
        ::ioctl(m_out, TIOCSWINSZ, &size);
        signal(SIGWINCH); // the terminal is not the controlling one, so the kernel sends none
    }
    /// The terminal takes nothing any more, as after Ctrl-S.
    void stopOutput() const
    {
        controlFlow(TCOOFF);
    }
    /// As after Ctrl-Q.
    void startOutput() const
    {
        controlFlow(TCOON);
    }
    /// Waits until the terminal takes nothing any more, because nobody reads. A terminal is not writable for
    /// a moment, either, while it is written to.
    void waitUntilFull() const
    {
        pollfd terminal{openTerminal(), POLLOUT, 0};
        pollfd end{m_err, POLLIN, 0}; // nothing is printed here: a pause
        for (int full = 0; full < 10 && ::poll(&end, 1, 10) == 0;) {
            full = ::poll(&terminal, 1, 0) == 0 ? full + 1 : 0;
        }
        ::close(terminal.fd);
    }
    /// The reader of a pipe ends.
    void closeOutput()
    {
        if (m_out >= 0) {
            ::close(std::exchange(m_out, -1));
        }
    }
    const std::string& output() const
    {
        return m_end.out;
    }
    /// The process, for a look at its children.
    pid_t process() const
    {
        return m_pid;
    }

    /// Waits for the end, while nobody reads the output. Returns the exit code as StatusEnd does.
    int codeWithoutReading()
    {
        int status = 0;
        ::waitpid(std::exchange(m_pid, -1), &status, 0);
        return codeOf(status);
    }
    /// Waits for the end, and returns everything that was printed.
    StatusEnd end()
    {
        while (readSome()) {
        }
        int status = 0;
        ::waitpid(std::exchange(m_pid, -1), &status, 0);
        m_end.code = codeOf(status);
        m_end.time = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - m_started);
        return m_end;
    }

private:
    using Clock = std::chrono::steady_clock;

    void spawn(std::vector<std::string> arguments, const Variables& variables, int out, int err)
    {
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_adddup2(&actions, out, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions, err, STDERR_FILENO);
        posix_spawnattr_t attributes;
        posix_spawnattr_init(&attributes);
        sigset_t taken; // may be ignored here, in the background of a script for example
        ::sigemptyset(&taken);
        for (const int number : {SIGINT, SIGQUIT, SIGHUP}) {
            ::sigaddset(&taken, number);
        }
        posix_spawnattr_setsigdefault(&attributes, &taken);
        // A group of its own: a program whose group no shell could continue cannot be suspended.
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
        arguments.insert(arguments.begin(), STATUS_PROGRAM);
        std::vector<std::string> settings;
        for (const auto& [name, value] : variables) {
            settings.push_back(name + "=" + value);
        }
        for (const char* inherited : {"ASAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS", "UBSAN_OPTIONS"}) {
            if (const char* value = std::getenv(inherited)) {
                settings.push_back(std::string(inherited) + "=" + value);
            }
        }
        std::vector<char*> argv = pointers(arguments);
        std::vector<char*> environment = pointers(settings);
        EXPECT_EQ(
            ::posix_spawn(&m_pid, STATUS_PROGRAM, &actions, &attributes, argv.data(), environment.data()), 0);
        posix_spawnattr_destroy(&attributes);
        posix_spawn_file_actions_destroy(&actions);
    }

    void controlFlow(int action) const
    {
        const int terminal = openTerminal();
        EXPECT_EQ(::tcflow(terminal, action), 0);
        ::close(terminal);
    }
    int openTerminal() const
    {
        return ::ioctl(m_out, TIOCGPTPEER, O_RDWR | O_NOCTTY | O_CLOEXEC);
    }

    static int codeOf(int status)
    {
        return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
    }

    static std::vector<char*> pointers(std::vector<std::string>& texts)
    {
        std::vector<char*> pointers;
        for (std::string& text : texts) {
            pointers.push_back(text.data());
        }
        pointers.push_back(nullptr);
        return pointers;
    }

    /// Reads from both streams. Returns false once both have ended.
    bool readSome()
    {
        pollfd entries[] = {{m_out, POLLIN, 0}, {m_errEnded ? -1 : m_err, POLLIN, 0}};
        if ((m_outEnded || m_out < 0) && m_errEnded) {
            return false;
        }
        if (m_outEnded) {
            entries[0].fd = -1;
        }
        if (::poll(entries, 2, ProgramProcess::PATIENCE) <= 0) {
            ADD_FAILURE() << "timed out after: " << m_end.out << m_end.err;
            return false;
        }
        take(entries[0], m_end.out, m_outEnded);
        take(entries[1], m_end.err, m_errEnded);
        return true;
    }

    static void take(const pollfd& entry, std::string& text, bool& ended)
    {
        char piece[4096];
        if (entry.fd >= 0 && entry.revents != 0) {
            const ssize_t count = ::read(entry.fd, piece, sizeof piece);
            ended = count <= 0;
            text.append(piece, static_cast<size_t>(count > 0 ? count : 0));
        }
    }

    const Clock::time_point m_started = Clock::now();
    pid_t m_pid = -1;
    int m_out = -1;
    int m_err = -1;
    bool m_outEnded = false;
    bool m_errEnded = false;
    size_t m_searched = 0;
    StatusEnd m_end;
};

/// Runs the program to its end with pipes.
inline StatusEnd runStatus(std::vector<std::string> arguments,
                           StatusRun::Variables variables = {{"LC_ALL", "C.UTF-8"}})
{
    return StatusRun(std::move(arguments), 0, std::move(variables)).end();
}

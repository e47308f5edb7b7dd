// Runs the program as a user does, on its own display: starts it, finds its windows and sends it keys.
#pragma once

#include "Installation.h"
#include "LocalRoom.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProcess>

#include <functional>

constexpr int programPatience = 20000; // milliseconds, for events that must happen soon

/// A virtual screen without a window manager.
class Screen
{
public:
    Screen()
    {
        // Without -noreset the server restarts, and refuses connections, whenever its last client
        // disconnects.
        m_server.start("Xvfb",
                       {"-displayfd", "1", "-screen", "0", "1024x600x24", "-nolisten", "tcp", "-noreset"});
        if (m_server.waitForReadyRead(programPatience)) {
            m_name = ":" + QString::fromLatin1(m_server.readLine()).trimmed();
        }
    }
    ~Screen()
    {
        m_server.terminate();
        m_server.waitForFinished(programPatience);
    }
    QString name() const
    {
        return m_name;
    }

private:
    QProcess m_server;
    QString m_name;
};

/// The program on its own screen.
class RunningProgram : public testing::Test
{
protected:
    /// Configures the sanitizers for the libraries that show the window.
    void SetUp() override
    {
        const QString notes = SANITIZER_NOTES;
        m_environment.insert("ASAN_OPTIONS", "fast_unwind_on_malloc=0");
        m_environment.insert("LSAN_OPTIONS", "suppressions=" + notes + "/lsan.supp:print_suppressions=0");
        m_environment.insert("TSAN_OPTIONS", "suppressions=" + notes + "/tsan.supp");
    }

    void start(const QStringList& arguments = {}, const QString& locale = "C.UTF-8")
    {
        ASSERT_FALSE(m_screen.name().isEmpty()) << "no virtual screen";
        m_environment.insert("DISPLAY", m_screen.name());
        m_environment.insert("LC_ALL", locale);
        m_environment.insert("XDG_RUNTIME_DIR", "/tmp");
        m_environment.remove("QT_QPA_PLATFORM");
        m_program.setProcessEnvironment(m_environment);
        m_program.start(UDSETUP_PROGRAM, arguments);
        ASSERT_TRUE(m_program.waitForStarted(programPatience));
    }

    QString xdotool(const QStringList& arguments)
    {
        QProcess tool;
        tool.setProcessEnvironment(m_environment);
        tool.start("xdotool", arguments);
        tool.waitForFinished(programPatience);
        return QString::fromLatin1(tool.readAllStandardOutput()).trimmed();
    }

    /// The id of the visible window with this title; empty if none appears.
    QString window(const QString& title)
    {
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < programPatience && m_program.state() == QProcess::Running) {
            const QString id = xdotool({"search", "--onlyvisible", "--name", "^" + title + "$"});
            if (!id.isEmpty()) {
                return id;
            }
            m_program.waitForFinished(50); // or for a moment
        }
        m_program.waitForReadyRead(0);
        ADD_FAILURE() << "no window; the program printed: " << m_program.readAllStandardError().toStdString();
        return QString();
    }

    /// Whether a window with this title is visible.
    bool isShown(const QString& title)
    {
        return !xdotool({"search", "--onlyvisible", "--name", "^" + title + "$"}).isEmpty();
    }

    /// Focuses a window and presses keys until their effect is seen. A key that arrives before the program
    /// has noticed the focus is lost, and nothing shows when that is, so the keys are repeated.
    void press(const QString& window, const QStringList& keys, const std::function<bool()>& isDone)
    {
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < programPatience && m_program.state() == QProcess::Running && !isDone()) {
            xdotool({"windowfocus", window});
            for (const QString& key : keys) {
                xdotool({"key", key});
                m_program.waitForFinished(300); // the effect of a key takes a moment
            }
        }
    }

    /// Chooses the entry that ends the program, by the keys of the menu and of the entry.
    void choose(const QString& window, const QString& menuKey, const QString& entryKey)
    {
        press(window, {"alt+" + menuKey, entryKey}, [this] { return !isShown(mainTitle); });
    }

    void expectEnd(int within = programPatience)
    {
        ASSERT_TRUE(m_program.state() == QProcess::NotRunning || m_program.waitForFinished(within));
        EXPECT_EQ(m_program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(m_program.exitCode(), 0);
    }

    const QString mainTitle = QStringLiteral("ARVEN Ulmar Disc Setup");
    Installation m_installation;
    Screen m_screen;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    QProcess m_program;
};

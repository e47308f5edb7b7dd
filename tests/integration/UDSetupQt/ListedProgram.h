// Runs the program with simulated publishers in a process of their own, and reads the rows of its list.
#pragma once

#include "RunningProgram.h"
#include "TextFiles.h"

#include <QRegularExpression>

#include <csignal>
#include <memory>

#include <sys/types.h>

/// udsim as a process, which can be killed and stopped.
class Simulator
{
public:
    explicit Simulator(const std::string& scenario)
    {
        WriteText(scenarioFile, scenario);
        m_process.setStandardOutputFile(logFile);
        m_process.setStandardErrorFile(logFile, QIODevice::Append);
        m_process.start(UDSIM_PROGRAM, {scenarioFile, "--requests"});
        EXPECT_TRUE(waitFor("udsim: ready")) << ReadText(logFile);
    }
    Simulator(const Simulator&) = delete;
    Simulator& operator=(const Simulator&) = delete;
    ~Simulator()
    {
        kill();
    }

    void kill()
    {
        m_process.kill();
        m_process.waitForFinished(programPatience);
    }
    void signal(int number) const
    {
        EXPECT_EQ(::kill(static_cast<pid_t>(m_process.processId()), number), 0);
    }
    /// Carries out a command of the scenario language.
    static void tell(const QString& publisher, const QString& command)
    {
        EXPECT_EQ(QProcess::execute(UDSIM_PROGRAM, QStringList{"tell", publisher} + command.split(' ')), 0);
    }
    /// Waits until the text has appeared so many times in what it printed.
    bool waitFor(const std::string& text, int times = 1)
    {
        QElapsedTimer time;
        time.start();
        while (count(text) < times) {
            if (time.elapsed() > programPatience || m_process.waitForFinished(20)) { // or for a moment
                return false;
            }
        }
        return true;
    }
    static int count(const std::string& text)
    {
        return static_cast<int>(
            QString::fromStdString(ReadText(logFile)).count(QString::fromStdString(text)));
    }

private:
    static constexpr char scenarioFile[] = "/tmp/room.udsim";
    static constexpr char logFile[] = "/tmp/room.log";

    QProcess m_process;
};

/// The program with the plugin ListPrinter.
class ListedProgram : public RunningProgram
{
protected:
    void SetUp() override
    {
        RunningProgram::SetUp();
        // Qt finds generic plugins in a folder of this name.
        std::filesystem::create_directories("/tmp/plugins/generic");
        std::filesystem::copy_file(LIST_PRINTER, "/tmp/plugins/generic/libListPrinter.so");
        m_environment.insert("QT_PLUGIN_PATH", "/tmp/plugins");
        m_environment.insert("QT_QPA_GENERIC_PLUGINS", "ListPrinter");
    }

    /// Reads the newest state of the list. False if the program prints none in time: the window is frozen, or
    /// the program has ended.
    bool update()
    {
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < programPatience && m_program.state() == QProcess::Running) {
            m_program.waitForReadyRead(100);
            m_printed += QString::fromUtf8(m_program.readAllStandardOutput());
            const int end = static_cast<int>(m_printed.lastIndexOf('\n')) + 1;
            const QStringList lines = m_printed.left(end).split('\n').filter(QRegularExpression("^list "));
            m_printed.remove(0, end);
            if (!lines.isEmpty()) {
                m_polls = lines.last().section(' ', 1, 1).toInt();
                m_clock = lines.last().section(' ', 2, 2).toLongLong();
                m_rows = lines.last().section(' ', 3).split(';').join('\n');
                return true;
            }
        }
        ADD_FAILURE() << "the window is frozen or the program has ended; it printed: "
                      << m_program.readAllStandardError().toStdString();
        return false;
    }

    /// Expects these rows before the third poll from now begins.
    void expectWithinTwoPolls(const QStringList& rows, const char* what = "")
    {
        const QString expected = rows.join('\n');
        ASSERT_TRUE(update() && update()) << what; // the second line is newer than this call
        const int last = m_polls + 2;
        while (m_rows != expected && m_polls <= last) {
            ASSERT_TRUE(update()) << what;
        }
        EXPECT_EQ(m_rows.toStdString(), expected.toStdString()) << what;
    }

    /// Waits until so many polls have begun from now.
    void waitForPolls(int count)
    {
        ASSERT_TRUE(update() && update());
        const int last = m_polls + count;
        while (m_polls < last) {
            ASSERT_TRUE(update());
        }
    }

    /// Ends the program by its menu.
    void end()
    {
        choose(window(mainTitle), "f", "x");
        expectEnd();
    }

    int m_polls = 0;
    qint64 m_clock = 0; ///< the wall clock of the program, in seconds
    QString m_rows;

private:
    QString m_printed;
};

// The program itself on a display of its own: started, seen, driven by keys, ended.
#include "Installation.h"
#include "ScriptedService.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProcess>

#include <filesystem>

namespace {

constexpr int patience = 20000; // milliseconds, for what has to happen soon

/// A virtual screen without a window manager.
class Screen
{
public:
    Screen()
    {
        // Without -noreset the server starts anew, and refuses connections, whenever its last client leaves.
        m_server.start("Xvfb",
                       {"-displayfd", "1", "-screen", "0", "1024x600x24", "-nolisten", "tcp", "-noreset"});
        if (m_server.waitForReadyRead(patience)) {
            m_name = ":" + QString::fromLatin1(m_server.readLine()).trimmed();
        }
    }
    ~Screen()
    {
        m_server.terminate();
        m_server.waitForFinished(patience);
    }
    QString name() const
    {
        return m_name;
    }

private:
    QProcess m_server;
    QString m_name;
};

class ProgramTest : public testing::Test
{
protected:
    /// The sanitizers have to be told about the libraries that show the window.
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
        ASSERT_TRUE(m_program.waitForStarted(patience));
    }

    QString xdotool(const QStringList& arguments)
    {
        QProcess tool;
        tool.setProcessEnvironment(m_environment);
        tool.start("xdotool", arguments);
        tool.waitForFinished(patience);
        return QString::fromLatin1(tool.readAllStandardOutput()).trimmed();
    }

    /// The id of the visible window of that title; empty when none came up.
    QString window(const QString& title)
    {
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < patience && m_program.state() == QProcess::Running) {
            const QString id = xdotool({"search", "--onlyvisible", "--name", "^" + title + "$"});
            if (!id.isEmpty()) {
                return id;
            }
            m_program.waitForFinished(50); // or a while
        }
        m_program.waitForReadyRead(0);
        ADD_FAILURE() << "no window; the program said: " << m_program.readAllStandardError().toStdString();
        return QString();
    }

    /// Opens the first menu by its key and presses the key of an entry, again until the program notices.
    void choose(const QString& window, const QString& menuKey, const QString& entryKey)
    {
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < patience &&
               !xdotool({"search", "--onlyvisible", "--name", mainTitle}).isEmpty()) {
            xdotool({"windowfocus", "--sync", window});
            xdotool({"key", "alt+" + menuKey});
            m_program.waitForFinished(300); // the menu opens in a while, and nothing tells when
            xdotool({"key", entryKey});
            m_program.waitForFinished(300);
        }
    }

    void expectEnd(int within = patience)
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

TEST_F(ProgramTest, ShowsItsWindowAndEndsByItsMenu)
{
    start();
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    EXPECT_TRUE(xdotool({"getwindowgeometry", id}).contains("Geometry: 800x300"));
    choose(id, "f", "x");
    expectEnd();
    EXPECT_EQ(m_program.readAllStandardOutput(), "");
    const QByteArray errors = m_program.readAllStandardError();
    EXPECT_TRUE(
        errors.contains("ERROR: language file C is not found\nINSTALL_DIR = /opt/arven/Ulmar Disc Maker\n"))
        << errors.toStdString();
}

TEST_F(ProgramTest, SpeaksTheLanguageOfTheLocale)
{
    std::filesystem::create_directories(TRANSLATION_DIR);
    std::filesystem::copy_file(GERMAN_CATALOGUE, std::string(TRANSLATION_DIR) + "PubSetupQt_de.qm");
    start({}, "de_DE.UTF-8");
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    choose(id, "d", "b"); // "Datei", "Beenden"
    expectEnd();
    EXPECT_FALSE(m_program.readAllStandardError().contains("language file"));
}

TEST_F(ProgramTest, ReportsTheLanguageThatIsMissing)
{
    start({}, "de_DE.UTF-8");
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    choose(id, "f", "x"); // built-in English
    expectEnd();
    EXPECT_TRUE(m_program.readAllStandardError().contains("ERROR: language file de_DE is not found\n"));
}

TEST_F(ProgramTest, TakesItsEnvironmentFromTheCommandLine)
{
    m_environment.remove("FOO");
    m_environment.insert("BAR", "old");
    start({"-envFOO=bar", "-envBAR=new", "-envNOTHING"});
    const QString id = window(mainTitle); // the first argument is no publisher's name
    ASSERT_FALSE(id.isEmpty());
    choose(id, "f", "x");
    expectEnd();
    EXPECT_EQ(m_program.readAllStandardOutput(), "FOO: \"(null)\"\nBAR: \"old\"\n");
}

TEST_F(ProgramTest, FindsItsDisplayThroughTheCommandLine)
{
    const QString display = m_screen.name();
    m_environment.insert("LC_ALL", "C.UTF-8");
    m_environment.insert("XDG_RUNTIME_DIR", "/tmp");
    QProcessEnvironment bare = m_environment;
    bare.remove("DISPLAY");
    bare.remove("QT_QPA_PLATFORM");
    m_environment.insert("DISPLAY", display); // for xdotool
    m_program.setProcessEnvironment(bare);
    m_program.start(UDSETUP_PROGRAM, {"-envDISPLAY=" + display});
    ASSERT_TRUE(m_program.waitForStarted(patience));
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    choose(id, "f", "x");
    expectEnd();
}

TEST_F(ProgramTest, SaysThatItNeedsADisplay)
{
    m_environment.insert("DISPLAY", ""); // an empty name is none
    m_environment.remove("WAYLAND_DISPLAY");
    m_environment.remove("QT_QPA_PLATFORM");
    m_program.setProcessEnvironment(m_environment);
    m_program.start(UDSETUP_PROGRAM, QStringList());
    ASSERT_TRUE(m_program.waitForFinished(patience));
    EXPECT_EQ(m_program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(m_program.exitCode(), 1);
    EXPECT_EQ(m_program.readAllStandardError(),
              "ARVEN Ulmar Disc Setup needs a graphical desktop: DISPLAY is not set.\n");
}

TEST_F(ProgramTest, TakesTheDisplayThatTheToolkitsOptionNames)
{
    QProcessEnvironment bare = m_environment;
    bare.insert("LC_ALL", "C.UTF-8");
    bare.insert("XDG_RUNTIME_DIR", "/tmp");
    bare.remove("DISPLAY");
    bare.remove("QT_QPA_PLATFORM");
    m_environment.insert("DISPLAY", m_screen.name()); // for xdotool
    m_program.setProcessEnvironment(bare);
    m_program.start(UDSETUP_PROGRAM, {"-display", m_screen.name()});
    ASSERT_TRUE(m_program.waitForStarted(patience));
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    choose(id, "f", "x");
    expectEnd();
}

TEST_F(ProgramTest, NameThatNoPublisherBearsLeadsToTheList)
{
    m_installation.addLocal("a", "Studio A");
    start({"Studio B"});
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    choose(id, "f", "x");
    expectEnd();
}

TEST_F(ProgramTest, EndsAlthoughTheServiceNeverAnswers)
{
    ScriptedService service;
    service.stall("a");
    m_installation.addLocal("a", "Studio A");
    start();
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    ASSERT_TRUE(service.waitFor("22 a", 1));
    QElapsedTimer time;
    time.start();
    choose(id, "f", "x");
    const qint64 closing = time.elapsed();
    expectEnd(60000);
    EXPECT_GE(time.elapsed(), 10000) << "the wait for the query";
    EXPECT_LE(time.elapsed() - closing, 15000) << "the wait and five seconds";
}

} // namespace

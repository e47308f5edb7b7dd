// Tests the program on its own display: starts it, finds its windows, sends it keys and ends it.
#include "RunningProgram.h"

#include <filesystem>

namespace {

using ProgramTest = RunningProgram;

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

TEST_F(ProgramTest, UsesTheLanguageOfTheLocale)
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

TEST_F(ProgramTest, ReportsAMissingLanguage)
{
    start({}, "de_DE.UTF-8");
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    choose(id, "f", "x"); // built-in English
    expectEnd();
    EXPECT_TRUE(m_program.readAllStandardError().contains("ERROR: language file de_DE is not found\n"));
}

TEST_F(ProgramTest, ReadsItsEnvironmentFromTheCommandLine)
{
    m_environment.remove("FOO");
    m_environment.insert("BAR", "old");
    start({"-envFOO=bar", "-envBAR=new", "-envNOTHING"});
    const QString id = window(mainTitle); // the first argument is not a publisher's name
    ASSERT_FALSE(id.isEmpty());
    choose(id, "f", "x");
    expectEnd();
    EXPECT_EQ(m_program.readAllStandardOutput(), "FOO: \"(null)\"\nBAR: \"old\"\n");
}

TEST_F(ProgramTest, UsesTheDisplayOfAnEnvironmentArgument)
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
    ASSERT_TRUE(m_program.waitForStarted(programPatience));
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    choose(id, "f", "x");
    expectEnd();
}

TEST_F(ProgramTest, ReportsAMissingDisplay)
{
    m_environment.insert("DISPLAY", ""); // an empty name counts as unset
    m_environment.remove("WAYLAND_DISPLAY");
    m_environment.remove("QT_QPA_PLATFORM");
    m_program.setProcessEnvironment(m_environment);
    m_program.start(UDSETUP_PROGRAM, QStringList());
    ASSERT_TRUE(m_program.waitForFinished(programPatience));
    EXPECT_EQ(m_program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(m_program.exitCode(), 1);
    EXPECT_EQ(m_program.readAllStandardError(),
              "ARVEN Ulmar Disc Setup needs a graphical desktop: DISPLAY is not set.\n");
}

TEST_F(ProgramTest, UsesTheDisplayOfTheQtOption)
{
    QProcessEnvironment bare = m_environment;
    bare.insert("LC_ALL", "C.UTF-8");
    bare.insert("XDG_RUNTIME_DIR", "/tmp");
    bare.remove("DISPLAY");
    bare.remove("QT_QPA_PLATFORM");
    m_environment.insert("DISPLAY", m_screen.name()); // for xdotool
    m_program.setProcessEnvironment(bare);
    m_program.start(UDSETUP_PROGRAM, {"-display", m_screen.name()});
    ASSERT_TRUE(m_program.waitForStarted(programPatience));
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    choose(id, "f", "x");
    expectEnd();
}

TEST_F(ProgramTest, AnUnknownNameOpensTheList)
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
    LocalRoom service({"a"});
    service.hold("22 a");
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
    EXPECT_GE(time.elapsed(), 10000) << "it waits for the query";
    EXPECT_LE(time.elapsed() - closing, 15000) << "at most five seconds more than the wait";
}

} // namespace

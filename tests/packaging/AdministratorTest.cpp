// The program as the launcher starts it: a substitute for pkexec gives it a minimal environment, as the real
// pkexec does, and the program must still use the user's display and language.
#include "RunningProgram.h"

#include <filesystem>

namespace {

constexpr char place[] = "/tmp/administrator";

void writeProgram(const std::string& path, const std::string& text)
{
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    WriteText(path, text);
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
}

/// An X11 display that refuses clients without its cookie.
class LockedScreen
{
public:
    LockedScreen()
    {
        std::filesystem::create_directories(place);
        WriteText(m_cookies.toStdString(), "");
        addCookie(":0"); // the server accepts the cookie for any display number
        m_server.start("Xvfb", {"-displayfd", "1", "-auth", m_cookies, "-screen", "0", "1024x600x24",
                                "-nolisten", "tcp", "-noreset"});
        if (m_server.waitForReadyRead(programPatience)) {
            m_name = ":" + QString::fromLatin1(m_server.readLine()).trimmed();
            addCookie(m_name);
        }
    }
    ~LockedScreen()
    {
        m_server.terminate();
        m_server.waitForFinished(programPatience);
    }
    QString name() const
    {
        return m_name;
    }
    QString cookies() const
    {
        return m_cookies;
    }

private:
    void addCookie(const QString& display)
    {
        QProcess::execute("xauth", {"-q", "-f", m_cookies, "add", display, ".", QString(32, 'a')});
    }

    const QString m_cookies = QString(place) + "/user's cookies";
    QProcess m_server;
    QString m_name;
};

class AdministratorTest : public RunningProgram
{
protected:
    void SetUp() override
    {
        std::filesystem::create_symlink(UDSETUP_PROGRAM, std::string(INSTALL_DIR) + "/UDSetup");
        writeProgram(
            std::string(place) + "/pkexec",
            "#!/bin/sh\n"
            "exec env -i PATH=/usr/bin:/bin HOME=/nonexistent PKEXEC_UID=1000 "
            "\"ASAN_OPTIONS=$ASAN_OPTIONS\" \"LSAN_OPTIONS=$LSAN_OPTIONS\" \"TSAN_OPTIONS=$TSAN_OPTIONS\" "
            "\"$@\"\n");
        ASSERT_FALSE(m_locked.name().isEmpty()) << "no virtual screen";
        const QString path = m_environment.value("PATH");
        m_environment.clear();
        m_environment.insert("PATH", QString(place) + ":" + path);
        m_environment.insert("HOME", "/nonexistent");
        m_environment.insert("XDG_RUNTIME_DIR", "/tmp");
        m_environment.insert("DISPLAY", m_locked.name());
        m_environment.insert("XAUTHORITY", m_locked.cookies());
        m_environment.insert("LANG", "de_DE.UTF-8");
        RunningProgram::SetUp();
        std::filesystem::create_directories(TRANSLATION_DIR);
        std::filesystem::copy_file(GERMAN_CATALOGUE, std::string(TRANSLATION_DIR) + "PubSetupQt_de.qm");
    }

    void launch(const QStringList& arguments)
    {
        m_program.setProcessEnvironment(m_environment);
        m_program.start(LAUNCHER, arguments);
        ASSERT_TRUE(m_program.waitForStarted(programPatience));
    }

    QString property(const QString& window, const QString& name)
    {
        QProcess tool;
        tool.setProcessEnvironment(m_environment);
        tool.start("xprop", {"-id", window, name});
        tool.waitForFinished(programPatience);
        return QString::fromLatin1(tool.readAllStandardOutput()).trimmed();
    }

    LockedScreen m_locked;
};

TEST_F(AdministratorTest, UsesTheUsersDisplayLanguageAndScale)
{
    m_environment.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere,guid=1");
    m_environment.insert("QT_SCALE_FACTOR", "1.25");
    launch({"--administrator"});
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    EXPECT_TRUE(xdotool({"getwindowgeometry", id}).contains("Geometry: 1000x375")) << "800 x 300, scaled";
    choose(id, "d", "b"); // "Datei", "Beenden"
    expectEnd();
    EXPECT_EQ(m_program.readAllStandardOutput(),
              "DISPLAY: \"(null)\"\nXAUTHORITY: \"(null)\"\nDBUS_SESSION_BUS_ADDRESS: \"(null)\"\nLANG: "
              "\"(null)\"\n"
              "QT_SCALE_FACTOR: \"(null)\"\n");
    EXPECT_FALSE(m_program.readAllStandardError().contains("language file"));
}

TEST_F(AdministratorTest, ShowsThePropertiesOfTheNamedPublisher)
{
    const LocalRoom service({"a"});
    m_installation.addLocal("a", "Studio A");
    launch({"--administrator", "Studio A"});
    const QString id = window("Eigenschaften - Studio A.*");
    ASSERT_FALSE(id.isEmpty());
    EXPECT_FALSE(isShown(mainTitle)) << "the publisher list is shown";
    press(id, {"Escape"}, [] { return false; }); // until the program has ended
    expectEnd();
}

TEST_F(AdministratorTest, ReportsAnAbortWithoutTheCookie)
{
    m_environment.remove("XAUTHORITY");
    launch({"--administrator"});
    ASSERT_TRUE(m_program.waitForFinished(programPatience));
    EXPECT_EQ(m_program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(m_program.exitCode(), 134);
    EXPECT_TRUE(m_program.readAllStandardError().contains("ulmar-disc-setup: The program was aborted."));
}

TEST_F(AdministratorTest, WindowsHaveTheClassOfTheProgram)
{
    launch({});
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    EXPECT_EQ(property(id, "WM_CLASS"), "WM_CLASS(STRING) = \"UDSetup\", \"UDSetup\"");
    choose(id, "d", "b");
    expectEnd();
}

} // namespace

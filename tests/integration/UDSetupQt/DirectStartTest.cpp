// Starts the program with a publisher's name: it shows the properties without the list.
#include "RunningProgram.h"

namespace {

class DirectStartTest : public RunningProgram
{
protected:
    void SetUp() override
    {
        RunningProgram::SetUp();
        m_installation.addLocal("a", "Studio A");
    }

    /// The ids of the program's visible windows.
    QStringList windows()
    {
        return xdotool({"search", "--onlyvisible", "--class", "UDSetup"}).split('\n', Qt::SkipEmptyParts);
    }

    /// The id of the only visible window whose title is not that of the list, the indicator and the boxes.
    QString properties()
    {
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < programPatience && m_program.state() == QProcess::Running) {
            for (const QString& id : windows()) {
                if (xdotool({"getwindowname", id}) != mainTitle) {
                    return id;
                }
            }
            m_program.waitForFinished(50); // or for a moment
        }
        ADD_FAILURE() << "no properties; the program printed: "
                      << m_program.readAllStandardError().toStdString();
        return QString();
    }

    /// Presses Escape until the program ends.
    void closeByKey(const QString& window)
    {
        press(window, {"Escape"}, [] { return false; });
    }

    LocalRoom m_service{{"a"}};
};

TEST_F(DirectStartTest, ShowsThePropertiesAndEndsWithThem)
{
    start({"Studio A"});
    const QString id = properties();
    ASSERT_FALSE(id.isEmpty());
    EXPECT_FALSE(isShown(mainTitle));
    EXPECT_EQ(windows().size(), 1);
    closeByKey(id);
    expectEnd();
    EXPECT_EQ(m_service.count("18 a"), 1);
    EXPECT_EQ(m_service.count("22 a"), 0) << "no polling without the publisher list";
}

TEST_F(DirectStartTest, QtConsumesItsOwnOptionsFirst)
{
    start({"-platform", "xcb", "Studio A", "and more"});
    const QString id = properties();
    ASSERT_FALSE(id.isEmpty());
    closeByKey(id);
    expectEnd();
}

TEST_F(DirectStartTest, AnEnvironmentArgumentBeforeTheNameHidesIt)
{
    start({"-envFOO=bar", "Studio A"});
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    EXPECT_EQ(m_service.count("18 a"), 0);
    choose(id, "f", "x");
    expectEnd();
}

TEST_F(DirectStartTest, ANameInAnotherCaseOpensTheList)
{
    start({"studio a"});
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    EXPECT_EQ(m_service.count("18 a"), 0);
    choose(id, "f", "x");
    expectEnd();
}

TEST_F(DirectStartTest, AnEnvironmentArgumentAfterTheNameIsHarmless)
{
    m_environment.remove("FOO");
    start({"Studio A", "-envFOO=bar"});
    const QString id = properties();
    ASSERT_FALSE(id.isEmpty());
    closeByKey(id);
    expectEnd();
    EXPECT_EQ(m_program.readAllStandardOutput(), "FOO: \"(null)\"\n");
}

TEST_F(DirectStartTest, AStalledServiceShowsTheIndicator)
{
    m_service.hold("18 a");
    start({"Studio A"});
    const QString indicator = window(mainTitle);
    ASSERT_FALSE(indicator.isEmpty());
    EXPECT_TRUE(m_service.waitFor("18 a", 1));
    EXPECT_FALSE(xdotool({"getwindowgeometry", indicator}).contains("Geometry: 800x300"))
        << "the publisher list is shown";
    m_service.release("18 a");
    const QString id = properties();
    ASSERT_FALSE(id.isEmpty());
    closeByKey(id);
    expectEnd();
}

TEST_F(DirectStartTest, AnUnavailableModeIsReportedFirst)
{
    m_installation.addLocal("b", "Studio B"); // for which the service has no publish mode
    start({"Studio B"});
    const QString warning = window(mainTitle);
    ASSERT_FALSE(warning.isEmpty());
    press(warning, {"Return"}, [&] { return !windows().contains(warning); });
    const QString id = properties();
    ASSERT_FALSE(id.isEmpty());
    closeByKey(id);
    expectEnd();
}

} // namespace

// Runs the program on an X11 display while its threads convert the texts of servers.
#include "RunningProgram.h"
#include "ServerRoom.h"

#include <algorithm>

namespace {

class NetworkProgramTest : public RunningProgram
{
protected:
    /// Whether every server has received at least `times` requests for its jobs.
    bool allAskedForJobs(int times) const
    {
        const QString question = "GET /webapp2/JobInfoGetter?ifversion=02000000&type=3";
        return std::all_of(std::begin(hosts), std::end(hosts),
                           [&](const char* host) { return m_room.asked(host).count(question) >= times; });
    }

    static constexpr const char* hosts[] = {"127.0.0.11", "127.0.0.12", "127.0.0.13", "127.0.0.14"};
    ServerRoom m_room{"[network Studio 1]\nmodel = RT-300NII\njobs = 30\n"
                      "[network Studio 2]\nmodel = RT-300NII\njobs = 30\n"
                      "[network Studio 3]\nmodel = RT-300NII\njobs = 30\n"
                      "[network Studio 4]\nmodel = RT-300NII\njobs = 30\n"};
};

// Each new window makes the X11 library read the locale of the process on the user-interface thread, without
// a lock; a text from a server sets it on a pool thread. By default the thread sanitizer treats socket data
// as a synchronization of all threads that use sockets, which hides the race except for a few microseconds.
// io_sync=0 disables this, but also causes reports about data that other locks guard. Therefore only reports
// about the locale count here.
TEST_F(NetworkProgramTest, OpensWindowsWhileServersAnswer)
{
    const QString options = m_environment.value("TSAN_OPTIONS");
    m_environment.insert("TSAN_OPTIONS", options + ":io_sync=0:exitcode=0");
    // Late enough for a window to open between the request and the first text.
    m_room.spoil("/webapp2/JobInfoGetter", "delay 2000");
    start();
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    for (int round = 1; round <= 2; ++round) {
        QElapsedTimer time;
        time.start();
        while (!allAskedForJobs(round) && time.elapsed() < programPatience &&
               m_program.state() == QProcess::Running) {
            m_program.waitForFinished(50); // or for a moment
        }
        ASSERT_TRUE(allAskedForJobs(round));
        press(id, {"alt+h", "a"}, [this] { return isShown("About " + mainTitle); });
        const QString about = window("About " + mainTitle);
        ASSERT_FALSE(about.isEmpty());
        press(about, {"Return"}, [this] { return !isShown("About " + mainTitle); });
    }
    choose(id, "f", "x");
    expectEnd();
    const QByteArray errors = m_program.readAllStandardError();
    for (const char* function : {"setlocale", "setname", "_XOpenLC"}) {
        EXPECT_FALSE(errors.contains(function)) << errors.toStdString();
    }
}

} // namespace

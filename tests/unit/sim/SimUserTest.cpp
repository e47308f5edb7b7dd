// udsim run by an unprivileged user: its messages when a permission is missing. The user owns the folders and
// sockets of the test, but their modes deny access.
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include "ProgramProcess.h"
#include "SimPaths.h"
#include "UnixListener.h"

namespace {

namespace fs = std::filesystem;

constexpr char CONTROL[] = "/var/run/udsim.socket";
constexpr auto READ_ONLY = fs::perms::owner_read | fs::perms::owner_exec;

TEST(SimUser, RunningARoomRequiresRoot)
{
    ASSERT_NE(geteuid(), 0U);
    std::ofstream(SCENARIO) << "[publisher A]\nmodel = RT-30\n";
    fs::permissions("/opt", READ_ONLY);
    const Ended ended = runProgram(UDSIM, {SCENARIO});
    EXPECT_EQ(ended.output, std::string("udsim: ") + SETTINGS + ": Permission denied; udsim requires root\n");
    EXPECT_EQ(ended.status, 1);
}

TEST(SimUser, ForgetRequiresRoot)
{
    std::ofstream(SCENARIO) << "[publisher A]\nmodel = RT-30\nid = a\nguid = {G}\n";
    fs::create_directories(SETTINGS);
    const std::string file = std::string(SETTINGS) + "/a.ini";
    std::ofstream(file) << "[Common]\nGUID={G}\n";
    fs::permissions(SETTINGS, READ_ONLY);
    const Ended ended = runProgram(UDSIM, {"forget", SCENARIO});
    EXPECT_EQ(ended.output, "udsim: " + file + ": Permission denied; udsim requires root\n");
    EXPECT_EQ(ended.status, 1);
    EXPECT_TRUE(fs::exists(file));
}

TEST(SimUser, TellDistinguishesNoPermissionFromNotRunning)
{
    const Ended none = runProgram(UDSIM, {"tell", "--list"});
    EXPECT_EQ(none.output,
              "udsim: not running: no udsim accepts commands at /var/run/udsim.socket: No such file or "
              "directory (use --control for a different socket)\n");
    EXPECT_EQ(none.status, 69);

    const UnixListener room(CONTROL);
    fs::permissions(CONTROL, fs::perms::none);
    const Ended refused = runProgram(UDSIM, {"tell", "--list"});
    EXPECT_EQ(refused.output,
              "udsim: no permission: the udsim at /var/run/udsim.socket accepts commands only from root and "
              "from the user who started it\n");
    EXPECT_EQ(refused.status, 77);
}

} // namespace

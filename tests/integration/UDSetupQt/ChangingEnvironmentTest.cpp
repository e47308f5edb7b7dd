// Tests the program while its environment changes: its rows are correct again within two polls, and its
// window never freezes. Everything outside the program is real: processes are killed and stopped, disks full,
// descriptors used up.
#include "InstallPaths.h"
#include "ListedProgram.h"
#include "SmallDisk.h"

#include <algorithm>
#include <map>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

const std::string scenario =
    "[publisher Studio A]\nid = A\nmodel = RT-300III BD\n"
    "[publisher Studio B]\nid = B\nmodel = RT-30II\nerror = 19\n"
    "[network Studio C]\nid = C\nmodel = RT-300NII\nknown-kind = 2\n"
    "[network Studio D]\nid = D\nmodel = RT-300NII\nknown-kind = 2\ndisc-space = 1024\n";

const QString rowA = "Studio A|RT-300III|-|Ready|0|-|-";
const QString rowB = "Studio B|RT-30II|-|Error|-|-|-";
const QString rowC = "Studio C|RT-300NII|127.0.0.11|Ready|0|0|2.0 GB";
const QString rowD = "Studio D|RT-300NII|127.0.0.12|Ready|0|0|1.0 GB";
const QStringList rows{rowA, rowB, rowC, rowD};
const QStringList rowsNotConnected{
    "Studio A|RT-300III|-|Not connected|-|-|-", "Studio B|RT-30II|-|Not connected|-|-|-",
    "Studio C|RT-300NII|127.0.0.11|Not connected|-|-|-", "Studio D|RT-300NII|127.0.0.12|Not connected|-|-|-"};
// After change().
const QStringList rowsChanged{"Studio A|RT-300III|-|Error|-|-|-", "Studio B|RT-30II|-|Ready|0|-|-",
                              "Studio C|RT-300NII|127.0.0.11|Error|-|-|-", rowD};

void change()
{
    Simulator::tell("Studio A", "error 19");
    Simulator::tell("Studio B", "clear");
    Simulator::tell("Studio C", "error 26");
}

void changeBack()
{
    Simulator::tell("Studio A", "clear");
    Simulator::tell("Studio B", "error 19");
    Simulator::tell("Studio C", "clear");
}

/// The numbers of the open descriptors of a process, ascending.
std::vector<int> descriptorsOf(qint64 pid)
{
    std::vector<int> numbers;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/" + std::to_string(pid) + "/fd")) {
        numbers.push_back(std::stoi(entry.path().filename()));
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

using ChangingEnvironmentTest = ListedProgram;

TEST_F(ChangingEnvironmentTest, KilledServiceAndServersReturn)
{
    auto simulator = std::make_unique<Simulator>(scenario);
    start();
    expectWithinTwoPolls(rows, "at the start");
    simulator->kill();
    expectWithinTwoPolls(rowsNotConnected, "killed");
    // The faults keep queries running, so that the next kill interrupts them.
    simulator = std::make_unique<Simulator>(
        scenario + "[fault]\ncontrol = 22\ndo = delay 2000\n"
                   "[network-fault]\npath = /webapp2/JobInfoGetter\ndo = delay 2000\n");
    expectWithinTwoPolls(rows, "returned");
    const int locals = Simulator::count("asked 22 ");
    const int servers = Simulator::count("/webapp2/JobInfoGetter");
    ASSERT_TRUE(simulator->waitFor("asked 22 ", locals + 1));
    ASSERT_TRUE(simulator->waitFor("/webapp2/JobInfoGetter", servers + 1));
    simulator->kill();
    expectWithinTwoPolls(rowsNotConnected, "killed during queries");
    simulator = std::make_unique<Simulator>(scenario);
    expectWithinTwoPolls(rows, "returned after a kill during queries");
    end();
}

TEST_F(ChangingEnvironmentTest, StoppedServiceAndServersDoNotFreezeTheWindow)
{
    const Simulator simulator(scenario);
    start();
    expectWithinTwoPolls(rows, "at the start");
    simulator.signal(SIGSTOP);
    waitForPolls(3); // fails if the window is frozen
    simulator.signal(SIGCONT);
    change();
    expectWithinTwoPolls(rowsChanged, "continued");
    end();
}

// As during a suspension: the program does not run, its connections end, and polls are overdue.
TEST_F(ChangingEnvironmentTest, StoppedProgramContinues)
{
    auto simulator = std::make_unique<Simulator>(
        scenario + "[network-fault]\npath = /webapp2/JobInfoGetter\ndo = stall\n");
    start();
    ASSERT_TRUE(simulator->waitFor("/webapp2/JobInfoGetter"));
    ASSERT_EQ(::kill(static_cast<pid_t>(m_program.processId()), SIGSTOP), 0);
    simulator->kill();
    simulator =
        std::make_unique<Simulator>(scenario + "[event]\nat = 12s\npublisher = Studio D\ndo = error 26\n");
    ASSERT_TRUE(simulator->waitFor("0:12 Studio D: ")); // two polls are overdue
    change();
    ASSERT_EQ(::kill(static_cast<pid_t>(m_program.processId()), SIGCONT), 0);
    QStringList expected = rowsChanged;
    expected.last() = "Studio D|RT-300NII|127.0.0.12|Error|-|-|-";
    expectWithinTwoPolls(expected);
    end();
}

TEST_F(ChangingEnvironmentTest, FullDiskLeavesTheSettingsUnchanged)
{
    MountSmallDisk(CONF_DIR);
    const Simulator simulator(scenario + "[network Studio E]\nid = E\nmodel = RT-300NII\n");
    const std::string folder = PUBLISHER_SETTING_DIR;
    std::map<std::string, std::string> files;
    for (const char* id : {"A", "B", "C", "D", "E"}) {
        files[id] = ReadText(Installation::settingFile(id));
        ASSERT_NE(files[id], "");
    }
    const std::string registry = ReadText(REGISTRY_FILE);
    ASSERT_NE(registry, "");
    FillDisk(folder);
    start();
    const QString rowE = "Studio E|RT-300NII|127.0.0.13|Ready|0|0|2.0 GB";
    expectWithinTwoPolls(rows + QStringList{rowE}, "at the start");
    change();
    expectWithinTwoPolls(rowsChanged + QStringList{rowE}, "changed");
    end();
    files["E"] += "[COMMON]\nNPType=2\n"; // the kind that the server reported; the last block has room for it
    for (const auto& [id, text] : files) {
        EXPECT_EQ(ReadText(Installation::settingFile(id)), text);
    }
    EXPECT_EQ(ReadText(REGISTRY_FILE), registry);
}

TEST_F(ChangingEnvironmentTest, FolderIsReplacedAndBecomesReadOnly)
{
    const Simulator simulator(scenario);
    start();
    expectWithinTwoPolls(rows, "at the start");
    std::filesystem::rename(PUBLISHER_SETTING_DIR, std::string(CONF_DIR) + "/old");
    expectWithinTwoPolls({""}, "no folder");
    std::filesystem::create_directory(PUBLISHER_SETTING_DIR);
    for (const char* id : {"A", "C"}) {
        std::filesystem::copy_file(std::string(CONF_DIR) + "/old/" + id + ".ini",
                                   Installation::settingFile(id));
    }
    expectWithinTwoPolls({rowA, rowC}, "another folder");
    ASSERT_EQ(::mount(CONF_DIR, CONF_DIR, nullptr, MS_BIND | MS_REC, nullptr), 0) << errno;
    ASSERT_EQ(::mount(nullptr, CONF_DIR, nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr), 0) << errno;
    EXPECT_EQ(::open(REGISTRY_FILE, O_RDWR | O_CLOEXEC), -1) << "the folder is not read-only";
    change();
    expectWithinTwoPolls({rowsChanged[0], rowsChanged[2]}, "read-only");
    ASSERT_EQ(::mount(nullptr, CONF_DIR, nullptr, MS_BIND | MS_REMOUNT, nullptr), 0) << errno;
    changeBack();
    expectWithinTwoPolls({rowA, rowC}, "writable");
    end();
}

// Without descriptors the setting folder cannot be listed, so the list is empty.
TEST_F(ChangingEnvironmentTest, DescriptorsRunOutAndAreFreedAgain)
{
    Simulator simulator(scenario);
    start();
    expectWithinTwoPolls(rows, "at the start");
    // Between two polls: a query that cannot open the registry file stops the program by an assertion.
    const int states = Simulator::count("asked 22 ");
    const int jobs = Simulator::count("asked 4 ");
    const int spaces = Simulator::count("/DevInfoGetter?ifversion=02000000&type=8");
    waitForPolls(1);
    ASSERT_TRUE(simulator.waitFor("asked 22 ", states + 2));
    ASSERT_TRUE(simulator.waitFor("asked 4 ", jobs + 1)); // of the one that is ready
    ASSERT_TRUE(simulator.waitFor("/DevInfoGetter?ifversion=02000000&type=8", spaces + 2));
    ASSERT_TRUE(update() && update()); // the last replies have been read
    // The first unused number is the limit, so no file can be opened.
    const std::vector<int> used = descriptorsOf(m_program.processId());
    rlim_t unused = 0;
    while (std::binary_search(used.begin(), used.end(), static_cast<int>(unused))) {
        ++unused;
    }
    rlimit before{};
    const auto pid = static_cast<pid_t>(m_program.processId());
    ASSERT_EQ(::prlimit(pid, RLIMIT_NOFILE, nullptr, &before), 0);
    const rlimit none{unused, before.rlim_max};
    ASSERT_EQ(::prlimit(pid, RLIMIT_NOFILE, &none, nullptr), 0);
    expectWithinTwoPolls({""}, "no descriptor");
    waitForPolls(2);
    ASSERT_EQ(::prlimit(pid, RLIMIT_NOFILE, &before, nullptr), 0);
    expectWithinTwoPolls(rows, "descriptors again");
    end();
}

// select() and FD_SET support descriptors up to 1023 only.
TEST_F(ChangingEnvironmentTest, UsesDescriptorsAbove1023)
{
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit more{4096, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &more), 0);
    const Simulator simulator(scenario);
    std::vector<int> inherited(1100);
    for (int& file : inherited) {
        file = ::open("/dev/null", O_RDONLY); // NOLINT(android-cloexec-open): the program inherits it
    }
    start();
    for (const int file : inherited) {
        ::close(file);
    }
    expectWithinTwoPolls(rows, "at the start");
    const std::vector<int> used = descriptorsOf(m_program.processId());
    EXPECT_GE(used.size(), inherited.size());
    EXPECT_GT(used.back(), 1023);
    change();
    expectWithinTwoPolls(rowsChanged, "changed");
    end();
}

TEST_F(ChangingEnvironmentTest, NeedsNeitherLocaleNorHome)
{
    const Simulator simulator(scenario);
    ASSERT_EQ(::mount("tmpfs", "/usr/lib/locale", "tmpfs", 0, nullptr), 0) << errno; // no locale but "C"
    QProcessEnvironment bare;
    for (const char* name :
         {"QT_PLUGIN_PATH", "QT_QPA_GENERIC_PLUGINS", "ASAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS"}) {
        bare.insert(name, m_environment.value(name));
    }
    ASSERT_FALSE(m_screen.name().isEmpty()) << "no virtual screen";
    bare.insert("DISPLAY", m_screen.name());
    m_environment.insert("DISPLAY", m_screen.name()); // for xdotool
    m_program.setProcessEnvironment(bare);
    m_program.start(UDSETUP_PROGRAM, QStringList());
    ASSERT_TRUE(m_program.waitForStarted(programPatience));
    expectWithinTwoPolls(rows, "at the start");
    change();
    expectWithinTwoPolls(rowsChanged, "changed");
    end();
}

} // namespace

// The registry's file shared by processes: every pass over it waits for the lock, and no descriptor is
// inherited.
#include "ChildProcess.h"
#include "FileLocks.h"
#include "LockedFile.h"
#include "RegistryFile.h"
#include "TextFiles.h"
#include "WinFunc.h"

#include <atomic>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <thread>
#include <vector>

namespace {

/// True while a signal that was sent to the thread is pending. Reads the kernel's state, because the thread
/// sanitizer delays the handler until the waiting call has returned.
bool HasPendingSignal(pid_t thread)
{
    std::ifstream status("/proc/self/task/" + std::to_string(thread) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("SigPnd:")) {
            return line.find_first_not_of("\t 0", line.find(':') + 1) != std::string::npos;
        }
    }
    return false;
}

const char TEXT[] = "[HKLM/a]\n\"x\"=\"1\"\n\n[HKLM/b]\n\n";

struct Pass
{
    const char* name;
    bool (*run)();
};

void PrintTo(const Pass& pass, std::ostream* out)
{
    *out << pass.name;
}

class RegistryLock : public testing::TestWithParam<Pass>
{
};

/// Opens a file in a process whose standard streams of these numbers are closed. Returns 0, or the number of
/// the step that failed.
int OpenWithout(const std::vector<int>& streams)
{
    for (const int stream : streams) {
        close(stream);
    }
    const LockedFile file(REGISTRY_FILE, O_RDWR);
    if (file.Descriptor() <= STDERR_FILENO || fcntl(file.Descriptor(), F_GETFD) != FD_CLOEXEC) {
        return 1;
    }
    for (const int stream : streams) {
        if (fcntl(stream, F_GETFD) != -1) {
            return 2; // the first descriptor was not closed
        }
    }
    const int other = open(REGISTRY_FILE, O_RDWR | O_CLOEXEC);
    return other != -1 && flock(other, LOCK_EX | LOCK_NB) == -1 ? 0 : 3; // the moved one holds the lock
}

} // namespace

TEST_P(RegistryLock, EachPassWaitsForIt)
{
    WriteRegistry(TEXT);
    ASSERT_TRUE(RegReadIn(O_RDWR));
    EXPECT_TRUE(WaitsForItsTurn(REGISTRY_FILE, GetParam().run));
}

INSTANTIATE_TEST_SUITE_P(Passes, RegistryLock,
                         testing::Values(Pass{"Load", [] { return RegReadIn(O_RDWR); }},
                                         Pass{"LoadForReading", [] { return RegReadIn(O_RDONLY); }},
                                         Pass{"WriteOut", [] { return RegWriteOut(); }},
                                         Pass{"DeleteKey",
                                              [] { return RegDeleteKeyA(HKEY_LOCAL_MACHINE, "b") == 0; }},
                                         Pass{"DeleteValue",
                                              [] {
                                                  CRegistryKey key{"HKLM/a", true};
                                                  return RegDeleteValueA(&key, "x") == 0;
                                              }}),
                         [](const auto& pass) { return pass.param.name; });

TEST(RegistryProcess, SignalsDoNotEndTheWaitForTheLock)
{
    struct sigaction action = {};
    action.sa_handler = [](int) {};
    ASSERT_EQ(sigaction(SIGUSR1, &action, nullptr), 0); // without SA_RESTART

    WriteRegistry(TEXT);
    FileLock lock(REGISTRY_FILE);
    ASSERT_TRUE(lock.IsHeld());
    std::atomic<bool> done = false;
    std::atomic<pid_t> thread = 0;
    std::thread pass([&] {
        thread = gettid();
        EXPECT_TRUE(RegReadIn(O_RDWR));
        done = true;
    });
    bool waits = true;
    for (int signals = 0; signals < 5 && waits; ++signals) {
        waits = WaitUntil([] { return SomebodyWaitsFor(REGISTRY_FILE); });
        pthread_kill(pass.native_handle(), SIGUSR1);
        EXPECT_TRUE(WaitUntil([&] { return !HasPendingSignal(thread); }));
    }
    EXPECT_TRUE(waits && WaitUntil([] { return SomebodyWaitsFor(REGISTRY_FILE); }));
    EXPECT_FALSE(done);
    lock.Release();
    pass.join();
    EXPECT_EQ(g_Registry.size(), 2U);
}

TEST(RegistryProcess, AWriterThatWaitedReplacesALongerTextCompletely)
{
    WriteRegistry(TEXT);
    ASSERT_TRUE(RegReadIn(O_RDWR));
    FileLock lock(REGISTRY_FILE);
    ASSERT_TRUE(lock.IsHeld());
    std::thread writer([] { EXPECT_TRUE(RegWriteOut()); });
    EXPECT_TRUE(WaitUntil([] { return SomebodyWaitsFor(REGISTRY_FILE); }));
    const std::string longer(5000, 'x');
    EXPECT_EQ(write(lock.Descriptor(), longer.data(), longer.size()), 5000);
    lock.Release();
    writer.join();
    EXPECT_EQ(ReadText(REGISTRY_FILE), TEXT);
}

// A writer truncates the file before it takes the lock, so a reader may see less text, but never a mixture of
// two texts.
TEST(RegistryProcess, ReadersNeverSeeAMixtureOfTwoTexts)
{
    const std::string mark(200, '#');
    const auto write = [&](const char* name, int rounds) {
        for (int round = 0; round < rounds; ++round) {
            HKEY key = nullptr;
            RegCreateKeyExA(HKEY_LOCAL_MACHINE, name, 0, nullptr, 0, 0, nullptr, &key, nullptr);
            const std::string text = std::to_string(round) + mark;
            RegSetValueExA(key, "v", 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()), 1);
            RegCloseKey(key);
        }
        return true;
    };
    WriteRegistry("");
    const pid_t first = StartChild([&] { return write("one", 300); });
    const pid_t second = StartChild([&] { return write("two", 300); });
    for (int round = 0; round < 300; ++round) {
        ASSERT_TRUE(RegReadIn(O_RDWR));
        for (const auto& [path, store] : g_Registry) {
            ASSERT_TRUE(path == "HKLM/one" || path == "HKLM/two") << path;
            for (const auto& [name, text] : store.stringValues) {
                ASSERT_EQ(name, "v");
                ASSERT_TRUE(text.ends_with(mark)) << text;
            }
        }
    }
    EXPECT_TRUE(WaitFor(first));
    EXPECT_TRUE(WaitFor(second));
}

// Another program empties the file while this one reads it.
TEST(RegistryProcess, ALineCutByATruncationIsDiscarded)
{
    const std::string line = "\"n\"=dword:00000001\n";
    std::string text;
    while (text.size() < 40000) {
        text += line;
    }
    WriteRegistry(text);
    const LockedFile file(REGISTRY_FILE, O_RDONLY);
    RegistryPieces pieces(file);
    std::string piece;
    ASSERT_TRUE(pieces.Next(piece));
    std::filesystem::resize_file(REGISTRY_FILE, 0);
    size_t length = 0;
    do {
        ASSERT_EQ(piece, line);
        length += piece.size();
    } while (pieces.Next(piece));
    EXPECT_LT(length, text.size());
    EXPECT_FALSE(pieces.Complete());
}

TEST(LockedFileTest, DescriptorsAreNotInherited)
{
    WriteRegistry(TEXT);
    const LockedFile file(REGISTRY_FILE, O_RDONLY);
    ASSERT_TRUE(file.IsOpen());
    EXPECT_EQ(fcntl(file.Descriptor(), F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
}

TEST(LockedFileTest, ANullNameAndAnAbsentFileAreNotOpen)
{
    EXPECT_FALSE(LockedFile(nullptr, O_RDONLY).IsOpen());
    errno = 0;
    EXPECT_FALSE(LockedFile("/tmp/absent", O_RDONLY).IsOpen());
    EXPECT_EQ(errno, ENOENT);
}

TEST(LockedFileTest, NeverUsesTheDescriptorOfAStandardStream)
{
    WriteRegistry(TEXT);
    for (const std::vector<int>& streams :
         {std::vector{0}, std::vector{1}, std::vector{2}, std::vector{0, 1, 2}}) {
        EXPECT_EXIT(_exit(OpenWithout(streams)), testing::ExitedWithCode(0), "");
    }
}

TEST(LockedFileTest, OutputWithoutAStandardOutputReachesNoFile)
{
    WriteText("/tmp/a.ini", "[Common]\nKey=1\n");
    WriteRegistry(TEXT);
    EXPECT_TRUE(WaitFor(StartChild([] {
        close(STDIN_FILENO);
        close(STDOUT_FILENO);
        close(STDERR_FILENO);
        const LockedFile registry(REGISTRY_FILE, O_RDWR);
        const LockedFile profile("/tmp/a.ini", O_RDWR);
        LogWarning("a line for the console");
        std::fflush(stdout);
        return registry.IsOpen() && profile.IsOpen();
    })));
    EXPECT_EQ(ReadText(REGISTRY_FILE), TEXT);
    EXPECT_EQ(ReadText("/tmp/a.ini"), "[Common]\nKey=1\n");
}

TEST(LockedFileTest, ClosingUnlocksAndMayBeRepeated)
{
    WriteRegistry(TEXT);
    LockedFile file(REGISTRY_FILE, O_RDONLY);
    const int other = open(REGISTRY_FILE, O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(flock(other, LOCK_EX | LOCK_NB), -1);
    EXPECT_TRUE(file.Close());
    EXPECT_TRUE(file.Close());
    EXPECT_EQ(flock(other, LOCK_EX | LOCK_NB), 0);
    close(other);
}

TEST(LockedFileTest, OnlyRegularFilesHaveASize)
{
    WriteRegistry(TEXT);
    EXPECT_EQ(LockedFile(REGISTRY_FILE, O_RDONLY).Size(), off_t{sizeof TEXT - 1});
    EXPECT_EQ(LockedFile(CONF_DIR, O_RDONLY).Size(), 0);
    EXPECT_EQ(LockedFile("/dev/zero", O_RDONLY).Size(), 0);
}

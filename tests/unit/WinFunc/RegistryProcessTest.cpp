// The registry's file between processes: every pass over it waits for the lock, and no descriptor is
// inherited.
#include "ChildProcess.h"
#include "LockedFile.h"
#include "TextFiles.h"
#include "WinFunc.h"

#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

namespace {

/// True when a process waits for a lock on a file of this inode number.
bool SomebodyWaitsFor(ino_t inode)
{
    std::ifstream locks("/proc/locks");
    const std::string file = ":" + std::to_string(inode) + " ";
    for (std::string line; std::getline(locks, line);) {
        if (line.find("-> FLOCK") != std::string::npos && line.find(file) != std::string::npos) {
            return true;
        }
    }
    return false;
}

ino_t Inode(const char* path)
{
    struct stat info = {};
    EXPECT_EQ(stat(path, &info), 0);
    return info.st_ino;
}

bool WaitUntil(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::yield();
    }
    return true;
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

} // namespace

TEST_P(RegistryLock, IsWaitedFor)
{
    WriteRegistry(TEXT);
    ASSERT_TRUE(RegReadIn(O_RDWR));
    const int descriptor = open(REGISTRY_FILE, O_RDWR | O_CLOEXEC);
    ASSERT_NE(descriptor, -1);
    ASSERT_EQ(flock(descriptor, LOCK_EX), 0);

    std::atomic<bool> done = false;
    bool result = false;
    std::thread pass([&] {
        result = GetParam().run();
        done = true;
    });
    const bool waited = WaitUntil([] { return SomebodyWaitsFor(Inode(REGISTRY_FILE)); });
    EXPECT_TRUE(waited);
    EXPECT_FALSE(done);
    EXPECT_EQ(flock(descriptor, LOCK_UN), 0);
    pass.join();
    close(descriptor);
    EXPECT_TRUE(result);
}

INSTANTIATE_TEST_SUITE_P(Passes, RegistryLock,
                         testing::Values(Pass{"Load", [] { return RegReadIn(O_RDWR); }},
                                         Pass{"LoadForReading", [] { return RegReadIn(O_RDONLY); }},
                                         Pass{"WriteOut", [] { return RegWriteOut(); }},
                                         Pass{"DeleteKey",
                                              [] { return RegDeleteKeyA(HKEY_LOCAL_MACHINE, "b") == 0; }}),
                         [](const auto& pass) { return pass.param.name; });

TEST(RegistryProcess, TheLockIsWaitedForThroughInterruptions)
{
    static std::atomic<int> interruptions = 0;
    struct sigaction action = {};
    action.sa_handler = [](int) { ++interruptions; };
    ASSERT_EQ(sigaction(SIGUSR1, &action, nullptr), 0); // without SA_RESTART

    WriteRegistry(TEXT);
    const int descriptor = open(REGISTRY_FILE, O_RDWR | O_CLOEXEC);
    ASSERT_EQ(flock(descriptor, LOCK_EX), 0);
    std::atomic<bool> done = false;
    std::thread pass([&] {
        EXPECT_TRUE(RegReadIn(O_RDWR));
        done = true;
    });
    bool waits = true;
    for (int signals = 0; signals < 5 && waits; ++signals) {
        waits = WaitUntil([] { return SomebodyWaitsFor(Inode(REGISTRY_FILE)); });
        pthread_kill(pass.native_handle(), SIGUSR1);
        EXPECT_TRUE(WaitUntil([&] { return interruptions > signals; }));
    }
    EXPECT_TRUE(waits && WaitUntil([] { return SomebodyWaitsFor(Inode(REGISTRY_FILE)); }));
    EXPECT_FALSE(done);
    EXPECT_EQ(flock(descriptor, LOCK_UN), 0);
    pass.join();
    close(descriptor);
    EXPECT_EQ(g_Registry.size(), 2U);
}

TEST(RegistryProcess, AWriterThatWaitedLeavesNothingOfALongerText)
{
    WriteRegistry(TEXT);
    ASSERT_TRUE(RegReadIn(O_RDWR));
    const int descriptor = open(REGISTRY_FILE, O_RDWR | O_CLOEXEC);
    ASSERT_EQ(flock(descriptor, LOCK_EX), 0);
    std::thread writer([] { EXPECT_TRUE(RegWriteOut()); });
    EXPECT_TRUE(WaitUntil([] { return SomebodyWaitsFor(Inode(REGISTRY_FILE)); }));
    const std::string longer(5000, 'x');
    EXPECT_EQ(write(descriptor, longer.data(), longer.size()), 5000);
    EXPECT_EQ(flock(descriptor, LOCK_UN), 0);
    writer.join();
    close(descriptor);
    EXPECT_EQ(ReadText(REGISTRY_FILE), TEXT);
}

// The truncating open of a writer lies outside the lock, so a reader may find less; never a mixture of two
// texts.
TEST(RegistryProcess, WritersAndReadersNeverSeeAMixture)
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

TEST(LockedFileTest, DescriptorsAreNotInherited)
{
    WriteRegistry(TEXT);
    const LockedFile file(REGISTRY_FILE, O_RDONLY);
    ASSERT_TRUE(file.IsOpen());
    EXPECT_EQ(fcntl(file.Descriptor(), F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
}

TEST(LockedFileTest, NeitherANullNameNorAnAbsentFileIsOpen)
{
    EXPECT_FALSE(LockedFile(nullptr, O_RDONLY).IsOpen());
    errno = 0;
    EXPECT_FALSE(LockedFile("/tmp/absent", O_RDONLY).IsOpen());
    EXPECT_EQ(errno, ENOENT);
}

TEST(LockedFileTest, ClosingTwiceIsHarmlessAndUnlocks)
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

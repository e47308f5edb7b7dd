// The connection to the control service's socket by pipe name, with a scripted service.
#include "OpenDescriptors.h"
#include "StdoutCapture.h"
#include "UnixListener.h"
#include "WinFunc.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <dlfcn.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

namespace {

socklen_t connectedSize = 0; ///< of the address of the last connect
sockaddr_un connectedTo = {};

} // namespace

// This definition replaces the C library's in this program and forwards the calls.
extern "C" int connect(int fd, const sockaddr* address, socklen_t size)
{
    connectedSize = size;
    std::memcpy(&connectedTo, address, std::min<size_t>(size, sizeof connectedTo));
    using Connect = int (*)(int, const sockaddr*, socklen_t);
    static const auto libraryConnect = reinterpret_cast<Connect>(dlsym(RTLD_NEXT, "connect"));
    return libraryConnect(fd, address, size);
}

namespace {

using testing::EndsWith;

constexpr char servicePipe[] = R"(\\.\pipe\ARVEN RT-300 Service Control)";
constexpr char socketPath[] = "/var/run/arvenUlmarDiscControl.socket";
constexpr DWORD readWrite = GENERIC_READ | GENERIC_WRITE;

HANDLE Connect(LPCSTR name = servicePipe)
{
    return CreateFileA(name, readWrite, 0, nullptr, OPEN_EXISTING, FILE_FLAG_OVERLAPPED, nullptr);
}

int DescriptorOf(HANDLE handle)
{
    return ObjectOf<WinFileHandle>(handle).fd;
}

std::string Read(HANDLE handle, DWORD size)
{
    std::string text(size, '\0');
    DWORD count = 77;
    EXPECT_EQ(ReadFile(handle, text.data(), size, &count, nullptr), TRUE);
    text.resize(count);
    return text;
}

auto IsWarning(const std::string& text)
{
    return EndsWith("\x1b[33m" + text + "\x1b[0m\n");
}

TEST(ServicePipeTest, CarriesARequestAndItsReply)
{
    UnixListener service(socketPath);
    const HANDLE handle = Connect();
    ASSERT_NE(handle, INVALID_HANDLE_VALUE);
    EXPECT_STREQ(static_cast<IWinHandle*>(handle)->name(), "WinFileHandle");
    UnixPeer peer = service.Accept();

    DWORD written = 0;
    const std::string request("request\0with a NUL", 18);
    EXPECT_EQ(WriteFile(handle, request.data(), 18, &written, nullptr), TRUE);
    EXPECT_EQ(written, 18u);
    EXPECT_EQ(peer.ReadExactly(18), request);

    EXPECT_TRUE(peer.Write("reply"));
    EXPECT_EQ(Read(handle, 3), "rep") << "one read of at most the requested size";
    EXPECT_EQ(Read(handle, 100), "ly") << "one read of the bytes that have arrived";
    EXPECT_EQ(CloseHandle(handle), TRUE);
    EXPECT_TRUE(peer.WaitForClose()) << "closing the handle closes the connection";
}

TEST(ServicePipeTest, ConnectsWithAnAddressZeroedToItsEnd)
{
    UnixListener service(socketPath);
    const HANDLE handle = Connect();
    ASSERT_NE(handle, INVALID_HANDLE_VALUE);
    EXPECT_EQ(connectedSize, 110u);
    EXPECT_EQ(connectedTo.sun_family, AF_UNIX);
    std::string wholePath = socketPath;
    wholePath.resize(sizeof connectedTo.sun_path, '\0');
    EXPECT_EQ(std::string(connectedTo.sun_path, sizeof connectedTo.sun_path), wholePath);
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST(ServicePipeTest, AnyPipeNameAndAccessReachTheSameSocket)
{
    UnixListener service(socketPath);
    const std::string longName = R"(\\.\pipe\)" + std::string(10000, 'n');
    const std::vector<std::string> names = {servicePipe, R"(\\.\pipe\)", R"(\\.\pipe\another)",
                                            R"(\\.\pipe\..\..\x)", longName};
    for (const std::string& name : names) {
        for (const DWORD access : {0u, GENERIC_READ, GENERIC_WRITE, 0xFFFFFFFFu}) {
            for (const DWORD disposition :
                 {0u, CREATE_NEW, CREATE_ALWAYS, OPEN_EXISTING, OPEN_ALWAYS, 0xFFFFFFFFu}) {
                const HANDLE handle = CreateFileA(name.c_str(), access, 0, nullptr, disposition, 0, nullptr);
                ASSERT_NE(handle, INVALID_HANDLE_VALUE) << name.substr(0, 40) << access << disposition;
                UnixPeer peer = service.Accept();
                EXPECT_TRUE(peer.Write("it is me"));
                EXPECT_EQ(Read(handle, 8), "it is me");
                EXPECT_EQ(CloseHandle(handle), TRUE);
            }
        }
    }
}

TEST(ServicePipeTest, OtherNamesAreFiles)
{
    UnixListener service(socketPath);
    for (const char* name :
         {R"(\\.\pipe)", R"(\\.\PIPE\x)", "//./pipe/x", R"( \\.\pipe\x)", R"(\\?\pipe\x)", socketPath}) {
        EXPECT_EQ(Connect(name), INVALID_HANDLE_VALUE) << name;
        EXPECT_EQ(GetLastError(), 2u) << name;
    }
    EXPECT_FALSE(service.Accept(0).IsOpen());
}

TEST(ServicePipeTest, AStoppedServiceIsLoggedAsRefused)
{
    UnixListener service(socketPath);
    service.StopListening();
    SetLogLevel(2);
    StdoutCapture console;
    EXPECT_EQ(Connect(), INVALID_HANDLE_VALUE);
    EXPECT_EQ(errno, ECONNREFUSED);
    EXPECT_EQ(GetLastError(), 1u);
    EXPECT_THAT(console.Stop(), IsWarning("::CreateFileA, failed to connect "
                                          "\"/var/run/arvenUlmarDiscControl.socket\", errno: ECONNREFUSED"));
}

TEST(ServicePipeTest, AnyOtherFailureIsLoggedWithItsNumber)
{
    SetLogLevel(2);
    {
        StdoutCapture console;
        EXPECT_EQ(Connect(), INVALID_HANDLE_VALUE);
        EXPECT_EQ(GetLastError(), 2u) << "no such socket";
        EXPECT_THAT(
            console.Stop(),
            IsWarning(
                "::CreateFileA, failed to connect \"/var/run/arvenUlmarDiscControl.socket\", errno: 2"));
    }
    std::ofstream(socketPath) << "a file in the socket's place";
    {
        StdoutCapture console;
        EXPECT_EQ(Connect(), INVALID_HANDLE_VALUE);
        EXPECT_EQ(errno, ECONNREFUSED) << "the path is not a socket";
    }
}

TEST(ServicePipeTest, NothingIsLoggedUpToLevelOne)
{
    SetLogLevel(1);
    StdoutCapture console;
    EXPECT_EQ(Connect(), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), 2u);
    EXPECT_EQ(console.Stop(), "");
}

TEST(ServicePipeTest, WithoutAFreeDescriptorItFailsAndLogsNothing)
{
    UnixListener service(socketPath);
    SetLogLevel(4);
    StdoutCapture console;
    rlimit before = {};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit none = {0, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    const HANDLE handle = Connect();
    const DWORD error = GetLastError();
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_EQ(handle, INVALID_HANDLE_VALUE);
    EXPECT_EQ(error, 1u) << "EMFILE";
    EXPECT_EQ(console.Stop(), "");
}

TEST(ServicePipeTest, DescriptorsDoNotLeak)
{
    const size_t before = OpenDescriptors();
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(Connect(), INVALID_HANDLE_VALUE);
    }
    EXPECT_EQ(OpenDescriptors(), before);
    UnixListener service(socketPath);
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(CloseHandle(Connect()), TRUE);
    }
    EXPECT_EQ(OpenDescriptors(), before + 1) << "the descriptor of the listener";
}

TEST(ServicePipeTest, NeverUsesTheDescriptorOfAStandardStream)
{
    UnixListener service(socketPath);
    for (const int stream : {0, 1, 2}) {
        const auto connectsWithout = [stream] {
            close(stream);
            const HANDLE handle = Connect();
            return handle != INVALID_HANDLE_VALUE && DescriptorOf(handle) > 2 && fcntl(stream, F_GETFD) == -1;
        };
        EXPECT_EXIT(_exit(connectsWithout() ? 0 : 1), testing::ExitedWithCode(0), "");
    }
}

TEST(ServicePipeTest, AClosedServiceReadsAsEndOfFile)
{
    UnixListener service(socketPath);
    const HANDLE handle = Connect();
    UnixPeer peer = service.Accept();
    EXPECT_TRUE(peer.Write("last"));
    peer.Close();
    EXPECT_EQ(Read(handle, 100), "last");
    EXPECT_EQ(Read(handle, 100), "");
    EXPECT_EQ(Read(handle, 100), "");
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST(ServicePipeTest, WritingToAClosedServiceFailsWithoutASignal)
{
    UnixListener service(socketPath);
    const HANDLE handle = Connect();
    service.Accept().Close();
    SetLogLevel(2);
    StdoutCapture console;
    const std::string request(408, 'r');
    DWORD written = 77;
    EXPECT_EQ(WriteFile(handle, request.data(), 408, &written, nullptr), FALSE);
    EXPECT_EQ(GetLastError(), 109u);
    EXPECT_EQ(written, 0u);
    std::ostringstream expected;
    expected << "WriteFile, write(" << DescriptorOf(handle) << ",0x" << std::hex << std::uppercase
             << reinterpret_cast<uintptr_t>(request.data()) << ",408) failed with errno 32";
    EXPECT_THAT(console.Stop(), IsWarning(expected.str()));
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

/// The open descriptors of a new program, as printed by ls.
std::string DescriptorsOfAChild()
{
    std::array<int, 2> ends = {};
    EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    std::string program = "ls";
    std::string folder = "/proc/self/fd";
    std::array<char*, 3> arguments = {program.data(), folder.data(), nullptr};
    pid_t child = 0;
    EXPECT_EQ(posix_spawn(&child, "/bin/ls", &actions, nullptr, arguments.data(), environ), 0);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    UnixPeer output(ends[0]);
    std::string names;
    std::array<char, 4096> piece = {};
    ssize_t count = 0;
    while ((count = read(ends[0], piece.data(), piece.size())) > 0) {
        names.append(piece.data(), static_cast<size_t>(count));
    }
    EXPECT_EQ(waitpid(child, nullptr, 0), child);
    return names;
}

TEST(DescriptorsTest, AreNotInheritedByOtherPrograms)
{
    const std::string before = DescriptorsOfAChild();
    ASSERT_NE(before, "");

    UnixListener service(socketPath);
    const HANDLE connection = Connect();
    const HANDLE file = CreateFileA("/tmp/file", readWrite, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    std::vector<FILE*> streams(3, nullptr);
    EXPECT_EQ(fopen_s(&streams[0], "/tmp/stream", "w"), 0);
    EXPECT_EQ(fopen_s(&streams[1], "/tmp/stream", "rb+"), 0);
    EXPECT_EQ(fopen_s(&streams[2], "/tmp/stream", "a"), 0);
    ASSERT_NE(connection, INVALID_HANDLE_VALUE);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    EXPECT_EQ(DescriptorsOfAChild(), before);

    const int inherited = fcntl(DescriptorOf(file), F_DUPFD, 100);
    EXPECT_NE(DescriptorsOfAChild(), before) << "an inherited descriptor is detected";
    close(inherited);
    for (FILE* stream : streams) {
        std::fclose(stream);
    }
    EXPECT_EQ(CloseHandle(file), TRUE);
    EXPECT_EQ(CloseHandle(connection), TRUE);
}

TEST(ServicePipeTest, ShutdownWakesABlockedReadAndKeepsTheDescriptor)
{
    UnixListener service(socketPath);
    const HANDLE handle = Connect();
    UnixPeer peer = service.Accept();
    std::atomic<bool> reading = false;
    std::string read = "unset";
    std::thread reader([&] {
        reading = true;
        read = Read(handle, 24);
    });
    while (!reading) {
        std::this_thread::yield();
    }
    ObjectOf<WinFileHandle>(handle).Shutdown(); // before or during the read
    reader.join();
    EXPECT_EQ(read, "");
    EXPECT_TRUE(peer.WaitForClose());
    EXPECT_NE(fcntl(DescriptorOf(handle), F_GETFD), -1);
    DWORD written = 0;
    EXPECT_EQ(WriteFile(handle, "x", 1, &written, nullptr), FALSE);
    EXPECT_EQ(GetLastError(), 109u);
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

// Signals without SA_RESTART, sent one at a time to the thread that is in a call.

std::atomic<int> signals = 0;

void CountSignal(int)
{
    ++signals;
}

/// Interrupts the thread at most `times` times, until `done`. Sends each signal after the delivery of the
/// previous one, or after 50 ms: the thread sanitizer delivers late.
void Interrupt(std::thread& thread, const std::atomic<bool>& done, int times)
{
    for (int i = 0; i < times && !done; ++i) {
        const int before = signals;
        ASSERT_EQ(pthread_kill(thread.native_handle(), SIGUSR1), 0);
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(50);
        while (signals == before && std::chrono::steady_clock::now() < end) {
            std::this_thread::yield();
        }
    }
}

class InterruptedCallTest : public testing::Test
{
protected:
    void SetUp() override
    {
        struct sigaction action = {};
        action.sa_handler = CountSignal;
        ASSERT_EQ(sigaction(SIGUSR1, &action, nullptr), 0);
    }
};

TEST_F(InterruptedCallTest, ReadContinues)
{
    UnixListener service(socketPath);
    const HANDLE handle = Connect();
    UnixPeer peer = service.Accept();
    std::atomic<bool> done = false;
    std::string read;
    std::thread reader([&] {
        read = Read(handle, 5);
        done = true;
    });
    Interrupt(reader, done, 100);
    EXPECT_FALSE(done) << "the call still waits";
    EXPECT_TRUE(peer.Write("reply"));
    reader.join();
    EXPECT_EQ(read, "reply");
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST_F(InterruptedCallTest, WriteContinues)
{
    UnixListener service(socketPath);
    const HANDLE handle = Connect();
    UnixPeer peer = service.Accept();
    // Fill the socket buffers, so that one more byte has to wait.
    const int descriptor = DescriptorOf(handle);
    const int flags = fcntl(descriptor, F_GETFL);
    ASSERT_EQ(fcntl(descriptor, F_SETFL, flags | O_NONBLOCK), 0);
    size_t filled = 0;
    const std::string block(4096, 'f');
    for (size_t size : {block.size(), size_t{1}}) {
        ssize_t count = 0;
        while ((count = write(descriptor, block.data(), size)) > 0) {
            filled += static_cast<size_t>(count);
        }
    }
    ASSERT_EQ(fcntl(descriptor, F_SETFL, flags), 0);

    std::atomic<bool> done = false;
    BOOL result = FALSE;
    DWORD written = 0;
    std::thread writer([&] {
        result = WriteFile(handle, "w", 1, &written, nullptr);
        done = true;
    });
    Interrupt(writer, done, 100);
    EXPECT_FALSE(done) << "the call still waits";
    EXPECT_EQ(peer.ReadExactly(filled).size(), filled);
    writer.join();
    EXPECT_EQ(result, TRUE);
    EXPECT_EQ(written, 1u);
    EXPECT_EQ(peer.ReadExactly(1), "w");
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST_F(InterruptedCallTest, ConnectContinues)
{
    UnixListener service(socketPath, 0);
    const HANDLE waiting = Connect(); // fills the backlog: 0 allows one waiting connection
    ASSERT_NE(waiting, INVALID_HANDLE_VALUE);
    std::atomic<bool> done = false;
    HANDLE handle = INVALID_HANDLE_VALUE;
    std::thread connector([&] {
        handle = Connect();
        done = true;
    });
    Interrupt(connector, done, 100);
    EXPECT_FALSE(done) << "the call still waits";
    EXPECT_TRUE(service.Accept().IsOpen());
    connector.join();
    ASSERT_NE(handle, INVALID_HANDLE_VALUE);
    UnixPeer peer = service.Accept();
    EXPECT_TRUE(peer.Write("you"));
    EXPECT_EQ(Read(handle, 3), "you");
    EXPECT_EQ(CloseHandle(handle), TRUE);
    EXPECT_EQ(CloseHandle(waiting), TRUE);
}

} // namespace

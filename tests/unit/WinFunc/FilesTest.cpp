// Files behind handles: opening, reading, writing, size and position.
#include "FailingMemory.h"
#include "OpenDescriptors.h"
#include "OrdinaryRights.h"
#include "StdoutCapture.h"
#include "TextFiles.h"
#include "WinFunc.h"

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <dlfcn.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

bool onlyAskedToRead = false; ///< read records its size and reports the end of the file
size_t askedToRead = 0;

} // namespace

// This definition replaces the C library's in this program and forwards the calls.
extern "C" ssize_t read(int fd, void* buffer, size_t size)
{
    if (onlyAskedToRead) {
        askedToRead = size;
        return 0;
    }
    using Read = ssize_t (*)(int, void*, size_t);
    static const auto libraryRead = reinterpret_cast<Read>(dlsym(RTLD_NEXT, "read"));
    return libraryRead(fd, buffer, size);
}

namespace {

using testing::EndsWith;

constexpr DWORD readWrite = GENERIC_READ | GENERIC_WRITE;
const std::string path = "/tmp/file";

HANDLE Open(const std::string& name, DWORD access, DWORD disposition)
{
    return CreateFileA(name.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, disposition,
                       FILE_FLAG_OVERLAPPED, nullptr);
}

int DescriptorOf(HANDLE handle)
{
    return ObjectOf<WinFileHandle>(handle).fd;
}

BOOL Write(HANDLE handle, const std::string& text)
{
    DWORD written = 77;
    OVERLAPPED overlapped = {};
    const BOOL result =
        WriteFile(handle, text.data(), static_cast<DWORD>(text.size()), &written, &overlapped);
    EXPECT_EQ(written, result != FALSE ? text.size() : 0u);
    return result;
}

std::string Read(HANDLE handle, DWORD size)
{
    std::string text(size, '\0');
    DWORD count = 77;
    EXPECT_EQ(ReadFile(handle, text.data(), size, &count, nullptr), TRUE);
    text.resize(count);
    return text;
}

LARGE_INTEGER Large(LONGLONG value)
{
    LARGE_INTEGER large;
    large.QuadPart = value;
    return large;
}

static_assert(GENERIC_READ == 0x80000000 && GENERIC_WRITE == 0x40000000);
static_assert(CREATE_NEW == 1 && CREATE_ALWAYS == 2 && OPEN_EXISTING == 3);
static_assert(FILE_BEGIN == 0 && FILE_CURRENT == 1 && FILE_END == 2);
static_assert(offsetof(OVERLAPPED, Internal) == 0 && offsetof(OVERLAPPED, InternalHigh) == 8 &&
              offsetof(OVERLAPPED, Offset) == 16 && offsetof(OVERLAPPED, OffsetHigh) == 20 &&
              offsetof(OVERLAPPED, hEvent) == 24);
static_assert(offsetof(SECURITY_ATTRIBUTES, nLength) == 0 &&
              offsetof(SECURITY_ATTRIBUTES, lpSecurityDescriptor) == 8 &&
              offsetof(SECURITY_ATTRIBUTES, bInheritHandle) == 16);

/// One combination of access and disposition: the flags of open, or -1 if the combination is invalid.
struct Cell
{
    DWORD access;
    DWORD disposition;
    int flags;
};

const Cell cells[] = {
    {0, 1, -1},
    {0, 2, -1},
    {0, 3, O_RDONLY},
    {GENERIC_READ, 1, -1},
    {GENERIC_READ, 2, -1},
    {GENERIC_READ, 3, O_RDONLY},
    {GENERIC_WRITE, 1, O_WRONLY | O_CREAT | O_EXCL},
    {GENERIC_WRITE, 2, O_WRONLY | O_CREAT},
    {GENERIC_WRITE, 3, O_WRONLY},
    {readWrite, 1, O_RDWR | O_CREAT | O_EXCL},
    {readWrite, 2, O_RDWR | O_CREAT},
    {readWrite, 3, O_RDWR},
};

TEST(CreateFileTest, EachCombinationOfAccessAndDisposition)
{
    for (const Cell& cell : cells) {
        for (const bool exists : {false, true}) {
            SCOPED_TRACE(testing::Message()
                         << std::hex << cell.access << " " << cell.disposition << " " << exists);
            fs::remove(path);
            if (exists) {
                WriteText(path, "old");
            }
            const bool creates = cell.flags != -1 && (cell.flags & O_CREAT) != 0;
            const bool opens = cell.flags != -1 && (exists ? (cell.flags & O_EXCL) == 0 : creates);

            const HANDLE handle = Open(path, cell.access, cell.disposition);
            EXPECT_EQ(handle != INVALID_HANDLE_VALUE, opens);
            EXPECT_EQ(fs::exists(path), exists || creates);
            if (exists) {
                EXPECT_EQ(ReadText(path), "old") << "opening does not change the contents";
            }
            if (!opens) {
                continue;
            }
            EXPECT_EQ(fcntl(DescriptorOf(handle), F_GETFL) & O_ACCMODE, cell.flags & O_ACCMODE);
            EXPECT_EQ(fcntl(DescriptorOf(handle), F_GETFD), FD_CLOEXEC);
            if (!exists) {
                struct stat status = {};
                ASSERT_EQ(stat(path.c_str(), &status), 0);
                EXPECT_EQ(status.st_mode & 07777, 0600u);
            }
            EXPECT_EQ(CloseHandle(handle), TRUE);
        }
    }
}

TEST(CreateFileTest, AnyOtherMaskOrDispositionIsInvalidAndCreatesNothing)
{
    const DWORD masks[] = {0,          GENERIC_READ, GENERIC_WRITE, readWrite, 1,
                           0x20000000, 0x10000000,   readWrite | 1, 0xFFFFFFFF};
    for (const bool exists : {false, true}) {
        if (exists) {
            WriteText(path, "old");
        }
        for (const DWORD mask : masks) {
            const bool known =
                mask == 0 || mask == GENERIC_READ || mask == GENERIC_WRITE || mask == readWrite;
            for (const DWORD disposition : {0u, 1u, 2u, 3u, 4u, 5u, 6u, 0xFFFFFFFFu}) {
                if (known && disposition >= 1 && disposition <= 3) {
                    continue; // in the table
                }
                SetLastError(0);
                EXPECT_EQ(Open(path, mask, disposition), INVALID_HANDLE_VALUE) << mask << " " << disposition;
                EXPECT_EQ(GetLastError(), 87u);
                EXPECT_EQ(fs::exists(path), exists);
            }
        }
    }
}

TEST(CreateFileTest, InvalidNamesFail)
{
    SetLastError(0);
    EXPECT_EQ(CreateFileA(nullptr, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr),
              INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), 87u);
    EXPECT_EQ(Open("", GENERIC_READ, OPEN_EXISTING), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), 2u) << "open rejects an empty name";

    fs::current_path("/tmp");
    WriteText("\nname", "text");
    EXPECT_EQ(Open("\nname", GENERIC_READ, OPEN_EXISTING), INVALID_HANDLE_VALUE) << "a leading line feed";
    EXPECT_EQ(GetLastError(), 87u);
    WriteText("name\n", "text");
    const HANDLE handle = Open("name\n", GENERIC_READ, OPEN_EXISTING);
    EXPECT_NE(handle, INVALID_HANDLE_VALUE) << "a trailing line feed";
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST(CreateFileTest, SystemErrorsReachGetLastError)
{
    EXPECT_EQ(Open("/tmp/absent", GENERIC_READ, OPEN_EXISTING), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), 2u);
    EXPECT_EQ(Open("/tmp", GENERIC_WRITE, OPEN_EXISTING), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), 87u);
    WriteText(path, "old");
    EXPECT_EQ(Open(path, GENERIC_WRITE, CREATE_NEW), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), 80u);
    EXPECT_EQ(Open(path + "/below", GENERIC_READ, OPEN_EXISTING), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), 267u);
    EXPECT_EQ(Open("/tmp/" + std::string(256, 'n'), readWrite, CREATE_ALWAYS), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), 3u);
    ASSERT_EQ(symlink("/tmp/loop", "/tmp/loop"), 0);
    EXPECT_EQ(Open("/tmp/loop", GENERIC_READ, OPEN_EXISTING), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), 3u);
    EXPECT_EQ(Open("/usr/absent", GENERIC_WRITE, CREATE_NEW), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), 6009u) << "a read-only file system";
}

TEST(CreateFileTest, OutOfMemoryClosesTheFile)
{
    WriteText(path, "text");
    const size_t before = OpenDescriptors();
    HANDLE handle = nullptr;
    DWORD error = 0;
    {
        const FailingMemory memory(1);
        handle = Open(path, GENERIC_READ, OPEN_EXISTING);
        error = GetLastError();
    }
    EXPECT_EQ(handle, INVALID_HANDLE_VALUE);
    EXPECT_EQ(error, 8u);
    EXPECT_EQ(OpenDescriptors(), before);
}

TEST(CreateFileTest, ADeniedFileSetsCode5)
{
    WriteText(path, "secret");
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    for (const DWORD access : {GENERIC_READ, GENERIC_WRITE, readWrite}) {
        SetLastError(0);
        EXPECT_EQ(Open(path, access, OPEN_EXISTING), INVALID_HANDLE_VALUE);
        EXPECT_EQ(GetLastError(), 5u);
    }
}

TEST(CreateFileTest, CreateAlwaysDoesNotTruncate)
{
    WriteText(path, "a long old text");
    const HANDLE handle = Open(path, GENERIC_WRITE, CREATE_ALWAYS);
    EXPECT_EQ(Write(handle, "NEW"), TRUE);
    EXPECT_EQ(CloseHandle(handle), TRUE);
    EXPECT_EQ(ReadText(path), "NEWong old text");
}

/// Opens a file in a process whose standard streams of these numbers are closed. Returns 0, or the number of
/// the step that failed.
int OpenWithout(const std::vector<int>& streams)
{
    for (const int stream : streams) {
        close(stream);
    }
    SetLogLevel(4);
    const HANDLE handle = Open(path, readWrite, OPEN_EXISTING);
    if (handle == INVALID_HANDLE_VALUE || DescriptorOf(handle) <= 2) {
        return 1;
    }
    for (const int stream : streams) {
        if (fcntl(stream, F_GETFD) != -1) {
            return 2; // the first descriptor was not closed
        }
    }
    const int number = DescriptorOf(handle);
    if (fcntl(number, F_GETFD) != FD_CLOEXEC) {
        return 3;
    }
    SetEvent(nullptr); // a warning to the standard output, which is not the file
    std::fflush(stdout);
    if (CloseHandle(handle) != TRUE || fcntl(number, F_GETFD) != -1) {
        return 4;
    }
    return 0;
}

TEST(CreateFileTest, NeverUsesTheDescriptorOfAStandardStream)
{
    WriteText(path, "kept");
    for (const std::vector<int>& streams :
         {std::vector{0}, std::vector{1}, std::vector{2}, std::vector{0, 1, 2}}) {
        EXPECT_EXIT(_exit(OpenWithout(streams)), testing::ExitedWithCode(0), "");
    }
    EXPECT_EQ(ReadText(path), "kept");
}

TEST(FileHandleTest, ClosesItsDescriptorOnce)
{
    const int descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
    ASSERT_GT(descriptor, 0);
    int other = 0;
    {
        WinFileHandle file(descriptor);
        EXPECT_TRUE(file.Close());
        EXPECT_EQ(file.fd, 0);
        EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
        other = open("/dev/null", O_RDONLY | O_CLOEXEC);
        ASSERT_EQ(other, descriptor) << "the new file has the same number";
        EXPECT_TRUE(file.Close()) << "already closed";
    }
    EXPECT_NE(fcntl(other, F_GETFD), -1) << "the second Close does not close the new file";
    close(other);
}

TEST(FileHandleTest, TheDestructorClosesTheDescriptor)
{
    const int descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
    ASSERT_GT(descriptor, 0);
    delete new WinFileHandle(descriptor);
    EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
}

TEST(FileHandleTest, AFailedCloseReturnsFalseAndIsNotRepeated)
{
    const int descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
    const HANDLE handle = ToHandle(new WinFileHandle(descriptor));
    close(descriptor);
    EXPECT_EQ(CloseHandle(handle), FALSE);

    WinFileHandle file(descriptor);
    EXPECT_FALSE(file.Close());
    const int other = open("/dev/null", O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(other, descriptor);
    EXPECT_TRUE(file.Close());
    EXPECT_NE(fcntl(other, F_GETFD), -1) << "the second Close does not close the new file";
    close(other);
}

TEST(FileHandleTest, ShutdownHasNoEffectOnAFile)
{
    WriteText(path, "text");
    const HANDLE handle = Open(path, GENERIC_READ, OPEN_EXISTING);
    SetLastError(17);
    ObjectOf<WinFileHandle>(handle).Shutdown();
    EXPECT_EQ(errno, 17);
    EXPECT_EQ(Read(handle, 10), "text");
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST(ReadFileTest, MakesOneReadPerCall)
{
    WriteText(path, "0123456789");
    const HANDLE handle = Open(path, GENERIC_READ, OPEN_EXISTING);
    EXPECT_EQ(Read(handle, 4), "0123");
    EXPECT_EQ(Read(handle, 0), "");
    EXPECT_EQ(Read(handle, 100), "456789");
    EXPECT_EQ(Read(handle, 100), "") << "reading at the end of the file succeeds with no bytes";
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST(ReadFileTest, AFailureDoesNotChangeTheCount)
{
    WriteText(path, "0123456789");
    const HANDLE handle = Open(path, GENERIC_WRITE, OPEN_EXISTING);
    char byte = 'x';
    DWORD count = 77;
    SetLogLevel(4);
    StdoutCapture console;
    EXPECT_EQ(ReadFile(handle, &byte, 1, &count, nullptr), FALSE);
    EXPECT_EQ(console.Stop(), "") << "reads log nothing";
    EXPECT_EQ(count, 77u);
    EXPECT_EQ(byte, 'x');
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST(ReadFileTest, TheCountIsLimitedToTheLargestInt32)
{
    struct Case
    {
        DWORD wanted;
        size_t asked;
    };
    const HANDLE handle = Open("/dev/null", GENERIC_READ, OPEN_EXISTING);
    onlyAskedToRead = true;
    for (const Case& c :
         {Case{0x80000000, 0x7FFFFFFF}, Case{0xFFFFFFFF, 0x7FFFFFFF}, Case{0x7FFFFFFF, 0x7FFFFFFF},
          Case{0x7FFFFFFE, 0x7FFFFFFE}, Case{1, 1}, Case{0, 0}}) {
        char byte = 0;
        DWORD count = 77;
        askedToRead = 12345;
        EXPECT_EQ(ReadFile(handle, &byte, c.wanted, &count, nullptr), TRUE);
        EXPECT_EQ(askedToRead, c.asked);
        EXPECT_EQ(count, 0u);
    }
    onlyAskedToRead = false;
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST(ReadFileTest, AHandleThatIsNotAFileFails)
{
    WinEvent event(false, false);
    char byte = 0;
    for (const HANDLE handle : {ToHandle(&event), HANDLE{nullptr}, INVALID_HANDLE_VALUE}) {
        DWORD count = 77;
        SetLastError(0);
        EXPECT_EQ(ReadFile(handle, &byte, 1, &count, nullptr), FALSE);
        EXPECT_EQ(count, 77u);
        EXPECT_NE(GetLastError(), 0u);
    }
}

TEST(WriteFileTest, WritesAndCounts)
{
    const HANDLE handle = Open(path, GENERIC_WRITE, CREATE_NEW);
    EXPECT_EQ(Write(handle, "first"), TRUE);
    EXPECT_EQ(Write(handle, ""), TRUE);
    EXPECT_EQ(Write(handle, std::string("\0second", 7)), TRUE);
    EXPECT_EQ(CloseHandle(handle), TRUE);
    EXPECT_EQ(ReadText(path), std::string("first\0second", 12));
}

TEST(WriteFileTest, AFullDiskIsLoggedAndSetsCode112)
{
    SetLogLevel(2);
    const HANDLE handle = Open("/dev/full", GENERIC_WRITE, OPEN_EXISTING);
    const std::string text = "text";
    StdoutCapture console;
    DWORD written = 77;
    EXPECT_EQ(WriteFile(handle, text.data(), 4, &written, nullptr), FALSE);
    EXPECT_EQ(GetLastError(), 112u);
    EXPECT_EQ(written, 0u);
    std::ostringstream expected;
    expected << "\x1b[33mWriteFile, write(" << DescriptorOf(handle) << ",0x" << std::hex << std::uppercase
             << reinterpret_cast<uintptr_t>(text.data()) << ",4) failed with errno 28\x1b[0m\n";
    EXPECT_THAT(console.Stop(), EndsWith(expected.str()));
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST(WriteFileTest, NothingIsLoggedUpToLevelOne)
{
    SetLogLevel(1);
    const HANDLE handle = Open("/dev/full", GENERIC_WRITE, OPEN_EXISTING);
    StdoutCapture console;
    EXPECT_EQ(Write(handle, "text"), FALSE);
    EXPECT_EQ(console.Stop(), "");
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST(FileMisuseTest, StopsTheProcess)
{
    WinEvent event(false, false);
    const HANDLE handle = ToHandle(&event);
    const auto file = [] { return ToHandle(new WinFileHandle(open("/dev/null", O_RDWR | O_CLOEXEC))); };
    DWORD count = 0;
    LARGE_INTEGER size = {};
    EXPECT_DEATH(WriteFile(handle, "", 0, &count, nullptr), "Assertion .object != nullptr. failed");
    EXPECT_DEATH(WriteFile(nullptr, "", 0, &count, nullptr), "Assertion .IsObject\\(handle\\). failed");
    EXPECT_DEATH(WriteFile(INVALID_HANDLE_VALUE, "", 0, &count, nullptr),
                 "Assertion .IsObject\\(handle\\). failed");
    EXPECT_DEATH(WriteFile(file(), "", 0, nullptr, nullptr),
                 "Assertion .lpNumberOfBytesWrite != nullptr. failed");
    EXPECT_DEATH(ReadFile(file(), &count, 1, nullptr, nullptr),
                 "Assertion .lpNumberOfBytesRead != nullptr. failed");
    EXPECT_DEATH(GetFileSize(handle, nullptr), "Assertion .object != nullptr. failed");
    EXPECT_DEATH(GetFileSizeEx(handle, &size), "Assertion .object != nullptr. failed");
    EXPECT_DEATH(SetFilePointer(handle, 0, nullptr, FILE_BEGIN), "Assertion .object != nullptr. failed");
}

TEST(OverlappedTest, NothingIsEverPending)
{
    WriteText(path, "text");
    const HANDLE handle = Open(path, readWrite, OPEN_EXISTING);
    OVERLAPPED overlapped = {1, 2, 3, 4, nullptr};
    char bytes[4] = {};
    DWORD count = 0;
    EXPECT_EQ(ReadFile(handle, bytes, 4, &count, &overlapped), TRUE);
    EXPECT_EQ(count, 4u) << "read from the handle's position, not from the offset";
    count = 77;
    for (const BOOL wait : {FALSE, TRUE}) {
        EXPECT_EQ(GetOverlappedResult(handle, &overlapped, &count, wait), FALSE);
    }
    EXPECT_EQ(GetOverlappedResult(nullptr, nullptr, nullptr, FALSE), FALSE);
    EXPECT_EQ(count, 77u);
    EXPECT_EQ(overlapped.Internal, 1u);
    EXPECT_EQ(overlapped.InternalHigh, 2u);
    EXPECT_EQ(overlapped.Offset, 3u);
    EXPECT_EQ(overlapped.OffsetHigh, 4u);
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST(FileSizeTest, GetFileSizeReturnsTheLow32BitsAndGetFileSizeExAll)
{
    for (const LONGLONG size : {0LL, 1LL, 10LL, 0x7FFFFFFFLL, 0x180000005LL}) {
        WriteText(path, "");
        ASSERT_EQ(truncate(path.c_str(), size), 0);
        const HANDLE handle = Open(path, GENERIC_READ, OPEN_EXISTING);
        DWORD high = 77;
        EXPECT_EQ(GetFileSize(handle, &high), static_cast<DWORD>(size & 0xFFFFFFFF));
        EXPECT_EQ(high, 77u) << "not written";
        EXPECT_EQ(GetFileSize(handle, nullptr), static_cast<DWORD>(size & 0xFFFFFFFF));
        LARGE_INTEGER whole = Large(-1);
        EXPECT_EQ(GetFileSizeEx(handle, &whole), TRUE);
        EXPECT_EQ(whole.QuadPart, size);
        EXPECT_EQ(CloseHandle(handle), TRUE);
    }
}

TEST(FileSizeTest, FailsForAClosedDescriptor)
{
    WinFileHandle file(1000);
    LARGE_INTEGER size = Large(77);
    EXPECT_EQ(GetFileSize(ToHandle(&file), nullptr), 0xFFFFFFFFu);
    EXPECT_EQ(GetFileSizeEx(ToHandle(&file), &size), FALSE);
    EXPECT_EQ(size.QuadPart, 77);
    file.fd = 0;
}

TEST(FileSuccessTest, KeepsTheLastError)
{
    SetLastError(EEXIST);
    const HANDLE handle = Open(path, readWrite, CREATE_NEW);
    ASSERT_NE(handle, INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), 80u);
    EXPECT_EQ(Write(handle, "text"), TRUE);
    EXPECT_EQ(SetFilePointer(handle, 0, nullptr, FILE_BEGIN), 0u);
    EXPECT_EQ(Read(handle, 4), "text");
    EXPECT_EQ(GetFileSize(handle, nullptr), 4u);
    EXPECT_EQ(CloseHandle(handle), TRUE);
    EXPECT_EQ(GetLastError(), 80u);
}

struct Move
{
    LONGLONG from;
    LONGLONG distance;
    DWORD method;
    LONGLONG to; ///< -1: a failure
};

const Move moves[] = {
    {0, 3, FILE_BEGIN, 3},
    {4, 3, FILE_CURRENT, 7},
    {4, 3, FILE_END, 13},
    {4, -3, FILE_CURRENT, 1},
    {4, -10, FILE_END, 0},
    {4, 0, FILE_CURRENT, 4},
    {4, -1, FILE_BEGIN, -1},
    {4, -5, FILE_CURRENT, -1},
    {4, -11, FILE_END, -1},
    {0x100000000, 5, FILE_CURRENT, 0x100000005},
    {0, 0x7FFFFFFF, FILE_BEGIN, 0x7FFFFFFF},
    {0x180000000, -0x80000000LL, FILE_CURRENT, 0x100000000},
};

/// A file of ten bytes.
HANDLE TenBytes()
{
    WriteText(path, "0123456789");
    return Open(path, readWrite, OPEN_EXISTING);
}

TEST(FilePointerTest, MovesWith32Bits)
{
    const HANDLE handle = TenBytes();
    for (const Move& move : moves) {
        SCOPED_TRACE(testing::Message() << move.from << " " << move.distance << " " << move.method);
        lseek64(DescriptorOf(handle), move.from, SEEK_SET);
        LONG high = 77;
        const DWORD low = SetFilePointer(handle, static_cast<LONG>(move.distance), &high, move.method);
        if (move.to < 0) {
            EXPECT_EQ(low, 0xFFFFFFFFu);
            EXPECT_EQ(high, 77);
            EXPECT_EQ(GetLastError(), 87u);
        } else {
            EXPECT_EQ(low, static_cast<DWORD>(move.to & 0xFFFFFFFF));
            EXPECT_EQ(high, static_cast<LONG>(move.to >> 32));
        }
        const LONGLONG expected = move.to < 0 ? move.from : move.to;
        EXPECT_EQ(lseek64(DescriptorOf(handle), 0, SEEK_CUR), expected);
    }
    EXPECT_EQ(SetFilePointer(handle, 2, nullptr, FILE_BEGIN), 2u) << "the high half is optional";
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST(FilePointerTest, TheHighHalfOfTheDistanceIsIgnored)
{
    const HANDLE handle = TenBytes();
    LONG high = 1;
    EXPECT_EQ(SetFilePointer(handle, 3, &high, FILE_BEGIN), 3u);
    EXPECT_EQ(high, 0);
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST(FilePointerTest, MovesWith64Bits)
{
    const HANDLE handle = TenBytes();
    for (const Move& move : moves) {
        SCOPED_TRACE(testing::Message() << move.from << " " << move.distance << " " << move.method);
        lseek64(DescriptorOf(handle), move.from, SEEK_SET);
        LARGE_INTEGER position = Large(77);
        EXPECT_EQ(SetFilePointerEx(handle, Large(move.distance), &position, move.method),
                  move.to < 0 ? FALSE : TRUE);
        EXPECT_EQ(position.QuadPart, move.to < 0 ? 77 : move.to);
        const LONGLONG expected = move.to < 0 ? move.from : move.to;
        EXPECT_EQ(lseek64(DescriptorOf(handle), 0, SEEK_CUR), expected);
    }
    EXPECT_EQ(SetFilePointerEx(handle, Large(0x300000002), nullptr, FILE_BEGIN), TRUE);
    EXPECT_EQ(lseek64(DescriptorOf(handle), 0, SEEK_CUR), 0x300000002);
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

TEST(FilePointerTest, AnUnknownMethodReturnsPosition0AndDoesNotMove)
{
    const HANDLE handle = TenBytes();
    for (const DWORD method : {3u, 4u, 0xFFFFFFFFu}) {
        lseek64(DescriptorOf(handle), 6, SEEK_SET);
        LONG high = 77;
        EXPECT_EQ(SetFilePointer(handle, 3, &high, method), 0u);
        EXPECT_EQ(high, 0);
        LARGE_INTEGER position = Large(77);
        EXPECT_EQ(SetFilePointerEx(handle, Large(3), &position, method), TRUE);
        EXPECT_EQ(position.QuadPart, 0);
        EXPECT_EQ(lseek64(DescriptorOf(handle), 0, SEEK_CUR), 6);
    }
    EXPECT_EQ(CloseHandle(handle), TRUE);
}

} // namespace

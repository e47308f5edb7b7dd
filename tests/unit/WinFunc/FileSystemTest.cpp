// Files and folders by name: deletion, creation, attributes, paths and disk space.
#include "OpenDescriptors.h"
#include "OrdinaryRights.h"
#include "TextFiles.h"
#include "Win_def.h"

#include <array>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

#include <dlfcn.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/un.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// The result of statvfs while it is set, and the path of its last call.
std::optional<struct statvfs> scriptedSpace;
bool isSpaceUnknown = false; ///< statvfs fails
std::string askedForSpaceOf;

bool onlyAskedToOpen = false; ///< fopen records its mode and fails
std::string askedMode;

} // namespace

// These definitions replace the C library's in this program and forward the calls.

extern "C" FILE* fopen(const char* path, const char* mode)
{
    if (onlyAskedToOpen) {
        askedMode = mode;
        return nullptr;
    }
    using Call = FILE* (*)(const char*, const char*);
    static const auto libraryCall = reinterpret_cast<Call>(dlsym(RTLD_NEXT, "fopen"));
    return libraryCall(path, mode);
}

extern "C" int statvfs(const char* path, struct statvfs* space) noexcept
{
    if (isSpaceUnknown) {
        errno = EIO;
        return -1;
    }
    if (scriptedSpace) {
        askedForSpaceOf = path;
        *space = *scriptedSpace;
        return 0;
    }
    using Call = int (*)(const char*, struct statvfs*);
    static const auto libraryCall = reinterpret_cast<Call>(dlsym(RTLD_NEXT, "statvfs"));
    return libraryCall(path, space);
}

namespace {

mode_t ModeOf(const std::string& path)
{
    struct stat status = {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777;
}

TEST(DeleteFileTest, RemovesFilesAndLinksButNotFolders)
{
    WriteText("/tmp/file", "text");
    ASSERT_EQ(symlink("/tmp/file", "/tmp/link"), 0);
    EXPECT_EQ(DeleteFileA("/tmp/link"), TRUE);
    EXPECT_EQ(ReadText("/tmp/file"), "text") << "only the link was removed";
    EXPECT_EQ(DeleteFileA("/tmp/file"), TRUE);
    EXPECT_FALSE(fs::exists("/tmp/file"));
    EXPECT_EQ(DeleteFileA("/tmp/file"), FALSE);
    EXPECT_EQ(GetLastError(), 2u);
    fs::create_directory("/tmp/folder");
    EXPECT_EQ(DeleteFileA("/tmp/folder"), FALSE);
    EXPECT_TRUE(fs::exists("/tmp/folder"));
    EXPECT_EQ(DeleteFileA(""), FALSE);
    EXPECT_EQ(DeleteFileA(nullptr), FALSE);
}

TEST(CreateDirectoryTest, CreatesOneLevelWithMode0775)
{
    umask(0);
    SECURITY_ATTRIBUTES ignored = {};
    EXPECT_EQ(CreateDirectoryA("/tmp/folder", &ignored), TRUE);
    EXPECT_EQ(ModeOf("/tmp/folder"), 0775u);
    EXPECT_EQ(CreateDirectoryA("/tmp/folder", nullptr), FALSE);
    EXPECT_EQ(GetLastError(), 80u);
    EXPECT_EQ(CreateDirectoryA("/tmp/absent/below", nullptr), FALSE);
    EXPECT_EQ(GetLastError(), 2u);
    EXPECT_FALSE(fs::exists("/tmp/absent"));
    EXPECT_EQ(CreateDirectoryA(nullptr, nullptr), FALSE);
}

class RemoveDirectoryTest : public testing::Test
{
protected:
    void SetUp() override
    {
        fs::create_directories("/tmp/outside/below");
        WriteText("/tmp/outside/precious", "kept");
        WriteText("/tmp/outside/below/precious", "kept");
        fs::create_directories(folder);
    }
    static void ExpectOutsideUntouched()
    {
        EXPECT_EQ(ReadText("/tmp/outside/precious"), "kept");
        EXPECT_EQ(ReadText("/tmp/outside/below/precious"), "kept");
    }

    const std::string folder = "/tmp/folder";
};

TEST_F(RemoveDirectoryTest, RemovesAFolderWithItsSubFolders)
{
    fs::create_directories(folder + "/a/b/c");
    fs::create_directories(folder + "/empty");
    for (const char* name :
         {"/file", "/.hidden", "/..two dots", "/a/file", "/a/b/c/file", "/line\nfeed", "/\xff\xfe"}) {
        WriteText(folder + name, "text");
    }
    WriteText(folder + "/" + std::string(255, 'n'), "text");
    EXPECT_EQ(RemoveDirectoryA(folder.c_str()), TRUE);
    EXPECT_FALSE(fs::exists(folder));
}

TEST_F(RemoveDirectoryTest, RemovesAnEmptyFolderDespiteTrailingSlashes)
{
    EXPECT_EQ(RemoveDirectoryA((folder + "//").c_str()), TRUE);
    EXPECT_FALSE(fs::exists(folder));
}

TEST_F(RemoveDirectoryTest, RemovesLinksAsLinks)
{
    ASSERT_EQ(symlink("/tmp/outside", (folder + "/toFolder").c_str()), 0);
    ASSERT_EQ(symlink("../outside", (folder + "/relative").c_str()), 0);
    ASSERT_EQ(symlink("/tmp/outside/precious", (folder + "/toFile").c_str()), 0);
    ASSERT_EQ(symlink(".", (folder + "/circle").c_str()), 0);
    EXPECT_EQ(RemoveDirectoryA(folder.c_str()), TRUE);
    EXPECT_FALSE(fs::exists(folder));
    ExpectOutsideUntouched();
}

TEST_F(RemoveDirectoryTest, StopsAtADanglingLink)
{
    for (const char* target : {"/tmp/nothing", "link"}) { // the second one points to itself
        ASSERT_EQ(symlink(target, (folder + "/link").c_str()), 0);
        EXPECT_EQ(RemoveDirectoryA(folder.c_str()), FALSE) << target;
        EXPECT_TRUE(fs::is_symlink(folder + "/link")) << target;
        fs::remove(folder + "/link");
    }
}

TEST_F(RemoveDirectoryTest, StopsAtADanglingLinkInASubFolder)
{
    fs::create_directories(folder + "/below");
    ASSERT_EQ(symlink("/tmp/nothing", (folder + "/below/link").c_str()), 0);
    EXPECT_EQ(RemoveDirectoryA(folder.c_str()), FALSE);
    EXPECT_EQ(GetLastError(), 2u);
    EXPECT_TRUE(fs::is_symlink(folder + "/below/link"));
}

TEST_F(RemoveDirectoryTest, FailsForALinkToAFolder)
{
    ASSERT_EQ(symlink("/tmp/outside", "/tmp/link"), 0);
    EXPECT_EQ(RemoveDirectoryA("/tmp/link"), FALSE);
    EXPECT_EQ(RemoveDirectoryA("/tmp/link/"), FALSE);
    ExpectOutsideUntouched();
    EXPECT_TRUE(fs::is_symlink("/tmp/link"));
}

TEST_F(RemoveDirectoryTest, RemovesFifosAndSockets)
{
    ASSERT_EQ(mkfifo((folder + "/fifo").c_str(), 0600), 0);
    const int fd = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, (folder + "/socket").c_str(), sizeof address.sun_path - 1);
    ASSERT_EQ(bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    close(fd);
    EXPECT_EQ(RemoveDirectoryA(folder.c_str()), TRUE);
    EXPECT_FALSE(fs::exists(folder));
}

TEST_F(RemoveDirectoryTest, FailsForAnythingButAFolder)
{
    WriteText("/tmp/file", "text");
    EXPECT_EQ(RemoveDirectoryA("/tmp/file"), FALSE);
    EXPECT_EQ(ReadText("/tmp/file"), "text");
    EXPECT_EQ(RemoveDirectoryA("/tmp/absent"), FALSE);
    EXPECT_EQ(GetLastError(), 2u);
    EXPECT_EQ(RemoveDirectoryA(""), FALSE);
    EXPECT_EQ(RemoveDirectoryA(nullptr), FALSE);
    ASSERT_EQ(mkfifo("/tmp/fifo", 0600), 0);
    EXPECT_EQ(RemoveDirectoryA("/tmp/fifo"), FALSE) << "without waiting for a writer";
    EXPECT_TRUE(fs::is_fifo("/tmp/fifo"));
}

TEST_F(RemoveDirectoryTest, RemovesManyEntries)
{
    for (int i = 0; i < 3000; ++i) {
        WriteText(folder + "/" + std::to_string(i), "");
    }
    EXPECT_EQ(RemoveDirectoryA(folder.c_str()), TRUE);
    EXPECT_FALSE(fs::exists(folder));
}

/// Creates nested folders of one name. Each is created relative to its parent, so that no path is longer than
/// the name.
void NestFolders(const std::string& folder, const std::string& name, int levels)
{
    int fd = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int level = 0; level < levels; ++level) {
        ASSERT_EQ(mkdirat(fd, name.c_str(), 0700), 0);
        const int below = openat(fd, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ASSERT_GE(below, 0);
        close(fd);
        fd = below;
    }
    close(fd);
}

TEST_F(RemoveDirectoryTest, ADeepTreeNeedsNoMoreDescriptorsThanAShallowOne)
{
    NestFolders(folder, "d", 1500);
    EXPECT_EQ(RemoveDirectoryA(folder.c_str()), TRUE);
    EXPECT_FALSE(fs::exists(folder));
}

TEST_F(RemoveDirectoryTest, FailsForATreeDeeperThanThePathLimit)
{
    NestFolders(folder, std::string(200, 'd'), 50); // 10,000 bytes
    EXPECT_EQ(RemoveDirectoryA(folder.c_str()), FALSE);
    EXPECT_EQ(GetLastError(), 3u);
    EXPECT_TRUE(fs::exists(folder));
}

TEST_F(RemoveDirectoryTest, StopsAtTheFirstFailure)
{
    fs::create_directories(folder + "/locked");
    WriteText(folder + "/locked/file", "text");
    ASSERT_EQ(chmod((folder + "/locked").c_str(), 0555), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    EXPECT_EQ(RemoveDirectoryA(folder.c_str()), FALSE);
    EXPECT_EQ(GetLastError(), 5u);
    EXPECT_EQ(ReadText(folder + "/locked/file"), "text");
}

TEST_F(RemoveDirectoryTest, FailsForAnEmptyFolderThatCannotBeListed)
{
    ASSERT_EQ(chmod(folder.c_str(), 0300), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    EXPECT_EQ(RemoveDirectoryA(folder.c_str()), FALSE);
    EXPECT_EQ(GetLastError(), 5u);
    EXPECT_TRUE(fs::exists(folder));
}

TEST_F(RemoveDirectoryTest, FailsForAnEmptyFolderInOneThatCannotBeWritten)
{
    fs::create_directories(folder + "/empty");
    ASSERT_EQ(chmod(folder.c_str(), 0555), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    EXPECT_EQ(RemoveDirectoryA((folder + "/empty").c_str()), FALSE);
    EXPECT_EQ(GetLastError(), 5u);
    EXPECT_TRUE(fs::exists(folder + "/empty"));
}

TEST_F(RemoveDirectoryTest, NeedsNoStandardInput)
{
    WriteText(folder + "/file", "text");
    const int input = dup(STDIN_FILENO);
    close(STDIN_FILENO);
    EXPECT_EQ(RemoveDirectoryA(folder.c_str()), TRUE);
    EXPECT_FALSE(fs::exists(folder));
    dup2(input, STDIN_FILENO);
    close(input);
}

TEST_F(RemoveDirectoryTest, SuccessKeepsTheLastError)
{
    fs::create_directories(folder + "/a/b");
    WriteText(folder + "/a/file", "text");
    SetLastError(EEXIST);
    EXPECT_EQ(RemoveDirectoryA(folder.c_str()), TRUE);
    EXPECT_EQ(GetLastError(), 80u);
}

TEST(PathIsDirectoryTest, IsTrueForFoldersThatCanBeListed)
{
    fs::create_directory("/tmp/folder");
    WriteText("/tmp/file", "text");
    ASSERT_EQ(symlink("/tmp/folder", "/tmp/link"), 0);
    EXPECT_EQ(PathIsDirectoryA("/tmp/folder"), TRUE);
    EXPECT_EQ(PathIsDirectoryA("/tmp/folder/"), TRUE);
    EXPECT_EQ(PathIsDirectoryA("/tmp/link"), TRUE);
    EXPECT_EQ(PathIsDirectoryA("/tmp/file"), FALSE);
    EXPECT_EQ(PathIsDirectoryA("/tmp/absent"), FALSE);
    EXPECT_EQ(PathIsDirectoryA(""), FALSE);
    EXPECT_EQ(PathIsDirectoryA(nullptr), FALSE);
    ASSERT_EQ(chmod("/tmp/folder", 0), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    EXPECT_EQ(PathIsDirectoryA("/tmp/folder"), FALSE);
}

TEST(PathIsDirectoryTest, LeavesNoDescriptorOpen)
{
    const size_t before = OpenDescriptors();
    EXPECT_EQ(PathIsDirectoryA("/tmp"), TRUE);
    EXPECT_EQ(PathIsDirectoryA("/tmp/absent"), FALSE);
    EXPECT_EQ(OpenDescriptors(), before);
}

TEST(FileAttributesTest, DependOnKindAndMode)
{
    fs::create_directory("/tmp/folder");
    WriteText("/tmp/file", "text");
    struct Row
    {
        const char* path;
        mode_t mode;
        DWORD attributes;
    };
    const Row rows[] = {
        {"/tmp/file", 0444, 1},      {"/tmp/file", 0440, 0},      {"/tmp/file", 0400, 0},
        {"/tmp/file", 0644, 0},      {"/tmp/file", 0555, 0},      {"/tmp/file", 0445, 0},
        {"/tmp/file", 0000, 0},      {"/tmp/folder", 0755, 0x10}, {"/tmp/folder", 0444, 0x11},
        {"/tmp/folder", 0555, 0x10}, {"/tmp/folder", 0440, 0x10},
    };
    for (const Row& row : rows) {
        ASSERT_EQ(chmod(row.path, row.mode), 0);
        EXPECT_EQ(GetFileAttributesA(row.path), row.attributes) << row.path << std::oct << " " << row.mode;
    }
    EXPECT_EQ(GetFileAttributesA("/dev/null"), 0u);
    ASSERT_EQ(symlink("/tmp/folder", "/tmp/link"), 0);
    EXPECT_EQ(GetFileAttributesA("/tmp/link") & FILE_ATTRIBUTE_DIRECTORY, 0x10u)
        << "a link has the attributes of its target";
    EXPECT_EQ(GetFileAttributesA("/tmp/absent"), 0xFFFFFFFFu);
    EXPECT_EQ(GetFileAttributesA(""), 0xFFFFFFFFu);
    EXPECT_EQ(GetFileAttributesA(nullptr), 0xFFFFFFFFu);
}

TEST(PathAppendTest, DropsLeadingDotsAndInsertsOneSlash)
{
    struct Row
    {
        std::string path;
        std::string more;
        std::string result;
    };
    const Row rows[] = {
        {"/a/b", "c", "/a/b/c"},     {"/a/b/", "c", "/a/b/c"},
        {"/a/b//", "c", "/a/b//c"},  {"/a/b", "/c", "/a/b//c"},
        {"/a/b\\", "c", "/a/b\\/c"}, // a trailing backslash is not a separator
        {"./a", "b", "/a/b"},        {".\\a", "b", "\\a/b"},
        {"./", "b", "/b"},           {".\\", "b", "\\/b"},
        {"../a", "b", "/a/b"},       {"..\\a", "b", "\\a/b"},
        {"../", "b", "/b"},          {"../../a", "b", "/../a/b"},
        {"././a", "b", "/./a/b"},    {".", "b", "./b"},
        {"..", "b", "../b"},         {".a", "b", ".a/b"},
        {"..a", "b", "..a/b"},       {"", "b", "/b"},
        {"/a", "", "/a/"},           {"", "", "/"},
        {"a/b", "c", "a/b/c"},       {"a./b", "c", "a./b/c"},
        {".a/b", "c", ".a/b/c"},
    };
    for (const Row& row : rows) {
        std::array<char, 64> buffer = {};
        row.path.copy(buffer.data(), row.path.size());
        EXPECT_EQ(PathAppendA(buffer.data(), row.more.c_str()), TRUE);
        EXPECT_EQ(std::string(buffer.data()), row.result) << row.path << " + " << row.more;
    }
}

TEST(PathAppendTest, ReadsNoByteBeforeTheText)
{
    std::array<char, 8> buffer = {'/'};
    EXPECT_EQ(PathAppendA(buffer.data() + 1, "b"), TRUE);
    EXPECT_STREQ(buffer.data(), "//b");
}

TEST(PathAppendTest, WritesNoByteAfterTheResult)
{
    std::string buffer = std::string("./abc\0", 6) + std::string(20, 'x');
    EXPECT_EQ(PathAppendA(buffer.data(), "def"), TRUE);
    EXPECT_EQ(buffer, std::string("/abc/def\0", 9) + std::string(17, 'x'));
}

TEST(ModuleFileNameTest, IsThePathOfTheProgram)
{
    const std::string program = fs::read_symlink("/proc/self/exe");
    std::array<char, 4096> buffer;
    buffer.fill('x');
    EXPECT_EQ(GetModuleFileNameA(nullptr, buffer.data(), buffer.size()), program.size());
    EXPECT_EQ(buffer.data(), program);
    EXPECT_EQ(buffer.back(), '\0') << "the rest of the buffer is zeroed";

    buffer.fill('x');
    EXPECT_EQ(GetModuleFileNameA(nullptr, buffer.data(), 6), 5u) << "truncated and terminated by NUL";
    EXPECT_EQ(buffer.data(), program.substr(0, 5));
    EXPECT_EQ(buffer[6], 'x');

    buffer.fill('x');
    EXPECT_EQ(GetModuleFileNameA(nullptr, buffer.data(), 0), 0u);
    EXPECT_EQ(buffer[0], 'x');
    EXPECT_EQ(GetModuleFileNameA(nullptr, nullptr, 10), 0u);
    EXPECT_EQ(GetModuleFileNameA(nullptr, buffer.data(), 1), 0xFFFFFFFFu) << "readlink fails for a size of 0";
    EXPECT_EQ(buffer[0], '\0');
}

TEST(OpenStreamTest, ReturnsTheError)
{
    FILE* file = nullptr;
    EXPECT_EQ(fopen_s(nullptr, "/tmp/file", "w"), 22);
    EXPECT_EQ(fopen_s(&file, nullptr, "w"), 22);
    EXPECT_EQ(fopen_s(&file, "/tmp/file", nullptr), 22);
    EXPECT_FALSE(fs::exists("/tmp/file"));
    EXPECT_EQ(fopen_s(&file, "/tmp/file", ""), 5);
    EXPECT_EQ(fopen_s(&file, "/tmp/file", "x"), 5);
    EXPECT_EQ(fopen_s(&file, "/tmp/file", "r"), 5);
    EXPECT_EQ(GetLastError(), 2u);
    EXPECT_EQ(fopen_s(&file, "/tmp/file", "wb"), 0);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(fcntl(fileno(file), F_GETFD), FD_CLOEXEC);
    std::fputs("text", file);
    std::fclose(file);
    EXPECT_EQ(ReadText("/tmp/file"), "text");
    EXPECT_EQ(fopen_s(&file, "/tmp/absent", "r"), 5);
    EXPECT_EQ(file, nullptr);
}

TEST(OpenStreamTest, AddsCloseOnExecToTheMode)
{
    FILE* file = nullptr;
    for (const auto& [mode, asked] :
         {std::pair{"r", "re"}, std::pair{"rb+", "reb+"}, std::pair{"r,ccs=UTF-8", "re,ccs=UTF-8"}}) {
        onlyAskedToOpen = true;
        const int result = fopen_s(&file, "/tmp/file", mode);
        onlyAskedToOpen = false;
        EXPECT_EQ(result, 5);
        EXPECT_EQ(askedMode, asked);
    }
}

class DiskSpaceTest : public testing::Test
{
protected:
    void SetUp() override
    {
        struct statvfs space = {};
        space.f_bsize = 4096;
        space.f_frsize = 512;
        space.f_blocks = 10'000'000'000;
        space.f_bfree = 7'000'000;
        space.f_bavail = 5'000'000'000;
        scriptedSpace = space;
    }
    void TearDown() override
    {
        scriptedSpace.reset();
    }
};

TEST_F(DiskSpaceTest, BytesAreThoseOfTheParentFolder)
{
    fs::create_directories("/tmp/parent/folder");
    ASSERT_EQ(symlink("/tmp/parent/folder", "/tmp/link"), 0);
    fs::current_path("/tmp/parent");
    struct Row
    {
        const char* name;
        const char* parent;
    };
    for (const Row& row :
         {Row{"/tmp/parent/folder", "/tmp/parent"}, Row{"/tmp/parent/folder/", "/tmp/parent"},
          Row{"/tmp/link", "/tmp/parent"}, Row{"folder/../../parent", "/tmp"}, Row{nullptr, "/tmp"},
          Row{"/", "/"}, Row{"/tmp", "/"}}) {
        ULARGE_INTEGER available = {};
        ULARGE_INTEGER total = {};
        ULARGE_INTEGER free = {};
        EXPECT_EQ(GetDiskFreeSpaceEx(row.name, &available, &total, &free), TRUE);
        EXPECT_EQ(askedForSpaceOf, row.parent);
        EXPECT_EQ(available.QuadPart, 5'000'000'000u * 512);
        EXPECT_EQ(total.QuadPart, 10'000'000'000u * 512);
        EXPECT_EQ(free.QuadPart, 5'000'000'000u * 4096) << "available blocks by the other block size";
    }
}

TEST_F(DiskSpaceTest, EachOutputInBytesIsOptional)
{
    ULARGE_INTEGER value = {};
    EXPECT_EQ(GetDiskFreeSpaceEx("/tmp", nullptr, nullptr, nullptr), TRUE);
    EXPECT_EQ(GetDiskFreeSpaceEx("/tmp", &value, nullptr, nullptr), TRUE);
    EXPECT_EQ(value.QuadPart, 5'000'000'000u * 512);
    EXPECT_EQ(GetDiskFreeSpaceEx("/tmp", nullptr, &value, nullptr), TRUE);
    EXPECT_EQ(value.QuadPart, 10'000'000'000u * 512);
    EXPECT_EQ(GetDiskFreeSpaceEx("/tmp", nullptr, nullptr, &value), TRUE);
    EXPECT_EQ(value.QuadPart, 5'000'000'000u * 4096);
}

TEST_F(DiskSpaceTest, FailsForAnAbsentFolder)
{
    ULARGE_INTEGER value = {};
    value.QuadPart = 77;
    EXPECT_EQ(GetDiskFreeSpaceEx("/tmp/absent", &value, &value, &value), FALSE);
    EXPECT_EQ(GetDiskFreeSpaceEx("", &value, &value, &value), FALSE);
    EXPECT_EQ(value.QuadPart, 77u);
    isSpaceUnknown = true;
    EXPECT_EQ(GetDiskFreeSpaceEx("/tmp", &value, &value, &value), FALSE);
    EXPECT_EQ(value.QuadPart, 77u);
    isSpaceUnknown = false;
    scriptedSpace.reset();
    DWORD number = 77;
    EXPECT_EQ(GetDiskFreeSpace("/tmp/absent", &number, &number, &number, &number), FALSE);
    EXPECT_EQ(number, 77u);
}

TEST_F(DiskSpaceTest, ClustersAreTruncatedTo32Bits)
{
    struct Row
    {
        unsigned long blockSize;
        DWORD bytesPerSector;
        DWORD freeClusters;
        DWORD clusters;
    };
    const Row rows[] = {
        {4096, 512, 1'000'000, 2'000'000},
        {8, 1, 1'000'000, 2'000'000},
        {12, 1, 1'500'000, 3'000'000}, // 12 / 8 is 1
        {7, 0, 0, 0},
        {0, 0, 0, 0},
    };
    for (const Row& row : rows) {
        scriptedSpace->f_bsize = row.blockSize;
        scriptedSpace->f_bavail = 1'000'000;
        scriptedSpace->f_blocks = 2'000'000;
        DWORD sectors = 77;
        DWORD bytes = 77;
        DWORD freeClusters = 77;
        DWORD clusters = 77;
        EXPECT_EQ(GetDiskFreeSpace("/tmp/folder", &sectors, &bytes, &freeClusters, &clusters), TRUE);
        EXPECT_EQ(askedForSpaceOf, "/tmp/folder") << "the path itself, not its parent";
        EXPECT_EQ(sectors, 8u);
        EXPECT_EQ(bytes, row.bytesPerSector) << row.blockSize;
        EXPECT_EQ(freeClusters, row.freeClusters) << row.blockSize;
        EXPECT_EQ(clusters, row.clusters) << row.blockSize;
    }
    scriptedSpace->f_bsize = 4096;
    scriptedSpace->f_bavail = 0x100000005;
    DWORD freeClusters = 77;
    EXPECT_EQ(GetDiskFreeSpace(nullptr, nullptr, nullptr, &freeClusters, nullptr), TRUE);
    EXPECT_EQ(freeClusters, 5u);
    EXPECT_EQ(askedForSpaceOf, ".");
}

TEST_F(DiskSpaceTest, AcceptsNamesLongerThan256Bytes)
{
    const std::string name = "/tmp/" + std::string(3000, 'n');
    EXPECT_EQ(GetDiskFreeSpace(name.c_str(), nullptr, nullptr, nullptr, nullptr), TRUE);
    EXPECT_EQ(askedForSpaceOf, name);
}

TEST(DiskSpaceOfThisMachineTest, IsPlausible)
{
    ULARGE_INTEGER available = {};
    ULARGE_INTEGER total = {};
    EXPECT_EQ(GetDiskFreeSpaceEx("/tmp/.", &available, &total, nullptr), TRUE);
    EXPECT_GT(total.QuadPart, 0u);
    EXPECT_LE(available.QuadPart, total.QuadPart);
}

} // namespace

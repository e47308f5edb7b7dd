#include "WinFunc.h"

#include "InstallPaths.h"
#include "SystemCalls.h"

#include <algorithm>
#include <new>
#include <optional>
#include <string_view>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr std::string_view pipePrefix = R"(\\.\pipe\)";
constexpr mode_t newFileMode = 0600;

/// A new handle that owns the descriptor. INVALID_HANDLE_VALUE if the descriptor is negative or memory runs
/// out.
HANDLE FileHandle(int fd)
{
    if (fd < 0) {
        return INVALID_HANDLE_VALUE;
    }
    auto* const file = new (std::nothrow) WinFileHandle(fd);
    if (file == nullptr) {
        close(fd);
        errno = ENOMEM;
        return INVALID_HANDLE_VALUE;
    }
    return ToHandle(file);
}

std::optional<int> CreationFlags(DWORD disposition)
{
    switch (disposition) {
    case CREATE_NEW:
        return O_CREAT | O_EXCL;
    case CREATE_ALWAYS: // no O_TRUNC: the end of a longer old text stays after a shorter new one
        return O_CREAT;
    case OPEN_EXISTING:
        return 0;
    default:
        return std::nullopt;
    }
}

/// The flags of open(2), or none for an unsupported combination of access and disposition.
std::optional<int> OpenFlags(DWORD access, DWORD disposition)
{
    const std::optional<int> creation = CreationFlags(disposition);
    if (!creation) {
        return std::nullopt;
    }
    switch (access) {
    case 0:
    case GENERIC_READ: // a new file could not be written
        return disposition == OPEN_EXISTING ? std::optional(O_RDONLY) : std::nullopt;
    case GENERIC_WRITE:
        return O_WRONLY | *creation;
    case GENERIC_READ | GENERIC_WRITE:
        return O_RDWR | *creation;
    default:
        return std::nullopt;
    }
}

HANDLE OpenServicePipe()
{
    const int fd = AboveStandardStreams(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (fd < 0) {
        return INVALID_HANDLE_VALUE;
    }
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    static_assert(sizeof SERVICE_SOCKET <= sizeof address.sun_path);
    std::copy_n(SERVICE_SOCKET, sizeof SERVICE_SOCKET, address.sun_path);

    // An interrupted connect of an AF_UNIX socket leaves it unconnected, so it can be repeated.
    const auto* target = reinterpret_cast<const sockaddr*>(&address);
    if (Uninterrupted([&] { return connect(fd, target, sizeof address); }) == 0) {
        return FileHandle(fd);
    }

    const ErrnoKeeper keeper;
    if (GetLogLevel() > 1) {
        if (keeper.number == ECONNREFUSED) {
            LogWarning("::CreateFileA, failed to connect \"%s\", errno: ECONNREFUSED", SERVICE_SOCKET);
        } else {
            LogWarning("::CreateFileA, failed to connect \"%s\", errno: %d", SERVICE_SOCKET, keeper.number);
        }
    }
    close(fd);
    return INVALID_HANDLE_VALUE;
}

} // namespace

HANDLE CreateFileA(LPCSTR lpFileName, DWORD dwDesiredAccess, DWORD, PSECURITY_ATTRIBUTES,
                   DWORD dwCreateDisposition, DWORD, HANDLE)
{
    if (lpFileName == nullptr || *lpFileName == '\n') {
        errno = EINVAL;
        return INVALID_HANDLE_VALUE;
    }
    if (std::string_view(lpFileName).starts_with(pipePrefix)) {
        return OpenServicePipe();
    }
    const std::optional<int> flags = OpenFlags(dwDesiredAccess, dwCreateDisposition);
    if (!flags) {
        errno = EINVAL;
        return INVALID_HANDLE_VALUE;
    }
    const int fd = Uninterrupted([&] { return open(lpFileName, *flags | O_CLOEXEC, newFileMode); });
    return FileHandle(AboveStandardStreams(fd));
}

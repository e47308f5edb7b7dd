// The object behind the handle of a file or a pipe.
#include "WinFunc.h"

#include "SystemCalls.h"

#include <utility>

#include <sys/socket.h>
#include <unistd.h>

WinFileHandle::WinFileHandle(int descriptor) : fd(descriptor) {}

WinFileHandle::~WinFileHandle()
{
    WinFileHandle::Close();
}

const char* WinFileHandle::name()
{
    return "WinFileHandle";
}

bool WinFileHandle::Close()
{
    // Clear the descriptor even if close fails: the kernel has already released the number, and another file
    // may use it.
    const int descriptor = std::exchange(fd, 0);
    return descriptor == 0 || close(descriptor) == 0;
}

void WinFileHandle::Shutdown()
{
    const ErrnoKeeper keeper;
    shutdown(fd, SHUT_RDWR);
}

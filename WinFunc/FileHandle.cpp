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
    // The number is given up even when close fails: by then the kernel has freed it, and it may be another's.
    const int descriptor = std::exchange(fd, 0);
    return descriptor == 0 || close(descriptor) == 0;
}

void WinFileHandle::Shutdown()
{
    const ErrnoKeeper keeper;
    shutdown(fd, SHUT_RDWR);
}

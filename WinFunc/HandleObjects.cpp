// Default class names of handle objects, and the warning about a handle that is no object.
#include "WinFunc.h"

const char* IWinHandle::name()
{
    return "IWinHandle";
}

const char* WinClosableHandle::name()
{
    return "WinClosableHandle";
}

const char* WinWaitableHandle::name()
{
    return "WinWaitableHandle";
}

void LogNoObject(const char* wrapper, const std::string& caller, HANDLE handle)
{
    if (handle == nullptr) {
        LogWarning("%s called from %s with NULL", wrapper, caller.c_str());
    } else {
        LogWarning("%s called from %s with INVALID_HANDLE_VALUE", wrapper, caller.c_str());
    }
}

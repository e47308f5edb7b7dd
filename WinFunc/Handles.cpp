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

BOOL CloseHandle(HANDLE hObject)
{
    if (!IsObject(hObject)) {
        return FALSE;
    }
    auto* const object = static_cast<IWinHandle*>(hObject);
    bool closed = false;
    try {
        auto* const closable = dynamic_cast<WinClosableHandle*>(object);
        closed = closable != nullptr && closable->Close();
    } catch (...) {
        closed = false;
    }
    delete object;
    return closed ? TRUE : FALSE;
}

void LogNoObject(const char* wrapper, const std::string& caller, HANDLE handle)
{
    if (handle == nullptr) {
        LogWarning("%s called from %s with NULL", wrapper, caller.c_str());
    } else {
        LogWarning("%s called from %s with INVALID_HANDLE_VALUE", wrapper, caller.c_str());
    }
}

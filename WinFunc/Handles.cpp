#include "WinFunc.h"

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

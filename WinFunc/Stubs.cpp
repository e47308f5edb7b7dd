#include "Win_def.h"

#include <cstdlib>

LONG CoCreateGuid(GUID*)
{
    return 0;
}

BOOL VerQueryValue(LPCVOID, LPCTSTR, LPVOID*, PUINT)
{
    return 0;
}

DWORD GetFileVersionInfoSize(LPCTSTR, LPDWORD)
{
    return 0;
}

BOOL GetFileVersionInfo(LPCTSTR, DWORD, DWORD, LPVOID)
{
    return 0;
}

HGLOBAL GlobalAlloc(UINT, size_t dwBytes)
{
    return malloc(dwBytes);
}

HGLOBAL GlobalFree(HGLOBAL hMem)
{
    free(hMem);
    return nullptr;
}

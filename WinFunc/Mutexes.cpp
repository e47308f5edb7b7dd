#include "WinFunc.h"

#include <new>

#include <unistd.h>

WinMutex::WinMutex(bool bInitialOwner)
{
    if (bInitialOwner) {
        mtx.lock();
    }
}

const char* WinMutex::name()
{
    return "WinMutex";
}

bool WinMutex::Close()
{
    return true;
}

DWORD WinMutex::WaitForSingleObject(DWORD dwMilliseconds)
{
    if (dwMilliseconds == INFINITE) {
        mtx.lock();
        return WAIT_OBJECT_0;
    }
    for (DWORD attempt = 0; attempt < dwMilliseconds; ++attempt) {
        if (mtx.try_lock()) {
            return WAIT_OBJECT_0;
        }
        usleep(1000);
    }
    return WAIT_TIMEOUT;
}

HANDLE CreateMutexA(LPSECURITY_ATTRIBUTES, BOOL bInitialOwner, LPCSTR)
{
    return ToHandle(new (std::nothrow) WinMutex(bInitialOwner != FALSE));
}

HANDLE OpenMutexA(DWORD, BOOL, LPCSTR)
{
    return nullptr;
}

void InitializeCriticalSection(LPCRITICAL_SECTION lpCriticalSection)
{
    pthread_mutexattr_t attributes;
    pthread_mutexattr_init(&attributes);
    pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_RECURSIVE);
    pthread_mutex_init(lpCriticalSection, &attributes);
    pthread_mutexattr_destroy(&attributes);
}

void EnterCriticalSection(LPCRITICAL_SECTION lpCriticalSection)
{
    pthread_mutex_lock(lpCriticalSection);
}

BOOL TryEnterCriticalSection(LPCRITICAL_SECTION lpCriticalSection)
{
    return pthread_mutex_trylock(lpCriticalSection) == 0 ? TRUE : FALSE;
}

void LeaveCriticalSection(LPCRITICAL_SECTION lpCriticalSection)
{
    pthread_mutex_unlock(lpCriticalSection);
}

void DeleteCriticalSection(LPCRITICAL_SECTION lpCriticalSection)
{
    pthread_mutex_destroy(lpCriticalSection);
}

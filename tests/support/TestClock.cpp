#include "TestClock.h"

// The linker option --wrap redirects calls of GetTickCount in other objects to this function.
DWORD TestTickCount() asm("__wrap__Z12GetTickCountv");

DWORD TestTickCount()
{
    return testClock;
}

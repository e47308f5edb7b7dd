// Aborts a test that starts a thread although its program is registered as having one thread.
#include <cstdio>
#include <cstdlib>

extern "C" int pthread_create() // replaces that of the C library, for the C++ library and Qt as well
{
    std::fputs("this test starts a thread, but its program has ONE_THREAD in CMakeLists.txt\n", stderr);
    std::abort();
}

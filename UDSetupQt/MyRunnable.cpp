#include "MyRunnable.h"

#include <QThreadPool>

#include <cstdio>
#include <new>
#include <utility>

#ifdef __SANITIZE_THREAD__
#include <sanitizer/tsan_interface.h>
#endif

namespace {

// The pool passes tasks on under locks of its own, which the thread sanitizer does not see in that library.
// So what happens before `passOn` in one thread is declared to happen before `takeOver` of the same place in
// another.
#ifdef __SANITIZE_THREAD__
void passOn(void* place)
{
    __tsan_release(place);
}
void takeOver(void* place)
{
    __tsan_acquire(place);
}
#else
void passOn(void*) {}
void takeOver(void*) {}
#endif

char endOfATask;

} // namespace

MyRunnable::MyRunnable(std::function<void()> function) : functionToRun(std::move(function))
{
    passOn(this);
}

void MyRunnable::run()
{
    takeOver(this);
    try {
        functionToRun();
    } catch (const std::bad_alloc&) {
        // Its row stays as it is until the next poll.
        std::fputs("Out of memory: a task was given up\n", stderr);
    }
    passOn(&endOfATask);
}

bool waitForTasks(int milliseconds)
{
    const bool done = QThreadPool::globalInstance()->waitForDone(milliseconds);
    takeOver(&endOfATask);
    return done;
}

#include "MyRunnable.h"

#include <QThreadPool>

#include <utility>

#ifdef __SANITIZE_THREAD__
#include <sanitizer/tsan_interface.h>
#endif

namespace {

// The pool passes tasks on under locks of its own. The race detector does not see into that library, so it is
// told: what stands before `passOn` in one thread is seen behind `takeOver` of the same place in another.
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
    functionToRun();
    passOn(&endOfATask);
}

bool waitForTasks(int milliseconds)
{
    const bool done = QThreadPool::globalInstance()->waitForDone(milliseconds);
    takeOver(&endOfATask);
    return done;
}

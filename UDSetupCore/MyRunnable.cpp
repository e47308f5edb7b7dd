#include "MyRunnable.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <new>
#include <utility>

namespace {

/// Counts the tasks that exist. The lock also orders a task's run after its creation, and the end of a wait
/// after every run.
struct TaskCount
{
    std::mutex guard;
    std::condition_variable noneLeft;
    int tasks = 0;
};

/// Never destroyed: a hung task may outlive the static objects.
TaskCount& taskCount()
{
    static TaskCount& count = *new TaskCount;
    return count;
}

} // namespace

MyRunnable::MyRunnable(std::function<void()> function) : functionToRun(std::move(function))
{
    const std::lock_guard lock(taskCount().guard);
    ++taskCount().tasks;
}

MyRunnable::~MyRunnable()
{
    functionToRun = nullptr; // destroys what it owns before the wait ends
    const std::lock_guard lock(taskCount().guard);
    if (--taskCount().tasks == 0) {
        taskCount().noneLeft.notify_all();
    }
}

void MyRunnable::run()
{
    {
        const std::lock_guard afterCreation(taskCount().guard); // see TaskCount
    }
    try {
        functionToRun();
    } catch (const std::bad_alloc&) {
        // After a failed status query, the row keeps its contents until the next poll.
        std::fputs("Out of memory: a task was given up\n", stderr);
    }
}

bool waitForTasks(int milliseconds)
{
    TaskCount& count = taskCount();
    std::unique_lock lock(count.guard);
    return count.noneLeft.wait_for(lock, std::chrono::milliseconds(milliseconds),
                                   [&] { return count.tasks == 0; });
}

// The tasks of the thread pool, and the wait for their end.
#pragma once

#include <QRunnable>

#include <functional>

/// A function as a task of the thread pool, which deletes the task after its run.
class MyRunnable : public QRunnable
{
public:
    explicit MyRunnable(std::function<void()> function);
    void run() override;

private:
    std::function<void()> functionToRun;
};

/// Waits until no task of the global pool is left; false when the milliseconds are over before.
bool waitForTasks(int milliseconds);

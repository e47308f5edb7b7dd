// The tasks of the thread pool, and the wait for their end.
#pragma once

#include <QRunnable>

#include <functional>

/// A function as a task of the thread pool, which deletes the task after its run.
class MyRunnable : public QRunnable
{
public:
    explicit MyRunnable(std::function<void()> function);
    ~MyRunnable() override;
    void run() override;

private:
    std::function<void()> functionToRun;
};

/// Waits until every task has been run and deleted; false when that takes longer than so many milliseconds.
/// Any thread.
bool waitForTasks(int milliseconds);

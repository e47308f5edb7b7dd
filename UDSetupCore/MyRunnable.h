// Tasks for the thread pool, and a wait for their end.
#pragma once

#include <QRunnable>

#include <functional>

/// Runs a function on the thread pool, which deletes the task afterwards.
class MyRunnable : public QRunnable
{
public:
    explicit MyRunnable(std::function<void()> function);
    ~MyRunnable() override;
    void run() override;

private:
    std::function<void()> functionToRun;
};

/// Waits until every task has run and been deleted. Returns false if that takes longer than `milliseconds`.
/// Any thread.
bool waitForTasks(int milliseconds);

// A test program ends as the program does: static objects are destroyed after the last task of the thread
// pool.
#include "MyRunnable.h"

#include <QCoreApplication>

namespace {

constexpr int patience = 60000; // milliseconds

void waitAtTheEnd()
{
    qAddPostRoutine([] { waitForTasks(patience); });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(waitAtTheEnd)

// Makes a test program end as the product does: static objects are destroyed only after the last task of the
// thread pool has ended.
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

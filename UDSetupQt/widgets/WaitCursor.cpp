#include "WaitCursor.h"

#include <QAbstractEventDispatcher>
#include <QCursor>
#include <QGuiApplication>

WaitCursor::WaitCursor()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    // X11 gets the cursor at once. Wayland requests are sent before the event loop blocks, and the thread is
    // about to block without it. Serving the event loop instead would run timers and deliver input.
    emit QAbstractEventDispatcher::instance() -> aboutToBlock();
}

WaitCursor::~WaitCursor()
{
    QGuiApplication::restoreOverrideCursor();
}

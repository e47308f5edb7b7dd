#include "WaitCursor.h"

#include <QAbstractEventDispatcher>
#include <QCursor>
#include <QGuiApplication>

WaitCursor::WaitCursor()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    // X11 sets the cursor at once. Wayland requests are sent when the event loop is about to block, but this
    // thread blocks outside it. Processing events instead would run timers and deliver input.
    emit QAbstractEventDispatcher::instance() -> aboutToBlock();
}

WaitCursor::~WaitCursor()
{
    QGuiApplication::restoreOverrideCursor();
}

// Helpers that visit the pages of a window, find its visible widgets and choose entries of its menus.
#pragma once

#include <QCoreApplication>
#include <QMenu>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <functional>

/// Shows each page in turn and calls `look` on it, then restores the current page. A window without tabs has
/// one page.
inline void forEachPage(QWidget& window, const std::function<void()>& look)
{
    auto tabs = window.findChild<QTabWidget*>();
    if (!tabs) {
        look();
        return;
    }
    const int before = tabs->currentIndex();
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        QCoreApplication::processEvents();
        look();
    }
    tabs->setCurrentIndex(before);
}

/// Returns the visible widgets of a class in the window, without the internal parts of other widgets.
template <class Widget>
QList<Widget*> shown(const QWidget& window)
{
    QList<Widget*> widgets;
    for (Widget* widget : window.findChildren<Widget*>()) {
        const bool part =
            widget->objectName().startsWith("qt_") && widget->objectName() != "qt_tabwidget_tabbar";
        if (widget->isVisible() && widget->window() == &window && !part) {
            widgets << widget;
        }
    }
    return widgets;
}

/// Returns the position of the widget, or of a part of it, in the window.
inline QRect placeOf(const QWidget* widget, const QRect& part)
{
    return {widget->mapTo(widget->window(), part.topLeft()), part.size()};
}
inline QRect placeOf(const QWidget* widget)
{
    return placeOf(widget, widget->rect());
}

/// Returns the name of the widget for test failure messages.
inline QString nameOf(const QWidget* widget)
{
    return widget->objectName().isEmpty() ? QString(widget->metaObject()->className()) : widget->objectName();
}

/// Clicks an entry of an open menu. The mouse must have been moved to another place before the menu was
/// opened: a click counts only if the mouse has moved since.
inline void clickEntry(QMenu* menu, QAction* entry)
{
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(entry).center());
}

/// Opens a menu of the window and clicks an entry.
inline void chooseEntry(QWidget& window, QMenu* menu, QAction* entry)
{
    QTest::mouseMove(&window);
    QTimer::singleShot(0, menu, [menu, entry] { clickEntry(menu, entry); });
    menu->exec(window.mapToGlobal(QPoint(10, 10)));
}

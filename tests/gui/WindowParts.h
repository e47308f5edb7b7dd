// What of a window a user has before them: its pages one after the other, and the widgets on the one that
// shows.
#pragma once

#include <QCoreApplication>
#include <QTabWidget>
#include <QWidget>

#include <functional>

/// Shows one page after the other and calls `look` on each; the page from before shows again at the end. A
/// window without tabs has one page.
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

/// The widgets of a class that the window shows, without those that another widget is built of.
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

/// Where the widget stands in the window.
inline QRect placeOf(const QWidget* widget, const QRect& part)
{
    return {widget->mapTo(widget->window(), part.topLeft()), part.size()};
}
inline QRect placeOf(const QWidget* widget)
{
    return placeOf(widget, widget->rect());
}

/// As a failed test names it.
inline QString nameOf(const QWidget* widget)
{
    return widget->objectName().isEmpty() ? QString(widget->metaObject()->className()) : widget->objectName();
}

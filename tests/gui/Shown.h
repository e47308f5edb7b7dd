// Waits until a window of a given class is visible, then acts on it.
#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <utility>

/// Returns the visible window of that class, or null. Not for QDialog, which is also the base class of
/// message boxes and progress dialogs.
template <class Window>
Window* shownWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto window = dynamic_cast<Window*>(widget);
        if (window && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

/// Returns the number of visible windows of that class.
template <class Window>
int countShown()
{
    int count = 0;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        count += dynamic_cast<Window*>(widget) && widget->isVisible() ? 1 : 0;
    }
    return count;
}

/// Calls `act` once, for the first window of that class that is visible during the lifetime of this object.
template <class Window>
class WhenShown
{
public:
    explicit WhenShown(std::function<void(Window&)> act) : m_act(std::move(act))
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            if (Window* window = shownWindow<Window>()) {
                m_timer.stop();
                m_seen = true;
                m_act(*window);
            }
        });
        m_timer.start(10);
    }

    bool seen() const
    {
        return m_seen;
    }

private:
    std::function<void(Window&)> m_act;
    bool m_seen = false;
    QTimer m_timer;
};

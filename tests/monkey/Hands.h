// The hands of the monkey: they use the dialog that is on top, then close every dialog that is left.
#pragma once

#include "ManyPublishers.h"
#include "Plan.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <cstddef>
#include <functional>
#include <vector>

/// During its lifetime, performs one step every few milliseconds. A step that needs a dialog waits for one.
/// After the last step each dialog is closed: with Escape, then by its frame. The program ends with a message
/// if a dialog stays open, except for the busy indicator, which closes by itself.
class Hands : public QObject
{
public:
    Hands(std::vector<Step> steps, ManyPublishers& publishers);

private:
    void lookLater();
    void look();
    void perform(const Step& step, QWidget& dialog);
    bool changePublishers(const Step& step);
    void close(QWidget& dialog);

    std::vector<Step> m_steps;
    size_t m_next = 0;
    int m_awaited = 0; ///< the number of requests that the current step waits for; 0: none
    int m_patience = 0;
    QPointer<QWidget> m_closing;
    int m_attempts = 0; ///< to close it
    ManyPublishers& m_publishers;
};

// Answers message boxes as a user does: waits until the box is on the screen, reads it, presses a button.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <functional>
#include <vector>

/// What a box said.
struct SeenBox
{
    QString title;
    QString text;
    QMessageBox::Icon icon;
    QMessageBox::StandardButtons buttons;
    QPushButton* defaultButton;
};

/// Answers the boxes that come up while it lives, each with the next of its answers.
class Boxes : public QObject
{
public:
    explicit Boxes(std::vector<QMessageBox::StandardButton> answers) : m_answers(std::move(answers))
    {
        connect(&m_timer, &QTimer::timeout, this, &Boxes::look);
        m_timer.start(10);
    }

    /// Called when the box is up, before it is answered.
    std::function<void(QMessageBox&)> onBox = [](QMessageBox&) {};

    const std::vector<SeenBox>& seen() const
    {
        return m_seen;
    }
    bool allAnswered() const
    {
        return m_seen.size() == m_answers.size();
    }

private:
    void look()
    {
        auto box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible()) {
            return;
        }
        m_timer.stop();
        m_seen.push_back(
            {box->windowTitle(), box->text(), box->icon(), box->standardButtons(), box->defaultButton()});
        onBox(*box);
        if (!box->isVisible()) {
            m_timer.start(10); // answered already
            return;
        }
        QAbstractButton* button =
            m_seen.size() <= m_answers.size() ? box->button(m_answers[m_seen.size() - 1]) : nullptr;
        if (button) {
            QTest::mouseClick(button, Qt::LeftButton);
        } else {
            box->reject(); // not expected: the test sees it in what was seen
        }
        m_timer.start(10);
    }

    std::vector<QMessageBox::StandardButton> m_answers;
    std::vector<SeenBox> m_seen;
    QTimer m_timer;
};

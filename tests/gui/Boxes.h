// Answers message boxes as a user does: waits until a box is visible, reads it and presses a button.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <functional>
#include <vector>

/// The contents of a message box.
struct SeenBox
{
    QString title;
    QString text;
    QMessageBox::Icon icon;
    QMessageBox::StandardButtons buttons;
    QPushButton* defaultButton;
};

/// Answers the boxes that appear during its lifetime, each with the next of its answers. A box that has
/// no answer, or not the answer's button, is rejected.
class Boxes : public QObject
{
public:
    explicit Boxes(std::vector<QMessageBox::StandardButton> answers) : m_answers(std::move(answers))
    {
        connect(&m_timer, &QTimer::timeout, this, &Boxes::look);
        m_timer.start(10);
    }

    /// Called with each visible box before it is answered. It may close the box.
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
            m_timer.start(10); // onBox closed it
            return;
        }
        QAbstractButton* button =
            m_seen.size() <= m_answers.size() ? box->button(m_answers[m_seen.size() - 1]) : nullptr;
        if (button) {
            QTest::mouseClick(button, Qt::LeftButton);
        } else {
            box->reject(); // unexpected: the test finds it in seen()
        }
        m_timer.start(10);
    }

    std::vector<QMessageBox::StandardButton> m_answers;
    std::vector<SeenBox> m_seen;
    QTimer m_timer;
};

// Goes through modal dialogs as a user does: waits until the next one is visible, then answers it.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QStringList>
#include <QTest>
#include <QTimer>

#include <functional>
#include <vector>

/// Answers the dialogs that appear during its lifetime, each with the next of its answers. A dialog that is
/// unexpected, or that its answer left open, is rejected; seen() marks it.
class DialogWalk : public QObject
{
public:
    using Answer = std::function<void(QDialog&)>;

    explicit DialogWalk(std::vector<Answer> answers) : m_answers(std::move(answers))
    {
        connect(&m_timer, &QTimer::timeout, this, &DialogWalk::look);
        m_timer.start(5);
    }

    /// The object names of the dialogs so far. " (left open)" follows the name of a rejected one.
    const QStringList& seen() const
    {
        return m_seen;
    }

private:
    void look()
    {
        auto dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible()) {
            return;
        }
        m_timer.stop();
        const size_t number = m_count++;
        m_seen.append(dialog->objectName());
        if (number < m_answers.size()) {
            m_answers[number](*dialog);
        }
        if (dialog->isVisible()) {
            m_seen.last() += QStringLiteral(" (left open)");
            dialog->reject();
        }
        m_timer.start(5);
    }

    std::vector<Answer> m_answers;
    size_t m_count = 0;
    QStringList m_seen;
    QTimer m_timer;
};

Q_DECLARE_METATYPE(DialogWalk::Answer)

/// Clicks the button with this object name.
inline DialogWalk::Answer click(const char* button)
{
    return [button](QDialog& dialog) {
        auto found = dialog.findChild<QPushButton*>(button);
        QVERIFY(found != nullptr);
        QTest::mouseClick(found, Qt::LeftButton);
    };
}

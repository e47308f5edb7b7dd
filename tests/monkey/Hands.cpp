#include "Hands.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QProgressDialog>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int pace = 10;            // milliseconds between two steps
constexpr int mostLooks = 50;       // while waiting for requests
constexpr int mostAttempts = 1000;  // to close a dialog; it may block meanwhile
constexpr int attemptsPerKind = 10; // before the next way to close is tried
constexpr unsigned mostRequests = 20;

/// The visible, enabled widgets of a class in the dialog, without those of other windows.
template <class Widget>
QList<Widget*> usable(const QWidget& dialog)
{
    QList<Widget*> widgets;
    for (Widget* widget : dialog.findChildren<Widget*>()) {
        if (widget->isVisible() && widget->isEnabled() && widget->window() == &dialog) {
            widgets << widget;
        }
    }
    return widgets;
}

template <class Widget>
Widget* pick(const QWidget& dialog, unsigned number)
{
    const QList<Widget*> widgets = usable<Widget>(dialog);
    return widgets.isEmpty() ? nullptr : widgets.at(static_cast<int>(number) % widgets.size());
}

QString textFor(const QLineEdit& field, unsigned number)
{
    if (field.objectName() == "textHostName") {
        return number % 5 == 0 ? QStringLiteral("127.0.0.99")
                               : QString::fromStdString(ManyPublishers::host(number));
    }
    const QStringList texts{"",
                            "Monkey",
                            QString("Monkey %1").arg(number),
                            QString::fromUtf8("B\u00FCro 3"),
                            "a\\b",
                            "/tmp/none",
                            QString(300, 'x'),
                            "l3"};
    return texts.at(static_cast<int>(number) % texts.size());
}

/// The archive is saved, and the logs are collected for ten seconds, in one of fifty cases.
void useFileDialog(QFileDialog& dialog, unsigned number)
{
    if (dialog.acceptMode() == QFileDialog::AcceptSave && number % 50 == 0) {
        dialog.selectFile("/tmp/monkey.tgz");
        QTest::keyClick(&dialog, Qt::Key_Enter);
    } else if (dialog.acceptMode() == QFileDialog::AcceptOpen && number % 2 == 0) {
        QTest::keyClick(&dialog, Qt::Key_Enter);
    } else {
        QTest::keyClick(&dialog, Qt::Key_Escape);
    }
}

} // namespace

Hands::Hands(std::vector<Step> steps, ManyPublishers& publishers)
    : m_steps(std::move(steps)), m_publishers(publishers)
{
    lookLater();
}

/// A new timer each time, because a step may run an event loop, in which the timer that performs the step
/// does not fire.
void Hands::lookLater()
{
    QTimer::singleShot(pace, this, &Hands::look);
}

void Hands::look()
{
    lookLater();
    if (m_awaited > m_publishers.requests() && m_patience-- > 0) {
        return;
    }
    m_awaited = 0;
    if (m_next < m_steps.size() && changePublishers(m_steps[m_next])) {
        ++m_next;
        return;
    }
    QWidget* top = QApplication::activePopupWidget();
    top = top ? top : QApplication::activeModalWidget();
    if (!top || !top->isVisible() || qobject_cast<QProgressDialog*>(top)) {
        return;
    }
    if (m_next < m_steps.size()) {
        const Step step = m_steps[m_next++]; // first: the step may run an event loop
        perform(step, *top);
    } else {
        close(*top);
    }
}

/// Returns false if the step uses the dialog.
bool Hands::changePublishers(const Step& step)
{
    const unsigned publisher = step.number % publisherCount;
    switch (step.kind) {
    case StepKind::comes:
        m_publishers.comes(publisher);
        return true;
    case StepKind::goes:
        ManyPublishers::goes(publisher);
        return true;
    case StepKind::device:
        m_publishers.device(publisher, step.number);
        return true;
    case StepKind::requests:
        m_awaited = m_publishers.requests() + static_cast<int>(step.number % mostRequests) + 1;
        m_patience = mostLooks;
        return true;
    default:
        return false;
    }
}

void Hands::perform(const Step& step, QWidget& dialog)
{
    if (auto files = qobject_cast<QFileDialog*>(&dialog)) {
        useFileDialog(*files, step.number);
        return;
    }
    switch (step.kind) {
    case StepKind::type:
        if (auto field = pick<QLineEdit>(dialog, step.number)) {
            field->selectAll();
            field->insert(textFor(*field, step.number / 4)); // QTest::keyClicks types ASCII only
        }
        break;
    case StepKind::choose:
        if (auto box = pick<QComboBox>(dialog, step.number)) {
            QTest::keyClick(box, step.number % 8 < 4 ? Qt::Key_Down : Qt::Key_Up);
        }
        break;
    case StepKind::page:
        if (auto tabs = pick<QTabWidget>(dialog, step.number)) {
            tabs->setCurrentIndex(static_cast<int>(step.number) % tabs->count());
        }
        break;
    case StepKind::click:
        if (auto button = pick<QAbstractButton>(dialog, step.number)) {
            QTest::mouseClick(button, Qt::LeftButton);
        }
        break;
    case StepKind::enter:
        QTest::keyClick(&dialog, Qt::Key_Enter);
        break;
    case StepKind::escape:
        QTest::keyClick(&dialog, Qt::Key_Escape);
        break;
    case StepKind::frame:
        dialog.close();
        break;
    default:
        break;
    }
}

void Hands::close(QWidget& dialog)
{
    if (m_closing != &dialog) {
        m_closing = &dialog;
        m_attempts = 0;
    }
    const int way = m_attempts++ / attemptsPerKind;
    if (m_attempts > mostAttempts) {
        std::printf("monkey: FAILED: %s \"%s\" cannot be closed\n", dialog.metaObject()->className(),
                    qPrintable(dialog.windowTitle()));
        std::fflush(stdout);
        std::_Exit(1); // the event loop of the dialog never returns
    }
    if (way == 0) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
    } else {
        dialog.close();
    }
}

// A plugin that Qt loads into the unchanged installed program: it prints the contents of the list window on
// standard output when the list has a publisher, removes that publisher on request, and ends the program.
//
//     QT_PLUGIN_PATH=... QT_QPA_GENERIC_PLUGINS=WindowDriver:texts UDSetup
//     QT_PLUGIN_PATH=... QT_QPA_GENERIC_PLUGINS=WindowDriver:remove UDSetup
#include <QAction>
#include <QApplication>
#include <QGenericPlugin>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTimerEvent>
#include <QTreeWidget>

#include <cstdio>

namespace {

constexpr int LOOK_EVERY_MS = 50;

void say(const char* what, const QString& text)
{
    std::printf("%s: %s\n", what, text.toUtf8().constData());
    std::fflush(stdout);
}

/// The list of the visible main window, or null if there is none yet.
QTreeWidget* shownList()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && qobject_cast<QMainWindow*>(window) != nullptr) {
            return window->findChild<QTreeWidget*>();
        }
    }
    return nullptr;
}

void sayTexts(const QTreeWidget& list)
{
    for (const QAction* action : list.window()->findChildren<QAction*>()) {
        if (!action->text().isEmpty()) {
            say(action->isEnabled() ? "action" : "disabled action", action->text());
        }
    }
    for (int row = 0; row < list.topLevelItemCount(); ++row) {
        say("row", list.topLevelItem(row)->text(0));
    }
}

class WindowDriver : public QObject
{
public:
    WindowDriver(bool removes, QObject* parent) : QObject(parent), m_removes(removes)
    {
        startTimer(LOOK_EVERY_MS);
    }

private:
    void timerEvent(QTimerEvent* event) override
    {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            answer(*box);
            return;
        }
        QTreeWidget* list = shownList();
        if (list == nullptr || (!m_asked && list->topLevelItemCount() == 0)) {
            return;
        }
        if (m_removes && !m_asked) {
            m_asked = true;
            list->topLevelItem(0)->setSelected(true);
            // Queued, because the message box is modal and this timer answers it.
            auto* remove = list->window()->findChild<QAction*>("deletePublisher");
            QMetaObject::invokeMethod(remove, "trigger", Qt::QueuedConnection);
            return;
        }
        if (!m_removes || m_answered) {
            sayTexts(*list);
            killTimer(event->timerId());
            QCoreApplication::quit();
        }
    }

    void answer(QMessageBox& box)
    {
        say("box", box.text());
        auto* yes = box.button(QMessageBox::Yes);
        auto* button = yes != nullptr ? yes : box.button(QMessageBox::Ok);
        say("button", button->text());
        m_answered = true;
        button->click();
    }

    const bool m_removes;
    bool m_asked = false;
    bool m_answered = false;
};

class WindowDriverPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "WindowDriver.json")

public:
    QObject* create(const QString& /*key*/, const QString& order) override
    {
        return new WindowDriver(order == "remove", nullptr);
    }
};

} // namespace

#include "WindowDriver.moc"

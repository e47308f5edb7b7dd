// Drives the real window with random actions while forty publishers come and go, and checks the window after
// each action. Prints the seed and the actions; the same seed repeats them.
#include <QTest> // before the macro snprintf of Win_def.h, because the header of Qt 6.8 calls std::snprintf

#include "Hands.h"
#include "HangLimit.h"
#include "ManyPublishers.h"
#include "MyRunnable.h"
#include "NW_Com_Lib.h"
#include "Plan.h"
#include "PubSetup.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QTimer>

#include <cstdio>
#include <memory>
#include <set>

namespace {

constexpr int pollInterval = 100;       // milliseconds instead of the window's five seconds
constexpr int patience = 60000;         // milliseconds: bounds a hang, not a speed
constexpr int requestTime = 1000;       // milliseconds: the longest wait for requests
constexpr unsigned longestAdvance = 60; // simulated seconds

class Monkey
{
public:
    Monkey()
    {
        open();
    }

    void perform(const Action& action);
    /// Returns what is wrong; empty if nothing is.
    QString fault();

private:
    void open();
    QTreeWidgetItem* row(unsigned publisher);
    void click(QTreeWidgetItem* row, bool twice, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void select(unsigned publisher, unsigned number);
    void sort(unsigned column);
    void openProperties(unsigned publisher, unsigned number);
    void remove(unsigned publisher, unsigned number);
    void performInWindow(const Action& action);
    QString faultOfRows();

    ManyPublishers m_publishers;
    std::unique_ptr<PubSetup> m_window;
    bool m_allClosed = true; ///< the dialogs and menus of the last action
};

void Monkey::open()
{
    m_window = std::make_unique<PubSetup>(nullptr);
    m_window->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly).at(0)->setInterval(pollInterval);
    m_window->show();
    m_window->activateWindow();
}

QTreeWidgetItem* Monkey::row(unsigned publisher)
{
    return m_window->findItemByPublisherRegistID(QString::fromStdString(publisherID(publisher)));
}

void Monkey::click(QTreeWidgetItem* row, bool twice, Qt::KeyboardModifiers modifiers)
{
    QTreeWidget* tree = m_window->treePublisherList;
    tree->scrollToItem(row);
    const QPoint place = tree->visualItemRect(row).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, modifiers, place);
    if (twice) {
        QTest::mouseDClick(tree->viewport(), Qt::LeftButton, modifiers, place);
    }
}

void Monkey::select(unsigned publisher, unsigned number)
{
    switch (number % 4) {
    case 0:
        m_window->treePublisherList->clearSelection();
        break;
    case 1:
        QTest::keyClick(m_window->treePublisherList, Qt::Key_A, Qt::ControlModifier);
        break;
    default:
        if (QTreeWidgetItem* chosen = row(publisher)) {
            click(chosen, false, number % 4 == 2 ? Qt::ControlModifier : Qt::NoModifier);
        }
    }
}

void Monkey::sort(unsigned column)
{
    QHeaderView* header = m_window->treePublisherList->header();
    const int section = static_cast<int>(column) % header->count();
    const QPoint place(header->sectionViewportPosition(section) + 8, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

void Monkey::openProperties(unsigned publisher, unsigned number)
{
    QTreeWidgetItem* chosen = row(publisher);
    if (!chosen) {
        return;
    }
    if (number % 3 == 0) {
        click(chosen, true);
        return;
    }
    m_window->treePublisherList->setCurrentItem(chosen);
    if (number % 3 == 1) {
        m_window->showPublisherProperty->trigger();
    } else {
        QTest::mouseClick(m_window->toolBar->widgetForAction(m_window->showPublisherProperty),
                          Qt::LeftButton);
    }
}

void Monkey::remove(unsigned publisher, unsigned number)
{
    m_window->treePublisherList->clearSelection();
    for (unsigned i = 0; i <= number % 3; ++i) {
        if (QTreeWidgetItem* chosen = row((publisher + i) % publisherCount)) {
            chosen->setSelected(true);
        }
    }
    QTest::keyClick(m_window->treePublisherList, Qt::Key_Delete);
    m_window->deletePublisher->trigger();
}

void Monkey::perform(const Action& action)
{
    switch (action.kind) {
    case ActionKind::comes:
        m_publishers.comes(action.publisher);
        break;
    case ActionKind::goes:
        ManyPublishers::goes(action.publisher);
        break;
    case ActionKind::strangers:
        ManyPublishers::strangersGo();
        break;
    case ActionKind::device:
        m_publishers.device(action.publisher, action.number);
        break;
    case ActionKind::fault:
        m_publishers.fault(action.publisher, action.number);
        break;
    case ActionKind::time:
        m_publishers.advance(action.number % longestAdvance);
        break;
    case ActionKind::requests:
        m_publishers.serveUntil(m_publishers.requests() + static_cast<int>(action.number), requestTime);
        break;
    default:
        performInWindow(action);
    }
}

void Monkey::performInWindow(const Action& action)
{
    const Hands hands(action.steps, m_publishers);
    switch (action.kind) {
    case ActionKind::select:
        select(action.publisher, action.number);
        break;
    case ActionKind::sort:
        sort(action.number);
        break;
    case ActionKind::size:
        m_window->resize(300 + static_cast<int>(action.number), 100 + static_cast<int>(action.number % 600));
        break;
    case ActionKind::poll:
        m_window->fetchStatusAsync();
        break;
    case ActionKind::reopen:
        m_window->close();
        m_window.reset();
        open();
        break;
    case ActionKind::properties:
        openProperties(action.publisher, action.number);
        break;
    case ActionKind::add:
        m_window->addPublisher->trigger();
        break;
    case ActionKind::remove:
        remove(action.publisher, action.number);
        break;
    case ActionKind::settings:
        m_window->showSetting->trigger();
        break;
    case ActionKind::about:
        m_window->showAbout->trigger();
        break;
    case ActionKind::logs:
        m_window->collectAndSaveLogs->trigger();
        break;
    default:
        break;
    }
    const auto noneIsOpen = [] {
        return !QApplication::activeModalWidget() && !QApplication::activePopupWidget();
    };
    m_allClosed = QTest::qWaitFor(noneIsOpen, patience);
}

QString Monkey::fault()
{
    if (!m_allClosed) {
        return "a dialog or menu stays open";
    }
    bool responds = false;
    QTimer::singleShot(0, m_window.get(), [&responds] { responds = true; });
    if (!QTest::qWaitFor([&responds] { return responds; }, patience)) {
        return "the window does not respond";
    }
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window != m_window.get()) {
            return QString("a %1 is still visible").arg(window->metaObject()->className());
        }
    }
    if (QApplication::overrideCursor()) {
        return "the wait cursor is still shown";
    }
    // A second chance, because a query may write the setting file of a removed publisher at this moment.
    QString rows;
    for (int i = 0; i < 2; ++i) {
        m_window->updateList();
        rows = faultOfRows();
        if (rows.isEmpty()) {
            break;
        }
    }
    return rows;
}

QString Monkey::faultOfRows()
{
    const QTreeWidget* tree = m_window->treePublisherList;
    const std::set<QString> states{"Ready", "Error", "Not connected", "Administrator not registered",
                                   "Unsupported version"};
    std::set<QString> keys;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = tree->topLevelItem(i);
        const QString key = item->data(0, Qt::UserRole).toString();
        if (!keys.insert(key).second) {
            return "two rows of " + key;
        }
        if (!states.contains(item->text(3))) {
            return QString("%1 has the status \"%2\"").arg(key, item->text(3));
        }
    }
    const std::set<QString> registered = ManyPublishers::registered();
    if (keys != registered) {
        return QString("%1 rows for %2 registered publishers, or other rows")
            .arg(keys.size())
            .arg(registered.size());
    }
    const auto selected = tree->selectedItems().size();
    if (m_window->showPublisherProperty->isEnabled() != (selected == 1) ||
        m_window->deletePublisher->isEnabled() != (selected > 0)) {
        return QString("wrong actions for %1 selected rows").arg(selected);
    }
    return {};
}

/// Returns false after a fault. Ends after that many actions, or that many seconds if this number is not
/// zero.
bool play(uint64_t seed, int actions, int seconds)
{
    Plan plan(seed);
    Monkey monkey;
    QElapsedTimer time;
    time.start();
    int done = 0;
    while (seconds > 0 ? time.elapsed() < seconds * 1000 : done < actions) {
        const Action action = plan.next();
        std::printf("monkey: %d %s\n", done, textOf(action).c_str());
        std::fflush(stdout);
        limitHang();
        monkey.perform(action);
        const QString fault = monkey.fault();
        if (!fault.isEmpty()) {
            std::printf("monkey: FAILED: %s, after action %d of seed %llu\n", qPrintable(fault), done,
                        static_cast<unsigned long long>(seed));
            return false;
        }
        ++done;
    }
    std::printf("monkey: %d actions of seed %llu in %.1f s, no fault\n", done,
                static_cast<unsigned long long>(seed), static_cast<double>(time.elapsed()) / 1000);
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    SetTextLocale(); // as the program does

    QCommandLineParser options;
    options.addHelpOption();
    options.addOptions({{"seed", "The seed.", "number", "1"},
                        {"actions", "The number of actions.", "number", "60"},
                        {"seconds", "A duration instead of a number of actions.", "number", "0"},
                        {"list", "Only prints the actions."}});
    options.process(app);
    const quint64 seed = options.value("seed").toULongLong();
    const int actions = options.value("actions").toInt();
    std::printf("monkey: seed %llu\n", static_cast<unsigned long long>(seed));
    if (options.isSet("list")) {
        Plan plan(seed);
        for (int i = 0; i < actions; ++i) {
            std::printf("monkey: %d %s\n", i, textOf(plan.next()).c_str());
        }
        return 0;
    }
    const bool good = play(seed, actions, options.value("seconds").toInt());
    return waitForTasks(patience) && good ? 0 : 1;
}

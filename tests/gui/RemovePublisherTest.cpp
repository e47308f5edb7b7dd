// Tests removing publishers through the Delete key, the menus and the tool bar, and the message boxes.
#include "Boxes.h"
#include "Installation.h"
#include "LocalRoom.h"
#include "MyRunnable.h"
#include "OrdinaryRights.h"
#include "PubSetup.h"
#include "ScriptedService.h"
#include "WindowParts.h"

#include <QContextMenuEvent>
#include <QTest>

#include <optional>

#include <sys/stat.h>

class RemovePublisherTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void asksOnceForAllRows();
    void noKeepsEverything();
    void escapeKeepsEverything();
    void delKeyRemoves();
    void delKeyWithoutSelectionDoesNothing();
    void menuAndToolBarRemove();
    void contextMenuRemoves();
    void runningJobStopsTheLoop();
    void everyUnfinishedJobStopsTheRemoval_data();
    void everyUnfinishedJobStopsTheRemoval();
    void unavailableJobListDoesNotPreventRemoval();
    void removedWithoutService();
    void unreadablePublisherLosesOnlyItsRow();
    void deviceKeyIsRemovedWithLastPublisherOfAbsentDevice();
    void undeletableFileIsReported(); // must be last: it drops privileges

private:
    void open();
    QStringList names() const;
    void select(const QStringList& names);
    static bool registered(const char* id);

    Installation m_installation;
    std::optional<LocalRoom> m_service;
    std::unique_ptr<PubSetup> m_window;
};

void RemovePublisherTest::init()
{
    m_installation = Installation();
    m_service.emplace(std::vector<std::string>{"a", "b", "c"});
    m_installation.addLocal("a", "A");
    m_installation.addLocal("b", "B");
    m_installation.addLocal("c", "C");
}

void RemovePublisherTest::cleanup()
{
    m_window.reset();
    m_service.reset();
    QVERIFY(waitForTasks(10000));
}

void RemovePublisherTest::open()
{
    m_window = std::make_unique<PubSetup>(nullptr);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QCOMPARE(names(), (QStringList{"A", "B", "C"}));
}

QStringList RemovePublisherTest::names() const
{
    QStringList texts;
    for (int i = 0; i < m_window->treePublisherList->topLevelItemCount(); ++i) {
        texts << m_window->treePublisherList->topLevelItem(i)->text(0);
    }
    return texts;
}

void RemovePublisherTest::select(const QStringList& names)
{
    m_window->treePublisherList->clearSelection();
    for (const QString& name : names) {
        m_window->treePublisherList->findItems(name, Qt::MatchExactly, 0).at(0)->setSelected(true);
    }
}

bool RemovePublisherTest::registered(const char* id)
{
    return std::filesystem::exists(Installation::settingFile(id));
}

void RemovePublisherTest::asksOnceForAllRows()
{
    open();
    select({"A", "C"});
    Boxes boxes({QMessageBox::Yes});
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    const SeenBox box = boxes.seen()[0];
    QCOMPARE(box.title, "ARVEN Ulmar Disc Setup");
    QCOMPARE(box.text, "Do you want to delete it?");
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No));
    QCOMPARE(box.defaultButton, nullptr);
    QCOMPARE(names(), QStringList{"B"});
    QVERIFY(!registered("a") && registered("b") && !registered("c"));
    QVERIFY2(!m_window->deletePublisher->isEnabled(), "Remove is enabled without a selection");
}

void RemovePublisherTest::noKeepsEverything()
{
    open();
    select({"A"});
    Boxes boxes({QMessageBox::No});
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    QCOMPARE(names(), (QStringList{"A", "B", "C"}));
    QVERIFY(registered("a"));
}

void RemovePublisherTest::escapeKeepsEverything()
{
    open();
    select({"A"});
    Boxes boxes({QMessageBox::Yes});
    boxes.onBox = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); };
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    QCOMPARE(names(), (QStringList{"A", "B", "C"}));
}

void RemovePublisherTest::delKeyRemoves()
{
    open();
    select({"B"});
    Boxes boxes({QMessageBox::Yes});
    QTest::keyClick(m_window->treePublisherList, Qt::Key_Delete);
    QTRY_VERIFY(boxes.allAnswered());
    QTRY_COMPARE(names(), (QStringList{"A", "C"}));
}

void RemovePublisherTest::delKeyWithoutSelectionDoesNothing()
{
    open();
    select({});
    Boxes boxes({});
    QTest::keyClick(m_window->treePublisherList, Qt::Key_Delete);
    QCoreApplication::processEvents();
    QVERIFY(boxes.allAnswered());
    QCOMPARE(names(), (QStringList{"A", "B", "C"}));
}

void RemovePublisherTest::menuAndToolBarRemove()
{
    open();
    Boxes boxes({QMessageBox::Yes, QMessageBox::Yes});
    select({"A"});
    QTest::mouseClick(m_window->toolBar->widgetForAction(m_window->deletePublisher), Qt::LeftButton);
    QCOMPARE(names(), (QStringList{"B", "C"}));

    select({"C"});
    chooseEntry(*m_window, m_window->editMenu, m_window->deletePublisher);
    QTRY_COMPARE(names(), QStringList{"B"});
    QVERIFY(boxes.allAnswered());
}

void RemovePublisherTest::contextMenuRemoves()
{
    open();
    QTreeWidget* tree = m_window->treePublisherList;
    const QPoint place = tree->visualItemRect(tree->topLevelItem(1)).center();
    QTest::mouseMove(tree->viewport(), place);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    Boxes boxes({QMessageBox::Yes});
    QStringList entries;
    QTimer::singleShot(100, this, [this, &entries] {
        auto menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu) {
            return;
        }
        for (const QAction* action : menu->actions()) {
            entries << action->text();
        }
        clickEntry(menu, m_window->deletePublisher);
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, tree->viewport()->mapToGlobal(place));
    QApplication::sendEvent(tree->viewport(), &event);
    QTRY_COMPARE(names(), (QStringList{"A", "C"}));
    QCOMPARE(entries, (QStringList{"&Remove...", "&Properties..."}));
    QVERIFY(boxes.allAnswered());
}

void RemovePublisherTest::runningJobStopsTheLoop()
{
    (*m_service)->addJob("b");
    open();
    select({"A", "B", "C"});
    Boxes boxes({QMessageBox::Yes, QMessageBox::Ok});
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    const SeenBox box = boxes.seen()[1];
    QCOMPARE(box.title, "ARVEN Ulmar Disc Setup");
    QCOMPARE(box.text,
             "There are jobs in the output device, so it could not be deleted.\nPlease delete it after "
             "all jobs are finished.");
    QCOMPARE(box.icon, QMessageBox::Information);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(names(), (QStringList{"B", "C"}));
    QVERIFY(!registered("a") && registered("b") && registered("c"));
}

void RemovePublisherTest::everyUnfinishedJobStopsTheRemoval_data()
{
    QTest::addColumn<quint64>("state");
    QTest::addColumn<bool>("stops");
    for (quint64 state = 0; state <= 10; ++state) {
        QTest::addRow("state %d", int(state)) << state << (state != 8 && state != 9);
    }
}

void RemovePublisherTest::everyUnfinishedJobStopsTheRemoval()
{
    QFETCH(quint64, state);
    QFETCH(bool, stops);
    m_service.reset();
    ScriptedService service;
    service.setJobs("a", {9, state, 8});
    open();
    select({"A"});
    Boxes boxes(stops ? std::vector{QMessageBox::Yes, QMessageBox::Ok} : std::vector{QMessageBox::Yes});
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    QCOMPARE(registered("a"), stops);
}

void RemovePublisherTest::unavailableJobListDoesNotPreventRemoval()
{
    (*m_service)->addJob("a");
    udsim::Fault fault;
    fault.kind = udsim::Fault::Kind::result;
    fault.number = 1001;
    fault.control = 4;
    (*m_service)->setFault(fault);
    open();
    select({"A"});
    Boxes boxes({QMessageBox::Yes});
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    QVERIFY(!registered("a"));
}

void RemovePublisherTest::removedWithoutService()
{
    m_service.reset();
    open();
    select({"A"});
    Boxes boxes({QMessageBox::Yes});
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    QVERIFY(!registered("a"));
    QCOMPARE(names(), (QStringList{"B", "C"}));
}

void RemovePublisherTest::unreadablePublisherLosesOnlyItsRow()
{
    open();
    select({"A", "B"});
    Boxes boxes({QMessageBox::Yes});
    boxes.onBox = [](QMessageBox&) { Installation::remove("a"); };
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    QCOMPARE(names(), QStringList{"C"}); // the loop continued with B
    QVERIFY(!registered("b"));

    // Registered again, it gets its row back at the next refresh.
    m_installation.addLocal("a", "A");
    m_window->updateList();
    QCOMPARE(names(), (QStringList{"A", "C"}));
}

void RemovePublisherTest::deviceKeyIsRemovedWithLastPublisherOfAbsentDevice()
{
    m_installation.setDevice("{a}", 0x20000009, false);
    open();
    select({"A", "B"});
    Boxes boxes({QMessageBox::Yes});
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    const std::string registry = ReadText(REGISTRY_FILE);
    QVERIFY2(registry.find("/{a}]") == std::string::npos, "the key of an absent, unused device is kept");
    QVERIFY2(registry.find("/{b}]") != std::string::npos, "the key of a connected device is removed");
    QVERIFY2(registry.find("/{c}]") != std::string::npos, "the key of a device in use is removed");
}

void RemovePublisherTest::undeletableFileIsReported()
{
    open();
    select({"A", "B"});
    QVERIFY(TakeAwayPrivileges());
    QCOMPARE(chmod(PUBLISHER_SETTING_DIR, 0555), 0);
    Boxes boxes({QMessageBox::Yes, QMessageBox::Ok});
    m_window->deletePublisher->trigger();
    QCOMPARE(chmod(PUBLISHER_SETTING_DIR, 0755), 0);
    QVERIFY(boxes.allAnswered());
    const SeenBox box = boxes.seen()[1];
    QCOMPARE(box.title, "ARVEN Ulmar Disc Setup");
    QCOMPARE(box.text, "Failed to change setting.");
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(names(), (QStringList{"A", "B", "C"}));
    QVERIFY(registered("a") && registered("b"));
}

QTEST_MAIN(RemovePublisherTest)
#include "RemovePublisherTest.moc"

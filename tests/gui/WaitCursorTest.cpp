// Tests the wait cursor while a call blocks the window: the cursor when each request arrives at the service
// or server, when a message box is shown, and afterwards.
#include "Boxes.h"
#include "DialogWalk.h"
#include "MaintenanceSequences.h"
#include "MyRunnable.h"
#include "PropertyService.h"
#include "Shown.h"
#include "addPublisherDialog.h"

#include <QAbstractEventDispatcher>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QSignalSpy>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>

namespace {

/// A machine with the id "L", a network publisher with the id "N", and a server that is not registered.
constexpr char scenarioText[] = "[publisher Studio]\nid = L\nmodel = RT-300III BD\n"
                                "[network Server]\nid = N\nmodel = RT-300NII\nhost = 127.0.0.11\n"
                                "[network New]\nmodel = RT-300NII\nregistered = no\nhost = 127.0.0.12\n";
constexpr char newServer[] = "127.0.0.12";
constexpr char silentAddress[] = "127.0.0.99"; // nothing listens there

/// May be called on any thread while the user-interface thread is blocked.
QString presentCursor()
{
    const QCursor* cursor = QGuiApplication::overrideCursor();
    return !cursor ? "none" : cursor->shape() == Qt::WaitCursor ? "wait" : "other";
}

} // namespace

class WaitCursorTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void adding();
    void addingUnreachableServer();
    void removing();
    void removingWithJobs();
    void filling_data();
    void filling();
    void saving();
    void refusedSaving_data();
    void refusedSaving();
    void savingFromTheList();
    void maintenance_data();
    void maintenance();
    void processesNoEvents();

private:
    void openList();
    void openProperties(const char* id);
    /// Returns the distinct cursors at the requests since the last call: "wait" if every request saw the wait
    /// cursor.
    QString metByRequests();
    void noteRequest();

    Installation m_installation;
    std::unique_ptr<udsim::Room> m_room;
    std::unique_ptr<PubSetup> m_window;
    std::unique_ptr<propertyDialogEx> m_dialog;
    std::mutex m_mutex;
    QStringList m_met;
    std::function<void()> m_onRequest; // called on a thread of the room
};

void WaitCursorTest::init()
{
    m_installation = Installation();
    m_onRequest = nullptr;
    std::string error;
    const auto scenario = udsim::Scenario::parse(scenarioText, error);
    QVERIFY2(scenario, error.c_str());
    m_room = std::make_unique<udsim::Room>(*scenario);
    m_room->onRequest([this](const udsim::Request&) { noteRequest(); });
    m_room->onHttpRequest([this](const udsim::HttpRequest&) { noteRequest(); });
    QVERIFY2(m_room->start(error), error.c_str());
}

void WaitCursorTest::cleanup()
{
    QCOMPARE(presentCursor(), "none");
    m_dialog.reset();
    m_window.reset();
    QVERIFY(waitForTasks(10000));
    m_room.reset();
}

void WaitCursorTest::noteRequest()
{
    const std::lock_guard lock(m_mutex);
    m_met << presentCursor();
    if (m_onRequest) {
        m_onRequest();
    }
}

QString WaitCursorTest::metByRequests()
{
    const std::lock_guard lock(m_mutex);
    m_met.removeDuplicates();
    m_met.sort();
    const QString all = m_met.join(" ");
    m_met.clear();
    return all;
}

/// Opens the list and waits for its first queries. Its timer is stopped, so it sends no queries by itself.
void WaitCursorTest::openList()
{
    m_window = std::make_unique<PubSetup>(nullptr);
    m_window->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly).at(0)->stop();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QVERIFY(waitForTasks(10000));
    QCoreApplication::processEvents();
    QCOMPARE(metByRequests(), "none"); // the queries do not block the window
}

void WaitCursorTest::openProperties(const char* id)
{
    const PUBLISHERINFO info = PropertyStage::record(id);
    m_dialog = std::make_unique<propertyDialogEx>(nullptr);
    metByRequests();
    m_dialog->fillContent(info, 1);
}

void WaitCursorTest::adding()
{
    addPublisherDialog dialog(nullptr);
    dialog.show();
    dialog.textHostName->setText(newServer);
    dialog.buttonBox->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(dialog.result(), 1);
    QCOMPARE(metByRequests(), "wait");
}

void WaitCursorTest::addingUnreachableServer()
{
    addPublisherDialog dialog(nullptr);
    dialog.show();
    dialog.textHostName->setText(silentAddress);
    Boxes boxes({QMessageBox::Ok});
    QString met;
    boxes.onBox = [&met](QMessageBox&) { met = presentCursor(); };
    dialog.buttonBox->button(QDialogButtonBox::Ok)->click();
    QVERIFY(boxes.allAnswered());
    QCOMPARE(met, "none");
}

void WaitCursorTest::removing()
{
    openList();
    m_window->treePublisherList->selectAll();
    Boxes boxes({QMessageBox::Yes});
    QString met;
    boxes.onBox = [&met](QMessageBox&) { met = presentCursor(); };
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 0);
    QCOMPARE(met, "none");
    QCOMPARE(metByRequests(), "wait");
}

void WaitCursorTest::removingWithJobs()
{
    QCOMPARE(QString::fromStdString(m_room->addJob("Studio")).isEmpty(), false);
    openList();
    m_window->findItemByPublisherRegistID("L")->setSelected(true);
    Boxes boxes({QMessageBox::Yes, QMessageBox::Ok});
    QStringList met;
    boxes.onBox = [&met](QMessageBox&) { met << presentCursor(); };
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    QCOMPARE(met, (QStringList{"none", "none"}));
    QCOMPARE(metByRequests(), "wait");
}

void WaitCursorTest::filling_data()
{
    QTest::addColumn<QByteArray>("id");
    QTest::newRow("local publisher") << QByteArray("L");
    QTest::newRow("network publisher") << QByteArray("N");
}

void WaitCursorTest::filling()
{
    QFETCH(QByteArray, id);
    openProperties(id.constData());
    QCOMPARE(metByRequests(), "wait");
}

void WaitCursorTest::saving()
{
    openProperties("L");
    m_dialog->show();
    metByRequests();
    m_dialog->textPublisherName->setText("New name");
    m_dialog->applyButton->click();
    QVERIFY(!m_dialog->applyButton->isEnabled());
    QCOMPARE(metByRequests(), "wait");
}

void WaitCursorTest::refusedSaving_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<qulonglong>("refused");
    QTest::newRow("no name") << "" << 0ULL;
    QTest::newRow("a name in use") << "Server" << 0ULL;
    QTest::newRow("mode refused") << "New name" << qulonglong{PropertyService::setPublishMode};
    QTest::newRow("notice refused") << "New name" << qulonglong{PropertyService::notifyChange};
}

void WaitCursorTest::refusedSaving()
{
    QFETCH(QString, name);
    QFETCH(qulonglong, refused);
    openProperties("L");
    m_dialog->show();
    metByRequests();
    if (refused != 0) {
        udsim::Fault fault;
        fault.kind = udsim::Fault::Kind::result;
        fault.number = 1004;
        fault.control = refused;
        m_room->setFault(fault);
    }
    m_dialog->textPublisherName->setText(name);
    Boxes boxes({QMessageBox::Ok});
    QString met;
    boxes.onBox = [&met](QMessageBox&) { met = presentCursor(); };
    m_dialog->applyButton->click();
    QVERIFY(boxes.allAnswered());
    QVERIFY(m_dialog->applyButton->isEnabled());
    QCOMPARE(met, "none");
    QCOMPARE(metByRequests(), "wait");
}

/// After a save, the list reads the name of the publisher from its server.
void WaitCursorTest::savingFromTheList()
{
    openList();
    m_window->treePublisherList->setCurrentItem(m_window->findItemByPublisherRegistID("N"));
    const WhenShown<propertyDialogEx> dialog([this](propertyDialogEx& shown) {
        metByRequests();
        shown.okButton->click(); // nothing is changed, so only the list sends requests
    });
    m_window->showPropertyDialog();
    QVERIFY(dialog.seen());
    QCOMPARE(metByRequests(), "wait");
}

void WaitCursorTest::maintenance_data()
{
    QTest::addColumn<bool>("cleaning");
    QTest::newRow("nozzle check") << false;
    QTest::newRow("head cleaning") << true;
}

void WaitCursorTest::maintenance()
{
    QFETCH(bool, cleaning);
    const PUBLISHERINFO info = PropertyStage::record("N");
    metByRequests();
    QStringList met;
    const auto accept = [&met](QDialog& dialog) {
        met << presentCursor();
        dialog.accept();
    };
    const DialogWalk walk({accept, accept});
    if (cleaning) {
        runHeadCleaningSequence(info);
    } else {
        runNozzleCheckSequence(info);
    }
    QCOMPARE(met, (QStringList{"none", "none"}));
    QCOMPARE(metByRequests(), "wait");
}

/// Neither a pending key event nor a timer event is processed before the call returns.
void WaitCursorTest::processesNoEvents()
{
    openProperties("L");
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    metByRequests();
    m_dialog->textPublisherName->setText("New name");

    std::atomic<bool> served = false;
    std::atomic<int> requestsAfterAnEvent = 0;
    m_onRequest = [&] { requestsAfterAnEvent += served ? 1 : 0; };
    QTimer::singleShot(0, this, [&served] { served = true; });
    connect(m_dialog->textPublisherName, &QLineEdit::textChanged, this, [&served] { served = true; });
    QCoreApplication::postEvent(m_dialog->textPublisherName,
                                new QKeyEvent(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x"));
    const QSignalSpy flushed(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock);
    m_dialog->applyButton->click();
    QCOMPARE(flushed.count(), 1);
    QVERIFY(!served);
    QCOMPARE(requestsAfterAnEvent, 0);
    QCOMPARE(metByRequests(), "wait");
    QCoreApplication::processEvents();
    QVERIFY(served);
    QCOMPARE(m_dialog->textPublisherName->text(), "New namex");
}

QTEST_MAIN(WaitCursorTest)
#include "WaitCursorTest.moc"

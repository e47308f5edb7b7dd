// Tests the list rows of network publishers: the texts derived from server replies, and user actions on the
// rows.
#include "SameImage.h"
#include "ServerFixture.h"
#include "settingDialog.h"

#include <QElapsedTimer>

namespace {

/// An HTTP fault for requests whose target begins with `path`. The first `after` requests succeed.
struct Trouble
{
    const char* path;
    const char* fault;
    quint64 after = 0;
};
using Troubles = QVector<Trouble>;

constexpr char modeGetter[] = "/webapp2/ServerModeGetter";
constexpr char fatalGetter[] = "/webapp2/DevStatusGetter?ifversion=02000000&type=5";

} // namespace
Q_DECLARE_METATYPE(Troubles)

class NetworkListTest : public ServerFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void rowShowsStatus_data();
    void rowShowsStatus();
    void readyRows_data();
    void readyRows();
    void spaceIsRoundedDownToMebibytes();
    void jobsSentByOtherComputers();
    void queryOrder();
    void removalStopsTheQueriesOfAPoll();
    void unreadableServerLeavesRowUnchanged();
    void modelTexts_data();
    void modelTexts();
    void storedValuesAreShownFirst();
    void hostAfterBackslashes();
    void kindOfHostAfterBackslashesIsNotStored();
    void approvalAllowsOldServer();
    void serverReturns();
    void localAndNetworkSideBySide();
    void slowServerDelaysOnlyItself();
    void publisherRemovedDuringQuery();
    void closingWaitsOnlyForTheRunningQuery();
    void removedWithJobs();
    void removedWhileUnreachable();
    void removingUnreadablePublisherKeepsItsFile();

private:
    void open(const std::string& scenario);
    void ask();
    void remove(const QString& key);
    QStringList texts(const QString& key = "N") const;
    /// Queries the servers once more and compares the columns after the host name, which are overwritten
    /// first.
    void compareAnswer(const QStringList& expected);
};

void NetworkListTest::init()
{
    startAnew();
}

void NetworkListTest::open(const std::string& scenario)
{
    startRoom(scenario);
    openList();
}

void NetworkListTest::ask()
{
    QVERIFY(waitForTasks(10000));
    m_window->fetchStatusAsync();
    QVERIFY(waitForTasks(10000));
    QCoreApplication::processEvents();
}

void NetworkListTest::cleanup()
{
    tidyUp();
}

QStringList NetworkListTest::texts(const QString& key) const
{
    const QTreeWidgetItem* row = m_window->findItemByPublisherRegistID(key);
    QStringList list;
    for (int column = 0; row && column < 7; ++column) {
        list << row->text(column);
    }
    return list;
}

void NetworkListTest::compareAnswer(const QStringList& expected)
{
    QTreeWidgetItem* row = m_window->findItemByPublisherRegistID("N");
    QVERIFY(row);
    for (int column = 3; column < 7; ++column) {
        row->setText(column, "before the answer");
    }
    ask();
    QCOMPARE(texts().mid(3), expected);
}

void NetworkListTest::rowShowsStatus_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<Troubles>("troubles");
    QTest::addColumn<QString>("status");

    const QString notRegistered = "Administrator not registered";
    QTest::newRow("no administrator") << "" << Troubles{{modeGetter, "status 11"}} << notRegistered;
    QTest::newRow("no administrator, kind query")
        << "" << Troubles{{"/webapp2/DevInfoIntGetter", "status 11"}} << notRegistered;
    QTest::newRow("no administrator, version query")
        << "" << Troubles{{"/webapp2/IFVersionChecker", "status 11"}} << notRegistered;

    const QString unsupported = "Unsupported version";
    QTest::newRow("refuses the interface version")
        << "interface-version = 03000000" << Troubles{} << unsupported;
    QTest::newRow("version refused, mode query") << "" << Troubles{{modeGetter, "status 1"}} << unsupported;
    for (const char* version : {"2.0", "2.10", "2.29", "3.0", "3.29", "2", "3"}) {
        QTest::addRow("old server %s", version)
            << QString("server-version = ") + version << Troubles{} << unsupported;
    }

    const QString notConnected = "Not connected";
    QTest::newRow("not listening") << "listening = no" << Troubles{} << notConnected;
    for (const char* fault : {"http 500", "http 404", "close", "empty", "size 2", "status 2", "status 3",
                              "status 9", "status 10", "status 12", "status 200", "cut 20"}) {
        QTest::addRow("mode reply: %s", fault) << "" << Troubles{{modeGetter, fault}} << notConnected;
    }
    QTest::newRow("kind refused") << "" << Troubles{{"/webapp2/DevInfoIntGetter", "status 2"}}
                                  << notConnected;
    QTest::newRow("version refused") << "" << Troubles{{"/webapp2/IFVersionChecker", "http 500"}}
                                     << notConnected;
    QTest::newRow("security mode") << "server-mode = 0" << Troubles{} << notConnected;
    QTest::newRow("output control mode") << "server-mode = 1" << Troubles{} << notConnected;

    // In the rows below the server is reachable.
    QTest::newRow("machine is off") << "connected = no" << Troubles{} << notConnected;
    QTest::newRow("state unavailable") << "" << Troubles{{fatalGetter, "http 500"}} << notConnected;
    QTest::newRow("state of wrong size") << "" << Troubles{{fatalGetter, "size 3"}} << notConnected;
    // The library reports this error with the number of a switched-off device.
    QTest::newRow("no disc supply") << "error = 39" << Troubles{} << notConnected;

    for (const int code : {1, 2, 3, 4, 5, 6, 25, 26, 28, 29, 42, 43}) {
        QTest::addRow("error %d", code) << QString("jobs = 2\nerror = %1").arg(code) << Troubles{} << "Error";
    }
}

void NetworkListTest::rowShowsStatus()
{
    QFETCH(QString, keys);
    QFETCH(Troubles, troubles);
    QFETCH(QString, status);
    open(studio("RT-300NII", "known-kind = 2\n" + keys.toStdString()));
    for (const Trouble& trouble : troubles) {
        m_room->spoil(trouble.path, trouble.fault, trouble.after);
    }
    compareAnswer({status, "-", "-", "-"});
    QCOMPARE(texts().mid(0, 3), (QStringList{"Studio", "RT-300NII", "127.0.0.11"}));
    endConnectionsLeftBehind();
}

void NetworkListTest::readyRows_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<Troubles>("troubles");
    QTest::addColumn<QStringList>("numbers");
    const Troubles none;
    const auto numbers = [](const char* waiting, const char* sending, const char* space) {
        return QStringList{waiting, sending, space};
    };
    QTest::newRow("idle") << "" << none << numbers("0", "0", "2.0 GB");
    QTest::newRow("cover open") << "error = 9" << none << numbers("0", "0", "2.0 GB");
    QTest::newRow("jobs") << "jobs = 12" << none << numbers("12", "0", "2.0 GB");
    QTest::newRow("1024 MiB") << "disc-space = 1024" << none << numbers("0", "0", "1.0 GB");
    QTest::newRow("1536 MiB") << "disc-space = 1536" << none << numbers("0", "0", "1.5 GB");
    QTest::newRow("1 MiB") << "disc-space = 1" << none << numbers("0", "0", "0.0 GB");
    QTest::newRow("no space") << "disc-space = 0" << none << numbers("0", "0", "0.0 GB");
    QTest::newRow("a million MiB") << "disc-space = 1000000" << none << numbers("0", "0", "976.6 GB");
    for (const char* version : {"1.9", "1.20", "2.30", "3.30", "4.0", "10.5"}) {
        QTest::addRow("server %s", version)
            << QString("server-version = ") + version << none << numbers("0", "0", "2.0 GB");
    }
    QTest::newRow("no job list") << "jobs = 3" << Troubles{{"/webapp2/JobInfoGetter", "http 500"}}
                                 << numbers("0", "0", "2.0 GB");
    QTest::newRow("no job count") << "jobs = 3" << Troubles{{"/webapp2/JobNumGetter", "status 9"}}
                                  << numbers("3", "-", "2.0 GB");
    QTest::newRow("no disc space reply")
        << "jobs = 3" << Troubles{{"/webapp2/DevInfoGetter?ifversion=02000000&type=8", "close"}}
        << numbers("3", "0", "-");
    QTest::newRow("empty disc space reply")
        << "" << Troubles{{"/webapp2/DevInfoGetter?ifversion=02000000&type=8", "size 0"}}
        << numbers("0", "0", "-");
    QTest::newRow("no version reply")
        << "" << Troubles{{"/webapp2/DevInfoGetter?ifversion=02000000&type=5", "status 9"}}
        << numbers("0", "0", "2.0 GB");
    // The server fails after its settings were read. The first connection tests whether it is reachable, the
    // second reads the settings, including the mode. The connections for its state and its figures then fail.
    for (const char* fault : {"http 500", "close"}) {
        QTest::addRow("fails after the settings, %s", fault)
            << "jobs = 3" << Troubles{{modeGetter, fault, 3}} << numbers("0", "-", "-");
        QTest::addRow("fails after the state, %s", fault)
            << "jobs = 3" << Troubles{{modeGetter, fault, 4}} << numbers("0", "-", "-");
        QTest::addRow("fails after the job list, %s", fault)
            << "jobs = 3" << Troubles{{modeGetter, fault, 5}} << numbers("3", "-", "-");
        QTest::addRow("fails after the job count, %s", fault)
            << "jobs = 3" << Troubles{{modeGetter, fault, 6}} << numbers("3", "0", "-");
    }
}

void NetworkListTest::readyRows()
{
    QFETCH(QString, keys);
    QFETCH(Troubles, troubles);
    QFETCH(QStringList, numbers);
    open(studio("RT-300NII", keys.toStdString()));
    for (const Trouble& trouble : troubles) {
        m_room->spoil(trouble.path, trouble.fault, trouble.after);
    }
    compareAnswer(QStringList{"Ready"} + numbers);
}

namespace {

/// Registers a job without committing it, as another computer does while it sends. Returns false if the
/// server rejects it.
bool sendJob(const std::string& printData)
{
    DWORD handle = 0;
    int job = 0;
    const std::string data = "JobName = Labels\n";
    if (StartConnection(1, "127.0.0.11", &handle) != NCL_SUCCESS) {
        return false;
    }
    const bool sent = SendJobData(handle, reinterpret_cast<const BYTE*>(data.data()),
                                  static_cast<DWORD>(data.size()), &job) == NCL_SUCCESS &&
                      SendPrnData(handle, job, reinterpret_cast<const BYTE*>(printData.data()),
                                  static_cast<DWORD>(printData.size())) == NCL_SUCCESS;
    EndConnection(handle);
    return sent;
}

} // namespace

void NetworkListTest::spaceIsRoundedDownToMebibytes()
{
    open(studio("RT-300NII", "disc-space = 1\n"));
    QVERIFY(sendJob("x")); // leaves one byte less than a mebibyte
    compareAnswer({"Ready", "0", "1", "0.0 GB"});
}

void NetworkListTest::jobsSentByOtherComputers()
{
    open(studio("RT-300NII", "jobs = 3\ndisc-space = 1537\n"));
    QVERIFY(sendJob("first") && sendJob("second"));
    compareAnswer({"Ready", "3", "2", "1.5 GB"});
    (*m_room)->advance(1000);
    compareAnswer({"Ready", "2", "2", "1.5 GB"}); // one of the three is running
}

void NetworkListTest::queryOrder()
{
    open(studio());
    m_room->forget();
    ask();
    const QStringList state{"GET /webapp2/DevStatusGetter?ifversion=02000000&type=5"};
    const QStringList jobs{"GET /webapp2/JobInfoGetter?ifversion=02000000&type=3"};
    const QStringList sending{"GET /webapp2/JobNumGetter?type=1"};
    const QStringList space{"GET /webapp2/DevInfoGetter?ifversion=02000000&type=8"};
    QCOMPARE(m_room->asked(), connecting + readingTheRecord + connecting + state + connecting + jobs +
                                  connecting + sending + connecting + space);
    QTRY_COMPARE((*m_room)->httpConnections(), size_t{0});
}

void NetworkListTest::removalStopsTheQueriesOfAPoll()
{
    startRoom(studio());
    m_room->spoil(fatalGetter, "delay 1500");
    m_window = std::make_unique<PubSetup>(nullptr);
    QVERIFY((*m_room)->waitForHttpRequests(fatalGetter, 1));
    Installation::remove("N"); // the reply is still pending
    QVERIFY(waitForTasks(10000));
    const QStringList asked = m_room->asked();
    QCOMPARE(asked.last(), QString("GET ") + fatalGetter);
}

void NetworkListTest::unreadableServerLeavesRowUnchanged()
{
    open(studio("RT-300NII", "jobs = 2\n"));
    QCOMPARE(texts(), (QStringList{"Studio", "RT-300NII", "127.0.0.11", "Ready", "2", "0", "2.0 GB"}));
    m_room->spoil("/webapp2/DevInfoIntGetter?ifversion=02000000&type=4", "http 500");
    compareAnswer({"before the answer", "before the answer", "before the answer", "before the answer"});
}

void NetworkListTest::modelTexts_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("kind");     // appended to the setting file
    QTest::addColumn<QString>("stored");   // text before the first reply
    QTest::addColumn<QString>("answered"); // text after it
    const QString ofTheLibrary = "[COMMON]\nNPType=%1\n";
    QTest::newRow("300NII") << "RT-300NII"
                            << ""
                            << "N/A"
                            << "RT-300NII";
    QTest::newRow("300NII, kind stored") << "RT-300NII" << ofTheLibrary.arg(2) << "RT-300NII"
                                         << "RT-300NII";
    QTest::newRow("300NII, wrong kind stored") << "RT-300NII" << ofTheLibrary.arg(3) << "RT-300NII (BD-XL)"
                                               << "RT-300NII";
    QTest::newRow("300NII BDXL") << "RT-300NII BD-XL"
                                 << ""
                                 << "N/A"
                                 << "RT-300NII (BD-XL)";
    QTest::newRow("300NII BDXL, wrong kind stored") << "RT-300NII BD-XL" << ofTheLibrary.arg(2) << "RT-300NII"
                                                    << "RT-300NII (BD-XL)";
    QTest::newRow("300N") << "RT-300N"
                          << ""
                          << "N/A"
                          << "RT-300NII"; // it does not report its kind
    QTest::newRow("300N, kind stored") << "RT-300N" << ofTheLibrary.arg(1) << "N/A"
                                       << "N/A";
    QTest::newRow("300N, wrong kind stored") << "RT-300N" << ofTheLibrary.arg(3) << "RT-300NII (BD-XL)"
                                             << "RT-300NII";
    QTest::newRow("unknown kind") << "RT-300NII" << ofTheLibrary.arg(4) << "N/A"
                                  << "RT-300NII";
    // A value in [Common] takes precedence over the one that the library writes to [COMMON].
    QTest::newRow("kind set by hand") << "RT-300NII"
                                      << "NPType=3\n"
                                      << "RT-300NII (BD-XL)"
                                      << "RT-300NII (BD-XL)";
}

void NetworkListTest::modelTexts()
{
    QFETCH(QString, model);
    QFETCH(QString, kind);
    QFETCH(QString, stored);
    QFETCH(QString, answered);
    WriteText(Installation::settingFile("N"), "[Common]\nPublisherName=Studio\nPublisherConnectionType=1\n"
                                              "PublisherURL=127.0.0.11\n" +
                                                  kind.toStdString());
    startRoom(studio(model.toStdString()));
    m_window = std::make_unique<PubSetup>(nullptr);
    QCOMPARE(texts()[1], stored); // the event loop has not run yet
    m_window.reset();
    openList();
    QCOMPARE(texts().mid(0, 4), (QStringList{"Studio", answered, "127.0.0.11", "Ready"}));
}

void NetworkListTest::storedValuesAreShownFirst()
{
    startRoom(studio("RT-300NII", "known-kind = 2\njobs = 2\n"));
    m_window = std::make_unique<PubSetup>(nullptr);
    QCOMPARE(texts(), (QStringList{"Studio", "RT-300NII", "127.0.0.11", "Not connected", "-", "-", "-"}));
    QVERIFY(showsImage(m_window->findItemByPublisherRegistID("N")->icon(0), ":/res/A7-1.png", 22));
    QTRY_COMPARE(texts(), (QStringList{"Studio", "RT-300NII", "127.0.0.11", "Ready", "2", "0", "2.0 GB"}));
}

void NetworkListTest::hostAfterBackslashes()
{
    Installation::addNetwork("N", "Studio", "\\\\127.0.0.11");
    open(studio());
    QCOMPARE(texts(), (QStringList{"Studio", "RT-300NII", "\\\\127.0.0.11", "Ready", "0", "0", "2.0 GB"}));
}

/// The library looks up the file by the host without backslashes, so it finds no file to write the kind to.
void NetworkListTest::kindOfHostAfterBackslashesIsNotStored()
{
    const std::string text = "[Common]\nPublisherName=Studio\nPublisherConnectionType=1\n"
                             "PublisherURL=\\\\127.0.0.11\n";
    WriteText(Installation::settingFile("N"), text);
    open(studio("RT-300NII BD-XL"));
    compareAnswer({"Ready", "0", "0", "2.0 GB"});
    QCOMPARE(texts().mid(0, 3), (QStringList{"Studio", "N/A", "\\\\127.0.0.11"}));
    QCOMPARE(file(), text);
}

void NetworkListTest::approvalAllowsOldServer()
{
    open(studio("RT-300NII", "server-version = 2.10\njobs = 1\n"));
    QCOMPARE(texts()[3], "Unsupported version");
    const auto toggleApproval = [this] {
        const WhenShown<settingDialogEx> dialog([](settingDialogEx& shown) {
            shown.settingTab->setCurrentWidget(shown.tabNetworkModel);
            QTest::mouseClick(shown.checkCompatMode, Qt::LeftButton, {},
                              QPoint(8, shown.checkCompatMode->height() / 2));
            QTest::mouseClick(shown.okButton, Qt::LeftButton);
            if (shown.isVisible()) {
                shown.reject(); // a failed save shows in the row
            }
        });
        m_window->showSetting->trigger();
        QVERIFY(dialog.seen());
    };
    toggleApproval();
    compareAnswer({"Ready", "1", "0", "2.0 GB"});
    toggleApproval();
    compareAnswer({"Unsupported version", "-", "-", "-"});
}

void NetworkListTest::serverReturns()
{
    open(studio("RT-300NII", "jobs = 1\n"));
    QCOMPARE(texts()[3], "Ready");
    QVERIFY((*m_room)->tell("Studio", "server off"));
    compareAnswer({"Not connected", "-", "-", "-"});
    QVERIFY((*m_room)->tell("Studio", "server on"));
    compareAnswer({"Ready", "1", "0", "2.0 GB"});
    QVERIFY((*m_room)->tell("Studio", "offline"));
    compareAnswer({"Not connected", "-", "-", "-"});
    QVERIFY((*m_room)->tell("Studio", "online"));
    QVERIFY((*m_room)->tell("Studio", "error 26"));
    compareAnswer({"Error", "-", "-", "-"});
    QVERIFY((*m_room)->tell("Studio", "clear"));
    compareAnswer({"Ready", "1", "0", "2.0 GB"});
}

void NetworkListTest::localAndNetworkSideBySide()
{
    open(studio("RT-300NII BD-XL", "jobs = 2\ndisc-space = 1536\n") +
         "[network Away]\nid = A\nmodel = RT-300NII\nlistening = no\nknown-kind = 2\n"
         "[publisher Desk]\nid = D\nmodel = RT-300III BD\njobs = 1\n"
         "[publisher Shelf]\nid = S\nmodel = RT-30II\nconnected = no\n");
    QCOMPARE(texts("N"),
             (QStringList{"Studio", "RT-300NII (BD-XL)", "127.0.0.11", "Ready", "2", "0", "1.5 GB"}));
    QCOMPARE(texts("A"), (QStringList{"Away", "RT-300NII", "127.0.0.12", "Not connected", "-", "-", "-"}));
    QCOMPARE(texts("D"), (QStringList{"Desk", "RT-300III", "-", "Ready", "1", "-", "-"}));
    QCOMPARE(texts("S"), (QStringList{"Shelf", "RT-30II", "-", "Not connected", "-", "-", "-"}));
    for (const char* key : {"N", "A"}) {
        QVERIFY(showsImage(m_window->findItemByPublisherRegistID(key)->icon(0), ":/res/A7-1.png", 22));
    }
    for (const char* key : {"D", "S"}) {
        QVERIFY(showsImage(m_window->findItemByPublisherRegistID(key)->icon(0), ":/res/A6-1.png", 22));
    }
    // Stopping the local service does not affect the servers.
    QVERIFY((*m_room)->tell("", "service off"));
    ask();
    QCOMPARE(texts("N")[3], "Ready");
    QCOMPARE(texts("D")[3], "Not connected");
}

void NetworkListTest::slowServerDelaysOnlyItself()
{
    startRoom(studio() + "[network Slow]\nid = S\nmodel = RT-300NII\n"
                         "[publisher Desk]\nid = D\nmodel = RT-300III BD\n");
    m_room->spoil("", "delay 4000", 0, "Slow"); // two replies take longer than one poll interval
    m_window = std::make_unique<PubSetup>(nullptr);
    const auto queries = [this] { return m_room->asked().count(QString("GET ") + fatalGetter); };
    QTRY_COMPARE(queries(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(queries(), 2, 20000);
    (*m_room)->addJob("Studio");
    (*m_room)->addJob("Desk");
    QTRY_COMPARE_WITH_TIMEOUT(queries(), 3, 20000);
    QTRY_COMPARE(texts("N")[4], "1");
    QTRY_COMPARE(texts("D")[4], "1");
    const QStringList asked = m_room->asked("127.0.0.12");
    QVERIFY(asked.size() >= 2);
    QCOMPARE(asked, connecting.mid(0, asked.size())); // one query only
    QCOMPARE(texts("S")[3], "Not connected");
}

void NetworkListTest::publisherRemovedDuringQuery()
{
    startRoom(studio() + "[network Other]\nid = O\nmodel = RT-300NII\n");
    m_room->spoil(fatalGetter, "stall", 0, "Studio");
    m_window = std::make_unique<PubSetup>(nullptr);
    QVERIFY((*m_room)->waitForHttpRequests(fatalGetter, 1));
    QTRY_VERIFY(m_room->asked().contains(QString("GET ") + fatalGetter));
    Installation::remove("N");
    m_window->updateList();
    QCOMPARE(texts("N"), QStringList());
    QVERIFY((*m_room)->tell("Studio", "server off")); // ends the query
    QVERIFY(waitForTasks(10000));
    QCoreApplication::processEvents();
    QCOMPARE(texts("N"), QStringList());
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 1);
    QTRY_COMPARE(texts("O")[3], "Ready");
}

void NetworkListTest::closingWaitsOnlyForTheRunningQuery()
{
    startRoom(studio());
    m_room->spoil(fatalGetter, "delay 1500");
    m_window = std::make_unique<PubSetup>(nullptr);
    QVERIFY((*m_room)->waitForHttpRequests(fatalGetter, 1));
    const QString last = "GET /webapp2/DevInfoGetter?ifversion=02000000&type=8";
    QVERIFY(!m_room->asked().contains(last));
    QElapsedTimer closing;
    closing.start();
    m_window.reset();
    QVERIFY(closing.elapsed() > 500); // the reply was still pending
    QVERIFY(!m_room->asked().contains(last));
}

/// Removes the publisher as a user does, and confirms the question.
void NetworkListTest::remove(const QString& key)
{
    m_window->treePublisherList->clearSelection();
    m_window->findItemByPublisherRegistID(key)->setSelected(true);
    Boxes boxes({QMessageBox::Yes});
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    QCOMPARE(boxes.seen()[0].text, "Do you want to delete it?");
}

void NetworkListTest::removedWithJobs()
{
    open(studio("RT-300NII", "jobs = 3\n"));
    (*m_room)->advance(1000);
    m_room->forget();
    remove("N");
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 0);
    QVERIFY(!std::filesystem::exists(Installation::settingFile("N")));
    QCOMPARE(m_room->asked(), connecting + readingTheRecord); // the jobs are not queried
    QCOMPARE((*m_room)->jobs("Studio").size(), size_t{3});
}

void NetworkListTest::removedWhileUnreachable()
{
    open(studio("RT-300NII", "listening = no\n"));
    remove("N");
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 0);
    QVERIFY(!std::filesystem::exists(Installation::settingFile("N")));
}

void NetworkListTest::removingUnreadablePublisherKeepsItsFile()
{
    open(studio());
    m_room->spoil("/webapp2/DevInfoIntGetter?ifversion=02000000&type=2", "status 9");
    remove("N");
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 0);
    QVERIFY(std::filesystem::exists(Installation::settingFile("N")));
    m_window->updateList();
    QCOMPARE(texts(), (QStringList{"Studio", "RT-300NII", "127.0.0.11", "Not connected", "-", "-", "-"}));
}

QTEST_MAIN(NetworkListTest)
#include "NetworkListTest.moc"

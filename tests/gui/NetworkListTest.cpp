// The rows of network publishers, from the servers' answers to the texts, and what a person does with them.
#include "SameImage.h"
#include "ServerFixture.h"
#include "settingDialog.h"

#include <QElapsedTimer>

namespace {

/// A fault of the server from one moment on.
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

    void everyStateHasItsRow_data();
    void everyStateHasItsRow();
    void readyRows_data();
    void readyRows();
    void spaceIsCutToWholeMebibytes();
    void jobsThatOthersSend();
    void queriesInTheirOrder();
    void removalEndsTheQuestionsOfAPoll();
    void unreadableServerKeepsItsRow();
    void modelsHaveTheirTexts_data();
    void modelsHaveTheirTexts();
    void storedRowComesFirst();
    void hostBehindBackslashes();
    void kindOfAHostBehindBackslashesIsNotKept();
    void approvalLetsAnOldServerIn();
    void serverComesBack();
    void localAndNetworkSideBySide();
    void slowServerHoldsBackOnlyItself();
    void publisherRemovedWhileItsServerIsAsked();
    void closingWaitsForTheRunningQuestionAlone();
    void removedWithItsJobs();
    void removedOutOfReach();
    void unreadablePublisherLosesItsRowOnly();

private:
    void open(const std::string& scenario);
    void ask();
    void remove(const QString& key);
    QStringList texts(const QString& key = "N") const;
    /// The texts behind the host name, once the row has been written anew.
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

void NetworkListTest::everyStateHasItsRow_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<Troubles>("troubles");
    QTest::addColumn<QString>("status");

    const QString notRegistered = "Administrator not registered";
    QTest::newRow("no administrator") << "" << Troubles{{modeGetter, "status 11"}} << notRegistered;
    QTest::newRow("no administrator for the kind")
        << "" << Troubles{{"/webapp2/DevInfoIntGetter", "status 11"}} << notRegistered;
    QTest::newRow("no administrator for the version")
        << "" << Troubles{{"/webapp2/IFVersionChecker", "status 11"}} << notRegistered;

    const QString unsupported = "Unsupported version";
    QTest::newRow("refuses the interface version")
        << "interface-version = 03000000" << Troubles{} << unsupported;
    QTest::newRow("version refused by the mode") << "" << Troubles{{modeGetter, "status 1"}} << unsupported;
    for (const char* version : {"2.0", "2.10", "2.29", "3.0", "3.29", "2", "3"}) {
        QTest::addRow("old server %s", version)
            << QString("server-version = ") + version << Troubles{} << unsupported;
    }

    const QString notConnected = "Not connected";
    QTest::newRow("nobody listens") << "listening = no" << Troubles{} << notConnected;
    for (const char* fault : {"http 500", "http 404", "close", "empty", "size 2", "status 2", "status 3",
                              "status 9", "status 10", "status 12", "status 200", "cut 20"}) {
        QTest::addRow("mode answered by %s", fault) << "" << Troubles{{modeGetter, fault}} << notConnected;
    }
    QTest::newRow("kind refused") << "" << Troubles{{"/webapp2/DevInfoIntGetter", "status 2"}}
                                  << notConnected;
    QTest::newRow("version refused") << "" << Troubles{{"/webapp2/IFVersionChecker", "http 500"}}
                                     << notConnected;
    QTest::newRow("security mode") << "server-mode = 0" << Troubles{} << notConnected;
    QTest::newRow("output control mode") << "server-mode = 1" << Troubles{} << notConnected;

    // From here on the server is reached.
    QTest::newRow("machine switched off") << "connected = no" << Troubles{} << notConnected;
    QTest::newRow("no state to be had") << "" << Troubles{{fatalGetter, "http 500"}} << notConnected;
    QTest::newRow("state of a wrong size") << "" << Troubles{{fatalGetter, "size 3"}} << notConnected;
    // Its number among the fatal errors is that of a device which is switched off.
    QTest::newRow("no disc supply") << "error = 39" << Troubles{} << notConnected;

    for (const int code : {1, 2, 3, 4, 5, 6, 25, 26, 28, 29, 42, 43}) {
        QTest::addRow("error %d", code) << QString("jobs = 2\nerror = %1").arg(code) << Troubles{} << "Error";
    }
}

void NetworkListTest::everyStateHasItsRow()
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
    QTest::newRow("nothing to do") << "" << none << numbers("0", "0", "2.0 GB");
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
    QTest::newRow("no space told") << "jobs = 3"
                                   << Troubles{{"/webapp2/DevInfoGetter?ifversion=02000000&type=8", "close"}}
                                   << numbers("3", "0", "-");
    QTest::newRow("space without a text")
        << "" << Troubles{{"/webapp2/DevInfoGetter?ifversion=02000000&type=8", "size 0"}}
        << numbers("0", "0", "-");
    QTest::newRow("version not told")
        << "" << Troubles{{"/webapp2/DevInfoGetter?ifversion=02000000&type=5", "status 9"}}
        << numbers("0", "0", "2.0 GB");
    // Reached, read, and then gone: one connection tells that it is there, the next reads its settings, the
    // mode among them, and those for its state and its numbers fail.
    for (const char* fault : {"http 500", "close"}) {
        QTest::addRow("gone behind the settings, %s", fault)
            << "jobs = 3" << Troubles{{modeGetter, fault, 3}} << numbers("0", "-", "-");
        QTest::addRow("gone behind its state, %s", fault)
            << "jobs = 3" << Troubles{{modeGetter, fault, 4}} << numbers("0", "-", "-");
        QTest::addRow("gone behind its jobs, %s", fault)
            << "jobs = 3" << Troubles{{modeGetter, fault, 5}} << numbers("3", "-", "-");
        QTest::addRow("gone behind the job count, %s", fault)
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

/// A job that another computer is sending: registered, not committed. False when the server does not take it.
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

void NetworkListTest::spaceIsCutToWholeMebibytes()
{
    open(studio("RT-300NII", "disc-space = 1\n"));
    QVERIFY(sendJob("x")); // leaves a byte less than a mebibyte
    compareAnswer({"Ready", "0", "1", "0.0 GB"});
}

void NetworkListTest::jobsThatOthersSend()
{
    open(studio("RT-300NII", "jobs = 3\ndisc-space = 1537\n"));
    QVERIFY(sendJob("first") && sendJob("second"));
    compareAnswer({"Ready", "3", "2", "1.5 GB"});
    (*m_room)->advance(1000);
    compareAnswer({"Ready", "2", "2", "1.5 GB"}); // one of the three is under way
}

void NetworkListTest::queriesInTheirOrder()
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

void NetworkListTest::removalEndsTheQuestionsOfAPoll()
{
    startRoom(studio());
    m_room->spoil(fatalGetter, "delay 1500");
    m_window = std::make_unique<PubSetup>(nullptr);
    QVERIFY((*m_room)->waitForHttpRequests(fatalGetter, 1));
    Installation::remove("N"); // the answer is yet to come
    QVERIFY(waitForTasks(10000));
    const QStringList asked = m_room->asked();
    QCOMPARE(asked.last(), QString("GET ") + fatalGetter);
}

void NetworkListTest::unreadableServerKeepsItsRow()
{
    open(studio("RT-300NII", "jobs = 2\n"));
    QCOMPARE(texts(), (QStringList{"Studio", "RT-300NII", "127.0.0.11", "Ready", "2", "0", "2.0 GB"}));
    m_room->spoil("/webapp2/DevInfoIntGetter?ifversion=02000000&type=4", "http 500");
    compareAnswer({"before the answer", "before the answer", "before the answer", "before the answer"});
}

void NetworkListTest::modelsHaveTheirTexts_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("kind");     // what the file knows of it
    QTest::addColumn<QString>("stored");   // before the first answer
    QTest::addColumn<QString>("answered"); // and behind it
    const QString ofTheLibrary = "[COMMON]\nNPType=%1\n";
    QTest::newRow("300NII") << "RT-300NII"
                            << ""
                            << "N/A"
                            << "RT-300NII";
    QTest::newRow("300NII, known") << "RT-300NII" << ofTheLibrary.arg(2) << "RT-300NII"
                                   << "RT-300NII";
    QTest::newRow("300NII, known as another") << "RT-300NII" << ofTheLibrary.arg(3) << "RT-300NII (BD-XL)"
                                              << "RT-300NII";
    QTest::newRow("300NII BDXL") << "RT-300NII BD-XL"
                                 << ""
                                 << "N/A"
                                 << "RT-300NII (BD-XL)";
    QTest::newRow("300NII BDXL, known as another") << "RT-300NII BD-XL" << ofTheLibrary.arg(2) << "RT-300NII"
                                                   << "RT-300NII (BD-XL)";
    QTest::newRow("300N") << "RT-300N"
                          << ""
                          << "N/A"
                          << "RT-300NII"; // it does not tell what it is
    QTest::newRow("300N, known") << "RT-300N" << ofTheLibrary.arg(1) << "N/A"
                                 << "N/A";
    QTest::newRow("300N, known as another") << "RT-300N" << ofTheLibrary.arg(3) << "RT-300NII (BD-XL)"
                                            << "RT-300NII";
    QTest::newRow("no such kind") << "RT-300NII" << ofTheLibrary.arg(4) << "N/A"
                                  << "RT-300NII";
    // Among the settings themselves it stands ahead of what the library writes.
    QTest::newRow("kept by hand") << "RT-300NII"
                                  << "NPType=3\n"
                                  << "RT-300NII (BD-XL)"
                                  << "RT-300NII (BD-XL)";
}

void NetworkListTest::modelsHaveTheirTexts()
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
    QCOMPARE(texts()[1], stored); // no event loop has run since
    m_window.reset();
    openList();
    QCOMPARE(texts().mid(0, 4), (QStringList{"Studio", answered, "127.0.0.11", "Ready"}));
}

void NetworkListTest::storedRowComesFirst()
{
    startRoom(studio("RT-300NII", "known-kind = 2\njobs = 2\n"));
    m_window = std::make_unique<PubSetup>(nullptr);
    QCOMPARE(texts(), (QStringList{"Studio", "RT-300NII", "127.0.0.11", "Not connected", "-", "-", "-"}));
    QVERIFY(showsImage(m_window->findItemByPublisherRegistID("N")->icon(0), ":/res/A7-1.png", 22));
    QTRY_COMPARE(texts(), (QStringList{"Studio", "RT-300NII", "127.0.0.11", "Ready", "2", "0", "2.0 GB"}));
}

void NetworkListTest::hostBehindBackslashes()
{
    Installation::addNetwork("N", "Studio", "\\\\127.0.0.11");
    open(studio());
    QCOMPARE(texts(), (QStringList{"Studio", "RT-300NII", "\\\\127.0.0.11", "Ready", "0", "0", "2.0 GB"}));
}

/// The library looks for the file by the bare host, and finds none that it could write the kind into.
void NetworkListTest::kindOfAHostBehindBackslashesIsNotKept()
{
    const std::string text = "[Common]\nPublisherName=Studio\nPublisherConnectionType=1\n"
                             "PublisherURL=\\\\127.0.0.11\n";
    WriteText(Installation::settingFile("N"), text);
    open(studio("RT-300NII BD-XL"));
    compareAnswer({"Ready", "0", "0", "2.0 GB"});
    QCOMPARE(texts().mid(0, 3), (QStringList{"Studio", "N/A", "\\\\127.0.0.11"}));
    QCOMPARE(file(), text);
}

void NetworkListTest::approvalLetsAnOldServerIn()
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
                shown.reject(); // what was not saved shows in the row
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

void NetworkListTest::serverComesBack()
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
    // The service of this computer is one thing, the servers are another.
    QVERIFY((*m_room)->tell("", "service off"));
    ask();
    QCOMPARE(texts("N")[3], "Ready");
    QCOMPARE(texts("D")[3], "Not connected");
}

void NetworkListTest::slowServerHoldsBackOnlyItself()
{
    startRoom(studio() + "[network Slow]\nid = S\nmodel = RT-300NII\n"
                         "[publisher Desk]\nid = D\nmodel = RT-300III BD\n");
    m_room->spoil("", "delay 4000", 0, "Slow"); // two answers take longer than the time between two ticks
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
    QCOMPARE(asked, connecting.mid(0, asked.size())); // one query alone
    QCOMPARE(texts("S")[3], "Not connected");
}

void NetworkListTest::publisherRemovedWhileItsServerIsAsked()
{
    startRoom(studio() + "[network Other]\nid = O\nmodel = RT-300NII\n");
    m_room->spoil(fatalGetter, "stall", 0, "Studio");
    m_window = std::make_unique<PubSetup>(nullptr);
    QVERIFY((*m_room)->waitForHttpRequests(fatalGetter, 1));
    QTRY_VERIFY(m_room->asked().contains(QString("GET ") + fatalGetter));
    Installation::remove("N");
    m_window->updateList();
    QCOMPARE(texts("N"), QStringList());
    QVERIFY((*m_room)->tell("Studio", "server off")); // lets the query go
    QVERIFY(waitForTasks(10000));
    QCoreApplication::processEvents();
    QCOMPARE(texts("N"), QStringList());
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 1);
    QTRY_COMPARE(texts("O")[3], "Ready");
}

void NetworkListTest::closingWaitsForTheRunningQuestionAlone()
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
    QVERIFY(closing.elapsed() > 500); // the answer was yet to come
    QVERIFY(!m_room->asked().contains(last));
}

/// As a person does, who says yes.
void NetworkListTest::remove(const QString& key)
{
    m_window->treePublisherList->clearSelection();
    m_window->findItemByPublisherRegistID(key)->setSelected(true);
    Boxes boxes({QMessageBox::Yes});
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    QCOMPARE(boxes.seen()[0].text, "Do you want to delete it?");
}

void NetworkListTest::removedWithItsJobs()
{
    open(studio("RT-300NII", "jobs = 3\n"));
    (*m_room)->advance(1000);
    m_room->forget();
    remove("N");
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 0);
    QVERIFY(!std::filesystem::exists(Installation::settingFile("N")));
    QCOMPARE(m_room->asked(), connecting + readingTheRecord); // nobody asks for its jobs
    QCOMPARE((*m_room)->jobs("Studio").size(), size_t{3});
}

void NetworkListTest::removedOutOfReach()
{
    open(studio("RT-300NII", "listening = no\n"));
    remove("N");
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 0);
    QVERIFY(!std::filesystem::exists(Installation::settingFile("N")));
}

void NetworkListTest::unreadablePublisherLosesItsRowOnly()
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

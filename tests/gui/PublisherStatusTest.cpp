// Tests the status texts of publishers at a control service, from the query on a pool thread to the row.
#include "Installation.h"
#include "LocalRoom.h"
#include "MyRunnable.h"
#include "PubSetup.h"
#include "ScriptedService.h"

#include <QTest>
#include <QThread>
#include <QThreadPool>

#include <optional>

class PublisherStatusTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void rowShowsStatus_data();
    void rowShowsStatus();
    void notConnectedWithoutService();
    void timerUpdatesRows();
    void returningServiceIsDetected();
    void stalledPublisherIsQueriedOnce();
    void publisherRemovedDuringQuery();
    void repliesComeFromPoolThread();
    void replyForUnknownRowIsDiscarded();
    void replyUpdatesEveryColumnButTheName();
    void unknownNumbersAreDashes();
    void unreadablePublisherIsNotReported();
    void absentPublisherIsNotQueried();

private:
    void open();
    void ask();
    QStringList texts(const QString& key) const;

    Installation m_installation;
    std::optional<LocalRoom> m_service;
    std::unique_ptr<PubSetup> m_window;
};

void PublisherStatusTest::initTestCase()
{
    QThreadPool::globalInstance()->setMaxThreadCount(4); // independent of the number of CPUs
}

void PublisherStatusTest::open()
{
    m_window = std::make_unique<PubSetup>(nullptr);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

/// Queries all publishers again, after running queries have ended; a running query would suppress the new
/// one.
void PublisherStatusTest::ask()
{
    QVERIFY(waitForTasks(10000));
    m_window->fetchStatusAsync();
}

void PublisherStatusTest::cleanup()
{
    m_window.reset();
    m_service.reset();
    QVERIFY(waitForTasks(10000));
    m_installation = Installation();
}

QStringList PublisherStatusTest::texts(const QString& key) const
{
    const QTreeWidgetItem* row = m_window->findItemByPublisherRegistID(key);
    QStringList list;
    for (int column = 0; row && column < 7; ++column) {
        list << row->text(column);
    }
    return list;
}

void PublisherStatusTest::rowShowsStatus_data()
{
    QTest::addColumn<bool>("attached");
    QTest::addColumn<uint>("fatalCode");
    QTest::addColumn<QVector<quint64>>("jobs");
    QTest::addColumn<uint>("jobsResult");
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("waiting");
    const QVector<quint64> none;
    QTest::newRow("not attached") << false << 0U << none << 0U << "Not connected"
                                  << "-";
    QTest::newRow("not attached, with an error") << false << 9U << none << 0U << "Not connected"
                                                 << "-";
    QTest::newRow("offline") << true << 11U << none << 0U << "Not connected"
                             << "-";
    QTest::newRow("cover open") << true << 9U << QVector<quint64>{1} << 0U << "Error"
                                << "-";
    QTest::newRow("service's own error code") << true << 1010U << none << 0U << "Error"
                                              << "-";
    QTest::newRow("ready, no jobs") << true << 0U << none << 0U << "Ready"
                                    << "0";
    QTest::newRow("ready, jobs") << true << 0U << QVector<quint64>{2, 1, 9, 1, 8, 1, 5} << 0U << "Ready"
                                 << "3";
    QTest::newRow("ready, no job list") << true << 0U << QVector<quint64>{1} << 1001U << "Ready"
                                        << "0";
}

void PublisherStatusTest::rowShowsStatus()
{
    QFETCH(bool, attached);
    QFETCH(uint, fatalCode);
    QFETCH(QVector<quint64>, jobs);
    QFETCH(uint, jobsResult);
    QFETCH(QString, status);
    QFETCH(QString, waiting);
    ScriptedService service;
    service.setFatalCode("X", fatalCode);
    service.setJobs("X", std::vector<uint64_t>(jobs.begin(), jobs.end()));
    service.setJobsResult("X", jobsResult);
    m_installation.addLocal("X", "Studio", 0x30000009, attached);
    open();
    m_window->findItemByPublisherRegistID("X")->setText(3, "before the answer");
    ask();
    QTRY_COMPARE(texts("X"), (QStringList{"Studio", "RT-300III (BD-XL)", "-", status, waiting, "-", "-"}));
}

void PublisherStatusTest::notConnectedWithoutService()
{
    m_installation.addLocal("X", "Studio");
    open();
    m_window->findItemByPublisherRegistID("X")->setText(3, "before the answer");
    ask();
    QTRY_COMPARE(texts("X"), (QStringList{"Studio", "RT-300III", "-", "Not connected", "-", "-", "-"}));
}

void PublisherStatusTest::timerUpdatesRows()
{
    m_service.emplace(std::vector<std::string>{"A", "X"});
    m_installation.addLocal("X", "Studio");
    m_window = std::make_unique<PubSetup>(nullptr);
    // No event loop runs, so the timer cannot fire.
    QVERIFY2(m_service->waitFor("22 X", 1), "the first query is not sent at once");
    QTRY_COMPARE_WITH_TIMEOUT(texts("X")[3], "Ready", 20000);
    (*m_service)->tell("X", "error 19");
    QTRY_COMPARE_WITH_TIMEOUT(texts("X")[3], "Error", 20000);
    QCOMPARE(texts("X")[4], "-");
}

void PublisherStatusTest::returningServiceIsDetected()
{
    m_service.emplace(std::vector<std::string>{"A", "X"});
    m_installation.addLocal("X", "Studio");
    open();
    QTRY_COMPARE(texts("X")[3], "Ready");
    m_service.reset();
    ask();
    QTRY_COMPARE(texts("X")[3], "Not connected");
    m_service.emplace(std::vector<std::string>{"A", "X"});
    ask();
    QTRY_COMPARE(texts("X")[3], "Ready");
}

void PublisherStatusTest::stalledPublisherIsQueriedOnce()
{
    m_service.emplace(std::vector<std::string>{"A", "X"});
    m_service->hold("22 A");
    m_installation.addLocal("A", "A");
    open();
    QVERIFY(m_service->waitFor("22 A", 1));
    m_window->fetchStatusAsync();
    m_window->fetchStatusAsync();
    QCOMPARE(texts("A")[3], "Not connected");
    m_service->release("22 A");
    QVERIFY(waitForTasks(10000));
    QCOMPARE(m_service->count("22 A"), 1);
    QTRY_COMPARE(texts("A")[3], "Ready");
    ask();
    QVERIFY(m_service->waitFor("22 A", 2));
}

void PublisherStatusTest::publisherRemovedDuringQuery()
{
    m_service.emplace(std::vector<std::string>{"A", "X"});
    m_service->hold("22 A");
    m_installation.addLocal("A", "A");
    open();
    QVERIFY(m_service->waitFor("22 A", 1));
    Installation::remove("A");
    m_window->updateList();
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 0);
    m_service->release("22 A");
    QVERIFY(m_service->waitFor("4 A", 1));
    QVERIFY(waitForTasks(10000));
    QCoreApplication::processEvents();
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 0);
}

void PublisherStatusTest::repliesComeFromPoolThread()
{
    m_installation.addLocal("A", "A");
    open();
    std::atomic<QThread*> thread = nullptr;
    connect(
        m_window.get(), &PubSetup::updateStatusOneDeviceSignal, this,
        [&] { thread = QThread::currentThread(); }, Qt::DirectConnection);
    ask();
    QTRY_VERIFY(thread != nullptr);
    QVERIFY(thread != QThread::currentThread());
    QVERIFY(waitForTasks(10000));

    thread = nullptr;
    m_window->fetchStatusOneDevice("A"); // may be called on any thread
    QVERIFY(thread == QThread::currentThread());
}

void PublisherStatusTest::replyForUnknownRowIsDiscarded()
{
    m_installation.addLocal("A", "A");
    open();
    m_window->updateStatusOneDevice("B", "RT-30II", "", "Ready", 1, 1, "1.0 GB");
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 1);
    QCOMPARE(texts("A")[1], "RT-300III");
}

void PublisherStatusTest::replyUpdatesEveryColumnButTheName()
{
    m_installation.addLocal("A", "A");
    open();
    m_window->updateStatusOneDevice("A", "RT-300NII", "studio-3", "Ready", 12, 3, "1.5 GB");
    QCOMPARE(texts("A"), (QStringList{"A", "RT-300NII", "studio-3", "Ready", "12", "3", "1.5 GB"}));
}

void PublisherStatusTest::unknownNumbersAreDashes()
{
    m_installation.addLocal("A", "A");
    open();
    m_window->updateStatusOneDevice("A", "RT-300NII", "studio-3", "Error", -1, -1, "-");
    QCOMPARE(texts("A"), (QStringList{"A", "RT-300NII", "studio-3", "Error", "-", "-", "-"}));
    m_window->updateStatusOneDevice("A", "RT-300NII", "", "Ready", 0, 0, "0.0 GB");
    QCOMPARE(texts("A"), (QStringList{"A", "RT-300NII", "-", "Ready", "0", "0", "0.0 GB"}));
}

void PublisherStatusTest::unreadablePublisherIsNotReported()
{
    m_installation.addLocal("A", "A");
    open();
    m_window->updateStatusOneDevice("A", "RT-30II", "", "old text", 5, -1, "-");
    Installation::remove("A");
    m_window->fetchStatusOneDevice("A");
    QCOMPARE(texts("A"), (QStringList{"A", "RT-30II", "-", "old text", "5", "-", "-"}));
}

void PublisherStatusTest::absentPublisherIsNotQueried()
{
    m_service.emplace(std::vector<std::string>{"A", "X"});
    m_installation.addLocal("A", "A", 0x20000009, false);
    open();
    QVERIFY(waitForTasks(10000));
    QCOMPARE(m_service->count("22 A"), 0);
    QCOMPARE(m_service->count("4 A"), 0);
}

QTEST_MAIN(PublisherStatusTest)
#include "PublisherStatusTest.moc"

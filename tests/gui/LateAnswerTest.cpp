// Closing the window during a query, and replies that arrive after the window is destroyed.
#include "Installation.h"
#include "LocalRoom.h"
#include "MyRunnable.h"
#include "PubSetup.h"

#include <QElapsedTimer>
#include <QTest>
#include <QThreadPool>

#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

namespace {

constexpr std::chrono::milliseconds lateness(1500); // the window has begun to close by then

} // namespace

class LateAnswerTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void outOfMemoryEndsOnlyThatTask();
    void closingWaitsForTheReply();
    void closingSkipsTheRemainingQueries();
    void replyAfterTheWindowIsDestroyed();

private:
    Installation m_installation;
};

void LateAnswerTest::init()
{
    m_installation = Installation();
}

void LateAnswerTest::outOfMemoryEndsOnlyThatTask()
{
    std::atomic<bool> nextHasRun = false;
    QThreadPool::globalInstance()->start(new MyRunnable([] { throw std::bad_alloc(); }));
    QThreadPool::globalInstance()->start(new MyRunnable([&] { nextHasRun = true; }));
    QVERIFY(waitForTasks(10000));
    QVERIFY(nextHasRun);
}

void LateAnswerTest::closingWaitsForTheReply()
{
    LocalRoom service({"a", "b"});
    service.hold("22 a");
    m_installation.addLocal("a", "A");
    auto window = std::make_unique<PubSetup>(nullptr);
    window->show();
    QVERIFY(service.waitFor("22 a", 1));
    std::atomic<bool> answered = false;
    std::thread answer([&] {
        std::this_thread::sleep_for(lateness); // house-rule: sleeps: the reply must be late
        answered = true;
        service.release("22 a");
    });
    QElapsedTimer time;
    time.start();
    window.reset();
    QVERIFY(answered);
    QVERIFY(time.elapsed() < 9000);
    answer.join();
    QVERIFY(waitForTasks(10000));
    QCoreApplication::processEvents();
}

void LateAnswerTest::closingSkipsTheRemainingQueries()
{
    LocalRoom service({"a", "b"});
    m_installation.addLocal("a", "A");
    m_installation.addLocal("b", "B");
    service.hold("22 a");
    service.hold("22 b");
    auto window = std::make_unique<PubSetup>(nullptr);
    QTRY_COMPARE(service.count("22 a") + service.count("22 b"), 1); // the folder's order decides which
    std::thread answer([&] {
        std::this_thread::sleep_for(lateness); // house-rule: sleeps: the reply must be late
        service.release("22 a");
        service.release("22 b");
    });
    window.reset();
    answer.join();
    QVERIFY(waitForTasks(10000));
    QCOMPARE(service.count("22 a") + service.count("22 b"), 1);
}

void LateAnswerTest::replyAfterTheWindowIsDestroyed()
{
    LocalRoom service({"a", "b"});
    service.hold("22 a");
    m_installation.addLocal("a", "A");
    auto window = std::make_unique<PubSetup>(nullptr);
    window->show();
    QVERIFY(service.waitFor("22 a", 1));
    QElapsedTimer time;
    time.start();
    window.reset();
    const qint64 waited = time.elapsed();
    QVERIFY2(waited >= 9900 && waited < 15000, qPrintable(QString::number(waited)));
    QCOMPARE(QThreadPool::globalInstance()->activeThreadCount(), 1); // the query still hangs
    service.release("22 a");
    QVERIFY(waitForTasks(10000));
    QCoreApplication::processEvents();
    QVERIFY2(service.count("4 a") <= 1, "the jobs were queried more than once");
}

QTEST_MAIN(LateAnswerTest)
#include "LateAnswerTest.moc"

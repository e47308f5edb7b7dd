// The busy indicator that is shown during slow work, and the windows behind it.
#include "Installation.h"
#include "MyRunnable.h"
#include "PubSetup.h"
#include "Shown.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <future>
#include <thread>

#include <pthread.h>

namespace {

constexpr std::chrono::seconds patience(15);

/// Work that runs until release(). Without release() it gives up after `patience`, and ended() stays false.
class Work
{
public:
    std::function<void()> function()
    {
        return [this, released = m_release.get_future().share()] {
            m_ended = released.wait_for(patience) == std::future_status::ready;
        };
    }
    void release()
    {
        m_release.set_value();
    }
    bool ended() const
    {
        return m_ended;
    }

private:
    std::promise<void> m_release;
    std::atomic<bool> m_ended = false;
};

} // namespace

class BusyIndicatorTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void isShownWhileTheWorkRuns();
    void needsNoParent();
    void cannotBeDismissed_data();
    void cannotBeDismissed();
    void blocksInputToItsParent();
    void workRunsOnAnotherThread();
    void eventsAreProcessedTenTimesASecond();
    void returnsSoonAfterTheWorkEnds();
    void quickWorkShowsNoIndicator();
    void resultsAreAvailableOnReturn();
    void workRunsOnTheCallingThreadWhenNoneStarts();
    void isWideAndCentresItsBar();

private:
    Installation m_installation;
    std::unique_ptr<PubSetup> m_window;
};

void BusyIndicatorTest::init()
{
    m_installation = Installation();
    m_window = std::make_unique<PubSetup>(nullptr);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void BusyIndicatorTest::cleanup()
{
    m_window.reset();
    QVERIFY(waitForTasks(10000));
    QCOMPARE(shownWindow<QProgressDialog>(), nullptr);
}

void BusyIndicatorTest::isShownWhileTheWorkRuns()
{
    Work work;
    QString title, label;
    int minimum = -1, maximum = -1, buttons = -1, duration = -1;
    Qt::WindowModality modality = Qt::NonModal;
    QWidget* parent = nullptr;
    WhenShown<QProgressDialog> indicator([&](QProgressDialog& shown) {
        title = shown.windowTitle();
        label = shown.labelText();
        minimum = shown.minimum();
        maximum = shown.maximum();
        buttons = static_cast<int>(shown.findChildren<QPushButton*>().size());
        duration = shown.minimumDuration();
        modality = shown.windowModality();
        parent = shown.parentWidget();
        work.release();
    });
    m_window->doWithProgress(work.function());
    QVERIFY(indicator.seen());
    QVERIFY(work.ended());
    QCOMPARE(title, "ARVEN Ulmar Disc Setup");
    QCOMPARE(label, "");
    QCOMPARE(minimum, 0);
    QCOMPARE(maximum, 0);
    QCOMPARE(buttons, 0);
    QCOMPARE(duration, 0);
    QCOMPARE(modality, Qt::WindowModal);
    QCOMPARE(parent, m_window.get());
    QCOMPARE(shownWindow<QProgressDialog>(), nullptr);
}

void BusyIndicatorTest::needsNoParent()
{
    m_window->hide();
    Work work;
    QWidget* parent = m_window.get();
    WhenShown<QProgressDialog> indicator([&](QProgressDialog& shown) {
        parent = shown.parentWidget();
        work.release();
    });
    PubSetup::doWithProgress(work.function(), nullptr);
    QVERIFY(indicator.seen());
    QVERIFY(work.ended());
    QCOMPARE(parent, nullptr);
}

void BusyIndicatorTest::cannotBeDismissed_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Escape") << true;
    QTest::newRow("frame") << false;
}

void BusyIndicatorTest::cannotBeDismissed()
{
    QFETCH(bool, byKey);
    Work work;
    bool stays = false, closed = true, cancelled = true;
    WhenShown<QProgressDialog> indicator([&](QProgressDialog& shown) {
        if (byKey) {
            QTest::keyClick(&shown, Qt::Key_Escape);
        }
        closed = !byKey && shown.close();
        stays = shown.isVisible() && QApplication::activeModalWidget() == &shown;
        cancelled = shown.wasCanceled();
        work.release();
    });
    m_window->doWithProgress(work.function());
    QVERIFY(indicator.seen());
    QVERIFY(work.ended());
    QVERIFY(stays);
    QVERIFY(!closed);
    QVERIFY(!cancelled);
}

void BusyIndicatorTest::blocksInputToItsParent()
{
    Work work;
    WhenShown<QProgressDialog> indicator([&](QProgressDialog&) {
        const QPoint file = m_window->menubar->actionGeometry(m_window->fileMenu->menuAction()).center();
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          m_window->menubar->mapTo(m_window.get(), file));
        work.release();
    });
    m_window->doWithProgress(work.function());
    QVERIFY(indicator.seen());
    QCOMPARE(QApplication::activePopupWidget(), nullptr);

    // Without the indicator the same click opens the menu.
    const QPoint file = m_window->menubar->actionGeometry(m_window->fileMenu->menuAction()).center();
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      m_window->menubar->mapTo(m_window.get(), file));
    QTRY_COMPARE(QApplication::activePopupWidget(), m_window->fileMenu);
    m_window->fileMenu->close();
}

void BusyIndicatorTest::workRunsOnAnotherThread()
{
    std::thread::id worker;
    m_window->doWithProgress([&worker] { worker = std::this_thread::get_id(); });
    QVERIFY(worker != std::thread::id());
    QVERIFY(worker != std::this_thread::get_id());
}

void BusyIndicatorTest::eventsAreProcessedTenTimesASecond()
{
    Work work;
    QElapsedTimer time;
    int served = 0;
    QTimer ticks; // shorter than the interval of the indicator: fires once in each turn of the loop
    connect(&ticks, &QTimer::timeout, this, [&] {
        if (++served == 10) {
            work.release();
        }
    });
    ticks.start(20);
    time.start();
    m_window->doWithProgress(work.function());
    const qint64 elapsed = time.elapsed();
    QVERIFY2(work.ended(), "the user interface was blocked");
    QVERIFY2(elapsed >= 900, qPrintable(QString::number(elapsed)));
    QVERIFY2(elapsed < 5000, qPrintable(QString::number(elapsed)));
}

void BusyIndicatorTest::returnsSoonAfterTheWorkEnds()
{
    using Clock = std::chrono::steady_clock;
    auto best = std::chrono::milliseconds::max();
    for (int i = 0; i < 5; ++i) { // the best of five, because the machine may be busy
        std::atomic<Clock::time_point> end;
        PubSetup::doWithProgress([&end] { end = Clock::now(); }, m_window.get());
        best =
            std::min(best, std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - end.load()));
    }
    QVERIFY2(best.count() <= 150, qPrintable(QString::number(best.count())));
}

void BusyIndicatorTest::quickWorkShowsNoIndicator()
{
    int runs = 0;
    m_window->doWithProgress([&runs] { ++runs; });
    QCOMPARE(runs, 1);
    QCOMPARE(shownWindow<QProgressDialog>(), nullptr);
    QCoreApplication::processEvents();
    QCOMPARE(shownWindow<QProgressDialog>(), nullptr);
}

void BusyIndicatorTest::resultsAreAvailableOnReturn()
{
    std::vector<int> results;
    for (int i = 0; i < 3; ++i) {
        m_window->doWithProgress([&results, i] { results.push_back(i); });
        QCOMPARE(results.size(), size_t(i) + 1);
        QCOMPARE(results.back(), i);
    }
}

void BusyIndicatorTest::workRunsOnTheCallingThreadWhenNoneStarts()
{
    QVERIFY(waitForTasks(10000));
    pthread_attr_t usual, endless;
    QCOMPARE(pthread_getattr_default_np(&usual), 0);
    QCOMPARE(pthread_attr_init(&endless), 0);
    QCOMPARE(pthread_attr_setstacksize(&endless, size_t(1) << 47), 0); // exceeds the address space
    QCOMPARE(pthread_setattr_default_np(&endless), 0);
    std::thread::id worker;
    m_window->doWithProgress([&worker] { worker = std::this_thread::get_id(); });
    QCOMPARE(pthread_setattr_default_np(&usual), 0);
    pthread_attr_destroy(&endless);
    pthread_attr_destroy(&usual);
    QVERIFY(worker == std::this_thread::get_id());
}

void BusyIndicatorTest::isWideAndCentresItsBar()
{
    Work work;
    int width = 0, barWidth = 0, height = 0, barTop = 0, barBottom = 0;
    WhenShown<QProgressDialog> indicator([&](QProgressDialog& shown) {
        const QRect bar = shown.findChild<QProgressBar*>()->geometry();
        width = shown.width();
        height = shown.height();
        barWidth = bar.width();
        barTop = bar.top();
        barBottom = bar.bottom();
        work.release();
    });
    m_window->doWithProgress(work.function());
    QVERIFY(indicator.seen());
    QVERIFY(width >= m_window->fontMetrics().horizontalAdvance("ARVEN Ulmar Disc Setup") * 3 / 2);
    QVERIFY(barWidth > width / 2);
    QVERIFY(barTop > 0);
    QVERIFY2(std::abs(barTop - (height - 1 - barBottom)) <= 1, "the bar is not vertically centred");
}

QTEST_MAIN(BusyIndicatorTest)
#include "BusyIndicatorTest.moc"

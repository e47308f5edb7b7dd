// The list window: its start-up, and its polls until all of them have ended.
#include "MyRunnable.h"
#include "NW_Com_Lib.h"
#include "PubSetup.h"
#include "Scenarios.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

constexpr int beat = 20;          // milliseconds
constexpr int beatsAfterPoll = 3; // they follow the queued rows of the last poll
constexpr int patience = 7000;    // milliseconds, for the second tick, after 5 seconds, and its poll
constexpr int taskPatience = 2000;

qint64 longestGap = 0;

/// Beats in the event loop of the window, and ends it once all polls have ended.
class Heartbeat : public QObject
{
public:
    void listen()
    {
        m_quiet = 0;
        m_time.start();
        m_last = 0;
        m_id = startTimer(beat, Qt::PreciseTimer);
        m_loop.exec();
        killTimer(m_id);
    }

protected:
    void timerEvent(QTimerEvent* /*event*/) override
    {
        const qint64 now = m_time.elapsed();
        longestGap = std::max(longestGap, now - m_last);
        m_last = now;
        m_quiet = waitForTasks(0) ? m_quiet + 1 : 0;
        if (m_quiet > beatsAfterPoll || now > patience) {
            m_loop.quit();
        }
    }

private:
    QEventLoop m_loop;
    QElapsedTimer m_time;
    qint64 m_last = 0;
    int m_quiet = 0;
    int m_id = 0;
};

void showList(QString& result)
{
    static Heartbeat heart;
    {
        PubSetup window(nullptr);
        window.show();
        heart.listen();
        for (int row = 0; row < window.treePublisherList->topLevelItemCount(); ++row) {
            const QTreeWidgetItem* const item = window.treePublisherList->topLevelItem(row);
            for (int column = 0; column < window.treePublisherList->columnCount(); ++column) {
                result += item->text(column) + QLatin1Char('\t');
            }
            result += QLatin1Char('\n');
        }
    }
    waitForTasks(taskPatience);
}

/// A file of the report.
std::ofstream reported(const char* name)
{
    return std::ofstream(std::filesystem::path(std::getenv("FAULT_FOLDER")) / name);
}

void writeGap()
{
    reported("gap") << longestGap;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    SetTextLocale();
    const int result = runScenario(argc, argv, {{"window", {}, showList, writeGap}});
    if (!waitForTasks(taskPatience)) {
        reported("unfinished");
        std::_Exit(result); // as the program: Qt would wait forever for a task whose thread was not started
    }
    return result;
}

// Closes the window again and again while queries run. Prints the seed, and each window before it is opened;
// the same seed repeats the numbers of requests after which the window is closed, and the publishers that
// come and go.
#include "HangLimit.h"
#include "ManyPublishers.h"
#include "MyRunnable.h"
#include "NW_Com_Lib.h"
#include "Plan.h"
#include "PubSetup.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QThreadPool>

#include <cstdio>
#include <ctime>
#include <memory>
#include <random>

namespace {

constexpr int patience = 60000;        // milliseconds: bounds a hang, not a speed
constexpr int requestTime = 5000;      // milliseconds: the longest wait for requests
constexpr unsigned mostRequests = 800; // of the first poll, before the window is closed
constexpr int mostWindows = 3;         // for each that is closed during queries

/// Opens a window and closes it after some requests. Returns whether queries ran at that time.
bool openAndClose(const ManyPublishers& publishers, std::mt19937_64& random)
{
    const int awaited = publishers.requests() + static_cast<int>(random() % mostRequests);
    const bool show = random() % 4 != 0;
    const bool close = random() % 2 == 0;
    auto window = std::make_unique<PubSetup>(nullptr);
    if (show) {
        window->show();
    }
    publishers.serveUntil(awaited, requestTime);
    const bool polling = QThreadPool::globalInstance()->activeThreadCount() > 0;
    if (close) {
        window->close();
    }
    window.reset();
    return polling;
}

/// Returns whether so many windows were closed during queries.
bool closeInPolls(uint64_t seed, int count)
{
    std::mt19937_64 random(seed);
    ManyPublishers publishers;
    QElapsedTimer time;
    time.start();
    int closed = 0;
    int windows = 0;
    while (closed < count && windows < mostWindows * count) {
        limitHang();
        // The times tell a window that hangs from a program that gets no processor.
        std::printf("close: window %d after %.1f s, %.1f s of processor time\n", ++windows,
                    static_cast<double>(time.elapsed()) / 1000,
                    static_cast<double>(std::clock()) / CLOCKS_PER_SEC);
        std::fflush(stdout);
        closed += openAndClose(publishers, random) ? 1 : 0;
        const auto publisher = static_cast<unsigned>(random() % publisherCount);
        if (random() % 2 == 0) {
            publishers.comes(publisher);
        } else if (random() % 3 == 0) {
            ManyPublishers::goes(publisher);
        }
        QCoreApplication::processEvents(); // late replies
    }
    std::printf("close: %d of %d windows of seed %llu closed during queries in %.1f s\n", closed, windows,
                static_cast<unsigned long long>(seed), static_cast<double>(time.elapsed()) / 1000);
    std::fflush(stdout);
    limitHang(); // for the end of the program
    return count > 0 && closed == count;
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
                        {"count", "The number of windows that are closed during queries.", "number", "20"}});
    options.process(app);
    const quint64 seed = options.value("seed").toULongLong();
    std::printf("close: seed %llu\n", static_cast<unsigned long long>(seed));
    const bool good = closeInPolls(seed, options.value("count").toInt());
    return waitForTasks(patience) && good ? 0 : 1;
}

// Measures the start of the program with an empty list, compared with a minimal Qt window: the time until the
// list is on the screen, and the resident memory then. Both are observed from outside, on a virtual screen.
#include "Installation.h"
#include "Stopwatch.h"

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>

namespace {

constexpr int repetitions = 21;
constexpr int settling = 300; // milliseconds until the memory is read

struct Candidate
{
    const char* name;
    const char* program;
    std::vector<double> milliseconds;
    std::vector<double> residentKiB;
};

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The empty list is the only light area in the middle of the screen.
bool listIsVisible()
{
    QScreen* screen = QGuiApplication::primaryScreen();
    const QPoint middle = screen->geometry().center();
    const QImage pixel = screen->grabWindow(0, middle.x(), middle.y(), 1, 1).toImage();
    return qGray(pixel.pixel(0, 0)) > 200;
}

double residentKiB(qint64 pid)
{
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with("VmRSS:")) {
            return std::stod(line.substr(6));
        }
    }
    return 0;
}

bool measure(Candidate& candidate, bool count)
{
    QProcess program;
    program.setStandardErrorFile(QProcess::nullDevice());
    const auto start = std::chrono::steady_clock::now();
    program.start(candidate.program, QStringList());
    while (!listIsVisible()) {
        if (std::chrono::steady_clock::now() - start > std::chrono::seconds(20)) {
            return false;
        }
        QThread::usleep(500);
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    QThread::msleep(settling);
    if (count) {
        candidate.milliseconds.push_back(time.count());
        candidate.residentKiB.push_back(residentKiB(program.processId()));
    }
    program.kill();
    program.waitForFinished();
    while (listIsVisible()) {
        QThread::msleep(5);
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    QProcess server;
    server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1024x600x24", "-nolisten", "tcp"});
    if (!server.waitForReadyRead(20000)) {
        std::fprintf(stderr, "Xvfb did not start\n");
        return 1;
    }
    qputenv("DISPLAY", ":" + server.readLine().trimmed());
    qputenv("XDG_RUNTIME_DIR", "/tmp");
    qunsetenv("QT_QPA_PLATFORM");

    int result = 0;
    {
        QGuiApplication app(argc, argv);
        Installation installation;
        Candidate candidates[] = {{"UDSetup, empty list", UDSETUP_PROGRAM, {}, {}},
                                  {"minimal window", MINIMAL_PROGRAM, {}, {}}};
        for (int round = -2; round < repetitions && result == 0; ++round) { // two to warm up
            for (Candidate& candidate : candidates) {
                if (!measure(candidate, round >= 0)) {
                    std::fprintf(stderr, "%s: the window did not appear\n", candidate.name);
                    result = 1;
                }
            }
        }
        if (result == 0) {
            std::printf("start (medians of %d interleaved starts)\n", repetitions);
            for (const Candidate& candidate : candidates) {
                const Candidate& reference = candidates[1];
                std::printf("  %-24s first paint %7.1f ms  %6.3f x   resident %8.0f KiB  %6.3f x\n",
                            candidate.name, median(candidate.milliseconds),
                            median(candidate.milliseconds) / median(reference.milliseconds),
                            median(candidate.residentKiB),
                            median(candidate.residentKiB) / median(reference.residentKiB));
            }
            // The program decodes its icons; the minimal window has none.
            PrintRatioGoal("start, vs a minimal window",
                           {median(candidates[0].milliseconds), median(candidates[1].milliseconds)}, 1.11);
            PrintRatioGoal("memory after the start, vs a minimal window",
                           {median(candidates[0].residentKiB), median(candidates[1].residentKiB)}, 1.03);
        }
    }
    server.terminate();
    server.waitForFinished();
    return result;
}

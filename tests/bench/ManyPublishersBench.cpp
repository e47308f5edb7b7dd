// Measures many network publishers. First, fifty that do not answer and one that does: how often that one is
// refreshed, and how long the window keeps a user waiting. Then a hundred that answer: first the longest wait
// for the window, which has a goal; this is the only benchmark that fails if it misses one. Then the same
// publishers, polled by the program for a minute: its processor time, and its memory and descriptors, which
// must not grow. The servers run in their own process. Takes about three minutes.
#include "Installation.h"
#include "MyRunnable.h"
#include "PubSetup.h"
#include "Stopwatch.h"

#include <QApplication>
#include <QProcess>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <memory>
#include <sstream>
#include <thread>
#include <vector>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr char scenarioFile[] = "/tmp/many.udsim";
constexpr char requestFile[] = "/tmp/requests";

constexpr int lostPublishers = 50;
constexpr std::chrono::seconds lostTime(45);
constexpr std::chrono::milliseconds probeInterval(5);
constexpr double refreshLimit = 10; // seconds
constexpr double answerLimit = 100; // milliseconds

constexpr int livingPublishers = 100;
constexpr std::chrono::seconds windowTime(30);
constexpr int taskPatience = 10000; // milliseconds
constexpr int warmUp = 32;          // seconds, until each thread of the pool has parsed the largest replies
constexpr int minute = 60;
constexpr int sampleInterval = 10; // seconds

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Runs the event loop for this time.
void serveEvents(std::chrono::milliseconds time)
{
    QTimer::singleShot(time, QApplication::instance(), &QCoreApplication::quit);
    QApplication::exec();
}

/// The publisher servers of a scenario. They create their setting files, and write each request as a line to
/// `requestFile`.
class Servers
{
public:
    explicit Servers(const std::string& scenario)
    {
        WriteText(scenarioFile, scenario);
        m_process.setStandardOutputFile(requestFile);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(UDSIM_PROGRAM, {scenarioFile, "--requests"});
    }
    Servers(const Servers&) = delete;
    Servers& operator=(const Servers&) = delete;
    ~Servers()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    bool serve()
    {
        const auto start = Clock::now();
        while (lines("udsim: ready") == 0) {
            if (m_process.state() == QProcess::NotRunning || secondsSince(start) > 20) {
                return false;
            }
            serveEvents(std::chrono::milliseconds(10));
        }
        return true;
    }
    /// The number of lines of their output that contain the text.
    static int lines(const std::string& text)
    {
        std::ifstream file(requestFile);
        int count = 0;
        for (std::string line; std::getline(file, line);) {
            count += line.find(text) != std::string::npos ? 1 : 0;
        }
        return count;
    }

private:
    QProcess m_process;
};

/// A listening socket whose queue is full: the kernel silently drops further connection requests.
class LostAddress
{
public:
    explicit LostAddress(const std::string& address)
    {
        m_address.sin_family = AF_INET;
        m_address.sin_port = htons(80);
        m_address.sin_addr.s_addr = inet_addr(address.c_str());
        m_sockets.push_back(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
        m_good = ::bind(m_sockets[0], where(), sizeof m_address) == 0 && ::listen(m_sockets[0], 0) == 0;
        for (int i = 0; i < 3; ++i) {
            m_sockets.push_back(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
            ::connect(m_sockets.back(), where(), sizeof m_address);
        }
    }
    LostAddress(const LostAddress&) = delete;
    LostAddress& operator=(const LostAddress&) = delete;
    ~LostAddress()
    {
        for (const int socket : m_sockets) {
            ::close(socket);
        }
    }

    /// Whether the last connection request got no answer.
    bool isLost() const
    {
        int error = 0;
        socklen_t size = sizeof error;
        sockaddr_in peer{};
        socklen_t peerSize = sizeof peer;
        return m_good && ::getsockopt(m_sockets.back(), SOL_SOCKET, SO_ERROR, &error, &size) == 0 &&
               error == 0 &&
               ::getpeername(m_sockets.back(), reinterpret_cast<sockaddr*>(&peer), &peerSize) != 0;
    }

private:
    const sockaddr* where() const
    {
        return reinterpret_cast<const sockaddr*>(&m_address);
    }

    sockaddr_in m_address{};
    std::vector<int> m_sockets;
    bool m_good = false;
};

/// Posts calls to the event loop repeatedly, like the mouse events of a user, and records their delays.
class Prober
{
public:
    Prober()
        : m_thread([this] {
              while (!m_end) {
                  const auto asked = Clock::now();
                  QMetaObject::invokeMethod(
                      QApplication::instance(),
                      [this, asked] { m_milliseconds.push_back(secondsSince(asked) * 1000); },
                      Qt::QueuedConnection);
                  std::this_thread::sleep_for(probeInterval);
              }
          })
    {
    }
    Prober(const Prober&) = delete;
    Prober& operator=(const Prober&) = delete;
    ~Prober()
    {
        m_end = true;
        m_thread.join();
        QApplication::processEvents(); // the last answers
    }

    const std::vector<double>& milliseconds() const
    {
        return m_milliseconds;
    }

private:
    std::atomic<bool> m_end = false;
    std::vector<double> m_milliseconds; // used by the user-interface thread
    std::thread m_thread;
};

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

bool measureLost()
{
    Servers servers("[network Living]\nmodel = RT-300NII\nid = living\n");
    if (!servers.serve()) {
        std::fprintf(stderr, "the servers did not start\n");
        return false;
    }
    std::vector<std::unique_ptr<LostAddress>> lost;
    for (int i = 0; i < lostPublishers; ++i) {
        const std::string address = "127.0.1." + std::to_string(i + 1);
        lost.push_back(std::make_unique<LostAddress>(address));
        if (!lost.back()->isLost()) {
            std::fprintf(stderr, "%s is reachable, but must not be\n", address.c_str());
            return false;
        }
        Installation::addNetwork("lost" + std::to_string(i), "Lost " + std::to_string(i), address);
    }

    std::vector<double> refreshes; // of the reachable publisher: seconds since the previous one, or the start
    int ready = 0;
    int lostAnswers = 0;
    auto last = Clock::now();
    Prober prober;
    PubSetup window(nullptr);
    QObject::connect(
        &window, &PubSetup::updateStatusOneDeviceSignal, QApplication::instance(),
        [&](const QString& id, const QString&, const QString&, const QString& status) {
            if (id != "living") {
                ++lostAnswers;
                return;
            }
            refreshes.push_back(secondsSince(last));
            ready += status == "Ready" ? 1 : 0;
            last = Clock::now();
        },
        Qt::QueuedConnection);
    window.show();
    serveEvents(lostTime);
    refreshes.push_back(secondsSince(last)); // the time without a refresh at the end counts too

    const std::vector<double> answers = prober.milliseconds();
    const double longestRefresh = *std::max_element(refreshes.begin(), refreshes.end());
    const double longestAnswer = *std::max_element(answers.begin(), answers.end());
    std::printf("%d unreachable publishers and a reachable one, for %d s\n", lostPublishers,
                static_cast<int>(lostTime.count()));
    std::printf("  reachable one: %d answers, %d of them \"Ready\"; unreachable ones: %d answers\n",
                static_cast<int>(refreshes.size()) - 1, ready, lostAnswers);
    std::printf("  longest time between its refreshes       %8.2f s    %6.3f x of the %.0f s allowed\n",
                longestRefresh, longestRefresh / refreshLimit, refreshLimit);
    std::printf("  longest wait for the window              %8.2f ms   %6.3f x of the %.0f ms allowed\n",
                longestAnswer, longestAnswer / answerLimit, answerLimit);
    std::printf("  wait for the window, median of %6zu     %8.3f ms\n", answers.size(), median(answers));
    return true;
}

/// Figures of a process from /proc.
struct Figures
{
    double processorSeconds = 0;
    double residentMiB = 0;
    long threads = 0;
    long descriptors = 0;
    long sockets = 0; ///< among the descriptors
};

Figures look(qint64 pid)
{
    const std::string folder = "/proc/" + std::to_string(pid);
    Figures figures;
    std::ifstream status(folder + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:")) {
            figures.residentMiB = std::stod(line.substr(6)) / 1024;
        } else if (line.starts_with("Threads:")) {
            figures.threads = std::stol(line.substr(8));
        }
    }
    std::string stat;
    std::getline(std::ifstream(folder + "/stat"), stat);
    std::istringstream fields(stat.substr(stat.rfind(')') + 1)); // after the name; the state is field 3
    std::string skipped;
    for (int field = 3; field < 14; ++field) {
        fields >> skipped;
    }
    double user = 0;
    double system = 0;
    fields >> user >> system;
    figures.processorSeconds = (user + system) / static_cast<double>(sysconf(_SC_CLK_TCK));
    std::error_code gone; // a descriptor may be closed meanwhile
    for (const auto& entry : std::filesystem::directory_iterator(folder + "/fd")) {
        ++figures.descriptors;
        const std::string target = std::filesystem::read_symlink(entry, gone);
        figures.sockets += target.starts_with("socket:") ? 1 : 0;
    }
    return figures;
}

/// The figures between two polls: waits up to 8 seconds for a moment without a connection.
Figures lookWhenQuiet(qint64 pid)
{
    const auto start = Clock::now();
    Figures figures = look(pid);
    while (figures.sockets > 0 && secondsSince(start) < 8) {
        serveEvents(std::chrono::milliseconds(50));
        figures = look(pid);
    }
    return figures;
}

/// The number of polls that reached their last query.
int polls()
{
    return Servers::lines("/webapp2/DevInfoGetter?ifversion=02000000&type=8");
}

std::string livingScenario()
{
    std::string scenario;
    for (int i = 0; i < livingPublishers; ++i) {
        scenario += "[network Server " + std::to_string(i) + "]\nmodel = RT-300NII\njobs = 3\n";
    }
    return scenario;
}

/// Returns false if the goal was missed.
bool measureWindow()
{
    Servers servers(livingScenario());
    if (!servers.serve()) {
        std::fprintf(stderr, "the servers did not start\n");
        return false;
    }
    int answers = 0;
    std::vector<double> waits;
    {
        PubSetup window(nullptr);
        QObject::connect(
            &window, &PubSetup::updateStatusOneDeviceSignal, QApplication::instance(),
            [&answers] { ++answers; }, Qt::QueuedConnection);
        window.show();
        const Prober prober;
        serveEvents(windowTime);
        waits = prober.milliseconds();
    }
    waitForTasks(taskPatience);
    QApplication::processEvents(); // the last answers
    const double longest = *std::max_element(waits.begin(), waits.end());
    std::printf("%d reachable publishers, for %d s: %d answers, %zu probes\n", livingPublishers,
                static_cast<int>(windowTime.count()), answers, waits.size());
    std::printf("  wait for the window, median              %8.3f ms\n", median(waits));
    PrintGoal("longest wait for the window, 100 publishers", longest, answerLimit, "ms");
    return longest <= answerLimit;
}

bool measureLiving()
{
    Servers servers(livingScenario());
    QProcess program;
    program.setStandardErrorFile(QProcess::nullDevice());
    program.setStandardOutputFile(QProcess::nullDevice());
    if (!servers.serve()) {
        std::fprintf(stderr, "the servers did not start\n");
        return false;
    }
    program.start(UDSETUP_PROGRAM, QStringList());
    if (!program.waitForStarted()) {
        std::fprintf(stderr, "the program did not start\n");
        return false;
    }
    serveEvents(std::chrono::seconds(warmUp));

    std::printf("%d reachable publishers, polled by the program for a minute\n", livingPublishers);
    const Figures before = lookWhenQuiet(program.processId());
    const int pollsBefore = polls();
    const auto start = Clock::now();
    Figures after = before;
    const auto print = [&](const Figures& figures) {
        std::printf("  after %4.1f s: %6.2f MiB resident, %ld threads, %ld descriptors (%ld sockets), "
                    "%5.2f s of processor time\n",
                    secondsSince(start), figures.residentMiB, figures.threads, figures.descriptors,
                    figures.sockets, figures.processorSeconds - before.processorSeconds);
    };
    print(before);
    for (int second = sampleInterval; second <= minute; second += sampleInterval) {
        const auto left = start + std::chrono::seconds(second) - Clock::now();
        serveEvents(std::chrono::duration_cast<std::chrono::milliseconds>(left));
        after = lookWhenQuiet(program.processId());
        print(after);
    }
    const double time = secondsSince(start);
    const int pollsDone = polls() - pollsBefore;
    const double used = after.processorSeconds - before.processorSeconds;
    std::printf("  %d polls: %.2f ms of processor time each, %.1f %% of one processor\n", pollsDone,
                used * 1000 / pollsDone, used * 100 / time);
    std::printf("  memory at the end relative to the start      %6.3f x (%+.2f MiB)\n",
                after.residentMiB / before.residentMiB, after.residentMiB - before.residentMiB);
    std::printf("  change in the number of descriptors          %+ld\n",
                after.descriptors - before.descriptors);
    program.terminate();
    program.waitForFinished();
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    {
        const Installation installation;
        if (!measureLost()) {
            return 1;
        }
    }
    bool reached = false;
    {
        const Installation installation;
        reached = measureWindow();
    }
    const Installation installation;
    return measureLiving() && reached ? 0 : 1;
}

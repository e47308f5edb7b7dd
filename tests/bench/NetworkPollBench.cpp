// Measures the processor time of the polling thread for one poll of a network publisher while other
// publishers are registered, and that of bare system calls for the same connections, requests and replies.
// The server and the reader of the system log run in their own threads.
#include "Installation.h"
#include "Room.h"
#include "StatusPoll.h"
#include "Stopwatch.h"
#include "SystemLog.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <thread>

#include <arpa/inet.h>
#include <netinet/tcp.h>

namespace {

constexpr char scenario[] = "[network Studio]\nid = living\nmodel = RT-300NII\njobs = 3\n";
constexpr std::array<int, 4> registered = {1, 10, 100, 1000};
constexpr int rounds = 5;
constexpr int polls = 21; // in each round

/// Creates `count` setting files, including that of the polled publisher.
void registerOthers(int count)
{
    for (int i = 1; i < registered.back(); ++i) {
        const std::string id = "other" + std::to_string(i);
        if (i < count) {
            Installation::addNetwork(id, "Other " + std::to_string(i),
                                     "127.1." + std::to_string(i / 250) + "." + std::to_string(i % 250 + 1));
        } else {
            std::filesystem::remove(Installation::settingFile(id));
        }
    }
}

/// Sends the requests of one poll with bare system calls.
class BarePoll
{
public:
    explicit BarePoll(const std::vector<udsim::HttpRequest>& requests)
    {
        for (const udsim::HttpRequest& request : requests) {
            std::string text = request.method + " " + request.target + " " + request.version + "\r\n";
            for (const auto& [name, value] : request.headers) {
                text += name + ": " + value + "\r\n";
            }
            m_requests.push_back({request.target.find("/ServerModeGetter") != std::string::npos,
                                  text + "\r\n" + request.body});
        }
        m_address.sin_family = AF_INET;
        m_address.sin_port = htons(80);
        inet_pton(AF_INET, requests.front().host.c_str(), &m_address.sin_addr);
    }

    bool run() const
    {
        int fd = -1;
        bool answered = true;
        for (const auto& [isFirst, text] : m_requests) {
            if (isFirst) { // of an operation; each operation has its own connection
                close(fd);
                fd = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
                const int on = 1;
                setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
                connect(fd, reinterpret_cast<const sockaddr*>(&m_address), sizeof m_address);
            }
            answered = answered && exchange(fd, text);
        }
        close(fd);
        return answered;
    }

private:
    struct Request
    {
        bool isFirst; ///< on a new connection
        std::string text;
    };

    static bool exchange(int fd, const std::string& text)
    {
        send(fd, text.data(), text.size(), MSG_NOSIGNAL);
        char reply[65536];
        size_t size = 0;
        do {
            pollfd entry{fd, POLLIN, 0};
            if (poll(&entry, 1, 10000) <= 0) {
                return false;
            }
            const ssize_t count = recv(fd, reply + size, sizeof reply - size, 0);
            if (count <= 0) {
                return false;
            }
            size += static_cast<size_t>(count);
        } while (!isWhole({reply, size}));
        return true;
    }

    static bool isWhole(std::string_view reply)
    {
        constexpr std::string_view field = "Content-Length: ";
        const size_t head = reply.find("\r\n\r\n");
        const size_t length = reply.find(field);
        return head != std::string_view::npos && length < head &&
               reply.size() >= head + 4 + std::strtoul(reply.data() + length + field.size(), nullptr, 10);
    }

    sockaddr_in m_address{};
    std::vector<Request> m_requests;
};

double threadMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main()
{
    std::string error;
    const std::optional<udsim::Scenario> studio = udsim::Scenario::parse(scenario, error);
    if (!studio) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    const SystemLog log;
    udsim::Room room(*studio);
    if (!room.start(error)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    CPublisherMgr publisherMgr(true);
    int ready = 0;
    const auto poll = std::make_shared<StatusPoll>(
        publisherMgr, true, [&](const StatusRow& row) { ready += row.strStatus == "Ready" ? 1 : 0; });

    poll->fetchStatusOneDevice("living"); // the first poll determines the kind of the server
    const size_t before = room.httpRequests().size();
    poll->fetchStatusOneDevice("living");
    std::vector<udsim::HttpRequest> asked = room.httpRequests();
    asked.erase(asked.begin(), asked.begin() + static_cast<std::ptrdiff_t>(before));
    const BarePoll bare(asked);

    std::vector<double> bareMilliseconds;
    std::array<std::vector<double>, registered.size()> milliseconds;
    bool answered = true;
    for (int round = 0; round < rounds; ++round) {
        for (size_t i = 0; i < registered.size(); ++i) {
            registerOthers(registered[i]);
            poll->fetchStatusOneDevice("living");                        // reads the changes
            std::this_thread::sleep_for(std::chrono::milliseconds(200)); // until the times of files settle
            poll->fetchStatusOneDevice("living");
            for (int count = 0; count < polls; ++count) {
                const double start = threadMilliseconds();
                poll->fetchStatusOneDevice("living");
                const double polled = threadMilliseconds();
                answered = bare.run() && answered;
                milliseconds[i].push_back(polled - start);
                bareMilliseconds.push_back(threadMilliseconds() - polled);
            }
        }
    }
    const int expected = 2 + rounds * static_cast<int>(registered.size()) * (polls + 2);
    if (ready != expected || !answered) {
        std::fprintf(stderr, "%d of %d polls found the publisher ready; all bare calls were answered: %d\n",
                     ready, expected, answered);
        return 1;
    }
    std::printf("processor time of one poll of a network publisher (medians of %d)\n", rounds * polls);
    const double reference = median(bareMilliseconds);
    for (size_t i = 0; i < registered.size(); ++i) {
        const double time = median(milliseconds[i]);
        std::printf("  %4d registered %45.3f ms   %7.3f x\n", registered[i], time, time / reference);
    }
    std::printf("  bare calls for the same %zu requests %27.3f ms   %7.3f x\n", asked.size(), reference, 1.0);
    for (size_t i = 0; i < registered.size(); ++i) {
        PrintGoal("poll of a network publisher, " + std::to_string(registered[i]) + " registered",
                  median(milliseconds[i]), 1, "ms");
    }
    return 0;
}

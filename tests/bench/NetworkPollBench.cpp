// The processor time that one poll of a network publisher takes of the thread that asks, with other
// publishers registered beside it. The server runs in threads of its own.
#include "Installation.h"
#include "Room.h"
#include "StatusPoll.h"
#include "Stopwatch.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <thread>

namespace {

constexpr char scenario[] = "[network Studio]\nid = living\nmodel = RT-300NII\njobs = 3\n";
constexpr std::array<int, 4> registered = {1, 10, 100, 1000};
constexpr int rounds = 5;
constexpr int polls = 21; // in each round

/// As many setting files as that, with the one of the publisher that is polled.
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
    udsim::Room room(*studio);
    if (!room.start(error)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    CPublisherMgr publisherMgr(true);
    int ready = 0;
    const auto poll = std::make_shared<StatusPoll>(
        publisherMgr, true, [&](const StatusRow& row) { ready += row.strStatus == "Ready" ? 1 : 0; });

    std::array<std::vector<double>, registered.size()> milliseconds;
    for (int round = 0; round < rounds; ++round) {
        for (size_t i = 0; i < registered.size(); ++i) {
            registerOthers(registered[i]);
            poll->fetchStatusOneDevice("living");                        // reads what changed
            std::this_thread::sleep_for(std::chrono::milliseconds(200)); // until the times of files settle
            poll->fetchStatusOneDevice("living");
            for (int count = 0; count < polls; ++count) {
                const double start = threadMilliseconds();
                poll->fetchStatusOneDevice("living");
                milliseconds[i].push_back(threadMilliseconds() - start);
            }
        }
    }
    const int expected = rounds * static_cast<int>(registered.size()) * (polls + 2);
    if (ready != expected) {
        std::fprintf(stderr, "%d of %d polls found the publisher ready\n", ready, expected);
        return 1;
    }
    std::printf("processor time of one poll of a network publisher (medians of %d)\n", rounds * polls);
    const double alone = median(milliseconds[0]);
    for (size_t i = 0; i < registered.size(); ++i) {
        const double time = median(milliseconds[i]);
        std::printf("  %4d registered %45.3f ms   %7.3f x\n", registered[i], time, time / alone);
    }
    for (size_t i = 0; i < registered.size(); ++i) {
        PrintGoal("poll of a network publisher, " + std::to_string(registered[i]) + " registered",
                  median(milliseconds[i]), 1, "ms");
    }
    return 0;
}

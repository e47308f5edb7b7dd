#include "Survey.h"

#include "Console.h"
#include "ReportStream.h"
#include "SystemCalls.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include <fcntl.h>
#include <poll.h> // house-rule: sockets: waits for the pipes of its own processes
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

struct Query
{
    size_t index; ///< of the report
    pid_t process;
    int pipe;
    Clock::time_point deadline;
    QByteArray received;
};

/// The work of a query's process. Nothing that it prints reaches the user, except the reports of a sanitizer.
[[noreturn]] void runQuery(int pipe, pid_t parent, bool details, PublisherReport report)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent) {
        ::_exit(EXIT_FAILURE);
    }
    for (const int number : {SIGINT, SIGQUIT, SIGHUP}) { // are for the program, which ends its queries
        std::signal(number, SIG_IGN);
    }
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    const rlimit noCore{0, 0};
    ::setrlimit(RLIMIT_CORE, &noCore);
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    ::dup2(nowhere, STDOUT_FILENO);
#ifndef ULMAR_SANITIZED
    ::dup2(nowhere, STDERR_FILENO); // the texts of assertions, above all
#endif

    CPublisherMgr publisherMgr(true);
    queryPublisher(publisherMgr, details, report, [&] {
        if (!writeAll(pipe, frameOf(report))) {
            ::_exit(EXIT_FAILURE);
        }
    });
    ::_exit(EXIT_SUCCESS);
}

class Survey
{
public:
    Survey(const SurveyOptions& options, std::vector<PublisherReport>& reports)
        : m_options(options), m_reports(reports)
    {
    }
    Survey(const Survey&) = delete;
    Survey& operator=(const Survey&) = delete;
    ~Survey()
    {
        for (Query& query : m_queries) {
            end(query, true);
        }
    }

    bool run()
    {
        size_t next = 0;
        while (next < m_reports.size() || !m_queries.empty()) {
            while (next < m_reports.size() && m_queries.size() < mostQueries && start(next)) {
                ++next;
            }
            if (m_queries.empty()) { // not even one process can be started
                m_reports[next].failure = QueryFailure::notStarted;
                m_finished.push_back(next++);
            } else if (!wait()) {
                return false;
            }
            if (!reportFinished()) {
                return false;
            }
        }
        return true;
    }

private:
    bool start(size_t index)
    {
        int ends[2] = {-1, -1};
        if (::pipe2(ends, O_CLOEXEC) != 0) {
            return false;
        }
        PublisherReport& report = m_reports[index];
        report.asked = QDateTime::currentDateTimeUtc();
        std::fflush(stdout);
        std::fflush(stderr);
        const pid_t parent = ::getpid();
        const pid_t process = ::fork();
        if (process == 0) {
            ::close(ends[0]);
            runQuery(ends[1], parent, m_options.details, report);
        }
        ::close(ends[1]);
        if (process < 0) {
            ::close(ends[0]);
            return false;
        }
        ::fcntl(ends[0], F_SETFL, O_NONBLOCK);
        m_queries.push_back({index, process, ends[0], Clock::now() + m_options.timeout, {}});
        return true;
    }

    bool reportFinished()
    {
        const std::vector<size_t> finished = std::exchange(m_finished, {});
        return finished.empty() || !m_options.finished || m_options.finished(finished);
    }

    bool handleInterruption()
    {
        const Clock::time_point before = Clock::now();
        const bool continues = m_options.interrupted && m_options.interrupted();
        for (Query& query : m_queries) {
            query.deadline += Clock::now() - before;
        }
        return continues;
    }

    /// Waits for the next event, and ends the queries that are complete or late. Returns false if the survey
    /// is to end early.
    bool wait()
    {
        std::vector<pollfd> entries;
        Clock::time_point first = Clock::time_point::max();
        for (const Query& query : m_queries) {
            entries.push_back({query.pipe, POLLIN, 0});
            first = std::min(first, query.deadline);
        }
        entries.push_back({m_options.interruption, POLLIN, 0}); // ignored if negative
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(first - Clock::now()).count();
        ::poll(entries.data(), entries.size(), static_cast<int>(std::max<decltype(left)>(left, 0)));

        // First, because the signal of an interruption may have ended queries, too.
        if ((entries.back().revents & POLLIN) != 0 && !handleInterruption()) {
            return false;
        }
        const Clock::time_point now = Clock::now();
        std::vector<Query> running;
        for (size_t i = 0; i < m_queries.size(); ++i) {
            Query& query = m_queries[i];
            const bool ended = entries[i].revents != 0 && !receive(query);
            const bool late = !ended && query.deadline <= now;
            if (ended || late) {
                end(query, late);
                m_finished.push_back(query.index);
            } else {
                running.push_back(std::move(query));
            }
        }
        m_queries = std::move(running);
        return true;
    }

    /// Reads what has arrived. Returns false at the end of the pipe.
    bool receive(Query& query)
    {
        char piece[65536];
        ssize_t count = 0;
        while ((count = Uninterrupted([&] { return ::read(query.pipe, piece, sizeof piece); })) > 0) {
            query.received.append(piece, static_cast<int>(count));
        }
        takeLastFrame(query.received, m_reports[query.index]);
        return count < 0;
    }

    void end(Query& query, bool kill)
    {
        if (kill) {
            ::kill(query.process, SIGKILL);
        }
        ::close(query.pipe);
        int status = 0;
        Uninterrupted([&] { return ::waitpid(query.process, &status, 0); });
        if (!kill && (!WIFEXITED(status) || WEXITSTATUS(status) != EXIT_SUCCESS)) {
            m_reports[query.index].failure = QueryFailure::ended;
        }
    }

    const SurveyOptions& m_options;
    std::vector<PublisherReport>& m_reports;
    std::vector<Query> m_queries;
    std::vector<size_t> m_finished; ///< indices of reports, until they are passed on
};

} // namespace

bool surveyPublishers(const SurveyOptions& options, std::vector<PublisherReport>& reports)
{
    return Survey(options, reports).run();
}

#include "StatusPoll.h"

#include "MyRunnable.h"
#include "ScriptedPublisherMgr.h"

#include <gtest/gtest.h>

#include <QThreadPool>

#include <chrono>
#include <condition_variable>
#include <future>
#include <limits>
#include <optional>

namespace {

using namespace std::chrono_literals;

/// Collects the reports from the threads of the pool.
class Reports
{
public:
    StatusPoll::Report receiver()
    {
        return [this](const StatusRow& row) {
            const std::lock_guard lock(m_mutex);
            m_rows.push_back(row);
            m_changed.notify_all();
        };
    }
    bool waitFor(size_t count, std::chrono::milliseconds bound = 10s)
    {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, bound, [&] { return m_rows.size() >= count; });
    }
    std::vector<StatusRow> rows()
    {
        const std::lock_guard lock(m_mutex);
        return m_rows;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<StatusRow> m_rows;
};

CStringArray list(std::initializer_list<const char*> ids)
{
    CStringArray array;
    for (const char* id : ids) {
        array.Add(id);
    }
    return array;
}

struct RowCase
{
    const char* name;
    ScriptedPublisher publisher;
    const char* status;
    int waiting;
    int sending;
    const char* space;
    std::vector<std::string> calls;
};

class StatusPollTest : public testing::Test
{
protected:
    StatusPollTest()
    {
        QThreadPool::globalInstance()->setMaxThreadCount(8);
    }
    ~StatusPollTest() override
    {
        EXPECT_TRUE(waitForTasks(10000));
    }
    std::shared_ptr<StatusPoll> makePoll(bool supportNetworkModel = true)
    {
        return std::make_shared<StatusPoll>(m_publisherMgr, supportNetworkModel, m_reports.receiver());
    }
    std::optional<StatusRow> ask(const ScriptedPublisher& publisher, bool supportNetworkModel = true)
    {
        m_script.add("X", publisher);
        const size_t before = m_reports.rows().size();
        makePoll(supportNetworkModel)->fetchStatusOneDevice("X");
        const std::vector<StatusRow> rows = m_reports.rows();
        return rows.size() == before ? std::nullopt : std::optional(rows.back());
    }
    /// Queries the publisher of the row and compares the report and the order of the calls.
    void expectRow(const RowCase& row, const char* devType, const char* host)
    {
        SCOPED_TRACE(row.name);
        const size_t before = m_script.calls().size();
        const std::optional<StatusRow> got = ask(row.publisher);
        ASSERT_TRUE(got);
        EXPECT_EQ(got->strPublisherRegistID, "X");
        EXPECT_EQ(got->strDevType, devType);
        EXPECT_EQ(got->strHostName, host);
        EXPECT_EQ(got->strStatus, row.status);
        EXPECT_EQ(got->nJobWaiting, row.waiting);
        EXPECT_EQ(got->nJobSending, row.sending);
        EXPECT_EQ(got->strHDDAvail, row.space);
        const std::vector<std::string> calls = m_script.calls();
        EXPECT_EQ(std::vector<std::string>(calls.begin() + static_cast<long>(before), calls.end()),
                  row.calls);
    }

    Script& m_script = Script::the();
    CPublisherMgr m_publisherMgr{true};
    Reports m_reports;
};

ScriptedPublisher networkPublisher()
{
    ScriptedPublisher publisher;
    publisher.connectType = PUBMGR_CONNECTTYPE_NETWORK;
    publisher.devType = PUBMGR_PUBLISHERTYPE_NETWORK;
    publisher.netType = PUBMGR_NPTYPE_300NII;
    publisher.host = "studio-3";
    publisher.jobStates = {1, 2, 1, 9};
    publisher.communicateJobs = 4;
    publisher.freeBytes = "1610612736";
    return publisher;
}

ScriptedPublisher localPublisher()
{
    ScriptedPublisher publisher;
    publisher.jobStates = {1, 2, 1, 9, 1};
    return publisher;
}

TEST_F(StatusPollTest, EveryStateOfALocalPublisher)
{
    ScriptedPublisher absent = localPublisher();
    absent.attached = false;
    ScriptedPublisher offline = localPublisher();
    offline.fatal = true;
    offline.fatalCode = 11;
    ScriptedPublisher broken = offline;
    broken.fatalCode = 9;

    const std::string live = "GetPublisherInfo X live";
    const std::string attached = "IsExistConnectedPublisher X";
    const std::string fatal = "IsFatalErrorInPublisher X";
    const RowCase table[] = {
        {"absent", absent, "Not connected", -1, -1, "-", {live, attached}},
        {"offline", offline, "Not connected", -1, -1, "-", {live, attached, fatal}},
        {"broken", broken, "Error", -1, -1, "-", {live, attached, fatal}},
        {"ready",
         localPublisher(),
         "Ready",
         3,
         -1,
         "-",
         {live, attached, fatal, "GetServiceJobStatusUnfinish X"}},
    };
    for (const RowCase& row : table) {
        expectRow(row, "RT-300III", "");
    }
}

TEST_F(StatusPollTest, EveryStateOfANetworkPublisher)
{
    ScriptedPublisher noAdministrator = networkPublisher();
    noAdministrator.communicates = false;
    noAdministrator.connectResult = 8010;
    ScriptedPublisher oldVersion = noAdministrator;
    oldVersion.connectResult = 8001;
    ScriptedPublisher unreachable = noAdministrator;
    unreachable.connectResult = 2;
    ScriptedPublisher offline = networkPublisher();
    offline.fatal = true;
    offline.fatalCode = 11;
    ScriptedPublisher broken = offline;
    broken.fatalCode = 19;
    ScriptedPublisher lost = networkPublisher();
    lost.fatalCode = -1;
    lost.jobStates = {};
    lost.jobsResult = -1;
    lost.communicateJobs = -1;
    lost.freeBytes = "";

    const std::string connect = "IsPossibleCommunicate X";
    const std::string stored = "GetPublisherInfo X stored";
    const std::string live = "GetPublisherInfo X live";
    const std::string fatal = "IsFatalErrorInPublisher X";
    const std::vector<std::string> everything = {connect,
                                                 live,
                                                 fatal,
                                                 "GetServiceJobStatusUnfinish X",
                                                 "GetCommunicateJobCount X",
                                                 "GetDeviceInfo X 8"};
    const RowCase table[] = {
        {"no administrator", noAdministrator, "Administrator not registered", -1, -1, "-", {connect, stored}},
        {"version", oldVersion, "Unsupported version", -1, -1, "-", {connect, stored}},
        {"unreachable", unreachable, "Not connected", -1, -1, "-", {connect, stored}},
        {"offline", offline, "Not connected", -1, -1, "-", {connect, live, fatal}},
        {"broken", broken, "Error", -1, -1, "-", {connect, live, fatal}},
        {"ready", networkPublisher(), "Ready", 2, 4, "1.5 GB", everything},
        {"lost after the first answer", lost, "Ready", 0, -1, "-", everything},
    };
    for (const RowCase& row : table) {
        expectRow(row, "RT-300NII", "studio-3");
    }
}

TEST_F(StatusPollTest, AJobListThatCannotBeFetchedCountsAsEmpty)
{
    ScriptedPublisher publisher = localPublisher();
    publisher.jobsResult = -1;
    EXPECT_EQ(ask(publisher)->nJobWaiting, 0);
}

TEST_F(StatusPollTest, OnlyWaitingJobsAreCounted)
{
    ScriptedPublisher publisher = localPublisher();
    publisher.jobStates = {1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 10};
    EXPECT_EQ(ask(publisher)->nJobWaiting, 1);
    publisher.jobStates = {};
    EXPECT_EQ(ask(publisher)->nJobWaiting, 0);
}

TEST_F(StatusPollTest, WithoutNetworkSupportSendingAndSpaceAreNotQueried)
{
    const std::optional<StatusRow> row = ask(networkPublisher(), false);
    EXPECT_EQ(row->nJobWaiting, 2);
    EXPECT_EQ(row->nJobSending, -1);
    EXPECT_EQ(row->strHDDAvail, "-");
    EXPECT_EQ(m_script.count("GetCommunicateJobCount X"), 0);
    EXPECT_EQ(m_script.count("GetDeviceInfo X 8"), 0);
}

TEST_F(StatusPollTest, APublisherThatCannotBeReadIsNotReported)
{
    ScriptedPublisher publisher = localPublisher();
    publisher.readable = false;
    EXPECT_FALSE(ask(publisher));
    EXPECT_EQ(m_script.calls(), std::vector<std::string>{"GetPublisherInfo X live"});
}

TEST_F(StatusPollTest, ReadPublisherReportsTheConnection)
{
    PUBLISHERINFO info;
    BOOL bConnection = 7;
    long result = 0;
    m_script.add("L", localPublisher());
    EXPECT_TRUE(readPublisher(m_publisherMgr, "L", info, bConnection, result));
    EXPECT_EQ(bConnection, 1);

    ScriptedPublisher unreachable = networkPublisher();
    unreachable.communicates = false;
    unreachable.connectResult = 8001;
    m_script.add("N", unreachable);
    EXPECT_TRUE(readPublisher(m_publisherMgr, "N", info, bConnection, result));
    EXPECT_EQ(bConnection, 0);
    EXPECT_EQ(result, 8001);

    m_script.add("N", networkPublisher());
    EXPECT_TRUE(readPublisher(m_publisherMgr, "N", info, bConnection, result));
    EXPECT_EQ(bConnection, 1);
}

TEST_F(StatusPollTest, TheLocalQueryReportsTheLocalPublishersInOrder)
{
    ScriptedPublisher unknown = localPublisher();
    unknown.connectType = 5;
    m_script.add("A", localPublisher());
    m_script.add("N", networkPublisher());
    m_script.add("?", unknown);
    m_script.add("B", localPublisher());
    const auto poll = makePoll();
    poll->startLocal(list({"B", "N", "?", "A"}));
    ASSERT_TRUE(m_reports.waitFor(2));
    ASSERT_TRUE(waitForTasks(10000));
    const std::vector<StatusRow> rows = m_reports.rows();
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].strPublisherRegistID, "B");
    EXPECT_EQ(rows[1].strPublisherRegistID, "A");
}

TEST_F(StatusPollTest, ANetworkQueryOfALocalPublisherEndsImmediately)
{
    m_script.add("A", localPublisher());
    makePoll()->startNetwork("A");
    ASSERT_TRUE(waitForTasks(10000));
    EXPECT_TRUE(m_reports.rows().empty());
    EXPECT_TRUE(m_script.calls().empty());
}

TEST_F(StatusPollTest, NoSecondLocalQueryStartsWhileOneRuns)
{
    m_script.add("A", localPublisher());
    m_script.stall("A");
    const auto poll = makePoll();
    poll->startLocal(list({"A"}));
    ASSERT_TRUE(m_script.waitForCalls("IsFatalErrorInPublisher A", 1));
    poll->startLocal(list({"A"}));
    poll->startLocal(list({"A"}));
    m_script.release("A");
    ASSERT_TRUE(waitForTasks(10000));
    EXPECT_EQ(m_reports.rows().size(), 1U);

    poll->startLocal(list({"A"}));
    ASSERT_TRUE(waitForTasks(10000));
    EXPECT_EQ(m_reports.rows().size(), 2U);
}

TEST_F(StatusPollTest, ATickBeforeTheTaskStartsQueuesASecondTask)
{
    QThreadPool::globalInstance()->setMaxThreadCount(1);
    std::promise<void> busy;
    std::shared_future<void> end = busy.get_future().share();
    QThreadPool::globalInstance()->start(new MyRunnable([end] { end.wait(); }));

    m_script.add("A", localPublisher());
    const auto poll = makePoll();
    poll->startLocal(list({"A"}));
    poll->startLocal(list({"A"}));
    busy.set_value();
    ASSERT_TRUE(waitForTasks(10000));
    EXPECT_EQ(m_reports.rows().size(), 2U);
}

TEST_F(StatusPollTest, ASlowNetworkPublisherDelaysOnlyItself)
{
    m_script.add("slow", networkPublisher());
    m_script.add("quick", networkPublisher());
    m_script.stall("slow");
    const auto poll = makePoll();
    poll->startNetwork("slow");
    ASSERT_TRUE(m_script.waitForCalls("IsFatalErrorInPublisher slow", 1));
    const auto deadline = std::chrono::steady_clock::now() + 10s;
    do { // a tick has no effect while the last query is still marked as running
        poll->startNetwork("slow");
        poll->startNetwork("quick");
    } while (!m_reports.waitFor(3, 10ms) && std::chrono::steady_clock::now() < deadline);
    EXPECT_GE(m_script.count("IsFatalErrorInPublisher quick"), 3);
    EXPECT_EQ(m_script.count("IsFatalErrorInPublisher slow"), 1);
    m_script.release("slow");
    ASSERT_TRUE(waitForTasks(10000));
    EXPECT_EQ(m_script.count("IsFatalErrorInPublisher slow"), 1);
    poll->startNetwork("slow");
    ASSERT_TRUE(waitForTasks(10000));
    EXPECT_EQ(m_script.count("IsFatalErrorInPublisher slow"), 2);
}

TEST(PollThreads, AreOnePerPublisherPlusOneForLocalPublishersAndAtMost96)
{
    const struct
    {
        int registered, least, threads;
    } rows[] = {{0, 1, 1},     {0, 2, 2},     {1, 1, 2},        {1, 2, 2},
                {1, 8, 8},     {7, 8, 8},     {8, 8, 9},        {50, 2, 51},
                {94, 2, 95},   {95, 2, 96},   {96, 2, 96},      {100, 2, 96},
                {100, 96, 96}, {1, 128, 128}, {1000, 128, 128}, {std::numeric_limits<int>::max(), 2, 96}};
    for (const auto& row : rows) {
        EXPECT_EQ(pollThreads(row.registered, row.least), row.threads) << row.registered << ' ' << row.least;
    }
}

TEST_F(StatusPollTest, TheThreadLimitGrowsWithThePublishersAndNeverShrinks)
{
    QThreadPool* pool = QThreadPool::globalInstance();
    pool->setMaxThreadCount(2);
    for (const auto& [registered, limit] :
         std::vector<std::pair<int, int>>{{1, 2}, {9, 10}, {3, 10}, {500, 96}}) {
        StatusPoll::makeRoom(registered);
        EXPECT_EQ(pool->maxThreadCount(), limit) << registered;
    }
}

TEST_F(StatusPollTest, HungPublishersDelayNoOther)
{
    QThreadPool::globalInstance()->setMaxThreadCount(1);
    constexpr int hanging = 20;
    const auto poll = makePoll();
    StatusPoll::makeRoom(hanging + 1);
    for (int i = 0; i < hanging; ++i) {
        const std::string id = "hangs" + std::to_string(i);
        m_script.add(id, networkPublisher());
        m_script.stall(id);
        poll->startNetwork(id);
    }
    m_script.add("lives", networkPublisher());
    poll->startNetwork("lives");
    ASSERT_TRUE(m_reports.waitFor(1));
    EXPECT_EQ(m_reports.rows()[0].strPublisherRegistID, "lives");
    for (int i = 0; i < hanging; ++i) {
        m_script.release("hangs" + std::to_string(i));
    }
}

TEST_F(StatusPollTest, ASlowLocalPublisherDoesNotDelayANetworkPublisher)
{
    m_script.add("L", localPublisher());
    m_script.add("N", networkPublisher());
    m_script.stall("L");
    const auto poll = makePoll();
    poll->startLocal(list({"L", "N"}));
    ASSERT_TRUE(m_script.waitForCalls("IsFatalErrorInPublisher L", 1));
    poll->startNetwork("N");
    ASSERT_TRUE(m_reports.waitFor(1));
    EXPECT_EQ(m_reports.rows()[0].strPublisherRegistID, "N");
    m_script.release("L");
}

TEST_F(StatusPollTest, AfterCloseNothingIsReportedAndNoFurtherPublisherIsQueried)
{
    m_script.add("A", localPublisher());
    m_script.add("B", localPublisher());
    m_script.stall("A");
    const auto poll = makePoll();
    poll->startLocal(list({"A", "B"}));
    ASSERT_TRUE(m_script.waitForCalls("IsFatalErrorInPublisher A", 1));
    poll->close();
    m_script.release("A");
    ASSERT_TRUE(waitForTasks(10000));
    EXPECT_TRUE(m_reports.rows().empty());
    EXPECT_EQ(m_script.count("GetPublisherInfo B live"), 0);
}

TEST_F(StatusPollTest, AQueuedTaskOfAClosedPollQueriesNothing)
{
    m_script.add("N", networkPublisher());
    const auto poll = makePoll();
    poll->close();
    poll->startNetwork("N");
    poll->startLocal(list({"N"}));
    ASSERT_TRUE(waitForTasks(10000));
    EXPECT_TRUE(m_script.calls().empty());
}

TEST_F(StatusPollTest, ATaskKeepsThePollAliveWhileItRuns)
{
    m_script.add("A", localPublisher());
    m_script.stall("A");
    auto poll = makePoll();
    const std::weak_ptr<StatusPoll> watch = poll;
    poll->startLocal(list({"A"}));
    ASSERT_TRUE(m_script.waitForCalls("IsFatalErrorInPublisher A", 1));
    poll->close();
    poll.reset();
    EXPECT_FALSE(watch.expired());
    m_script.release("A");
    ASSERT_TRUE(waitForTasks(10000));
    EXPECT_TRUE(watch.expired());
}

TEST_F(StatusPollTest, WaitingForQueriesIsBounded)
{
    m_script.add("A", localPublisher());
    m_script.add("N", networkPublisher());
    m_script.stall("A");
    m_script.stall("N");
    const auto poll = makePoll();
    poll->startLocal(list({"A"}));
    poll->startNetwork("N");
    ASSERT_TRUE(m_script.waitForCalls("IsFatalErrorInPublisher A", 1));
    ASSERT_TRUE(m_script.waitForCalls("IsFatalErrorInPublisher N", 1));
    const auto start = std::chrono::steady_clock::now();
    poll->waitForQueries(100, 150);
    const auto elapsed = std::chrono::steady_clock::now() - start;
    EXPECT_GE(elapsed, 240ms);
    EXPECT_LT(elapsed, 5s);
    m_script.release("A");
    m_script.release("N");
}

TEST_F(StatusPollTest, WaitingForQueriesEndsWithTheQuery)
{
    m_script.add("A", localPublisher());
    m_script.stall("A");
    const auto poll = makePoll();
    poll->startLocal(list({"A"}));
    ASSERT_TRUE(m_script.waitForCalls("IsFatalErrorInPublisher A", 1));
    auto waiting = std::async(std::launch::async, [&] { poll->waitForQueries(60000, 60000); });
    EXPECT_EQ(waiting.wait_for(50ms), std::future_status::timeout);
    m_script.release("A");
    EXPECT_EQ(waiting.wait_for(10s), std::future_status::ready);
}

TEST_F(StatusPollTest, WaitingForNoQueryReturnsImmediately)
{
    const auto poll = makePoll();
    m_script.add("N", networkPublisher());
    poll->startNetwork("N");
    ASSERT_TRUE(waitForTasks(10000));
    const auto start = std::chrono::steady_clock::now();
    poll->waitForQueries(10000, 60000);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
}

} // namespace

// The console program with services and servers that are silent, broken or malicious.
#include "StatusRoom.h"
#include "StatusRun.h"

#include "Installation.h"
#include "ScriptedService.h"
#include "TcpPeer.h"

#include <gmock/gmock.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <set>

#include <sys/syscall.h>

namespace {

using std::chrono::seconds;
using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// A server that accepts connections and never replies: the kernel completes them, and they are not accepted.
class SilentServer
{
public:
    SilentServer(const std::string& id, const std::string& host) : m_listener(host.c_str(), 80)
    {
        Installation::addNetwork(id, "Silent " + id, host);
    }

private:
    TcpListener m_listener;
};

TEST(StatusHostile, ASilentServerDelaysNoOther)
{
    const StatusRoom room(twoStudios);
    const SilentServer one("X", "127.0.0.31");
    const SilentServer two("Y", "127.0.0.32");
    const StatusEnd end = runStatus({"--timeout", "10"}); // Studio A must answer within it
    EXPECT_EQ(end.code, 1);
    EXPECT_THAT(
        end.out,
        HasSubstr(
            "Silent X  RT-300NII   127.0.0.31  No answer            -             -                -\n"));
    EXPECT_THAT(end.out, HasSubstr("Silent Y  RT-300NII   127.0.0.32  No answer"));
    EXPECT_THAT(end.out, HasSubstr("Studio A  RT-300III   -           Ready                3 "));
    EXPECT_EQ(end.err, "ulmar-disc-status: Silent X: no answer within the time limit\n"
                       "ulmar-disc-status: Silent Y: no answer within the time limit\n");
    EXPECT_LT(end.time, seconds(30));
}

TEST(StatusHostile, NoAnswerIsTranslated)
{
    const Installation installation;
    const SilentServer silent("X", "127.0.0.31");
    std::filesystem::create_directories(TRANSLATION_DIR);
    std::filesystem::copy_file(GERMAN_CATALOGUE, std::string(TRANSLATION_DIR) + "PubSetupQt_de_DE.qm");
    const StatusEnd end = runStatus({"--timeout", "0.1"}, {{"LC_ALL", "de_DE.UTF-8"}, {"LANGUAGE", "de"}});
    EXPECT_THAT(end.out, HasSubstr("  Keine Antwort  "));
}

TEST(StatusHostile, ManySilentServersAreAskedInTurns)
{
    Installation installation;
    std::vector<std::unique_ptr<SilentServer>> servers;
    for (int i = 0; i < 70; ++i) { // more than are asked at once
        servers.push_back(
            std::make_unique<SilentServer>("S" + std::to_string(i), "127.0.1." + std::to_string(i + 1)));
    }
    const StatusEnd end = runStatus({"--timeout", "0.5"});
    EXPECT_EQ(end.code, 1);
    EXPECT_GE(end.time, seconds(1)); // two turns
    size_t rows = 0;
    for (size_t at = 0; (at = end.out.find("No answer", at)) != std::string::npos; ++at) {
        ++rows;
    }
    EXPECT_EQ(rows, 70U);
}

TEST(StatusHostile, NoQueryOutlivesTheProgram)
{
    Installation installation;
    TcpListener server("127.0.0.31", 80);
    Installation::addNetwork("X", "Silent", "127.0.0.31");
    StatusRun run({"--timeout", "60"});
    const TcpPeer connection = server.Accept();
    ASSERT_TRUE(connection.IsOpen());
    const std::string id = std::to_string(run.process());
    pid_t query = -1;
    std::ifstream("/proc/" + id + "/task/" + id + "/children") >> query;
    ASSERT_GT(query, 0);
    const int end = static_cast<int>(::syscall(SYS_pidfd_open, query, 0));
    ASSERT_GE(end, 0);

    run.signal(SIGKILL); // leaves the program no time to clean up
    EXPECT_EQ(run.end().code, 1000 + SIGKILL);
    pollfd entry{end, POLLIN, 0};
    EXPECT_EQ(::poll(&entry, 1, ProgramProcess::PATIENCE), 1);
    ::close(end);
}

TEST(StatusHostile, ASilentServiceIsReported)
{
    const StatusRoom room(std::string(twoStudios) + "[fault]\ndo = stall\n");
    const StatusEnd limited = runStatus({"--timeout", "0.2"});
    EXPECT_EQ(limited.code, 1);
    EXPECT_THAT(limited.out, HasSubstr("Studio A  RT-300III   -          No answer"));
    EXPECT_LT(limited.time, seconds(30));
    EXPECT_EQ(runStatus({"--monitor", "--timeout", "0.2", "Studio A"}).out,
              "UNKNOWN - Studio A: no answer\n");
}

TEST(StatusHostile, AServiceThatFallsSilentIsReported)
{
    const StatusRoom room(std::string(twoStudios) +
                          "[fault]\ncontrol = 22\ndo = close\n[fault]\ncontrol = 13\ndo = stall\n");
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--timeout", "6"}, {"--timeout", "6", "Studio A"}}) {
        const StatusEnd end = runStatus(arguments);
        EXPECT_EQ(end.code, 1);
        EXPECT_THAT(end.out, HasSubstr("Not connected"));
        EXPECT_EQ(end.err, "ulmar-disc-status: the control service does not answer\n");
    }
}

TEST(StatusHostile, DetailsThatComeTooLateAreMissing)
{
    const StatusRoom room(std::string(twoStudios) + "[fault]\ncontrol = 9\ndo = stall\n");
    const StatusEnd end = runStatus({"--timeout", "6", "Studio A"});
    EXPECT_EQ(end.code, 1);
    EXPECT_THAT(end.out, StartsWith("Studio A\n  Status      Ready\n"));
    EXPECT_EQ(end.err, "ulmar-disc-status: Studio A: not all details were received in time\n");
}

/// The only publisher of the document; empty if it is not valid.
QJsonObject publisherOf(const StatusEnd& end)
{
    const QJsonArray publishers =
        QJsonDocument::fromJson(QByteArray::fromStdString(end.out)).object()["publishers"].toArray();
    EXPECT_EQ(publishers.size(), 1) << end.out << end.err;
    return publishers.at(0).toObject();
}

/// Requires that a member is null; "list.member" is that member of each element of a list.
void expectUnknown(const QJsonObject& publisher, const QString& path, const std::string& fault)
{
    const QStringList names = path.split('.');
    const QJsonValue value = publisher[names[0]];
    if (names.size() == 1) {
        EXPECT_TRUE(publisher.contains(path) && value.isNull()) << fault << " " << path.toStdString();
        return;
    }
    EXPECT_TRUE(value.isArray()) << fault << " " << path.toStdString();
    for (const QJsonValue& element : value.toArray()) {
        const QJsonObject object = element.toObject();
        EXPECT_TRUE(object.contains(names[1]) && object[names[1]].isNull())
            << fault << " " << path.toStdString();
    }
}

TEST(StatusHostile, BrokenRepliesOfTheServiceEndNoProgram)
{
    constexpr struct
    {
        uint64_t control;
        std::array<const char*, 3> unknown; ///< what the control supplies
    } table[] = {
        {4, {"jobs"}}, // the number of waiting jobs is then 0, as in the list
        {5, {"autoloaderStates"}},
        {6, {"inks"}},
        {7, {"drives.states", "drives.progressPercent"}},
        {8, {"printerStates"}},
        {9, {"stackers.discs", "stackers.fill", "stackers.supplies"}},
        {10, {"autoloaderVersion", "printerVersion", "drives.version"}},
        {11, {"autoloaderVersion", "printerVersion", "drives.version"}},
        {12, {"autoloaderVersion", "printerVersion", "drives.version"}},
        {14, {"printsLeft"}},
        {18, {}}, // is not asked for: the mode is that of the settings
        {22, {}}, // the failure itself is the error
        {28, {"discsPublished", "maintenanceBoxPercentFree", "drives.wearPercent"}},
    };
    const StatusRoom room(twoStudios);
    for (const char* kind :
         {"wrong-id", "short-header", "short-payload", "huge-length", "result 1001", "close"}) {
        for (const auto& row : table) {
            std::string error;
            auto fault = udsim::Fault::parse(kind, error);
            ASSERT_TRUE(fault) << error;
            fault->control = row.control;
            room->setFault(*fault);
            const StatusEnd end = runStatus({"--json", "Studio A"});
            const std::string name = std::string(kind) + " " + std::to_string(row.control);
            EXPECT_THAT(end.code, AnyOf(0, 1)) << name;
            const QJsonObject publisher = publisherOf(end);
            for (const char* path : row.unknown) {
                if (path != nullptr) {
                    expectUnknown(publisher, path, name);
                }
            }
            EXPECT_EQ(publisher["errorCode"] != QJsonValue(0), row.control == 22) << name;
            room->clearFaults();
        }
    }
}

TEST(StatusHostile, AReplyThatStopsAQueryEndsOnlyThatQuery)
{
    Installation installation;
    installation.addLocal("A", "Bad", 0x20000009);
    installation.addLocal("B", "Off", 0x20000009, false);
    ScriptedService service;
    service.setPayload(28, "x"); // the publisher manager stops the process on a wear record of another size
    const StatusEnd end = runStatus({"Bad", "Off"});
    EXPECT_EQ(end.code, 1);
    EXPECT_THAT(end.out, StartsWith("Bad\n  Status        Ready\n"));
    EXPECT_THAT(end.out, HasSubstr("\n\nOff\n  Status      Not connected\n"));
#ifdef ULMAR_SANITIZED // the reports of a sanitizer are kept
    EXPECT_THAT(end.err, HasSubstr("ulmar-disc-status: Bad: the query failed; the reply may be invalid\n"));
#else
    EXPECT_EQ(end.err, "ulmar-disc-status: Bad: the query failed; the reply may be invalid\n");
#endif
    EXPECT_EQ(runStatus({}).code, 0); // the list does not ask for it
    EXPECT_THAT(runStatus({"--monitor", "Bad"}).out, StartsWith("UNKNOWN - Bad: incomplete answer"));
}

TEST(StatusHostile, AQueryThatStopsIsNoticedWithIgnoredChildren)
{
    Installation installation;
    installation.addLocal("A", "Bad", 0x20000009);
    ScriptedService service;
    service.setPayload(28, "x");
    const auto run = [](const char* option) {
        return runProgram("/usr/bin/env", {"--ignore-signal=CHLD", STATUS_PROGRAM, option, "Bad"});
    };
    const Ended end = run("--monitor");
    EXPECT_EQ(end.status, 3);
    EXPECT_THAT(end.output, HasSubstr("UNKNOWN - Bad: incomplete answer"));
    const Ended reason = run("--json");
    EXPECT_EQ(reason.status, 1);
    EXPECT_THAT(reason.output, HasSubstr("Bad: the query failed"));
}

udsim::HttpFault faultOf(const char* kind, const char* path)
{
    std::string error;
    udsim::HttpFault fault = udsim::HttpFault::parse(kind, error).value_or(udsim::HttpFault());
    EXPECT_EQ(error, "");
    fault.path = path;
    return fault;
}

/// The fourth request of the mode begins the last query of the status. The list shows "Ready" then.
TEST(StatusHostile, AServerThatIsLostBeforeItsStatusHasNotAnswered)
{
    const StatusRoom room("[network Library]\nmodel = RT-300NII\nid = N\n");
    const auto runWithFault = [&room](std::vector<std::string> arguments) {
        udsim::HttpFault fault = faultOf("close", "/webapp2/ServerModeGetter");
        fault.after = 3;
        room->clearFaults();
        room->setFault(fault);
        return runStatus(std::move(arguments));
    };
    const StatusEnd list = runWithFault({});
    EXPECT_EQ(list.code, 1);
    EXPECT_THAT(list.out, HasSubstr("No answer"));
    EXPECT_EQ(list.err, "ulmar-disc-status: Library: the query failed; the reply may be invalid\n");
    const QJsonObject publisher = publisherOf(runWithFault({"--json"}));
    EXPECT_FALSE(publisher["complete"].toBool());
    EXPECT_TRUE(publisher["errorCode"].isNull());
    EXPECT_THAT(runWithFault({"--metrics"}).out,
                HasSubstr("ulmar_publisher_up{id=\"N\",publisher=\"Library\"} 0"));
    EXPECT_THAT(runWithFault({"--monitor"}).out, StartsWith("UNKNOWN - Library: no answer"));
}

/// From each of the requests on but the last, which only asks for the kind of the server.
TEST(StatusHostile, AServerThatIsLostDuringAQueryHasNotAnsweredCompletely)
{
    const StatusRoom room("[network Library]\nmodel = RT-300NII\nid = N\njobs = 2\n");
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--timeout", "60"}, {"--timeout", "60", "--json"}}) {
        constexpr unsigned most = 200;
        unsigned requests = 0;
        for (StatusEnd end; end.code != 0 && requests < most; ++requests) {
            udsim::HttpFault fault = faultOf("close", "/");
            fault.after = requests;
            room->clearFaults();
            room->setFault(fault);
            end = runStatus(arguments);
            EXPECT_TRUE(end.code == 0 || !end.err.empty()) << requests;
        }
        room->clearFaults();
        const size_t before = room->httpRequests().size();
        EXPECT_EQ(runStatus(arguments).code, 0);
        EXPECT_EQ(requests, room->httpRequests().size() - before);
    }
}

/// The settings are asked for after the connection is tested.
TEST(StatusHostile, ARefusedQueryOfTheSettingsIsNoUnreadableFile)
{
    const StatusRoom room("[network Library]\nmodel = RT-300NII\nid = N\n");
    room->setFault(faultOf("status 9", "/webapp2/DevInfoIntGetter"));
    const StatusEnd end = runStatus({});
    EXPECT_EQ(end.code, 1);
    EXPECT_THAT(end.out, HasSubstr("No answer"));
    EXPECT_EQ(end.err, "ulmar-disc-status: Library: the query failed; the reply may be invalid\n");
    EXPECT_THAT(runStatus({"--monitor"}).out, StartsWith("UNKNOWN - Library: no answer"));
}

TEST(StatusHostile, ASettingFileThatVanishesDuringAQueryIsReported)
{
    Installation installation;
    std::optional<TcpListener> server(std::in_place, "127.0.0.31", 80);
    Installation::addNetwork("X", "Library", "127.0.0.31");
    StatusRun run({"--timeout", "60"});
    {
        const TcpPeer connection = server->Accept();
        ASSERT_TRUE(connection.IsOpen());
        std::filesystem::remove(Installation::settingFile("X"));
        server.reset();
    }
    const StatusEnd end = run.end();
    EXPECT_EQ(end.code, 1);
    EXPECT_THAT(end.out, HasSubstr("Not connected"));
    EXPECT_EQ(end.err, "ulmar-disc-status: Library: the setting file cannot be read\n");
}

TEST(StatusHostile, BrokenRepliesOfAServerEndNoProgram)
{
    const StatusRoom room("[network Library]\nmodel = RT-300NII\nid = N\njobs = 2\n");
    for (const char* kind :
         {"close", "http 500", "status 9", "empty", "stall", "size 1", "size 4000", "length 65535",
          "extra-item", "cut 40", "chunked", "chunk-extension", "content-length 99999"}) {
        for (const char* path :
             {"/webapp2/ServerModeGetter", "/webapp2/DevStatusGetter", "/webapp2/DevInfoGetter",
              "/webapp2/DevInfoIntGetter", "/webapp2/JobInfoGetter"}) {
            room->setFault(faultOf(kind, path));
            const bool isReply = !std::set<std::string>{"close", "http 500", "empty"}.contains(kind);
            // These are awaited until the time limit. The others end by themselves, so that a busy machine
            // may be slow.
            const bool stalls = std::set<std::string>{"stall", "content-length 99999"}.contains(kind);
            const StatusEnd end = runStatus({"--json", "--timeout", stalls ? "0.3" : "60", "Library"});
            EXPECT_THAT(end.code, AnyOf(0, 1)) << kind << " " << path;
            EXPECT_THAT(end.err, Not(HasSubstr("setting file"))) << kind << " " << path;
            if (stalls) {
                EXPECT_EQ(end.err, "ulmar-disc-status: Library: no answer within the time limit\n") << path;
            } else if (std::string(kind) == "chunked") { // a correct reply
                EXPECT_EQ(end.code, 0) << path << end.err;
            }
            const QJsonObject publisher = publisherOf(end);
            if (!isReply && std::string(path) == "/webapp2/DevStatusGetter") {
                for (const char* unknown : {"inks", "printerStates", "autoloaderStates", "stackers.discs"}) {
                    expectUnknown(publisher, unknown, kind);
                }
            }
            if (!isReply && std::string(path) == "/webapp2/JobInfoGetter") {
                expectUnknown(publisher, "jobs", kind);
            }
            EXPECT_LT(end.time, seconds(30)) << kind << " " << path;
            room->clearFaults();
        }
    }
}

std::string jobNamed(const std::string& name)
{
    std::string record(1088, '\0');
    std::memcpy(&record[0], "J1", 2);
    std::memcpy(&record[256], name.data(), name.size());
    record[512] = 2;      // running
    record[568] = '\xff'; // copies: 255
    record[584] = '\x1b';
    return record;
}

TEST(StatusHostile, TextsCannotReachTheTerminal)
{
    Installation installation;
    installation.addLocal("A", "Studio", 0x20000009);
    ScriptedService service;
    const std::string name = "a\x1b]0;title\x07\r\nb\xff\xe2\x80\xae|c";
    service.setPayload(4, jobNamed(name) + jobNamed(std::string(256, 'n'))); // the second has no NUL
    service.setPayload(10, std::string(128, '\x1b'));
    service.setPayload(12, std::string(128, '\x9b'));
    service.setPayload(11, std::string(320, '\xff'));
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"Studio"}, {"--json"}, {"--metrics"}, {"--monitor"}}) {
        const StatusEnd end = runStatus(arguments);
        EXPECT_EQ(end.out.find('\x1b'), std::string::npos);
        EXPECT_EQ(end.out.find('\x07'), std::string::npos);
        EXPECT_EQ(end.out.find('\r'), std::string::npos);
        EXPECT_EQ(end.out.find('\xff'), std::string::npos);
        EXPECT_EQ(end.out.find("\xe2\x80\xae"), std::string::npos);
    }
    EXPECT_THAT(runStatus({"Studio"}).out, HasSubstr("a\\x1b]0;title\\x07\\x0d\\x0ab\xef\xbf\xbd\\u202e|c"));
    EXPECT_THAT(runStatus({"--json"}).out,
                HasSubstr("\"a\\u001b]0;title\\u0007\\r\\nb\xef\xbf\xbd\\u202e|c\""));
}

TEST(StatusHostile, RemainingTimesHaveNoUnit)
{
    constexpr struct
    {
        uint64_t value;
        const char* json;
    } table[] = {{0, "\"remainingTime\": null,"},
                 {0xFFFFFFFF, "\"remainingTime\": null,"},
                 {3725, "\"remainingTime\": 3725,"}};
    Installation installation;
    installation.addLocal("A", "Studio", 0x20000009);
    ScriptedService service;
    for (const auto& row : table) {
        std::string job = jobNamed("Job");
        std::memcpy(&job[552], &row.value, sizeof row.value);
        service.setPayload(4, job);
        EXPECT_THAT(runStatus({"--json"}).out, HasSubstr(row.json));
    }
}

TEST(StatusHostile, AFullListOfJobsIsShown)
{
    Installation installation;
    installation.addLocal("A", "Studio", 0x20000009);
    ScriptedService service;
    service.setJobs("A", std::vector<uint64_t>(33, 1));
    const StatusEnd end = runStatus({"--json"});
    EXPECT_EQ(end.code, 1); // its other replies are empty, which the wear record must not be
    EXPECT_THAT(end.out, HasSubstr("\"jobsWaiting\": 33"));
}

} // namespace

// The list of the window and the list that ulmar-disc-status prints, against the same simulated machines:
// they must agree row by row in every state that a scenario can produce.
#include "Installation.h"
#include "PubSetup.h"
#include "Room.h"

#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTimer>
#include <QtTest>

#include <memory>

namespace {

constexpr int patience = 60'000; // milliseconds

/// A scenario, and a status that one of its publishers must have, so that each case is the one that it claims
/// to be.
struct State
{
    const char* name;
    std::string scenario;
    const char* status;
    std::vector<std::pair<const char*, const char*>> commands = {}; ///< publisher, command
    uint64_t milliseconds = 0;                                      ///< that pass before the comparison
};

std::string local(const std::string& keys, const std::string& more = "")
{
    return "[publisher Studio 9]\nmodel = RT-300III BD\nid = A\n" + keys + more;
}

std::string server(const std::string& keys, const std::string& more = "")
{
    return "[network Library]\nmodel = RT-300NII\nid = N\n" + keys + more;
}

std::string fault(const std::string& what)
{
    return "[fault]\npublisher = Studio 9\n" + what + "\n";
}

std::string networkFault(const std::string& what)
{
    return "[network-fault]\npublisher = Library\n" + what + "\n";
}

const std::vector<State>& states()
{
    static const std::vector<State> all = [] {
        std::vector<State> list = {
            {"local, ready", local(""), "Ready"},
            {"local, detached", local("connected = no\n"), "Not connected"},
            {"local, jobs wait", local("jobs = 12\n"), "Ready"},
            {"local, a job runs", local("jobs = 3\n"), "Ready", {}, 5000},
            {"local, a job is paused", local("jobs = 3\n"), "Ready", {{"Studio 9", "pause"}}, 60'000},
            {"local, all jobs have ended", local("jobs = 1\ndisc-time = 1s\n"), "Ready", {}, 60'000},
            {"local, stackers empty", local("stacker1 = 0\njobs = 2\n"), "Error", {}, 10'000},
            {"local, ink empty", local("ink.cyan = 0\njobs = 2\n"), "Error", {}, 60'000},
            {"local, error cleared", local("error = 19\n"), "Ready", {{"Studio 9", "clear"}}},
            {"local, switched off", local(""), "Not connected", {{"Studio 9", "offline"}}},
            {"local, switched on", local("connected = no\n"), "Ready", {{"Studio 9", "online"}}},
            {"local, service off", local(""), "Not connected", {{"", "service off"}}},
            {"local, refused", local("", "[fault]\ndo = refuse\n"), "Not connected"},
            {"local, delayed", local("", fault("control = 22\ndo = delay 200")), "Ready"},
            {"local, status refused", local("", fault("control = 22\ndo = result 1001")), "Not connected"},
            {"local, status offline", local("", fault("control = 22\ndo = result 11")), "Not connected"},
            {"local, jobs refused", local("jobs = 3\n", fault("control = 4\ndo = result 1001")), "Ready"},
            {"network, ready", server("known-kind = 2\n"), "Ready"},
            {"network, jobs wait", server("jobs = 5\n"), "Ready"},
            {"network, a job runs", server("jobs = 3\n"), "Ready", {}, 5000},
            {"network, no space", server("disc-space = 1\n"), "Ready"},
            {"network, odd space", server("disc-space = 1537\n"), "Ready"},
            {"network, switched off", server("connected = no\n"), "Not connected"},
            {"network, server off", server("listening = no\n"), "Not connected"},
            {"network, server stopped", server(""), "Not connected", {{"Library", "server off"}}},
            {"network, server started", server("listening = no\n"), "Ready", {{"Library", "server on"}}},
            {"network, error", server("error = 26\n"), "Error"},
            {"network, output mode", server("server-mode = 3\n"), "Ready"},
            {"network, batch mode", server("server-mode = 4\n"), "Ready"},
            {"network, interface version", server("interface-version = 99000000\n"), "Unsupported version"},
            {"network, old version", server("server-version = 2.10\n"), "Unsupported version"},
            {"network, BD-XL", server("known-kind = 3\n", ""), "Ready"},
            {"network, no administrator",
             server("", networkFault("path = /webapp2/ServerModeGetter\ndo = status 11")),
             "Administrator not registered"},
            {"network, no fatal code",
             server("",
                    networkFault("path = /webapp2/DevStatusGetter?ifversion=02000000&type=5\ndo = status 9")),
             "Not connected"},
            {"network, no jobs",
             server("jobs = 2\n", networkFault("path = /webapp2/JobInfoGetter\ndo = status 9")), "Ready"},
            {"network, no count", server("", networkFault("path = /webapp2/JobNumGetter\ndo = http 500")),
             "Ready"},
            {"network, lost after the status",
             server("", networkFault("path = /webapp2/JobInfoGetter\ndo = close")), "Ready"},
            {"several",
             local("jobs = 2\n", "[publisher Studio 10]\nmodel = RT-30II BDXL\nerror = 9\n"
                                 "[publisher Studio 8]\nmodel = RT-300AP\n"
                                 "[publisher Absent]\nmodel = RT-30II\nconnected = no\n") +
                 server("listening = no\n"),
             "Ready"},
            {"names in order",
             local("name = B 10\n", "[publisher x]\nmodel = RT-30II\nname = B 9\n"
                                    "[publisher y]\nmodel = RT-30II\nname = b 1\n"
                                    "[publisher z]\nmodel = RT-30II\nname = B 009\n"),
             "Ready"},
            {"not registered", local("", "[publisher x]\nmodel = RT-30II\nregistered = no\n"), "Ready"},
        };
        for (const char* kind : {"wrong-id", "short-header", "short-payload", "huge-length", "close"}) {
            list.push_back(
                {kind, local("", fault("control = 22\ndo = " + std::string(kind))), "Not connected"});
        }
        for (const int code : {1, 9, 10, 11, 12, 26, 40, 73, 1001, 2001}) {
            list.push_back({"local, error", local("error = " + std::to_string(code) + "\n"),
                            code == 11 ? "Not connected" : "Error"});
        }
        for (const char* model :
             {"RT-300", "RT-300AP", "RT-30", "RT-30BD", "RT-5300EX", "RT-7030BD", "RT-300II DVD",
              "RT-300II BD", "RT-30II", "RT-30II BDXL", "RT-300III DVD", "RT-300III BDXL"}) {
            list.push_back({model, "[publisher Any]\nmodel = " + std::string(model) + "\n", "Ready"});
        }
        for (const char* model : {"RT-300N", "RT-300NII BD-XL"}) {
            list.push_back({model, "[network Any]\nmodel = " + std::string(model) + "\n", "Ready"});
        }
        return list;
    }();
    return all;
}

/// The rows of the window, their seven columns separated by bars.
QStringList rowsOf(const PubSetup& window)
{
    const auto list = window.treePublisherList;
    QStringList rows;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        QStringList row;
        for (int column = 0; column < list->columnCount(); ++column) {
            row << list->topLevelItem(i)->text(column);
        }
        rows << row.join(QLatin1Char('|'));
    }
    return rows;
}

/// The rows of a new window after the first replies.
QStringList rowsOfWindow()
{
    PubSetup window(nullptr);
    QSet<QString> replied;
    // Queued behind the slot that writes the row.
    QObject::connect(
        &window, &PubSetup::updateStatusOneDeviceSignal, &window,
        [&replied](const QString& id) { replied.insert(id); }, Qt::QueuedConnection);
    window.fetchStatusAsync(); // the first replies may have come before the connection
    const auto list = window.treePublisherList;
    if (!QTest::qWaitFor([&] { return replied.size() == list->topLevelItemCount() && !replied.isEmpty(); },
                         patience)) {
        qWarning("the window did not receive all replies");
    }
    return rowsOf(window);
}

/// The rows that the program prints, in the same form. Its columns are at least two blanks apart.
QStringList rowsOfProgram()
{
    QProcess program;
    program.start(STATUS_PROGRAM, {"--timeout", "60"});
    program.waitForFinished(patience);
    QStringList rows;
    const QStringList lines = QString::fromUtf8(program.readAllStandardOutput()).split('\n');
    for (int i = 1; i + 1 < lines.size(); ++i) { // without the headings, and what follows the last line end
        rows << QString(lines[i]).replace(QRegularExpression(QStringLiteral(" {2,}")), QStringLiteral("|"));
    }
    return rows;
}

} // namespace

class StatusAgreementTest : public QObject
{
    Q_OBJECT

private slots:
    void agree_data()
    {
        QTest::addColumn<int>("number");
        for (size_t i = 0; i < states().size(); ++i) {
            QTest::addRow("%02zu %s", i, states()[i].name) << static_cast<int>(i);
        }
    }

    void agree()
    {
        QFETCH(int, number);
        const State& state = states()[static_cast<size_t>(number)];
        const Installation installation;
        std::string error;
        const auto scenario = udsim::Scenario::parse(state.scenario, error);
        QVERIFY2(scenario, error.c_str());
        udsim::Room room(*scenario);
        QVERIFY2(room.start(error), error.c_str());
        for (const auto& [publisher, command] : state.commands) {
            QVERIFY2(room.tell(publisher, command, &error), error.c_str());
        }
        room.advance(state.milliseconds);

        const QString window = rowsOfWindow().join(QLatin1Char('\n'));
        const QString program = rowsOfProgram().join(QLatin1Char('\n'));
        QCOMPARE(program, window);
        QVERIFY2(window.contains(QLatin1Char('|') + QLatin1String(state.status) + QLatin1Char('|')),
                 state.status);
    }

    void secureServersAgree_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("security") << 0;
        QTest::newRow("output control") << 1;
    }

    /// The network library keeps the connection to a server in a secure mode. The window is made to query it
    /// on this thread, so that the suppression of this leak applies to this test only.
    void secureServersAgree()
    {
        QFETCH(int, mode);
        const Installation installation;
        std::string error;
        const auto scenario = udsim::Scenario::parse(
            server("registered = no\nserver-mode = " + std::to_string(mode) + "\n"), error);
        QVERIFY2(scenario, error.c_str());
        udsim::Room room(*scenario);
        QVERIFY2(room.start(error), error.c_str());
        PubSetup window(nullptr);
        window.findChild<QTimer*>()->stop();
        Installation::addNetwork("N", "Library", "127.0.0.11");
        window.updateList();
        window.fetchStatusOneDevice("N");
        QCOMPARE(rowsOf(window), QStringList{"Library|RT-300NII|127.0.0.11|Not connected|-|-|-"});
        QCOMPARE(rowsOfProgram(), rowsOf(window));
    }
};

QTEST_MAIN(StatusAgreementTest)
#include "StatusAgreementTest.moc"

// Every window of the program, each opened the way the program opens it. Add a line to allWindows() for a new
// dialog: all tests that iterate over the windows then cover it.
#pragma once

#include "BusyIndicator.h"
#include "Installation.h"
#include "MaintenanceSequences.h"
#include "PubSetup.h"
#include "Room.h"
#include "propertyDialog.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <functional>
#include <vector>

/// Called with a window that is visible and active. It may close the window.
using Visit = std::function<void(QWidget&)>;

/// One machine of each local model, by the names of the simulator.
inline constexpr struct
{
    const char* model;
    const char* id;
} machines[] = {
    {"RT-300III DVD", "a"}, {"RT-300III BD", "b"}, {"RT-300III BDXL", "c"},
    {"RT-30II", "d"},       {"RT-30II BDXL", "e"},
};

/// A name that reads back differently from how it is typed.
inline constexpr char changingName[] = "B\u00FCro 3";

/// The machines as local publishers with unfinished jobs, one unregistered server and one network publisher.
inline udsim::Scenario scenarioOfMachines()
{
    std::string text;
    for (const auto& machine : machines) {
        text += std::string("[publisher ") + machine.id + "]\nname = Studio " + machine.id +
                "\nmodel = " + machine.model + "\nid = " + machine.id + "\njobs = 2\nprint-count = 123456\n";
    }
    text += "[network Room 3]\nmodel = RT-300NII\nregistered = no\nhost = 127.0.0.11\n";
    text += "[network server]\nmodel = RT-300NII BD-XL\nid = server\nhost = 127.0.0.12\nserver-mode = "
            "3\nprint-count = 123456\n";
    std::string error;
    const auto scenario = udsim::Scenario::parse(text, error);
    if (!scenario) {
        qFatal("%s", error.c_str());
    }
    return *scenario;
}

/// Handles the modal dialogs that one call shows in sequence: accepts the first `ahead` dialogs, visits the
/// next one, then rejects it, if it is still open, and all that follow.
class ModalDialogs : public QObject
{
public:
    ModalDialogs(int ahead, Visit visit) : m_ahead(ahead), m_visit(std::move(visit))
    {
        connect(&m_timer, &QTimer::timeout, this, &ModalDialogs::look);
        m_timer.start(5);
    }

private:
    void look()
    {
        const QPointer<QDialog> dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible() || dialog->inherits("QProgressDialog")) {
            return;
        }
        m_timer.stop();
        const int place = m_seen++;
        if (place < m_ahead) {
            dialog->accept();
        } else {
            if (place == m_ahead && QTest::qWaitForWindowActive(dialog)) {
                m_visit(*dialog);
            }
            if (dialog && dialog->isVisible()) {
                dialog->reject();
            }
        }
        m_timer.start(5);
    }

    int m_ahead;
    int m_seen = 0;
    Visit m_visit;
    QTimer m_timer;
};

inline void visitShown(QWidget& window, const Visit& visit)
{
    window.show();
    window.activateWindow();
    if (QTest::qWaitForWindowActive(&window)) {
        visit(window);
    }
}

inline PUBLISHERINFO recordOf(const char* id)
{
    PUBLISHERINFO info;
    BOOL connection = 0;
    long result = 0;
    if (!PubSetup::getPublisherInfo(id, info, connection, result)) {
        qFatal("publisher %s cannot be read", id);
    }
    return info;
}

/// The record of a network publisher whose server is unreachable, so wear and versions are not available.
inline PUBLISHERINFO networkRecord()
{
    Installation::addNetwork("net", "Server room", "studio-3.example.org");
    PUBLISHERINFO info;
    info.strPublisherRegistID = "net";
    info.strPublisherName = "Server room";
    info.strHostName = "studio-3.example.org";
    info.uiPublisherType = PUBMGR_CONNECTTYPE_NETWORK;
    info.uiPublisherDevType = PUBMGR_PUBLISHERTYPE_NETWORK;
    info.uiNetPublisherType = 3;
    return info;
}

inline void visitProperties(const PUBLISHERINFO& info, BOOL connection, const Visit& visit)
{
    propertyDialogEx dialog(nullptr);
    dialog.fillContent(info, connection);
    dialog.setModal(true);
    visitShown(dialog, visit);
}

/// Opens the registration dialog and enters the address of the unregistered server, so that the dialog can be
/// accepted. May be called repeatedly.
inline void visitRegistration(const Visit& visit, const QString& name = {})
{
    for (const auto& entry : std::filesystem::directory_iterator(PUBLISHER_SETTING_DIR)) {
        if (entry.path().filename().string().starts_with("{ARPUB")) {
            std::filesystem::remove(entry.path()); // from an earlier visit
        }
    }
    const ModalDialogs dialogs(0, [&](QWidget& window) {
        window.findChild<QLineEdit*>("textHostName")->setText("127.0.0.11");
        if (!name.isEmpty()) {
            window.findChild<QLineEdit*>("textPublisherName")->setText(name);
        }
        visit(window);
    });
    PubSetup(nullptr).showAddDialog();
}

/// Moves the folder of the setting files away while the list is shown.
inline void visitEmptyList(const Visit& visit)
{
    const std::filesystem::path folder = PUBLISHER_SETTING_DIR;
    std::filesystem::path aside = folder;
    aside += ".aside";
    std::filesystem::rename(folder, aside);
    {
        PubSetup window(nullptr);
        visitShown(window, visit);
    }
    std::filesystem::rename(aside, folder);
}

struct AppWindow
{
    const char* name;
    bool isDialog; ///< Enter accepts it and Escape rejects it
    std::function<void(const Visit&)> show;
};

/// Requires a running room with scenarioOfMachines().
inline std::vector<AppWindow> allWindows()
{
    std::vector<AppWindow> windows = {
        {"list", false,
         [](const Visit& visit) {
             PubSetup window(nullptr);
             visitShown(window, visit);
         }},
        {"empty list", false, visitEmptyList},
        {"about", true,
         [](const Visit& visit) {
             const ModalDialogs dialogs(0, visit);
             PubSetup(nullptr).showAboutDialog();
         }},
        {"busy", false,
         [](const Visit& visit) {
             BusyIndicator window(nullptr);
             visitShown(window, visit);
         }},
        {"settings", true,
         [](const Visit& visit) {
             const ModalDialogs dialogs(0, visit);
             PubSetup(nullptr).showSettingDialog();
         }},
        {"registration", true, [](const Visit& visit) { visitRegistration(visit); }},
        {"registration with a name listed differently", true,
         [](const Visit& visit) { visitRegistration(visit, QString::fromUtf8(changingName)); }},
        {"properties with a name listed differently", false, // its unfinished jobs prevent saving
         [](const Visit& visit) {
             visitProperties(recordOf("c"), 1, [&visit](QWidget& window) {
                 window.findChild<QLineEdit*>("textPublisherName")->setText(QString::fromUtf8(changingName));
                 QCoreApplication::processEvents();
                 visit(window);
             });
         }},
        {"properties of a network publisher", true,
         [](const Visit& visit) { visitProperties(networkRecord(), 0, visit); }},
        {"properties of a server", true,
         [](const Visit& visit) { visitProperties(recordOf("server"), 1, visit); }},
    };
    for (const auto& machine : machines) {
        windows.push_back({machine.model, true, [id = machine.id](const Visit& visit) {
                               visitProperties(recordOf(id), 1, visit);
                           }});
    }
    const struct
    {
        const char* name;
        void (*run)(const PUBLISHERINFO&);
        int ahead;
    } steps[] = {
        {"nozzle check", runNozzleCheckSequence, 0},
        {"nozzle check, result", runNozzleCheckSequence, 1},
        {"head cleaning", runHeadCleaningSequence, 0},
        {"head cleaning, end", runHeadCleaningSequence, 1},
    };
    for (const auto& step : steps) {
        windows.push_back({step.name, true, [step](const Visit& visit) {
                               const ModalDialogs dialogs(step.ahead, visit);
                               step.run(recordOf("a"));
                           }});
    }
    return windows;
}

// Opens the properties of a local publisher, from the double click to the first paint, compared with only the
// exchanges with the control service that this needs. The difference is the time of the program itself.
#include "PubSetup.h"
#include "Room.h"
#include "Stopwatch.h"
#include "propertyDialog.h"

#include <QApplication>

namespace {

constexpr char scenario[] = "[publisher Studio A]\nmodel = RT-300III BDXL\nid = studio\n";
constexpr char id[] = "studio";

bool exchange(CPublisherMgr& publisherMgr)
{
    ULONG mode = 0;
    PUBLISHERMAINTENANCEINFO maintenance;
    PUBLISHERVERSIONINFO version;
    return publisherMgr.GetServicePublishMode(id, &mode, nullptr) &&
           publisherMgr.GetPublisherMaintenanceInfo(id, &maintenance, nullptr) &&
           publisherMgr.GetPublisherVersionInfo(id, &version, nullptr);
}

bool open(CPublisherMgr& publisherMgr)
{
    PUBLISHERINFO info;
    BOOL bConnection = 0;
    long lResultCommLib = 0;
    ULONG mode = 0;
    if (!PubSetup::getPublisherInfo(id, info, bConnection, lResultCommLib) ||
        !publisherMgr.GetServicePublishMode(id, &mode, nullptr)) {
        return false;
    }
    propertyDialogEx dialog(nullptr);
    dialog.fillContent(info, bConnection);
    dialog.show();
    QApplication::processEvents();
    return dialog.isVisible() && !dialog.labelSerialNo->text().isEmpty();
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
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
    if (!exchange(publisherMgr) || !open(publisherMgr)) {
        std::fprintf(stderr, "the publisher cannot be queried\n");
        return 1;
    }
    Compare("Opening the properties of a local publisher",
            {{"getPublisherInfo, dialog, first paint", [&] { open(publisherMgr); }, {}},
             {"only its exchanges with the service", [&] { exchange(publisherMgr); }, {}}},
            101);
    return 0;
}

// Reports with every field filled, and with none.
#pragma once

#include "PublisherReport.h"

/// A ready local publisher with two drives.
inline PublisherReport fullReport()
{
    PublisherReport report;
    report.id = "{ARPUB20260105_1}";
    report.name = "Studio A";
    report.devType = PUBMGR_PUBLISHERTYPE_300III_BD;
    report.model = "RT-300III";
    report.asked = QDateTime::fromString("2026-01-05T13:45:07Z", Qt::ISODate);
    report.answer = Answer::all;
    report.reachable = true;
    report.state = PublisherState::ready;
    report.fatalCode = 0;
    report.waiting = 2;
    report.publishMode = PUBMGR_PUBLISHMODE_NORMAL;
    report.stackers = {{.number = 1,
                        .holds = PUBMGR_STACKERDISCTYPE_CDR,
                        .input = true,
                        .discs = ARV_PC_STK_STATUS_SUPPLY | 88},
                       {.number = 2, .holds = PUBMGR_STACKERDISCTYPE_OUTPUT, .input = false, .discs = 3},
                       {.number = 4,
                        .holds = PUBMGR_STACKERDISCTYPE_OUTPUT,
                        .input = false,
                        .discs = ARV_PC_STK_STATUS_NOT_FULL}};
    report.ink = {41,
                  100,
                  ARV_PC_INK_NEAR_EMPTY | 3,
                  ARV_PC_INK_CARTRIDGE_REMOVED,
                  ARV_PC_INK_CARTRIDGE_INVALID,
                  ARV_PC_INK_UNKNOWN};
    report.printsLeft = 420;
    report.loader = ARV_PC_ALD_STATE_AUTOMATION;
    report.printer = ARV_PC_PRT_STATE_PRINTING;
    report.drives = {DriveReport{ARV_PC_DRV_STATE_CONTAINING | ARV_PC_DRV_STATE_WRITING, 36},
                     DriveReport{ARV_PC_DRV_STATE_IDLE, 0}};
    report.jobs.emplace();
    report.jobs->push_back({.id = "J1",
                            .name = "Annual report",
                            .person = "kim",
                            .status = ARV_PC_JOB_RUNNING,
                            .type = 3,
                            .factor = 0,
                            .copies = 10,
                            .completed = 4,
                            .failed = 1,
                            .remainingTime = 3725});
    report.wear = {.serialNumber = "SIM1",
                   .discsPublished = 1840,
                   .discsPrinted = 1841,
                   .maintenanceBoxFree = 97.25,
                   .driveWear = {12.5, std::nullopt}};
    report.versions = {.autoloader = "02.14",
                       .printerModel = "PRN",
                       .printer = "01.37",
                       .driveModels = {"BDR", "BDS"},
                       .drives = {"1.05", "1.06"},
                       .server = "",
                       .administrator = ""};
    return report;
}

/// A network publisher that gave no answer.
inline PublisherReport silentReport()
{
    PublisherReport report;
    report.id = "N";
    report.name = "Library";
    report.network = true;
    report.devType = PUBMGR_PUBLISHERTYPE_NETWORK;
    report.model = "RT-300NII";
    report.host = "127.0.0.11";
    report.asked = QDateTime::fromString("2026-01-05T13:45:08Z", Qt::ISODate);
    return report;
}

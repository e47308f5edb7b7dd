#include "ServicePayloads.h"

#include <utility>

#include "Protocol.h"
#include "Wire.h"

namespace udsim {

namespace {

constexpr char MAKER[] = "ARVEN";
constexpr char DRIVE_RELEASE_DATE[] = "2025/06/12";
constexpr size_t INFO_FIELD = 32;

/// The status bits of the device's parts for an error code.
struct ErrorBits
{
    uint32_t code;
    uint64_t loader;
    uint64_t printer;
};

constexpr ErrorBits ERROR_BITS[] = {
    {9, ald::DISC_COVER_OPEN, printer::ERROR_DISC_COVER_OPEN},
    {10, ald::INK_COVER_OPEN, printer::ERROR_INK_COVER_OPEN},
    {11, ald::POWER_OFF, printer::ERROR_OFFLINE},
    {19, ald::PRT_ERROR, printer::ERROR_INK_OUT},
    {26, ald::PRT_FATAL_ERROR, printer::ERROR_FATAL},
    {28, ald::PRT_ERROR, printer::ERROR_INKPAD_OVERFLOW},
    {29, ald::PRT_MAINTENANCE, printer::ERROR_MAINTENANCE},
    {42, ald::ALD_FATAL_ERROR, 0},
    {46, ald::STACKER4_OPEN, 0},
    {48, ald::STK_DISC_PICK, 0},
    {56, ald::MB_FULL, printer::ERROR_MB_FULL},
    {57, ald::MB_COVER_OPEN, printer::ERROR_MB_COVER_OPEN},
    {58, ald::MB_OUT, printer::ERROR_MB_OUT},
    {63, ald::PRT_ERROR, printer::ERROR_MECHANISM},
    {64, ald::ALD_MAINTENANCE_ERROR, 0},
};

ErrorBits errorBits(uint32_t code)
{
    for (const ErrorBits& bits : ERROR_BITS) {
        if (bits.code == code) {
            return bits;
        }
    }
    return {code, ald::ALD_ERROR, 0};
}

void appendJob(ByteWriter& out, const Publisher& publisher, const Job& job, size_t index)
{
    const auto& stackers = publisher.state().stackers;
    const auto [sources, destinations] = routeOf(publisher, job);
    out.text(job.id, 256).text(job.name, 256).u64(job.status).u64(job.factor).u64(job.completed).u64(index);
    out.u64(job.rounds() * job.roundTime / 1000).u64(publisher.remainingSeconds(job));
    out.u64(0) // errors
        .u64(job.copies)
        .u64(0) // discs that failed
        .text(job.person, 65)
        .text("", 65) // approver
        .zeros(6)
        .u64(job.type)
        .u64(sources)
        .u64(destinations)
        .text("", 41) // plug-in
        .zeros(7)
        .u64(0) // history
        .u64(publisher.state().mode)
        .text("", 260) // path of a read error
        .zeros(4)
        .u64(0) // read result
        .u64(stackers[2].media);
}

} // namespace

uint64_t oneDriveStatus(const Publisher& publisher, unsigned which)
{
    if (which >= publisher.model().drives || !publisher.connected()) {
        return drive::NOT_USED;
    }
    if (which != publisher.activeDrive()) {
        return drive::IDLE;
    }
    switch (publisher.phase()) {
    case Phase::conveying:
        return drive::CONVEYING;
    case Phase::writing:
        return drive::CONTAINING | drive::WRITING;
    case Phase::verifying:
        return drive::CONTAINING | drive::VERIFYING;
    default:
        return drive::IDLE;
    }
}

namespace {

/// Returns whether this drive is writing or verifying.
bool isBurning(const Publisher& publisher, unsigned which)
{
    const Phase phase = publisher.phase();
    return publisher.connected() && which < publisher.model().drives && which == publisher.activeDrive() &&
           (phase == Phase::writing || phase == Phase::verifying);
}

} // namespace

uint64_t driveProgress(const Publisher& publisher, unsigned which)
{
    return isBurning(publisher, which) ? publisher.progressPercent() : 0;
}

std::pair<uint64_t, uint64_t> routeOf(const Publisher& publisher, const Job& job)
{
    if (job.isCleaning()) {
        return {0, 0};
    }
    if (job.isNozzleCheck()) {
        return {STACKER1, job.destinations};
    }
    uint64_t sources = 0;
    uint64_t destinations = 0;
    const auto& stackers = publisher.state().stackers;
    for (size_t i = 0; i < stackers.size(); ++i) {
        sources |= stackers[i].isInput() ? uint64_t{1} << i : 0;
        destinations |= stackers[i].isOutput() ? uint64_t{1} << i : 0;
    }
    return {sources, destinations};
}

uint64_t loaderStatus(const Publisher& publisher)
{
    if (publisher.hindrance() != 0) {
        return errorBits(publisher.hindrance()).loader;
    }
    const Phase phase = publisher.phase();
    return phase == Phase::idle || phase == Phase::cleaning ? 0 : ald::AUTOMATION;
}

uint64_t printerStatus(const Publisher& publisher)
{
    if (publisher.hindrance() != 0) {
        const uint64_t bits = errorBits(publisher.hindrance()).printer;
        return bits == 0 ? printer::IDLE : printer::ERROR | bits;
    }
    switch (publisher.phase()) {
    case Phase::printing:
        return printer::PRINTING;
    case Phase::cleaning:
        return printer::CLEANING;
    default:
        return printer::IDLE;
    }
}

uint64_t maintenanceBoxStatus(const Publisher& publisher)
{
    if (!publisher.connected() || !publisher.model().maintenanceBox) {
        return MAINTENANCEBOX_UNKNOWN;
    }
    const uint64_t free = publisher.state().maintenanceBox;
    return free < NEAR_EMPTY_PERCENT ? free | MAINTENANCEBOX_NEAR_FULL : free;
}

uint64_t activity(const Publisher& publisher)
{
    switch (publisher.hindrance() == 0 ? publisher.phase() : Phase::idle) {
    case Phase::conveying:
        return notify::DISC_WORKING | notify::ARM_ACTIVE;
    case Phase::writing:
    case Phase::verifying:
        return notify::DISC_WORKING |
               (publisher.activeDrive() == 0 ? notify::DRV1_ACTIVE : notify::DRV2_ACTIVE);
    case Phase::printing:
        return notify::DISC_WORKING | notify::PRT_ACTIVE;
    case Phase::cleaning:
        return notify::PRT_ACTIVE;
    default:
        return 0;
    }
}

std::string jobList(const Publisher& publisher, uint64_t which)
{
    ByteWriter out;
    size_t index = 0;
    for (const Job& job : publisher.jobs()) {
        const bool ended = job.status == job_status::FINISHED || job.status == job_status::CANCELLED;
        if ((which & (ended ? COMPLETE_JOBS : PROCESSING_JOBS)) != 0) {
            appendJob(out, publisher, job, index);
        }
        ++index;
    }
    return out.bytes();
}

std::string inkStatus(const Publisher& publisher)
{
    ByteWriter out;
    for (const uint32_t percent : publisher.state().ink) {
        const uint64_t flag = percent < NEAR_EMPTY_PERCENT ? ink::NEAR_EMPTY : 0;
        out.u64(publisher.connected() ? percent | flag : ink::UNKNOWN);
    }
    return out.bytes();
}

std::string driveStatus(const Publisher& publisher)
{
    ByteWriter out;
    for (const unsigned which : {0U, 1U}) {
        out.u64(oneDriveStatus(publisher, which)).text("", 41).zeros(7).u64(driveProgress(publisher, which));
    }
    return out.bytes();
}

std::string stackerStatus(const Publisher& publisher)
{
    ByteWriter out;
    for (const Stacker& one : publisher.state().stackers) {
        const uint64_t supply = one.isInput() ? stacker::SUPPLY : 0;
        out.u32(publisher.connected() ? one.discs | supply : stacker::UNKNOWN);
    }
    return out.bytes();
}

std::string stackerMedia(const Publisher& publisher)
{
    ByteWriter out;
    for (const Stacker& one : publisher.state().stackers) {
        out.u32(one.media);
    }
    return out.bytes();
}

std::string loaderInfo(const Publisher& publisher)
{
    ByteWriter out;
    out.text(MAKER, INFO_FIELD)
        .text(publisher.model().name, INFO_FIELD)
        .text(LOADER_FIRMWARE, INFO_FIELD)
        .text(publisher.state().serial, INFO_FIELD);
    return out.bytes();
}

std::string printerInfo(const Publisher& publisher)
{
    ByteWriter out;
    out.text(MAKER, INFO_FIELD)
        .text(publisher.model().printerName, INFO_FIELD)
        .text(PRINTER_FIRMWARE, INFO_FIELD)
        .text("P" + publisher.state().serial, INFO_FIELD);
    return out.bytes();
}

std::string driveInfo(const Publisher& publisher)
{
    ByteWriter out;
    for (const unsigned which : {0U, 1U}) {
        if (which < publisher.model().drives) {
            out.text(MAKER, INFO_FIELD)
                .text(publisher.model().driveName, INFO_FIELD)
                .text(DRIVE_FIRMWARE, INFO_FIELD)
                .text(DRIVE_RELEASE_DATE, INFO_FIELD)
                .text("D" + std::to_string(which + 1) + publisher.state().serial, INFO_FIELD);
        } else {
            out.zeros(5 * INFO_FIELD);
        }
    }
    return out.bytes();
}

std::string maintenanceInfo(const Publisher& publisher)
{
    constexpr uint64_t PRINTER_LIFE = 100'000; // discs
    constexpr uint64_t TRAY_LIFE = 60'000;
    constexpr uint64_t WRITE_TIME_LIFE = 4'000'000; // seconds
    constexpr uint64_t READ_TIME_LIFE = 8'000'000;

    const Model& model = publisher.model();
    const uint64_t printed = publisher.printedDiscs();
    ByteWriter out;
    out.u64(printed).u64(PRINTER_LIFE);
    if (model.maintenanceBox) {
        constexpr uint64_t FULL = 100; // percent; the payload contains the used part
        out.u64(FULL - publisher.state().maintenanceBox).u64(FULL);
    } else {
        out.u64(MAINTENANCE_FIGURE_UNKNOWN).u64(MAINTENANCE_FIGURE_UNKNOWN);
    }
    out.u64(printed).u64(0).u64(0).u64(0).u64(0).u64(0).u64(
        0); // CD: all discs; four kinds of DVD; two kinds of BD
    for (const unsigned which : {0U, 1U}) {
        if (which >= model.drives) {
            for (int field = 0; field < 12; ++field) {
                out.u64(MAINTENANCE_FIGURE_UNKNOWN);
            }
            continue;
        }
        const uint64_t discs = printed / model.drives;
        const uint64_t seconds = discs * publisher.state().discTime / 1000;
        out.u64(discs).u64(TRAY_LIFE);
        out.u64(seconds).u64(WRITE_TIME_LIFE); // CD
        out.u64(0).u64(WRITE_TIME_LIFE);       // DVD
        out.u64(0).u64(WRITE_TIME_LIFE);       // BD
        out.u64(seconds).u64(WRITE_TIME_LIFE);
        out.u64(0).u64(READ_TIME_LIFE);
    }
    out.u64(0); // no plug-in was used
    out.u64(model.drives > 0 ? 1 : 0).u64(model.drives > 1 ? 1 : 0);
    out.u64(printed);
    out.text(publisher.state().serial, INFO_FIELD);
    return out.bytes();
}

} // namespace udsim

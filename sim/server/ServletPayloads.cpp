#include "ServletPayloads.h"

#include <algorithm>
#include <array>

#include <glib.h>

#include "Protocol.h"
#include "ServicePayloads.h"
#include "ServletNumbers.h"

namespace udsim {

namespace {

constexpr size_t LONGEST_ITEM = 0xFFFF;
constexpr size_t PERSON_FIELD = 128;
constexpr size_t NAME_FIELD = 510;
constexpr uint64_t NO_STACKER_IN_REPLY = 0xFFFF;
constexpr char SECURITY_VERSION[] = "1.00";

/// Encodes words of four bytes each.
template <class... Words>
std::string words(Words... values)
{
    return (std::string() + ... + bigEndian(values, 4));
}

/// Converts to little-endian UTF-16, cut to whole characters within `longest` bytes.
std::string utf16(const std::string& text, size_t longest)
{
    gchar* const valid = g_utf8_make_valid(text.data(), static_cast<gssize>(text.size()));
    glong units = 0;
    gunichar2* const wide = g_utf8_to_utf16(valid, -1, nullptr, &units, nullptr);
    g_free(valid);
    auto count = std::min(static_cast<size_t>(units), longest / 2);
    if (count > 0 && count < static_cast<size_t>(units) && (wide[count - 1] & 0xFC00) == 0xD800) {
        --count;
    }
    std::string bytes;
    for (size_t i = 0; i < count; ++i) {
        bytes += static_cast<char>(wide[i] & 0xFF);
        bytes += static_cast<char>(wide[i] >> 8);
    }
    g_free(wide);
    return bytes;
}

std::string padded(std::string text, size_t size)
{
    text.resize(size);
    return text;
}

std::string stackerWords(const Publisher& machine)
{
    std::string data;
    for (const Stacker& one : machine.state().stackers) {
        data += bigEndian(one.discs | (one.isInput() ? stacker::SUPPLY : 0), 4);
    }
    return data;
}

std::string loaderWords(const Publisher& machine)
{
    const uint32_t code = machine.hindrance();
    const auto bit = [code](uint32_t when, uint64_t value) { return code == when ? value : 0; };
    return words(bit(result::STACKER4_OPEN, 8), uint64_t{0},
                 bit(result::DISC_COVER_OPEN, 1) | bit(result::INK_COVER_OPEN, 2),
                 bit(result::STACKER_DISC_PICK, 1));
}

uint64_t printerWord(const Publisher& machine)
{
    constexpr uint64_t STATES =
        printer::IDLE | printer::CONVEYING | printer::PRINTING | printer::PAUSE | printer::CLEANING;
    constexpr uint64_t INK_PAD_WARNING = 0x200;
    return (printerStatus(machine) & STATES) |
           (machine.hindrance() == result::INK_PAD_OVERFLOW ? INK_PAD_WARNING : 0);
}

std::string inkWords(const Publisher& machine)
{
    // Black, cyan, light cyan, magenta, light magenta, yellow.
    constexpr std::array<size_t, 6> ORDER{5, 0, 3, 1, 4, 2};
    std::string data;
    for (const size_t index : ORDER) {
        const uint32_t percent = machine.state().ink[index];
        data += bigEndian(percent | (percent < NEAR_EMPTY_PERCENT ? ink::NEAR_EMPTY : 0), 4);
    }
    return data;
}

uint64_t fatalError(const Publisher& machine)
{
    constexpr std::array<uint32_t, 13> FATAL{1, 2, 3, 4, 5, 6, 25, 26, 28, 29, 39, 42, 43};
    const uint32_t code = machine.hindrance();
    return std::find(FATAL.begin(), FATAL.end(), code) == FATAL.end() ? 0 : code;
}

std::string noticeWords(const PublisherServer& server)
{
    const Publisher& machine = server.machine();
    const auto& stackers = machine.state().stackers;
    const uint32_t code = machine.hindrance();
    uint64_t empty = 0;
    uint64_t full = 0;
    for (size_t i = 0; i < stackers.size(); ++i) {
        empty |= i < 2 && stackers[i].isInput() && stackers[i].discs == 0 ? uint64_t{1} << i : 0;
        full |=
            stackers[i].isOutput() && stackers[i].discs >= Publisher::STACKER_CAPACITY ? uint64_t{1} << i : 0;
    }
    const auto bit = [code](uint32_t when, uint64_t value) { return code == when ? value : 0; };
    // Batch mode uses another bit for stacker 3.
    const bool batch = machine.state().mode == mode::BATCH;
    const uint64_t third = batch && (full & STACKER3) != 0 ? 0x4 : 0;
    return words(activity(machine), empty, batch ? full & ~STACKER3 : full, uint64_t{0}, uint64_t{0},
                 uint64_t{0},
                 bit(result::DISC_WRITE, 0x1) | bit(result::MULTIFEED_DRIVE, 0x4) |
                     bit(result::MULTIFEED_PRINTER, 0x8) | bit(result::INK_EMPTY, 0x40),
                 bit(result::DISC_TYPE, 0x1) | bit(result::DISC_NOT_BLANK, 0x2) | third);
}

std::string maintenanceWords(const PublisherServer& server)
{
    constexpr uint64_t TRAY_LIFE = 60'000;
    constexpr uint64_t WRITE_TIME_LIFE = 4'000'000; // seconds
    const Publisher& machine = server.machine();
    const uint64_t printed = machine.printedDiscs();
    const uint64_t discs = printed / machine.model().drives;
    const uint64_t seconds = discs * machine.state().discTime / 1000;
    std::string data = words(printed);
    for (unsigned drive = 0; drive < machine.model().drives; ++drive) {
        data += words(discs, TRAY_LIFE, seconds, WRITE_TIME_LIFE, uint64_t{0}, WRITE_TIME_LIFE);
        data += server.setup().model->bluRayFigures ? words(uint64_t{0}, WRITE_TIME_LIFE) : "";
    }
    return data;
}

/// Returns arbitrary bytes in place of a vendor-specific block of the device.
std::string block(size_t size)
{
    std::string bytes;
    for (size_t i = 0; i < size; ++i) {
        bytes += static_cast<char>(i);
    }
    return bytes;
}

uint8_t statusOf(const Job& job)
{
    // By job_status: unused, waiting, running, cancelling, pausing, paused, stopping, stopped, cancelled,
    // finished.
    constexpr std::array<uint8_t, 10> STATUS{0, 0, 1, 2, 5, 6, 3, 4, 9, 8};
    return STATUS.at(job.status);
}

uint64_t loadOf(uint64_t sources)
{
    switch (sources & (STACKER1 | STACKER2)) {
    case STACKER1 | STACKER2:
        return 0;
    case STACKER1:
        return 1;
    case STACKER2:
        return 2;
    default:
        return NO_STACKER_IN_REPLY;
    }
}

uint64_t ejectOf(uint64_t destinations)
{
    if (destinations == (STACKER2 | STACKER3)) {
        return 0;
    }
    for (uint64_t i = 0; i < 4; ++i) {
        if ((destinations >> i & 1) != 0) {
            return i + 1;
        }
    }
    return NO_STACKER_IN_REPLY;
}

/// Returns 0 for writing and printing, 1 for writing, 2 for printing.
uint64_t typeOf(const Job& job)
{
    if (job.type == JOB_TYPE_WRITE) {
        return 1;
    }
    return job.type == (JOB_TYPE_WRITE | JOB_TYPE_PRINT) ? 0 : 2;
}

uint64_t printModeOf(const Job& job)
{
    constexpr uint64_t CLEANING = 4;
    constexpr uint64_t NOZZLE_CHECK = 5;
    return job.isCleaning() ? CLEANING : job.isNozzleCheck() ? NOZZLE_CHECK : 0;
}

} // namespace

std::string bigEndian(uint64_t value, size_t size)
{
    std::string bytes;
    while (size-- > 0) {
        bytes += static_cast<char>(value >> (8 * size) & 0xFF);
    }
    return bytes;
}

std::string replyItem(uint8_t status, std::string_view data)
{
    const std::string_view kept = data.substr(0, LONGEST_ITEM);
    return bigEndian(status, 1) + bigEndian(kept.size(), 2) + std::string(kept);
}

bool isOfMachine(uint32_t textType)
{
    return textType <= text_info::DRIVE2_VERSION || textType >= text_info::DRIVE1_SPEEDS;
}

std::optional<std::string> textInfo(const PublisherServer& server, uint32_t type)
{
    const Publisher& machine = server.machine();
    switch (type) {
    case text_info::SERIAL:
        return machine.state().serial;
    case text_info::LOADER_VERSION:
        return LOADER_FIRMWARE;
    case text_info::PRINTER_VERSION:
        return PRINTER_FIRMWARE;
    case text_info::DRIVE1_VERSION:
    case text_info::DRIVE2_VERSION:
        return DRIVE_FIRMWARE;
    case text_info::SERVER_VERSION:
        return server.setup().serverVersion;
    case text_info::WEB_VERSION:
        return server.setup().webVersion;
    case text_info::SECURITY_VERSION:
        return machine.state().mode == mode::SECURITY ? std::optional<std::string>(SECURITY_VERSION)
                                                      : std::nullopt;
    case text_info::FREE_SPACE:
        return std::to_string(server.uploads().freeSpace());
    case text_info::SPACE:
        return std::to_string(server.uploads().capacity());
    case text_info::DRIVE1_SPEEDS:
    case text_info::DRIVE2_SPEEDS:
        return machine.model().writeSpeeds();
    case text_info::PRINTER_NAME:
        return machine.model().printerName;
    case text_info::DRIVE1_NAME:
    case text_info::DRIVE2_NAME:
        return machine.model().driveName;
    default:
        return std::nullopt;
    }
}

std::optional<uint32_t> numberInfo(const PublisherServer& server, uint32_t type)
{
    constexpr uint32_t VERIFY = 1;
    const ServerSetup& setup = server.setup();
    switch (type) {
    case number_info::DRIVES_USED:
        return setup.drivesUsed;
    case number_info::CONFIRMATION:
        return VERIFY;
    case number_info::RETRIES:
        return setup.retries;
    case number_info::ERROR_MARK:
        return setup.errorMark ? 1 : 0;
    case number_info::STACKER1:
    case number_info::STACKER2:
    case number_info::STACKER3: {
        if (type == number_info::STACKER3 && !setup.thirdStacker) {
            return std::nullopt;
        }
        const uint32_t media = server.machine().state().stackers[type - number_info::STACKER1].media;
        return media == media::NOT_USED ? number_info::MEDIA_NOT_USED : media;
    }
    case number_info::SUSPENDED:
        return 0;
    case number_info::BDXL:
        return setup.model->tellsXl ? std::optional<uint32_t>(setup.model->machine.bluRayXl ? 1 : 0)
                                    : std::nullopt;
    default:
        return std::nullopt;
    }
}

std::optional<std::string> deviceStatus(const PublisherServer& server, uint32_t type)
{
    constexpr size_t LOADER_BLOCK_SIZE = 16;
    constexpr size_t PRINTER_BLOCK_SIZE = 40;
    const Publisher& machine = server.machine();
    switch (type) {
    case device_status::LOADER:
        return loaderWords(machine);
    case device_status::STACKERS:
        return stackerWords(machine);
    case device_status::DRIVES:
        return words(oneDriveStatus(machine, 0), oneDriveStatus(machine, 1));
    case device_status::PRINTER:
        return words(printerWord(machine));
    case device_status::INK:
        return inkWords(machine);
    case device_status::FATAL_ERROR:
        return words(fatalError(machine));
    case device_status::NOTICE:
        return noticeWords(server);
    case device_status::LOADER_BLOCK:
        return block(LOADER_BLOCK_SIZE);
    case device_status::PRINTER_BLOCK:
        return block(PRINTER_BLOCK_SIZE);
    case device_status::MAINTENANCE:
        return maintenanceWords(server);
    case device_status::DRIVES_EX:
        return words(oneDriveStatus(machine, 0), oneDriveStatus(machine, 1), driveProgress(machine, 0),
                     driveProgress(machine, 1));
    default:
        return std::nullopt;
    }
}

std::string jobPayload(const PublisherServer& server, const Job& job, bool extended)
{
    const auto [sources, destinations] = routeOf(server.machine(), job);
    const std::string person = utf16(job.person, PERSON_FIELD);
    const std::string name = utf16(job.name, NAME_FIELD);
    std::string payload = bigEndian(statusOf(job), 1) + bigEndian(job.factor, 1) + bigEndian(job.copies, 2) +
                          bigEndian(job.completed, 2);
    payload += bigEndian(person.size(), 1) + padded(person, PERSON_FIELD);
    payload +=
        bigEndian(typeOf(job), 1) + bigEndian(loadOf(sources), 2) + bigEndian(ejectOf(destinations), 2);
    payload += bigEndian(job.rounds() * job.roundTime / 1000, 4) + bigEndian(0, 2); // no error number
    payload += bigEndian(name.size(), 2) + padded(name, NAME_FIELD);
    payload += bigEndian(job.history, 4) + bigEndian(printModeOf(job), 1) +
               bigEndian(server.setup().serverMode(), 1);
    payload += padded(utf16(job.reference, NAME_FIELD), NAME_FIELD) + bigEndian(job.number, 4);
    return extended ? payload + bigEndian(server.machine().remainingSeconds(job), 4) : payload;
}

} // namespace udsim

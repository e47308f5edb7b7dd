#include "PublisherReport.h"

#include "InstallPaths.h"
#include "NaturalOrder.h"
#include "PropertyRows.h"
#include "ReadPass.h"
#include "SettingFile.h"
#include "StackerRules.h"
#include "UsedStackers.h"
#include "WearFigures.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <list>
#include <set>

#include <sys/stat.h>

namespace {

QString textOf(const CString& text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

/// A text field of a record, which may lack its NUL.
template <size_t size>
QString textOf(const char (&field)[size])
{
    return QString::fromUtf8(field, static_cast<int>(::strnlen(field, size)));
}

std::optional<quint32> known(UINT count)
{
    return count == ARV_PC_MAINTENANCEINFO_UNKNOWN ? std::nullopt : std::optional<quint32>(count);
}

/// The remaining time of a job; 0 and 0xFFFFFFFF are unknown.
std::optional<quint64> remainingTime(quint64 value)
{
    return value == 0 || value == 0xFFFFFFFF ? std::nullopt : std::optional<quint64>(value);
}

/// A setting; 0xFFFFFFFF is unknown.
std::optional<quint32> setting(UINT value)
{
    return value == PUBMGR_PUBLISHMODE_ERROR ? std::nullopt : std::optional<quint32>(value);
}

void askModeAndStackers(CPublisherMgr& mgr, const char* id, const PUBLISHERINFO& info,
                        PublisherReport& report)
{
    // As in the property dialog, the record counts. It holds the values of the server, or those stored here.
    report.publishMode = setting(info.uiPublishMode);
    StackerCounts counts;
    ULONG discs[stackerCount] = {};
    if (mgr.GetServiceStackerStatus(id, &discs[0], &discs[1], &discs[2], &discs[3], nullptr)) {
        for (size_t i = 0; i < stackerCount; ++i) {
            counts[i] = discs[i];
        }
        if (report.network) {
            counts[3].reset(); // the manager repeats the value of stacker 3
        }
    }
    report.stackers = usedStackers(report.devType, info, counts);
}

void askSupplies(CPublisherMgr& mgr, const char* id, PublisherReport& report)
{
    ST_PC_INK_STATUS ink{};
    if (mgr.GetServiceInkStatus(id, &ink, nullptr)) {
        report.ink = {ink.ulCyan,      ink.ulMagenta,      ink.ulYellow,
                      ink.ulLightCyan, ink.ulLightMagenta, ink.ulBlack};
    }
    const int prints = mgr.GetServiceEstimateCirculation(id, nullptr);
    if (prints >= 0 && static_cast<ULONG>(prints) != ARV_PC_CIRCULATION_UNKNOWN) {
        report.printsLeft = static_cast<quint32>(prints);
    }
}

void askJobs(CPublisherMgr& mgr, const char* id, PublisherReport& report)
{
    JobStatusArray jobs;
    if (!mgr.GetServiceJobStatusUnfinish(id, &jobs, nullptr)) {
        return;
    }
    report.jobs.emplace();
    for (const ST_PC_JOB_STATUS& job : jobs) {
        report.jobs->push_back({.id = textOf(job.acJobID),
                                .name = textOf(job.acJobName),
                                .person = textOf(job.acPublicationPerson),
                                .status = job.ulJobStatus,
                                .type = job.ulJobType,
                                .factor = job.ulFactor,
                                .copies = job.ulPublicationNumber,
                                .completed = job.ulCompletionNumber,
                                .failed = job.ulErrorNumber,
                                .remainingTime = remainingTime(job.ulRemainingTime)});
    }
}

void askLoaderAndPrinter(CPublisherMgr& mgr, const char* id, PublisherReport& report)
{
    ULONG status = 0;
    if (mgr.GetServiceAldStatus(id, &status, nullptr)) {
        report.loader = status;
    }
    if (mgr.GetServicePrinterStatus(id, &status, nullptr)) {
        report.printer = status;
    }
}

void askDrives(CPublisherMgr& mgr, const char* id, PublisherReport& report)
{
    ST_PC_DRV_STATUS drives[mostDrives] = {};
    if (mgr.GetServiceDriveStatus(id, &drives[0], &drives[1], nullptr)) {
        report.drives.emplace();
        for (size_t i = 0; i < mostDrives; ++i) {
            (*report.drives)[i] = {drives[i].ulDrvStatus, drives[i].ulDrvProgressStatus};
        }
    }
}

std::optional<double> wearOf(const PUBMAINTINFODRIVE& drive)
{
    double wear = 0;
    return calcDriveLifeValue(drive, &wear) ? std::optional<double>(wear) : std::nullopt;
}

void askWear(CPublisherMgr& mgr, const char* id, PublisherReport& report)
{
    PUBLISHERMAINTENANCEINFO info;
    if (!mgr.GetPublisherMaintenanceInfo(id, &info, nullptr)) {
        return;
    }
    const bool hasBox = propertyRows(modelFamily(report.devType)).discAndBoxFigures;
    double used = 0;
    report.wear = {.serialNumber = textOf(info.strSerialNo),
                   .discsPublished = hasBox ? known(info.uiCompleteDiscNum) : std::nullopt,
                   .discsPrinted = known(info.uiPrintCount),
                   .maintenanceBoxFree = std::nullopt,
                   .driveWear = {wearOf(info.midrvDrive1), wearOf(info.midrvDrive2)}};
    if (hasBox && info.uiMainteBoxCount <= info.uiMainteBoxLife &&
        calcProductLife(info.uiMainteBoxCount, info.uiMainteBoxLife, &used)) {
        report.wear->maintenanceBoxFree = 100 - used;
    }
}

void askVersions(CPublisherMgr& mgr, const char* id, PublisherReport& report)
{
    PUBLISHERVERSIONINFO info;
    if (mgr.GetPublisherVersionInfo(id, &info, nullptr)) {
        report.versions = {.autoloader = textOf(info.strAutoLoaderVersion),
                           .printerModel = textOf(info.strPrinterModelName),
                           .printer = textOf(info.strPrinterVersion),
                           .driveModels = {textOf(info.strDrive1ModelName), textOf(info.strDrive2ModelName)},
                           .drives = {textOf(info.strDrive1Version), textOf(info.strDrive2Version)},
                           .server = textOf(info.strSSSVersion),
                           .administrator = textOf(info.strUDNAVersion)};
    }
}

/// The manager reads a file that cannot be opened as that of a local publisher named "NotSet".
bool canBeRead(const CString& id)
{
    return ReadPass::Profile(SettingFile(PUBLISHER_SETTING_DIR, id.c_str()).Path()) != nullptr;
}

/// Not of an id that a file such as ".A.ini.swp" has, or whose file has just been removed. A link to nowhere
/// exists.
bool exists(const CString& id)
{
    struct stat status = {};
    return ::lstat(SettingFile(PUBLISHER_SETTING_DIR, id.c_str()).Path().c_str(), &status) == 0 ||
           errno != ENOENT;
}

void setStatus(const StatusReply& reply, PublisherReport& report)
{
    report.model = reply.row.strDevType;
    report.host = reply.row.strHostName;
    report.reachable = reply.facts.reachable;
    report.state = reply.state;
    if (report.state == PublisherState::error) {
        report.fatalCode = reply.facts.fatalCode;
    } else if (report.state == PublisherState::ready) {
        report.fatalCode = 0;
    }
    report.waiting = reply.row.nJobWaiting;
    report.sending = reply.row.nJobSending;
    report.space = reply.row.strHDDAvail;
    bool isNumber = false;
    const qint64 bytes = QByteArray(reply.freeBytes.c_str()).toLongLong(&isNumber);
    report.freeBytes = isNumber ? std::optional<qint64>(bytes) : std::nullopt;
}

} // namespace

size_t PublisherReport::driveCount() const
{
    const PublisherModel* row = FindModel(devType);
    return row ? std::min(static_cast<size_t>(row->nDrives), mostDrives) : mostDrives;
}

bool PublisherReport::isAnswered() const
{
    const bool noServer = network && !reachable && state == PublisherState::notConnected;
    return answer == Answer::all && failure == QueryFailure::none && !serviceUnreachable && !noServer;
}

std::vector<PublisherReport> registeredPublishers(CPublisherMgr& publisherMgr,
                                                  std::vector<QByteArray>& unreadable)
{
    CStringArray ids;
    publisherMgr.EnumRegistedPublisher(&ids);
    const ReadPass pass;
    std::list<PublisherReport> reports;
    std::set<std::string> known; // a copy such as "A.ini~" has the id of its original
    for (const CString& id : ids) {
        if (!known.insert(id).second) {
            continue;
        }
        const bool network = publisherMgr.GetConnectType(id.c_str()) == PUBMGR_CONNECTTYPE_NETWORK;
        PUBLISHERINFO info;
        if (!canBeRead(id) || !publisherMgr.GetPublisherInfo(id.c_str(), &info, network)) {
            if (exists(id)) {
                unreadable.push_back(QByteArray::fromStdString(id));
            }
            continue;
        }
        PublisherReport report;
        report.id = QByteArray::fromStdString(id);
        report.name = QString::fromStdString(info.strPublisherName);
        report.network = info.uiPublisherType == PUBMGR_CONNECTTYPE_NETWORK;
        report.devType = publisherMgr.GetPublisherDevType(id.c_str());
        report.model = modelText(report.devType, info.uiNetPublisherType);
        report.host = QString::fromStdString(info.strHostName);
        reports.push_back(std::move(report));
    }
    // Not std::sort, which may leave its range: the natural order is not strict for digits of other scripts
    // ("1" < "A" < "²" < "1").
    reports.sort([](const PublisherReport& a, const PublisherReport& b) {
        return naturalLess(a.name, b.name) || (!naturalLess(b.name, a.name) && a.id < b.id);
    });
    return {std::move_iterator(reports.begin()), std::move_iterator(reports.end())};
}

void queryPublisher(CPublisherMgr& publisherMgr, bool details, PublisherReport& report,
                    const std::function<void()>& progress)
{
    const CString id(report.id.toStdString());
    const auto finish = [&] {
        report.answer = Answer::all;
        if (report.network && report.reachable && !publisherMgr.IsPossibleCommunicate(id.c_str(), nullptr)) {
            report.failure = QueryFailure::ended; // the server was lost meanwhile
        }
        progress();
    };
    StatusReply reply;
    const bool queried = queryStatus(publisherMgr, id, true, [] { return false; }, reply);
    if (!queried && !canBeRead(id)) {
        report.answer = Answer::all; // as in the list, which keeps the row as it was
        report.failure = QueryFailure::settingsUnreadable;
        progress();
        return;
    }
    // The list shows "Ready" if the server is lost before the last query of the status.
    const bool lost = reply.facts.network && reply.facts.fatalCode == ERR_SERVICE_NOT_COMMUNICATION;
    if (!queried || lost) {
        report.failure = QueryFailure::ended;
        progress();
        return;
    }
    setStatus(reply, report);
    report.answer = Answer::status;
    // The list does not distinguish a device that is off from a service that does not answer. Until the
    // service answers, the second is reported.
    const bool local = !report.network;
    report.serviceUnreachable = local && report.reachable && report.state == PublisherState::notConnected;
    progress();

    if (report.serviceUnreachable) {
        report.serviceUnreachable = !publisherMgr.IsPossibleCommunicateService(nullptr);
    }
    if (!details || !report.reachable || report.serviceUnreachable) {
        finish();
        return;
    }
    // The last three stop the process on some invalid replies, so everything before them is reported first.
    askModeAndStackers(publisherMgr, id.c_str(), reply.info, report);
    askSupplies(publisherMgr, id.c_str(), report);
    askJobs(publisherMgr, id.c_str(), report);
    askVersions(publisherMgr, id.c_str(), report);
    progress();
    askLoaderAndPrinter(publisherMgr, id.c_str(), report);
    progress();
    askDrives(publisherMgr, id.c_str(), report);
    progress();
    askWear(publisherMgr, id.c_str(), report);
    finish();
}

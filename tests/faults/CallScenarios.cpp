// The operations below the windows, each a scenario. The installation is that of room.udsim.
#include "FerroJob.h"
#include "InstallPaths.h"
#include "JobFolder.h"
#include "LogCollection.h"
#include "NW_Com_Lib.h"
#include "PublisherMgr.h"
#include "RegUtility.h"
#include "Scenarios.h"
#include "StatusPoll.h"

#include <QCoreApplication>

#include <array>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

constexpr char local[] = "L";
constexpr char network[] = "N";
constexpr char host[] = "127.0.0.11";
constexpr char suiteKey[] = "Software\\ARVEN\\Ulmar Disc Maker\\RegPublisher";
constexpr char deviceKey[] = "Software\\ARVEN\\Ulmar Disc Maker\\Local\\{L}";
constexpr char devicesKey[] = "Software\\ARVEN\\Ulmar Disc Maker\\Local";
constexpr char customFolder[] = "/tmp/work"; // the driver creates it
constexpr char archive[] = "/tmp/logs.tgz";

CPublisherMgr& manager()
{
    static CPublisherMgr mgr(true);
    return mgr;
}

/// The stored record of a publisher.
PUBLISHERINFO storedRecord(const char* id)
{
    PUBLISHERINFO info;
    manager().GetPublisherInfo(id, &info, TRUE);
    return info;
}

// Objects of the scenarios, which exist before the first run so that only the product allocates during it.
PUBLISHERINFO record;
CString text;
CStringArray names;
DWORD handle = 0;
std::vector<BYTE> printData;

void add(QString& result, qlonglong value)
{
    result += QString::number(value) + QLatin1Char('\n');
}

void add(QString& result, const CString& value)
{
    result += QString::fromUtf8(value.c_str()) + QLatin1Char('\n');
}

// ---------------------------------------------------------------------------------------------------------------------
// The registry

void writeRegistry(QString& result)
{
    add(result, CRegUtility::SetRegDWORDData(HKEY_LOCAL_MACHINE, suiteKey, "Probe", 7) ? 1 : 0);
}

void readRegistry(QString& result)
{
    DWORD value = 0;
    add(result,
        CRegUtility::GetRegDWORDData(HKEY_LOCAL_MACHINE, deviceKey, REG_PUB_CTRL_DEVICETYPE, &value) ? 1 : 0);
    add(result, value);
    add(result, CRegUtility::EnumRegistryKey(HKEY_LOCAL_MACHINE, devicesKey, &names));
}

void deleteFromRegistry(QString& result)
{
    add(result, CRegUtility::DeleteRegEntry(HKEY_LOCAL_MACHINE, deviceKey, "USBMode") ? 1 : 0);
}

// ---------------------------------------------------------------------------------------------------------------------
// The setting files

void readSettings(QString& result)
{
    for (const char* id : {local, network}) {
        PUBLISHERINFO info;
        add(result, manager().GetPublisherInfo(id, &info, TRUE) ? 1 : 0);
        add(result, info.strPublisherName);
        add(result, info.uiPublishMode);
        add(result, info.uiPublisherDevType);
    }
    names.RemoveAll();
    add(result, manager().EnumRegistedPublisher(&names));
}

void prepareChange()
{
    record = storedRecord(local);
    record.strPublisherName = "A new name that is longer than the old one";
}

void prepareMode()
{
    record = storedRecord(local);
    record.uiPublishMode = PUBMGR_PUBLISHMODE_BATCH;
    record.uiStacker3DiscType = PUBMGR_STACKERDISCTYPE_OUTPUT;
    record.uiStacker4DiscType = PUBMGR_STACKERDISCTYPE_NOTUSE;
}

void prepareRegistration()
{
    record = PUBLISHERINFO();
    record.strPublisherRegistID = "new";
    record.strPublisherName = "New publisher";
    record.strHostName = host;
    record.uiPublisherType = PUBMGR_CONNECTTYPE_NETWORK;
    record.uiPublisherDevType = PUBMGR_PUBLISHERTYPE_NETWORK;
}

void changeSettings(QString& result)
{
    add(result, manager().UpdatePublisherInfo(record) ? 1 : 0);
}

void changeMode(QString& result)
{
    add(result, manager().UpdatePublishMode(local, &record, false, nullptr) ? 1 : 0);
}

void registerPublisher(QString& result)
{
    add(result, manager().AddPublisher(record.strPublisherRegistID.c_str(), record) ? 1 : 0);
}

void removePublisher(QString& result)
{
    add(result, manager().DeletePublisher(local) ? 1 : 0);
}

// ---------------------------------------------------------------------------------------------------------------------
// The service and the server

void askService(QString& result)
{
    PUBLISHERVERSIONINFO versions;
    ST_PC_INK_STATUS ink{};
    long code = 0;
    add(result, manager().GetPublisherVersionInfo(local, &versions, &code) ? 1 : 0);
    add(result, code);
    add(result, versions.strSerialNo);
    add(result, manager().GetServiceInkStatus(local, &ink, &code) ? 1 : 0);
    add(result, static_cast<qlonglong>(ink.ulCyan));
}

void connectToServer(QString& result)
{
    DWORD opened = 0;
    add(result, StartConnection(0, host, &opened));
    if (opened != 0) {
        EndConnection(opened);
    }
}

void prepareUpload()
{
    constexpr size_t bytes = 100000;
    printData.assign(bytes, BYTE{7});
    StartConnection(0, host, &handle);
}

void upload(QString& result)
{
    constexpr std::array<BYTE, 15> job = {'J', 'o', 'b', 'N', 'a', 'm', 'e', ' ',
                                          '=', ' ', 'F', 'a', 'u', 'l', 't'};
    int id = 0;
    add(result, SendJobData(handle, job.data(), DWORD{job.size()}, &id));
    add(result, SendPrnData(handle, id, printData.data(), static_cast<DWORD>(printData.size())));
    add(result, CancelJob(handle, id));
}

/// A connection that was lost during the first upload is replaced.
void uploadAgainIfLost(QString& result)
{
    upload(result);
    if (result.startsWith(QLatin1String("0\n0\n0"))) {
        return;
    }
    EndConnection(handle);
    StartConnection(0, host, &handle);
}

void endUpload()
{
    EndConnection(handle);
}

// ---------------------------------------------------------------------------------------------------------------------
// Background work, jobs and common settings

void poll(const char* id, QString& result)
{
    StatusReply reply;
    add(result, queryStatus(manager(), id, true, [] { return false; }, reply) ? 1 : 0);
    result += reply.row.strDevType + QLatin1Char('\n') + reply.row.strStatus + QLatin1Char('\n');
    add(result, reply.row.nJobWaiting);
}

void pollLocal(QString& result)
{
    poll(local, result);
}

void pollNetwork(QString& result)
{
    poll(network, result);
}

void prepareLocalJob()
{
    record = storedRecord(local);
}

void prepareNetworkJob()
{
    record = storedRecord(network);
}

void cleanHeads(QString& result)
{
    CFerroJob().SubmitHeadCleaningJob(record, "Head cleaning");
    result = QStringLiteral("submitted"); // failures are not reported
}

void changeFolder(QString& result)
{
    add(result, changeJobFolder(customFolder).result);
    add(result, changeJobFolder("").result);
}

void changeFolderOnce(QString& result)
{
    add(result, changeJobFolder(customFolder).result);
}

void collectLogs(QString& result)
{
    add(result, packServiceLogs(QString::fromLatin1(archive)));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    SetTextLocale();
    return runScenario(argc, argv,
                       {{"registry-write", {}, writeRegistry, {}},
                        {"registry-read", {}, readRegistry, {}},
                        {"registry-delete", {}, deleteFromRegistry, {}},
                        {"settings-read", {}, readSettings, {}},
                        {"settings-write", prepareChange, changeSettings, {}},
                        {"settings-mode", prepareMode, changeMode, {}},
                        {"settings-new", prepareRegistration, registerPublisher, {}},
                        {"settings-remove", {}, removePublisher, {}},
                        {"exchange", {}, askService, {}},
                        {"connection", {}, connectToServer, {}},
                        {"upload", prepareUpload, uploadAgainIfLost, endUpload},
                        {"tick-local", {}, pollLocal, {}},
                        {"tick-network", {}, pollNetwork, {}},
                        {"maintenance-local", prepareLocalJob, cleanHeads, {}},
                        {"maintenance-network", prepareNetworkJob, cleanHeads, {}},
                        {"common-settings", {}, changeFolder, {}},
                        {"job-folder", {}, changeFolderOnce, {}},
                        {"logs", {}, collectLogs, {}}});
}

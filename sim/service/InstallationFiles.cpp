#include "InstallationFiles.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <set>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ExclusiveFile.h"
#include "Protocol.h"
#include "RegistryKeys.h"
#include "Text.h"

namespace udsim {

namespace {

constexpr char DEVICE_ROOT[] = "HKLM/Software/ARVEN/Ulmar Disc Maker/Local";
constexpr char DEFAULT_RETRIES[] = "3";

std::string settingPath(const std::string& registId)
{
    return std::string(SETTING_FOLDER) + "/" + registId + ".ini";
}

std::string settingText(const PublisherSetup& publisher)
{
    std::string text = "[Common]\nGUID=" + publisher.guid + "\nPublisherName=" + publisher.shownName +
                       "\nPublishMode=" + std::to_string(publisher.mode);
    for (size_t i = 0; i < publisher.stackers.size(); ++i) {
        text += "\nStacker" + std::to_string(i + 1) + "=" + std::to_string(publisher.stackers[i].media);
    }
    text += "\nPrinterName=" + std::string(publisher.model->printerName) + "\nPublisherConnectionType=0\n";
    if (publisher.model->drives > 0) {
        const std::string retries = DEFAULT_RETRIES;
        text += "UseDrive=0\nRetryTimes=" + retries + "\nRetryTimesW=" + retries +
                "\nRetryTimesR=" + retries + "\nReadBackContinue=1\nAddErrorMark=1\n";
    }
    return text;
}

/// Every user may create jobs in the folder, but remove only their own.
bool makeJobFolder(std::string& error)
{
    constexpr mode_t FOLDER_MODE = 01777;
    struct stat there{};
    if (::lstat(JOB_FOLDER, &there) == 0) {
        return true;
    }
    if (::mkdir(JOB_FOLDER, FOLDER_MODE) != 0 || ::chmod(JOB_FOLDER, FOLDER_MODE) != 0) {
        error = std::string(JOB_FOLDER) + ": " + std::strerror(errno);
        return false;
    }
    return true;
}

/// Creates a placeholder for the printer's data, which a simulated machine does not print.
bool makePrintData(const std::string& name, std::string& error)
{
    constexpr size_t REPETITIONS = 8;
    const std::string path = std::string(PRINT_DATA_FOLDER) + "/" + name;
    struct stat there{};
    if (::lstat(path.c_str(), &there) == 0) {
        return true;
    }
    std::string text;
    for (size_t i = 0; i < REPETITIONS; ++i) {
        text += "udsim: placeholder for the print data " + name + "\n";
    }
    const auto file = ExclusiveFile::acquire(path, O_RDWR | O_CREAT | O_EXCL, error);
    return file && file->write(text, error);
}

/// Does nothing if the file exists.
bool makeSettingFile(const std::string& registId, const std::string& text, std::string& error)
{
    const std::string path = settingPath(registId);
    struct stat there{};
    if (::stat(path.c_str(), &there) == 0) {
        return true;
    }
    const auto file = ExclusiveFile::acquire(path, O_RDWR | O_CREAT | O_EXCL, error);
    return file && file->write(text, error);
}

RegistryValues deviceValues(const Publisher& publisher)
{
    const Model& model = publisher.model();
    RegistryValues values;
    values.numbers["Connected"] = publisher.connected() ? 1 : 0;
    values.numbers["DPType"] = model.deviceType;
    values.numbers["USBMode"] =
        publisher.connected() ? publisher.state().usbMode : static_cast<uint32_t>(USB_DISCONNECTED);
    if (model.drives == 1) {
        values.texts["DRVSupportWriteSpeed"] = model.writeSpeeds();
    } else if (model.drives == 2) {
        values.texts["DRV1SupportWriteSpeed"] = model.writeSpeeds();
        values.texts["DRV2SupportWriteSpeed"] = model.writeSpeeds();
    }
    return values;
}

} // namespace

bool makeFolders(std::string& error)
{
    for (const char* const folder : {SETTING_FOLDER, PRINT_DATA_FOLDER}) {
        std::error_code failure;
        std::filesystem::create_directories(folder, failure);
        if (failure) {
            error = std::string(folder) + ": " + failure.message();
            return false;
        }
    }
    return makeJobFolder(error) && makePrintData("headCleaning.prn", error) &&
           makePrintData("nozzleCheck.prn", error);
}

bool writeDeviceKeys(const std::vector<Publisher>& publishers, std::string& error)
{
    RegistryKeys keys;
    keys[DEVICE_ROOT]; // clients open this key to enumerate the devices
    for (const Publisher& publisher : publishers) {
        keys[std::string(DEVICE_ROOT) + "/" + publisher.state().guid] = deviceValues(publisher);
    }
    return writeRegistryKeys(REGISTRY, keys, error);
}

bool makeSetting(const PublisherSetup& publisher, std::string& error)
{
    return makeSettingFile(publisher.registId, settingText(publisher), error);
}

bool makeNetworkSetting(const ServerSetup& server, std::string& error)
{
    std::string text = "[Common]\nPublisherName=" + server.machine.shownName +
                       "\nPrinterName=" + server.machine.model->printerName +
                       "\nPublisherConnectionType=1\nPublisherURL=" + server.host + "\n";
    if (server.knownKind != 0) {
        text += "NPType=" + std::to_string(server.knownKind) + "\n";
    }
    return makeSettingFile(server.machine.registId, text, error);
}

bool removeRegistration(const std::vector<PublisherSetup>& publishers,
                        const std::vector<ServerSetup>& servers, std::vector<std::string>& removed,
                        std::string& error)
{
    const auto remove = [&](const PublisherSetup& publisher, auto isIts) {
        const auto setting = publisher.registered ? readSetting(publisher.registId) : std::nullopt;
        if (!setting || !isIts(*setting)) {
            return true;
        }
        const std::string path = settingPath(publisher.registId);
        if (::unlink(path.c_str()) != 0) {
            error = path + ": " + std::strerror(errno);
            return false;
        }
        removed.push_back(publisher.name);
        return true;
    };
    std::set<std::string> keys;
    for (const PublisherSetup& one : publishers) {
        if (!remove(one, [&one](const Setting& setting) { return setting.guid == one.guid; })) {
            return false;
        }
        keys.insert(std::string(DEVICE_ROOT) + "/" + one.guid);
    }
    for (const ServerSetup& one : servers) {
        if (!remove(one.machine, [&one](const Setting& setting) { return setting.address == one.host; })) {
            return false;
        }
    }
    return removeRegistryKeys(REGISTRY, keys, DEVICE_ROOT, error);
}

std::optional<Setting> readSetting(const std::string& registId)
{
    std::string error;
    if (registId.empty() || registId.find('/') != std::string::npos) {
        return std::nullopt;
    }
    const auto file = ExclusiveFile::acquire(settingPath(registId), O_RDONLY | O_NONBLOCK, error);
    const auto text = file ? file->read(error) : std::nullopt;
    if (!text) {
        return std::nullopt;
    }
    Setting setting;
    for (const std::string& line : splitLines(*text)) {
        const size_t equals = line.find('=');
        if (equals == std::string::npos) {
            continue;
        }
        const std::string key = trim(line.substr(0, equals));
        const std::string value = trim(line.substr(equals + 1));
        if (key == "GUID") {
            setting.guid = value;
        } else if (key == "PublisherURL") {
            setting.address = value;
        } else if (key == "PublisherName") {
            setting.shownName = value;
        } else if (key == "PublishMode") {
            setting.mode = static_cast<uint32_t>(parseNumber(value, UINT32_MAX).value_or(mode::NORMAL));
        } else if (key.size() == 8 && key.starts_with("Stacker") && key[7] >= '1' && key[7] <= '4') {
            setting.media[static_cast<size_t>(key[7] - '1')] =
                static_cast<uint32_t>(parseNumber(value, UINT32_MAX).value_or(media::NOT_USED));
        }
    }
    return setting;
}

} // namespace udsim

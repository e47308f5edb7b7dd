// What the service keeps in the installation's folder: device keys, setting files, and the folders
// themselves.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Publisher.h"
#include "PublisherServer.h"

namespace udsim {

inline constexpr char INSTALL_FOLDER[] = "/opt/arven/Ulmar Disc Maker";
inline constexpr char REGISTRY[] = "/opt/arven/Ulmar Disc Maker/conf/registry.txt";
inline constexpr char SETTING_FOLDER[] = "/opt/arven/Ulmar Disc Maker/conf/RegPublisher";
inline constexpr char JOB_FOLDER[] = "/opt/arven/Ulmar Disc Maker/JOB";
inline constexpr char PRINT_DATA_FOLDER[] = "/opt/arven/Ulmar Disc Maker/res/prnfile";

/// What the service reads of a setting file.
struct Setting
{
    std::string guid;    ///< of a local publisher
    std::string address; ///< of a network publisher
    std::string shownName;
    uint32_t mode = 0;
    std::array<uint32_t, 4> media{};
};

/// Makes the folders that are missing, and the print data of the maintenance jobs. Whatever stands in the
/// job folder's place stays: a link, above all, even one that leads nowhere. False, with the reason, when
/// something cannot be made.
bool makeFolders(std::string& error);
/// Brings the device keys up to date, all in one pass over the registry file.
bool writeDeviceKeys(const std::vector<Publisher>& publishers, std::string& error);
/// Makes the setting file of a registered publisher, unless it is there.
bool makeSetting(const PublisherSetup& publisher, std::string& error);
/// The same for a network publisher.
bool makeNetworkSetting(const ServerSetup& server, std::string& error);
/// Removes what the above made for these publishers: their setting files, if they still belong to this device
/// or address, and all keys of their devices. `removed` gets the names of those that had a setting file.
/// False, with the reason, when a file cannot be removed or written; what was removed before stays so.
bool removeRegistration(const std::vector<PublisherSetup>& publishers,
                        const std::vector<ServerSetup>& servers, std::vector<std::string>& removed,
                        std::string& error);
/// Reads a setting file; nothing when it does not exist, or when the id, which comes from a client, is no
/// file name.
std::optional<Setting> readSetting(const std::string& registId);

} // namespace udsim

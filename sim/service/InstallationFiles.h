// The service's files in the installation folder: device keys, setting files, and the folders themselves.
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

/// The values that the service reads from a setting file.
struct Setting
{
    std::string guid;    ///< of a local publisher
    std::string address; ///< of a network publisher
    std::string shownName;
    uint32_t mode = 0;
    std::array<uint32_t, 4> media{};
};

/// Creates missing folders, and the print data of the maintenance jobs. Anything that exists at the job
/// folder's path is kept, including a dangling link. Returns false, with the reason in `error`, on failure.
bool makeFolders(std::string& error);
/// Updates the device keys in one pass over the registry file.
bool writeDeviceKeys(const std::vector<Publisher>& publishers, std::string& error);
/// Creates the setting file of a registered publisher, unless it exists.
bool makeSetting(const PublisherSetup& publisher, std::string& error);
/// The same for a network publisher.
bool makeNetworkSetting(const ServerSetup& server, std::string& error);
/// Removes what the functions above created for these publishers: their setting files, if they still belong
/// to this device or address, and all keys of their devices. `removed` receives the names of those that had a
/// setting file. Returns false, with the reason in `error`, if a file cannot be removed or written; earlier
/// removals are kept.
bool removeRegistration(const std::vector<PublisherSetup>& publishers,
                        const std::vector<ServerSetup>& servers, std::vector<std::string>& removed,
                        std::string& error);
/// Reads a setting file. Returns nothing if it does not exist, or if the id, which comes from a client, is
/// not a valid file name.
std::optional<Setting> readSetting(const std::string& registId);

} // namespace udsim

// The installation that the windows read: setting files and device keys below the sandbox's own "/opt".
#pragma once

#include "InstallPaths.h"
#include "TextFiles.h"

#include <cstdint>
#include <filesystem>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

class Installation
{
public:
    /// Deletes the old installation and starts with an empty setting folder and no devices.
    Installation()
    {
        std::filesystem::remove_all(INSTALL_DIR);
        std::filesystem::create_directories(PUBLISHER_SETTING_DIR);
        WriteRegistry("");
    }

    static std::string settingFile(const std::string& id)
    {
        return std::string(PUBLISHER_SETTING_DIR) + "/" + id + ".ini";
    }

    /// Adds a local publisher and its device, whose GUID is "{id}".
    void addLocal(const std::string& id, const std::string& name, uint32_t dpType = 0x20000009,
                  bool attached = true)
    {
        WriteText(settingFile(id), "[Common]\nGUID={" + id + "}\nPublisherName=" + name +
                                       "\nPublishMode=0\nPublisherConnectionType=0\n");
        setDevice("{" + id + "}", dpType, attached);
    }

    static void addNetwork(const std::string& id, const std::string& name, const std::string& host)
    {
        WriteText(settingFile(id), "[Common]\nPublisherName=" + name +
                                       "\nPublisherConnectionType=1\nPublisherURL=" + host + "\nNPType=2\n");
    }

    static void remove(const std::string& id)
    {
        std::filesystem::remove(settingFile(id));
    }

    void setDevice(const std::string& guid, uint32_t dpType, bool attached)
    {
        std::erase_if(m_devices, [&](const Device& device) { return device.guid == guid; });
        m_devices.push_back({guid, dpType, attached});
        std::string text = "[HKLM/Software/ARVEN/Ulmar Disc Maker/Local]\n\n";
        for (const Device& device : m_devices) {
            text += "[HKLM/Software/ARVEN/Ulmar Disc Maker/Local/" + device.guid +
                    "]\n\"Connected\"=" + dword(device.attached) + "\n\"DPType\"=" + dword(device.dpType) +
                    "\n\n";
        }
        WriteRegistry(text);
    }

private:
    struct Device
    {
        std::string guid;
        uint32_t dpType;
        bool attached;
    };

    static std::string dword(uint32_t value)
    {
        std::ostringstream text;
        text << "dword:" << std::hex << std::setw(8) << std::setfill('0') << value;
        return text.str();
    }

    std::vector<Device> m_devices;
};

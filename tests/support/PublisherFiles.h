// Publisher setting files and device keys, as the registration and the control service write them.
#pragma once

#include "TextFiles.h"

#include <string>

inline std::string PublisherFile(const std::string& id)
{
    return std::string(PUBLISHER_SETTING_DIR) + "/" + id + ".ini";
}

/// Creates the folder that the installation provides.
inline void MakePublisherFolder()
{
    std::filesystem::create_directories(PUBLISHER_SETTING_DIR);
}

/// Writes a setting file and creates its folder.
inline void WritePublisher(const std::string& id, const std::string& text)
{
    MakePublisherFolder();
    WriteText(PublisherFile(id), text);
}

inline std::string ReadPublisher(const std::string& id)
{
    return ReadText(PublisherFile(id));
}

/// A section of the registry file for the device with this GUID. `values` are whole lines.
inline std::string DeviceSection(const std::string& guid, const std::string& values)
{
    return "[HKLM/Software/ARVEN/Ulmar Disc Maker/Local/" + guid + "]\n" + values + "\n";
}

/// Writes a local publisher with a device of this model. The registry file then holds that device only.
inline void WriteLocalPublisher(const std::string& id, const std::string& dpType)
{
    WritePublisher(id, "[Common]\nGUID={G}\nPublisherName=Lab\nPublishMode=0\n");
    WriteRegistry(DeviceSection("{G}", "\"DPType\"=dword:" + dpType + "\n"));
}

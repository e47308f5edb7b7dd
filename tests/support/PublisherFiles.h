// Publisher setting files and device keys, as the registration and the control service leave them.
#pragma once

#include "TextFiles.h"

#include <string>

inline std::string PublisherFile(const std::string& id)
{
    return std::string(PUBLISHER_SETTING_DIR) + "/" + id + ".ini";
}

/// The folder that the installation makes.
inline void MakePublisherFolder()
{
    std::filesystem::create_directories(PUBLISHER_SETTING_DIR);
}

/// One setting file with its folder.
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

/// A local publisher whose device is of the model; the registry file holds that one device alone.
inline void WriteLocalPublisher(const std::string& id, const std::string& dpType)
{
    WritePublisher(id, "[Common]\nGUID={G}\nPublisherName=Lab\nPublishMode=0\n");
    WriteRegistry(DeviceSection("{G}", "\"DPType\"=dword:" + dpType + "\n"));
}

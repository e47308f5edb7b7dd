// Valid job files, and functions that write and read files.
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

constexpr char JOBS[] = "/opt/arven/Ulmar Disc Maker/JOB/";

constexpr char HEAD_CLEANING[] = "[Common]\n"
                                 "Version = 0x01050000\n"
                                 "ID = LOCALHOST_20260105093007042_UDSetup_0000\n"
                                 "PublisherID = {ARPUB20260105_1}\n"
                                 "Load = -1\n"
                                 "Eject = -1\n"
                                 "Count = 0\n"
                                 "Create = 1767605407\n"
                                 "Publisher = @UDSetup\n"
                                 "Mode = 2\n"
                                 "JobName = Head Cleaning\n"
                                 "SaveJobData = 0\n"
                                 "PublishID = \n"
                                 "Silent = 0\n"
                                 "\n"
                                 "[Print]\n"
                                 "PrintMode = 3\n"
                                 "DataPath = /opt/arven/Ulmar Disc Maker/res/prnfile/headCleaning.prn\n"
                                 "DryingTime = 0\n"
                                 "PrintQuality = 0\n";
constexpr char NOZZLE_CHECK[] = "[Common]\n"
                                "Version = 0x01050000\n"
                                "ID = LOCALHOST_20260105093008317_UDSetup_0000\n"
                                "PublisherID = {ARPUB20260105_1}\n"
                                "Load = 1\n"
                                "Eject = 2\n"
                                "Count = 1\n"
                                "Create = 1767605408\n"
                                "Publisher = @UDSetup\n"
                                "Mode = 2\n"
                                "JobName = Nozzle Check\n"
                                "SaveJobData = 0\n"
                                "PublishID = \n"
                                "Silent = 0\n"
                                "\n"
                                "[Print]\n"
                                "PrintMode = 4\n"
                                "DataPath = /opt/arven/Ulmar Disc Maker/res/prnfile/nozzleCheck.prn\n"
                                "DryingTime = 0\n"
                                "PrintQuality = 0\n";
constexpr char CLEANING_ID[] = "LOCALHOST_20260105093007042_UDSetup_0000";
constexpr char NOZZLE_ID[] = "LOCALHOST_20260105093008317_UDSetup_0000";

inline void putFile(const std::string& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary) << text;
}

inline std::string fileText(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// Replaces one part of `text`, which must exist, by another.
inline std::string with(std::string text, const std::string& piece, const std::string& other)
{
    return text.replace(text.find(piece), piece.size(), other);
}

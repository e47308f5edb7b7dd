// The job files that programs write to the job folder: maintenance jobs of a printer.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "InstallationFiles.h"
#include "Publisher.h"

namespace udsim {

/// The contents of a valid job file.
struct JobFile
{
    std::string id;
    std::string publisher; ///< regist id
    std::string dataPath;  ///< of the print data
    bool cleaning = false; ///< head cleaning; else nozzle check
    int load = 0;          ///< the file's stacker number; -1: none
    int eject = 0;
    std::string name;
};

/// Returns whether the last line of the file is written completely.
bool isWholeJobFile(std::string_view text);

/// Parses a job file. The format is fixed, including the order of the lines. Returns nothing for any other
/// text, with the mistake and its line in `error`, as a single line for any input.
std::optional<JobFile> parseJobFile(std::string_view text, std::string& error);

/// The same for the text that registers a maintenance job on a network publisher.
std::optional<JobFile> parseServerJob(std::string_view text, std::string& error);

/// Returns why a publisher with these settings cannot move the discs of the job; empty if it can.
std::string routeRefusalOf(const JobFile& job, const Setting& setting, const Model& model);
/// Returns why a publisher with these settings cannot carry out the job; empty if it can. Checks the print
/// data file.
std::string refusalOf(const JobFile& job, const Setting& setting, const Model& model);

/// Returns the job for the machine's list.
JobSetup setupOf(const JobFile& job);

/// Makes external text safe for output: replaces control and non-ASCII characters by '?', cuts it to 80
/// bytes.
std::string printable(std::string_view text);

} // namespace udsim

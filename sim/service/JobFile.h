// The job files that programs leave in the job folder: maintenance jobs of a printer.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "InstallationFiles.h"
#include "Publisher.h"

namespace udsim {

/// What a proper job file says.
struct JobFile
{
    std::string id;
    std::string publisher; ///< regist id
    std::string dataPath;  ///< of the print data
    bool cleaning = false; ///< or else a nozzle check
    int load = 0;          ///< as the file numbers the stackers; -1: none
    int eject = 0;
    std::string name;
};

/// The writer has come to the last line's end.
bool isWholeJobFile(std::string_view text);

/// Reads a job file. It has one form, down to the order of its lines; any other text yields nothing, and in
/// `error` what is wrong with it, with its line. Never more than a line of it, whatever the bytes.
std::optional<JobFile> parseJobFile(std::string_view text, std::string& error);

/// Reads the text by which a network publisher is told of a maintenance job; likewise.
std::optional<JobFile> parseServerJob(std::string_view text, std::string& error);

/// Why a publisher that is set so cannot move the job's discs as it wants; empty when it can.
std::string routeRefusalOf(const JobFile& job, const Setting& setting, const Model& model);
/// Why a publisher that is set so cannot carry out the job; empty when it can. Looks for the print data.
std::string refusalOf(const JobFile& job, const Setting& setting, const Model& model);

/// The job as the machine's list takes it.
JobSetup setupOf(const JobFile& job);

/// A text from outside for a line of output: control characters and all beyond ASCII as '?', cut to 80 bytes.
std::string printable(std::string_view text);

} // namespace udsim

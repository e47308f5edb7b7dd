// Arguments of the form "-envNAME=VALUE". A launcher that elevates privileges starts the program with an
// empty environment and passes the variables that a desktop program needs, such as the display, on the
// command line.
#pragma once

#include <optional>
#include <string>
#include <string_view>

struct EnvAssignment
{
    std::string name;  ///< at most 255 bytes; may be empty
    std::string value; ///< truncated to 256 bytes
};

/// Parses one argument. Returns nothing if it is not an assignment or is malformed.
std::optional<EnvAssignment> parseEnvArgument(std::string_view argument);

/// Prints the current value of each variable named on the command line and sets those that are unset. Call it
/// while the process has a single thread.
void applyEnvArguments(int argc, char** argv);

// Arguments of the form "-envNAME=VALUE". A launcher that raises the rights of the program starts it with an
// empty environment and hands over what a desktop program needs, such as the display, on the command line.
#pragma once

#include <optional>
#include <string>
#include <string_view>

struct EnvAssignment
{
    std::string name;  ///< at most 255 bytes; may be empty
    std::string value; ///< at most 256 bytes; what is longer is cut
};

/// The assignment in one argument, or nothing when it is none or is malformed.
std::optional<EnvAssignment> parseEnvArgument(std::string_view argument);

/// Prints the present value of each variable named on the command line and sets those that have none.
/// To be called while the process has one thread.
void applyEnvArguments(int argc, char** argv);

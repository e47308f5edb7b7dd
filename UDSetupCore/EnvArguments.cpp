#include "EnvArguments.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::string_view prefix = "-env";
constexpr size_t longestName = 255;
constexpr size_t longestValue = 256;

} // namespace

std::optional<EnvAssignment> parseEnvArgument(std::string_view argument)
{
    if (!argument.starts_with(prefix)) {
        return std::nullopt;
    }
    argument.remove_prefix(prefix.size());
    const size_t equals = argument.find('=');
    if (equals > longestName) { // also true without "=": npos
        return std::nullopt;
    }
    return EnvAssignment{std::string(argument.substr(0, equals)),
                         std::string(argument.substr(equals + 1, longestValue))};
}

void applyEnvArguments(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        const std::optional<EnvAssignment> assignment = parseEnvArgument(argv[i]);
        if (!assignment) {
            continue;
        }
        const char* present = std::getenv(assignment->name.c_str());
        std::printf("%s: \"%s\"\n", assignment->name.c_str(), present ? present : "(null)");
        if (!present) {
            ::setenv(assignment->name.c_str(), assignment->value.c_str(), 0);
        }
    }
}

// The command line of ulmar-disc-status.
#pragma once

#include "Thresholds.h"

#include <QString>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

enum class Output
{
    text, ///< the list, or with names the details
    json,
    monitor,
    metrics,
    names, ///< the registered names, one per line
    help,
    version
};

/// The alerts of a monitored value.
struct Alerts
{
    std::optional<Threshold> warning;
    std::optional<Threshold> critical;
};

struct Options
{
    Output output = Output::text;
    std::vector<std::string> names; ///< of publishers, as typed
    std::chrono::milliseconds timeout{10000};
    std::optional<std::chrono::milliseconds> watch; ///< the interval between two pictures
    Alerts ink;                                     ///< percent left of each cartridge
    Alerts discs;                                   ///< discs left in each input stacker

    QString error; ///< the reason if the command line is invalid; then only `output` is valid
};

/// Reorders the arguments, as getopt_long does.
Options parseOptions(int argc, char** argv);

/// The text of --help.
const char* helpText();

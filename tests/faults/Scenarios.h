// Runs one of several named scenarios under the fault shim and reports what it left behind.
#pragma once

#include <QString>

#include <functional>
#include <initializer_list>

struct FaultScenario
{
    const char* name;
    std::function<void()> prepare; ///< before any call is failed; may be empty
    /// The operation. Sets a text that describes its result. Besides the product's calls it contains only
    /// calls of Qt, which are never failed.
    std::function<void(QString& result)> run;
    std::function<void()> end; ///< after the last run; may be empty
};

/// The name of the scenario is the only argument. Runs it FAULT_TIMES times (once without this variable) with
/// its fault, then once without. Writes into the folder FAULT_FOLDER: "first" and "second" (the results of
/// the last run with and of the run without the fault), "after" (the installation between them) and
/// "descriptors" (the open ones at the end). The shim adds its own files. Returns the exit code.
int runScenario(int argc, char** argv, std::initializer_list<FaultScenario> scenarios);

#include "Scenarios.h"

#include "InstallPaths.h"
#include "Win_def_log.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <new>
#include <string>

#include <dlfcn.h>

namespace {

constexpr int logLevel = 3; // as in the program

/// Calls a function of the shim, if it is preloaded.
void tellShim(const char* function)
{
    if (void* const found = dlsym(RTLD_DEFAULT, function)) {
        reinterpret_cast<void (*)()>(found)();
    }
}

/// Runs the operation. An exception that it lets through becomes its result.
void run(const FaultScenario& scenario, QString& result)
{
    try {
        scenario.run(result);
    } catch (const std::bad_alloc&) {
        result = QStringLiteral("std::bad_alloc");
    }
}

void write(const std::filesystem::path& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary) << text;
}

std::string openDescriptors()
{
    std::string text;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code vanished;
        const std::string target = std::filesystem::read_symlink(entry.path(), vanished).string();
        if (!vanished && !target.ends_with("/fd")) { // not the descriptor of this folder
            text += target + "\n";
        }
    }
    return text;
}

} // namespace

int runScenario(int argc, char** argv, std::initializer_list<FaultScenario> scenarios)
{
    const char* const folder = std::getenv("FAULT_FOLDER");
    const FaultScenario* chosen = nullptr;
    for (const FaultScenario& scenario : scenarios) {
        chosen = argc == 2 && std::string(argv[1]) == scenario.name ? &scenario : chosen;
    }
    if (chosen == nullptr || folder == nullptr) {
        std::fprintf(stderr, "usage: FAULT_FOLDER=folder %s scenario\n", argv[0]);
        return EXIT_FAILURE;
    }
    SetLogLevel(logLevel);
    if (chosen->prepare) {
        chosen->prepare();
    }
    QString first;
    QString second;
    const char* const times = std::getenv("FAULT_TIMES");
    for (long left = times != nullptr ? std::strtol(times, nullptr, 10) : 1; left > 0; --left) {
        first.clear();
        tellShim("FaultsBegin");
        run(*chosen, first);
        tellShim("FaultsEnd");
    }
    const std::filesystem::path place(folder);
    std::filesystem::copy(INSTALL_DIR, place / "after",
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::copy_symlinks);
    run(*chosen, second);
    if (chosen->end) {
        chosen->end();
    }
    write(place / "first", first.toStdString());
    write(place / "second", second.toStdString());
    write(place / "descriptors", openDescriptors());
    tellShim("FaultsReport");
    return EXIT_SUCCESS;
}

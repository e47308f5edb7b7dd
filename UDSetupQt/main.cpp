#include "DirectStart.h"
#include "EnvArguments.h"
#include "InstallPaths.h"
#include "MyRunnable.h"
#include "NW_Com_Lib.h"
#include "PubSetup.h"
#include "QtVersion.h"
#include "Win_def_log.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <string_view>

#include <malloc.h>

namespace {

constexpr int logLevel = 3;
constexpr int taskPatience = 2000;          // milliseconds
constexpr int largeAllocation = 128 * 1024; // bytes, the initial threshold of glibc

bool hasValue(const char* variable)
{
    const char* value = std::getenv(variable);
    return value && *value != '\0';
}

/// Whether a display is named on the command line or in the environment. Qt aborts without one.
bool hasDisplay(int argc, char** argv)
{
    constexpr std::string_view options[] = {"-platform", "--platform", "-display", "--display"};
    bool chosen = false;
    for (int i = 1; i < argc; ++i) {
        chosen = chosen || std::find(std::begin(options), std::end(options), argv[i]) != std::end(options);
    }
    return chosen || hasValue("DISPLAY") || hasValue("WAYLAND_DISPLAY") || hasValue("QT_QPA_PLATFORM");
}

/// Exits without cleanup if a task has not ended after taskPatience, for example because a service accepts a
/// connection but never replies. The thread pool would wait for it forever, and the static objects must not
/// be destroyed while the task uses them.
void endDespiteHangingTasks(int result)
{
    if (!waitForTasks(taskPatience)) {
        std::fflush(stdout);
        std::fflush(stderr);
        std::_Exit(result);
    }
}

} // namespace

int main(int argc, char** argv)
{
    SetLogLevel(logLevel);
    applyEnvArguments(argc, argv);
    if (!hasDisplay(argc, argv)) {
        std::fprintf(stderr, "ARVEN Ulmar Disc Setup needs a graphical desktop: DISPLAY is not set.\n");
        return EXIT_FAILURE;
    }

    // A fixed threshold. Otherwise glibc raises it with the first large server reply, and each polling thread
    // keeps the memory of its largest reply.
    mallopt(M_MMAP_THRESHOLD, largeAllocation);

    enableScreenScaling();
    QGuiApplication::setDesktopFileName("com.arven.UlmarDiscSetup");
    QApplication app(argc, argv);
    SetTextLocale(); // before the first poll; QApplication has just set the locale from the environment

    QTranslator qtTr;
    if (qtTr.load("qt_" + QLocale::system().name(), qtTranslationFolder())) {
        QApplication::installTranslator(&qtTr);
    }

    QTranslator myTr;
    QString languageCode = QLocale::system().name();
    if (myTr.load("PubSetupQt_" + languageCode, TRANSLATION_DIR)) {
        QApplication::installTranslator(&myTr);
    } else {
        std::fprintf(stderr, "ERROR: language file %s is not found\n", qPrintable(languageCode));
        std::fprintf(stderr, "INSTALL_DIR = %s\n", INSTALL_DIR);
    }

    std::optional<int> result;
    if (argc > 1) {
        result = startWithPublisher(argv[1]);
    }
    if (!result) {
        PubSetup ui(nullptr);
        ui.show();
        result = QApplication::exec();
    }
    endDespiteHangingTasks(*result);
    return *result;
}

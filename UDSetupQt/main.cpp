#include "EnvArguments.h"
#include "InstallPaths.h"
#include "MyRunnable.h"
#include "PubSetup.h"
#include "Win_def_log.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int logLevel = 3;
constexpr int taskPatience = 2000; // milliseconds

/// Ends the process at once when a task still hangs in a service that accepts and never answers: the thread
/// pool would wait for it for good, and the static objects may not go while the task uses them.
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

    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);

    QTranslator qtTr;
    qtTr.load("qt_" + QLocale::system().name(), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    QApplication::installTranslator(&qtTr);

    QTranslator myTr;
    QString languageCode = QLocale::system().name();
    if (myTr.load("PubSetupQt_" + languageCode, TRANSLATION_DIR)) {
        QApplication::installTranslator(&myTr);
    } else {
        std::fprintf(stderr, "ERROR: language file %s is not found\n", qPrintable(languageCode));
        std::fprintf(stderr, "INSTALL_DIR = %s\n", INSTALL_DIR);
    }

    int result = 0;
    {
        PubSetup ui(nullptr);
        ui.show();
        result = QApplication::exec();
    }
    endDespiteHangingTasks(result);
    return result;
}

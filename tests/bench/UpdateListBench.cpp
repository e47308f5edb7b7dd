// One tick of the publisher list over publishers that did not change, against GLib loading the same setting
// files and reading the same keys.
#include "Installation.h"
#include "PubSetup.h"
#include "Stopwatch.h"

#include <QApplication>

#include <glib.h>

namespace {

/// What one tick reads of each setting file, in its order: it looks a publisher's kind and device up three
/// times.
constexpr const char* keysOfATick[] = {"PublisherConnectionType",
                                       "PublisherConnectionType",
                                       "GUID",
                                       "GUID",
                                       "PublisherName",
                                       "PublishMode",
                                       "Stacker1",
                                       "Stacker2",
                                       "Stacker3",
                                       "Stacker4",
                                       "UseDrive",
                                       "RetryTimes",
                                       "RetryTimesR",
                                       "RetryTimesW",
                                       "ReadBackContinue",
                                       "PrinterName",
                                       "AddErrorMark",
                                       "PublisherConnectionType",
                                       "GUID"};

std::vector<std::string> register_(Installation& installation, int count)
{
    std::vector<std::string> files;
    for (int i = 0; i < count; ++i) {
        const std::string id = "{ARPUB20260101_" + std::to_string(i) + "}";
        WriteText(Installation::settingFile(id),
                  "[Common]\nGUID={device}\nPublisherName=Studio " + std::to_string(i) +
                      "\nPublishMode=0\nStacker1=1\nStacker2=0\nStacker3=32\nStacker4=0\nPrinterName=ARVEN "
                      "RT-300PRN\nPublisherConnectionType=0\nUseDrive=0\nRetryTimes=3\nRetryTimesW=3\n"
                      "RetryTimesR=3\nReadBackContinue=1\nAddErrorMark=1\n");
        files.push_back(Installation::settingFile(id));
    }
    installation.setDevice("{device}", 0x20000009, true);
    return files;
}

void readWithGLib(const std::vector<std::string>& files, bool loadForEachKey)
{
    for (const std::string& file : files) {
        GKeyFile* keyFile = nullptr;
        for (const char* key : keysOfATick) {
            if (loadForEachKey || !keyFile) {
                if (keyFile) {
                    g_key_file_free(keyFile);
                }
                keyFile = g_key_file_new();
                g_key_file_load_from_file(keyFile, file.c_str(), G_KEY_FILE_NONE, nullptr);
            }
            g_free(g_key_file_get_string(keyFile, "Common", key, nullptr));
        }
        g_key_file_free(keyFile);
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Installation installation;
    PubSetup window(nullptr);
    window.findChild<QTimer*>()->stop(); // no other tick in between
    window.show();
    for (const int count : {100, 1000}) {
        const std::vector<std::string> files = register_(installation, count);
        window.updateList();
        QApplication::processEvents();
        if (window.treePublisherList->topLevelItemCount() != count) {
            std::fprintf(stderr, "not every publisher has its row\n");
            return 1;
        }
        const int repetitions = count == 100 ? 41 : 11;
        Compare(
            "one tick, " + std::to_string(count) + " publishers",
            {{"updateList", [&] { window.updateList(); }, {}},
             {"GKeyFile, each file loaded once", [&] { readWithGLib(files, false); }, {}},
             {"GKeyFile, each file loaded as often as it is read", [&] { readWithGLib(files, true); }, {}}},
            repetitions);
    }
    return 0;
}

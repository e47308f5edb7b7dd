// Measures one tick of the publisher list with unchanged publishers, and the reading of all their records,
// compared with GLib loading the same setting files and reading the same keys.
#include "Installation.h"
#include "PubSetup.h"
#include "ReadPass.h"
#include "Stopwatch.h"

#include <QApplication>

#include <glib.h>

namespace {

/// The keys that are read from each setting file, in order. The kind of a publisher and its device are read
/// three times.
constexpr const char* keysOfARecord[] = {"PublisherConnectionType",
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

std::string registId(int number)
{
    return "{ARPUB20260101_" + std::to_string(number) + "}";
}

void registerAll(Installation& installation, int count)
{
    for (int i = 0; i < count; ++i) {
        WriteText(Installation::settingFile(registId(i)),
                  "[Common]\nGUID={device}\nPublisherName=Studio " + std::to_string(i) +
                      "\nPublishMode=0\nStacker1=1\nStacker2=0\nStacker3=32\nStacker4=0\nPrinterName=ARVEN "
                      "RT-300PRN\nPublisherConnectionType=0\nUseDrive=0\nRetryTimes=3\nRetryTimesW=3\n"
                      "RetryTimesR=3\nReadBackContinue=1\nAddErrorMark=1\n");
    }
    installation.setDevice("{device}", 0x20000009, true);
}

void readRecords(CPublisherMgr& publisherMgr, int count)
{
    const ReadPass pass;
    for (int i = 0; i < count; ++i) {
        PUBLISHERINFO info;
        const std::string id = registId(i);
        const bool network = publisherMgr.GetConnectType(id.c_str()) == PUBMGR_CONNECTTYPE_NETWORK;
        if (!publisherMgr.GetPublisherInfo(id.c_str(), &info, network)) {
            std::fprintf(stderr, "a record cannot be read\n");
        }
    }
}

void readWithGLib(int count)
{
    for (int i = 0; i < count; ++i) {
        GKeyFile* keyFile = g_key_file_new();
        g_key_file_load_from_file(keyFile, Installation::settingFile(registId(i)).c_str(), G_KEY_FILE_NONE,
                                  nullptr);
        for (const char* key : keysOfARecord) {
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
    CPublisherMgr publisherMgr(true);
    PubSetup window(nullptr);
    window.findChild<QTimer*>()->stop(); // no other tick in between
    window.show();
    for (const int count : {100, 1000}) {
        registerAll(installation, count);
        window.updateList();
        QApplication::processEvents();
        if (window.treePublisherList->topLevelItemCount() != count) {
            std::fprintf(stderr, "not every publisher has a row\n");
            return 1;
        }
        const int repetitions = count == 100 ? 101 : 31;
        const std::string number = std::to_string(count) + " publishers";
        const std::vector<double> medians =
            Compare("one tick, " + number,
                    {{"updateList", [&] { window.updateList(); }, {}},
                     {"every record read once", [&] { readRecords(publisherMgr, count); }, {}},
                     {"GKeyFile, each file loaded once", [&] { readWithGLib(count); }, {}}},
                    repetitions);
        if (count == 100) {
            PrintGoal("list tick, " + number + ", vs GKeyFile", medians[0] / medians[2], 1, "x");
        } else {
            PrintGoal("list tick, " + number, medians[0] / 1000, 16, "ms");
        }
    }
    return 0;
}

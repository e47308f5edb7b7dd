// Reads the keys of 100 publisher setting files, compared with GLib loading the file for each key.
#include "InstallPaths.h"
#include "Stopwatch.h"
#include "TextFiles.h"
#include "Win_def.h"

#include <glib.h>

namespace {

const char* const KEYS[] = {"GUID",         "PublisherName",
                            "PublishMode",  "Stacker1",
                            "Stacker2",     "Stacker3",
                            "Stacker4",     "PrinterName",
                            "UseDrive",     "RetryTimes",
                            "RetryTimesW",  "RetryTimesR",
                            "AddErrorMark", "PublisherConnectionType"};
constexpr int FILES = 100;

std::string FileName(int number)
{
    return std::string(PUBLISHER_SETTING_DIR) + "/{ARPUB20240101_" + std::to_string(number) + "}.ini";
}

void ReadWithProfileCalls(size_t& bytes)
{
    for (int number = 0; number < FILES; ++number) {
        const std::string file = FileName(number);
        for (const char* key : KEYS) {
            char text[256];
            bytes += GetPrivateProfileStringA("Common", key, "NotSet", text, sizeof text, file.c_str());
        }
    }
}

void ReadWithGLib(size_t& bytes)
{
    for (int number = 0; number < FILES; ++number) {
        const std::string name = FileName(number);
        for (const char* key : KEYS) {
            GKeyFile* file = g_key_file_new();
            g_key_file_load_from_file(file, name.c_str(), G_KEY_FILE_NONE, nullptr);
            gchar* text = g_key_file_get_string(file, "Common", key, nullptr);
            bytes += std::string(text).size();
            g_free(text);
            g_key_file_free(file);
        }
    }
}

} // namespace

int main()
{
    std::filesystem::create_directories(PUBLISHER_SETTING_DIR);
    for (int number = 0; number < FILES; ++number) {
        std::string text = "[Common]\n";
        for (const char* key : KEYS) {
            text += std::string(key) + "=value of " + std::to_string(number) + "\n";
        }
        WriteText(FileName(number), text);
    }
    size_t ours = 0;
    size_t theirs = 0;
    Compare("Read 14 keys of each of 100 setting files",
            {{"GetPrivateProfileStringA", [&] { ReadWithProfileCalls(ours); }, {}},
             {"g_key_file_load_from_file, g_key_file_get_string", [&] { ReadWithGLib(theirs); }, {}}},
            50);
    assert(ours == theirs);
    return 0;
}

// Opens a key of a registry file with 1000 device keys, compared with GLib loading the equivalent file.
#include "Stopwatch.h"
#include "TextFiles.h"
#include "WinFunc.h"

#include <fcntl.h>
#include <glib.h>
#include <sys/stat.h>
#include <time.h>

namespace {

const char LOCAL[] = "HKLM/Software/ARVEN/Ulmar Disc Maker/Local";
const char LAST_KEY[] = "Software\\ARVEN\\Ulmar Disc Maker\\Local\\{device 999}";
const char EQUIVALENT_FILE[] = "/tmp/registry.ini";

std::string RegistryText(int keys)
{
    std::string text = std::string("[") + LOCAL + "]\n\n";
    for (int number = 0; number < keys; ++number) {
        text += std::string("[") + LOCAL + "/{device " + std::to_string(number) + "}]\n" +
                "\"DRV1SupportWriteSpeed\"=\"CD-R:4,8,16,40;DVD-R:2,4,8,12\"\n"
                "\"DRV2SupportWriteSpeed\"=\"CD-R:4,8,16,40;DVD-R:2,4,8,12\"\n"
                "\"Connected\"=dword:00000001\n\"DPType\"=dword:10000005\n\"USBMode\"=dword:00000003\n\n";
    }
    return text;
}

/// The same groups and values in the syntax of GLib: no quotes around the names.
std::string EquivalentText(const std::string& registry)
{
    std::string text;
    bool inName = false;
    for (size_t index = 0; index < registry.size(); ++index) {
        const bool lineStart = index == 0 || registry[index - 1] == '\n';
        if (registry[index] == '"' && (lineStart || inName)) {
            inName = lineStart;
        } else {
            text += registry[index];
        }
    }
    return text;
}

void OpenAndClose()
{
    HKEY key = nullptr;
    const LSTATUS result = RegOpenKeyExA(HKEY_LOCAL_MACHINE, LAST_KEY, 0, KEY_READ, &key);
    assert(result == ERROR_SUCCESS);
    RegCloseKey(key);
}

/// Sets a new change time, so that the next open reads the file.
void Touch()
{
    const int result = utimensat(AT_FDCWD, REGISTRY_FILE, nullptr, 0);
    assert(result == 0);
}

void LoadWithGLib()
{
    GKeyFile* file = g_key_file_new();
    const gboolean loaded = g_key_file_load_from_file(file, EQUIVALENT_FILE, G_KEY_FILE_NONE, nullptr);
    assert(loaded);
    g_key_file_free(file);
}

/// Checks that GLib loads the whole file: its last value is equal to that of the registry.
void CheckThatBothReadTheSame()
{
    GKeyFile* file = g_key_file_new();
    g_key_file_load_from_file(file, EQUIVALENT_FILE, G_KEY_FILE_NONE, nullptr);
    const std::string group = std::string(LOCAL) + "/{device 999}";
    gchar* text = g_key_file_get_string(file, group.c_str(), "DRV2SupportWriteSpeed", nullptr);
    OpenAndClose();
    const std::string& ours = g_Registry[group].stringValues["DRV2SupportWriteSpeed"];
    assert(text != nullptr && std::string("\"") + ours + "\"" == text);
    g_free(text);
    g_key_file_free(file);
}

} // namespace

int main()
{
    const std::string text = RegistryText(1000);
    WriteRegistry(text);
    WriteText(EQUIVALENT_FILE, EquivalentText(text));
    CheckThatBothReadTheSame();

    // An open trusts the times of the file only some time after its last change.
    const timespec rest = {0, 300'000'000};
    nanosleep(&rest, nullptr);
    Compare(
        "Open and close one key of 1000, the file unchanged",
        {{"RegOpenKeyExA, RegCloseKey", OpenAndClose, {}}, {"g_key_file_load_from_file", LoadWithGLib, {}}},
        200);
    Compare("Open and close one key of 1000, the file changed each time",
            {{"RegOpenKeyExA, RegCloseKey",
              [] {
                  Touch();
                  OpenAndClose();
              },
              {}},
             {"g_key_file_load_from_file", LoadWithGLib, {}}},
            200);
    return 0;
}

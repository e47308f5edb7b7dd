// Uses any bytes as the registry file: loads, queries, writes back and edits it.
#include "TextFiles.h"
#include "WinFunc.h"

#include <algorithm>
#include <fcntl.h>
#include <vector>

namespace {

/// Checks that the registry calls return the values of the map.
void AskForEveryValue(const std::string& path)
{
    CRegistryKey key{path};
    const CRegistryValueStore store = g_Registry[path];
    for (const auto& [name, text] : store.stringValues) {
        DWORD type = 0;
        DWORD size = 0;
        assert(RegQueryValueExA(&key, name.c_str(), nullptr, &type, nullptr, &size) == 0);
        assert(type == REG_SZ && size == text.size() + 1);
        std::vector<BYTE> data(size);
        assert(RegQueryValueExA(&key, name.c_str(), nullptr, &type, data.data(), &size) == 0);
        assert(reinterpret_cast<const char*>(data.data()) == text);
    }
    for (const auto& [name, number] : store.dwordValues) {
        DWORD type = 0;
        DWORD value = 0;
        DWORD size = sizeof value;
        assert(RegQueryValueExA(&key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(&value), &size) ==
               0);
        assert(type == REG_SZ || value == number);
    }
}

void EnumerateBelow(HKEY key)
{
    DWORD count = 0;
    DWORD longest = 0;
    assert(RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, &count, &longest, nullptr, nullptr, nullptr,
                            nullptr, nullptr, nullptr) == 0);
    std::vector<char> name(size_t{longest} + 1);
    DWORD children = 0;
    while (true) {
        auto size = static_cast<DWORD>(name.size());
        const LSTATUS result =
            RegEnumKeyExA(key, children, name.data(), &size, nullptr, nullptr, nullptr, nullptr);
        if (result == ERROR_NO_MORE_ITEMS) {
            break;
        }
        assert(result == ERROR_SUCCESS);
        ++children;
    }
    assert(children <= count);
}

/// True if `after` is `before` without one run of bytes.
bool IsOneRunRemoved(const std::string& before, const std::string& after)
{
    if (after.size() > before.size()) {
        return false;
    }
    const auto front = std::mismatch(after.begin(), after.end(), before.begin()).first - after.begin();
    const auto back = std::mismatch(after.rbegin(), after.rend(), before.rbegin()).first - after.rbegin();
    return static_cast<size_t>(front + back) >= after.size();
}

/// A number is written with eight digits. After a long name they may exceed the maximum length of a line.
bool HasLongNumberNames()
{
    return std::any_of(g_Registry.begin(), g_Registry.end(), [](const auto& entry) {
        const auto& numbers = entry.second.dwordValues;
        return std::any_of(numbers.begin(), numbers.end(),
                           [](const auto& number) { return number.first.size() > 1000; });
    });
}

bool SameValues(const RegistryMap& one, const RegistryMap& other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), [](const auto& a, const auto& b) {
        return a.first == b.first && a.second.stringValues == b.second.stringValues &&
               a.second.dwordValues == b.second.dwordValues;
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    g_Registry.clear();
    WriteRegistry(text);
    assert(RegReadIn(O_RDWR));
    const RegistryMap loaded = g_Registry;

    for (const auto& [path, store] : loaded) {
        AskForEveryValue(path);
        CRegistryKey key{path};
        EnumerateBelow(&key);
    }
    EnumerateBelow(HKEY_LOCAL_MACHINE);

    if (!HasLongNumberNames()) {
        assert(RegWriteOut());
        g_Registry.clear();
        assert(RegReadIn(O_RDWR));
        assert(SameValues(loaded, g_Registry));
    }

    WriteRegistry(text);
    CRegistryKey key{loaded.empty() ? "HKLM/a" : loaded.begin()->first, true};
    assert(RegDeleteValueA(&key, "a") == ERROR_SUCCESS);
    assert(IsOneRunRemoved(text, ReadText(REGISTRY_FILE)));

    WriteRegistry(text);
    assert(RegDeleteKeyA(HKEY_LOCAL_MACHINE, "a") == ERROR_SUCCESS);
    assert(IsOneRunRemoved(text, ReadText(REGISTRY_FILE)));
    return 0;
}

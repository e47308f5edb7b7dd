#include "RegistryFile.h"

#include <set>

#include <fcntl.h>

#include "LockedFile.h"

namespace udsim {

namespace {

/// The key path of a section line.
std::string_view sectionOf(std::string_view line)
{
    const size_t end = line.find(']');
    return line.starts_with('[') && end != std::string_view::npos ? line.substr(1, end - 1)
                                                                  : std::string_view();
}

/// The name of a value line; empty for any other line.
std::string_view valueNameOf(std::string_view line)
{
    const size_t end = line.find('"', 1);
    return line.starts_with('"') && end != std::string_view::npos ? line.substr(1, end - 1)
                                                                  : std::string_view();
}

bool isSet(const RegistryValues& values, std::string_view name)
{
    const std::string key(name);
    return values.texts.contains(key) || values.numbers.contains(key);
}

std::string hexadecimal(uint32_t number)
{
    constexpr char DIGITS[] = "0123456789abcdef";
    std::string text;
    for (int shift = 28; shift >= 0; shift -= 4) {
        text.push_back(DIGITS[number >> shift & 0xF]);
    }
    return text;
}

void appendValues(std::string& text, const RegistryValues& values)
{
    for (const auto& [name, value] : values.texts) {
        text.append("\"").append(name).append("\"=\"").append(value).append("\"\n");
    }
    for (const auto& [name, value] : values.numbers) {
        text.append("\"").append(name).append("\"=dword:").append(hexadecimal(value)).append("\n");
    }
}

} // namespace

std::string withRegistryKeys(std::string_view fileText, const RegistryKeys& keys)
{
    std::string text;
    std::set<std::string> written;
    const RegistryValues* present = nullptr; // what is set in the section at hand
    for (size_t start = 0; start < fileText.size();) {
        const size_t feed = fileText.find('\n', start);
        const size_t next = feed == std::string_view::npos ? fileText.size() : feed + 1;
        const std::string_view line = fileText.substr(start, next - start);
        start = next;
        if (line.starts_with('[')) {
            const auto key = keys.find(std::string(sectionOf(line)));
            present = key == keys.end() ? nullptr : &key->second;
            text += line;
            if (present != nullptr && written.insert(key->first).second) {
                text += line.ends_with('\n') ? "" : "\n";
                appendValues(text, *present);
            }
        } else if (present == nullptr || !isSet(*present, valueNameOf(line))) {
            text += line;
        }
    }
    for (const auto& [key, values] : keys) {
        if (!written.contains(key)) {
            text += text.empty() || text.ends_with('\n') ? "" : "\n";
            text += "[" + key + "]\n";
            appendValues(text, values);
            text += "\n";
        }
    }
    return text;
}

bool writeRegistryKeys(const std::string& path, const RegistryKeys& keys, std::string& error)
{
    const auto file = LockedFile::acquire(path, O_RDWR | O_CREAT, error);
    if (!file) {
        return false;
    }
    const auto text = file->read(error);
    return text && file->write(withRegistryKeys(*text, keys), error);
}

} // namespace udsim

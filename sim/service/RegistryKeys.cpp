#include "RegistryKeys.h"

#include <cerrno>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include "ExclusiveFile.h"

namespace udsim {

namespace {

/// Returns the key path of a section line.
std::string_view sectionOf(std::string_view line)
{
    const size_t end = line.find(']');
    return line.starts_with('[') && end != std::string_view::npos ? line.substr(1, end - 1)
                                                                  : std::string_view();
}

/// Returns the name of a value line; empty for any other line.
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

std::string eightHexDigits(uint32_t number)
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
        text.append("\"").append(name).append("\"=dword:").append(eightHexDigits(value)).append("\n");
    }
}

} // namespace

std::string withRegistryKeys(std::string_view fileText, const RegistryKeys& keys)
{
    std::string text;
    std::set<std::string> written;
    const RegistryValues* present = nullptr; // values to set in the current section
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

namespace {

/// Returns the sections of a text, each with its lines. Lines before the first section form a
/// separate element.
std::vector<std::string_view> sectionsOf(std::string_view text)
{
    std::vector<std::string_view> sections;
    size_t start = 0;
    while (start < text.size()) {
        const size_t next = text.find("\n[", start);
        const size_t end = next == std::string_view::npos ? text.size() : next + 1;
        sections.push_back(text.substr(start, end - start));
        start = end;
    }
    return sections;
}

bool isEmpty(std::string_view section)
{
    return section.find_first_not_of("\r\n \t", section.find('\n')) == std::string_view::npos;
}

} // namespace

std::string withoutRegistryKeys(std::string_view fileText, const std::set<std::string>& keys,
                                const std::string& root)
{
    std::vector<std::string_view> kept;
    bool rootIsUsed = false;
    for (const std::string_view section : sectionsOf(fileText)) {
        const std::string key(sectionOf(section.substr(0, section.find('\n'))));
        if (!keys.contains(key)) {
            kept.push_back(section);
            rootIsUsed = rootIsUsed || key.starts_with(root + "/") || (key == root && !isEmpty(section));
        }
    }
    std::string text;
    for (const std::string_view section : kept) {
        if (rootIsUsed || sectionOf(section.substr(0, section.find('\n'))) != root) {
            text += section;
        }
    }
    return text;
}

bool writeRegistryKeys(const std::string& path, const RegistryKeys& keys, std::string& error)
{
    const auto file = ExclusiveFile::acquire(path, O_RDWR | O_CREAT, error);
    if (!file) {
        return false;
    }
    const auto text = file->read(error);
    return text && file->write(withRegistryKeys(*text, keys), error);
}

bool removeRegistryKeys(const std::string& path, const std::set<std::string>& keys, const std::string& root,
                        std::string& error)
{
    if (::access(path.c_str(), F_OK) != 0 && errno == ENOENT) {
        return true;
    }
    const auto file = ExclusiveFile::acquire(path, O_RDWR, error);
    const auto text = file ? file->read(error) : std::nullopt;
    if (!text) {
        return false;
    }
    const std::string left = withoutRegistryKeys(*text, keys, root);
    return left == *text || file->write(left, error);
}

} // namespace udsim

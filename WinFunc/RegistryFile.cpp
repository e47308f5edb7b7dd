// Loads the registry's text file into the map and writes the map back.
#include "RegistryFile.h"

#include "FileStamp.h"
#include "InstallPaths.h"
#include "SystemCalls.h"
#include "WinFunc.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <optional>
#include <string_view>
#include <unistd.h>

namespace {

constexpr size_t PIECE_MAX = 1023;
constexpr mode_t REGISTRY_FILE_MODE = 0644;

// The stamp of the file state that the map holds in full. Opening a key loads the file, but reading the same
// bytes again would not change the map.
std::optional<FileStamp> g_loadedFile;

unsigned long g_state = 0;

/// The stamp of the file, or none if a later state could have the same stamp.
std::optional<FileStamp> TakeStamp(const LockedFile& file)
{
    timespec now = {};
    struct stat info = {};
    if (clock_gettime(CLOCK_REALTIME_COARSE, &now) != 0 || fstat(file.Descriptor(), &info) != 0) {
        return std::nullopt;
    }
    const FileStamp stamp(info);
    return stamp.IsSettled(now) ? std::optional(stamp) : std::nullopt;
}

bool CreateEmptyFile()
{
    CreateDirectoryA(CONF_DIR, nullptr);
    // No O_TRUNC: another program may have just created and filled the file.
    LockedFile file(REGISTRY_FILE, O_WRONLY | O_CREAT, REGISTRY_FILE_MODE);
    return file.IsOpen();
}

/// Returns the entry of the name and creates it if missing. Finding an existing entry allocates no string.
template <class Map>
typename Map::mapped_type& Entry(Map& map, std::string_view name)
{
    const auto place = map.lower_bound(name);
    if (place != map.end() && place->first == name) {
        return place->second;
    }
    return map.try_emplace(place, std::string(name))->second;
}

void ReadValueLine(std::string_view line, CRegistryValueStore& store)
{
    constexpr std::string_view numberMark = "dword:";

    const size_t nameEnd = line.find('"', 1);
    const size_t equals = line.find('=', 1);
    if (equals == std::string_view::npos || equals < nameEnd) {
        return; // also if the name has no end: npos is behind each position
    }
    const std::string_view name = line.substr(1, nameEnd - 1);
    const std::string_view data = line.substr(equals + 1);
    if (data.starts_with('"')) {
        const size_t textEnd = data.find('"', 1);
        if (textEnd != std::string_view::npos) {
            Entry(store.stringValues, name) = data.substr(1, textEnd - 1);
        }
    } else if (data.starts_with(numberMark)) {
        // The line lies in a NUL-terminated piece, so the conversion ends inside it.
        const char* digits = data.data() + numberMark.size();
        const ErrnoKeeper keeper; // strtol sets errno for a number out of range, which is no error here
        Entry(store.dwordValues, name) = static_cast<uint32_t>(std::strtol(digits, nullptr, 16));
    }
}

void ReadPieces(RegistryPieces& pieces)
{
    CRegistryValueStore* store = nullptr; // null before the first section: values there belong to no key
    std::string piece;
    while (pieces.Next(piece)) {
        // A line ends at a NUL.
        const std::string_view line = std::string_view(piece).substr(0, piece.find('\0'));
        if (line.starts_with('[')) {
            const size_t nameEnd = line.find(']');
            if (nameEnd != std::string_view::npos) {
                store = &Entry(g_Registry, line.substr(1, nameEnd - 1));
            }
        } else if (line.starts_with('"') && store != nullptr) {
            ReadValueLine(line, *store);
        }
    }
}

void AppendSection(std::string& text, const std::string& key, const CRegistryValueStore& store)
{
    constexpr char digits[] = "0123456789abcdef";

    text.append("[").append(key).append("]\n");
    for (const auto& [name, value] : store.stringValues) {
        text.append("\"").append(name).append("\"=\"").append(value).append("\"\n");
    }
    for (const auto& [name, value] : store.dwordValues) {
        text.append("\"").append(name).append("\"=dword:");
        for (int shift = 28; shift >= 0; shift -= 4) {
            text.push_back(digits[(value >> shift) & 0xF]);
        }
        text.push_back('\n');
    }
    text.push_back('\n');
}

} // namespace

RegistryPieces::RegistryPieces(const LockedFile& file)
    : m_file(file), m_left(file.Size()), m_hasFailed(m_left < 0)
{
}

bool RegistryPieces::Fill()
{
    if (m_hasFailed) {
        return false;
    }
    const size_t wanted = static_cast<size_t>(std::min<off_t>(m_left, off_t{sizeof m_buffer}));
    const ssize_t count = m_file.Read(m_buffer.data(), wanted);
    m_hasFailed = count < 0;
    m_position = 0;
    m_filled = count > 0 ? static_cast<size_t>(count) : 0;
    m_left -= static_cast<off_t>(m_filled);
    return m_filled > 0;
}

bool RegistryPieces::Next(std::string& piece)
{
    piece.clear();
    while (piece.size() < PIECE_MAX) {
        if (m_position == m_filled && !Fill()) {
            if (!Complete()) {
                piece.clear(); // a truncated number would be a different number
            }
            break;
        }
        const char* start = m_buffer.data() + m_position;
        const size_t room = std::min(m_filled - m_position, PIECE_MAX - piece.size());
        const void* lineFeed = std::memchr(start, '\n', room);
        const size_t count =
            lineFeed == nullptr ? room : static_cast<size_t>(static_cast<const char*>(lineFeed) - start) + 1;
        piece.append(start, count);
        m_position += count;
        if (lineFeed != nullptr) {
            break;
        }
    }
    return !piece.empty();
}

bool RegReplaceFile(const std::string& text)
{
    RegForgetLoad(); // the new text may get the same stamp if the clock was set back
    LockedFile file(REGISTRY_FILE, O_WRONLY | O_CREAT | O_TRUNC, REGISTRY_FILE_MODE);
    // Truncate again under the lock: another program may have written while this one waited, and the end of
    // its longer text would remain after the new one.
    return file.IsOpen() && ftruncate(file.Descriptor(), 0) == 0 && file.WriteAll(text) && file.Close();
}

void RegForgetLoad()
{
    g_loadedFile.reset();
    ++g_state;
}

unsigned long RegState()
{
    return g_state;
}

bool RegReadIn(int flags)
{
    const LockedFile file(REGISTRY_FILE, flags);
    if (!file.IsOpen()) {
        // A file that exists is not taken for an empty one: writing the map would lose its contents.
        return errno == ENOENT && CreateEmptyFile();
    }
    const std::optional<FileStamp> stamp = TakeStamp(file);
    if (!stamp || stamp != g_loadedFile) {
        RegistryPieces pieces(file);
        ReadPieces(pieces);
        g_loadedFile = pieces.Complete() ? stamp : std::nullopt;
        if (pieces.HasFailed()) {
            return flags == O_RDONLY; // writing the map would lose what could not be read
        }
    }
    return true;
}

bool RegWriteOut()
{
    std::string text;
    for (const auto& [key, store] : g_Registry) {
        AppendSection(text, key, store);
    }
    return RegReplaceFile(text);
}

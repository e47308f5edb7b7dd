// Writes private profile (ini) files: splices the change into the text of the whole file and writes it over
// the old text in place. The file never shrinks, so the end of a longer old text remains after a shorter new
// one.
#include "LockedFile.h"
#include "ReadPass.h"
#include "TrustedLink.h"
#include "WinFunc.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <optional>
#include <string_view>
#include <unistd.h>

namespace {

/// The text to write, and where.
struct Splice
{
    int whence; ///< SEEK_SET or SEEK_END, at offset 0
    std::string text;
};

/// The text up to the first NUL. Searches end there; splices keep every byte of the file.
std::string_view Visible(const std::string& text)
{
    return std::string_view(text).substr(0, text.find('\0'));
}

std::string SectionText(LPCSTR lpAppName)
{
    return std::string("[").append(lpAppName).append("]");
}

/// A new section at the end of the file.
Splice NewSection(const std::string& old, const std::string& section, const std::string& lines)
{
    const bool needsLineFeed = old.size() >= 2 && old.back() != '\n';
    return {SEEK_END, std::string(needsLineFeed ? "\n" : "").append(section).append("\n").append(lines)};
}

/// The file with `key` set, or none if the write would damage another line.
std::optional<Splice> SetKey(const std::string& old, const std::string& section, std::string_view key,
                             const std::string& value)
{
    constexpr auto npos = std::string_view::npos;

    if (key.empty()) {
        return std::nullopt; // would match before any other key
    }
    const std::string_view visible = Visible(old);
    const std::string line = std::string(key).append("=").append(value).append("\n");
    const size_t found = visible.find(section);
    if (found == npos) {
        return NewSection(old, section, line);
    }
    const size_t behind = found + section.size();
    const size_t keyStart = visible.find(key, behind);
    if (keyStart == npos || visible.find('[', behind) < keyStart) {
        if (behind == visible.size()) {
            return std::nullopt; // the section line has no line feed that the new line could replace
        }
        return Splice{SEEK_SET, old.substr(0, behind).append("\n").append(line).append(old, behind + 1)};
    }
    const size_t delimiter = visible.find_first_of(" \t=", keyStart);
    const size_t lineFeed = visible.find('\n', delimiter); // npos too without a delimiter
    if (lineFeed == npos) {
        return std::nullopt; // the line has no delimiter or line feed, so the end of its value is unknown
    }
    return Splice{SEEK_SET,
                  old.substr(0, delimiter + 1).append(value).append("\n").append(old, lineFeed + 1)};
}

/// The file with all lines of the section replaced by `lines`, or none as above.
std::optional<Splice> SetSection(const std::string& old, const std::string& section, const std::string& lines)
{
    const std::string_view visible = Visible(old);
    const size_t found = visible.find(section);
    if (found == std::string_view::npos) {
        return NewSection(old, section, lines);
    }
    const size_t behind = found + section.size();
    if (behind == visible.size()) {
        return std::nullopt;
    }
    const size_t next = std::min(visible.find('[', behind), visible.size());
    return Splice{SEEK_SET, old.substr(0, behind + 1).append(lines).append(old, next)};
}

/// The whole file. Its size is read under the lock, so that the text of an earlier writer is not lost. None,
/// with errno, if the file cannot be read or is too large for one write.
std::optional<std::string> ReadWhole(const LockedFile& file)
{
    const off_t size = file.Size();
    if (size < 0) {
        return std::nullopt;
    }
    if (size > INT_MAX) {
        errno = EFBIG;
        return std::nullopt;
    }
    std::string text(static_cast<size_t>(size), '\0');
    const ssize_t count = file.Read(text.data(), text.size());
    if (count < 0) {
        return std::nullopt;
    }
    text.resize(static_cast<size_t>(count));
    return text;
}

enum class Step
{
    NONE,
    STAT,
    OPEN_EXISTING_FILE,
    READ,
    OPEN_NEW_FILE,
    REFUSED,
    WRITE
};

/// Runs `splice` on the file's text and writes the result. Returns the step that failed, with errno, or NONE.
template <class Splicer>
Step Rewrite(LPCSTR lpFileName, mode_t mode, Splicer splice)
try {
    struct stat info = {};
    const bool exists = lstat(lpFileName, &info) == 0;
    if (!exists && errno != ENOENT) {
        return Step::STAT;
    }
    const int how = exists ? O_RDWR | NoFollowUnlessTrusted(info) : O_RDWR | O_CREAT | O_EXCL;
    const LockedFile file(lpFileName, how, mode);
    if (!file.IsOpen()) {
        return exists ? Step::OPEN_EXISTING_FILE : Step::OPEN_NEW_FILE;
    }
    const std::optional<std::string> old = ReadWhole(file);
    if (!old) {
        return Step::READ;
    }
    const std::optional<Splice> change = splice(*old);
    if (!change) {
        return Step::REFUSED;
    }
    ReadPass::ForgetProfile();
    lseek(file.Descriptor(), 0, change->whence);
    return write(file.Descriptor(), change->text.data(), change->text.size()) < 0 ? Step::WRITE : Step::NONE;
} catch (const std::bad_alloc&) {
    errno = ENOMEM; // the file is too large to hold in memory twice
    return Step::READ;
}

void LogFailure(Step step, int error)
{
    if (GetLogLevel() <= 1) {
        return;
    }
    switch (step) {
    case Step::STAT:
        LogWarning("WritePrivateProfileStringA, lstat failed with errno=%d", error);
        break;
    case Step::OPEN_EXISTING_FILE:
        LogWarning("WritePrivateProfileStringA, open(,O_RDWR) failed with errno=%d", error);
        break;
    case Step::READ:
        LogWarning("WritePrivateProfileStringA, read failed with errno=%d", error);
        break;
    case Step::OPEN_NEW_FILE:
        LogWarning("WritePrivateProfileStringA, open(,O_RDWR|O_CREAT|O_EXCL) failed with errno=%d", error);
        break;
    case Step::WRITE:
        LogWarning("WritePrivateProfileStringA, write failed with errno=%d", error);
        break;
    case Step::REFUSED:
    case Step::NONE:
        break;
    }
}

} // namespace

BOOL WritePrivateProfileStringA(LPCSTR lpAppName, LPCSTR lpKeyName, LPCSTR lpString, LPCSTR lpFileName)
{
    // NOLINTBEGIN(modernize-use-nullptr): the texts of these assertions are fixed
    assert(lpAppName != NULL);
    assert(lpKeyName != NULL);
    assert(lpString != NULL);
    assert(lpFileName != NULL);
    // NOLINTEND(modernize-use-nullptr)

    const Step failed = Rewrite(lpFileName, 0755, [&](const std::string& old) {
        return SetKey(old, SectionText(lpAppName), lpKeyName, lpString);
    });
    LogFailure(failed, errno);
    return failed == Step::NONE ? TRUE : FALSE;
}

BOOL WritePrivateProfileSectionA(LPCSTR lpAppName, LPCSTR lpKeyValuePairs, LPCSTR lpFileName)
{
    // NOLINTBEGIN(modernize-use-nullptr): the texts of these assertions are fixed
    assert(lpAppName != NULL);
    assert(lpKeyValuePairs != NULL);
    assert(lpFileName != NULL);
    // NOLINTEND(modernize-use-nullptr)

    if (GetLogLevel() > 3) {
        LogDebug("WritePrivateProfileSectionA(\"%s\", \"%s\", \"%s\")", lpAppName, lpKeyValuePairs,
                 lpFileName);
    }
    errno = 0;
    std::string lines;
    for (LPCSTR pair = lpKeyValuePairs; *pair != '\0'; pair += std::strlen(pair) + 1) {
        lines.append(pair).append("\n");
    }
    const Step failed = Rewrite(lpFileName, 0600, [&](const std::string& old) {
        return SetSection(old, SectionText(lpAppName), lines);
    });
    return failed == Step::NONE ? TRUE : FALSE;
}

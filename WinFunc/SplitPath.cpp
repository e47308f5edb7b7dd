#include "Win_def.h"

#include <algorithm>
#include <string_view>

namespace {

/// An output buffer of the caller; NULL with size 0 if the part is not requested.
struct Output
{
    char* buffer;
    size_t size;

    bool IsValid() const
    {
        return (buffer == nullptr) == (size == 0);
    }

    /// The buffer stays zeroed if the part and its NUL do not fit.
    void Put(std::string_view part) const
    {
        std::fill_n(buffer, size, '\0');
        if (part.size() < size) {
            part.copy(buffer, part.size());
        }
    }
};

/// The first colon and the byte before it, such as "C:". A leading colon is not a drive.
std::string_view DriveOf(std::string_view path)
{
    const size_t colon = path.find(':');
    return colon == std::string_view::npos || colon == 0 ? std::string_view() : path.substr(colon - 1, 2);
}

} // namespace

int _splitpath_s(const char* path, char* drive, size_t driveNumberOfElements, char* dir,
                 size_t dirNumberOfElements, char* fname, size_t nameNumberOfElements, char* ext,
                 size_t extNumberOfElements)
{
    const Output driveOutput{drive, driveNumberOfElements};
    const Output dirOutput{dir, dirNumberOfElements};
    const Output nameOutput{fname, nameNumberOfElements};
    const Output extOutput{ext, extNumberOfElements};
    if (path == nullptr || !driveOutput.IsValid() || !dirOutput.IsValid() || !nameOutput.IsValid() ||
        !extOutput.IsValid()) {
        return EINVAL;
    }

    constexpr size_t none = std::string_view::npos;
    const std::string_view whole = path;
    const size_t firstSlash = whole.find('/');
    const size_t lastSlash = whole.rfind('/');
    const std::string_view folder =
        firstSlash == none ? std::string_view() : whole.substr(firstSlash, lastSlash - firstSlash + 1);
    const std::string_view file = lastSlash == none ? whole : whole.substr(lastSlash + 1);
    const size_t lastDot = file.rfind('.');

    driveOutput.Put(DriveOf(whole));
    dirOutput.Put(folder);
    nameOutput.Put(file.substr(0, lastDot));
    extOutput.Put(lastDot == none ? std::string_view() : file.substr(lastDot));
    return 0;
}

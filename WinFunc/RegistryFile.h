// The registry's text file: what the store's own sources share.
#pragma once

#include "LockedFile.h"

#include <array>
#include <string>

/// Cuts the file into pieces: lines with their line feed, a longer line in runs of at most 1023 bytes.
class RegistryPieces
{
public:
    /// Reads `file`, which must outlive the object, from its current position to the size it has now.
    explicit RegistryPieces(const LockedFile& file);
    /// False at the end. A piece may hold any bytes, NUL among them. One whose end could not be read is not
    /// given out.
    bool Next(std::string& piece);
    /// True when every byte was read; false after a read error and when the file shrank meanwhile.
    bool Complete() const
    {
        return m_left == 0;
    }

private:
    bool Fill();

    const LockedFile& m_file;
    off_t m_left;
    size_t m_position = 0;
    size_t m_filled = 0;
    std::array<char, 16384> m_buffer;
};

/// Puts `text` in the place of all that the file holds. False when it was not written in full.
bool RegReplaceFile(const std::string& text);

/// To be called when a value in the map changed: the next load reads the file in any case, since it takes
/// back values that were not written.
void RegForgetLoad();

/// A number that changes whenever this process changes a value in the map or the file. Under the lock of the
/// registry.
unsigned long RegState();

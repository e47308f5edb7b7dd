// Internal to the registry store: access to its text file.
#pragma once

#include "LockedFile.h"

#include <array>
#include <string>

/// Splits the file into pieces of at most 1023 bytes. A piece is a line with its line feed or a part of a
/// longer line.
class RegistryPieces
{
public:
    /// Reads `file` from its current position to its present size. `file` must outlive the object.
    explicit RegistryPieces(const LockedFile& file);
    /// False at the end. A piece may hold any bytes, including NUL. A piece that could not be read to its end
    /// is discarded.
    bool Next(std::string& piece);
    /// False after a read error, or if the file shrank during the read; true once every byte was read.
    bool Complete() const
    {
        return m_left == 0;
    }
    /// True after a read error. A file that shrank is no error.
    bool HasFailed() const
    {
        return m_hasFailed;
    }

private:
    bool Fill();

    const LockedFile& m_file;
    off_t m_left;
    bool m_hasFailed;
    size_t m_position = 0;
    size_t m_filled = 0;
    std::array<char, 16384> m_buffer;
};

/// Replaces the contents of the file with `text`. False if not all of it was written.
bool RegReplaceFile(const std::string& text);

/// Call after changing a value in the map. The next load then reads the file even if the file is unchanged,
/// because a load reverts values that were not written.
void RegForgetLoad();

/// A counter that changes each time this process changes a value in the map or the file. Call with
/// RegistryMutex locked.
unsigned long RegState();

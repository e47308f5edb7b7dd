// A terminal whose last lines show the present state, below a log of lines.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace udsim {

/// Composes the output for the terminal; writes nothing itself.
class Screen
{
public:
    /// Returns the bytes that print the new lines above and this block at the bottom; empty if nothing
    /// changed. The block's lines must be shorter than the terminal's width, and fewer than its height.
    std::string frame(const std::vector<std::string>& lines, const std::vector<std::string>& block);

private:
    std::vector<std::string> m_block; ///< as displayed
};

struct TerminalSize
{
    size_t columns = 80;
    size_t rows = 24;
};

/// Returns whether lines can be redrawn on this descriptor: it is a terminal, and TERM is set and not "dumb".
bool isLiveTerminal(int fd);
/// Returns 80 by 24 if the size is unknown.
TerminalSize sizeOf(int fd);

} // namespace udsim

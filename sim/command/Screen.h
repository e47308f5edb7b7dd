// A terminal whose last lines show how things stand, below the lines of what happened.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace udsim {

/// Composes what is written to the terminal; writes nothing itself.
class Screen
{
public:
    /// The bytes that put the new lines above and this block at the bottom; none when nothing has changed.
    /// The block's lines have to be shorter than the terminal is wide, and fewer than it is high.
    std::string frame(const std::vector<std::string>& lines, const std::vector<std::string>& block);

private:
    std::vector<std::string> m_block; ///< as it stands there now
};

struct TerminalSize
{
    size_t columns = 80;
    size_t rows = 24;
};

/// Lines can be redrawn on this descriptor: it is a terminal, and one that can.
bool isLiveTerminal(int fd);
/// 80 by 24 when it cannot be had.
TerminalSize sizeOf(int fd);

} // namespace udsim

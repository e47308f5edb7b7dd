#include "Screen.h"

#include <cstdlib>
#include <string_view>

#include <sys/ioctl.h>
#include <unistd.h>

namespace udsim {

namespace {

constexpr char CLEAR_BELOW[] = "\x1b[J";
constexpr char CLEAR_LINE[] = "\x1b[K"; ///< from the cursor on

std::string up(size_t lines)
{
    return lines == 0 ? "" : "\x1b[" + std::to_string(lines) + "A";
}

} // namespace

std::string Screen::frame(const std::vector<std::string>& lines, const std::vector<std::string>& block)
{
    if (lines.empty() && block == m_block) {
        return {};
    }
    std::string bytes = "\r" + up(m_block.size());
    if (!lines.empty()) {
        bytes += CLEAR_BELOW; // a long line may take several rows
    }
    for (const std::string& line : lines) {
        bytes += line + "\n";
    }
    for (const std::string& line : block) {
        bytes += line + CLEAR_LINE + "\n"; // overwritten, so that unchanged text does not flicker
    }
    if (block.size() < m_block.size()) {
        bytes += CLEAR_BELOW;
    }
    m_block = block;
    return bytes;
}

bool isLiveTerminal(int fd)
{
    const char* const kind = std::getenv("TERM");
    return ::isatty(fd) == 1 && kind != nullptr && *kind != '\0' && std::string_view(kind) != "dumb";
}

TerminalSize sizeOf(int fd)
{
    winsize size{};
    TerminalSize result;
    if (::ioctl(fd, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 && size.ws_row > 0) {
        result = {size.ws_col, size.ws_row};
    }
    return result;
}

} // namespace udsim

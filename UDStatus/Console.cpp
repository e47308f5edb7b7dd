#include "Console.h"

#include "SafeText.h"
#include "SystemCalls.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include <poll.h> // house-rule: sockets: waits for standard output
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

// Of a terminal that does not know its size.
constexpr int usualWidth = 80;
constexpr int usualHeight = 24;

} // namespace

bool writeAll(int descriptor, const QByteArray& data)
{
    for (int done = 0; done < data.size();) {
        const ssize_t count = Uninterrupted([&] {
            return ::write(descriptor, data.constData() + done, static_cast<size_t>(data.size() - done));
        });
        if (count >= 0) {
            done += static_cast<int>(count);
        } else if (errno == EAGAIN) {
            pollfd entry{descriptor, POLLOUT, 0};
            ::poll(&entry, 1, -1);
        } else {
            return false;
        }
    }
    return true;
}

bool print(const QByteArray& data)
{
    const bool written = writeAll(STDOUT_FILENO, data);
    if (!written) {
        complainAboutOutput();
    }
    return written;
}

void complainAboutOutput()
{
    if (errno != EPIPE) {
        complain(QStringLiteral("cannot write: %1").arg(errorText(errno)));
    }
}

QString errorText(int error)
{
    const char* text = ::strerrordesc_np(error);
    return text != nullptr ? QString::fromLatin1(text) : QStringLiteral("error %1").arg(error);
}

void complain(const QString& text)
{
    const QByteArray line = (QStringLiteral("ulmar-disc-status: ") + safeText(text)).toUtf8() + '\n';
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stderr);
    std::fflush(stderr);
}

int terminalWidth()
{
    winsize size{};
    if (::isatty(STDOUT_FILENO) == 0) {
        return 0;
    }
    return ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usualWidth;
}

int terminalHeight()
{
    winsize size{};
    return ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_row > 0 ? size.ws_row : usualHeight;
}

bool takesSequences()
{
    const char* variable = std::getenv("TERM");
    const std::string_view terminal = variable != nullptr ? variable : "";
    return ::isatty(STDOUT_FILENO) != 0 && !terminal.empty() && terminal != "dumb";
}

bool showsColours()
{
    const char* refused = std::getenv("NO_COLOR");
    return takesSequences() && (refused == nullptr || *refused == '\0');
}

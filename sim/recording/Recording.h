// A recorded session between clients and a control service or a publisher server: a text file with one line
// per message, human-readable, and the source of the replies of `udsim replay`.
//
//     udsim-recording 1 service
//     # begun 2026-11-21T19:46:43Z
//     # asks control 13 of "R"
//     0.012 1 ask 408 "\r\0{7}R\0{399}"
//     # result 0, 4 bytes of payload
//     0.013 1 answer 28 "\r\0{15}\x04\0{7}\x02\x00\x00\x00"
//     0.013 1 closed
//
// Lines with "#" are comments. The others contain the seconds since the beginning, the number of the
// connection, and the event: `ask` by the client or `answer` by the other side, both with their size and
// their bytes, or `closed`: the other side ended the connection. Of a message longer than the recording
// limit, only the beginning of the bytes is kept. In the bytes, `\r \n \t \\ \"` have their usual meaning,
// `\xHH` is a byte in hexadecimal, and `\0{N}` represents N zero bytes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace udsim {

struct Message
{
    enum class Kind
    {
        ask,
        answer,
        closed
    };

    uint64_t time = 0; ///< milliseconds since the beginning
    unsigned connection = 0;
    Kind kind = Kind::ask;
    uint64_t size = 0; ///< of the whole message
    std::string bytes; ///< the whole message, or its beginning

    bool isWhole() const
    {
        return bytes.size() == size;
    }
    /// Returns the message as a line, without the line feed.
    std::string line() const;
};

struct Recording
{
    static constexpr uint64_t LARGEST_FILE = 1U << 30;
    /// Maximum for the bytes of all messages together: a short text can represent many zero bytes.
    static constexpr uint64_t MOST_BYTES = 256U << 20;

    enum class Of
    {
        service,
        server
    };

    Of of = Of::service;
    std::vector<Message> messages;
    std::string remark; ///< a tolerated mistake: the last line is cut off

    /// The first line of a file.
    static std::string firstLine(Of of);
    /// Returns nothing on a mistake, with the mistake and its line in `error`. A last line without a line
    /// feed, as an interrupted recorder leaves it, is ignored.
    static std::optional<Recording> parse(const std::string& text, std::string& error);
    static std::optional<Recording> load(const std::string& path, std::string& error);
};

/// Returns the bytes as a quoted text in printable ASCII.
std::string quotedBytes(std::string_view bytes);
/// Returns the bytes of a quoted text, at most `most`; nothing if it is invalid.
std::optional<std::string> unquotedBytes(std::string_view text, size_t most);

} // namespace udsim

// A recorded session between clients and a control service or a publisher server: a text file, a line a
// message, that a person can read and `udsim replay` can answer from.
//
//     udsim-recording 1 service
//     # begun 2026-11-21T19:46:43Z
//     # asks control 13 of "R"
//     0.012 1 ask 408 "\r\0{7}R\0{399}"
//     # result 0, 4 bytes of payload
//     0.013 1 answer 28 "\r\0{15}\x04\0{7}\x02\x00\x00\x00"
//     0.013 1 closed
//
// Lines with "#" are for the reader. The others are the seconds since the beginning, the number of the
// connection, and what went over it: `ask` by the client, `answer` by the other side, both with their size
// and their bytes, or `closed`: the other side ended the connection. Of a message that is longer than what is
// kept of it the bytes are the beginning. In the bytes `\r \n \t \\ \"` are what they are everywhere, `\xHH`
// is a byte in hexadecimal, and `\0{N}` stands for N zero bytes.
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
    std::string bytes; ///< all of it, or its beginning

    bool isWhole() const
    {
        return bytes.size() == size;
    }
    /// As its line, without the line feed.
    std::string line() const;
};

struct Recording
{
    static constexpr uint64_t LARGEST_FILE = 1U << 30;

    enum class Of
    {
        service,
        server
    };

    Of of = Of::service;
    std::vector<Message> messages;
    std::string remark; ///< what is wrong with it and does no harm: the last line is cut off

    /// The first line of a file.
    static std::string firstLine(Of of);
    /// Nothing on a mistake, which `error` names with its line. A last line without its end, as a recorder
    /// leaves it that was cut short, is left out.
    static std::optional<Recording> parse(const std::string& text, std::string& error);
    static std::optional<Recording> load(const std::string& path, std::string& error);
};

/// In quotes, in the letters of ASCII.
std::string quotedBytes(std::string_view bytes);
/// The bytes of a quoted text, at most so many; nothing when it is none.
std::optional<std::string> unquotedBytes(std::string_view text, size_t most);

} // namespace udsim

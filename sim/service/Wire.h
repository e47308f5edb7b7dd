// The frames of the control service: encodes replies and decodes requests.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace udsim {

/// A decoded request.
struct Request
{
    uint64_t control = 0;
    std::string publisher; ///< regist id; empty if the command names none
    std::string job;
    uint64_t parameter = 0;

    bool operator==(const Request&) const = default;
};

/// A reply before encoding.
struct Reply
{
    uint64_t control = 0;
    uint64_t result = 0;
    std::string payload;
};

/// Reads the little-endian number at this position; the frame must contain its eight bytes.
uint64_t readU64(std::string_view frame, size_t at);
/// Decodes a frame of exactly `REQUEST_SIZE` bytes. A text without a NUL fills its field.
Request decodeRequest(std::string_view frame);
/// Describes all parts of a request: `control 3 of "R", job "J"`.
std::string inWords(const Request& request);
/// Returns the header followed by the payload.
std::string encodeReply(const Reply& reply);

/// Writes a payload field by field, little-endian, padding included.
class ByteWriter
{
public:
    ByteWriter& u32(uint64_t value); ///< the low 32 bits
    ByteWriter& u64(uint64_t value);
    ByteWriter& text(std::string_view value, size_t size); ///< `size` bytes, with at least one NUL at the end
    ByteWriter& zeros(size_t size);
    const std::string& bytes() const
    {
        return m_bytes;
    }

private:
    ByteWriter& littleEndian(uint64_t value, size_t size);

    std::string m_bytes;
};

} // namespace udsim

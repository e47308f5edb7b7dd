// The frames of the control service: what bytes a request and a reply are.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace udsim {

/// A request, read from its frame.
struct Request
{
    uint64_t control = 0;
    std::string publisher; ///< regist id; empty when the command names none
    std::string job;
    uint64_t parameter = 0;

    bool operator==(const Request&) const = default;
};

/// A reply before it becomes a frame.
struct Reply
{
    uint64_t control = 0;
    uint64_t result = 0;
    std::string payload;
};

/// The little-endian number at a place; its eight bytes have to be there.
uint64_t readU64(std::string_view frame, size_t at);
/// Reads a frame of exactly `REQUEST_SIZE` bytes. A text that fills its field without a NUL ends with the
/// field.
Request decodeRequest(std::string_view frame);
/// `control 3 of "R", job "J"`, with all that a request says.
std::string inWords(const Request& request);
/// The header, and the payload behind it.
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

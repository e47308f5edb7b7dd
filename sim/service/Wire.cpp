#include "Wire.h"

#include <cassert>

#include "Protocol.h"

namespace udsim {

namespace {

constexpr size_t PUBLISHER_NAME_AT = 8;
constexpr size_t JOB_ID_AT = 137;
constexpr size_t PARAMETER_AT = 400;

std::string readText(std::string_view frame, size_t at, size_t size)
{
    const std::string_view field = frame.substr(at, size);
    return std::string(field.substr(0, field.find('\0')));
}

} // namespace

uint64_t readU64(std::string_view frame, size_t at)
{
    uint64_t value = 0;
    for (size_t i = 8; i-- > 0;) {
        value = value << 8 | static_cast<uint8_t>(frame[at + i]);
    }
    return value;
}

Request decodeRequest(std::string_view frame)
{
    assert(frame.size() == REQUEST_SIZE);
    return {readU64(frame, 0), readText(frame, PUBLISHER_NAME_AT, PUBLISHER_NAME_FIELD),
            readText(frame, JOB_ID_AT, JOB_ID_FIELD), readU64(frame, PARAMETER_AT)};
}

std::string inWords(const Request& request)
{
    return "control " + std::to_string(request.control) + " of \"" + request.publisher + "\"" +
           (request.job.empty() ? "" : ", job \"" + request.job + "\"") +
           (request.parameter == 0 ? "" : ", parameter " + std::to_string(request.parameter));
}

std::string encodeReply(const Reply& reply)
{
    ByteWriter header;
    header.u64(reply.control).u64(reply.result).u64(reply.payload.size());
    return header.bytes() + reply.payload;
}

ByteWriter& ByteWriter::littleEndian(uint64_t value, size_t size)
{
    for (size_t i = 0; i < size; ++i) {
        m_bytes.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
    }
    return *this;
}

ByteWriter& ByteWriter::u32(uint64_t value)
{
    return littleEndian(value, 4);
}

ByteWriter& ByteWriter::u64(uint64_t value)
{
    return littleEndian(value, 8);
}

ByteWriter& ByteWriter::text(std::string_view value, size_t size)
{
    const std::string_view kept = value.substr(0, size - 1);
    m_bytes.append(kept);
    return zeros(size - kept.size());
}

ByteWriter& ByteWriter::zeros(size_t size)
{
    m_bytes.append(size, '\0');
    return *this;
}

} // namespace udsim

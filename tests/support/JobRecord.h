// A job as a publisher server sends it, written field by field at the offsets of the protocol.
#pragma once

#include <cstdint>
#include <string>

/// Numbers are big-endian, texts are UTF-16 little-endian. The initial record is a valid job, all zero.
class JobRecord
{
public:
    static constexpr size_t SIZE = 1178;
    static constexpr size_t SIZE_EX = 1182;

    explicit JobRecord(size_t size = SIZE) : m_bytes(size, '\0') {}

    JobRecord& Number(size_t offset, size_t size, uint32_t value)
    {
        for (size_t index = 0; index < size; ++index) {
            m_bytes.at(offset + index) = static_cast<char>(value >> (8 * (size - 1 - index)));
        }
        return *this;
    }

    JobRecord& Text(size_t offset, const std::u16string& text)
    {
        for (size_t index = 0; index < text.size(); ++index) {
            m_bytes.at(offset + index * 2) = static_cast<char>(text[index]);
            m_bytes.at(offset + index * 2 + 1) = static_cast<char>(text[index] >> 8);
        }
        return *this;
    }

    JobRecord& Status(uint32_t value)
    {
        return Number(0, 1, value);
    }
    JobRecord& Factor(uint32_t value)
    {
        return Number(1, 1, value);
    }
    JobRecord& Copies(uint32_t ordered, uint32_t finished)
    {
        return Number(2, 2, ordered).Number(4, 2, finished);
    }
    JobRecord& Person(const std::u16string& name)
    {
        return PersonSize(static_cast<uint32_t>(name.size() * 2)).Text(7, name);
    }
    JobRecord& PersonSize(uint32_t bytes)
    {
        return Number(6, 1, bytes);
    }
    JobRecord& Type(uint32_t type, uint32_t printMode)
    {
        return Number(135, 1, type).Number(662, 1, printMode);
    }
    JobRecord& LoadStacker(uint32_t value)
    {
        return Number(136, 2, value);
    }
    JobRecord& EjectStacker(uint32_t value)
    {
        return Number(138, 2, value);
    }
    JobRecord& EstimateTime(uint32_t value)
    {
        return Number(140, 4, value);
    }
    JobRecord& ErrorNumber(uint32_t value)
    {
        return Number(144, 2, value);
    }
    JobRecord& Name(const std::u16string& name)
    {
        return NameSize(static_cast<uint32_t>(name.size() * 2)).Text(148, name);
    }
    JobRecord& NameSize(uint32_t bytes)
    {
        return Number(146, 2, bytes);
    }
    JobRecord& History(uint32_t word)
    {
        return Number(658, 4, word);
    }
    JobRecord& PublishMode(uint32_t value)
    {
        return Number(663, 1, value);
    }
    JobRecord& Identification(const std::u16string& text)
    {
        return Text(664, text);
    }
    JobRecord& ServerJobID(uint32_t value)
    {
        return Number(1174, 4, value);
    }
    JobRecord& RemainingTime(uint32_t value)
    {
        return Number(1178, 4, value);
    }

    const std::string& Bytes() const
    {
        return m_bytes;
    }

private:
    std::string m_bytes;
};

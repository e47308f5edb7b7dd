#include "ReportStream.h"

#include <QDataStream>
#include <QIODevice>

#include <cstring>
#include <type_traits>

namespace {

template <class T>
concept Record = requires(T& value) { T::fields(value); };

/// The overloads are members, so that each finds all others.
class Writer
{
public:
    explicit Writer(QByteArray& data) : m_stream(&data, QIODevice::WriteOnly) {}

    template <class T>
    void put(const std::optional<T>& value)
    {
        m_stream << value.has_value();
        if (value) {
            put(*value);
        }
    }
    template <class T, size_t size>
    void put(const std::array<T, size>& values)
    {
        for (const T& value : values) {
            put(value);
        }
    }
    template <class T>
    void put(const std::vector<T>& values)
    {
        m_stream << static_cast<quint32>(values.size());
        for (const T& value : values) {
            put(value);
        }
    }
    template <class T>
    void put(const T& value)
    {
        if constexpr (Record<T>) {
            std::apply([this](const auto&... field) { (this->put(field), ...); }, T::fields(value));
        } else if constexpr (std::is_enum_v<T>) {
            m_stream << static_cast<qint32>(value);
        } else {
            m_stream << value;
        }
    }

private:
    QDataStream m_stream;
};

class Reader
{
public:
    explicit Reader(const QByteArray& data) : m_stream(data) {}

    template <class T>
    void take(std::optional<T>& value)
    {
        bool present = false;
        m_stream >> present;
        value.reset();
        if (present) {
            take(value.emplace());
        }
    }
    template <class T, size_t size>
    void take(std::array<T, size>& values)
    {
        for (T& value : values) {
            take(value);
        }
    }
    template <class T>
    void take(std::vector<T>& values)
    {
        quint32 size = 0;
        m_stream >> size;
        values.clear();
        for (quint32 i = 0; i < size && m_stream.status() == QDataStream::Ok; ++i) {
            take(values.emplace_back());
        }
    }
    template <class T>
    void take(T& value)
    {
        if constexpr (Record<T>) {
            std::apply([this](auto&... field) { (this->take(field), ...); }, T::fields(value));
        } else if constexpr (std::is_enum_v<T>) {
            qint32 number = 0;
            m_stream >> number;
            value = static_cast<T>(number);
        } else {
            m_stream >> value;
        }
    }

private:
    QDataStream m_stream;
};

} // namespace

QByteArray frameOf(const PublisherReport& report)
{
    QByteArray body;
    Writer(body).put(report);
    const auto length = static_cast<quint32>(body.size());
    return QByteArray(reinterpret_cast<const char*>(&length), sizeof length) + body;
}

bool takeLastFrame(QByteArray& data, PublisherReport& report)
{
    bool found = false;
    quint32 length = 0;
    while (data.size() >= static_cast<int>(sizeof length)) {
        std::memcpy(&length, data.constData(), sizeof length);
        const qint64 end = static_cast<qint64>(sizeof length) + length;
        if (data.size() < end) {
            break;
        }
        Reader(data.mid(sizeof length, static_cast<int>(length))).take(report);
        found = true;
        data.remove(0, static_cast<int>(end));
    }
    return found;
}

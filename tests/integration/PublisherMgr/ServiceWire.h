// The control service's bytes, put together by offsets, and one call of the client that a test answers.
#pragma once

#include "InstallPaths.h"
#include "UnixListener.h"

#include <filesystem>
#include <future>
#include <optional>
#include <string>
#include <utility>

/// Little-endian.
inline std::string Number(unsigned long long value, size_t size)
{
    std::string bytes;
    for (size_t i = 0; i < size; ++i) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    }
    return bytes;
}

inline std::string Number8(unsigned long long value)
{
    return Number(value, 8);
}

inline std::string Number4(unsigned long long value)
{
    return Number(value, 4);
}

/// A text in a field of fixed size, the rest zero.
inline std::string Field(std::string text, size_t size)
{
    text.resize(size);
    return text;
}

/// A request of 408 bytes.
inline std::string Request(unsigned long long control, const std::string& id, const std::string& job = "",
                           unsigned long long subParam = 0)
{
    return Number8(control) + Field(id, 129) + Field(job, 256) + Field("", 7) + Number8(subParam);
}

inline std::string Header(unsigned long long id, unsigned long long result, unsigned long long length)
{
    return Number8(id) + Number8(result) + Number8(length);
}

/// A whole good answer.
inline std::string Answer(unsigned long long id, const std::string& payload = "")
{
    return Header(id, 0, payload.size()) + payload;
}

/// The control service, played by the test. It goes away before the client's call is waited for, so that a
/// call which the test did not answer ends.
template <class Result>
class ServiceCall
{
public:
    template <class Call>
    explicit ServiceCall(Call call)
    {
        std::filesystem::remove(SERVICE_SOCKET); // a service that was killed leaves its name
        m_listener.emplace(SERVICE_SOCKET);
        m_result = std::async(std::launch::async, std::move(call));
    }

    /// The connection of the next command, with its request in `request`.
    UnixPeer Accept(std::string& request)
    {
        UnixPeer peer = m_listener->Accept();
        request = peer.ReadExactly(408);
        return peer;
    }

    /// Answers the next command and keeps the connection until the client closes it. The request, or what
    /// came of it.
    std::string AnswerNext(const std::string& answer)
    {
        std::string request;
        UnixPeer peer = Accept(request);
        peer.Write(answer);
        peer.WaitForClose();
        return request;
    }

    /// What the call gave; waits for it.
    Result Get()
    {
        return m_result.get();
    }

private:
    std::future<Result> m_result; // its destructor waits for the call
    std::optional<UnixListener> m_listener;
};

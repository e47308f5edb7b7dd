// The messages of the control service, byte by byte, and one call of the client that a test answers.
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

/// A text in a field of fixed size, padded with zero bytes.
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

/// A control service that the test operates. The destructor closes it before it waits for the client's call,
/// so that a call without an answer ends.
template <class Result>
class ServiceCall
{
public:
    template <class Call>
    explicit ServiceCall(Call call)
    {
        std::filesystem::remove(SERVICE_SOCKET); // a killed service leaves its socket
        m_listener.emplace(SERVICE_SOCKET);
        m_result = std::async(std::launch::async, std::move(call));
    }

    /// Accepts the connection of the next command and reads its request into `request`.
    UnixPeer Accept(std::string& request)
    {
        UnixPeer peer = m_listener->Accept();
        request = peer.ReadExactly(408);
        return peer;
    }

    /// Answers the next command and keeps the connection until the client closes it. Returns the request, or
    /// the part of it that arrived.
    std::string AnswerNext(const std::string& answer)
    {
        std::string request;
        UnixPeer peer = Accept(request);
        peer.Write(answer);
        peer.WaitForClose();
        return request;
    }

    /// Waits for the call and returns its result.
    Result Get()
    {
        return m_result.get();
    }

private:
    std::future<Result> m_result; // its destructor waits for the call
    std::optional<UnixListener> m_listener;
};

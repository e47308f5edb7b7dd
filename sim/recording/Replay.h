// Replays the other side of a recording: sends the recorded answers again.
#pragma once

#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "Conversations.h"
#include "Recording.h"

namespace udsim {

/// The recorded answer to one request.
struct Answered
{
    std::string bytes;   ///< as far as recorded; empty: there was no answer
    bool whole = true;   ///< recorded completely
    bool closed = false; ///< the other side ended the connection afterwards
};

/// The answers of a recording by question. Equal questions get their answers in the order of the recording;
/// when these are used up, the last one is repeated.
class RecordedAnswers
{
public:
    explicit RecordedAnswers(const Recording& recording);

    struct Found
    {
        const Answered* answer = nullptr; ///< null: the question is not in the recording
        bool again = false;               ///< the last answer, repeated
    };
    Found next(const std::string& question);
    /// The number of recorded answers, and of those not yet used.
    size_t size() const;
    size_t left() const;

private:
    struct Queue
    {
        std::vector<Answered> answers;
        size_t used = 0;
    };

    std::map<std::string, Queue> m_queues;
};

/// Returns the question of a request in words, which is the key of its answers: "control 13 of \"R\"",
/// "GET /webapp/x". It covers the whole frame of a service request, and the method and target of a server
/// request. Empty if the bytes do not begin a request.
std::string questionOf(Recording::Of of, const std::string& request);

/// Returns the size of the first request in `bytes`, including its body; 0 if it is not known yet; nothing if
/// the request is invalid, its head is longer than 64 KiB, or its chunked body is longer than 4 MiB.
std::optional<uint64_t> sizeOfRequest(Recording::Of of, const std::string& bytes);

class Replay
{
public:
    /// `note` is called with a line for each request, on several threads at once.
    Replay(const Recording& recording, std::function<void(const std::string&)> note);

    /// Accepts clients; see Conversations::start.
    bool start(Descriptor listener, std::string& error);
    /// Closes all connections.
    void stop();
    /// Returns a line with the numbers of answered requests, unknown requests and unused answers.
    std::string summary() const;

private:
    void talk(int client);
    bool answerOne(int client, const std::string& question);

    const Recording::Of m_of;
    std::function<void(const std::string&)> m_note;
    mutable std::mutex m_mutex; ///< guards the members below, except the last one
    RecordedAnswers m_answers;
    size_t m_answered = 0;
    size_t m_unknown = 0;
    Conversations m_conversations; ///< the last member, because its threads use all others
};

} // namespace udsim

// The other side of a recording, played back: what was answered then is answered again.
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

/// What the other side did about one request.
struct Answered
{
    std::string bytes;   ///< its answer, as far as it was recorded; empty: there was none
    bool whole = true;   ///< all of it was recorded
    bool closed = false; ///< it ended the connection then
};

/// The answers of a recording by what they were asked. Equal questions get theirs in the order of the
/// recording; when they are used up, the last one again.
class RecordedAnswers
{
public:
    explicit RecordedAnswers(const Recording& recording);

    struct Found
    {
        const Answered* answer = nullptr; ///< null: this was never asked
        bool again = false;               ///< the last one, once more
    };
    Found next(const std::string& question);
    /// How many were recorded, and how many of these nobody has asked for.
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

/// What a request asks, as the key of its answers and in words: "control 13 of \"R\"", "GET /webapp/x".
/// Of the service the whole frame counts, of a server the method and the target. Empty when the bytes begin
/// no request.
std::string questionOf(Recording::Of of, const std::string& request);

/// How many bytes the first request in `bytes` has, its body included; 0: it is not whole yet; nothing: it is
/// none, or its head is longer than 64 KiB, or its body has chunks and more than 4 MiB.
std::optional<uint64_t> sizeOfRequest(Recording::Of of, const std::string& bytes);

class Replay
{
public:
    /// `note` gets a line for each request, on several threads at once.
    Replay(const Recording& recording, std::function<void(const std::string&)> note);

    /// Takes clients; see Conversations::start.
    bool start(Descriptor listener, std::string& error);
    /// Ends all connections.
    void stop();
    /// How it went: so many answered, so many not in the recording, so much not asked for.
    std::string summary() const;

private:
    void talk(int client);
    bool answerOne(int client, const std::string& question);

    const Recording::Of m_of;
    std::function<void(const std::string&)> m_note;
    mutable std::mutex m_mutex; ///< guards what follows
    RecordedAnswers m_answers;
    size_t m_answered = 0;
    size_t m_unknown = 0;
    Conversations m_conversations; ///< last: its threads use all of the above
};

} // namespace udsim

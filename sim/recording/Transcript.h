// Writes recordings, without passwords.
#pragma once

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

#include "Recording.h"

namespace udsim {

/// Returns the bytes of one direction with the values of "Authorization", "Proxy-Authorization", "Cookie" and
/// "Set-Cookie" lines replaced by the same number of "*". Lines may be split between calls.
class Blanker
{
public:
    std::string pass(std::string_view bytes);

private:
    char passOne(char byte);

    std::string m_name;      ///< of the current line, in lower case, cut to the length of the known names
    bool m_inName = true;    ///< no colon was read yet
    bool m_secret = false;   ///< the value of this line is secret
    bool m_lineEnded = true; ///< the next byte begins a line
};

/// Returns whether one of the requests in `ask` queries the upload password.
bool asksForTheWord(std::string_view ask);
/// Returns the answer with the upload password replaced by the same number of "*". This affects every word of
/// the body that is long enough. Bytes that do not begin an answer are the rest of a body.
std::string withoutTheWord(std::string answer);

/// The file of a recording. All members except open() may be called from any thread.
class Recorder
{
public:
    static constexpr uint64_t LARGEST_RECORDING = 256U << 20; ///< bytes of the file
    static constexpr size_t MOST_OF_ASK = 64U << 10;          ///< bytes kept of one request
    static constexpr size_t MOST_OF_ANSWER = 16U << 20;       ///< bytes kept of one answer

    /// `note` is called once when nothing more can be written. `largest` is the maximum size of the file in
    /// bytes.
    explicit Recorder(std::function<void(const std::string&)> note, uint64_t largest = LARGEST_RECORDING);

    /// Creates the file, which must not exist, readable only for its owner. Returns false, with the reason in
    /// `error`, on failure.
    bool open(const std::string& path, Recording::Of of, std::string& error);
    /// Writes the line of a message, preceded by the comment unless it is empty.
    void write(const Message& message, const std::string& comment);
    /// Writes a comment with the time and the connection.
    void remark(unsigned connection, const std::string& text);
    Recording::Of of() const
    {
        return m_of;
    }
    /// Returns whether everything was written.
    bool isComplete() const;
    uint64_t now() const; ///< milliseconds since the beginning

private:
    struct Close
    {
        void operator()(std::FILE* file) const
        {
            std::fclose(file);
        }
    };

    void put(const std::string& lines);

    std::function<void(const std::string&)> m_note;
    const uint64_t m_largest;
    Recording::Of m_of = Recording::Of::service;
    std::chrono::steady_clock::time_point m_begun;
    mutable std::mutex m_mutex; ///< guards the members below
    std::unique_ptr<std::FILE, Close> m_file;
    uint64_t m_size = 0;
    bool m_full = false;
};

/// One connection's part of a recording. Consecutive bytes from one side are one message.
class Transcript
{
public:
    Transcript(Recorder& recorder, unsigned connection);
    Transcript(const Transcript&) = delete;
    Transcript& operator=(const Transcript&) = delete;
    ~Transcript(); ///< writes the last message

    void add(Message::Kind kind, std::string_view bytes);
    /// The other side ended the connection.
    void closed();

private:
    void flush();

    Recorder& m_recorder;
    Blanker m_askBlanker;
    Blanker m_answerBlanker;
    std::string m_askEnd;     ///< the end of the requests so far, where the servlet's name may be cut
    bool m_wordAsked = false; ///< any later answer may contain the password: requests may be pipelined
    Message m_message;
};

} // namespace udsim

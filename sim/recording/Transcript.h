// What a recorder writes down, and what it keeps to itself.
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

/// Passes bytes of one direction on with the values of "Authorization", "Proxy-Authorization", "Cookie" and
/// "Set-Cookie" lines replaced by as many "*", however they are cut into pieces.
class Blanker
{
public:
    std::string pass(std::string_view bytes);

private:
    char passOne(char byte);

    std::string m_name;      ///< of the line at hand, in small letters, as far as it may matter
    bool m_inName = true;    ///< no colon has come yet
    bool m_secret = false;   ///< this line's value is one
    bool m_lineEnded = true; ///< the next byte begins a line
};

/// The request, or one of several in a row, is for the word that opens uploads.
bool asksForTheWord(std::string_view ask);
/// An answer in which that word is replaced by as many "*": every word of its body that is long enough to be
/// it. What does not begin an answer is the rest of a body.
std::string withoutTheWord(std::string answer);

/// The file of a recording. Any thread.
class Recorder
{
public:
    static constexpr uint64_t LARGEST_RECORDING = 256U << 20; ///< bytes of the file
    static constexpr size_t MOST_OF_ASK = 64U << 10;          ///< kept of one
    static constexpr size_t MOST_OF_ANSWER = 16U << 20;

    /// `note` is told, once, when nothing more can be written; `largest` is how many bytes the file may have.
    explicit Recorder(std::function<void(const std::string&)> note, uint64_t largest = LARGEST_RECORDING);

    /// Makes the file, which must not be there, readable for its owner alone. False, with the reason, when it
    /// cannot be made.
    bool open(const std::string& path, Recording::Of of, std::string& error);
    /// Its line, and ahead of it a comment for the reader, unless it is empty.
    void write(const Message& message, const std::string& comment);
    /// A comment with the time and the connection.
    void remark(unsigned connection, const std::string& text);
    Recording::Of of() const
    {
        return m_of;
    }
    /// Nothing had to be left out.
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
    mutable std::mutex m_mutex; ///< guards what follows
    std::unique_ptr<std::FILE, Close> m_file;
    uint64_t m_size = 0;
    bool m_full = false;
};

/// One connection's part of it: what comes from one side without a word of the other is one message.
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
    std::string m_askEnd;     ///< of all that was asked, as long as a name may be cut
    bool m_wordAsked = false; ///< and may come in any answer from here on: requests may run ahead of them
    Message m_message;
};

} // namespace udsim

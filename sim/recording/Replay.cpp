#include "Replay.h"

#include <algorithm>
#include <utility>

#include <strings.h>

#include "HttpText.h"
#include "JobFile.h"
#include "Protocol.h"
#include "Sockets.h"
#include "Text.h"
#include "Wire.h"

namespace udsim {

namespace {

constexpr size_t LONGEST_HEAD = 64U << 10;
constexpr size_t LONGEST_CHUNKED = 4U << 20;   ///< a chunked body is kept until its end is found
constexpr char LAST_CHUNK[] = "\r\n0\r\n\r\n"; ///< including the preceding line end
constexpr char NOT_RECORDED[] = "HTTP/1.1 404 Not Recorded\r\nContent-Length: 0\r\n\r\n";

/// Returns the value of a header; empty if the head does not contain it.
std::string headerOf(const std::string& head, std::string_view name)
{
    for (size_t at = head.find(LINE_END); at != std::string::npos; at = head.find(LINE_END, at)) {
        at += sizeof LINE_END - 1;
        if (head.size() - at > name.size() && ::strncasecmp(&head[at], name.data(), name.size()) == 0) {
            const size_t from = at + name.size();
            return trim(head.substr(from, head.find(LINE_END, from) - from));
        }
    }
    return {};
}

/// Returns "GET /webapp/x" of a request line; empty if it is invalid.
std::string methodAndTarget(const std::string& request)
{
    const std::string line = request.substr(0, request.find(LINE_END));
    const size_t first = line.find(' ');
    const size_t last = line.rfind(" HTTP/");
    const bool isWord = first != std::string::npos && first > 0 &&
                        std::all_of(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(first),
                                    [](char c) { return c >= 'A' && c <= 'Z'; });
    return isWord && last != std::string::npos && last > first ? line.substr(0, last) : "";
}

} // namespace

std::string questionOf(Recording::Of of, const std::string& request)
{
    if (of == Recording::Of::server) {
        return methodAndTarget(request);
    }
    return request.size() < REQUEST_SIZE
               ? ""
               : inWords(decodeRequest(std::string_view(request).substr(0, REQUEST_SIZE)));
}

std::optional<uint64_t> sizeOfRequest(Recording::Of of, const std::string& bytes)
{
    if (of == Recording::Of::service) {
        return bytes.size() < REQUEST_SIZE ? 0 : REQUEST_SIZE;
    }
    const size_t end = bytes.find(HEAD_END);
    if (end == std::string::npos) {
        return bytes.size() > LONGEST_HEAD ? std::nullopt : std::optional<uint64_t>(0);
    }
    const std::string head = bytes.substr(0, end + sizeof LINE_END - 1);
    const size_t body = end + sizeof HEAD_END - 1;
    if (methodAndTarget(head).empty()) {
        return std::nullopt;
    }
    if (headerOf(head, "Transfer-Encoding:").find("chunked") != std::string::npos) {
        const size_t last = bytes.find(LAST_CHUNK, body - (sizeof LINE_END - 1));
        if (last != std::string::npos) {
            return last + sizeof LAST_CHUNK - 1;
        }
        return bytes.size() - body > LONGEST_CHUNKED ? std::nullopt : std::optional<uint64_t>(0);
    }
    const std::string length = headerOf(head, "Content-Length:");
    const auto number = length.empty() ? std::optional<uint64_t>(0) : parseNumber(length, UINT32_MAX);
    return number ? std::optional(body + *number) : std::nullopt;
}

RecordedAnswers::RecordedAnswers(const Recording& recording)
{
    std::vector<std::pair<std::string, Answered>> exchanges;
    std::map<unsigned, size_t> last; // of each connection
    for (const Message& message : recording.messages) {
        const std::string question =
            message.kind == Message::Kind::ask ? questionOf(recording.of, message.bytes) : "";
        if (!question.empty()) {
            last[message.connection] = exchanges.size();
            exchanges.emplace_back(question, Answered{});
        }
        // Bytes that do not begin a request are the rest of the previous request's body.
        const auto place = last.find(message.connection);
        if (place == last.end() || message.kind == Message::Kind::ask) {
            continue;
        }
        Answered& answer = exchanges[place->second].second;
        answer.bytes += message.bytes;
        answer.whole = answer.whole && message.isWhole();
        answer.closed = answer.closed || message.kind == Message::Kind::closed;
    }
    for (auto& [question, answer] : exchanges) {
        m_queues[question].answers.push_back(std::move(answer));
    }
}

RecordedAnswers::Found RecordedAnswers::next(const std::string& question)
{
    const auto found = m_queues.find(question);
    if (found == m_queues.end()) {
        return {};
    }
    Queue& queue = found->second;
    const bool again = queue.used == queue.answers.size();
    queue.used += again ? 0 : 1;
    return {&queue.answers[queue.used - 1], again};
}

size_t RecordedAnswers::size() const
{
    size_t count = 0;
    for (const auto& [question, queue] : m_queues) {
        count += queue.answers.size();
    }
    return count;
}

size_t RecordedAnswers::left() const
{
    size_t count = 0;
    for (const auto& [question, queue] : m_queues) {
        count += queue.answers.size() - queue.used;
    }
    return count;
}

Replay::Replay(const Recording& recording, std::function<void(const std::string&)> note)
    : m_of(recording.of), m_note(std::move(note)), m_answers(recording),
      m_conversations([this](int client, unsigned) { talk(client); })
{
}

bool Replay::start(Descriptor listener, std::string& error)
{
    return m_conversations.start(std::move(listener), error);
}

void Replay::stop()
{
    m_conversations.stop();
}

std::string Replay::summary() const
{
    const std::lock_guard lock(m_mutex);
    return std::to_string(m_answered) + " requests answered, " + std::to_string(m_unknown) +
           " not in the recording; of its " + std::to_string(m_answers.size()) + " answers, " +
           std::to_string(m_answers.left()) + " were not used";
}

void Replay::talk(int client)
{
    std::string bytes;
    uint64_t size = 0;
    std::string question;
    while (true) {
        const auto whole = sizeOfRequest(m_of, bytes);
        if (!whole) {
            m_note("received bytes that are not a request");
            return;
        }
        // The bytes of a large body are discarded as they arrive.
        size = *whole;
        if (size > 0) {
            question = questionOf(m_of, bytes);
            while (bytes.size() < size) {
                size -= bytes.size();
                bytes.clear();
                if (!receiveMore(client, -1, bytes)) {
                    return;
                }
            }
            bytes.erase(0, size);
            if (!answerOne(client, question)) {
                return;
            }
        } else if (!receiveMore(client, -1, bytes)) {
            return;
        }
    }
}

/// Returns false if the connection ends after the answer.
bool Replay::answerOne(int client, const std::string& question)
{
    Answered answer;
    std::string outcome;
    bool known = false;
    {
        const std::lock_guard lock(m_mutex);
        const RecordedAnswers::Found found = m_answers.next(question);
        known = found.answer != nullptr;
        (known ? m_answered : m_unknown) += 1;
        if (known) {
            answer = *found.answer;
        }
        outcome = !known                 ? "not in the recording"
                  : answer.bytes.empty() ? "no answer was recorded"
                  : !answer.whole        ? "only the beginning of the answer was recorded"
                  : found.again          ? "last answer repeated"
                                         : "answered";
    }
    m_note(printable(question) + ": " + outcome);
    if (!known) {
        return m_of == Recording::Of::server && sendAll(client, NOT_RECORDED);
    }
    if (answer.bytes.empty() && !answer.closed) { // no answer, and the connection stayed open
        std::string ignored;
        while (receiveMore(client, -1, ignored)) {
            ignored.clear();
        }
        return false;
    }
    return sendAll(client, answer.bytes) && answer.whole && !answer.closed;
}

} // namespace udsim

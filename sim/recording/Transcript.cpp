#include "Transcript.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <ctime>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "HttpText.h"
#include "JobFile.h"
#include "Protocol.h"
#include "ServletNumbers.h"
#include "Wire.h"

namespace udsim {

namespace {

constexpr std::array<const char*, 4> SECRET_HEADERS{"authorization", "proxy-authorization", "cookie",
                                                    "set-cookie"};
constexpr size_t LONGEST_NAME_KEPT = 24; ///< longer than each of them
constexpr char WORD_GETTER[] = "/UploadInfoGetter";
constexpr char ANSWER[] = "HTTP";
constexpr char INTERIM[] = "HTTP/1.1 1";
constexpr size_t SHORTEST_SECRET = 4;
constexpr mode_t RECORDING_RIGHTS = 0600;

bool isGraphic(char c)
{
    return c > ' ' && c < 0x7F;
}

/// Blanks the words of the text from this position on.
void blankWords(std::string& text, size_t from)
{
    for (size_t at = from; at < text.size();) {
        const auto start = text.begin() + static_cast<std::ptrdiff_t>(at);
        const auto length = static_cast<size_t>(std::find_if_not(start, text.end(), isGraphic) - start);
        if (length >= SHORTEST_SECRET) {
            text.replace(at, length, length, '*');
        }
        at += length + 1;
    }
}

std::string utc()
{
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    std::array<char, 32> text{};
    ::gmtime_r(&now, &parts);
    std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &parts);
    return text.data();
}

/// Describes a frame of the service for the comment in the recording.
std::string meaningOf(const Message& message)
{
    if (message.kind == Message::Kind::ask && message.bytes.size() == REQUEST_SIZE) {
        return "asks " + printable(inWords(decodeRequest(message.bytes)));
    }
    if (message.kind == Message::Kind::answer && message.bytes.size() >= HEADER_SIZE) {
        return "result " + std::to_string(readU64(message.bytes, RESULT_AT)) + ", " +
               std::to_string(message.size - HEADER_SIZE) + " bytes of payload";
    }
    return {};
}

} // namespace

std::string Blanker::pass(std::string_view bytes)
{
    std::string passed(bytes.size(), '\0');
    std::transform(bytes.begin(), bytes.end(), passed.begin(), [this](char byte) { return passOne(byte); });
    return passed;
}

char Blanker::passOne(char byte)
{
    if (byte == '\n') {
        m_lineEnded = true;
        return byte;
    }
    if (m_lineEnded) {
        m_lineEnded = false;
        const bool goesOn = m_secret && (byte == ' ' || byte == '\t'); // a value may take several lines
        if (!goesOn) {
            m_name.clear();
            m_inName = true;
            m_secret = false;
        }
    }
    if (m_inName) {
        if (byte == ':') {
            m_inName = false;
            const std::string name = m_name.substr(0, m_name.find_last_not_of(" \t") + 1);
            m_secret = std::find(SECRET_HEADERS.begin(), SECRET_HEADERS.end(), name) != SECRET_HEADERS.end();
        } else if (m_name.size() < LONGEST_NAME_KEPT) {
            m_name += byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
        }
        return byte;
    }
    return m_secret && byte != '\r' ? '*' : byte;
}

bool asksForTheWord(std::string_view ask)
{
    return ask.find(WORD_GETTER) != std::string_view::npos;
}

std::string withoutTheWord(std::string answer)
{
    if (!answer.starts_with(ANSWER)) {
        blankWords(answer, 0);
        return answer;
    }
    size_t start = 0;
    size_t head = answer.find(HEAD_END);
    while (head != std::string::npos && answer.compare(start, sizeof INTERIM - 1, INTERIM) == 0) {
        start = head + sizeof HEAD_END - 1;
        head = answer.find(HEAD_END, start);
    }
    if (head == std::string::npos) {
        return answer;
    }
    // An item of the reply consists of a status, a length and the word. In a chunked reply, a size line
    // precedes it.
    size_t body = head + sizeof HEAD_END - 1;
    if (const size_t chunked = answer.find("chunked", start); chunked < head) {
        body = std::min(answer.find(LINE_END, body), answer.size()) + sizeof LINE_END - 1;
    }
    blankWords(answer, body + ITEM_HEAD);
    return answer;
}

Recorder::Recorder(std::function<void(const std::string&)> note, uint64_t largest)
    : m_note(std::move(note)), m_largest(largest)
{
}

bool Recorder::isComplete() const
{
    const std::lock_guard lock(m_mutex);
    return !m_full;
}

bool Recorder::open(const std::string& path, Recording::Of of, std::string& error)
{
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, RECORDING_RIGHTS);
    m_file.reset(fd < 0 ? nullptr : ::fdopen(fd, "we"));
    if (m_file == nullptr) {
        error = path + ": " + std::strerror(errno);
        return false;
    }
    m_of = of;
    m_begun = std::chrono::steady_clock::now();
    put(Recording::firstLine(of) + "\n# begun " + utc() + "\n");
    return true;
}

uint64_t Recorder::now() const
{
    const auto passed = std::chrono::steady_clock::now() - m_begun;
    return static_cast<uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(passed).count());
}

void Recorder::write(const Message& message, const std::string& comment)
{
    put((comment.empty() ? "" : "# " + comment + "\n") + message.line() + "\n");
}

void Recorder::remark(unsigned connection, const std::string& text)
{
    Message moment{now(), connection, Message::Kind::closed, 0, {}};
    const std::string line = moment.line();
    put("# " + line.substr(0, line.rfind(' ')) + " " + printable(text) + "\n");
}

void Recorder::put(const std::string& lines)
{
    std::string trouble;
    {
        const std::lock_guard lock(m_mutex);
        if (m_full || m_file == nullptr) {
            return;
        }
        if (m_size + lines.size() > m_largest) {
            trouble = "the recording is full; later messages are not recorded";
        } else if (std::fwrite(lines.data(), 1, lines.size(), m_file.get()) != lines.size() ||
                   std::fflush(m_file.get()) != 0) {
            trouble = std::string("the recording cannot be written: ") + std::strerror(errno);
        }
        m_size += lines.size();
        m_full = !trouble.empty();
    }
    if (!trouble.empty()) {
        m_note(trouble);
    }
}

Transcript::Transcript(Recorder& recorder, unsigned connection) : m_recorder(recorder)
{
    m_message.connection = connection;
}

Transcript::~Transcript()
{
    flush();
}

void Transcript::add(Message::Kind kind, std::string_view bytes)
{
    const bool isAsk = kind == Message::Kind::ask;
    if (m_message.size > 0 && m_message.kind != kind) {
        flush();
    }
    if (m_message.size == 0) {
        m_message.kind = kind;
        m_message.time = m_recorder.now();
    }
    m_message.size += bytes.size();
    if (isAsk && !m_wordAsked) {
        m_askEnd += bytes;
        m_wordAsked = asksForTheWord(m_askEnd);
        m_askEnd.erase(0, m_askEnd.size() - std::min(m_askEnd.size(), sizeof WORD_GETTER));
    }
    Blanker& blanker = isAsk ? m_askBlanker : m_answerBlanker;
    const std::string kept =
        m_recorder.of() == Recording::Of::server ? blanker.pass(bytes) : std::string(bytes);
    const size_t most = isAsk ? Recorder::MOST_OF_ASK : Recorder::MOST_OF_ANSWER;
    m_message.bytes += kept.substr(0, most - std::min(most, m_message.bytes.size()));
}

void Transcript::closed()
{
    flush();
    m_recorder.write({m_recorder.now(), m_message.connection, Message::Kind::closed, 0, {}}, {});
}

void Transcript::flush()
{
    if (m_message.size == 0) {
        return;
    }
    std::string comment;
    if (m_recorder.of() == Recording::Of::service) {
        comment = meaningOf(m_message);
    } else if (m_message.kind == Message::Kind::answer && m_wordAsked) {
        m_message.bytes = withoutTheWord(std::move(m_message.bytes));
    }
    m_recorder.write(m_message, comment);
    m_message.bytes.clear();
    m_message.size = 0;
}

} // namespace udsim

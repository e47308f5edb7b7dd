// Uses any bytes as a recording: what is accepted survives writing and reading, and each recorded question is
// answered from it. The bytes themselves survive quoting.
#include "Recording.h"
#include "Replay.h"

#include <cassert>

using udsim::Message;
using udsim::Recording;

namespace {

constexpr size_t MOST = 1U << 20;

/// A run of zero bytes whose count has more digits than a fuzzer needs. Such a text takes long to unpack, and
/// the limit of unpacked bytes has a test of its own.
bool HasLongRun(const std::string& text)
{
    for (size_t at = text.find("\\0{"); at != std::string::npos; at = text.find("\\0{", at + 1)) {
        if (text.find('}', at) > at + 8) {
            return true;
        }
    }
    return false;
}

void CheckQuoting(const std::string& text)
{
    assert(udsim::unquotedBytes(udsim::quotedBytes(text), MOST) == text);
    const auto bytes = udsim::unquotedBytes(text, MOST);
    assert(!bytes || udsim::unquotedBytes(udsim::quotedBytes(*bytes), MOST) == bytes);
}

void CheckWriting(const Recording& recording)
{
    std::string text = Recording::firstLine(recording.of) + "\n";
    for (const Message& message : recording.messages) {
        text += message.line() + "\n";
    }
    std::string error;
    const auto again = Recording::parse(text, error);
    assert(again && again->of == recording.of && again->messages.size() == recording.messages.size());
    for (size_t i = 0; i < recording.messages.size(); ++i) {
        const Message& one = recording.messages[i];
        const Message& other = again->messages[i];
        assert(one.time == other.time && one.connection == other.connection && one.kind == other.kind);
        assert(one.size == other.size && one.bytes == other.bytes && one.isWhole() == other.isWhole());
    }
}

void CheckAnswers(const Recording& recording)
{
    udsim::RecordedAnswers answers(recording);
    const size_t all = answers.size();
    assert(answers.left() == all && all <= recording.messages.size());
    for (const Message& message : recording.messages) {
        const auto size = udsim::sizeOfRequest(recording.of, message.bytes);
        if (message.kind != Message::Kind::ask) {
            continue;
        }
        const std::string question = udsim::questionOf(recording.of, message.bytes);
        assert(question.empty() || !size || *size == 0 || *size >= question.size());
        if (!question.empty()) {
            const size_t before = answers.left();
            const udsim::RecordedAnswers::Found found = answers.next(question);
            assert(found.answer != nullptr && !found.again && answers.left() + 1 == before);
        }
    }
    assert(answers.left() == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (HasLongRun(text)) {
        return 0;
    }
    CheckQuoting(text);
    std::string error;
    const auto recording = Recording::parse(text, error);
    assert(recording.has_value() == error.empty());
    if (recording) {
        CheckWriting(*recording);
        CheckAnswers(*recording);
    }
    return 0;
}

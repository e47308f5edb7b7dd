// Recording files: their format, and invalid files.
#include <fstream>

#include <gtest/gtest.h>

#include "Recording.h"

using udsim::Message;
using udsim::Recording;
using Kind = udsim::Message::Kind;

namespace {

constexpr size_t MOST = 1 << 20;

std::string mistakeInRecording(const std::string& text)
{
    std::string error;
    const auto recording = Recording::parse(text, error);
    return recording ? "taken" : error;
}

constexpr char START[] = "udsim-recording 1 service\n";

} // namespace

TEST(SimRecording, BytesAsText)
{
    const std::pair<std::string, std::string> table[] = {
        {"", R"("")"},
        {"GET / HTTP/1.1\r\n", R"("GET / HTTP/1.1\r\n")"},
        {"say \"a\\b\"\t", R"("say \"a\\b\"\t")"},
        {std::string("\0", 1), R"("\x00")"},
        {std::string("\0\0\0", 3), R"("\x00\x00\x00")"},
        {std::string("\x0d\0\0\0\0\0\0\0", 8), R"("\r\0{7}")"},
        {"\x7F\x80\xFF", R"("\x7f\x80\xff")"},
        {std::string("\0\0\0\0", 4) + "5", R"("\0{4}5")"},
    };
    for (const auto& [bytes, text] : table) {
        EXPECT_EQ(udsim::quotedBytes(bytes), text);
        EXPECT_EQ(udsim::unquotedBytes(text, MOST), bytes) << text;
    }
}

TEST(SimRecording, EveryByteSurvivesQuoting)
{
    std::string bytes;
    for (int turn = 0; turn < 3; ++turn) {
        for (int value = 0; value < 256; ++value) {
            bytes += static_cast<char>(value);
            bytes.append(static_cast<size_t>(turn * value % 7), '\0');
        }
    }
    EXPECT_EQ(udsim::unquotedBytes(udsim::quotedBytes(bytes), MOST), bytes);
}

TEST(SimRecording, InvalidTextsAreRefused)
{
    for (const char* const text : {"", "\"", "a", "\"a", "a\"", R"("a"b")", R"("\")", R"("\q")", R"("\x")",
                                   R"("\x1")", R"("\xg1")", R"("\0")", R"("\0{")", R"("\0{}")", R"("\0{x}")",
                                   R"("\0{-1}")", R"("\0{5")", "\"\x01\"", "\"\xC3\xA9\""}) {
        EXPECT_FALSE(udsim::unquotedBytes(text, MOST)) << text;
    }
    EXPECT_FALSE(udsim::unquotedBytes(R"("\0{1048577}")", MOST)) << "above the limit";
    EXPECT_FALSE(udsim::unquotedBytes(R"("\0{1048576}\0{4}")", MOST));
    EXPECT_FALSE(udsim::unquotedBytes(R"("\0{18446744073709551615}\0{2}")", MOST));
    EXPECT_FALSE(udsim::unquotedBytes(R"("abc")", 2));
    EXPECT_TRUE(udsim::unquotedBytes(R"("abc")", 3));
}

TEST(SimRecording, Lines)
{
    EXPECT_EQ((Message{12, 1, Kind::ask, 3, "a\nb"}).line(), R"(0.012 1 ask 3 "a\nb")");
    EXPECT_EQ((Message{61'005, 77, Kind::answer, 5'000'000'000, "a"}).line(),
              R"(61.005 77 answer 5000000000 "a")");
    EXPECT_EQ((Message{1000, 2, Kind::closed, 0, {}}).line(), "1.000 2 closed");
    EXPECT_EQ(Recording::firstLine(Recording::Of::service), "udsim-recording 1 service");
    EXPECT_EQ(Recording::firstLine(Recording::Of::server), "udsim-recording 1 server");
}

TEST(SimRecording, ASmallFileCannotFillTheMemory)
{
    const std::string line = "0.000 1 answer 67108864 \"\\0{67108864}\"\n"; // 64 MiB
    std::string text = START;
    for (int i = 0; i < 4; ++i) {
        text += line;
    }
    std::string error;
    EXPECT_TRUE(Recording::parse(text, error)) << error;
    EXPECT_EQ(mistakeInRecording(text + "0.000 1 answer 1 \"x\"\n"),
              "line 6: the messages have more than 268435456 bytes");
}

TEST(SimRecording, AFile)
{
    std::ofstream("/tmp/a.udrec") << "udsim-recording 1 server\n"
                                     "# begun 2026-11-21T19:46:43Z\n"
                                     "\n"
                                     "0.012 1 ask 408 \"\\x0d\\0{7}\"\n"
                                     "1.500 4294967295 answer 2 \"ok\"\n"
                                     "2.000 1 closed\n";
    std::string error;
    const auto recording = Recording::load("/tmp/a.udrec", error);
    ASSERT_TRUE(recording) << error;
    EXPECT_EQ(recording->of, Recording::Of::server);
    EXPECT_EQ(recording->remark, "");
    ASSERT_EQ(recording->messages.size(), 3U);
    EXPECT_EQ(recording->messages[0].time, 12U);
    EXPECT_EQ(recording->messages[0].connection, 1U);
    EXPECT_EQ(recording->messages[0].kind, Kind::ask);
    EXPECT_EQ(recording->messages[0].size, 408U);
    EXPECT_EQ(recording->messages[0].bytes, std::string("\r\0\0\0\0\0\0\0", 8));
    EXPECT_FALSE(recording->messages[0].isWhole());
    EXPECT_EQ(recording->messages[1].time, 1500U);
    EXPECT_EQ(recording->messages[1].connection, 4294967295U);
    EXPECT_EQ(recording->messages[1].kind, Kind::answer);
    EXPECT_TRUE(recording->messages[1].isWhole());
    EXPECT_EQ(recording->messages[2].kind, Kind::closed);
}

TEST(SimRecording, Mistakes)
{
    const std::string start = START;
    const std::string none = "line 1: not a udsim recording, or a recording of another version";
    const std::string noBytes = "line 2: the bytes of the message are malformed";
    const std::string noMessage = "line 2: neither a comment nor a message with time and connection";
    const std::pair<std::string, std::string> table[] = {
        {"", none},
        {"\n", none},
        {"[publisher A]\nmodel = RT-30\n", none},
        {"udsim-recording 2 service\n", none},
        {"udsim-recording 1 kitchen\n", none},
        {"udsim-recording 1 service", none}, // truncated
        {std::string(1000, '\0') + "\n", none},
        {start + "hello\n", noMessage},
        {start + "1 1 ask 1 \"a\"\n", noMessage},
        {start + "1.5 1 ask 1 \"a\"\n", noMessage},
        {start + "0x1.000 1 ask 1 \"a\"\n", noMessage},
        {start + "-1.000 1 ask 1 \"a\"\n", noMessage},
        {start + "1.000 x ask 1 \"a\"\n", noMessage},
        {start + "1.000 4294967296 ask 1 \"a\"\n", noMessage},
        {start + "1.000 1 say 1 \"a\"\n", "line 2: \"say\" is not ask, answer or closed"},
        {start + "1.000 1 ask\n", "line 2: the message has no size"},
        {start + "1.000 1 ask x \"a\"\n", "line 2: the message has no size"},
        {start + "1.000 1 ask 1\n", noBytes},
        {start + "1.000 1 ask 1 \"a\n", noBytes},
        {start + "1.000 1 ask 1 \"a\" b\n", noBytes},
        {start + "1.000 1 ask 1 \"ab\"\n", "line 2: the message has more bytes than its size"},
        {start + "1.000 1 ask 99999999999 \"\\0{99999999999}\"\n", noBytes},
        {start + "1.000 1 closed 1\n", "line 2: unexpected text after \"closed\""},
        {start + "# fine\n\n0.000 1 closed\nhello\n",
         "line 5: neither a comment nor a message with time and connection"},
    };
    for (const auto& [text, expected] : table) {
        EXPECT_EQ(mistakeInRecording(text), expected) << text;
    }
}

TEST(SimRecording, ATruncatedFileIsReadUpToTheCut)
{
    const std::string whole = std::string(START) + "0.001 1 ask 3 \"abc\"\n0.002 1 answer 3 \"def\"\n";
    const size_t second = whole.find("0.002");
    for (size_t length = second; length < whole.size(); ++length) {
        std::string error;
        const auto recording = Recording::parse(whole.substr(0, length), error);
        ASSERT_TRUE(recording) << length << ": " << error;
        EXPECT_EQ(recording->messages.size(), 1U);
        EXPECT_EQ(recording->remark,
                  length == second ? "" : "line 3: the recording is cut off here; this line is ignored");
    }
}

TEST(SimRecording, ACorruptFileIsRefusedOrRead)
{
    const std::string whole =
        std::string(START) + "0.001 1 ask 9 \"a\\0{7}\\x01\"\n0.002 1 answer 3 \"def\"\n0.003 1 closed\n";
    size_t refused = 0;
    for (size_t at = 0; at < whole.size(); ++at) {
        for (int value = 0; value < 256; ++value) {
            std::string garbled = whole;
            garbled[at] = static_cast<char>(value);
            std::string error;
            const auto recording = Recording::parse(garbled, error);
            EXPECT_NE(recording.has_value(), !error.empty());
            refused += recording ? 0 : 1;
            for (const Message& message : recording ? recording->messages : std::vector<Message>()) {
                EXPECT_LE(message.bytes.size(), message.size);
            }
        }
    }
    EXPECT_GT(refused, whole.size() * 100);
}

TEST(SimRecording, Files)
{
    std::string error;
    EXPECT_FALSE(Recording::load("/tmp/none.udrec", error));
    EXPECT_EQ(error, "/tmp/none.udrec: No such file or directory");
    EXPECT_FALSE(Recording::load("/tmp", error));
    EXPECT_EQ(error, "/tmp: Is a directory");
    std::ofstream("/tmp/bad.udrec") << START << "hello\n";
    EXPECT_FALSE(Recording::load("/tmp/bad.udrec", error));
    EXPECT_EQ(error, "/tmp/bad.udrec:2: neither a comment nor a message with time and connection");
}

// The recording that a recorder writes, and the masking of secrets.
#include <filesystem>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "RawClient.h"
#include "TextFiles.h"
#include "Transcript.h"

using udsim::Recording;
using Kind = udsim::Message::Kind;

namespace {

constexpr char FILE_NAME[] = "/tmp/a.udrec";

/// The messages that `write` records.
template <class Write>
std::vector<udsim::Message> recorded(Recording::Of of, Write&& write)
{
    std::filesystem::remove(FILE_NAME);
    udsim::Recorder recorder([](const std::string& note) { ADD_FAILURE() << note; });
    std::string error;
    EXPECT_TRUE(recorder.open(FILE_NAME, of, error)) << error;
    {
        udsim::Transcript transcript(recorder, 1);
        write(transcript);
    }
    const auto recording = Recording::load(FILE_NAME, error);
    EXPECT_TRUE(recording) << error;
    return recording ? recording->messages : std::vector<udsim::Message>();
}

} // namespace

TEST(SimBlanker, Headers)
{
    const std::pair<std::string, std::string> table[] = {
        {"GET / HTTP/1.1\r\nAuthorization:Basic abc=\r\nHost:x\r\n\r\n",
         "GET / HTTP/1.1\r\nAuthorization:**********\r\nHost:x\r\n\r\n"},
        {"AUTHORIZATION : a b\r\n", "AUTHORIZATION :****\r\n"},
        {"proxy-authorization: x\n", "proxy-authorization:**\n"},
        {"Cookie: s=1; t=2\r\n", "Cookie:*********\r\n"},
        {"HTTP/1.1 200 OK\r\nset-cookie: id=1\r\nA: b\r\n",
         "HTTP/1.1 200 OK\r\nset-cookie:*****\r\nA: b\r\n"},
        {"Authorization: a\r\n b\r\n\tc\r\nHost: d\r\n", "Authorization:**\r\n**\r\n**\r\nHost: d\r\n"},
        {"X-Authorization: a\r\n", "X-Authorization: a\r\n"},
        {"Authorizations: a\r\n", "Authorizations: a\r\n"},
        {"Host: Authorization: a\r\n", "Host: Authorization: a\r\n"},
        // Another request may follow a body that was not answered.
        {"POST / HTTP/1.1\r\n\r\nbody\r\nAuthorization: a\r\n",
         "POST / HTTP/1.1\r\n\r\nbody\r\nAuthorization:**\r\n"},
    };
    for (const auto& [text, expected] : table) {
        EXPECT_EQ(udsim::Blanker().pass(text), expected);
        for (size_t cut = 0; cut <= text.size(); ++cut) { // split in two at every position
            udsim::Blanker blanker;
            const std::string first = blanker.pass(text.substr(0, cut));
            EXPECT_EQ(first + blanker.pass(text.substr(cut)), expected) << cut;
        }
    }
}

TEST(SimBlanker, UploadPasswordsAreMasked)
{
    const std::string ask =
        "GET /webapp2/UploadInfoGetter?serverjobid=00000003 HTTP/1.1\r\nHost:localhost\r\n\r\n";
    const std::string head = "HTTP/1.1 200 OK\r\nContent-Length: 36\r\n\r\n";
    const std::string item = std::string("\0\0!", 3);
    const std::string word = "0123456789abcdef0123456789abcdef0";
    const std::string stars(33, '*');
    EXPECT_EQ(udsim::withoutTheWord(head + item + word), head + item + stars);
    const std::string chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n24\r\n";
    EXPECT_EQ(udsim::withoutTheWord(chunked + item + word + "\r\n0\r\n\r\n"),
              chunked + item + stars + "\r\n0\r\n\r\n");
    const std::string interim = "HTTP/1.1 100 Continue\r\nA: chunked\r\n\r\n";
    EXPECT_EQ(udsim::withoutTheWord(interim + interim + head + item + word),
              interim + interim + head + item + stars);
    EXPECT_EQ(udsim::withoutTheWord(word), stars) << "the rest of an answer whose header was recorded before";
    for (const char* const broken :
         {"", "HTTP", "HTTP/1.1 200 OK\r\n\r\n", "HTTP/1.1 200 OK\r\nchunked\r\n\r\n",
          "HTTP/1.1 100 Continue\r\n\r\n", "HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 200 OK\r\n"}) {
        EXPECT_EQ(udsim::withoutTheWord(broken), broken);
    }
    EXPECT_TRUE(udsim::asksForTheWord(ask));
    EXPECT_FALSE(udsim::asksForTheWord("GET /webapp2/DevInfoGetter?type=5 HTTP/1.1\r\n\r\n"));
}

TEST(SimTranscript, SecretsAreMaskedInAnyMessageOrder)
{
    const std::string other = "GET /webapp2/DevInfoGetter?type=5 HTTP/1.1\r\n\r\n";
    const std::string getter = "GET /webapp2/UploadInfoGetter?serverjobid=00000003 HTTP/1.1\r\n\r\n";
    const std::string head = "HTTP/1.1 200 OK\r\nSet-Cookie: SECRET\r\nContent-Length: 36\r\n\r\n";
    const std::string item = std::string("\0\0!", 3) + "SECRETSECRETSECRETSECRETSECRETSEC";
    using Part = std::pair<Kind, std::string>;
    const std::vector<std::vector<Part>> table = {
        {{Kind::ask, other + getter}, {Kind::answer, head + head + item}}, // two requests before the replies
        {{Kind::ask, getter + other}, {Kind::answer, head + item + head}},
        {{Kind::ask, getter}, {Kind::answer, head}, {Kind::ask, other}, {Kind::answer, item}},
        {{Kind::ask, getter},
         {Kind::answer, head.substr(0, 24)},
         {Kind::ask, other},
         {Kind::answer, head.substr(24) + item}}, // split within the line of the cookie
        {{Kind::ask, getter.substr(0, 20)}, {Kind::ask, getter.substr(20)}, {Kind::answer, head + item}},
    };
    for (const auto& parts : table) {
        const auto messages = recorded(Recording::Of::server, [&](udsim::Transcript& transcript) {
            for (const auto& [kind, bytes] : parts) {
                transcript.add(kind, bytes);
            }
        });
        EXPECT_GE(messages.size(), 2U);
        EXPECT_EQ(ReadText(FILE_NAME).find("SECRET"), std::string::npos) << ReadText(FILE_NAME);
    }
}

TEST(SimTranscript, ConsecutiveBytesOfOneSideAreOneMessage)
{
    const auto messages = recorded(Recording::Of::server, [](udsim::Transcript& transcript) {
        transcript.add(Kind::ask, "GET /a HTT");
        transcript.add(Kind::ask, "P/1.1\r\nAuthoriza");
        transcript.add(Kind::ask, "tion:Basic xyz\r\n\r\n");
        transcript.add(Kind::answer, "HTTP/1.1 ");
        transcript.add(Kind::answer, "200 OK\r\n\r\n");
        transcript.add(Kind::ask, "GET /b");
        transcript.closed();
    });
    ASSERT_EQ(messages.size(), 4U);
    EXPECT_EQ(messages[0].bytes, "GET /a HTTP/1.1\r\nAuthorization:*********\r\n\r\n");
    EXPECT_EQ(messages[0].kind, Kind::ask);
    EXPECT_EQ(messages[1].bytes, "HTTP/1.1 200 OK\r\n\r\n");
    EXPECT_EQ(messages[1].kind, Kind::answer);
    EXPECT_EQ(messages[2].bytes, "GET /b");
    EXPECT_EQ(messages[3].kind, Kind::closed);
}

TEST(SimTranscript, OnlyTheStartOfALargeMessageIsKept)
{
    const std::string piece(1 << 20, 'x');
    const auto messages = recorded(Recording::Of::server, [&](udsim::Transcript& transcript) {
        for (int i = 0; i < 100; ++i) {
            transcript.add(Kind::ask, piece);
        }
        for (int i = 0; i < 20; ++i) {
            transcript.add(Kind::answer, piece);
        }
    });
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_EQ(messages[0].size, 100U << 20);
    EXPECT_EQ(messages[0].bytes.size(), 65'536U);
    EXPECT_EQ(messages[1].size, 20U << 20);
    EXPECT_EQ(messages[1].bytes.size(), 16U << 20);
}

TEST(SimTranscript, ServiceFramesHaveComments)
{
    const auto messages = recorded(Recording::Of::service, [](udsim::Transcript& transcript) {
        transcript.add(Kind::ask, requestFrame(4, "R", "J", 3));
        transcript.add(Kind::answer, Bytes(26).u64(0, 4).u64(8, 11).u64(16, 2).text(24, "hi").str());
        transcript.add(Kind::ask, "short");
    });
    EXPECT_EQ(messages.size(), 3U);
    const std::string text = ReadText(FILE_NAME);
    EXPECT_EQ(text.find("udsim-recording 1 service\n# begun 20"), 0U);
    EXPECT_NE(text.find("\n# asks control 4 of \"R\", job \"J\", parameter 3\n0."), std::string::npos)
        << text;
    EXPECT_NE(text.find(" 1 ask 408 \"\\x04\\0{7}R\\0{128}J\\0{262}\\x03\\0{7}\"\n"), std::string::npos)
        << text;
    EXPECT_NE(text.find("\n# result 11, 2 bytes of payload\n0."), std::string::npos) << text;
    EXPECT_NE(text.find(" 1 answer 26 \"\\x04\\0{7}\\x0b\\0{7}\\x02\\0{7}hi\"\n"), std::string::npos) << text;
}

TEST(SimRecorder, CreatesOnlyNewPrivateFiles)
{
    udsim::Recorder recorder([](const std::string&) {});
    std::string error;
    ASSERT_TRUE(recorder.open(FILE_NAME, Recording::Of::server, error)) << error;
    struct stat found{};
    ASSERT_EQ(::stat(FILE_NAME, &found), 0);
    EXPECT_EQ(found.st_mode & 0777U, 0600U);
    udsim::Recorder second([](const std::string&) {});
    EXPECT_FALSE(second.open(FILE_NAME, Recording::Of::server, error));
    EXPECT_EQ(error, "/tmp/a.udrec: File exists");
    EXPECT_FALSE(second.open("/tmp/none/a.udrec", Recording::Of::server, error));
    EXPECT_EQ(error, "/tmp/none/a.udrec: No such file or directory");
}

TEST(SimRecorder, ARemarkIsAComment)
{
    const auto messages = recorded(Recording::Of::server, [](udsim::Transcript&) {});
    EXPECT_TRUE(messages.empty());
    std::filesystem::remove(FILE_NAME);
    udsim::Recorder recorder([](const std::string&) {});
    std::string error;
    ASSERT_TRUE(recorder.open(FILE_NAME, Recording::Of::server, error));
    recorder.remark(7, "cannot be\nconnected");
    EXPECT_NE(ReadText(FILE_NAME).find(" 7 cannot be?connected\n"), std::string::npos);
    EXPECT_TRUE(Recording::load(FILE_NAME, error)) << error;
}

TEST(SimRecorder, AFullRecordingIsReportedOnce)
{
    std::vector<std::string> notes;
    constexpr uint64_t LARGEST = 300'000;
    udsim::Recorder recorder([&](const std::string& note) { notes.push_back(note); }, LARGEST);
    std::filesystem::remove(FILE_NAME);
    std::string error;
    ASSERT_TRUE(recorder.open(FILE_NAME, Recording::Of::server, error));
    const std::string large(16'000, '\xFF'); // four characters per byte
    EXPECT_TRUE(recorder.isComplete());
    for (int i = 0; i < 6; ++i) {
        recorder.write({0, 1, Kind::answer, large.size(), large}, {});
    }
    EXPECT_FALSE(recorder.isComplete());
    EXPECT_EQ(notes, std::vector<std::string>{"the recording is full; later messages are not recorded"});
    EXPECT_LE(std::filesystem::file_size(FILE_NAME), LARGEST);
}

// The servlets of a publisher server, byte by byte.
#include "NetworkFixture.h"

namespace {

const std::string INFO = "/webapp2/DevInfoGetter?ifversion=02000000&type=";
const std::string NUMBER = "/webapp2/DevInfoIntGetter?ifversion=02000000&type=";
const std::string STATUS = "/webapp2/DevStatusGetter?ifversion=02000000&type=";
const std::string JOBS = "/webapp2/JobInfoGetter?ifversion=02000000&type=";
const std::string OTHER = std::string("\x09\0\0", 3);
const std::string OFFLINE = std::string("\x02\0\0", 3);
const std::string WRONG_VERSION = std::string("\x01\0\0", 3);
const std::string DONE = std::string(3, '\0');

uint64_t bigEndianAt(const std::string& bytes, size_t at, size_t size)
{
    uint64_t value = 0;
    for (size_t i = 0; i < size; ++i) {
        value = value << 8 | static_cast<uint8_t>(bytes.at(at + i));
    }
    return value;
}

} // namespace

TEST(SimNetworkServlet, ModeOfEachServer)
{
    for (const std::string mode : {"0", "1", "2", "3", "4"}) {
        NetworkServer server("server-mode = " + mode);
        EXPECT_EQ(server.get("/webapp2/ServerModeGetter"), hex("00 00 01 0" + mode)) << mode;
    }
}

TEST(SimNetworkServlet, InterfaceVersion)
{
    NetworkServer server("");
    EXPECT_EQ(server.post("/webapp2/IFVersionChecker", "ifversion=02000000"), DONE);
    EXPECT_EQ(server.post("/webapp2/IFVersionChecker", "ifversion=01000000"), WRONG_VERSION);
    EXPECT_EQ(server.ask("POST", "/webapp2/IFVersionChecker", "ifversion=02000000").body, WRONG_VERSION)
        << "without a form content type, the body has no parameters";
    EXPECT_EQ(server.get("/webapp2/DevInfoGetter?ifversion=01000000&type=5"), WRONG_VERSION);
    EXPECT_EQ(server.get("/webapp2/DevInfoIntGetter?type=5"), WRONG_VERSION);
    EXPECT_EQ(server.get("/webapp2/DevStatusGetter?type=0"), WRONG_VERSION);
    EXPECT_EQ(server.get("/webapp2/JobInfoGetter?type=0"), WRONG_VERSION);
    NetworkServer later("interface-version = 03000000");
    EXPECT_EQ(later.post("/webapp2/IFVersionChecker", "ifversion=02000000"), WRONG_VERSION);
}

TEST(SimNetworkServlet, TextInformation)
{
    NetworkServer server("serial = N77\nserver-version = 3.31\nweb-version = 1.5\ndisc-space = 3\n");
    const std::string speeds = "CD-R:40,32,24,16,10,4;DVD-R:12,8,6,4;DVD-R DL:8,6,4;DVD+R:12,8,6,4;"
                               "DVD+R DL:8,6,4;BD-R:8,6,4,2;BD-R DL:6,4,2;BD-R TL:4,2;BD-R QL:4,2";
    const std::string texts[] = {"N77",
                                 "02.14",
                                 "01.37",
                                 "1.05",
                                 "1.05",
                                 "3.31",
                                 "1.5",
                                 "",
                                 "3145728",
                                 "3145728",
                                 speeds,
                                 speeds,
                                 "ARVEN RT-300NIIPRN",
                                 "BXR-300NII",
                                 "BXR-300NII"};
    for (size_t type = 0; type < std::size(texts); ++type) {
        const std::string expected = type == 7 ? OTHER : item(texts[type]);
        EXPECT_EQ(server.get(INFO + std::to_string(type)), expected) << type;
    }
    EXPECT_EQ(server.get(INFO + "15"), OTHER);
    EXPECT_EQ(server.get(INFO + "x"), OTHER);
    NetworkServer secure("server-mode = 0");
    EXPECT_EQ(secure.get(INFO + "7"), item("1.00"));
    server.server.machine().setConnected(false);
    EXPECT_EQ(server.get(INFO + "0"), OFFLINE);
    EXPECT_EQ(server.get(INFO + "14"), OFFLINE);
    EXPECT_EQ(server.get(INFO + "5"), item("3.31")) << "the server itself is available";
}

TEST(SimNetworkServlet, NumericInformation)
{
    NetworkServer server(
        "server-mode = 2\nstacker1.media = BD-R\ndrives-used = 2\nretries = 7\nerror-mark = no\n");
    const uint32_t numbers[] = {2, 1, 7, 0, 8, 0, 999, 0, 1};
    for (size_t type = 0; type < std::size(numbers); ++type) {
        const std::string reply = server.get(NUMBER + std::to_string(type));
        ASSERT_EQ(reply.substr(0, 3), hex("00 00 04")) << type;
        EXPECT_EQ(bigEndianAt(reply, 3, 4), numbers[type]) << type;
    }
    EXPECT_EQ(server.get(NUMBER + "9"), OTHER);
}

TEST(SimNetworkServlet, ValuesThatSomeModelsLack)
{
    struct Row
    {
        const char* model;
        std::string xl;
        std::string third;
        size_t maintenance;
    };
    const Row table[] = {
        {"RT-300N", OTHER, OTHER, 52},
        {"RT-300NII", hex("00 00 04 00 00 00 00"), hex("00 00 04 00 00 03 e7"), 68},
        {"RT-300NII BD-XL", hex("00 00 04 00 00 00 01"), hex("00 00 04 00 00 03 e7"), 68},
    };
    for (const Row& row : table) {
        NetworkServer server("", row.model);
        EXPECT_EQ(server.get(NUMBER + "8"), row.xl) << row.model;
        EXPECT_EQ(server.get(NUMBER + "6"), row.third) << row.model;
        EXPECT_EQ(server.get(STATUS + "10").size(), 3 + row.maintenance) << row.model;
    }
}

TEST(SimNetworkServlet, StatusWhenIdle)
{
    NetworkServer server("server-mode = 2\nink.black = 9\nink.cyan = 80\nink.yellow = 35\nstacker1 = 60\n");
    EXPECT_EQ(server.get(STATUS + "0"), item(std::string(16, '\0')));
    EXPECT_EQ(server.get(STATUS + "1"), item(hex("80 00 00 3c 00 00 00 00 00 00 00 00 00 00 00 00")));
    EXPECT_EQ(server.get(STATUS + "2"), item(hex("00 00 00 01 00 00 00 01")));
    EXPECT_EQ(server.get(STATUS + "3"), item(hex("00 00 00 01")));
    EXPECT_EQ(server.get(STATUS + "4"), item(hex("80 00 00 09 00 00 00 50 00 00 00 64 "
                                                 "00 00 00 64 00 00 00 64 00 00 00 23")));
    EXPECT_EQ(server.get(STATUS + "5"), item(std::string(4, '\0')));
    EXPECT_EQ(server.get(STATUS + "6"), item(std::string(32, '\0')));
    EXPECT_EQ(server.get(STATUS + "7").size(), 3U + 16);
    EXPECT_EQ(server.get(STATUS + "8").size(), 3U + 40);
    EXPECT_EQ(server.get(STATUS + "9"), OTHER);
    EXPECT_EQ(server.get(STATUS + "11"), item(hex("00 00 00 01 00 00 00 01 00 00 00 00 00 00 00 00")));
    EXPECT_EQ(server.get(STATUS + "12"), OTHER);
    server.server.machine().setConnected(false);
    EXPECT_EQ(server.get(STATUS + "0"), OFFLINE);
}

TEST(SimNetworkServlet, ErrorsInTheStatusWords)
{
    struct Row
    {
        uint32_t code;
        std::string loader;
        std::string fatal;
    };
    const Row table[] = {
        {9, "00 00 00 00 00 00 00 00 00 00 00 01 00 00 00 00", "00 00 00 00"},
        {10, "00 00 00 00 00 00 00 00 00 00 00 02 00 00 00 00", "00 00 00 00"},
        {46, "00 00 00 08 00 00 00 00 00 00 00 00 00 00 00 00", "00 00 00 00"},
        {48, "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 01", "00 00 00 00"},
        {42, "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00", "00 00 00 2a"},
        {28, "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00", "00 00 00 1c"},
    };
    for (const Row& row : table) {
        NetworkServer server("error = " + std::to_string(row.code));
        EXPECT_EQ(server.get(STATUS + "0"), item(hex(row.loader))) << row.code;
        EXPECT_EQ(server.get(STATUS + "5"), item(hex(row.fatal))) << row.code;
    }
    NetworkServer pad("error = 28");
    EXPECT_EQ(pad.get(STATUS + "3"), item(hex("00 00 02 00"))) << "the warning of the ink pad";
    NetworkServer ink("error = 19");
    EXPECT_EQ(bigEndianAt(ink.get(STATUS + "6"), 3 + 24, 4), 0x40U);
}

TEST(SimNetworkServlet, FullStackersInTheNotice)
{
    NetworkServer output("server-mode = 3\nstacker1 = 0\nstacker4 = 100\n");
    EXPECT_EQ(bigEndianAt(output.get(STATUS + "6"), 3 + 4, 4), 0x3U) << "both supplies are empty";
    EXPECT_EQ(bigEndianAt(output.get(STATUS + "6"), 3 + 8, 4), 0x8U);
    NetworkServer batch("server-mode = 4\nstacker3 = 100\n");
    EXPECT_EQ(bigEndianAt(batch.get(STATUS + "6"), 3 + 8, 4), 0U);
    EXPECT_EQ(bigEndianAt(batch.get(STATUS + "6"), 3 + 28, 4), 0x4U) << "batch mode has its own bit";
}

TEST(SimNetworkServlet, StatusWhileWriting)
{
    NetworkServer server("disc-time = 10s\njob = Disc, copies=2\n");
    server.server.step(50);
    for (int i = 0; i < 60; ++i) { // 3 s of 10: writing
        server.server.step(50);
    }
    const std::string drives = server.get(STATUS + "11");
    EXPECT_EQ(bigEndianAt(drives, 3, 4), 0x6U);
    EXPECT_EQ(bigEndianAt(drives, 7, 4), 0x1U);
    EXPECT_GT(bigEndianAt(drives, 11, 4), 0U);
    EXPECT_EQ(bigEndianAt(server.get(STATUS + "6"), 3, 4), 0x12U) << "drive 1, and a disc in process";
    EXPECT_EQ(server.get("/webapp2/JobNumGetter?type=0"), hex("00 00 02 00 01"));
}

TEST(SimNetworkServlet, JobNumbers)
{
    NetworkServer server("disc-time = 1s\njobs = 2\n");
    udsim::HttpHeaders headers;
    server.registerJob(headers);
    EXPECT_EQ(server.get("/webapp2/JobNumGetter?type=0"), hex("00 00 02 00 02"));
    EXPECT_EQ(server.get("/webapp2/JobNumGetter?type=1"), hex("00 00 02 00 01"));
    for (int i = 0; i < 30; ++i) {
        server.server.step(50);
    }
    EXPECT_EQ(server.get("/webapp2/JobNumGetter?type=2"), hex("00 00 02 00 01"));
    EXPECT_EQ(server.get("/webapp2/JobNumGetter?type=3"), OTHER);
}

TEST(SimNetworkServlet, PrintableDiscsAndPublishIds)
{
    NetworkServer server("ink.cyan = 10\nserial = S\n");
    EXPECT_EQ(server.get("/webapp2/PrnPosNumGetter"), hex("00 00 04 00 00 00 78"));
    server.server.machine().setConnected(false);
    EXPECT_EQ(server.get("/webapp2/PrnPosNumGetter"), hex("00 00 04 00 00 ff ff"));
    EXPECT_EQ(server.get("/webapp2/PublishIDGetter"), item("S_000001"));
    EXPECT_EQ(server.get("/webapp2/PublishIDGetter"), item("S_000002"));
}

TEST(SimNetworkServlet, NoJobs)
{
    NetworkServer server("");
    for (const std::string type : {"0", "1", "2", "3"}) {
        EXPECT_EQ(server.get(JOBS + type), DONE) << type;
    }
    EXPECT_EQ(server.get(JOBS + "4"), OTHER);
}

TEST(SimNetworkServlet, TheRecordOfAJob)
{
    NetworkServer server("disc-time = 10s\nserial = S\njob = Übung, copies=3, type=print\n");
    const std::string reply = server.get(JOBS + "1");
    ASSERT_EQ(reply.size(), 3U + 1178);
    EXPECT_EQ(reply.substr(0, 3), hex("00 04 9a"));
    const std::string payload = reply.substr(3);
    EXPECT_EQ(bigEndianAt(payload, 0, 1), 0U);
    EXPECT_EQ(bigEndianAt(payload, 1, 1), 0U);
    EXPECT_EQ(bigEndianAt(payload, 2, 2), 3U) << "ordered";
    EXPECT_EQ(bigEndianAt(payload, 4, 2), 0U) << "finished";
    EXPECT_EQ(bigEndianAt(payload, 6, 1), 10U);
    EXPECT_EQ(payload.substr(7, 11), hex("75 00 64 00 73 00 69 00 6d 00 00"));
    EXPECT_EQ(bigEndianAt(payload, 135, 1), 2U) << "prints";
    EXPECT_EQ(bigEndianAt(payload, 136, 2), 1U) << "from stacker 1";
    EXPECT_EQ(bigEndianAt(payload, 138, 2), 2U);
    EXPECT_EQ(bigEndianAt(payload, 140, 4), 30U) << "seconds";
    EXPECT_EQ(bigEndianAt(payload, 144, 2), 0U);
    EXPECT_EQ(bigEndianAt(payload, 146, 2), 10U);
    EXPECT_EQ(payload.substr(148, 11), hex("dc 00 62 00 75 00 6e 00 67 00 00"));
    EXPECT_EQ(bigEndianAt(payload, 658, 4), 0U);
    EXPECT_EQ(bigEndianAt(payload, 662, 1), 0U) << "no special print mode";
    EXPECT_EQ(bigEndianAt(payload, 663, 1), 2U) << "the server's mode";
    EXPECT_EQ(payload.substr(664, 10), hex("4c 00 4f 00 43 00 41 00 4c 00")); // LOCAL...
    EXPECT_EQ(bigEndianAt(payload, 1174, 4), 1U);
    const std::string extended = server.get(JOBS + "3");
    ASSERT_EQ(extended.size(), 3U + 1182);
    EXPECT_EQ(bigEndianAt(extended, 3 + 1178, 4), 30U);
    EXPECT_EQ(server.get(JOBS + "0"), reply);
    EXPECT_EQ(server.get(JOBS + "2"), DONE);
}

TEST(SimNetworkServlet, TextsAreTruncatedAtCharacterBoundaries)
{
    // 254 letters and a character of two UTF-16 units: a cut at 255 units would split it.
    NetworkServer server("");
    udsim::JobSetup job;
    job.name = std::string(254, 'a') + "\xF0\x9F\x92\xBF";
    server.server.machine().addJob(job);
    const std::string payload = server.get(JOBS + "1").substr(3);
    EXPECT_EQ(bigEndianAt(payload, 146, 2), 508U);
    EXPECT_EQ(payload.substr(148 + 506, 4), hex("61 00 00 00"));
}

TEST(SimNetworkServlet, StatusBytesOfJobs)
{
    NetworkServer server("disc-time = 1s\njobs = 4\n");
    EXPECT_EQ(server.control("2", "00000004"), 0) << "stop";
    EXPECT_EQ(server.control("1", "00000003"), 0) << "cancel";
    server.server.step(50);
    server.server.step(50);
    const std::string jobs = server.get(JOBS + "0");
    ASSERT_EQ(jobs.size(), 4U * 1181);
    const uint64_t expected[] = {1, 0, 9, 4}; // running, waiting, cancelled, stopped
    for (size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(bigEndianAt(jobs, i * 1181 + 3, 1), expected[i]) << i;
    }
    EXPECT_EQ(server.control("3", "00000004"), 0) << "restart";
    EXPECT_EQ(server.control("6", "00000004"), 0) << "to the front";
    EXPECT_EQ(bigEndianAt(server.get(JOBS + "1"), 1181 + 3 + 1174, 4), 4U);
    EXPECT_EQ(server.control("3", "00000002"), 9) << "the job was not stopped";
    EXPECT_EQ(server.control("1", "000000ff"), 7);
    EXPECT_EQ(server.control("1", "2"), 7) << "the id has eight digits";
    EXPECT_EQ(server.control("7", "00000002"), 9);
    EXPECT_EQ(server.control("0", "00000002"), 7) << "already committed";
}

TEST(SimNetworkServlet, AnOpenedCoverIsRecordedInTheJob)
{
    NetworkServer server("disc-time = 1s\njobs = 1\n");
    server.server.step(50);
    server.server.step(50);
    server.server.machine().setError(9);
    server.server.step(50);
    const std::string paused = server.get(JOBS + "1");
    EXPECT_EQ(bigEndianAt(paused, 3, 1), 6U);
    EXPECT_EQ(bigEndianAt(paused, 4, 1), 9U);
    server.server.machine().setError(0);
    for (int i = 0; i < 25; ++i) {
        server.server.step(50);
    }
    const std::string ended = server.get(JOBS + "2");
    ASSERT_EQ(ended.size(), 1181U);
    EXPECT_EQ(bigEndianAt(ended, 3, 1), 8U);
    EXPECT_EQ(bigEndianAt(ended, 3 + 658, 4), 2U);
}

TEST(SimNetworkServlet, ControlsJobsByTheSubmittersId)
{
    NetworkServer server("serial = S\njobs = 3\n");
    const std::string path = "/webapp2/JobControllerExt";
    EXPECT_EQ(server.post(path, "action=1&jobid=LOCALHOST_S_0003"), DONE);
    EXPECT_EQ(bigEndianAt(server.get(JOBS + "1"), 3 + 1174, 4), 3U) << "at the front";
    EXPECT_EQ(server.post(path, "action=0&jobid=LOCALHOST_S_0003"), DONE);
    EXPECT_EQ(server.get("/webapp2/JobNumGetter?type=0"), hex("00 00 02 00 02"));
    EXPECT_EQ(server.post(path, "action=0&jobid=nobody"), hex("07 00 00"));
    EXPECT_EQ(server.post(path, "action=0&jobid="), hex("07 00 00"));
    EXPECT_EQ(server.post(path, "action=2&jobid=LOCALHOST_S_0001"), OTHER);
}

TEST(SimNetworkServlet, UnknownPathsAndMethods)
{
    NetworkServer server("");
    EXPECT_EQ(server.ask("GET", "/").status, 404U);
    EXPECT_EQ(server.ask("GET", "/webapp/ServerModeGetter").status, 404U);
    EXPECT_EQ(server.ask("POST", "/webapp2/ServerModeGetter").status, 405U);
    EXPECT_EQ(server.ask("GET", "/webapp2/NormalJobSetter").status, 405U);
    EXPECT_EQ(server.ask("GET", "/webapp2/FileHashSetter").status, 405U);
}

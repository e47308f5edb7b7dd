// Every control id over a real connection, byte by byte.
#include <set>

#include <gtest/gtest.h>

#include "RawClient.h"
#include "RoomFixture.h"

namespace {

constexpr char STUDIO[] = R"(
[publisher Studio A]
model = RT-300III BD
id = {ARPUB20260105_1}
serial = ABC1234
mode = 2
disc-time = 10s
maintenance-box = 77
print-count = 1200
ink.cyan = 80
ink.magenta = 70
ink.yellow = 60
ink.light-cyan = 50
ink.light-magenta = 40
ink.black = 9
stacker1 = 30
stacker2 = 20
stacker3 = 0
stacker4 = 5
job = Holiday, copies=3
job = Labels, type=print

[publisher Small]
model = RT-30
id = small
serial = SMALL1

[publisher Away]
model = RT-300III BD
id = away
serial = AWAY1
connected = no
job = Later

[publisher Printer only]
model = RT-300AP
id = printer
serial = PRINTER1
)";
constexpr char FIRST_JOB[] = "LOCALHOST_ABC1234_0001";
constexpr char SECOND_JOB[] = "LOCALHOST_ABC1234_0002";

std::string u32(uint64_t value)
{
    return Bytes(4).u32(0, value).str();
}

class SimControls : public testing::Test
{
protected:
    /// Expects a successful reply with the id of the request and this payload.
    void expectPayload(uint64_t control, const std::string& publisher, const std::string& payload,
                       uint64_t parameter = 0)
    {
        const RawReply reply = ask(control, publisher, "", parameter);
        EXPECT_EQ(reply.control, control);
        EXPECT_EQ(reply.result, 0U) << "control " << control;
        EXPECT_EQ(reply.payload, payload) << "control " << control << " of " << publisher;
    }
    void expectResult(uint64_t control, const std::string& publisher, uint64_t result,
                      const std::string& job = "", uint64_t parameter = 0)
    {
        const RawReply reply = ask(control, publisher, job, parameter);
        EXPECT_EQ(reply.control, control);
        EXPECT_EQ(reply.result, result) << "control " << control << " of " << publisher;
        EXPECT_EQ(reply.length, 0U) << "control " << control;
    }
    uint64_t statusOf(const std::string& job) const
    {
        for (const udsim::Job& one : m_open.room.jobs("Studio A")) {
            if (one.id == job) {
                return one.status;
            }
        }
        return 0;
    }

    OpenRoom m_open{STUDIO};
};

std::string jobPayload(const std::string& id, const std::string& name, uint64_t status)
{
    return Bytes(1088)
        .text(0, id)
        .text(256, name)
        .u64(512, status)
        .text(584, "udsim")
        .u64(728, 1 + 2) // from stackers 1 and 2
        .u64(736, 8)     // to stacker 4
        .u64(800, 2)     // external output
        .u64(1080, 32)   // stacker 3 is not in use
        .str();
}

} // namespace

TEST_F(SimControls, JobStopContinueCancel)
{
    m_open.room.advance(1000);
    ASSERT_EQ(statusOf(FIRST_JOB), 2U);
    expectResult(1, ID, 0, FIRST_JOB);
    EXPECT_EQ(statusOf(FIRST_JOB), 6U) << "stop pending until the disc is done";
    expectResult(1, ID, 0, SECOND_JOB);
    EXPECT_EQ(statusOf(SECOND_JOB), 7U);
    expectResult(2, ID, 0, SECOND_JOB);
    EXPECT_EQ(statusOf(SECOND_JOB), 1U);
    expectResult(2, ID, 25, FIRST_JOB);
    expectResult(3, ID, 0, FIRST_JOB);
    EXPECT_EQ(statusOf(FIRST_JOB), 3U) << "cancel pending until the disc is done";
    expectResult(3, ID, 0, SECOND_JOB);
    EXPECT_EQ(statusOf(SECOND_JOB), 8U);
    expectResult(3, ID, 25, SECOND_JOB);
}

TEST_F(SimControls, JobCommandsRefuseUnknownJobs)
{
    for (const uint64_t control : {1U, 2U, 3U, 23U}) {
        expectResult(control, ID, 22, "LOCALHOST_ABC1234_0009");
        expectResult(control, ID, 22);
    }
    expectResult(29, ID, 22, "LOCALHOST_SMALL1_0001", 1);
}

TEST_F(SimControls, JobStatusOfWaitingJobs)
{
    std::string first = jobPayload(FIRST_JOB, "Holiday", 1);
    first.replace(544, 8, Bytes(8).u64(0, 30).str()); // three discs of ten seconds
    first.replace(552, 8, Bytes(8).u64(0, 30).str());
    first.replace(568, 8, Bytes(8).u64(0, 3).str());
    first.replace(720, 8, Bytes(8).u64(0, 1 + 2).str()); // write and print
    std::string second = jobPayload(SECOND_JOB, "Labels", 1);
    second.replace(536, 8, Bytes(8).u64(0, 1).str()); // the second in the list
    second.replace(544, 8, Bytes(8).u64(0, 10).str());
    second.replace(552, 8, Bytes(8).u64(0, 10).str());
    second.replace(568, 8, Bytes(8).u64(0, 1).str());
    second.replace(720, 8, Bytes(8).u64(0, 2).str());
    expectPayload(4, ID, first + second, 1);
    expectPayload(4, ID, "", 2);
    expectPayload(4, ID, first + second, 3);
    expectPayload(4, ID, "", 0);
}

TEST_F(SimControls, JobStatusOfARunningJob)
{
    m_open.room.advance(14'050); // one disc done, four seconds into the next
    const RawReply reply = ask(4, ID, "", 3);
    ASSERT_EQ(reply.length, 2 * 1088U);
    EXPECT_EQ(numberAt(reply.payload, 512, 8), 2U);  // running
    EXPECT_EQ(numberAt(reply.payload, 520, 8), 0U);  // no factor
    EXPECT_EQ(numberAt(reply.payload, 528, 8), 1U);  // complete
    EXPECT_EQ(numberAt(reply.payload, 544, 8), 30U); // estimate
    EXPECT_EQ(numberAt(reply.payload, 552, 8), 15U); // remaining: 2 discs less 4.05 s
    EXPECT_EQ(numberAt(reply.payload, 1088 + 512, 8), 1U);
    m_open.room.advance(60'000);
    expectPayload(4, ID, "", 1);
    EXPECT_EQ(ask(4, ID, "", 2).length, 2 * 1088U);
}

TEST_F(SimControls, AutoLoaderStatus)
{
    expectPayload(5, ID, u32(0));
    m_open.room.advance(1000);
    expectPayload(5, ID, u32(0x1000));   // automation
    expectPayload(5, "away", u32(0x40)); // power off
    const std::pair<uint32_t, uint64_t> table[] = {
        {9, 0x10},    {10, 0x20},   {19, 0x200},    {26, 0x80},      {28, 0x200},     {29, 0x100},
        {42, 0x2000}, {46, 0x8},    {48, 0x400000}, {56, 0x2000000}, {57, 0x1000000}, {58, 0x800000},
        {63, 0x200},  {64, 0x4000}, {1, 0x8000},    {73, 0x8000}};
    for (const auto& [code, bits] : table) {
        ASSERT_TRUE(m_open.room.tell("Small", "error " + std::to_string(code)));
        expectPayload(5, "small", u32(bits));
    }
}

TEST_F(SimControls, InkStatus)
{
    expectPayload(
        6, ID, Bytes(48).u64(0, 80).u64(8, 70).u64(16, 60).u64(24, 50).u64(32, 40).u64(40, 0x80000009).str());
    Bytes unknown(48);
    for (size_t at = 0; at < 48; at += 8) {
        unknown.u64(at, 0x400);
    }
    expectPayload(6, "away", unknown.str());
}

TEST_F(SimControls, DriveStatus)
{
    expectPayload(7, ID, Bytes(128).u64(0, 1).u64(64, 1).str());
    expectPayload(7, "small", Bytes(128).u64(0, 1).u64(64, 0x20).str());
    expectPayload(7, "printer", Bytes(128).u64(0, 0x20).u64(64, 0x20).str());
    expectPayload(7, "away", Bytes(128).u64(0, 0x20).u64(64, 0x20).str());
    m_open.room.advance(500);
    expectPayload(7, ID, Bytes(128).u64(0, 0x40).u64(64, 1).str());
    m_open.room.advance(3250); // 37 percent of the disc: 27 of the 55 percent for writing
    expectPayload(7, ID, Bytes(128).u64(0, 2 + 4).u64(56, 49).u64(64, 1).str());
    m_open.room.advance(3000); // 67 percent
    expectPayload(7, ID, Bytes(128).u64(0, 2 + 8).u64(56, 13).u64(64, 1).str());
    m_open.room.advance(8000); // the second disc is in the other drive
    EXPECT_EQ(numberAt(ask(7, ID).payload, 64, 8), 2U + 4U);
}

TEST_F(SimControls, PrinterStatus)
{
    expectPayload(8, ID, u32(1));
    m_open.room.advance(9000);
    expectPayload(8, ID, u32(4)); // printing
    expectPayload(8, "away", u32(0x40 + 0x10000));
    const std::pair<uint32_t, uint64_t> table[] = {
        {9, 0x100040}, {10, 0x200040},  {19, 0x400040}, {26, 0x80040},   {28, 0x20040},
        {29, 0x40040}, {56, 0x2000040}, {57, 0x800040}, {58, 0x1000040}, {63, 0x4000040},
        {42, 0x1},     {46, 0x1},       {48, 0x1},      {64, 0x1}};
    for (const auto& [code, bits] : table) {
        ASSERT_TRUE(m_open.room.tell("Small", "error " + std::to_string(code)));
        expectPayload(8, "small", u32(bits));
    }
}

TEST_F(SimControls, StackerStatus)
{
    expectPayload(9, ID,
                  Bytes(16).u32(0, 0x80000000 + 30).u32(4, 0x80000000 + 20).u32(8, 0).u32(12, 5).str());
    expectPayload(9, "away", Bytes(16).u32(0, 101).u32(4, 101).u32(8, 101).u32(12, 101).str());
}

TEST_F(SimControls, DeviceInformation)
{
    expectPayload(
        10, ID,
        Bytes(128).text(0, "ARVEN").text(32, "RT-300III BD").text(64, "02.14").text(96, "ABC1234").str());
    expectPayload(
        12, ID,
        Bytes(128).text(0, "ARVEN").text(32, "ARVEN RT-300PRN").text(64, "01.37").text(96, "PABC1234").str());
    const Bytes drives = Bytes(320)
                             .text(0, "ARVEN")
                             .text(32, "BDR-300III")
                             .text(64, "1.05")
                             .text(96, "2025/06/12")
                             .text(128, "D1ABC1234")
                             .text(160, "ARVEN")
                             .text(192, "BDR-300III")
                             .text(224, "1.05")
                             .text(256, "2025/06/12")
                             .text(288, "D2ABC1234");
    expectPayload(11, ID, drives.str());
    expectPayload(11, "small",
                  Bytes(320)
                      .text(0, "ARVEN")
                      .text(32, "DVR-30")
                      .text(64, "1.05")
                      .text(96, "2025/06/12")
                      .text(128, "D1SMALL1")
                      .str());
    expectPayload(11, "printer", Bytes(320).str());
    for (const uint64_t control : {10U, 11U, 12U, 28U}) {
        expectResult(control, "away", 11);
    }
}

TEST_F(SimControls, JobCount)
{
    expectPayload(13, ID, u32(2));
    expectPayload(13, "small", u32(0));
    expectPayload(13, "", u32(3)); // all machines
}

TEST_F(SimControls, EstimatedPrints)
{
    expectPayload(14, ID, u32(9 * 12));
    expectPayload(14, "away", u32(0xFFFF));
}

TEST_F(SimControls, PrinterName)
{
    expectPayload(15, ID, std::string("ARVEN RT-300PRN") + '\0');
    expectPayload(15, "printer", std::string("ARVEN RT-300APPRN") + '\0');
    expectPayload(15, "small", std::string("ARVEN RT-30PRN") + '\0');
}

TEST_F(SimControls, NotifyChangeIsRefusedDuringWork)
{
    expectResult(16, ID, 0);
    m_open.room.advance(1000);
    expectResult(16, ID, 1004);
}

TEST_F(SimControls, StackerDiscTypes)
{
    expectPayload(17, ID, Bytes(16).u32(0, 1).u32(4, 1).u32(8, 32).u32(12, 0).str());
    expectPayload(17, "small", Bytes(16).u32(0, 1).u32(4, 0).u32(8, 0).u32(12, 32).str());
}

TEST_F(SimControls, PublishMode)
{
    expectPayload(18, ID, u32(2));
    expectPayload(18, "away", u32(0));
    expectResult(21, ID, 0, "", 1);
    expectPayload(18, ID, u32(1));
    expectPayload(17, ID, Bytes(16).u32(0, 1).u32(4, 1).u32(8, 0).u32(12, 32).str());
    expectResult(21, ID, 37, "", 5);
    expectResult(21, ID, 37, "", 10);
    expectResult(21, ID, 37, "", uint64_t{1} << 40);
    expectResult(21, "away", 11, "", 1);
    m_open.room.advance(1000);
    expectResult(21, ID, 1004, "", 0);
    expectPayload(18, ID, u32(1));
}

TEST_F(SimControls, DeviceStatus)
{
    expectPayload(19, ID, u32(1));
    expectPayload(19, "away", u32(0));
}

TEST_F(SimControls, NoticesHaveNoPayload)
{
    expectResult(20, ID, 0);
    expectResult(25, ID, 0);
    expectResult(25, "", 0);
    expectResult(30, ID, 0);
}

TEST_F(SimControls, FatalErrorCode)
{
    expectPayload(22, ID, u32(0));
    expectPayload(22, "away", u32(11));
    ASSERT_TRUE(m_open.room.tell("Studio A", "error 19"));
    expectPayload(22, ID, u32(19));
    ASSERT_TRUE(m_open.room.tell("Studio A", "offline"));
    expectPayload(22, ID, u32(11));
    ASSERT_TRUE(m_open.room.tell("Studio A", "online"));
    expectPayload(22, ID, u32(19));
    ASSERT_TRUE(m_open.room.tell("Studio A", "clear"));
    expectPayload(22, ID, u32(0));
}

TEST_F(SimControls, ErrorCancelRequiresAJobInError)
{
    expectResult(23, ID, 25, FIRST_JOB);
    m_open.room.advance(1000);
    ASSERT_TRUE(m_open.room.tell("Studio A", "error 20"));
    m_open.room.advance(100);
    ASSERT_EQ(statusOf(FIRST_JOB), 5U);
    EXPECT_EQ(numberAt(ask(4, ID, "", 1).payload, 520, 8), 20U); // the factor
    expectResult(23, ID, 0, FIRST_JOB);
    EXPECT_EQ(statusOf(FIRST_JOB), 8U);
}

TEST_F(SimControls, NotifyStatus)
{
    expectPayload(24, ID, u32(0));
    m_open.room.advance(500);
    expectPayload(24, ID, u32(16 + 1)); // the arm
    m_open.room.advance(3000);
    expectPayload(24, ID, u32(16 + 2)); // drive 1
    m_open.room.advance(6000);
    expectPayload(24, ID, u32(16 + 8)); // the printer
    m_open.room.advance(4000);
    expectPayload(24, ID, u32(16 + 4)); // drive 2
}

TEST_F(SimControls, PrecisionOfThePrintableCount)
{
    expectPayload(26, ID, u32(1));
    expectResult(26, "small", 1001); // too old for this query
}

TEST_F(SimControls, MaintenanceBox)
{
    expectPayload(27, ID, u32(77));
    expectPayload(27, "small", u32(0x400));
    expectPayload(27, "away", u32(0x400));
}

TEST_F(SimControls, MaintenanceInfo)
{
    Bytes payload(344);
    payload.u64(0, 1200).u64(8, 100'000).u64(16, 23).u64(24, 100).u64(32, 1200);
    for (const size_t base : {88U, 184U}) { // drive 1, drive 2
        payload.u64(base, 600).u64(base + 8, 60'000);
        payload.u64(base + 16, 6000)
            .u64(base + 24, 4'000'000)
            .u64(base + 40, 4'000'000)
            .u64(base + 56, 4'000'000);
        payload.u64(base + 64, 6000).u64(base + 72, 4'000'000).u64(base + 88, 8'000'000);
    }
    payload.u64(288, 1).u64(296, 1).u64(304, 1200).text(312, "ABC1234");
    expectPayload(28, ID, payload.str());

    const std::string small = ask(28, "small").payload;
    ASSERT_EQ(small.size(), 344U);
    EXPECT_EQ(numberAt(small, 16, 8), 0xFFFFFFFFU); // no maintenance box
    for (size_t at = 184; at < 280; at += 8) {
        EXPECT_EQ(numberAt(small, at, 8), 0xFFFFFFFFU) << "of the second drive, at " << at;
    }
    EXPECT_EQ(numberAt(small, 288, 8), 1U);
    EXPECT_EQ(numberAt(small, 296, 8), 0U);
}

TEST_F(SimControls, JobMove)
{
    ASSERT_TRUE(m_open.room.tell("Studio A", "add-job Urgent"));
    expectResult(29, ID, 0, "LOCALHOST_ABC1234_0003", 1);
    const auto jobs = m_open.room.jobs("Studio A");
    EXPECT_EQ(jobs[0].name, "Urgent");
    EXPECT_EQ(jobs[1].name, "Holiday");
    EXPECT_EQ(jobs[2].name, "Labels");
    expectResult(29, ID, 1001, SECOND_JOB, 2);
    m_open.room.advance(1000);
    expectResult(29, ID, 25, "LOCALHOST_ABC1234_0003", 1); // it is running
}

TEST_F(SimControls, UsbMode)
{
    expectPayload(31, ID, u32(3));
    expectPayload(31, "away", u32(0));
}

TEST_F(SimControls, UniqueString)
{
    std::set<std::string> seen;
    for (int i = 0; i < 5; ++i) {
        const RawReply reply = ask(32, i == 0 ? "" : ID);
        EXPECT_EQ(reply.result, 0U);
        ASSERT_GT(reply.length, 1U);
        EXPECT_EQ(reply.payload.back(), '\0');
        EXPECT_TRUE(seen.insert(reply.payload).second);
    }
}

TEST_F(SimControls, UnknownControlsAndPublishers)
{
    for (const uint64_t control : {uint64_t{0}, uint64_t{33}, uint64_t{0xFFFFFFFF}, UINT64_MAX}) {
        expectResult(control, ID, 23);
    }
    for (uint64_t control = 1; control <= 32; ++control) {
        expectResult(control, "nobody", 21);
        if (control != 13 && control != 25 && control != 32) {
            expectResult(control, "", 21);
        }
    }
}

TEST_F(SimControls, ManyRequestsOnOneConnection)
{
    const RawClient client;
    ASSERT_TRUE(client.send(requestFrame(22, ID) + requestFrame(18, ID) + requestFrame(13, ID)));
    client.finishSending();
    std::string all;
    for (std::string piece = client.readOnce(1024); !piece.empty(); piece = client.readOnce(1024)) {
        all += piece;
    }
    EXPECT_EQ(all, Bytes(28).u64(0, 22).u64(16, 4).u32(24, 0).str() +
                       Bytes(28).u64(0, 18).u64(16, 4).u32(24, 2).str() +
                       Bytes(28).u64(0, 13).u64(16, 4).u32(24, 2).str());
}

TEST_F(SimControls, ARequestInPieces)
{
    const RawClient client;
    const std::string frame = requestFrame(18, ID);
    for (const char byte : frame) {
        ASSERT_TRUE(client.send(std::string(1, byte)));
    }
    const auto reply = client.readReply();
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->payload, u32(2));
}

TEST_F(SimControls, AnIncompleteRequestIsIgnored)
{
    const RawClient client;
    ASSERT_TRUE(client.send(requestFrame(18, ID).substr(0, 407)));
    client.finishSending();
    EXPECT_EQ(client.readOnce(1), "");
    EXPECT_TRUE(m_open.room.requests().empty());
}

TEST_F(SimControls, TextsThatFillTheirFields)
{
    std::string frame = requestFrame(1);
    frame.replace(8, 129, std::string(129, 'p'));
    frame.replace(137, 256, std::string(256, 'j'));
    const RawClient client;
    ASSERT_TRUE(client.send(frame));
    const auto reply = client.readReply();
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->result, 21U);
    EXPECT_EQ(m_open.room.requests().back(),
              (udsim::Request{1, std::string(129, 'p'), std::string(256, 'j'), 0}));
}

TEST_F(SimControls, RequestsAreRecorded)
{
    ask(21, ID, "", 1);
    ask(3, ID, FIRST_JOB);
    EXPECT_EQ(m_open.room.requests(), (std::vector<udsim::Request>{{21, ID, "", 1}, {3, ID, FIRST_JOB, 0}}));
}

TEST_F(SimControls, TheLongestListArrivesInOneRead)
{
    for (int i = 0; i < 33; ++i) {
        EXPECT_NE(m_open.room.addJob("Small"), "");
    }
    EXPECT_EQ(m_open.room.addJob("Small"), "") << "the list is full";
    for (int i = 0; i < 50; ++i) {
        EXPECT_EQ(ask(4, "small", "", 1).length, 33 * 1088U);
    }
}

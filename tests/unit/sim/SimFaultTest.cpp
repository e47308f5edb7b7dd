// The effect of each fault on the bytes, and the requests that it applies to.
#include <chrono>

#include <gtest/gtest.h>

#include "RawClient.h"
#include "RoomFixture.h"

namespace {

using udsim::Fault;

constexpr char TWO_MACHINES[] = R"(
[publisher A]
model = RT-300III BD
id = a
ink.cyan = 33
[publisher B]
model = RT-30
id = b
)";

const std::string HEADER_OF_22 = Bytes(24).u64(0, 22).u64(16, 4).str();
const std::string ZERO = Bytes(4).str();

/// All bytes until the connection ends. Fails the test if it does not end.
std::string readToTheEnd(const RawClient& client)
{
    std::string all;
    while (client.isReadable(RawClient::PATIENCE)) {
        const std::string piece = client.readOnce(4096);
        if (piece.empty()) {
            return all;
        }
        all += piece;
    }
    ADD_FAILURE() << "the connection did not end";
    return all;
}

class SimFault : public testing::Test
{
protected:
    void befall(const std::string& text, uint64_t control = 0, const std::string& publisher = "",
                uint64_t times = 0)
    {
        std::string error;
        auto fault = Fault::parse(text, error);
        ASSERT_TRUE(fault) << error;
        fault->control = control;
        fault->publisher = publisher;
        fault->times = times;
        m_open.room.setFault(*fault);
    }

    OpenRoom m_open{TWO_MACHINES};
};

} // namespace

TEST_F(SimFault, RefuseStopsListening)
{
    befall("refuse");
    const RawClient refused;
    EXPECT_FALSE(refused.connected());
    EXPECT_EQ(refused.error(), ECONNREFUSED);
    m_open.room.clearFaults();
    EXPECT_EQ(ask(22, "a").payload, ZERO);
}

TEST_F(SimFault, StallNeverAnswers)
{
    befall("stall", 22);
    const RawClient stalled;
    ASSERT_TRUE(stalled.send(requestFrame(22, "a")));
    ASSERT_TRUE(m_open.room.waitForRequests(22, 1));
    EXPECT_EQ(ask(18, "a").payload, ZERO) << "other connections are still served";
    EXPECT_FALSE(stalled.isReadable(0));
    m_open.room.stop();
    EXPECT_EQ(stalled.readOnce(1), "") << "only stopping the room ends the connection";
}

TEST_F(SimFault, WrongId)
{
    befall("wrong-id", 22);
    const RawReply reply = ask(22, "a");
    EXPECT_EQ(reply.control, 23U);
    EXPECT_EQ(reply.result, 0U);
    EXPECT_EQ(reply.payload, ZERO);
}

TEST_F(SimFault, ShortHeader)
{
    befall("short-header");
    const RawClient client;
    ASSERT_TRUE(client.send(requestFrame(22, "a")));
    EXPECT_EQ(readToTheEnd(client), HEADER_OF_22.substr(0, 12));
}

TEST_F(SimFault, ShortPayload)
{
    befall("short-payload");
    const RawClient client;
    ASSERT_TRUE(client.send(requestFrame(22, "a")));
    EXPECT_EQ(readToTheEnd(client), HEADER_OF_22 + std::string(2, '\0'));
}

TEST_F(SimFault, HugeLength)
{
    befall("huge-length");
    const RawClient client;
    ASSERT_TRUE(client.send(requestFrame(22, "a")));
    EXPECT_EQ(client.readOnce(24), Bytes(24).u64(0, 22).u64(16, uint64_t{1} << 62).str());
    EXPECT_EQ(client.readOnce(100), ZERO);
    EXPECT_FALSE(client.isReadable(0));
}

TEST_F(SimFault, ResultComesWithThePayload)
{
    befall("result 1001");
    const RawReply reply = ask(6, "a");
    EXPECT_EQ(reply.control, 6U);
    EXPECT_EQ(reply.result, 1001U);
    EXPECT_EQ(reply.length, 48U);
    EXPECT_EQ(numberAt(reply.payload, 0, 8), 33U);
}

TEST_F(SimFault, Close)
{
    befall("close");
    const RawClient client;
    ASSERT_TRUE(client.send(requestFrame(22, "a")));
    EXPECT_EQ(readToTheEnd(client), "");
}

TEST_F(SimFault, DelayIsAMinimum)
{
    befall("delay 120");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(ask(22, "a").payload, ZERO);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(120));
}

TEST_F(SimFault, ADelayedReplyDelaysNoOtherConnection)
{
    befall("delay 3600000", 22);
    const RawClient late;
    ASSERT_TRUE(late.send(requestFrame(22, "a")));
    ASSERT_TRUE(m_open.room.waitForRequests(22, 1));
    EXPECT_EQ(ask(18, "a").payload, ZERO);
    EXPECT_FALSE(late.isReadable(0));
}

TEST_F(SimFault, AppliesOnlyToItsPublisherAndControl)
{
    befall("result 1004", 22, "B");
    EXPECT_EQ(ask(22, "b").result, 1004U);
    EXPECT_EQ(ask(22, "a").result, 0U);
    EXPECT_EQ(ask(18, "b").result, 0U);
    EXPECT_EQ(ask(22, "nobody").result, 21U);
}

TEST_F(SimFault, AppliesTheGivenNumberOfTimes)
{
    befall("result 1004", 22, "", 2);
    EXPECT_EQ(ask(22, "a").result, 1004U);
    EXPECT_EQ(ask(22, "b").result, 1004U);
    EXPECT_EQ(ask(22, "a").result, 0U);
}

TEST_F(SimFault, TheFirstMatchingFaultApplies)
{
    befall("result 1", 22, "", 1);
    befall("result 2", 22);
    EXPECT_EQ(ask(22, "a").result, 1U);
    EXPECT_EQ(ask(22, "a").result, 2U);
    m_open.room.clearFaults();
    EXPECT_EQ(ask(22, "a").result, 0U);
}

TEST_F(SimFault, ScenariosAcceptEveryFault)
{
    for (const char* const text : {"refuse", "stall", "wrong-id", "short-header", "short-payload",
                                   "huge-length", "result 0", "result 1001", "close", "delay 5"}) {
        std::string error;
        const auto scenario = udsim::Scenario::parse("[fault]\ndo = " + std::string(text) + "\n", error);
        ASSERT_TRUE(scenario) << text << ": " << error;
        EXPECT_EQ(scenario->faults.size(), 1U);
    }
    for (const char* const text : {"", "refuses", "stall 3", "result", "result x", "result -1", "delay",
                                   "delay 3600001", "result 1 2"}) {
        std::string error;
        EXPECT_FALSE(Fault::parse(text, error)) << text;
        EXPECT_NE(error, "") << text;
    }
}

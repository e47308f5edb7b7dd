// Tests the exchange with the control service byte by byte, and its results if the service misbehaves.
#include "BasicPublisherMgr.h"
#include "ServiceWire.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

/// The result of one exchange.
struct Outcome
{
    int result = 77;
    std::string payload;
    bool isNull = false;
    ULONG length = 77;
};

Outcome Exchange(CBasicPublisherMgr& mgr, ULONG control, LPCTSTR id, LPCTSTR job, ULONG subParam)
{
    Outcome outcome;
    void* response = &outcome;
    outcome.result = mgr.GetServiceResponse(control, id, job, subParam, &response, &outcome.length);
    const std::unique_ptr<char[]> owner(static_cast<char*>(response));
    outcome.isNull = response == nullptr;
    if (!outcome.isNull) {
        outcome.payload.assign(owner.get(), outcome.length);
    }
    return outcome;
}

class ServiceExchange : public testing::Test
{
protected:
    ServiceCall<Outcome> Call(ULONG control = 13, LPCTSTR id = "R")
    {
        return ServiceCall<Outcome>([this, control, id] { return Exchange(mgr, control, id, nullptr, 0); });
    }

    CBasicPublisherMgr mgr{true, PUBLISHER_SETTING_DIR};
};

void ExpectFailure(const Outcome& outcome, int result)
{
    EXPECT_EQ(outcome.result, result);
    EXPECT_TRUE(outcome.isNull);
    EXPECT_EQ(outcome.length, 0u);
}

// ---------------------------------------------------------------------------------------------------------------------
// The request

TEST_F(ServiceExchange, RequestBytes)
{
    const struct
    {
        ULONG control;
        LPCTSTR id;
        LPCTSTR job;
        ULONG subParam;
        std::string request;
    } rows[] = {
        {13, nullptr, nullptr, 0, Request(13, "")},
        {13, "R", nullptr, 0, Request(13, "R")},
        {3, "{ARPUB20260101_1}", "job.1", 0, Request(3, "{ARPUB20260101_1}", "job.1")},
        {21, "R", nullptr, 0xFFFFFFFF, Request(21, "R", "", 0xFFFFFFFF)},
        {0xFFFFFFFF, "", "", 1, Request(0xFFFFFFFF, "", "", 1)},
    };
    for (const auto& row : rows) {
        ServiceCall<Outcome> call([&] { return Exchange(mgr, row.control, row.id, row.job, row.subParam); });
        EXPECT_EQ(call.AnswerNext(Answer(row.control)), row.request);
        EXPECT_EQ(call.Get().result, 0);
    }
}

TEST_F(ServiceExchange, LongNamesAreTruncated)
{
    const std::string id(200, 'i');
    const std::string job(300, 'j');
    ServiceCall<Outcome> call([&] { return Exchange(mgr, 3, id.c_str(), job.c_str(), 0); });
    EXPECT_EQ(call.AnswerNext(Answer(3)), Request(3, std::string(128, 'i'), std::string(255, 'j')));
    EXPECT_EQ(call.Get().result, 0);
}

TEST_F(ServiceExchange, NamesThatFillTheirFieldsAreSentWhole)
{
    const std::string id(128, 'i');
    const std::string job(255, 'j');
    ServiceCall<Outcome> call([&] { return Exchange(mgr, 3, id.c_str(), job.c_str(), 0); });
    EXPECT_EQ(call.AnswerNext(Answer(3)), Request(3, id, job));
    EXPECT_EQ(call.Get().result, 0);
}

TEST(ServiceExchangeMode, WithoutIdModeNoIdIsSent)
{
    CBasicPublisherMgr mgr(false, PUBLISHER_SETTING_DIR);
    ServiceCall<Outcome> call([&] { return Exchange(mgr, 3, "R", "job", 0); });
    EXPECT_EQ(call.AnswerNext(Answer(3)), Request(3, "", "job"));
    EXPECT_EQ(call.Get().result, 0);
}

// ---------------------------------------------------------------------------------------------------------------------
// Good answers

TEST_F(ServiceExchange, APayloadIsReturned)
{
    auto call = Call();
    call.AnswerNext(Answer(13, "payload"));
    const Outcome outcome = call.Get();
    EXPECT_EQ(outcome.result, 0);
    EXPECT_EQ(outcome.payload, "payload");
    EXPECT_EQ(outcome.length, 7u);
}

TEST_F(ServiceExchange, HeaderAndPayloadMayArriveSeparately)
{
    auto call = Call();
    std::string request;
    UnixPeer peer = call.Accept(request);
    EXPECT_TRUE(peer.Write(Header(13, 0, 7)));
    EXPECT_TRUE(peer.Write("payload"));
    EXPECT_EQ(call.Get().payload, "payload");
}

TEST_F(ServiceExchange, AnEmptyPayloadIsANullBuffer)
{
    auto call = Call();
    call.AnswerNext(Header(13, 0, 0) + "bytes that belong to nobody");
    const Outcome outcome = call.Get();
    EXPECT_EQ(outcome.result, 0);
    EXPECT_TRUE(outcome.isNull);
    EXPECT_EQ(outcome.length, 0u);
}

// ---------------------------------------------------------------------------------------------------------------------
// Bad answers

TEST_F(ServiceExchange, AnotherIdIsACommunicationErrorAndThePayloadIsNotRead)
{
    for (const unsigned long long id : {0ull, 14ull, 0x10000000Dull}) {
        auto call = Call();
        std::string request;
        UnixPeer peer = call.Accept(request);
        EXPECT_TRUE(peer.Write(Header(id, 0, 7))); // the payload never follows
        EXPECT_TRUE(peer.WaitForClose());
        ExpectFailure(call.Get(), -1);
    }
}

TEST_F(ServiceExchange, AnErrorCodeEndsTheExchangeWhateverItsLength)
{
    const struct
    {
        unsigned long long code;
        int result;
    } rows[] = {{1, 1}, {11, 11}, {1001, 1001}, {2013, 2013}, {0xFFFFFFFFFFFFFFFE, -2}, {0x100000005, 5}};
    for (const auto& row : rows) {
        auto call = Call();
        std::string request;
        UnixPeer peer = call.Accept(request);
        EXPECT_TRUE(peer.Write(Header(13, row.code, 7)));
        EXPECT_TRUE(peer.WaitForClose());
        ExpectFailure(call.Get(), row.result);
    }
}

TEST_F(ServiceExchange, AnErrorCodeWithAPayloadReturnsOnlyTheError)
{
    auto call = Call();
    call.AnswerNext(Header(13, 1004, 7) + "payload");
    ExpectFailure(call.Get(), 1004);
}

TEST_F(ServiceExchange, AShortHeaderIsACommunicationError)
{
    for (const size_t size : {1u, 8u, 23u}) {
        auto call = Call();
        std::string request;
        UnixPeer peer = call.Accept(request);
        EXPECT_TRUE(peer.Write(Header(13, 0, 0).substr(0, size)));
        EXPECT_TRUE(peer.WaitForClose()); // it does not wait for the rest
        ExpectFailure(call.Get(), -1);
    }
}

TEST_F(ServiceExchange, AShortPayloadIsACommunicationError)
{
    auto call = Call();
    std::string request;
    UnixPeer peer = call.Accept(request);
    EXPECT_TRUE(peer.Write(Header(13, 0, 8) + "1234"));
    EXPECT_TRUE(peer.WaitForClose());
    EXPECT_FALSE(peer.Write("5678")); // too late
    ExpectFailure(call.Get(), -1);
}

TEST_F(ServiceExchange, APeerThatClosesIsACommunicationError)
{
    for (const std::string& answer :
         {std::string(), Header(13, 0, 0).substr(0, 10), Header(13, 0, 4), Header(13, 0, 4) + "123"}) {
        auto call = Call();
        std::string request;
        UnixPeer peer = call.Accept(request);
        EXPECT_TRUE(peer.Write(answer));
        peer.Close();
        ExpectFailure(call.Get(), -1);
    }
}

TEST_F(ServiceExchange, APeerThatClosesWithoutReadingIsACommunicationError)
{
    UnixListener listener(SERVICE_SOCKET);
    for (int i = 0; i < 50; ++i) {
        auto call = std::async(std::launch::async, [this] { return Exchange(mgr, 13, "R", nullptr, 0); });
        listener.Accept().Close(); // before, during or after the client's write
        ExpectFailure(call.get(), -1);
    }
}

TEST_F(ServiceExchange, AHugeLengthIsACommunicationError)
{
    for (const unsigned long long length :
         {0x80000000ull, 0xFFFFFFFFull, 0x100000000ull, 0x100000007ull, 0x7FFFFFFFFFFFFFFFull,
          0x8000000000000000ull, 0xFFFFFFFFFFFFFFFFull}) {
        auto call = Call();
        std::string request;
        UnixPeer peer = call.Accept(request);
        EXPECT_TRUE(peer.Write(Header(13, 0, length))); // and nothing after it
        EXPECT_TRUE(peer.WaitForClose()) << length;
        ExpectFailure(call.Get(), -1);
    }
}

TEST_F(ServiceExchange, AnAnnouncedPayloadThatDoesNotArriveIsACommunicationError)
{
    for (const unsigned long long length : {0x1000000ull, 0x7FFFFFFFull}) {
        auto call = Call();
        call.AnswerNext(Header(13, 0, length) + "a few bytes");
        ExpectFailure(call.Get(), -1);
    }
}

TEST_F(ServiceExchange, AMissingServiceIsACommunicationError)
{
    ExpectFailure(Exchange(mgr, 13, "R", nullptr, 0), -1);
}

TEST_F(ServiceExchange, AStoppedServiceIsACommunicationError)
{
    UnixListener listener(SERVICE_SOCKET);
    listener.StopListening();
    ExpectFailure(Exchange(mgr, 13, "R", nullptr, 0), -1);
}

// ---------------------------------------------------------------------------------------------------------------------
// Several commands

/// The results of three commands: all pointers and lengths after the call.
struct Outcome3
{
    int result = 77;
    std::vector<std::string> payloads;
    bool allNull = true;
    bool allZero = true;
};

Outcome3 Exchange3(CBasicPublisherMgr& mgr)
{
    CBasicPublisherMgr::ServiceCommand commands[] = {
        {10, "R", nullptr, 0}, {3, "R", "J", 0}, {4, nullptr, nullptr, 3}};
    Outcome3 outcome;
    void* responses[] = {&outcome, &outcome, &outcome};
    ULONG lengths[] = {7, 7, 7};
    outcome.result = mgr.GetServiceResponse(commands, 3, responses, lengths);
    for (int i = 0; i < 3; ++i) {
        const std::unique_ptr<char[]> owner(static_cast<char*>(responses[i]));
        outcome.payloads.emplace_back(owner.get(), owner == nullptr ? 0 : lengths[i]);
        outcome.allNull = outcome.allNull && owner == nullptr;
        outcome.allZero = outcome.allZero && lengths[i] == 0;
    }
    return outcome;
}

TEST_F(ServiceExchange, CommandsAreSentInOrderOnSeparateConnections)
{
    ServiceCall<Outcome3> call([this] { return Exchange3(mgr); });
    EXPECT_EQ(call.AnswerNext(Answer(10, "first")), Request(10, "R"));
    EXPECT_EQ(call.AnswerNext(Answer(3)), Request(3, "R", "J"));
    EXPECT_EQ(call.AnswerNext(Answer(4, "third one")), Request(4, "", "", 3));
    const Outcome3 outcome = call.Get();
    EXPECT_EQ(outcome.result, 0);
    EXPECT_EQ(outcome.payloads, (std::vector<std::string>{"first", "", "third one"}));
}

TEST_F(ServiceExchange, AFailureOfTheThirdFreesTheFirstTwo)
{
    const struct
    {
        std::string answer;
        int result;
    } rows[] = {{Header(4, 22, 0), 22}, {Header(5, 0, 0), -1}, {"", -1}, {Header(4, 0, 9) + "short", -1}};
    for (const auto& row : rows) {
        ServiceCall<Outcome3> call([this] { return Exchange3(mgr); });
        call.AnswerNext(Answer(10, "first"));
        call.AnswerNext(Answer(3, "second"));
        std::string request;
        UnixPeer peer = call.Accept(request);
        peer.Write(row.answer);
        peer.FinishWriting();
        const Outcome3 outcome = call.Get();
        EXPECT_EQ(outcome.result, row.result);
        EXPECT_TRUE(outcome.allNull);
        EXPECT_TRUE(outcome.allZero);
    }
}

TEST_F(ServiceExchange, AFailureOfTheFirstSendsNoSecond)
{
    UnixListener listener(SERVICE_SOCKET);
    auto call = std::async(std::launch::async, [this] { return Exchange3(mgr); });
    UnixPeer peer = listener.Accept();
    peer.ReadExactly(408);
    peer.Write(Header(10, 36, 0));
    EXPECT_EQ(call.get().result, 36);
    EXPECT_FALSE(listener.Accept(0).IsOpen());
}

TEST_F(ServiceExchange, ACodeWithAZeroLowerHalfCountsAsSuccess)
{
    auto call = Call();
    call.AnswerNext(Header(13, 0x100000000, 7) + "payload");
    const Outcome outcome = call.Get();
    EXPECT_EQ(outcome.result, 0);
    EXPECT_TRUE(outcome.isNull);
}

// ---------------------------------------------------------------------------------------------------------------------
// Running and cancelling

TEST_F(ServiceExchange, RunsFromTheRequestToTheAnswer)
{
    EXPECT_FALSE(mgr.IsRunningCommunicateService());
    auto call = Call();
    std::string request;
    UnixPeer peer = call.Accept(request);
    EXPECT_TRUE(mgr.IsRunningCommunicateService());
    peer.Write(Answer(13));
    EXPECT_EQ(call.Get().result, 0);
    EXPECT_FALSE(mgr.IsRunningCommunicateService());
}

TEST_F(ServiceExchange, ACancelEndsAStalledExchange)
{
    EXPECT_TRUE(mgr.CancelCommunicateService()); // nothing is open
    for (const std::string& sentSoFar : {std::string(), Header(13, 0, 4)}) {
        auto call = Call();
        std::string request;
        UnixPeer peer = call.Accept(request);
        peer.Write(sentSoFar);
        EXPECT_TRUE(mgr.IsRunningCommunicateService());
        EXPECT_TRUE(mgr.CancelCommunicateService());
        EXPECT_FALSE(mgr.IsRunningCommunicateService());
        EXPECT_TRUE(peer.WaitForClose());
        ExpectFailure(call.Get(), -1);
        EXPECT_TRUE(mgr.CancelCommunicateService());
    }
}

TEST_F(ServiceExchange, SeveralThreadsDoNotInterfere)
{
    UnixListener listener(SERVICE_SOCKET);
    constexpr int count = 60;
    std::vector<std::thread> clients;
    std::atomic<int> good{0};
    for (ULONG control : {5u, 8u, 22u}) {
        clients.emplace_back([&, control] {
            for (int i = 0; i < count; ++i) {
                const Outcome outcome = Exchange(mgr, control, "R", nullptr, 0);
                good += outcome.result == 0 && outcome.payload == Number4(control) ? 1 : 0;
            }
        });
    }
    for (int i = 0; i < 3 * count; ++i) {
        UnixPeer peer = listener.Accept();
        const std::string request = peer.ReadExactly(408);
        peer.Write(request.substr(0, 8) + Number8(0) + Number8(4) + request.substr(0, 4));
    }
    for (std::thread& client : clients) {
        client.join();
    }
    EXPECT_EQ(good, 3 * count);
    EXPECT_FALSE(mgr.IsRunningCommunicateService());
}

TEST_F(ServiceExchange, ACancelAtAnyTimeResultsInSuccessOrFailure)
{
    UnixListener listener(SERVICE_SOCKET);
    std::atomic<bool> done{false};
    std::atomic<int> odd{0};
    std::thread canceller([&] {
        while (!done) {
            mgr.CancelCommunicateService();
            mgr.IsRunningCommunicateService();
        }
    });
    std::thread client([&] {
        for (int i = 0; i < 200; ++i) {
            const Outcome outcome = Exchange(mgr, 13, "R", nullptr, 0);
            odd += outcome.result == 0 ? outcome.payload != "good" : outcome.result != -1;
        }
        done = true;
    });
    while (!done) {
        UnixPeer peer = listener.Accept(10);
        if (peer.IsOpen() && peer.ReadExactly(408).size() == 408) {
            peer.Write(Answer(13, "good"));
        }
    }
    client.join();
    canceller.join();
    EXPECT_EQ(odd, 0);
    EXPECT_FALSE(mgr.IsRunningCommunicateService());
}

} // namespace

// Fails each allocation of every operation of the library in turn. The operation returns a result code,
// throws no exception, and leaves a connection that serves the next operation.
#include "FailingMemory.h"
#include "FakePublisher.h"
#include "SyslogLines.h"
#include "TcpPeer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

using testing::AnyOf;
using testing::Contains;

namespace {

constexpr BYTE DATA[] = {1, 2, 3};
constexpr char ACCOUNT[] = "a name that does not fit into the string object itself";

struct Operation
{
    const char* name;
    std::vector<std::string> replies;
    std::function<DWORD(DWORD handle)> call;
};

template <class Record>
std::function<DWORD(DWORD)> Fill(DWORD (*operation)(DWORD, Record*))
{
    return [operation](DWORD handle) {
        Record record{};
        return operation(handle, &record);
    };
}

std::function<DWORD(DWORD)> Block(DWORD (*operation)(DWORD, BYTE*, DWORD, DWORD*))
{
    return [operation](DWORD handle) {
        BYTE block[16];
        DWORD size = 0;
        return operation(handle, block, sizeof block, &size);
    };
}

std::vector<Operation> Operations()
{
    const std::string item = GoodReply(WireWord(1));
    const std::string done = Done();
    return {
        {"GetDeviceInfo",
         {item},
         [](DWORD handle) {
             char text[64];
             return GetDeviceInfo(handle, 0, text, sizeof text);
         }},
        {"GetDeviceInfoInt",
         {item},
         [](DWORD handle) {
             DWORD value = 0;
             return GetDeviceInfoInt(handle, 0, &value);
         }},
        {"GetServerMode", {GoodReply("\2")}, Fill(GetServerMode)},
        {"GetPrnPossibilityNumber", {item}, Fill(GetPrnPossibilityNumber)},
        {"GetASBStatus", {item}, Block(GetASBStatus)},
        {"GetPrnStStatus", {item}, Block(GetPrnStStatus)},
        {"GetJobNumber",
         {GoodReply(std::string("\0\1", 2))},
         [](DWORD handle) {
             DWORD count = 0;
             return GetJobNumber(handle, 0, &count);
         }},
        {"GetJobStatus",
         {done},
         [](DWORD handle) {
             JobStatus jobs[1];
             DWORD count = 0;
             return GetJobStatus(handle, 0, jobs, 1, &count);
         }},
        {"GetJobStatusEx",
         {done},
         [](DWORD handle) {
             JobStatusEx jobs[1];
             DWORD count = 0;
             return GetJobStatusEx(handle, 0, jobs, 1, &count);
         }},
        {"GetPublishID",
         {GoodReply("id")},
         [](DWORD handle) {
             char id[64];
             DWORD size = 0;
             return GetPublishID(handle, id, sizeof id, &size);
         }},
        {"CommitJob", {done}, [](DWORD handle) { return CommitJob(handle, 7); }},
        {"CancelJob", {done}, [](DWORD handle) { return CancelJob(handle, -2000000000); }},
        {"CancelJobForMonitor", {done}, [](DWORD handle) { return CancelJobForMonitor(handle, 7, "", ""); }},
        {"CancelJobForBridge",
         {done},
         [](DWORD handle) { return CancelJobForBridge(handle, ACCOUNT, "", ""); }},
        {"SendJobData",
         {item, GoodReply(ACCOUNT), done},
         [](DWORD handle) {
             int id = 0;
             return SendJobData(handle, DATA, sizeof DATA, &id);
         }},
        {"SendDiscInfo",
         {done, done, done, done},
         [](DWORD handle) { return SendDiscInfo(handle, 0, DATA, sizeof DATA); }},
        {"SendDiscWriteInfo",
         {done, done},
         [](DWORD handle) { return SendDiscWriteInfo(handle, 0, DATA, sizeof DATA); }},
        {"SendPrnData",
         {GoodReply(ACCOUNT), done, done},
         [](DWORD handle) { return SendPrnData(handle, 0, DATA, sizeof DATA); }},
        {"SendDiscImage",
         {done, done},
         [](DWORD handle) { return SendDiscImage(handle, 0, DATA, sizeof DATA, sizeof DATA, 0, ACCOUNT); }},
        {"SendSpecialJobData",
         {item, GoodReply(ACCOUNT), done, done, done, done},
         [](DWORD handle) {
             int id = 0;
             return SendSpecialJobData(handle, DATA, sizeof DATA, DATA, sizeof DATA, &id);
         }},
    };
}

/// Makes the call while all its allocations after the first `allocation` fail. Sets `hasFailed` to whether
/// one failed.
DWORD CallWithout(size_t allocation, const std::function<DWORD()>& call, bool& hasFailed)
{
    const FailingMemory memory(1, allocation, FailingMemory::ALL);
    DWORD result = 99;
    try {
        result = call();
    } catch (const std::bad_alloc&) {
        ADD_FAILURE() << "the library threw an exception";
    }
    hasFailed = memory.HasFailed();
    return result;
}

/// A transport that runs out of memory in the thread that writes.
class ThrowingComm : public FakeComm
{
public:
    using FakeComm::FakeComm;
    int WriteToCount(const char*, int) override
    {
        throw std::bad_alloc();
    }
};

} // namespace

TEST(AllocationFailure, EveryOperationReturnsAResultCode)
{
    SyslogLines lines;
    for (const Operation& operation : Operations()) {
        bool hasFailed = true;
        size_t allocation = 0;
        for (; hasFailed; ++allocation) {
            SCOPED_TRACE(std::string(operation.name) + " " + std::to_string(allocation));
            FakePublisher server(operation.replies);
            const DWORD result =
                CallWithout(allocation, [&] { return operation.call(server.Handle()); }, hasFailed);
            // A retry finds no server (9). A failure to create the folder is ignored (0).
            EXPECT_THAT(result, hasFailed ? AnyOf(0U, 2U, 9U) : AnyOf(0U, 0U, 0U));
            EXPECT_EQ(server->m_refCount.load(), 0);
        }
        EXPECT_GT(allocation, 3U) << operation.name;
        EXPECT_THAT(lines.Take(),
                    Contains(std::string("<3>\t## trace ## ") + operation.name + " allocation Get Memory"));
    }
}

TEST(AllocationFailure, FailsInAnUploadThread)
{
    auto* const comm = new ThrowingComm({FakeConnection()}); // owned by the server
    FakeServer server(*comm);
    EXPECT_EQ(SendDiscImage(server.Handle(), 0, DATA, sizeof DATA, 100, 0, "image"), 2U);
}

TEST(AllocationFailure, ClosesAConnectionDuringAnExchange)
{
    bool hasFailed = true;
    for (size_t allocation = 0; hasFailed; ++allocation) {
        SCOPED_TRACE(allocation);
        FakePublisher server(std::vector<FakeConnection>{
            {.reply = GoodReply("\3")}, {.reply = GoodReply("\4")}, {.reply = GoodReply("\4")}});
        DWORD mode = 0;
        CallWithout(allocation, [&] { return GetServerMode(server.Handle(), &mode); }, hasFailed);
        if (hasFailed) {
            EXPECT_EQ(GetServerMode(server.Handle(), &mode), 0U);
            // The first reply belongs to the first request: the second request must not read it.
            const std::vector<std::string>& requests = server.Comm().writes;
            EXPECT_EQ(mode, requests.size() == 1 && server.Comm().Unread().empty() ? mode : 4U);
        }
    }
}

TEST(AllocationFailure, StartConnectionReturnsAResultCode)
{
    bool hasFailed = true;
    for (size_t allocation = 0; hasFailed; ++allocation) {
        SCOPED_TRACE(allocation);
        const std::vector<std::string> answers = {GoodReply("\2"), GoodReply(WireWord(0)), Done(),
                                                  GoodReply("3.30")};
        TcpServer server({TcpServer::Answers(answers), TcpServer::Answers(answers)}, "127.0.0.1", 80);
        DWORD handle = 99;
        const DWORD result =
            CallWithout(allocation, [&] { return StartConnection(0, "127.0.0.1", &handle); }, hasFailed);
        EXPECT_THAT(result, hasFailed ? AnyOf(0U, 2U) : AnyOf(0U, 0U)); // the version is optional
        EXPECT_EQ(handle, result == 0 ? 1U : 0U);
        if (result == 0) {
            EndConnection(handle);
        }
        EXPECT_THAT(g_pvarrNCL, testing::Each(nullptr));
    }
}

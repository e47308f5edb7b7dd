#include "Operation.h"
#include "Servlets.h"
#include "SyslogLines.h"
#include "TcpPeer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <future>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// An object whose requests go to a scripted peer over a real socket; closed by EndConnection.
ST_NCL* ConnectTo(const TcpServer& server)
{
    auto* const ncl = new ST_NCL;
    ncl->m_strServerAddress = server.Address();
    ncl->m_bFinishStartConnection = TRUE;
    ncl->m_pHttp = new CHttp;
    ncl->m_pHttp->Open(server.Address(), server.Port(), FALSE);
    return ncl;
}

} // namespace

TEST(ConnectionObject, StartsEmpty)
{
    const ST_NCL ncl;
    EXPECT_EQ(ncl.m_bDiscImageCancelSending, 0);
    EXPECT_EQ(ncl.m_bEndConnection, 0);
    EXPECT_EQ(ncl.m_bFinishStartConnection, 0);
    EXPECT_EQ(ncl.m_nServerJobID, 0);
    EXPECT_EQ(ncl.m_unPrnIndex, 0U);
    EXPECT_EQ(ncl.m_dwServerMode, 0U);
    EXPECT_EQ(ncl.m_dwNPType, 0U);
    EXPECT_EQ(ncl.m_ullDiscImageOfs, 0U);
    EXPECT_EQ(ncl.m_pHttp, nullptr);
    EXPECT_EQ(ncl.m_pHttpSecure, nullptr);
    EXPECT_EQ(ncl.m_strServerAddress, "");
    EXPECT_EQ(ncl.m_strUploadUserName, "");
    EXPECT_EQ(ncl.m_strUploadPassword, "");
    EXPECT_EQ(ncl.m_strPublishID, "");
    EXPECT_EQ(ncl.m_strJSessionID, "");
    EXPECT_EQ(ncl.m_refCount.load(), 0);
    EXPECT_EQ(ncl.m_strImageFileName, "");
    EXPECT_EQ(ncl.m_pMD, nullptr);
    EXPECT_EQ(ncl.m_dwCompatiMode, 0U);
}

TEST(ConnectionTable, ReturnsTheFirstFreeHandle)
{
    ST_NCL one;
    ST_NCL two;
    ST_NCL three;
    EXPECT_EQ(SetNCLObj(nullptr), 0U);
    EXPECT_EQ(g_pvarrNCL.size(), 0U);
    EXPECT_EQ(SetNCLObj(&one), 1U);
    EXPECT_EQ(SetNCLObj(&two), 2U);
    EXPECT_EQ(GetNCLObj(1), &one);
    EXPECT_EQ(GetNCLObj(2), &two);
    EXPECT_EQ(DeleteNCLObj(1), 0U);
    EXPECT_EQ(GetNCLObj(1), nullptr);
    EXPECT_EQ(g_pvarrNCL.size(), 2U); // it never shrinks
    EXPECT_EQ(SetNCLObj(&three), 1U);
    EXPECT_EQ(GetNCLObj(1), &three);
    EXPECT_THAT(g_pvarrNCL, ElementsAre(&three, &two));
    DeleteNCLObj(1);
    DeleteNCLObj(2);
}

TEST(ConnectionTable, HoldsAHundredEntries)
{
    std::vector<ST_NCL> objects(101);
    for (DWORD index = 0; index < 100; ++index) {
        ASSERT_EQ(SetNCLObj(&objects[index]), index + 1);
    }
    EXPECT_EQ(SetNCLObj(&objects[100]), 0U);
    EXPECT_EQ(g_pvarrNCL.size(), 100U);
    DeleteNCLObj(57);
    EXPECT_EQ(SetNCLObj(&objects[100]), 57U);
    EXPECT_EQ(SetNCLObj(&objects[56]), 0U);
    for (DWORD handle = 1; handle <= 100; ++handle) {
        EXPECT_EQ(GetNCLObj(handle), &objects[handle == 57 ? 100 : handle - 1]);
        DeleteNCLObj(handle);
    }
}

TEST(ConnectionTable, FindsNoObjectForAnInvalidHandle)
{
    for (const DWORD handle : {0U, 1U, 100U, 101U, 0x80000000U, 0xFFFFFFFFU}) {
        EXPECT_EQ(GetNCLObj(handle), nullptr);
    }
    ST_NCL one;
    SetNCLObj(&one);
    for (const DWORD handle : {0U, 2U, 101U, 0xFFFFFFFFU}) {
        EXPECT_EQ(GetNCLObj(handle), nullptr);
    }
    DeleteNCLObj(1);
}

TEST(ConnectionTableDeathTest, FreeingAnInvalidHandleStopsTheProcess)
{
    EXPECT_DEATH(DeleteNCLObj(0), "!= FALSE");
    EXPECT_DEATH(DeleteNCLObj(1), "!= FALSE");
    ST_NCL one;
    SetNCLObj(&one);
    EXPECT_DEATH(DeleteNCLObj(2), "!= FALSE");
    DeleteNCLObj(1);
}

TEST(ConnectionTable, ReadersTakeNoLock)
{
    ST_NCL one;
    SetNCLObj(&one);
    const std::lock_guard lock(g_csNCLArray);
    EXPECT_EQ(GetNCLObj(1), &one);
    EXPECT_EQ(DeleteNCLObj(1), 0U);
}

TEST(ConnectionTable, ThreadsNeverShareAnEntry)
{
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread) {
        threads.emplace_back([] {
            ST_NCL mine;
            for (int round = 0; round < 500; ++round) {
                const DWORD handle = SetNCLObj(&mine);
                ASSERT_NE(handle, 0U);
                EXPECT_EQ(GetNCLObj(handle), &mine);
                DeleteNCLObj(handle);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_LE(g_pvarrNCL.size(), 8U);
}

TEST(RefCounter, CountsItsScope)
{
    std::atomic<int> count = 5;
    {
        const CAutoRefCounter<std::atomic<int>> one(count);
        EXPECT_EQ(count.load(), 6);
        const CAutoRefCounter<std::atomic<int>> two(count);
        EXPECT_EQ(count.load(), 7);
    }
    EXPECT_EQ(count.load(), 5);
}

TEST(HostName, IsTheServersAddress)
{
    ST_NCL ncl;
    ncl.m_strServerAddress = "server";
    EXPECT_STREQ(GetNCLHostName(&ncl), "server");
    EXPECT_EQ(GetNCLHostName(nullptr), nullptr);
}

TEST(ErrParam, IsLogged)
{
    SyslogLines lines;
    EXPECT_EQ(ReturnErrParam(), 1U);
    EXPECT_THAT(lines.Take(), ElementsAre("<3>[CommLib] ***Common Parameta Error***"));
}

TEST(NPType, IsThatOfTheConnection)
{
    FakeServer server;
    for (const DWORD kind : {0U, 1U, 2U, 3U}) {
        server.Object().m_dwNPType = kind;
        SyslogLines lines;
        DWORD value = 99;
        EXPECT_EQ(GetNPType(server.Handle(), &value), 0U);
        EXPECT_EQ(value, kind);
        EXPECT_THAT(lines.Take(), ElementsAre("<7>server , GetNPType , " + std::to_string(kind)));
    }
}

TEST(NPType, IsUnknownForAnUnknownHandle)
{
    SyslogLines lines;
    DWORD value = 99;
    EXPECT_EQ(GetNPType(5, &value), 0U);
    EXPECT_EQ(value, 0U);
    EXPECT_EQ(GetNPType(5, nullptr), 0U);
    EXPECT_THAT(lines.Take(), ElementsAre("<7>(null) , GetNPType , 0", "<7>(null) , GetNPType , 0"));
}

TEST(EndConnection, RefusesAnInvalidHandle)
{
    SyslogLines lines;
    EndConnection(0);
    EndConnection(1);
    EXPECT_THAT(lines.Take(), ElementsAre("<3>[CommLib] ***Common Parameta Error***",
                                          "<3>[CommLib] ***Common Parameta Error***"));
}

TEST(EndConnection, ClosesAndFreesTheHandle)
{
    bool isClosed = false;
    {
        TcpServer server({[&](TcpServer& self, TcpPeer& peer) {
            self.TakeRequest(peer);
            peer.Write(GoodReply("\2"));
            isClosed = peer.WaitForClose();
        }});
        const DWORD handle = SetNCLObj(ConnectTo(server));
        DWORD mode = 0;
        ASSERT_EQ(GetServerMode(handle, &mode), 0U);
        SyslogLines lines;
        EndConnection(handle);
        EXPECT_THAT(lines.Take(), IsEmpty());
        EXPECT_EQ(GetNCLObj(handle), nullptr);
        EXPECT_EQ(GetServerMode(handle, &mode), 1U);
        FakeServer next;
        EXPECT_EQ(next.Handle(), handle); // the stale handle refers to a later connection
    }
    EXPECT_TRUE(isClosed);
}

TEST(EndConnection, SendsTheDigestOfAnUnfinishedImage)
{
    for (const bool isGood : {true, false}) {
        TcpServer server({TcpServer::Answers({HttpResponse("", isGood ? "200 OK" : "500 Error")})});
        ST_NCL* const ncl = ConnectTo(server);
        ncl->m_dwNPType = NCL_NPTYPE_300NII;
        ncl->m_nServerJobID = 0x1F;
        ncl->m_strImageFileName = "DiscImage_a";
        ncl->m_pMD = std::make_unique<MessageDigest>(BCH_HASH_TYPE_SHA1);
        ncl->m_pMD->Update(reinterpret_cast<const uint8_t*>("abc"), 3);
        SyslogLines lines;
        EndConnection(SetNCLObj(ncl));
        EXPECT_THAT(
            server.Requests(),
            ElementsAre("POST /webapp2/FileHashSetter HTTP/1.1\r\nHost:localhost\r\n"
                        "Content-Type:application/x-www-form-urlencoded\r\nContent-Length: 102\r\n\r\n"
                        "serverjobid=0000001f&filename=DiscImage_a&hashtype=SHA-1&hash="
                        "a9993e364706816aba3e25717850c26c9cd0d89d"));
        if (isGood) {
            EXPECT_THAT(lines.Take(), IsEmpty());
        } else {
            EXPECT_THAT(lines.Take(), ElementsAre("<3>[Apache/Tomcat] HTTP 500 error (POST, "
                                                  "/webapp2/FileHashSetter)",
                                                  "<3>\t## trace ## EndConnection SendHash() Server Other"));
        }
    }
}

TEST(EndConnection, SendsNoDigestToAnOldServerOrWithoutADigest)
{
    for (const DWORD compatible : {1U, 0U}) {
        TcpServer server({TcpServer::Answers({HttpResponse("")})});
        ST_NCL* const ncl = ConnectTo(server);
        ncl->m_dwCompatiMode = compatible;
        if (compatible == 1) {
            ncl->m_pMD = std::make_unique<MessageDigest>(BCH_HASH_TYPE_SHA1);
        }
        EndConnection(SetNCLObj(ncl));
        EXPECT_THAT(server.Requests(), IsEmpty());
        EXPECT_EQ(server.Connections(), 0);
    }
}

TEST(EndConnection, WaitsForTheOperationInProgressAndRefusesOthers)
{
    std::promise<void> arrived;
    std::promise<void> mayAnswer;
    TcpServer server({[&](TcpServer& self, TcpPeer& peer) {
        self.TakeRequest(peer);
        arrived.set_value();
        mayAnswer.get_future().wait();
        peer.Write(GoodReply("\2"));
        peer.WaitForClose();
    }});
    ST_NCL* const ncl = ConnectTo(server);
    const DWORD handle = SetNCLObj(ncl);
    DWORD mode = 77;
    std::future<DWORD> operation =
        std::async(std::launch::async, [&] { return GetServerMode(handle, &mode); });
    arrived.get_future().wait();
    std::future<void> end = std::async(std::launch::async, [&] { EndConnection(handle); });
    while (std::atomic_ref(ncl->m_bEndConnection) == FALSE) {
    }
    DWORD refused = 77;
    EXPECT_EQ(GetServerMode(handle, &refused), 1U);
    EXPECT_EQ(refused, 77U);
    EXPECT_EQ(end.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
    mayAnswer.set_value();
    end.wait();
    EXPECT_EQ(operation.get(), 0U);
    EXPECT_EQ(mode, 2U);
    EXPECT_EQ(GetNCLObj(handle), nullptr);
}

TEST(EndConnection, ToleratesOperationsThatStartAtAnyTime)
{
    for (int round = 0; round < 200; ++round) {
        std::atomic<bool> isEnding = false;
        const DWORD handle = SetNCLObj(new ST_NCL); // without a connection: each operation fails at once
        std::thread other([&] {
            while (!isEnding) {
                DWORD mode = 0;
                DWORD kind = 0;
                EXPECT_EQ(GetServerMode(handle, &mode), 1U);
                EXPECT_EQ(GetNPType(handle, &kind), 0U);
            }
        });
        EndConnection(handle);
        isEnding = true;
        other.join();
    }
}

// An end does not wait for the lookups of other connections. With the thread sanitizer, threads that read an
// atomic in a loop keep others from writing it, so a loop that waits for those lookups may never end.
TEST(EndConnection, EndsWhileOtherConnectionsAreUsed)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < 40; ++i) {
        threads.emplace_back([] {
            for (int round = 0; round < 500; ++round) {
                const DWORD handle = SetNCLObj(new ST_NCL);
                for (int operation = 0; operation < 7; ++operation) {
                    const NCLGuard guard(handle);
                    EXPECT_EQ(guard.Object(), GetNCLObj(handle));
                }
                EndConnection(handle);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_THAT(g_pvarrNCL, testing::Each(nullptr));
}

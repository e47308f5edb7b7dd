// The number of reads of setting files and registry, and the consistency of each record.
#include "CountedLocks.h"
#include "PublisherFiles.h"
#include "PublisherMgr.h"
#include "ReadPass.h"

#include <gmock/gmock.h>

#include <atomic>
#include <functional>
#include <thread>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

constexpr char REGISTRY[] = "registry.txt";

void WriteNetworkPublisher(const std::string& id)
{
    WritePublisher(id, "[Common]\nPublisherName=Net\nPublisherConnectionType=1\nPublisherURL=server\n");
}

PUBLISHERINFO Record(CPublisherMgr& mgr, const char* id, BOOL bConnectionError = FALSE)
{
    PUBLISHERINFO info;
    EXPECT_TRUE(mgr.GetPublisherInfo(id, &info, bConnectionError)) << id;
    return info;
}

} // namespace

TEST(RecordReading, EachOperationReadsTheFileOnce)
{
    WriteLocalPublisher("P", "20000009");
    CPublisherMgr mgr(true);
    using Operation = std::function<void()>;
    const std::pair<Operation, std::vector<std::string>> rows[] = {
        {[&] { mgr.GetConnectType("P"); }, {"P.ini"}},
        {[&] { mgr.GetPublisherName("P"); }, {"P.ini"}},
        {[&] { mgr.GetNPType("P"); }, {"P.ini"}},
        {[&] { mgr.GetLocalDeviceDPType("P"); }, {"P.ini", REGISTRY}},
        {[&] { mgr.GetPublisherDevType("P"); }, {"P.ini", REGISTRY}},
        {[&] { mgr.GetPublisherMgrIFFromID("P"); }, {"P.ini", REGISTRY}},
        {[&] { Record(mgr, "P"); }, {"P.ini", REGISTRY}},
    };
    CountedLocks::Take();
    for (const auto& [operation, locks] : rows) {
        operation();
        EXPECT_THAT(CountedLocks::Take(), ElementsAreArray(locks)) << &locks - &rows[0].second;
    }
}

TEST(RecordReading, EachModelReadsTheFileOnce)
{
    CPublisherMgr mgr(true);
    for (const char* dpType : {"00000000", "00000002", "00000003", "00000008", "20000009", "30000009"}) {
        WriteLocalPublisher("P", dpType);
        CountedLocks::Take();
        EXPECT_EQ(Record(mgr, "P").strPublisherName, "Lab") << dpType;
        EXPECT_THAT(CountedLocks::Take(), ElementsAre("P.ini", REGISTRY)) << dpType;
    }
    WriteNetworkPublisher("N");
    EXPECT_EQ(Record(mgr, "N", TRUE).strHostName, "server");
    EXPECT_THAT(CountedLocks::Take(), ElementsAre("N.ini"));
}

TEST(RecordReading, OnePassReadsEachFileAndTheRegistryOnce)
{
    for (const char* id : {"A", "B", "C"}) {
        WriteLocalPublisher(id, "20000009");
    }
    WriteNetworkPublisher("N");
    CPublisherMgr mgr(true);
    CountedLocks::Take();
    const ReadPass pass;
    for (const char* id : {"A", "N", "B", "C"}) {
        const bool bNetwork = mgr.GetConnectType(id) == PUBMGR_CONNECTTYPE_NETWORK;
        Record(mgr, id, bNetwork);
        EXPECT_EQ(mgr.GetPublisherDevType(id),
                  bNetwork ? UINT{PUBMGR_PUBLISHERTYPE_NETWORK} : UINT{PUBMGR_PUBLISHERTYPE_300III_BD});
    }
    EXPECT_THAT(CountedLocks::Take(), ElementsAre("A.ini", REGISTRY, "N.ini", "B.ini", "C.ini"));
}

TEST(RecordReading, TheNextPassSeesEveryChange)
{
    CPublisherMgr mgr(true);
    for (const char* name : {"One", "Two", "Sie"}) { // equal length, within one tick of the file clock
        WritePublisher("P", std::string("[Common]\nPublisherName=") + name + "\n");
        const ReadPass pass;
        EXPECT_EQ(Record(mgr, "P").strPublisherName, name);
    }
    WritePublisher("P", "[Common]\nGUID={G}\n");
    for (const char* dpType : {"00000003", "00000004", "00000008"}) {
        WriteRegistry(DeviceSection("{G}", std::string("\"DPType\"=dword:") + dpType + "\n"));
        const ReadPass pass;
        EXPECT_EQ(Record(mgr, "P").uiPublisherDevType, static_cast<UINT>(dpType[7] - '0'));
    }
    std::filesystem::remove(PublisherFile("P"));
    const ReadPass pass;
    PUBLISHERINFO info;
    EXPECT_FALSE(mgr.GetPublisherInfo("P", &info, FALSE));
}

TEST(RecordReading, AConcurrentWriterNeverTearsARecord)
{
    const auto block = [](int number) {
        const std::string value = std::to_string(number);
        return "PublishMode=" + value + '\0' + "Stacker1=" + value + '\0' + "Stacker4=" + value + '\0' +
               "RetryTimes=" + value + '\0';
    };
    WritePublisher("P", "[Common]\nPublishMode=0\nStacker1=0\nStacker4=0\nRetryTimes=0\n");
    std::atomic<bool> end = false;
    std::thread writer([&] {
        for (int round = 0; !end; ++round) {
            WritePrivateProfileSectionA("Common", block(round % 2).c_str(), PublisherFile("P").c_str());
        }
    });
    CPublisherMgr mgr(true);
    bool isTorn = false;
    bool isBoth[2] = {false, false};
    for (int round = 0; round < 3000 || !isBoth[0] || !isBoth[1]; ++round) {
        const PUBLISHERINFO info = Record(mgr, "P");
        isTorn = isTorn || info.uiStacker1DiscType != info.uiPublishMode ||
                 info.uiStacker4DiscType != info.uiPublishMode || info.uiRetryCount != info.uiPublishMode;
        isBoth[info.uiPublishMode % 2] = true;
    }
    end = true;
    writer.join();
    EXPECT_FALSE(isTorn);
}

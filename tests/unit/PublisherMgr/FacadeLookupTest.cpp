// The implementation that serves a publisher.
#include "LogAgent.h"
#include "ManagerLog.h"
#include "Models.h"
#include "NetworkPublisherMgr.h"
#include "PublisherFiles.h"
#include "PublisherMgr.h"
#include "Win_def_log.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>
#include <string>
#include <typeindex>
#include <typeinfo>
#include <vector>

namespace {

/// A number in the format of the registry file.
std::string Hex8(UINT value)
{
    std::ostringstream text;
    text << std::hex << std::setw(8) << std::setfill('0') << value;
    return text.str();
}

TEST(PublisherMgrType, EachModelValueHasItsClass)
{
    const struct
    {
        UINT type;
        std::type_index model;
    } rows[] = {
        {0, typeid(CBasicPublisherMgr)},
        {1, typeid(CNetworkPublisherMgr)},
        {2, typeid(CAPPublisherMgr)},
        {3, typeid(CSDPublisherMgr)},
        {4, typeid(C30BDPublisherMgr)},
        {0x10000005, typeid(C300MODPublisherMgr)},
        {6, typeid(C30BDAPublisherMgr)},
        {0x10000007, typeid(C300IIDVDPublisherMgr)},
        {0x20000007, typeid(C300IIBDPublisherMgr)},
        {8, typeid(C30IIPublisherMgr)},
        {0x10000009, typeid(C300IIIDVDPublisherMgr)},
        {0x20000009, typeid(C300IIIBDPublisherMgr)},
        {0x30000009, typeid(C300IIIBDXLPublisherMgr)},
        {0x30000008, typeid(C30IIBDXLPublisherMgr)},
    };
    for (const bool idMode : {true, false}) {
        CPublisherMgr mgr(idMode);
        for (const auto& row : rows) {
            IPublisherMgr* found = mgr.GetPublisherMgrIFFromType(row.type);
            ASSERT_NE(found, nullptr) << row.type;
            const IPublisherMgr& model = *found;
            EXPECT_EQ(std::type_index(typeid(model)), row.model) << row.type;
        }
        for (const UINT type : {5u, 7u, 9u, 10u, 0x20000005u, 0x30000007u, 0xFFFFFFFFu}) {
            EXPECT_EQ(mgr.GetPublisherMgrIFFromType(type), nullptr) << type;
        }
    }
}

TEST(PublisherMgrType, DPTypeMap)
{
    const struct
    {
        UINT dpType;
        UINT model;
    } rows[] = {
        {2, 2},
        {3, 3},
        {4, 4},
        {5, 0x10000005},
        {6, 6},
        {7, 0x20000007},
        {8, 8},
        {9, 0x20000009},
        {0x10000005, 0x10000005},
        {0x10000007, 0x10000007},
        {0x20000007, 0x20000007},
        {0x10000009, 0x10000009},
        {0x20000009, 0x20000009},
        {0x30000008, 0x30000008},
        {0x30000009, 0x30000009},
        // any other
        {0, 0},
        {1, 0},
        {10, 0},
        {0x10000002, 0},
        {0x20000005, 0},
        {0x30000007, 0},
        {0x10000008, 0},
        {0xFFFFFFFF, 0},
    };
    CPublisherMgr mgr(true);
    for (const auto& row : rows) {
        WriteLocalPublisher("R", Hex8(row.dpType));
        EXPECT_EQ(mgr.GetLocalDeviceDPType("R"), row.dpType);
        EXPECT_EQ(mgr.GetPublisherDevType("R"), row.model) << row.dpType;
        IPublisherMgr* found = mgr.GetPublisherMgrIFFromID("R");
        ASSERT_NE(found, nullptr) << row.dpType;
        EXPECT_EQ(found->GetPublisherMgrType(), row.model) << row.dpType;
        PUBLISHERINFO info;
        EXPECT_TRUE(mgr.GetPublisherInfo("R", &info, FALSE));
        EXPECT_EQ(info.uiPublisherDevType, row.model) << row.dpType;
    }
}

TEST(PublisherMgrType, Family7IsTheBluRayModelAndTheFullValueTheDVDModel)
{
    CPublisherMgr mgr(true);
    WriteLocalPublisher("R", "00000007");
    EXPECT_NE(dynamic_cast<C300IIBDPublisherMgr*>(mgr.GetPublisherMgrIFFromID("R")), nullptr);
    WriteLocalPublisher("R", "10000007");
    EXPECT_NE(dynamic_cast<C300IIDVDPublisherMgr*>(mgr.GetPublisherMgrIFFromID("R")), nullptr);
}

TEST(PublisherMgrType, AMissingDeviceKeyIsServedAsBasic)
{
    WritePublisher("R", "[Common]\nGUID={absent}\nPublisherName=Lab\n");
    CPublisherMgr mgr(true);
    EXPECT_EQ(mgr.GetLocalDeviceDPType("R"), 0xFFFFFFFFu);
    EXPECT_EQ(mgr.GetPublisherDevType("R"), 0u);
    PUBLISHERINFO info;
    info.uiPublisherDevType = 8;
    EXPECT_TRUE(mgr.GetPublisherInfo("R", &info, FALSE));
    EXPECT_EQ(info.strPublisherName, "Lab");
    EXPECT_EQ(info.uiPublisherDevType, 0u);
}

TEST(PublisherMgrType, AMissingFileIsBasicAfterOneLogLine)
{
    MakePublisherFolder();
    LogAgent agent;
    SetLogLevel(2);
    CPublisherMgr mgr(true);
    EXPECT_EQ(mgr.GetPublisherDevType("R"), 0u);
    EXPECT_EQ(
        agent.TakeAll(),
        std::vector{LogLine(4, "CPublisherMgr::GetConnectType, "
                               "\"/opt/arven/Ulmar Disc Maker/conf/RegPublisher/R.ini\" is not found")});
    EXPECT_EQ(mgr.GetLocalDeviceDPType("R"), 0u);
    EXPECT_TRUE(agent.TakeAll().empty());
}

TEST(PublisherMgrType, BelowLevelTwoNothingIsLogged)
{
    MakePublisherFolder();
    LogAgent agent;
    SetLogLevel(1);
    CPublisherMgr mgr(true);
    PUBLISHERINFO info;
    mgr.GetConnectType("R");
    mgr.GetPublisherInfo(nullptr, &info, FALSE);
    mgr.SetServiceJobCancel(nullptr, "J", nullptr);
    EXPECT_TRUE(agent.TakeAll().empty());
}

TEST(PublisherMgrType, ATextIsNotADPType)
{
    WritePublisher("R", "[Common]\nGUID={G}\n");
    WriteRegistry(DeviceSection("{G}", "\"DPType\"=\"6\"\n"));
    EXPECT_EQ(CPublisherMgr(true).GetLocalDeviceDPType("R"), 0xFFFFFFFFu);
}

TEST(PublisherMgrType, ANullOrEmptyIdHasNoImplementation)
{
    CPublisherMgr mgr(true);
    EXPECT_EQ(mgr.GetPublisherMgrIFFromID(nullptr), nullptr);
    EXPECT_EQ(mgr.GetPublisherMgrIFFromID(""), nullptr);
    EXPECT_EQ(mgr.GetPublisherDevType(nullptr), 0u);
    EXPECT_EQ(mgr.GetConnectType(nullptr), 0u);
    EXPECT_EQ(mgr.GetConnectType(""), 0u);
    EXPECT_EQ(mgr.GetLocalDeviceDPType(nullptr), 0xFFFFFFFFu);
}

TEST(ConnectType, ComesFromTheFile)
{
    const struct
    {
        const char* line;
        UINT connectType;
        UINT model;
    } rows[] = {
        {"", 0, 6},
        {"PublisherConnectionType=\n", 0, 6},
        {"PublisherConnectionType=0\n", 0, 6},
        {"PublisherConnectionType=-1\n", 0, 6},
        {"PublisherConnectionType=1\n", 1, 1},
        {"PublisherConnectionType=2\n", 2, 0},
        {"PublisherConnectionType=-2\n", 0xFFFFFFFE, 0},
        {"PublisherConnectionType=x\n", 0, 6},
    };
    WriteLocalPublisher("R", "00000006");
    CPublisherMgr mgr(true);
    for (const auto& row : rows) {
        WritePublisher("R", std::string("[Common]\nGUID={G}\n") + row.line);
        EXPECT_EQ(mgr.GetConnectType("R"), row.connectType) << row.line;
        EXPECT_EQ(mgr.GetPublisherDevType("R"), row.model) << row.line;
    }
}

TEST(ConnectType, ANetworkPublisherIsServedAsSuchWithAnyGUID)
{
    WriteLocalPublisher("R", "00000007");
    WritePublisher("R", "[Common]\nGUID={G}\nPublisherConnectionType=1\n");
    CPublisherMgr mgr(true);
    EXPECT_EQ(mgr.GetPublisherDevType("R"), UINT{PUBMGR_PUBLISHERTYPE_NETWORK});
    EXPECT_NE(dynamic_cast<CNetworkPublisherMgr*>(mgr.GetPublisherMgrIFFromID("R")), nullptr);
}

TEST(NPType, IsAtMostThree)
{
    CPublisherMgr mgr(true);
    EXPECT_EQ(mgr.GetNPType("absent"), 0u);
    const struct
    {
        const char* line;
        UINT type;
    } rows[] = {// only the first 31 bytes count
                {"NPType=0000000000000000000000000000003\n", 3},
                {"NPType=00000000000000000000000000000003\n", 0},
                {"", 0},
                {"NPType=0\n", 0},
                {"NPType=1\n", 1},
                {"NPType=2\n", 2},
                {"NPType=3\n", 3},
                {"NPType=4\n", 0},
                {"NPType=7\n", 0},
                {"NPType=-1\n", 0},
                {"NPType=\n", 0},
                {"NPType=x\n", 0},
                {"NPType=99999999999999999999\n", 0},
                {"NPType=2x\n", 2}};
    for (const auto& row : rows) {
        WritePublisher("R", std::string("[Common]\n") + row.line);
        errno = 0;
        EXPECT_EQ(mgr.GetNPType("R"), row.type) << row.line;
        EXPECT_EQ(errno, 0) << row.line;
    }
}

TEST(NPTypeDeathTest, ANullIdStopsTheProcess)
{
    EXPECT_DEATH(CPublisherMgr(true).GetNPType(nullptr), "!= FALSE");
}

TEST(FacadeGetPublisherInfo, WithoutAnImplementationItFailsAndIsLogged)
{
    LogAgent agent;
    SetLogLevel(2);
    CPublisherMgr mgr(true);
    PUBLISHERINFO info;
    info.strPublisherName = "old";
    info.uiPublisherDevType = 8;
    EXPECT_FALSE(mgr.GetPublisherInfo("", &info, FALSE));
    EXPECT_FALSE(mgr.GetPublisherInfo(nullptr, &info, FALSE));
    const std::string line = LogLine(4, "CPublisherMgr::GetPublisherInfo, no pPubMgr");
    EXPECT_EQ(agent.TakeAll(), (std::vector{line, line}));
    EXPECT_EQ(info.strPublisherName, "old");
    EXPECT_EQ(info.uiPublisherDevType, 8u);
}

TEST(FacadeGetPublisherInfo, TheModelIsStoredOnFailureToo)
{
    MakePublisherFolder();
    LogAgent agent;
    SetLogLevel(2);
    CPublisherMgr mgr(true);
    PUBLISHERINFO info;
    info.uiPublisherDevType = 8;
    EXPECT_FALSE(mgr.GetPublisherInfo("absent", &info, FALSE));
    EXPECT_EQ(info.uiPublisherDevType, 0u);
    const std::string missing = "\"/opt/arven/Ulmar Disc Maker/conf/RegPublisher/absent.ini\" is not found";
    const std::string lookUp = LogLine(4, "CPublisherMgr::GetConnectType, " + missing);
    EXPECT_EQ(agent.TakeAll(),
              (std::vector{lookUp, LogLine(4, "CBasicPublisherMgr::GetPublisherInfo, " + missing), lookUp}));
}

} // namespace

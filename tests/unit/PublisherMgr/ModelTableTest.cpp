// Every row of the model table.
#include "ModelTable.h"

#include "Models.h"
#include "NetworkPublisherMgr.h"

#include <gtest/gtest.h>

#include <iterator>
#include <set>
#include <string>
#include <typeindex>
#include <typeinfo>

namespace {

using enum ModelFamily;
using Numbers = std::set<UINT>;

constexpr bool yes = true;
constexpr bool no = false;

const Numbers oneDrive = {0, 2, 6};
const Numbers twoDrives = {0, 1, 2, 6};

const Numbers dvdDiscs = {1, 6, 7};
const Numbers bdDiscs = {1, 6, 7, 8, 9};
const Numbers bdxlDiscs = {1, 6, 7, 8, 9, 10, 11};

struct Capabilities
{
    std::type_index model;
    UINT type;
    Numbers publishModes;
    Numbers discTypes;
    bool driveChoice;
    bool stacker4;
};

/// In the order of the table.
const Capabilities capabilities[] = {
    {typeid(CBasicPublisherMgr), 0, {0, 1, 2}, dvdDiscs, yes, yes},
    {typeid(CNetworkPublisherMgr), 1, {}, {}, yes, yes},
    {typeid(CAPPublisherMgr), 2, twoDrives, dvdDiscs, yes, yes},
    {typeid(CSDPublisherMgr), 3, {0, 2}, dvdDiscs, no, no},
    {typeid(C30BDPublisherMgr), 4, oneDrive, bdDiscs, no, no},
    {typeid(C300MODPublisherMgr), 0x10000005, twoDrives, dvdDiscs, yes, yes},
    {typeid(C30BDAPublisherMgr), 6, {0, 2, 5, 6}, bdDiscs, no, no},
    {typeid(C300IIDVDPublisherMgr), 0x10000007, twoDrives, dvdDiscs, yes, yes},
    {typeid(C300IIBDPublisherMgr), 0x20000007, twoDrives, bdDiscs, yes, yes},
    {typeid(C30IIPublisherMgr), 8, oneDrive, bdDiscs, no, no},
    {typeid(C300IIIDVDPublisherMgr), 0x10000009, twoDrives, dvdDiscs, yes, yes},
    {typeid(C300IIIBDPublisherMgr), 0x20000009, twoDrives, bdDiscs, yes, yes},
    {typeid(C300IIIBDXLPublisherMgr), 0x30000009, twoDrives, bdxlDiscs, yes, yes},
    {typeid(C30IIBDXLPublisherMgr), 0x30000008, oneDrive, bdxlDiscs, no, no},
};

struct Identity
{
    UINT type;
    Numbers deviceCodes;
    int drives;
    bool driveSettings;
    ModelFamily family;
    std::string name;
    UINT setUpAs;
};

const Identity identities[] = {
    {0, {}, 2, yes, unknown, "N/A", 0},
    {1, {}, 2, no, network, "N/A", 1},
    {2, {2}, 0, no, unknown, "N/A", 2},
    {3, {3}, 1, yes, unknown, "N/A", 3},
    {4, {4}, 1, yes, unknown, "N/A", 4},
    {0x10000005, {5, 0x10000005}, 2, yes, unknown, "N/A", 0x10000005},
    {6, {6}, 1, yes, unknown, "N/A", 6},
    {0x10000007, {0x10000007}, 2, yes, unknown, "N/A", 0x10000007},
    {0x20000007, {7, 0x20000007}, 2, yes, unknown, "N/A", 0x20000007},
    {8, {8}, 1, yes, rt30, "RT-30II", 8},
    {0x10000009, {0x10000009}, 2, yes, unknown, "RT-300III", 0x20000009},
    {0x20000009, {9, 0x20000009}, 2, yes, rt300, "RT-300III", 0x20000009},
    {0x30000009, {0x30000009}, 2, yes, rt300, "RT-300III (BD-XL)", 0x30000009},
    {0x30000008, {0x30000008}, 1, yes, rt30, "RT-30II (BD-XL)", 0x30000008},
};

Numbers Members(const NumberSet& set)
{
    Numbers members;
    for (UINT number = 0; number <= 70; ++number) {
        if (set.Contains(number)) {
            members.insert(number);
        }
    }
    return members;
}

Numbers Codes(const PublisherModel& model)
{
    Numbers codes(model.deviceCodes.begin(), model.deviceCodes.end());
    codes.erase(0);
    return codes;
}

TEST(ModelTable, CapabilitiesOfEachModel)
{
    ASSERT_EQ(PublisherModels().size(), std::size(capabilities));
    for (size_t i = 0; i < std::size(capabilities); ++i) {
        const PublisherModel& model = PublisherModels()[i];
        const Capabilities& row = capabilities[i];
        SCOPED_TRACE(row.model.name());
        EXPECT_EQ(model.uiType, row.type);
        EXPECT_EQ(Members(model.publishModes), row.publishModes);
        EXPECT_EQ(Members(model.discTypes), row.discTypes);
        EXPECT_EQ(model.HasDriveChoice(), row.driveChoice);
        EXPECT_EQ(model.bStacker4, row.stacker4);
        EXPECT_EQ(model.MeasuresErrorRates(), row.type == 6);
        EXPECT_EQ(model.bArchiveDiscs, row.type == 6);
        EXPECT_EQ(model.WritesBDXL(), row.type == 0x30000008 || row.type == 0x30000009);
    }
}

TEST(ModelTable, CodesDrivesAndNamesOfEachModel)
{
    ASSERT_EQ(PublisherModels().size(), std::size(identities));
    for (size_t i = 0; i < std::size(identities); ++i) {
        const PublisherModel& model = PublisherModels()[i];
        const Identity& row = identities[i];
        SCOPED_TRACE(row.type);
        EXPECT_EQ(model.uiType, row.type);
        EXPECT_EQ(Codes(model), row.deviceCodes);
        EXPECT_EQ(model.nDrives, row.drives);
        EXPECT_EQ(model.bDriveSettings, row.driveSettings);
        EXPECT_EQ(model.family, row.family);
        EXPECT_EQ(model.szName, row.name);
        EXPECT_EQ(model.uiSetUpAs, row.setUpAs);
        EXPECT_EQ(model.bShowsDrive2Version, row.type != 8);
    }
}

TEST(ModelTable, EveryFactoryCreatesTheClassOfItsType)
{
    ASSERT_EQ(PublisherModels().size(), std::size(capabilities));
    for (size_t i = 0; i < std::size(capabilities); ++i) {
        const auto made = PublisherModels()[i].pCreate(true, PUBLISHER_SETTING_DIR);
        const IPublisherMgr& object = *made;
        EXPECT_EQ(std::type_index(typeid(object)), capabilities[i].model);
        EXPECT_EQ(made->GetPublisherMgrType(), capabilities[i].type);
    }
}

/// The low four bits of a model value are its family. All models of a family have the same number of drives.
TEST(ModelTable, NumberOfDrivesDependsOnTheFamily)
{
    const int drivesOfFamily[] = {2, 2, 0, 1, 1, 2, 1, 2, 1, 2};
    for (const PublisherModel& model : PublisherModels()) {
        const UINT family = model.uiType & 0xF;
        ASSERT_LT(family, std::size(drivesOfFamily));
        EXPECT_EQ(model.nDrives, drivesOfFamily[family]) << model.uiType;
    }
}

TEST(ModelTable, FindModelReturnsTheRowOfKnownTypesOnly)
{
    for (const PublisherModel& model : PublisherModels()) {
        EXPECT_EQ(FindModel(model.uiType), &model);
    }
    for (const UINT type : {5u, 7u, 9u, 10u, 0x10000002u, 0x20000005u, 0x30000007u, 0xFFFFFFFFu}) {
        EXPECT_EQ(FindModel(type), nullptr) << type;
    }
}

TEST(ModelTable, FindModelOfDeviceReturnsTheRowOfKnownCodesOnly)
{
    for (const PublisherModel& model : PublisherModels()) {
        for (const UINT code : Codes(model)) {
            EXPECT_EQ(FindModelOfDevice(code), &model) << code;
        }
    }
    for (const UINT code : {0u, 1u, 10u, 0x10000002u, 0x20000005u, 0x30000007u, 0x10000008u, 0xFFFFFFFFu}) {
        EXPECT_EQ(FindModelOfDevice(code), nullptr) << code;
    }
}

TEST(ModelTable, NetworkModels)
{
    const struct
    {
        UINT kind;
        std::string name;
        bool bdxl;
    } rows[] = {{2, "RT-300NII", no}, {3, "RT-300NII (BD-XL)", yes}};
    ASSERT_EQ(NetworkModels().size(), std::size(rows));
    for (const auto& row : rows) {
        const NetworkModel* model = FindNetworkModel(row.kind);
        ASSERT_NE(model, nullptr) << row.kind;
        EXPECT_EQ(model->uiNetPublisherType, row.kind);
        EXPECT_EQ(model->szName, row.name);
        EXPECT_EQ(model->bWritesBDXL, row.bdxl);
    }
    for (const UINT kind : {0u, 1u, 4u, 0xFFFFFFFFu}) {
        EXPECT_EQ(FindNetworkModel(kind), nullptr) << kind;
    }
}

TEST(NumberSet, ContainsExactlyItsNumbers)
{
    EXPECT_EQ(Members({}), Numbers());
    EXPECT_EQ(Members({0, 5, 31}), (Numbers{0, 5, 31}));
    EXPECT_FALSE((NumberSet{0, 5, 31}.Contains(0xFFFFFFFF)));
}

} // namespace

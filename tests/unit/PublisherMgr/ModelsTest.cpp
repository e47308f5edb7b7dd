// The capabilities of each model.
#include "Models.h"
#include "StackerDiscs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace {

template <class Derived, class Base>
constexpr bool isBelow = std::is_base_of_v<Base, Derived>;

static_assert(isBelow<CBasicPublisherMgr, IPublisherMgr>);
static_assert(isBelow<CSDPublisherMgr, CBasicPublisherMgr>);
static_assert(isBelow<C30BDPublisherMgr, CSDPublisherMgr>);
static_assert(isBelow<C30BDAPublisherMgr, C30BDPublisherMgr>);
static_assert(isBelow<C30IIPublisherMgr, CSDPublisherMgr> && !isBelow<C30IIPublisherMgr, C30BDPublisherMgr>);
static_assert(isBelow<C30IIBDXLPublisherMgr, CSDPublisherMgr> &&
              !isBelow<C30IIBDXLPublisherMgr, C30IIPublisherMgr>);
static_assert(isBelow<C300MODPublisherMgr, CBasicPublisherMgr>);
static_assert(isBelow<CAPPublisherMgr, C300MODPublisherMgr>);
static_assert(isBelow<C300IIDVDPublisherMgr, C300MODPublisherMgr>);
static_assert(isBelow<C300IIBDPublisherMgr, C300MODPublisherMgr>);
static_assert(isBelow<C300IIIDVDPublisherMgr, C300MODPublisherMgr>);
static_assert(isBelow<C300IIIBDPublisherMgr, C300MODPublisherMgr>);
static_assert(isBelow<C300IIIBDXLPublisherMgr, C300MODPublisherMgr>);

struct Model
{
    const char* name;
    std::unique_ptr<CBasicPublisherMgr> (*make)();
    UINT type;
    std::vector<UINT> modes;
    std::vector<UINT> discTypes;
    bool driveChoice;
    bool stacker4;
};

const std::vector<UINT> dvd = {1, 6, 7};
const std::vector<UINT> bd = {1, 6, 7, 8, 9};
const std::vector<UINT> bdxl = {1, 6, 7, 8, 9, 10, 11};

const Model models[] = {
    {"Basic", Make<CBasicPublisherMgr>, 0, {0, 1, 2}, dvd, true, true},
    {"AP", Make<CAPPublisherMgr>, 2, {0, 1, 2, 6}, dvd, true, true},
    {"SD", Make<CSDPublisherMgr>, 3, {0, 2}, dvd, false, false},
    {"30BD", Make<C30BDPublisherMgr>, 4, {0, 2, 6}, bd, false, false},
    {"300MOD", Make<C300MODPublisherMgr>, 0x10000005, {0, 1, 2, 6}, dvd, true, true},
    {"30BDA", Make<C30BDAPublisherMgr>, 6, {0, 2, 5, 6}, bd, false, false},
    {"300IIDVD", Make<C300IIDVDPublisherMgr>, 0x10000007, {0, 1, 2, 6}, dvd, true, true},
    {"300IIBD", Make<C300IIBDPublisherMgr>, 0x20000007, {0, 1, 2, 6}, bd, true, true},
    {"30II", Make<C30IIPublisherMgr>, 8, {0, 2, 6}, bd, false, false},
    {"30IIBDXL", Make<C30IIBDXLPublisherMgr>, 0x30000008, {0, 2, 6}, bdxl, false, false},
    {"300IIIDVD", Make<C300IIIDVDPublisherMgr>, 0x10000009, {0, 1, 2, 6}, dvd, true, true},
    {"300IIIBD", Make<C300IIIBDPublisherMgr>, 0x20000009, {0, 1, 2, 6}, bd, true, true},
    {"300IIIBDXL", Make<C300IIIBDXLPublisherMgr>, 0x30000009, {0, 1, 2, 6}, bdxl, true, true},
};

bool Holds(const std::vector<UINT>& values, UINT value)
{
    return std::find(values.begin(), values.end(), value) != values.end();
}

TEST(Models, CapabilityTable)
{
    for (const Model& model : models) {
        SCOPED_TRACE(model.name);
        const auto mgr = model.make();
        EXPECT_EQ(mgr->GetPublisherMgrType(), model.type);
        EXPECT_EQ(mgr->IsSupportUseDrive(), model.driveChoice);
        EXPECT_EQ(mgr->IsSupportStacker4(), model.stacker4);
        for (UINT mode = 0; mode <= 8; ++mode) {
            EXPECT_EQ(mgr->IsSupportPublishMode(mode), Holds(model.modes, mode)) << "mode " << mode;
        }
        EXPECT_FALSE(mgr->IsSupportPublishMode(0xFFFFFFFF));
        for (UINT discType = 0; discType <= 40; ++discType) {
            EXPECT_EQ(mgr->IsSupportDiscType(discType), Holds(model.discTypes, discType))
                << "disc type " << discType;
        }
        EXPECT_FALSE(mgr->IsSupportDiscType(0xFFFFFFFF));
    }
}

TEST(Models, NoModelSupportsOtherDiscTypes)
{
    for (const Model& model : models) {
        const auto mgr = model.make();
        for (const UINT discType : {0u, 2u, 3u, 4u, 5u, 16u, 32u}) {
            EXPECT_FALSE(mgr->IsSupportDiscType(discType)) << model.name << ", " << discType;
        }
    }
}

TEST(Models, OnlyBDXLModelsSupportQuadLayer)
{
    EXPECT_TRUE(Make<C30IIBDXLPublisherMgr>()->IsSupportDiscType(PUBMGR_STACKERDISCTYPE_BDRQL));
    EXPECT_FALSE(Make<C30IIPublisherMgr>()->IsSupportDiscType(PUBMGR_STACKERDISCTYPE_BDRQL));
}

// ---------------------------------------------------------------------------------------------------------------------
// The stackers follow the mode

struct Stackers
{
    UINT stacker1;
    UINT stacker2;
    UINT stacker3;
    UINT stacker4;

    bool operator==(const Stackers&) const = default;
};

/// Applies the rule to the stackers. `changed` receives the flag that it reports.
Stackers Fit(CBasicPublisherMgr& mgr, UINT mode, const Stackers& before, bool& changed)
{
    PUBLISHERINFO info;
    info.uiPublishMode = mode;
    info.uiStacker1DiscType = before.stacker1;
    info.uiStacker2DiscType = before.stacker2;
    info.uiStacker3DiscType = before.stacker3;
    info.uiStacker4DiscType = before.stacker4;
    changed = false;
    EXPECT_TRUE(mgr.UpdatePublishInfoFromPubMode(&info, changed));
    return {info.uiStacker1DiscType, info.uiStacker2DiscType, info.uiStacker3DiscType,
            info.uiStacker4DiscType};
}

constexpr UINT dvdr = PUBMGR_STACKERDISCTYPE_DVDR;
constexpr UINT bdr = PUBMGR_STACKERDISCTYPE_BDR;

struct FitRow
{
    UINT mode;
    Stackers before;
    Stackers after;
};

void ExpectFits(CBasicPublisherMgr& mgr, const std::vector<FitRow>& rows)
{
    for (size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(i);
        bool changed = false;
        EXPECT_EQ(Fit(mgr, rows[i].mode, rows[i].before, changed), rows[i].after);
        EXPECT_EQ(changed, rows[i].before != rows[i].after);
    }
}

TEST(StackersFollowMode, WithFourStackers)
{
    ExpectFits(*Make<C300MODPublisherMgr>(),
               {
                   // Normal: supply in 1, output in 2
                   {0, {dvdr, out, none, out}, {dvdr, out, none, out}},
                   {0, {bdr, dvdr, none, out}, {cd, out, none, out}},
                   {0, {in, none, none, out}, {cd, out, none, out}},
                   // Output: supply in 1 and 2
                   {2, {dvdr, cd, none, out}, {dvdr, cd, none, out}},
                   {2, {bdr, out, none, out}, {cd, cd, none, out}},
                   // Batch: 1 and 2 alike, output in 3
                   {1, {dvdr, out, none, out}, {dvdr, dvdr, out, none}},
                   {1, {bdr, bdr, out, none}, {cd, cd, out, none}},
                   // Read
                   {6, {dvdr, cd, none, out}, {in, out, none, out}},
                   // 3 and 4 are unchanged if both are output or not used, even if both are equal
                   {0, {cd, out, none, none}, {cd, out, none, none}},
                   {0, {cd, out, out, out}, {cd, out, out, out}},
                   {2, {cd, cd, out, none}, {cd, cd, out, none}},
                   {6, {in, out, out, none}, {in, out, out, none}},
                   {0, {cd, out, cd, out}, {cd, out, none, out}},
                   {2, {cd, cd, out, cd}, {cd, cd, none, out}},
                   {6, {in, out, in, in}, {in, out, none, out}},
               });
}

TEST(StackersFollowMode, WithThreeStackers)
{
    ExpectFits(*Make<C30BDAPublisherMgr>(), {
                                                {0, {bdr, cd, none, out}, {bdr, out, out, none}},
                                                {2, {out, bdr, cd, cd}, {cd, bdr, out, none}},
                                                {5, {bdr, bdr, none, out}, {in, out, out, none}},
                                                {6, {bdr, bdr, out, out}, {in, out, out, none}},
                                                {0, {cd, out, out, none}, {cd, out, out, none}},
                                            });
}

TEST(StackersFollowMode, LowVolumeAlwaysSetsStacker3ToOutput)
{
    const auto mgr = Make<CSDPublisherMgr>();
    for (const UINT stacker3 : {out, in, none, cd, 0xFFFFFFFFu}) {
        for (const UINT stacker4 : {out, in, none, cd, 0xFFFFFFFFu}) {
            bool changed = false;
            const Stackers after = Fit(*mgr, 2, {cd, cd, stacker3, stacker4}, changed);
            EXPECT_EQ(after, (Stackers{cd, cd, out, none}));
            EXPECT_EQ(changed, stacker3 != out || stacker4 != none);
        }
    }
}

TEST(StackersFollowMode, BatchSetsTheErrorMarkAndReportsTheChange)
{
    PUBLISHERINFO info;
    info.uiPublishMode = PUBMGR_PUBLISHMODE_BATCH;
    info.uiStacker1DiscType = cd;
    info.uiStacker2DiscType = cd;
    info.uiStacker3DiscType = out;
    info.uiStacker4DiscType = none;
    info.bAddErrorMark = false;
    bool changed = false;
    EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublishInfoFromPubMode(&info, changed));
    EXPECT_TRUE(info.bAddErrorMark);
    EXPECT_TRUE(changed);
}

TEST(StackersFollowMode, TheFlagIsNeverCleared)
{
    PUBLISHERINFO info;
    bool changed = true;
    EXPECT_TRUE(Make<CBasicPublisherMgr>()->UpdatePublishInfoFromPubMode(&info, changed));
    EXPECT_TRUE(changed);
}

TEST(StackersFollowMode, ANullRecordIsRefused)
{
    bool changed = false;
    EXPECT_FALSE(Make<CBasicPublisherMgr>()->UpdatePublishInfoFromPubMode(nullptr, changed));
    EXPECT_FALSE(changed);
}

/// A future model with modes that the rule does not support.
class EveryModeMgr : public CBasicPublisherMgr
{
public:
    using CBasicPublisherMgr::CBasicPublisherMgr;
    bool IsSupportPublishMode(UINT) override
    {
        return true;
    }
};

TEST(StackersFollowMode, AModeWithoutARuleIsRefused)
{
    for (const UINT mode : {3u, 4u, 7u, 0xFFFFFFFFu}) {
        PUBLISHERINFO info;
        info.uiPublishMode = mode;
        bool changed = false;
        EXPECT_FALSE(Make<EveryModeMgr>()->UpdatePublishInfoFromPubMode(&info, changed));
        EXPECT_FALSE(changed);
    }
}

TEST(StackersFollowModeDeathTest, AnUnsupportedModeStopsTheProcess)
{
    PUBLISHERINFO info;
    info.uiPublishMode = PUBMGR_PUBLISHMODE_BATCH;
    bool changed = false;
    EXPECT_DEATH(Make<CSDPublisherMgr>()->UpdatePublishInfoFromPubMode(&info, changed), "!= FALSE");
}

// ---------------------------------------------------------------------------------------------------------------------
// Wear

TEST(MaintenanceCorrection, TheStartOfALifeDoesNotCount)
{
    const auto mgr = Make<CBasicPublisherMgr>();
    EXPECT_EQ(mgr->CalcDriveMaintenanceValueCorrection(100, 8000), 0u);
    EXPECT_EQ(mgr->CalcDriveMaintenanceValueCorrection(101, 8000), 1u);
    EXPECT_EQ(mgr->CalcDriveMaintenanceValueCorrection(99, 8000), 0u);
    EXPECT_EQ(mgr->CalcDriveMaintenanceValueCorrection(0, 0), 0u);
    EXPECT_EQ(mgr->CalcDriveMaintenanceValueCorrection(5, 0), 5u);
    EXPECT_EQ(mgr->CalcDriveMaintenanceValueCorrection(2, 159), 1u); // 1.9875 is truncated to 1
    EXPECT_EQ(mgr->CalcDriveMaintenanceValueCorrection(600000, 1000000), 587500u);
    EXPECT_EQ(mgr->CalcDriveMaintenanceValueCorrection(0xFFFFFFFF, 0xFFFFFFFF), 4241280204u);
}

// ---------------------------------------------------------------------------------------------------------------------
// Operations for network publishers only

TEST(LocalPublisher, NetworkOperationsAreConstants)
{
    const auto mgr = Make<CBasicPublisherMgr>();
    DWORD handle = 77;
    DWORD code = 88;
    int job = 99;
    long result = 66;
    EXPECT_TRUE(mgr->StartConnection("R", &handle, &code));
    EXPECT_TRUE(mgr->EndConnection(1));
    EXPECT_TRUE(mgr->SendJobData(1, nullptr, 0, &job, &code));
    EXPECT_TRUE(mgr->SendPRNData(1, 1, nullptr, 0, &code));
    EXPECT_TRUE(mgr->CommitJob(1, 1, &code));
    EXPECT_TRUE(mgr->SendDiscInfo(1, 1, nullptr, 0, &code));
    EXPECT_EQ(mgr->GetPublishID(1, &code), "");
    EXPECT_EQ(mgr->GetHostName("R"), "");
    EXPECT_EQ(mgr->GetDeviceInfo("R", 8, &code), "");
    EXPECT_EQ(mgr->GetCommunicateJobCount("R"), -1);
    EXPECT_TRUE(mgr->IsPossibleCommunicate("R", &result));
    EXPECT_EQ(handle, 77u);
    EXPECT_EQ(code, 88u);
    EXPECT_EQ(job, 99);
    EXPECT_EQ(result, 66);
}

} // namespace

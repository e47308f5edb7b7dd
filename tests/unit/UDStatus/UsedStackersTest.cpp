#include "UsedStackers.h"

#include <gtest/gtest.h>

namespace {

/// "1=CD-R+" lists a stacker, what it holds, and a plus sign if it is an input; "?" is unknown.
std::string used(quint32 devType, UINT mode, std::array<UINT, stackerCount> types)
{
    PUBLISHERINFO info;
    info.uiPublishMode = mode;
    info.uiStacker1DiscType = types[0];
    info.uiStacker2DiscType = types[1];
    info.uiStacker3DiscType = types[2];
    info.uiStacker4DiscType = types[3];
    std::string text;
    for (const StackerReport& stacker : usedStackers(devType, info, {10, 11, 12, 13})) {
        EXPECT_EQ(stacker.discs, 9 + stacker.number);
        text += std::to_string(stacker.number) + "=" +
                (stacker.holds ? std::to_string(*stacker.holds) : std::string("?")) +
                (stacker.input ? "+ " : " ");
    }
    return text;
}

constexpr UINT unknown = 0xFFFFFFFF;
constexpr UINT out = PUBMGR_STACKERDISCTYPE_OUTPUT;
constexpr UINT in = PUBMGR_STACKERDISCTYPE_INPUT;
constexpr UINT none = PUBMGR_STACKERDISCTYPE_NOTUSE;

TEST(UsedStackers, TheModeDecides)
{
    constexpr quint32 two = PUBMGR_PUBLISHERTYPE_300III_BD;
    EXPECT_EQ(used(two, 0, {1, out, none, out}), "1=1+ 2=0 4=0 ");
    EXPECT_EQ(used(two, 0, {1, 1, 1, out}), "1=1+ 2=0 3=? 4=0 "); // 2 and 3 are left from another mode
    EXPECT_EQ(used(two, 1, {7, 1, none, out}), "1=7+ 2=7+ 3=0 ");
    EXPECT_EQ(used(two, 2, {1, 8, none, out}), "1=1+ 2=8+ 4=0 ");
    EXPECT_EQ(used(two, 2, {1, out, out, none}), "1=1+ 2=?+ 3=0 ");
    EXPECT_EQ(used(two, 6, {1, 1, none, out}), "1=16+ 2=0 4=0 ");
    EXPECT_EQ(used(two, unknown, {unknown, unknown, unknown, unknown}), "1=? 2=? 3=? 4=? ");
    EXPECT_EQ(used(two, unknown, {1, out, none, none}), "1=1+ 2=0 ");
}

TEST(UsedStackers, TheModelDecides)
{
    for (const quint32 one : {PUBMGR_PUBLISHERTYPE_30II, PUBMGR_PUBLISHERTYPE_30II_BDXL}) {
        EXPECT_EQ(used(one, 0, {1, out, 1, out}), "1=1+ 2=0 ");
        EXPECT_EQ(used(one, 2, {1, 6, out, none}), "1=1+ 2=6+ ");
    }
    EXPECT_EQ(used(PUBMGR_PUBLISHERTYPE_30BDA, 5, {1, 1, out, out}), "1=16+ 2=0 3=0 ");
    EXPECT_EQ(used(PUBMGR_PUBLISHERTYPE_AP, 1, {in, in, out, none}), "1=16+ 2=16+ 3=0 ");
    EXPECT_EQ(used(PUBMGR_PUBLISHERTYPE_NETWORK, 3, {1, out, none, out}), "1=1+ 2=0 4=0 ");
}

} // namespace

#include "RowTexts.h"

#include "PubMgrConst.h"
#include "RegistIDKey.h"
#include "SelectionRules.h"

#include <gtest/gtest.h>

#include <QLocale>

namespace {

struct StatusCase
{
    const char* name;
    StatusFacts facts;
    const char* status;
    bool waiting;
    bool sendingAndSpace;
};

constexpr bool local = false;
constexpr bool network = true;

const StatusCase statusTable[] = {
    {"local, not attached", {local, false, 0, false, 0}, "Not connected", false, false},
    {"local, offline", {local, true, 0, true, 11}, "Not connected", false, false},
    {"local, any other fatal code", {local, true, 0, true, 9}, "Error", false, false},
    {"local, a fatal code of 0", {local, true, 0, true, 0}, "Error", false, false},
    {"local, ready", {local, true, 0, false, 0}, "Ready", true, false},
    {"local, a connection result does not count",
     {local, false, 8010, false, 0},
     "Not connected",
     false,
     false},
    {"local, nor does an unsupported version", {local, false, 8001, false, 0}, "Not connected", false, false},
    {"network, no administrator",
     {network, false, 8010, false, 0},
     "Administrator not registered",
     false,
     false},
    {"network, version", {network, false, 8001, false, 0}, "Unsupported version", false, false},
    {"network, any other result", {network, false, 3, false, 0}, "Not connected", false, false},
    {"network, result 0", {network, false, 0, false, 0}, "Not connected", false, false},
    {"network, offline", {network, true, 0, true, 11}, "Not connected", false, false},
    {"network, any other fatal code", {network, true, 0, true, 19}, "Error", false, false},
    {"network, fatal code -1", {network, true, 0, true, -1}, "Error", false, false},
    {"network, ready", {network, true, 0, false, 0}, "Ready", true, true},
    {"network, lost on the way", {network, true, 0, false, -1}, "Ready", true, true},
};

TEST(RowTexts, EveryStateHasItsTextAndFurtherQueries)
{
    for (const StatusCase& row : statusTable) {
        SCOPED_TRACE(row.name);
        const StatusDecision decision = decideStatus(row.facts);
        EXPECT_EQ(decision.status, row.status);
        EXPECT_EQ(decision.fetchWaiting, row.waiting);
        EXPECT_EQ(decision.fetchSendingAndSpace, row.sendingAndSpace);
    }
}

TEST(RowTexts, TheStateIsTheOneThatTheTextNames)
{
    constexpr struct
    {
        PublisherState state;
        const char* text;
    } states[] = {
        {PublisherState::ready, "Ready"},
        {PublisherState::notConnected, "Not connected"},
        {PublisherState::error, "Error"},
        {PublisherState::administratorNotRegistered, "Administrator not registered"},
        {PublisherState::unsupportedVersion, "Unsupported version"},
    };
    for (const auto& [state, text] : states) {
        EXPECT_EQ(statusText(state), text);
        for (const StatusCase& row : statusTable) {
            EXPECT_EQ(decideStatus(row.facts).state == state, row.status == QString(text)) << row.name;
        }
    }
}

TEST(RowTexts, EveryModelHasItsText)
{
    constexpr struct
    {
        UINT devType;
        UINT netType;
        const char* text;
    } models[] = {
        {0x10000009, 0, "RT-300III"},
        {0x20000009, 0, "RT-300III"},
        {0x30000009, 0, "RT-300III (BD-XL)"},
        {8, 0, "RT-30II"},
        {0x30000008, 0, "RT-30II (BD-XL)"},
        {1, 2, "RT-300NII"},
        {1, 3, "RT-300NII (BD-XL)"},
        {1, 0, "N/A"},
        {1, 1, "N/A"},
        {1, 4, "N/A"},
        {0, 0, "N/A"},
        {2, 0, "N/A"},
        {3, 0, "N/A"},
        {4, 0, "N/A"},
        {0x10000005, 0, "N/A"},
        {6, 0, "N/A"},
        {0x10000007, 0, "N/A"},
        {0x20000007, 0, "N/A"},
        {9, 0, "N/A"},
        {0xFFFFFFFF, 0, "N/A"},
        {8, 2, "RT-30II"},
        {0, 2, "N/A"},
    };
    for (const auto& model : models) {
        EXPECT_EQ(modelText(model.devType, model.netType), model.text)
            << model.devType << ' ' << model.netType;
    }
}

TEST(RowTexts, JobCounts)
{
    EXPECT_EQ(jobCountText(-1), "-");
    EXPECT_EQ(jobCountText(-2147483647), "-");
    EXPECT_EQ(jobCountText(0), "0");
    EXPECT_EQ(jobCountText(1234567), "1234567");
}

TEST(RowTexts, HostNames)
{
    EXPECT_EQ(hostNameText(""), "-");
    EXPECT_EQ(hostNameText("studio-3"), "studio-3");
}

TEST(RowTexts, SpaceIsTruncatedToMebibytesBeforeTheDivision)
{
    constexpr struct
    {
        const char* bytes;
        const char* text;
    } spaces[] = {
        {"", "-"},
        {"0", "0.0 GB"},
        {"1048575", "0.0 GB"},        // one byte less than 1 MiB
        {"1048576", "0.0 GB"},        // 1 MiB
        {"53687091", "0.0 GB"},       // 51.2 MiB count as 51
        {"54525952", "0.1 GB"},       // 52 MiB
        {"1073741824", "1.0 GB"},     // 1024 MiB
        {"1610612736", "1.5 GB"},     // 1536 MiB
        {"498216206336", "464.0 GB"}, // 475136 MiB
        {"rubbish", "0.0 GB"},
        {"1073741824 bytes", "1.0 GB"},
        {"99999999999999999999999", "8589934592.0 GB"}, // beyond 64 bits: the largest number
    };
    for (const auto& space : spaces) {
        errno = 0;
        EXPECT_EQ(spaceText(space.bytes), space.text) << space.bytes;
        EXPECT_EQ(errno, 0) << space.bytes;
    }
}

TEST(RowTexts, SpaceHasADecimalPointInEveryLanguage)
{
    QLocale::setDefault(QLocale(QLocale::German));
    ASSERT_EQ(QLocale().toString(1.5), "1,5");
    EXPECT_EQ(spaceText("1610612736"), "1.5 GB");
    QLocale::setDefault(QLocale::c());
}

TEST(RegistIDKey, MapsAnyBytesBackToTheSameBytes)
{
    std::string all;
    for (int byte = 1; byte < 256; ++byte) {
        all.push_back(static_cast<char>(byte));
    }
    for (const std::string& id : {std::string(), std::string("{ARPUB20240131_1}"), std::string("caf\xe9"),
                                  std::string("\xff\xfe"), std::string("\xc3\xa9"), all}) {
        EXPECT_EQ(registIDFromKey(keyFromRegistID(id)), id);
    }
    EXPECT_NE(keyFromRegistID(CString("caf\xe9")), keyFromRegistID(CString("caf\xc3\xa9")));
}

TEST(SelectionRules, PropertiesRequireOneRowAndRemoveAtLeastOne)
{
    constexpr struct
    {
        int rows;
        bool property;
        bool remove;
    } rules[] = {{0, false, false}, {1, true, true}, {2, false, true}, {3, false, true}, {1000, false, true}};
    for (const auto& rule : rules) {
        EXPECT_EQ(selectionActions(rule.rows).showPublisherProperty, rule.property) << rule.rows;
        EXPECT_EQ(selectionActions(rule.rows).deletePublisher, rule.remove) << rule.rows;
    }
}

} // namespace

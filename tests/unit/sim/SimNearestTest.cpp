// Suggestions for mistyped words.
#include <gtest/gtest.h>

#include "Nearest.h"

using udsim::suggestion;

TEST(SimNearest, Suggestions)
{
    const std::vector<std::string> known{
        "online",         "offline",  "disc-time", "maintenance-box", "server-mode", "model",
        "stacker1.media", "Studio A", "Studio B",  "wrong-id",        "id"};
    const std::pair<std::string, std::string> table[] = {
        {"ofline", "offline"},   // missing letter; the prefix makes it closer than "online"
        {"offlline", "offline"}, // extra letter
        {"offlime", "offline"},  // wrong letter
        {"offlnie", "offline"},  // swapped letters
        {"OFFLINE", "offline"},  // capitals
        {"studio a", "Studio A"},
        {"disk-time", "disc-time"},
        {"box", "maintenance-box"}, // part between hyphens
        {"mode", "server-mode"},    // part, preferred to a typo of "model"
        {"media", "stacker1.media"},
        {"wro", "wrong-id"}, // prefix
        {"wrong", "wrong-id"},
        {"maintenence-bocks", "maintenance-box"},
        {"ID", "id"},
        {"ie", ""}, // too short for a typo
        {"wr", ""}, // too short for a prefix
        {"", ""},
        {"dance", ""},
        {"offhand", ""}, // three typos in seven letters
        {std::string(100'000, 'o'), ""},
    };
    for (const auto& [word, expected] : table) {
        EXPECT_EQ(suggestion(word, known), expected.empty() ? "" : " (did you mean \"" + expected + "\"?)")
            << word;
    }
    EXPECT_EQ(suggestion("online", {}), "");
    EXPECT_EQ(suggestion("RT-300III", {"RT-30II", "RT-300III DVD"}), " (did you mean \"RT-300III DVD\"?)")
        << "a matching word ranks above a typo";
}

TEST(SimNearest, Lists)
{
    EXPECT_EQ(udsim::quotedList({}), "");
    EXPECT_EQ(udsim::quotedList({"A"}), "\"A\"");
    EXPECT_EQ(udsim::quotedList({"A", "B C", "D"}), "\"A\", \"B C\", \"D\"");
}

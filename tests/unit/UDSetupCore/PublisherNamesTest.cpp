#include "PublisherNames.h"

#include "PublisherFiles.h"

#include <gtest/gtest.h>

namespace {

TEST(PublisherNames, OnlyTheExactNameMatches)
{
    WritePublisher("A", "[Common]\nPublisherName=Studio\n");
    CPublisherMgr manager(true);
    EXPECT_TRUE(hasName(manager, "A", "Studio"));
    for (const char* other : {"studio", "STUDIO", "Studio 2", "Stud", "A", ""}) {
        EXPECT_FALSE(hasName(manager, "A", other)) << other;
    }
    EXPECT_FALSE(hasName(manager, "B", "Studio")); // there is no such publisher
}

struct CloseCase
{
    const char* typed;
    QStringList close;
};

TEST(PublisherNames, SuggestsCloseNames)
{
    const QStringList known{"Studio A", "Studio B", "Print shop", "Clinic", "\u65e5\u672c\u8a9e"};
    const CloseCase table[] = {
        {"studio a", {"Studio A", "Studio B"}}, // case, then one wrong character
        {"Stduio A", {"Studio A", "Studio B"}}, // swapped characters
        {"Studi", {"Studio A", "Studio B"}},    // a beginning
        {"St", {}},                             // too short for one
        {"Clinik", {"Clinic"}},
        {"Clnic", {"Clinic"}},
        {"Cliniic", {"Clinic"}},
        {"xxxxxx", {}},
        {"", {}},
        {"\u65e5\u672c\u8a71", {"\u65e5\u672c\u8a9e"}},
    };
    for (const auto& [typed, close] : table) {
        EXPECT_EQ(closeNames(QString::fromUtf8(typed), known), close) << typed;
    }
}

TEST(PublisherNames, AtMostThreeNamesAreSuggestedAndNoneTwice)
{
    EXPECT_EQ(closeNames("Lab", {"Lab 1", "Lab 2", "Lab 2", "Lab 3", "Lab 4"}),
              (QStringList{"Lab 1", "Lab 2", "Lab 3"}));
}

TEST(PublisherNames, AnEndlessNameIsCloseToNothing)
{
    const QString endless(100'000, 'a');
    EXPECT_EQ(closeNames(endless, {endless, "a"}), QStringList());
}

} // namespace

#include "PublisherNames.h"

#include "PublisherFiles.h"

#include <gtest/gtest.h>

namespace {

TEST(PublisherNames, OnlyTheExactNameMatches)
{
    WritePublisher("A", "[Common]\nPublisherName=Studio\n");
    WritePublisher("B", "[Common]\nPublisherName=studio\n");
    WritePublisher("C", "[Common]\nPublisherName=Studio 2\n");
    CPublisherMgr manager(true);
    EXPECT_EQ(publishersNamed(manager, "Studio"), std::vector<CString>{"A"});
    EXPECT_EQ(publishersNamed(manager, "STUDIO"), std::vector<CString>{});
    EXPECT_EQ(publishersNamed(manager, ""), std::vector<CString>{});
}

TEST(PublisherNames, SeveralPublishersMayHaveOneName)
{
    WritePublisher("A", "[Common]\nPublisherName=Studio\n");
    WritePublisher("B", "[Common]\nPublisherName=Studio\nPublisherConnectionType=1\nPublisherURL=h\n");
    CPublisherMgr manager(true);
    std::vector<CString> ids = publishersNamed(manager, "Studio");
    std::sort(ids.begin(), ids.end());
    EXPECT_EQ(ids, (std::vector<CString>{"A", "B"}));
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

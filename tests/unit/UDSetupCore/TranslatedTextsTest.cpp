// The catalogue entries of the texts that are not in a window's code: those of the window that shows them.
#include "EntryTranslator.h"
#include "RowTexts.h"
#include "SettingTexts.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <array>

namespace {

class TranslatedTexts : public testing::Test
{
protected:
    TranslatedTexts()
    {
        QCoreApplication::installTranslator(&m_translator);
    }

private:
    int m_argc = 1;
    std::array<char, 5> m_name = {"test"};
    std::array<char*, 2> m_argv = {m_name.data(), nullptr};
    QCoreApplication m_application{m_argc, m_argv.data()};
    EntryTranslator m_translator;
};

TEST_F(TranslatedTexts, StatesAreTextsOfTheList)
{
    EXPECT_EQ(statusText(PublisherState::ready), "PubSetup|Ready");
    EXPECT_EQ(statusText(PublisherState::error), "PubSetup|Error");
    EXPECT_EQ(statusText(PublisherState::notConnected), "PubSetup|Not connected");
    EXPECT_EQ(statusText(PublisherState::administratorNotRegistered),
              "PubSetup|Administrator not registered");
    EXPECT_EQ(statusText(PublisherState::unsupportedVersion), "PubSetup|Unsupported version");
}

TEST_F(TranslatedTexts, PublishModesAreTextsOfTheProperties)
{
    EXPECT_EQ(publishModeText(0), "propertyDialog|Standard mode");
    EXPECT_EQ(publishModeText(1), "propertyDialog|Batch mode");
    EXPECT_EQ(publishModeText(2), "propertyDialog|External Output / Low-volume mode");
    for (const UINT other : {3u, 4u, 5u, 6u, 7u, 0xFFFFFFFFu}) {
        EXPECT_TRUE(publishModeText(other).isNull()) << other;
    }
}

TEST_F(TranslatedTexts, MediaHaveTheSameNamesInAllLanguages)
{
    EXPECT_EQ(discTypeText(0), "propertyDialog|Output Stacker");
    EXPECT_EQ(discTypeText(32), "propertyDialog|Do not use");
    EXPECT_EQ(discTypeText(1), "CD-R");
    EXPECT_EQ(discTypeText(6), "DVD(+R/-R)");
    EXPECT_EQ(discTypeText(7), "DVD(+R/-R) DL");
    EXPECT_EQ(discTypeText(8), "BD-R");
    EXPECT_EQ(discTypeText(9), "BD-R DL");
    EXPECT_EQ(discTypeText(10), "BD-R XL 100");
    EXPECT_EQ(discTypeText(11), "BD-R XL 128");
    for (const UINT other : {2u, 3u, 4u, 5u, 12u, 16u, 31u, 33u, 0xFFFFFFFFu}) {
        EXPECT_TRUE(discTypeText(other).isNull()) << other;
    }
}

} // namespace

// The catalogue that the program loads for a desktop locale.
#include <QLocale>
#include <QRegularExpression>
#include <QString>
#include <QTranslator>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>

namespace {

struct Row
{
    const char* locale;
    const char* language; ///< of the catalogue; empty if there is none
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.locale;
}

std::string nameOf(const testing::TestParamInfo<Row>& info)
{
    return info.param.locale;
}

class CataloguesTest : public testing::TestWithParam<Row>
{
protected:
    QTranslator translator;
    const bool found = translator.load("PubSetupQt_" + QString(GetParam().locale), CATALOGUES);
};

class CataloguesTestFound : public CataloguesTest
{
};
class CataloguesTestNone : public CataloguesTest
{
};

TEST_P(CataloguesTestFound, hasTheLanguage)
{
    ASSERT_TRUE(found);
    EXPECT_EQ(translator.language().toStdString(), GetParam().language);
}

TEST_P(CataloguesTestFound, translatesEveryContext)
{
    ASSERT_TRUE(found);
    const std::pair<const char*, const char*> texts[] = {
        {"MainWindow", "&File"},
        {"PubSetup", "Available Space"},
        {"aboutDialog", "Program icon"},
        {"addPublisherDialog", "Please type the name of a CD/DVD Publisher."},
        {"printerMaintHeadCleaning1", "Start"},
        {"printerMaintHeadCleaning2", "Nozzle check pattern"},
        {"printerMaintNozzleCheck1", "Print"},
        {"printerMaintNozzleCheck2", "Cleaning needed"},
        {"propertyDialog", "Drive Settings"},
        {"propertyDialogEx", "Do not print"},
        {"settingDialog", "Working Folder"},
        {"settingDialogEx", "Select working folder."},
    };
    for (const auto& [context, source] : texts) {
        const QString text = translator.translate(context, source);
        EXPECT_FALSE(text.isEmpty()) << context << ": " << source;
        if (qstrcmp(source, "&File") != 0) { // "&File" is also Italian
            EXPECT_NE(text.toStdString(), source) << context;
        }
    }
}

/// The label as it appears in a sentence: without mnemonic and ellipsis.
QString spoken(QString label)
{
    return label.remove(QRegularExpression("\\(&.\\)|&|\\.\\.\\.|…"));
}

TEST_P(CataloguesTestFound, usesTheLabelsOfTheMenu)
{
    ASSERT_TRUE(found);
    const QString text = translator.translate(
        "PubSetup", "No publishers are registered. To add one, choose Add in the Edit menu.");
    for (const char* label : {"&Edit", "&Add..."}) {
        const QString name = spoken(translator.translate("MainWindow", label));
        EXPECT_FALSE(name.isEmpty()) << label;
        EXPECT_TRUE(text.contains(name)) << text.toStdString() << ": " << name.toStdString();
    }
}

/// Names in the format of QLocale::system().name().
INSTANTIATE_TEST_SUITE_P(Locales, CataloguesTestFound,
                         testing::Values(Row{"de_DE", "de"}, Row{"de_AT", "de"}, Row{"de_CH", "de"},
                                         Row{"es_ES", "es"}, Row{"es_MX", "es"}, Row{"es_AR", "es"},
                                         Row{"fr_FR", "fr"}, Row{"fr_CA", "fr"}, Row{"fr_BE", "fr"},
                                         Row{"it_IT", "it"}, Row{"it_CH", "it"}, Row{"ja_JP", "ja"},
                                         Row{"ko_KR", "ko"}, Row{"nl_NL", "nl"}, Row{"nl_BE", "nl"},
                                         Row{"pt_PT", "pt"}, Row{"pt_BR", "pt"}, Row{"ru_RU", "ru"},
                                         Row{"ru_KZ", "ru"}, Row{"zh_CN", "zh_CN"}, Row{"zh_SG", "zh_CN"},
                                         Row{"zh_TW", "zh_TW"}, Row{"zh_HK", "zh_TW"}, Row{"zh_MO", "zh_TW"}),
                         nameOf);

TEST_P(CataloguesTestNone, isEnglish)
{
    EXPECT_FALSE(found);
}

INSTANTIATE_TEST_SUITE_P(Locales, CataloguesTestNone,
                         testing::Values(Row{"C", ""}, Row{"en_GB", ""}, Row{"en_US", ""}, Row{"sv_SE", ""}),
                         nameOf);

TEST(CataloguesLocaleTest, qtAddsTheCountryAndDropsTheScript)
{
    EXPECT_EQ(QLocale("zh_Hant_HK").name().toStdString(), "zh_HK");
    EXPECT_EQ(QLocale("zh").name().toStdString(), "zh_CN");
    EXPECT_EQ(QLocale("pt").name().toStdString(), "pt_BR");
}

} // namespace

// Fills the property dialog with random records, and checks that random choices keep its settings consistent.
#include "PropertyFixture.h"
#include "ScriptedService.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include <random>

namespace {

constexpr int recordsPerModel = 25;
constexpr int choicesPerDialog = 60;

/// Yields the same numbers on every machine for the same seed.
class Dice
{
public:
    explicit Dice(uint32_t seed) : m_engine(seed) {}

    uint32_t below(uint32_t limit)
    {
        return static_cast<uint32_t>(m_engine() % limit);
    }
    bool chance(uint32_t percent)
    {
        return below(100) < percent;
    }
    /// Returns a number with a meaning in 80 % of the calls, any number otherwise.
    uint32_t number()
    {
        constexpr uint32_t usual[] = {0, 1,  2,  3,  4,  5,  6,   7,          8,
                                      9, 10, 11, 16, 32, 33, 100, 0x7FFFFFFF, 0xFFFFFFFF};
        return chance(80) ? usual[below(std::size(usual))] : static_cast<uint32_t>(m_engine());
    }
    std::string bytes(size_t size)
    {
        std::string text(size, '\0');
        for (char& byte : text) {
            byte = static_cast<char>(m_engine());
        }
        return text;
    }
    /// Returns text as files and devices may contain it: ASCII, non-ASCII letters and invalid bytes, without
    /// NUL.
    std::string text()
    {
        constexpr const char* pieces[] = {"Studio", "&", "<b>", "\xC3\xBC", "\xE6\x97\xA5", "\xFF",
                                          "\xC3",   " ", "\t",  "%1",       "%s",           "\\",
                                          "\x01",   "=", "[",   ";"};
        std::string text;
        for (uint32_t left = below(chance(10) ? 2000 : 8); left > 0; --left) {
            text += pieces[below(std::size(pieces))];
        }
        return text;
    }

private:
    std::mt19937 m_engine;
};

/// Returns a setting file with missing keys and random values.
std::string randomFile(Dice& dice)
{
    std::string file = "[Common]\nGUID={X}\n";
    for (const char* key : {"PublisherName", "PrinterName", "PublisherURL"}) {
        if (dice.chance(80)) {
            file += std::string(key) + "=" + dice.text() + "\n";
        }
    }
    for (const char* key :
         {"PublishMode", "Stacker1", "Stacker2", "Stacker3", "Stacker4", "UseDrive", "RetryTimes",
          "RetryTimesW", "RetryTimesR", "ReadBackContinue", "AddErrorMark", "NPType"}) {
        if (dice.chance(90)) {
            file += std::string(key) + "=" +
                    (dice.chance(5) ? dice.text() : std::to_string(static_cast<int>(dice.number()))) + "\n";
        }
    }
    return file;
}

/// Returns a record of `count` numbers of 8 bytes each.
std::string numbers(Dice& dice, int count)
{
    std::string record;
    for (int i = 0; i < count; ++i) {
        const uint64_t value =
            dice.chance(90) ? dice.number() : uint64_t(dice.number()) << 32 | dice.number();
        record.append(reinterpret_cast<const char*>(&value), sizeof value);
    }
    return record;
}

} // namespace

class PropertyRandomTest : public QObject
{
    Q_OBJECT

private slots:
    void randomFilesAndReplies_data();
    void randomFilesAndReplies();
    void randomRecords_data();
    void randomRecords();
    void randomChoices_data();
    void randomChoices();

private:
    void looksRight();
    void settingsAreInOrder(bool oneDrive, const QString& stacker2Before);

    PropertyStage m_stage;
};

void PropertyRandomTest::looksRight()
{
    QVERIFY(!m_stage->applyButton->isEnabled());
    QVERIFY2(m_stage->width() <= 800 && m_stage->height() <= 560,
             qPrintable(QString("%1 x %2").arg(m_stage->width()).arg(m_stage->height())));
    for (int i = 0; i < m_stage->propertyTab->count(); ++i) {
        m_stage->propertyTab->setCurrentIndex(i);
        QVERIFY(!m_stage->grab().isNull());
    }
}

void PropertyRandomTest::randomFilesAndReplies_data()
{
    QTest::addColumn<uint32_t>("dpType");
    QTest::addColumn<uint32_t>("seed");
    uint32_t seed = 1000;
    for (const LocalModel& model : localModels) {
        QTest::addRow("%s, seed %u", model.row, seed) << model.dpType << seed;
        ++seed;
    }
}

/// Opens the dialog with random files and random replies.
void PropertyRandomTest::randomFilesAndReplies()
{
    QFETCH(uint32_t, dpType);
    QFETCH(uint32_t, seed);
    Dice dice(seed);
    ScriptedService service;
    m_stage.store(dpType);
    for (int i = 0; i < recordsPerModel; ++i) {
        WriteText(Installation::settingFile("X"), randomFile(dice));
        service.setPayload(28, numbers(dice, 39) + dice.bytes(32));
        service.setPayload(10, dice.bytes(dice.chance(10) ? 127 : 128));
        service.setPayload(12, dice.bytes(128));
        service.setPayload(11, dice.bytes(320));
        m_stage.open(1);
        looksRight();
        if (QTest::currentTestFailed()) {
            qWarning("record %d", i);
            return;
        }
    }
}

void PropertyRandomTest::randomRecords_data()
{
    randomFilesAndReplies_data();
}

/// Fills the dialog with records that no file can contain: long names, line breaks, any number in any field.
void PropertyRandomTest::randomRecords()
{
    QFETCH(uint32_t, dpType);
    QFETCH(uint32_t, seed);
    Dice dice(seed + 1000);
    m_stage.store(dpType);
    for (int i = 0; i < recordsPerModel; ++i) {
        PUBLISHERINFO info = PropertyStage::record();
        info.strPublisherName =
            dice.chance(5) ? std::string(100000, 'n') : dice.text() + (dice.chance(20) ? "\n" : "");
        info.strHostName = dice.text();
        for (UINT* value : {&info.uiPublishMode, &info.uiStacker1DiscType, &info.uiStacker2DiscType,
                            &info.uiStacker3DiscType, &info.uiStacker4DiscType, &info.uiUseDrive,
                            &info.uiRetryCount, &info.uiRetryCountR, &info.uiRetryCountW,
                            &info.uiAddErrorMark, &info.uiPublisherDevType, &info.uiNetPublisherType}) {
            *value = dice.number();
        }
        info.bAddErrorMark = dice.chance(50);
        m_stage.open(info, 0);
        looksRight();

        PUBLISHERMAINTENANCEINFO maintenance;
        maintenance.strSerialNo = dice.text();
        maintenance.uiPrintCount = dice.number();
        maintenance.uiMainteBoxCount = dice.number();
        maintenance.uiMainteBoxLife = dice.number();
        PUBLISHERVERSIONINFO version;
        version.strAutoLoaderVersion = dice.text();
        version.strPrinterModelName = dice.text();
        version.strDrive1Version = dice.text();
        m_stage->updateMaintenance(true, maintenance);
        m_stage->updateVersion(true, maintenance, true, version);
        looksRight();
        if (QTest::currentTestFailed()) {
            qWarning("record %d", i);
            return;
        }
    }
}

void PropertyRandomTest::randomChoices_data()
{
    randomFilesAndReplies_data();
}

/// The rules of the mode hold after any sequence of choices, and the picture matches them.
void PropertyRandomTest::randomChoices()
{
    QFETCH(uint32_t, dpType);
    QFETCH(uint32_t, seed);
    const bool oneDrive = dpType == rt30 || dpType == rt30xl;
    Dice dice(seed + 2000);
    m_stage.storeAndOpen(dpType, {.mode = dice.below(oneDrive ? 1 : 3), .stacker1 = 1, .stacker2 = 1});
    for (int i = 0; i < choicesPerDialog; ++i) {
        QComboBox* boxes[] = {m_stage->selectPublishMode, m_stage->selectStacker1, m_stage->selectStacker2,
                              m_stage->selectStacker3};
        QComboBox* box = boxes[dice.below(std::size(boxes))];
        if (!box->isVisible() || !box->isEnabled()) {
            continue;
        }
        const QString stacker2Before = chosen(m_stage->selectStacker2);
        const int before = box->currentIndex();
        choose(box,
               box->itemData(static_cast<int>(dice.below(static_cast<uint32_t>(box->count())))).toUInt());
        if (box->currentIndex() != before) {
            QVERIFY(m_stage->applyButton->isEnabled());
        }
        settingsAreInOrder(oneDrive, box == m_stage->selectStacker1 || box == m_stage->selectStacker3
                                         ? stacker2Before
                                         : QString());
        if (QTest::currentTestFailed()) {
            qWarning("choice %d: %s", i, qPrintable(stackers(m_stage.dialog())));
            return;
        }
    }
}

/// `stacker2Before`: the value of stacker 2 before a change of stacker 1 or 3; null after other changes.
void PropertyRandomTest::settingsAreInOrder(bool oneDrive, const QString& stacker2Before)
{
    const QString mode = chosen(m_stage->selectPublishMode);
    const QString stacker1 = chosen(m_stage->selectStacker1);
    const QString stacker2 = chosen(m_stage->selectStacker2);
    const QString stacker3 = chosen(m_stage->selectStacker3);
    const QString shown = picture(m_stage->viewStackerSequence);
    QCOMPARE(m_stage->selectStacker2->isEnabled(), mode == "2");
    QVERIFY(stacker1 != "none" && stacker2 != "none" && stacker3 != "none");
    if (mode == "0") {
        QCOMPARE(stacker2, "0");
        QCOMPARE(m_stage->selectStacker3->isEnabled(), !oneDrive);
        QCOMPARE(shown, oneDrive ? "A11-7" : stacker3 == "0" ? "A11-9" : "A11-1");
    } else if (mode == "1") {
        QVERIFY(!oneDrive);
        QCOMPARE(stacker2, stacker1);
        QCOMPARE(stacker3, "0");
        QVERIFY(!m_stage->selectStacker3->isEnabled());
        QCOMPARE(shown, "A11-3");
    } else {
        QCOMPARE(mode, "2");
        QCOMPARE(m_stage->selectStacker2->findData(0), -1);
        QVERIFY(stacker2Before.isNull() || stacker2 == stacker2Before);
        QCOMPARE(shown, oneDrive ? "A11-6" : stacker3 == "0" ? "A11-5" : "A11-2");
    }
    if (oneDrive) {
        QCOMPARE(stacker3, "32");
    }
}

QTEST_MAIN(PropertyRandomTest)
#include "PropertyRandomTest.moc"

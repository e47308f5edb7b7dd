// Tests that an assertion stops the program when the property dialog gets a model or a stacker setting that
// it cannot show.
#include "Assertion.h"
#include "PropertyFixture.h"

class PropertyAssertionTest : public QObject
{
    Q_OBJECT

private slots:
    void unknownModel_data();
    void unknownModel();
    void knownModels_data();
    void knownModels();
    void missingDeviceKey();
    void networkPublisher_data();
    void networkPublisher();
    void thirdStackerOfANetworkPublisher();

private:
    static bool stops(const PUBLISHERINFO& info);

    PropertyStage m_stage;
};

/// Returns whether filling the dialog with this record fails an assertion.
bool PropertyAssertionTest::stops(const PUBLISHERINFO& info)
{
    const std::string said = assertionOf([&info] {
        propertyDialogEx dialog(nullptr);
        dialog.fillContent(info, 0);
    });
    return said.find("!= FALSE") != std::string::npos;
}

void PropertyAssertionTest::unknownModel_data()
{
    QTest::addColumn<uint32_t>("dpType");
    for (const uint32_t dpType : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 10U, 0x10000005U, 0x10000007U, 0x20000007U,
                                  0x10000008U, 0x40000009U, 0xFFFFFFFFU}) {
        QTest::addRow("%x", dpType) << dpType;
    }
}

void PropertyAssertionTest::unknownModel()
{
    QFETCH(uint32_t, dpType);
    for (const uint mode : {0U, 1U, 2U, 3U, 4U}) {
        m_stage.store(dpType, {.mode = mode});
        QVERIFY2(stops(PropertyStage::record()), qPrintable(QString("mode %1").arg(mode)));
    }
}

void PropertyAssertionTest::knownModels_data()
{
    QTest::addColumn<uint32_t>("dpType");
    for (const LocalModel& model : localModels) {
        QTest::newRow(model.row) << model.dpType;
    }
}

void PropertyAssertionTest::knownModels()
{
    QFETCH(uint32_t, dpType);
    for (const uint mode : {0U, 1U, 2U, 3U, 4U, 5U, unknownNumber}) {
        m_stage.store(dpType, {.mode = mode, .stacker3 = 0});
        QVERIFY2(!stops(PropertyStage::record()), qPrintable(QString("mode %1").arg(mode)));
    }
}

void PropertyAssertionTest::missingDeviceKey()
{
    m_stage.store(rt300);
    WriteText(Installation::settingFile("X"), StoredPublisher().text("{no such device}"));
    QVERIFY(stops(PropertyStage::record()));
}

namespace {

PUBLISHERINFO networkRecord(uint mode, uint stacker3, uint npType)
{
    PUBLISHERINFO info = serverRecord();
    info.uiNetPublisherType = npType;
    info.uiPublishMode = mode;
    info.uiStacker3DiscType = stacker3;
    return info;
}

} // namespace

void PropertyAssertionTest::networkPublisher_data()
{
    QTest::addColumn<uint>("mode");
    QTest::addColumn<uint>("stacker3");
    QTest::addColumn<bool>("stopped");
    for (const uint mode : {0U, 1U, 2U, 3U, unknownNumber}) {
        for (const uint stacker3 : {0U, 1U, 16U, 32U, unknownNumber}) {
            const bool inUse = stacker3 < 32;
            QTest::addRow("mode %u, stacker 3 %u", mode, stacker3)
                << mode << stacker3 << (mode == 2 && inUse);
        }
    }
}

void PropertyAssertionTest::networkPublisher()
{
    QFETCH(uint, mode);
    QFETCH(uint, stacker3);
    QFETCH(bool, stopped);
    Installation::addNetwork("N", "Server", "studio-3");
    QCOMPARE(stops(networkRecord(mode, stacker3, 2)), stopped);
    QCOMPARE(stops(networkRecord(mode, stacker3, 3)), stopped);
}

void PropertyAssertionTest::thirdStackerOfANetworkPublisher()
{
    Installation::addNetwork("N", "Server", "studio-3");
    propertyDialogEx dialog(nullptr);
    dialog.fillContent(networkRecord(2, 32, 2), 0);
    QVERIFY(assertionOf([&] { dialog.changeStacker(propertyDialogEx::STACKER_1_2); }).empty());
    QVERIFY(assertionOf([&] { dialog.changeStacker(propertyDialogEx::PUB_MODE); }).empty());
    QVERIFY(!assertionOf([&] { dialog.changeStacker(propertyDialogEx::STACKER_3); }).empty());
}

QTEST_MAIN(PropertyAssertionTest)
#include "PropertyAssertionTest.moc"

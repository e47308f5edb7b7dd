// Tests the wear figures and versions that the dialog shows, and the labels that it hides when the device
// does not report them.
#include "PropertyFixture.h"
#include "Room.h"

using LabelPair = std::pair<const QLabel*, const QLabel*>;                // name, value
using LabelRow = std::tuple<const QLabel*, const QLabel*, const QLabel*>; // name, value, unit

class PropertyFiguresTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void counts_data();
    void counts();
    void maintenanceBox_data();
    void maintenanceBox();
    void driveLife_data();
    void driveLife();
    void everyPairContributes_data();
    void everyPairContributes();
    void unknownWearIsHidden();
    void wearOfTheSmallModels();
    void versions();
    void secondDriveOfTheSmallModels();
    void unknownVersionsAreHidden();
    void serialNumberIsReadWithTheWear();
    void textsAreNotMarkup();
    void valuesFromTheService_data();
    void valuesFromTheService();
    void missingReplies_data();
    void missingReplies();
    void disconnectedDeviceIsNotQueried();

private:
    QList<const QLabel*> wearValues() const;
    QList<const QLabel*> versionValues() const;
    static QStringList seen(const QWidget* page, const QList<const QLabel*>& labels);

    PropertyStage m_stage;
};

void PropertyFiguresTest::init()
{
    m_stage.storeAndOpen(rt300);
}

/// Values and units.
QList<const QLabel*> PropertyFiguresTest::wearValues() const
{
    return {m_stage->labelCompleteDiscNum, m_stage->labelCompleteDiscNumUnit, m_stage->labelPrintCount,
            m_stage->labelPrintCountUnit,  m_stage->labelMainteBoxLife,       m_stage->labelMainteBoxLifeUnit,
            m_stage->labelDrive1Life,      m_stage->labelDrive1LifeUnit,      m_stage->labelDrive2Life,
            m_stage->labelDrive2LifeUnit};
}

QList<const QLabel*> PropertyFiguresTest::versionValues() const
{
    return {m_stage->labelAutoLoaderVersionValue, m_stage->labelPrinterVersionValue,
            m_stage->labelDrive1VersionValue,     m_stage->labelDrive2VersionValue,
            m_stage->labelSSSVersionValue,        m_stage->labelUDNAVersionValue};
}

QStringList PropertyFiguresTest::seen(const QWidget* page, const QList<const QLabel*>& labels)
{
    QStringList names;
    for (const QLabel* label : labels) {
        if (seenOn(page, label)) {
            names << label->objectName();
        }
    }
    return names;
}

void PropertyFiguresTest::counts_data()
{
    QTest::addColumn<uint>("count");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << 0U << "0";
    QTest::newRow("some") << 12345U << "12345";
    QTest::newRow("half of the range") << 0x80000000U << "2147483648";
    QTest::newRow("largest known") << 0xFFFFFFFEU << "4294967294";
    QTest::newRow("unknown") << unknownNumber << "-";
}

void PropertyFiguresTest::counts()
{
    QFETCH(uint, count);
    QFETCH(QString, text);
    PUBLISHERMAINTENANCEINFO info;
    info.uiCompleteDiscNum = count;
    info.uiPrintCount = 7;
    m_stage->updateMaintenance(true, info);
    QCOMPARE(m_stage->labelCompleteDiscNum->text(), text);
    QCOMPARE(m_stage->labelPrintCount->text(), "7");
    info.uiCompleteDiscNum = 7;
    info.uiPrintCount = count;
    m_stage->updateMaintenance(true, info);
    QCOMPARE(m_stage->labelCompleteDiscNum->text(), "7");
    QCOMPARE(m_stage->labelPrintCount->text(), text);
}

void PropertyFiguresTest::maintenanceBox_data()
{
    QTest::addColumn<uint>("count");
    QTest::addColumn<uint>("life");
    QTest::addColumn<QString>("text");
    QTest::newRow("new") << 0U << 100U << "100.00";
    QTest::newRow("half") << 50U << 100U << "50.00";
    QTest::newRow("a third") << 1U << 3U << "66.67";
    QTest::newRow("two thirds") << 2U << 3U << "33.34";
    QTest::newRow("below two decimals") << 1U << 20000U << "100.00";
    QTest::newRow("smallest visible step") << 1U << 10000U << "99.99";
    QTest::newRow("full") << 100U << 100U << "0.00";
    QTest::newRow("above the limit") << 101U << 100U << "-";
    QTest::newRow("far above the limit") << 0xFFFFFFFEU << 1U << "-";
    QTest::newRow("slightly above the limit") << 100001U << 100000U << "0.00";
    QTest::newRow("large") << 4000000000U << 4200000000U << "4.77";
    QTest::newRow("zero of zero") << 0U << 0U << "nan";
    QTest::newRow("limit zero") << 1U << 0U << "-";
    QTest::newRow("count unknown") << unknownNumber << 100U << "-";
    QTest::newRow("life unknown") << 0U << unknownNumber << "100.00";
    QTest::newRow("both unknown") << unknownNumber << unknownNumber << "0.00";
}

void PropertyFiguresTest::maintenanceBox()
{
    QFETCH(uint, count);
    QFETCH(uint, life);
    QFETCH(QString, text);
    PUBLISHERMAINTENANCEINFO info;
    info.uiMainteBoxCount = count;
    info.uiMainteBoxLife = life;
    m_stage->updateMaintenance(true, info);
    QCOMPARE(m_stage->labelMainteBoxLife->text(), text);
}

void PropertyFiguresTest::driveLife_data()
{
    QTest::addColumn<uint>("count");
    QTest::addColumn<uint>("life");
    QTest::addColumn<QString>("text");
    QTest::newRow("new") << 0U << 100U << "0";
    QTest::newRow("half") << 50U << 100U << "50";
    QTest::newRow("rounded down") << 9999U << 10000U << "99";
    QTest::newRow("two thirds") << 2U << 3U << "66";
    QTest::newRow("at the limit") << 100U << 100U << "100";
    QTest::newRow("above the limit") << 150U << 100U << "100";
    QTest::newRow("far above the limit") << 0xFFFFFFFEU << 1U << "100";
    QTest::newRow("limit zero") << 5U << 0U << "-";
    QTest::newRow("zero of zero") << 0U << 0U << "-";
    QTest::newRow("count unknown") << unknownNumber << 100U << "-";
    QTest::newRow("limit unknown") << 5U << unknownNumber << "-";
    QTest::newRow("both unknown") << unknownNumber << unknownNumber << "-";
}

void PropertyFiguresTest::driveLife()
{
    QFETCH(uint, count);
    QFETCH(uint, life);
    QFETCH(QString, text);
    PUBLISHERMAINTENANCEINFO info; // all other pairs are unknown
    info.midrvDrive1.uiWriteDVDCount = count;
    info.midrvDrive1.uiWriteDVDLife = life;
    m_stage->updateMaintenance(true, info);
    QCOMPARE(m_stage->labelDrive1Life->text(), text);
    QCOMPARE(m_stage->labelDrive2Life->text(), "-");

    std::swap(info.midrvDrive1, info.midrvDrive2);
    m_stage->updateMaintenance(true, info);
    QCOMPARE(m_stage->labelDrive1Life->text(), "-");
    QCOMPARE(m_stage->labelDrive2Life->text(), text);
}

using DrivePair = std::pair<UINT PUBMAINTINFODRIVE::*, UINT PUBMAINTINFODRIVE::*>;
Q_DECLARE_METATYPE(DrivePair)

void PropertyFiguresTest::everyPairContributes_data()
{
    using Drive = PUBMAINTINFODRIVE;
    QTest::addColumn<DrivePair>("pair");
    QTest::newRow("tray") << DrivePair(&Drive::uiTrayCount, &Drive::uiTrayLife);
    QTest::newRow("CD") << DrivePair(&Drive::uiWriteCDCount, &Drive::uiWriteCDLife);
    QTest::newRow("DVD") << DrivePair(&Drive::uiWriteDVDCount, &Drive::uiWriteDVDLife);
    QTest::newRow("BD") << DrivePair(&Drive::uiWriteBDCount, &Drive::uiWriteBDLife);
    QTest::newRow("writing") << DrivePair(&Drive::uiDriveWriteTimeTotal, &Drive::uiDriveWriteTimeTotalLife);
    QTest::newRow("reading") << DrivePair(&Drive::uiDriveReadTimeTotal, &Drive::uiDriveReadTimeTotalLife);
}

void PropertyFiguresTest::everyPairContributes()
{
    QFETCH(DrivePair, pair);
    PUBLISHERMAINTENANCEINFO info;
    info.midrvDrive1.*pair.first = 42;
    info.midrvDrive1.*pair.second = 100;
    m_stage->updateMaintenance(true, info);
    QCOMPARE(m_stage->labelDrive1Life->text(), "42"); // the only known pair

    info.midrvDrive1 = {10, 100, 10, 100, 10, 100, 10, 100, 10, 100, 10, 100};
    info.midrvDrive1.*pair.first = 42;
    m_stage->updateMaintenance(true, info);
    QCOMPARE(m_stage->labelDrive1Life->text(), "42"); // the pair with the highest wear

    info.midrvDrive1.*pair.first = unknownNumber;
    m_stage->updateMaintenance(true, info);
    QCOMPARE(m_stage->labelDrive1Life->text(), "10"); // the others still count
}

void PropertyFiguresTest::unknownWearIsHidden()
{
    m_stage.store(rt300);
    propertyDialogEx dialog(nullptr);
    dialog.updateMaintenance(false, {});
    for (const auto& [name, value, unit] :
         {LabelRow(dialog.labelCompleteDiscNumName, dialog.labelCompleteDiscNum,
                   dialog.labelCompleteDiscNumUnit),
          LabelRow(dialog.labelPrintCountName, dialog.labelPrintCount, dialog.labelPrintCountUnit),
          LabelRow(dialog.labelMainteBoxLifeName, dialog.labelMainteBoxLife, dialog.labelMainteBoxLifeUnit),
          LabelRow(dialog.labelDrive1LifeName, dialog.labelDrive1Life, dialog.labelDrive1LifeUnit),
          LabelRow(dialog.labelDrive2LifeName, dialog.labelDrive2Life, dialog.labelDrive2LifeUnit)}) {
        QVERIFY2(seenOn(dialog.pageLifetime, name), qPrintable(name->objectName()));
        QVERIFY2(!seenOn(dialog.pageLifetime, value), qPrintable(value->objectName()));
        QVERIFY2(!seenOn(dialog.pageLifetime, unit), qPrintable(unit->objectName()));
    }
}

/// Parts that the model does not have stay hidden, whatever the device reports.
void PropertyFiguresTest::wearOfTheSmallModels()
{
    for (const uint32_t dpType : {rt30, rt30xl}) {
        m_stage.store(dpType);
        propertyDialogEx dialog(nullptr);
        dialog.fillContent(PropertyStage::record(), 0);
        PUBLISHERMAINTENANCEINFO info;
        info.uiCompleteDiscNum = info.uiPrintCount = info.uiMainteBoxCount = 1;
        info.uiMainteBoxLife = 2;
        dialog.updateMaintenance(true, info);
        for (const QLabel* label :
             Labels{dialog.labelCompleteDiscNumName, dialog.labelCompleteDiscNum,
                    dialog.labelCompleteDiscNumUnit, dialog.labelMainteBoxLifeName, dialog.labelMainteBoxLife,
                    dialog.labelMainteBoxLifeUnit, dialog.labelDrive2LifeName, dialog.labelDrive2Life,
                    dialog.labelDrive2LifeUnit}) {
            QVERIFY2(!seenOn(dialog.pageLifetime, label), qPrintable(label->objectName()));
        }
    }
}

namespace {

PUBLISHERVERSIONINFO someVersions()
{
    PUBLISHERVERSIONINFO info;
    info.strSerialNo = "not this one";
    info.strAutoLoaderVersion = "02.14";
    info.strPrinterModelName = "Printer";
    info.strPrinterVersion = "01.37";
    info.strDrive1ModelName = "Writer one";
    info.strDrive1Version = "1.05";
    info.strDrive2ModelName = "Writer two";
    info.strDrive2Version = "1.06";
    info.strSSSVersion = "3.0";
    info.strUDNAVersion = "4.1";
    return info;
}

} // namespace

void PropertyFiguresTest::versions()
{
    PUBLISHERMAINTENANCEINFO maintenance;
    maintenance.strSerialNo = "SN 4711";
    m_stage->updateVersion(true, maintenance, true, someVersions());
    QCOMPARE(m_stage->labelSerialNo->text(), "SN 4711");
    QCOMPARE(m_stage->labelAutoLoaderVersionValue->text(), "02.14");
    QCOMPARE(m_stage->labelPrinterVersionValue->text(), "Printer 01.37");
    QCOMPARE(m_stage->labelDrive1VersionValue->text(), "Writer one 1.05");
    QCOMPARE(m_stage->labelDrive2VersionValue->text(), "Writer two 1.06");
    QCOMPARE(m_stage->labelSSSVersionValue->text(), "3.0");
    QCOMPARE(m_stage->labelUDNAVersionValue->text(), "4.1");

    m_stage->updateVersion(true, maintenance, true, {});
    QCOMPARE(m_stage->labelPrinterVersionValue->text(), " ");
    QCOMPARE(m_stage->labelDrive2VersionValue->text(), " ");
}

void PropertyFiguresTest::secondDriveOfTheSmallModels()
{
    for (const auto& [dpType, second] :
         {std::pair(rt30, ""), std::pair(rt30xl, "Writer two 1.06"), std::pair(rt300, "Writer two 1.06")}) {
        m_stage.storeAndOpen(dpType);
        m_stage->labelDrive2VersionValue->clear();
        m_stage->updateVersion(true, {}, true, someVersions());
        QCOMPARE(m_stage->labelDrive1VersionValue->text(), "Writer one 1.05");
        QCOMPARE(m_stage->labelDrive2VersionValue->text(), second);
    }
}

void PropertyFiguresTest::unknownVersionsAreHidden()
{
    m_stage.store(rt300);
    propertyDialogEx dialog(nullptr);
    PUBLISHERMAINTENANCEINFO maintenance;
    maintenance.strSerialNo = "SN 4711";
    dialog.updateVersion(true, maintenance, false, someVersions());
    QVERIFY(seenOn(dialog.pageVersion, dialog.labelSerialNo));
    QCOMPARE(dialog.labelSerialNo->text(), "SN 4711");
    for (const auto& [name, value] :
         {LabelPair(dialog.labelAutoLoaderVersionLabel, dialog.labelAutoLoaderVersionValue),
          LabelPair(dialog.labelPrinterVersionLabel, dialog.labelPrinterVersionValue),
          LabelPair(dialog.labelDrive1VersionLabel, dialog.labelDrive1VersionValue),
          LabelPair(dialog.labelDrive2VersionLabel, dialog.labelDrive2VersionValue),
          LabelPair(dialog.labelSSSVersionLabel, dialog.labelSSSVersionValue),
          LabelPair(dialog.labelUDNAVersionLabel, dialog.labelUDNAVersionValue)}) {
        QVERIFY2(seenOn(dialog.pageVersion, name), qPrintable(name->objectName()));
        QVERIFY2(!seenOn(dialog.pageVersion, value), qPrintable(value->objectName()));
    }
}

void PropertyFiguresTest::serialNumberIsReadWithTheWear()
{
    m_stage.store(rt300);
    propertyDialogEx dialog(nullptr);
    dialog.updateVersion(false, {}, true, someVersions());
    QVERIFY(!seenOn(dialog.pageVersion, dialog.labelSerialNo));
    QVERIFY(seenOn(dialog.pageVersion, dialog.SerialNolabel));
    QVERIFY(seenOn(dialog.pageVersion, dialog.labelDrive1VersionValue));
    QCOMPARE(dialog.labelDrive1VersionValue->text(), "Writer one 1.05");
}

/// Texts from a device may contain any characters.
void PropertyFiguresTest::textsAreNotMarkup()
{
    for (const QLabel* label : versionValues() + QList<const QLabel*>{m_stage->labelSerialNo}) {
        QCOMPARE(label->textFormat(), Qt::PlainText);
    }
}

void PropertyFiguresTest::valuesFromTheService_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QString>("drive");
    QTest::addColumn<QString>("life");
    QTest::addColumn<bool>("oneDrive");
    // The tray is the most worn part. Each drive handles its share of 30,000 discs, of a tray life of 60,000;
    // the first 1.25 % of the life does not count.
    QTest::newRow("RT-300III DVD") << "RT-300III DVD"
                                   << "ARVEN RT-300PRN 01.37"
                                   << "DVR-300III 1.05"
                                   << "23" << false;
    QTest::newRow("RT-300III BD") << "RT-300III BD"
                                  << "ARVEN RT-300PRN 01.37"
                                  << "BDR-300III 1.05"
                                  << "23" << false;
    QTest::newRow("RT-300III BDXL") << "RT-300III BDXL"
                                    << "ARVEN RT-300PRN 01.37"
                                    << "BXR-300III 1.05"
                                    << "23" << false;
    QTest::newRow("RT-30II") << "RT-30II"
                             << "ARVEN RT-30PRN 01.37"
                             << "BDR-30II 1.05"
                             << "48" << true;
    QTest::newRow("RT-30II BDXL") << "RT-30II BDXL"
                                  << "ARVEN RT-30PRN 01.37"
                                  << "BXR-30II 1.05"
                                  << "48" << true;
}

void PropertyFiguresTest::valuesFromTheService()
{
    QFETCH(QString, model);
    QFETCH(QString, printer);
    QFETCH(QString, drive);
    QFETCH(QString, life);
    QFETCH(bool, oneDrive);
    m_stage.close();
    m_stage.installation() = Installation();
    std::string error;
    const auto scenario = udsim::Scenario::parse(
        "[publisher Studio]\nid = X\nserial = SN 4711\nmaintenance-box = 50\nprint-count = 30000\nmodel = " +
            model.toStdString() + "\n",
        error);
    QVERIFY2(scenario, error.c_str());
    udsim::Room room(*scenario);
    QVERIFY2(room.start(error), error.c_str());
    m_stage.open(1);

    std::vector<uint64_t> controls;
    for (const udsim::Request& request : room.requests()) {
        QCOMPARE(request.publisher, "X");
        controls.push_back(request.control);
    }
    QCOMPARE(controls, (std::vector<uint64_t>{28, 10, 12, 11}));

    QCOMPARE(m_stage->labelPrintCount->text(), "30000");
    QCOMPARE(m_stage->labelDrive1Life->text(), life);
    QCOMPARE(m_stage->labelSerialNo->text(), "SN 4711");
    QCOMPARE(m_stage->labelAutoLoaderVersionValue->text(), "02.14");
    QCOMPARE(m_stage->labelPrinterVersionValue->text(), printer);
    QCOMPARE(m_stage->labelDrive1VersionValue->text(), drive);
    if (!oneDrive) {
        QCOMPARE(m_stage->labelCompleteDiscNum->text(), "30000");
        QCOMPARE(m_stage->labelMainteBoxLife->text(), "50.00");
        QCOMPARE(m_stage->labelDrive2Life->text(), life);
        QCOMPARE(m_stage->labelDrive2VersionValue->text(), drive);
        QCOMPARE(seen(m_stage->pageLifetime, wearValues()).size(), 10);
        QCOMPARE(seen(m_stage->pageVersion, versionValues()).size(), 4);
    } else {
        QCOMPARE(seen(m_stage->pageLifetime, wearValues()),
                 (QStringList{"labelPrintCount", "labelPrintCountUnit", "labelDrive1Life",
                              "labelDrive1LifeUnit"}));
        QCOMPARE(seen(m_stage->pageVersion, versionValues()),
                 (QStringList{"labelAutoLoaderVersionValue", "labelPrinterVersionValue",
                              "labelDrive1VersionValue"}));
    }
}

void PropertyFiguresTest::missingReplies_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<uint>("control");
    QTest::addColumn<bool>("wear");
    QTest::addColumn<bool>("versions");
    QTest::newRow("no service") << "refuse" << 0U << false << false;
    QTest::newRow("device is off") << "result 11" << 0U << false << false;
    QTest::newRow("no wear") << "result 1001" << 28U << false << true;
    QTest::newRow("truncated wear") << "short-payload" << 28U << false << true;
    QTest::newRow("no loader") << "result 1001" << 10U << true << false;
    QTest::newRow("no printer") << "close" << 12U << true << false;
    QTest::newRow("no drives") << "wrong-id" << 11U << true << false;
}

void PropertyFiguresTest::missingReplies()
{
    QFETCH(QString, fault);
    QFETCH(uint, control);
    QFETCH(bool, wear);
    QFETCH(bool, versions);
    m_stage.close();
    m_stage.installation() = Installation();
    std::string error;
    const std::string onControl = control == 0 ? "" : "control = " + std::to_string(control) + "\n";
    const auto scenario =
        udsim::Scenario::parse("[publisher Studio]\nid = X\nmodel = RT-300III BD\n[fault]\n" + onControl +
                                   "do = " + fault.toStdString() + "\n",
                               error);
    QVERIFY2(scenario, error.c_str());
    udsim::Room room(*scenario);
    QVERIFY2(room.start(error), error.c_str());
    m_stage.open(1);
    QCOMPARE(seen(m_stage->pageLifetime, wearValues()).size(), wear ? 10 : 0);
    QCOMPARE(seenOn(m_stage->pageVersion, m_stage->labelSerialNo), wear);
    QCOMPARE(seen(m_stage->pageVersion, versionValues()).size(), versions ? 4 : 0);
    QVERIFY(seenOn(m_stage->pageLifetime, m_stage->labelDrive2LifeName));
    QVERIFY(seenOn(m_stage->pageVersion, m_stage->labelDrive2VersionLabel));
}

void PropertyFiguresTest::disconnectedDeviceIsNotQueried()
{
    m_stage.close();
    m_stage.installation() = Installation();
    std::string error;
    const auto scenario = udsim::Scenario::parse("[publisher Studio]\nid = X\nmodel = RT-300III BD\n", error);
    QVERIFY2(scenario, error.c_str());
    udsim::Room room(*scenario);
    QVERIFY2(room.start(error), error.c_str());
    m_stage.open(0);
    QCOMPARE(room.requests().size(), size_t(0));
    QCOMPARE(seen(m_stage->pageLifetime, wearValues()), QStringList());
    QCOMPARE(seen(m_stage->pageVersion, versionValues()), QStringList());
    QVERIFY(!seenOn(m_stage->pageVersion, m_stage->labelSerialNo));
}

QTEST_MAIN(PropertyFiguresTest)
#include "PropertyFiguresTest.moc"

// Tests what the property dialog shows for a local publisher, for every model and every stored value.
#include "PropertyFixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

class PropertyContentTest : public QObject
{
    Q_OBJECT

private slots:
    void everyModel_data();
    void everyModel();
    void titles_data();
    void titles();
    void networkLabelsAreHidden();
    void correctedMedia_data();
    void correctedMedia();
    void correctedThirdStacker_data();
    void correctedThirdStacker();
    void publishModes_data();
    void publishModes();
    void unknownPublishModes_data();
    void unknownPublishModes();
    void useDrive_data();
    void useDrive();
    void retryCount_data();
    void retryCount();
    void errorMark();
    void unchangedAfterFilling_data();
    void unchangedAfterFilling();
    void firstTabIsShown();
    void emptySettingFile_data();
    void emptySettingFile();

private:
    PropertyStage m_stage;
};

namespace {

constexpr uint rowsOfUInt[] = {0,  1,  2,  3,  4,  5,  6,  7,  8,   9,          10,         11,           12,
                               15, 16, 17, 31, 32, 33, 64, 99, 100, 0x7FFFFFFF, 0x80000000, unknownNumber};

} // namespace

void PropertyContentTest::everyModel_data()
{
    QTest::addColumn<uint32_t>("dpType");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("oneDrive");
    QTest::addColumn<bool>("xl");
    for (const LocalModel& model : localModels) {
        QTest::newRow(model.row) << model.dpType << QString(model.text) << model.oneDrive << model.xl;
    }
}

void PropertyContentTest::everyModel()
{
    QFETCH(uint32_t, dpType);
    QFETCH(QString, text);
    QFETCH(bool, oneDrive);
    QFETCH(bool, xl);
    m_stage.storeAndOpen(dpType);
    propertyDialogEx& dialog = *m_stage.dialog();

    QCOMPARE(dialog.windowTitle(), "Properties - Studio(" + text + ")");
    QCOMPARE(dialog.textPublisherName->text(), "Studio");

    const QWidget* version = dialog.pageVersion;
    for (const QWidget* widget : Widgets{dialog.labelSSSVersionLabel, dialog.labelSSSVersionValue,
                                         dialog.labelUDNAVersionLabel, dialog.labelUDNAVersionValue}) {
        QVERIFY2(!seenOn(version, widget), qPrintable(widget->objectName()));
    }
    QCOMPARE(seenOn(version, dialog.labelDrive2VersionLabel), !oneDrive);
    QCOMPARE(dialog.labelDrive1VersionLabel->text(), oneDrive ? "Drive:" : "Drive 1:");
    QCOMPARE(dialog.labelDrive1LifeName->text(),
             oneDrive ? "Service life of Drive:" : "Service life of Drive 1:");

    const QWidget* wear = dialog.pageLifetime;
    QCOMPARE(seenOn(wear, dialog.labelCompleteDiscNumName), !oneDrive);
    QCOMPARE(seenOn(wear, dialog.labelMainteBoxLifeName), !oneDrive);
    QCOMPARE(seenOn(wear, dialog.labelDrive2LifeName), !oneDrive);
    QVERIFY(seenOn(wear, dialog.labelPrintCountName));
    QVERIFY(seenOn(wear, dialog.labelDrive1LifeName));

    const QWidget* general = dialog.pageGeneral;
    QCOMPARE(seenOn(general, dialog.labelStacker3), !oneDrive);
    QCOMPARE(seenOn(general, dialog.selectStacker3), !oneDrive);
    QCOMPARE(seenOn(general, dialog.labelUseDrive), !oneDrive);
    QCOMPARE(seenOn(general, dialog.selectUseDrive), !oneDrive);
    for (const QWidget* widget : Widgets{
             dialog.pubNamelabel, dialog.textPublisherName, dialog.labelPublishMode, dialog.selectPublishMode,
             dialog.labelStacker1, dialog.selectStacker1, dialog.labelStacker2, dialog.selectStacker2,
             dialog.viewStackerSequence, dialog.labelRetry, dialog.spinRetryCount, dialog.checkErrorMark}) {
        QVERIFY2(seenOn(general, widget), qPrintable(widget->objectName()));
    }

    QStringList modes{"Standard mode=0", "External Output / Low-volume mode=2"};
    if (!oneDrive) {
        modes << "Batch mode=1";
    }
    QCOMPARE(items(dialog.selectPublishMode), modes);
    QStringList media{"CD-R=1", "DVD(+R/-R)=6", "DVD(+R/-R) DL=7", "BD-R=8", "BD-R DL=9"};
    if (xl) {
        media << "BD-R XL 100=10"
              << "BD-R XL 128=11";
    }
    QCOMPARE(items(dialog.selectStacker1), media);
    QCOMPARE(items(dialog.selectStacker2), media + QStringList{"Output Stacker=0"});
    QVERIFY(dialog.cancelButton->isEnabled());
}

void PropertyContentTest::titles_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "Lab 3";
    QTest::newRow("non-ASCII letters") << QString::fromUtf8("Stüdio – 日本");
    QTest::newRow("ampersand") << "Sound & Vision";
    QTest::newRow("markup") << "<b>Studio</b>";
    QTest::newRow("parentheses") << "Studio(A)";
    QTest::newRow("percent signs") << "100%1 %s";
    QTest::newRow("200 bytes") << QString(200, 'x');
}

void PropertyContentTest::titles()
{
    QFETCH(QString, name);
    m_stage.store(rt300);
    PUBLISHERINFO info = PropertyStage::record();
    info.strPublisherName = name.toStdString();
    m_stage.open(info, 0);
    QCOMPARE(m_stage->windowTitle(), "Properties - " + name + "(RT-300III)");
    QCOMPARE(m_stage->textPublisherName->text(), name);
}

void PropertyContentTest::networkLabelsAreHidden()
{
    for (const uint32_t dpType : {rt300, rt30}) {
        m_stage.storeAndOpen(dpType);
        for (const QLabel* label : Labels{
                 m_stage->labelHostName, m_stage->textHostName, m_stage->textPublishMode,
                 m_stage->textStacker1, m_stage->textStacker2, m_stage->textStacker3, m_stage->textUseDrive,
                 m_stage->textRetryCount, m_stage->labelErrorMark, m_stage->textErrorMark}) {
            QVERIFY2(!seenOn(m_stage->pageGeneral, label), qPrintable(label->objectName()));
        }
    }
}

void PropertyContentTest::correctedMedia_data()
{
    QTest::addColumn<uint>("stored");
    QTest::addColumn<QString>("shown");
    for (const uint stored : rowsOfUInt) {
        QString shown = "1";
        if (stored == 0) {
            shown = "none"; // stacker 1 never has this item, stacker 2 not in this mode
        } else if (stored == 2 || stored == 4) {
            shown = "6";
        } else if (stored == 3 || stored == 5) {
            shown = "7";
        } else if (stored >= 6 && stored <= 11) {
            shown = QString::number(stored);
        }
        QTest::addRow("%u", stored) << stored << shown;
    }
}

void PropertyContentTest::correctedMedia()
{
    QFETCH(uint, stored);
    QFETCH(QString, shown);
    for (const uint32_t dpType : {rt300xl, rt30xl}) {
        m_stage.storeAndOpen(dpType, {.mode = 2, .stacker1 = stored, .stacker2 = 8});
        QCOMPARE(chosen(m_stage->selectStacker1), shown);
        QCOMPARE(chosen(m_stage->selectStacker2), "8");
        m_stage.storeAndOpen(dpType, {.mode = 2, .stacker1 = 8, .stacker2 = stored});
        QCOMPARE(chosen(m_stage->selectStacker1), "8");
        QCOMPARE(chosen(m_stage->selectStacker2), shown);
    }
    // The other models do not support discs with three or four layers.
    const QString withoutXl = stored == 10 || stored == 11 ? "none" : shown;
    for (const uint32_t dpType : {rt300, rt30}) {
        m_stage.storeAndOpen(dpType, {.mode = 2, .stacker1 = stored, .stacker2 = stored});
        QCOMPARE(chosen(m_stage->selectStacker1), withoutXl);
        QCOMPARE(chosen(m_stage->selectStacker2), withoutXl);
    }
}

void PropertyContentTest::correctedThirdStacker_data()
{
    QTest::addColumn<uint>("stored");
    QTest::addColumn<bool>("used");
    for (const uint stored : rowsOfUInt) {
        QTest::addRow("%u", stored) << stored << (stored <= 9 || stored == 16);
    }
}

void PropertyContentTest::correctedThirdStacker()
{
    QFETCH(uint, stored);
    QFETCH(bool, used);
    m_stage.storeAndOpen(rt300, {.mode = 0, .stacker3 = stored});
    QCOMPARE(stackers(m_stage.dialog()),
             used ? "mode 0, stackers 1 0-+out 0, A11-9" : "mode 0, stackers 1 0-+out 32, A11-1");
    m_stage.storeAndOpen(rt300, {.mode = 2, .stacker2 = 6, .stacker3 = stored});
    QCOMPARE(stackers(m_stage.dialog()),
             used ? "mode 2, stackers 1 6 0, A11-5" : "mode 2, stackers 1 6 32, A11-2");
    m_stage.storeAndOpen(rt300, {.mode = 1, .stacker2 = 1, .stacker3 = stored});
    QCOMPARE(stackers(m_stage.dialog()), "mode 1, stackers 1 1-+out 0-, A11-3");
    m_stage.storeAndOpen(rt30, {.mode = 0, .stacker3 = stored});
    QCOMPARE(stackers(m_stage.dialog()), "mode 0, stackers 1 0-+out 32H-, A11-7");
}

void PropertyContentTest::publishModes_data()
{
    QTest::addColumn<bool>("oneDrive");
    QTest::addColumn<uint>("mode");
    QTest::addColumn<uint>("stacker3");
    QTest::addColumn<QString>("shown");
    const auto row = [](bool oneDrive, uint mode, uint stacker3, const char* shown) {
        QTest::addRow("%s, mode %u, stacker 3 %u", oneDrive ? "RT-30" : "RT-300", mode, stacker3)
            << oneDrive << mode << stacker3 << QString(shown);
    };
    // Stacker 1 holds 7, stacker 2 holds 8.
    for (const uint standard : {0U, 3U, 4U}) {
        row(false, standard, 0, "mode 0, stackers 7 0-+out 0, A11-9");
        row(false, standard, 32, "mode 0, stackers 7 0-+out 32, A11-1");
        row(true, standard, 0, "mode 0, stackers 7 0-+out 32H-, A11-7");
        row(true, standard, 32, "mode 0, stackers 7 0-+out 32H-, A11-7");
    }
    row(false, 1, 0, "mode 1, stackers 7 7-+out 0-, A11-3");
    row(false, 1, 32, "mode 1, stackers 7 7-+out 0-, A11-3");
    row(true, 1, 0, "mode 0, stackers 7 0-+out 32H-, A11-7"); // no batch mode
    row(true, 1, 32, "mode 0, stackers 7 0-+out 32H-, A11-7");
    row(false, 2, 0, "mode 2, stackers 7 8 0, A11-5");
    row(false, 2, 32, "mode 2, stackers 7 8 32, A11-2");
    row(true, 2, 0, "mode 2, stackers 7 8 32H, A11-6");
    row(true, 2, 32, "mode 2, stackers 7 8 32H, A11-6");
}

void PropertyContentTest::publishModes()
{
    QFETCH(bool, oneDrive);
    QFETCH(uint, mode);
    QFETCH(uint, stacker3);
    QFETCH(QString, shown);
    for (const LocalModel& model : localModels) {
        if (model.oneDrive == oneDrive) {
            m_stage.storeAndOpen(model.dpType,
                                 {.mode = mode, .stacker1 = 7, .stacker2 = 8, .stacker3 = stacker3});
            QCOMPARE(stackers(m_stage.dialog()), shown);
        }
    }
}

void PropertyContentTest::unknownPublishModes_data()
{
    QTest::addColumn<uint>("mode");
    for (const uint mode : rowsOfUInt) {
        if (mode > 4) {
            QTest::addRow("%u", mode) << mode;
        }
    }
}

void PropertyContentTest::unknownPublishModes()
{
    QFETCH(uint, mode);
    for (const uint32_t dpType : {rt300, rt30}) {
        for (const uint stacker3 : {0U, 32U}) {
            m_stage.storeAndOpen(dpType, {.mode = mode, .stacker1 = 7, .stacker2 = 8, .stacker3 = stacker3});
            QCOMPARE(chosen(m_stage->selectPublishMode), "none");
            QCOMPARE(chosen(m_stage->selectStacker1), "none");
            QCOMPARE(chosen(m_stage->selectStacker2), "none");
            QCOMPARE(chosen(m_stage->selectStacker3), "none");
            QCOMPARE(pictureCount(m_stage->viewStackerSequence), 0);
        }
    }
}

void PropertyContentTest::useDrive_data()
{
    QTest::addColumn<uint>("stored");
    QTest::addColumn<int>("index");
    for (const uint stored : rowsOfUInt) {
        QTest::addRow("%u", stored) << stored << (stored <= 2 ? int(stored) : -1);
    }
}

void PropertyContentTest::useDrive()
{
    QFETCH(uint, stored);
    QFETCH(int, index);
    for (const uint32_t dpType : {rt300, rt30}) {
        m_stage.storeAndOpen(dpType, {.useDrive = stored});
        QCOMPARE(m_stage->selectUseDrive->currentIndex(), index);
    }
}

void PropertyContentTest::retryCount_data()
{
    QTest::addColumn<uint>("stored");
    QTest::addColumn<QString>("shown");
    for (const uint stored : rowsOfUInt) {
        QTest::addRow("%u", stored) << stored << QString::number(qMin(stored, 9U));
    }
    QTest::newRow("default of a read job") << 150000U << "9";
}

void PropertyContentTest::retryCount()
{
    QFETCH(uint, stored);
    QFETCH(QString, shown);
    m_stage.storeAndOpen(rt300, {.retries = stored});
    QCOMPARE(m_stage->spinRetryCount->text(), shown);
    QCOMPARE(m_stage->textRetryCount->text(), shown);
}

void PropertyContentTest::errorMark()
{
    m_stage.storeAndOpen(rt300, {.errorMark = true});
    QCOMPARE(m_stage->checkErrorMark->isChecked(), true);
    QCOMPARE(m_stage->textErrorMark->text(), "Print");
    m_stage.storeAndOpen(rt300, {.errorMark = false});
    QCOMPARE(m_stage->checkErrorMark->isChecked(), false);
    QCOMPARE(m_stage->textErrorMark->text(), "Do not print");
}

void PropertyContentTest::unchangedAfterFilling_data()
{
    QTest::addColumn<uint>("mode");
    for (const uint mode : {0U, 1U, 2U, 3U, 4U, 5U, unknownNumber}) {
        QTest::addRow("mode %u", mode) << mode;
    }
}

void PropertyContentTest::unchangedAfterFilling()
{
    QFETCH(uint, mode);
    for (const LocalModel& model : localModels) {
        // These values differ from the initial values of the widgets.
        m_stage.store(model.dpType, {.mode = mode,
                                     .stacker1 = 8,
                                     .stacker2 = 7,
                                     .stacker3 = 32,
                                     .useDrive = 2,
                                     .retries = 5,
                                     .errorMark = false});
        const std::string before = ReadText(Installation::settingFile("X"));
        m_stage.open();
        QVERIFY(!m_stage->applyButton->isEnabled());
        m_stage->okButton->click(); // the service is not running, so saving would show a message box
        QTRY_VERIFY(!m_stage->isVisible());
        QCOMPARE(m_stage->result(), 1);
        QCOMPARE(ReadText(Installation::settingFile("X")), before);
    }
}

void PropertyContentTest::firstTabIsShown()
{
    m_stage.store(rt300);
    propertyDialogEx dialog(nullptr);
    dialog.propertyTab->setCurrentIndex(2);
    dialog.fillContent(PropertyStage::record(), 0);
    QCOMPARE(dialog.propertyTab->currentIndex(), 0);
}

void PropertyContentTest::emptySettingFile_data()
{
    everyModel_data();
}

/// An interrupted registration leaves this file: the device is known, and no setting is stored.
void PropertyContentTest::emptySettingFile()
{
    QFETCH(uint32_t, dpType);
    QFETCH(QString, text);
    m_stage.store(dpType);
    WriteText(Installation::settingFile("X"), "[Common]\nGUID={X}\n");
    m_stage.open();
    QCOMPARE(m_stage->windowTitle(), "Properties - (" + text + ")");
    QCOMPARE(chosen(m_stage->selectPublishMode), "none");
    QCOMPARE(chosen(m_stage->selectStacker1), "none");
    QCOMPARE(m_stage->selectUseDrive->currentIndex(), -1);
    QCOMPARE(m_stage->spinRetryCount->value(), 9.0);
    QVERIFY(m_stage->checkErrorMark->isChecked());
    QVERIFY(!m_stage->applyButton->isEnabled());
}

QTEST_MAIN(PropertyContentTest)
#include "PropertyContentTest.moc"

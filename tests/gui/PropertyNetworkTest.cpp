// Tests the property dialog of a network publisher: all settings are shown, and only the name can be edited.
#include "Boxes.h"
#include "PropertyFixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

class PropertyNetworkTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void titles_data();
    void titles();
    void settingsAsTexts_data();
    void settingsAsTexts();
    void labelsReplaceControls();
    void retriesAndErrorMark();
    void figuresOfAServer();
    void unreachable();
    void discsWithManyLayers();
    void cancelIsDisabled();
    void unchangedNameIsAccepted();
    void namesAreChecked_data();
    void namesAreChecked();

private:
    static QStringList texts(const propertyDialogEx* dialog);

    PropertyStage m_stage;
};

void PropertyNetworkTest::init()
{
    m_stage.store(rt300, {.name = "Neighbour"});
    Installation::addNetwork("N", "Server", "studio-3");
}

QStringList PropertyNetworkTest::texts(const propertyDialogEx* dialog)
{
    return {dialog->textPublishMode->text(), dialog->textStacker1->text(), dialog->textStacker2->text(),
            dialog->textStacker3->text(), dialog->textUseDrive->text()};
}

void PropertyNetworkTest::titles_data()
{
    QTest::addColumn<uint>("type");
    QTest::addColumn<QString>("text");
    QTest::newRow("unknown") << 0U << "N/A";
    QTest::newRow("300N") << 1U << "N/A";
    QTest::newRow("300NII") << 2U << "RT-300NII";
    QTest::newRow("300NII BDXL") << 3U << "RT-300NII (BD-XL)";
    QTest::newRow("out of range") << 4U << "N/A";
}

void PropertyNetworkTest::titles()
{
    QFETCH(uint, type);
    QFETCH(QString, text);
    PUBLISHERINFO info = serverRecord();
    info.uiNetPublisherType = type;
    m_stage.open(info, 0);
    QCOMPARE(m_stage->windowTitle(), "Properties - Server(" + text + ")");
    QCOMPARE(m_stage->textPublisherName->text(), "Server");
    QCOMPARE(m_stage->selectStacker1->findData(10) != -1, type == 3);
    QCOMPARE(m_stage->selectStacker1->findData(11) != -1, type == 3);
}

void PropertyNetworkTest::settingsAsTexts_data()
{
    QTest::addColumn<uint>("mode");
    QTest::addColumn<uint>("stacker3");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QString>("sequence");
    // Stacker 1 holds DVD-R, stacker 2 BD-R, drive 2 is used.
    for (const uint standard : {0U, 3U, 4U}) {
        QTest::addRow("mode %u, stacker 3 in use", standard)
            << standard << 0U
            << QStringList{"Standard mode", "DVD(+R/-R)", "Output Stacker", "Use", "Use Drive 2 Only"}
            << "A11-9";
        QTest::addRow("mode %u", standard)
            << standard << 32U
            << QStringList{"Standard mode", "DVD(+R/-R)", "Output Stacker", "Do not use", "Use Drive 2 Only"}
            << "A11-1";
    }
    QTest::newRow("batch") << 1U << 32U
                           << QStringList{"Batch mode", "DVD(+R/-R)", "DVD(+R/-R)", "Use", "Use Drive 2 Only"}
                           << "A11-3";
    QTest::newRow("external output") << 2U << 32U
                                     << QStringList{"External Output / Low-volume mode", "DVD(+R/-R)", "BD-R",
                                                    "Do not use", "Use Drive 2 Only"}
                                     << "A11-2";
    QTest::newRow("unknown mode") << 6U << 0U << QStringList{"", "", "", "", "Use Drive 2 Only"} << "";
}

void PropertyNetworkTest::settingsAsTexts()
{
    QFETCH(uint, mode);
    QFETCH(uint, stacker3);
    QFETCH(QStringList, shown);
    QFETCH(QString, sequence);
    PUBLISHERINFO info = serverRecord();
    info.uiPublishMode = mode;
    info.uiStacker1DiscType = 2;
    info.uiStacker2DiscType = 8;
    info.uiStacker3DiscType = stacker3;
    info.uiUseDrive = 2;
    m_stage.open(info, 0);
    QCOMPARE(texts(m_stage.dialog()), shown);
    QCOMPARE(picture(m_stage->viewStackerSequence), sequence);
    QVERIFY(!m_stage->applyButton->isEnabled());
}

void PropertyNetworkTest::labelsReplaceControls()
{
    m_stage.open(serverRecord(), 0);
    const QWidget* page = m_stage->pageGeneral;
    for (const QWidget* label :
         Widgets{m_stage->labelHostName, m_stage->textHostName, m_stage->labelPublishMode,
                 m_stage->textPublishMode, m_stage->labelStacker1, m_stage->textStacker1,
                 m_stage->labelStacker2, m_stage->textStacker2, m_stage->labelStacker3, m_stage->textStacker3,
                 m_stage->labelUseDrive, m_stage->textUseDrive, m_stage->labelRetry, m_stage->textRetryCount,
                 m_stage->labelErrorMark, m_stage->textErrorMark, m_stage->viewStackerSequence}) {
        QVERIFY2(seenOn(page, label), qPrintable(label->objectName()));
    }
    for (const QWidget* control :
         Widgets{m_stage->selectPublishMode, m_stage->selectStacker1, m_stage->selectStacker2,
                 m_stage->selectStacker3, m_stage->selectUseDrive, m_stage->spinRetryCount,
                 m_stage->checkErrorMark}) {
        QVERIFY2(!seenOn(page, control), qPrintable(control->objectName()));
    }
    QCOMPARE(m_stage->textHostName->text(), "studio-3");
    QVERIFY(seenOn(page, m_stage->textPublisherName) && m_stage->textPublisherName->isEnabled() &&
            !m_stage->textPublisherName->isReadOnly());
}

void PropertyNetworkTest::retriesAndErrorMark()
{
    PUBLISHERINFO info = serverRecord();
    info.uiRetryCount = 7;
    info.bAddErrorMark = true;
    m_stage.open(info, 0);
    QCOMPARE(m_stage->textRetryCount->text(), "7");
    QCOMPARE(m_stage->textErrorMark->text(), "Print");
    info.uiRetryCount = 0;
    info.bAddErrorMark = false;
    m_stage.open(info, 0);
    QCOMPARE(m_stage->textRetryCount->text(), "0");
    QCOMPARE(m_stage->textErrorMark->text(), "Do not print");
}

void PropertyNetworkTest::figuresOfAServer()
{
    m_stage.open(serverRecord(), 0);
    for (const QLabel* label : Labels{m_stage->labelCompleteDiscNumName, m_stage->labelMainteBoxLifeName}) {
        QVERIFY2(!seenOn(m_stage->pageLifetime, label), qPrintable(label->objectName()));
    }
    for (const QLabel* label :
         Labels{m_stage->labelPrintCountName, m_stage->labelDrive1LifeName, m_stage->labelDrive2LifeName}) {
        QVERIFY2(seenOn(m_stage->pageLifetime, label), qPrintable(label->objectName()));
    }
    QCOMPARE(m_stage->labelDrive1LifeName->text(), "Service life of Drive 1:");
    for (const QLabel* label :
         Labels{m_stage->labelSSSVersionLabel, m_stage->labelUDNAVersionLabel,
                m_stage->labelDrive2VersionLabel, m_stage->labelAutoLoaderVersionLabel}) {
        QVERIFY2(seenOn(m_stage->pageVersion, label), qPrintable(label->objectName()));
    }
}

void PropertyNetworkTest::unreachable()
{
    PUBLISHERINFO info = serverRecord();
    info.uiPublishMode = info.uiStacker1DiscType = info.uiStacker2DiscType = unknownNumber;
    info.uiStacker3DiscType = info.uiStacker4DiscType = info.uiUseDrive = unknownNumber;
    m_stage.open(info, 0);
    for (const QComboBox* box : {m_stage->selectPublishMode, m_stage->selectStacker1, m_stage->selectStacker2,
                                 m_stage->selectStacker3, m_stage->selectUseDrive}) {
        QCOMPARE(box->currentIndex(), -1);
    }
    QCOMPARE(texts(m_stage.dialog()), (QStringList{"", "", "", "", ""}));
    QCOMPARE(pictureCount(m_stage->viewStackerSequence), 0);
    for (const QLabel* label : Labels{m_stage->labelPrintCount, m_stage->labelPrintCountUnit,
                                      m_stage->labelDrive1Life, m_stage->labelDrive1LifeUnit}) {
        QVERIFY2(!seenOn(m_stage->pageLifetime, label), qPrintable(label->objectName()));
    }
    for (const QLabel* label : Labels{m_stage->labelSerialNo, m_stage->labelAutoLoaderVersionValue,
                                      m_stage->labelSSSVersionValue, m_stage->labelUDNAVersionValue}) {
        QVERIFY2(!seenOn(m_stage->pageVersion, label), qPrintable(label->objectName()));
    }
    QCOMPARE(m_stage->textHostName->text(), "studio-3");
}

void PropertyNetworkTest::discsWithManyLayers()
{
    PUBLISHERINFO info = serverRecord();
    info.uiNetPublisherType = 3;
    info.uiPublishMode = 2;
    info.uiStacker1DiscType = 10;
    info.uiStacker2DiscType = 11;
    m_stage.open(info, 0);
    QCOMPARE(m_stage->textStacker1->text(), "BD-R XL 100");
    QCOMPARE(m_stage->textStacker2->text(), "BD-R XL 128");
    info.uiNetPublisherType = 2;
    m_stage.open(info, 0);
    QCOMPARE(m_stage->textStacker1->text(), "");
    QCOMPARE(m_stage->textStacker2->text(), "");
}

void PropertyNetworkTest::cancelIsDisabled()
{
    m_stage.open(serverRecord(), 0);
    QVERIFY(!m_stage->cancelButton->isEnabled());
    QVERIFY(m_stage->okButton->isEnabled());
    QVERIFY2(m_stage->close(), "closing through the window frame is ignored");
    QCOMPARE(m_stage->result(), 0);
}

void PropertyNetworkTest::unchangedNameIsAccepted()
{
    const std::string before = ReadText(Installation::settingFile("N"));
    m_stage.open(serverRecord(), 0);
    QTest::mouseClick(m_stage->okButton, Qt::LeftButton);
    QVERIFY(!m_stage->isVisible());
    QCOMPARE(m_stage->result(), 1);
    QCOMPARE(ReadText(Installation::settingFile("N")), before);
}

void PropertyNetworkTest::namesAreChecked_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << ""
                           << "Please type a name for the output device.";
    QTest::newRow("backslash") << "Server\\2"
                               << "\"\\\" cannot be used in the output device name.";
    QTest::newRow("taken") << "Neighbour"
                           << "The same name is already registered.\nPlease use a different name.";
}

void PropertyNetworkTest::namesAreChecked()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    const std::string before = ReadText(Installation::settingFile("N"));
    m_stage.open(serverRecord(), 0);
    m_stage->textPublisherName->selectAll();
    QTest::keyClick(m_stage->textPublisherName, Qt::Key_Delete);
    QTest::keyClicks(m_stage->textPublisherName, name);
    QVERIFY(m_stage->applyButton->isEnabled());
    Boxes boxes({QMessageBox::Ok});
    QTest::mouseClick(m_stage->okButton, Qt::LeftButton);
    QVERIFY(boxes.allAnswered());
    QCOMPARE(boxes.seen()[0].text, text);
    QCOMPARE(boxes.seen()[0].icon, QMessageBox::Information);
    QVERIFY(m_stage->isVisible());
    QCOMPARE(ReadText(Installation::settingFile("N")), before);
}

QTEST_MAIN(PropertyNetworkTest)
#include "PropertyNetworkTest.moc"

// Tests saving the properties of a local publisher: what is written, in which order, and how the dialog
// closes.
#include "Boxes.h"
#include "PropertyService.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>

class PropertySavingTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void nothingChanged();
    void stackerSettings_data();
    void stackerSettings();
    void driveAndPrinterSettings();
    void smallModelKeepsItsDrive();
    void retryCounts_data();
    void retryCounts();
    void correctedValuesAreWrittenBack_data();
    void correctedValuesAreWrittenBack();
    void savingOrder();
    void savingOrderWithNewName();
    void newNameStoresTheCorrectedRecord_data();
    void newNameStoresTheCorrectedRecord();
    void nothingElseIsWritten();
    void deviceTakesTheSettings();
    void newNames_data();
    void newNames();
    void pastedNames_data();
    void pastedNames();
    void takenNameInOtherCase();
    void retypedOldName();
    void networkPublisherSavesOnlyItsName();
    void applyKeepsTheDialogOpen();
    void applyThenCancel();
    void applyThenOk();
    void okReturnsOne();
    void cancelWritesNothing_data();
    void cancelWritesNothing();
    void enterIsOk();
    void undoneChangeStillCounts();
    void fillingAndSaving();

private:
    void start(uint32_t dpType, const char* model, const StoredPublisher& publisher = {});
    /// Presses OK, which must close the dialog.
    void ok();
    static QString savedStackers();
    static QString savedDrive();
    /// Returns the result of exec(). Calls `act` as soon as the dialog runs; `act` must close it.
    int exec(const std::function<void()>& act);

    PropertyStage m_stage;
    std::unique_ptr<PropertyService> m_service;
};

void PropertySavingTest::init()
{
    start(rt300, "RT-300III BD");
}

void PropertySavingTest::cleanup()
{
    m_stage.close();
    m_service.reset();
}

void PropertySavingTest::start(uint32_t dpType, const char* model, const StoredPublisher& publisher)
{
    m_stage.close();
    m_service.reset();
    m_stage.store(dpType, publisher);
    m_service = std::make_unique<PropertyService>(model);
    m_stage.open();
}

void PropertySavingTest::ok()
{
    QTest::mouseClick(m_stage->okButton, Qt::LeftButton);
    QVERIFY(!m_stage->isVisible());
}

QString PropertySavingTest::savedStackers()
{
    return settings({"PublishMode", "Stacker1", "Stacker2", "Stacker3", "Stacker4"});
}

QString PropertySavingTest::savedDrive()
{
    return settings(
        {"UseDrive", "RetryTimes", "RetryTimesW", "RetryTimesR", "ReadBackContinue", "AddErrorMark"});
}

int PropertySavingTest::exec(const std::function<void()>& act)
{
    m_stage->hide();
    QTimer::singleShot(0, m_stage.dialog(), [this, &act] {
        act();
        if (m_stage->isVisible()) {
            QTest::qFail("the dialog stays open", __FILE__, __LINE__);
            m_stage->done(99);
        }
    });
    return m_stage->exec();
}

void PropertySavingTest::nothingChanged()
{
    const std::string before = ReadText(Installation::settingFile("X"));
    ok();
    QCOMPARE(m_stage->result(), 1);
    QCOMPARE(m_service->asked(), "");
    QCOMPARE(ReadText(Installation::settingFile("X")), before);
}

void PropertySavingTest::stackerSettings_data()
{
    QTest::addColumn<bool>("oneDrive");
    QTest::addColumn<uint>("mode");
    QTest::addColumn<uint>("stacker3");
    QTest::addColumn<QString>("saved");
    const auto row = [](bool oneDrive, uint mode, uint stacker3, const char* saved) {
        QTest::addRow("%s, mode %u, stacker 3 %u", oneDrive ? "RT-30" : "RT-300", mode, stacker3)
            << oneDrive << mode << stacker3 << QString(saved);
    };
    // Stacker 1 is set to BD-R, stacker 2 to BD-R DL if the mode allows it.
    row(false, 0, 0, "PublishMode=0 Stacker1=8 Stacker2=0 Stacker3=0 Stacker4=32");
    row(false, 0, 32, "PublishMode=0 Stacker1=8 Stacker2=0 Stacker3=32 Stacker4=0");
    row(false, 1, 0, "PublishMode=1 Stacker1=8 Stacker2=8 Stacker3=0 Stacker4=32");
    row(false, 2, 0, "PublishMode=2 Stacker1=8 Stacker2=9 Stacker3=0 Stacker4=32");
    row(false, 2, 32, "PublishMode=2 Stacker1=8 Stacker2=9 Stacker3=32 Stacker4=0");
    row(true, 0, 32, "PublishMode=0 Stacker1=8 Stacker2=0 Stacker3=0 Stacker4=32");
    row(true, 2, 32, "PublishMode=2 Stacker1=8 Stacker2=9 Stacker3=0 Stacker4=32");
}

void PropertySavingTest::stackerSettings()
{
    QFETCH(bool, oneDrive);
    QFETCH(uint, mode);
    QFETCH(uint, stacker3);
    QFETCH(QString, saved);
    for (const auto& [dpType, model] :
         oneDrive ? std::vector<std::pair<uint32_t, const char*>>{{rt30, "RT-30II"}, {rt30xl, "RT-30II BDXL"}}
                  : std::vector<std::pair<uint32_t, const char*>>{{0x10000009, "RT-300III DVD"},
                                                                  {rt300, "RT-300III BD"},
                                                                  {rt300xl, "RT-300III BDXL"}}) {
        // Other values are stored, so that every key must be written.
        start(dpType, model,
              {.mode = mode == 0 ? 2U : 0U, .stacker1 = 6, .stacker2 = 7, .stacker3 = 16, .stacker4 = 5});
        choose(m_stage->selectPublishMode, mode);
        choose(m_stage->selectStacker1, 8);
        if (mode == 2) {
            choose(m_stage->selectStacker2, 9);
        }
        if (!oneDrive && mode != 1 && chosen(m_stage->selectStacker3) != QString::number(stacker3)) {
            choose(m_stage->selectStacker3, stacker3);
        }
        ok();
        QCOMPARE(savedStackers(), saved);
        QCOMPARE(m_service->asked(), "4 21 16");
        QCOMPARE(m_service->requests()[1].parameter, uint64_t(mode));
    }
}

void PropertySavingTest::driveAndPrinterSettings()
{
    start(rt300, "RT-300III BD", {.useDrive = 0, .retries = 3, .retriesR = 7, .errorMark = true});
    m_stage->selectUseDrive->setFocus();
    QTest::keyClick(m_stage->selectUseDrive, Qt::Key_Down);
    QTest::keyClick(m_stage->selectUseDrive, Qt::Key_Down);
    m_stage->spinRetryCount->setFocus();
    QTest::keyClick(m_stage->spinRetryCount, Qt::Key_Up);
    QTest::keyClick(m_stage->spinRetryCount, Qt::Key_Up);
    QTest::mouseClick(m_stage->checkErrorMark, Qt::LeftButton, Qt::NoModifier,
                      QPoint(5, m_stage->checkErrorMark->height() / 2));
    ok();
    QCOMPARE(savedDrive(),
             "UseDrive=2 RetryTimes=5 RetryTimesW=5 RetryTimesR=7 ReadBackContinue=1 AddErrorMark=0");
}

void PropertySavingTest::smallModelKeepsItsDrive()
{
    start(rt30, "RT-30II", {.useDrive = 2, .errorMark = false});
    QTest::mouseClick(m_stage->checkErrorMark, Qt::LeftButton, Qt::NoModifier,
                      QPoint(5, m_stage->checkErrorMark->height() / 2));
    ok();
    QCOMPARE(savedDrive(),
             "UseDrive=2 RetryTimes=3 RetryTimesW=3 RetryTimesR=3 ReadBackContinue=1 AddErrorMark=1");

    start(rt30, "RT-30II", {.useDrive = 77});
    typeName(m_stage.dialog(), "Other");
    ok();
    QCOMPARE(setting("UseDrive"), "77");
}

void PropertySavingTest::retryCounts_data()
{
    QTest::addColumn<QString>("typed");
    for (const char* digit : {"0", "1", "2", "4", "5", "6", "7", "8", "9"}) {
        QTest::newRow(digit) << QString(digit);
    }
}

void PropertySavingTest::retryCounts()
{
    QFETCH(QString, typed);
    m_stage->spinRetryCount->setFocus();
    m_stage->spinRetryCount->selectAll();
    QTest::keyClicks(m_stage->spinRetryCount, typed);
    ok();
    QCOMPARE(settings({"RetryTimes", "RetryTimesW", "RetryTimesR"}),
             QString("RetryTimes=%1 RetryTimesW=%1 RetryTimesR=3").arg(typed));
}

void PropertySavingTest::correctedValuesAreWrittenBack_data()
{
    QTest::addColumn<uint>("mode");
    QTest::addColumn<uint>("stacker1");
    QTest::addColumn<uint>("stacker2");
    QTest::addColumn<uint>("stacker3");
    QTest::addColumn<QString>("saved");
    QTest::newRow("DVD-R") << 0U << 2U << 0U << 32U
                           << "PublishMode=0 Stacker1=6 Stacker2=0 Stacker3=32 Stacker4=0";
    QTest::newRow("DVD+R") << 2U << 4U << 2U << 0U
                           << "PublishMode=2 Stacker1=6 Stacker2=6 Stacker3=0 Stacker4=32";
    QTest::newRow("DVD-R DL and DVD+R DL")
        << 2U << 3U << 5U << 32U << "PublishMode=2 Stacker1=7 Stacker2=7 Stacker3=32 Stacker4=0";
    QTest::newRow("unknown media") << 2U << 16U << 99U << 5U
                                   << "PublishMode=2 Stacker1=1 Stacker2=1 Stacker3=0 Stacker4=32";
    QTest::newRow("mode 3") << 3U << 1U << 8U << 32U
                            << "PublishMode=0 Stacker1=1 Stacker2=0 Stacker3=32 Stacker4=0";
    QTest::newRow("mode 4") << 4U << 1U << 8U << 16U
                            << "PublishMode=0 Stacker1=1 Stacker2=0 Stacker3=0 Stacker4=32";
    QTest::newRow("batch with two media")
        << 1U << 8U << 6U << 32U << "PublishMode=1 Stacker1=8 Stacker2=8 Stacker3=0 Stacker4=32";
}

/// A change of another setting also saves the values that the boxes show.
void PropertySavingTest::correctedValuesAreWrittenBack()
{
    QFETCH(uint, mode);
    QFETCH(uint, stacker1);
    QFETCH(uint, stacker2);
    QFETCH(uint, stacker3);
    QFETCH(QString, saved);
    start(rt300, "RT-300III BD",
          {.mode = mode, .stacker1 = stacker1, .stacker2 = stacker2, .stacker3 = stacker3, .stacker4 = 5});
    m_stage->spinRetryCount->stepUp();
    ok();
    QCOMPARE(savedStackers(), saved);
}

/// The device gets the mode first, then the file is written, then the service is notified.
void PropertySavingTest::savingOrder()
{
    const std::string before = ReadText(Installation::settingFile("X"));
    choose(m_stage->selectPublishMode, 2);
    ok();
    QCOMPARE(m_service->asked(), "4 21 16");
    const std::vector<udsim::Request> requests = m_service->requests();
    QCOMPARE(requests[0].parameter, uint64_t(1));
    QCOMPARE(requests[1].parameter, uint64_t(2));
    QCOMPARE(requests[2].parameter, uint64_t(0));
    for (const udsim::Request& request : requests) {
        QCOMPARE(request.publisher, "X");
        QCOMPARE(request.job, "");
    }
    const std::vector<std::string> files = m_service->files();
    QCOMPARE(files[0], before);
    QCOMPARE(files[1], before);
    QVERIFY(files[2].find("\nPublishMode=2\n") != std::string::npos);
    QCOMPARE(files[2], ReadText(Installation::settingFile("X")));
}

/// The name is written alone first, then again with all other settings.
void PropertySavingTest::savingOrderWithNewName()
{
    choose(m_stage->selectPublishMode, 2);
    typeName(m_stage.dialog(), "Studio B");
    ok();
    QCOMPARE(m_service->asked(), "4 16 21 16");
    const std::vector<std::string> files = m_service->files();
    const auto holds = [&files](size_t moment, const char* line) {
        return files[moment].find(std::string("\n") + line + "\n") != std::string::npos;
    };
    QVERIFY(holds(0, "PublisherName=Studio") && holds(0, "PublishMode=0"));
    QVERIFY(holds(1, "PublisherName=Studio B") && holds(1, "PublishMode=0"));
    QVERIFY(holds(2, "PublisherName=Studio B") && holds(2, "PublishMode=0"));
    QVERIFY(holds(3, "PublisherName=Studio B") && holds(3, "PublishMode=2"));
    QCOMPARE(setting("PublisherName"), "Studio B");
}

void PropertySavingTest::newNameStoresTheCorrectedRecord_data()
{
    QTest::addColumn<bool>("oneDrive");
    QTest::addColumn<QVector<uint>>("stored"); // mode, stackers 1 to 3
    QTest::addColumn<QString>("corrected");
    const auto row = [](bool oneDrive, const QVector<uint>& stored, const char* corrected) {
        QTest::addRow("%s, mode %u, stackers %u %u %u", oneDrive ? "RT-30" : "RT-300", stored[0], stored[1],
                      stored[2], stored[3])
            << oneDrive << stored << QString(corrected);
    };
    row(false, {3, 2, 8, 5}, "PublishMode=0 Stacker1=6 Stacker2=0 Stacker3=0 Stacker4=5");
    row(false, {4, 5, 8, 33}, "PublishMode=0 Stacker1=7 Stacker2=0 Stacker3=32 Stacker4=5");
    row(false, {1, 4, 3, 32}, "PublishMode=1 Stacker1=6 Stacker2=7 Stacker3=0 Stacker4=5");
    row(false, {2, 99, 4, 10}, "PublishMode=2 Stacker1=1 Stacker2=6 Stacker3=32 Stacker4=5");
    row(false, {5, 2, 3, 1}, "PublishMode=5 Stacker1=6 Stacker2=7 Stacker3=0 Stacker4=5");
    row(true, {1, 1, 6, 0}, "PublishMode=0 Stacker1=1 Stacker2=0 Stacker3=32 Stacker4=5");
    row(true, {2, 1, 6, 0}, "PublishMode=2 Stacker1=1 Stacker2=6 Stacker3=32 Stacker4=5");
}

/// Checks the file at the change notice for the new name, which precedes the notice for the other settings.
void PropertySavingTest::newNameStoresTheCorrectedRecord()
{
    QFETCH(bool, oneDrive);
    QFETCH(QVector<uint>, stored);
    QFETCH(QString, corrected);
    start(oneDrive ? rt30 : rt300, oneDrive ? "RT-30II" : "RT-300III BD",
          {.mode = stored[0],
           .stacker1 = stored[1],
           .stacker2 = stored[2],
           .stacker3 = stored[3],
           .stacker4 = 5});
    QString found;
    m_service->onRequest = [&found](const udsim::Request& request) {
        if (request.control == PropertyService::notifyChange && found.isEmpty()) {
            found = savedStackers();
        }
    };
    typeName(m_stage.dialog(), "Studio B");
    ok();
    QCOMPARE(m_service->asked(), "4 16 21 16");
    QCOMPARE(found, corrected);
}

void PropertySavingTest::nothingElseIsWritten()
{
    const std::string registry = ReadText(REGISTRY_FILE);
    choose(m_stage->selectPublishMode, 1);
    typeName(m_stage.dialog(), "Studio B");
    ok();
    QCOMPARE(ReadText(REGISTRY_FILE), registry);
    QCOMPARE(settings({"GUID", "PrinterName", "PublisherConnectionType"}),
             "GUID={X} PrinterName=Printer of the studio PublisherConnectionType=0");
    const auto folder = std::filesystem::directory_iterator(PUBLISHER_SETTING_DIR);
    QCOMPARE(std::distance(begin(folder), end(folder)), 1);
}

void PropertySavingTest::deviceTakesTheSettings()
{
    typeName(m_stage.dialog(), "Studio B");
    choose(m_stage->selectPublishMode, 2);
    choose(m_stage->selectStacker1, 8);
    choose(m_stage->selectStacker2, 9);
    choose(m_stage->selectStacker3, 0);
    ok();
    const auto device = (*m_service)->look("Studio");
    QVERIFY(device);
    QCOMPARE(device->state().mode, 2U);
    QCOMPARE(device->state().shownName, "Studio B");
    QCOMPARE(device->state().stackers[0].media, 8U);
    QCOMPARE(device->state().stackers[1].media, 9U);
    QCOMPARE(device->state().stackers[2].media, 0U);
    QCOMPARE(device->state().stackers[3].media, 32U);
}

void PropertySavingTest::newNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("one letter") << "B";
    QTest::newRow("non-ASCII letters") << QString::fromUtf8("Stüdio – 日本");
    QTest::newRow("slash") << "Studio/B";
    QTest::newRow("blank") << " ";
    QTest::newRow("special characters") << "[B] = 100 % & more; \"#1\"";
    QTest::newRow("64 letters") << QString(64, 'n');
    QTest::newRow("200 letters") << QString(200, 'n');
}

void PropertySavingTest::newNames()
{
    QFETCH(QString, name);
    m_stage->textPublisherName->clear();
    m_stage->textPublisherName->insert(name);
    ok();
    QCOMPARE(setting("PublisherName"), name);
}

void PropertySavingTest::pastedNames_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("saved");
    QTest::addColumn<QString>("asked");
    QTest::newRow("trailing line break") << "Studio B\n"
                                         << "Studio B"
                                         << "4 16 21 16";
    QTest::newRow("two lines") << "Studio\r\nB"
                               << "StudioB"
                               << "4 16 21 16";
    QTest::newRow("a key") << "Studio B\nStacker1=9"
                           << "Studio BStacker1=9"
                           << "4 16 21 16";
    QTest::newRow("old name with a line break") << "Studio\n"
                                                << "Studio"
                                                << "4 21 16";
}

/// A name stays on one line of the file, whatever is pasted.
void PropertySavingTest::pastedNames()
{
    QFETCH(QString, pasted);
    QFETCH(QString, saved);
    QFETCH(QString, asked);
    QGuiApplication::clipboard()->setText(pasted);
    m_stage->textPublisherName->selectAll();
    m_stage->textPublisherName->paste();
    ok();
    QCOMPARE(setting("PublisherName"), saved);
    QCOMPARE(setting("Stacker1"), "1");
    QCOMPARE(m_service->asked(), asked);
}

void PropertySavingTest::takenNameInOtherCase()
{
    m_stage.installation().addLocal("Y", "STUDIO");
    typeName(m_stage.dialog(), "sTUDIO");
    ok();
    QCOMPARE(setting("PublisherName"), "sTUDIO");
    QCOMPARE(m_service->asked(), "4 16 21 16");
}

void PropertySavingTest::retypedOldName()
{
    typeName(m_stage.dialog(), "Studio B");
    typeName(m_stage.dialog(), "Studio");
    QVERIFY(m_stage->applyButton->isEnabled());
    ok();
    QCOMPARE(m_service->asked(), "4 21 16");
}

/// Changes of other settings are ignored.
void PropertySavingTest::networkPublisherSavesOnlyItsName()
{
    PUBLISHERINFO info = PropertyStage::record();
    info.uiPublisherType = 1;
    m_stage.open(info, 0);
    const std::string before = ReadText(Installation::settingFile("X"));
    m_stage->spinRetryCount->stepUp();
    QVERIFY(m_stage->applyButton->isEnabled());
    Boxes boxes({});
    ok();
    QVERIFY(boxes.allAnswered());
    QCOMPARE(m_stage->result(), 1);
    QCOMPARE(m_service->asked(), "4");
    QCOMPARE(ReadText(Installation::settingFile("X")), before);
}

void PropertySavingTest::applyKeepsTheDialogOpen()
{
    choose(m_stage->selectPublishMode, 2);
    QTest::mouseClick(m_stage->applyButton, Qt::LeftButton);
    QVERIFY(m_stage->isVisible());
    QVERIFY(!m_stage->applyButton->isEnabled());
    QCOMPARE(m_stage->result(), 1);
    QCOMPARE(m_service->asked(), "4 21 16");
    QCOMPARE(setting("PublishMode"), "2");

    choose(m_stage->selectPublishMode, 1);
    QVERIFY(m_stage->applyButton->isEnabled());
    QTest::mouseClick(m_stage->applyButton, Qt::LeftButton);
    QCOMPARE(m_service->asked(), "4 21 16");
    QCOMPARE(setting("PublishMode"), "1");
}

void PropertySavingTest::applyThenCancel()
{
    const int result = exec([this] {
        typeName(m_stage.dialog(), "Studio B");
        QTest::mouseClick(m_stage->applyButton, Qt::LeftButton);
        QVERIFY(m_stage->isVisible());
        QTest::mouseClick(m_stage->cancelButton, Qt::LeftButton);
    });
    QCOMPARE(result, 0);
    QCOMPARE(setting("PublisherName"), "Studio B");
}

void PropertySavingTest::applyThenOk()
{
    const int result = exec([this] {
        choose(m_stage->selectPublishMode, 2);
        QTest::mouseClick(m_stage->applyButton, Qt::LeftButton);
        QCOMPARE(m_service->asked(), "4 21 16");
        QTest::mouseClick(m_stage->okButton, Qt::LeftButton);
    });
    QCOMPARE(result, 1);
    QCOMPARE(m_service->asked(), "");
}

void PropertySavingTest::okReturnsOne()
{
    const int result = exec([this] {
        m_stage->spinRetryCount->stepUp();
        QTest::mouseClick(m_stage->okButton, Qt::LeftButton);
    });
    QCOMPARE(result, 1);
    QCOMPARE(setting("RetryTimes"), "4");
}

void PropertySavingTest::cancelWritesNothing_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("Cancel") << 0;
    QTest::newRow("Escape") << 1;
    QTest::newRow("window frame") << 2;
}

void PropertySavingTest::cancelWritesNothing()
{
    QFETCH(int, way);
    const std::string before = ReadText(Installation::settingFile("X"));
    const int result = exec([this, way] {
        typeName(m_stage.dialog(), "Studio B");
        choose(m_stage->selectPublishMode, 2);
        if (way == 0) {
            QTest::mouseClick(m_stage->cancelButton, Qt::LeftButton);
        } else if (way == 1) {
            QTest::keyClick(m_stage->textPublisherName, Qt::Key_Escape);
        } else {
            m_stage->close();
        }
    });
    QCOMPARE(result, 0);
    QCOMPARE(m_service->asked(), "");
    QCOMPARE(ReadText(Installation::settingFile("X")), before);
}

void PropertySavingTest::enterIsOk()
{
    const int result = exec([this] {
        typeName(m_stage.dialog(), "Studio B");
        QTest::keyClick(m_stage->textPublisherName, Qt::Key_Return);
    });
    QCOMPARE(result, 1);
    QCOMPARE(setting("PublisherName"), "Studio B");
}

/// A change that is undone still counts as a change.
void PropertySavingTest::undoneChangeStillCounts()
{
    m_stage->spinRetryCount->stepUp();
    m_stage->spinRetryCount->stepDown();
    QVERIFY(m_stage->applyButton->isEnabled());
    ok();
    QCOMPARE(m_service->asked(), "4 21 16");
}

/// Fills and saves the dialog as the list window does, with a device that replies.
void PropertySavingTest::fillingAndSaving()
{
    m_stage.open(1);
    QCOMPARE(m_service->asked(), "28 10 12 11");
    choose(m_stage->selectPublishMode, 1);
    ok();
    QCOMPARE(m_service->asked(), "4 21 16");
    QCOMPARE((*m_service)->look("Studio")->state().mode, 1U);
}

QTEST_MAIN(PropertySavingTest)
#include "PropertySavingTest.moc"

// Tests why the properties of a publisher are not saved: each message box, and what is written before it
// appears.
#include "Boxes.h"
#include "OrdinaryRights.h"
#include "PropertyService.h"
#include "ScriptedService.h"

#include <QLineEdit>
#include <QPushButton>

#include <sys/stat.h>

namespace {

constexpr char busy[] =
    "This output device is processing jobs and the settings could not be changed.\nPlease change "
    "it after all jobs are completed.";
constexpr char nameless[] = "Please type a name for the output device.";
constexpr char backslash[] = "\"\\\" cannot be used in the output device name.";
constexpr char taken[] = "The same name is already registered.\nPlease use a different name.";
constexpr char notWritten[] = "Failed to change setting.";
constexpr char modeRefused[] = "The settings could not be changed because registration of the Publish Mode "
                               "in the output device settings "
                               "failed.\nPlease change the settings after checking the power supply of the "
                               "output device and the connection.";

} // namespace

class PropertyRefusalTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void unfinishedJobs_data();
    void unfinishedJobs();
    void unavailableJobList();
    void runningJobOfTheService();
    void runningJobOfANetworkPublisher();
    void names_data();
    void names();
    void takenNamesAreComparedByteForByte_data();
    void takenNamesAreComparedByteForByte();
    void unreadablePublisherIsSkipped();
    void noticeRefusedAfterTheName();
    void modeRefused_data();
    void modeRefused();
    void savedNameIsNotRolledBack();
    void noticeRefusedAtTheEnd();
    void noticeRefusedAtTheEndWithNewName();
    void withoutService();
    void deviceSwitchedOff();
    void recordKeepsReadValues();
    void applyIsRefusedTheSameWay();
    void settingFolderIsRemoved();
    void unwritableFile(); // the last two tests: they drop privileges
    void unwritableFileWithNewName();

private:
    void start(const StoredPublisher& publisher = {});
    /// Presses the button and answers the one message box that must appear.
    void pressAndRead(QPushButton* button, const QString& text, QMessageBox::Icon icon);
    void okIsRefused(const QString& text, QMessageBox::Icon icon = QMessageBox::Warning);
    void okIsAccepted();
    static std::string file();

    PropertyStage m_stage;
    std::unique_ptr<PropertyService> m_service;
};

void PropertyRefusalTest::init()
{
    start();
}

void PropertyRefusalTest::cleanup()
{
    m_stage.close();
    m_service.reset();
}

void PropertyRefusalTest::start(const StoredPublisher& publisher)
{
    m_stage.store(rt300, publisher);
    m_service = std::make_unique<PropertyService>();
    m_stage.open();
}

std::string PropertyRefusalTest::file()
{
    return ReadText(Installation::settingFile("X"));
}

void PropertyRefusalTest::pressAndRead(QPushButton* button, const QString& text, QMessageBox::Icon icon)
{
    Boxes boxes({QMessageBox::Ok});
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(boxes.allAnswered());
    const SeenBox box = boxes.seen()[0];
    QCOMPARE(box.title, "ARVEN Ulmar Disc Setup");
    QCOMPARE(box.text, text);
    QCOMPARE(box.icon, icon);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(m_stage->isVisible());
    QVERIFY(m_stage->applyButton->isEnabled());
    QCOMPARE(m_stage->result(), 0);
}

void PropertyRefusalTest::okIsRefused(const QString& text, QMessageBox::Icon icon)
{
    pressAndRead(m_stage->okButton, text, icon);
}

void PropertyRefusalTest::okIsAccepted()
{
    Boxes boxes({});
    QTest::mouseClick(m_stage->okButton, Qt::LeftButton);
    QVERIFY(boxes.allAnswered());
    QVERIFY(!m_stage->isVisible());
    QCOMPARE(m_stage->result(), 1);
}

void PropertyRefusalTest::unfinishedJobs_data()
{
    QTest::addColumn<QVector<quint64>>("states");
    QTest::addColumn<bool>("refused");
    for (quint64 state = 0; state <= 10; ++state) {
        QTest::addRow("state %d", int(state)) << QVector<quint64>{state} << (state != 8 && state != 9);
    }
    QTest::newRow("no jobs") << QVector<quint64>{} << false;
    QTest::newRow("first of many") << QVector<quint64>{1, 9, 8} << true;
    QTest::newRow("last of many") << QVector<quint64>{9, 8, 2} << true;
    QTest::newRow("all done") << QVector<quint64>{9, 8, 9, 8} << false;
    QTest::newRow("beyond 32 bits") << QVector<quint64>{0x100000009} << true;
}

void PropertyRefusalTest::unfinishedJobs()
{
    QFETCH(QVector<quint64>, states);
    QFETCH(bool, refused);
    m_service.reset();
    ScriptedService service;
    service.setJobs("X", std::vector<uint64_t>(states.begin(), states.end()));
    const std::string before = file();
    typeName(m_stage.dialog(), "Studio B");
    if (refused) {
        okIsRefused(busy);
        QCOMPARE(file(), before);
        QCOMPARE(service.count("16 X") + service.count("21 X"), 0);
        service.setJobs("X", {});
    }
    okIsAccepted();
    QCOMPARE(setting("PublisherName"), "Studio B");
}

void PropertyRefusalTest::unavailableJobList()
{
    (*m_service)->addJob("Studio");
    m_service->refuse(PropertyService::jobList, 0, 1001);
    m_stage->spinRetryCount->stepUp();
    okIsAccepted();
    QCOMPARE(setting("RetryTimes"), "4");
}

void PropertyRefusalTest::runningJobOfTheService()
{
    (*m_service)->addJob("Studio");
    choose(m_stage->selectPublishMode, 2);
    okIsRefused(busy);
    QCOMPARE(m_service->asked(), "4");
    QCOMPARE(setting("PublishMode"), "0");
    QCOMPARE((*m_service)->look("Studio")->state().mode, 0U);
}

/// Only the name can be changed, and this too is refused while a job is running.
void PropertyRefusalTest::runningJobOfANetworkPublisher()
{
    (*m_service)->addJob("Studio");
    const std::string before = file();
    PUBLISHERINFO info = PropertyStage::record();
    info.uiPublisherType = 1;
    m_stage.open(info, 0);
    typeName(m_stage.dialog(), "Studio B");
    okIsRefused(busy);
    QCOMPARE(m_service->asked(), "4");
    QCOMPARE(file(), before);
}

void PropertyRefusalTest::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "" << QString(nameless);
    QTest::newRow("backslash") << "\\" << QString(backslash);
    QTest::newRow("backslash inside") << "Studio\\B" << QString(backslash);
    QTest::newRow("backslash at the end") << "Studio\\" << QString(backslash);
    QTest::newRow("taken") << "Neighbour" << QString(taken);
    QTest::newRow("taken, with a backslash") << "Neigh\\bour" << QString(backslash);
}

void PropertyRefusalTest::names()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    m_stage.installation().addLocal("Y", "Neighbour");
    Installation::addNetwork("Z", "Neigh\\bour", "studio-3");
    const std::string before = file();
    choose(m_stage->selectPublishMode, 2);
    typeName(m_stage.dialog(), name);
    m_stage->propertyTab->setFocus();
    okIsRefused(text, QMessageBox::Information);
    QCOMPARE(m_stage->textPublisherName->text(), name);
    QCOMPARE(m_stage->textPublisherName->selectedText(), name); // all of it, ready to be overwritten
    QCOMPARE(m_service->asked(), "4");
    QCOMPARE(file(), before);

    okIsRefused(text, QMessageBox::Information); // and again
    typeName(m_stage.dialog(), "Studio B");
    QCOMPARE(m_service->asked(), "4");
    okIsAccepted();
    QCOMPARE(m_service->asked(), "4 16 21 16");
    QCOMPARE(settings({"PublisherName", "PublishMode"}), "PublisherName=Studio B PublishMode=2");
}

void PropertyRefusalTest::takenNamesAreComparedByteForByte_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("refused");
    QTest::newRow("same") << "Lab 3" << true;
    QTest::newRow("other case") << "LAB 3" << false;
    QTest::newRow("prefix") << "Lab" << false;
    QTest::newRow("longer") << "Lab 33" << false;
    QTest::newRow("trailing blank") << "Lab 3 " << false;
}

void PropertyRefusalTest::takenNamesAreComparedByteForByte()
{
    QFETCH(QString, name);
    QFETCH(bool, refused);
    m_stage.installation().addLocal("Y", "Lab 3");
    typeName(m_stage.dialog(), name);
    if (refused) {
        okIsRefused(taken, QMessageBox::Information);
        QCOMPARE(setting("PublisherName"), "Studio");
    } else {
        okIsAccepted();
        QCOMPARE(setting("PublisherName"), name);
    }
    QCOMPARE(setting("PublisherName", "Y"), "Lab 3");
}

void PropertyRefusalTest::unreadablePublisherIsSkipped()
{
    std::filesystem::create_symlink("nowhere", Installation::settingFile("A"));
    m_stage.installation().addLocal("Y", "Neighbour");
    typeName(m_stage.dialog(), "Neighbour");
    okIsRefused(taken, QMessageBox::Information);
    typeName(m_stage.dialog(), "Studio B");
    okIsAccepted();
}

void PropertyRefusalTest::noticeRefusedAfterTheName()
{
    m_service->refuse(PropertyService::notifyChange, 1);
    choose(m_stage->selectPublishMode, 2);
    typeName(m_stage.dialog(), "Studio B");
    okIsRefused(busy);
    QCOMPARE(m_service->asked(), "4 16");
    QCOMPARE(settings({"PublisherName", "PublishMode"}), "PublisherName=Studio B PublishMode=0");
    QCOMPARE((*m_service)->look("Studio")->state().mode, 0U);

    okIsAccepted(); // the name is no longer new
    QCOMPARE(m_service->asked(), "4 21 16");
    QCOMPARE(settings({"PublisherName", "PublishMode"}), "PublisherName=Studio B PublishMode=2");
}

void PropertyRefusalTest::modeRefused_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<quint64>("number");
    using Kind = udsim::Fault::Kind;
    QTest::newRow("device is off") << int(Kind::result) << quint64(11);
    QTest::newRow("busy") << int(Kind::result) << quint64(1004);
    QTest::newRow("no such mode") << int(Kind::result) << quint64(37);
    QTest::newRow("no reply") << int(Kind::close) << quint64(0);
    QTest::newRow("wrong control id") << int(Kind::wrongId) << quint64(0);
    QTest::newRow("truncated header") << int(Kind::shortHeader) << quint64(0);
}

void PropertyRefusalTest::modeRefused()
{
    QFETCH(int, kind);
    QFETCH(quint64, number);
    const std::string before = file();
    (*m_service)
        ->setFault({static_cast<udsim::Fault::Kind>(kind), number, PropertyService::setPublishMode, "", 0});
    choose(m_stage->selectPublishMode, 2);
    okIsRefused(::modeRefused);
    QCOMPARE(m_service->asked(), "4 21");
    QCOMPARE(file(), before);

    (*m_service)->clearFaults();
    okIsAccepted();
    QCOMPARE(m_service->asked(), "4 21 16");
    QCOMPARE(setting("PublishMode"), "2");
}

void PropertyRefusalTest::savedNameIsNotRolledBack()
{
    m_service->refuse(PropertyService::setPublishMode);
    choose(m_stage->selectPublishMode, 2);
    typeName(m_stage.dialog(), "Studio B");
    okIsRefused(::modeRefused);
    QCOMPARE(m_service->asked(), "4 16 21");
    QCOMPARE(settings({"PublisherName", "PublishMode"}), "PublisherName=Studio B PublishMode=0");
    QTest::mouseClick(m_stage->cancelButton, Qt::LeftButton);
    QVERIFY(!m_stage->isVisible());
    QCOMPARE(setting("PublisherName"), "Studio B");
}

void PropertyRefusalTest::noticeRefusedAtTheEnd()
{
    m_service->refuse(PropertyService::notifyChange, 1);
    choose(m_stage->selectPublishMode, 1);
    okIsRefused(busy);
    QCOMPARE(m_service->asked(), "4 21 16");
    QCOMPARE(setting("PublishMode"), "1");
    QCOMPARE((*m_service)->look("Studio")->state().mode, 1U);
    okIsAccepted();
    QCOMPARE(m_service->asked(), "4 21 16");
}

void PropertyRefusalTest::noticeRefusedAtTheEndWithNewName()
{
    m_service->onRequest = [this](const udsim::Request& request) {
        if (request.control == PropertyService::setPublishMode) {
            m_service->refuse(PropertyService::notifyChange, 1);
        }
    };
    choose(m_stage->selectPublishMode, 1);
    typeName(m_stage.dialog(), "Studio B");
    okIsRefused(busy);
    QCOMPARE(m_service->asked(), "4 16 21 16");
    QCOMPARE(settings({"PublisherName", "PublishMode"}), "PublisherName=Studio B PublishMode=1");
}

void PropertyRefusalTest::withoutService()
{
    m_service.reset();
    m_stage->spinRetryCount->stepUp();
    okIsRefused(::modeRefused); // because of the mode, not of the unavailable job list
    QCOMPARE(setting("RetryTimes"), "3");
    typeName(m_stage.dialog(), "Studio B");
    okIsRefused(busy);
    QCOMPARE(setting("PublisherName"), "Studio B");
}

void PropertyRefusalTest::deviceSwitchedOff()
{
    QVERIFY((*m_service)->tell("Studio", "offline"));
    choose(m_stage->selectPublishMode, 2);
    okIsRefused(::modeRefused);
    QCOMPARE(setting("PublishMode"), "0");
    QVERIFY((*m_service)->tell("Studio", "online"));
    okIsAccepted();
    QCOMPARE(setting("PublishMode"), "2");
}

/// Values that were read from the widgets before a refusal are stored with the next new name.
void PropertyRefusalTest::recordKeepsReadValues()
{
    m_service->refuse(PropertyService::setPublishMode, 1);
    choose(m_stage->selectPublishMode, 2);
    okIsRefused(::modeRefused);
    QCOMPARE(setting("PublishMode"), "0");
    m_service->refuse(PropertyService::notifyChange, 1);
    typeName(m_stage.dialog(), "Studio B");
    okIsRefused(busy);
    QCOMPARE(m_service->asked(), "4 21 4 16");
    QCOMPARE(settings({"PublisherName", "PublishMode"}), "PublisherName=Studio B PublishMode=2");
}

void PropertyRefusalTest::applyIsRefusedTheSameWay()
{
    m_service->refuse(PropertyService::setPublishMode, 1);
    choose(m_stage->selectPublishMode, 2);
    pressAndRead(m_stage->applyButton, ::modeRefused, QMessageBox::Warning);
    typeName(m_stage.dialog(), "");
    pressAndRead(m_stage->applyButton, nameless, QMessageBox::Information);
    typeName(m_stage.dialog(), "Studio");
    QTest::mouseClick(m_stage->applyButton, Qt::LeftButton);
    QVERIFY(m_stage->isVisible() && !m_stage->applyButton->isEnabled());
    QCOMPARE(m_stage->result(), 1);
}

/// The setting folder is removed while the properties are open.
void PropertyRefusalTest::settingFolderIsRemoved()
{
    std::filesystem::remove_all(PUBLISHER_SETTING_DIR);
    typeName(m_stage.dialog(), "Studio B");
    okIsRefused(notWritten);
    QVERIFY(!std::filesystem::exists(PUBLISHER_SETTING_DIR));
}

void PropertyRefusalTest::unwritableFile()
{
    QVERIFY(TakeAwayPrivileges());
    const std::string before = file();
    QCOMPARE(chmod(Installation::settingFile("X").c_str(), 0444), 0);
    choose(m_stage->selectPublishMode, 2);
    okIsRefused(notWritten);
    QCOMPARE(m_service->asked(), "4 21"); // the device has the new mode, but no change notice is sent
    QCOMPARE((*m_service)->look("Studio")->state().mode, 2U);
    QCOMPARE(file(), before);
    QCOMPARE(chmod(Installation::settingFile("X").c_str(), 0644), 0);
    okIsAccepted();
    QCOMPARE(setting("PublishMode"), "2");
}

void PropertyRefusalTest::unwritableFileWithNewName()
{
    QVERIFY(TakeAwayPrivileges());
    const std::string path = Installation::settingFile("X");
    QCOMPARE(chmod(path.c_str(), 0444), 0);
    typeName(m_stage.dialog(), "Studio B");
    okIsRefused(notWritten);
    QCOMPARE(m_service->asked(), "4");
    QCOMPARE(setting("PublisherName"), "Studio");

    // The name can be written, the remaining settings cannot.
    QCOMPARE(chmod(path.c_str(), 0644), 0);
    m_service->onRequest = [path](const udsim::Request& request) {
        if (request.control == PropertyService::setPublishMode) {
            chmod(path.c_str(), 0444);
        }
    };
    typeName(m_stage.dialog(), "Studio C");
    choose(m_stage->selectPublishMode, 2);
    okIsRefused(notWritten);
    QCOMPARE(m_service->asked(), "4 16 21");
    QCOMPARE(settings({"PublisherName", "PublishMode"}), "PublisherName=Studio C PublishMode=0");
    QCOMPARE((*m_service)->look("Studio")->state().mode, 2U);
}

QTEST_MAIN(PropertyRefusalTest)
#include "PropertyRefusalTest.moc"

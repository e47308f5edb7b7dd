// Tests renaming a network publisher: the requests to its server, the resulting file and list, and why a name
// is refused.
#include "PropertyService.h"
#include "ServerFixture.h"

#include <sys/stat.h>

namespace {

constexpr char busy[] =
    "This output device is processing jobs and the settings could not be changed.\nPlease change "
    "it after all jobs are completed.";
constexpr char taken[] = "The same name is already registered.\nPlease use a different name.";

/// Types the name and presses OK.
void rename(propertyDialogEx& dialog, const QString& name)
{
    typeName(&dialog, name);
    QTest::mouseClick(dialog.okButton, Qt::LeftButton);
}

} // namespace

class RenameServerTest : public ServerFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void requestsOfAnUnchangedDialog();
    void renamedFromTheList();
    void renamedFile();
    void runningJobRefusesTheName();
    void nameInUse_data();
    void nameInUse();
    void nameOfUnreachableServerIsNotCompared();
    void serverStopsWhileDialogIsOpen();
};

void RenameServerTest::init()
{
    startAnew();
}

void RenameServerTest::cleanup()
{
    tidyUp();
}

void RenameServerTest::requestsOfAnUnchangedDialog()
{
    startRoom(studio());
    std::string before;
    openFromTheList([&](propertyDialogEx& shown) {
        before = file();
        m_room->forget();
        QTest::mouseClick(shown.okButton, Qt::LeftButton);
    });
    QCOMPARE(m_room->asked(), readingTheRecord); // from the list, which reads the record again
    QCOMPARE(file(), before);
}

void RenameServerTest::renamedFromTheList()
{
    startRoom(studio() + "[network Other]\nid = O\nmodel = RT-300NII\n");
    openFromTheList([&](propertyDialogEx& shown) {
        m_room->forget();
        rename(shown, "Studio 2");
        QVERIFY(!shown.isVisible());
    });
    QCOMPARE(nameInTheList(), "Studio 2");
    QCOMPARE(nameInTheList("O"), "Other");
    // The requests for the jobs, the names of all publishers, and the new record for the list.
    QCOMPARE(m_room->asked(), askingForJobs + readingTheRecord + readingTheRecord);
    QCOMPARE(m_room->asked("127.0.0.12"), readingTheRecord);
    // The kind is in a section of its own, where the first connection wrote it.
    QCOMPARE(QString::fromStdString(file()),
             "[Common]\nPublisherName=Studio 2\nPrinterName=ARVEN RT-300NIIPRN\nPublisherConnectionType=1\n"
             "PublisherURL=127.0.0.11\n[COMMON]\nNPType=2\n");
    QVERIFY(waitForTasks(10000));
    QCOMPARE((*m_room)->requests().size(), size_t{0}); // the local service gets no request
}

void RenameServerTest::renamedFile()
{
    WriteText(Installation::settingFile("N"),
              "[Common]\nNPType=2\nPublisherURL=\\\\127.0.0.11\nPublishMode=1\n"
              "PublisherConnectionType=1\nPublisherName=Studio\n[Other]\nkept=1\n");
    QCOMPARE(chmod(Installation::settingFile("N").c_str(), 0600), 0);
    startRoom(studio());
    propertyDialogEx dialog(nullptr);
    dialog.fillContent(PropertyStage::record("N"), 1);
    dialog.show();
    dialog.textPublisherName->selectAll();
    dialog.textPublisherName->insert("Düsseldorf №2"); // as pasting does
    QTest::mouseClick(dialog.okButton, Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), 1);
    QCOMPARE(QString::fromStdString(file()),
             QString("[Common]\nPublisherName=Düsseldorf №2\nPrinterName=NotSet\nPublisherConnectionType=1\n"
                     "PublisherURL=\\\\127.0.0.11\n[Other]\nkept=1\n"));
    struct stat now{};
    QCOMPARE(stat(Installation::settingFile("N").c_str(), &now), 0);
    QCOMPARE(now.st_mode & 07777, 0644U);
}

void RenameServerTest::runningJobRefusesTheName()
{
    startRoom(studio("RT-300NII", "disc-time = 1s\njob = Labels\n"));
    openFromTheList(
        [&](propertyDialogEx& shown) {
            const std::string before = file();
            m_room->forget();
            rename(shown, "Studio 2");
            QVERIFY2(shown.isVisible(), "the dialog closed although a job is waiting");
            QCOMPARE(m_room->asked(), askingForJobs);
            (*m_room)->advance(200);
            QTest::mouseClick(shown.okButton, Qt::LeftButton);
            QVERIFY2(shown.isVisible(), "the dialog closed although a job is running");
            QCOMPARE(file(), before);
            QVERIFY(shown.applyButton->isEnabled());
            (*m_room)->advance(60000);
            QTest::mouseClick(shown.okButton, Qt::LeftButton);
            QVERIFY(!shown.isVisible());
        },
        {busy, busy});
    QCOMPARE(nameInTheList(), "Studio 2");
}

void RenameServerTest::nameInUse_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("refused");
    QTest::newRow("network publisher") << "Other" << true;
    QTest::newRow("local publisher") << "Desk" << true;
    QTest::newRow("other case") << "OTHER" << false;
    QTest::newRow("free") << "Another" << false;
}

void RenameServerTest::nameInUse()
{
    QFETCH(QString, name);
    QFETCH(bool, refused);
    startRoom(studio() +
              "[network Other]\nid = O\nmodel = RT-300NII\n[publisher Desk]\nid = D\nmodel = RT-30II\n");
    openFromTheList(
        [&](propertyDialogEx& shown) {
            rename(shown, name);
            QCOMPARE(shown.isVisible(), refused);
            if (refused) {
                QCOMPARE(shown.textPublisherName->selectedText(), name); // ready to be overwritten
            }
        },
        refused ? QStringList{taken} : QStringList());
    QCOMPARE(nameInTheList(), refused ? "Studio" : name);
    QCOMPARE(::setting("PublisherName", "N"), refused ? "Studio" : name);
}

void RenameServerTest::nameOfUnreachableServerIsNotCompared()
{
    startRoom(studio() + "[network Other]\nid = O\nmodel = RT-300NII\nlistening = no\n");
    openFromTheList([&](propertyDialogEx& shown) {
        rename(shown, "Other");
        QVERIFY(!shown.isVisible());
    });
    QCOMPARE(::setting("PublisherName", "N"), "Other");
    QCOMPARE(::setting("PublisherName", "O"), "Other");
}

void RenameServerTest::serverStopsWhileDialogIsOpen()
{
    startRoom(studio("RT-300NII", "job = Labels\n"));
    openFromTheList([&](propertyDialogEx& shown) {
        QVERIFY((*m_room)->tell("Studio", "server off"));
        QCOMPARE(shown.textPublishMode->text(), "Standard mode");
        rename(shown, "Studio 2"); // an unavailable job list does not prevent saving
        QVERIFY(!shown.isVisible());
    });
    QCOMPARE(nameInTheList(), "Studio 2");
    QCOMPARE(QString::fromStdString(file()),
             "[Common]\nPublisherName=Studio 2\nPrinterName=ARVEN RT-300NIIPRN\nPublisherConnectionType=1\n"
             "PublisherURL=127.0.0.11\n[COMMON]\nNPType=2\n");
}

QTEST_MAIN(RenameServerTest)
#include "RenameServerTest.moc"

// The guided maintenance of a network publisher, operated against a simulated server: the requests that
// arrive there. The dialogs continue even if the server fails.
#include "DialogWalk.h"
#include "PropertyFixture.h"
#include "ServerRoom.h"

#include <QRegularExpression>
#include <QTranslator>

#include <ctime>
#include <optional>

namespace {

const QStringList nozzleDialogs{"printerMaintNozzleCheck1", "printerMaintNozzleCheck2"};
const QStringList cleaningDialogs{"printerMaintHeadCleaning1", "printerMaintHeadCleaning2"};

/// The requests of a successful job, after `connecting`.
const QStringList sending{
    "POST /webapp2/SpecialJobSetter", "GET /webapp2/UploadInfoGetter?serverjobid=00000001",
    "MKCOL /uploads/00000001/",       "PUT /uploads/00000001/PrnData_Special.prn",
    "POST /webapp2/FileHashSetter",   "POST /webapp2/JobController"};

const std::string nozzleData = "/opt/arven/Ulmar Disc Maker/res/prnfile/nozzleCheck.prn";
const std::string cleaningData = "/opt/arven/Ulmar Disc Maker/res/prnfile/headCleaning.prn";

/// The job text that the server receives, with "moment" in place of the job's time.
QString jobText(const char* load, const char* eject, const char* count, const QString& name,
                const char* printMode, const std::string& data)
{
    return QString(
               "[Common]\nVersion = 0x01030000\nID = \nPublisherID = \nLoad = %1\nEject = %2\nCount = %3\n"
               "Create = moment\nPublisher = @UDSetup\nMode = 2\nJobName = %4\nSaveJobData = 0\n"
               "PublishID = \nSilent = 0\n\n[Print]\nPrintMode = %5\nDataPath = %6\nDryingTime = 0\n"
               "PrintQuality = 0\n")
        .arg(load, eject, count, name, printMode, QString::fromStdString(data));
}

/// Translates the two job names.
class JobNames : public QTranslator
{
public:
    bool isEmpty() const override
    {
        return false;
    }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        const QByteArray source(text);
        if (QByteArray(context) != "propertyDialogEx") {
            return {};
        }
        return source == "Nozzle Check" ? QString("Düsentest")
               : source == "Cleaning"   ? QString("ヘッドクリーニング")
                                        : QString();
    }
};

} // namespace

class MaintenanceServerTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void jobArrives_data();
    void jobArrives();
    void jobNameIsTranslated();
    void stackersDependOnTheMode_data();
    void stackersDependOnTheMode();
    void printDataArrivesComplete();
    void sequencesAlternate();
    void nothingIsSentWithoutPrintData_data();
    void nothingIsSentWithoutPrintData();
    void unreachableServer();
    void failingServer_data();
    void failingServer();
    void failedFolderCreation();
    void oldServerGetsNoHash();
    void cancelSendsNothing();

private:
    void open(const std::string& scenario);
    /// Clicks the button of the property dialog and accepts all dialogs. Returns their object names.
    QStringList nozzleCheck();
    QStringList headCleaning();
    QStringList press(QAbstractButton* button, std::vector<DialogWalk::Answer> answers);
    /// The body of the only request with this target; "(none)" or "(more than one)" otherwise.
    std::string body(const std::string& target) const;
    /// The job text that was sent. Its time is replaced by "moment" if it lies between `notBefore` and now.
    QString sentText(std::time_t notBefore) const;

    std::optional<ServerRoom> m_room;
    PropertyStage m_stage;
};

void MaintenanceServerTest::init()
{
    const Installation empty;
}

void MaintenanceServerTest::cleanup()
{
    QVERIFY(!QApplication::activeModalWidget());
    m_stage.close();
    m_room.reset();
}

void MaintenanceServerTest::open(const std::string& scenario)
{
    m_room.emplace(scenario);
    BOOL connection = 0;
    long result = 0;
    PUBLISHERINFO info;
    QVERIFY(PubSetup::getPublisherInfo("N", info, connection, result));
    m_stage.open(info, connection);
    m_stage->propertyTab->setCurrentWidget(m_stage->pagePrinterMaint);
    m_room->forget();
}

QStringList MaintenanceServerTest::press(QAbstractButton* button, std::vector<DialogWalk::Answer> answers)
{
    const DialogWalk walk(std::move(answers));
    QTest::mouseClick(button, Qt::LeftButton);
    return walk.seen();
}

QStringList MaintenanceServerTest::nozzleCheck()
{
    return press(m_stage->btnNozzleCheck, {click("buttonPrint"), click("buttonFinish")});
}

QStringList MaintenanceServerTest::headCleaning()
{
    return press(m_stage->btnHeadCleaning, {click("buttonStart"), click("buttonFinish")});
}

std::string MaintenanceServerTest::body(const std::string& target) const
{
    std::string found = "(none)";
    for (const udsim::HttpRequest& request : (*m_room)->httpRequests()) {
        if (request.target == target) {
            found = found == "(none)" ? request.body : "(more than one)";
        }
    }
    return found;
}

QString MaintenanceServerTest::sentText(std::time_t notBefore) const
{
    QString text = QString::fromStdString(body("/webapp2/SpecialJobSetter"));
    const QRegularExpressionMatch create = QRegularExpression("\nCreate = ([0-9]+)\n").match(text);
    const qlonglong moment = create.captured(1).toLongLong();
    if (moment >= notBefore && moment <= std::time(nullptr)) {
        text.replace(create.capturedStart(1), create.capturedLength(1), "moment");
    }
    return text;
}

void MaintenanceServerTest::jobArrives_data()
{
    QTest::addColumn<bool>("cleaning");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("nozzle check") << false << "Nozzle Check"
                                  << jobText("1", "2", "1", "Nozzle Check", "5", nozzleData);
    QTest::newRow("head cleaning") << true << "Cleaning"
                                   << jobText("-1", "-1", "0", "Cleaning", "4", cleaningData);
}

void MaintenanceServerTest::jobArrives()
{
    QFETCH(bool, cleaning);
    QFETCH(QString, name);
    QFETCH(QString, text);
    open(studio());
    const std::time_t before = std::time(nullptr);
    QCOMPARE(cleaning ? headCleaning() : nozzleCheck(), cleaning ? cleaningDialogs : nozzleDialogs);
    QCOMPARE(m_room->asked(), connecting + sending);
    QCOMPARE(sentText(before), text);
    const std::string data = ReadText(cleaning ? cleaningData : nozzleData);
    QVERIFY(!data.empty());
    QCOMPARE(body("/uploads/00000001/PrnData_Special.prn"), data);
    QCOMPARE(body("/webapp2/FileHashSetter"),
             "serverjobid=00000001&filename=PrnData_Special.prn&hashtype=SHA-1&hash=" + udsim::sha1Of(data));
    const std::vector<udsim::Job> jobs = (*m_room)->jobs("Studio");
    QCOMPARE(jobs.size(), size_t{1});
    QCOMPARE(jobs[0].isCleaning(), cleaning);
    QCOMPARE(jobs[0].isNozzleCheck(), !cleaning);
    QCOMPARE(QString::fromStdString(jobs[0].name), name);
    QTRY_COMPARE((*m_room)->httpConnections(), size_t{0});
    QVERIFY2(std::filesystem::is_empty(JOB_DIR), "a job file was written for the local service");
}

void MaintenanceServerTest::jobNameIsTranslated()
{
    open(studio());
    JobNames language;
    QVERIFY(QApplication::installTranslator(&language));
    QCOMPARE(nozzleCheck(), nozzleDialogs);
    QCOMPARE(headCleaning(), cleaningDialogs);
    QApplication::removeTranslator(&language);
    const std::vector<udsim::Job> jobs = (*m_room)->jobs("Studio");
    QCOMPARE(jobs.size(), size_t{2});
    QCOMPARE(QByteArray::fromStdString(jobs[0].name), QByteArray("D\xC3\xBCsentest"));
    QCOMPARE(QString::fromStdString(jobs[1].name), QString("ヘッドクリーニング"));
}

void MaintenanceServerTest::stackersDependOnTheMode_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QByteArray>("eject");
    QTest::newRow("standard") << "server-mode = 2\n" << QByteArray("2");
    QTest::newRow("standard, stacker 3 in use") << "server-mode = 2\nstacker3.media = output\n"
                                                << QByteArray("2");
    QTest::newRow("external output") << "server-mode = 3\n" << QByteArray("2");
    QTest::newRow("batch") << "server-mode = 4\n" << QByteArray("0");
}

void MaintenanceServerTest::stackersDependOnTheMode()
{
    QFETCH(QString, keys);
    QFETCH(QByteArray, eject);
    open(studio("RT-300NII", keys.toStdString()));
    const std::time_t before = std::time(nullptr);
    QCOMPARE(nozzleCheck(), nozzleDialogs);
    QCOMPARE(sentText(before), jobText("1", eject.constData(), "1", "Nozzle Check", "5", nozzleData));
    QCOMPARE((*m_room)->jobs("Studio").size(), size_t{1});
}

void MaintenanceServerTest::printDataArrivesComplete()
{
    open(studio());
    std::string data; // nearly all byte values, in more than one packet
    for (int i = 0; i < 300000; ++i) {
        data += static_cast<char>(i % 251);
    }
    WriteText(cleaningData, data);
    QCOMPARE(headCleaning(), cleaningDialogs);
    for (const udsim::HttpRequest& request : (*m_room)->httpRequests()) {
        if (request.method == "PUT") {
            QCOMPARE(request.bodySize, data.size());
            QCOMPARE(request.bodySha1, udsim::sha1Of(data));
            QCOMPARE(request.header("Content-Range"), std::string("bytes 0-299999/300000"));
        }
    }
    QVERIFY(m_room->asked().contains(sending[3]));
    QCOMPARE((*m_room)->jobs("Studio").size(), size_t{1});
}

void MaintenanceServerTest::sequencesAlternate()
{
    open(studio());
    QCOMPARE(press(m_stage->btnNozzleCheck,
                   {click("buttonPrint"), click("buttonHeadCleaning"), click("buttonStart"),
                    click("buttonNozzleCheckPatternPrint"), click("buttonPrint"), click("buttonFinish")}),
             nozzleDialogs + cleaningDialogs + nozzleDialogs);
    QStringList jobs;
    for (const udsim::Job& job : (*m_room)->jobs("Studio")) {
        jobs << QString::fromStdString(job.name);
    }
    QCOMPARE(jobs, (QStringList{"Nozzle Check", "Cleaning", "Nozzle Check"}));
    QTRY_COMPARE((*m_room)->httpConnections(), size_t{0});
}

void MaintenanceServerTest::nothingIsSentWithoutPrintData_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("empty") << "empty";
    QTest::newRow("missing") << "missing";
    QTest::newRow("folder") << "folder"; // has a size but cannot be read
}

void MaintenanceServerTest::nothingIsSentWithoutPrintData()
{
    QFETCH(QString, what);
    open(studio());
    for (const std::string& data : {nozzleData, cleaningData}) {
        std::filesystem::remove(data);
        if (what == "empty") {
            WriteText(data, "");
        } else if (what == "folder") {
            std::filesystem::create_directory(data);
        }
    }
    QCOMPARE(nozzleCheck(), nozzleDialogs);
    QCOMPARE(m_room->asked(), connecting);
    QTRY_COMPARE((*m_room)->httpConnections(), size_t{0});
    m_room->forget();
    QCOMPARE(headCleaning(), cleaningDialogs);
    QCOMPARE(m_room->asked(), connecting);
    QTRY_COMPARE((*m_room)->httpConnections(), size_t{0});
    QVERIFY((*m_room)->jobs("Studio").empty());
}

void MaintenanceServerTest::unreachableServer()
{
    open(studio());
    QVERIFY((*m_room)->tell("Studio", "server off"));
    QCOMPARE(nozzleCheck(), nozzleDialogs);
    QCOMPARE(headCleaning(), cleaningDialogs);
    QCOMPARE(m_room->asked(), QStringList());
    QVERIFY((*m_room)->jobs("Studio").empty());
    QVERIFY(m_stage->isVisible());
}

void MaintenanceServerTest::failingServer_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QStringList>("asked");
    QTest::addColumn<int>("jobs");
    const QStringList all = connecting + sending;
    const auto first = [&all](int count) { return QStringList(all.mid(0, count)); };
    QTest::newRow("mode") << "/webapp2/ServerModeGetter"
                          << "http 500" << first(1) << 0;
    QTest::newRow("mode, connection closed") << "/webapp2/ServerModeGetter"
                                             << "close" << first(1) + first(1) << 0; // retried once
    QTest::newRow("model") << "/webapp2/DevInfoIntGetter"
                           << "status 3" << first(2) << 0;
    QTest::newRow("model unknown") << "/webapp2/DevInfoIntGetter"
                                   << "http 500" << all << 1;
    QTest::newRow("interface version") << "/webapp2/IFVersionChecker"
                                       << "status 1" << first(3) << 0;
    QTest::newRow("version unknown") << "/webapp2/DevInfoGetter"
                                     << "http 500" << all << 1;
    QTest::newRow("job refused") << "/webapp2/SpecialJobSetter"
                                 << "status 8" << first(5) << 0;
    QTest::newRow("job without a number") << "/webapp2/SpecialJobSetter"
                                          << "size 3" << first(5) << 0;
    QTest::newRow("password") << "/webapp2/UploadInfoGetter"
                              << "status 7" << first(6) << 0;
    QTest::newRow("folder") << "/uploads/00000001/"
                            << "http 500" << first(9) << 0; // the upload of the file fails as well
    QTest::newRow("file") << "/uploads/00000001/PrnData"
                          << "http 507" << first(9) << 0;
    QTest::newRow("hash") << "/webapp2/FileHashSetter"
                          << "http 409" << first(9) << 0;
    QTest::newRow("commit") << "/webapp2/JobController"
                            << "status 9" << all << 0;
}

void MaintenanceServerTest::failingServer()
{
    QFETCH(QString, path);
    QFETCH(QString, fault);
    QFETCH(QStringList, asked);
    QFETCH(int, jobs);
    open(studio());
    m_room->spoil(path.toStdString(), fault.toStdString());
    QCOMPARE(nozzleCheck(), nozzleDialogs);
    QCOMPARE(m_room->asked(), asked);
    QCOMPARE((*m_room)->jobs("Studio").size(), static_cast<size_t>(jobs));
    QVERIFY(m_stage->isVisible());
    QTRY_COMPARE((*m_room)->httpConnections(), size_t{0});
}

/// A server that accepts hashes creates the folder by itself.
void MaintenanceServerTest::failedFolderCreation()
{
    open(studio());
    udsim::HttpFault fault;
    fault.kind = udsim::HttpFault::Kind::http;
    fault.number = 500;
    fault.method = "MKCOL";
    (*m_room)->setFault(fault);
    QCOMPARE(nozzleCheck(), nozzleDialogs);
    QCOMPARE(m_room->asked(), connecting + sending);
    QCOMPARE((*m_room)->jobs("Studio").size(), size_t{1});
}

void MaintenanceServerTest::oldServerGetsNoHash()
{
    WriteRegistry("[HKLM/Software/ARVEN/Ulmar Disc Maker]\n\"CompatiMode\"=dword:00000001\n");
    open(studio("RT-300NII", "server-version = 2.10\n"));
    QCOMPARE(nozzleCheck(), nozzleDialogs);
    QStringList all = connecting + sending;
    all.removeOne("POST /webapp2/FileHashSetter");
    QCOMPARE(m_room->asked(), all);
    QCOMPARE((*m_room)->jobs("Studio").size(), size_t{1});

    m_room->forget();
    m_room->spoil("/uploads/", "http 500"); // without the folder the upload fails
    QCOMPARE(headCleaning(), cleaningDialogs);
    QCOMPARE(m_room->asked().size(), 7);
    QCOMPARE((*m_room)->jobs("Studio").size(), size_t{1});
}

void MaintenanceServerTest::cancelSendsNothing()
{
    open(studio());
    QCOMPARE(press(m_stage->btnNozzleCheck, {click("buttonCancel")}), nozzleDialogs.mid(0, 1));
    QCOMPARE(press(m_stage->btnHeadCleaning, {click("buttonCancel")}), cleaningDialogs.mid(0, 1));
    QCOMPARE(m_room->asked(), QStringList());
}

QTEST_MAIN(MaintenanceServerTest)
#include "MaintenanceServerTest.moc"

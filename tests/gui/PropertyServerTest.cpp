// Tests the property dialog with simulated servers of network publishers: the requests that it sends, and
// what it shows.
#include "Assertion.h"
#include "DirectStart.h"
#include "ServerFixture.h"

namespace {

constexpr char storedModeShown[] = "The Publish Mode registered in the output device could not be obtained, "
                                   "so the previously displayed  value is "
                                   "displayed.\nThe displayed Publish Mode and stacker settings may be "
                                   "different from the values that are actually "
                                   "registered.";

/// A "DevInfoGetter" request of the given type.
QString info(int type)
{
    return QString("GET /webapp2/DevInfoGetter?ifversion=02000000&type=%1").arg(type);
}

QStringList texts(const propertyDialogEx* dialog)
{
    return {dialog->textPublishMode->text(), dialog->textStacker1->text(),
            dialog->textStacker2->text(),    dialog->textStacker3->text(),
            dialog->textUseDrive->text(),    dialog->textRetryCount->text(),
            dialog->textErrorMark->text(),   picture(dialog->viewStackerSequence)};
}

/// Returns the texts of the labels that are visible on the page, "" for each hidden label.
QStringList seenTexts(const QWidget* page, Labels labels)
{
    QStringList list;
    for (const QLabel* label : labels) {
        list << (seenOn(page, label) ? label->text() : "");
    }
    return list;
}

QStringList wear(const propertyDialogEx* dialog)
{
    return seenTexts(dialog->pageLifetime,
                     {dialog->labelPrintCount, dialog->labelPrintCountUnit, dialog->labelDrive1Life,
                      dialog->labelDrive1LifeUnit, dialog->labelDrive2Life, dialog->labelDrive2LifeUnit});
}

QStringList versions(const propertyDialogEx* dialog)
{
    return seenTexts(dialog->pageVersion, {dialog->labelSerialNo, dialog->labelAutoLoaderVersionValue,
                                           dialog->labelPrinterVersionValue, dialog->labelDrive1VersionValue,
                                           dialog->labelDrive2VersionValue, dialog->labelSSSVersionValue,
                                           dialog->labelUDNAVersionValue});
}

} // namespace

class PropertyServerTest : public ServerFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyKind_data();
    void everyKind();
    void settings_data();
    void settings();
    void wearFigures_data();
    void wearFigures();
    void unavailableServer_data();
    void unavailableServer();
    void unavailableFigures_data();
    void unavailableFigures();
    void thirdStackerInUseStopsTheProgram();

    void requestsOfOpening();
    void unreadableSettings();
    void startedWithPublisherName();
    void startedWithNameOfUnreachableServer();
};

void PropertyServerTest::init()
{
    startAnew();
}

void PropertyServerTest::cleanup()
{
    tidyUp();
}

void PropertyServerTest::everyKind_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("xl");
    QTest::addColumn<QStringList>("figures");
    QTest::addColumn<QStringList>("about");
    const QString common = "serial = SN 4711\nprint-count = 60000\ndisc-time = 40s\n";
    const QStringList figures{"60000", "[discs]", "50", "[%]", "50", "[%]"};
    const QStringList none{"", "", "", "", "", ""};
    QTest::newRow("300NII")
        << "RT-300NII" << common << "Properties - Studio(RT-300NII)" << false << figures
        << QStringList{"SN 4711", "02.14", "ARVEN RT-300NIIPRN 01.37", "BDR-300NII 1.05", "BDR-300NII 1.05",
                       "2.30",    "2.10"};
    QTest::newRow("300NII BDXL")
        << "RT-300NII BD-XL" << common + "web-version = 3.01\n"
        << "Properties - Studio(RT-300NII (BD-XL))" << true << figures
        << QStringList{"SN 4711", "02.14", "ARVEN RT-300NIIPRN 01.37", "BXR-300NII 1.05", "BXR-300NII 1.05",
                       "3.30",    "3.01"};
    QTest::newRow("300N") << "RT-300N" << common + "known-kind = 1\n"
                          << "Properties - Studio(N/A)" << false << figures
                          << QStringList{"SN 4711",       "02.14",         "ARVEN RT-300NPRN 01.37",
                                         "DVR-300N 1.05", "DVR-300N 1.05", "1.20",
                                         "2.10"};
    // The server does not report its kind. It is then asked for the longer record, which it does not have.
    QTest::newRow("300N, kind not stored")
        << "RT-300N" << common << "Properties - Studio(RT-300NII)" << false << none
        << QStringList{"",     "02.14", "ARVEN RT-300NPRN 01.37", "DVR-300N 1.05", "DVR-300N 1.05",
                       "1.20", "2.10"};
}

void PropertyServerTest::everyKind()
{
    QFETCH(QString, model);
    QFETCH(QString, keys);
    QFETCH(QString, title);
    QFETCH(bool, xl);
    QFETCH(QStringList, figures);
    QFETCH(QStringList, about);
    startRoom(studio(model.toStdString(), keys.toStdString()));
    openFromTheList([&](propertyDialogEx& shown) {
        QCOMPARE(shown.windowTitle(), title);
        QCOMPARE(shown.textPublisherName->text(), "Studio");
        QCOMPARE(shown.textHostName->text(), "127.0.0.11");
        QCOMPARE(shown.selectStacker1->findData(10) != -1, xl);
        QCOMPARE(shown.selectStacker2->findData(11) != -1, xl);
        QCOMPARE(wear(&shown), figures);
        QCOMPARE(versions(&shown), about);
        QVERIFY(!shown.cancelButton->isEnabled() && !shown.applyButton->isEnabled());
    });
}

void PropertyServerTest::settings_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QStringList>("shown");
    const QString plain = "RT-300NII";
    const QString xl = "RT-300NII BD-XL";
    QTest::newRow("factory settings")
        << plain << "" << QStringList{"Standard mode", "CD-R", "Output Stacker", "Do not use",
                                      "Use Both",      "3",    "Print",          "A11-1"};
    QTest::newRow("standard, stacker 3 in use")
        << plain
        << "server-mode = 2\nstacker1.media = BD-R\nstacker3.media = output\ndrives-used = 1\nretries = 9\n"
        << QStringList{"Standard mode",    "BD-R", "Output Stacker", "Use",
                       "Use Drive 1 Only", "9",    "Print",          "A11-9"};
    QTest::newRow("external output") << plain
                                     << "server-mode = 3\nstacker1.media = DVD-R\nstacker2.media = BD-R "
                                        "DL\ndrives-used = 2\nerror-mark = no\n"
                                     << QStringList{"External Output / Low-volume mode",
                                                    "DVD(+R/-R)",
                                                    "BD-R DL",
                                                    "Do not use",
                                                    "Use Drive 2 Only",
                                                    "3",
                                                    "Do not print",
                                                    "A11-2"};
    QTest::newRow("batch") << plain << "server-mode = 4\nstacker1.media = DVD-R DL\nretries = 0\n"
                           << QStringList{"Batch mode", "DVD(+R/-R) DL", "DVD(+R/-R) DL", "Use", "Use Both",
                                          "0",          "Print",         "A11-3"};
    QTest::newRow("many layers") << xl
                                 << "server-mode = 3\nstacker1.media = BD-R TL\nstacker2.media = BD-R QL\n"
                                 << QStringList{"External Output / Low-volume mode",
                                                "BD-R XL 100",
                                                "BD-R XL 128",
                                                "Do not use",
                                                "Use Both",
                                                "3",
                                                "Print",
                                                "A11-2"};
    QTest::newRow("many layers, not supported")
        << plain << "server-mode = 3\nstacker1.media = BD-R TL\nstacker2.media = BD-R QL\n"
        << QStringList{
               "External Output / Low-volume mode", "", "", "Do not use", "Use Both", "3", "Print", "A11-2"};
    QTest::newRow("retries above the maximum")
        << plain << "retries = 4294967295\n"
        << QStringList{"Standard mode", "CD-R", "Output Stacker", "Do not use",
                       "Use Both",      "9",    "Print",          "A11-1"};
    // A server without a setting for stacker 3.
    QTest::newRow("no third stacker, standard")
        << plain << "third-stacker = no\nserver-mode = 2\n"
        << QStringList{"Standard mode", "CD-R", "Output Stacker", "Do not use",
                       "Use Both",      "3",    "Print",          "A11-1"};
    QTest::newRow("no third stacker, external output") << plain << "third-stacker = no\nserver-mode = 3\n"
                                                       << QStringList{"External Output / Low-volume mode",
                                                                      "CD-R",
                                                                      "CD-R",
                                                                      "Do not use",
                                                                      "Use Both",
                                                                      "3",
                                                                      "Print",
                                                                      "A11-2"};
    QTest::newRow("no third stacker, batch")
        << plain << "third-stacker = no\nserver-mode = 4\n"
        << QStringList{"Batch mode", "CD-R", "CD-R", "Use", "Use Both", "3", "Print", "A11-3"};
}

void PropertyServerTest::settings()
{
    QFETCH(QString, model);
    QFETCH(QString, keys);
    QFETCH(QStringList, shown);
    startRoom(studio(model.toStdString(), keys.toStdString()));
    openFromTheList([&](propertyDialogEx& dialog) { QCOMPARE(texts(&dialog), shown); });
}

void PropertyServerTest::wearFigures_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QStringList>("figures");
    const auto figures = [](const char* count, const char* drives) {
        return QStringList{count, "[discs]", drives, "[%]", drives, "[%]"};
    };
    // Each drive handles half of the discs. A drive lasts 60,000 tray movements or 4,000,000 seconds of
    // writing.
    QTest::newRow("new") << "print-count = 0\n" << figures("0", "0");
    QTest::newRow("tray") << "print-count = 1199\ndisc-time = 10s\n" << figures("1199", "0");
    QTest::newRow("tray, a percent") << "print-count = 1200\ndisc-time = 10s\n" << figures("1200", "1");
    QTest::newRow("writing") << "print-count = 60000\ndisc-time = 100s\n" << figures("60000", "75");
    QTest::newRow("almost worn out") << "print-count = 119999\ndisc-time = 10s\n" << figures("119999", "99");
    QTest::newRow("worn out") << "print-count = 400000\ndisc-time = 10s\n" << figures("400000", "100");
}

void PropertyServerTest::wearFigures()
{
    QFETCH(QString, keys);
    QFETCH(QStringList, figures);
    startRoom(studio("RT-300NII", keys.toStdString()));
    openFromTheList([&](propertyDialogEx& dialog) { QCOMPARE(wear(&dialog), figures); });
}

void PropertyServerTest::unavailableServer_data()
{
    QTest::addColumn<QString>("keys");
    QTest::newRow("unreachable") << "listening = no\n";
    QTest::newRow("security mode") << "server-mode = 0\n";
    QTest::newRow("output control mode") << "server-mode = 1\n";
    QTest::newRow("old server version") << "server-version = 2.29\n";
    QTest::newRow("other interface version") << "interface-version = 03000000\n";
}

void PropertyServerTest::unavailableServer()
{
    QFETCH(QString, keys);
    startRoom(studio("RT-300NII BD-XL", "known-kind = 3\n" + keys.toStdString()));
    openFromTheList(
        [](propertyDialogEx& shown) {
            QCOMPARE(shown.windowTitle(), "Properties - Studio(RT-300NII (BD-XL))");
            QCOMPARE(shown.textHostName->text(), "127.0.0.11");
            // The box shows its maximum for an unknown retry count; the error mark is that of a new record.
            QCOMPARE(texts(&shown), (QStringList{"", "", "", "", "", "9", "Print", ""}));
            QCOMPARE(wear(&shown), (QStringList{"", "", "", "", "", ""}));
            QCOMPARE(versions(&shown), (QStringList{"", "", "", "", "", "", ""}));
        },
        {storedModeShown});
    endConnectionsLeftBehind();
}

void PropertyServerTest::unavailableFigures_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("after"); // requests to this path that succeed before the fault
    QTest::addColumn<bool>("wearSeen");
    QTest::addColumn<bool>("serialSeen");
    QTest::addColumn<bool>("versionsSeen");
    const QString devInfo = "/webapp2/DevInfoGetter?ifversion=02000000&type=";
    QTest::newRow("wear") << "/webapp2/DevStatusGetter?ifversion=02000000&type=10" << 0 << false << false
                          << true;
    // The serial number is read with the wear figures, and again as the first of the versions.
    QTest::newRow("serial number with the wear") << devInfo + "0" << 0 << false << false << false;
    QTest::newRow("serial number with the versions") << devInfo + "0" << 1 << true << true << false;
    for (const char* type : {"12", "2", "13", "3", "14", "4", "6"}) {
        QTest::addRow("version %s", type) << devInfo + type << 0 << true << true << false;
    }
}

void PropertyServerTest::unavailableFigures()
{
    QFETCH(QString, path);
    QFETCH(int, after);
    QFETCH(bool, wearSeen);
    QFETCH(bool, serialSeen);
    QFETCH(bool, versionsSeen);
    startRoom(studio());
    m_room->spoil(path.toStdString(), "status 9", static_cast<quint64>(after));
    openFromTheList([&](propertyDialogEx& shown) {
        QCOMPARE(texts(&shown)[0], "Standard mode");
        QCOMPARE(wear(&shown)[0], wearSeen ? "0" : "");
        QCOMPARE(!versions(&shown)[0].isEmpty(), serialSeen);
        QCOMPARE(versions(&shown).mid(1).join(""),
                 versionsSeen ? "02.14ARVEN RT-300NIIPRN 01.37BDR-300NII 1.05BDR-300NII 1.052.302.10" : "");
        QVERIFY(seenOn(shown.pageLifetime, shown.labelPrintCountName));
        QVERIFY(seenOn(shown.pageVersion, shown.labelSSSVersionLabel));
    });
    QTRY_COMPARE((*m_room)->httpConnections(), size_t{0});
}

/// A combination that our dialogs cannot set, but the panel of the machine can.
void PropertyServerTest::thirdStackerInUseStopsTheProgram()
{
    const auto stops = [this](const std::string& keys) {
        m_room.reset();
        const Installation empty;
        startRoom(studio("RT-300NII", keys));
        return !assertionOf([] {
                    propertyDialogEx dialog(nullptr);
                    dialog.fillContent(PropertyStage::record("N"), 1);
                }).empty();
    };
    QVERIFY(stops("server-mode = 3\nstacker3.media = output\n"));
    QVERIFY(!stops("server-mode = 3\n"));
    QVERIFY(!stops("server-mode = 2\nstacker3.media = output\n"));
    QVERIFY(!stops("server-mode = 4\nstacker3.media = output\n"));
    QVERIFY(!stops("server-mode = 3\nstacker3.media = output\nthird-stacker = no\n"));
}

void PropertyServerTest::requestsOfOpening()
{
    const QStringList wearAndSerial{"GET /webapp2/DevStatusGetter?ifversion=02000000&type=10", info(0)};
    const QStringList allVersions{info(0), info(1),  info(12), info(2), info(13),
                                  info(3), info(14), info(4),  info(5), info(6)};
    startRoom(studio());
    openFromTheList([&](propertyDialogEx&) {
        QCOMPARE(m_room->asked(), connecting + readingTheRecord + askingForTheMode + connecting +
                                      wearAndSerial + connecting + allVersions);
    });
    QTRY_COMPARE((*m_room)->httpConnections(), size_t{0});
}

/// The server is reachable, but its settings cannot be read: neither a dialog nor a message box appears.
void PropertyServerTest::unreadableSettings()
{
    startRoom(studio());
    m_window = std::make_unique<PubSetup>(nullptr);
    QVERIFY(waitForTasks(10000));
    m_room->spoil("/webapp2/DevInfoIntGetter?ifversion=02000000&type=0", "status 9");
    m_window->treePublisherList->setCurrentItem(m_window->findItemByPublisherRegistID("N"));
    const WhenShown<propertyDialogEx> dialog([](propertyDialogEx& shown) { shown.reject(); });
    Boxes boxes({});
    m_window->showPropertyDialog();
    QVERIFY(!dialog.seen());
    QVERIFY(boxes.seen().empty());
}

void PropertyServerTest::startedWithPublisherName()
{
    startRoom(studio("RT-300NII", "server-mode = 4\nserial = SN 4711\n"));
    Boxes boxes({});
    const WhenShown<propertyDialogEx> dialog([](propertyDialogEx& shown) {
        QCOMPARE(shown.windowTitle(), "Properties - Studio(RT-300NII)");
        QCOMPARE(texts(&shown)[0], "Batch mode");
        QCOMPARE(versions(&shown)[0], "SN 4711");
        shown.accept();
    });
    QCOMPARE(startWithPublisher("Studio"), std::optional<int>(0));
    QVERIFY(dialog.seen());
    QVERIFY(boxes.seen().empty());
}

void PropertyServerTest::startedWithNameOfUnreachableServer()
{
    startRoom(studio("RT-300NII", "listening = no\nknown-kind = 2\n"));
    Boxes boxes({QMessageBox::Ok});
    const WhenShown<propertyDialogEx> dialog([](propertyDialogEx& shown) {
        QCOMPARE(shown.windowTitle(), "Properties - Studio(RT-300NII)");
        QCOMPARE(texts(&shown)[0], "");
        shown.close();
    });
    QCOMPARE(startWithPublisher("Studio"), std::optional<int>(0));
    QVERIFY(dialog.seen());
    QVERIFY(boxes.allAnswered());
    QCOMPARE(boxes.seen()[0].text, storedModeShown);
}

QTEST_MAIN(PropertyServerTest)
#include "PropertyServerTest.moc"

// The guided maintenance of a printer: the dialogs, the jobs that they create, and the behaviour when a job
// cannot be created.
#include "DialogWalk.h"
#include "InstallPaths.h"
#include "MaintenanceSequences.h"
#include "PropertyFixture.h"
#include "PubMgrConst.h"
#include "QtVersion.h"
#include "TextFiles.h"

#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QTest>
#include <QTranslator>

#include <set>
#include <sstream>

namespace {

constexpr char nozzleCheck1[] = "printerMaintNozzleCheck1";
constexpr char nozzleCheck2[] = "printerMaintNozzleCheck2";
constexpr char headCleaning1[] = "printerMaintHeadCleaning1";
constexpr char headCleaning2[] = "printerMaintHeadCleaning2";

using Sequence = void (*)(const PUBLISHERINFO&);

PUBLISHERINFO publisher(UINT type = PUBMGR_CONNECTTYPE_LOCAL)
{
    PUBLISHERINFO info;
    info.strPublisherRegistID = "{ARPUB20240131_1}";
    info.uiPublisherType = type;
    return info;
}

DialogWalk::Answer press(Qt::Key key)
{
    return [key](QDialog& dialog) { QTest::keyClick(dialog.windowHandle(), key); };
}

void closeByTheFrame(QDialog& dialog)
{
    dialog.close();
}

/// The object names of the dialogs that a sequence showed, in order.
QStringList walk(Sequence sequence, std::vector<DialogWalk::Answer> answers,
                 const PUBLISHERINFO& info = publisher())
{
    DialogWalk walk(std::move(answers));
    sequence(info);
    return walk.seen();
}

/// The JobName values of the job files, in the order of the file names.
QStringList jobNames()
{
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(JOB_DIR)) {
        files.insert(entry.path());
    }
    QStringList names;
    for (const std::string& file : files) {
        std::istringstream lines(ReadText(file));
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with("JobName = ")) {
                names.append(QString::fromStdString(line.substr(10)));
            }
        }
    }
    return names;
}

/// Opens one of the four dialogs, calls `look` with it, and ends the sequence.
void lookAt(const QString& name, const DialogWalk::Answer& look)
{
    const auto lookAndReject = [look](QDialog& dialog) {
        look(dialog);
        dialog.reject();
    };
    const auto lookAndFinish = [look](QDialog& dialog) {
        look(dialog);
        dialog.accept();
    };
    QStringList seen;
    if (name == nozzleCheck1) {
        seen = walk(runNozzleCheckSequence, {lookAndReject});
    } else if (name == nozzleCheck2) {
        seen = walk(runNozzleCheckSequence, {click("buttonPrint"), lookAndFinish});
    } else if (name == headCleaning1) {
        seen = walk(runHeadCleaningSequence, {lookAndReject});
    } else {
        seen = walk(runHeadCleaningSequence, {click("buttonStart"), lookAndFinish});
    }
    QVERIFY(!seen.isEmpty());
    QCOMPARE(seen.last(), name);
}

/// Translates every text to capitals, repeated `times` times.
class OtherLanguage : public QTranslator
{
public:
    explicit OtherLanguage(int times) : m_times(times) {}

    bool isEmpty() const override
    {
        return false;
    }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        QStringList words;
        for (int i = 0; i < m_times; ++i) {
            words.append(QString::fromUtf8(text).toUpper());
        }
        return words.join(' ');
    }

private:
    int m_times;
};

} // namespace

class MaintenanceTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void dialogsHaveTheirTextsAndButtons_data();
    void dialogsHaveTheirTextsAndButtons();
    void dialogsShowTheirPictures_data();
    void dialogsShowTheirPictures();
    void dialogsAreModalAndHaveAFixedSize_data();
    void dialogsAreModalAndHaveAFixedSize();
    void nothingIsClipped_data();
    void nothingIsClipped();
    void nozzleCheckCreatesAJob();
    void headCleaningCreatesAJob();
    void enterAccepts();
    void cancelInTheFirstDialogCreatesNoJob_data();
    void cancelInTheFirstDialogCreatesNoJob();
    void secondDialogOffersTheOtherSequence_data();
    void secondDialogOffersTheOtherSequence();
    void sequencesAlternateWithoutLimit();
    void failureShowsNoMessage_data();
    void failureShowsNoMessage();
    void fullFolderShowsNoMessage();
    void networkPublisherCreatesNoJobFile();
    void jobNameStaysEnglishInAnotherLanguage();
    void propertiesStartTheSequences_data();
    void propertiesStartTheSequences();
};

void MaintenanceTest::init()
{
    std::filesystem::remove_all(INSTALL_DIR);
    std::filesystem::create_directories(JOB_DIR);
}

void MaintenanceTest::cleanup()
{
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void MaintenanceTest::dialogsHaveTheirTextsAndButtons_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("rejectButton");
    QTest::addColumn<QString>("rejectText");
    QTest::addColumn<QString>("acceptButton");
    QTest::addColumn<QString>("acceptText");

    QTest::newRow(nozzleCheck1)
        << nozzleCheck1 << "Nozzle Check"
        << "Print a pattern in order to check that the print head nozzles are not blocked.\n\nCheck the "
           "cable "
           "connection and turn the device on. Be sure to set discs with an outside print diameter of 116 mm "
           "or more in Stacker 1."
        << "buttonCancel"
        << "Cancel"
        << "buttonPrint"
        << "Print";
    QTest::newRow(nozzleCheck2)
        << nozzleCheck2 << "Nozzle Check"
        << "Compare the printed pattern with the sample above. If any segments are missing in the printed "
           "pattern, click the Clean button. Otherwise, click the Finish button to quit."
        << "buttonHeadCleaning"
        << "Cleaning"
        << "buttonFinish"
        << "Finish";
    QTest::newRow(headCleaning1)
        << headCleaning1 << "Head Cleaning"
        << "Only clean the print head when faint areas or gaps appear in your printout, because cleaning "
           "consumes ink.\nIf there is not enough ink to perform a head cleaning, replace the ink cartridge "
           "first."
        << "buttonCancel"
        << "Cancel"
        << "buttonStart"
        << "Start";
    QTest::newRow(headCleaning2)
        << headCleaning2 << "Head Cleaning"
        << "Cleaning takes a couple of minutes.  Cleaning is finished when the power light on the printer's "
           "control panel stops flashing. To check the effectiveness of the cleaning, click the Print Nozzle "
           "Check Pattern."
        << "buttonNozzleCheckPatternPrint"
        << "Nozzle check pattern"
        << "buttonFinish"
        << "Finish";
}

void MaintenanceTest::dialogsHaveTheirTextsAndButtons()
{
    QFETCH(QString, name);
    QFETCH(QString, title);
    QFETCH(QString, description);
    QFETCH(QString, rejectButton);
    QFETCH(QString, rejectText);
    QFETCH(QString, acceptButton);
    QFETCH(QString, acceptText);
    lookAt(name, [&](QDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), title);
        auto label = dialog.findChild<QLabel*>("labelDescription");
        QVERIFY(label);
        QCOMPARE(label->text(), description);
        QVERIFY(label->wordWrap());
        QCOMPARE(dialog.findChildren<QPushButton*>().size(), 2);
        auto reject = dialog.findChild<QPushButton*>(rejectButton);
        auto accept = dialog.findChild<QPushButton*>(acceptButton);
        QVERIFY(reject && accept);
        QCOMPARE(reject->text(), rejectText);
        QCOMPARE(accept->text(), acceptText);
        QVERIFY(reject->x() < accept->x());
        QCOMPARE(reject->y(), accept->y());
        QCOMPARE(reject->nextInFocusChain(), accept);
        QVERIFY(accept->isDefault() && !reject->isDefault());
        QCOMPARE(dialog.focusWidget(), accept);
    });
}

void MaintenanceTest::dialogsShowTheirPictures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("note");

    const char check[] = ":/res/PrinterMaint/btnNozzleCheck.png";
    const char cleaning[] = ":/res/PrinterMaint/btnHeadCleaning.png";
    QTest::newRow("nozzleCheck1 figure") << nozzleCheck1 << "labelFigure" << check << "";
    QTest::newRow("nozzleCheck1 icon") << nozzleCheck1 << "labelIcon" << check << "";
    QTest::newRow("nozzleCheck2 good") << nozzleCheck2 << "labelFigure1"
                                       << ":/res/PrinterMaint/H2-02.png"
                                       << "Good";
    QTest::newRow("nozzleCheck2 bad") << nozzleCheck2 << "labelFigure2"
                                      << ":/res/PrinterMaint/H2-01.png"
                                      << "Cleaning needed";
    QTest::newRow("nozzleCheck2 icon") << nozzleCheck2 << "labelIcon" << check << "";
    QTest::newRow("headCleaning1 icon") << headCleaning1 << "labelIcon" << cleaning << "";
    QTest::newRow("headCleaning2 icon") << headCleaning2 << "labelIcon" << cleaning << "";
}

void MaintenanceTest::dialogsShowTheirPictures()
{
    QFETCH(QString, name);
    QFETCH(QString, label);
    QFETCH(QString, picture);
    QFETCH(QString, note);
    lookAt(name, [&](QDialog& dialog) {
        auto shown = dialog.findChild<QLabel*>(label);
        QVERIFY(shown);
        const QPixmap file(picture);
        QVERIFY2(!file.isNull(), "the picture is not in the resources");
        QCOMPARE(pictureOf(*shown).toImage(), file.toImage());
        QVERIFY(shown->width() * file.devicePixelRatio() >= file.width());
        QVERIFY(shown->height() * file.devicePixelRatio() >= file.height());
        QVERIFY(!shown->accessibleName().isEmpty());
        if (!note.isEmpty()) {
            auto noteLabel = dialog.findChild<QLabel*>(label + "Note");
            QVERIFY(noteLabel);
            QCOMPARE(noteLabel->text(), note);
            QVERIFY2(noteLabel->y() >= shown->geometry().bottom(), "the note overlaps its figure");
            QVERIFY(dialog.findChild<QLabel*>("labelDescription")->y() > noteLabel->geometry().bottom());
        }
    });
}

void MaintenanceTest::dialogsAreModalAndHaveAFixedSize_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {nozzleCheck1, nozzleCheck2, headCleaning1, headCleaning2}) {
        QTest::newRow(name) << name;
    }
}

void MaintenanceTest::dialogsAreModalAndHaveAFixedSize()
{
    QFETCH(QString, name);
    lookAt(name, [](QDialog& dialog) {
        QVERIFY(dialog.isModal());
        QCOMPARE(dialog.parent(), nullptr);
        QCOMPARE(dialog.minimumSize(), dialog.size());
        QCOMPARE(dialog.maximumSize(), dialog.size());
        const QSize size = dialog.size();
        dialog.adjustSize();
        QCOMPARE(dialog.size(), size);
        QVERIFY(!dialog.windowIcon().isNull());
    });
}

void MaintenanceTest::nothingIsClipped_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<qreal>("fontFactor");
    QTest::addColumn<int>("textFactor");
    for (const char* name : {nozzleCheck1, nozzleCheck2, headCleaning1, headCleaning2}) {
        QTest::addRow("%s", name) << name << 1.0 << 1;
        QTest::addRow("%s font 1.5 times as large", name) << name << 1.5 << 1;
        QTest::addRow("%s font twice as large", name) << name << 2.0 << 1;
        QTest::addRow("%s long translation", name) << name << 1.0 << 2;
    }
}

void MaintenanceTest::nothingIsClipped()
{
    QFETCH(QString, name);
    QFETCH(qreal, fontFactor);
    QFETCH(int, textFactor);
    const QFont font = QApplication::font();
    QFont larger = font;
    larger.setPointSizeF(font.pointSizeF() * fontFactor);
    QApplication::setFont(larger);
    OtherLanguage language(textFactor);
    if (textFactor > 1) {
        QVERIFY(QApplication::installTranslator(&language));
    }
    lookAt(name, [](QDialog& dialog) {
        QVERIFY2(dialog.width() <= 800 && dialog.height() <= 560, "the dialog does not fit a small screen");
        for (const QLabel* label : dialog.findChildren<QLabel*>()) {
            QVERIFY2(label->width() >= label->minimumSizeHint().width(), qPrintable(label->objectName()));
            const int needed =
                label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
            QVERIFY2(label->height() >= needed, qPrintable(label->objectName()));
            QVERIFY(dialog.rect().contains(label->geometry()));
        }
        for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
            QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->objectName()));
            QVERIFY2(button->height() >= button->sizeHint().height(), qPrintable(button->objectName()));
            QVERIFY(dialog.rect().contains(button->geometry()));
        }
    });
    QApplication::removeTranslator(&language);
    QApplication::setFont(font);
}

void MaintenanceTest::nozzleCheckCreatesAJob()
{
    const auto finish = [](QDialog& dialog) {
        QCOMPARE(jobNames(), QStringList{"Nozzle Check"}); // submitted before the second dialog opens
        click("buttonFinish")(dialog);
    };
    QCOMPARE(walk(runNozzleCheckSequence, {click("buttonPrint"), finish}),
             (QStringList{nozzleCheck1, nozzleCheck2}));
    QCOMPARE(jobNames(), QStringList{"Nozzle Check"});
    QVERIFY(std::filesystem::exists("/opt/arven/Ulmar Disc Maker/JOB/{ARPUB20240131_1}_0000.epj"));
}

void MaintenanceTest::headCleaningCreatesAJob()
{
    const auto finish = [](QDialog& dialog) {
        QCOMPARE(jobNames(), QStringList{"Head Cleaning"});
        click("buttonFinish")(dialog);
    };
    QCOMPARE(walk(runHeadCleaningSequence, {click("buttonStart"), finish}),
             (QStringList{headCleaning1, headCleaning2}));
    QCOMPARE(jobNames(), QStringList{"Head Cleaning"});
    QVERIFY(std::filesystem::exists("/opt/arven/Ulmar Disc Maker/JOB/{ARPUB20240131_1}_0000.epj"));
}

void MaintenanceTest::enterAccepts()
{
    QCOMPARE(walk(runNozzleCheckSequence, {press(Qt::Key_Return), press(Qt::Key_Return)}),
             (QStringList{nozzleCheck1, nozzleCheck2}));
    QCOMPARE(walk(runHeadCleaningSequence, {press(Qt::Key_Enter), press(Qt::Key_Enter)}),
             (QStringList{headCleaning1, headCleaning2}));
    QCOMPARE(jobNames(), (QStringList{"Nozzle Check", "Head Cleaning"}));
}

void MaintenanceTest::cancelInTheFirstDialogCreatesNoJob_data()
{
    QTest::addColumn<DialogWalk::Answer>("answer");
    QTest::newRow("button") << click("buttonCancel");
    QTest::newRow("escape") << press(Qt::Key_Escape);
    QTest::newRow("frame") << DialogWalk::Answer(closeByTheFrame);
}

void MaintenanceTest::cancelInTheFirstDialogCreatesNoJob()
{
    QFETCH(DialogWalk::Answer, answer);
    QCOMPARE(walk(runNozzleCheckSequence, {answer}), QStringList{nozzleCheck1});
    QCOMPARE(walk(runHeadCleaningSequence, {answer}), QStringList{headCleaning1});
    QCOMPARE(jobNames(), QStringList());
}

void MaintenanceTest::secondDialogOffersTheOtherSequence_data()
{
    QTest::addColumn<DialogWalk::Answer>("toCleaning");
    QTest::addColumn<DialogWalk::Answer>("toCheck");
    QTest::newRow("button") << click("buttonHeadCleaning") << click("buttonNozzleCheckPatternPrint");
    QTest::newRow("escape") << press(Qt::Key_Escape) << press(Qt::Key_Escape);
    QTest::newRow("frame") << DialogWalk::Answer(closeByTheFrame) << DialogWalk::Answer(closeByTheFrame);
}

void MaintenanceTest::secondDialogOffersTheOtherSequence()
{
    QFETCH(DialogWalk::Answer, toCleaning);
    QFETCH(DialogWalk::Answer, toCheck);
    QCOMPARE(walk(runNozzleCheckSequence, {click("buttonPrint"), toCleaning, click("buttonCancel")}),
             (QStringList{nozzleCheck1, nozzleCheck2, headCleaning1}));
    QCOMPARE(walk(runHeadCleaningSequence, {click("buttonStart"), toCheck, click("buttonCancel")}),
             (QStringList{headCleaning1, headCleaning2, nozzleCheck1}));
    QCOMPARE(jobNames(), (QStringList{"Nozzle Check", "Head Cleaning"}));
}

void MaintenanceTest::sequencesAlternateWithoutLimit()
{
    constexpr int rounds = 30;
    std::set<void*> depths; // of the stack, when the first dialog of each round is open
    std::vector<DialogWalk::Answer> answers;
    QStringList dialogs;
    QStringList jobs;
    for (int i = 0; i < rounds; ++i) {
        answers.push_back([&depths](QDialog& dialog) {
            depths.insert(__builtin_frame_address(0));
            click("buttonPrint")(dialog);
        });
        answers.push_back(click("buttonHeadCleaning"));
        answers.push_back(click("buttonStart"));
        answers.push_back(click("buttonNozzleCheckPatternPrint"));
        dialogs << nozzleCheck1 << nozzleCheck2 << headCleaning1 << headCleaning2;
        jobs << "Nozzle Check"
             << "Head Cleaning";
    }
    answers.push_back(click("buttonCancel"));
    dialogs << nozzleCheck1;
    QCOMPARE(walk(runNozzleCheckSequence, std::move(answers)), dialogs);
    QCOMPARE(jobNames(), jobs);
    QVERIFY2(depths.size() == 1, "the stack grows with each round");
}

void MaintenanceTest::failureShowsNoMessage_data()
{
    QTest::addColumn<bool>("fileInPlaceOfTheFolder");
    QTest::newRow("no folder") << false;
    QTest::newRow("file in place of the folder") << true;
}

void MaintenanceTest::failureShowsNoMessage()
{
    QFETCH(bool, fileInPlaceOfTheFolder);
    std::filesystem::remove(JOB_DIR);
    if (fileInPlaceOfTheFolder) {
        WriteText(JOB_DIR, "kept");
    }
    QCOMPARE(walk(runNozzleCheckSequence, {click("buttonPrint"), click("buttonHeadCleaning"),
                                           click("buttonStart"), click("buttonFinish")}),
             (QStringList{nozzleCheck1, nozzleCheck2, headCleaning1, headCleaning2}));
    QCOMPARE(QString::fromStdString(ReadText(JOB_DIR)), QString(fileInPlaceOfTheFolder ? "kept" : ""));
}

void MaintenanceTest::fullFolderShowsNoMessage()
{
    for (int number = 0; number < 1000; ++number) {
        const QString name = QString::asprintf("%s/{ARPUB20240131_1}_%04d.epj", JOB_DIR, number);
        WriteText(name.toStdString(), "kept");
    }
    QCOMPARE(walk(runHeadCleaningSequence, {click("buttonStart"), click("buttonFinish")}),
             (QStringList{headCleaning1, headCleaning2}));
    QCOMPARE(jobNames(), QStringList());
}

void MaintenanceTest::networkPublisherCreatesNoJobFile()
{
    QCOMPARE(
        walk(runNozzleCheckSequence,
             {click("buttonPrint"), click("buttonHeadCleaning"), click("buttonStart"), click("buttonFinish")},
             publisher(PUBMGR_CONNECTTYPE_NETWORK)),
        (QStringList{nozzleCheck1, nozzleCheck2, headCleaning1, headCleaning2}));
    QCOMPARE(jobNames(), QStringList());
}

void MaintenanceTest::jobNameStaysEnglishInAnotherLanguage()
{
    QLocale::setDefault(QLocale(QLocale::German));
    OtherLanguage language(1);
    QVERIFY(QApplication::installTranslator(&language));
    const auto print = [](QDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), "NOZZLE CHECK");
        QCOMPARE(dialog.findChild<QPushButton*>("buttonPrint")->text(), "PRINT");
        click("buttonPrint")(dialog);
    };
    QCOMPARE(walk(runNozzleCheckSequence,
                  {print, click("buttonHeadCleaning"), click("buttonStart"), click("buttonFinish")}),
             (QStringList{nozzleCheck1, nozzleCheck2, headCleaning1, headCleaning2}));
    QApplication::removeTranslator(&language);
    QLocale::setDefault(QLocale::c());
    QCOMPARE(jobNames(), (QStringList{"Nozzle Check", "Head Cleaning"}));
}

void MaintenanceTest::propertiesStartTheSequences_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QByteArray>("accept");
    QTest::addColumn<QStringList>("dialogs");
    QTest::addColumn<QString>("jobName");
    QTest::addColumn<QString>("eject");

    QTest::newRow("nozzle check") << "btnNozzleCheck" << QByteArray("buttonPrint")
                                  << QStringList{nozzleCheck1, nozzleCheck2} << "Nozzle Check"
                                  << "3";
    QTest::newRow("head cleaning") << "btnHeadCleaning" << QByteArray("buttonStart")
                                   << QStringList{headCleaning1, headCleaning2} << "Head Cleaning"
                                   << "-1";
}

void MaintenanceTest::propertiesStartTheSequences()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, accept);
    QFETCH(QStringList, dialogs);
    QFETCH(QString, jobName);
    QFETCH(QString, eject);
    PropertyStage stage;
    stage.storeAndOpen(rt300, {.mode = 2, .stacker3 = 7}); // external output to stacker 3
    std::filesystem::create_directories(JOB_DIR);
    stage->propertyTab->setCurrentWidget(stage->pagePrinterMaint);
    DialogWalk walk({click(accept.constData()), click("buttonFinish")});
    QTest::mouseClick(stage->findChild<QAbstractButton*>(button), Qt::LeftButton);
    QCOMPARE(walk.seen(), dialogs);
    QVERIFY(stage->isVisible());
    QCOMPARE(jobNames(), QStringList{jobName});
    const QString text = QString::fromStdString(ReadText(std::string(JOB_DIR) + "/X_0000.epj"));
    QVERIFY2(text.contains("\nPublisherID = X\n"), qPrintable(text));
    QVERIFY2(text.contains("\nEject = " + eject + "\n"), qPrintable(text));
}

QTEST_MAIN(MaintenanceTest)
#include "MaintenanceTest.moc"

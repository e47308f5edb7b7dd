// Collecting the logs as a user does: the question, the file dialog, the wait and the final message. Each run
// that reaches the archive takes ten seconds.
#include "Boxes.h"
#include "Installation.h"
#include "MyRunnable.h"
#include "PubSetup.h"
#include "Shown.h"
#include "TypedPath.h"

#include <QElapsedTimer>
#include <QFileDialog>
#include <QProcess>
#include <QProgressDialog>
#include <QTest>

class LogCollectionTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void asksForConfirmation();
    void otherAnswersCancel_data();
    void otherAnswersCancel();
    void cancelledFileDialogEndsSilently();
    void fileDialogStartsInTheCallersHome();
    void packsOnlyLogsFromBeforeTheWait();
    void quoteInTheFolderIsReported();
    void missingTarIsReported();

private:
    /// Returns the last box. If `folder` is given, the file dialog opens it before the archive's name is
    /// typed.
    SeenBox collectInto(const QString& archive, const QString& folder = {});

    Installation m_installation;
    std::unique_ptr<PubSetup> m_window;
    QByteArray m_path;
};

namespace {

/// Types a name into the file dialog and presses Enter.
void save(QFileDialog& dialog, const QString& name)
{
    QTest::keyClick(typePath(dialog, name), Qt::Key_Enter);
}

QStringList contentOf(const QString& archive)
{
    QProcess tar;
    tar.start("tar", {"tzf", archive});
    tar.waitForFinished();
    return QString::fromUtf8(tar.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

} // namespace

void LogCollectionTest::init()
{
    m_path = qgetenv("PATH");
    m_installation = Installation();
    WriteText("/var/log/arvenUlmarDiscControl.log", "one\n");
    WriteText("/var/log/arvenUlmarDiscControl.log.1", "two\n");
    WriteText("/var/log/syslog", "not ours\n");
    qputenv("SUDO_UID", "1");
    qunsetenv("PKEXEC_UID");
    m_window = std::make_unique<PubSetup>(nullptr);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void LogCollectionTest::cleanup()
{
    qputenv("PATH", m_path);
    m_window.reset();
    QVERIFY(waitForTasks(10000));
}

SeenBox LogCollectionTest::collectInto(const QString& archive, const QString& folder)
{
    Boxes boxes({QMessageBox::Yes, QMessageBox::Ok});
    WhenShown<QFileDialog> dialog([&](QFileDialog& shown) {
        if (!folder.isEmpty()) {
            shown.setDirectory(folder);
        }
        save(shown, archive);
    });
    m_window->collectAndSaveLogs->trigger();
    return boxes.seen().size() == 2 ? boxes.seen()[1] : SeenBox{};
}

void LogCollectionTest::asksForConfirmation()
{
    Boxes boxes({QMessageBox::No});
    m_window->collectAndSaveLogs->trigger();
    QVERIFY(boxes.allAnswered());
    const SeenBox box = boxes.seen()[0];
    QCOMPARE(box.title, "ARVEN Ulmar Disc Setup");
    QCOMPARE(box.text,
             "ARVEN Ulmar Disc Setup collects logs about CD/DVD/BD Publisher, and then saves them in local "
             "PC.\nRefer to the documentation for what kind of information is collected.\nARVEN Ulmar Disc "
             "Setup does not send information.\nWould you like to continue?");
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No));
    QCOMPARE(box.defaultButton, nullptr);
}

void LogCollectionTest::otherAnswersCancel_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("No") << false;
    QTest::newRow("Escape") << true;
}

void LogCollectionTest::otherAnswersCancel()
{
    QFETCH(bool, escape);
    Boxes boxes({QMessageBox::No});
    if (escape) {
        boxes.onBox = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); };
    }
    WhenShown<QFileDialog> dialog([](QFileDialog& shown) { shown.reject(); });
    m_window->collectAndSaveLogs->trigger();
    QVERIFY(boxes.allAnswered());
    QVERIFY(!dialog.seen());
}

void LogCollectionTest::cancelledFileDialogEndsSilently()
{
    Boxes boxes({QMessageBox::Yes});
    WhenShown<QFileDialog> dialog([](QFileDialog& shown) { shown.reject(); });
    QElapsedTimer time;
    time.start();
    m_window->collectAndSaveLogs->trigger();
    QVERIFY(dialog.seen());
    QVERIFY(boxes.allAnswered());
    QVERIFY2(time.elapsed() < 9000, "logs were collected");
}

void LogCollectionTest::fileDialogStartsInTheCallersHome()
{
    Boxes boxes({QMessageBox::Yes});
    QString title, folder, suffix;
    QStringList filters;
    QWidget* parent = nullptr;
    QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen;
    WhenShown<QFileDialog> dialog([&](QFileDialog& shown) {
        title = shown.windowTitle();
        folder = shown.directory().absolutePath();
        suffix = shown.defaultSuffix();
        filters = shown.nameFilters();
        parent = shown.parentWidget();
        mode = shown.acceptMode();
        shown.reject();
    });
    m_window->collectAndSaveLogs->trigger();
    QVERIFY(dialog.seen());
    QCOMPARE(title, "Save as");
    QCOMPARE(folder, "/usr/sbin");
    QCOMPARE(suffix, "");
    QCOMPARE(filters, QStringList{"Archive file to save (*.tgz)"});
    QCOMPARE(parent, m_window.get());
    QCOMPARE(mode, QFileDialog::AcceptSave);
}

void LogCollectionTest::packsOnlyLogsFromBeforeTheWait()
{
    // A log that appears during the wait is not packed. The archive's name contains blanks and gets no
    // suffix.
    bool indicator = false;
    WhenShown<QProgressDialog> busy([&](QProgressDialog& shown) {
        indicator = shown.parentWidget() == m_window.get();
        WriteText("/var/log/arvenUlmarDiscControl.log.2", "too late\n");
    });
    QElapsedTimer time;
    time.start();
    const SeenBox box = collectInto("/tmp/all my logs");
    QVERIFY2(time.elapsed() >= 10000, qPrintable(QString::number(time.elapsed())));
    QVERIFY(indicator);
    QCOMPARE(box.title, "ARVEN Ulmar Disc Setup");
    QCOMPARE(box.text, "Log collection has finished.");
    QCOMPARE(box.icon, QMessageBox::Information);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(contentOf("/tmp/all my logs"),
             (QStringList{"var/log/arvenUlmarDiscControl.log", "var/log/arvenUlmarDiscControl.log.1"}));
    QVERIFY(!std::filesystem::exists("/tmp/all my logs.tgz"));
}

void LogCollectionTest::quoteInTheFolderIsReported()
{
    // The quote in the folder ends the quoted archive name. The rest of the command line, with the log files,
    // becomes one argument, and tar finds no such file.
    std::filesystem::create_directory("/tmp/12\" discs");
    const SeenBox box = collectInto("a.tgz", "/tmp/12\" discs");
    QCOMPARE(box.title, "ARVEN Ulmar Disc Setup");
    QCOMPARE(box.text,
             "Failed to execute tar command. Check that installation has been performed correctly. (2)");
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
}

void LogCollectionTest::missingTarIsReported()
{
    qputenv("PATH", "/nowhere");
    const SeenBox box = collectInto("/tmp/a.tgz");
    QCOMPARE(box.title, "ARVEN Ulmar Disc Setup");
    QCOMPARE(box.text,
             "Failed to execute tar command. Check that installation has been performed correctly.");
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(!std::filesystem::exists("/tmp/a.tgz"));
}

QTEST_MAIN(LogCollectionTest)
#include "LogCollectionTest.moc"

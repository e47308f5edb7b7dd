// Tests the working folder in the common settings: shown, typed, browsed for, applied or refused.
#include "SettingDialogFixture.h"

#include "Boxes.h"
#include "OrdinaryRights.h"
#include "TextFiles.h"
#include "TypedPath.h"

#include <QDialogButtonBox>
#include <QFileDialog>

namespace fs = std::filesystem;

namespace {

const std::string base = "/opt/arven/Ulmar Disc Maker";
const QString jobText =
    "The working folder could not be changed because there is a job being processed on this "
    "computer.\nPlease change the working folder after all jobs are finished.";
const QString badPathText =
    "The specified folder cannot be set as the working folder.\nSpecify a different folder.";

/// Calls `act` once, with the file dialog as soon as it is visible.
template <class Act>
void whenTheFileDialogIsUp(QObject* owner, Act act)
{
    auto timer = new QTimer(owner);
    QObject::connect(timer, &QTimer::timeout, owner, [timer, act] {
        auto dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog && dialog->isVisible()) {
            timer->stop();
            timer->deleteLater();
            act(*dialog);
        }
    });
    timer->start(10);
}

/// Types a folder and clicks "Choose".
void choose(QFileDialog& dialog, const QString& folder)
{
    typePath(dialog, folder);
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open), Qt::LeftButton);
}

} // namespace

class SettingFolderTest : public SettingDialogFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        startAnew();
    }

    void showsTheWorkingFolder_data();
    void showsTheWorkingFolder();
    void repairsABrokenJobFolder();

    void typedFolderIsApplied();
    void emptyFieldMeansTheDefault();
    void installationFoldersAreRefused();
    void invalidTextIsRefused();
    void jobPreventsFolderChange();
    void missingWorkFolderIsRecreatedWithoutJobCheck();
    void folderNameMayBeInvalidUtf8();

    void browseStartsAtTheField();
    void browseEntersTheRealPath();
    void browseKeepsUnresolvableFolder();
    void cancelledOrUnchangedBrowseChangesNothing();

    void lockedFolderIsRefused(); // must be last: it drops privileges
};

// ---------------------------------------------------------------------------------------------------------------------
// Shown

void SettingFolderTest::showsTheWorkingFolder_data()
{
    QTest::addColumn<QByteArray>("link");
    QTest::addColumn<QString>("shown");
    QTest::newRow("existing folder") << QByteArray("/tmp/a/UlmarDiscMakerWork") << "/tmp/a";
    QTest::newRow("missing target") << QByteArray("/tmp/gone/UlmarDiscMakerWork") << "/tmp/gone";
    QTest::newRow("non-ASCII letters") << QByteArray("/tmp/\xC3\xA4 \xE6\xBC\xA2/UlmarDiscMakerWork")
                                       << QString::fromUtf8("/tmp/\xC3\xA4 \xE6\xBC\xA2");
    QTest::newRow("at the root") << QByteArray("/UlmarDiscMakerWork") << "/";
}

void SettingFolderTest::showsTheWorkingFolder()
{
    QFETCH(QByteArray, link);
    fs::create_directory("/tmp/a/UlmarDiscMakerWork");
    fs::remove(job);
    fs::create_directory_symlink(link.toStdString(), job);
    open();
    QTEST(m_dialog->textWorkingFolder->text(), "shown");
    QCOMPARE(fs::read_symlink(job).string(), link.toStdString());
    QVERIFY(!m_dialog->applyButton->isEnabled());
}

void SettingFolderTest::repairsABrokenJobFolder()
{
    fs::remove(job);
    fs::create_symlink("JOB", job);
    open();
    QCOMPARE(m_dialog->textWorkingFolder->text(), "/opt/arven/Ulmar Disc Maker");
    QVERIFY(fs::symlink_status(job).type() == fs::file_type::directory);
    QCOMPARE(static_cast<int>(fs::status(job).permissions()), 01777);
    QCOMPARE(m_dialog->getCurrentJobFolder(), job);

    fs::remove(job);
    open();
    QVERIFY(fs::symlink_status(job).type() == fs::file_type::directory);
    QVERIFY(m_dialog->createActualJobFolder("/tmp/a/new"));
    QCOMPARE(static_cast<int>(fs::status("/tmp/a/new").permissions()), 01777);
}

// ---------------------------------------------------------------------------------------------------------------------
// Changed

void SettingFolderTest::typedFolderIsApplied()
{
    for (const char* name : {"/tmp/two  words", "/tmp/\"quoted\" 'too'", "/tmp/\xC3\xA4\xE6\xBC\xA2"}) {
        fs::create_directories(name);
        open();
        typeFolder(QString::fromUtf8(name) + "/../" + QString::fromUtf8(name + 5) + "/");
        QTest::mouseClick(m_dialog->applyButton, Qt::LeftButton);
        QCOMPARE(m_dialog->textWorkingFolder->text(), QString::fromUtf8(name));
        QCOMPARE(m_dialog->getCurrentJobFolder(), std::string(name) + "/UlmarDiscMakerWork");
    }
}

void SettingFolderTest::emptyFieldMeansTheDefault()
{
    fs::create_directory("/tmp/a/UlmarDiscMakerWork");
    fs::remove(job);
    fs::create_directory_symlink("/tmp/a/UlmarDiscMakerWork", job);
    open();
    typeFolder("");
    QTest::mouseClick(m_dialog->applyButton, Qt::LeftButton);
    QCOMPARE(m_dialog->textWorkingFolder->text(), "/opt/arven/Ulmar Disc Maker");
    QVERIFY(fs::symlink_status(job).type() == fs::file_type::directory);
}

void SettingFolderTest::installationFoldersAreRefused()
{
    fs::remove("/tmp/alias");
    fs::create_directory_symlink(base + "/conf", "/tmp/alias");
    for (const char* folder : {"/opt/arven/Ulmar Disc Maker/conf", "/tmp/alias"}) {
        open();
        typeFolder(folder);
        Boxes boxes({QMessageBox::Ok});
        QTest::mouseClick(m_dialog->okButton, Qt::LeftButton);
        QVERIFY(boxes.allAnswered());
        QCOMPARE(boxes.seen()[0].title, "ARVEN Ulmar Disc Setup");
        QCOMPARE(boxes.seen()[0].text, badPathText);
        QCOMPARE(boxes.seen()[0].icon, QMessageBox::Warning);
        QCOMPARE(boxes.seen()[0].buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QVERIFY(m_dialog->isVisible());
        QVERIFY(m_dialog->applyButton->isEnabled());
        QCOMPARE(m_dialog->textWorkingFolder->text(), folder);
        QVERIFY(fs::symlink_status(job).type() == fs::file_type::directory);
    }
}

void SettingFolderTest::invalidTextIsRefused()
{
    const std::string before = ReadText(REGISTRY_FILE);
    open();
    for (const QString& text : {QString("/tmp/gone"), QString(" "), QString("%s%n"), QString(10000, 'x'),
                                QString("/tmp/a\n"), QString(20000, QChar(0xDC00))}) {
        typeFolder(text);
        Boxes boxes({QMessageBox::Ok});
        QTest::mouseClick(m_dialog->applyButton, Qt::LeftButton);
        QVERIFY(boxes.allAnswered());
        QCOMPARE(boxes.seen()[0].text, badPathText);
        QVERIFY(m_dialog->applyButton->isEnabled());
        QCOMPARE(m_dialog->result(), 0);
    }
    QCOMPARE(m_dialog->getCurrentJobFolder(), job);
    QCOMPARE(ReadText(REGISTRY_FILE), before);
}

void SettingFolderTest::jobPreventsFolderChange()
{
    fs::create_directory("/tmp/a/UlmarDiscMakerWork");
    fs::remove(job);
    fs::create_directory_symlink("/tmp/a/UlmarDiscMakerWork", job);
    WriteText("/tmp/a/UlmarDiscMakerWork/1.epj", "");
    const std::string before = ReadText(REGISTRY_FILE);
    open();
    QVERIFY(m_dialog->checkProcessingJob());
    typeFolder("/tmp/b");
    for (QPushButton* button : {m_dialog->applyButton, m_dialog->okButton}) {
        Boxes boxes({QMessageBox::Ok});
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(boxes.allAnswered());
        QCOMPARE(boxes.seen()[0].title, "ARVEN Ulmar Disc Setup");
        QCOMPARE(boxes.seen()[0].text, jobText);
        QCOMPARE(boxes.seen()[0].icon, QMessageBox::Warning);
        QCOMPARE(boxes.seen()[0].buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QVERIFY(m_dialog->isVisible());
        QVERIFY(m_dialog->applyButton->isEnabled());
    }
    QCOMPARE(fs::read_symlink(job).string(), std::string("/tmp/a/UlmarDiscMakerWork"));
    QVERIFY(!fs::exists("/tmp/b/UlmarDiscMakerWork"));
    QCOMPARE(ReadText(REGISTRY_FILE), before);
}

void SettingFolderTest::missingWorkFolderIsRecreatedWithoutJobCheck()
{
    fs::remove(job);
    fs::create_directory_symlink("/tmp/a/UlmarDiscMakerWork", job);
    open();
    QCOMPARE(m_dialog->textWorkingFolder->text(), "/tmp/a");
    tick(2, m_dialog->checkCompatMode); // any change
    QTest::mouseClick(m_dialog->applyButton, Qt::LeftButton);
    QVERIFY(!m_dialog->applyButton->isEnabled());
    QVERIFY(fs::is_directory("/tmp/a/UlmarDiscMakerWork"));

    WriteText("/tmp/a/UlmarDiscMakerWork/1.epj", "");
    tick(2, m_dialog->checkCompatMode);
    QTest::mouseClick(m_dialog->applyButton, Qt::LeftButton);
    QVERIFY(!m_dialog->applyButton->isEnabled());
}

void SettingFolderTest::folderNameMayBeInvalidUtf8()
{
    // The name is invalid UTF-8, so the field cannot show it.
    fs::create_directories("/tmp/\xFF\xE4/UlmarDiscMakerWork");
    fs::remove(job);
    fs::create_directory_symlink("/tmp/\xFF\xE4/UlmarDiscMakerWork", job);
    open();
    QVERIFY(m_dialog->textWorkingFolder->text().startsWith("/tmp/"));
    tick(2, m_dialog->checkCompatMode);
    QTest::mouseClick(m_dialog->applyButton, Qt::LeftButton);
    QVERIFY2(!m_dialog->applyButton->isEnabled(), "the other settings are not applied");
    QCOMPARE(m_dialog->getCurrentJobFolder(), std::string("/tmp/\xFF\xE4/UlmarDiscMakerWork"));
}

// ---------------------------------------------------------------------------------------------------------------------
// Browsing

void SettingFolderTest::browseStartsAtTheField()
{
    open();
    m_dialog->textWorkingFolder->setText("/tmp/a");
    bool looked = false;
    whenTheFileDialogIsUp(m_dialog.get(), [&](QFileDialog& dialog) {
        looked = dialog.windowTitle() == "Select working folder." && dialog.directory().path() == "/tmp/a" &&
                 dialog.testOption(QFileDialog::ShowDirsOnly) && dialog.parent() == m_dialog.get() &&
                 !(dialog.filter() & QDir::Files);
        dialog.reject();
    });
    QTest::mouseClick(m_dialog->btnSearchFolder, Qt::LeftButton);
    QVERIFY(looked);
}

void SettingFolderTest::browseEntersTheRealPath()
{
    fs::create_directories("/tmp/b/deep");
    fs::remove("/tmp/alias");
    fs::create_directory_symlink("/tmp/b/deep", "/tmp/alias");
    open();
    for (const char* folder : {"/tmp/b", "/tmp/alias"}) {
        m_dialog->textWorkingFolder->setText("/tmp/a");
        m_dialog->applyButton->setEnabled(false);
        whenTheFileDialogIsUp(m_dialog.get(), [&](QFileDialog& dialog) { choose(dialog, folder); });
        QTest::mouseClick(m_dialog->btnSearchFolder, Qt::LeftButton);
        QCOMPARE(m_dialog->textWorkingFolder->text(), QString(folder) == "/tmp/b" ? "/tmp/b" : "/tmp/b/deep");
        QVERIFY(m_dialog->applyButton->isEnabled());
    }
    QCOMPARE(m_dialog->getCurrentJobFolder(), job); // unchanged until it is applied
    QTest::mouseClick(m_dialog->applyButton, Qt::LeftButton);
    QCOMPARE(m_dialog->getCurrentJobFolder(), std::string("/tmp/b/deep/UlmarDiscMakerWork"));
}

void SettingFolderTest::browseKeepsUnresolvableFolder()
{
    fs::create_directory_symlink("/tmp/b", "/tmp/vanishing");
    open();
    whenTheFileDialogIsUp(m_dialog.get(), [](QFileDialog& dialog) {
        connect(&dialog, &QFileDialog::accepted, [] { fs::remove("/tmp/vanishing"); });
        choose(dialog, "/tmp/vanishing");
    });
    QTest::mouseClick(m_dialog->btnSearchFolder, Qt::LeftButton);
    QVERIFY(!fs::exists(fs::symlink_status("/tmp/vanishing")));
    QCOMPARE(m_dialog->textWorkingFolder->text(), "/tmp/vanishing");
    QVERIFY(m_dialog->applyButton->isEnabled());
}

void SettingFolderTest::cancelledOrUnchangedBrowseChangesNothing()
{
    open();
    m_dialog->textWorkingFolder->setText("/tmp/a");
    whenTheFileDialogIsUp(m_dialog.get(), [](QFileDialog& dialog) { dialog.reject(); });
    QTest::mouseClick(m_dialog->btnSearchFolder, Qt::LeftButton);
    QCOMPARE(m_dialog->textWorkingFolder->text(), "/tmp/a");
    QVERIFY(!m_dialog->applyButton->isEnabled());
    whenTheFileDialogIsUp(m_dialog.get(), [](QFileDialog& dialog) { choose(dialog, "/tmp/a"); });
    QTest::mouseClick(m_dialog->btnSearchFolder, Qt::LeftButton);
    QCOMPARE(m_dialog->textWorkingFolder->text(), "/tmp/a");
    QVERIFY(!m_dialog->applyButton->isEnabled());
}

// ---------------------------------------------------------------------------------------------------------------------
// Inaccessible

void SettingFolderTest::lockedFolderIsRefused()
{
    QVERIFY(TakeAwayPrivileges());
    open();
    fs::permissions("/tmp/a", fs::perms::none);
    typeFolder("/tmp/a");
    Boxes boxes({QMessageBox::Ok, QMessageBox::Ok});
    QTest::mouseClick(m_dialog->okButton, Qt::LeftButton);
    QCOMPARE(boxes.seen().size(), size_t{1});
    QCOMPARE(boxes.seen()[0].text, badPathText);
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(m_dialog->getCurrentJobFolder(), job);

    // The job folder is broken and cannot be repaired: the field is empty, and no folder can be set.
    fs::remove(job);
    fs::create_symlink("JOB", job);
    fs::permissions(base, fs::perms::owner_read | fs::perms::owner_exec);
    open();
    QCOMPARE(m_dialog->textWorkingFolder->text(), "");
    typeFolder("");
    m_dialog->setChanged();
    QTest::mouseClick(m_dialog->okButton, Qt::LeftButton);
    QVERIFY(boxes.allAnswered());
    QCOMPARE(boxes.seen()[1].text, badPathText);
    fs::permissions(base, fs::perms::owner_all);
}

QTEST_MAIN(SettingFolderTest)
#include "SettingFolderTest.moc"

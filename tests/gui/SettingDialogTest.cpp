// Tests the dialog of the common settings: what it shows, what it saves, its result and its messages.
#include "SettingDialogFixture.h"

#include "Boxes.h"
#include "SameImage.h"
#include "TextFiles.h"

#include <QKeySequence>
#include <QScopeGuard>
#include <QSignalSpy>

namespace fs = std::filesystem;

namespace {

/// The registry file with these three settings, as the product writes it.
std::string registryText(int compatiMode, int endJobNotifyType, int notifyStyleJobEnd)
{
    const auto line = [](const char* name, int value) {
        return std::string("\"") + name + "\"=dword:0000000" + std::to_string(value) + "\n";
    };
    return "[HKLM/Software/ARVEN/Ulmar Disc Maker]\n" + line("CompatiMode", compatiMode) +
           line("EndJobNotifyType", endJobNotifyType) + line("NotifyStyleJobEnd", notifyStyleJobEnd) + "\n";
}

} // namespace

class SettingDialogTest : public SettingDialogFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        startAnew();
    }

    void showsDefaultsWithoutStoredValues(); // must be first: values that were read stay in memory
    void titleIconAndButtons();
    void widgetsAndTextsOfEachTab();
    void groupTitlesEndInABlank();
    void fixedSizeFitsAllWidgets_data();
    void fixedSizeFitsAllWidgets();
    void tabKeyReachesAllWidgetsInOrder();
    void mnemonicsAndAccessibleTexts();
    void tabsFollowThePalette();
    void showsStoredValues_data();
    void showsStoredValues();
    void timingFollowsTheMethod();

    void everyChangeEnablesApply_data();
    void everyChangeEnablesApply();
    void okWithoutAChangeDoesNothing();
    void savesChosenValues_data();
    void savesChosenValues();
    void enterIsOk();
    void resultWhenCancelled_data();
    void resultWhenCancelled();
    void applyIsDisabledUntilNextChange();
    void okAfterApplyWritesNothing();
    void registryFailureLeavesTheFolderChanged();
};

void SettingDialogTest::showsDefaultsWithoutStoredValues()
{
    open();
    QVERIFY(!m_dialog->checkNotification->isChecked());
    QVERIFY(!m_dialog->groupNotificationTiming->isEnabled());
    QVERIFY(m_dialog->alljobendradioButton->isChecked());
    QVERIFY(!m_dialog->checkCompatMode->isChecked());
    QCOMPARE(m_dialog->textWorkingFolder->text(), "/opt/arven/Ulmar Disc Maker");
    QCOMPARE(ReadText(REGISTRY_FILE), std::string());
}

void SettingDialogTest::titleIconAndButtons()
{
    open();
    QCOMPARE(m_dialog->windowTitle(), "Common Setting for Publishing");
    QVERIFY(showsImage(m_dialog->windowIcon(), ":/res/UDSetup.png", 48));
    QVERIFY(!m_dialog->parentWidget());
    QCOMPARE(m_dialog->settingTab->currentIndex(), 0);
    const struct
    {
        QPushButton* button;
        const char* text;
        bool isDefault, enabled;
    } buttons[] = {
        {m_dialog->okButton, "OK", true, true},
        {m_dialog->applyButton, "&Apply", false, false},
        {m_dialog->cancelButton, "Cancel", false, true},
    };
    for (const auto& row : buttons) {
        QCOMPARE(row.button->text(), row.text);
        QCOMPARE(row.button->isDefault(), row.isDefault);
        QCOMPARE(row.button->isEnabled(), row.enabled);
    }

    // The initial values of the form, before any setting is read.
    QDialog plain;
    Ui::settingDialog form;
    form.setupUi(&plain);
    QVERIFY(form.checkNotification->isChecked());
    QVERIFY(form.alljobendradioButton->isChecked());
    QVERIFY(!form.checkCompatMode->isChecked());
}

void SettingDialogTest::widgetsAndTextsOfEachTab()
{
    open();
    const char* tabs[][2] = {{"tabCommon", "Common"},
                             {"tabNotification", "Notification Settings"},
                             {"tabNetworkModel", "Network CD/DVD/BD Publisher"}};
    QCOMPARE(m_dialog->settingTab->count(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(m_dialog->settingTab->widget(i)->objectName(), tabs[i][0]);
        QCOMPARE(m_dialog->settingTab->tabText(i), tabs[i][1]);
    }
    const struct
    {
        const char* tab;
        const char* name;
        const char* property;
        const char* text;
    } table[] = {
        {"tabCommon", "groupWorkingFolder", "title", "Working Folder "},
        {"tabCommon", "textWorkingFolder", "text", "/opt/arven/Ulmar Disc Maker"},
        {"tabCommon", "btnSearchFolder", "text", "Browse..."},
        {"tabNotification", "groupNotificationMethod", "title", "Notification Method "},
        {"tabNotification", "checkNotification", "text",
         "Beep when a job is finished, or when the source stacker is empty (RT-300III)"},
        {"tabNotification", "groupNotificationTiming", "title", "Notification when a job is finished "},
        {"tabNotification", "singlejobendradioButton", "text", "Notify after each job is finished"},
        {"tabNotification", "alljobendradioButton", "text", "Notify after all jobs are finished"},
        {"tabNetworkModel", "groupNetworkModelCompatibility", "title", "Compatibility Approval Settings "},
        {"tabNetworkModel", "checkCompatMode", "text",
         "Allow security risks and approve the use of older versions of network CD/DVD/BD publishers"},
        {"tabNetworkModel", "label_1", "text", "When this is selected, you can use the following devices."},
        {"tabNetworkModel", "label_2_1", "text", "RT-300NII:"},
        {"tabNetworkModel", "label_2_2", "text", "Server versions older than 3.30"},
        {"tabNetworkModel", "label_3", "text",
         "It is strongly recommended that you upgrade to the latest software version to handle "
         "vulnerabilities."},
    };
    for (const auto& row : table) {
        QWidget* widget = m_dialog->findChild<QWidget*>(row.name);
        QVERIFY2(widget, row.name);
        QVERIFY2(m_dialog->findChild<QWidget*>(row.tab)->isAncestorOf(widget), row.name);
        QCOMPARE(widget->property(row.property).toString(), row.text);
    }
}

void SettingDialogTest::groupTitlesEndInABlank()
{
    QDialog plain;
    Ui::settingDialog form;
    form.setupUi(&plain);
    open();
    const auto groups = plain.findChildren<QGroupBox*>();
    QCOMPARE(groups.size(), 4);
    for (const QGroupBox* group : groups) {
        QVERIFY(!group->title().endsWith(' '));
        QCOMPARE(m_dialog->findChild<QGroupBox*>(group->objectName())->title(), group->title() + ' ');
    }
}

void SettingDialogTest::fixedSizeFitsAllWidgets_data()
{
    QTest::addColumn<double>("factor");
    QTest::newRow("default font") << 1.0;
    QTest::newRow("larger font") << 1.5;
    QTest::newRow("font of twice the size") << 2.0;
}

void SettingDialogTest::fixedSizeFitsAllWidgets()
{
    QFETCH(double, factor);
    const QFont before = QApplication::font();
    QFont larger = before;
    larger.setPointSizeF(before.pointSizeF() * factor);
    QApplication::setFont(larger);
    const auto back = qScopeGuard([&before] { QApplication::setFont(before); });
    open();
    QCOMPARE(m_dialog->label_3->font().pointSizeF(), larger.pointSizeF());

    QCOMPARE(m_dialog->minimumSize(), m_dialog->size());
    QCOMPARE(m_dialog->maximumSize(), m_dialog->size());
    int looked = 0;
    for (int tab = 0; tab < m_dialog->settingTab->count(); ++tab) {
        m_dialog->settingTab->setCurrentIndex(tab);
        for (const QWidget* widget : m_dialog->findChildren<QWidget*>()) {
            const bool shows = qobject_cast<const QAbstractButton*>(widget) ||
                               qobject_cast<const QLabel*>(widget) || qobject_cast<const QGroupBox*>(widget);
            if (shows && widget->isVisible() && !widget->objectName().startsWith("Scroll")) {
                const QSize needed = widget->minimumSizeHint();
                QVERIFY2(widget->width() >= needed.width() && widget->height() >= needed.height(),
                         qPrintable(widget->objectName()));
                QVERIFY(m_dialog->rect().contains(
                    QRect(widget->mapTo(m_dialog.get(), QPoint()), widget->size())));
                ++looked;
            }
        }
    }
    QCOMPARE(looked, 13 + 3 * 3); // 13 on the tabs, and the three buttons once for each tab
}

void SettingDialogTest::tabKeyReachesAllWidgetsInOrder()
{
    open();
    m_dialog->applyButton->setEnabled(true);
    m_dialog->groupNotificationTiming->setEnabled(true);
    const struct
    {
        int tab;
        QStringList names;
    } tabs[] = {
        {0, {"textWorkingFolder", "btnSearchFolder", "okButton", "applyButton", "cancelButton"}},
        {1, {"checkNotification", "singlejobendradioButton", "okButton", "applyButton", "cancelButton"}},
        {2, {"checkCompatMode", "okButton", "applyButton", "cancelButton"}},
    };
    for (const auto& row : tabs) {
        m_dialog->settingTab->setCurrentIndex(row.tab);
        m_dialog->settingTab->setFocus();
        QStringList reached;
        for (int i = 0; i < row.names.size(); ++i) {
            QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
            reached << m_dialog->focusWidget()->objectName();
        }
        QCOMPARE(reached, row.names);
    }
    m_dialog->settingTab->setCurrentIndex(1);
    m_dialog->singlejobendradioButton->setFocus();
    QTest::keyClick(m_dialog->singlejobendradioButton, Qt::Key_Down); // the arrow keys move within the group
    QVERIFY(m_dialog->alljobendradioButton->hasFocus());
}

void SettingDialogTest::mnemonicsAndAccessibleTexts()
{
    open();
    QStringList mnemonics;
    for (const QAbstractButton* button : m_dialog->findChildren<QAbstractButton*>()) {
        const QKeySequence key = QKeySequence::mnemonic(button->text());
        if (!key.isEmpty()) {
            QVERIFY2(!mnemonics.contains(key.toString()), qPrintable(button->text()));
            mnemonics << key.toString();
        }
    }
    QCOMPARE(mnemonics, QStringList{"Alt+A"});
    QCOMPARE(m_dialog->textWorkingFolder->accessibleName(), "Working Folder");
    const QString approval = m_dialog->checkCompatMode->accessibleDescription();
    for (const char* label : {"label_1", "label_2_1", "label_2_2", "label_3"}) {
        QVERIFY(approval.contains(m_dialog->findChild<QLabel*>(label)->text()));
    }
    // The two labels are on one line, below the text of the check box.
    m_dialog->settingTab->setCurrentIndex(2);
    QCOMPARE(m_dialog->label_2_1->x(), m_dialog->label_1->x());
    QCOMPARE(m_dialog->label_2_1->x(), m_dialog->label_3->x());
    QCOMPARE(m_dialog->label_2_1->y(), m_dialog->label_2_2->y());
    QVERIFY(m_dialog->label_1->x() > m_dialog->checkCompatMode->x() + 10);
}

void SettingDialogTest::tabsFollowThePalette()
{
    open();
    const QString sheet = m_dialog->settingTab->styleSheet();
    QCOMPARE(sheet, "QTabWidget::pane > QWidget {\n\tbackground: palette(base);\n}");
    const auto shownColour = [this] {
        const QWidget* tab = m_dialog->tabCommon;
        return m_dialog->grab().toImage().pixelColor(tab->mapTo(m_dialog.get(), tab->rect().bottomLeft()) +
                                                     QPoint(5, -5));
    };
    const QPalette before = QApplication::palette();
    QCOMPARE(shownColour(), before.color(QPalette::Base));
    QPalette dark = before;
    dark.setColor(QPalette::Base, QColor(10, 20, 30));
    QApplication::setPalette(dark);
    QTRY_COMPARE(shownColour(), QColor(10, 20, 30));
    QApplication::setPalette(before);
    QTRY_COMPARE(shownColour(), before.color(QPalette::Base));
    QCOMPARE(m_dialog->settingTab->styleSheet(), sheet);
}

void SettingDialogTest::showsStoredValues_data()
{
    QTest::addColumn<int>("compatiMode");
    QTest::addColumn<int>("endJobNotifyType");
    QTest::addColumn<int>("notifyStyleJobEnd");
    QTest::addColumn<bool>("compat");
    QTest::addColumn<bool>("single");
    QTest::addColumn<bool>("beep");
    QTest::newRow("all off") << 0 << 2 << 0 << false << false << false;
    QTest::newRow("beep") << 0 << 2 << 2 << false << false << true;
    QTest::newRow("message box") << 0 << 2 << 1 << false << false << true;
    QTest::newRow("unknown style") << 0 << 2 << 9 << false << false << true;
    QTest::newRow("every job") << 0 << 1 << 2 << false << true << true;
    QTest::newRow("every job, off") << 0 << 1 << 0 << false << true << false;
    QTest::newRow("no timing") << 0 << 0 << 2 << false << false << true;
    QTest::newRow("unknown timing") << 0 << 3 << 2 << false << false << true;
    QTest::newRow("approved") << 1 << 2 << 0 << true << false << false;
    QTest::newRow("approved, other value") << 5 << 2 << 0 << true << false << false;
}

void SettingDialogTest::showsStoredValues()
{
    QFETCH(int, compatiMode);
    QFETCH(int, endJobNotifyType);
    QFETCH(int, notifyStyleJobEnd);
    WriteRegistry(registryText(compatiMode, endJobNotifyType, notifyStyleJobEnd));
    open();
    QTEST(m_dialog->checkCompatMode->isChecked(), "compat");
    QTEST(m_dialog->singlejobendradioButton->isChecked(), "single");
    QCOMPARE(m_dialog->alljobendradioButton->isChecked(), !m_dialog->singlejobendradioButton->isChecked());
    QTEST(m_dialog->checkNotification->isChecked(), "beep");
    QTEST(m_dialog->groupNotificationTiming->isEnabled(), "beep");
    QVERIFY(!m_dialog->applyButton->isEnabled());
}

void SettingDialogTest::timingFollowsTheMethod()
{
    WriteRegistry(registryText(0, 2, 2));
    open();
    m_dialog->settingTab->setCurrentIndex(1);
    for (const bool checked : {false, true, false}) {
        tick(1, m_dialog->checkNotification);
        QCOMPARE(m_dialog->checkNotification->isChecked(), checked);
        QCOMPARE(m_dialog->groupNotificationTiming->isEnabled(), checked);
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// Changing and closing

void SettingDialogTest::everyChangeEnablesApply_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("name");
    QTest::newRow("method") << 1 << "checkNotification";
    QTest::newRow("each job") << 1 << "singlejobendradioButton";
    QTest::newRow("all jobs, again") << 1 << "alljobendradioButton";
    QTest::newRow("approval") << 2 << "checkCompatMode";
    QTest::newRow("folder") << 0 << "textWorkingFolder";
}

void SettingDialogTest::everyChangeEnablesApply()
{
    QFETCH(int, tab);
    QFETCH(QString, name);
    WriteRegistry(registryText(0, 2, 2));
    open();
    m_dialog->settingTab->setCurrentIndex(tab);
    m_dialog->textWorkingFolder->setText("/tmp/a"); // set by the program, not by the user
    QVERIFY(!m_dialog->applyButton->isEnabled());
    QWidget* widget = m_dialog->findChild<QWidget*>(name);
    if (tab == 0) {
        QTest::keyClick(widget, Qt::Key_X);
    } else {
        QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
    }
    QVERIFY(m_dialog->applyButton->isEnabled());
}

void SettingDialogTest::okWithoutAChangeDoesNothing()
{
    fs::remove_all(job);
    fs::create_directory_symlink("/tmp/gone/UlmarDiscMakerWork", job);
    WriteRegistry("[HKLM/untouched]\n\n");
    open();
    QCOMPARE(run([this] { QTest::mouseClick(m_dialog->okButton, Qt::LeftButton); }), 1);
    QCOMPARE(ReadText(REGISTRY_FILE), std::string("[HKLM/untouched]\n\n"));
    QCOMPARE(fs::read_symlink(job).string(), std::string("/tmp/gone/UlmarDiscMakerWork"));
}

void SettingDialogTest::savesChosenValues_data()
{
    QTest::addColumn<bool>("compat");
    QTest::addColumn<bool>("single");
    QTest::addColumn<bool>("beep");
    for (int i = 0; i < 8; ++i) {
        QTest::addRow("%d", i) << ((i & 1) != 0) << ((i & 2) != 0) << ((i & 4) != 0);
    }
}

void SettingDialogTest::savesChosenValues()
{
    QFETCH(bool, compat);
    QFETCH(bool, single);
    QFETCH(bool, beep);
    // The stored values differ from the chosen ones. The notification is on, so that the timing can be
    // chosen.
    WriteRegistry(registryText(compat ? 0 : 1, single ? 2 : 1, 1));
    open();
    const int result = run([&] {
        QRadioButton* timing = single ? m_dialog->singlejobendradioButton : m_dialog->alljobendradioButton;
        tick(1, timing);
        if (!beep) {
            tick(1, m_dialog->checkNotification);
        }
        tick(2, m_dialog->checkCompatMode);
        QTest::mouseClick(m_dialog->okButton, Qt::LeftButton);
    });
    QCOMPARE(result, 1);
    const std::string text = ReadText(REGISTRY_FILE);
    const std::string expected = registryText(compat ? 1 : 0, single ? 1 : 2, beep ? 2 : 0);
    QVERIFY2(text.find(expected) != std::string::npos, text.c_str());
}

void SettingDialogTest::enterIsOk()
{
    open();
    const int result = run([this] {
        typeFolder("/tmp/a");
        QTest::keyClick(m_dialog->textWorkingFolder, Qt::Key_Return);
    });
    QCOMPARE(result, 1);
    QCOMPARE(fs::read_symlink(job).string(), std::string("/tmp/a/UlmarDiscMakerWork"));
}

void SettingDialogTest::resultWhenCancelled_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("applied");
    for (const char* way : {"Cancel", "Escape", "frame"}) {
        QTest::addRow("%s", way) << way << false;
        QTest::addRow("%s after Apply", way) << way << true;
    }
}

void SettingDialogTest::resultWhenCancelled()
{
    QFETCH(QString, way);
    QFETCH(bool, applied);
    open();
    QSignalSpy finished(m_dialog.get(), &QDialog::finished);
    const int result = run([&] {
        typeFolder("/tmp/a");
        if (applied) {
            QTest::mouseClick(m_dialog->applyButton, Qt::LeftButton);
            typeFolder("/tmp/b"); // a change that is discarded
        }
        if (way == "Cancel") {
            QTest::mouseClick(m_dialog->cancelButton, Qt::LeftButton);
        } else if (way == "Escape") {
            QTest::keyClick(m_dialog->textWorkingFolder, Qt::Key_Escape);
        } else {
            m_dialog->close();
        }
    });
    QCOMPARE(result, applied ? 1 : 0);
    QCOMPARE(finished.count(), 1);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->getCurrentJobFolder(), applied ? "/tmp/a/UlmarDiscMakerWork" : job);
    QVERIFY(!fs::exists("/tmp/b/UlmarDiscMakerWork"));
}

void SettingDialogTest::applyIsDisabledUntilNextChange()
{
    open();
    typeFolder("/tmp/a");
    QTest::mouseClick(m_dialog->applyButton, Qt::LeftButton);
    QVERIFY(m_dialog->isVisible());
    QVERIFY(!m_dialog->applyButton->isEnabled());
    QCOMPARE(m_dialog->result(), 1);
    QCOMPARE(fs::read_symlink(job).string(), std::string("/tmp/a/UlmarDiscMakerWork"));
    QTest::keyClick(m_dialog->textWorkingFolder, Qt::Key_Backspace);
    QVERIFY(m_dialog->applyButton->isEnabled());
}

void SettingDialogTest::okAfterApplyWritesNothing()
{
    open();
    const int result = run([this] {
        tick(2, m_dialog->checkCompatMode);
        QTest::mouseClick(m_dialog->applyButton, Qt::LeftButton);
        WriteRegistry("[HKLM/untouched]\n\n");
        QTest::mouseClick(m_dialog->okButton, Qt::LeftButton);
    });
    QCOMPARE(result, 1);
    QCOMPARE(ReadText(REGISTRY_FILE), std::string("[HKLM/untouched]\n\n"));
}

void SettingDialogTest::registryFailureLeavesTheFolderChanged()
{
    open();
    typeFolder("/tmp/a");
    fs::remove(REGISTRY_FILE);
    fs::create_directory(REGISTRY_FILE); // cannot be written now
    Boxes boxes({QMessageBox::Ok});
    QObject* parent = m_dialog.get();
    boxes.onBox = [&parent](QMessageBox& box) { parent = box.parent(); };
    QTest::mouseClick(m_dialog->okButton, Qt::LeftButton);
    QVERIFY(boxes.allAnswered());
    QCOMPARE(boxes.seen()[0].title, "ARVEN Ulmar Disc Setup");
    QCOMPARE(boxes.seen()[0].text, "Failed to change setting.");
    QCOMPARE(boxes.seen()[0].icon, QMessageBox::Warning);
    QCOMPARE(boxes.seen()[0].buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(!parent);
    QVERIFY(m_dialog->isVisible());
    QVERIFY(m_dialog->applyButton->isEnabled());
    QCOMPARE(fs::read_symlink(job).string(), std::string("/tmp/a/UlmarDiscMakerWork"));
    QCOMPARE(m_dialog->textWorkingFolder->text(), "/tmp/a");
}

QTEST_MAIN(SettingDialogTest)
#include "SettingDialogTest.moc"

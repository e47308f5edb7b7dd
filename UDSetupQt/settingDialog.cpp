#include "settingDialog.h"

#include "FrameColours.h"
#include "JobFolder.h"
#include "PubMgrConst.h"
#include "TitleRoom.h"

#include <QFileDialog>
#include <QMessageBox>

#include <algorithm>

namespace {

constexpr int widestBox = 900; // pixels: with its margins it fits a screen 1024 pixels wide

/// Breaks a text wider than widestBox near its middle, because a check box does not wrap its text.
void breakLongText(QCheckBox* box)
{
    QString text = box->text();
    const auto middle = text.indexOf(' ', text.size() / 2);
    if (box->sizeHint().width() > widestBox && middle != -1) {
        box->setText(text.replace(middle, 1, '\n'));
    }
}

} // namespace

settingDialogEx::settingDialogEx(QDialog* parent) : QDialog(parent)
{
    setupUi(this);
    giveTitlesRoom(*this);
    setFrameColours(*settingTab);
    describeApproval();
    connectAll();
    textWorkingFolder->setFocus();

    checkNotification->setChecked(readSetting(REG_PUB_OPTION_VAL_NOTIFY_STYLE, PUBMGR_NOTIFYSTYLE_OFF) !=
                                  PUBMGR_NOTIFYSTYLE_OFF);
    const std::string jobFolder = repairedJobFolder();
    if (!jobFolder.empty()) {
        showWorkingFolder(workingFolderOf(jobFolder));
    }
    if (readSetting(REG_PUB_OPTION_VAL_NOTIFY_JOBEND, PUBMGR_ENDJOBNOTIFY_ALLJOB) ==
        PUBMGR_ENDJOBNOTIFY_EVERYJOB) {
        singlejobendradioButton->setChecked(true);
    }
    checkCompatMode->setChecked(readSetting(REG_PUB_OPTION_COMPATIMODE, 0) != 0);

    fixSize();
}

void settingDialogEx::connectAll()
{
    connect(checkNotification, &QCheckBox::toggled, groupNotificationTiming, &QGroupBox::setEnabled);
    connect(textWorkingFolder, &QLineEdit::textEdited, this, &settingDialogEx::onWokingFolderEdited);
    connect(btnSearchFolder, &QPushButton::clicked, this, &settingDialogEx::searchFolder);
    const QAbstractButton* const choices[] = {checkNotification, checkCompatMode, singlejobendradioButton,
                                              alljobendradioButton};
    for (const QAbstractButton* choice : choices) {
        connect(choice, &QAbstractButton::clicked, this, &settingDialogEx::setChanged);
    }
    connect(okButton, &QPushButton::clicked, this, &settingDialogEx::saveAndExit);
    connect(applyButton, &QPushButton::clicked, this, &settingDialogEx::saveAndContinue);
    connect(cancelButton, &QPushButton::clicked, this, &settingDialogEx::reject);
}

/// Gives screen readers the text below the check box.
void settingDialogEx::describeApproval()
{
    checkCompatMode->setAccessibleDescription(
        QStringList{label_1->text(), label_2_1->text(), label_2_2->text(), label_3->text()}.join(' '));
}

void settingDialogEx::fixSize()
{
    for (QGroupBox* group : {groupWorkingFolder, groupNotificationMethod, groupNotificationTiming,
                             groupNetworkModelCompatibility}) {
        group->setTitle(group->title() + ' '); // space after the last letter
    }
    breakLongText(checkCompatMode);
    int widest = 0;
    for (int i = 0; i < settingTab->count(); ++i) {
        widest = std::max(widest, settingTab->widget(i)->sizeHint().width());
    }
    for (int i = 0; i < settingTab->count(); ++i) { // tabs ignore the height that a page needs at its width
        QWidget* page = settingTab->widget(i);
        page->setMinimumSize(
            widest, std::max(page->sizeHint().height(), page->layout()->totalHeightForWidth(widest)));
    }
    adjustSize();
    setFixedSize(size());
}

bool settingDialogEx::event(QEvent* e)
{
    if (e->type() == QEvent::ApplicationPaletteChange) {
        // The colours in the style sheet are resolved when it is set.
        settingTab->setStyleSheet(settingTab->styleSheet());
        setFrameColours(*settingTab);
    }
    return QWidget::event(e);
}

void settingDialogEx::reject()
{
    done(result());
}

// ---------------------------------------------------------------------------------------------------------------------
// The working folder

std::string settingDialogEx::getCurrentJobFolder()
{
    return currentJobFolder();
}

bool settingDialogEx::checkProcessingJob()
{
    return jobFolderHasJobs();
}

bool settingDialogEx::createActualJobFolder(const char* path)
{
    return makeJobFolder(path);
}

int settingDialogEx::changeWorkingFolder()
{
    const JobFolderChange change = changeJobFolder(workingFolder());
    if (!change.folder.empty()) {
        showWorkingFolder(change.folder);
    }
    return change.result;
}

void settingDialogEx::showWorkingFolder(const std::string& folder)
{
    m_shownFolder = folder;
    textWorkingFolder->setText(QString::fromStdString(folder));
}

std::string settingDialogEx::workingFolder() const
{
    const QString text = textWorkingFolder->text();
    return text == QString::fromStdString(m_shownFolder) ? m_shownFolder : text.toStdString();
}

void settingDialogEx::searchFolder()
{
    const QString present = textWorkingFolder->text();
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Select working folder."), present,
                                                             QFileDialog::ShowDirsOnly);
    if (chosen.isEmpty() || chosen == present) {
        return;
    }
    const std::string resolved = realPathOf(chosen.toStdString().c_str());
    showWorkingFolder(resolved.empty() ? chosen.toStdString() : resolved);
    setChanged();
}

void settingDialogEx::onWokingFolderEdited(const QString& /*text*/)
{
    setChanged();
}

// ---------------------------------------------------------------------------------------------------------------------
// Reading and saving the settings

DWORD settingDialogEx::readSetting(const char* name, DWORD preset)
{
    DWORD value = preset;
    m_cRegUtil.GetRegDWORDData(HKEY_LOCAL_MACHINE, REG_PUB_KEY_ROOT, name, &value);
    return value;
}

bool settingDialogEx::writeSetting(const char* name, DWORD value)
{
    return m_cRegUtil.SetRegDWORDData(HKEY_LOCAL_MACHINE, REG_PUB_KEY_ROOT, name, value);
}

bool settingDialogEx::changeNotification()
{
    return writeSetting(REG_PUB_OPTION_VAL_NOTIFY_STYLE, checkNotification->isChecked()
                                                             ? PUBMGR_NOTIFYSTYLE_BUZZER
                                                             : PUBMGR_NOTIFYSTYLE_OFF) &&
           writeSetting(REG_PUB_OPTION_VAL_NOTIFY_JOBEND, singlejobendradioButton->isChecked()
                                                              ? PUBMGR_ENDJOBNOTIFY_EVERYJOB
                                                              : PUBMGR_ENDJOBNOTIFY_ALLJOB) &&
           writeSetting(REG_PUB_OPTION_COMPATIMODE, checkCompatMode->isChecked() ? 1 : 0);
}

bool settingDialogEx::changeSetting()
{
    if (!m_isChanged) {
        return true;
    }
    switch (changeWorkingFolder()) {
    case changeWorkingFolder_ProcessingJob:
        QMessageBox::warning(this, tr("ARVEN Ulmar Disc Setup"),
                             tr("The working folder could not be changed because there is a job being "
                                "processed on this computer.\nPlease change the working folder after all "
                                "jobs are finished."));
        return false;
    case changeWorkingFolder_BadPath:
        QMessageBox::warning(this, tr("ARVEN Ulmar Disc Setup"),
                             tr("The specified folder cannot be set as the working folder.\nSpecify a "
                                "different folder."));
        return false;
    default:
        break;
    }
    if (!changeNotification()) {
        QMessageBox::warning(nullptr, tr("ARVEN Ulmar Disc Setup"), tr("Failed to change setting."));
        return false;
    }
    return true;
}

void settingDialogEx::saveAndExit()
{
    if (changeSetting()) {
        accept();
    }
}

void settingDialogEx::saveAndContinue()
{
    if (changeSetting()) {
        m_isChanged = false;
        applyButton->setEnabled(false);
        setResult(QDialog::Accepted); // applied settings count, however the dialog is closed
    }
}

void settingDialogEx::setChanged()
{
    m_isChanged = true;
    applyButton->setEnabled(true);
}

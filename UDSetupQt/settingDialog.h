// What all publishers of this computer have in common: working folder, notification, compatibility approval.
#pragma once

#include "RegUtility.h"

#include "ui_settingDialog.h"

#include <QDialog>

#include <string>

/// Its result is 1 when something was applied, also when it is closed with Cancel afterwards.
class settingDialogEx : public QDialog, public Ui::settingDialog
{
    Q_OBJECT

public:
    /// Shows what is in force. Repairs the path of the job folder when it is broken.
    explicit settingDialogEx(QDialog* parent);

    // The working folder: see JobFolder.h.
    std::string getCurrentJobFolder();
    bool checkProcessingJob();
    bool createActualJobFolder(const char* path);
    /// Puts the folder of the field into force; a ChangeWorkingFolderResult.
    int changeWorkingFolder();

    /// Writes notification and approval to the registry. False when it cannot be written.
    bool changeNotification();
    /// Puts into force what was changed. False, and the person has been told, when that failed.
    bool changeSetting();

protected:
    bool event(QEvent* e) override;

public slots:
    void saveAndExit();
    void saveAndContinue();
    void searchFolder();
    void onWokingFolderEdited(const QString& text);
    void setChanged();
    /// Cancel, Escape and the window's own button: the result stays as Apply left it.
    void reject() override;

private:
    void connectAll();
    void describeApproval();
    void fixSize();
    DWORD readSetting(const char* name, DWORD preset);
    bool writeSetting(const char* name, DWORD value);
    void showWorkingFolder(const std::string& folder);
    std::string workingFolder() const;

    bool m_isChanged = false; // since the dialog was opened or its settings were applied
    CRegUtility m_cRegUtil;
    std::string m_shownFolder; // the bytes behind the field's text, which need not be UTF-8
};

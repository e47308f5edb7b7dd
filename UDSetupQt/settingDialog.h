// The settings shared by all publishers of this computer: working folder, notification, compatibility
// approval.
#pragma once

#include "RegUtility.h"

#include "ui_settingDialog.h"

#include <QDialog>

#include <string>

/// The result is 1 if settings were applied, even if the dialog is then closed with Cancel.
class settingDialogEx : public QDialog, public Ui::settingDialog
{
    Q_OBJECT

public:
    /// Shows the current settings. Repairs the path of the job folder if it is broken.
    explicit settingDialogEx(QDialog* parent);

    // The working folder: see JobFolder.h.
    std::string getCurrentJobFolder();
    bool checkProcessingJob();
    bool createActualJobFolder(const char* path);
    /// Changes the working folder to the one in the field. Returns a ChangeWorkingFolderResult.
    int changeWorkingFolder();

    /// Writes notification and approval to the registry. Returns false if that fails.
    bool changeNotification();
    /// Applies the changes. On failure it shows a message and returns false.
    bool changeSetting();

protected:
    bool event(QEvent* e) override;

public slots:
    void saveAndExit();
    void saveAndContinue();
    void searchFolder();
    void onWokingFolderEdited(const QString& text);
    void setChanged();
    /// Handles Cancel, Escape and the close button of the window. Keeps the result that Apply set.
    void reject() override;

private:
    void connectAll();
    void describeApproval();
    void fixSize();
    DWORD readSetting(const char* name, DWORD preset);
    bool writeSetting(const char* name, DWORD value);
    void showWorkingFolder(const std::string& folder);
    std::string workingFolder() const;

    bool m_isChanged = false; // since the dialog was opened or settings were applied
    CRegUtility m_cRegUtil;
    std::string m_shownFolder; // the bytes of the field's text, which need not be UTF-8
};

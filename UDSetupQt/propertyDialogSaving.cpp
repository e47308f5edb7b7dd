// Saves a changed name, then the settings: the publish mode in the device, the setting file, and a change
// notice to the service. Only the name of a network publisher is saved. A failure undoes no earlier step.
#include "ComboValues.h"
#include "OneLine.h"
#include "StoredSettings.h"
#include "UnfinishedJobs.h"
#include "WaitCursor.h"
#include "propertyDialog.h"

#include <QMessageBox>

#include <algorithm>

void propertyDialogEx::setChanged()
{
    m_isChanged = true;
    applyButton->setEnabled(true);
}

void propertyDialogEx::saveAndExit()
{
    if (savePublisherInfo()) {
        accept();
    }
}

void propertyDialogEx::saveAndContinue()
{
    if (savePublisherInfo()) {
        m_isChanged = false;
        applyButton->setEnabled(false);
        setResult(1);
    }
}

bool propertyDialogEx::savePublisherInfo()
{
    if (!m_isChanged) {
        return true;
    }
    const Refusal refusal = save();
    if (refusal.why.isEmpty()) {
        return true;
    }
    tell(refusal);
    return false;
}

void propertyDialogEx::tell(const Refusal& refusal)
{
    if (!refusal.ofName) {
        QMessageBox::warning(this, tr("ARVEN Ulmar Disc Setup"), refusal.why);
        return;
    }
    QMessageBox::information(this, tr("ARVEN Ulmar Disc Setup"), refusal.why);
    propertyTab->setCurrentWidget(pageGeneral);
    textPublisherName->setFocus();
    textPublisherName->selectAll();
}

propertyDialogEx::Refusal propertyDialogEx::save()
{
    const WaitCursor cursor;
    if (hasUnfinishedJobs(m_cPubMgr, m_info.strPublisherRegistID.c_str())) {
        return busy();
    }
    Refusal refusal = saveName();
    if (!refusal.why.isEmpty() || m_info.uiPublisherType == PUBMGR_CONNECTTYPE_NETWORK) {
        return refusal;
    }
    return saveSettings();
}

/// Compares the names as they are displayed. A stored name that is not valid UTF-8 is kept unless the user
/// edits it.
propertyDialogEx::Refusal propertyDialogEx::saveName()
{
    const QString shown = oneLine(textPublisherName->text());
    if (shown == oneLine(QString::fromStdString(m_info.strPublisherName))) {
        return {};
    }
    if (shown.isEmpty()) {
        return {tr("Please type a name for the output device."), true};
    }
    if (shown.contains(QLatin1Char('\\'))) {
        return {tr("\"\\\" cannot be used in the output device name."), true};
    }
    const CString name = shown.toStdString();
    if (isNameTaken(name)) {
        return {tr("The same name is already registered.\nPlease use a different name."), true};
    }
    m_info.strPublisherName = name;
    return storeAndNotify();
}

bool propertyDialogEx::isNameTaken(const CString& name)
{
    CStringArray ids;
    m_cPubMgr.EnumRegistedPublisher(&ids);
    return std::any_of(ids.begin(), ids.end(), [this, &name](const CString& id) {
        PUBLISHERINFO info;
        return m_cPubMgr.GetPublisherInfo(id.c_str(), &info, 0) && info.strPublisherName == name;
    });
}

propertyDialogEx::Refusal propertyDialogEx::saveSettings()
{
    SettingChoices choices;
    choices.publishMode = selectedValue(selectPublishMode);
    choices.stacker1 = selectedValue(selectStacker1);
    choices.stacker2 = selectedValue(selectStacker2);
    choices.stacker3 = selectedValue(selectStacker3);
    choices.useDrive = static_cast<UINT>(selectUseDrive->currentIndex()); // no item: PUBMGR_USEDRIVE_ERROR
    choices.retryCount = static_cast<UINT>(spinRetryCount->value());
    choices.errorMark = checkErrorMark->isChecked();
    storeChoices(choices, modelFamily(m_modelType), m_info);

    long result = 0;
    if (!m_cPubMgr.SetServicePublishMode(m_info.strPublisherRegistID.c_str(), m_info.uiPublishMode,
                                         &result)) {
        return {tr("The settings could not be changed because registration of the Publish Mode in the "
                   "output device settings failed.\nPlease change the settings after checking the power "
                   "supply of the output device and the connection.")};
    }
    return storeAndNotify();
}

propertyDialogEx::Refusal propertyDialogEx::storeAndNotify()
{
    if (!m_cPubMgr.UpdatePublisherInfo(m_info)) {
        return {tr("Failed to change setting.")};
    }
    const bool notified = m_cPubMgr.SetServiceNotifyChange(m_info.strPublisherRegistID.c_str(), nullptr);
    return notified ? Refusal() : busy();
}

propertyDialogEx::Refusal propertyDialogEx::busy()
{
    return {tr("This output device is processing jobs and the settings could not be changed.\nPlease "
               "change it after all jobs are completed.")};
}

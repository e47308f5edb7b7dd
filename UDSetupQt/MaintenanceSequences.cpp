#include "MaintenanceSequences.h"

#include "FerroJob.h"
#include "FixToContents.h"
#include "SharpPictures.h"
#include "WaitCursor.h"

#include "ui_printerMaintHeadCleaning1.h"
#include "ui_printerMaintHeadCleaning2.h"
#include "ui_printerMaintNozzleCheck1.h"
#include "ui_printerMaintNozzleCheck2.h"

#include <QCoreApplication>
#include <QDialog>

namespace {

/// Shows one of the forms and waits until it is closed. Returns true if it was accepted.
template <class Form>
bool isAccepted()
{
    QDialog dialog;
    Form form;
    form.setupUi(&dialog);
    showSharpPictures(dialog);
    dialog.setModal(true);
    fixToContents(dialog);
    dialog.show();
    return dialog.exec() == QDialog::Accepted;
}

void submitNozzleCheck(const PUBLISHERINFO& info)
{
    const WaitCursor cursor;
    CFerroJob().SubmitNozzleCheckJob(
        info, QCoreApplication::translate("propertyDialogEx", "Nozzle Check").toUtf8().constData());
}

void submitHeadCleaning(const PUBLISHERINFO& info)
{
    const WaitCursor cursor;
    CFerroJob().SubmitHeadCleaningJob(
        info, QCoreApplication::translate("propertyDialogEx", "Cleaning").toUtf8().constData());
}

/// Returns true if the user continues with a head cleaning.
bool checkNozzles(const PUBLISHERINFO& info)
{
    if (!isAccepted<Ui::printerMaintNozzleCheck1>()) {
        return false;
    }
    submitNozzleCheck(info);
    return !isAccepted<Ui::printerMaintNozzleCheck2>();
}

/// Returns true if the user continues with a nozzle check.
bool cleanHead(const PUBLISHERINFO& info)
{
    if (!isAccepted<Ui::printerMaintHeadCleaning1>()) {
        return false;
    }
    submitHeadCleaning(info);
    return !isAccepted<Ui::printerMaintHeadCleaning2>();
}

} // namespace

void runNozzleCheckSequence(const PUBLISHERINFO& info)
{
    while (checkNozzles(info) && cleanHead(info)) {
    }
}

void runHeadCleaningSequence(const PUBLISHERINFO& info)
{
    while (cleanHead(info) && checkNozzles(info)) {
    }
}

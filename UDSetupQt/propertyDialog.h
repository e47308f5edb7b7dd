// One publisher: its settings, printer maintenance, wear figures and versions.
#pragma once

#include "PublisherMgr.h"
#include "StackerRules.h"

#include "ui_propertyDialog.h"

#include <QDialog>
#include <QGraphicsScene>

/// Each instance is filled with fillContent() and shown once. exec() returns 1 if the dialog was closed with
/// OK. User-interface thread only. Filling and saving block until the service or the device replies.
class propertyDialogEx : public QDialog, public Ui::propertyDialog
{
    Q_OBJECT

public:
    /// The changed control; the argument of changeStacker().
    enum
    {
        STACKER_1_2 = 0,
        STACKER_3 = 1,
        PUB_MODE = 2
    };

    explicit propertyDialogEx(QDialog* parent);
    ~propertyDialogEx() override = default;

    /// Call once, before show(). Queries wear and versions from the service or the device unless
    /// `bConnection` is 0. Aborts the process if the model is neither of the RT-300 or RT-30 family nor a
    /// network publisher.
    void fillContent(const PUBLISHERINFO& info, BOOL bConnection);
    /// Shows the wear figures, or hides them if `bMaint` is false.
    void updateMaintenance(bool bMaint, const PUBLISHERMAINTENANCEINFO& infoMaint);
    /// Shows the serial number, which is part of `infoMaint`, and the versions. Hides what is unknown.
    void updateVersion(bool bMaint, const PUBLISHERMAINTENANCEINFO& infoMaint, bool bVersion,
                       const PUBLISHERVERSIONINFO& infoVersion);
    /// Adds the picture of the resource `path` on top of the earlier ones; null removes all of them.
    void setStackerSequenceImage(const char* path);

    /// The wear of a drive's most worn part in percent. `*pdProductLife` is always written. Returns false if
    /// the wear of no part is known.
    static bool CalcDriveLifeValue(PUBMAINTINFODRIVE miDrive, double* pdProductLife);
    /// The used share of a limit in percent, rounded down to two decimals, at most 100. Returns false and
    /// writes nothing if the count or the limit is unknown or the limit is 0.
    static bool CalcProductLife(UINT uiPresentValue, UINT uiUpperLimit, double* pdProductLife);

    bool event(QEvent* e) override;

public slots: // NOLINT(readability-redundant-access-specifiers): names the slots
    /// Returns true if everything was saved or nothing had changed. Otherwise a message box has shown the
    /// reason.
    bool savePublisherInfo();
    void saveAndExit();
    void saveAndContinue();
    void setChanged();
    void changeStackerPub();
    /// Adjusts the stackers and the picture to the publish mode. Can re-enter itself.
    void changeStacker(int combNum = STACKER_1_2);
    void changeStacker3();
    void nozzleCheckSequence();
    void headCleaningSequence();

private:
    void setUpItemValues();
    void connectAll();
    void noteListedName();
    void settleSize();
    void adaptToModel();
    void fillIdentity();
    void fillSettings();
    void fillDeviceFigures(BOOL bConnection);
    void showAsTexts();
    void hideTexts();

    void arrangeStacker2(Stacker2Rule rule, bool modeChanged);
    void showSequence();

    /// The reason why something was not saved. `why` is translated; it is empty on success.
    struct Refusal
    {
        QString why;
        bool ofName = false; ///< the name is invalid or already in use
    };
    Refusal save();
    Refusal saveName();
    bool isNameTaken(const CString& name);
    Refusal saveSettings();
    Refusal storeAndNotify();
    static Refusal busy();
    void tell(const Refusal& refusal);

    PUBLISHERINFO m_info;
    bool m_isChanged = false;
    int m_modelType = PUBMGR_PUBLISHERTYPE_300III_BD;
    CPublisherMgr m_cPubMgr;
    QGraphicsScene scene;
};

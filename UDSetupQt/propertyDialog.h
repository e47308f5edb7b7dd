// One publisher: its settings, printer maintenance, wear figures and versions.
#pragma once

#include "PublisherMgr.h"
#include "StackerRules.h"

#include "ui_propertyDialog.h"

#include <QDialog>
#include <QGraphicsScene>

/// Lives on the stack of its caller for one showing: fillContent(), then exec(), which gives 1 when the
/// dialog was left by OK. User-interface thread only; filling and saving block while the service or the
/// device answers.
class propertyDialogEx : public QDialog, public Ui::propertyDialog
{
    Q_OBJECT

public:
    /// What was changed, as told to changeStacker().
    enum
    {
        STACKER_1_2 = 0,
        STACKER_3 = 1,
        PUB_MODE = 2
    };

    explicit propertyDialogEx(QDialog* parent);
    ~propertyDialogEx() override = default;

    /// To be called once, before show(). Asks the service or the device for wear and versions unless
    /// `bConnection` is 0. A model that is none of the RT-300 family, the RT-30 family and the network
    /// publishers stops the process.
    void fillContent(const PUBLISHERINFO& info, BOOL bConnection);
    /// Shows the wear figures, or hides them when `bMaint` is false.
    void updateMaintenance(bool bMaint, const PUBLISHERMAINTENANCEINFO& infoMaint);
    /// Shows the serial number, which comes with the wear figures, and the versions; hides what is not known.
    void updateVersion(bool bMaint, const PUBLISHERMAINTENANCEINFO& infoMaint, bool bVersion,
                       const PUBLISHERVERSIONINFO& infoVersion);
    /// Lays the picture of the resource `path` over the earlier ones; null takes all of them away.
    void setStackerSequenceImage(const char* path);

    /// The wear of a drive's most worn part in percent. `*pdProductLife` is written in any case; false when
    /// nothing is known of the drive.
    static bool CalcDriveLifeValue(PUBMAINTINFODRIVE miDrive, double* pdProductLife);
    /// The used share of a limit in percent, cut to two decimals, at most 100. False, with nothing written,
    /// when the share is not known.
    static bool CalcProductLife(UINT uiPresentValue, UINT uiUpperLimit, double* pdProductLife);

    bool event(QEvent* e) override;

public slots: // NOLINT(readability-redundant-access-specifiers): names the slots
    /// True when the dialog may go on as saved; otherwise a box has told why not.
    bool savePublisherInfo();
    void saveAndExit();
    void saveAndContinue();
    void setChanged();
    void changeStackerPub();
    /// Brings the stackers and the picture in line with the publish mode. Can re-enter itself.
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
    void selectStoredStackers();
    void selectStoredPublishMode();
    void fillDeviceFigures(BOOL bConnection);
    void showAsTexts();
    void hideTexts();

    void arrangeStacker2(Stacker2Rule rule, bool modeChanged);
    void showSequence();

    /// Why something was not saved; without a text it was.
    struct Refusal
    {
        QString why;
        bool ofName = false;
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

#include "propertyDialog.h"

#include "ComboValues.h"
#include "CorrectedSettings.h"
#include "FrameColours.h"
#include "MaintenanceSequences.h"
#include "PropertyRows.h"
#include "PubMgrConst.h"
#include "RowTexts.h"
#include "TitleRoom.h"
#include "WaitCursor.h"
#include "WearFigures.h"

#include <QFile>
#include <QGraphicsPixmapItem>

#include <algorithm>
#include <initializer_list>

namespace {

void setValues(QComboBox* box, std::initializer_list<UINT> values)
{
    int index = 0;
    for (const UINT value : values) {
        box->setItemData(index++, value);
    }
}

void hideAll(std::initializer_list<QWidget*> widgets)
{
    for (QWidget* widget : widgets) {
        widget->hide();
    }
}

/// Until it is first shown, a box keeps the size hint that it computed before its items changed. Setting the
/// policy discards that hint. With AdjustToContents alone, Qt also resizes the box without its layout.
void forgetSizeHint(QComboBox* box)
{
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContentsOnFirstShow);
}

QString nameAndVersion(const CString& name, const CString& version)
{
    return QString::fromStdString(name + " " + version);
}

} // namespace

propertyDialogEx::propertyDialogEx(QDialog* parent) : QDialog(parent), m_cPubMgr(true)
{
    setupUi(this);
    giveTitlesRoom(*this);
    setFrameColours(*propertyTab);
    m_info.Clear();
    setUpItemValues();
    connectAll();
    viewStackerSequence->viewport()->setAutoFillBackground(false);
    textPublisherName->setFocus();
    settleSize();
}

void propertyDialogEx::setUpItemValues()
{
    setValues(selectPublishMode,
              {PUBMGR_PUBLISHMODE_NORMAL, PUBMGR_PUBLISHMODE_OUTPUT, PUBMGR_PUBLISHMODE_BATCH});
    for (QComboBox* box : {selectStacker1, selectStacker2}) {
        // The last value is the output stacker, which selectStacker1 does not have.
        setValues(box,
                  {PUBMGR_STACKERDISCTYPE_CDR, PUBMGR_STACKERDISCTYPE_DVDR, PUBMGR_STACKERDISCTYPE_DVDRDL,
                   PUBMGR_STACKERDISCTYPE_BDR, PUBMGR_STACKERDISCTYPE_BDRDL, PUBMGR_STACKERDISCTYPE_BDRTL,
                   PUBMGR_STACKERDISCTYPE_BDRQL, PUBMGR_STACKERDISCTYPE_OUTPUT});
    }
    setValues(selectStacker3, {PUBMGR_STACKERDISCTYPE_OUTPUT, PUBMGR_STACKERDISCTYPE_NOTUSE});
    spinRetryCount->setMaximum(maxRetryCount);
}

void propertyDialogEx::connectAll()
{
    constexpr auto indexChanged = qOverload<int>(&QComboBox::currentIndexChanged);
    connect(okButton, &QPushButton::clicked, this, &propertyDialogEx::saveAndExit);
    connect(applyButton, &QPushButton::clicked, this, &propertyDialogEx::saveAndContinue);
    connect(cancelButton, &QPushButton::clicked, this, &propertyDialogEx::close);
    connect(textPublisherName, &QLineEdit::textChanged, this, &propertyDialogEx::setChanged);
    connect(textPublisherName, &QLineEdit::textChanged, this, &propertyDialogEx::noteListedName);
    connect(selectPublishMode, indexChanged, this, &propertyDialogEx::changeStackerPub);
    // changeStacker() takes the changed control, not the index.
    connect(selectStacker1, indexChanged, this, [this] { changeStacker(); });
    connect(selectStacker2, indexChanged, this, &propertyDialogEx::setChanged);
    connect(selectStacker3, indexChanged, this, &propertyDialogEx::changeStacker3);
    connect(selectUseDrive, indexChanged, this, &propertyDialogEx::setChanged);
    connect(spinRetryCount, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &propertyDialogEx::setChanged);
    connect(checkErrorMark, &QCheckBox::clicked, this, &propertyDialogEx::setChanged);
    connect(btnNozzleCheck, &QPushButton::clicked, this, &propertyDialogEx::nozzleCheckSequence);
    connect(btnHeadCleaning, &QPushButton::clicked, this, &propertyDialogEx::headCleaningSequence);
}

void propertyDialogEx::noteListedName()
{
    if (labelListedName->showFor(*textPublisherName, EmptyName::isRefused)) {
        settleSize();
    }
}

/// Gives the labels of all groups the same width, so that the controls are aligned in one column. A page
/// posts its new size to the tab widget as an event, which arrives after the dialog is first shown. The
/// layouts are therefore activated here.
void propertyDialogEx::settleSize()
{
    int widest = 0;
    for (const QLabel* label : {labelPublishMode, labelStacker1, labelStacker2, labelStacker3, labelUseDrive,
                                labelRetry, labelErrorMark}) {
        widest = label->isHidden() ? widest : std::max(widest, label->sizeHint().width());
    }
    for (QGridLayout* grid : {gridStacker, gridDrive, gridPrinter}) {
        grid->setColumnMinimumWidth(0, widest);
    }
    const int indent = groupDrive->contentsMargins().left() + gridDrive->contentsMargins().left();
    gridName->setColumnMinimumWidth(0, indent + widest);

    for (QComboBox* box : propertyTab->findChildren<QComboBox*>()) {
        forgetSizeHint(box);
    }
    const QList<QWidget*> outermostFirst = propertyTab->findChildren<QWidget*>();
    std::for_each(outermostFirst.rbegin(), outermostFirst.rend(), [](const QWidget* widget) {
        if (widget->layout()) {
            widget->layout()->activate();
        }
    });
    propertyTab->updateGeometry();
    adjustSize();
}

void propertyDialogEx::fillContent(const PUBLISHERINFO& info, BOOL bConnection)
{
    const WaitCursor cursor;
    m_info = info;
    propertyTab->setCurrentIndex(0);
    const UINT modelType = m_cPubMgr.GetPublisherDevType(m_info.strPublisherRegistID.c_str());
    m_modelType = static_cast<int>(modelSetUpAs(modelType));
    adaptToModel();
    fillIdentity();
    fillSettings();
    fillDeviceFigures(bConnection);

    m_isChanged = false;
    applyButton->setEnabled(false);
    if (m_info.uiPublisherType == PUBMGR_CONNECTTYPE_NETWORK) {
        showAsTexts();
    } else {
        hideTexts();
    }
    settleSize();
}

void propertyDialogEx::adaptToModel()
{
    const PropertyRows rows = propertyRows(modelFamily(m_modelType));
    if (!rows.serverVersions) {
        hideAll({labelSSSVersionLabel, labelSSSVersionValue, labelUDNAVersionLabel, labelUDNAVersionValue});
    }
    if (!rows.discAndBoxFigures) {
        hideAll({labelCompleteDiscNumName, labelCompleteDiscNum, labelCompleteDiscNumUnit,
                 labelMainteBoxLifeName, labelMainteBoxLife, labelMainteBoxLifeUnit});
    }
    if (!rows.stacker3) {
        hideAll({labelStacker3, selectStacker3});
    }
    if (!rows.secondDrive) {
        hideAll({labelUseDrive, selectUseDrive, textUseDrive, labelDrive2LifeName, labelDrive2Life,
                 labelDrive2LifeUnit, labelDrive2VersionLabel, labelDrive2VersionValue});
        labelDrive1LifeName->setText(tr("Service life of Drive:"));
        labelDrive1VersionLabel->setText(tr("Drive:"));
    }
    if (!rows.batchMode) {
        removeValue(selectPublishMode, PUBMGR_PUBLISHMODE_BATCH);
    }
    if (!writesBdXl(m_modelType, m_info.uiNetPublisherType)) {
        for (QComboBox* box : {selectStacker1, selectStacker2}) {
            removeValue(box, PUBMGR_STACKERDISCTYPE_BDRTL);
            removeValue(box, PUBMGR_STACKERDISCTYPE_BDRQL);
        }
    }
}

void propertyDialogEx::fillIdentity()
{
    const QString name = QString::fromStdString(m_info.strPublisherName);
    setWindowTitle(tr("Properties - ") + name + QLatin1Char('(') +
                   modelText(m_modelType, m_info.uiNetPublisherType) + QLatin1Char(')'));
    textPublisherName->setMaxLength(
        std::max(textPublisherName->maxLength(), static_cast<int>(name.size()))); // never cuts a stored name
    textPublisherName->setText(name);
}

/// The slots are connected, so each selection applies the same rules as a choice of the user. Stackers 1
/// and 3 are selected before the mode, because its rules depend on them, and again after it, with the values
/// that the mode determines.
void propertyDialogEx::fillSettings()
{
    const ModelFamily family = modelFamily(m_modelType);
    correctSettings(family, m_info);
    selectValue(selectStacker1, m_info.uiStacker1DiscType);
    selectValue(selectStacker3, m_info.uiStacker3DiscType);
    selectValue(selectPublishMode, m_info.uiPublishMode);

    const ShownStackers shown = settleStackers(family, m_info);
    selectValue(selectStacker1, shown.stacker1);
    selectValue(selectStacker2, shown.stacker2);
    selectValue(selectStacker3, shown.stacker3);
    selectStacker2->setEnabled(shown.stacker2Enabled);
    selectStacker3->setEnabled(shown.stacker3Enabled.value_or(selectStacker3->isEnabled()));
    showSequence();

    selectUseDrive->setCurrentIndex(static_cast<int>(correctedUseDrive(m_info.uiUseDrive)));
    spinRetryCount->setValue(correctedRetryCount(m_info.uiRetryCount));
    textRetryCount->setText(spinRetryCount->text());
    checkErrorMark->setChecked(m_info.bAddErrorMark);
    textErrorMark->setText(m_info.bAddErrorMark ? tr("Print") : tr("Do not print"));
}

void propertyDialogEx::setStackerSequenceImage(const char* path)
{
    if (path == nullptr) {
        scene.clear();
        viewStackerSequence->setScene(&scene);
        return;
    }
    const QString plain = QString::fromLatin1(path);
    const QString twice = QString(plain).replace(QLatin1String(".png"), QLatin1String("@2x.png"));
    const bool sharp = devicePixelRatioF() > 1 && QFile::exists(twice);
    QImage image(sharp ? twice : plain);
    image.setDevicePixelRatio(sharp ? 2 : 1);
    scene.addItem(new QGraphicsPixmapItem(QPixmap::fromImage(image)));
    viewStackerSequence->setScene(&scene);
    viewStackerSequence->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewStackerSequence->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void propertyDialogEx::fillDeviceFigures(BOOL bConnection)
{
    const char* id = m_info.strPublisherRegistID.c_str();
    PUBLISHERMAINTENANCEINFO infoMaint;
    PUBLISHERVERSIONINFO infoVersion;
    const bool bMaint = bConnection && m_cPubMgr.GetPublisherMaintenanceInfo(id, &infoMaint, nullptr);
    const bool bVersion = bConnection && m_cPubMgr.GetPublisherVersionInfo(id, &infoVersion, nullptr);
    updateMaintenance(bMaint, infoMaint);
    updateVersion(bMaint, infoMaint, bVersion, infoVersion);
}

void propertyDialogEx::updateMaintenance(bool bMaint, const PUBLISHERMAINTENANCEINFO& infoMaint)
{
    if (!bMaint) {
        hideAll({labelCompleteDiscNum, labelCompleteDiscNumUnit, labelPrintCount, labelPrintCountUnit,
                 labelMainteBoxLife, labelMainteBoxLifeUnit, labelDrive1Life, labelDrive1LifeUnit,
                 labelDrive2Life, labelDrive2LifeUnit});
        return;
    }
    labelCompleteDiscNum->setText(countText(infoMaint.uiCompleteDiscNum));
    labelPrintCount->setText(countText(infoMaint.uiPrintCount));
    labelMainteBoxLife->setText(mainteBoxText(infoMaint.uiMainteBoxCount, infoMaint.uiMainteBoxLife));
    labelDrive1Life->setText(driveLifeText(infoMaint.midrvDrive1));
    labelDrive2Life->setText(driveLifeText(infoMaint.midrvDrive2));
}

void propertyDialogEx::updateVersion(bool bMaint, const PUBLISHERMAINTENANCEINFO& infoMaint, bool bVersion,
                                     const PUBLISHERVERSIONINFO& infoVersion)
{
    if (bMaint) {
        labelSerialNo->setText(QString::fromStdString(infoMaint.strSerialNo));
    } else {
        labelSerialNo->hide();
    }
    if (!bVersion) {
        hideAll({labelAutoLoaderVersionValue, labelPrinterVersionValue, labelDrive1VersionValue,
                 labelDrive2VersionValue, labelSSSVersionValue, labelUDNAVersionValue});
        return;
    }
    labelAutoLoaderVersionValue->setText(QString::fromStdString(infoVersion.strAutoLoaderVersion));
    labelPrinterVersionValue->setText(
        nameAndVersion(infoVersion.strPrinterModelName, infoVersion.strPrinterVersion));
    labelDrive1VersionValue->setText(
        nameAndVersion(infoVersion.strDrive1ModelName, infoVersion.strDrive1Version));
    labelSSSVersionValue->setText(QString::fromStdString(infoVersion.strSSSVersion));
    labelUDNAVersionValue->setText(QString::fromStdString(infoVersion.strUDNAVersion));
    if (showsDrive2Version(m_modelType)) {
        labelDrive2VersionValue->setText(
            nameAndVersion(infoVersion.strDrive2ModelName, infoVersion.strDrive2Version));
    }
}

/// A network publisher is configured at its server. Only its name can be edited here.
void propertyDialogEx::showAsTexts()
{
    cancelButton->setEnabled(false);
    textHostName->setText(QString::fromStdString(m_info.strHostName));
    textPublishMode->setText(selectPublishMode->currentText());
    textStacker1->setText(selectStacker1->currentText());
    textStacker2->setText(selectStacker2->currentText());
    textStacker3->setText(selectStacker3->currentText());
    textUseDrive->setText(selectUseDrive->currentText());
    hideAll({selectPublishMode, selectStacker1, selectStacker2, selectStacker3, selectUseDrive,
             spinRetryCount, checkErrorMark});
}

void propertyDialogEx::hideTexts()
{
    hideAll({labelHostName, textHostName, textPublishMode, textStacker1, textStacker2, textStacker3,
             textUseDrive, textRetryCount, labelErrorMark, textErrorMark});
}

void propertyDialogEx::nozzleCheckSequence()
{
    runNozzleCheckSequence(m_info);
}

void propertyDialogEx::headCleaningSequence()
{
    runHeadCleaningSequence(m_info);
}

bool propertyDialogEx::event(QEvent* e)
{
    if (e->type() == QEvent::ApplicationPaletteChange) {
        propertyTab->setStyleSheet(propertyTab->styleSheet()); // re-evaluates palette(base)
        setFrameColours(*propertyTab);
    }
    return QWidget::event(e);
}

bool propertyDialogEx::CalcDriveLifeValue(PUBMAINTINFODRIVE miDrive, double* pdProductLife)
{
    return calcDriveLifeValue(miDrive, pdProductLife);
}

bool propertyDialogEx::CalcProductLife(UINT uiPresentValue, UINT uiUpperLimit, double* pdProductLife)
{
    return calcProductLife(uiPresentValue, uiUpperLimit, pdProductLife);
}

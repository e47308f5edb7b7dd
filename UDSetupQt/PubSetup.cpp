#include "PubSetup.h"

#include "BusyIndicator.h"
#include "EmptyListNote.h"
#include "LogCollection.h"
#include "MyTreeWidgetItem.h"
#include "PubMgrConst.h"
#include "PublisherCtrlConst.h"
#include "ReadPass.h"
#include "RegistIDKey.h"
#include "RowTexts.h"
#include "SelectionRules.h"
#include "SharpPictures.h"
#include "UnfinishedJobs.h"
#include "WaitCursor.h"
#include "WholeText.h"
#include "addPublisherDialog.h"
#include "propertyDialog.h"
#include "settingDialog.h"

#include "ui_aboutDialog.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QHash>
#include <QMessageBox>
#include <QScreen>
#include <QSet>
#include <QStyle>
#include <QThread>

#include <atomic>
#include <system_error>
#include <thread>

#include <unistd.h>

namespace {

constexpr QSize startSize(800, 300);
constexpr int pollInterval = 5000;         // milliseconds, as are the three below
constexpr int localPollPatience = 10000;   // maximum wait for the local query on closing
constexpr int networkPollPatience = 60000; // the same for the query of each network publisher
constexpr unsigned long busyStep = 100;    // time between two steps of the busy indicator
constexpr Qt::Alignment numberAlignment = Qt::AlignRight | Qt::AlignVCenter;

QString keyOf(const QTreeWidgetItem* row)
{
    return row->data(0, Qt::UserRole).toString();
}

/// An icon with both sizes from the resource tree, so that nothing is scaled. A selected row shows it
/// unchanged: tinted with the selection colour it would be unrecognisable.
QIcon image(const char* name, const char* otherSize)
{
    QIcon icon;
    for (const QString& suffix : {QString(), QLatin1Char('-') + QLatin1String(otherSize)}) {
        const QString file = QStringLiteral(":/res/%1%2.png").arg(QLatin1String(name), suffix);
        icon.addFile(file, QSize(), QIcon::Normal);
        icon.addFile(file, QSize(), QIcon::Selected);
    }
    return icon;
}

} // namespace

CPublisherMgr PubSetup::m_cPubMgr(true);

PubSetup::PubSetup(QWidget* parent) : QMainWindow(parent)
{
    setupUi(this);
    setUpImages();
    setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size().expandedTo(startSize),
                                    QGuiApplication::primaryScreen()->availableGeometry()));
    m_timer = std::make_unique<QTimer>(this);
    m_timer->setInterval(pollInterval);
    m_statusPoll = std::make_shared<StatusPoll>(m_cPubMgr, m_bSupportNetworkModel,
                                                [this](const StatusRow& row) { sendStatus(row); });

    treePublisherList->addAction(deletePublisher);
    treePublisherList->addAction(showPublisherProperty);
    treePublisherList->setContextMenuPolicy(Qt::ActionsContextMenu);
    if (getuid() != 0) {
        addPublisher->setEnabled(false);
        showSetting->setEnabled(false);
        collectAndSaveLogs->setEnabled(false);
    }
    showPublisherProperty->setEnabled(false);
    deletePublisher->setEnabled(false);

    setUpColumns();
    setUpEmptyList();
    connectAll();
    fetchStatusAsync();
    m_timer->start();
    updateList();
}

PubSetup::~PubSetup()
{
    m_timer->stop();
    m_statusPoll->close();
    m_statusPoll->waitForQueries(localPollPatience, networkPollPatience);
}

void PubSetup::setUpImages()
{
    setWindowIcon(image("UDSetup", "22"));
    addPublisher->setIcon(image("A1-1", "48"));
    showPublisherProperty->setIcon(image("A2-1", "48"));
    udmMenu->setIcon(image("A4-1", "48"));
    deletePublisher->setIcon(image("A5-1", "48"));
    m_localImage = image("A6-1", "48");
    m_networkImage = image("A7-1", "48");
}

void PubSetup::setUpColumns()
{
    QHeaderView* header = treePublisherList->header();
    header->setTextElideMode(Qt::ElideRight); // a cut heading keeps its beginning
    if (m_bSupportNetworkModel) {
        treePublisherList->setHeaderLabels({tr("Name"), tr("Model name"), tr("Host Name"), tr("Status"),
                                            tr("Waiting"), tr("Transmitting"), tr("Available Space")});
        header->setDefaultSectionSize(100);
        header->resizeSection(colDevType, 120);
        header->resizeSection(colStatus, 120);
    } else {
        editMenu->removeAction(addPublisher);
        toolBar->removeAction(addPublisher);
        colStatus = 2;
        colJobWaiting = 3;
        colHostName = colJobSending = colHDDAvail = -1;
        treePublisherList->setHeaderLabels({tr("Name"), tr("Model name"), tr("Status"), tr("Waiting")});
        header->setDefaultSectionSize(160);
    }
    for (const int column : {colJobWaiting, colJobSending, colHDDAvail}) {
        treePublisherList->headerItem()->setTextAlignment(column, numberAlignment);
    }
    treePublisherList->setItemDelegate(new WholeTextDelegate(treePublisherList));
    treePublisherList->sortByColumn(colName, Qt::AscendingOrder);
}

/// The list owns the note.
void PubSetup::setUpEmptyList()
{
    new EmptyListNote(addPublisher->isEnabled()
                          ? tr("No publishers are registered. To add one, choose Add in the Edit menu.")
                          : tr("No publishers are registered."),
                      treePublisherList);
}

void PubSetup::connectAll()
{
    connect(treePublisherList, &QTreeWidget::itemSelectionChanged, this, &PubSetup::updateMenu);
    connect(exitProgram, &QAction::triggered, this, &PubSetup::close);
    connect(addPublisher, &QAction::triggered, this, &PubSetup::showAddDialog);
    connect(deletePublisher, &QAction::triggered, this, &PubSetup::showDeleteDialog);
    connect(showPublisherProperty, &QAction::triggered, this, &PubSetup::showPropertyDialog);
    connect(showSetting, &QAction::triggered, this, &PubSetup::showSettingDialog);
    connect(collectAndSaveLogs, &QAction::triggered, this, &PubSetup::doCollectAndSaveLogs);
    connect(showAbout, &QAction::triggered, this, &PubSetup::showAboutDialog);
    connect(treePublisherList, &QTreeWidget::itemDoubleClicked, this, &PubSetup::showPropertyDialog);
    connect(m_timer.get(), &QTimer::timeout, this, &PubSetup::fetchStatusAsync);
    connect(this, &PubSetup::updateListSignal, this, &PubSetup::updateList);
    connect(this, &PubSetup::updateStatusOneDeviceSignal, this, &PubSetup::updateStatusOneDevice);
}

bool PubSetup::getPublisherInfo(const char* id, PUBLISHERINFO& info, BOOL& bConnection, long& lResultCommLib)
{
    return readPublisher(m_cPubMgr, id, info, bConnection, lResultCommLib);
}

void PubSetup::doWithProgress(std::function<void()> f, QWidget* parent)
{
    BusyIndicator progress(parent);
    std::atomic<bool> done = false;
    std::thread t;
    try {
        t = std::thread([&f, &done] {
            f();
            done = true;
        });
    } catch (const std::system_error&) {
        f(); // no thread available: the callers need the work done, so the interface blocks
        return;
    }
    while (!done) {
        progress.setValue(progress.value() + 1); // processes events
        QThread::msleep(busyStep);
    }
    t.join();
    progress.reset();
}

void PubSetup::doWithProgress(std::function<void()> f)
{
    doWithProgress(std::move(f), this);
}

bool PubSetup::readForProperties(CPublisherMgr& publisherMgr, const CString& id, QWidget* parent,
                                 PUBLISHERINFO& info, BOOL& bConnection)
{
    bool bGetPublisherInfo = false;
    bool bGetServicePublishMode = false;
    doWithProgress(
        [&] {
            long lResultCommLib = 0;
            bGetPublisherInfo = getPublisherInfo(id.c_str(), info, bConnection, lResultCommLib);
            ULONG mode = 0;
            bGetServicePublishMode = publisherMgr.GetServicePublishMode(id.c_str(), &mode, nullptr);
        },
        parent);
    if (bGetPublisherInfo && !bGetServicePublishMode) {
        showWariningBeforeProperty(parent);
    }
    // The publisher may have been removed meanwhile. Its model would be unknown, which stops the program.
    return bGetPublisherInfo && publisherMgr.IsExistSettingFile(id.c_str());
}

void PubSetup::showWariningBeforeProperty(QWidget* parent)
{
    QMessageBox::warning(
        parent, tr("ARVEN Ulmar Disc Setup"),
        tr("The Publish Mode registered in the output device could not be obtained, so the previously "
           "displayed  value is displayed.\nThe displayed Publish Mode and stacker settings may be different "
           "from the values that are actually registered."));
}

QTreeWidgetItem* PubSetup::findItemByPublisherRegistID(const QString& strPublisherRegistID)
{
    for (int i = 0; i < treePublisherList->topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = treePublisherList->topLevelItem(i);
        if (keyOf(row) == strPublisherRegistID) {
            return row;
        }
    }
    return nullptr;
}

QTreeWidgetItem* PubSetup::chosenRow() const
{
    if (QTreeWidgetItem* current = treePublisherList->currentItem()) {
        return current;
    }
    const QList<QTreeWidgetItem*> selected = treePublisherList->selectedItems();
    return selected.size() == 1 ? selected.first() : nullptr;
}

bool PubSetup::getCurrentPublisherInfo(PUBLISHERINFO& info, BOOL& bConnection)
{
    const QTreeWidgetItem* row = treePublisherList->currentItem();
    ASSERT(row != nullptr);
    long lResultCommLib = 0;
    return getPublisherInfo(registIDFromKey(keyOf(row)).c_str(), info, bConnection, lResultCommLib);
}

QString PubSetup::getPublisherDevTypeStr(const PUBLISHERINFO& info, const CString& id)
{
    return modelText(m_cPubMgr.GetPublisherDevType(id.c_str()), info.uiNetPublisherType);
}

void PubSetup::fillContentIntoTreeItem(QTreeWidgetItem* item, const PUBLISHERINFO& info)
{
    item->setIcon(0, info.uiPublisherType == PUBMGR_CONNECTTYPE_NETWORK ? m_networkImage : m_localImage);
    item->setText(colName, QString::fromStdString(info.strPublisherName));
    const StatusRow row = rowBeforeReply(info, getPublisherDevTypeStr(info, info.strPublisherRegistID));
    showStatus(item, row);
    for (const int column : {colJobWaiting, colJobSending, colHDDAvail}) {
        item->setTextAlignment(column, numberAlignment);
    }
    item->setData(0, Qt::UserRole, row.strPublisherRegistID);
}

void PubSetup::updateMenu()
{
    const SelectionActions actions =
        selectionActions(static_cast<int>(treePublisherList->selectedItems().size()));
    showPublisherProperty->setEnabled(actions.showPublisherProperty);
    deletePublisher->setEnabled(actions.deletePublisher);
}

void PubSetup::updateList()
{
    CStringArray ids;
    m_cPubMgr.EnumRegistedPublisher(&ids);

    QHash<QString, QTreeWidgetItem*> unregistered;
    for (int i = 0; i < treePublisherList->topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = treePublisherList->topLevelItem(i);
        unregistered.insert(keyOf(row), row);
    }
    QSet<QString> shown;
    for (const CString& id : ids) {
        const QString key = keyFromRegistID(id);
        if (unregistered.remove(key) > 0) {
            shown.insert(key);
        }
    }
    qDeleteAll(unregistered);

    const ReadPass pass;
    for (const CString& id : ids) {
        // Existing rows are not updated from the setting files. A missing file is still read, because the
        // failed read is logged.
        const QString key = keyFromRegistID(id);
        if (shown.contains(key) && m_cPubMgr.IsExistSettingFile(id.c_str())) {
            continue;
        }
        const bool network = m_cPubMgr.GetConnectType(id.c_str()) == PUBMGR_CONNECTTYPE_NETWORK;
        PUBLISHERINFO info;
        if (!m_cPubMgr.GetPublisherInfo(id.c_str(), &info, network) || shown.contains(key)) {
            continue;
        }
        auto row = std::make_unique<MyTreeWidgetItem>();
        fillContentIntoTreeItem(row.get(), info);
        treePublisherList->addTopLevelItem(row.release());
        shown.insert(key);
    }
    repaint();
}

void PubSetup::fetchStatusAsync()
{
    emit updateListSignal();

    CStringArray ids;
    StatusPoll::makeRoom(m_cPubMgr.EnumRegistedPublisher(&ids));
    m_statusPoll->startLocal(ids);
    if (m_bSupportNetworkModel) {
        for (const CString& id : ids) {
            m_statusPoll->startNetwork(id);
        }
    }
}

void PubSetup::fetchStatusOneDevice(const CString& strPublisherRegistID)
{
    m_statusPoll->fetchStatusOneDevice(strPublisherRegistID);
}

void PubSetup::sendStatus(const StatusRow& status)
{
    emit updateStatusOneDeviceSignal(status.strPublisherRegistID, status.strDevType, status.strHostName,
                                     status.strStatus, status.nJobWaiting, status.nJobSending,
                                     status.strHDDAvail);
}

void PubSetup::updateStatusOneDevice(QString strPublisherRegistID, QString strDevType, QString strHostName,
                                     QString strStatus, int nJobWaiting, int nJobSending, QString strHDDAvail)
{
    const StatusRow status = {strPublisherRegistID, strDevType,  strHostName, strStatus,
                              nJobWaiting,          nJobSending, strHDDAvail};
    if (QTreeWidgetItem* row = findItemByPublisherRegistID(status.strPublisherRegistID)) {
        showStatus(row, status);
    }
}

void PubSetup::showStatus(QTreeWidgetItem* row, const StatusRow& status)
{
    row->setText(colDevType, status.strDevType);
    row->setText(colStatus, status.strStatus);
    row->setText(colJobWaiting, jobCountText(status.nJobWaiting));
    row->setText(colHostName, hostNameText(status.strHostName));
    row->setText(colJobSending, jobCountText(status.nJobSending));
    row->setText(colHDDAvail, status.strHDDAvail);
}

PubSetup::Removal PubSetup::removeSelected()
{
    const WaitCursor cursor;
    PUBLISHERINFO info;
    for (QTreeWidgetItem* row : treePublisherList->selectedItems()) {
        const CString id = registIDFromKey(keyOf(row));
        BOOL bConnection = 0;
        long lResultCommLib = 0;
        if (!getPublisherInfo(id.c_str(), info, bConnection, lResultCommLib)) {
            delete row;
            continue;
        }
        if (info.uiPublisherType == PUBMGR_CONNECTTYPE_LOCAL && hasUnfinishedJobs(m_cPubMgr, id.c_str())) {
            return Removal::jobs;
        }
        if (!m_cPubMgr.DeletePublisher(id.c_str())) {
            return Removal::failed;
        }
        m_cPubMgr.ClearUnusedGUID();
        delete row;
        treePublisherList->repaint();
    }
    return Removal::done;
}

void PubSetup::showDeleteDialog()
{
    if (QMessageBox::question(this, tr("ARVEN Ulmar Disc Setup"), tr("Do you want to delete it?"),
                              QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes) {
        return;
    }
    switch (removeSelected()) {
    case Removal::done:
        break;
    case Removal::jobs:
        QMessageBox::information(
            this, tr("ARVEN Ulmar Disc Setup"),
            tr("There are jobs in the output device, so it could not be deleted.\nPlease delete it after "
               "all jobs are finished."));
        break;
    case Removal::failed:
        QMessageBox::critical(this, tr("ARVEN Ulmar Disc Setup"), tr("Failed to change setting."));
        break;
    }
}

void PubSetup::showAddDialog()
{
    addPublisherDialog dialog(nullptr);
    dialog.setModal(true);
    dialog.show();
    dialog.exec();
}

void PubSetup::showPropertyDialog()
{
    const QTreeWidgetItem* row = chosenRow();
    ASSERT(row != nullptr);
    // The row may be deleted at any time from here on: the list is updated while a dialog is open.
    const CString strPublisherRegistID = registIDFromKey(keyOf(row));
    PUBLISHERINFO info;
    BOOL bConnection = 0;
    if (!readForProperties(m_cPubMgr, strPublisherRegistID, this, info, bConnection)) {
        return;
    }
    propertyDialogEx dialog(nullptr);
    dialog.fillContent(info, bConnection);
    dialog.setModal(true);
    dialog.show();
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const WaitCursor cursor;
    QTreeWidgetItem* chosen = chosenRow();
    // A server may be unreachable; its name is stored locally. A removed publisher has no name to show.
    if (chosen && (m_cPubMgr.GetPublisherInfo(strPublisherRegistID.c_str(), &info, FALSE) ||
                   m_cPubMgr.GetPublisherInfo(strPublisherRegistID.c_str(), &info, TRUE))) {
        chosen->setText(colName, QString::fromStdString(info.strPublisherName));
        repaint();
    }
}

void PubSetup::showSettingDialog()
{
    settingDialogEx dialog(nullptr);
    dialog.setModal(true);
    dialog.show();
    dialog.exec();
}

void PubSetup::doCollectAndSaveLogs()
{
    if (QMessageBox::question(
            this, tr("ARVEN Ulmar Disc Setup"),
            tr("ARVEN Ulmar Disc Setup collects logs about CD/DVD/BD Publisher, and then saves them in local "
               "PC.\nRefer to the documentation for what kind of information is collected.\nARVEN Ulmar Disc "
               "Setup does not send information.\nWould you like to continue?"),
            QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes) {
        return;
    }
    const QString archive = QFileDialog::getSaveFileName(this, tr("Save as"), homeOfCallingUser(),
                                                         tr("Archive file to save (*.tgz)"));
    if (archive.isEmpty()) {
        return;
    }
    int result = -1;
    doWithProgress([&] { result = packServiceLogs(archive); });
    const LogCollectionReport report = logCollectionReport(result);
    if (report.success) {
        QMessageBox::information(this, tr("ARVEN Ulmar Disc Setup"), report.text);
    } else {
        QMessageBox::warning(this, tr("ARVEN Ulmar Disc Setup"), report.text);
    }
}

void PubSetup::showAboutDialog()
{
    auto dialog = new QDialog;
    Ui::aboutDialog ui;
    ui.setupUi(dialog);
    showSharpPictures(*dialog);
    dialog->setModal(true);
    dialog->adjustSize();
    dialog->setFixedSize(dialog->size());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    dialog->exec(); // deletes the dialog
}

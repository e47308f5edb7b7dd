// The main window: the list of registered publishers with their live status, and the actions that open all
// other windows.
#pragma once

#include "PublisherMgr.h"
#include "StatusPoll.h"

#include "ui_PubSetup.h"

#include <QIcon>
#include <QMainWindow>
#include <QTimer>

#include <functional>
#include <memory>

class PubSetup : public QMainWindow, public Ui::MainWindow
{
    Q_OBJECT

public:
    explicit PubSetup(QWidget* parent);
    /// Waits for running queries: up to 10 seconds for the local publishers and 60 for each network
    /// publisher.
    ~PubSetup() override;

    /// Calls readPublisher with the window's publisher manager. Any thread.
    static bool getPublisherInfo(const char* id, PUBLISHERINFO& info, BOOL& bConnection,
                                 long& lResultCommLib);
    /// Runs `f` on a new thread while a busy indicator keeps the interface responsive, or on the calling
    /// thread if no thread can be started. Returns up to a tenth of a second after `f` has ended. `f` must
    /// not throw or use widgets; it returns its results in variables of the caller. `parent` may be null; it
    /// accepts no input meanwhile. User-interface thread. There is no timeout.
    static void doWithProgress(std::function<void()> f, QWidget* parent);
    /// The same, with this window as parent.
    void doWithProgress(std::function<void()> f);
    /// Reads the record for the property dialog behind a busy indicator. Asks `publisherMgr` for the publish
    /// mode of the device and shows a warning if it cannot be fetched, because the record then holds the
    /// stored one. Returns false, without a message, if the publisher cannot be read or has been removed
    /// meanwhile.
    static bool readForProperties(CPublisherMgr& publisherMgr, const CString& id, QWidget* parent,
                                  PUBLISHERINFO& info, BOOL& bConnection);
    /// Warns that the publish mode about to be shown is the stored one. `parent` may be null.
    static void showWariningBeforeProperty(QWidget* parent);

    /// The row with a key, or null.
    QTreeWidgetItem* findItemByPublisherRegistID(const QString& strPublisherRegistID);
    /// getPublisherInfo for the current row, which must exist.
    bool getCurrentPublisherInfo(PUBLISHERINFO& info, BOOL& bConnection);
    /// The text of the model column.
    QString getPublisherDevTypeStr(const PUBLISHERINFO& info, const CString& id);
    /// Fills a new row from the stored record; the first query adds its status.
    void fillContentIntoTreeItem(QTreeWidgetItem* item, const PUBLISHERINFO& info);
    /// Queries one publisher and emits updateStatusOneDeviceSignal. Any thread.
    void fetchStatusOneDevice(const CString& strPublisherRegistID);

signals:
    void updateListSignal();
    void updateStatusOneDeviceSignal(QString strPublisherRegistID, QString strDevType, QString strHostName,
                                     QString strStatus, int nJobWaiting, int nJobSending,
                                     QString strHDDAvail);

public slots:
    void showAddDialog();
    void showDeleteDialog();
    void showPropertyDialog();
    void showSettingDialog();
    void doCollectAndSaveLogs();
    void showAboutDialog();
    void fetchStatusAsync();
    void updateMenu();
    void updateList();
    void updateStatusOneDevice(QString strPublisherRegistID, QString strDevType, QString strHostName,
                               QString strStatus, int nJobWaiting, int nJobSending, QString strHDDAvail);

private:
    void setUpImages();
    void setUpColumns();
    void setUpEmptyList();
    void connectAll();
    /// The current row; without one, the selected row if it is the only one; otherwise null. "Select all"
    /// selects rows but makes none of them current.
    QTreeWidgetItem* chosenRow() const;
    /// Emits updateStatusOneDeviceSignal, whose seven arguments are the fields of the record. Any thread.
    void sendStatus(const StatusRow& status);
    /// Writes every column but the name; columns that the list does not have are skipped.
    void showStatus(QTreeWidgetItem* row, const StatusRow& status);
    /// How the removal of the selected publishers ended.
    enum class Removal
    {
        done,
        jobs,
        failed
    };
    /// Removes the selected publishers in turn and stops at the first that has unfinished jobs or cannot be
    /// deleted. Blocks on services and servers.
    Removal removeSelected();

    bool m_bSupportNetworkModel = true;
    int colName = 0;
    int colDevType = 1;
    int colHostName = 2;
    int colStatus = 3;
    int colJobWaiting = 4;
    int colJobSending = 5;
    int colHDDAvail = 6;
    QIcon m_localImage; // of the rows
    QIcon m_networkImage;
    std::shared_ptr<StatusPoll> m_statusPoll; // shared with its tasks, which may outlive the window
    static CPublisherMgr m_cPubMgr;
    std::unique_ptr<QTimer> m_timer;
};

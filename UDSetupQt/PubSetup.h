// The main window: the list of registered publishers with their live status, and the way to everything else.
#pragma once

#include "PublisherMgr.h"
#include "StatusPoll.h"

#include "ui_PubSetup.h"

#include <QIcon>
#include <QMainWindow>
#include <QTimer>

#include <memory>

class PubSetup : public QMainWindow, public Ui::MainWindow
{
    Q_OBJECT

public:
    explicit PubSetup(QWidget* parent);
    /// Waits for running queries: 10 seconds for the local publishers, 60 for each network publisher.
    ~PubSetup() override;

    /// Reads a publisher's record as readPublisher does, through the window's manager. Any thread.
    static bool getPublisherInfo(const char* id, PUBLISHERINFO& info, BOOL& bConnection,
                                 long& lResultCommLib);
    /// Says that the publish mode about to be shown is the stored one. `parent` may be null.
    static void showWariningBeforeProperty(QWidget* parent);

    /// The row of a key, or null.
    QTreeWidgetItem* findItemByPublisherRegistID(const QString& strPublisherRegistID);
    /// getPublisherInfo for the current row, which must exist.
    bool getCurrentPublisherInfo(PUBLISHERINFO& info, BOOL& bConnection);
    /// The text of the model column.
    QString getPublisherDevTypeStr(const PUBLISHERINFO& info, const CString& id);
    /// Fills a new row from what is stored; its status comes with the first answer.
    void fillContentIntoTreeItem(QTreeWidgetItem* item, const PUBLISHERINFO& info);
    /// Asks one publisher and emits updateStatusOneDeviceSignal. Any thread.
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
    void connectAll();
    void disableUnfinishedActions();
    bool hasUnfinishedJobs(const CString& id);

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

// The queries of the publisher list: which one runs when, and what it asks.
#pragma once

#include "PublisherMgr.h"

#include <QMutex>
#include <QString>

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>

/// What one query found out about a publisher, in the order of the status signal's arguments.
struct StatusRow
{
    QString strPublisherRegistID; ///< the row's key
    QString strDevType;
    QString strHostName;
    QString strStatus;
    int nJobWaiting = -1; ///< negative: unknown
    int nJobSending = -1; ///< negative: unknown
    QString strHDDAvail;
};

/// Reads a publisher's record: with the device's live values when it can be reached, else as it is stored.
/// `bConnection` becomes 0 only for a network publisher that cannot be reached, with the reason in
/// `lResultCommLib`. May wait for a device.
bool readPublisher(CPublisherMgr& publisherMgr, const char* id, PUBLISHERINFO& info, BOOL& bConnection,
                   long& lResultCommLib);

/// How many threads the queries of so many registered publishers need: one for each, so that those that hang
/// hold back nobody, and one for all local publishers; never fewer than `leastThreads`. No more than 96: the
/// network library's table holds 100 connections, and the windows need a few of their own.
int pollThreads(int registered, int leastThreads);

/// Asks publishers for their status on the global thread pool. The tasks share the ownership, so a query that
/// hangs in a device outlives the window in safety. The start functions, close and waitForQueries belong to
/// the user-interface thread.
class StatusPoll : public std::enable_shared_from_this<StatusPoll>
{
public:
    using Report = std::function<void(const StatusRow&)>;

    /// `publisherMgr` outlives every query. `report` is called on pool threads, until close.
    StatusPoll(CPublisherMgr& publisherMgr, bool bSupportNetworkModel, Report report);

    /// Sees that the thread pool has room for the queries of so many registered publishers. It is never taken
    /// back: idle threads end by themselves.
    static void makeRoom(int registered);
    /// One query of all local publishers among `ids`, one after the other, unless such a query is running.
    void startLocal(const CStringArray& ids);
    /// A query of one network publisher, unless such a query is running. Of a local one nothing is asked.
    void startNetwork(const CString& id);

    /// Asks one publisher and reports. Reports nothing when its record cannot be read. Any thread.
    void fetchStatusOneDevice(const CString& id);

    /// From here on nothing is reported, and no further publisher is asked.
    void close();
    /// Waits for running queries, the local one first, then one network publisher after the other: up to so
    /// many milliseconds for each.
    void waitForQueries(int localTimeout, int networkTimeout);

private:
    void report(const StatusRow& row);

    CPublisherMgr& m_cPubMgr;
    const bool m_bSupportNetworkModel;
    std::atomic<bool> m_closed = false;

    std::mutex m_reportGuard;
    Report m_report; // empty once closed

    // Each marks a running query: the user-interface thread only tests it, a task holds it for its whole run.
    QMutex m_mtxUpdateStatusLocal;
    // Touched by the user-interface thread alone; a task is handed its own mutex. Entries are never removed.
    std::map<std::string, QMutex> m_mtxUpdateStatusNetwork;
};

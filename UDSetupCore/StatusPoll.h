// The status queries for the publisher list: when they run and what they fetch.
#pragma once

#include "PublisherMgr.h"
#include "RowTexts.h"

#include <QMutex>
#include <QString>

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>

/// The result of a query for one publisher, in the order of the status signal's arguments.
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

/// Reads a publisher's record, with live values from the device if it is reachable, otherwise as stored. Sets
/// `bConnection` to 0 only for a network publisher that is unreachable; `lResultCommLib` then holds the
/// reason. May block on a device.
bool readPublisher(CPublisherMgr& publisherMgr, const char* id, PUBLISHERINFO& info, BOOL& bConnection,
                   long& lResultCommLib);

/// The row of a publisher before its first reply, from its stored record and the text of its model.
StatusRow rowBeforeReply(const PUBLISHERINFO& info, const QString& model);

/// What a query found, beside the texts of the row.
struct StatusReply
{
    StatusRow row;
    StatusFacts facts;
    PublisherState state = PublisherState::notConnected;
    CString freeBytes;  ///< decimal digits; empty if unknown
    PUBLISHERINFO info; ///< as from readPublisher
};

/// Queries the status of one publisher. Returns false if its record cannot be read, or if `isClosed`, which
/// is called between the queries, returns true. May block on a device. Any thread.
bool queryStatus(CPublisherMgr& publisherMgr, const CString& id, bool bSupportNetworkModel,
                 const std::function<bool()>& isClosed, StatusReply& reply);

/// The number of threads that the queries of `registered` publishers need: one per publisher, so that a hung
/// one delays only itself, plus one for all local publishers. At most 96, because the table of the network
/// library holds 100 connections and the windows need a few. Never fewer than `leastThreads`.
int pollThreads(int registered, int leastThreads);

/// Queries the status of publishers on the global thread pool. The tasks share ownership of this object, so a
/// hung query can safely outlive the window. Call the start functions, close and waitForQueries on the
/// user-interface thread.
class StatusPoll : public std::enable_shared_from_this<StatusPoll>
{
public:
    using Report = std::function<void(const StatusRow&)>;

    /// `publisherMgr` must outlive every query. `report` is called on pool threads until close().
    StatusPoll(CPublisherMgr& publisherMgr, bool bSupportNetworkModel, Report report);

    /// Raises the limit of the thread pool for the queries of `registered` publishers. The limit is never
    /// lowered: idle threads end by themselves.
    static void makeRoom(int registered);
    /// Queries the local publishers among `ids` one after the other, unless such a query is already running.
    void startLocal(const CStringArray& ids);
    /// Queries one network publisher, unless such a query is already running. Does nothing for a local one.
    void startNetwork(const CString& id);

    /// Queries one publisher and reports the result. Reports nothing if its record cannot be read. Any
    /// thread.
    void fetchStatusOneDevice(const CString& id);

    /// After this call nothing is reported and no further publisher is queried.
    void close();
    /// Waits for running queries: first the local one, then each network publisher in turn. The timeouts are
    /// in milliseconds and apply to each query.
    void waitForQueries(int localTimeout, int networkTimeout);

private:
    void report(const StatusRow& row);

    CPublisherMgr& m_cPubMgr;
    const bool m_bSupportNetworkModel;
    std::atomic<bool> m_closed = false;

    std::mutex m_reportGuard;
    Report m_report; // empty once closed

    // Each mutex marks a running query: the user-interface thread only tests it; a task holds it for its
    // whole run.
    QMutex m_mtxUpdateStatusLocal;
    // Accessed only by the user-interface thread; each task gets a reference to its mutex. Entries are never
    // removed.
    std::map<std::string, QMutex> m_mtxUpdateStatusNetwork;
};

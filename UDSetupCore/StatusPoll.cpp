#include "StatusPoll.h"

#include "MyRunnable.h"
#include "NW_Com_LibConst.h"
#include "PubMgrConst.h"
#include "PublisherCtrlConst.h"
#include "RegistIDKey.h"

#include <QMutexLocker>
#include <QThreadPool>

#include <algorithm>

namespace {

constexpr int mostPollThreads = 96;

/// The number of jobs waiting in the publisher's queue; 0 if the list cannot be fetched.
int countWaitingJobs(CPublisherMgr& publisherMgr, const CString& id)
{
    JobStatusArray jobs;
    long result = 0;
    publisherMgr.GetServiceJobStatusUnfinish(id.c_str(), &jobs, &result);
    if (result != 0) {
        return 0;
    }
    return static_cast<int>(std::count_if(jobs.begin(), jobs.end(), [](const ST_PC_JOB_STATUS& job) {
        return job.ulJobStatus == ARV_PC_JOB_WAITING;
    }));
}

} // namespace

bool readPublisher(CPublisherMgr& publisherMgr, const char* id, PUBLISHERINFO& info, BOOL& bConnection,
                   long& lResultCommLib)
{
    if (publisherMgr.GetConnectType(id) == PUBMGR_CONNECTTYPE_NETWORK) {
        bConnection = publisherMgr.IsPossibleCommunicate(id, &lResultCommLib) ? 1 : 0;
    } else {
        bConnection = 1;
    }
    return publisherMgr.GetPublisherInfo(id, &info, bConnection == 0);
}

StatusRow rowBeforeReply(const PUBLISHERINFO& info, const QString& model)
{
    return {.strPublisherRegistID = keyFromRegistID(info.strPublisherRegistID),
            .strDevType = model,
            .strHostName = QString::fromStdString(info.strHostName),
            .strStatus = statusText(PublisherState::notConnected),
            .strHDDAvail = spaceText("")};
}

bool queryStatus(CPublisherMgr& publisherMgr, const CString& id, bool bSupportNetworkModel,
                 const std::function<bool()>& isClosed, StatusReply& reply)
{
    BOOL bConnection = 0;
    StatusFacts& facts = reply.facts;
    if (!readPublisher(publisherMgr, id.c_str(), reply.info, bConnection, facts.connectResult)) {
        return false;
    }
    facts.network = reply.info.uiPublisherType == PUBMGR_CONNECTTYPE_NETWORK;
    facts.reachable =
        facts.network ? bConnection != 0 : publisherMgr.IsExistConnectedPublisher(reply.info.strGUID.c_str());
    if (facts.reachable) {
        facts.fatal = publisherMgr.IsFatalErrorInPublisher(id.c_str(), &facts.fatalCode);
    }
    if (isClosed()) {
        return false; // with a stalled server, each query below would delay closing
    }
    const StatusDecision decision = decideStatus(facts);
    reply.state = decision.state;

    StatusRow& row = reply.row;
    const UINT devType = publisherMgr.GetPublisherDevType(reply.info.strPublisherRegistID.c_str());
    row = rowBeforeReply(reply.info, modelText(devType, reply.info.uiNetPublisherType));
    row.strPublisherRegistID = keyFromRegistID(id);
    row.strStatus = decision.status;
    if (decision.fetchWaiting) {
        row.nJobWaiting = countWaitingJobs(publisherMgr, id);
    }
    if (bSupportNetworkModel && decision.fetchSendingAndSpace && !isClosed()) {
        row.nJobSending = publisherMgr.GetCommunicateJobCount(id.c_str());
        reply.freeBytes = publisherMgr.GetDeviceInfo(id.c_str(), NCL_DIT_REMAINDER_OF_HARD_DISC, nullptr);
        row.strHDDAvail = spaceText(reply.freeBytes);
    }
    return true;
}

int pollThreads(int registered, int leastThreads)
{
    return std::max(leastThreads, std::min(registered, mostPollThreads - 1) + 1);
}

StatusPoll::StatusPoll(CPublisherMgr& publisherMgr, bool bSupportNetworkModel, Report report)
    : m_cPubMgr(publisherMgr), m_bSupportNetworkModel(bSupportNetworkModel), m_report(std::move(report))
{
}

void StatusPoll::makeRoom(int registered)
{
    QThreadPool* pool = QThreadPool::globalInstance();
    pool->setMaxThreadCount(pollThreads(registered, pool->maxThreadCount()));
}

void StatusPoll::startLocal(const CStringArray& ids)
{
    if (!m_mtxUpdateStatusLocal.tryLock(0)) {
        return;
    }
    QThreadPool::globalInstance()->start(new MyRunnable([self = shared_from_this(), ids] {
        const QMutexLocker running(&self->m_mtxUpdateStatusLocal);
        for (const CString& id : ids) {
            if (self->m_closed) {
                return;
            }
            if (self->m_cPubMgr.GetConnectType(id.c_str()) == PUBMGR_CONNECTTYPE_LOCAL) {
                self->fetchStatusOneDevice(id);
            }
        }
    }));
    m_mtxUpdateStatusLocal.unlock();
}

void StatusPoll::startNetwork(const CString& id)
{
    QMutex& mutex = m_mtxUpdateStatusNetwork[id];
    if (!mutex.tryLock(0)) {
        return;
    }
    QThreadPool::globalInstance()->start(new MyRunnable([self = shared_from_this(), id, &mutex] {
        const QMutexLocker running(&mutex);
        if (!self->m_closed && self->m_cPubMgr.GetConnectType(id.c_str()) == PUBMGR_CONNECTTYPE_NETWORK) {
            self->fetchStatusOneDevice(id);
        }
    }));
    mutex.unlock();
}

void StatusPoll::fetchStatusOneDevice(const CString& id)
{
    StatusReply reply;
    if (queryStatus(m_cPubMgr, id, m_bSupportNetworkModel, [this] { return m_closed.load(); }, reply)) {
        report(reply.row);
    }
}

void StatusPoll::report(const StatusRow& row)
{
    const std::lock_guard lock(m_reportGuard);
    if (m_report) {
        m_report(row);
    }
}

void StatusPoll::close()
{
    m_closed = true;
    const std::lock_guard lock(m_reportGuard);
    m_report = nullptr;
}

void StatusPoll::waitForQueries(int localTimeout, int networkTimeout)
{
    if (m_mtxUpdateStatusLocal.tryLock(localTimeout)) {
        m_mtxUpdateStatusLocal.unlock();
    }
    for (auto& [id, mutex] : m_mtxUpdateStatusNetwork) {
        if (mutex.tryLock(networkTimeout)) {
            mutex.unlock();
        }
    }
}

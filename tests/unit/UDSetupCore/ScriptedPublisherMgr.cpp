#include "ScriptedPublisherMgr.h"

#include <algorithm>
#include <chrono>

#include <gtest/gtest.h>

Script& Script::the()
{
    static Script script;
    return script;
}

void Script::add(const std::string& id, const ScriptedPublisher& publisher)
{
    const std::lock_guard lock(m_mutex);
    m_publishers[id] = publisher;
}

ScriptedPublisher Script::find(const std::string& id)
{
    const std::lock_guard lock(m_mutex);
    return m_publishers.at(id);
}

std::vector<std::string> Script::calls()
{
    const std::lock_guard lock(m_mutex);
    return m_calls;
}

int Script::count(const std::string& call)
{
    const std::lock_guard lock(m_mutex);
    return static_cast<int>(std::count(m_calls.begin(), m_calls.end(), call));
}

bool Script::waitForCalls(const std::string& call, int count)
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, std::chrono::seconds(10),
                              [&] { return std::count(m_calls.begin(), m_calls.end(), call) >= count; });
}

void Script::stall(const std::string& id)
{
    const std::lock_guard lock(m_mutex);
    m_stalled[id] = true;
}

void Script::release(const std::string& id)
{
    const std::lock_guard lock(m_mutex);
    m_stalled[id] = false;
    m_changed.notify_all();
}

void Script::note(const std::string& call)
{
    const std::lock_guard lock(m_mutex);
    m_calls.push_back(call);
    m_changed.notify_all();
}

void Script::waitWhileStalled(const std::string& id)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&] { return !m_stalled[id]; });
}

CPublisherMgr::CPublisherMgr(bool) {}

CPublisherMgr::~CPublisherMgr() = default;

UINT CPublisherMgr::GetConnectType(LPCTSTR id)
{
    return Script::the().find(id).connectType;
}

UINT CPublisherMgr::GetPublisherDevType(LPCTSTR id)
{
    return Script::the().find(id).devType;
}

bool CPublisherMgr::GetPublisherInfo(LPCTSTR id, PUBLISHERINFO* info, BOOL bConnectionError)
{
    Script::the().note(std::string("GetPublisherInfo ") + id + (bConnectionError ? " stored" : " live"));
    const ScriptedPublisher publisher = Script::the().find(id);
    info->strPublisherRegistID = id;
    info->strGUID = id; // one device per publisher: the id serves as its GUID
    info->uiPublisherType = publisher.connectType;
    info->uiNetPublisherType = publisher.netType;
    info->strHostName = publisher.host;
    return publisher.readable;
}

bool CPublisherMgr::IsExistConnectedPublisher(LPCTSTR guid)
{
    Script::the().note(std::string("IsExistConnectedPublisher ") + guid);
    return Script::the().find(guid).attached;
}

bool CPublisherMgr::IsPossibleCommunicate(LPCTSTR id, long* pResultCode)
{
    Script::the().note(std::string("IsPossibleCommunicate ") + id);
    *pResultCode = Script::the().find(id).connectResult;
    return Script::the().find(id).communicates;
}

bool CPublisherMgr::IsFatalErrorInPublisher(LPCTSTR id, long* pResultCode)
{
    EXPECT_EQ(*pResultCode, 0) << "the caller clears the code";
    Script::the().note(std::string("IsFatalErrorInPublisher ") + id);
    Script::the().waitWhileStalled(id);
    *pResultCode = Script::the().find(id).fatalCode;
    return Script::the().find(id).fatal;
}

bool CPublisherMgr::GetServiceJobStatusUnfinish(LPCTSTR id, JobStatusArray* jobs, long* pResultCode)
{
    Script::the().note(std::string("GetServiceJobStatusUnfinish ") + id);
    const ScriptedPublisher publisher = Script::the().find(id);
    for (const unsigned long state : publisher.jobStates) {
        ST_PC_JOB_STATUS job{};
        job.ulJobStatus = state;
        jobs->push_back(job);
    }
    *pResultCode = publisher.jobsResult;
    return publisher.jobsResult == 0;
}

int CPublisherMgr::GetCommunicateJobCount(LPCTSTR id)
{
    Script::the().note(std::string("GetCommunicateJobCount ") + id);
    return Script::the().find(id).communicateJobs;
}

CString CPublisherMgr::GetDeviceInfo(LPCTSTR id, DWORD dwInfoType, DWORD*)
{
    Script::the().note("GetDeviceInfo " + std::string(id) + " " + std::to_string(dwInfoType));
    return CString(Script::the().find(id).freeBytes);
}

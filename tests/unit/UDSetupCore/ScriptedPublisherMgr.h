// A scripted publisher manager that queries no devices. It replaces the real one in the programs that link
// this file.
#pragma once

#include "PublisherMgr.h"

#include <condition_variable>
#include <map>
#include <mutex>
#include <string>
#include <vector>

struct ScriptedPublisher
{
    UINT connectType = PUBMGR_CONNECTTYPE_LOCAL;
    UINT devType = PUBMGR_PUBLISHERTYPE_300III_BD;
    UINT netType = PUBMGR_NPTYPE_UNKNOWN;
    std::string host;
    bool readable = true;     // GetPublisherInfo
    bool attached = true;     // IsExistConnectedPublisher
    bool communicates = true; // IsPossibleCommunicate
    long connectResult = 0;
    bool fatal = false;
    long fatalCode = 0;
    std::vector<unsigned long> jobStates;
    long jobsResult = 0;
    int communicateJobs = -1;
    std::string freeBytes;
};

/// One script per process. Thread-safe.
class Script
{
public:
    static Script& the();

    void add(const std::string& id, const ScriptedPublisher& publisher);
    ScriptedPublisher find(const std::string& id);

    /// The calls so far, as "Operation id".
    std::vector<std::string> calls();
    int count(const std::string& call);
    bool waitForCalls(const std::string& call, int count);

    /// IsFatalErrorInPublisher of this publisher blocks until release.
    void stall(const std::string& id);
    void release(const std::string& id);

    void note(const std::string& call);
    void waitWhileStalled(const std::string& id);

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<std::string, ScriptedPublisher> m_publishers;
    std::map<std::string, bool> m_stalled;
    std::vector<std::string> m_calls;
};

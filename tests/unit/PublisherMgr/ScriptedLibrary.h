// A scripted network library. Its operations return what the test specifies and record their calls. Tests
// can thus cover every result code, including those that a real server rarely returns.
//
// It defines every function that publisher management calls. The library itself is not linked.
#pragma once

#include "NW_Com_Lib.h"

#include <string>
#include <vector>

struct ScriptedLibrary
{
    static constexpr size_t never = static_cast<size_t>(-1);
    static constexpr DWORD handle = 7;

    // The state of the server.
    DWORD mode = NCL_MODE_NORMAL;
    DWORD kind = NCL_NPTYPE_300NII;
    std::vector<DWORD> numbers = {0, 1, 3, 1, 1, 0, 999, 0, 0}; ///< by NCL_DIT_
    std::vector<std::string> texts = {"serial", "ald", "prn",    "drv1",     "drv2",
                                      "server", "web", "toe",    "free",     "total",
                                      "ws1",    "ws2", "prname", "drname 1", "drname 2"};
    ALDStatus loader{};
    StackerStatus stackers{};
    DrvStatusEx drives{};
    PrnStatus printer{};
    InkStatus ink{};
    DWORD fatalError = 0;
    MaintenanceInfo figures{};
    MaintenanceInfoEx figuresEx{};
    std::vector<DWORD> jobNumbers = {4, 5, 6}; ///< by NCL_JNT_
    DWORD printable = 120;
    std::vector<JobStatusEx> unfinished;
    std::vector<JobStatus> finished;
    std::string publishId = "PUBLISH_1";
    int serverJobId = 42;

    // The request that returns `failCode`, counted from 0 without EndConnection and GetNPType. With `failOn`
    // all later requests return it too.
    size_t failAt = never;
    bool failOn = false;
    DWORD failCode = NCL_ERR_SERVER_OTHER;

    // The calls in order, such as "GetDeviceInfo(7, 5, 1024)".
    std::vector<std::string> calls;
    std::string lastBytes; ///< of the last submission
    int open = 0;          ///< number of open connections

    /// The instance that the library functions use.
    static ScriptedLibrary& Instance();
    /// Restores the initial state.
    void Reset();
    /// Clears the recorded calls.
    void Forget();
    /// Records a request and returns its code.
    DWORD Take(const std::string& call);

private:
    size_t m_requests = 0;
};

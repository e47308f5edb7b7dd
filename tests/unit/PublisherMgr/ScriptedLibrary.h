// The network library by script: its operations give what a test has laid down and keep what they were asked,
// so that every result code can be had, whatever a real server would have to do for it.
//
// It has every function that publisher management calls: nothing of the library itself is linked.
#pragma once

#include "NW_Com_Lib.h"

#include <string>
#include <vector>

struct ScriptedLibrary
{
    static constexpr size_t never = static_cast<size_t>(-1);
    static constexpr DWORD handle = 7;

    // What the server has.
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

    // The request, counted from 0 over all but EndConnection and GetNPType, that gives `failCode`, and
    // whether all behind it do too.
    size_t failAt = never;
    bool failOn = false;
    DWORD failCode = NCL_ERR_SERVER_OTHER;

    // What it was asked, in order: "GetDeviceInfo(7, 5, 1024)".
    std::vector<std::string> calls;
    std::string lastBytes; ///< of the last submission
    int open = 0;          ///< connections

    /// The one that the library's functions use.
    static ScriptedLibrary& Instance();
    /// Begins anew, as if just made.
    void Reset();
    /// Forgets what it was asked.
    void Forget();
    /// Writes down a request; its code.
    DWORD Take(const std::string& call);

private:
    size_t m_requests = 0;
};

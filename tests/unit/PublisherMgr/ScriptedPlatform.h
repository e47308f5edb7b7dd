// A platform layer by script: pipes, transfers and waits answer as a test asks them to, and tell what was
// asked of them. It stands in for the layer's functions in the program that links it.
#pragma once

#include "Win_def.h"

#include <string>
#include <vector>

/// One transfer: its result, the bytes it moves, and the error it leaves.
struct ScriptedTransfer
{
    BOOL result = TRUE;
    std::string data; ///< what a read delivers
    DWORD count = 0;  ///< what a write accepts; a read counts `data`
    DWORD lastError = 0;
};

struct ScriptedPlatform
{
    // The script. An open takes the next error, 0 for a pipe; the last one holds for all that follow.
    std::vector<DWORD> openErrors = {0};
    ScriptedTransfer write{TRUE, "", 408, 0};
    std::vector<ScriptedTransfer> reads; ///< one after the other
    BOOL overlappedResult = FALSE;
    DWORD overlappedCount = 0;
    bool eventsFail = false;

    // What was asked.
    int opens = 0;
    std::string openedName;
    DWORD openedAccess = 0;
    DWORD openedShare = 77;
    DWORD openedDisposition = 0;
    DWORD openedFlags = 0;
    std::vector<DWORD> sleeps;
    std::vector<DWORD> waits;
    std::vector<DWORD> readSizes;
    std::string written;
    int overlappedResults = 0;
    int misuses = 0; ///< a transfer without the event, a wait for another one, a result that blocks
    int closes = 0;  ///< of pipes
    int eventCloses = 0;
};

/// The script in force.
extern ScriptedPlatform g_platform;

// A scripted platform layer: pipes, transfers and waits return what the test specifies and record their
// arguments. It replaces the functions of the layer in the program that links it.
#pragma once

#include "Win_def.h"

#include <string>
#include <vector>

/// One transfer: its result, the bytes transferred, and the last error.
struct ScriptedTransfer
{
    BOOL result = TRUE;
    std::string data; ///< what a read delivers
    DWORD count = 0;  ///< what a write accepts; a read counts `data`
    DWORD lastError = 0;
};

struct ScriptedPlatform
{
    // The script. Each open uses the next error, 0 for success; the last one applies to all further opens.
    std::vector<DWORD> openErrors = {0};
    ScriptedTransfer write{TRUE, "", 408, 0};
    std::vector<ScriptedTransfer> reads; ///< in order
    BOOL overlappedResult = FALSE;
    DWORD overlappedCount = 0;
    bool eventsFail = false;

    // The recorded calls.
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

/// The current script.
extern ScriptedPlatform g_platform;

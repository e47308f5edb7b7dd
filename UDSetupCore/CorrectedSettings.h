// What the property dialog corrects when it is filled: a stored value that the user cannot choose is shown as
// one that can be chosen, or as none.
#pragma once

#include "PublisherMgrIF.h"
#include "StackerRules.h"

#include <optional>

/// The largest number of write retries that the user can choose.
constexpr UINT maxRetryCount = 9;

/// What stacker 1 or 2 is shown to hold: DVD-R and DVD+R are one choice, an unknown value is CD-R.
UINT correctedMedia(UINT discType);

/// What stacker 3 is shown to be: PUBMGR_STACKERDISCTYPE_OUTPUT if it is in use, else ..._NOTUSE.
UINT correctedStacker3(UINT discType);

/// Modes that are set elsewhere are shown as normal mode. An unknown mode is returned unchanged.
UINT correctedPublishMode(UINT publishMode);

/// At most maxRetryCount, which is also shown for an unknown number (0xFFFFFFFF).
UINT correctedRetryCount(UINT retryCount);

/// PUBMGR_USEDRIVE_AUTO, ..._DRIVE1 or ..._DRIVE2; any other value is ..._ERROR, which selects no drive.
UINT correctedUseDrive(UINT useDrive);

/// Corrects the publish mode and the stackers in the record, each value by itself and by the model.
void correctSettings(ModelFamily family, PUBLISHERINFO& info);

/// What the boxes of the stackers show. An empty value selects no item.
struct ShownStackers
{
    std::optional<UINT> stacker1; ///< enOrlaStackerDiscType, as are the next two
    std::optional<UINT> stacker2;
    std::optional<UINT> stacker3;
    bool stacker2Enabled = false;
    std::optional<bool> stacker3Enabled; ///< empty: left as it is
};

/// What the stackers of a record show in its publish mode, after correctSettings(). Also writes what the mode
/// demands into the record: stacker 2 in normal mode, stacker 3 in batch mode. Stops the process for an
/// unknown family.
ShownStackers settleStackers(ModelFamily family, PUBLISHERINFO& info);

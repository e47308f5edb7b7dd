// The corrections that the property dialog makes when it is filled. A stored value that the user cannot
// choose is shown as one that the user can choose, or as none.
#pragma once

#include "PublisherMgrIF.h"
#include "StackerRules.h"

#include <optional>

/// The largest number of write retries that the user can choose.
constexpr UINT maxRetryCount = 9;

/// The value shown for stacker 1 or 2. DVD-R and DVD+R are one choice, also with two layers. An unknown value
/// becomes CD-R.
UINT correctedMedia(UINT discType);

/// The value shown for stacker 3: PUBMGR_STACKERDISCTYPE_OUTPUT if it is in use, else ..._NOTUSE.
UINT correctedStacker3(UINT discType);

/// Security mode and eject control cannot be chosen and become normal mode. Any other mode is returned
/// unchanged, even an unknown one.
UINT correctedPublishMode(UINT publishMode);

/// At most maxRetryCount, also for an unknown number (0xFFFFFFFF).
UINT correctedRetryCount(UINT retryCount);

/// PUBMGR_USEDRIVE_AUTO, ..._DRIVE1 or ..._DRIVE2; any other value becomes ..._ERROR, which selects no drive.
UINT correctedUseDrive(UINT useDrive);

/// Corrects the publish mode and stackers 1 to 3 in the record, by value and by model.
void correctSettings(ModelFamily family, PUBLISHERINFO& info);

/// What the combo boxes of the stackers show. An empty value selects no item.
struct ShownStackers
{
    std::optional<UINT> stacker1; ///< enOrlaStackerDiscType, as are the next two
    std::optional<UINT> stacker2;
    std::optional<UINT> stacker3;
    bool stacker2Enabled = false;
    std::optional<bool> stacker3Enabled; ///< empty: unchanged
};

/// Returns what is shown for a record that correctSettings() has corrected. Also writes the values that the
/// publish mode determines to the record: stacker 2 in normal mode, stacker 3 in batch mode. Aborts the
/// process for an unknown family.
ShownStackers settleStackers(ModelFamily family, PUBLISHERINFO& info);

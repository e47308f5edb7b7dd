// Converts the settings of a publisher between the stored record and the controls of a dialog.
#pragma once

#include "PublisherMgrIF.h"
#include "StackerRules.h"

/// The media shown for stacker 1 or 2: DVD-R and DVD+R are one choice; an unknown value shows as CD-R.
UINT correctedMedia(UINT discType);

/// The value shown for stacker 3: PUBMGR_STACKERDISCTYPE_OUTPUT if it is in use, otherwise ..._NOTUSE.
UINT correctedStacker3(UINT discType);

/// Modes that are set elsewhere show as normal mode. Any other mode is returned unchanged, even if it cannot
/// be chosen.
UINT correctedPublishMode(UINT publishMode);

/// The user's choices.
struct SettingChoices
{
    UINT publishMode = PUBMGR_PUBLISHMODE_NORMAL;
    UINT stacker1 = PUBMGR_STACKERDISCTYPE_CDR; ///< enOrlaStackerDiscType, as are the next two
    UINT stacker2 = PUBMGR_STACKERDISCTYPE_OUTPUT;
    UINT stacker3 = PUBMGR_STACKERDISCTYPE_NOTUSE;
    UINT useDrive = PUBMGR_USEDRIVE_AUTO;
    UINT retryCount = PUBMGR_DEFAULT_RETRYCOUNT; ///< for writing
    bool errorMark = true;
};

/// Writes the choices to the record of a local publisher, including the stackers that follow from the mode.
/// Aborts the process unless the family is a local one.
void storeChoices(const SettingChoices& choices, ModelFamily family, PUBLISHERINFO& info);

// The settings of a publisher between the stored record and the controls of a dialog.
#pragma once

#include "PublisherMgrIF.h"
#include "StackerRules.h"

/// What stacker 1 or 2 is shown to hold: DVD-R and DVD+R are one choice, an unknown value is CD-R.
UINT correctedMedia(UINT discType);

/// What stacker 3 is shown to be: PUBMGR_STACKERDISCTYPE_OUTPUT when it is in use, else ..._NOTUSE.
UINT correctedStacker3(UINT discType);

/// Modes that are set elsewhere show as normal mode. A mode that nobody can choose stays as it is.
UINT correctedPublishMode(UINT publishMode);

/// What the user chose.
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

/// Puts the choices into the record of a local publisher, with the stackers that follow from the mode. Stops
/// the process for a family other than the local ones.
void storeChoices(const SettingChoices& choices, ModelFamily family, PUBLISHERINFO& info);

// What the property dialog saves: the user's choices in the record of a local publisher.
#pragma once

#include "PublisherMgrIF.h"
#include "StackerRules.h"

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

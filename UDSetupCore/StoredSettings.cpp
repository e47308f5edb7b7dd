#include "StoredSettings.h"

namespace {

/// Stacker 4 takes the finished discs if stacker 3 does not.
UINT stacker4BesideStacker3(UINT stacker3)
{
    return stacker3 == PUBMGR_STACKERDISCTYPE_NOTUSE ? PUBMGR_STACKERDISCTYPE_OUTPUT
                                                     : PUBMGR_STACKERDISCTYPE_NOTUSE;
}

void storeForRt300(const SettingChoices& choices, PUBLISHERINFO& info)
{
    info.uiStacker3DiscType = choices.stacker3;
    info.uiUseDrive = choices.useDrive;
    switch (choices.publishMode) {
    case PUBMGR_PUBLISHMODE_BATCH:
        info.uiPublishMode = PUBMGR_PUBLISHMODE_BATCH;
        info.uiStacker3DiscType = PUBMGR_STACKERDISCTYPE_OUTPUT;
        break;
    case PUBMGR_PUBLISHMODE_OUTPUT:
        info.uiPublishMode = PUBMGR_PUBLISHMODE_OUTPUT;
        break;
    default:
        info.uiPublishMode = PUBMGR_PUBLISHMODE_NORMAL;
        info.uiStacker2DiscType = PUBMGR_STACKERDISCTYPE_OUTPUT;
        break;
    }
    info.uiStacker4DiscType = stacker4BesideStacker3(info.uiStacker3DiscType);
}

void storeForRt30(const SettingChoices& choices, PUBLISHERINFO& info)
{
    if (choices.publishMode == PUBMGR_PUBLISHMODE_LOWVOLUME) {
        info.uiPublishMode = PUBMGR_PUBLISHMODE_LOWVOLUME;
    } else {
        info.uiPublishMode = PUBMGR_PUBLISHMODE_NORMAL;
        info.uiStacker2DiscType = PUBMGR_STACKERDISCTYPE_OUTPUT;
    }
    info.uiStacker3DiscType = PUBMGR_STACKERDISCTYPE_OUTPUT;
    info.uiStacker4DiscType = PUBMGR_STACKERDISCTYPE_NOTUSE;
}

} // namespace

UINT correctedMedia(UINT discType)
{
    switch (discType) {
    case PUBMGR_STACKERDISCTYPE_OUTPUT:
    case PUBMGR_STACKERDISCTYPE_CDR:
    case PUBMGR_STACKERDISCTYPE_DVDR:
    case PUBMGR_STACKERDISCTYPE_DVDRDL:
    case PUBMGR_STACKERDISCTYPE_BDR:
    case PUBMGR_STACKERDISCTYPE_BDRDL:
    case PUBMGR_STACKERDISCTYPE_BDRTL:
    case PUBMGR_STACKERDISCTYPE_BDRQL:
        return discType;
    case PUBMGR_STACKERDISCTYPE_DVDMINUSR:
    case PUBMGR_STACKERDISCTYPE_DVDPLUSR:
        return PUBMGR_STACKERDISCTYPE_DVDR;
    case PUBMGR_STACKERDISCTYPE_DVDMINUSRDL:
    case PUBMGR_STACKERDISCTYPE_DVDPLUSRDL:
        return PUBMGR_STACKERDISCTYPE_DVDRDL;
    default:
        return PUBMGR_STACKERDISCTYPE_CDR;
    }
}

UINT correctedStacker3(UINT discType)
{
    const bool inUse = discType <= PUBMGR_STACKERDISCTYPE_BDRDL || discType == PUBMGR_STACKERDISCTYPE_INPUT;
    return inUse ? PUBMGR_STACKERDISCTYPE_OUTPUT : PUBMGR_STACKERDISCTYPE_NOTUSE;
}

UINT correctedPublishMode(UINT publishMode)
{
    const bool setElsewhere =
        publishMode == PUBMGR_PUBLISHMODE_SECURITY || publishMode == PUBMGR_PUBLISHMODE_EJECTCONTROL;
    return setElsewhere ? PUBMGR_PUBLISHMODE_NORMAL : publishMode;
}

void storeChoices(const SettingChoices& choices, ModelFamily family, PUBLISHERINFO& info)
{
    ASSERT(family == ModelFamily::rt300 || family == ModelFamily::rt30);
    info.uiStacker1DiscType = choices.stacker1;
    info.uiStacker2DiscType = choices.stacker2;
    if (family == ModelFamily::rt300) {
        storeForRt300(choices, info);
    } else {
        storeForRt30(choices, info);
    }
    info.uiRetryCount = choices.retryCount;
    info.uiRetryCountW = choices.retryCount;
    info.bAddErrorMark = choices.errorMark;
}

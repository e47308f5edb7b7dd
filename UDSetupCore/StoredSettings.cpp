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

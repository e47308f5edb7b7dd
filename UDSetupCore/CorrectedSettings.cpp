#include "CorrectedSettings.h"

#include <algorithm>

namespace {

/// Empty for the output stacker.
std::optional<UINT> mediaOnly(UINT discType)
{
    return discType == PUBMGR_STACKERDISCTYPE_OUTPUT ? std::nullopt : std::optional<UINT>(discType);
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

UINT correctedRetryCount(UINT retryCount)
{
    return std::min(retryCount, maxRetryCount);
}

UINT correctedUseDrive(UINT useDrive)
{
    return useDrive <= PUBMGR_USEDRIVE_DRIVE2 ? useDrive : UINT{PUBMGR_USEDRIVE_ERROR};
}

void correctSettings(ModelFamily family, PUBLISHERINFO& info)
{
    info.uiStacker1DiscType = correctedMedia(info.uiStacker1DiscType);
    info.uiStacker2DiscType = correctedMedia(info.uiStacker2DiscType);
    info.uiStacker3DiscType = correctedStacker3(info.uiStacker3DiscType);
    info.uiPublishMode = correctedPublishMode(info.uiPublishMode);
    if (family != ModelFamily::rt30) {
        return;
    }
    info.uiStacker3DiscType = PUBMGR_STACKERDISCTYPE_NOTUSE;
    if (info.uiPublishMode == PUBMGR_PUBLISHMODE_BATCH) {
        info.uiPublishMode = PUBMGR_PUBLISHMODE_NORMAL;
    }
}

ShownStackers settleStackers(ModelFamily family, PUBLISHERINFO& info)
{
    ASSERT(family != ModelFamily::unknown);
    ShownStackers shown;
    switch (info.uiPublishMode) {
    case PUBMGR_PUBLISHMODE_NORMAL:
        info.uiStacker2DiscType = PUBMGR_STACKERDISCTYPE_OUTPUT;
        shown.stacker2 = PUBMGR_STACKERDISCTYPE_OUTPUT;
        shown.stacker3Enabled = family != ModelFamily::rt30;
        break;
    case PUBMGR_PUBLISHMODE_BATCH:
        info.uiStacker3DiscType = PUBMGR_STACKERDISCTYPE_OUTPUT;
        shown.stacker2 = mediaOnly(info.uiStacker1DiscType); // the record keeps its value
        shown.stacker3Enabled = false;
        break;
    case PUBMGR_PUBLISHMODE_OUTPUT:
        shown.stacker2 = mediaOnly(info.uiStacker2DiscType);
        shown.stacker2Enabled = true;
        shown.stacker3Enabled = true;
        break;
    default:
        return shown; // no stacker is shown for an unknown mode
    }
    shown.stacker1 = mediaOnly(info.uiStacker1DiscType);
    shown.stacker3 = info.uiStacker3DiscType;
    return shown;
}

#include "30IIPublisherMgr.h"

UINT C30IIPublisherMgr::GetPublisherMgrType()
{
    return PUBMGR_PUBLISHERTYPE_30II;
}

bool C30IIPublisherMgr::IsSupportPublishMode(UINT uiPublishMode)
{
    return uiPublishMode == PUBMGR_PUBLISHMODE_READ || CSDPublisherMgr::IsSupportPublishMode(uiPublishMode);
}

bool C30IIPublisherMgr::IsSupportDiscType(UINT uiDiscType)
{
    return uiDiscType == PUBMGR_STACKERDISCTYPE_BDR || uiDiscType == PUBMGR_STACKERDISCTYPE_BDRDL ||
           CBasicPublisherMgr::IsSupportDiscType(uiDiscType);
}

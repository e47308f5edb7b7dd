#include "30BDPublisherMgr.h"

UINT C30BDPublisherMgr::GetPublisherMgrType()
{
    return PUBMGR_PUBLISHERTYPE_30BD;
}

bool C30BDPublisherMgr::IsSupportPublishMode(UINT uiPublishMode)
{
    return uiPublishMode == PUBMGR_PUBLISHMODE_READ || CSDPublisherMgr::IsSupportPublishMode(uiPublishMode);
}

bool C30BDPublisherMgr::IsSupportDiscType(UINT uiDiscType)
{
    return uiDiscType == PUBMGR_STACKERDISCTYPE_BDR || uiDiscType == PUBMGR_STACKERDISCTYPE_BDRDL ||
           CBasicPublisherMgr::IsSupportDiscType(uiDiscType);
}

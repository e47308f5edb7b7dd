#include "30BDAPublisherMgr.h"

UINT C30BDAPublisherMgr::GetPublisherMgrType()
{
    return PUBMGR_PUBLISHERTYPE_30BDA;
}

bool C30BDAPublisherMgr::IsSupportPublishMode(UINT uiPublishMode)
{
    return uiPublishMode == PUBMGR_PUBLISHMODE_ERRORRATE ||
           C30BDPublisherMgr::IsSupportPublishMode(uiPublishMode);
}

#include "300IIIBDPublisherMgr.h"

UINT C300IIIBDPublisherMgr::GetPublisherMgrType()
{
    return PUBMGR_PUBLISHERTYPE_300III_BD;
}

bool C300IIIBDPublisherMgr::IsSupportDiscType(UINT uiDiscType)
{
    return uiDiscType == PUBMGR_STACKERDISCTYPE_BDR || uiDiscType == PUBMGR_STACKERDISCTYPE_BDRDL ||
           CBasicPublisherMgr::IsSupportDiscType(uiDiscType);
}

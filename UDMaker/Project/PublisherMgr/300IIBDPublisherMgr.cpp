#include "300IIBDPublisherMgr.h"

UINT C300IIBDPublisherMgr::GetPublisherMgrType()
{
    return PUBMGR_PUBLISHERTYPE_300II_BD;
}

bool C300IIBDPublisherMgr::IsSupportDiscType(UINT uiDiscType)
{
    return uiDiscType == PUBMGR_STACKERDISCTYPE_BDR || uiDiscType == PUBMGR_STACKERDISCTYPE_BDRDL ||
           CBasicPublisherMgr::IsSupportDiscType(uiDiscType);
}

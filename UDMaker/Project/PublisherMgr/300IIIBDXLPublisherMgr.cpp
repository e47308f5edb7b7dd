#include "300IIIBDXLPublisherMgr.h"

UINT C300IIIBDXLPublisherMgr::GetPublisherMgrType()
{
    return PUBMGR_PUBLISHERTYPE_300III_BDXL;
}

bool C300IIIBDXLPublisherMgr::IsSupportDiscType(UINT uiDiscType)
{
    return uiDiscType == PUBMGR_STACKERDISCTYPE_BDR || uiDiscType == PUBMGR_STACKERDISCTYPE_BDRDL ||
           uiDiscType == PUBMGR_STACKERDISCTYPE_BDRTL || uiDiscType == PUBMGR_STACKERDISCTYPE_BDRQL ||
           CBasicPublisherMgr::IsSupportDiscType(uiDiscType);
}

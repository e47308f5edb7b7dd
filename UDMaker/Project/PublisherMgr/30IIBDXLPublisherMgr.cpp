#include "30IIBDXLPublisherMgr.h"

UINT C30IIBDXLPublisherMgr::GetPublisherMgrType()
{
    return PUBMGR_PUBLISHERTYPE_30II_BDXL;
}

bool C30IIBDXLPublisherMgr::IsSupportPublishMode(UINT uiPublishMode)
{
    return uiPublishMode == PUBMGR_PUBLISHMODE_READ || CSDPublisherMgr::IsSupportPublishMode(uiPublishMode);
}

bool C30IIBDXLPublisherMgr::IsSupportDiscType(UINT uiDiscType)
{
    return uiDiscType == PUBMGR_STACKERDISCTYPE_BDR || uiDiscType == PUBMGR_STACKERDISCTYPE_BDRDL ||
           uiDiscType == PUBMGR_STACKERDISCTYPE_BDRTL || uiDiscType == PUBMGR_STACKERDISCTYPE_BDRQL ||
           CBasicPublisherMgr::IsSupportDiscType(uiDiscType);
}

#include "300IIDVDPublisherMgr.h"

UINT C300IIDVDPublisherMgr::GetPublisherMgrType()
{
    return PUBMGR_PUBLISHERTYPE_300II_DVD;
}

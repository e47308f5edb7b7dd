#include "300IIIDVDPublisherMgr.h"

UINT C300IIIDVDPublisherMgr::GetPublisherMgrType()
{
    return PUBMGR_PUBLISHERTYPE_300III_DVD;
}

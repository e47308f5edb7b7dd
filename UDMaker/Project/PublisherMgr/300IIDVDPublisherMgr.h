// Two DVD drives, second series.
#pragma once

#include "300MODPublisherMgr.h"

class C300IIDVDPublisherMgr : public C300MODPublisherMgr
{
public:
    using C300MODPublisherMgr::C300MODPublisherMgr;

    UINT GetPublisherMgrType() override;
};

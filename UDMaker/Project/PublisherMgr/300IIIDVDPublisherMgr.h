// Two DVD drives, third series.
#pragma once

#include "300MODPublisherMgr.h"

class C300IIIDVDPublisherMgr : public C300MODPublisherMgr
{
public:
    using C300MODPublisherMgr::C300MODPublisherMgr;

    UINT GetPublisherMgrType() override;
};

// Two Blu-ray drives, third series.
#pragma once

#include "300MODPublisherMgr.h"

class C300IIIBDPublisherMgr : public C300MODPublisherMgr
{
public:
    using C300MODPublisherMgr::C300MODPublisherMgr;

    UINT GetPublisherMgrType() override;
    bool IsSupportDiscType(UINT uiDiscType) override;
};

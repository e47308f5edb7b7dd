// The archive model: one Blu-ray drive, and the measurement of error rates.
#pragma once

#include "30BDPublisherMgr.h"

class C30BDAPublisherMgr : public C30BDPublisherMgr
{
public:
    using C30BDPublisherMgr::C30BDPublisherMgr;

    UINT GetPublisherMgrType() override;
    bool IsSupportPublishMode(UINT uiPublishMode) override;
};

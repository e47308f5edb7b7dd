// One Blu-ray drive, second series.
#pragma once

#include "SDPublisherMgr.h"

class C30IIPublisherMgr : public CSDPublisherMgr
{
public:
    using CSDPublisherMgr::CSDPublisherMgr;

    UINT GetPublisherMgrType() override;
    bool IsSupportPublishMode(UINT uiPublishMode) override;
    bool IsSupportDiscType(UINT uiDiscType) override;
};

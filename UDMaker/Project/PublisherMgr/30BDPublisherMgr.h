// One Blu-ray drive.
#pragma once

#include "SDPublisherMgr.h"

class C30BDPublisherMgr : public CSDPublisherMgr
{
public:
    using CSDPublisherMgr::CSDPublisherMgr;

    UINT GetPublisherMgrType() override;
    bool IsSupportPublishMode(UINT uiPublishMode) override;
    bool IsSupportDiscType(UINT uiDiscType) override;
};

// One DVD drive, three stackers; the base of all models with a single drive.
#pragma once

#include "BasicPublisherMgr.h"

class CSDPublisherMgr : public CBasicPublisherMgr
{
public:
    using CBasicPublisherMgr::CBasicPublisherMgr;

    UINT GetPublisherMgrType() override;
    /// Answers for drive 1 alone.
    CString GetSupportWriteSpeedString(LPCTSTR szPublisherRegistID, UINT uiDrive) override;
};

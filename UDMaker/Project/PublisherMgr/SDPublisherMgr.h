// The model with one DVD drive and three stackers. Base class of the other models with one drive.
#pragma once

#include "BasicPublisherMgr.h"

class CSDPublisherMgr : public CBasicPublisherMgr
{
public:
    using CBasicPublisherMgr::CBasicPublisherMgr;

    UINT GetPublisherMgrType() override;
    /// Empty for any drive other than drive 1.
    CString GetSupportWriteSpeedString(LPCTSTR szPublisherRegistID, UINT uiDrive) override;
};

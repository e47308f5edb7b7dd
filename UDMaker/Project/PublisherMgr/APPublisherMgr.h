// The model without drives.
#pragma once

#include "300MODPublisherMgr.h"

class CAPPublisherMgr : public C300MODPublisherMgr
{
public:
    using C300MODPublisherMgr::C300MODPublisherMgr;

    UINT GetPublisherMgrType() override;
    bool UpdatePublisherInfo(PUBLISHERINFO sPublisherInfo) override;
    /// Uses only the mode and the output stackers of `psPublisherInfo`.
    bool UpdatePublishMode(LPCTSTR szPublisherRegistID, const PUBLISHERINFO* psPublisherInfo,
                           bool bResetDefault, bool* pbSetDefault) override;
    /// Drive and retry fields get the values of a cleared record.
    bool GetPublisherInfo(LPCTSTR szPublisherRegistID, PUBLISHERINFO* psPublisherInfo,
                          BOOL bConnectionError) override;
    /// Does not change the drive fields.
    bool GetPublisherVersionInfo(LPCTSTR szPublisherRegistID, PUBLISHERVERSIONINFO* psPublisherVersionInfo,
                                 long* pResultCode) override;
};

// The model without drives of its own.
#pragma once

#include "300MODPublisherMgr.h"

class CAPPublisherMgr : public C300MODPublisherMgr
{
public:
    using C300MODPublisherMgr::C300MODPublisherMgr;

    UINT GetPublisherMgrType() override;
    bool UpdatePublisherInfo(PUBLISHERINFO sPublisherInfo) override;
    /// Takes no field of `psPublisherInfo` but mode and output stackers.
    bool UpdatePublishMode(LPCTSTR szPublisherRegistID, const PUBLISHERINFO* psPublisherInfo,
                           bool bResetDefault, bool* pbSetDefault) override;
    /// The fields of drives and retries keep their defaults.
    bool GetPublisherInfo(LPCTSTR szPublisherRegistID, PUBLISHERINFO* psPublisherInfo,
                          BOOL bConnectionError) override;
    /// The fields of drives stay as they were.
    bool GetPublisherVersionInfo(LPCTSTR szPublisherRegistID, PUBLISHERVERSIONINFO* psPublisherVersionInfo,
                                 long* pResultCode) override;
};

// Two DVD drives; the base of all models with two drives and of the one without.
#pragma once

#include "BasicPublisherMgr.h"

class C300MODPublisherMgr : public CBasicPublisherMgr
{
public:
    using CBasicPublisherMgr::CBasicPublisherMgr;
    using CBasicPublisherMgr::GetPublisherMaintenanceInfo;

    UINT GetPublisherMgrType() override;

    /// A percentage, or a value ARV_PC_MAINTENANCEBOX_*. A service that answers in another size stops the
    /// process.
    virtual bool GetServiceMaintenanceboxStatus(LPCTSTR szPublisherRegistID, ULONG* pulMaintenanceBox,
                                                long* pResultCode);
    /// The counts as the service tells them, uncorrected. A service that answers in another size stops the
    /// process.
    virtual bool GetPublisherMaintenanceInfo(LPCTSTR szPublisherRegistID,
                                             ST_PC_MAINTENANCE_INFO* pMaintenanceInfo, long* pResultCode);
};

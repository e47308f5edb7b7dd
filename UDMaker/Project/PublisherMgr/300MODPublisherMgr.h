// The model with two DVD drives. Base class of the other models with two drives and of the model without
// drives.
#pragma once

#include "BasicPublisherMgr.h"

class C300MODPublisherMgr : public CBasicPublisherMgr
{
public:
    using CBasicPublisherMgr::CBasicPublisherMgr;
    using CBasicPublisherMgr::GetPublisherMaintenanceInfo;

    UINT GetPublisherMgrType() override;

    /// A percentage, or an ARV_PC_MAINTENANCEBOX_* value. A successful reply of another size stops the
    /// process.
    virtual bool GetServiceMaintenanceboxStatus(LPCTSTR szPublisherRegistID, ULONG* pulMaintenanceBox,
                                                long* pResultCode);
    /// The counts from the service, uncorrected. A successful reply of another size stops the process.
    virtual bool GetPublisherMaintenanceInfo(LPCTSTR szPublisherRegistID,
                                             ST_PC_MAINTENANCE_INFO* pMaintenanceInfo, long* pResultCode);
};

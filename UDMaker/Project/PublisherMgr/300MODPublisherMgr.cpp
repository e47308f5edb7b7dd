#include "300MODPublisherMgr.h"

UINT C300MODPublisherMgr::GetPublisherMgrType()
{
    return PUBMGR_PUBLISHERTYPE_300MOD;
}

bool C300MODPublisherMgr::GetServiceMaintenanceboxStatus(LPCTSTR szPublisherRegistID,
                                                         ULONG* pulMaintenanceBox, long* pResultCode)
{
    return QueryServiceChecked(ARV_PC_GET_MAINTENANCEBOX_STATUS, szPublisherRegistID, pulMaintenanceBox,
                               sizeof *pulMaintenanceBox, pResultCode);
}

bool C300MODPublisherMgr::GetPublisherMaintenanceInfo(LPCTSTR szPublisherRegistID,
                                                      ST_PC_MAINTENANCE_INFO* pMaintenanceInfo,
                                                      long* pResultCode)
{
    return QueryServiceChecked(ARV_PC_GET_MAINTENANCEINFO, szPublisherRegistID, pMaintenanceInfo,
                               sizeof *pMaintenanceInfo, pResultCode);
}

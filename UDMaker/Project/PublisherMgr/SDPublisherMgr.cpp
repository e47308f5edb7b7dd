#include "SDPublisherMgr.h"

#include "DeviceKey.h"
#include "RegUtility.h"

UINT CSDPublisherMgr::GetPublisherMgrType()
{
    return PUBMGR_PUBLISHERTYPE_SD;
}

CString CSDPublisherMgr::GetSupportWriteSpeedString(LPCTSTR szPublisherRegistID, UINT uiDrive)
{
    ASSERT(szPublisherRegistID != nullptr);
    PUBLISHERINFO info;
    CString strSpeeds;
    if (uiDrive == PUBMGR_USEDRIVE_DRIVE1 && GetPublisherInfo(szPublisherRegistID, &info, FALSE)) {
        CRegUtility::GetRegStrData(HKEY_LOCAL_MACHINE, DeviceKey(info.strGUID).c_str(),
                                   REG_PRN_REG_VAL_DRV_SUPPORT_WR_SPEED, &strSpeeds);
    }
    return strSpeeds;
}

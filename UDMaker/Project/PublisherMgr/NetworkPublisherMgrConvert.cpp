// Converts values of the network library to those of publisher management and the control service.
#include "NetworkPublisherMgr.h"

#include "WireText.h"

#include <algorithm>
#include <type_traits>

namespace {

constexpr UINT NO_VALUE = 0xFFFFFFFF;
constexpr DWORD LAST_DISC_TYPE = NCL_STACKER_BD_QL;
constexpr DWORD FULL_CARTRIDGE = 100;
constexpr size_t LONGEST_MADE_JOB_ID = 39;
/// The first cause that only servers report.
constexpr DWORD FIRST_FACTOR_OF_SERVERS = NCL_JOB_STATUS_FACTOR_ERR_DISC_UNMATCH;
/// Not a job state; the programs of the suite rely on the number.
constexpr unsigned long STATE_OF_A_SERVERS_FACTOR = 1001;

/// Copies the text, truncated to leave room for the NUL. The field must be zero before the call.
template <size_t size>
void CopyText(char (&field)[size], const std::string& text)
{
    std::copy_n(text.data(), std::min(text.size(), size - 1), field);
}

/// The id of a job that was submitted without one.
CString MadeJobID(LPCTSTR szPublisherRegistID, DWORD nServerJobID)
{
    CString strNumber;
    strNumber.Format(".%X", nServerJobID); // formatted alone: its length does not depend on the regist id
    return (CString(szPublisherRegistID) + strNumber).substr(0, LONGEST_MADE_JOB_ID);
}

/// An ARV_PC_JOB_* state, or 0.
unsigned long JobState(DWORD dwJobStatus)
{
    switch (dwJobStatus) {
    case NCL_JOB_STATUS_WAITING:
        return ARV_PC_JOB_WAITING;
    case NCL_JOB_STATUS_RUNNING:
        return ARV_PC_JOB_RUNNING;
    case NCL_JOB_STATUS_CANCEL_PENDING:
        return ARV_PC_JOB_CANCEL_PENDING;
    case NCL_JOB_STATUS_STOP_PENDING:
        return ARV_PC_JOB_STOP_PENDING;
    case NCL_JOB_STATUS_STOPPED:
        return ARV_PC_JOB_STOPPED;
    case NCL_JOB_STATUS_PAUSE_PENDING:
        return ARV_PC_JOB_PAUSE_PENDING;
    case NCL_JOB_STATUS_PAUSED:
        return ARV_PC_JOB_PAUSED;
    case NCL_JOB_STATUS_ERROR:
    case NCL_JOB_STATUS_FINISHED:
    case NCL_JOB_STATUS_FINISHED_WARNING:
        return ARV_PC_JOB_FINISHED;
    case NCL_JOB_STATUS_CANCELLED:
        return ARV_PC_JOB_CANCELLED;
    default:
        return 0;
    }
}

/// An ARV_PC_JOB_TYPE_* value, or 0.
unsigned long JobType(DWORD dwJobType)
{
    switch (dwJobType) {
    case NCL_JOB_TYPE_WRITE_PRN:
        return ARV_PC_JOB_TYPE_WRITE | ARV_PC_JOB_TYPE_PRINT;
    case NCL_JOB_TYPE_WRITE:
        return ARV_PC_JOB_TYPE_WRITE;
    case NCL_JOB_TYPE_PRN:
        return ARV_PC_JOB_TYPE_PRINT;
    case NCL_JOB_TYPE_NOZZLE_CHECK:
        return ARV_PC_JOB_TYPE_NOZZLECHECK;
    case NCL_JOB_TYPE_CLEANING:
        return ARV_PC_JOB_TYPE_CLEANING;
    case NCL_JOB_TYPE_GAP_ADJUSTMENT:
        return ARV_PC_JOB_TYPE_GAPADJUSTMENT_CONVEYANCE;
    case NCL_JOB_TYPE_PRN_POSITION_CORRECTION:
        return ARV_PC_JOB_TYPE_POSITIONOFFSET_CONVEYANCE;
    default:
        return 0;
    }
}

UINT DiscType(DWORD dwValue)
{
    if (dwValue == NCL_STACKER_DONTUSE) {
        return PUBMGR_STACKERDISCTYPE_NOTUSE;
    }
    return dwValue <= LAST_DISC_TYPE ? dwValue : NO_VALUE;
}

} // namespace

UINT CNetworkPublisherMgr::ConvertComLibValueToPubMgrValue_PubMode(DWORD dwValue)
{
    switch (dwValue) {
    case NCL_MODE_SECURITY:
        return PUBMGR_PUBLISHMODE_SECURITY;
    case NCL_MODE_OUTPUT_CONTROL:
        return PUBMGR_PUBLISHMODE_EJECTCONTROL;
    case NCL_MODE_NORMAL:
        return PUBMGR_PUBLISHMODE_NORMAL;
    case NCL_MODE_OUTPUT:
        return PUBMGR_PUBLISHMODE_OUTPUT;
    case NCL_MODE_BATCH:
        return PUBMGR_PUBLISHMODE_BATCH;
    default:
        return PUBMGR_PUBLISHMODE_ERROR;
    }
}

UINT CNetworkPublisherMgr::ConvertComLibValueToPubMgrValue(DWORD dwComLibValueType, DWORD dwValue)
{
    switch (dwComLibValueType) {
    case NCL_DIT_DRV_USED:
        return dwValue <= NCL_DRV_USED_DRIVE2 ? dwValue : NO_VALUE;
    case NCL_DIT_DRV_CONFIRM: // verify and compare have swapped numbers
        if (dwValue == NCL_DRV_CONFIRM_VERIFY) {
            return 2;
        }
        return dwValue == NCL_DRV_CONFIRM_COMPARE ? 1 : NO_VALUE;
    case NCL_DIT_WRITE_ERR_RETRY_COUNT:
        return dwValue;
    case NCL_DIT_PRINT_ERR_DISC_MARK:
        return dwValue <= NCL_PRINT_DISC_ERR_MARK_ON ? dwValue : NO_VALUE;
    case NCL_DIT_STACKER1_DISC_TYPE:
    case NCL_DIT_STACKER2_DISC_TYPE:
    case NCL_DIT_STACKER3_DISC_TYPE:
        return DiscType(dwValue);
    default:
        return NO_VALUE;
    }
}

ULONG CNetworkPublisherMgr::ConvertComLibValueToPubMgrValue_DrvStatus(const DrvStatusBaseEx& drv)
{
    switch (drv.dwStatus) {
    case NCL_DRV_STATUS_IDLE:
        return ARV_PC_DRV_STATE_IDLE;
    case NCL_DRV_STATUS_WRITING:
        return ARV_PC_DRV_STATE_WRITING;
    case NCL_DRV_STATUS_WRITING_COMFIRMATION:
        return ARV_PC_DRV_STATE_VERIFYING;
    case NCL_DRV_STATUS_ERROR:
        return ARV_PC_DRV_STATE_ERROR;
    case NCL_DRV_STATUS_NOTUSE:
        return ARV_PC_DRV_STATE_NOTUSE;
    case NCL_DRV_STATUS_CONVEYING:
        return ARV_PC_DRV_STATE_CONVEYING;
    case NCL_DRV_STATUS_PAUSE:
        return ARV_PC_DRV_STATE_PAUSE;
    default:
        ASSERT(false);
        return 0;
    }
}

ULONG CNetworkPublisherMgr::ConvertComLibValueToPubMgrValue_PrnStatus(const PrnStatus& dsPrinter)
{
    switch (dsPrinter.dwStatus) {
    case NCL_PRN_STATUS_IDLE:
        return ARV_PC_PRT_STATE_IDLE;
    case NCL_PRN_STATUS_CONVEYING:
        return ARV_PC_PRT_STATE_CONVEYING;
    case NCL_PRN_STATUS_PRINTING:
        return ARV_PC_PRT_STATE_PRINTING;
    case NCL_PRN_STATUS_CLEANING:
        return ARV_PC_PRT_STATE_CLEANING;
    case NCL_PRN_STATUS_DRYING:
        return ARV_PC_PRT_STATE_DRYING;
    case NCL_PRN_STATUS_PAUSE:
        return ARV_PC_PRT_STATE_PAUSE;
    default:
        ASSERT(false);
        return 0;
    }
}

ULONG CNetworkPublisherMgr::ConvertComLibValueToPubMgrValue_InkStatus(const InkStatusBase& isInk)
{
    if (isInk.dwInkCartridge <= FULL_CARTRIDGE) {
        return isInk.dwInkCartridge | (isInk.bInkNearEnd ? ARV_PC_INK_NEAR_EMPTY : 0);
    }
    switch (isInk.dwInkCartridge) {
    case NCL_INK_CARTRIDGE_REMOVED:
        return ARV_PC_INK_CARTRIDGE_REMOVED;
    case NCL_INK_CARTRIDGE_INVALID:
        return ARV_PC_INK_CARTRIDGE_INVALID;
    case NCL_INK_CARTRIDGE_NON_STANDARD:
        return ARV_PC_NON_STANDARD_INK;
    default:
        return ARV_PC_INK_UNKNOWN;
    }
}

ULONG CNetworkPublisherMgr::ConvertComLibValueToPubMgrValue_AldStatus(const ALDStatus& asAld)
{
    const struct
    {
        BOOL bSet;
        ULONG ulBits;
    } flags[] = {
        {asAld.bStacker1Removed, ARV_PC_ALD_STATE_STACKER1_REMOVED},
        {asAld.bStacker2Removed, ARV_PC_ALD_STATE_STACKER2_REMOVED},
        {asAld.bStacker3Removed, ARV_PC_ALD_STATE_STACKER3_REMOVED},
        {asAld.bStacker4Opened, ARV_PC_ALD_STATE_STACKER4_OPEN},
        {asAld.bDiscCoverOpen, ARV_PC_ALD_STATE_DISC_COVER_OPEN},
        {asAld.bInkCoverOpen, ARV_PC_ALD_STATE_INK_COVER_OPEN},
        {asAld.bStacker1Overflow, ARV_PC_ALD_STATE_STACKER1_OVERFLOW},
        {asAld.bStacker2Overflow, ARV_PC_ALD_STATE_STACKER2_OVERFLOW},
        {asAld.bStacker3Overflow, ARV_PC_ALD_STATE_STACKER3_OVERFLOW},
        {asAld.bDetectDiscQuantity, ARV_PC_ALD_STATE_RECOVER_DISC_COVER_OPEN},
        {asAld.bStopAtDiscCoverClose, ARV_PC_ALD_STATE_INITIALIZE | ARV_PC_ALD_STATE_INITIALIZE_SUSPEND |
                                          ARV_PC_ALD_STATE_RECOVER_DISC_COVER_OPEN_SUSPEND},
        {asAld.bStackerDiscPickError, ARV_PC_ALD_STATE_STK_DISC_PICK},
        {asAld.bBackup, ARV_PC_ALD_STATE_UNDER_MAINTENANCE},
        {asAld.bRestore, ARV_PC_ALD_STATE_UNDER_MAINTENANCE},
        {asAld.bDiscNoAdjustment, ARV_PC_ALD_STATE_ERROR_DISC_MANAGEMENT},
        {asAld.bFanLow, ARV_PC_ALD_STATE_FAN_ERROR},
    };
    ULONG ulStatus = 0;
    for (const auto& flag : flags) {
        ulStatus |= flag.bSet ? flag.ulBits : 0;
    }
    return ulStatus;
}

ULONG CNetworkPublisherMgr::ConvertComLibValueToPubMgrValue_StackerStatus(const StackerStatusBase& stk)
{
    const ULONG ulSupply = stk.bSupply ? ARV_PC_STK_STATUS_SUPPLY : 0;
    return ulSupply | (stk.dwDiscQuantity <= ARV_PC_STK_STATUS_OVERFLOW ? stk.dwDiscQuantity
                                                                        : ARV_PC_STK_STATUS_UNKNOWN);
}

template <class Status>
ST_PC_JOB_STATUS CNetworkPublisherMgr::ConvertComLibValueToPubMgrValue_JobStatusT(const Status& js,
                                                                                  LPCTSTR szPublisherRegistID)
{
    ST_PC_JOB_STATUS job = {};
    const CString strJobID = WireText(js.wszJobIdentificationID);
    CopyText(job.acJobID, strJobID.empty() ? MadeJobID(szPublisherRegistID, js.nServerJobID) : strJobID);
    CopyText(job.acJobName, WireText(js.wszJobName));
    if (js.dwFactor < FIRST_FACTOR_OF_SERVERS) {
        job.ulJobStatus = JobState(js.dwJobStatus);
        job.ulFactor = js.dwFactor;
    } else {
        job.ulJobStatus = STATE_OF_A_SERVERS_FACTOR;
    }
    job.ulCompletionNumber = js.dwCompletionNumber;
    job.ulEstimateTime = js.dwEstimateTime;
    job.ulErrorNumber = js.dwErrorNumber;
    job.ulPublicationNumber = js.dwPublicationNumber;
    CopyText(job.acPublicationPerson, WireText(js.wszPublicationPerson));
    job.ulJobType = JobType(js.dwJobType);
    job.ulSource = js.dwSource;
    job.ulDestination = js.dwDestination;
    job.ulPubMode = ConvertComLibValueToPubMgrValue_PubMode(js.dwPubMode);
    if constexpr (std::is_same_v<Status, JobStatusEx>) {
        job.ulRemainingTime = js.dwRemainingTime;
    }
    return job;
}

template ST_PC_JOB_STATUS
CNetworkPublisherMgr::ConvertComLibValueToPubMgrValue_JobStatusT(const JobStatus& js,
                                                                 LPCTSTR szPublisherRegistID);
template ST_PC_JOB_STATUS
CNetworkPublisherMgr::ConvertComLibValueToPubMgrValue_JobStatusT(const JobStatusEx& js,
                                                                 LPCTSTR szPublisherRegistID);

ST_PC_JOB_STATUS CNetworkPublisherMgr::ConvertComLibValueToPubMgrValue_JobStatus(const JobStatus& js,
                                                                                 LPCTSTR szPublisherRegistID)
{
    return ConvertComLibValueToPubMgrValue_JobStatusT(js, szPublisherRegistID);
}

ST_PC_JOB_STATUS CNetworkPublisherMgr::ConvertComLibValueToPubMgrValue_JobStatus(const JobStatusEx& js,
                                                                                 LPCTSTR szPublisherRegistID)
{
    return ConvertComLibValueToPubMgrValue_JobStatusT(js, szPublisherRegistID);
}

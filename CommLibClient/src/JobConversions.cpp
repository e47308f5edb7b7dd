// Converts the numbers in a server's job records to the client's constants.
#include "NW_Com_Lib_internal.h"

#include <iterator>

const DWORD dwJobCountMaxCost[4] = {1000, 50, 1000, 1000};

const DWORD dwSpecialJobTypeConst[6] = {
    NCL_JOB_TYPE_CLEANING,
    NCL_JOB_TYPE_NOZZLE_CHECK,
    NCL_JOB_TYPE_GAP_ADJUSTMENT,
    NCL_JOB_TYPE_GAP_ADJUSTMENT,
    NCL_JOB_TYPE_PRN_POSITION_CORRECTION,
    NCL_JOB_TYPE_PRN_POSITION_CORRECTION,
};

namespace {

constexpr WORD STACKER_NOT_SET = 0xFFFF;
constexpr DWORD FIRST_SPECIAL_PRINT_MODE = 4;

/// The result for a job status, factor or type beyond its table. The caller receives it as a value.
constexpr int BEYOND_TABLE = 13;

} // namespace

int ConvertJobStatus(DWORD dwValue)
{
    if (dwValue <= NCL_JOB_STATUS_FINISHED) {
        return static_cast<int>(dwValue);
    }
    // The server has no status for an end with a warning, so its number for a cancelled job is one lower.
    return dwValue == 9 ? static_cast<int>(NCL_JOB_STATUS_CANCELLED) : BEYOND_TABLE;
}

int ConvertJobStatusFactor(DWORD dwValue)
{
    return dwValue <= NCL_JOB_STATUS_FACTOR_ERR_STACKER4_OPENED ? static_cast<int>(dwValue) : BEYOND_TABLE;
}

int ConvertJobType(DWORD dwJobType, DWORD dwPrintMode)
{
    if (dwJobType > NCL_JOB_TYPE_PRN) {
        return BEYOND_TABLE;
    }
    if (dwPrintMode < FIRST_SPECIAL_PRINT_MODE) {
        return static_cast<int>(dwJobType);
    }
    const DWORD special = dwPrintMode - FIRST_SPECIAL_PRINT_MODE;
    return special < std::size(dwSpecialJobTypeConst) ? static_cast<int>(dwSpecialJobTypeConst[special]) : -1;
}

int ConvertLoadStacker(WORD wValue)
{
    switch (wValue) {
    case STACKER_NOT_SET:
        return NCL_STACKER_NOSETTING;
    case 0:
        return NCL_STACKER1 | NCL_STACKER2;
    case 1:
        return NCL_STACKER1;
    case 2:
        return NCL_STACKER2;
    default:
        return -1;
    }
}

int ConvertEjectStacker(WORD wValue)
{
    switch (wValue) {
    case STACKER_NOT_SET:
        return NCL_STACKER_NOSETTING;
    case 0:
        return NCL_STACKER2 | NCL_STACKER3;
    case 1:
        return NCL_STACKER1;
    case 2:
        return NCL_STACKER2;
    case 3:
        return NCL_STACKER3;
    case 4:
        return NCL_STACKER4;
    default:
        return -1;
    }
}

int ConvertPublishMode(DWORD dwValue)
{
    return dwValue <= 4 ? static_cast<int>(dwValue) : -1;
}

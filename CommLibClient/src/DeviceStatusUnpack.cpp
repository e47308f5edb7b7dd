// Decodes the bytes of a device status. Plain functions convert bytes to records.
#include "BigEndian.h"
#include "NW_Com_Lib_internal.h"

namespace {

constexpr DWORD TOP_BIT = 0x80000000;

/// The 32-bit word at this index.
DWORD Word(const char* pData, int index)
{
    return BigEndian32(pData + size_t{4} * index);
}

BOOL Flag(DWORD word, DWORD bits)
{
    return (word & bits) != 0 ? TRUE : FALSE;
}

/// A row of a table. The first row whose bit is set in the word determines the value.
struct BitMeaning
{
    DWORD bit;
    DWORD value;
};

template <size_t COUNT>
DWORD FirstMeaning(const BitMeaning (&meanings)[COUNT], DWORD word, DWORD otherwise)
{
    for (const BitMeaning& meaning : meanings) {
        if ((word & meaning.bit) != 0) {
            return meaning.value;
        }
    }
    return otherwise;
}

/// Converts consecutive words to the fields. Returns 0, or the number of the check that failed; the first
/// conversion is number 2.
template <typename Field, size_t COUNT>
int ConvertWords(const char* pData, int (*convert)(DWORD, Field*), Field* const (&fields)[COUNT])
{
    for (size_t index = 0; index < COUNT; ++index) {
        const int number = static_cast<int>(index);
        if (convert(Word(pData, number), fields[index]) != 0) {
            return number + 2;
        }
    }
    return 0;
}

/// Stores the words unchanged.
template <typename Record, size_t COUNT>
void StoreWords(const char* pData, Record* pRecord, int Record::* const (&fields)[COUNT])
{
    for (size_t index = 0; index < COUNT; ++index) {
        pRecord->*fields[index] = static_cast<int>(Word(pData, static_cast<int>(index)));
    }
}

} // namespace

int ConvertStackerStatus(DWORD dwValue, StackerStatusBase* pStatus)
{
    const DWORD quantity = dwValue & ~TOP_BIT;
    if (quantity > NCL_STACKER_STATUS_OVERFLOW) {
        return -1;
    }
    pStatus->dwDiscQuantity = quantity;
    pStatus->bSupply = Flag(dwValue, TOP_BIT);
    return 0;
}

int ConvertDrvStatus(DWORD dwValue, DWORD* pStatus)
{
    static constexpr BitMeaning MEANINGS[] = {
        {0x20, NCL_DRV_STATUS_NOTUSE},
        {0x10, NCL_DRV_STATUS_ERROR},
        {0x80, NCL_DRV_STATUS_PAUSE},
        {0x40, NCL_DRV_STATUS_CONVEYING},
        {0x8, NCL_DRV_STATUS_WRITING_COMFIRMATION},
        {0x4, NCL_DRV_STATUS_WRITING},
    };
    *pStatus = FirstMeaning(MEANINGS, dwValue, NCL_DRV_STATUS_IDLE);
    return 0;
}

int ConvertPrnStatus(DWORD dwValue, PrnStatus* pStatus)
{
    static constexpr BitMeaning MEANINGS[] = {
        {0x1, NCL_PRN_STATUS_IDLE},      {0x2, NCL_PRN_STATUS_CONVEYING}, {0x4, NCL_PRN_STATUS_PRINTING},
        {0x10, NCL_PRN_STATUS_CLEANING}, {0x20, NCL_PRN_STATUS_DRYING},   {0x8, NCL_PRN_STATUS_PAUSE},
    };
    pStatus->dwStatus = FirstMeaning(MEANINGS, dwValue, NCL_PRN_STATUS_IDLE);
    pStatus->bInkPadOverflowWarn = Flag(dwValue, 0x200);
    return 0;
}

int ConvertInkCartridgeStatus(DWORD dwValue, InkStatusBase* pStatus)
{
    constexpr DWORD FULL = 100;
    constexpr DWORD KIND_IS_KNOWN = 0x40000000;
    const BitMeaning meanings[] = {
        {0x100, NCL_INK_CARTRIDGE_REMOVED},
        {0x200, NCL_INK_CARTRIDGE_INVALID},
        {0x400, NCL_INK_UNKNOWN},
        {0x800, (dwValue & KIND_IS_KNOWN) != 0 ? NCL_INK_CARTRIDGE_NON_STANDARD : NCL_INK_UNKNOWN},
    };
    const DWORD amount = dwValue & 0x3FFFFFFF;
    pStatus->dwInkCartridge = amount <= FULL ? amount : FirstMeaning(meanings, dwValue, 0);
    pStatus->bInkNearEnd = Flag(dwValue, TOP_BIT);
    return 0;
}

int ConvertDeviceFatalError(DWORD dwValue, DeviceFatalError* pStatus)
{
    switch (dwValue) { // the server uses the numbers of the job status factors
    case 1:
        pStatus->dwDevStatus = NCL_FATAL_ERR_DISC_PICK;
        break;
    case 2:
        pStatus->dwDevStatus = NCL_FATAL_ERR_DISC_DROP;
        break;
    case 3:
        pStatus->dwDevStatus = NCL_FATAL_ERR_DISC_RELEASE;
        break;
    case 4:
        pStatus->dwDevStatus = NCL_FATAL_ERR_DRV_TRAY;
        break;
    case 5:
        pStatus->dwDevStatus = NCL_FATAL_ERR_PRN_TRAY;
        break;
    case 6:
        pStatus->dwDevStatus = NCL_FATAL_ERR_ARM_MOVE;
        break;
    case 25:
        pStatus->dwDevStatus = NCL_FATAL_ERR_CONDITION_FAILURE;
        break;
    case 26:
        pStatus->dwDevStatus = NCL_FATAL_ERR_PRN_FATAL;
        break;
    case 28:
        pStatus->dwDevStatus = NCL_FATAL_ERR_INK_PAD_OVERFLOW;
        break;
    case 29:
        pStatus->dwDevStatus = NCL_FATAL_ERR_PRN_MANTENANCE;
        break;
    case 39:
        pStatus->dwDevStatus = NCL_FATAL_ERR_DISC_SUPPLY;
        break;
    case 42:
        pStatus->dwDevStatus = NCL_FATAL_ERR_ALD_FATAL;
        break;
    case 43:
        pStatus->dwDevStatus = NCL_FATAL_ERR_DRV_FATAL;
        break;
    default:
        pStatus->dwDevStatus = NCL_FATAL_ERR_NONE;
        break;
    }
    return 0;
}

int UnpackALDStatus(const char* pData, ALDStatus* pStatus)
{
    *pStatus = {};
    DWORD word = Word(pData, 0);
    pStatus->bStacker1Removed = Flag(word, 0x1);
    pStatus->bStacker2Removed = Flag(word, 0x2);
    pStatus->bStacker3Removed = Flag(word, 0x4);
    pStatus->bStacker4Opened = Flag(word, 0x8);

    word = Word(pData, 1);
    pStatus->bStacker1Overflow = Flag(word, 0x1);
    pStatus->bStacker2Overflow = Flag(word, 0x2);
    pStatus->bStacker3Overflow = Flag(word, 0x4);

    word = Word(pData, 2);
    pStatus->bDiscCoverOpen = Flag(word, 0x1);
    pStatus->bInkCoverOpen = Flag(word, 0x2);
    pStatus->bElectronLock = Flag(word, 0x4);
    pStatus->bOutputDisc = Flag(word, 0x8);
    pStatus->bBackup = Flag(word, 0x10);
    pStatus->bRestore = Flag(word, 0x20);
    pStatus->bDetectDiscQuantity = Flag(word, 0x40);
    pStatus->bStopAtDiscCoverClose = Flag(word, 0x80 | 0x2000);

    word = Word(pData, 3);
    pStatus->bStackerDiscPickError = Flag(word, 0x1);
    pStatus->bStacker2Operated = Flag(word, 0x2);
    pStatus->bStacker1_2TotalOverflow = Flag(word, 0x4);
    pStatus->bDiscNoAdjustment = Flag(word, 0x8);
    pStatus->bFanLow = Flag(word, 0x10);
    pStatus->bStacker2DiscLeftAtPowerOn = Flag(word, 0x800);
    pStatus->bUnexpectedPowerOff = Flag(word, 0x1000);
    return 0;
}

int UnpackStackerStatus(const char* pData, StackerStatus* pStatus)
{
    *pStatus = {};
    return ConvertWords(pData, ConvertStackerStatus,
                        {&pStatus->Stacker1, &pStatus->Stacker2, &pStatus->Stacker3, &pStatus->Stacker4});
}

int UnpackDrvStatus(const char* pData, DrvStatus* pStatus)
{
    *pStatus = {};
    return ConvertWords(pData, ConvertDrvStatus, {&pStatus->Drv1.dwStatus, &pStatus->Drv2.dwStatus});
}

int UnpackDrvStatusEx(const char* pData, DrvStatusEx* pStatus)
{
    *pStatus = {};
    const int check =
        ConvertWords(pData, ConvertDrvStatus, {&pStatus->Drv1.dwStatus, &pStatus->Drv2.dwStatus});
    pStatus->Drv1.dwProgress = Word(pData, 2);
    pStatus->Drv2.dwProgress = Word(pData, 3);
    return check;
}

int UnpackPrnStatus(const char* pData, PrnStatus* pStatus)
{
    *pStatus = {};
    return ConvertWords(pData, ConvertPrnStatus, {pStatus});
}

int UnpackInkStatus(const char* pData, InkStatus* pStatus)
{
    *pStatus = {};
    return ConvertWords(pData, ConvertInkCartridgeStatus,
                        {&pStatus->Black, &pStatus->Cyan, &pStatus->LightCyan, &pStatus->Magenta,
                         &pStatus->LightMagenta, &pStatus->Yellow});
}

int UnpackDeviceFatalError(const char* pData, DeviceFatalError* pStatus)
{
    *pStatus = {};
    return ConvertWords(pData, ConvertDeviceFatalError, {pStatus});
}

int UnpackNotifyStatus(const char* pData, DWORD dwServerMode, NotifyStatus* pStatus)
{
    *pStatus = {};
    DeviceActiveStatus& active = pStatus->DevActive;
    DWORD word = Word(pData, 0);
    active.bALDArm = Flag(word, 0x1);
    active.bDrv1 = Flag(word, 0x2);
    active.bDrv2 = Flag(word, 0x4);
    active.bPrn = Flag(word, 0x8);
    active.bDisc = Flag(word, 0x10);

    JobHindranceFactor& factor = pStatus->JobFactor;
    word = Word(pData, 1);
    factor.bStacker1Empty = Flag(word, 0x1);
    factor.bStacker2Empty = Flag(word, 0x2);

    const DWORD full = Word(pData, 2);
    factor.bStacker4Full = Flag(full, 0x8);

    word = Word(pData, 6);
    factor.bDiscWriteError = Flag(word, 0x1);
    factor.bDrvMultiFeed = Flag(word, 0x4);
    factor.bPrnMultiFeed = Flag(word, 0x8);
    factor.bInkEmpty = Flag(word, 0x40);

    word = Word(pData, 7);
    factor.bDiscTypeError = Flag(word, 0x1);
    factor.bNotBlankDisc = Flag(word, 0x2);
    factor.bInkCartridgeNonStandard = Flag(word, 0x10);
    factor.bRemainDisc = Flag(word, 0x20);
    factor.bTakeOut = Flag(word, 0x40);

    // The mode determines the output stackers. In batch mode, stackers 2 and 3 may act as one.
    const BOOL isStacker2Full = Flag(full, 0x2);
    switch (dwServerMode) {
    case NCL_MODE_OUTPUT:
        factor.bStacker2Full = isStacker2Full;
        factor.bStacker3Full = Flag(full, 0x4);
        break;
    case NCL_MODE_BATCH: {
        const bool isStacker3Alone = Flag(word, 0x4) != FALSE;
        factor.bStacker2Full = isStacker3Alone ? FALSE : isStacker2Full;
        factor.bStacker3Full = isStacker3Alone ? TRUE : isStacker2Full;
        break;
    }
    default:
        factor.bStacker2Full = isStacker2Full;
        break;
    }
    return 0;
}

int UnpackMaintenanceInfo(const char* pData, MaintenanceInfo* pStatus)
{
    using Info = MaintenanceInfo;
    StoreWords(pData, pStatus,
               {&Info::nPrintCount, &Info::nDrv1TrayOpenCount, &Info::nDrv1TrayOpenLimit,
                &Info::nDrv1CDWriteSeconds, &Info::nDrv1CDWriteLimit, &Info::nDrv1DVDWriteSeconds,
                &Info::nDrv1DVDWriteLimit, &Info::nDrv2TrayOpenCount, &Info::nDrv2TrayOpenLimit,
                &Info::nDrv2CDWriteSeconds, &Info::nDrv2CDWriteLimit, &Info::nDrv2DVDWriteSeconds,
                &Info::nDrv2DVDWriteLimit});
    return 0;
}

int UnpackMaintenanceInfoEx(const char* pData, MaintenanceInfoEx* pStatus)
{
    using Info = MaintenanceInfoEx;
    StoreWords(pData, pStatus,
               {&Info::nPrintCount, &Info::nDrv1TrayOpenCount, &Info::nDrv1TrayOpenLimit,
                &Info::nDrv1CDWriteSeconds, &Info::nDrv1CDWriteLimit, &Info::nDrv1DVDWriteSeconds,
                &Info::nDrv1DVDWriteLimit, &Info::nDrv1BDWriteSeconds, &Info::nDrv1BDWriteLimit,
                &Info::nDrv2TrayOpenCount, &Info::nDrv2TrayOpenLimit, &Info::nDrv2CDWriteSeconds,
                &Info::nDrv2CDWriteLimit, &Info::nDrv2DVDWriteSeconds, &Info::nDrv2DVDWriteLimit,
                &Info::nDrv2BDWriteSeconds, &Info::nDrv2BDWriteLimit});
    return 0;
}

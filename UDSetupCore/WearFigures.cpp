#include "WearFigures.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double wholeLife = 100.0; // percent

QString notKnown()
{
    return QStringLiteral("-");
}

/// Percent, rounded down to two decimals. NaN for 0 of 0.
double share(UINT count, UINT limit)
{
    return std::floor(static_cast<double>(count) / static_cast<double>(limit) * 10000) / 100;
}

} // namespace

bool calcProductLife(UINT uiPresentValue, UINT uiUpperLimit, double* pdProductLife)
{
    ASSERT(pdProductLife != nullptr);
    if (uiPresentValue == ARV_PC_MAINTENANCEINFO_UNKNOWN || uiUpperLimit == ARV_PC_MAINTENANCEINFO_UNKNOWN ||
        uiUpperLimit == 0) {
        return false;
    }
    *pdProductLife = std::min(share(uiPresentValue, uiUpperLimit), wholeLife);
    return true;
}

bool calcDriveLifeValue(const PUBMAINTINFODRIVE& miDrive, double* pdProductLife)
{
    ASSERT(pdProductLife != nullptr);
    double dTrayCount = 0.0;
    double dWriteCDCount = 0.0;
    double dWriteDVDCount = 0.0;
    double dWriteBDCount = 0.0;
    double dWriteTimeTotal = 0.0;
    double dReadTimeTotal = 0.0;
    int nErr = 0;
    const auto calc = [&nErr](UINT uiPresentValue, UINT uiUpperLimit, double& dLife) {
        nErr += calcProductLife(uiPresentValue, uiUpperLimit, &dLife) ? 0 : 1;
    };
    calc(miDrive.uiTrayCount, miDrive.uiTrayLife, dTrayCount);
    calc(miDrive.uiWriteCDCount, miDrive.uiWriteCDLife, dWriteCDCount);
    calc(miDrive.uiWriteDVDCount, miDrive.uiWriteDVDLife, dWriteDVDCount);
    calc(miDrive.uiWriteBDCount, miDrive.uiWriteBDLife, dWriteBDCount);
    calc(miDrive.uiDriveWriteTimeTotal, miDrive.uiDriveWriteTimeTotalLife, dWriteTimeTotal);
    calc(miDrive.uiDriveReadTimeTotal, miDrive.uiDriveReadTimeTotalLife, dReadTimeTotal);
    *pdProductLife =
        std::max({dTrayCount, dWriteCDCount, dWriteDVDCount, dWriteBDCount, dWriteTimeTotal, dReadTimeTotal});
    constexpr int parts = 6;
    return nErr < parts;
}

QString countText(UINT count)
{
    return count == ARV_PC_MAINTENANCEINFO_UNKNOWN ? notKnown() : QString::asprintf("%u", count);
}

QString mainteBoxText(UINT count, UINT life)
{
    const double freeSpace = wholeLife - share(count, life);
    return freeSpace < 0 ? notKnown() : QString::number(freeSpace, 'f', 2);
}

QString driveLifeText(const PUBMAINTINFODRIVE& miDrive)
{
    double life = 0.0;
    return calcDriveLifeValue(miDrive, &life) ? QString::number(std::floor(life), 'g', 6) : notKnown();
}

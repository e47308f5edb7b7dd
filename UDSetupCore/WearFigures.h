// How a publisher's counts and wear are shown. The texts are not translated and have a decimal point in every
// locale. A count of 0xFFFFFFFF is unknown and shows as "-".
#pragma once

#include "PublisherMgrIF.h"

#include <QString>

/// The used share of a limit in percent, rounded down to two decimals, at most 100. Returns false and writes
/// nothing if the count or the limit is unknown or the limit is 0.
bool calcProductLife(UINT uiPresentValue, UINT uiUpperLimit, double* pdProductLife);

/// The largest share among the parts of a drive. Always written; returns false if none is known.
bool calcDriveLifeValue(const PUBMAINTINFODRIVE& miDrive, double* pdProductLife);

QString countText(UINT count);

/// Free space in percent with two decimals; "-" if the count exceeds the limit.
QString mainteBoxText(UINT count, UINT life);

/// The wear of the drive's most worn part in whole percent; "-" if nothing is known.
QString driveLifeText(const PUBMAINTINFODRIVE& miDrive);

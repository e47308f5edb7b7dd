// How a publisher's counts and wear are shown. The texts are not translated and have a decimal point in every
// locale. A count or limit of 0xFFFFFFFF is unknown.
#pragma once

#include "PublisherMgrIF.h"

#include <QString>

/// The used share of a limit in percent, rounded down to two decimals, at most 100. Returns false and writes
/// nothing if the count or the limit is unknown or the limit is 0.
bool calcProductLife(UINT uiPresentValue, UINT uiUpperLimit, double* pdProductLife);

/// The largest share among the parts of a drive. Always written; returns false if none is known.
bool calcDriveLifeValue(const PUBMAINTINFODRIVE& miDrive, double* pdProductLife);

/// The count in decimal digits; "-" if it is unknown.
QString countText(UINT count);

/// Free space in percent with two decimals; "-" if it is negative. Calculates with unknown values as with any
/// other: if both are unknown, the text is "0.00". It is "nan" if both are 0.
QString mainteBoxText(UINT count, UINT life);

/// The wear of the drive's most worn part in percent, rounded down to an integer; "-" if it is unknown.
QString driveLifeText(const PUBMAINTINFODRIVE& miDrive);

// How a publisher's counts and wear are shown. The texts are not translated, and have a decimal point in
// every locale. A count of 0xFFFFFFFF is not known, and shows as "-".
#pragma once

#include "PublisherMgrIF.h"

#include <QString>

/// The used share of a limit in percent, cut to two decimals, at most 100. False, with nothing written, when
/// the count or the limit is not known or the limit is 0.
bool calcProductLife(UINT uiPresentValue, UINT uiUpperLimit, double* pdProductLife);

/// The largest share among the parts of a drive, written in any case; false when none is known.
bool calcDriveLifeValue(const PUBMAINTINFODRIVE& miDrive, double* pdProductLife);

QString countText(UINT count);

/// Free space in percent with two decimals; "-" when the box took more than its limit.
QString mainteBoxText(UINT count, UINT life);

/// Whole percent of the drive's most worn part; "-" when nothing is known.
QString driveLifeText(const PUBMAINTINFODRIVE& miDrive);

// The order in which people expect to find names that end in numbers: "A9" before "A10".
#pragma once

#include <QString>

/// True when `a` stands before `b`. Runs of number characters that meet at the same place compare by their
/// length first and only then by their value, so "007" stands behind "12". All else compares by code unit.
bool naturalLess(const QString& a, const QString& b);

// The order that users expect for names that end in numbers: "A9" before "A10".
#pragma once

#include <QString>

/// True if `a` sorts before `b`. Runs of number characters at the same position compare by length first and
/// then by value, so "007" sorts after "12". Everything else compares by code unit.
bool naturalLess(const QString& a, const QString& b);

// What a publisher server answers to every question that the library can ask, printed line by line.
#pragma once

#include <string>

#include "NW_Com_Lib.h"

namespace probe {

/// Prints "NAME: OUTCOME" of one operation, with the result code's number when it failed. True when it did
/// not.
bool report(const std::string& name, DWORD result);

/// Asks for everything: kind, mode, information, statuses, numbers and lists of jobs. `failed` counts the
/// operations that did not succeed though they had to.
void printEverything(DWORD handle, int& failed);

} // namespace probe

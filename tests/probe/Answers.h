// Sends every query of the library to a publisher server and prints the replies line by line.
#pragma once

#include <string>

#include "NW_Com_Lib.h"

namespace probe {

/// Prints "NAME: OUTCOME" for one operation, with the number of the result code after a failure. True on
/// success.
bool report(const std::string& name, DWORD result);

/// Queries everything: kind, mode, information, statuses, numbers and lists of jobs. Adds the number of
/// required operations that failed to `failed`.
void printEverything(DWORD handle, int& failed);

} // namespace probe

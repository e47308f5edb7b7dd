// The name that the publisher list shows for a publisher.
#pragma once

#include "Win_def_MFC.h"

/// What `name` reads back as once it is stored. The setting file keeps the first line, or "NotSet" if that is
/// empty. The reader of the file
/// - keeps bytes from 32 to 126, as many as fit into a line of 1023 bytes with the key,
/// - cuts at the first ";",
/// - skips leading blanks, one leading "=" and trailing blanks,
/// - returns at most 255 bytes of the rest, which may be empty.
CString listedName(const CString& name);

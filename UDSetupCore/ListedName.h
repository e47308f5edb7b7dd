// The name under which the list will show a publisher.
#pragma once

#include "Win_def_MFC.h"

/// What `name` reads back as once it is stored. Of its bytes the setting file keeps one line, or "NotSet" for
/// an empty one, and its reader
/// - takes those from 32 to 126, as many as fit into a line of 1023 with the key,
/// - cuts at the first ";",
/// - skips blanks and one "=" in front, and blanks at the end,
/// - gives at most 255 of what is left, and so an empty text if nothing is.
CString listedName(const CString& name);

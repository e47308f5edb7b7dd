// The user who started this program with elevated privileges.
#pragma once

#include <cstdlib>

/// That user's id from "PKEXEC_UID", or else from "SUDO_UID", unchecked: it need not be a number. NULL if
/// neither is set.
inline const char* callersUserID()
{
    const char* pkexecUser = std::getenv("PKEXEC_UID");
    return pkexecUser != nullptr ? pkexecUser : std::getenv("SUDO_UID");
}

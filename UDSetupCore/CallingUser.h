// The user who had this program run with raised rights.
#pragma once

#include <cstdlib>

/// That user's number as the environment has it, which need not be one: "PKEXEC_UID", or else "SUDO_UID".
/// NULL for nobody.
inline const char* callersUserID()
{
    const char* pkexecUser = std::getenv("PKEXEC_UID");
    return pkexecUser != nullptr ? pkexecUser : std::getenv("SUDO_UID");
}

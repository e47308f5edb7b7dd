// What the tests of submitting a job share.
#pragma once

#include "FakePublisher.h"

#include <string_view>

inline constexpr int ID = 1234; ///< of the submitted job
inline constexpr DWORD MIB10 = 10485760;
/// The SHA-1 digest of "abc".
inline const std::string ABC_HASH = "a9993e364706816aba3e25717850c26c9cd0d89d";
inline const std::string OK = HttpResponse("");
inline const std::string BAD = HttpResponse("", "500 Oh");

inline const BYTE* Bytes(std::string_view text)
{
    return reinterpret_cast<const BYTE*>(text.data());
}

/// Sets the state in the middle of the submission of job 1234.
inline void BeginJob(FakePublisher& publisher)
{
    publisher->m_nServerJobID = ID;
    publisher->m_strUploadUserName = "000004d2";
    publisher->m_strUploadPassword = "secret";
}

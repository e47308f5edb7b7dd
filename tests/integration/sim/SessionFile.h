// Where the tests of recording and replay keep the session.
#pragma once

inline constexpr char SESSION_FILE[] = "/tmp/session.udrec";

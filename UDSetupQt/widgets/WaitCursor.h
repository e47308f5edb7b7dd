// The wait cursor, for calls that block the user-interface thread.
#pragma once

/// Shows the wait cursor over all windows during its lifetime. The display receives it before the constructor
/// returns, without processing events. User-interface thread. Must not exist while a message box or another
/// event loop runs.
class WaitCursor
{
public:
    WaitCursor();
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor();
};

// The wait cursor, for calls that block the user-interface thread.
#pragma once

/// Shows the wait cursor over all windows while it lives. The display has it before the constructor returns;
/// no event is served for that. User-interface thread. Must not live while a box or another event loop runs.
class WaitCursor
{
public:
    WaitCursor();
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor();
};

// The log of the network client: each message goes to syslog, under the program's own name.
#pragma once

// Its priorities are macros with the names of the operations below. They are taken in first, so that no later
// include brings them back, and then given up.
#include <syslog.h>
#undef LOG_ERR
#undef LOG_INFO
#undef LOG_DEBUG

/// For whoever wants to hear of messages.
class INotifyLog
{
public:
    virtual ~INotifyLog() = default;
    virtual void Notify(const char* pszMsg) = 0;
};

/// Has no state: a caller makes one for a message, or for the length of an operation. Any thread may.
class CLogManager : public INotifyLog
{
public:
    ~CLogManager() override = default;

    /// Does nothing.
    void Notify(const char* pszMsg) override;

    // Each passes its printf format and arguments on; nobody calls openlog, so ident and facility are the
    // system's. A null text goes to the system's formatting as it is.
    void LOG_ERR(const char* msg, ...) __attribute__((format(printf, 2, 3)));
    void LOG_WARN(const char* msg, ...) __attribute__((format(printf, 2, 3)));
    void LOG_INFO(const char* msg, ...) __attribute__((format(printf, 2, 3)));
    void LOG_DEBUG(const char* msg, ...) __attribute__((format(printf, 2, 3)));
};

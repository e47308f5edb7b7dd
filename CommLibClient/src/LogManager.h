// The log of the network client: each message goes to syslog, under the program's own name.
#pragma once

// The priorities of syslog are macros with the names of the operations below. The header is included first,
// so that no later include defines them again, and then they are undefined.
#include <syslog.h>
#undef LOG_ERR
#undef LOG_INFO
#undef LOG_DEBUG

/// Receives messages.
class INotifyLog
{
public:
    virtual ~INotifyLog() = default;
    virtual void Notify(const char* pszMsg) = 0;
};

/// Stateless: a caller creates one per message or per operation. Any thread may use one.
class CLogManager : public INotifyLog
{
public:
    ~CLogManager() override = default;

    /// Does nothing.
    void Notify(const char* pszMsg) override;

    // Each passes its printf format and arguments to syslog. openlog is never called, so ident and facility
    // are the defaults of the system. A null text is passed to the formatting of the system unchanged.
    void LOG_ERR(const char* msg, ...) __attribute__((format(printf, 2, 3)));
    void LOG_WARN(const char* msg, ...) __attribute__((format(printf, 2, 3)));
    void LOG_INFO(const char* msg, ...) __attribute__((format(printf, 2, 3)));
    void LOG_DEBUG(const char* msg, ...) __attribute__((format(printf, 2, 3)));
};

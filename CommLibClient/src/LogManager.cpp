#include "LogManager.h"

#include <cstdarg>

namespace {

// The priorities of syslog. The macros of syslog have the names of the operations here.
constexpr int PRIORITY_ERR = 3;
constexpr int PRIORITY_WARNING = 4;
constexpr int PRIORITY_INFO = 6;
constexpr int PRIORITY_DEBUG = 7;

} // namespace

void CLogManager::Notify(const char*) {}

void CLogManager::LOG_ERR(const char* msg, ...)
{
    va_list args;
    va_start(args, msg);
    vsyslog(PRIORITY_ERR, msg, args);
    va_end(args);
}

void CLogManager::LOG_WARN(const char* msg, ...)
{
    va_list args;
    va_start(args, msg);
    vsyslog(PRIORITY_WARNING, msg, args);
    va_end(args);
}

void CLogManager::LOG_INFO(const char* msg, ...)
{
    va_list args;
    va_start(args, msg);
    vsyslog(PRIORITY_INFO, msg, args);
    va_end(args);
}

void CLogManager::LOG_DEBUG(const char* msg, ...)
{
    va_list args;
    va_start(args, msg);
    vsyslog(PRIORITY_DEBUG, msg, args);
    va_end(args);
}

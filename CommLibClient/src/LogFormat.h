// Formats of log lines as data. Each is one literal, so that a search for a logged line finds the code that
// wrote it.
#pragma once

#include "LogManager.h"

#include <cstddef>
#include <type_traits>

/// Not constexpr: the compiler reports this name if the conversions of a format do not match its type.
inline void FormatHasOtherConversions() {}

/// A printf format with one conversion for each argument, checked at compile time: %s for const char*, %d for
/// int. The text is a literal.
template <class... Args>
class LogFormat
{
public:
    // Implicit, so that functions take a literal.
    template <size_t N>
    consteval LogFormat(const char (&text)[N]) : m_text(text)
    {
        const char expected[] = {CONVERSION<Args>..., '\0'};
        size_t found = 0;
        for (size_t index = 0; index + 1 < N; ++index) {
            if (text[index] != '%') {
                continue;
            }
            ++index;
            if (text[index] != expected[found]) {
                FormatHasOtherConversions();
            }
            ++found;
        }
        if (found != sizeof...(Args)) {
            FormatHasOtherConversions();
        }
    }

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral" // the constructor has checked it
    void Error(std::type_identity_t<Args>... args) const
    {
        CLogManager().LOG_ERR(m_text, args...);
    }
    void Warn(std::type_identity_t<Args>... args) const
    {
        CLogManager().LOG_WARN(m_text, args...);
    }
    void Info(std::type_identity_t<Args>... args) const
    {
        CLogManager().LOG_INFO(m_text, args...);
    }
    void Debug(std::type_identity_t<Args>... args) const
    {
        CLogManager().LOG_DEBUG(m_text, args...);
    }
#pragma GCC diagnostic pop

private:
    template <class Arg>
    static constexpr char CONVERSION = std::is_same_v<Arg, const char*> ? 's' : 'd';
    static_assert(sizeof...(Args) > 0 &&
                  ((std::is_same_v<Args, const char*> || std::is_same_v<Args, int>) && ...));

    const char* m_text;
};

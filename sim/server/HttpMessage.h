// A request to a publisher server, after parsing, and its reply, before encoding.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace udsim {

using HttpHeaders = std::vector<std::pair<std::string, std::string>>;

struct HttpRequest
{
    std::string host; ///< the server's address
    std::string method;
    std::string target; ///< as received in the request line
    std::string version;
    HttpHeaders headers;   ///< in the order received
    std::string body;      ///< a request kept by a Room has only the first `MOST_BODY_KEPT` bytes
    uint64_t bodySize = 0; ///< set only in a request kept by a Room
    std::string bodySha1;  ///< set only in a request kept by a Room; hexadecimal digits

    static constexpr size_t MOST_BODY_KEPT = 65'536;

    /// Returns the target up to the "?".
    std::string path() const;
    /// Returns the value of the first header of this name, ignoring case; empty if there is none.
    std::string header(std::string_view name) const;
    /// Returns the keys and values after the "?", or in the body of a posted form. They are not unescaped.
    std::map<std::string, std::string> parameters() const;
};

struct HttpReply
{
    unsigned status = 200;
    std::string body;
};

inline constexpr char FORM_TYPE[] = "application/x-www-form-urlencoded";

/// Returns the reason phrase of a status line.
const char* reasonOf(unsigned status);
/// Returns the SHA-1 in hexadecimal digits.
std::string sha1Of(std::string_view bytes);
/// Returns the value of an "Authorization" header.
std::string basicCredentials(const std::string& user, const std::string& password);

} // namespace udsim

// A request to a publisher server and its reply, before and behind the wire.
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
    std::string host; ///< the address that it came to
    std::string method;
    std::string target; ///< as it stood in the request line
    std::string version;
    HttpHeaders headers; ///< in the order of their arrival
    std::string body;    ///< in what a room keeps only its first `MOST_BODY_KEPT` bytes
    uint64_t bodySize = 0;
    std::string bodySha1; ///< in what a room keeps; hexadecimal digits

    static constexpr size_t MOST_BODY_KEPT = 65'536;

    /// The target up to the "?".
    std::string path() const;
    /// The value of the first header of this name, in whatever case; empty when there is none.
    std::string header(std::string_view name) const;
    /// The keys and values behind the "?"; of a form that was posted, of its body. As they came: nothing is
    /// unescaped.
    std::map<std::string, std::string> parameters() const;
};

struct HttpReply
{
    unsigned status = 200;
    std::string body;
};

inline constexpr char FORM_TYPE[] = "application/x-www-form-urlencoded";

/// The words of a status line for a code that the server gives.
const char* reasonOf(unsigned status);
/// SHA-1 in hexadecimal digits.
std::string sha1Of(std::string_view bytes);
/// The value of an "Authorization" header.
std::string basicCredentials(const std::string& user, const std::string& password);

} // namespace udsim

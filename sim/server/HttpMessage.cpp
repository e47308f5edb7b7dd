#include "HttpMessage.h"

#include <algorithm>

#include <glib.h>
#include <strings.h>

namespace udsim {

namespace {

/// Copies a text allocated by GLib and frees it.
std::string taken(gchar* text)
{
    std::string copy = text == nullptr ? "" : text;
    g_free(text);
    return copy;
}

} // namespace

std::string HttpRequest::path() const
{
    return target.substr(0, target.find('?'));
}

std::string HttpRequest::header(std::string_view name) const
{
    const auto found = std::find_if(headers.begin(), headers.end(), [&](const auto& one) {
        return one.first.size() == name.size() &&
               ::strncasecmp(one.first.data(), name.data(), name.size()) == 0;
    });
    return found == headers.end() ? "" : found->second;
}

std::map<std::string, std::string> HttpRequest::parameters() const
{
    const size_t question = target.find('?');
    std::string text = question == std::string::npos ? "" : target.substr(question + 1);
    if (header("Content-Type") == FORM_TYPE) {
        text = body;
    }
    std::map<std::string, std::string> parameters;
    for (size_t from = 0; from < text.size();) {
        const size_t end = std::min(text.find('&', from), text.size());
        const std::string pair = text.substr(from, end - from);
        const size_t equals = std::min(pair.find('='), pair.size());
        parameters[pair.substr(0, equals)] = equals < pair.size() ? pair.substr(equals + 1) : "";
        from = end + 1;
    }
    return parameters;
}

const char* reasonOf(unsigned status)
{
    switch (status) {
    case 200:
        return "OK";
    case 201:
        return "Created";
    case 204:
        return "No Content";
    case 400:
        return "Bad Request";
    case 401:
        return "Unauthorized";
    case 403:
        return "Forbidden";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    case 409:
        return "Conflict";
    case 413:
        return "Request Entity Too Large";
    case 500:
        return "Internal Server Error";
    case 503:
        return "Service Unavailable";
    case 507:
        return "Insufficient Storage";
    default:
        return "Status";
    }
}

std::string sha1Of(std::string_view bytes)
{
    return taken(g_compute_checksum_for_data(G_CHECKSUM_SHA1, reinterpret_cast<const guchar*>(bytes.data()),
                                             bytes.size()));
}

std::string basicCredentials(const std::string& user, const std::string& password)
{
    const std::string pair = user + ":" + password;
    return "Basic " + taken(g_base64_encode(reinterpret_cast<const guchar*>(pair.data()), pair.size()));
}

} // namespace udsim

// An open connection to a publisher server in memory, and the requests that it received.
#pragma once

#include "Servlets.h"

/// Logged for an invalid parameter.
inline const std::string COMMON_LINE = "<3>[CommLib] ***Common Parameta Error***";

/// A good reply of one item without data.
inline std::string Done()
{
    return GoodReply("");
}

/// A request as the server saw it.
struct FakeRequest
{
    std::string head; ///< including the empty line at its end
    std::string body;

    /// "GET /path"
    std::string Line() const
    {
        return head.substr(0, head.find(" HTTP/1.1\r\n"));
    }
    /// The text after "Name:", without an optional blank; "(none)" if there is no such line.
    std::string Header(const std::string& name) const
    {
        const size_t place = head.find("\r\n" + name + ":");
        if (place == std::string::npos) {
            return "(none)";
        }
        size_t begin = place + 2 + name.size() + 1;
        begin += head[begin] == ' ' ? 1 : 0;
        return head.substr(begin, head.find("\r\n", begin) - begin);
    }
};

/// Separates the requests. The destructor discards an unfinished disc image, so that its digest is not sent.
class FakePublisher : public FakeServer
{
public:
    using FakeServer::FakeServer;
    ~FakePublisher()
    {
        Object().m_pMD.reset();
    }

    ST_NCL* operator->()
    {
        return &Object();
    }

    std::vector<FakeRequest> Requests()
    {
        std::vector<FakeRequest> requests;
        bool isBodyNext = false;
        for (const std::string& bytes : Comm().writes) {
            if (isBodyNext) {
                requests.back().body = bytes;
                isBodyNext = false;
            } else {
                requests.push_back({bytes, ""});
                isBodyNext = requests.back().Header("Content-Length") != "(none)";
            }
        }
        return requests;
    }
    /// "METHOD /path" of each request.
    std::vector<std::string> Lines()
    {
        std::vector<std::string> lines;
        for (const FakeRequest& request : Requests()) {
            lines.push_back(request.Line());
        }
        return lines;
    }
    /// The rest of the prepared replies.
    std::string Unread()
    {
        return Comm().Unread();
    }
};

// A publisher server that is called directly, without a network, and the bytes of its replies.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "PublisherServer.h"
#include "RawClient.h"
#include "RoomFixture.h"

/// An item of a reply.
inline std::string item(const std::string& data, char status = 0)
{
    return std::string(1, status) + static_cast<char>(data.size() >> 8) +
           static_cast<char>(data.size() & 0xFF) + data;
}

/// "00 01 ff" as bytes.
inline std::string hex(const std::string& text)
{
    std::string bytes;
    for (size_t i = 0; i + 1 < text.size(); i += 3) {
        bytes += static_cast<char>(std::stoi(text.substr(i, 2), nullptr, 16));
    }
    return bytes;
}

inline const std::string FORM_HEADER = "application/x-www-form-urlencoded";

class NetworkServer
{
public:
    explicit NetworkServer(const std::string& keys, const std::string& model = "RT-300NII BD-XL")
        : server(scenarioOf("[network N]\nmodel = " + model + "\n" + keys).servers.at(0))
    {
    }

    udsim::HttpReply ask(const std::string& method, const std::string& target, const std::string& body = "",
                         const udsim::HttpHeaders& headers = {})
    {
        udsim::HttpRequest request;
        request.method = method;
        request.target = target;
        request.headers = headers;
        request.body = body;
        return server.answer(request);
    }
    std::string get(const std::string& target)
    {
        return ask("GET", target).body;
    }
    std::string post(const std::string& target, const std::string& form)
    {
        return ask("POST", target, form, {{"Content-Type", FORM_HEADER}}).body;
    }
    /// Sends an action for a job. Returns the status byte, or -1 for any other reply.
    int control(const std::string& action, const std::string& job)
    {
        const std::string reply = post("/webapp2/JobController", "action=" + action + "&serverjobid=" + job);
        return reply.size() == 3 && reply.substr(1) == std::string(2, '\0') ? reply[0] : -1;
    }
    /// Registers a job. Returns its id in eight digits and sets `headers` to its credentials.
    std::string registerJob(udsim::HttpHeaders& headers, const std::string& data = "Count = 1\n",
                            const std::string& servlet = "NormalJobSetter")
    {
        const std::string reply = ask("POST", "/webapp2/" + servlet, data).body;
        EXPECT_EQ(reply.substr(0, 3), hex("00 00 04")) << servlet;
        if (reply.size() != 7) {
            return {};
        }
        const std::string id = hexDigits(reply.substr(3));
        const std::string password = get("/webapp2/UploadInfoGetter?serverjobid=" + id);
        EXPECT_GT(password.size(), 3U);
        headers = {{"Authorization", udsim::basicCredentials(id, password.substr(3))}};
        return id;
    }
    unsigned put(const std::string& path, const std::string& body, udsim::HttpHeaders headers,
                 const std::string& range = "")
    {
        if (!range.empty()) {
            headers.emplace_back("Content-Range", "bytes " + range);
        }
        return ask("PUT", path, body, headers).status;
    }
    unsigned hash(const std::string& id, const std::string& file, const std::string& digest,
                  const std::string& type = "SHA-1", const std::string& servlet = "/webapp2/FileHashSetter")
    {
        return ask("POST", servlet,
                   "serverjobid=" + id + "&filename=" + file + "&hashtype=" + type + "&hash=" + digest,
                   {{"Content-Type", FORM_HEADER}})
            .status;
    }
    static std::string hexDigits(const std::string& bytes)
    {
        std::string text;
        for (const char byte : bytes) {
            text += "0123456789abcdef"[static_cast<uint8_t>(byte) >> 4];
            text += "0123456789abcdef"[static_cast<uint8_t>(byte) & 15];
        }
        return text;
    }

    udsim::PublisherServer server;
};

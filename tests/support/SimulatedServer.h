// A simulated network publisher that answers the raw requests of a client, without sockets.
#pragma once

#include "HttpText.h"
#include "Scenario.h"
#include "Servlets.h"

#include <stdexcept>
#include <string>

class SimulatedServer
{
public:
    /// Its list has one unfinished job, whose submitter calls it "J". Throws std::runtime_error for a mistake
    /// in `settings`, further lines of the scenario's section.
    explicit SimulatedServer(const std::string& settings = "")
        : m_server(SetupOf("[network A]\nmodel = RT-300NII\n" + settings))
    {
        udsim::JobSetup job;
        job.reference = "J";
        m_server.machine().addJob(job);
    }

    /// The reply to a whole request.
    std::string Answer(const std::string& bytes)
    {
        const udsim::HttpReply reply = m_server.answer(RequestOf(bytes));
        return HttpResponse(reply.body, std::to_string(reply.status) + " " + udsim::reasonOf(reply.status));
    }

private:
    static udsim::ServerSetup SetupOf(const std::string& text)
    {
        std::string error;
        const auto scenario = udsim::Scenario::parse(text, error);
        if (!scenario) {
            throw std::runtime_error("SimulatedServer: " + error);
        }
        return scenario->servers.front();
    }

    static udsim::HttpRequest RequestOf(const std::string& bytes)
    {
        constexpr size_t LINE_END_SIZE = sizeof udsim::LINE_END - 1;
        udsim::HttpRequest request;
        const size_t end = bytes.find(udsim::HEAD_END);
        size_t from = bytes.find(udsim::LINE_END);
        const std::string line = bytes.substr(0, from);
        const size_t first = line.find(' ');
        const size_t last = line.rfind(' ');
        request.method = line.substr(0, first);
        request.target = line.substr(first + 1, last - first - 1);
        request.version = line.substr(last + 1);
        while (from < end) {
            from += LINE_END_SIZE;
            const size_t next = bytes.find(udsim::LINE_END, from);
            const size_t colon = bytes.find(':', from);
            const size_t value = bytes.find_first_not_of(' ', colon + 1);
            request.headers.emplace_back(bytes.substr(from, colon - from), bytes.substr(value, next - value));
            from = next;
        }
        request.body = bytes.substr(end + sizeof udsim::HEAD_END - 1);
        return request;
    }

    udsim::PublisherServer m_server;
};

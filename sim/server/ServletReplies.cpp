#include "ServletReplies.h"

#include <algorithm>
#include <array>

#include "ServerJobText.h"
#include "ServletNumbers.h"
#include "ServletPayloads.h"
#include "Text.h"

namespace udsim {

namespace {

using Parameters = std::map<std::string, std::string>;

struct Call
{
    const HttpRequest& request;
    Parameters parameters;
    PublisherServer& server;
};

/// Returns an item without data: a failure, or the result of a command.
std::string outcome(uint8_t status)
{
    return replyItem(status);
}

std::string success(std::string_view data = {})
{
    return replyItem(servlet_status::SUCCESS, data);
}

std::string valueOf(const Call& call, const std::string& key)
{
    const auto found = call.parameters.find(key);
    return found == call.parameters.end() ? "" : found->second;
}

/// Returns a decimal number; nothing if the value is not one.
std::optional<uint32_t> numberOf(const Call& call, const std::string& key)
{
    const std::string text = valueOf(call, key);
    if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos) {
        return std::nullopt;
    }
    const auto number = parseNumber(text, UINT32_MAX);
    return number ? std::optional(static_cast<uint32_t>(*number)) : std::nullopt;
}

bool speaksVersion(const Call& call)
{
    return valueOf(call, "ifversion") == call.server.setup().interfaceVersion;
}

std::string serverMode(const Call& call)
{
    return success(bigEndian(call.server.setup().serverMode(), 1));
}

std::string checkVersion(const Call& call)
{
    return speaksVersion(call) ? success() : outcome(servlet_status::VERSION);
}

std::string deviceText(const Call& call)
{
    const auto type = numberOf(call, "type");
    if (!speaksVersion(call)) {
        return outcome(servlet_status::VERSION);
    }
    const auto text = type ? textInfo(call.server, *type) : std::nullopt;
    if (!text) {
        return outcome(servlet_status::OTHER);
    }
    if (isOfMachine(*type) && !call.server.machine().connected()) {
        return outcome(servlet_status::OFFLINE);
    }
    return success(*text);
}

std::string deviceNumber(const Call& call)
{
    const auto type = numberOf(call, "type");
    if (!speaksVersion(call)) {
        return outcome(servlet_status::VERSION);
    }
    const auto number = type ? numberInfo(call.server, *type) : std::nullopt;
    return number ? success(bigEndian(*number, 4)) : outcome(servlet_status::OTHER);
}

std::string machineStatus(const Call& call)
{
    const auto type = numberOf(call, "type");
    if (!speaksVersion(call)) {
        return outcome(servlet_status::VERSION);
    }
    const auto data = type ? deviceStatus(call.server, *type) : std::nullopt;
    if (!data) {
        return outcome(servlet_status::OTHER);
    }
    return call.server.machine().connected() ? success(*data) : outcome(servlet_status::OFFLINE);
}

std::string jobNumber(const Call& call)
{
    constexpr uint32_t IN_SENDING = 1;
    constexpr uint32_t ENDED = 2;
    const Publisher& machine = call.server.machine();
    const auto type = numberOf(call, "type");
    if (!type || *type > ENDED) {
        return outcome(servlet_status::OTHER);
    }
    const size_t unfinished = machine.unfinishedJobs();
    const size_t number = *type == IN_SENDING ? call.server.jobsInSending()
                          : *type == ENDED    ? machine.jobs().size() - unfinished
                                              : unfinished;
    return success(bigEndian(number, 2));
}

std::string printableDiscs(const Call& call)
{
    constexpr uint32_t UNKNOWN = 0xFFFF;
    const Publisher& machine = call.server.machine();
    return success(bigEndian(machine.connected() ? machine.printableDiscs() : UNKNOWN, 4));
}

std::string publishId(const Call& call)
{
    return success(call.server.nextPublishId());
}

std::string jobList(const Call& call)
{
    const auto type = numberOf(call, "type");
    if (!speaksVersion(call)) {
        return outcome(servlet_status::VERSION);
    }
    if (!type || *type > job_list::UNFINISHED_EX) {
        return outcome(servlet_status::OTHER);
    }
    std::string items;
    for (const Job& job : call.server.machine().jobs()) {
        if (*type == job_list::ALL || job.isEnded() == (*type == job_list::ENDED)) {
            items += success(jobPayload(call.server, job, *type == job_list::UNFINISHED_EX));
        }
    }
    return items.empty() ? success() : items;
}

std::string controlJob(const Call& call)
{
    const auto what = numberOf(call, "action");
    const auto number = UploadArea::parseNumber(valueOf(call, "serverjobid"));
    if (!what || *what > action::PRIORITY) {
        return outcome(servlet_status::OTHER);
    }
    return outcome(number ? call.server.applyAction(*number, *what) : servlet_status::JOB_ID);
}

/// Identifies the job by the submitter's id.
std::string controlByReference(const Call& call)
{
    constexpr uint32_t CANCEL = 0;
    constexpr uint32_t PRIORITY = 1;
    const auto what = numberOf(call, "action");
    const Job* const job = call.server.machine().byReference(valueOf(call, "jobid"));
    if (!what || *what > PRIORITY) {
        return outcome(servlet_status::OTHER);
    }
    return outcome(job == nullptr ? servlet_status::JOB_ID
                                  : call.server.applyAction(job->number, *what == CANCEL ? action::CANCEL
                                                                                         : action::PRIORITY));
}

std::string uploadInfo(const Call& call)
{
    const auto number = UploadArea::parseNumber(valueOf(call, "serverjobid"));
    const ServerJob* const job = number ? call.server.uploads().find(*number) : nullptr;
    return job == nullptr ? outcome(servlet_status::JOB_ID) : success(job->password);
}

std::string registerJob(const Call& call, bool special)
{
    const std::string refusal = special ? refusalOfSpecial(call.request.body, call.server.setup())
                                : call.request.body.empty() ? "the job has no data"
                                                            : "";
    if (!refusal.empty()) {
        call.server.note("job refused: " + refusal);
        return outcome(servlet_status::JOB_FILE);
    }
    if (call.server.uploads().freeSpace() == 0) {
        return outcome(servlet_status::CAPACITY);
    }
    const uint32_t number = call.server.registerJob(call.request.body, special);
    return number == 0 ? outcome(servlet_status::SPOOL_LIMIT) : success(bigEndian(number, 4));
}

std::string registerNormal(const Call& call)
{
    return registerJob(call, false);
}

std::string registerSpecial(const Call& call)
{
    return registerJob(call, true);
}

struct Servlet
{
    const char* name;
    const char* method;
    std::string (*answer)(const Call&);
};

constexpr std::array<Servlet, 14> SERVLETS{{
    {"/webapp2/ServerModeGetter", "GET", serverMode},
    {"/webapp2/IFVersionChecker", "POST", checkVersion},
    {"/webapp2/DevInfoGetter", "GET", deviceText},
    {"/webapp2/DevInfoIntGetter", "GET", deviceNumber},
    {"/webapp2/DevStatusGetter", "GET", machineStatus},
    {"/webapp2/JobNumGetter", "GET", jobNumber},
    {"/webapp2/PrnPosNumGetter", "GET", printableDiscs},
    {"/webapp2/PublishIDGetter", "GET", publishId},
    {"/webapp2/JobInfoGetter", "GET", jobList},
    {"/webapp2/JobController", "POST", controlJob},
    {"/webapp2/JobControllerExt", "POST", controlByReference},
    {"/webapp2/UploadInfoGetter", "GET", uploadInfo},
    {"/webapp2/NormalJobSetter", "POST", registerNormal},
    {"/webapp2/SpecialJobSetter", "POST", registerSpecial},
}};

} // namespace

HttpReply answerServlet(const HttpRequest& request, PublisherServer& server)
{
    const std::string path = request.path();
    if (path == server.setup().model->hashPath && !server.setup().isOld()) {
        return request.method == "POST" ? server.uploads().takeHash(request.parameters())
                                        : HttpReply{405, {}};
    }
    const auto* const found =
        std::find_if(SERVLETS.begin(), SERVLETS.end(), [&](const Servlet& one) { return path == one.name; });
    if (found == SERVLETS.end()) {
        return {404, {}};
    }
    return request.method == found->method
               ? HttpReply{200, found->answer({request, request.parameters(), server})}
               : HttpReply{405, {}};
}

} // namespace udsim

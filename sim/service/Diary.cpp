#include "Diary.h"

#include <utility>

#include "Protocol.h"

namespace udsim {

namespace {

/// Returns the request of a command in words; empty if it changes nothing.
std::string wish(const Request& command)
{
    switch (command.control) {
    case control::JOB_STOP:
        return "stop of job " + command.job;
    case control::JOB_CONTINUE:
        return "continuation of job " + command.job;
    case control::JOB_CANCEL:
        return "cancellation of job " + command.job;
    case control::DELETE_DISC_IMAGE:
        return "cancellation of failed job " + command.job;
    case control::JOB_MOVE:
        return "priority of job " + command.job;
    case control::SET_PUBLISH_MODE:
        return "publish mode " + std::to_string(command.parameter);
    case control::NOTIFY_CHANGE:
        return "change notice";
    default:
        return {};
    }
}

} // namespace

std::string describe(const Request& command, uint64_t result)
{
    const std::string text = wish(command);
    if (text.empty()) {
        return {};
    }
    if (result != result::SUCCESS) {
        return text + " refused with code " + std::to_string(result);
    }
    switch (command.control) {
    case control::SET_PUBLISH_MODE:
        return text + " set";
    case control::NOTIFY_CHANGE:
        return "settings read again";
    default:
        return text + " accepted";
    }
}

void Diary::log(const std::string& text)
{
    std::string error;
    const bool written = m_log.write(text, error);
    if (!written && !m_broken) {
        m_notes.push_back(error);
    }
    m_broken = !written;
}

void Diary::say(const std::string& text)
{
    log(text);
    m_notes.push_back(text);
}

void Diary::follow(std::vector<Publisher>& publishers)
{
    const bool first = m_known.empty();
    m_known.resize(publishers.size());
    for (size_t i = 0; i < publishers.size(); ++i) {
        Publisher& publisher = publishers[i];
        Known& known = m_known[i];
        const std::string name = publisher.state().shownName + ": ";
        if (first || known.connected != publisher.connected()) {
            known.connected = publisher.connected();
            log(name + (known.connected ? "connected" : "not connected"));
        }
        if (known.error != publisher.state().error) {
            const uint32_t before = std::exchange(known.error, publisher.state().error);
            log(name + "error " + std::to_string(known.error == 0 ? before : known.error) +
                (known.error == 0 ? " is over" : ""));
        }
        for (const Job& job : publisher.takeEndedJobs()) {
            log(name + "job " + job.id + " \"" + job.name + "\" " +
                (job.status == job_status::FINISHED ? "finished" : "cancelled"));
        }
    }
}

void Diary::forget()
{
    m_known.clear();
}

std::vector<std::string> Diary::takeNotes()
{
    return std::exchange(m_notes, {});
}

} // namespace udsim

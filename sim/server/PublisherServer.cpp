#include "PublisherServer.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "JobFile.h"
#include "Protocol.h"
#include "ServerJobText.h"
#include "ServletNumbers.h"
#include "ServletReplies.h"

namespace udsim {

namespace {

constexpr char OLD_HASH_PATH[] = "/webapp/FileHashSetter";
constexpr char HASH_PATH[] = "/webapp2/FileHashSetter";
constexpr char DISC_INFO[] = "DiscInfo.xml";
constexpr size_t MOST_NOTES = 100;
constexpr char SPECIAL_PRINT_DATA[] = "PrnData_Special.prn";

constexpr std::array<NetworkModel, 3> NETWORK_MODELS{{
    {{"RT-300N", 0, 2, 4, false, false, false, false, "01234", "ARVEN RT-300NPRN", "DVR-300N"},
     false,
     false,
     false,
     OLD_HASH_PATH,
     "1.20"},
    {{"RT-300NII", 0, 2, 4, true, false, false, false, "01234", "ARVEN RT-300NIIPRN", "BDR-300NII"},
     true,
     true,
     true,
     HASH_PATH,
     "2.30"},
    {{"RT-300NII BD-XL", 0, 2, 4, true, true, false, false, "01234", "ARVEN RT-300NIIPRN", "BXR-300NII"},
     true,
     true,
     true,
     HASH_PATH,
     "3.30"},
}};

/// The machine's mode for each mode number of the server.
constexpr std::array<uint32_t, 5> MACHINE_MODES{mode::SECURITY, mode::OUTPUT_CONTROL, mode::NORMAL,
                                                mode::OUTPUT, mode::BATCH};

uint8_t statusOf(uint64_t result)
{
    switch (result) {
    case result::SUCCESS:
        return servlet_status::SUCCESS;
    case result::JOB_ID:
        return servlet_status::JOB_ID;
    default:
        return servlet_status::OTHER;
    }
}

} // namespace

std::span<const NetworkModel> networkModels()
{
    return NETWORK_MODELS;
}

const NetworkModel* findNetworkModel(const std::string& name)
{
    const auto* const found =
        std::find_if(NETWORK_MODELS.begin(), NETWORK_MODELS.end(),
                     [&](const NetworkModel& model) { return name == model.machine.name; });
    return found == NETWORK_MODELS.end() ? nullptr : found;
}

ServerSetup ServerSetup::ofModel(const NetworkModel& model)
{
    ServerSetup setup;
    setup.model = &model;
    setup.machine = PublisherSetup::ofModel(model.machine);
    setup.machine.mostJobs = PublisherServer::MOST_JOBS;
    setup.serverVersion = model.serverVersion;
    setup.interfaceVersion = INTERFACE_VERSION;
    setup.thirdStacker = model.thirdStacker;
    return setup;
}

uint32_t ServerSetup::serverMode() const
{
    const auto* const found = std::find(MACHINE_MODES.begin(), MACHINE_MODES.end(), machine.mode);
    return static_cast<uint32_t>(found - MACHINE_MODES.begin());
}

void ServerSetup::setServerMode(uint32_t serverMode)
{
    machine.setMode(MACHINE_MODES.at(serverMode));
}

bool ServerSetup::isOld() const
{
    // Versions 2.00 to 2.29 and 3.00 to 3.29 do not accept hashes.
    constexpr int NEWER_FROM = 30;
    const int major = std::atoi(serverVersion.c_str());
    const size_t point = serverVersion.find('.');
    const int minor = point == std::string::npos ? 0 : std::atoi(serverVersion.c_str() + point + 1);
    return (major == 2 || major == 3) && minor < NEWER_FROM;
}

PublisherServer::PublisherServer(const ServerSetup& setup)
    : m_setup(setup), m_machine(setup.machine), m_uploads(setup.discSpace, !setup.isOld()),
      m_listening(setup.listening)
{
}

void PublisherServer::step(uint64_t milliseconds)
{
    m_machine.step(milliseconds);
    std::vector<uint32_t> gone;
    for (const ServerJob& one : m_uploads.jobs()) {
        const Job* const job = m_machine.byNumber(one.number);
        if (one.committed && (job == nullptr || job->isEnded())) {
            gone.push_back(one.number);
        }
    }
    for (const uint32_t number : gone) {
        m_uploads.remove(number);
    }
}

HttpReply PublisherServer::answer(const HttpRequest& request)
{
    HttpReply reply =
        request.path().starts_with("/uploads/") ? m_uploads.answer(request) : answerServlet(request, *this);
    if (reply.status >= 400) {
        note(request.method + " " + request.target + " refused with " + std::to_string(reply.status));
    }
    return reply;
}

size_t PublisherServer::jobsInSending() const
{
    const auto& jobs = m_uploads.jobs();
    return static_cast<size_t>(
        std::count_if(jobs.begin(), jobs.end(), [](const ServerJob& job) { return !job.committed; }));
}

std::vector<std::string> PublisherServer::takeNotes()
{
    return std::exchange(m_notes, {});
}

void PublisherServer::note(const std::string& text)
{
    if (m_notes.size() == MOST_NOTES) {
        m_notes.erase(m_notes.begin());
    }
    m_notes.push_back(printable(text));
}

std::string PublisherServer::nextPublishId()
{
    const std::string number = std::to_string(++m_publishNumber);
    return m_setup.machine.serial + "_" + std::string(6 - std::min<size_t>(5, number.size()), '0') + number;
}

uint32_t PublisherServer::registerJob(const std::string& data, bool special)
{
    if (m_machine.unfinishedJobs() + jobsInSending() >= m_setup.machine.mostJobs) {
        return 0;
    }
    return m_uploads.add(m_machine.nextNumber(), data, special).number;
}

uint8_t PublisherServer::applyAction(uint32_t number, uint32_t action)
{
    ServerJob* const sending = m_uploads.find(number);
    if (sending != nullptr && !sending->committed) {
        return applyToSending(*sending, action);
    }
    const Job* const queued = m_machine.byNumber(number);
    return queued == nullptr ? servlet_status::JOB_ID : applyToQueued(*queued, action);
}

uint8_t PublisherServer::applyToSending(ServerJob& job, uint32_t action)
{
    switch (action) {
    case action::COMMIT:
        return commit(job);
    case action::CANCEL:
        m_uploads.remove(job.number);
        return servlet_status::SUCCESS;
    case action::OPEN_DISC_INFO:
        job.discInfo = ServerJob::DiscInfo::opened;
        return servlet_status::SUCCESS;
    case action::COMMIT_DISC_INFO:
        if (job.discInfo != ServerJob::DiscInfo::opened || !m_uploads.isComplete(job, DISC_INFO)) {
            return servlet_status::JOB_FILE;
        }
        job.discInfo = ServerJob::DiscInfo::committed;
        return servlet_status::SUCCESS;
    default:
        return servlet_status::OTHER;
    }
}

uint8_t PublisherServer::applyToQueued(const Job& job, uint32_t action)
{
    switch (action) {
    case action::CANCEL:
        return statusOf(m_machine.cancelJob(job.id));
    case action::STOP:
        return statusOf(m_machine.stopJob(job.id));
    case action::RESTART:
        return statusOf(m_machine.continueJob(job.id));
    case action::PRIORITY:
        return statusOf(m_machine.moveJobToFront(job.id));
    default: // the other actions apply only before the commit
        return servlet_status::JOB_ID;
    }
}

uint8_t PublisherServer::commit(ServerJob& job)
{
    if (!m_uploads.isComplete(job) || job.discInfo == ServerJob::DiscInfo::opened ||
        (job.special && !job.files.contains(SPECIAL_PRINT_DATA))) {
        return servlet_status::JOB_FILE;
    }
    JobSetup setup = job.special ? specialJobOf(job) : normalJobOf(job);
    setup.number = job.number;
    if (m_machine.addJob(setup).empty()) {
        return servlet_status::SPOOL_LIMIT;
    }
    job.committed = true;
    note("job " + job.user() + " \"" + setup.name + "\" taken");
    return servlet_status::SUCCESS;
}

} // namespace udsim

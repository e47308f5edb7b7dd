// External events of a machine, and the operations of clients on its jobs.
#include <algorithm>

#include "Protocol.h"
#include "Publisher.h"

namespace udsim {

void Publisher::setConnected(bool connected)
{
    m_state.connected = connected;
}

void Publisher::setError(uint32_t code)
{
    m_state.error = code;
}

void Publisher::setInk(size_t index, uint32_t percent)
{
    m_state.ink.at(index) = percent;
}

void Publisher::setStacker(size_t index, uint32_t discs)
{
    m_state.stackers.at(index).discs = discs;
}

void Publisher::refill()
{
    m_state.ink.fill(FULL_INK);
    for (Stacker& stacker : m_state.stackers) {
        stacker.discs = stacker.isInput() ? STACKER_CAPACITY : 0;
    }
    if (m_state.error == result::DISC_EMPTY || m_state.error == result::DISC_FULL ||
        m_state.error == result::INK_EMPTY) {
        m_state.error = 0;
    }
}

void Publisher::pause()
{
    if (Job* const job = active(); job != nullptr && job->status == job_status::RUNNING) {
        job->status = job_status::PAUSE_PENDING;
    }
}

void Publisher::resume()
{
    if (Job* const job = active();
        job != nullptr && job->factor == 0 &&
        (job->status == job_status::PAUSED || job->status == job_status::PAUSE_PENDING)) {
        job->status = job_status::RUNNING;
    }
}

std::string Publisher::nextJobId()
{
    ++m_jobNumber;
    std::string number = std::to_string(m_jobNumber);
    number.insert(0, number.size() < 4 ? 4 - number.size() : 0, '0');
    return "LOCALHOST_" + m_state.serial + "_" + number;
}

std::string Publisher::addJob(const JobSetup& setup)
{
    if (m_jobs.size() >= m_state.mostJobs) {
        return {};
    }
    Job job;
    job.id = setup.id.empty() ? nextJobId() : setup.id;
    job.name = setup.name;
    job.type = setup.type;
    job.copies = setup.copies;
    job.status = job_status::WAITING;
    job.roundTime = job.isCleaning() ? m_state.cleaningTime : m_state.discTime;
    job.destinations = setup.destinations;
    job.number = setup.number == 0 ? nextNumber() : setup.number;
    job.reference = setup.reference.value_or(job.id);
    job.person = setup.person;
    if (m_state.model->drives == 0 && !job.isCleaning() && !job.isNozzleCheck()) {
        job.type = JOB_TYPE_PRINT;
    }
    m_jobs.push_back(job);
    return m_jobs.back().id;
}

uint32_t Publisher::nextNumber()
{
    return ++m_serverNumber;
}

const Job* Publisher::byNumber(uint32_t number) const
{
    const auto job =
        std::find_if(m_jobs.begin(), m_jobs.end(), [&](const Job& one) { return one.number == number; });
    return job == m_jobs.end() ? nullptr : &*job;
}

const Job* Publisher::byReference(const std::string& reference) const
{
    const auto job = std::find_if(m_jobs.begin(), m_jobs.end(), [&](const Job& one) {
        return !reference.empty() && one.reference == reference;
    });
    return job == m_jobs.end() ? nullptr : &*job;
}

uint64_t Publisher::stopJob(const std::string& id)
{
    Job* const job = find(id);
    if (job == nullptr) {
        return result::JOB_ID;
    }
    switch (job->status) {
    case job_status::RUNNING:
    case job_status::PAUSE_PENDING:
        job->status = job_status::STOP_PENDING;
        return result::SUCCESS;
    case job_status::WAITING:
    case job_status::PAUSED:
        job->status = job_status::STOPPED;
        job->factor = 0;
        return result::SUCCESS;
    case job_status::STOP_PENDING:
    case job_status::STOPPED:
        return result::SUCCESS;
    default:
        return result::CONDITION_FAILURE;
    }
}

uint64_t Publisher::continueJob(const std::string& id)
{
    Job* const job = find(id);
    if (job == nullptr) {
        return result::JOB_ID;
    }
    if (job->status == job_status::STOPPED) {
        job->status = job_status::WAITING;
        return result::SUCCESS;
    }
    if (job->status == job_status::PAUSED && hindrance() == result::SUCCESS) {
        job->status = job_status::RUNNING;
        job->factor = 0;
        return result::SUCCESS;
    }
    return result::CONDITION_FAILURE;
}

uint64_t Publisher::cancelJob(const std::string& id)
{
    Job* const job = find(id);
    if (job == nullptr) {
        return result::JOB_ID;
    }
    if (job->isEnded()) {
        return result::CONDITION_FAILURE;
    }
    if (job->isUnderWay()) {
        job->status = job_status::CANCEL_PENDING;
    } else {
        end(*job, job_status::CANCELLED);
    }
    return result::SUCCESS;
}

uint64_t Publisher::cancelFailedJob(const std::string& id)
{
    const Job* const job = find(id);
    if (job == nullptr) {
        return result::JOB_ID;
    }
    return job->factor == 0 ? result::CONDITION_FAILURE : cancelJob(id);
}

uint64_t Publisher::moveJobToFront(const std::string& id)
{
    const Job* const job = find(id);
    if (job == nullptr) {
        return result::JOB_ID;
    }
    if (job->status != job_status::WAITING) {
        return result::CONDITION_FAILURE;
    }
    const auto first = std::find_if(m_jobs.begin(), m_jobs.end(),
                                    [](const Job& one) { return one.status == job_status::WAITING; });
    const auto moved = m_jobs.begin() + (job - m_jobs.data());
    std::rotate(first, moved, moved + 1);
    return result::SUCCESS;
}

uint64_t Publisher::setMode(uint64_t mode)
{
    if (!m_state.connected) {
        return result::OFFLINE;
    }
    if (!m_state.model->supportsMode(mode)) {
        return result::PUB_MODE;
    }
    if (isWorking()) {
        return result::BUSY;
    }
    m_state.setMode(static_cast<uint32_t>(mode));
    return result::SUCCESS;
}

void Publisher::applySettings(const std::string& shownName, const std::array<uint32_t, 4>& media)
{
    m_state.shownName = shownName;
    for (size_t i = 0; i < media.size(); ++i) {
        m_state.stackers[i].media = media[i];
    }
}

} // namespace udsim

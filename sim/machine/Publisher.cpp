#include "Publisher.h"

#include <algorithm>
#include <utility>

#include "Protocol.h"

namespace udsim {

namespace {

constexpr uint32_t DISCS_PER_INK_PERCENT = 2; ///< every second print uses one percent of one cartridge
constexpr uint32_t PRINTS_PER_PERCENT = 12;
constexpr uint32_t CLEANING_INK = 3; ///< percent of every cartridge
constexpr size_t MOST_ENDED_KEPT = 100;

/// The part of the work on one disc that a phase takes, in percent; `to` is the start of the next phase.
struct PhaseSpan
{
    Phase phase;
    uint64_t from;
    uint64_t to;
};

/// Returns the progress of the current disc, or of the cleaning.
uint64_t percentOf(const Job& job)
{
    return std::min<uint64_t>(99, job.discTime * 100 / job.roundTime);
}

PhaseSpan phaseOf(const Job& job)
{
    constexpr PhaseSpan BOTH[] = {{Phase::conveying, 0, 10},
                                  {Phase::writing, 10, 65},
                                  {Phase::verifying, 65, 80},
                                  {Phase::printing, 80, 100}};
    constexpr PhaseSpan WRITE[] = {
        {Phase::conveying, 0, 15}, {Phase::writing, 15, 75}, {Phase::verifying, 75, 100}};
    constexpr PhaseSpan PRINT[] = {{Phase::conveying, 0, 20}, {Phase::printing, 20, 100}};

    const uint64_t percent = percentOf(job);
    const auto find = [percent](const auto& spans) {
        return *std::find_if(std::begin(spans), std::end(spans),
                             [percent](const PhaseSpan& span) { return percent < span.to; });
    };
    switch (job.type) {
    case JOB_TYPE_WRITE:
        return find(WRITE);
    case JOB_TYPE_PRINT:
    case JOB_TYPE_NOZZLE_CHECK:
        return find(PRINT);
    case JOB_TYPE_CLEANING:
        return {Phase::cleaning, 0, 100};
    default:
        return find(BOTH);
    }
}

/// Returns the `history` bits that a job gets from this error code.
uint32_t historyOf(uint32_t code)
{
    switch (code) {
    case result::DISC_WRITE:
        return history::WRITE_ERROR;
    case result::DISC_COVER_OPEN:
    case result::INK_COVER_OPEN:
        return history::COVER_OPEN;
    case result::STACKER4_OPEN:
        return history::STACKER4_OPEN;
    default:
        return 0;
    }
}

} // namespace

Publisher::Publisher(const PublisherSetup& setup) : m_state(setup)
{
    for (const JobSetup& job : setup.jobs) {
        addJob(job);
    }
}

uint32_t Publisher::hindrance() const
{
    return m_state.connected ? m_state.error : result::OFFLINE;
}

Job* Publisher::find(const std::string& id)
{
    const auto job = std::find_if(m_jobs.begin(), m_jobs.end(), [&](const Job& one) { return one.id == id; });
    return job == m_jobs.end() ? nullptr : &*job;
}

const Job* Publisher::active() const
{
    const auto job = std::find_if(m_jobs.begin(), m_jobs.end(), [](const Job& one) {
        return one.isUnderWay() || one.status == job_status::PAUSED;
    });
    return job == m_jobs.end() ? nullptr : &*job;
}

Job* Publisher::active()
{
    return const_cast<Job*>(std::as_const(*this).active());
}

Phase Publisher::phase() const
{
    const Job* const job = active();
    if (job == nullptr || !job->isUnderWay()) {
        return Phase::idle;
    }
    return phaseOf(*job).phase;
}

unsigned Publisher::activeDrive() const
{
    return m_state.model->drives == 0 ? 0 : m_published % m_state.model->drives;
}

uint64_t Publisher::progressPercent() const
{
    const Job* const job = active();
    if (job == nullptr) {
        return 0;
    }
    const PhaseSpan span = phaseOf(*job);
    return (percentOf(*job) - span.from) * 100 / (span.to - span.from);
}

size_t Publisher::unfinishedJobs() const
{
    return static_cast<size_t>(
        std::count_if(m_jobs.begin(), m_jobs.end(), [](const Job& job) { return !job.isEnded(); }));
}

bool Publisher::isWorking() const
{
    return active() != nullptr;
}

uint64_t Publisher::remainingSeconds(const Job& job) const
{
    if (job.isEnded()) {
        return 0;
    }
    const uint64_t whole = (job.rounds() - job.completed) * job.roundTime;
    return (whole - job.discTime) / 1000;
}

uint32_t Publisher::printableDiscs() const
{
    return *std::min_element(m_state.ink.begin(), m_state.ink.end()) * PRINTS_PER_PERCENT;
}

void Publisher::step(uint64_t milliseconds)
{
    Job* job = active();
    if (hindrance() != result::SUCCESS) {
        if (job != nullptr && job->status != job_status::PAUSED) {
            job->factor = hindrance();
            job->history |= historyOf(hindrance());
            settle(*job);
        }
        return;
    }
    if (job != nullptr && job->status == job_status::PAUSED && job->factor != 0) {
        job->status = job_status::RUNNING;
        job->factor = 0;
    }
    if (job == nullptr) {
        startNext();
        job = active();
    }
    if (job == nullptr || !job->isUnderWay()) {
        return;
    }
    if (job->discTime == 0 && job->status != job_status::RUNNING) {
        settle(*job);
        return;
    }
    if (job->discTime == 0 && !begin(*job)) {
        return;
    }
    job->discTime += milliseconds;
    if (job->discTime >= job->roundTime) {
        finishRound(*job);
    }
}

void Publisher::startNext()
{
    const auto waiting = std::find_if(m_jobs.begin(), m_jobs.end(),
                                      [](const Job& job) { return job.status == job_status::WAITING; });
    if (waiting != m_jobs.end()) {
        waiting->status = job_status::RUNNING;
    }
}

/// Returns the stacker that the job takes discs from; a nozzle check uses stacker 1 only.
Stacker* Publisher::input(const Job& job)
{
    const auto end = job.isNozzleCheck() ? m_state.stackers.begin() + 1 : m_state.stackers.end();
    const auto found = std::find_if(m_state.stackers.begin(), end,
                                    [](const Stacker& one) { return one.isInput() && one.discs > 0; });
    return found == end ? nullptr : &*found;
}

/// Returns the first output stacker with room. A nozzle check is limited to its destinations, if the machine
/// ejects to any of them.
Stacker* Publisher::output(const Job& job)
{
    uint64_t outputs = 0;
    for (size_t i = 0; i < m_state.stackers.size(); ++i) {
        outputs |= m_state.stackers[i].isOutput() ? uint64_t{1} << i : 0;
    }
    outputs = (outputs & job.destinations) != 0 ? outputs & job.destinations : outputs;
    for (size_t i = 0; i < m_state.stackers.size(); ++i) {
        if ((outputs >> i & 1) != 0 && m_state.stackers[i].discs < STACKER_CAPACITY) {
            return &m_state.stackers[i];
        }
    }
    return nullptr;
}

/// Returns the error code that prevents the next disc, or the cleaning; 0 if there is none.
uint32_t Publisher::obstacle(const Job& job)
{
    if (!job.isCleaning() && input(job) == nullptr) {
        return result::DISC_EMPTY;
    }
    if (!job.isCleaning() && output(job) == nullptr) {
        return result::DISC_FULL;
    }
    return (job.prints() || job.isCleaning()) && printableDiscs() == 0 ? result::INK_EMPTY : 0;
}

/// Takes a disc from a stacker, except for a cleaning. If the work cannot begin, sets the error, pauses the
/// job and returns false.
bool Publisher::begin(Job& job)
{
    if (const uint32_t reason = obstacle(job); reason != 0) {
        m_state.error = reason;
        job.factor = reason;
        job.status = job_status::PAUSED;
        return false;
    }
    if (!job.isCleaning()) {
        --input(job)->discs;
    }
    return true;
}

void Publisher::finishRound(Job& job)
{
    job.discTime = 0;
    if (!job.isCleaning()) {
        ++job.completed;
        ++m_published;
        if (Stacker* const destination = output(job)) {
            ++destination->discs;
        }
    }
    useInk(job);
    if (job.isCleaning() || job.completed == job.copies) {
        end(job, job_status::FINISHED);
    } else if (job.status != job_status::RUNNING) {
        settle(job);
    }
}

void Publisher::useInk(const Job& job)
{
    if (job.isCleaning()) {
        for (uint32_t& cartridge : m_state.ink) {
            cartridge -= std::min(cartridge, CLEANING_INK);
        }
    } else if (job.prints()) {
        ++m_printed;
        uint32_t& cartridge = m_state.ink[m_printed / DISCS_PER_INK_PERCENT % m_state.ink.size()];
        if (m_printed % DISCS_PER_INK_PERCENT == 0 && cartridge > 0) {
            --cartridge;
        }
    }
}

/// Completes a pending state change; a running job pauses because of an error. The current disc, if any,
/// continues when the job resumes.
void Publisher::settle(Job& job)
{
    switch (job.status) {
    case job_status::CANCEL_PENDING:
        end(job, job_status::CANCELLED);
        break;
    case job_status::STOP_PENDING:
        job.status = job_status::STOPPED;
        job.factor = 0;
        break;
    default:
        job.status = job_status::PAUSED;
        break;
    }
}

/// Ends the job with this status and removes the oldest ended jobs. `job` is invalid after this call.
void Publisher::end(Job& job, uint64_t status)
{
    job.status = status;
    job.factor = 0;
    if (m_ended.size() == MOST_ENDED_KEPT) {
        m_ended.erase(m_ended.begin());
    }
    m_ended.push_back(job);
    size_t ended = m_jobs.size() - unfinishedJobs();
    std::erase_if(m_jobs, [&](const Job& one) {
        const bool forget = one.isEnded() && ended > MAX_ENDED_JOBS;
        ended -= forget ? 1 : 0;
        return forget;
    });
}

std::vector<Job> Publisher::takeEndedJobs()
{
    return std::exchange(m_ended, {});
}

} // namespace udsim

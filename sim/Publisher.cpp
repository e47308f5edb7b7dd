#include "Publisher.h"

#include <algorithm>
#include <utility>

#include "Protocol.h"

namespace udsim {

namespace {

constexpr uint32_t DISCS_PER_INK_PERCENT = 2; ///< every second print costs one cartridge one percent
constexpr uint32_t PRINTS_PER_PERCENT = 12;
constexpr uint32_t WARM_START_INK = 100;

/// Where in the work on one disc a phase begins, in percent, and where the next one does.
struct PhaseSpan
{
    Phase phase;
    uint64_t from;
    uint64_t to;
};

PhaseSpan phaseOf(const Job& job, uint64_t discTime)
{
    constexpr PhaseSpan BOTH[] = {{Phase::conveying, 0, 10},
                                  {Phase::writing, 10, 65},
                                  {Phase::verifying, 65, 80},
                                  {Phase::printing, 80, 100}};
    constexpr PhaseSpan WRITE[] = {
        {Phase::conveying, 0, 15}, {Phase::writing, 15, 75}, {Phase::verifying, 75, 100}};
    constexpr PhaseSpan PRINT[] = {{Phase::conveying, 0, 20}, {Phase::printing, 20, 100}};

    const uint64_t percent = std::min<uint64_t>(99, job.discTime * 100 / discTime);
    const auto find = [percent](const auto& spans) {
        return *std::find_if(std::begin(spans), std::end(spans),
                             [percent](const PhaseSpan& span) { return percent < span.to; });
    };
    switch (job.type) {
    case JOB_TYPE_WRITE:
        return find(WRITE);
    case JOB_TYPE_PRINT:
        return find(PRINT);
    default:
        return find(BOTH);
    }
}

bool isEnded(const Job& job)
{
    return job.status == job_status::CANCELLED || job.status == job_status::FINISHED;
}

bool isUnderWay(const Job& job)
{
    return job.status == job_status::RUNNING || job.status == job_status::CANCEL_PENDING ||
           job.status == job_status::PAUSE_PENDING || job.status == job_status::STOP_PENDING;
}

} // namespace

bool Stacker::isOutput() const
{
    return media == media::OUTPUT;
}

bool Stacker::isInput() const
{
    return media != media::OUTPUT && media != media::NOT_USED;
}

PublisherSetup PublisherSetup::ofModel(const Model& model)
{
    PublisherSetup setup;
    setup.model = &model;
    setup.usbMode = USB_SUPER_SPEED;
    setup.maintenanceBox = 100;
    setup.discTime = 40'000;
    setup.ink.fill(WARM_START_INK);
    setup.setMode(mode::NORMAL);
    setup.stackers[0].discs = Publisher::STACKER_CAPACITY;
    return setup;
}

void PublisherSetup::setMode(uint32_t newMode)
{
    mode = newMode;
    uint32_t supply = stackers[0].isInput() ? stackers[0].media : media::CDR;
    if (mode == mode::ERROR_RATE || mode == mode::READ) {
        supply = media::INPUT;
    } else if (supply == media::INPUT) {
        supply = media::CDR;
    }
    stackers[0].media = supply;
    stackers[1].media = mode == mode::BATCH || mode == mode::OUTPUT ? supply : media::OUTPUT;
    const bool intoThird = mode == mode::BATCH || model->stackers < 4;
    stackers[2].media = intoThird ? media::OUTPUT : media::NOT_USED;
    stackers[3].media = intoThird ? media::NOT_USED : media::OUTPUT;
}

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
        return isUnderWay(one) || one.status == job_status::PAUSED;
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
    if (job == nullptr || !isUnderWay(*job)) {
        return Phase::idle;
    }
    return phaseOf(*job, m_state.discTime).phase;
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
    const PhaseSpan span = phaseOf(*job, m_state.discTime);
    const uint64_t percent = std::min<uint64_t>(99, job->discTime * 100 / m_state.discTime);
    return (percent - span.from) * 100 / (span.to - span.from);
}

size_t Publisher::unfinishedJobs() const
{
    return static_cast<size_t>(
        std::count_if(m_jobs.begin(), m_jobs.end(), [](const Job& job) { return !isEnded(job); }));
}

bool Publisher::isWorking() const
{
    return active() != nullptr;
}

uint64_t Publisher::remainingSeconds(const Job& job) const
{
    if (isEnded(job)) {
        return 0;
    }
    const uint64_t whole = (job.copies - job.completed) * m_state.discTime;
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
    if (job == nullptr || !isUnderWay(*job)) {
        return;
    }
    if (job->discTime == 0 && job->status != job_status::RUNNING) {
        settle(*job);
        return;
    }
    if (job->discTime == 0 && !takeDisc()) {
        return;
    }
    job->discTime += milliseconds;
    if (job->discTime >= m_state.discTime) {
        finishDisc(*job);
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

Stacker* Publisher::input()
{
    const auto found = std::find_if(m_state.stackers.begin(), m_state.stackers.end(),
                                    [](const Stacker& one) { return one.isInput() && one.discs > 0; });
    return found == m_state.stackers.end() ? nullptr : &*found;
}

Stacker* Publisher::output()
{
    const auto found = std::find_if(m_state.stackers.begin(), m_state.stackers.end(), [](const Stacker& one) {
        return one.isOutput() && one.discs < STACKER_CAPACITY;
    });
    return found == m_state.stackers.end() ? nullptr : &*found;
}

/// Takes a disc from a stacker, or stops with the reason why it cannot.
bool Publisher::takeDisc()
{
    const bool prints = (active()->type & JOB_TYPE_PRINT) != 0;
    if (input() == nullptr) {
        m_state.error = result::DISC_EMPTY;
    } else if (output() == nullptr) {
        m_state.error = result::DISC_FULL;
    } else if (prints && printableDiscs() == 0) {
        m_state.error = result::INK_EMPTY;
    } else {
        --input()->discs;
        return true;
    }
    active()->factor = m_state.error;
    active()->status = job_status::PAUSED;
    return false;
}

void Publisher::finishDisc(Job& job)
{
    job.discTime = 0;
    ++job.completed;
    ++m_published;
    if (Stacker* const destination = output()) {
        ++destination->discs;
    }
    if ((job.type & JOB_TYPE_PRINT) != 0) {
        ++m_printed;
        uint32_t& cartridge = m_state.ink[m_printed / DISCS_PER_INK_PERCENT % m_state.ink.size()];
        if (m_printed % DISCS_PER_INK_PERCENT == 0 && cartridge > 0) {
            --cartridge;
        }
    }
    if (job.completed == job.copies) {
        job.status = job_status::FINISHED;
        forgetOldJobs();
    } else if (job.status != job_status::RUNNING) {
        settle(job);
    }
}

/// What was pending becomes so; a job that runs into a hindrance pauses. The disc that was in work, if any,
/// is taken up again when the job goes on.
void Publisher::settle(Job& job)
{
    switch (job.status) {
    case job_status::CANCEL_PENDING:
        job.status = job_status::CANCELLED;
        job.factor = 0;
        forgetOldJobs();
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

void Publisher::forgetOldJobs()
{
    size_t ended = m_jobs.size() - unfinishedJobs();
    std::erase_if(m_jobs, [&](const Job& job) {
        const bool forget = isEnded(job) && ended > MAX_ENDED_JOBS;
        ended -= forget ? 1 : 0;
        return forget;
    });
}

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
    m_state.ink.fill(WARM_START_INK);
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

std::string Publisher::addJob(const JobSetup& setup)
{
    if (m_jobs.size() >= MAX_JOBS) {
        return {};
    }
    ++m_jobNumber;
    std::string number = std::to_string(m_jobNumber);
    number.insert(0, number.size() < 4 ? 4 - number.size() : 0, '0');
    Job job;
    job.id = "LOCALHOST_" + m_state.serial + "_" + number;
    job.name = setup.name;
    job.type = m_state.model->drives == 0 ? JOB_TYPE_PRINT : setup.type;
    job.copies = setup.copies;
    job.status = job_status::WAITING;
    m_jobs.push_back(job);
    return m_jobs.back().id;
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
    if (isEnded(*job)) {
        return result::CONDITION_FAILURE;
    }
    if (isUnderWay(*job)) {
        job->status = job_status::CANCEL_PENDING;
    } else {
        job->status = job_status::CANCELLED;
        job->factor = 0;
        forgetOldJobs();
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

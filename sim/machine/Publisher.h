// One simulated machine: its state, its jobs, and what time does to them. No sockets, no files, no clock.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "MachineModels.h"

namespace udsim {

struct JobSetup
{
    std::string name = "Disc";
    uint32_t copies = 1;
    uint64_t type = 3;                         ///< 1 write, 2 print, 3 both; or one of the maintenance jobs
    std::string id = {};                       ///< empty: the machine counts one up
    uint64_t destinations = 0;                 ///< stackers that a nozzle check may be ejected to, a sum
    uint32_t number = 0;                       ///< by which a server calls it; 0: the machine counts one up
    std::optional<std::string> reference = {}; ///< the submitter's own id, which may be none; left out: `id`
    std::string person = "udsim";

    /// The printer's head is cleaned; no disc is moved.
    static JobSetup cleaning(std::string id);
    /// One disc of stacker 1 is printed with the pattern.
    static JobSetup nozzleCheck(std::string id, uint64_t destinations);
};

struct Job
{
    std::string id;
    std::string name;
    uint64_t type = 0;
    uint32_t copies = 0;
    uint64_t status = 0;
    uint64_t factor = 0;       ///< why it stands still; 0 when it does not, or stands on demand
    uint32_t completed = 0;    ///< discs
    uint64_t discTime = 0;     ///< milliseconds spent on the present disc, or on the cleaning
    uint64_t roundTime = 0;    ///< milliseconds that a disc, or the cleaning, takes
    uint64_t destinations = 0; ///< of a nozzle check
    uint32_t number = 0;       ///< by which a server calls it
    std::string reference;     ///< the submitter's own id; empty when he gave none
    std::string person;        ///< the submitter
    uint32_t history = 0;      ///< what it went through, a sum of `history` bits

    bool isCleaning() const;
    bool isNozzleCheck() const;
    bool prints() const;
    bool isEnded() const;
    bool isUnderWay() const; ///< on its way through the machine, also when its end is near
    /// How often the work is done: once for a cleaning, which counts no discs.
    uint32_t rounds() const;
};

struct Stacker
{
    uint32_t media = 0; ///< disc type, or output, input, not used
    uint32_t discs = 0;

    bool isInput() const;
    bool isOutput() const;
};

/// How a machine stands at the beginning.
struct PublisherSetup
{
    std::string name;      ///< as the scenario calls it
    std::string shownName; ///< as users see it
    const Model* model = nullptr;
    std::string guid;
    std::string registId;
    std::string serial;
    bool registered = true;
    bool connected = true;
    uint32_t error = 0;
    uint32_t mode = 0;
    uint32_t usbMode = 0;
    uint32_t maintenanceBox = 0; ///< percent that is free
    uint32_t printCount = 0;     ///< printed before
    uint64_t discTime = 0;       ///< milliseconds a disc takes
    uint64_t cleaningTime = 0;   ///< milliseconds a head cleaning takes
    size_t mostJobs = 0;         ///< that the list takes
    std::array<uint32_t, 6> ink{};
    std::array<Stacker, 4> stackers{};
    std::vector<JobSetup> jobs;

    /// A machine of this model as it leaves the works, with the stackers of its publish mode 0.
    static PublisherSetup ofModel(const Model& model);
    /// Sets the mode, and the stackers as that mode wants them.
    void setMode(uint32_t newMode);
};

/// What the machine is doing with the present disc.
enum class Phase
{
    idle,
    conveying,
    writing,
    verifying,
    printing,
    cleaning
};

class Publisher
{
public:
    static constexpr uint32_t STACKER_CAPACITY = 100;
    static constexpr uint32_t FULL_INK = 100; ///< percent
    /// Of a local machine. The system passes 36 KB on in one piece on a stream socket, which is a list this
    /// long with its header; a reader may be there between the pieces of a longer one.
    static constexpr size_t MAX_JOBS = 33;
    static constexpr size_t MAX_ENDED_JOBS = 20; ///< older ones are forgotten

    explicit Publisher(const PublisherSetup& setup);

    const PublisherSetup& state() const
    {
        return m_state;
    }
    const std::vector<Job>& jobs() const
    {
        return m_jobs;
    }
    const Model& model() const
    {
        return *m_state.model;
    }
    bool connected() const
    {
        return m_state.connected;
    }

    /// The code with which the device stands still: 11 when it is not connected; 0: it works.
    uint32_t hindrance() const;
    Phase phase() const;
    /// The drive, from 0, that the present disc goes to.
    unsigned activeDrive() const;
    uint64_t progressPercent() const; ///< of the present phase
    size_t unfinishedJobs() const;
    bool isWorking() const; ///< a job is under way, or pausing, stopping, cancelling
    uint64_t remainingSeconds(const Job& job) const;
    uint32_t printableDiscs() const; ///< by the emptiest cartridge
    uint32_t publishedDiscs() const
    {
        return m_published;
    }
    uint32_t printedDiscs() const
    {
        return m_state.printCount + m_printed;
    }

    /// Lets one moment pass.
    void step(uint64_t milliseconds);

    void setConnected(bool connected);
    void setError(uint32_t code);
    void setInk(size_t index, uint32_t percent);
    void setStacker(size_t index, uint32_t discs);
    void refill();
    void pause();
    void resume();
    /// The new job's id; empty when the list is full.
    std::string addJob(const JobSetup& setup);
    /// The next number of a job on a server; none comes twice.
    uint32_t nextNumber();
    /// By its number; null when there is none.
    const Job* byNumber(uint32_t number) const;
    /// The first one that its submitter calls so; null when there is none, and for no id.
    const Job* byReference(const std::string& reference) const;
    /// The jobs that have finished or were cancelled since the last call (the last 100 of them).
    std::vector<Job> takeEndedJobs();

    /// What a client may do; each yields a result code of the service.
    uint64_t stopJob(const std::string& id);
    uint64_t continueJob(const std::string& id);
    uint64_t cancelJob(const std::string& id);
    uint64_t cancelFailedJob(const std::string& id);
    uint64_t moveJobToFront(const std::string& id);
    uint64_t setMode(uint64_t mode);
    /// The name and the stackers' media as the settings say now.
    void applySettings(const std::string& shownName, const std::array<uint32_t, 4>& media);

private:
    Job* find(const std::string& id);
    Job* active();
    const Job* active() const;
    std::string nextJobId();
    void startNext();
    bool begin(Job& job);
    uint32_t obstacle(const Job& job);
    void finishRound(Job& job);
    void useInk(const Job& job);
    void settle(Job& job);
    void end(Job& job, uint64_t status);
    Stacker* input(const Job& job);
    Stacker* output(const Job& job);

    PublisherSetup m_state;
    std::vector<Job> m_jobs;
    std::vector<Job> m_ended; ///< for takeEndedJobs()
    uint32_t m_jobNumber = 0;
    uint32_t m_serverNumber = 0;
    uint32_t m_published = 0;
    uint32_t m_printed = 0;
};

} // namespace udsim

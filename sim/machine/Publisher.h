// One simulated machine: its state, its jobs, and their progress over time. No sockets, no files, no clock.
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
    uint64_t type = 3;         ///< 1 write, 2 print, 3 both; or a maintenance job type
    std::string id = {};       ///< empty: the machine assigns the next one
    uint64_t destinations = 0; ///< stackers that a nozzle check may eject to, a sum of bits
    uint32_t number = 0;       ///< the server's job number; 0: the machine assigns the next one
    std::optional<std::string> reference = {}; ///< the submitter's id, possibly empty; nothing: same as `id`
    std::string person = "udsim";

    static constexpr uint64_t MOST_COPIES = 1000;

    /// A head cleaning, which moves no disc.
    static JobSetup cleaning(std::string id);
    /// A nozzle check, which prints the pattern on one disc of stacker 1.
    static JobSetup nozzleCheck(std::string id, uint64_t destinations);
};

struct Job
{
    std::string id;
    std::string name;
    uint64_t type = 0;
    uint32_t copies = 0;
    uint64_t status = 0;
    uint64_t factor = 0;       ///< the error that stopped it; 0: it is not stopped, or stopped on request
    uint32_t completed = 0;    ///< discs
    uint64_t discTime = 0;     ///< milliseconds spent on the current disc, or on the cleaning
    uint64_t roundTime = 0;    ///< milliseconds that a disc, or the cleaning, takes
    uint64_t destinations = 0; ///< of a nozzle check
    uint32_t number = 0;       ///< the server's job number
    std::string reference;     ///< the submitter's id; empty if none was given
    std::string person;        ///< the submitter
    uint32_t history = 0;      ///< errors so far, a sum of `history` bits

    bool isCleaning() const;
    bool isNozzleCheck() const;
    bool prints() const;
    bool isEnded() const;
    bool isUnderWay() const; ///< running, also while a pause, stop or cancellation is pending
    /// Returns how often the work is repeated: once for a cleaning, which counts no discs.
    uint32_t rounds() const;
};

struct Stacker
{
    uint32_t media = 0; ///< disc type, or output, input, not used
    uint32_t discs = 0;

    bool isInput() const;
    bool isOutput() const;
};

/// The initial state of a machine.
struct PublisherSetup
{
    std::string name;      ///< in the scenario
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
    uint32_t maintenanceBox = 0; ///< free percentage
    uint32_t printCount = 0;     ///< discs printed before
    uint64_t discTime = 0;       ///< milliseconds a disc takes
    uint64_t cleaningTime = 0;   ///< milliseconds a head cleaning takes
    size_t mostJobs = 0;         ///< maximum length of the job list
    std::array<uint32_t, 6> ink{};
    std::array<Stacker, 4> stackers{};
    std::vector<JobSetup> jobs;

    /// Returns a machine of this model with factory settings and the stackers of publish mode 0.
    static PublisherSetup ofModel(const Model& model);
    /// Sets the mode, and the stackers as that mode requires.
    void setMode(uint32_t newMode);
};

/// What the machine does with the current disc.
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
    /// Maximum for a local machine. The kernel passes 36 KB in one piece on a stream socket, which is the
    /// size of this list with its header. A longer list could arrive at the reader in pieces.
    static constexpr size_t MAX_JOBS = 33;
    static constexpr size_t MAX_ENDED_JOBS = 20; ///< older ones are removed

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

    /// Returns the error code that stops the device: 11 if it is not connected, 0 if it works.
    uint32_t hindrance() const;
    Phase phase() const;
    /// Returns the drive, counted from 0, of the current disc.
    unsigned activeDrive() const;
    uint64_t progressPercent() const; ///< of the current phase
    size_t unfinishedJobs() const;
    bool isWorking() const; ///< a job is running, pausing, stopping, cancelling or paused
    uint64_t remainingSeconds(const Job& job) const;
    uint32_t printableDiscs() const; ///< limited by the emptiest cartridge
    uint32_t publishedDiscs() const
    {
        return m_published;
    }
    uint32_t printedDiscs() const
    {
        return m_state.printCount + m_printed;
    }

    /// Advances the simulated time.
    void step(uint64_t milliseconds);

    void setConnected(bool connected);
    void setError(uint32_t code);
    void setInk(size_t index, uint32_t percent);
    void setStacker(size_t index, uint32_t discs);
    void refill();
    void pause();
    void resume();
    /// Returns the new job's id; empty if the list is full.
    std::string addJob(const JobSetup& setup);
    /// Returns the next job number of a server; each number is unique.
    uint32_t nextNumber();
    /// Returns the job of this number, or null.
    const Job* byNumber(uint32_t number) const;
    /// Returns the first job with this submitter's id; null if there is none or the id is empty.
    const Job* byReference(const std::string& reference) const;
    /// Returns the jobs that were finished or cancelled since the last call (the last 100 of them).
    std::vector<Job> takeEndedJobs();

    /// Client operations; each returns a result code of the service.
    uint64_t stopJob(const std::string& id);
    uint64_t continueJob(const std::string& id);
    uint64_t cancelJob(const std::string& id);
    uint64_t cancelFailedJob(const std::string& id);
    uint64_t moveJobToFront(const std::string& id);
    uint64_t setMode(uint64_t mode);
    /// Applies the name and the stackers' media of the setting file.
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

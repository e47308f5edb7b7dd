// One simulated machine: its state, its jobs, and what time does to them. No sockets, no files, no clock.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "Models.h"

namespace udsim {

struct JobSetup
{
    std::string name = "Disc";
    uint32_t copies = 1;
    uint64_t type = 3; ///< 1 write, 2 print, 3 both
};

struct Job
{
    std::string id;
    std::string name;
    uint64_t type = 0;
    uint32_t copies = 0;
    uint64_t status = 0;
    uint64_t factor = 0;    ///< why it stands still; 0 when it does not, or stands on demand
    uint32_t completed = 0; ///< discs
    uint64_t discTime = 0;  ///< milliseconds spent on the present disc
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
    printing
};

class Publisher
{
public:
    static constexpr uint32_t STACKER_CAPACITY = 100;
    /// A list this long and its header arrive in one piece on a stream socket; a longer one may not.
    static constexpr size_t MAX_JOBS = 40;
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
    void startNext();
    bool takeDisc();
    void finishDisc(Job& job);
    void settle(Job& job);
    void forgetOldJobs();
    Stacker* input();
    Stacker* output();

    PublisherSetup m_state;
    std::vector<Job> m_jobs;
    uint32_t m_jobNumber = 0;
    uint32_t m_published = 0;
    uint32_t m_printed = 0;
};

} // namespace udsim

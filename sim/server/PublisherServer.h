// A network publisher: a machine, and the server in front of it that clients talk to. No sockets, no files,
// no clock.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "Publisher.h"
#include "UploadArea.h"

namespace udsim {

/// The models of network publishers, and what differs between their servers.
struct NetworkModel
{
    Model machine;
    bool bluRayFigures;        ///< its maintenance information counts BD
    bool tellsXl;              ///< it says whether it takes BD-R TL and QL
    bool thirdStacker;         ///< it has a setting for stacker 3
    const char* hashPath;      ///< of the servlet that takes the hashes of files
    const char* serverVersion; ///< as it leaves the works
};

/// Every model, the oldest first.
std::span<const NetworkModel> networkModels();
/// The model of this name; null when there is none.
const NetworkModel* findNetworkModel(const std::string& name);

/// How a network publisher stands at the beginning.
struct ServerSetup
{
    static constexpr uint64_t MIB = 1'048'576;

    const NetworkModel* model = nullptr;
    PublisherSetup machine;
    std::string host;      ///< the loopback address that it listens at
    bool listening = true; ///< at the beginning
    std::string serverVersion;
    std::string webVersion = "2.10";
    std::string interfaceVersion;    ///< that clients have to speak
    uint64_t discSpace = 2048 * MIB; ///< bytes
    bool thirdStacker = false;
    uint32_t knownKind = 0;  ///< kind that the setting file knows from the beginning; 0: none
    uint32_t drivesUsed = 0; ///< 0 both, or one of them
    uint32_t retries = 3;
    bool errorMark = true;

    static ServerSetup ofModel(const NetworkModel& model);
    /// The mode as the server numbers it.
    uint32_t serverMode() const;
    /// Sets it, from 0 to 4, and the stackers as it wants them.
    void setServerMode(uint32_t serverMode);
    /// Its version is one of those that took no hashes.
    bool isOld() const;
};

class PublisherServer
{
public:
    static constexpr size_t MOST_JOBS = 1000;

    explicit PublisherServer(const ServerSetup& setup);

    const ServerSetup& setup() const
    {
        return m_setup;
    }
    Publisher& machine()
    {
        return m_machine;
    }
    const Publisher& machine() const
    {
        return m_machine;
    }
    UploadArea& uploads()
    {
        return m_uploads;
    }
    const UploadArea& uploads() const
    {
        return m_uploads;
    }
    bool listening() const
    {
        return m_listening;
    }
    void setListening(bool listening)
    {
        m_listening = listening;
    }

    /// Lets one moment pass. The files of jobs that have ended go.
    void step(uint64_t milliseconds);
    /// Does what a request asks for, and answers it.
    HttpReply answer(const HttpRequest& request);

    /// Jobs that are registered and not committed.
    size_t jobsInSending() const;
    /// What the server has refused and why, and the jobs it took, since the last call (the last 100).
    std::vector<std::string> takeNotes();
    void note(const std::string& text);
    /// An id for a job, which none had before.
    std::string nextPublishId();
    /// Registers a job; 0: the list is full. `special`: its text has been looked at.
    uint32_t registerJob(const std::string& data, bool special);
    /// Carries out an action on a job, whatever state it is in; a status of the servlets.
    uint8_t applyAction(uint32_t number, uint32_t action);

private:
    uint8_t applyToSending(ServerJob& job, uint32_t action);
    uint8_t applyToQueued(const Job& job, uint32_t action);
    uint8_t commit(ServerJob& job);

    ServerSetup m_setup;
    Publisher m_machine;
    UploadArea m_uploads;
    bool m_listening;
    uint32_t m_publishNumber = 0;
    std::vector<std::string> m_notes;
};

} // namespace udsim

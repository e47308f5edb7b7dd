// A network publisher: a machine and its server. No sockets, no files, no clock.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "Publisher.h"
#include "UploadArea.h"

namespace udsim {

/// A model of network publishers and the properties of its server.
struct NetworkModel
{
    Model machine;
    bool bluRayFigures;        ///< its maintenance information contains figures for BD
    bool tellsXl;              ///< it reports whether it supports BD-R TL and QL
    bool thirdStacker;         ///< it has a setting for stacker 3
    const char* hashPath;      ///< path of the servlet for the hashes of files
    const char* serverVersion; ///< factory version
};

/// All models, the oldest first.
std::span<const NetworkModel> networkModels();
/// Returns the model of this name, or null.
const NetworkModel* findNetworkModel(const std::string& name);

/// The initial state of a network publisher.
struct ServerSetup
{
    static constexpr uint64_t MIB = 1'048'576;

    const NetworkModel* model = nullptr;
    PublisherSetup machine;
    std::string host;      ///< the loopback address at which it listens
    bool listening = true; ///< initially
    std::string serverVersion;
    std::string webVersion = "2.10";
    std::string interfaceVersion;    ///< required of clients
    uint64_t discSpace = 2048 * MIB; ///< bytes
    bool thirdStacker = false;
    uint32_t knownKind = 0;  ///< kind in the initial setting file; 0: none
    uint32_t drivesUsed = 0; ///< 0 both, or one of them
    uint32_t retries = 3;
    bool errorMark = true;

    static ServerSetup ofModel(const NetworkModel& model);
    /// Returns the server's number of the mode.
    uint32_t serverMode() const;
    /// Sets the mode, from 0 to 4, and the stackers as it requires.
    void setServerMode(uint32_t serverMode);
    /// Returns whether its version does not accept hashes.
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

    /// Advances the simulated time and removes the files of ended jobs.
    void step(uint64_t milliseconds);
    /// Carries out a request and returns the reply.
    HttpReply answer(const HttpRequest& request);

    /// Returns the number of jobs that are registered and not committed.
    size_t jobsInSending() const;
    /// Returns the notes about refused requests and accepted jobs since the last call, at most the last 100.
    std::vector<std::string> takeNotes();
    void note(const std::string& text);
    /// Returns a unique id for a job.
    std::string nextPublishId();
    /// Registers a job and returns its number, or 0 if the list is full. The text of a `special` job must be
    /// valid.
    uint32_t registerJob(const std::string& data, bool special);
    /// Carries out an action on a job in any state. Returns a status of the servlets.
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

// The jobs registered on a publisher server, and the area under "/uploads/" for their files. Everything is
// kept in memory.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "HttpMessage.h"

namespace udsim {

struct UploadedFile
{
    enum class Hash
    {
        none, ///< no hash was received for the current contents
        right,
        wrong,
    };

    std::string contents; ///< received so far
    uint64_t total = 0;   ///< size according to the ranges
    Hash hash = Hash::none;

    bool isWhole() const
    {
        return contents.size() == total;
    }
};

/// A registered job. It is removed, with its files, when it has ended.
struct ServerJob
{
    enum class DiscInfo
    {
        none,
        opened,
        committed,
    };

    uint32_t number = 0;
    std::string password; ///< for uploads; the user name is the number in eight hexadecimal digits
    bool special = false; ///< a maintenance job
    std::string data;     ///< of its registration
    bool folder = false;
    bool committed = false;
    DiscInfo discInfo = DiscInfo::none;
    std::map<std::string, UploadedFile> files;

    std::string user() const;
};

class UploadArea
{
public:
    /// `capacity` is in bytes. With `takesHashes`, a file is complete only with its hash, and the first file
    /// creates a missing folder.
    UploadArea(uint64_t capacity, bool takesHashes);

    uint64_t capacity() const
    {
        return m_capacity;
    }
    uint64_t freeSpace() const;
    const std::vector<ServerJob>& jobs() const
    {
        return m_jobs;
    }
    /// Returns null if there is no such job.
    ServerJob* find(uint32_t number);
    /// Parses eight lower-case hexadecimal digits; nothing for any other text.
    static std::optional<uint32_t> parseNumber(const std::string& text);

    ServerJob& add(uint32_t number, const std::string& data, bool special);
    void remove(uint32_t number);

    /// Carries out MKCOL and PUT under "/uploads/".
    HttpReply answer(const HttpRequest& request);
    /// Checks the hash that a client has sent. Returns the reply, which has only a status.
    HttpReply takeHash(const std::map<std::string, std::string>& form);
    /// Returns whether every file of the job is complete, with a correct hash if the server accepts hashes.
    bool isComplete(const ServerJob& job) const;
    bool isComplete(const ServerJob& job, const std::string& file) const;

private:
    unsigned makeFolder(ServerJob& job);
    unsigned put(ServerJob& job, const std::string& name, const HttpRequest& request);

    uint64_t m_capacity;
    bool m_takesHashes;
    std::vector<ServerJob> m_jobs;
};

} // namespace udsim

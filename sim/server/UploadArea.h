// The jobs that a publisher server is being sent, and the area under "/uploads/" where their files arrive.
// Everything lies in memory.
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
        none, ///< of what lies there now
        right,
        wrong,
    };

    std::string contents; ///< as far as they have come
    uint64_t total = 0;   ///< that the ranges promise
    Hash hash = Hash::none;

    bool isWhole() const
    {
        return contents.size() == total;
    }
};

/// A job from its registration on; its files go when it has ended.
struct ServerJob
{
    enum class DiscInfo
    {
        none,
        opened,
        committed,
    };

    uint32_t number = 0;
    std::string password; ///< its user name is the number in eight hexadecimal digits
    bool special = false; ///< for maintenance
    std::string data;     ///< that registered it
    bool folder = false;
    bool committed = false;
    DiscInfo discInfo = DiscInfo::none;
    std::map<std::string, UploadedFile> files;

    std::string user() const;
};

class UploadArea
{
public:
    /// `capacity` in bytes. `takesHashes`: a file counts only with its hash, and a folder that nobody made is
    /// made with the first file.
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
    /// Null when there is none.
    ServerJob* find(uint32_t number);
    /// The number of a text of eight lower-case hexadecimal digits.
    static std::optional<uint32_t> parseNumber(const std::string& text);

    ServerJob& add(uint32_t number, const std::string& data, bool special);
    void remove(uint32_t number);

    /// MKCOL and PUT under "/uploads/".
    HttpReply answer(const HttpRequest& request);
    /// A hash that a client has sent; the status of its reply.
    HttpReply takeHash(const std::map<std::string, std::string>& form);
    /// Every file of the job is whole, with its hash where hashes are taken.
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

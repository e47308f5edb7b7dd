#include "UploadArea.h"

#include <algorithm>
#include <array>
#include <cinttypes>
#include <cstdio>

#include <glib.h>

namespace udsim {

namespace {

constexpr char AREA[] = "/uploads/";
constexpr size_t JOB_NUMBER_DIGITS = 8; ///< of a job number in a user name and a path
constexpr size_t PASSWORD_LENGTH = 12;

struct Range
{
    uint64_t from = 0;
    uint64_t to = 0; ///< the last byte
    uint64_t total = 0;
};

/// Returns the range of the body within its file; the whole body without a "Content-Range"; nothing if it is
/// invalid.
std::optional<Range> rangeOf(const HttpRequest& request)
{
    const std::string text = request.header("Content-Range");
    if (text.empty()) {
        return Range{0, request.body.size() - 1, request.body.size()};
    }
    Range range;
    int end = 0;
    if (std::sscanf(text.c_str(), "bytes %" SCNu64 "-%" SCNu64 "/%" SCNu64 "%n", &range.from, &range.to,
                    &range.total, &end) != 3 ||
        static_cast<size_t>(end) != text.size()) {
        return std::nullopt;
    }
    const bool fits =
        range.to < range.total && range.from <= range.to && range.to - range.from + 1 == request.body.size();
    return fits ? std::optional(range) : std::nullopt;
}

std::optional<GChecksumType> checksumOf(const std::string& type)
{
    if (type == "SHA-1") {
        return G_CHECKSUM_SHA1;
    }
    if (type == "SHA-256") {
        return G_CHECKSUM_SHA256;
    }
    return type == "MD5" ? std::optional(G_CHECKSUM_MD5) : std::nullopt;
}

} // namespace

std::string ServerJob::user() const
{
    std::array<char, JOB_NUMBER_DIGITS + 1> text{};
    std::snprintf(text.data(), text.size(), "%08" PRIx32, number);
    return text.data();
}

UploadArea::UploadArea(uint64_t capacity, bool takesHashes) : m_capacity(capacity), m_takesHashes(takesHashes)
{
}

uint64_t UploadArea::freeSpace() const
{
    uint64_t used = 0;
    for (const ServerJob& job : m_jobs) {
        for (const auto& [name, file] : job.files) {
            used += file.contents.size();
        }
    }
    return m_capacity - used;
}

ServerJob* UploadArea::find(uint32_t number)
{
    const auto job = std::find_if(m_jobs.begin(), m_jobs.end(),
                                  [&](const ServerJob& one) { return one.number == number; });
    return job == m_jobs.end() ? nullptr : &*job;
}

std::optional<uint32_t> UploadArea::parseNumber(const std::string& text)
{
    if (text.size() != JOB_NUMBER_DIGITS || text.find_first_not_of("0123456789abcdef") != std::string::npos) {
        return std::nullopt;
    }
    return static_cast<uint32_t>(std::stoul(text, nullptr, 16));
}

ServerJob& UploadArea::add(uint32_t number, const std::string& data, bool special)
{
    ServerJob& job = m_jobs.emplace_back();
    job.number = number;
    job.special = special;
    job.data = data;
    job.password = sha1Of("password of " + job.user()).substr(0, PASSWORD_LENGTH);
    return job;
}

void UploadArea::remove(uint32_t number)
{
    std::erase_if(m_jobs, [&](const ServerJob& job) { return job.number == number; });
}

HttpReply UploadArea::answer(const HttpRequest& request)
{
    const std::string path = request.path();
    const std::string rest = path.substr(std::min(path.size(), std::string(AREA).size()));
    const auto number = parseNumber(rest.substr(0, JOB_NUMBER_DIGITS));
    if (!path.starts_with(AREA) || !number || rest.size() <= JOB_NUMBER_DIGITS ||
        rest[JOB_NUMBER_DIGITS] != '/') {
        return {404, {}};
    }
    ServerJob* const job = find(*number);
    // An unknown job gets the same reply as a wrong password.
    if (job == nullptr || request.header("Authorization") != basicCredentials(job->user(), job->password)) {
        return {401, {}};
    }
    if (job->committed) {
        return {403, {}};
    }
    const std::string name = rest.substr(JOB_NUMBER_DIGITS + 1);
    if (request.method == "MKCOL" && name.empty()) {
        return {makeFolder(*job), {}};
    }
    if (request.method == "PUT" && !name.empty() && name.find('/') == std::string::npos) {
        return {put(*job, name, request), {}};
    }
    return {405, {}};
}

unsigned UploadArea::makeFolder(ServerJob& job)
{
    if (job.folder) {
        return 405;
    }
    job.folder = true;
    return 201;
}

unsigned UploadArea::put(ServerJob& job, const std::string& name, const HttpRequest& request)
{
    if (!job.folder && !m_takesHashes) {
        return 409;
    }
    job.folder = true;
    const auto range = rangeOf(request);
    const auto there = job.files.find(name);
    const uint64_t size = there == job.files.end() ? 0 : there->second.contents.size();
    if (!range || request.body.empty() || range->from > size ||
        (range->from > 0 && there->second.total != range->total)) {
        return 400;
    }
    const uint64_t kept = range->from; // a repeated piece replaces everything from its start
    if (kept + request.body.size() > size + freeSpace()) {
        return 507;
    }
    const bool isNew = there == job.files.end();
    UploadedFile& file = job.files[name];
    file.contents.resize(kept);
    file.contents += request.body;
    file.total = range->total;
    file.hash = UploadedFile::Hash::none;
    return isNew ? 201 : 204;
}

HttpReply UploadArea::takeHash(const std::map<std::string, std::string>& form)
{
    for (const char* const key : {"serverjobid", "filename", "hashtype", "hash"}) {
        if (!form.contains(key)) {
            return {400, {}};
        }
    }
    const auto number = parseNumber(form.at("serverjobid"));
    ServerJob* const job = number ? find(*number) : nullptr;
    const auto type = checksumOf(form.at("hashtype"));
    if (job == nullptr || !job->files.contains(form.at("filename"))) {
        return {404, {}};
    }
    if (job->committed) {
        return {403, {}};
    }
    if (!type) {
        return {400, {}};
    }
    UploadedFile& file = job->files.at(form.at("filename"));
    gchar* const wanted = g_compute_checksum_for_data(
        *type, reinterpret_cast<const guchar*>(file.contents.data()), file.contents.size());
    const bool right = form.at("hash") == wanted;
    g_free(wanted);
    file.hash = right ? UploadedFile::Hash::right : UploadedFile::Hash::wrong;
    return {right ? 200U : 409U, {}};
}

bool UploadArea::isComplete(const ServerJob& job) const
{
    return std::all_of(job.files.begin(), job.files.end(),
                       [&](const auto& one) { return isComplete(job, one.first); });
}

bool UploadArea::isComplete(const ServerJob& job, const std::string& file) const
{
    const auto found = job.files.find(file);
    return found != job.files.end() && found->second.isWhole() &&
           (!m_takesHashes || found->second.hash == UploadedFile::Hash::right);
}

} // namespace udsim

// Uses any bytes as a job file (.epj) and as the job text of a server, and as the names in a job that the
// program writes: whatever these contain, the service reads the same publisher and the same kind of job.
#include "JobFile.h"
#include "JobInbox.h"
#include "JobText.h"
#include "MachineModels.h"
#include "TextFiles.h"

#include <algorithm>
#include <cassert>

namespace {

constexpr char FOLDER[] = "/tmp/jobs";
constexpr char FILE_NAME[] = "/tmp/jobs/x_0000.epj";

bool IsOneLine(const std::string& text)
{
    return std::none_of(text.begin(), text.end(),
                        [](char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7F; });
}

void Read(const std::string& text)
{
    std::string error;
    const auto job = udsim::parseJobFile(text, error);
    assert(job.has_value() == error.empty() && IsOneLine(error));
    if (job) {
        assert(udsim::isWholeJobFile(text));
        assert(!job->publisher.empty() && IsOneLine(job->publisher) && job->dataPath.starts_with("/"));
        for (const udsim::Model& model : udsim::models()) {
            for (const uint32_t mode : {0U, 1U, 2U, 5U, 6U}) {
                udsim::Setting setting;
                setting.mode = mode;
                const std::string refusal = udsim::refusalOf(*job, setting, model);
                assert(IsOneLine(refusal));
                assert(!udsim::routeRefusalOf(*job, setting, model).empty() || !job->cleaning ||
                       job->load == -1);
            }
        }
        assert(udsim::setupOf(*job).id == job->id);
    }
    error.clear();
    const auto ofServer = udsim::parseServerJob(text, error);
    assert(ofServer.has_value() == error.empty() && IsOneLine(error));
    assert(!job || !ofServer); // the forms differ in their version
}

/// The inbox takes the file if it is whole, and with it all of its text.
void Take(const std::string& text)
{
    std::filesystem::create_directories(FOLDER);
    WriteText(FILE_NAME, text);
    udsim::JobInbox inbox(FOLDER);
    const udsim::JobInbox::Clock::time_point now;
    std::vector<udsim::FoundFile> files = inbox.take(now);
    const bool isTooLarge = text.size() > udsim::JobInbox::LARGEST;
    assert(files.size() == (isTooLarge || udsim::isWholeJobFile(text) ? 1U : 0U));
    if (files.empty()) {
        files = inbox.take(now + udsim::JobInbox::PATIENCE);
        assert(files.size() == 1);
    }
    assert(files.front().refusal.empty() != isTooLarge && files.front().text == (isTooLarge ? "" : text));
    assert(!std::filesystem::exists(FILE_NAME));
}

/// The bytes up to the first NUL are the publisher's id, the rest is the name of the job.
void Write(const std::string& bytes)
{
    PUBLISHERINFO info;
    const std::string id = bytes.substr(0, bytes.find('\0'));
    info.strPublisherRegistID = id.c_str();
    info.uiPublishMode = static_cast<UINT>(bytes.size() % 7);
    JobStamp stamp{};
    stamp.time.time = 1767605407;
    gmtime_r(&stamp.time.time, &stamp.date);
    std::string line = id;
    std::replace_if(line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    for (const MaintenanceJob kind : {MaintenanceJob::headCleaning, MaintenanceJob::nozzleCheck}) {
        const std::string text = localJobText(kind, info, stamp);
        assert(udsim::isWholeJobFile(text));
        std::string error;
        const auto job = udsim::parseJobFile(text, error);
        assert(job.has_value() == (!line.empty() && IsOneLine(line)));
        assert(!job || (job->publisher == line && job->cleaning == (kind == MaintenanceJob::headCleaning)));

        const std::string sent = networkJobText(kind, info, stamp, bytes);
        assert(sent.size() <= longestNetworkJobText);
        const auto ofServer = udsim::parseServerJob(sent, error);
        assert(!ofServer || ofServer->cleaning == (kind == MaintenanceJob::headCleaning));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    Read(bytes);
    Take(bytes);
    Write(bytes);
    return 0;
}

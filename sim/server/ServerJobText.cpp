#include "ServerJobText.h"

#include <algorithm>

#include "InstallationFiles.h"
#include "JobFile.h"
#include "Protocol.h"
#include "PublisherServer.h"
#include "Text.h"

namespace udsim {

namespace {

bool hasFile(const ServerJob& job, const std::string& prefix)
{
    return std::any_of(job.files.begin(), job.files.end(),
                       [&](const auto& file) { return file.first.starts_with(prefix); });
}

} // namespace

JobSetup normalJobOf(const ServerJob& job)
{
    JobSetup setup;
    for (const std::string& line : splitLines(job.data)) {
        const size_t equals = line.find('=');
        if (equals == std::string::npos) {
            continue;
        }
        const std::string key = trim(line.substr(0, equals));
        const std::string value = trim(line.substr(equals + 1));
        if (key == "JobName") {
            setup.name = value;
        } else if (key == "ID") {
            setup.reference = value;
        } else if (key == "Publisher") {
            setup.person = value;
        } else if (key == "Count") {
            setup.copies = std::max<uint32_t>(
                1, static_cast<uint32_t>(parseNumber(value, JobSetup::MOST_COPIES).value_or(1)));
        }
    }
    const uint64_t write = hasFile(job, "DiscImage_") ? JOB_TYPE_WRITE : 0;
    const uint64_t print = hasFile(job, "PrnData_") ? JOB_TYPE_PRINT : 0;
    setup.type = (write | print) == 0 ? JOB_TYPE_WRITE | JOB_TYPE_PRINT : write | print;
    return setup;
}

JobSetup specialJobOf(const ServerJob& job)
{
    std::string error;
    const auto text = parseServerJob(job.data, error);
    if (!text) {
        return {};
    }
    JobSetup setup = setupOf(*text);
    setup.name = text->name;
    setup.reference = "";
    setup.person = "@UDSetup";
    return setup;
}

std::string refusalOfSpecial(const std::string& data, const ServerSetup& server)
{
    std::string error;
    const auto job = parseServerJob(data, error);
    if (!job) {
        return error;
    }
    Setting setting;
    setting.mode = server.machine.mode;
    for (size_t i = 0; i < setting.media.size(); ++i) {
        setting.media[i] = server.machine.stackers[i].media;
    }
    return routeRefusalOf(*job, setting, server.model->machine);
}

} // namespace udsim

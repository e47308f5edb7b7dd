#include "JobText.h"

#include "InstallPaths.h"
#include "JobMgrConst.h"
#include "PubMgrConst.h"

#include <QString>

#include <algorithm>
#include <iterator>

namespace {

/// The id by which the control service identifies a job. The service defines the meaning of the fixed parts.
std::string jobID(const JobStamp& stamp)
{
    return QString::asprintf("LOCALHOST_%04d%02d%02d%02d%02d%02d%03d_UDSetup_0000", stamp.date.tm_year + 1900,
                             stamp.date.tm_mon + 1, stamp.date.tm_mday, stamp.date.tm_hour, stamp.date.tm_min,
                             stamp.date.tm_sec, stamp.time.millitm)
        .toStdString();
}

/// Stackers are unsigned in the records. Job texts use -1 for no stacker.
std::string stackerText(UINT uiStacker)
{
    return std::to_string(static_cast<int>(uiStacker));
}

/// Replaces line ends, because one inside a value would start a forged key. The value is not cut there: a
/// truncated regist id could be that of another publisher.
std::string inOneLine(std::string value)
{
    const auto endsLine = [](char byte) { return byte == '\n' || byte == '\r' || byte == '\0'; };
    std::replace_if(value.begin(), value.end(), endsLine, ' ');
    return value;
}

/// A key with its values in the job file of a local publisher and in the text for a network publisher.
struct JobLine
{
    JobLine(const char* lineKey, const std::string& bothValues)
        : key(lineKey), local(bothValues), network(bothValues)
    {
    }
    JobLine(const char* lineKey, std::string localValue, std::string networkValue)
        : key(lineKey), local(std::move(localValue)), network(std::move(networkValue))
    {
    }

    const char* key;
    std::string local;
    std::string network;
};

std::string jobText(std::string JobLine::* road, MaintenanceJob job, const PUBLISHERINFO& info,
                    const JobStamp& stamp, const std::string& networkJobName)
{
    const bool check = job == MaintenanceJob::nozzleCheck;
    const UINT load = check ? JOBMGR_LOAD_STACKER1 : JOBMGR_LOAD_STACKER_NOSETTING;
    const UINT eject = check ? nozzleCheckEjectStacker(info.uiPublishMode, info.uiStacker3DiscType)
                             : UINT{JOBMGR_EJECT_STACKER_NOSETTING};
    const UINT printMode = check ? JOBMGR_PRNMODE_NOZZLECHECK : JOBMGR_PRNMODE_CLEANING;

    const JobLine common[] = {
        {"Version", "0x01050000", "0x01030000"},
        {"ID", jobID(stamp), ""},
        {"PublisherID", info.strPublisherRegistID, ""},
        {"Load", stackerText(load)},
        {"Eject", stackerText(eject)},
        {"Count", check ? "1" : "0"},
        {"Create", std::to_string(stamp.time.time)},
        {"Publisher", "@UDSetup"},
        {"Mode", "2"},
        {"JobName", check ? "Nozzle Check" : "Head Cleaning", networkJobName},
        {"SaveJobData", "0"},
        {"PublishID", ""},
        {"Silent", "0"},
    };
    const JobLine print[] = {
        {"PrintMode", std::to_string(printMode), std::to_string(printMode + 1)}, // one higher for servers
        {"DataPath", printDataPath(job)},
        {"DryingTime", "0"},
        {"PrintQuality", "0"},
    };

    const auto section = [road](const char* name, const auto& lines) {
        std::string text = std::string("[") + name + "]\n";
        for (const JobLine& line : lines) {
            text += std::string(line.key) + " = " + inOneLine(line.*road) + "\n";
        }
        return text;
    };
    return section("Common", common) + "\n" + section("Print", print);
}

} // namespace

UINT nozzleCheckEjectStacker(UINT uiPublishMode, UINT uiStacker3DiscType)
{
    switch (uiPublishMode) {
    case PUBMGR_PUBLISHMODE_BATCH:
        return JOBMGR_EJECT_STACKER2_3;
    case PUBMGR_PUBLISHMODE_OUTPUT:
        return uiStacker3DiscType == PUBMGR_STACKERDISCTYPE_NOTUSE ? JOBMGR_EJECT_STACKER4
                                                                   : JOBMGR_EJECT_STACKER3;
    default:
        return JOBMGR_EJECT_STACKER4;
    }
}

const char* printDataPath(MaintenanceJob job)
{
    return job == MaintenanceJob::nozzleCheck ? NOZZLE_CHECK_DATA : HEAD_CLEANING_DATA;
}

std::string localJobText(MaintenanceJob job, const PUBLISHERINFO& info, const JobStamp& stamp)
{
    return jobText(&JobLine::local, job, info, stamp, "");
}

std::string networkJobText(MaintenanceJob job, const PUBLISHERINFO& info, const JobStamp& stamp,
                           const std::string& jobName)
{
    return jobText(&JobLine::network, job, info, stamp, jobName).substr(0, longestNetworkJobText);
}

#include "FerroJob.h"

#include "InstallPaths.h"
#include "PubMgrConst.h"
#include "PublisherMgr.h"

#include <QString>

#include <cstdio>
#include <ctime>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int jobFileNumbers = 1000; // from 0 on, in four digits
constexpr long nanosecondsPerMillisecond = 1000000;

std::string jobFilePath(const std::string& registID, int number)
{
    return std::string(JOB_DIR) + "/" + registID + QString::asprintf("_%04d.epj", number).toStdString();
}

timeb presentTime()
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    timeb time{};
    time.time = now.tv_sec;
    time.millitm = static_cast<unsigned short>(now.tv_nsec / nanosecondsPerMillisecond);
    return time;
}

/// The connection is opened and closed again: what sends a job and its print data in between is not part of
/// the program yet. Nor does the facade know network publishers, and so it gives no connection.
void connectToNetworkPublisher(const PUBLISHERINFO& info)
{
    CPublisherMgr publisherMgr(true);
    DWORD connection = 0;
    if (!publisherMgr.StartConnection(info.strPublisherRegistID.c_str(), &connection, nullptr)) {
        return;
    }
    publisherMgr.EndConnection(connection);
}

} // namespace

int CFerroJob::openNewJobFile(const PUBLISHERINFO& info)
{
    for (int number = 0; number < jobFileNumbers; ++number) {
        const int fd = ::open(jobFilePath(info.strPublisherRegistID, number).c_str(),
                              O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRWXU);
        if (fd >= 0) {
            return fd;
        }
    }
    return -1;
}

void CFerroJob::getCurrentTimeForFileName(timeb& time, tm& date)
{
    static timeb _lasttime{};
    time = risingStamp(presentTime(), _lasttime);
    _lasttime = time;
    date = {};
    localtime_r(&time.time, &date);
}

void CFerroJob::SubmitHeadCleaningJob(const PUBLISHERINFO& info, const char* /*szJobNameUtf8*/)
{
    submit(MaintenanceJob::headCleaning, info);
}

void CFerroJob::SubmitNozzleCheckJob(const PUBLISHERINFO& info, const char* /*szJobNameUtf8*/)
{
    std::fputs("CFerroJob::SubmitNozzleCheckJob", stdout);
    submit(MaintenanceJob::nozzleCheck, info);
}

void CFerroJob::submit(MaintenanceJob job, const PUBLISHERINFO& info)
{
    JobStamp stamp{};
    getCurrentTimeForFileName(stamp.time, stamp.date);
    if (info.uiPublisherType == PUBMGR_CONNECTTYPE_NETWORK) {
        connectToNetworkPublisher(info);
        return;
    }
    writeJobFile(info, localJobText(job, info, stamp));
}

void CFerroJob::writeJobFile(const PUBLISHERINFO& info, const std::string& text)
{
    const int fd = openNewJobFile(info);
    if (fd < 0) {
        return;
    }
    std::FILE* file = ::fdopen(fd, "w"); // house-rule: close-on-exec: the descriptor has the flag
    if (!file) {
        ::close(fd);
        return;
    }
    // The text fits the stream's buffer, and so the service sees an empty file or a whole one.
    std::fprintf(file, "%s", text.c_str());
    std::fclose(file);
}

#include "FerroJob.h"

#include "InstallPaths.h"
#include "NW_Com_Lib.h"
#include "PubMgrConst.h"
#include "PublisherMgr.h"

#include <QString>

#include <cstdio>
#include <ctime>
#include <memory>
#include <new>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int jobFileNumbers = 1000; // numbered from 0, in four digits
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

/// Sends the job with its print data, which is read in one call. Sends nothing if there is no data. The
/// result is ignored.
void sendWithData(DWORD connection, const std::string& text, int fd)
{
    struct stat status = {};
    if (::fstat(fd, &status) != 0 || status.st_size < 1) {
        return;
    }
    const auto size = static_cast<size_t>(status.st_size);
    const std::unique_ptr<BYTE[]> data(new (std::nothrow) BYTE[size]);
    const ssize_t count = data ? ::read(fd, data.get(), size) : -1;
    if (count < 1) {
        return;
    }
    int serverJobID = 0;
    SendSpecialJobData(connection, reinterpret_cast<const BYTE*>(text.data()),
                       static_cast<DWORD>(text.size()), data.get(), static_cast<DWORD>(count), &serverJobID);
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

void CFerroJob::SubmitHeadCleaningJob(const PUBLISHERINFO& info, const char* szJobNameUtf8)
{
    submit(MaintenanceJob::headCleaning, info, szJobNameUtf8);
}

void CFerroJob::SubmitNozzleCheckJob(const PUBLISHERINFO& info, const char* szJobNameUtf8)
{
    std::fputs("CFerroJob::SubmitNozzleCheckJob", stdout);
    submit(MaintenanceJob::nozzleCheck, info, szJobNameUtf8);
}

void CFerroJob::submit(MaintenanceJob job, const PUBLISHERINFO& info, const char* szJobNameUtf8)
{
    JobStamp stamp{};
    getCurrentTimeForFileName(stamp.time, stamp.date);
    if (info.uiPublisherType == PUBMGR_CONNECTTYPE_NETWORK) {
        sendToServer(job, info, stamp, szJobNameUtf8 ? szJobNameUtf8 : "");
    } else {
        writeJobFile(info, localJobText(job, info, stamp));
    }
}

void CFerroJob::sendToServer(MaintenanceJob job, const PUBLISHERINFO& info, const JobStamp& stamp,
                             const std::string& jobName)
{
    // Before the connection is opened: without memory for the text, there is nothing to close.
    const std::string text = networkJobText(job, info, stamp, jobName);
    CPublisherMgr publisherMgr(true);
    DWORD connection = 0;
    if (!publisherMgr.StartConnection(info.strPublisherRegistID.c_str(), &connection, nullptr)) {
        return;
    }
    const int fd = ::open(printDataPath(job), O_RDONLY | O_CLOEXEC);
    if (fd >= 0) {
        sendWithData(connection, text, fd);
        ::close(fd);
    }
    publisherMgr.EndConnection(connection);
}

void CFerroJob::writeJobFile(const PUBLISHERINFO& info, const std::string& text)
{
    const int fd = openNewJobFile(info);
    if (fd < 0) {
        return;
    }
    std::FILE* file = ::fdopen(fd, "w");
    if (!file) {
        ::close(fd);
        return;
    }
    // The text fits the stream's buffer, so the service sees either an empty file or a complete one.
    std::fprintf(file, "%s", text.c_str());
    std::fclose(file);
}

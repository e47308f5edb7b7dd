#include "JobFolder.h"

#include "CallingUser.h"
#include "InstallPaths.h"
#include "PubMgrConst.h"

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <dirent.h>
#include <libgen.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t jobFolderMode = 01777;
const JobFolderChange badPath = {changeWorkingFolder_BadPath, {}};
const JobFolderChange processingJob = {changeWorkingFolder_ProcessingJob, {}};

void reportRealPath(const char* path, int error)
{
    std::fprintf(stderr, "realpath(\"%s\") failed, errno: %d\n%s\n", path, error, std::strerror(error));
}

/// Tests the path itself: a link to a folder is not a folder.
bool isFolder(const char* path)
{
    struct stat found = {};
    return lstat(path, &found) == 0 && S_ISDIR(found.st_mode);
}

bool isMissing(const char* path)
{
    struct stat found = {};
    return lstat(path, &found) != 0 && errno == ENOENT;
}

/// Changes the effective user to the one given in decimal digits. Returns false if the text is not a number
/// or the change is not permitted.
bool becomeUser(const char* text)
{
    uid_t user = 0;
    const char* end = text + std::strlen(text);
    const auto [rest, error] = std::from_chars(text, end, user);
    return error == std::errc() && rest == end && seteuid(user) == 0;
}

/// Reports a folder that the user who started the privileged program cannot open, because that user needs to
/// see the jobs. The report has no other effect.
void reportUnreadableForCaller(const char* folder)
{
    const char* user = callersUserID();
    if (user == nullptr || !becomeUser(user)) {
        return;
    }
    DIR* opened = opendir(folder);
    const int error = errno;
    if (opened != nullptr) {
        closedir(opened);
    }
    // Returning to the real user is always permitted.
    [[maybe_unused]] const int result = seteuid(getuid());
    if (opened == nullptr) {
        std::fprintf(stderr, "opendir(\"%s\") failed for uid %s, errno: %d\n%s for uid %s\n", folder, user,
                     error, std::strerror(error), user);
    }
}

JobFolderChange changeToDefault()
{
    if (currentJobFolder() != JOB_DIR) {
        if (jobFolderHasJobs()) {
            return processingJob;
        }
        unlink(JOB_DIR);
        if (!makeJobFolder(JOB_DIR)) {
            return badPath;
        }
    }
    return {changeWorkingFolder_OK, INSTALL_DIR};
}

/// The link already points to `target`, which may have been removed since.
JobFolderChange keepTarget(const char* target)
{
    if (isMissing(target)) {
        makeJobFolder(target);
    }
    return isFolder(target) ? JobFolderChange{changeWorkingFolder_OK, {}} : badPath;
}

JobFolderChange changeToCustom(const std::string& folder)
{
    reportUnreadableForCaller(folder.c_str());

    const std::string target = folder + "/" + PUBMGR_STR_WORKFOLDER;
    if (currentJobFolder() == target) {
        return keepTarget(target.c_str());
    }
    if (jobFolderHasJobs()) {
        return processingJob;
    }
    if (!makeJobFolder(target.c_str())) {
        return badPath;
    }
    // If the default folder holds files other than jobs, rmdir() and symlink() fail and jobs stay there.
    if (isFolder(JOB_DIR)) {
        rmdir(JOB_DIR);
    } else {
        unlink(JOB_DIR);
    }
    [[maybe_unused]] const int result = symlink(target.c_str(), JOB_DIR);
    return {changeWorkingFolder_OK, folder};
}

} // namespace

std::string realPathOf(const char* path)
{
    errno = 0;
    const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path, nullptr), &std::free);
    return resolved ? std::string(resolved.get()) : std::string();
}

std::string currentJobFolder()
{
    std::string folder = realPathOf(JOB_DIR);
    if (!folder.empty()) {
        return folder;
    }
    const int realPathError = errno;
    if (realPathError != EACCES && realPathError != ENOENT) {
        reportRealPath(JOB_DIR, realPathError);
        return {};
    }
    char text[1024];
    const ssize_t length = readlink(JOB_DIR, text, sizeof text - 1);
    if (length > 0) {
        return {text, static_cast<size_t>(length)};
    }
    const int readLinkError = errno;
    std::fprintf(stderr, "realpath(\"%s\") failed, errno: %d. readlink also failed, errno: %d\n%s\n", JOB_DIR,
                 realPathError, readLinkError, std::strerror(readLinkError));
    return {};
}

std::string repairedJobFolder()
{
    std::string folder = currentJobFolder();
    if (folder.empty()) {
        rmdir(JOB_DIR);
        unlink(JOB_DIR);
        makeJobFolder(JOB_DIR);
        folder = currentJobFolder();
    }
    return folder;
}

std::string workingFolderOf(const std::string& jobFolder)
{
    std::string path = jobFolder; // dirname() writes into it
    return dirname(path.data());
}

bool isJobName(std::string_view name)
{
    return name.size() > 4 && !name.starts_with('.') && (name.ends_with(".epj") || name.ends_with(".eps"));
}

bool jobFolderHasJobs()
{
    DIR* folder = opendir(JOB_DIR);
    if (folder == nullptr) {
        return false;
    }
    const dirent* entry = readdir(folder);
    while (entry != nullptr && !isJobName(entry->d_name)) {
        entry = readdir(folder);
    }
    closedir(folder);
    return entry != nullptr;
}

bool makeJobFolder(const char* path)
{
    if (mkdir(path, jobFolderMode) != 0) {
        const int error = errno;
        if (error != EEXIST || !isFolder(path)) {
            std::fprintf(stderr, "mkdir(\"%s\") failed, errno: %d\n%s\n", path, error, std::strerror(error));
            return false;
        }
    }
    if (chmod(path, jobFolderMode) != 0) { // the umask restricted the mode of mkdir()
        const int error = errno;
        std::fprintf(stderr, "chmod failed, errno: %d\n%s\n", error, std::strerror(error));
        return false;
    }
    return true;
}

bool isInsideInstallation(std::string_view folder)
{
    return folder != INSTALL_DIR && folder.starts_with(INSTALL_DIR);
}

JobFolderChange changeJobFolder(const std::string& folder)
{
    if (folder.empty()) {
        return changeToDefault();
    }
    if (isInsideInstallation(folder)) {
        return badPath;
    }
    const std::string resolved = realPathOf(folder.c_str());
    if (resolved.empty()) {
        reportRealPath(folder.c_str(), errno);
        return badPath;
    }
    if (isInsideInstallation(resolved)) {
        return badPath;
    }
    return resolved == INSTALL_DIR ? changeToDefault() : changeToCustom(resolved);
}

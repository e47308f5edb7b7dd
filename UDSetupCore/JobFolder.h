// Where jobs live. All programs of the suite use one fixed path for them, JOB_DIR: a folder of its own by
// default, or a link to a folder in the place that somebody chose. The link itself is the setting.
//
// What goes wrong is told on the standard error. Nothing is locked: a job that another program adds between
// the look for jobs and the move of the link is not noticed. Main thread: changeJobFolder may switch the user
// for a moment.
#pragma once

#include <string>
#include <string_view>

/// What became of an attempt to change the working folder.
enum ChangeWorkingFolderResult
{
    changeWorkingFolder_OK = 0,
    changeWorkingFolder_ProcessingJob = 1, ///< jobs wait or run in the present folder, which stays
    changeWorkingFolder_BadPath = 2        ///< jobs cannot live there
};

struct JobFolderChange
{
    ChangeWorkingFolderResult result;
    std::string folder; ///< the working folder from now on; empty where no folder was put into force
};

/// The path without links, "." and "..". Empty when it cannot be followed, with the reason in errno.
std::string realPathOf(const char* path);

/// The folder behind JOB_DIR, also when the link's target is missing or out of reach. Empty when the path is
/// broken. A link's text is cut at 1023 bytes.
std::string currentJobFolder();

/// The folder behind JOB_DIR after its repair: a path that is broken is removed and made as a folder. Empty
/// when that fails.
std::string repairedJobFolder();

/// The folder that holds `jobFolder`: what a person knows as the working folder.
std::string workingFolderOf(const std::string& jobFolder);

/// Whether a file of this name in the job folder is a job that waits or runs.
bool isJobName(std::string_view name);

/// Whether JOB_DIR holds a job. False when it cannot be opened.
bool jobFolderHasJobs();

/// Makes a folder that every user may use and where nobody removes another's files (mode 01777, whatever the
/// umask). A folder that is there already gets that mode.
bool makeJobFolder(const char* path);

/// Whether a text names a place in the installation other than its own folder. By its first bytes alone, so
/// a neighbour whose name begins like the installation's counts too.
bool isInsideInstallation(std::string_view folder);

/// Puts jobs into the working folder `folder`; empty or INSTALL_DIR means the default. Files are not moved.
/// A target made on the way may stay behind when a later step fails.
JobFolderChange changeJobFolder(const std::string& folder);

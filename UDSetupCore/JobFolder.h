// The folder for jobs. All programs of the suite use the fixed path JOB_DIR: a folder by default, or a link
// to a folder inside the working folder that the user chose. The link itself is the setting.
//
// Errors are printed on standard error. Nothing is locked: a job that another program adds between the check
// for jobs and the change of the link goes unnoticed. Main thread only: changeJobFolder may switch the
// effective user temporarily.
#pragma once

#include <string>
#include <string_view>

/// The result of an attempt to change the working folder.
enum ChangeWorkingFolderResult
{
    changeWorkingFolder_OK = 0,
    changeWorkingFolder_ProcessingJob = 1, ///< jobs wait or run in the current folder, which is kept
    changeWorkingFolder_BadPath = 2        ///< the folder cannot hold jobs
};

struct JobFolderChange
{
    ChangeWorkingFolderResult result;
    std::string folder; ///< the new working folder; empty on failure or if a custom folder is kept
};

/// The path without links, "." and "..". Empty if it cannot be resolved; errno holds the reason.
std::string realPathOf(const char* path);

/// The folder that JOB_DIR refers to, even if the link's target is missing or inaccessible. Empty if the path
/// is broken. The text of a link that cannot be resolved is cut at 1023 bytes.
std::string currentJobFolder();

/// The folder that JOB_DIR refers to. A broken path is first replaced by a folder. Empty if that fails.
std::string repairedJobFolder();

/// The folder that contains `jobFolder`. The user interface calls it the working folder.
std::string workingFolderOf(const std::string& jobFolder);

/// Whether a file with this name in the job folder is a waiting or running job.
bool isJobName(std::string_view name);

/// Whether JOB_DIR holds a job. False if it cannot be opened.
bool jobFolderHasJobs();

/// Creates a folder that every user may use and in which users cannot remove each other's files (mode 01777,
/// regardless of the umask). An existing folder gets that mode.
bool makeJobFolder(const char* path);

/// Whether a path lies inside the installation folder; the folder itself does not count. Compares only the
/// first bytes, so a sibling folder whose name starts with that of the installation counts too.
bool isInsideInstallation(std::string_view folder);

/// Changes the working folder to `folder`; empty or INSTALL_DIR means the default. Files are not moved. A
/// newly created target folder may remain if a later step fails.
JobFolderChange changeJobFolder(const std::string& folder);

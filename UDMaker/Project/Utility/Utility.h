// Path helpers. The separator is "/", although the names keep their Windows wording.
#pragma once

#include "Win_def_MFC.h"

/// Static operations; any thread may call them.
class CUtility
{
public:
    enum enAccessMode
    {
        ACCESS_NONE = 0,
        ACCESS_READ = 1,
        ACCESS_READ_WRITE = 2,
        ACCESS_EXECUTE = 3,
    };

    virtual ~CUtility() = default;

    /// True if the last byte is a slash. NULL stops the process.
    static bool IsPathBackSlash(LPCTSTR pszPath);
    /// Appends a slash unless there is one at the end.
    static void AddBackSlash(CString& strPath);
    /// Removes all slashes at the end; a text of slashes alone becomes empty.
    static void RemoveBackSlash(CString& strPath);
    /// True for a drive ("c:/", "c:\") and for two leading slashes or backslashes; "/opt" is not full.
    static bool IsFullPath(LPCTSTR pPath);
    /// Joins both with one slash; NULL stops the process.
    static CString CombinePath(LPCTSTR pPath, LPCTSTR pFileName);
    static CString GetFileNameFromPath(LPCTSTR pszPath);
    static CString GetFileNameFromPathNoExt(LPCTSTR pszPath);
    /// The text from the last "." on, with the dot if `bOutputPaser` is true; empty without a dot.
    static CString GetFileExtFromPath(LPCTSTR pszPath, bool bOutputPaser);
    /// The part before the last slash; empty without one.
    static CString GetFolderPathFromFilePath(LPCTSTR pszFilePath);

    /// Returns 267 for a regular file, 6009 for anything else that is read-only for everyone, otherwise 0, 5
    /// (denied) or 3 (any other failure, including a missing path). Never 2.
    static long CheckFilePath(LPCTSTR pFilePath, enAccessMode AccessMode);
    /// Like CheckFilePath, but a regular file does not give 267. ACCESS_READ looks for a member named "*".
    static long CheckFolderPath(LPCTSTR lpszFolderPath, enAccessMode AccessMode);
    /// The existence test is inverted: a path that exists stops the process, and a missing path is not
    /// created. Always true.
    static bool CreateFolder(LPCTSTR lpszFolderPath);
};

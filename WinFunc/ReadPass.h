// Shares one read of a setting file and one load of the registry within one operation.
#pragma once

#include "ProfileText.h"

#include <memory>
#include <string>

/// While an object of this class exists, its thread reads a profile file once, unless it reads another one in
/// between, and loads the registry file once. All values read in the pass thus belong to one moment; changes
/// by other programs are visible from the next pass on. A write by the thread itself, and any change of the
/// registry by this process, ends the sharing: the next read reads the file again.
///
/// A nested pass in the same thread has no effect. GetPrivateProfileStringA and GetPrivateProfileIntA always
/// read the file.
class ReadPass
{
public:
    ReadPass();
    ~ReadPass();
    ReadPass(const ReadPass&) = delete;
    ReadPass& operator=(const ReadPass&) = delete;

    /// The file as this thread's pass read it, or as it is now. Null if it cannot be opened.
    static std::shared_ptr<const ProfileText> Profile(const std::string& path);
    /// Call after this thread changed a profile file.
    static void ForgetProfile();

    /// True if this thread's pass has loaded the registry in the given state of the map (see RegState).
    /// `isWritable` is then set to whether the file could be opened for writing.
    static bool HasRegistry(unsigned long state, bool& isWritable);
    static void KeepRegistry(unsigned long state, bool isWritable);

private:
    std::string m_path;
    std::shared_ptr<const ProfileText> m_profile; // null: no file is kept
    bool m_hasRegistry = false;
    unsigned long m_registryState = 0;
    bool m_isRegistryWritable = false;
};

// Sharing what was read of setting files and of the registry within one piece of work.
#pragma once

#include "ProfileText.h"

#include <memory>
#include <string>

/// While an object of this class lives, its thread reads the same profile file once, as long as no other one
/// comes in between, and loads the registry file once. Everything that the work asks then belongs to one
/// moment; what another program or thread changes meanwhile is seen by the next pass. What the thread itself
/// writes ends the sharing: the next reading goes to the file again.
///
/// A pass within another one of the same thread has no effect of its own. GetPrivateProfileStringA and
/// GetPrivateProfileIntA always read the file.
class ReadPass
{
public:
    ReadPass();
    ~ReadPass();
    ReadPass(const ReadPass&) = delete;
    ReadPass& operator=(const ReadPass&) = delete;

    /// The file as this thread's pass has read it, or read now. Null when it cannot be opened.
    static std::shared_ptr<const ProfileText> Profile(const std::string& path);
    /// To be called when this thread has changed a profile file.
    static void ForgetProfile();

    /// Whether the pass of this thread has loaded the registry in the given state of the map, and then
    /// whether the file could be opened for writing.
    static bool HasRegistry(unsigned long state, bool& isWritable);
    static void KeepRegistry(unsigned long state, bool isWritable);

private:
    std::string m_path;
    std::shared_ptr<const ProfileText> m_profile; // null: none is kept
    bool m_hasRegistry = false;
    unsigned long m_registryState = 0;
    bool m_isRegistryWritable = false;
};

#include "ReadPass.h"

namespace {

/// The outermost pass of this thread.
thread_local ReadPass* t_pass = nullptr;

} // namespace

ReadPass::ReadPass()
{
    if (t_pass == nullptr) {
        t_pass = this;
    }
}

ReadPass::~ReadPass()
{
    if (t_pass == this) {
        t_pass = nullptr;
    }
}

std::shared_ptr<const ProfileText> ReadPass::Profile(const std::string& path)
{
    if (t_pass == nullptr) {
        return ProfileText::Read(path.c_str());
    }
    if (t_pass->m_profile == nullptr || t_pass->m_path != path) {
        t_pass->m_profile = ProfileText::Read(path.c_str());
        t_pass->m_path = path;
    }
    return t_pass->m_profile;
}

void ReadPass::ForgetProfile()
{
    if (t_pass != nullptr) {
        t_pass->m_profile = nullptr;
    }
}

bool ReadPass::HasRegistry(unsigned long state, bool& isWritable)
{
    if (t_pass == nullptr || !t_pass->m_hasRegistry || t_pass->m_registryState != state) {
        return false;
    }
    isWritable = t_pass->m_isRegistryWritable;
    return true;
}

void ReadPass::KeepRegistry(unsigned long state, bool isWritable)
{
    if (t_pass != nullptr) {
        t_pass->m_hasRegistry = true;
        t_pass->m_registryState = state;
        t_pass->m_isRegistryWritable = isWritable;
    }
}

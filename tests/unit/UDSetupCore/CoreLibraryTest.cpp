// This program contains all of UDSetupCore and loads only Qt Core. A widget in the library would fail to link
// or would load another Qt library.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <link.h>

namespace {

std::vector<std::string> loadedLibraries()
{
    std::vector<std::string> names;
    dl_iterate_phdr(
        [](dl_phdr_info* library, size_t, void* list) {
            static_cast<std::vector<std::string>*>(list)->emplace_back(library->dlpi_name);
            return 0;
        },
        &names);
    return names;
}

TEST(CoreLibrary, LoadsNoQtLibraryButQtCore)
{
    bool core = false;
    for (const std::string& name : loadedLibraries()) {
        const size_t qt = name.find("libQt");
        if (qt == std::string::npos) {
            continue;
        }
        EXPECT_EQ(name.substr(qt + 6, 5), "Core.") << name;
        core = true;
    }
    EXPECT_TRUE(core);
}

} // namespace

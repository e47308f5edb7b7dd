#include "ListedName.h"

#include "PubMgrConst.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr size_t longestLine = 1023;
constexpr size_t sizeBeforeValue =
    std::string_view(REG_PUB_SETUP_VAL_PUBLISH_NAME).size() + 1; // with the "="
constexpr size_t longestListed = 255;

std::string_view withoutBlanksInFront(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

} // namespace

CString listedName(const CString& name)
{
    std::string stored = name.substr(0, name.find_first_of(std::string_view("\r\n\0", 3)));
    if (stored.empty()) {
        stored = REG_PUB_SETUP_STRING_DEFAULT;
    }
    std::erase_if(stored, [](char byte) { return byte < 0x20 || byte > 0x7E; });

    std::string_view value = std::string_view(stored).substr(0, longestLine - sizeBeforeValue);
    value = withoutBlanksInFront(value.substr(0, value.find(';')));
    if (value.starts_with('=')) {
        value = withoutBlanksInFront(value.substr(1));
    }
    value = value.substr(0, value.find_last_not_of(' ') + 1);
    return CString(std::string(value.substr(0, longestListed)));
}

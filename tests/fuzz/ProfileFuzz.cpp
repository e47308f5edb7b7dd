// Uses any bytes as a private profile file: reads it with buffers of several sizes, and writes to it without
// changing other lines.
#include "ProfileText.h"
#include "TextFiles.h"
#include "Win_def.h"
#include "Win_def_log.h"

#include <cstring>
#include <initializer_list>
#include <vector>

namespace {

const char FILE_NAME[] = "/tmp/fuzz.ini";
const char VALUE[] = "\x01value\x01"; // unique in the file, because no input contains it
const char LINE_START[] = "\nKey=";
const char PAIRS[] = "Key=1\0Other=2\0";
const char PAIR_LINES[] = "Key=1\nOther=2\n";

/// The first buffer holds the longest value.
void ReadWithBuffers(std::initializer_list<DWORD> sizes)
{
    const auto profile = ProfileText::Read(FILE_NAME);
    size_t whole = 0;
    for (const DWORD size : sizes) {
        std::vector<char> buffer(size);
        const DWORD length = GetPrivateProfileStringA("Common", "Key", "", buffer.data(), size, FILE_NAME);
        if (size == 0) {
            assert(length == 0);
            continue;
        }
        whole = size == 1024 ? length : whole;
        assert(profile->Value("Common", "Key", size - 1) == buffer.data());
        assert(length == std::min<size_t>(whole, size - 1));
        assert(std::strlen(buffer.data()) == length);
        for (size_t index = 0; index < length; ++index) {
            assert(buffer[index] >= 0x20 && buffer[index] <= 0x7E);
        }
    }
    GetPrivateProfileIntA("Common", "Key", 0, FILE_NAME);
}

/// The contents of a file after `text` was written over `before` from the start.
std::string Over(const std::string& before, const std::string& text)
{
    return before.size() > text.size() ? text + before.substr(text.size()) : text;
}

/// True if one line was replaced or added, at the place of the value.
bool IsOneLineWritten(const std::string& before, const std::string& after)
{
    const size_t place = after.find(VALUE);
    if (place == std::string::npos) {
        return false;
    }
    const std::string added = after.substr(0, place + std::strlen(VALUE)) + "\n";

    const std::string newSection = std::string("[Common]\nKey=") + VALUE + "\n";
    if (after == before + newSection || after == before + "\n" + newSection) {
        return true;
    }
    if (before.compare(0, place, after, 0, place) == 0) { // a replaced line
        const size_t lineFeed = before.find('\n', place);
        if (lineFeed != std::string::npos && after == Over(before, added + before.substr(lineFeed + 1))) {
            return true;
        }
    }
    const size_t start = place - std::strlen(LINE_START); // a new first line of the section
    return place >= std::strlen(LINE_START) &&
           after.compare(start, std::strlen(LINE_START), LINE_START) == 0 && start < before.size() &&
           before.compare(0, start, after, 0, start) == 0 &&
           after == Over(before, added + before.substr(start + 1));
}

/// True if the lines of the section were replaced and all others are unchanged.
bool IsSectionWritten(const std::string& before, const std::string& after)
{
    const std::string section = "[Common]";
    const std::string visible = before.c_str();
    const size_t found = visible.find(section);
    if (found == std::string::npos) {
        const std::string added = section + "\n" + PAIR_LINES;
        return after == before + added || after == before + "\n" + added;
    }
    const size_t behind = found + section.size() + 1;
    const size_t next = std::min(visible.find('[', behind - 1), visible.size());
    return after == Over(before, before.substr(0, behind) + PAIR_LINES + before.substr(next));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    SetLogLevel(0);
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (text.find(VALUE) != std::string::npos) {
        return 0;
    }
    WriteText(FILE_NAME, text);
    ReadWithBuffers({1024, 1023, 100, 2, 1, 0});
    assert(ReadText(FILE_NAME) == text);

    const BOOL keyWritten = WritePrivateProfileStringA("Common", "Key", VALUE, FILE_NAME);
    const std::string withKey = ReadText(FILE_NAME);
    assert(keyWritten ? IsOneLineWritten(text, withKey) : withKey == text);
    ReadWithBuffers({1024});

    WriteText(FILE_NAME, text);
    const BOOL sectionWritten = WritePrivateProfileSectionA("Common", PAIRS, FILE_NAME);
    const std::string withSection = ReadText(FILE_NAME);
    assert(sectionWritten ? IsSectionWritten(text, withSection) : withSection == text);
    return 0;
}

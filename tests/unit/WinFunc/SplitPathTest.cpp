#include "Win_def.h"

#include <cstring>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

struct Parts
{
    int result;
    std::string drive;
    std::string dir;
    std::string name;
    std::string ext;

    bool operator==(const Parts&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Parts& parts)
{
    return out << parts.result << " [" << parts.drive << "] [" << parts.dir << "] [" << parts.name << "] ["
               << parts.ext << "]";
}

/// Uses buffers of exactly these sizes and expects only NULs after each text.
Parts Split(const std::string& path, size_t driveSize, size_t dirSize, size_t nameSize, size_t extSize)
{
    std::vector<char> buffers[4] = {std::vector<char>(driveSize, '#'), std::vector<char>(dirSize, '#'),
                                    std::vector<char>(nameSize, '#'), std::vector<char>(extSize, '#')};
    const int result = _splitpath_s(path.c_str(), buffers[0].data(), driveSize, buffers[1].data(), dirSize,
                                    buffers[2].data(), nameSize, buffers[3].data(), extSize);
    std::string texts[4];
    for (int i = 0; i < 4; ++i) {
        const std::vector<char>& buffer = buffers[i];
        const size_t length = strnlen(buffer.data(), buffer.size());
        texts[i].assign(buffer.data(), length);
        EXPECT_LT(length, buffer.size()) << "no NUL in output " << i << " of " << path;
        for (size_t at = length; at < buffer.size(); ++at) {
            EXPECT_EQ(buffer[at], '\0') << "output " << i << " of " << path;
        }
    }
    return {result, texts[0], texts[1], texts[2], texts[3]};
}

Parts Split(const std::string& path)
{
    return Split(path, 260, 260, 260, 260);
}

} // namespace

TEST(SplitPath, Table)
{
    struct Row
    {
        const char* path;
        Parts parts;
    };
    const Row rows[] = {
        {"", {0, "", "", "", ""}},
        {"name", {0, "", "", "name", ""}},
        {"name.ext", {0, "", "", "name", ".ext"}},
        {"/opt/arven/name.ext", {0, "", "/opt/arven/", "name", ".ext"}},
        {"/name.ext", {0, "", "/", "name", ".ext"}},
        {"/opt/folder/", {0, "", "/opt/folder/", "", ""}},
        {"opt/folder/name", {0, "", "/folder/", "name", ""}}, // from the first slash on
        {"opt/name", {0, "", "/", "name", ""}},
        {"a.tar.gz", {0, "", "", "a.tar", ".gz"}},
        {"/a.b/name", {0, "", "/a.b/", "name", ""}}, // a dot in the folder starts no extension
        {".hidden", {0, "", "", "", ".hidden"}},
        {"name.", {0, "", "", "name", "."}},
        {"C:/folder/name.ext", {0, "C:", "/folder/", "name", ".ext"}},
        {"C:name.ext", {0, "C:", "", "C:name", ".ext"}},
        {"/a/b:c", {0, "b:", "/a/", "b:c", ""}},
        {"x:y:z", {0, "x:", "", "x:y:z", ""}},
        {":name", {0, "", "", ":name", ""}},
        {"\\folder\\name.ext", {0, "", "", "\\folder\\name", ".ext"}}, // not a separator
        {"//a//b", {0, "", "//a//", "b", ""}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Split(row.path), row.parts) << row.path;
    }
}

TEST(SplitPath, PartsThatDoNotFitStayEmptyWithoutAnError)
{
    const std::string path = "C:/dir/name.ext";
    EXPECT_EQ(Split(path, 3, 6, 5, 5), (Parts{0, "C:", "/dir/", "name", ".ext"}));
    EXPECT_EQ(Split(path, 2, 6, 5, 5), (Parts{0, "", "/dir/", "name", ".ext"}));
    EXPECT_EQ(Split(path, 3, 5, 5, 5), (Parts{0, "C:", "", "name", ".ext"}));
    EXPECT_EQ(Split(path, 3, 6, 4, 5), (Parts{0, "C:", "/dir/", "", ".ext"}));
    EXPECT_EQ(Split(path, 3, 6, 5, 4), (Parts{0, "C:", "/dir/", "name", ""}));
    EXPECT_EQ(Split(path, 1, 1, 1, 1), (Parts{0, "", "", "", ""}));
}

TEST(SplitPath, BadArgumentsReturn22)
{
    char buffer[16] = "old";
    EXPECT_EQ(_splitpath_s(nullptr, buffer, 16, buffer, 16, buffer, 16, buffer, 16), 22);
    EXPECT_EQ(_splitpath_s(nullptr, nullptr, 0, nullptr, 0, nullptr, 0, nullptr, 0), 22);
    for (int bad = 0; bad < 4; ++bad) {
        char* outputs[4] = {buffer, buffer, buffer, buffer};
        size_t sizes[4] = {16, 16, 16, 16};

        outputs[bad] = nullptr; // with a size
        EXPECT_EQ(_splitpath_s("/a/b.c", outputs[0], sizes[0], outputs[1], sizes[1], outputs[2], sizes[2],
                               outputs[3], sizes[3]),
                  22)
            << bad;

        outputs[bad] = buffer; // without one
        sizes[bad] = 0;
        EXPECT_EQ(_splitpath_s("/a/b.c", outputs[0], sizes[0], outputs[1], sizes[1], outputs[2], sizes[2],
                               outputs[3], sizes[3]),
                  22)
            << bad;
    }
    EXPECT_STREQ(buffer, "old");
}

TEST(SplitPath, OmittedOutputsAreSkipped)
{
    const char* const expected[] = {"C:", "/dir/", "name", ".ext"};
    for (int wanted = 0; wanted < 4; ++wanted) {
        char buffer[16] = "old";
        char* outputs[4] = {};
        size_t sizes[4] = {};
        outputs[wanted] = buffer;
        sizes[wanted] = sizeof buffer;
        EXPECT_EQ(_splitpath_s("C:/dir/name.ext", outputs[0], sizes[0], outputs[1], sizes[1], outputs[2],
                               sizes[2], outputs[3], sizes[3]),
                  0);
        EXPECT_STREQ(buffer, expected[wanted]);
    }
    EXPECT_EQ(_splitpath_s("C:/dir/name.ext", nullptr, 0, nullptr, 0, nullptr, 0, nullptr, 0), 0);
}

TEST(SplitPath, RandomPathsIntoBuffersOfRandomSizes)
{
    std::mt19937 random(5);
    const std::string alphabet = "a./:\\\xff";
    std::uniform_int_distribution<size_t> letter(0, alphabet.size() - 1);
    std::uniform_int_distribution<size_t> length(0, 10);
    std::uniform_int_distribution<size_t> size(1, 12);
    for (int round = 0; round < 20000; ++round) {
        std::string path;
        for (size_t rest = length(random); rest > 0; --rest) {
            path += alphabet[letter(random)];
        }
        const Parts whole = Split(path);
        EXPECT_EQ(whole.name + whole.ext, path.substr(path.rfind('/') + 1)) << path;
        const size_t firstSlash = path.find('/');
        EXPECT_EQ(whole.dir + whole.name + whole.ext,
                  firstSlash == path.npos ? path : path.substr(firstSlash))
            << path;

        const size_t sizes[4] = {size(random), size(random), size(random), size(random)};
        const Parts cut = Split(path, sizes[0], sizes[1], sizes[2], sizes[3]);
        EXPECT_EQ(cut.drive, whole.drive.size() < sizes[0] ? whole.drive : "") << path;
        EXPECT_EQ(cut.dir, whole.dir.size() < sizes[1] ? whole.dir : "") << path;
        EXPECT_EQ(cut.name, whole.name.size() < sizes[2] ? whole.name : "") << path;
        EXPECT_EQ(cut.ext, whole.ext.size() < sizes[3] ? whole.ext : "") << path;
    }
}

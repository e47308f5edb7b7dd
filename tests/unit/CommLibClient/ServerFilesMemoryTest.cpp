// Searches for the setting files of a server while memory runs out: the cache stays correct.
#include "FailingMemory.h"
#include "PublisherFiles.h"
#include "ServerFiles.h"

#include <filesystem>
#include <new>

#include <gtest/gtest.h>

namespace {

std::string Text(const std::string& server, unsigned int kind)
{
    return "[Common]\nPublisherURL=" + server + "\nNPType=" + std::to_string(kind) + "\n";
}

} // namespace

TEST(ServerFilesMemory, ASearchThatRunsOutOfMemoryLeavesACorrectCache)
{
    WritePublisher("A", Text("server", 1));
    ASSERT_EQ(FilesOfServer("server").size(), 1U);
    bool hasFailed = true;
    size_t allocation = 0;
    for (; hasFailed; ++allocation) {
        SCOPED_TRACE(allocation);
        const unsigned int kind = allocation % 4;
        const bool isEven = allocation % 2 == 0;
        WritePublisher("A", Text("server", kind));
        WritePublisher(isEven ? "B" : "C", Text("other", kind)); // the list changes too
        std::filesystem::remove(PublisherFile(isEven ? "C" : "B"));
        {
            const FailingMemory memory(1, allocation, FailingMemory::ALL);
            try {
                FilesOfServer("server");
            } catch (const std::bad_alloc&) {
            }
            hasFailed = memory.HasFailed();
        }
        const std::vector<ServerFile> found = FilesOfServer("server");
        ASSERT_EQ(found.size(), 1U);
        EXPECT_EQ(found[0].kind, kind);
        const std::vector<ServerFile> others = FilesOfServer("other");
        ASSERT_EQ(others.size(), 1U);
        EXPECT_EQ(others[0].path, PublisherFile(isEven ? "B" : "C"));
    }
    EXPECT_GT(allocation, 5U);
}

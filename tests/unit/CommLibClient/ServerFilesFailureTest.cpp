// The cache of the setting files when a file cannot be read once.
#include "FailingCalls.h"
#include "NW_Com_Lib_internal.h"
#include "PublisherFiles.h"

#include <cerrno>
#include <gtest/gtest.h>

TEST(ServerFilesFailure, AReadErrorIsNotRemembered)
{
    for (const FailingCall call : {FailingCall::OPEN, FailingCall::FSTAT, FailingCall::READ}) {
        SCOPED_TRACE(static_cast<int>(call));
        const std::string server = "server" + std::to_string(static_cast<int>(call));
        WritePublisher("N", "[Common]\nPublisherURL=" + server + "\nNPType=2\n");
        unsigned int kind = 99;
        FailOne(call, EIO);
        ReadNPType(&kind, server.c_str()); // may find the server by a second attempt
        EXPECT_TRUE(ReadNPType(&kind, server.c_str()));
        EXPECT_EQ(kind, 2U);
    }
}

TEST(ServerFilesFailure, OnlyALackOfPermissionIsRemembered)
{
    for (const int error : {ENOBUFS, ESTALE, ETIMEDOUT}) {
        SCOPED_TRACE(error);
        const std::string server = "server" + std::to_string(error);
        WritePublisher("N", "[Common]\nPublisherURL=" + server + "\nNPType=2\n");
        unsigned int kind = 99;
        FailOne(FailingCall::OPEN, error);
        ReadNPType(&kind, server.c_str()); // may find the server by a second attempt
        EXPECT_TRUE(ReadNPType(&kind, server.c_str()));
        EXPECT_EQ(kind, 2U);
    }
}

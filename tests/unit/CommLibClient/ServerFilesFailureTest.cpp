// The cache of the setting files when a file cannot be read once.
#include "FailingCalls.h"
#include "NW_Com_Lib_internal.h"
#include "PublisherFiles.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace {

/// The file of the server cannot be read once, and is read by the next query.
void expectReadByTheNextQuery(FailingCall call, int error, const std::string& server)
{
    WritePublisher("N", "[Common]\nPublisherURL=" + server + "\nNPType=2\n");
    unsigned int kind = 99;
    FailOne(call, error);
    ReadNPType(&kind, server.c_str()); // may find the server by a second attempt
    EXPECT_TRUE(ReadNPType(&kind, server.c_str()));
    EXPECT_EQ(kind, 2U);
}

} // namespace

TEST(ServerFilesFailure, AReadErrorIsNotRemembered)
{
    for (const FailingCall call : {FailingCall::OPEN, FailingCall::FSTAT, FailingCall::READ}) {
        SCOPED_TRACE(static_cast<int>(call));
        expectReadByTheNextQuery(call, EIO, "server" + std::to_string(static_cast<int>(call)));
    }
}

TEST(ServerFilesFailure, OnlyALackOfPermissionIsRemembered)
{
    for (const int error : {ENOBUFS, ESTALE, ETIMEDOUT}) {
        SCOPED_TRACE(error);
        expectReadByTheNextQuery(FailingCall::OPEN, error, "server" + std::to_string(error));
    }
}

TEST(ServerFilesFailure, AFolderThatWasReadInPartIsReadAgain)
{
    expectReadByTheNextQuery(FailingCall::READ_FOLDER, EIO, "server"); // the first query lists the folder
}

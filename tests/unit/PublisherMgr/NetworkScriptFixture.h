// A network publisher "R" with a scripted server.
#pragma once

#include "NetworkPublisherMgr.h"
#include "PublisherFiles.h"
#include "ScriptedLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

class NetworkScriptFixture : public testing::Test
{
protected:
    void SetUp() override
    {
        WritePublisher("R", "[Common]\nPublisherName=Lab\nPrinterName=Printer\nPublisherConnectionType=1\n"
                            "PublisherURL=\\\\server\nNPType=2\n");
        m_library.Reset();
        JobStatusEx job{};
        job.wszJobIdentificationID[0] = 'J';
        job.nServerJobID = 5;
        m_library.unfinished = {job};
        JobStatus done{};
        done.dwJobStatus = NCL_JOB_STATUS_FINISHED;
        done.nServerJobID = 0x2A;
        m_library.finished = {done};
    }
    void TearDown() override
    {
        EXPECT_EQ(m_library.open, 0) << "a connection was not ended";
    }

    ScriptedLibrary& m_library = ScriptedLibrary::Instance();
    CNetworkPublisherMgr m_mgr{true, PUBLISHER_SETTING_DIR};
};

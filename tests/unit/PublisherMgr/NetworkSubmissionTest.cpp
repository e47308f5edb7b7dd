// The steps of a submission, each on a connection of the caller.
#include "NetworkScriptFixture.h"

using testing::ElementsAre;
using NetworkSubmission = NetworkScriptFixture;

TEST_F(NetworkSubmission, PublishIdsAreReadInTwoSteps)
{
    DWORD code = 77;
    EXPECT_EQ(m_mgr.GetPublishID(9, &code), "PUBLISH_1");
    EXPECT_EQ(code, 0U);
    EXPECT_THAT(m_library.calls, ElementsAre("GetPublishID(9, 0)", "GetPublishID(9, 10)"));
    m_library.publishId = std::string(5000, 'p');
    EXPECT_EQ(m_mgr.GetPublishID(9, &code), std::string(5000, 'p'));
    EXPECT_EQ(code, 0U);
}

TEST_F(NetworkSubmission, RefusedPublishIds)
{
    m_library.failAt = 1; // the second step
    m_library.failCode = NCL_ERR_CONNECTION_CLOSE;
    DWORD code = 77;
    EXPECT_EQ(m_mgr.GetPublishID(9, &code), "");
    EXPECT_EQ(code, 9U);
    m_library.Forget();
    m_library.failAt = 0;
    m_library.failOn = true;
    code = 77;
    EXPECT_EQ(m_mgr.GetPublishID(9, &code), "");
    EXPECT_EQ(code, 9U);
}

TEST_F(NetworkSubmission, EachStepPassesItsBytesToTheLibrary)
{
    const std::string text("a\0b", 3);
    const BYTE* const bytes = reinterpret_cast<const BYTE*>(text.data());
    DWORD code = 77;
    int job = 0;
    EXPECT_TRUE(m_mgr.SendJobData(9, bytes, 3, &job, &code));
    EXPECT_EQ(job, 42);
    EXPECT_EQ(code, 0U);
    EXPECT_EQ(m_library.lastBytes, text);
    code = 77;
    EXPECT_TRUE(m_mgr.SendDiscInfo(9, 42, bytes, 3, &code));
    EXPECT_EQ(code, 0U);
    EXPECT_EQ(m_library.lastBytes, text);
    code = 77;
    EXPECT_TRUE(m_mgr.SendPRNData(9, 42, bytes, 2, &code));
    EXPECT_EQ(code, 0U);
    EXPECT_EQ(m_library.lastBytes, text.substr(0, 2));
    EXPECT_EQ(m_mgr.SendDiscWriteInfo(9, 42, bytes, 3), 0U);
    EXPECT_EQ(m_library.lastBytes, text);
    EXPECT_EQ(m_mgr.SendDiscImage(9, 42, bytes, 3, 5, 6, "a.iso"), 0U);
    EXPECT_EQ(m_library.lastBytes, text);
    EXPECT_EQ(m_mgr.SendDiscImage(9, 42, nullptr, 0, 0, 0, nullptr), 0U);
    EXPECT_EQ(m_library.lastBytes, "null");
    code = 77;
    EXPECT_TRUE(m_mgr.CommitJob(9, 42, &code));
    EXPECT_EQ(code, 0U);
    EXPECT_THAT(m_library.calls,
                ElementsAre("SendJobData(9, 3)", "SendDiscInfo(9, 42, 3)", "SendPrnData(9, 42, 2)",
                            "SendDiscWriteInfo(9, 42, 3)", "SendDiscImage(9, 42, 3, 5, 6, a.iso)",
                            "SendDiscImage(9, 42, 0, 0, 0, null)", "CommitJob(9, 42)"));
}

TEST_F(NetworkSubmission, EachStepReturnsItsCode)
{
    const BYTE bytes[] = {1};
    m_library.failAt = 0;
    m_library.failOn = true;
    for (const DWORD failure : {NCL_ERR_PARAMETER, NCL_ERR_NETWORK_TIMEOUT, NCL_ERR_CANCEL_SENDING,
                                NCL_ERR_SERVER_JOB_ID, DWORD{0xFFFFFFFF}}) {
        m_library.failCode = failure;
        DWORD codes[4] = {77, 77, 77, 77};
        int job = 4711;
        EXPECT_TRUE(m_mgr.SendJobData(9, bytes, 1, &job, &codes[0]));
        EXPECT_TRUE(m_mgr.SendDiscInfo(9, 42, bytes, 1, &codes[1]));
        EXPECT_TRUE(m_mgr.SendPRNData(9, 42, bytes, 1, &codes[2]));
        EXPECT_FALSE(m_mgr.CommitJob(9, 42, &codes[3]));
        for (const DWORD code : codes) {
            EXPECT_EQ(code, failure);
        }
        EXPECT_EQ(job, 4711);
        EXPECT_EQ(m_mgr.SendDiscWriteInfo(9, 42, bytes, 1), failure);
        EXPECT_EQ(m_mgr.SendDiscImage(9, 42, bytes, 1, 1, 0, "a"), failure);
    }
}

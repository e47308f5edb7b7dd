// Publisher management serves a new model after a row has been added to the model table, without other
// changes.
#include "ExtraModel.h"

#include "PublisherFiles.h"
#include "PublisherMgr.h"
#include "SDPublisherMgr.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using testing::HasSubstr;

void WriteDevice(const std::string& values)
{
    WritePublisher("R", "[Common]\nGUID={G}\nPublisherName=Lab\nPublishMode=5\n");
    WriteRegistry(DeviceSection("{G}", values));
}

class ExtraModel : public testing::Test
{
protected:
    void SetUp() override
    {
        WriteDevice("\"DPType\"=dword:3000000b\n\"DRVSupportWriteSpeed\"=\"BD-R TL:4\"\n");
    }

    CPublisherMgr m_mgr{true};
};

TEST_F(ExtraModel, IsFoundByDeviceCode)
{
    for (const char* code : {"0000000b", "3000000b"}) {
        WriteLocalPublisher("R", code);
        EXPECT_EQ(m_mgr.GetPublisherDevType("R"), EXTRA_MODEL) << code;
        PUBLISHERINFO info;
        ASSERT_TRUE(m_mgr.GetPublisherInfo("R", &info, FALSE));
        EXPECT_EQ(info.uiPublisherDevType, EXTRA_MODEL) << code;
    }
}

TEST_F(ExtraModel, DoesNotChangeOtherModels)
{
    WriteLocalPublisher("R", "20000009");
    EXPECT_EQ(m_mgr.GetPublisherDevType("R"), 0x20000009u);
    WriteLocalPublisher("R", "0000000c");
    EXPECT_EQ(m_mgr.GetPublisherDevType("R"), 0u);
}

TEST_F(ExtraModel, HasTheCapabilitiesOfItsRow)
{
    auto* model = dynamic_cast<CBasicPublisherMgr*>(m_mgr.GetPublisherMgrIFFromID("R"));
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(model->GetPublisherMgrType(), EXTRA_MODEL);
    EXPECT_FALSE(model->IsSupportUseDrive());
    EXPECT_FALSE(model->IsSupportStacker4());
    const std::set<UINT> modes = {0, 2, 5, 6};
    const std::set<UINT> discTypes = {1, 8, 10, 11};
    for (UINT number = 0; number <= 40; ++number) {
        EXPECT_EQ(model->IsSupportPublishMode(number), modes.contains(number)) << number;
        EXPECT_EQ(model->IsSupportDiscType(number), discTypes.contains(number)) << number;
    }
}

TEST_F(ExtraModel, SavesDriveAndRetries)
{
    PUBLISHERINFO info;
    ASSERT_TRUE(m_mgr.GetPublisherInfo("R", &info, FALSE));
    info.uiPublishMode = 0;
    info.uiUseDrive = 1;
    info.uiRetryCountW = 5;
    info.uiRetryCountR = 7;
    info.bContinuePublish = false;
    info.bAddErrorMark = false;
    ASSERT_TRUE(m_mgr.UpdatePublisherInfo(info));
    EXPECT_THAT(ReadPublisher("R"), HasSubstr("\nUseDrive=1\nRetryTimes=5\nRetryTimesW=5\nRetryTimesR=7\n"
                                              "ReadBackContinue=0\nAddErrorMark=0\n"));
}

TEST_F(ExtraModel, BehavesLikeItsBaseClass)
{
    EXPECT_EQ(m_mgr.GetSupportWriteSpeedString("R", 1), "BD-R TL:4");
    EXPECT_EQ(m_mgr.GetSupportWriteSpeedString("R", 2), "");
    EXPECT_EQ(m_mgr.GetCopiesMax("R", false), 50u);
}

TEST_F(ExtraModel, MeasuresErrorRatesButDoesNotArchive)
{
    EXPECT_TRUE(m_mgr.IsExistErrorRateFunctionPublisher());
    EXPECT_FALSE(m_mgr.IsExistArchiveDiscFunctionPublisher());
}

} // namespace

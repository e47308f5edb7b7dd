// Tests the records in the answers of the control service: jobs, versions and wear.
#include "300MODPublisherMgr.h"
#include "APPublisherMgr.h"
#include "BasicPublisherMgr.h"
#include "PublisherFiles.h"
#include "PublisherMgr.h"
#include "ServiceWire.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

// ---------------------------------------------------------------------------------------------------------------------
// Jobs

/// A job of 1088 bytes whose numbers identify their fields.
std::string Job(const std::string& id, const std::string& name, unsigned long long status)
{
    std::string job = Field(id, 256) + Field(name, 256) + Number8(status);
    for (unsigned long long field = 1; field <= 8; ++field) {
        job += Number8(field);
    }
    job += Field("publisher", 65) + Field("approver", 65) + Field("", 6);
    job += Number8(9) + Number8(10) + Number8(11) + Field("plug-in", 41) + Field("", 7);
    job += Number8(12) + Number8(13) + Field("/read/error", 260) + Field("", 4) + Number8(14) + Number8(15);
    return job;
}

struct JobQuery
{
    ULONG subParam;
    bool mayBeEmpty;
    bool (IPublisherMgr::*local)(LPCTSTR, JobStatusArray*, long*);
    bool (CPublisherMgr::*facade)(LPCTSTR, JobStatusArray*, long*);
};

const JobQuery jobQueries[] = {
    {3, false, &IPublisherMgr::GetServiceJobStatus, &CPublisherMgr::GetServiceJobStatus},
    {1, true, &IPublisherMgr::GetServiceJobStatusUnfinish, &CPublisherMgr::GetServiceJobStatusUnfinish},
    {2, true, &IPublisherMgr::GetServiceJobStatusFinish, &CPublisherMgr::GetServiceJobStatusFinish},
};

struct JobOutcome
{
    bool ok = false;
    long code = 77;
    JobStatusArray jobs;
    std::string request;
};

/// One query through the facade, into an array that is not empty.
JobOutcome Ask(const JobQuery& query, const std::string& answer)
{
    WriteLocalPublisher("R", "00000008");
    CPublisherMgr mgr(true);
    JobOutcome outcome;
    outcome.jobs.Add(ST_PC_JOB_STATUS{});
    ServiceCall<bool> call([&] { return (mgr.*query.facade)("R", &outcome.jobs, &outcome.code); });
    outcome.request = call.AnswerNext(answer);
    outcome.ok = call.Get();
    return outcome;
}

TEST(JobStatus, RecordsAreCopiedInOrder)
{
    for (const JobQuery& query : jobQueries) {
        const JobOutcome outcome = Ask(query, Answer(4, Job("first", "one", 1) + Job("second", "two", 9)));
        EXPECT_EQ(outcome.request, Request(4, "R", "", query.subParam));
        EXPECT_TRUE(outcome.ok);
        EXPECT_EQ(outcome.code, 0);
        ASSERT_EQ(outcome.jobs.GetSize(), 2);
        EXPECT_STREQ(outcome.jobs[0].acJobID, "first");
        EXPECT_EQ(outcome.jobs[0].ulJobStatus, 1u);
        const ST_PC_JOB_STATUS& job = outcome.jobs[1];
        EXPECT_STREQ(job.acJobID, "second");
        EXPECT_STREQ(job.acJobName, "two");
        EXPECT_EQ(job.ulJobStatus, 9u);
        EXPECT_EQ(job.ulFactor, 1u);
        EXPECT_EQ(job.ulCompletionNumber, 2u);
        EXPECT_EQ(job.ulJobIndex, 3u);
        EXPECT_EQ(job.ulEstimateTime, 4u);
        EXPECT_EQ(job.ulRemainingTime, 5u);
        EXPECT_EQ(job.ulErrorNumber, 6u);
        EXPECT_EQ(job.ulPublicationNumber, 7u);
        EXPECT_EQ(job.ulImproperNumber, 8u);
        EXPECT_STREQ(job.acPublicationPerson, "publisher");
        EXPECT_STREQ(job.acApprovalPerson, "approver");
        EXPECT_EQ(job.ulJobType, 9u);
        EXPECT_EQ(job.ulSource, 10u);
        EXPECT_EQ(job.ulDestination, 11u);
        EXPECT_STREQ(job.acPlugInAppID, "plug-in");
        EXPECT_EQ(job.ulHistory, 12u);
        EXPECT_EQ(job.ulPubMode, 13u);
        EXPECT_STREQ(job.acReadErrorPath, "/read/error");
        EXPECT_EQ(job.ulReadResult, 14u);
        EXPECT_EQ(job.ulStacker3, 15u);
    }
}

TEST(JobStatus, AnEmptyListIsAFailureIfAllJobsAreRequested)
{
    for (const JobQuery& query : jobQueries) {
        const JobOutcome outcome = Ask(query, Answer(4));
        EXPECT_EQ(outcome.ok, query.mayBeEmpty);
        EXPECT_EQ(outcome.code, 0);
        EXPECT_TRUE(outcome.jobs.IsEmpty());
    }
}

TEST(JobStatus, APartOfARecordIsAFailure)
{
    for (const JobQuery& query : jobQueries) {
        for (const size_t size : {1u, 1087u, 1089u, 2175u}) {
            const JobOutcome outcome = Ask(query, Answer(4, std::string(size, 'x')));
            EXPECT_FALSE(outcome.ok) << size;
            EXPECT_EQ(outcome.code, 0);
            EXPECT_TRUE(outcome.jobs.IsEmpty());
        }
    }
}

TEST(JobStatus, AFailureEmptiesTheArray)
{
    for (const JobQuery& query : jobQueries) {
        const JobOutcome outcome = Ask(query, Header(4, 1004, 0));
        EXPECT_FALSE(outcome.ok);
        EXPECT_EQ(outcome.code, 1004);
        EXPECT_TRUE(outcome.jobs.IsEmpty());
    }
}

TEST(JobStatus, OfALocalPublisherWithoutService)
{
    CBasicPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    for (const JobQuery& query : jobQueries) {
        JobStatusArray jobs;
        jobs.Add(ST_PC_JOB_STATUS{});
        EXPECT_FALSE((mgr.*query.local)("R", &jobs, nullptr));
        EXPECT_TRUE(jobs.IsEmpty());
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// Versions

const std::string aldInfo =
    Field("maker", 32) + Field("loader", 32) + Field("A1.00", 32) + Field("SN123", 32);
const std::string printerInfo =
    Field("maker", 32) + Field("printer", 32) + Field("P2.00", 32) + Field("PSN", 32);

std::string DriveInfo(const std::string& number)
{
    return Field("vendor", 32) + Field("drive " + number, 32) + Field("D" + number, 32) + Field("date", 32) +
           Field("DSN", 32);
}

TEST(VersionInfo, QueriesLoaderPrinterAndDrivesInThisOrder)
{
    WriteLocalPublisher("R", "00000008");
    CPublisherMgr mgr(true);
    PUBLISHERVERSIONINFO info;
    info.strSSSVersion = "kept";
    info.strUDNAVersion = "kept too";
    long code = 77;
    ServiceCall<bool> call([&] { return mgr.GetPublisherVersionInfo("R", &info, &code); });
    EXPECT_EQ(call.AnswerNext(Answer(10, aldInfo)), Request(10, "R"));
    EXPECT_EQ(call.AnswerNext(Answer(12, printerInfo)), Request(12, "R"));
    EXPECT_EQ(call.AnswerNext(Answer(11, DriveInfo("1") + DriveInfo("2"))), Request(11, "R"));
    EXPECT_TRUE(call.Get());
    EXPECT_EQ(code, 0);
    EXPECT_EQ(info.strPublisherRegistID, "R");
    EXPECT_EQ(info.strSerialNo, "SN123");
    EXPECT_EQ(info.strAutoLoaderVersion, "A1.00");
    EXPECT_EQ(info.strPrinterModelName, "printer");
    EXPECT_EQ(info.strPrinterVersion, "P2.00");
    EXPECT_EQ(info.strDrive1ModelName, "drive 1");
    EXPECT_EQ(info.strDrive1Version, "D1");
    EXPECT_EQ(info.strDrive2ModelName, "drive 2");
    EXPECT_EQ(info.strDrive2Version, "D2");
    EXPECT_EQ(info.strSSSVersion, "kept");
    EXPECT_EQ(info.strUDNAVersion, "kept too");
}

TEST(VersionInfo, TextsWithoutANulEndWithTheirField)
{
    CBasicPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    PUBLISHERVERSIONINFO info;
    ServiceCall<bool> call([&] { return mgr.GetPublisherVersionInfo("R", &info, nullptr); });
    call.AnswerNext(Answer(10, std::string(128, 'a')));
    call.AnswerNext(Answer(12, std::string(128, 'p')));
    call.AnswerNext(Answer(11, std::string(320, 'd')));
    EXPECT_TRUE(call.Get());
    EXPECT_EQ(info.strSerialNo, std::string(32, 'a'));
    EXPECT_EQ(info.strPrinterVersion, std::string(32, 'p'));
    EXPECT_EQ(info.strDrive2Version, std::string(32, 'd'));
}

TEST(VersionInfo, AnyOtherLengthIsAFailureAndFillsNothing)
{
    CBasicPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    for (const auto& sizes : {std::vector<size_t>{127, 128, 320},
                              {128, 129, 320},
                              {128, 128, 160},
                              {0, 128, 320},
                              {128, 128, 0}}) {
        PUBLISHERVERSIONINFO info;
        long code = 77;
        ServiceCall<bool> call([&] { return mgr.GetPublisherVersionInfo("R", &info, &code); });
        call.AnswerNext(Answer(10, std::string(sizes[0], 'a')));
        call.AnswerNext(Answer(12, std::string(sizes[1], 'p')));
        call.AnswerNext(Answer(11, std::string(sizes[2], 'd')));
        EXPECT_FALSE(call.Get());
        EXPECT_EQ(code, 0);
        EXPECT_EQ(info.strPublisherRegistID, "");
        EXPECT_EQ(info.strSerialNo, "");
    }
}

TEST(VersionInfo, AnErrorOfOneQueryFailsAll)
{
    CBasicPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    PUBLISHERVERSIONINFO info;
    long code = 77;
    ServiceCall<bool> call([&] { return mgr.GetPublisherVersionInfo("R", &info, &code); });
    call.AnswerNext(Answer(10, aldInfo));
    call.AnswerNext(Header(12, 1021, 0));
    EXPECT_FALSE(call.Get());
    EXPECT_EQ(code, 1021);
    EXPECT_EQ(info.strSerialNo, "");
}

TEST(VersionInfo, TheModelWithoutDrivesQueriesNone)
{
    CAPPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    PUBLISHERVERSIONINFO info;
    long code = 77;
    ServiceCall<bool> call([&] { return mgr.GetPublisherVersionInfo("R", &info, &code); });
    EXPECT_EQ(call.AnswerNext(Answer(10, aldInfo)), Request(10, "R"));
    EXPECT_EQ(call.AnswerNext(Answer(12, printerInfo)), Request(12, "R"));
    EXPECT_TRUE(call.Get()); // a third request would make it fail
    EXPECT_EQ(code, 0);
    EXPECT_EQ(info.strPublisherRegistID, "R");
    EXPECT_EQ(info.strSerialNo, "SN123");
    EXPECT_EQ(info.strAutoLoaderVersion, "A1.00");
    EXPECT_EQ(info.strPrinterModelName, "printer");
    EXPECT_EQ(info.strPrinterVersion, "P2.00");
    for (const CString& text : {info.strDrive1ModelName, info.strDrive1Version, info.strDrive2ModelName,
                                info.strDrive2Version, info.strSSSVersion, info.strUDNAVersion}) {
        EXPECT_EQ(text, "");
    }
}

TEST(VersionInfo, TheModelWithoutDrivesChecksBothLengths)
{
    CAPPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    for (const auto& sizes : {std::vector<size_t>{127, 128}, {128, 0}}) {
        PUBLISHERVERSIONINFO info;
        ServiceCall<bool> call([&] { return mgr.GetPublisherVersionInfo("R", &info, nullptr); });
        call.AnswerNext(Answer(10, std::string(sizes[0], 'a')));
        call.AnswerNext(Answer(12, std::string(sizes[1], 'p')));
        EXPECT_FALSE(call.Get());
    }
}

TEST(VersionInfoDeathTest, NullArgumentsStopTheProcess)
{
    PUBLISHERVERSIONINFO info;
    CBasicPublisherMgr basic(true, PUBLISHER_SETTING_DIR);
    CAPPublisherMgr driveless(true, PUBLISHER_SETTING_DIR);
    EXPECT_DEATH(basic.GetPublisherVersionInfo(nullptr, &info, nullptr), "!= FALSE");
    EXPECT_DEATH(driveless.GetPublisherVersionInfo(nullptr, &info, nullptr), "!= FALSE");
    EXPECT_DEATH(driveless.GetPublisherVersionInfo("R", nullptr, nullptr), "!= FALSE");
}

// ---------------------------------------------------------------------------------------------------------------------
// Wear

/// Number n of the record is (n + 1) * 1000, so that all differ.
std::string MaintenanceInfo()
{
    std::string record;
    for (unsigned long long place = 0; place < 39; ++place) {
        record += Number8((place + 1) * 1000);
    }
    return record + Field("UNIT-SN", 32);
}

/// The count at `place` minus 1.25 percent of the life after it, which is truncated to an integer.
UINT Corrected(UINT place)
{
    const UINT used = (place + 1) * 1000;
    const UINT life = (place + 2) * 1000;
    return used - life * 125 / 10000;
}

void ExpectDrive(const PUBMAINTINFODRIVE& drive, UINT firstPlace)
{
    const UINT counts[] = {drive.uiTrayCount,    drive.uiWriteCDCount,        drive.uiWriteDVDCount,
                           drive.uiWriteBDCount, drive.uiDriveWriteTimeTotal, drive.uiDriveReadTimeTotal};
    const UINT lives[] = {drive.uiTrayLife,
                          drive.uiWriteCDLife,
                          drive.uiWriteDVDLife,
                          drive.uiWriteBDLife,
                          drive.uiDriveWriteTimeTotalLife,
                          drive.uiDriveReadTimeTotalLife};
    for (UINT pair = 0; pair < 6; ++pair) {
        const UINT place = firstPlace + 2 * pair;
        EXPECT_EQ(counts[pair], Corrected(place)) << pair;
        EXPECT_EQ(lives[pair], (place + 2) * 1000) << pair;
    }
}

TEST(MaintenanceInfo, CountsAreCorrectedAndLivesAreNot)
{
    WriteLocalPublisher("R", "10000005");
    CPublisherMgr mgr(true);
    PUBLISHERMAINTENANCEINFO info;
    long code = 77;
    ServiceCall<bool> call([&] { return mgr.GetPublisherMaintenanceInfo("R", &info, &code); });
    EXPECT_EQ(call.AnswerNext(Answer(28, MaintenanceInfo())), Request(28, "R"));
    EXPECT_TRUE(call.Get());
    EXPECT_EQ(code, 0);
    EXPECT_EQ(info.uiPrintCount, 1000u);
    EXPECT_EQ(info.uiMainteBoxCount, 3000u);
    EXPECT_EQ(info.uiMainteBoxLife, 4000u);
    ExpectDrive(info.midrvDrive1, 11);
    ExpectDrive(info.midrvDrive2, 23);
    EXPECT_EQ(info.uiUsedPlugin, 36000u);
    EXPECT_EQ(info.ulDRV1Life, 37000u);
    EXPECT_EQ(info.ulDRV2Life, 38000u);
    EXPECT_EQ(info.uiCompleteDiscNum, 39000u);
    EXPECT_EQ(info.strSerialNo, "UNIT-SN");
}

TEST(MaintenanceInfo, ASerialNumberWithoutANulEndsWithItsField)
{
    CBasicPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    PUBLISHERMAINTENANCEINFO info;
    ServiceCall<bool> call([&] { return mgr.GetPublisherMaintenanceInfo("R", &info, nullptr); });
    call.AnswerNext(Answer(28, std::string(344, 's')));
    EXPECT_TRUE(call.Get());
    EXPECT_EQ(info.strSerialNo, std::string(32, 's'));
}

TEST(MaintenanceInfo, AnErrorFillsNothing)
{
    CBasicPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    PUBLISHERMAINTENANCEINFO info;
    long code = 77;
    ServiceCall<bool> call([&] { return mgr.GetPublisherMaintenanceInfo("R", &info, &code); });
    call.AnswerNext(Header(28, 1021, 0));
    EXPECT_FALSE(call.Get());
    EXPECT_EQ(code, 1021);
    EXPECT_EQ(info.uiPrintCount, 0xFFFFFFFFu);
    EXPECT_EQ(info.strSerialNo, "");
}

TEST(MaintenanceInfo, TwoDriveModelsReturnTheRawRecord)
{
    C300MODPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    ST_PC_MAINTENANCE_INFO info{};
    long code = 77;
    ServiceCall<bool> call([&] { return mgr.GetPublisherMaintenanceInfo("R", &info, &code); });
    EXPECT_EQ(call.AnswerNext(Answer(28, MaintenanceInfo())), Request(28, "R"));
    EXPECT_TRUE(call.Get());
    EXPECT_EQ(code, 0);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(&info), sizeof info), MaintenanceInfo());
}

TEST(MaintenanceInfo, TwoDriveModelsAlsoReturnTheDisplayedRecord)
{
    C300MODPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    PUBLISHERMAINTENANCEINFO info;
    ServiceCall<bool> call([&] { return mgr.GetPublisherMaintenanceInfo("R", &info, nullptr); });
    call.AnswerNext(Answer(28, MaintenanceInfo()));
    EXPECT_TRUE(call.Get());
    ExpectDrive(info.midrvDrive1, 11);
}

TEST(MaintenanceInfo, ARawErrorIsAFailure)
{
    C300MODPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    ST_PC_MAINTENANCE_INFO info{};
    long code = 77;
    ServiceCall<bool> call([&] { return mgr.GetPublisherMaintenanceInfo("R", &info, &code); });
    call.AnswerNext(Header(28, 36, 0));
    EXPECT_FALSE(call.Get());
    EXPECT_EQ(code, 36);
}

TEST(MaintenanceBox, IsFourBytes)
{
    C300MODPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    ULONG box = 9;
    long code = 77;
    {
        ServiceCall<bool> call([&] { return mgr.GetServiceMaintenanceboxStatus("R", &box, &code); });
        EXPECT_EQ(call.AnswerNext(Answer(27, Number4(0x80000032))), Request(27, "R"));
        EXPECT_TRUE(call.Get());
        EXPECT_EQ(box, 0x80000032u);
        EXPECT_EQ(code, 0);
    }
    ServiceCall<bool> call([&] { return mgr.GetServiceMaintenanceboxStatus("R", &box, &code); });
    call.AnswerNext(Header(27, 1021, 0));
    EXPECT_FALSE(call.Get());
    EXPECT_EQ(box, 0x80000032u);
    EXPECT_EQ(code, 1021);
}

TEST(MaintenanceDeathTest, AnotherLengthStopsTheProcess)
{
    C300MODPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    for (const size_t size : {0u, 343u, 345u}) {
        EXPECT_DEATH(
            {
                PUBLISHERMAINTENANCEINFO info;
                ServiceCall<bool> call([&] { return mgr.GetPublisherMaintenanceInfo("R", &info, nullptr); });
                call.AnswerNext(Answer(28, std::string(size, 'x')));
                call.Get();
            },
            "!= FALSE");
        EXPECT_DEATH(
            {
                ST_PC_MAINTENANCE_INFO info{};
                ServiceCall<bool> call([&] { return mgr.GetPublisherMaintenanceInfo("R", &info, nullptr); });
                call.AnswerNext(Answer(28, std::string(size, 'x')));
                call.Get();
            },
            "!= FALSE");
    }
    for (const size_t size : {0u, 3u, 5u}) {
        EXPECT_DEATH(
            {
                ULONG box = 0;
                ServiceCall<bool> call(
                    [&] { return mgr.GetServiceMaintenanceboxStatus("R", &box, nullptr); });
                call.AnswerNext(Answer(27, std::string(size, 'x')));
                call.Get();
            },
            "!= FALSE");
    }
}

TEST(MaintenanceDeathTest, NullArgumentsStopTheProcess)
{
    C300MODPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    ULONG box = 0;
    ST_PC_MAINTENANCE_INFO raw{};
    PUBLISHERMAINTENANCEINFO info;
    EXPECT_DEATH(mgr.GetServiceMaintenanceboxStatus(nullptr, &box, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceMaintenanceboxStatus("R", nullptr, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetPublisherMaintenanceInfo(nullptr, &raw, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetPublisherMaintenanceInfo("R", static_cast<ST_PC_MAINTENANCE_INFO*>(nullptr), nullptr),
                 "!= FALSE");
    EXPECT_DEATH(mgr.GetPublisherMaintenanceInfo(nullptr, &info, nullptr), "!= FALSE");
}

} // namespace

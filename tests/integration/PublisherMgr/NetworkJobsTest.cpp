// Jobs on publisher servers: lists them, cancels them, and sends them step by step.
#include "NetworkRoom.h"
#include "PublisherFiles.h"
#include "StdoutCapture.h"

#include <map>

namespace {

class NetworkJobs : public testing::Test
{
protected:
    /// The state of the job with this number, in the numbering of the service.
    uint64_t StateOf(uint32_t number)
    {
        for (const udsim::Job& job : m_open.room.jobs("A")) {
            if (job.number == number) {
                return job.status;
            }
        }
        return 0;
    }
    void Add(const std::string& reference, const std::string& name = "Disc", uint32_t copies = 1)
    {
        udsim::JobSetup setup;
        setup.name = name;
        setup.copies = copies;
        setup.reference = reference;
        ASSERT_NE(m_open.room.addJob("A", setup), "");
    }
    JobStatusArray List(bool (CNetworkPublisherMgr::*operation)(LPCTSTR, JobStatusArray*, long*))
    {
        JobStatusArray jobs;
        long code = 77;
        EXPECT_TRUE((m_open.mgr.*operation)("R", &jobs, &code));
        EXPECT_EQ(code, 77);
        return jobs;
    }

    NetworkRoom m_open{"[network A]\nid = R\nmodel = RT-300NII\ndisc-time = 10s\n"};
    CNetworkPublisherMgr& m_mgr = m_open.mgr;
};

const BYTE* BytesOf(const std::string& text)
{
    return reinterpret_cast<const BYTE*>(text.data());
}

DWORD SizeOf(const std::string& text)
{
    return static_cast<DWORD>(text.size());
}

/// A connection that the caller starts and ends.
class OwnConnection
{
public:
    explicit OwnConnection(CNetworkPublisherMgr& mgr) : m_mgr(mgr)
    {
        DWORD code = 77;
        EXPECT_TRUE(m_mgr.StartConnection("R", &handle, &code));
        EXPECT_EQ(code, 0U);
    }
    OwnConnection(const OwnConnection&) = delete;
    OwnConnection& operator=(const OwnConnection&) = delete;
    ~OwnConnection()
    {
        EXPECT_TRUE(m_mgr.EndConnection(handle));
    }

    DWORD handle = 0;

private:
    CNetworkPublisherMgr& m_mgr;
};

const std::string JOB_DATA = "ID = J1\nJobName = Photos\nCount = 2\n";
const std::string TEXT = "some text";

} // namespace

// ---------------------------------------------------------------------------------------------------------------------
// Lists

TEST_F(NetworkJobs, AListContainsEachValue)
{
    Add("J-1",
        "Abend\xC3\xBC"
        "bung",
        3);
    m_open.room.advance(3'000);
    const JobStatusArray jobs = List(&CNetworkPublisherMgr::GetServiceJobStatusUnfinish);
    ASSERT_EQ(jobs.GetSize(), 1);
    const ST_PC_JOB_STATUS& job = jobs[0];
    EXPECT_STREQ(job.acJobID, "J-1");
    EXPECT_STREQ(job.acJobName, "Abend\xC3\xBC"
                                "bung");
    EXPECT_STREQ(job.acPublicationPerson, "udsim");
    EXPECT_EQ(job.ulJobStatus, 2U);
    EXPECT_EQ(job.ulFactor, 0U);
    EXPECT_EQ(job.ulPublicationNumber, 3U);
    EXPECT_EQ(job.ulCompletionNumber, 0U);
    EXPECT_EQ(job.ulEstimateTime, 30U);
    EXPECT_EQ(job.ulRemainingTime, 27U);
    EXPECT_EQ(job.ulErrorNumber, 0U);
    EXPECT_EQ(job.ulJobType, 3U);
    EXPECT_EQ(job.ulSource, 1U);
    EXPECT_EQ(job.ulDestination, 2U) << "the first possible output stacker";
    EXPECT_EQ(job.ulPubMode, 0U);
    EXPECT_EQ(job.ulHistory, 0U);
}

TEST_F(NetworkJobs, AListContainsNothingOfALongerPreviousList)
{
    for (int number = 0; number < 3; ++number) {
        Add("a-long-identification-" + std::to_string(number), std::string(60, 'x'));
    }
    ASSERT_EQ(List(&CNetworkPublisherMgr::GetServiceJobStatusUnfinish).GetSize(), 3);
    m_open.room.advance(3'600'000); // all are finished
    Add("b", "y");
    const JobStatusArray jobs = List(&CNetworkPublisherMgr::GetServiceJobStatusUnfinish);
    ASSERT_EQ(jobs.GetSize(), 1);
    EXPECT_STREQ(jobs[0].acJobID, "b");
    EXPECT_STREQ(jobs[0].acJobName, "y");
    EXPECT_EQ(List(&CNetworkPublisherMgr::GetServiceJobStatusFinish).GetSize(), 3);
}

TEST_F(NetworkJobs, AJobWithoutAnIdGetsOneFromThePublisherAndItsNumber)
{
    for (int number = 1; number < 0x2A; ++number) {
        Add("K");
    }
    Add("");
    const JobStatusArray jobs = List(&CNetworkPublisherMgr::GetServiceJobStatusUnfinish);
    ASSERT_EQ(jobs.GetSize(), 0x2A);
    EXPECT_STREQ(jobs[0x28].acJobID, "K");
    EXPECT_STREQ(jobs[0x29].acJobID, "R.2A");
}

TEST_F(NetworkJobs, TheThreeLists)
{
    Add("done");
    Add("cancelled");
    Add("running", "Disc", 5);
    Add("waiting");
    ASSERT_TRUE(m_mgr.SetServiceJobCancel("R", "cancelled", nullptr));
    m_open.room.advance(12'000);
    using Rows = std::vector<std::pair<std::string, unsigned long>>;
    const auto listed = [&](auto operation) {
        Rows rows;
        for (const ST_PC_JOB_STATUS& job : List(operation)) {
            rows.emplace_back(job.acJobID, job.ulJobStatus);
        }
        return rows;
    };
    const Rows unfinished = {{"running", 2}, {"waiting", 1}};
    const Rows finished = {{"done", 9}, {"cancelled", 8}};
    EXPECT_EQ(listed(&CNetworkPublisherMgr::GetServiceJobStatusUnfinish), unfinished);
    EXPECT_EQ(listed(&CNetworkPublisherMgr::GetServiceJobStatusFinish), finished);
    Rows all = unfinished;
    all.insert(all.end(), finished.begin(), finished.end());
    EXPECT_EQ(listed(&CNetworkPublisherMgr::GetServiceJobStatus), all);
    EXPECT_EQ(m_mgr.GetJobCount("R", nullptr), 2);
    EXPECT_TRUE(m_open.AllClosed());
}

TEST_F(NetworkJobs, WithoutJobsTheListsAreEmpty)
{
    for (const auto operation :
         {&CNetworkPublisherMgr::GetServiceJobStatus, &CNetworkPublisherMgr::GetServiceJobStatusUnfinish,
          &CNetworkPublisherMgr::GetServiceJobStatusFinish}) {
        JobStatusArray jobs;
        jobs.Add(ST_PC_JOB_STATUS{});
        EXPECT_TRUE((m_mgr.*operation)("R", &jobs, nullptr));
        EXPECT_EQ(jobs.GetSize(), 0);
    }
}

TEST_F(NetworkJobs, StatesOfAPausedAndAStoppedJob)
{
    Add("J", "Disc", 5);
    m_open.room.advance(1'000);
    m_open.room.tell("A", "error 9");
    m_open.room.advance(1'000);
    const JobStatusArray paused = List(&CNetworkPublisherMgr::GetServiceJobStatusUnfinish);
    ASSERT_EQ(paused.GetSize(), 1);
    EXPECT_EQ(paused[0].ulJobStatus, 5U);
    EXPECT_EQ(paused[0].ulFactor, 9U);
}

TEST_F(NetworkJobs, AThousandJobs)
{
    for (int number = 0; number < 1000; ++number) {
        Add("J" + std::to_string(number));
    }
    const JobStatusArray jobs = List(&CNetworkPublisherMgr::GetServiceJobStatusUnfinish);
    ASSERT_EQ(jobs.GetSize(), 1000);
    EXPECT_STREQ(jobs[999].acJobID, "J999");
    EXPECT_EQ(m_mgr.GetJobCount("R", nullptr), 1000);
}

// ---------------------------------------------------------------------------------------------------------------------
// Cancelling

TEST_F(NetworkJobs, ACancelAffectsTheJobWithThatId)
{
    Add("A");
    Add("B");
    Add("C");
    StdoutCapture out;
    long code = 77;
    EXPECT_TRUE(m_mgr.SetServiceJobCancel("R", "B", &code));
    EXPECT_EQ(out.Stop(), "CNetworkPublisherMgr::SetServiceJobCancel(,\"B\",), B, 2\n");
    EXPECT_EQ(code, 0);
    EXPECT_EQ(StateOf(1), 1U);
    EXPECT_EQ(StateOf(2), 8U);
    EXPECT_EQ(StateOf(3), 1U);
    EXPECT_FALSE(m_mgr.SetServiceJobCancel("R", "B", nullptr)) << "the job has ended";
    EXPECT_FALSE(m_mgr.SetServiceJobCancel("R", "D", nullptr));
    EXPECT_FALSE(m_mgr.SetServiceJobCancel("R", "R.1", nullptr)) << "only ids of submitters count";
    EXPECT_TRUE(m_open.AllClosed());
}

TEST_F(NetworkJobs, ACancelOfASharedIdCancelsTheFirstJob)
{
    Add("D");
    Add("D");
    EXPECT_TRUE(m_mgr.SetServiceJobCancel("R", "D", nullptr));
    EXPECT_EQ(StateOf(1), 8U);
    EXPECT_EQ(StateOf(2), 1U);
    m_open.Befall("status 9", 0, 1, "/webapp2/JobController");
    Add("D");
    long code = 77;
    EXPECT_TRUE(m_mgr.SetServiceJobCancel("R", "D", &code)) << "the next job with this id";
    EXPECT_EQ(code, 0);
    EXPECT_EQ(StateOf(2), 1U);
    EXPECT_EQ(StateOf(3), 8U);
}

TEST_F(NetworkJobs, JobNumbersAreHexadecimalOnTheWire)
{
    for (int number = 0; number < 0x1F; ++number) {
        Add("J" + std::to_string(number));
    }
    EXPECT_TRUE(m_mgr.SetServiceJobCancel("R", "J30", nullptr));
    EXPECT_EQ(StateOf(0x1F), 8U);
    EXPECT_EQ(m_open.room.httpRequests().back().body, "action=1&serverjobid=0000001f");
}

// ---------------------------------------------------------------------------------------------------------------------
// Sending

TEST_F(NetworkJobs, EveryStepOfASubmission)
{
    const std::string image(3'000'000, 'i');
    {
        const OwnConnection connection(m_mgr);
        DWORD code = 77;
        EXPECT_EQ(m_mgr.GetPublishID(connection.handle, &code), "NET0000001_000001");
        EXPECT_EQ(code, 0U);
        EXPECT_EQ(m_mgr.GetPublishID(connection.handle, &code), "NET0000001_000002");
        int job = 0;
        ASSERT_TRUE(m_mgr.SendJobData(connection.handle, BytesOf(JOB_DATA), SizeOf(JOB_DATA), &job, &code));
        EXPECT_EQ(code, 0U);
        EXPECT_EQ(job, 1);
        EXPECT_EQ(m_mgr.GetCommunicateJobCount("R"), 1) << "queried on another connection";
        EXPECT_EQ(m_mgr.GetJobCount("R", nullptr), 0);
        code = 77;
        EXPECT_TRUE(m_mgr.SendDiscInfo(connection.handle, job, BytesOf(TEXT), SizeOf(TEXT), &code));
        EXPECT_EQ(code, 0U);
        const DWORD half = SizeOf(image) / 2;
        EXPECT_EQ(
            m_mgr.SendDiscImage(connection.handle, job, BytesOf(image), half, SizeOf(image), 0, "a.iso"), 0U);
        EXPECT_EQ(m_mgr.SendDiscImage(connection.handle, job, BytesOf(image) + half, half, SizeOf(image), 0,
                                      "a.iso"),
                  0U);
        EXPECT_EQ(m_mgr.SendDiscWriteInfo(connection.handle, job, BytesOf(TEXT), SizeOf(TEXT)), 0U);
        code = 77;
        EXPECT_TRUE(m_mgr.SendPRNData(connection.handle, job, BytesOf(TEXT), SizeOf(TEXT), &code));
        EXPECT_EQ(code, 0U);
        code = 77;
        EXPECT_TRUE(m_mgr.CommitJob(connection.handle, job, &code));
        EXPECT_EQ(code, 0U);
    }
    const auto server = m_open.room.lookAtServer("A");
    ASSERT_EQ(server->uploads().jobs().size(), 1U);
    const udsim::ServerJob& job = server->uploads().jobs().at(0);
    EXPECT_TRUE(job.committed);
    EXPECT_EQ(job.files.size(), 4U);
    for (const char* const name : {"DiscInfo.xml", "DiscImage_a.iso", "DiscWriteInfo", "PrnData_000.prn"}) {
        ASSERT_TRUE(job.files.contains(name)) << name;
        EXPECT_EQ(job.files.at(name).hash, udsim::UploadedFile::Hash::right) << name;
    }
    EXPECT_TRUE(job.files.at("DiscImage_a.iso").contents == image);
    EXPECT_EQ(m_mgr.GetCommunicateJobCount("R"), 0);
    EXPECT_EQ(m_mgr.GetJobCount("R", nullptr), 1);
    const JobStatusArray jobs = List(&CNetworkPublisherMgr::GetServiceJobStatusUnfinish);
    ASSERT_EQ(jobs.GetSize(), 1);
    EXPECT_STREQ(jobs[0].acJobID, "J1");
    EXPECT_STREQ(jobs[0].acJobName, "Photos");
    EXPECT_EQ(jobs[0].ulPublicationNumber, 2U);
    EXPECT_TRUE(m_open.AllClosed());
}

TEST_F(NetworkJobs, ACancelledSubmission)
{
    const OwnConnection connection(m_mgr);
    DWORD code = 77;
    int job = 0;
    ASSERT_TRUE(m_mgr.SendJobData(connection.handle, BytesOf(JOB_DATA), SizeOf(JOB_DATA), &job, &code));
    long result = 77;
    EXPECT_TRUE(m_mgr.CancelJob("R", "whatever", connection.handle, job, &result));
    EXPECT_EQ(result, 77) << "unchanged on success";
    EXPECT_EQ(m_mgr.GetCommunicateJobCount("R"), 0);
    EXPECT_FALSE(m_mgr.CancelJob("R", "whatever", connection.handle, job, &result));
    EXPECT_EQ(result, 8007);
    EXPECT_FALSE(m_mgr.CommitJob(connection.handle, job, &code));
    EXPECT_EQ(code, 8007U);
}

TEST_F(NetworkJobs, RefusedStepsReturnTheCode)
{
    const OwnConnection connection(m_mgr);
    const DWORD handle = connection.handle;
    DWORD code = 77;
    int job = 4711;
    const std::pair<const char*, DWORD> faults[] = {
        {"status 2", 8002}, {"status 13", 8012}, {"http 500", 8000}, {"http 507", 8006}, {"close", 9}};
    for (const auto& [fault, expected] : faults) {
        m_open.Befall(fault);
        EXPECT_TRUE(m_mgr.SendJobData(handle, BytesOf(JOB_DATA), SizeOf(JOB_DATA), &job, &code)) << fault;
        EXPECT_EQ(code, expected) << fault;
        EXPECT_EQ(job, 4711);
        EXPECT_EQ(m_mgr.GetPublishID(handle, &code), "") << fault;
        EXPECT_NE(code, 0U);
    }
    m_open.room.clearFaults();
    ASSERT_TRUE(m_mgr.SendJobData(handle, BytesOf(JOB_DATA), SizeOf(JOB_DATA), &job, &code));
    ASSERT_EQ(code, 0U);
    for (const auto& [fault, expected] : faults) {
        m_open.Befall(fault);
        EXPECT_TRUE(m_mgr.SendDiscInfo(handle, job, BytesOf(TEXT), SizeOf(TEXT), &code)) << fault;
        EXPECT_EQ(code, expected) << fault;
        EXPECT_TRUE(m_mgr.SendPRNData(handle, job, BytesOf(TEXT), SizeOf(TEXT), &code)) << fault;
        EXPECT_EQ(code, expected) << fault;
        EXPECT_FALSE(m_mgr.CommitJob(handle, job, &code)) << fault;
        EXPECT_EQ(code, expected) << fault;
        long result = 77;
        EXPECT_FALSE(m_mgr.CancelJob("R", "J1", handle, job, &result)) << fault;
        EXPECT_EQ(result, static_cast<long>(expected)) << fault;
    }
    m_open.Befall("http 507", 0, 0, "/uploads/");
    EXPECT_EQ(m_mgr.SendDiscWriteInfo(handle, job, BytesOf(TEXT), SizeOf(TEXT)), 8006U);
    EXPECT_EQ(m_mgr.SendDiscImage(handle, job, BytesOf(TEXT), SizeOf(TEXT), SizeOf(TEXT), 0, "a"), 8006U);
    m_open.room.clearFaults();
    EXPECT_EQ(m_mgr.SendDiscImage(handle, job + 1, BytesOf(TEXT), SizeOf(TEXT), SizeOf(TEXT), 0, "a"), 8007U);
    EXPECT_TRUE(m_mgr.SendDiscInfo(handle, job + 1, BytesOf(TEXT), SizeOf(TEXT), &code));
    EXPECT_EQ(code, 8007U);
}

TEST_F(NetworkJobs, AnInvalidHandle)
{
    DWORD code = 77;
    int job = 4711;
    for (const DWORD handle : {0U, 1U, 99U, 0xFFFFFFFFU}) {
        EXPECT_TRUE(m_mgr.SendJobData(handle, BytesOf(TEXT), SizeOf(TEXT), &job, &code));
        EXPECT_EQ(code, 1U);
        EXPECT_FALSE(m_mgr.CommitJob(handle, 1, &code));
        EXPECT_EQ(code, 1U);
        EXPECT_EQ(m_mgr.GetPublishID(handle, &code), "");
        EXPECT_EQ(code, 1U);
        EXPECT_EQ(m_mgr.SendDiscWriteInfo(handle, 1, BytesOf(TEXT), SizeOf(TEXT)), 1U);
        EXPECT_TRUE(m_mgr.EndConnection(handle));
    }
    EXPECT_EQ(job, 4711);
    EXPECT_TRUE(m_open.room.httpRequests().empty());
}

TEST(NetworkOldServer, ASubmissionInCompatibilityModeSendsNoHashes)
{
    WriteRegistry("[HKLM/Software/ARVEN/Ulmar Disc Maker]\n\"CompatiMode\"=dword:00000001\n");
    NetworkRoom open("[network A]\nid = R\nmodel = RT-300NII\nserver-version = 2.20\n");
    {
        const OwnConnection connection(open.mgr);
        DWORD code = 77;
        int job = 0;
        ASSERT_TRUE(
            open.mgr.SendJobData(connection.handle, BytesOf(JOB_DATA), SizeOf(JOB_DATA), &job, &code));
        EXPECT_EQ(code, 0U);
        EXPECT_TRUE(open.mgr.SendPRNData(connection.handle, job, BytesOf(TEXT), SizeOf(TEXT), &code));
        EXPECT_EQ(code, 0U);
        EXPECT_TRUE(open.mgr.CommitJob(connection.handle, job, &code));
        EXPECT_EQ(code, 0U);
    }
    for (const udsim::HttpRequest& request : open.room.httpRequests()) {
        EXPECT_EQ(request.target.find("FileHashSetter"), std::string::npos) << request.target;
    }
    EXPECT_EQ(open.mgr.GetJobCount("R", nullptr), 1);
    EXPECT_TRUE(open.AllClosed());
}

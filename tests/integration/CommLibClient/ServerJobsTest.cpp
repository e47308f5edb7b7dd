// Sends jobs with the network library to a publisher server that checks every step.
#include <string>

#include "LibraryRoom.h"

namespace {

const BYTE* bytesOf(const std::string& text)
{
    return reinterpret_cast<const BYTE*>(text.data());
}

DWORD sizeOf(const std::string& text)
{
    return static_cast<DWORD>(text.size());
}

class ServerJobs : public testing::Test
{
protected:
    int registerJob(DWORD handle)
    {
        const std::string data = "ID = J1\nJobName = Photos\nCount = 2\n";
        int id = 0;
        EXPECT_EQ(SendJobData(handle, bytesOf(data), sizeOf(data), &id), NCL_SUCCESS);
        return id;
    }
    DWORD sendImage(DWORD handle, int id, const std::string& image, size_t from, size_t size)
    {
        return SendDiscImage(handle, id, bytesOf(image) + from, static_cast<DWORD>(size), sizeOf(image), 0,
                             "a.iso");
    }
    udsim::ServerJob serverJob()
    {
        const auto server = m_open.room.lookAtServer("A");
        return server && !server->uploads().jobs().empty() ? server->uploads().jobs().at(0)
                                                           : udsim::ServerJob{};
    }
    void befall(const std::string& text, const std::string& path)
    {
        std::string error;
        auto fault = udsim::HttpFault::parse(text, error).value_or(udsim::HttpFault{});
        fault.path = path;
        m_open.room.setFault(fault);
    }

    LibraryRoom m_open{"[network A]\nmodel = RT-300NII\ndisc-time = 1s\n"};
    LibraryConnection m_connection;
    const std::string m_text = "some text";
};

} // namespace

TEST_F(ServerJobs, EveryStage)
{
    const DWORD handle = m_connection.handle;
    const std::string image((10U << 20) + 1, 'i');
    const int id = registerJob(handle);
    ASSERT_EQ(id, 1);
    EXPECT_EQ(SendDiscInfo(handle, id, bytesOf(m_text), sizeOf(m_text)), NCL_SUCCESS);
    EXPECT_EQ(sendImage(handle, id, image, 0, image.size() - 5), NCL_SUCCESS);
    EXPECT_EQ(sendImage(handle, id, image, image.size() - 5, 5), NCL_SUCCESS);
    EXPECT_EQ(SendDiscWriteInfo(handle, id, bytesOf(m_text), sizeOf(m_text)), NCL_SUCCESS);
    EXPECT_EQ(SendPrnData(handle, id, bytesOf(m_text), sizeOf(m_text)), NCL_SUCCESS);
    EXPECT_EQ(SendPrnData(handle, id, bytesOf(m_text), sizeOf(m_text)), NCL_SUCCESS);
    EXPECT_EQ(CommitJob(handle, id), NCL_SUCCESS);
    const udsim::ServerJob job = serverJob();
    EXPECT_TRUE(job.committed);
    ASSERT_EQ(job.files.size(), 5U);
    for (const char* const name :
         {"DiscInfo.xml", "DiscImage_a.iso", "DiscWriteInfo", "PrnData_000.prn", "PrnData_001.prn"}) {
        ASSERT_TRUE(job.files.contains(name)) << name;
        EXPECT_EQ(job.files.at(name).hash, udsim::UploadedFile::Hash::right) << name;
    }
    EXPECT_TRUE(job.files.at("DiscImage_a.iso").contents == image);
    m_open.room.advance(3'000);
    EXPECT_EQ(m_open.room.jobs("A").at(0).completed, 2U);
}

TEST_F(ServerJobs, NoStepIsRefused)
{
    const DWORD handle = m_connection.handle;
    const int id = registerJob(handle);
    EXPECT_EQ(SendPrnData(handle, id, bytesOf(m_text), sizeOf(m_text)), NCL_SUCCESS);
    EXPECT_EQ(CommitJob(handle, id), NCL_SUCCESS);
    bool folder = false;
    for (const udsim::HttpRequest& request : m_open.room.httpRequests()) {
        if (request.method == "MKCOL") {
            folder = true;
            EXPECT_EQ(request.target, "/uploads/00000001/");
        }
    }
    EXPECT_TRUE(folder);
    for (const std::string& note : m_open.room.lookAtServer("A")->takeNotes()) {
        EXPECT_EQ(note.find("refused"), std::string::npos) << note;
    }
}

TEST_F(ServerJobs, AnUnfinishedImage)
{
    const std::string image(1000, 'i');
    {
        const LibraryConnection connection;
        const int id = registerJob(connection.handle);
        EXPECT_EQ(sendImage(connection.handle, id, image, 0, 400), NCL_SUCCESS);
    }
    const udsim::ServerJob job = serverJob();
    ASSERT_TRUE(job.files.contains("DiscImage_a.iso"));
    EXPECT_EQ(job.files.at("DiscImage_a.iso").contents.size(), 400U);
    EXPECT_EQ(job.files.at("DiscImage_a.iso").hash, udsim::UploadedFile::Hash::right)
        << "closing the connection sends the hash of the bytes sent so far";
}

TEST_F(ServerJobs, RefusedUploads)
{
    const std::pair<const char*, DWORD> table[] = {{"http 403", NCL_ERR_SERVER_JOB_ID},
                                                   {"http 401", NCL_ERR_SERVER_JOB_ID},
                                                   {"http 507", NCL_ERR_HARD_DISC_CAPACITY}};
    const int id = registerJob(m_connection.handle);
    for (const auto& [fault, result] : table) {
        befall(fault, "/uploads/");
        EXPECT_EQ(SendPrnData(m_connection.handle, id, bytesOf(m_text), sizeOf(m_text)), result) << fault;
        m_open.room.clearFaults();
    }
    EXPECT_EQ(CancelJob(m_connection.handle, id), NCL_SUCCESS);
    EXPECT_TRUE(serverJob().files.empty());
}

TEST_F(ServerJobs, AMaintenanceJob)
{
    const std::string text = "[Common]\nVersion = 0x01030000\nID = \nPublisherID = \nLoad = -1\nEject = -1\n"
                             "Count = 0\nCreate = 1772000000\nPublisher = @UDSetup\nMode = 2\n"
                             "JobName = Head Cleaning\nSaveJobData = 0\nPublishID = \nSilent = 0\n\n[Print]\n"
                             "PrintMode = 4\nDataPath = /x.prn\nDryingTime = 0\nPrintQuality = 0\n";
    int id = 0;
    EXPECT_EQ(SendSpecialJobData(m_connection.handle, bytesOf(text), sizeOf(text), bytesOf(m_text),
                                 sizeOf(m_text), &id),
              NCL_SUCCESS);
    EXPECT_EQ(id, 1);
    ASSERT_EQ(m_open.room.jobs("A").size(), 1U);
    EXPECT_TRUE(m_open.room.jobs("A").at(0).isCleaning());
    JobStatus job{};
    DWORD count = 0;
    ASSERT_EQ(GetJobStatus(m_connection.handle, NCL_JST_PROCESS_JOB, &job, 1, &count), NCL_SUCCESS);
    EXPECT_EQ(job.dwJobType, NCL_JOB_TYPE_CLEANING);
    EXPECT_STREQ(job.wszJobIdentificationID, "");
}

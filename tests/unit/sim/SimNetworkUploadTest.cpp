// Uploads of jobs to a publisher server: registration, folder, parts of files, hashes, commit.
#include "NetworkFixture.h"

namespace {

using udsim::HttpHeaders;
using udsim::UploadedFile;

const std::string ABC_SHA1 = "a9993e364706816aba3e25717850c26c9cd0d89d";

const std::string NOZZLE_CHECK = R"([Common]
Version = 0x01030000
ID = 
PublisherID = 
Load = 1
Eject = 2
Count = 1
Create = 1772000000
Publisher = @UDSetup
Mode = 2
JobName = Düsentest
SaveJobData = 0
PublishID = 
Silent = 0

[Print]
PrintMode = 5
DataPath = /opt/arven/Ulmar Disc Maker/res/prnfile/nozzleCheck.prn
DryingTime = 0
PrintQuality = 0
)";

std::string replaced(std::string text, const std::string& what, const std::string& with)
{
    return text.replace(text.find(what), what.size(), with);
}

} // namespace

TEST(SimNetworkUpload, ANormalJobFromEndToEnd)
{
    NetworkServer net("serial = S\ndisc-time = 1s\n");
    HttpHeaders credentials;
    const std::string id =
        net.registerJob(credentials, "[Common]\nID = J1\nPublisher = Ann\nJobName = Photos\nCount = 2\n");
    ASSERT_EQ(id, "00000001");
    const std::string folder = "/uploads/" + id + "/";
    EXPECT_EQ(net.get("/webapp2/JobNumGetter?type=1"), hex("00 00 02 00 01"));
    EXPECT_EQ(net.ask("MKCOL", folder, "", credentials).status, 201U);
    EXPECT_EQ(net.ask("MKCOL", folder, "", credentials).status, 405U) << "the folder exists";
    EXPECT_EQ(net.control("5", id), 0);
    EXPECT_EQ(net.control("4", id), 8) << "no disc information yet";
    EXPECT_EQ(net.put(folder + "DiscInfo.xml", "abc", credentials, "0-2/3"), 201U);
    EXPECT_EQ(net.control("4", id), 8) << "its hash is missing";
    EXPECT_EQ(net.hash(id, "DiscInfo.xml", ABC_SHA1), 200U);
    EXPECT_EQ(net.control("0", id), 8) << "the disc information is not committed";
    EXPECT_EQ(net.control("4", id), 0);
    EXPECT_EQ(net.put(folder + "DiscImage_a.iso", "ab", credentials, "0-1/3"), 201U);
    EXPECT_EQ(net.control("0", id), 8) << "the image is incomplete";
    EXPECT_EQ(net.put(folder + "DiscImage_a.iso", "c", credentials, "2-2/3"), 204U);
    EXPECT_EQ(net.hash(id, "DiscImage_a.iso", ABC_SHA1), 200U);
    EXPECT_EQ(net.put(folder + "PrnData_000.prn", "abc", credentials), 201U);
    EXPECT_EQ(net.hash(id, "PrnData_000.prn", ABC_SHA1), 200U);
    EXPECT_EQ(net.control("0", id), 0);
    EXPECT_EQ(net.get("/webapp2/JobNumGetter?type=1"), hex("00 00 02 00 00"));
    const udsim::Job* const job = net.server.machine().byNumber(1);
    ASSERT_NE(job, nullptr);
    EXPECT_EQ(job->name, "Photos");
    EXPECT_EQ(job->copies, 2U);
    EXPECT_EQ(job->reference, "J1");
    EXPECT_EQ(job->person, "Ann");
    EXPECT_EQ(job->type, 3U);
    EXPECT_EQ(net.put(folder + "More", "abc", credentials), 403U) << "the upload is committed";
    EXPECT_EQ(net.hash(id, "DiscInfo.xml", ABC_SHA1), 403U);
    EXPECT_EQ(net.server.uploads().jobs().at(0).files.at("DiscImage_a.iso").contents, "abc");
    for (int i = 0; i < 60; ++i) {
        net.server.step(50);
    }
    EXPECT_TRUE(net.server.uploads().jobs().empty()) << "the files are deleted when the job has ended";
}

TEST(SimNetworkUpload, CredentialsBelongToOneJob)
{
    NetworkServer net("");
    HttpHeaders first;
    HttpHeaders second;
    const std::string id = net.registerJob(first);
    net.registerJob(second);
    EXPECT_NE(first, second);
    const std::string folder = "/uploads/" + id + "/";
    EXPECT_EQ(net.ask("MKCOL", folder).status, 401U);
    EXPECT_EQ(net.server.takeNotes().back(), "MKCOL /uploads/00000001/ refused with 401");
    EXPECT_EQ(net.ask("MKCOL", "/uploads/00000001", "", first).status, 404U)
        << "a folder path ends with a slash";
    EXPECT_EQ(net.ask("MKCOL", folder, "", second).status, 401U);
    EXPECT_EQ(net.ask("MKCOL", "/uploads/000000ff/", "", first).status, 401U);
    EXPECT_EQ(net.ask("MKCOL", "/uploads/1/", "", first).status, 404U);
    EXPECT_EQ(net.ask("MKCOL", "/uploads/0000000A/", "", first).status, 404U)
        << "hexadecimal digits are lower case";
    EXPECT_EQ(net.ask("GET", folder + "x", "", first).status, 405U);
    EXPECT_EQ(net.put(folder + "a/b", "x", first), 405U);
    EXPECT_EQ(net.ask("MKCOL", folder, "", first).status, 201U);
    EXPECT_EQ(net.get("/webapp2/UploadInfoGetter?serverjobid=000000ff"), hex("07 00 00"));
    EXPECT_EQ(udsim::basicCredentials("000004d2", "secret"), "Basic MDAwMDA0ZDI6c2VjcmV0");
}

TEST(SimNetworkUpload, Ranges)
{
    struct Row
    {
        const char* range;
        const char* body;
        unsigned status;
    };
    const Row table[] = {
        {"0-1/4", "abc", 400},  {"0-4/4", "abcde", 400}, {"1-3/4", "bcd", 400}, {"x", "abc", 400},
        {"0-2/3 ", "abc", 400}, {"2-1/4", "", 400},      {"0-1/4", "ab", 201},  {"0-1/4", "ab", 204},
        {"3-3/4", "d", 400},    {"2-3/5", "cd", 400},    {"2-3/4", "cd", 204},
    };
    NetworkServer net("");
    HttpHeaders credentials;
    const std::string path = "/uploads/" + net.registerJob(credentials) + "/f";
    for (const Row& row : table) {
        EXPECT_EQ(net.put(path, row.body, credentials, row.range), row.status) << row.range;
    }
    const UploadedFile& file = net.server.uploads().jobs().at(0).files.at("f");
    EXPECT_EQ(file.contents, "abcd");
    EXPECT_TRUE(file.isWhole());
    EXPECT_EQ(net.put(path, "", credentials), 400U) << "an empty body";
}

TEST(SimNetworkUpload, Hashes)
{
    struct Row
    {
        const char* type;
        const char* hash;
        unsigned status;
    };
    const Row table[] = {
        {"SHA-1", "a9993e364706816aba3e25717850c26c9cd0d89d", 200},
        {"MD5", "900150983cd24fb0d6963f7d28e17f72", 200},
        {"SHA-256", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad", 200},
        {"SHA-1", "A9993E364706816ABA3E25717850C26C9CD0D89D", 409},
        {"SHA-1", "", 409},
        {"SHA1", "a9993e364706816aba3e25717850c26c9cd0d89d", 400},
    };
    NetworkServer net("");
    HttpHeaders credentials;
    const std::string id = net.registerJob(credentials);
    ASSERT_EQ(net.put("/uploads/" + id + "/f", "abc", credentials), 201U);
    for (const Row& row : table) {
        EXPECT_EQ(net.hash(id, "f", row.hash, row.type), row.status) << row.type << " " << row.hash;
    }
    EXPECT_EQ(net.control("0", id), 8) << "the last well-formed hash was wrong";
    EXPECT_EQ(net.hash(id, "f", ABC_SHA1), 200U);
    ASSERT_EQ(net.put("/uploads/" + id + "/f", "abc", credentials), 204U);
    EXPECT_EQ(net.control("0", id), 8) << "an upload discards the hash of the previous content";
    EXPECT_EQ(net.hash(id, "g", ABC_SHA1), 404U);
    EXPECT_EQ(net.hash("000000ff", "f", ABC_SHA1), 404U);
    EXPECT_EQ(net.ask("POST", "/webapp2/FileHashSetter", "serverjobid=" + id).status, 400U);
}

TEST(SimNetworkUpload, HashPathOfEachModel)
{
    for (const std::string model : {"RT-300N", "RT-300NII", "RT-300NII BD-XL"}) {
        NetworkServer net("", model);
        HttpHeaders credentials;
        const std::string id = net.registerJob(credentials);
        ASSERT_EQ(net.put("/uploads/" + id + "/f", "abc", credentials), 201U);
        const bool oldest = model == "RT-300N";
        EXPECT_EQ(net.hash(id, "f", ABC_SHA1, "SHA-1", "/webapp/FileHashSetter"), oldest ? 200U : 404U)
            << model;
        EXPECT_EQ(net.hash(id, "f", ABC_SHA1, "SHA-1", "/webapp2/FileHashSetter"), oldest ? 404U : 200U)
            << model;
    }
}

TEST(SimNetworkUpload, OldServersAcceptNoHashesAndCreateNoFolders)
{
    const std::pair<const char*, bool> table[] = {{"1.9", false},  {"2.0", true}, {"2.29", true},
                                                  {"2.30", false}, {"3", true},   {"3.29", true},
                                                  {"3.30", false}, {"4.0", false}};
    for (const auto& [version, old] : table) {
        NetworkServer net(std::string("server-version = ") + version);
        HttpHeaders credentials;
        const std::string id = net.registerJob(credentials);
        const std::string folder = "/uploads/" + id + "/";
        EXPECT_EQ(net.put(folder + "f", "abc", credentials), old ? 409U : 201U) << version;
        net.ask("MKCOL", folder, "", credentials);
        net.put(folder + "f", "abc", credentials);
        EXPECT_EQ(net.hash(id, "f", ABC_SHA1), old ? 404U : 200U) << version;
        EXPECT_EQ(net.control("0", id), 0) << version;
    }
}

TEST(SimNetworkUpload, AFullDisc)
{
    NetworkServer net("disc-space = 1\n");
    HttpHeaders credentials;
    const std::string id = net.registerJob(credentials);
    const std::string path = "/uploads/" + id + "/f";
    EXPECT_EQ(net.put(path, std::string(1'048'577, 'x'), credentials), 507U);
    EXPECT_EQ(net.put(path, std::string(1'048'576, 'x'), credentials), 201U);
    EXPECT_EQ(net.put(path, std::string(1'048'576, 'y'), credentials), 204U)
        << "it replaces the previous content";
    EXPECT_EQ(net.get("/webapp2/DevInfoGetter?ifversion=02000000&type=8"), item("0"));
    EXPECT_EQ(net.ask("POST", "/webapp2/NormalJobSetter", "x").body, hex("06 00 00"));
    EXPECT_EQ(net.control("1", id), 0);
    EXPECT_EQ(net.get("/webapp2/DevInfoGetter?ifversion=02000000&type=8"), item("1048576"));
    EXPECT_EQ(net.control("1", id), 7) << "the job no longer exists";
}

TEST(SimNetworkUpload, AFullJobList)
{
    NetworkServer net("jobs = 1000\n");
    EXPECT_EQ(net.ask("POST", "/webapp2/NormalJobSetter", "x").body, hex("0d 00 00"));
    EXPECT_EQ(net.ask("POST", "/webapp2/NormalJobSetter", "").body, hex("08 00 00")) << "no data";
    EXPECT_EQ(net.get("/webapp2/JobInfoGetter?ifversion=02000000&type=1").size(), 1000U * 1181);
}

TEST(SimNetworkUpload, ANozzleCheck)
{
    NetworkServer net("disc-time = 1s\n");
    HttpHeaders credentials;
    const std::string id = net.registerJob(credentials, NOZZLE_CHECK, "SpecialJobSetter");
    EXPECT_EQ(net.control("0", id), 8) << "its print data is missing";
    ASSERT_EQ(net.put("/uploads/" + id + "/PrnData_Special.prn", "abc", credentials), 201U);
    EXPECT_EQ(net.hash(id, "PrnData_Special.prn", ABC_SHA1), 200U);
    EXPECT_EQ(net.control("0", id), 0);
    const std::string payload = net.get("/webapp2/JobInfoGetter?ifversion=02000000&type=1").substr(3);
    ASSERT_EQ(payload.size(), 1178U);
    EXPECT_EQ(payload.substr(148, 18), hex("44 00 fc 00 73 00 65 00 6e 00 74 00 65 00 73 00 74 00"));
    EXPECT_EQ(payload.substr(136, 4), hex("00 01 00 04")) << "from stacker 1 to stacker 4";
    EXPECT_EQ(payload[662], 5) << "print mode";
    EXPECT_EQ(payload.substr(664, 510), std::string(510, '\0')) << "the submitter sent no id";
    EXPECT_EQ(net.server.machine().jobs().at(0).isNozzleCheck(), true);
}

TEST(SimNetworkUpload, AHeadCleaning)
{
    const std::string text = replaced(
        replaced(replaced(replaced(NOZZLE_CHECK, "Load = 1", "Load = -1"), "Eject = 2", "Eject = -1"),
                 "Count = 1", "Count = 0"),
        "PrintMode = 5", "PrintMode = 4");
    NetworkServer net("cleaning-time = 1s\nink.cyan = 50\n");
    HttpHeaders credentials;
    const std::string id = net.registerJob(credentials, text, "SpecialJobSetter");
    ASSERT_EQ(net.put("/uploads/" + id + "/PrnData_Special.prn", "abc", credentials), 201U);
    net.hash(id, "PrnData_Special.prn", ABC_SHA1);
    EXPECT_EQ(net.control("0", id), 0);
    net.server.step(50);
    net.server.step(50);
    const std::string payload = net.get("/webapp2/JobInfoGetter?ifversion=02000000&type=1").substr(3);
    EXPECT_EQ(payload.at(662), 4);
    EXPECT_EQ(payload.substr(136, 4), hex("ff ff ff ff"));
    EXPECT_EQ(net.get("/webapp2/DevStatusGetter?ifversion=02000000&type=3"), item(hex("00 00 00 10")));
    for (int i = 0; i < 25; ++i) {
        net.server.step(50);
    }
    EXPECT_EQ(net.server.machine().state().ink[0], 47U);
}

TEST(SimNetworkUpload, InvalidSpecialJobsAreRefused)
{
    const std::pair<const char*, const char*> table[] = {
        {"0x01030000", "0x01050000"},
        {"ID = ", "ID = x"},
        {"PublisherID = ", "PublisherID = x"},
        {"Load = 1", "Load = 2"},
        {"Eject = 2", "Eject = 3"},
        {"Count = 1", "Count = 0"},
        {"Mode = 2", "Mode = 1"},
        {"PrintMode = 5", "PrintMode = 3"},
        {"JobName = Düsentest", "JobName = "},
        {"Silent = 0\n", ""},
    };
    for (const auto& [what, with] : table) {
        NetworkServer net("");
        EXPECT_EQ(net.ask("POST", "/webapp2/SpecialJobSetter", replaced(NOZZLE_CHECK, what, with)).body,
                  hex("08 00 00"))
            << with;
        EXPECT_EQ(net.server.takeNotes().size(), 1U) << with;
    }
}

TEST(SimNetworkUpload, UploadedFilesDetermineTheJobType)
{
    struct Row
    {
        const char* file;
        uint64_t type;
    };
    for (const Row& row : {Row{"DiscImage_x", 1}, Row{"PrnData_000.prn", 2}, Row{"DiscWriteInfo", 3}}) {
        NetworkServer net("");
        HttpHeaders credentials;
        const std::string id = net.registerJob(credentials, "bytes \xFF\n");
        net.put("/uploads/" + id + "/" + row.file, "abc", credentials);
        net.hash(id, row.file, ABC_SHA1);
        ASSERT_EQ(net.control("0", id), 0) << row.file;
        EXPECT_EQ(net.server.machine().jobs().at(0).type, row.type) << row.file;
        EXPECT_EQ(net.server.machine().jobs().at(0).copies, 1U) << row.file;
    }
}

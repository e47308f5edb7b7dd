// The registry file, the setting files and the folders that the service maintains.
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "RawClient.h"
#include "RegistryKeys.h"
#include "RoomFixture.h"
#include "SimPaths.h"

namespace {

constexpr char ONE[] = "[publisher A]\nmodel = RT-300III BD\nguid = {G1}\nid = one\n";
constexpr char TWO_DRIVE_SPEEDS[] = "CD-R:40,32,24,16,10,4;DVD-R:12,8,6,4;DVD-R DL:8,6,4;DVD+R:12,8,6,4;"
                                    "DVD+R DL:8,6,4;BD-R:8,6,4,2;BD-R DL:6,4,2";

std::string contents(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

void put(const std::string& path, const std::string& text)
{
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

udsim::RegistryKeys sample()
{
    udsim::RegistryKeys keys;
    keys["HKLM/Software/ARVEN/K"].texts["Text"] = "new";
    keys["HKLM/Software/ARVEN/K"].numbers["Number"] = 0x2A;
    return keys;
}

constexpr char SAMPLE_LINES[] = "\"Text\"=\"new\"\n\"Number\"=dword:0000002a\n";

} // namespace

TEST(SimRegistry, NewSectionsAreAppended)
{
    const std::string section = "[HKLM/Software/ARVEN/K]\n" + std::string(SAMPLE_LINES) + "\n";
    EXPECT_EQ(udsim::withRegistryKeys("", sample()), section);
    const std::string other = "[HKLM/Software/ARVEN/Other]\n\"A\"=\"b\"\n\n";
    EXPECT_EQ(udsim::withRegistryKeys(other, sample()), other + section);
    EXPECT_EQ(udsim::withRegistryKeys("[X]\n\"A\"=\"b\"", sample()), "[X]\n\"A\"=\"b\"\n" + section);
}

TEST(SimRegistry, OtherValuesOfTheSectionStay)
{
    EXPECT_EQ(udsim::withRegistryKeys("[HKLM/Software/ARVEN/K]\n\"Before\"=\"1\"\n\"Text\"=\"old\"\n"
                                      "\"Number\"=dword:00000001\n\"Numbers\"=dword:00000002\n\n[Z]\n",
                                      sample()),
              "[HKLM/Software/ARVEN/K]\n" + std::string(SAMPLE_LINES) +
                  "\"Before\"=\"1\"\n\"Numbers\"=dword:00000002\n\n[Z]\n");
}

TEST(SimRegistry, UnknownLinesStayByteForByte)
{
    const std::string strange =
        "\"no section\"=\"x\"\r\n[open\n\"Text\"=\"mine\"\n[A]B]\n=\n\"half\n\xff\xfe\n" +
        std::string(2000, 'x') + "\n[HKLM/Software/ARVEN/Kk]\n\"Text\"=\"other\"\n";
    const std::string result = udsim::withRegistryKeys(strange, sample());
    EXPECT_EQ(result.substr(0, strange.size()), strange);
    EXPECT_EQ(result.substr(strange.size()), "[HKLM/Software/ARVEN/K]\n" + std::string(SAMPLE_LINES) + "\n");
}

TEST(SimRegistry, ADuplicateSectionIsSetOnce)
{
    EXPECT_EQ(udsim::withRegistryKeys(
                  "[HKLM/Software/ARVEN/K]\n\"Text\"=\"1\"\n[B]\n[HKLM/Software/ARVEN/K]\n\"Text\"=\"2\"\n",
                  sample()),
              "[HKLM/Software/ARVEN/K]\n" + std::string(SAMPLE_LINES) + "[B]\n[HKLM/Software/ARVEN/K]\n");
    EXPECT_EQ(udsim::withRegistryKeys("[HKLM/Software/ARVEN/K]", sample()),
              "[HKLM/Software/ARVEN/K]\n" + std::string(SAMPLE_LINES));
}

TEST(SimRegistry, WritingTwiceChangesNothing)
{
    const std::string once = udsim::withRegistryKeys("[X]\n\n", sample());
    EXPECT_EQ(udsim::withRegistryKeys(once, sample()), once);
}

TEST(SimRegistry, AShorterTextLeavesNoTail)
{
    put("/tmp/registry.txt", "[HKLM/Software/ARVEN/K]\n\"Text\"=\"" + std::string(500, 'o') + "\"\n");
    std::string error;
    ASSERT_TRUE(udsim::writeRegistryKeys("/tmp/registry.txt", sample(), error)) << error;
    EXPECT_EQ(contents("/tmp/registry.txt"), "[HKLM/Software/ARVEN/K]\n" + std::string(SAMPLE_LINES));
}

TEST(SimRegistry, AFullDiskIsReported)
{
    std::filesystem::create_symlink("/dev/full", "/tmp/full.txt");
    std::string error;
    EXPECT_FALSE(udsim::writeRegistryKeys("/tmp/full.txt", sample(), error));
    EXPECT_NE(error.find("/tmp/full.txt: "), std::string::npos) << error;
    EXPECT_FALSE(udsim::writeRegistryKeys("/tmp/none/registry.txt", sample(), error));
    EXPECT_EQ(error, "/tmp/none/registry.txt: No such file or directory");
}

TEST(SimRegistry, WaitsForTheLockOfAnotherProgram)
{
    put("/tmp/registry.txt", "[A]\n");
    const int other = ::open("/tmp/registry.txt", O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    std::thread writer([] {
        std::string error;
        EXPECT_TRUE(udsim::writeRegistryKeys("/tmp/registry.txt", sample(), error)) << error;
    });
    // The other program writes while it holds the lock. Its text must still be there at the end.
    EXPECT_EQ(::pwrite(other, "[B]\n", 4, 4), 4);
    EXPECT_EQ(contents("/tmp/registry.txt"), "[A]\n[B]\n");
    ::flock(other, LOCK_UN);
    writer.join();
    ::close(other);
    EXPECT_EQ(contents("/tmp/registry.txt"),
              "[A]\n[B]\n[HKLM/Software/ARVEN/K]\n" + std::string(SAMPLE_LINES) + "\n");
}

TEST(SimInstallation, StartCreatesAllFiles)
{
    const OpenRoom open(ONE);
    EXPECT_EQ(contents(REGISTRY), "[HKLM/Software/ARVEN/Ulmar Disc Maker/Local]\n\n"
                                  "[HKLM/Software/ARVEN/Ulmar Disc Maker/Local/{G1}]\n"
                                  "\"DRV1SupportWriteSpeed\"=\"" +
                                      std::string(TWO_DRIVE_SPEEDS) + "\"\n\"DRV2SupportWriteSpeed\"=\"" +
                                      TWO_DRIVE_SPEEDS +
                                      "\"\n\"Connected\"=dword:00000001\n\"DPType\"=dword:20000009\n"
                                      "\"USBMode\"=dword:00000003\n\n");
    EXPECT_EQ(contents(std::string(SETTINGS) + "/one.ini"),
              "[Common]\nGUID={G1}\nPublisherName=A\nPublishMode=0\nStacker1=1\nStacker2=0\nStacker3=32\n"
              "Stacker4=0\nPrinterName=ARVEN RT-300PRN\nPublisherConnectionType=0\nUseDrive=0\nRetryTimes=3\n"
              "RetryTimesW=3\nRetryTimesR=3\nReadBackContinue=1\nAddErrorMark=1\n");
    EXPECT_TRUE(std::filesystem::is_directory("/opt/arven/Ulmar Disc Maker/JOB"));
}

TEST(SimInstallation, KeysOfSingleDriveAndPrinterModels)
{
    const OpenRoom open("[publisher S]\nmodel = RT-30\nguid = {S}\nconnected = no\nid = s\n"
                        "[publisher P]\nmodel = RT-300AP\nguid = {P}\nusb = 16\nid = p\n");
    EXPECT_EQ(
        contents(REGISTRY),
        "[HKLM/Software/ARVEN/Ulmar Disc Maker/Local]\n\n"
        "[HKLM/Software/ARVEN/Ulmar Disc Maker/Local/{P}]\n\"Connected\"=dword:00000001\n"
        "\"DPType\"=dword:00000002\n\"USBMode\"=dword:00000010\n\n"
        "[HKLM/Software/ARVEN/Ulmar Disc Maker/Local/{S}]\n\"DRVSupportWriteSpeed\"=\"CD-R:40,32,24,16,10,4;"
        "DVD-R:12,8,6,4;DVD-R DL:8,6,4;DVD+R:12,8,6,4;DVD+R DL:8,6,4\"\n\"Connected\"=dword:00000000\n"
        "\"DPType\"=dword:00000003\n\"USBMode\"=dword:00000000\n\n");
    EXPECT_EQ(contents(std::string(SETTINGS) + "/p.ini"),
              "[Common]\nGUID={P}\nPublisherName=P\nPublishMode=0\nStacker1=1\nStacker2=0\nStacker3=32\n"
              "Stacker4=0\nPrinterName=ARVEN RT-300APPRN\nPublisherConnectionType=0\n");
}

TEST(SimInstallation, ExistingFilesSurvive)
{
    put(REGISTRY, "[HKLM/Software/ARVEN/Ulmar Disc Maker]\n\"CompatiMode\"=dword:00000001\n\n"
                  "[HKLM/Software/ARVEN/Ulmar Disc Maker/Local/{G1}]\n\"DPType\"=dword:00000003\n"
                  "\"PRTPortName\"=\"USB1\"\n\n");
    put(std::string(SETTINGS) + "/one.ini", "[Common]\nGUID={G1}\nPublisherName=Renamed\n");
    const OpenRoom open(ONE);
    const std::string registry = contents(REGISTRY);
    EXPECT_EQ(registry.find("[HKLM/Software/ARVEN/Ulmar Disc Maker]\n\"CompatiMode\"=dword:00000001\n\n"),
              0U);
    EXPECT_NE(registry.find("\"DPType\"=dword:20000009\n"), std::string::npos);
    EXPECT_EQ(registry.find("\"DPType\"=dword:00000003\n"), std::string::npos);
    EXPECT_NE(registry.find("\"PRTPortName\"=\"USB1\"\n"), std::string::npos);
    EXPECT_EQ(contents(std::string(SETTINGS) + "/one.ini"), "[Common]\nGUID={G1}\nPublisherName=Renamed\n");
}

TEST(SimInstallation, AnUnregisteredMachineHasNoSettingFile)
{
    const OpenRoom open(std::string(ONE) + "registered = no\n");
    EXPECT_FALSE(std::filesystem::exists(std::string(SETTINGS) + "/one.ini"));
    EXPECT_NE(contents(REGISTRY).find("/Local/{G1}]"), std::string::npos);
}

TEST(SimInstallation, ConnectedFollowsTheMachine)
{
    OpenRoom open(ONE);
    ASSERT_TRUE(open.room.tell("A", "offline"));
    EXPECT_NE(contents(REGISTRY).find("\"Connected\"=dword:00000000\n"), std::string::npos);
    EXPECT_NE(contents(REGISTRY).find("\"USBMode\"=dword:00000000\n"), std::string::npos);
    ASSERT_TRUE(open.room.tell("A", "online"));
    EXPECT_NE(contents(REGISTRY).find("\"Connected\"=dword:00000001\n"), std::string::npos);
}

TEST(SimInstallation, TheSettingFileMapsAnIdToADevice)
{
    OpenRoom open(std::string(ONE) +
                  "[publisher B]\nmodel = RT-30\nguid = {G2}\nerror = 19\nregistered = no\n");
    put(std::string(SETTINGS) + "/made by hand.ini", "[Common]\nPublisherName=B\nGUID={G2}\n");
    EXPECT_EQ(ask(22, "made by hand").payload, Bytes(4).u32(0, 19).str());
    put(std::string(SETTINGS) + "/stray.ini", "[Common]\nGUID={nobody}\n");
    EXPECT_EQ(ask(22, "stray").result, 21U);
    put("/tmp/outside.ini", "[Common]\nGUID={G2}\n");
    EXPECT_EQ(ask(22, "../../../../../tmp/outside").result, 21U);
}

TEST(SimInstallation, NotifyChangeReadsTheSettingFileAgain)
{
    OpenRoom open(ONE);
    put(std::string(SETTINGS) + "/one.ini",
        "[Common]\nGUID={G1}\nPublisherName=New name\nStacker1=8\nStacker2=9\nStacker3=0\nStacker4=32\n");
    EXPECT_EQ(ask(17, "one").payload, Bytes(16).u32(0, 1).u32(4, 0).u32(8, 32).u32(12, 0).str());
    EXPECT_EQ(ask(16, "one").result, 0U);
    EXPECT_EQ(ask(17, "one").payload, Bytes(16).u32(0, 8).u32(4, 9).u32(8, 0).u32(12, 32).str());
    EXPECT_EQ(open.room.look("A")->state().shownName, "New name");
}

TEST(SimInstallation, AFolderThatCannotBeCreatedIsReported)
{
    put("/opt/arven", "a file in the way");
    udsim::Room room(scenarioOf(ONE));
    std::string error;
    EXPECT_FALSE(room.start(error));
    EXPECT_EQ(error.find("/opt/arven/Ulmar Disc Maker/"), 0U) << error;
}

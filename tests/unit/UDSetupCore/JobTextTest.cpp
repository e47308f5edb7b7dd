// The text of maintenance jobs, byte for byte.
#include "JobText.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace {

/// 2024-03-05 07:08:09.004 on a clock two hours ahead.
JobStamp someStamp()
{
    JobStamp stamp{};
    stamp.time.time = 1709615289;
    stamp.time.millitm = 4;
    stamp.date.tm_year = 124;
    stamp.date.tm_mon = 2;
    stamp.date.tm_mday = 5;
    stamp.date.tm_hour = 7;
    stamp.date.tm_min = 8;
    stamp.date.tm_sec = 9;
    return stamp;
}

PUBLISHERINFO publisher(UINT mode, UINT stacker3)
{
    PUBLISHERINFO info;
    info.strPublisherRegistID = "{ARPUB20240131_1}";
    info.uiPublishMode = mode;
    info.uiStacker3DiscType = stacker3;
    return info;
}

/// The value after "key = " in the only line with this key.
std::string valueOf(const std::string& text, const std::string& key)
{
    std::istringstream lines(text);
    std::vector<std::string> values;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(key + " = ")) {
            values.push_back(line.substr(key.size() + 3));
        }
    }
    return values.size() == 1 ? values[0] : std::to_string(values.size()) + " lines of " + key;
}

constexpr char localHeadCleaning[] = R"([Common]
Version = 0x01050000
ID = LOCALHOST_20240305070809004_UDSetup_0000
PublisherID = {ARPUB20240131_1}
Load = -1
Eject = -1
Count = 0
Create = 1709615289
Publisher = @UDSetup
Mode = 2
JobName = Head Cleaning
SaveJobData = 0
PublishID = )"
                                     R"(
Silent = 0

[Print]
PrintMode = 3
DataPath = /opt/arven/Ulmar Disc Maker/res/prnfile/headCleaning.prn
DryingTime = 0
PrintQuality = 0
)";

constexpr char localNozzleCheck[] = R"([Common]
Version = 0x01050000
ID = LOCALHOST_20240305070809004_UDSetup_0000
PublisherID = {ARPUB20240131_1}
Load = 1
Eject = 2
Count = 1
Create = 1709615289
Publisher = @UDSetup
Mode = 2
JobName = Nozzle Check
SaveJobData = 0
PublishID = )"
                                    R"(
Silent = 0

[Print]
PrintMode = 4
DataPath = /opt/arven/Ulmar Disc Maker/res/prnfile/nozzleCheck.prn
DryingTime = 0
PrintQuality = 0
)";

constexpr char networkHeadCleaning[] = "[Common]\n"
                                       "Version = 0x01030000\n"
                                       "ID = \n"
                                       "PublisherID = \n"
                                       "Load = -1\n"
                                       "Eject = -1\n"
                                       "Count = 0\n"
                                       "Create = 1709615289\n"
                                       "Publisher = @UDSetup\n"
                                       "Mode = 2\n"
                                       "JobName = D\xc3\xbcsenreinigung\n"
                                       "SaveJobData = 0\n"
                                       "PublishID = \n"
                                       "Silent = 0\n"
                                       "\n"
                                       "[Print]\n"
                                       "PrintMode = 4\n"
                                       "DataPath = /opt/arven/Ulmar Disc Maker/res/prnfile/headCleaning.prn\n"
                                       "DryingTime = 0\n"
                                       "PrintQuality = 0\n";

constexpr char networkNozzleCheck[] = "[Common]\n"
                                      "Version = 0x01030000\n"
                                      "ID = \n"
                                      "PublisherID = \n"
                                      "Load = 1\n"
                                      "Eject = 0\n"
                                      "Count = 1\n"
                                      "Create = 1709615289\n"
                                      "Publisher = @UDSetup\n"
                                      "Mode = 2\n"
                                      "JobName = D\xc3\xbcsentest\n"
                                      "SaveJobData = 0\n"
                                      "PublishID = \n"
                                      "Silent = 0\n"
                                      "\n"
                                      "[Print]\n"
                                      "PrintMode = 5\n"
                                      "DataPath = /opt/arven/Ulmar Disc Maker/res/prnfile/nozzleCheck.prn\n"
                                      "DryingTime = 0\n"
                                      "PrintQuality = 0\n";

TEST(JobText, LocalTextsByteForByte)
{
    EXPECT_EQ(localJobText(MaintenanceJob::headCleaning, publisher(0, 32), someStamp()), localHeadCleaning);
    EXPECT_EQ(localJobText(MaintenanceJob::nozzleCheck, publisher(0, 32), someStamp()), localNozzleCheck);
}

TEST(JobText, NetworkTextsByteForByte)
{
    EXPECT_EQ(
        networkJobText(MaintenanceJob::headCleaning, publisher(0, 32), someStamp(), "D\xc3\xbcsenreinigung"),
        networkHeadCleaning);
    EXPECT_EQ(networkJobText(MaintenanceJob::nozzleCheck, publisher(1, 32), someStamp(), "D\xc3\xbcsentest"),
              networkNozzleCheck);
}

TEST(JobText, NetworkPrintModesAreOneAboveTheLocalOnes)
{
    constexpr struct
    {
        MaintenanceJob job;
        const char* local;
        const char* network;
    } modes[] = {{MaintenanceJob::headCleaning, "3", "4"}, {MaintenanceJob::nozzleCheck, "4", "5"}};
    for (const auto& mode : modes) {
        const PUBLISHERINFO info = publisher(0, 32);
        EXPECT_EQ(valueOf(localJobText(mode.job, info, someStamp()), "PrintMode"), mode.local);
        EXPECT_EQ(valueOf(networkJobText(mode.job, info, someStamp(), "x"), "PrintMode"), mode.network);
    }
}

struct EjectCase
{
    UINT mode;
    UINT stacker3;
    const char* eject;
};

constexpr EjectCase ejectTable[] = {
    {1, 32, "0"},                                     // batch
    {1, 0, "0"},  {1, 1, "0"},          {2, 32, "2"}, // external output without stacker 3
    {2, 0, "3"},                                      // with stacker 3, whatever its content
    {2, 1, "3"},  {2, 8, "3"},          {2, 16, "3"}, {2, 31, "3"},
    {2, 33, "3"}, {2, 0xFFFFFFFF, "3"}, {0, 32, "2"}, // any other mode
    {0, 0, "2"},  {3, 0, "2"},          {4, 0, "2"},  {5, 0, "2"},
    {6, 0, "2"},  {6, 32, "2"},         {7, 0, "2"},  {0xFFFFFFFF, 0, "2"},
};

TEST(JobText, NozzleCheckLoadsFromStacker1AndEjectsByModeAndStacker3)
{
    for (const EjectCase& row : ejectTable) {
        SCOPED_TRACE(testing::Message() << "mode " << row.mode << ", stacker 3 " << row.stacker3);
        const PUBLISHERINFO info = publisher(row.mode, row.stacker3);
        for (const std::string& text : {localJobText(MaintenanceJob::nozzleCheck, info, someStamp()),
                                        networkJobText(MaintenanceJob::nozzleCheck, info, someStamp(), "")}) {
            EXPECT_EQ(valueOf(text, "Load"), "1");
            EXPECT_EQ(valueOf(text, "Eject"), row.eject);
            EXPECT_EQ(valueOf(text, "Count"), "1");
        }
    }
}

TEST(JobText, HeadCleaningNamesNoStackerOnAnyPublisher)
{
    for (const EjectCase& row : ejectTable) {
        SCOPED_TRACE(testing::Message() << "mode " << row.mode << ", stacker 3 " << row.stacker3);
        const PUBLISHERINFO info = publisher(row.mode, row.stacker3);
        for (const std::string& text :
             {localJobText(MaintenanceJob::headCleaning, info, someStamp()),
              networkJobText(MaintenanceJob::headCleaning, info, someStamp(), "")}) {
            EXPECT_EQ(valueOf(text, "Load"), "-1");
            EXPECT_EQ(valueOf(text, "Eject"), "-1");
            EXPECT_EQ(valueOf(text, "Count"), "0");
        }
    }
}

TEST(JobText, IDAndCreateContainTheStamp)
{
    struct StampCase
    {
        int year, month, day, hour, minute, second;
        unsigned short millisecond;
        time_t time;
        const char* id;
        const char* create;
    };
    constexpr StampCase stamps[] = {
        {70, 0, 1, 0, 0, 0, 0, 0, "LOCALHOST_19700101000000000_UDSetup_0000", "0"},
        {99, 11, 31, 23, 59, 59, 999, 946684799, "LOCALHOST_19991231235959999_UDSetup_0000", "946684799"},
        {126, 9, 10, 11, 12, 60, 50, 1791623580, "LOCALHOST_20261010111260050_UDSetup_0000", "1791623580"},
        {138, 0, 19, 3, 14, 8, 7, 2147483648, "LOCALHOST_20380119031408007_UDSetup_0000", "2147483648"},
    };
    for (const StampCase& row : stamps) {
        JobStamp stamp{};
        stamp.time.time = row.time;
        stamp.time.millitm = row.millisecond;
        stamp.date.tm_year = row.year;
        stamp.date.tm_mon = row.month;
        stamp.date.tm_mday = row.day;
        stamp.date.tm_hour = row.hour;
        stamp.date.tm_min = row.minute;
        stamp.date.tm_sec = row.second;
        const std::string text = localJobText(MaintenanceJob::headCleaning, publisher(0, 32), stamp);
        EXPECT_EQ(valueOf(text, "ID"), row.id);
        EXPECT_EQ(valueOf(text, "Create"), row.create);
    }
}

TEST(JobText, NetworkTextIsTruncatedTo1023Bytes)
{
    const PUBLISHERINFO info = publisher(0, 32);
    const auto textWith = [&](size_t nameLength) {
        return networkJobText(MaintenanceJob::headCleaning, info, someStamp(), std::string(nameLength, 'n'));
    };
    const size_t rest = textWith(0).size();
    EXPECT_EQ(textWith(1022 - rest).size(), 1022U);
    EXPECT_EQ(textWith(1023 - rest).size(), 1023U);
    EXPECT_TRUE(textWith(1023 - rest).ends_with("PrintQuality = 0\n"));
    EXPECT_EQ(textWith(1024 - rest).size(), 1023U);
    EXPECT_TRUE(textWith(1024 - rest).ends_with("PrintQuality = 0"));

    const std::string longest = textWith(100000);
    EXPECT_EQ(longest.size(), 1023U);
    EXPECT_TRUE(longest.starts_with("[Common]\nVersion = 0x01030000\n"));
    EXPECT_TRUE(longest.ends_with("nnn"));
}

TEST(JobText, LocalTextIsNeverTruncated)
{
    PUBLISHERINFO info = publisher(0, 32);
    info.strPublisherRegistID = std::string(100000, 'i');
    const std::string text = localJobText(MaintenanceJob::headCleaning, info, someStamp());
    EXPECT_EQ(valueOf(text, "PublisherID"), std::string(100000, 'i'));
    EXPECT_TRUE(text.ends_with("PrintQuality = 0\n"));
}

TEST(JobText, PercentSignsAndNonAsciiBytesAreUnchanged)
{
    PUBLISHERINFO info = publisher(0, 32);
    info.strPublisherRegistID = "%s%n \xff=[Print]";
    EXPECT_EQ(valueOf(localJobText(MaintenanceJob::headCleaning, info, someStamp()), "PublisherID"),
              "%s%n \xff=[Print]");
    EXPECT_EQ(valueOf(networkJobText(MaintenanceJob::headCleaning, info, someStamp(), "%d\xff"), "JobName"),
              "%d\xff");
}

TEST(JobText, LineEndsInValuesStartNoKey)
{
    constexpr struct
    {
        const char* value;
        const char* written;
    } values[] = {
        {"a\nMode = 9", "a Mode = 9"},
        {"a\rMode = 9", "a Mode = 9"},
        {"a\r\nMode = 9\n", "a  Mode = 9 "},
        {"\n\n[Print]\nDataPath = /x", "  [Print] DataPath = /x"},
    };
    for (const auto& value : values) {
        PUBLISHERINFO info = publisher(0, 32);
        info.strPublisherRegistID = value.value;
        const std::string local = localJobText(MaintenanceJob::headCleaning, info, someStamp());
        EXPECT_EQ(valueOf(local, "PublisherID"), value.written);
        EXPECT_EQ(valueOf(local, "Mode"), "2");
        const std::string network =
            networkJobText(MaintenanceJob::headCleaning, info, someStamp(), value.value);
        EXPECT_EQ(valueOf(network, "JobName"), value.written);
        EXPECT_EQ(valueOf(network, "Mode"), "2");
        EXPECT_EQ(valueOf(network, "DataPath"), "/opt/arven/Ulmar Disc Maker/res/prnfile/headCleaning.prn");
    }
    const std::string withNul("a\0b", 3);
    EXPECT_EQ(valueOf(networkJobText(MaintenanceJob::headCleaning, publisher(0, 32), someStamp(), withNul),
                      "JobName"),
              "a b");
}

} // namespace

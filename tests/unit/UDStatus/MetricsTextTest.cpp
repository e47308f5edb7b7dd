#include "MetricsText.h"

#include "SampleReports.h"

#include <gtest/gtest.h>

namespace {

TEST(MetricsText, EndsWithItsMark)
{
    EXPECT_EQ(metricsText({}), "# EOF\n");
    EXPECT_TRUE(metricsText({fullReport()}).endsWith("\n# EOF\n"));
}

TEST(MetricsText, EveryValueHasASample)
{
    const QByteArray text = metricsText({fullReport()});
    for (const char* line : {
             "# TYPE ulmar_publisher_up gauge\n",
             "# UNIT ulmar_ink_remaining_ratio ratio\n",
             "ulmar_publisher_up{id=\"{ARPUB20260105_1}\",publisher=\"Studio A\"} 1\n",
             "ulmar_publisher_status{id=\"{ARPUB20260105_1}\",publisher=\"Studio "
             "A\",status=\"ready\",model=\"RT-300III\"} 1\n",
             "ulmar_publisher_error_code{id=\"{ARPUB20260105_1}\",publisher=\"Studio A\"} 0\n",
             "ulmar_jobs_waiting{id=\"{ARPUB20260105_1}\",publisher=\"Studio A\"} 2\n",
             "ulmar_jobs_unfinished{id=\"{ARPUB20260105_1}\",publisher=\"Studio A\"} 1\n",
             "ulmar_ink_remaining_ratio{id=\"{ARPUB20260105_1}\",publisher=\"Studio A\",color=\"cyan\"} "
             "0.41\n",
             "ulmar_stacker_discs{id=\"{ARPUB20260105_1}\",publisher=\"Studio "
             "A\",stacker=\"1\",holds=\"CD-R\"} 88\n",
             "ulmar_prints_remaining{id=\"{ARPUB20260105_1}\",publisher=\"Studio A\"} 420\n",
             "ulmar_maintenance_box_free_ratio{id=\"{ARPUB20260105_1}\",publisher=\"Studio A\"} 0.9725\n",
             "ulmar_discs_published{id=\"{ARPUB20260105_1}\",publisher=\"Studio A\"} 1840\n",
             "ulmar_discs_printed{id=\"{ARPUB20260105_1}\",publisher=\"Studio A\"} 1841\n",
             "ulmar_drive_wear_ratio{id=\"{ARPUB20260105_1}\",publisher=\"Studio A\",drive=\"1\"} 0.125\n",
         }) {
        EXPECT_TRUE(text.contains(line)) << line << text.toStdString();
    }
    EXPECT_FALSE(text.contains("drive=\"2\""));
    EXPECT_FALSE(text.contains("light-cyan"));
}

TEST(MetricsText, UnknownValuesHaveNoSample)
{
    const QByteArray text = metricsText({silentReport()});
    EXPECT_TRUE(text.contains("ulmar_publisher_up{id=\"N\",publisher=\"Library\"} 0\n"));
    EXPECT_TRUE(text.contains("status=\"no-answer\""));
    for (const char* name : {"ulmar_ink", "ulmar_jobs", "ulmar_publisher_error_code", "ulmar_drive"}) {
        EXPECT_FALSE(text.contains(name)) << name;
    }
}

TEST(MetricsText, AnUnknownErrorHasNoSample)
{
    PublisherReport report = fullReport();
    report.state = PublisherState::notConnected;
    report.fatalCode.reset();
    EXPECT_FALSE(metricsText({report}).contains("ulmar_publisher_error_code"));
}

TEST(MetricsText, LabelsAreEscaped)
{
    PublisherReport report = silentReport();
    report.name = "a\"b\\c\nd";
    EXPECT_TRUE(metricsText({report}).contains("publisher=\"a\\\"b\\\\c\\\\x0ad\"}"))
        << metricsText({report}).toStdString();
}

} // namespace

#include "ReportStream.h"

#include "SampleReports.h"

#include <gtest/gtest.h>

namespace {

TEST(ReportStream, AReportComesBackUnchanged)
{
    for (const PublisherReport& report : {fullReport(), silentReport()}) {
        QByteArray data = frameOf(report);
        PublisherReport back;
        ASSERT_TRUE(takeLastFrame(data, back));
        EXPECT_TRUE(data.isEmpty());
        EXPECT_EQ(frameOf(back), frameOf(report));
        EXPECT_EQ(back.name, report.name);
        EXPECT_EQ(back.asked, report.asked);
        EXPECT_EQ(back.answer, report.answer);
        EXPECT_EQ(back.ink, report.ink);
        EXPECT_EQ(back.stackers ? back.stackers->size() : 0, report.stackers ? report.stackers->size() : 0);
        EXPECT_EQ(back.jobs.has_value(), report.jobs.has_value());
        EXPECT_EQ(back.wear ? back.wear->driveWear[0] : std::nullopt,
                  report.wear ? report.wear->driveWear[0] : std::nullopt);
    }
}

TEST(ReportStream, TheReasonOfAFailureComesBack)
{
    PublisherReport report = silentReport();
    report.failure = QueryFailure::settingsUnreadable;
    QByteArray data = frameOf(report);
    PublisherReport back;
    ASSERT_TRUE(takeLastFrame(data, back));
    EXPECT_EQ(back.failure, QueryFailure::settingsUnreadable);
}

TEST(ReportStream, TheLastCompleteFrameCounts)
{
    const QByteArray first = frameOf(silentReport());
    const QByteArray second = frameOf(fullReport());
    const QByteArray all = first + second;
    for (int length = 0; length <= all.size(); ++length) {
        QByteArray data = all.left(length);
        PublisherReport report;
        const bool found = takeLastFrame(data, report);
        EXPECT_EQ(found, length >= first.size());
        EXPECT_EQ(report.name, length == all.size() ? "Studio A" : found ? "Library" : "");
        EXPECT_EQ(data.size(), length == all.size() ? 0 : found ? length - first.size() : length);
    }
}

} // namespace

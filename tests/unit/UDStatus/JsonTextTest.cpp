#include "JsonText.h"

#include "RowTexts.h"
#include "SampleReports.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QDateTime time = QDateTime::fromString("2026-01-05T13:45:09Z", Qt::ISODate);

QJsonObject publisher(const PublisherReport& report)
{
    return QJsonDocument::fromJson(jsonText({report}, time)).object()["publishers"].toArray()[0].toObject();
}

TEST(JsonText, TheDocumentHasAVersionAndATime)
{
    EXPECT_EQ(jsonText({}, time),
              "{\n    \"generated\": \"2026-01-05T13:45:09Z\",\n    \"publishers\": [\n    ],\n"
              "    \"version\": 1\n}\n");
}

TEST(JsonText, ValuesAreNumbersWordsAndTimes)
{
    const QJsonObject object = publisher(fullReport());
    EXPECT_EQ(object["id"].toString(), "{ARPUB20260105_1}");
    EXPECT_EQ(object["name"].toString(), "Studio A");
    EXPECT_EQ(object["connection"].toString(), "local");
    EXPECT_EQ(object["status"].toString(), "ready");
    EXPECT_EQ(object["asked"].toString(), "2026-01-05T13:45:07Z");
    EXPECT_EQ(object["complete"], QJsonValue(true));
    EXPECT_EQ(object["jobsWaiting"], QJsonValue(2));
    EXPECT_EQ(object["jobsTransmitting"], QJsonValue(QJsonValue::Null));
    EXPECT_EQ(object["publishMode"].toString(), "standard");
    EXPECT_EQ(object["maintenanceBoxPercentFree"], QJsonValue(97.25));
    EXPECT_EQ(object["errorCode"], QJsonValue(0));
    const QJsonObject stacker = object["stackers"].toArray()[0].toObject();
    EXPECT_EQ(stacker, (QJsonObject{{"number", 1},
                                    {"holds", "CD-R"},
                                    {"input", true},
                                    {"discs", 88},
                                    {"fill", "counted"},
                                    {"supplies", true}}));
    const QJsonObject ink = object["inks"].toArray()[2].toObject();
    EXPECT_EQ(ink, (QJsonObject{{"color", "yellow"}, {"percentLeft", 3}, {"state", "near-empty"}}));
    const QJsonObject drive = object["drives"].toArray()[0].toObject();
    EXPECT_EQ(drive, (QJsonObject{{"number", 1},
                                  {"states", QJsonArray{"containing", "writing"}},
                                  {"progressPercent", 36},
                                  {"wearPercent", 12.5},
                                  {"model", "BDR"},
                                  {"version", "1.05"}}));
    const QJsonObject job = object["jobs"].toArray()[0].toObject();
    EXPECT_EQ(job, (QJsonObject{{"id", "J1"},
                                {"name", "Annual report"},
                                {"person", "kim"},
                                {"state", "running"},
                                {"type", "write-and-print"},
                                {"errorCode", 0},
                                {"copies", 10},
                                {"completed", 4},
                                {"failed", 1},
                                {"remainingTime", 3725}}));
}

TEST(JsonText, AModelWithoutDrivesHasNone)
{
    PublisherReport report = fullReport();
    report.devType = PUBMGR_PUBLISHERTYPE_AP;
    EXPECT_EQ(publisher(report)["drives"], QJsonValue(QJsonArray()));
}

TEST(JsonText, UnknownValuesAreNull)
{
    const QJsonObject object = publisher(silentReport());
    EXPECT_EQ(object["status"].toString(), "no-answer");
    EXPECT_EQ(object["complete"], QJsonValue(false));
    const QStringList known{"id", "name", "connection", "model", "host", "asked", "complete", "status"};
    EXPECT_EQ(object.keys().size(), publisher(fullReport()).keys().size());
    for (const QString& key : object.keys()) {
        EXPECT_EQ(object[key].isNull(), !known.contains(key)) << key.toStdString();
    }
}

TEST(JsonText, AnUnknownModelIsNull)
{
    PublisherReport report = fullReport();
    report.model = modelText(PUBMGR_PUBLISHERTYPE_BASIC, 0);
    EXPECT_EQ(publisher(report)["model"], QJsonValue(QJsonValue::Null));
}

TEST(JsonText, HostileTextsStayInsideTheirStrings)
{
    PublisherReport report = fullReport();
    report.name = QString("\"\\\n\x1b\x7f") + QChar(0x9B) + QChar(0x202E);
    const QByteArray text = jsonText({report}, time);
    for (const char byte : {'\x1b', '\x7f'}) {
        EXPECT_FALSE(text.contains(byte));
    }
    EXPECT_FALSE(text.contains("\xc2\x9b"));
    EXPECT_EQ(publisher(report)["name"].toString(), report.name);
}

} // namespace

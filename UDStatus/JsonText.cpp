#include "JsonText.h"

#include "ReportWords.h"
#include "SafeText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

constexpr int version = 1;

template <class T>
QJsonValue numberOrNull(const std::optional<T>& value)
{
    return value && std::isfinite(static_cast<double>(*value)) ? QJsonValue(static_cast<double>(*value))
                                                               : QJsonValue(QJsonValue::Null);
}

QJsonValue countOrNull(qint64 count)
{
    return count < 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(count);
}

QJsonValue textOrNull(const QString& text)
{
    return text.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

QJsonValue wordOrNull(const char* word)
{
    return textOrNull(QLatin1String(word));
}

QJsonArray arrayOf(const std::vector<ReportWord>& words)
{
    QJsonArray array;
    for (const ReportWord& word : words) {
        array << QLatin1String(word.word);
    }
    return array;
}

QString timeText(const QDateTime& time)
{
    return time.toUTC().toString(Qt::ISODate);
}

QJsonValue stackers(const PublisherReport& report)
{
    if (!report.stackers) {
        return QJsonValue::Null;
    }
    QJsonArray array;
    for (const StackerReport& stacker : *report.stackers) {
        const StackerFill fill = stacker.discs ? stackerFill(*stacker.discs) : StackerFill();
        array << QJsonObject{
            {"number", static_cast<int>(stacker.number)},
            {"holds", stacker.holds ? wordOrNull(discTypeWord(*stacker.holds).word) : QJsonValue::Null},
            {"input", stacker.input},
            {"discs", numberOrNull(fill.discs)},
            {"fill", stacker.discs ? wordOrNull(fill.state.word) : QJsonValue::Null},
            {"supplies", stacker.discs ? QJsonValue(fill.supplies) : QJsonValue::Null}};
    }
    return array;
}

QJsonValue inks(const PublisherReport& report)
{
    if (!report.ink) {
        return QJsonValue::Null;
    }
    QJsonArray array;
    for (size_t i = 0; i < inkCount; ++i) {
        const Supply supply = inkSupply((*report.ink)[i]);
        array << QJsonObject{{"color", QLatin1String(inkColorWord(i).word)},
                             {"percentLeft", numberOrNull(supply.percent)},
                             {"state", QLatin1String(supply.state.word)}};
    }
    return array;
}

QJsonValue drives(const PublisherReport& report)
{
    if (!report.drives && !report.wear && !report.versions) {
        return QJsonValue::Null;
    }
    QJsonArray array;
    for (size_t i = 0; i < report.driveCount(); ++i) {
        const DriveReport drive = report.drives ? (*report.drives)[i] : DriveReport();
        const bool shows = report.drives && drive.progress <= 100;
        array << QJsonObject{
            {"number", static_cast<int>(i + 1)},
            {"states", report.drives ? QJsonValue(arrayOf(driveWords(drive.status))) : QJsonValue::Null},
            {"progressPercent", shows ? QJsonValue(static_cast<int>(drive.progress)) : QJsonValue::Null},
            {"wearPercent", report.wear ? numberOrNull(report.wear->driveWear[i]) : QJsonValue::Null},
            {"model", report.versions ? textOrNull(report.versions->driveModels[i]) : QJsonValue::Null},
            {"version", report.versions ? textOrNull(report.versions->drives[i]) : QJsonValue::Null}};
    }
    return array;
}

QJsonValue jobs(const PublisherReport& report)
{
    if (!report.jobs) {
        return QJsonValue::Null;
    }
    QJsonArray array;
    for (const JobReport& job : *report.jobs) {
        array << QJsonObject{{"id", job.id},
                             {"name", textOrNull(job.name)},
                             {"person", textOrNull(job.person)},
                             {"state", wordOrNull(jobStateWord(job.status).word)},
                             {"type", wordOrNull(jobTypeWord(job.type))},
                             {"errorCode", static_cast<double>(job.factor)},
                             {"copies", static_cast<double>(job.copies)},
                             {"completed", static_cast<double>(job.completed)},
                             {"failed", static_cast<double>(job.failed)},
                             {"remainingTime", numberOrNull(job.remainingTime)}};
    }
    return array;
}

QJsonObject publisher(const PublisherReport& report)
{
    const WearReport wear = report.wear.value_or(WearReport());
    const VersionReport versions = report.versions.value_or(VersionReport());
    return {
        {"id", QString::fromUtf8(report.id)},
        {"name", report.name},
        {"connection", report.network ? "network" : "local"},
        {"model", report.model == QLatin1String("N/A") ? QJsonValue::Null : QJsonValue(report.model)},
        {"host", textOrNull(report.host)},
        {"asked", report.asked.isValid() ? QJsonValue(timeText(report.asked)) : QJsonValue::Null},
        {"complete", report.isAnswered()},
        {"status", QLatin1String(statusWord(report).word)},
        {"errorCode", report.fatalCode ? QJsonValue(*report.fatalCode) : QJsonValue::Null},
        {"jobsWaiting", countOrNull(report.waiting)},
        {"jobsTransmitting", countOrNull(report.sending)},
        {"bytesFree", numberOrNull(report.freeBytes)},
        {"publishMode",
         report.publishMode ? wordOrNull(modeWord(*report.publishMode).word) : QJsonValue::Null},
        {"stackers", stackers(report)},
        {"inks", inks(report)},
        {"printsLeft", numberOrNull(report.printsLeft)},
        {"maintenanceBoxPercentFree", numberOrNull(wear.maintenanceBoxFree)},
        {"autoloaderStates",
         report.loader ? QJsonValue(arrayOf(loaderWords(*report.loader))) : QJsonValue::Null},
        {"autoloaderVersion", textOrNull(versions.autoloader)},
        {"printerStates",
         report.printer ? QJsonValue(arrayOf(printerWords(*report.printer))) : QJsonValue::Null},
        {"printerModel", textOrNull(versions.printerModel)},
        {"printerVersion", textOrNull(versions.printer)},
        {"drives", drives(report)},
        {"jobs", jobs(report)},
        {"discsPublished", numberOrNull(wear.discsPublished)},
        {"discsPrinted", numberOrNull(wear.discsPrinted)},
        {"serialNumber", textOrNull(wear.serialNumber)},
        {"serverVersion", textOrNull(versions.server)},
        {"administratorVersion", textOrNull(versions.administrator)},
    };
}

} // namespace

QByteArray jsonText(const std::vector<PublisherReport>& reports, const QDateTime& generated)
{
    QJsonArray publishers;
    for (const PublisherReport& report : reports) {
        publishers << publisher(report);
    }
    const QJsonObject document{
        {"version", version}, {"generated", timeText(generated)}, {"publishers", publishers}};
    return safeJson(QJsonDocument(document).toJson());
}

#include "JobFile.h"

#include <algorithm>
#include <array>
#include <ctime>

#include <sys/stat.h>

#include "Protocol.h"
#include "Text.h"

namespace udsim {

namespace {

constexpr int NO_STACKER = -1;
constexpr char CLEANING_MODE[] = "3";
constexpr char NOZZLE_CHECK_MODE[] = "4";

struct FormLine
{
    std::string_view text; ///< the whole line, or the key if it has a value
    bool hasValue = false;
    std::string_view value{}; ///< the only valid value; null: checked separately
};

constexpr FormLine heading(std::string_view text)
{
    return {text, false, {}};
}

constexpr FormLine any(std::string_view key)
{
    return {key, true, {}};
}

constexpr FormLine only(std::string_view key, std::string_view value)
{
    return {key, true, value};
}

/// The lines whose values differ between jobs.
enum LineNumber : size_t
{
    ID = 2,
    PUBLISHER_ID = 3,
    LOAD = 4,
    EJECT = 5,
    COUNT = 6,
    CREATE = 7,
    JOB_NAME = 10,
    PRINT_MODE = 16,
    DATA_PATH = 17
};

constexpr std::array<FormLine, 20> FORM{{
    heading("[Common]"),
    only("Version", "0x01050000"),
    any("ID"),
    any("PublisherID"),
    any("Load"),
    any("Eject"),
    any("Count"),
    any("Create"),
    only("Publisher", "@UDSetup"),
    only("Mode", "2"),
    any("JobName"),
    only("SaveJobData", "0"),
    only("PublishID", ""),
    only("Silent", "0"),
    heading(""),
    heading("[Print]"),
    any("PrintMode"),
    any("DataPath"),
    only("DryingTime", "0"),
    only("PrintQuality", "0"),
}};

using Form = std::array<FormLine, 20>;
using Values = std::array<std::string, FORM.size()>;

/// The text that registers a maintenance job on a server. The ids of the job and of the publisher are empty.
constexpr Form SERVER_FORM = [] {
    Form form = FORM;
    form[1] = only("Version", "0x01030000");
    form[ID] = only("ID", "");
    form[PUBLISHER_ID] = only("PublisherID", "");
    return form;
}();
constexpr char SERVER_CLEANING_MODE[] = "4";
constexpr char SERVER_NOZZLE_CHECK_MODE[] = "5";

std::string atLine(size_t index, const std::string& what)
{
    return "line " + std::to_string(index + 1) + ": " + what;
}

std::string inQuotes(std::string_view text)
{
    return "\"" + printable(text) + "\"";
}

bool isControl(char c)
{
    return static_cast<unsigned char>(c) < ' ' || c == 0x7F;
}

/// Returns the mistake in a line. If there is none, returns an empty text and sets `value`.
std::string readLine(const FormLine& form, const std::string& line, std::string& value)
{
    if (std::any_of(line.begin(), line.end(), isControl)) {
        return "a control character";
    }
    if (!form.hasValue) {
        return line == form.text ? "" : inQuotes(form.text) + " expected, not " + inQuotes(line);
    }
    const std::string start = std::string(form.text) + " = ";
    if (!line.starts_with(start)) {
        return inQuotes(start) + " expected, not " + inQuotes(line);
    }
    value = line.substr(start.size());
    if (form.value.data() != nullptr && value != form.value) {
        return std::string(form.text) + " is " + inQuotes(value) + ", not " + inQuotes(form.value);
    }
    return {};
}

std::optional<Values> readValues(const Form& form, std::string_view text, std::string& error)
{
    Values values;
    const std::vector<std::string> lines = splitLines(text);
    for (size_t i = 0; i < form.size(); ++i) {
        if (i == lines.size()) {
            error = atLine(i, "the file ends here");
            return std::nullopt;
        }
        if (const std::string mistake = readLine(form[i], lines[i], values[i]); !mistake.empty()) {
            error = atLine(i, mistake);
            return std::nullopt;
        }
    }
    if (lines.size() > form.size()) {
        error = atLine(form.size(), "more than the job");
        return std::nullopt;
    }
    return values;
}

/// Returns the local time in an id, in seconds as if it were UTC; nothing if the id is invalid.
std::optional<int64_t> timeOfId(std::string_view id)
{
    constexpr std::string_view PREFIX = "LOCALHOST_";
    constexpr std::string_view SUFFIX = "_UDSetup_0000";
    constexpr size_t STAMP = 17; // year to millisecond

    if (id.size() != PREFIX.size() + STAMP + SUFFIX.size() || !id.starts_with(PREFIX) ||
        !id.ends_with(SUFFIX)) {
        return std::nullopt;
    }
    const std::string_view stamp = id.substr(PREFIX.size(), STAMP);
    if (stamp.find_first_not_of("0123456789") != std::string_view::npos) {
        return std::nullopt;
    }
    const auto part = [&](size_t from, size_t digits) {
        return static_cast<int>(*parseNumber(stamp.substr(from, digits), 9999));
    };
    std::tm date{};
    date.tm_year = part(0, 4) - 1900;
    date.tm_mon = part(4, 2) - 1;
    date.tm_mday = part(6, 2);
    date.tm_hour = part(8, 2);
    date.tm_min = part(10, 2);
    date.tm_sec = part(12, 2);
    const std::tm written = date;
    const int64_t seconds = ::timegm(&date);
    // timegm() normalises a date that does not exist to another date.
    const bool exists = date.tm_year == written.tm_year && date.tm_mon == written.tm_mon &&
                        date.tm_mday == written.tm_mday && date.tm_hour == written.tm_hour &&
                        date.tm_min == written.tm_min && date.tm_sec == written.tm_sec;
    return exists ? std::optional(seconds) : std::nullopt;
}

/// Returns whether "Create" is the time of the id, within a day, because the time zone of the id is unknown.
bool isCreatedAt(std::string_view value, int64_t idTime)
{
    constexpr int64_t A_DAY = 86'400;
    const auto created = value.starts_with("0x") ? std::nullopt : parseNumber(value, INT32_MAX * uint64_t{2});
    if (!created) {
        return false;
    }
    const int64_t difference = static_cast<int64_t>(*created) - idTime;
    return difference >= -A_DAY && difference <= A_DAY;
}

std::string wrongValue(size_t line, const Values& values, const std::string& wanted)
{
    return atLine(line, std::string(FORM[line].text) + " is " + inQuotes(values[line]) + ", not " + wanted);
}

/// Returns the stacker number of "Load" or "Eject"; nothing if it is invalid.
std::optional<int> stackerOf(const std::string& value)
{
    if (value == "-1") {
        return NO_STACKER;
    }
    return value.size() == 1 && value[0] >= '0' && value[0] <= '3' ? std::optional(value[0] - '0')
                                                                   : std::nullopt;
}

/// Returns whether "Eject" of a nozzle check matches the settings. In output mode, a machine without a fourth
/// stacker has one output, which may be the third or the fourth stacker in the settings.
bool fitsEject(int eject, const Setting& setting, const Model& model)
{
    constexpr int STACKERS_2_AND_3 = 0;
    constexpr int THE_FOURTH = 2;
    constexpr int THE_THIRD = 3;
    constexpr unsigned ALL_STACKERS = 4;
    if (setting.mode == mode::BATCH) {
        return eject == STACKERS_2_AND_3;
    }
    if (setting.mode != mode::OUTPUT) {
        return eject == THE_FOURTH;
    }
    if (model.stackers < ALL_STACKERS) {
        return eject == THE_THIRD || eject == THE_FOURTH;
    }
    return eject == (setting.media[2] != media::NOT_USED ? THE_THIRD : THE_FOURTH);
}

} // namespace

bool isWholeJobFile(std::string_view text)
{
    constexpr std::string_view LAST = "\nPrintQuality = ";
    const size_t last = text.rfind(LAST);
    return last != std::string_view::npos && text.find('\n', last + LAST.size()) == text.size() - 1;
}

std::optional<JobFile> parseJobFile(std::string_view text, std::string& error)
{
    if (text.empty()) {
        error = "the file is empty";
        return std::nullopt;
    }
    if (text.back() != '\n') {
        error = "the last line has no end";
        return std::nullopt;
    }
    const auto read = readValues(FORM, text, error);
    if (!read) {
        return std::nullopt;
    }
    const Values& values = *read;
    const auto idTime = timeOfId(values[ID]);
    const auto load = stackerOf(values[LOAD]);
    const auto eject = stackerOf(values[EJECT]);
    const bool cleaning = values[PRINT_MODE] == CLEANING_MODE;
    if (!idTime) {
        error = atLine(ID, inQuotes(values[ID]) + " is no job id");
    } else if (values[PUBLISHER_ID].empty()) {
        error = atLine(PUBLISHER_ID, "no publisher");
    } else if (!cleaning && values[PRINT_MODE] != NOZZLE_CHECK_MODE) {
        error = wrongValue(PRINT_MODE, values, "3 or 4");
    } else if (values[COUNT] != (cleaning ? "0" : "1")) {
        error = wrongValue(COUNT, values, cleaning ? "0" : "1");
    } else if (!isCreatedAt(values[CREATE], *idTime)) {
        error = wrongValue(CREATE, values, "the time of the ID");
    } else if (values[JOB_NAME] != (cleaning ? "Head Cleaning" : "Nozzle Check")) {
        error = wrongValue(JOB_NAME, values, cleaning ? "\"Head Cleaning\"" : "\"Nozzle Check\"");
    } else if (!load) {
        error = wrongValue(LOAD, values, "a stacker");
    } else if (!eject) {
        error = wrongValue(EJECT, values, "a stacker");
    } else if (!values[DATA_PATH].starts_with("/")) {
        error = wrongValue(DATA_PATH, values, "a path from the root");
    } else {
        return JobFile{values[ID], values[PUBLISHER_ID], values[DATA_PATH], cleaning, *load,
                       *eject,     values[JOB_NAME]};
    }
    return std::nullopt;
}

std::optional<JobFile> parseServerJob(std::string_view text, std::string& error)
{
    const auto read = readValues(SERVER_FORM, text, error);
    if (!read) {
        return std::nullopt;
    }
    const Values& values = *read;
    const auto load = stackerOf(values[LOAD]);
    const auto eject = stackerOf(values[EJECT]);
    const bool cleaning = values[PRINT_MODE] == SERVER_CLEANING_MODE;
    if (!cleaning && values[PRINT_MODE] != SERVER_NOZZLE_CHECK_MODE) {
        error = wrongValue(PRINT_MODE, values, "4 or 5");
    } else if (values[COUNT] != (cleaning ? "0" : "1")) {
        error = wrongValue(COUNT, values, cleaning ? "0" : "1");
    } else if (values[JOB_NAME].empty()) {
        error = atLine(JOB_NAME, "no name");
    } else if (!load) {
        error = wrongValue(LOAD, values, "a stacker");
    } else if (!eject) {
        error = wrongValue(EJECT, values, "a stacker");
    } else {
        return JobFile{{}, {}, values[DATA_PATH], cleaning, *load, *eject, values[JOB_NAME]};
    }
    return std::nullopt;
}

std::string routeRefusalOf(const JobFile& job, const Setting& setting, const Model& model)
{
    const int load = job.cleaning ? NO_STACKER : 1;
    if (job.load != load) {
        return "Load is " + std::to_string(job.load) + ", not " + std::to_string(load);
    }
    if (job.cleaning ? job.eject != NO_STACKER : !fitsEject(job.eject, setting, model)) {
        return "Eject " + std::to_string(job.eject) + " does not fit publish mode " +
               std::to_string(setting.mode);
    }
    return {};
}

std::string refusalOf(const JobFile& job, const Setting& setting, const Model& model)
{
    if (std::string refusal = routeRefusalOf(job, setting, model); !refusal.empty()) {
        return refusal;
    }
    struct stat data{};
    if (::stat(job.dataPath.c_str(), &data) != 0) {
        return "there is no print data " + inQuotes(job.dataPath);
    }
    if (!S_ISREG(data.st_mode)) {
        return "the print data " + inQuotes(job.dataPath) + " is no file";
    }
    return data.st_size > 0 ? "" : "the print data " + inQuotes(job.dataPath) + " is empty";
}

JobSetup setupOf(const JobFile& job)
{
    if (job.cleaning) {
        return JobSetup::cleaning(job.id);
    }
    constexpr std::array<uint64_t, 4> DESTINATIONS{STACKER2 | STACKER3, STACKER2, STACKER4, STACKER3};
    return JobSetup::nozzleCheck(job.id, DESTINATIONS.at(static_cast<size_t>(job.eject)));
}

std::string printable(std::string_view text)
{
    constexpr size_t LONGEST = 80;
    std::string line(text.substr(0, LONGEST));
    std::replace_if(
        line.begin(), line.end(),
        [](char c) { return isControl(c) || static_cast<unsigned char>(c) >= 0x80; }, '?');
    return text.size() > LONGEST ? line + "..." : line;
}

} // namespace udsim

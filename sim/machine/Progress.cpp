#include "Progress.h"

#include <algorithm>

#include <glib.h>

#include "Protocol.h"

namespace udsim {

namespace {

constexpr size_t WIDEST_NAME = 18;
constexpr size_t WIDEST_JOB = 24;
constexpr size_t WIDEST_STATE = 13;
constexpr size_t WIDEST_BAR = 30;
constexpr size_t NARROWEST_BAR = 5;
constexpr size_t PERCENT = 4;
constexpr char GAP[] = "  ";
constexpr size_t GAP_WIDTH = sizeof GAP - 1;
constexpr char DOTS[] = "...";
constexpr size_t DOTS_WIDTH = sizeof DOTS - 1;

const char* nameOf(Phase phase)
{
    switch (phase) {
    case Phase::conveying:
        return "conveying";
    case Phase::writing:
        return "writing";
    case Phase::verifying:
        return "verifying";
    case Phase::printing:
        return "printing";
    case Phase::cleaning:
        return "cleaning";
    case Phase::idle:
        break;
    }
    return "running";
}

std::string stateOf(const Publisher& publisher, const Job& job)
{
    if (!publisher.connected()) {
        return "not connected";
    }
    if (publisher.hindrance() != 0) {
        return "error " + std::to_string(publisher.hindrance());
    }
    switch (job.status) {
    case job_status::CANCEL_PENDING:
        return "cancelling";
    case job_status::PAUSE_PENDING:
        return "pausing";
    case job_status::STOP_PENDING:
        return "stopping";
    case job_status::PAUSED:
        return "paused";
    default:
        return nameOf(publisher.phase());
    }
}

size_t widthOf(gunichar c)
{
    return g_unichar_iszerowidth(c) != 0 ? 0 : g_unichar_iswide(c) != 0 ? 2 : 1;
}

/// Returns the text as valid UTF-8, with each control character replaced by '?'.
std::string shown(const std::string& text)
{
    gchar* const valid = g_utf8_make_valid(text.c_str(), -1);
    std::string result;
    for (const gchar* at = valid; *at != '\0'; at = g_utf8_find_next_char(at, nullptr)) {
        if (g_unichar_iscntrl(g_utf8_get_char(at)) != 0) {
            result += '?';
        } else {
            result.append(at, static_cast<size_t>(g_utf8_find_next_char(at, nullptr) - at));
        }
    }
    g_free(valid);
    return result;
}

/// Returns the beginning that fits into `columns`; `taken` receives the columns that it occupies.
std::string beginning(const std::string& text, size_t columns, size_t& taken)
{
    taken = 0;
    const gchar* at = text.c_str();
    while (*at != '\0' && taken + widthOf(g_utf8_get_char(at)) <= columns) {
        taken += widthOf(g_utf8_get_char(at));
        at = g_utf8_find_next_char(at, nullptr);
    }
    return text.substr(0, static_cast<size_t>(at - text.c_str()));
}

std::string discText(const JobProgress& job)
{
    return job.discs == 0 ? "" : "disc " + std::to_string(job.disc) + " of " + std::to_string(job.discs);
}

std::string bar(uint32_t percent, size_t columns)
{
    const size_t inside = columns - 2;
    const size_t done = inside * percent / 100;
    return "[" + std::string(done, '#') + std::string(inside - done, '-') + "]";
}

std::string rightAligned(const std::string& text, size_t columns)
{
    return std::string(columns - std::min(columns, text.size()), ' ') + text;
}

} // namespace

std::optional<JobProgress> progressOf(const Publisher& publisher)
{
    const auto job = std::find_if(publisher.jobs().begin(), publisher.jobs().end(), [](const Job& one) {
        return one.isUnderWay() || one.status == job_status::PAUSED;
    });
    if (job == publisher.jobs().end()) {
        return std::nullopt;
    }
    const uint64_t rounds = std::max<uint32_t>(1, job->rounds());
    const uint64_t round = std::max<uint64_t>(1, job->roundTime);
    const uint64_t spent = job->completed * round + std::min(job->discTime, round);
    JobProgress progress{publisher.state().shownName, job->name, 0, 0, 0, stateOf(publisher, *job)};
    progress.percent = static_cast<uint32_t>(std::min<uint64_t>(100, spent * 100 / (rounds * round)));
    if (!job->isCleaning()) {
        progress.discs = job->copies;
        progress.disc = std::min(job->completed + 1, job->copies);
    }
    return progress;
}

std::vector<std::string> progressLines(const std::vector<JobProgress>& jobs, size_t width, size_t height)
{
    size_t name = 0;
    size_t title = 0;
    size_t disc = 0;
    for (const JobProgress& job : jobs) {
        name = std::max(name, std::min(WIDEST_NAME, columnsOf(job.publisher)));
        title = std::max(title, std::min(WIDEST_JOB, columnsOf(job.job)));
        disc = std::max(disc, discText(job).size());
    }
    const size_t columns = width > 0 ? width - 1 : 0; // some terminals wrap after the last column
    const size_t texts = name + title + disc + PERCENT + WIDEST_STATE + 5 * GAP_WIDTH;
    const size_t barWidth = columns > texts ? std::min(WIDEST_BAR, columns - texts) : 0;
    const size_t shownJobs = jobs.size() <= height ? jobs.size() : std::max<size_t>(height, 1) - 1;
    std::vector<std::string> lines;
    for (size_t i = 0; i < shownJobs; ++i) {
        const JobProgress& job = jobs[i];
        std::string line =
            fit(job.publisher, name) + GAP + fit(job.job, title) + GAP + fit(discText(job), disc);
        if (barWidth >= NARROWEST_BAR) {
            line += GAP + bar(job.percent, barWidth);
        }
        line += GAP + rightAligned(std::to_string(job.percent) + "%", PERCENT) + GAP + job.state;
        lines.push_back(fit(line, std::min(columns, columnsOf(line))));
    }
    if (shownJobs < jobs.size() && height > 0) {
        const std::string rest = "and " + std::to_string(jobs.size() - shownJobs) + " more";
        lines.push_back(fit(rest, std::min(columns, rest.size())));
    }
    return lines;
}

size_t columnsOf(const std::string& text)
{
    size_t columns = 0;
    beginning(shown(text), SIZE_MAX, columns);
    return columns;
}

std::string fit(const std::string& text, size_t columns)
{
    std::string whole = shown(text);
    size_t taken = 0;
    std::string kept = beginning(whole, columns, taken);
    if (kept.size() < whole.size() && columns > DOTS_WIDTH) {
        kept = beginning(whole, columns - DOTS_WIDTH, taken) + DOTS;
        taken += DOTS_WIDTH;
    }
    return kept + std::string(columns - taken, ' ');
}

} // namespace udsim

// Queries many publishers at the same time.
//
// Each publisher is queried by a process of its own. A process that exceeds the time limit is killed, so a
// hung service or server delays neither another publisher nor the end of the program, and no thread is left
// behind. A reply on which the publisher manager stops the process ends the query of that publisher only.
#pragma once

#include "PublisherReport.h"

#include <chrono>
#include <functional>
#include <vector>

/// At most this many queries run at once; the others wait for a free place.
constexpr size_t mostQueries = 64;

struct SurveyOptions
{
    bool details = false;
    std::chrono::milliseconds timeout{}; ///< for each publisher, from the start of its query
    int interruption = -1;               ///< a descriptor; `interrupted` is called once it is readable

    /// Handles the interruption. Returns false to end the survey. The time it takes, for example while the
    /// program is suspended, does not count for the time limits.
    std::function<bool()> interrupted{};
    /// Called with the indices of reports that have just become final. Returns false to end the survey.
    std::function<bool(const std::vector<size_t>&)> finished{};
};

/// Fills in the reports, which come from registeredPublishers. Returns false if it was ended early; some
/// reports are then incomplete. The program must have no other thread.
bool surveyPublishers(const SurveyOptions& options, std::vector<PublisherReport>& reports);

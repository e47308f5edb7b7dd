// Times of interleaved repetitions, compared by their medians.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

/// One of the implementations that are compared.
struct Contender
{
    std::string name;
    std::function<void()> run;
    std::vector<double> microseconds;

    double Median()
    {
        const auto middle = microseconds.begin() + static_cast<std::ptrdiff_t>(microseconds.size() / 2);
        std::nth_element(microseconds.begin(), middle, microseconds.end());
        return *middle;
    }
};

/// Runs all contenders in turn, `repetitions` times, so that a slow phase of the machine affects all of them.
/// Then prints the medians, and their ratios to the last contender. Returns the medians in microseconds, in
/// order.
inline std::vector<double> Compare(const std::string& what, std::vector<Contender> contenders,
                                   int repetitions)
{
    for (int round = -1; round < repetitions; ++round) { // the first one warms up
        for (Contender& contender : contenders) {
            const auto start = std::chrono::steady_clock::now();
            contender.run();
            const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
            if (round >= 0) {
                contender.microseconds.push_back(time.count());
            }
        }
    }
    std::printf("%s (medians of %d interleaved repetitions)\n", what.c_str(), repetitions);
    const double reference = contenders.back().Median();
    std::vector<double> medians;
    for (Contender& contender : contenders) {
        const double median = contender.Median();
        medians.push_back(median);
        std::printf("  %-58s %12.1f us   %7.3f x\n", contender.name.c_str(), median, median / reference);
    }
    return medians;
}

/// Prints a line of the table of goals: the measured value and its maximum.
inline void PrintGoal(const std::string& work, double measured, double goal, const char* unit)
{
    std::printf("  goal: %-52s %8.2f %-2s of at most %6.2f %-2s %s\n", work.c_str(), measured, unit, goal,
                unit, measured <= goal ? "reached" : "MISSED");
}

/// As PrintGoal, for the result of Compare: the ratio of the first contender to the last.
inline void PrintRatioGoal(const std::string& work, const std::vector<double>& medians, double goal)
{
    PrintGoal(work, medians.front() / medians.back(), goal, "x");
}

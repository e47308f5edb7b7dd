// The threshold ranges of monitoring plug-ins.
#pragma once

#include <QString>

#include <limits>
#include <optional>

/// A range such as "10" (0 to 10), "10:" (10 and more), "~:10" (10 and less), "10:20", or "@10:20", which
/// alerts inside instead of outside. Both ends belong to the range.
struct Threshold
{
    double low = 0;
    double high = std::numeric_limits<double>::infinity();
    bool alertsInside = false;
    QString text; ///< as it was typed

    bool alerts(double value) const;
    /// Empty if the text is no range.
    static std::optional<Threshold> parse(const QString& text);
};

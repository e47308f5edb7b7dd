#include "Thresholds.h"

#include <cmath>

namespace {

/// A decimal number without an exponent; C locale.
std::optional<double> number(const QString& text)
{
    bool valid = !text.isEmpty();
    for (const QChar character : text) {
        const ushort code = character.unicode();
        valid = valid && ((code >= '0' && code <= '9') || code == '.' || code == '-' || code == '+');
    }
    const double value = valid ? text.toDouble(&valid) : 0;
    return valid ? std::optional<double>(value) : std::nullopt;
}

} // namespace

bool Threshold::alerts(double value) const
{
    const bool inside = value >= low && value <= high;
    return inside == alertsInside;
}

std::optional<Threshold> Threshold::parse(const QString& text)
{
    Threshold range;
    range.text = text;
    QString rest = text;
    if (rest.startsWith(QLatin1Char('@'))) {
        range.alertsInside = true;
        rest.remove(0, 1);
    }
    const auto colon = rest.indexOf(QLatin1Char(':'));
    const QString high = rest.mid(colon + 1);
    if (colon > 0) {
        const QString low = rest.left(colon);
        const std::optional<double> value =
            low == QLatin1String("~") ? -std::numeric_limits<double>::infinity() : number(low);
        if (!value) {
            return std::nullopt;
        }
        range.low = *value;
    }
    if (!high.isEmpty() || colon < 0) {
        const std::optional<double> value = number(high);
        if (!value) {
            return std::nullopt;
        }
        range.high = *value;
    }
    const bool isEmpty = colon == 0 && high.isEmpty();
    return isEmpty || range.low > range.high ? std::nullopt : std::optional<Threshold>(range);
}

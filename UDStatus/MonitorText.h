// The line of a monitoring plug-in.
#pragma once

#include "Options.h"
#include "PublisherReport.h"

/// The exit codes of monitoring plug-ins.
enum class MonitorState : int
{
    ok = 0,
    warning = 1,
    critical = 2,
    unknown = 3
};

struct MonitorResult
{
    MonitorState state = MonitorState::unknown;
    QString line; ///< "STATE - text | performance data", without a line end
};

/// The worst state decides: CRITICAL, then UNKNOWN, then WARNING. A publisher that is not ready is CRITICAL;
/// one whose setting file vanished, or that gave no answer, or not the values of a threshold, is UNKNOWN, as
/// is each of `unreadable`: the regist ids whose setting files cannot be read. With a threshold, a removed
/// ink cartridge and an input stacker with too many discs are CRITICAL, and other states without a number
/// UNKNOWN. Never translated.
MonitorResult monitorResult(const std::vector<PublisherReport>& reports, const Alerts& ink,
                            const Alerts& discs, const std::vector<QByteArray>& unreadable = {});

/// The result if nothing could be checked.
MonitorResult monitorFailure(const QString& reason);

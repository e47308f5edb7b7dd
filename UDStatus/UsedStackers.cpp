#include "UsedStackers.h"

#include "PropertyRows.h"
#include "StackerRules.h"

namespace {

using Holds = std::optional<quint32>; ///< enOrlaStackerDiscType; empty: unknown

constexpr Holds output = PUBMGR_STACKERDISCTYPE_OUTPUT;
constexpr Holds input = PUBMGR_STACKERDISCTYPE_INPUT;
constexpr Holds notUsed = PUBMGR_STACKERDISCTYPE_NOTUSE;

/// A stacker that supplies jobs: a medium, or INPUT for any disc.
Holds source(UINT value)
{
    const bool holdsDiscs = value == PUBMGR_STACKERDISCTYPE_INPUT ||
                            (value >= PUBMGR_STACKERDISCTYPE_CDR && value <= PUBMGR_STACKERDISCTYPE_BDRQL);
    return holdsDiscs ? Holds(value) : std::nullopt;
}

/// A stacker that takes finished discs, or is not used.
Holds finished(UINT value)
{
    const bool known = value == PUBMGR_STACKERDISCTYPE_OUTPUT || value == PUBMGR_STACKERDISCTYPE_NOTUSE;
    return known ? Holds(value) : std::nullopt;
}

/// A stacker whose role the mode does not determine.
Holds any(UINT value)
{
    return value == PUBMGR_STACKERDISCTYPE_OUTPUT || value == PUBMGR_STACKERDISCTYPE_NOTUSE ? Holds(value)
                                                                                            : source(value);
}

struct Roles
{
    std::array<Holds, stackerCount> holds;
    std::array<bool, 2> input; ///< of stackers 1 and 2
};

/// By the publish mode alone.
Roles rolesOf(const PUBLISHERINFO& info)
{
    const UINT one = info.uiStacker1DiscType;
    const UINT two = info.uiStacker2DiscType;
    const Holds three = finished(info.uiStacker3DiscType);
    const Holds four = finished(info.uiStacker4DiscType);
    switch (info.uiPublishMode) {
    case PUBMGR_PUBLISHMODE_NORMAL:
        return {{source(one), output, three, four}, {true, false}};
    case PUBMGR_PUBLISHMODE_BATCH:
        return {{source(one), two == PUBMGR_STACKERDISCTYPE_INPUT ? input : source(one), output, notUsed},
                {true, true}};
    case PUBMGR_PUBLISHMODE_OUTPUT:
        return {{source(one), source(two), three, four}, {true, true}};
    case PUBMGR_PUBLISHMODE_ERRORRATE:
    case PUBMGR_PUBLISHMODE_READ:
        return {{input, output, three, four}, {true, false}};
    default:
        return {{any(one), any(two), three, four}, {source(one).has_value(), source(two).has_value()}};
    }
}

} // namespace

std::vector<StackerReport> usedStackers(quint32 devType, const PUBLISHERINFO& info,
                                        const StackerCounts& counts)
{
    const PublisherModel* model = FindModel(devType);
    const Roles roles = rolesOf(info);
    std::vector<StackerReport> stackers;
    for (size_t i = 0; i < stackerCount; ++i) {
        const bool exists = (i != 2 || propertyRows(modelFamily(devType)).stacker3) &&
                            (i != 3 || model == nullptr || model->bStacker4);
        if (exists && roles.holds[i] != notUsed) {
            stackers.push_back({.number = static_cast<quint32>(i + 1),
                                .holds = roles.holds[i],
                                .input = i < roles.input.size() && roles.input[i],
                                .discs = counts[i]});
        }
    }
    return stackers;
}

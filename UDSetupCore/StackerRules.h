// What the publish mode and the model mean for the stackers of a publisher.
#pragma once

#include "ModelTable.h"

#include <optional>

/// `modelType` is an enPublisherType.
ModelFamily modelFamily(UINT modelType);

/// The model as which the property dialog shows this one: itself, or one of its family.
UINT modelSetUpAs(UINT modelType);

/// Whether the drives write BD-R XL. `netPublisherType` is an enNetworkPublisherType.
bool writesBdXl(UINT modelType, UINT netPublisherType);

/// Whether the property dialog fills in the version of drive 2.
bool showsDrive2Version(UINT modelType);

/// The resource with the picture of the discs' way, or null for a mode that has none. `usesStacker3` counts
/// where a stacker 3 can be chosen.
const char* stackerPicture(UINT publishMode, ModelFamily family, bool usesStacker3);

/// How stacker 2 is tied to the publish mode.
enum class Stacker2Rule
{
    output,          ///< takes the finished discs, and nothing else is offered
    followsStacker1, ///< holds the same media
    freeMedia        ///< holds media of its own, and takes no finished discs
};

/// What a change of the settings demands. An empty value is left as it is.
struct StackerDemand
{
    Stacker2Rule stacker2 = Stacker2Rule::output;
    std::optional<UINT> stacker3; ///< enOrlaStackerDiscType
    std::optional<bool> stacker3Enabled;
};

/// `publishMode` is one that can be chosen: normal, batch or output. `stacker3Changed`: the change was one of
/// stacker 3, which output mode then lets stand. A combination that no user can bring about stops the
/// process: an unknown model in normal or output mode, and a network publisher whose stacker 3 changes in
/// output mode.
StackerDemand stackerDemand(UINT publishMode, ModelFamily family, bool stacker3Changed);

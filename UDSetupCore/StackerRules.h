// How the publish mode and the model determine the stackers of a publisher.
#pragma once

#include "ModelTable.h"

#include <optional>

/// `modelType` is an enPublisherType.
ModelFamily modelFamily(UINT modelType);

/// The model that the property dialog shows in place of this one: itself, or another of its family.
UINT modelSetUpAs(UINT modelType);

/// Whether the drives write BD-R XL. `netPublisherType` is an enNetworkPublisherType.
bool writesBdXl(UINT modelType, UINT netPublisherType);

/// Whether the property dialog fills in the version of drive 2.
bool showsDrive2Version(UINT modelType);

/// The resource path of the picture that shows the path of the discs; null if the mode has none.
/// `usesStacker3` applies only where stacker 3 can be chosen.
const char* stackerPicture(UINT publishMode, ModelFamily family, bool usesStacker3);

/// How the publish mode determines stacker 2.
enum class Stacker2Rule
{
    output,          ///< takes the finished discs; the only choice
    followsStacker1, ///< holds the same media
    freeMedia        ///< holds media chosen separately; takes no finished discs
};

/// The adjustments that a change of the settings requires. Empty means no change.
struct StackerDemand
{
    Stacker2Rule stacker2 = Stacker2Rule::output;
    std::optional<UINT> stacker3; ///< enOrlaStackerDiscType
    std::optional<bool> stacker3Enabled;
};

/// `publishMode` must be selectable: normal, batch or output. `stacker3Changed` means that the user changed
/// stacker 3; output mode then keeps it. Combinations that the user interface cannot produce abort the
/// process: an unknown model in normal or output mode, and a network publisher whose stacker 3 changes in
/// output mode.
StackerDemand stackerDemand(UINT publishMode, ModelFamily family, bool stacker3Changed);

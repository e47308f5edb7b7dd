#include "StackerRules.h"

namespace {

StackerDemand normalDemand(ModelFamily family)
{
    ASSERT(family != ModelFamily::unknown);
    if (family == ModelFamily::rt30) {
        return {Stacker2Rule::output, PUBMGR_STACKERDISCTYPE_NOTUSE, false};
    }
    return {Stacker2Rule::output, {}, true};
}

StackerDemand outputDemand(ModelFamily family, bool stacker3Changed)
{
    ASSERT(family != ModelFamily::unknown);
    if (stacker3Changed) {
        ASSERT(family != ModelFamily::network);
        return {Stacker2Rule::freeMedia, {}, {}};
    }
    return {Stacker2Rule::freeMedia, PUBMGR_STACKERDISCTYPE_NOTUSE, true};
}

} // namespace

ModelFamily modelFamily(UINT modelType)
{
    const PublisherModel* model = FindModel(modelType);
    return model ? model->family : ModelFamily::unknown;
}

UINT modelSetUpAs(UINT modelType)
{
    const PublisherModel* model = FindModel(modelType);
    return model ? model->uiSetUpAs : modelType;
}

bool writesBdXl(UINT modelType, UINT netPublisherType)
{
    const PublisherModel* model = FindModel(modelType);
    const NetworkModel* server = FindNetworkModel(netPublisherType);
    return (model && model->WritesBDXL()) || (server && server->bWritesBDXL);
}

bool showsDrive2Version(UINT modelType)
{
    const PublisherModel* model = FindModel(modelType);
    return !model || model->bShowsDrive2Version;
}

const char* stackerPicture(UINT publishMode, ModelFamily family, bool usesStacker3)
{
    const bool one = family == ModelFamily::rt30;
    switch (publishMode) {
    case PUBMGR_PUBLISHMODE_NORMAL:
        return one ? ":/res/A11-7.png" : usesStacker3 ? ":/res/A11-9.png" : ":/res/A11-1.png";
    case PUBMGR_PUBLISHMODE_BATCH:
        return ":/res/A11-3.png";
    case PUBMGR_PUBLISHMODE_OUTPUT:
        return one ? ":/res/A11-6.png" : usesStacker3 ? ":/res/A11-5.png" : ":/res/A11-2.png";
    default:
        return nullptr;
    }
}

StackerDemand stackerDemand(UINT publishMode, ModelFamily family, bool stacker3Changed)
{
    switch (publishMode) {
    case PUBMGR_PUBLISHMODE_BATCH:
        return {Stacker2Rule::followsStacker1, PUBMGR_STACKERDISCTYPE_OUTPUT, false};
    case PUBMGR_PUBLISHMODE_OUTPUT:
        return outputDemand(family, stacker3Changed);
    default:
        return normalDemand(family);
    }
}

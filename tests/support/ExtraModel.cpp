#include "ExtraModel.h"

#include "ModelClasses.h"

#include <vector>

// The linker option --wrap redirects calls of the first function in other objects to the second.
std::span<const PublisherModel> ProductModels() asm("__real__Z15PublisherModelsv");
std::span<const PublisherModel> ModelsWithOneMore() asm("__wrap__Z15PublisherModelsv");

std::span<const PublisherModel> ModelsWithOneMore()
{
    static const std::vector<PublisherModel> models = [] {
        const auto product = ProductModels();
        std::vector<PublisherModel> rows(product.begin(), product.end());
        rows.push_back({.uiType = EXTRA_MODEL,
                        .deviceCodes = {EXTRA_MODEL_FAMILY_CODE, EXTRA_MODEL},
                        .family = ModelFamily::rt30,
                        .szName = EXTRA_MODEL_NAME,
                        .nDrives = 1,
                        .bStacker4 = false,
                        .publishModes = {PUBMGR_PUBLISHMODE_NORMAL, PUBMGR_PUBLISHMODE_LOWVOLUME,
                                         PUBMGR_PUBLISHMODE_ERRORRATE, PUBMGR_PUBLISHMODE_READ},
                        .discTypes = {PUBMGR_STACKERDISCTYPE_CDR, PUBMGR_STACKERDISCTYPE_BDR,
                                      PUBMGR_STACKERDISCTYPE_BDRTL, PUBMGR_STACKERDISCTYPE_BDRQL},
                        .pCreate = CreateModel<CModelPublisherMgr<CSDPublisherMgr, EXTRA_MODEL>>});
        return rows;
    }();
    return models;
}

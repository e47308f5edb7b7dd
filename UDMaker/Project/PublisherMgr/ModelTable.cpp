#include "ModelTable.h"

#include "APPublisherMgr.h"
#include "ModelClasses.h"
#include "NetworkPublisherMgr.h"

namespace {

constexpr NumberSet ONE_DRIVE_MODES = {PUBMGR_PUBLISHMODE_NORMAL, PUBMGR_PUBLISHMODE_LOWVOLUME,
                                       PUBMGR_PUBLISHMODE_READ};
constexpr NumberSet TWO_DRIVE_MODES = {PUBMGR_PUBLISHMODE_NORMAL, PUBMGR_PUBLISHMODE_BATCH,
                                       PUBMGR_PUBLISHMODE_OUTPUT, PUBMGR_PUBLISHMODE_READ};

constexpr NumberSet DVD_DISCS = {PUBMGR_STACKERDISCTYPE_CDR, PUBMGR_STACKERDISCTYPE_DVDR,
                                 PUBMGR_STACKERDISCTYPE_DVDRDL};
constexpr NumberSet BD_DISCS = {PUBMGR_STACKERDISCTYPE_CDR, PUBMGR_STACKERDISCTYPE_DVDR,
                                PUBMGR_STACKERDISCTYPE_DVDRDL, PUBMGR_STACKERDISCTYPE_BDR,
                                PUBMGR_STACKERDISCTYPE_BDRDL};
constexpr NumberSet BDXL_DISCS = {PUBMGR_STACKERDISCTYPE_CDR,    PUBMGR_STACKERDISCTYPE_DVDR,
                                  PUBMGR_STACKERDISCTYPE_DVDRDL, PUBMGR_STACKERDISCTYPE_BDR,
                                  PUBMGR_STACKERDISCTYPE_BDRDL,  PUBMGR_STACKERDISCTYPE_BDRTL,
                                  PUBMGR_STACKERDISCTYPE_BDRQL};

constexpr PublisherModel PUBLISHER_MODELS[] = {
    // Serves every local publisher whose model is unknown.
    {.uiType = PUBMGR_PUBLISHERTYPE_BASIC,
     .publishModes = {PUBMGR_PUBLISHMODE_NORMAL, PUBMGR_PUBLISHMODE_BATCH, PUBMGR_PUBLISHMODE_OUTPUT},
     .discTypes = DVD_DISCS,
     .pCreate = CreateModel<CBasicPublisherMgr>},
    // The displayed name comes from NETWORK_MODELS, the settings from the server.
    {.uiType = PUBMGR_PUBLISHERTYPE_NETWORK,
     .family = ModelFamily::network,
     .bDriveSettings = false,
     .pCreate = CreateModel<CNetworkPublisherMgr>},
    {.uiType = PUBMGR_PUBLISHERTYPE_AP,
     .deviceCodes = {REG_PUB_DEVICE_DPTYPE_AP},
     .nDrives = 0,
     .bDriveSettings = false,
     .publishModes = TWO_DRIVE_MODES,
     .discTypes = DVD_DISCS,
     .pCreate = CreateModel<CAPPublisherMgr>},
    {.uiType = PUBMGR_PUBLISHERTYPE_SD,
     .deviceCodes = {REG_PUB_DEVICE_DPTYPE_SD},
     .nDrives = 1,
     .bStacker4 = false,
     .publishModes = {PUBMGR_PUBLISHMODE_NORMAL, PUBMGR_PUBLISHMODE_LOWVOLUME},
     .discTypes = DVD_DISCS,
     .pCreate = CreateModel<CSDPublisherMgr>},
    {.uiType = PUBMGR_PUBLISHERTYPE_30BD,
     .deviceCodes = {REG_PUB_DEVICE_DPTYPE_30BD},
     .nDrives = 1,
     .bStacker4 = false,
     .publishModes = ONE_DRIVE_MODES,
     .discTypes = BD_DISCS,
     .pCreate = CreateModel<C30BDPublisherMgr>},
    {.uiType = PUBMGR_PUBLISHERTYPE_300MOD,
     .deviceCodes = {REG_PUB_DEVICE_DPTYPE_300MOD, PUBMGR_PUBLISHERTYPE_300MOD},
     .publishModes = TWO_DRIVE_MODES,
     .discTypes = DVD_DISCS,
     .pCreate = CreateModel<C300MODPublisherMgr>},
    {.uiType = PUBMGR_PUBLISHERTYPE_30BDA,
     .deviceCodes = {REG_PUB_DEVICE_DPTYPE_30BDA},
     .nDrives = 1,
     .bStacker4 = false,
     .bArchiveDiscs = true,
     .publishModes = {PUBMGR_PUBLISHMODE_NORMAL, PUBMGR_PUBLISHMODE_LOWVOLUME, PUBMGR_PUBLISHMODE_ERRORRATE,
                      PUBMGR_PUBLISHMODE_READ},
     .discTypes = BD_DISCS,
     .pCreate = CreateModel<C30BDAPublisherMgr>},
    {.uiType = PUBMGR_PUBLISHERTYPE_300II_DVD,
     .deviceCodes = {PUBMGR_PUBLISHERTYPE_300II_DVD},
     .publishModes = TWO_DRIVE_MODES,
     .discTypes = DVD_DISCS,
     .pCreate = CreateModel<C300IIDVDPublisherMgr>},
    {.uiType = PUBMGR_PUBLISHERTYPE_300II_BD,
     .deviceCodes = {REG_PUB_DEVICE_DPTYPE_300II, PUBMGR_PUBLISHERTYPE_300II_BD},
     .publishModes = TWO_DRIVE_MODES,
     .discTypes = BD_DISCS,
     .pCreate = CreateModel<C300IIBDPublisherMgr>},
    {.uiType = PUBMGR_PUBLISHERTYPE_30II,
     .deviceCodes = {REG_PUB_DEVICE_DPTYPE_30II},
     .family = ModelFamily::rt30,
     .szName = "RT-30II",
     .bShowsDrive2Version = false,
     .nDrives = 1,
     .bStacker4 = false,
     .publishModes = ONE_DRIVE_MODES,
     .discTypes = BD_DISCS,
     .pCreate = CreateModel<C30IIPublisherMgr>},
    {.uiType = PUBMGR_PUBLISHERTYPE_300III_DVD,
     .deviceCodes = {PUBMGR_PUBLISHERTYPE_300III_DVD},
     .szName = "RT-300III",
     .uiSetUpAs = PUBMGR_PUBLISHERTYPE_300III_BD,
     .publishModes = TWO_DRIVE_MODES,
     .discTypes = DVD_DISCS,
     .pCreate = CreateModel<C300IIIDVDPublisherMgr>},
    {.uiType = PUBMGR_PUBLISHERTYPE_300III_BD,
     .deviceCodes = {REG_PUB_DEVICE_DPTYPE_300III, PUBMGR_PUBLISHERTYPE_300III_BD},
     .family = ModelFamily::rt300,
     .szName = "RT-300III",
     .publishModes = TWO_DRIVE_MODES,
     .discTypes = BD_DISCS,
     .pCreate = CreateModel<C300IIIBDPublisherMgr>},
    {.uiType = PUBMGR_PUBLISHERTYPE_300III_BDXL,
     .deviceCodes = {PUBMGR_PUBLISHERTYPE_300III_BDXL},
     .family = ModelFamily::rt300,
     .szName = "RT-300III (BD-XL)",
     .publishModes = TWO_DRIVE_MODES,
     .discTypes = BDXL_DISCS,
     .pCreate = CreateModel<C300IIIBDXLPublisherMgr>},
    {.uiType = PUBMGR_PUBLISHERTYPE_30II_BDXL,
     .deviceCodes = {PUBMGR_PUBLISHERTYPE_30II_BDXL},
     .family = ModelFamily::rt30,
     .szName = "RT-30II (BD-XL)",
     .nDrives = 1,
     .bStacker4 = false,
     .publishModes = ONE_DRIVE_MODES,
     .discTypes = BDXL_DISCS,
     .pCreate = CreateModel<C30IIBDXLPublisherMgr>},
};

constexpr NetworkModel NETWORK_MODELS[] = {
    {PUBMGR_NPTYPE_300NII, "RT-300NII", false},
    {PUBMGR_NPTYPE_300NII_BDXL, "RT-300NII (BD-XL)", true},
};

} // namespace

std::span<const PublisherModel> PublisherModels()
{
    return PUBLISHER_MODELS;
}

std::span<const NetworkModel> NetworkModels()
{
    return NETWORK_MODELS;
}

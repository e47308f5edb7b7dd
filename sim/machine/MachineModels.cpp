#include "MachineModels.h"

#include <array>
#include <cstring>

namespace udsim {

namespace {

constexpr std::array<Model, 13> MODELS{{
    {"RT-300", 1, 2, 4, false, false, false, false, "012", "ARVEN RT-300PRN", "DVR-300"},
    {"RT-300AP", 2, 0, 4, false, false, false, false, "0126", "ARVEN RT-300APPRN", ""},
    {"RT-30", 3, 1, 3, false, false, false, false, "02", "ARVEN RT-30PRN", "DVR-30"},
    {"RT-30BD", 4, 1, 3, true, false, true, true, "026", "ARVEN RT-30PRN", "BDR-30"},
    {"RT-5300EX", 0x10000005, 2, 4, false, false, true, true, "0126", "ARVEN RT-300PRN", "DVR-5300"},
    {"RT-7030BD", 6, 1, 3, true, false, true, true, "0256", "ARVEN RT-30PRN", "BDR-7030"},
    {"RT-300II DVD", 0x10000007, 2, 4, false, false, true, true, "0126", "ARVEN RT-300PRN", "DVR-300II"},
    {"RT-300II BD", 0x20000007, 2, 4, true, false, true, true, "0126", "ARVEN RT-300PRN", "BDR-300II"},
    {"RT-30II", 8, 1, 3, true, false, true, true, "026", "ARVEN RT-30PRN", "BDR-30II"},
    {"RT-30II BDXL", 0x30000008, 1, 3, true, true, true, true, "026", "ARVEN RT-30PRN", "BXR-30II"},
    {"RT-300III DVD", 0x10000009, 2, 4, false, false, true, true, "0126", "ARVEN RT-300PRN", "DVR-300III"},
    {"RT-300III BD", 0x20000009, 2, 4, true, false, true, true, "0126", "ARVEN RT-300PRN", "BDR-300III"},
    {"RT-300III BDXL", 0x30000009, 2, 4, true, true, true, true, "0126", "ARVEN RT-300PRN", "BXR-300III"},
}};

} // namespace

bool Model::supportsMode(uint64_t mode) const
{
    return mode <= 9 && std::strchr(modes, static_cast<char>('0' + mode)) != nullptr;
}

std::string Model::writeSpeeds() const
{
    if (drives == 0) {
        return {};
    }
    std::string speeds = "CD-R:40,32,24,16,10,4;DVD-R:12,8,6,4;DVD-R DL:8,6,4;DVD+R:12,8,6,4;DVD+R DL:8,6,4";
    if (bluRay) {
        speeds += ";BD-R:8,6,4,2;BD-R DL:6,4,2";
    }
    if (bluRayXl) {
        speeds += ";BD-R TL:4,2;BD-R QL:4,2";
    }
    return speeds;
}

std::span<const Model> models()
{
    return MODELS;
}

const Model* findModel(const std::string& name)
{
    for (const Model& model : MODELS) {
        if (name == model.name) {
            return &model;
        }
    }
    return nullptr;
}

} // namespace udsim

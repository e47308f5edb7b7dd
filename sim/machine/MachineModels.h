// The models of local publishers and their differences.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace udsim {

struct Model
{
    const char* name;    ///< the "model" of a scenario
    uint32_t deviceType; ///< "DPType" of the device key
    unsigned drives;
    unsigned stackers;       ///< 4, or 3 for the models without an external one
    bool bluRay;             ///< supports BD-R
    bool bluRayXl;           ///< also supports BD-R TL and QL
    bool maintenanceBox;     ///< has a replaceable one
    bool highPrecision;      ///< counts printable discs in high precision
    const char* modes;       ///< digits of the supported publish modes
    const char* printerName; ///< name of the printer driver
    const char* driveName;

    bool supportsMode(uint64_t mode) const;
    /// Write speeds in the format of the device key: "CD-R:40,32;DVD-R:12,8".
    std::string writeSpeeds() const;
};

/// All models, the oldest first.
std::span<const Model> models();
/// Returns the model of this name, or null.
const Model* findModel(const std::string& name);

} // namespace udsim

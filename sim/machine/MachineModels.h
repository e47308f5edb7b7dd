// The models of local publishers, and what differs between them.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace udsim {

struct Model
{
    const char* name;    ///< as a scenario names it
    uint32_t deviceType; ///< "DPType" of the device key
    unsigned drives;
    unsigned stackers;       ///< 4, or 3 for the models without an external one
    bool bluRay;             ///< takes BD-R
    bool bluRayXl;           ///< takes BD-R TL and QL as well
    bool maintenanceBox;     ///< has one that can be changed
    bool highPrecision;      ///< counts printable discs in high precision
    const char* modes;       ///< digits of the publish modes it knows
    const char* printerName; ///< of its printer's driver
    const char* driveName;

    bool supportsMode(uint64_t mode) const;
    /// Write speeds as the device key keeps them: "CD-R:40,32;DVD-R:12,8".
    std::string writeSpeeds() const;
};

/// Every model, the oldest first.
std::span<const Model> models();
/// The model of this name; null when there is none.
const Model* findModel(const std::string& name);

} // namespace udsim

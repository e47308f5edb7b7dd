// Finds rows of the model table.
#include "ModelTable.h"

#include <algorithm>

namespace {

template <class Row, class Predicate>
const Row* FirstOf(std::span<const Row> rows, Predicate matches)
{
    const auto found = std::find_if(rows.begin(), rows.end(), matches);
    return found != rows.end() ? &*found : nullptr;
}

} // namespace

const PublisherModel* FindModel(UINT uiType)
{
    return FirstOf(PublisherModels(),
                   [uiType](const PublisherModel& model) { return model.uiType == uiType; });
}

const PublisherModel* FindModelOfDevice(DWORD dwDeviceCode)
{
    return FirstOf(PublisherModels(), [dwDeviceCode](const PublisherModel& model) {
        const auto& codes = model.deviceCodes;
        return dwDeviceCode != 0 && std::find(codes.begin(), codes.end(), dwDeviceCode) != codes.end();
    });
}

const NetworkModel* FindNetworkModel(UINT uiNetPublisherType)
{
    return FirstOf(NetworkModels(), [uiNetPublisherType](const NetworkModel& model) {
        return model.uiNetPublisherType == uiNetPublisherType;
    });
}

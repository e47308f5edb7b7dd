#include "RowTexts.h"

#include "ModelTable.h"
#include "NW_Com_LibConst.h"
#include "PublisherCtrlConst.h"
#include "SystemCalls.h"

#include <QCoreApplication>

#include <cstdlib>

namespace {

PublisherState unreachableState(const StatusFacts& facts)
{
    if (facts.network && facts.connectResult == NCL_ERR_USER_NOT_REGISTERED) {
        return PublisherState::administratorNotRegistered;
    }
    if (facts.network && facts.connectResult == NCL_ERR_APP_VERSION) {
        return PublisherState::unsupportedVersion;
    }
    return PublisherState::notConnected;
}

PublisherState stateOf(const StatusFacts& facts)
{
    if (!facts.reachable) {
        return unreachableState(facts);
    }
    if (facts.fatal) {
        return facts.fatalCode == ARV_PC_ERROR_OFFLINE ? PublisherState::notConnected : PublisherState::error;
    }
    return PublisherState::ready;
}

} // namespace

StatusDecision decideStatus(const StatusFacts& facts)
{
    const PublisherState state = stateOf(facts);
    const bool ready = state == PublisherState::ready;
    return {statusText(state), ready, ready && facts.network, state};
}

QString statusText(PublisherState state)
{
    switch (state) {
    case PublisherState::ready:
        return QCoreApplication::translate("PubSetup", "Ready");
    case PublisherState::error:
        return QCoreApplication::translate("PubSetup", "Error");
    case PublisherState::administratorNotRegistered:
        return QCoreApplication::translate("PubSetup", "Administrator not registered");
    case PublisherState::unsupportedVersion:
        return QCoreApplication::translate("PubSetup", "Unsupported version");
    case PublisherState::notConnected:
        break;
    }
    return QCoreApplication::translate("PubSetup", "Not connected");
}

QString modelText(UINT devType, UINT netPublisherType)
{
    const PublisherModel* model = FindModel(devType);
    if (model && model->family == ModelFamily::network) {
        const NetworkModel* server = FindNetworkModel(netPublisherType);
        return QString::fromLatin1(server ? server->szName : model->szName);
    }
    return model ? QString::fromLatin1(model->szName) : QStringLiteral("N/A");
}

QString jobCountText(int count)
{
    return count < 0 ? QStringLiteral("-") : QString::number(count);
}

QString hostNameText(const QString& hostName)
{
    return hostName.isEmpty() ? QStringLiteral("-") : hostName;
}

QString spaceText(const CString& bytes)
{
    if (bytes.empty()) {
        return QStringLiteral("-");
    }
    constexpr long long bytesPerMiB = 1048576;
    const ErrnoKeeper keeper; // strtoll sets errno on overflow, which would fail the next server reply
    const long long wholeMiB = std::strtoll(bytes.c_str(), nullptr, 10) / bytesPerMiB;
    return QString::asprintf("%.1lf GB", static_cast<double>(wholeMiB) / 1024.0);
}

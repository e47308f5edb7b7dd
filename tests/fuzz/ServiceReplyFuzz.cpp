// Feeds any bytes to the client as the answer of the control service: the first byte selects the operation,
// the rest is what the service sends before it closes the connection. Controls for which an answer of another
// size stops the process by contract are excluded.
#include "ServiceOperations.h"
#include "TextFiles.h"
#include "UnixListener.h"
#include "Win_def_log.h"

#include <cstring>
#include <future>

namespace {

std::vector<ServiceOperation> OperationsThatAlwaysReturn()
{
    std::vector<ServiceOperation> operations = ServiceOperations();
    std::erase_if(operations, [](const ServiceOperation& operation) { return operation.stopsOnOtherSize; });
    return operations;
}

unsigned long NumberAt(const std::string& bytes, size_t offset)
{
    unsigned long value = 0;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static UnixListener listener(SERVICE_SOCKET);
    static C300MODPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    static const std::vector<ServiceOperation> operations = OperationsThatAlwaysReturn();
    SetLogLevel(0);
    if (size == 0) {
        return 0;
    }
    const ServiceOperation& operation = operations[data[0] % operations.size()];
    const std::string answer(reinterpret_cast<const char*>(data) + 1, size - 1);

    std::future<bool> call = std::async(std::launch::async, [&] { return operation.run(mgr); });
    // A service that sends this answer to each command until the call has returned.
    while (call.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
        UnixPeer peer = listener.Accept(1);
        if (peer.IsOpen() && peer.ReadExactly(408).size() == 408) {
            peer.Write(answer);
        }
    }
    const bool isYes = call.get();
    assert(!mgr.IsRunningCommunicateService());
    // The client evaluates only the lower half of a result.
    const bool isGoodHeader = answer.size() >= 24 && NumberAt(answer, 0) == operation.control &&
                              static_cast<int>(NumberAt(answer, 8)) == 0;
    const std::string name = operation.name;
    if (name == "IsFatalErrorInPublisher" || name == "GetServiceAbilityPnumPrecision" ||
        name == "IsPossibleCommunicateService") {
        return 0; // an error is an answer too
    }
    assert(!isYes || isGoodHeader);
    return 0;
}

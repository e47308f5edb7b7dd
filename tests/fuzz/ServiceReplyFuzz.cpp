// Feeds any bytes to the client as the answer of the control service: the first byte selects the operation,
// the rest is what the service sends before it closes the connection. Controls for which an answer of another
// size stops the process by contract are excluded.
#include "ScriptedControlService.h"
#include "ServiceOperations.h"
#include "Win_def_log.h"

#include <cassert>
#include <cstring>
#include <mutex>

namespace {

std::vector<ServiceOperation> OperationsThatAlwaysReturn()
{
    std::vector<ServiceOperation> operations = ServiceOperations();
    std::erase_if(operations, [](const ServiceOperation& operation) { return operation.stopsOnOtherSize; });
    return operations;
}

/// A service that sends the same answer to each command.
class RepeatingService
{
public:
    void SetAnswer(std::string answer)
    {
        const std::lock_guard lock(m_mutex);
        m_answer = std::move(answer);
    }

private:
    std::string Answer()
    {
        const std::lock_guard lock(m_mutex);
        return m_answer;
    }

    std::mutex m_mutex;
    std::string m_answer;
    ScriptedControlService m_service{[this](UnixPeer& peer, const std::string&) { peer.Write(Answer()); }};
};

unsigned long NumberAt(const std::string& bytes, size_t offset)
{
    unsigned long value = 0;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static RepeatingService service;
    static C300MODPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    static const std::vector<ServiceOperation> operations = OperationsThatAlwaysReturn();
    SetLogLevel(0);
    if (size == 0) {
        return 0;
    }
    const ServiceOperation& operation = operations[data[0] % operations.size()];
    const std::string answer(reinterpret_cast<const char*>(data) + 1, size - 1);

    service.SetAnswer(answer);
    const bool isYes = operation.run(mgr);
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

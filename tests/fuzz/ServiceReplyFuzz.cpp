// Feeds any bytes to the client as the answer of the control service: the first byte selects the operation,
// the rest is what the service sends before it closes the connection. Controls for which an answer of another
// size stops the process by contract are excluded.
#include "BasicPublisherMgr.h"
#include "TextFiles.h"
#include "UnixListener.h"
#include "Win_def_log.h"

#include <cstring>
#include <future>

namespace {

using Mgr = CBasicPublisherMgr;

template <class Result, class Answer>
bool Ask(Mgr& mgr, Result (Mgr::*query)(LPCTSTR, Answer*, long*))
{
    Answer answer{};
    long code = 0;
    return static_cast<bool>((mgr.*query)("R", &answer, &code));
}

bool AskFour(Mgr& mgr, bool (Mgr::*query)(LPCTSTR, ULONG*, ULONG*, ULONG*, ULONG*, long*))
{
    ULONG values[4] = {};
    return (mgr.*query)("R", &values[0], &values[1], &values[2], &values[3], nullptr);
}

bool AskDrives(Mgr& mgr)
{
    ST_PC_DRV_STATUS drives[2] = {};
    return mgr.GetServiceDriveStatus("R", &drives[0], &drives[1], nullptr);
}

/// An operation, and the control id that a good answer repeats.
struct Operation
{
    ULONG control;
    bool (*run)(Mgr& mgr);
};

const Operation operations[] = {
    {4, [](Mgr& m) { return Ask(m, &Mgr::GetServiceJobStatus); }},
    {4, [](Mgr& m) { return Ask(m, &Mgr::GetServiceJobStatusUnfinish); }},
    {5, [](Mgr& m) { return Ask(m, &Mgr::GetServiceAldStatus); }},
    {6, [](Mgr& m) { return Ask(m, &Mgr::GetServiceInkStatus); }},
    {7, AskDrives},
    {9, [](Mgr& m) { return AskFour(m, &Mgr::GetServiceStackerStatus); }},
    {10, [](Mgr& m) { return Ask(m, &Mgr::GetPublisherVersionInfo); }},
    {13, [](Mgr& m) { return m.GetJobCount("R", nullptr) != -1; }},
    {22, [](Mgr& m) { return m.IsFatalErrorInPublisher("R", nullptr); }},
    {24, [](Mgr& m) { return Ask(m, &Mgr::GetServiceNotifyStatus); }},
    {26, [](Mgr& m) { return m.GetServiceAbilityPnumPrecision("R", nullptr) != 0xFFFFFFFF; }},
    {8, [](Mgr& m) { return Ask(m, &Mgr::GetServicePrinterStatus); }},
    {14, [](Mgr& m) { return m.GetServiceEstimateCirculation("R", nullptr) != -1; }},
    {17, [](Mgr& m) { return AskFour(m, &Mgr::GetServiceStackerDiscType); }},
    {18, [](Mgr& m) { return Ask(m, &Mgr::GetServicePublishMode); }},
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
    static UnixListener listener(SERVICE_SOCKET);
    static Mgr mgr(true, PUBLISHER_SETTING_DIR);
    SetLogLevel(0);
    if (size == 0) {
        return 0;
    }
    const Operation& operation = operations[data[0] % std::size(operations)];
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
    // The client evaluates only the lower half of a result.
    const bool isGoodHeader = answer.size() >= 24 && NumberAt(answer, 0) == operation.control &&
                              static_cast<int>(NumberAt(answer, 8)) == 0;
    if (operation.control == 22) {
        return 0; // a failed query counts as a fatal error
    }
    assert(!isYes || isGoodHeader || operation.control == 26);
    assert(!mgr.IsRunningCommunicateService());
    return 0;
}

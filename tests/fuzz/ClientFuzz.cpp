// Runs every operation on a network publisher against a server that sends any bytes. The first byte selects
// the operation, the second how many requests are answered well before. In the third, bit 0 selects whether
// the rest is the body of a good reply or everything that the server sends, and bit 1 whether it is also the
// answer to the later requests. The client logs everything if bits 4 to 7 are set, and nothing otherwise.
#include "NetworkOperations.h"
#include "Operation.h"
#include "PublisherFiles.h"
#include "ScriptedNetwork.h"
#include "SimulatedServer.h"
#include "Win_def_log.h"

#include <algorithm>
#include <cassert>

namespace {

constexpr size_t HEAD = 3;
constexpr size_t OF_CONNECTION = 4; ///< requests
constexpr size_t MOST_JOBS = 1000;  ///< of a list
constexpr unsigned AS_BODY = 1;
constexpr unsigned AGAIN = 2;
constexpr unsigned LOGGED = 0xF0;

bool IsCode(long code)
{
    return code == NetworkAnswer::UNTOUCHED || (code >= -3 && code <= long{NCL_ERR_CALC_HASH}) ||
           code == 10000 || (code >= long{NCL_ERR_SERVER_OTHER} && code <= long{NCL_ERR_SPOOL_JOB_LIMIT}) ||
           code == 0xFFFFFFFF;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < HEAD) {
        return 0;
    }
    static CNetworkPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    const NetworkOperation& operation = NetworkOperations()[data[0] % NetworkOperations().size()];
    const size_t good = data[1] % (OF_CONNECTION + operation.requests);
    const bool isBody = (data[2] & AS_BODY) != 0;
    const bool isRepeated = (data[2] & AGAIN) != 0;
    SetLogLevel((data[2] & LOGGED) == LOGGED ? 5 : 0);
    const std::string rest(reinterpret_cast<const char*>(data) + HEAD, size - HEAD);
    const std::string bad = isBody ? HttpResponse(rest) : rest;

    WritePublisher("R", "[Common]\nPublisherName=Lab\nPublisherURL=server\nNPType=2\n");
    SimulatedServer server;
    size_t requests = 0;
    const ScriptedNetwork network([&](const std::string& request) {
        const size_t number = requests++;
        return number == good || (isRepeated && number > good) ? bad : server.Answer(request);
    });
    const NetworkAnswer answer = operation.call(mgr, "R", true);
    assert(IsCode(answer.code));
    // A failed request is repeated once. A list of jobs may repeat the job to be cancelled.
    assert(requests > 0 && requests <= 2 * (OF_CONNECTION + operation.requests + MOST_JOBS));
    while (DestroyOldestUnclaimedNCL()) { // connections to servers in a secure mode stay open
    }
    assert(std::all_of(g_pvarrNCL.begin(), g_pvarrNCL.end(),
                       [](const ST_NCL* object) { return object == nullptr; }));
    return 0;
}

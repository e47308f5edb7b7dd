// Measures one exchange with the control service, compared with bare system calls on the same socket.
#include "BasicPublisherMgr.h"
#include "Stopwatch.h"
#include "TextFiles.h"

#include <cstdlib>
#include <cstring>
#include <thread>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr size_t REQUEST_SIZE = 408;
constexpr size_t HEADER_SIZE = 24;
constexpr size_t PAYLOAD_SIZE = 48;

void Check(bool condition, const char* what)
{
    if (!condition) {
        std::perror(what);
        std::exit(EXIT_FAILURE);
    }
}

sockaddr_un ServiceAddress()
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, SERVICE_SOCKET, sizeof SERVICE_SOCKET);
    return address;
}

/// Answers every request with the same header and payload; runs until the process ends.
void Serve(int listener)
{
    const unsigned long header[] = {ARV_PC_GET_INK_STATUS, 0, PAYLOAD_SIZE};
    char answer[HEADER_SIZE + PAYLOAD_SIZE] = {};
    std::memcpy(answer, header, sizeof header);
    while (true) {
        const int peer = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
        char request[REQUEST_SIZE];
        size_t got = 0;
        while (got < sizeof request) {
            const ssize_t count = read(peer, request + got, sizeof request - got);
            Check(count > 0, "read request");
            got += static_cast<size_t>(count);
        }
        Check(write(peer, answer, sizeof answer) == sizeof answer, "write answer");
        close(peer);
    }
}

void BareExchange(const sockaddr_un& address)
{
    char request[REQUEST_SIZE] = {};
    const int pipe = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    Check(pipe >= 0, "socket");
    Check(connect(pipe, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0, "connect");
    Check(write(pipe, request, sizeof request) == sizeof request, "write");
    char header[HEADER_SIZE];
    Check(read(pipe, header, sizeof header) == sizeof header, "read header");
    char payload[PAYLOAD_SIZE];
    Check(read(pipe, payload, sizeof payload) == sizeof payload, "read payload");
    close(pipe);
}

void ClientExchange(CBasicPublisherMgr& mgr)
{
    void* response = nullptr;
    ULONG length = 0;
    Check(mgr.GetServiceResponse(ARV_PC_GET_INK_STATUS, "R", nullptr, 0, &response, &length) == 0 &&
              length == PAYLOAD_SIZE,
          "GetServiceResponse");
    delete[] static_cast<char*>(response);
}

} // namespace

int main()
{
    const sockaddr_un address = ServiceAddress();
    const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    Check(bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0, "bind");
    Check(listen(listener, 128) == 0, "listen");
    std::thread(Serve, listener).detach();

    CBasicPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    PrintRatioGoal(
        "service exchange, vs bare calls",
        Compare(
            "One exchange with the control service",
            {{"GetServiceResponse", [&] { ClientExchange(mgr); }, {}},
             {"connect, write 408, read 24, read the payload, close", [&] { BareExchange(address); }, {}}},
            5000),
        1.02);
    return 0;
}

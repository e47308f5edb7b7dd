#include "HttpExchange.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include <poll.h>
#include <sys/socket.h>

#include "HttpServer.h"
#include "Sockets.h"

namespace udsim {

namespace {

constexpr size_t CHUNK = 4096;

struct Exchange
{
    HttpRequest request;
    bool begun = false;
    bool tooLarge = false;
};

int socketOf(MHD_Connection* connection)
{
    return MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD)->connect_fd;
}

MHD_Result keepHeader(void* exchange, MHD_ValueKind /*kind*/, const char* key, const char* value)
{
    static_cast<Exchange*>(exchange)->request.headers.emplace_back(key, value == nullptr ? "" : value);
    return MHD_YES;
}

/// Waits for `milliseconds`, or without limit if negative. Returns false as soon as the connection ends.
bool waitOn(int socket, int milliseconds)
{
    pollfd entry{socket, POLLRDHUP, 0};
    return ::poll(&entry, 1, milliseconds) == 0;
}

bool sendRaw(int socket, const HttpDelivery& delivery)
{
    const size_t step = delivery.dripTime.count() == 0 ? delivery.raw.size() : 1;
    for (size_t from = 0; from < delivery.raw.size(); from += step) {
        if (!sendAll(socket, std::string_view(delivery.raw).substr(from, step)) ||
            (delivery.dripTime.count() > 0 && !waitOn(socket, static_cast<int>(delivery.dripTime.count())))) {
            return false;
        }
    }
    return true;
}

ssize_t readChunk(void* body, uint64_t position, char* buffer, size_t size)
{
    const auto& text = *static_cast<std::string*>(body);
    if (position >= text.size()) {
        return MHD_CONTENT_READER_END_OF_STREAM;
    }
    return static_cast<ssize_t>(text.copy(buffer, size, position));
}

void freeBody(void* body)
{
    delete static_cast<std::string*>(body);
}

MHD_Result queue(MHD_Connection* connection, const HttpReply& reply, bool chunked)
{
    MHD_Response* response = nullptr;
    if (chunked) {
        response =
            MHD_create_response_from_callback(MHD_SIZE_UNKNOWN, CHUNK, &readChunk,
                                              std::make_unique<std::string>(reply.body).release(), &freeBody);
    } else {
        response = MHD_create_response_from_buffer(reply.body.size(), const_cast<char*>(reply.body.data()),
                                                   MHD_RESPMEM_MUST_COPY);
    }
    const MHD_Result queued = MHD_queue_response(connection, reply.status, response);
    MHD_destroy_response(response);
    return queued;
}

/// MHD_NO ends the connection.
MHD_Result carryOut(MHD_Connection* connection, const HttpDelivery& delivery)
{
    const int socket = socketOf(connection);
    if (delivery.delay.count() > 0 && !waitOn(socket, static_cast<int>(delivery.delay.count()))) {
        return MHD_NO;
    }
    if (!sendRaw(socket, delivery)) {
        return MHD_NO;
    }
    if (delivery.reply) {
        return queue(connection, *delivery.reply, delivery.chunked);
    }
    if (delivery.stall) {
        waitOn(socket, -1);
    }
    return MHD_NO;
}

} // namespace

void* beginExchange(void* /*server*/, const char* target, MHD_Connection* /*connection*/)
{
    auto exchange = std::make_unique<Exchange>();
    exchange->request.target = target;
    return exchange.release(); // endExchange() deletes it
}

MHD_Result answerExchange(void* server, MHD_Connection* connection, const char* /*path*/, const char* method,
                          const char* version, const char* piece, size_t* size, void** exchange)
{
    auto& own = *static_cast<Exchange*>(*exchange);
    HttpRequest& request = own.request;
    if (!own.begun) {
        own.begun = true;
        request.method = method;
        request.version = version;
        request.host = localAddressOf(socketOf(connection));
        MHD_get_connection_values(connection, MHD_HEADER_KIND, &keepHeader, &own);
        return MHD_YES;
    }
    if (*size > 0) {
        own.tooLarge = own.tooLarge || request.body.size() + *size > HttpServer::LARGEST_BODY;
        if (!own.tooLarge) {
            request.body.append(piece, *size);
        }
        *size = 0;
        return MHD_YES;
    }
    if (own.tooLarge) {
        return queue(connection, {413, {}}, false);
    }
    return carryOut(connection, static_cast<HttpServer*>(server)->take(request));
}

void endExchange(void* /*server*/, MHD_Connection* /*connection*/, void** exchange,
                 MHD_RequestTerminationCode /*reason*/)
{
    const std::unique_ptr<Exchange> ended(static_cast<Exchange*>(*exchange));
    *exchange = nullptr;
}

} // namespace udsim

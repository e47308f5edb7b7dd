// One request and its reply, as the HTTP library hands them over piece by piece.
#pragma once

#include <cstddef>

#include <microhttpd.h>

namespace udsim {

/// Callbacks of the library; the first context of each is an HttpServer. A request's target begins an
/// exchange, which is what the connection's context points to until it ends.
void* beginExchange(void* server, const char* target, MHD_Connection* connection);
MHD_Result answerExchange(void* server, MHD_Connection* connection, const char* path, const char* method,
                          const char* version, const char* piece, size_t* size, void** exchange);
void endExchange(void* server, MHD_Connection* connection, void** exchange,
                 MHD_RequestTerminationCode reason);

} // namespace udsim

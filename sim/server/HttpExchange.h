// One request and its reply: the callbacks through which the HTTP library passes them in pieces.
#pragma once

#include <cstddef>

#include <microhttpd.h>

namespace udsim {

/// Callbacks of the library. `server` is the HttpServer of answerExchange(); the other two do not use it.
/// beginExchange() creates an exchange for a request's target; the library keeps the pointer as the context
/// of the request until endExchange().
void* beginExchange(void* server, const char* target, MHD_Connection* connection);
MHD_Result answerExchange(void* server, MHD_Connection* connection, const char* path, const char* method,
                          const char* version, const char* piece, size_t* size, void** exchange);
void endExchange(void* server, MHD_Connection* connection, void** exchange,
                 MHD_RequestTerminationCode reason);

} // namespace udsim

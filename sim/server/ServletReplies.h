// The servlets of a publisher server.
#pragma once

#include "HttpMessage.h"
#include "PublisherServer.h"

namespace udsim {

/// Carries out a request to "/webapp2/..." or "/webapp/...": 404 for a servlet that the server does not have,
/// 405 for a method that it does not take.
HttpReply answerServlet(const HttpRequest& request, PublisherServer& server);

} // namespace udsim

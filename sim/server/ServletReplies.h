// The servlets of a publisher server.
#pragma once

#include "HttpMessage.h"
#include "PublisherServer.h"

namespace udsim {

/// Carries out a request to "/webapp2/..." or "/webapp/...". Returns 404 for an unknown servlet, 405 for a
/// method that the servlet does not support.
HttpReply answerServlet(const HttpRequest& request, PublisherServer& server);

} // namespace udsim

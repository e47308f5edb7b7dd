// udsim tell: sends commands to a running udsim.
#include <algorithm>
#include <cerrno>
#include <cstdio>

#include <unistd.h>

#include "Subcommands.h"
#include "TellSocket.h"

namespace udsim {

namespace {

/// "service on" and "service off" name no publisher; all other commands do.
TellRequest tellRequestOf(const Arguments& words)
{
    const bool forService =
        words.size() == 2 && words[0] == "service" && (words[1] == "on" || words[1] == "off");
    TellRequest request;
    request.publisher = forService ? "" : words.front();
    for (size_t i = forService ? 0 : 1; i < words.size(); ++i) {
        request.command += (request.command.empty() ? "" : " ") + words[i];
    }
    return request;
}

bool fitsALine(const std::string& word)
{
    return word.find_first_of("\t\n") == std::string::npos;
}

} // namespace

int tellRoom(const Arguments& arguments)
{
    const CommandLine line(arguments, {"--control"}, {"--list"}, true);
    const Arguments& words = line.words();
    if (!line.mistake().empty()) {
        return wrongUsage(line.mistake());
    }
    const bool list = line.has("--list");
    if (list ? !words.empty() : words.size() < 2) {
        return wrongUsage(
            list ? "\"--list\" takes no publisher and no command"
                 : "tell needs a publisher and a command, such as: udsim tell \"Studio A\" offline");
    }
    if (!std::all_of(words.begin(), words.end(), fitsALine)) {
        return wrongUsage("a publisher or command must not contain tabs or line breaks");
    }
    const std::string path = line.value("--control").value_or(DEFAULT_TELL_SOCKET);
    if (::access(path.c_str(), W_OK) != 0 && errno == EACCES) {
        failure("no permission: the udsim at " + path +
                " accepts commands only from root and from the user who started it");
        return EXIT_NO_PERMISSION;
    }
    std::string error;
    const auto reply = sendTellRequest(path, list ? TellRequest{true, {}, {}} : tellRequestOf(words), error);
    if (!reply) {
        failure(error);
        return EXIT_NOBODY;
    }
    if (!reply->done) {
        return failure(reply->text);
    }
    std::fputs(reply->text.c_str(), stdout);
    return EXIT_DONE;
}

} // namespace udsim

// udsim record and udsim replay: record sessions with a real service or server, and replay them.
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Protocol.h"
#include "Relay.h"
#include "Replay.h"
#include "ServletNumbers.h"
#include "Sockets.h"
#include "Subcommands.h"

namespace udsim {

namespace {

constexpr char DEFAULT_LISTEN[] = "127.0.0.1";

/// Replaces the service's socket by one of its own. Meanwhile the service's socket has another name.
class ServicePlace
{
public:
    ServicePlace() = default;
    ServicePlace(const ServicePlace&) = delete;
    ServicePlace& operator=(const ServicePlace&) = delete;
    ~ServicePlace()
    {
        leave();
    }

    /// Returns a socket at the service's path; not open, with the reason in `error`, on failure.
    Descriptor take(std::string& error)
    {
        if (isServed(SOCK_STREAM, SERVICE_SOCKET)) {
            if (::rename(SERVICE_SOCKET, aside().c_str()) != 0) {
                error = std::string(SERVICE_SOCKET) + ": " + std::strerror(errno);
                return {};
            }
        } else if (!isServed(SOCK_STREAM, aside())) { // not left renamed by a killed recorder
            error = "no service listens at " + std::string(SERVICE_SOCKET);
            return {};
        }
        m_taken = true;
        Descriptor bound = bindUnix(SOCK_STREAM, SERVICE_SOCKET, SERVICE_SOCKET_RIGHTS, error);
        m_ours = whatIsThere();
        return bound;
    }

    /// Restores the service's socket, unless a restarted service has created a new one.
    void leave()
    {
        if (!m_taken) {
            return;
        }
        m_taken = false;
        if (const auto there = whatIsThere(); there && there != m_ours) {
            if (!isServed(SOCK_STREAM, aside())) {
                ::unlink(aside().c_str());
            }
            return;
        }
        ::unlink(SERVICE_SOCKET);
        if (!isServed(SOCK_STREAM, aside())) {
            ::unlink(aside().c_str()); // the service has ended meanwhile
        } else if (::rename(aside().c_str(), SERVICE_SOCKET) != 0) {
            failure("the service's socket could not be renamed back from " + aside() + ": " +
                    std::strerror(errno));
        }
    }

    static std::string aside()
    {
        return std::string(SERVICE_SOCKET) + ".recorded";
    }

private:
    using File = std::pair<dev_t, ino_t>;

    /// Identifies the file at the service's path.
    static std::optional<File> whatIsThere()
    {
        struct stat found{};
        return ::lstat(SERVICE_SOCKET, &found) == 0 ? std::optional(File(found.st_dev, found.st_ino))
                                                    : std::nullopt;
    }

    bool m_taken = false;
    std::optional<File> m_ours;
};

/// The other side of a recording.
struct Source
{
    std::optional<Address> server; ///< empty: the service
    Address listen;
};

std::string mistakeIn(const CommandLine& line, Source& source)
{
    const auto server = line.value("--server");
    if (line.has("--service") == server.has_value()) {
        return "record needs either --service or --server HOST";
    }
    if (line.has("--service") && line.value("--listen")) {
        return "\"--listen\" requires --server";
    }
    const std::string listen = line.value("--listen").value_or(DEFAULT_LISTEN);
    const auto address = Address::parse(listen, HTTP_PORT);
    if (!address) {
        return "\"" + listen + "\" is not a valid ADDRESS[:PORT]";
    }
    source.listen = *address;
    source.server = server ? Address::parse(*server, HTTP_PORT) : std::nullopt;
    if (server && !source.server) {
        return "\"" + *server + "\" is not a valid HOST[:PORT]";
    }
    return source.server && source.server->text() == source.listen.text()
               ? "the server has the address " + listen + "; \"--listen\" needs a different one"
               : "";
}

void note(const std::string& text)
{
    printLine("udsim: " + text);
}

void waitForASignal(const sigset_t& signals)
{
    int received = 0;
    sigwait(&signals, &received);
}

} // namespace

int recordSession(const Arguments& arguments)
{
    const CommandLine line(arguments, {"--server", "--listen"}, {"--service"});
    Source source;
    std::string error = line.mistake().empty() ? mistakeIn(line, source) : line.mistake();
    if (error.empty() && line.words().size() != 1) {
        error = "record needs one output file";
    }
    if (!error.empty()) {
        return wrongUsage(error);
    }
    const sigset_t signals = holdSignals();
    const std::string& path = line.words().front();
    ServicePlace place;
    Descriptor listener = source.server ? listenTcp(source.listen, error) : place.take(error);
    Recorder recorder(note);
    if (!listener.isOpen() ||
        !recorder.open(path, source.server ? Recording::Of::server : Recording::Of::service, error)) {
        return failure(error);
    }
    Relay relay(
        recorder,
        [&source](int client, std::string& reason) {
            return source.server ? connectTcp(*source.server, client, reason)
                                 : connectUnix(ServicePlace::aside(), reason);
        },
        note);
    if (!relay.start(std::move(listener), error)) {
        return failure(error);
    }
    note("recording " + (source.server ? source.server->text() : "the service") + " in " + path +
         (source.server ? "; clients connect to " + source.listen.text() : "") + "; press Ctrl-C to stop");
    waitForASignal(signals);
    relay.stop();
    place.leave();
    if (!recorder.isComplete()) {
        return failure("the recording in " + path + " is incomplete");
    }
    note("recorded in " + path);
    return EXIT_DONE;
}

int replaySession(const Arguments& arguments)
{
    const CommandLine line(arguments, {"--listen"}, {});
    const std::string listen = line.value("--listen").value_or(DEFAULT_LISTEN);
    const auto address = Address::parse(listen, HTTP_PORT);
    if (!line.mistake().empty() || !address || line.words().size() != 1) {
        return wrongUsage(!line.mistake().empty() ? line.mistake()
                          : !address              ? "\"" + listen + "\" is not a valid ADDRESS[:PORT]"
                                                  : "replay needs one recording");
    }
    std::string error;
    const auto recording = Recording::load(line.words().front(), error);
    if (!recording) {
        return failure(error);
    }
    if (!recording->remark.empty()) {
        note(recording->remark);
    }
    const bool ofServer = recording->of == Recording::Of::server;
    if (!ofServer && line.value("--listen")) {
        return wrongUsage(
            "\"--listen\" is only for recordings of a server; this is a recording of a service");
    }
    const sigset_t signals = holdSignals();
    Descriptor listener = ofServer ? listenTcp(*address, error)
                                   : bindUnix(SOCK_STREAM, SERVICE_SOCKET, SERVICE_SOCKET_RIGHTS, error);
    Replay replay(*recording, printLine);
    if (!listener.isOpen() || !replay.start(std::move(listener), error)) {
        return failure(error);
    }
    note("replaying at " + (ofServer ? address->text() : std::string(SERVICE_SOCKET)) +
         "; press Ctrl-C to stop");
    waitForASignal(signals);
    replay.stop();
    if (!ofServer) {
        ::unlink(SERVICE_SOCKET);
    }
    note(replay.summary());
    return EXIT_DONE;
}

} // namespace udsim

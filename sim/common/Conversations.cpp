#include "Conversations.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>

namespace udsim {

namespace {

constexpr int PAUSE = 100; // milliseconds before the next accept when the process is out of descriptors
constexpr size_t RECEIVED_PIECE = 16'384;

} // namespace

Conversations::Conversations(Talk talk, std::function<void()> turnedAway)
    : m_talk(std::move(talk)), m_turnedAway(std::move(turnedAway))
{
}

Conversations::~Conversations()
{
    stop();
}

bool Conversations::start(Descriptor listener, std::string& error)
{
    m_wake = Descriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!m_wake.isOpen()) {
        error = std::strerror(errno);
        return false;
    }
    m_listener = std::move(listener);
    m_running = true;
    m_thread = std::thread([this] { run(); });
    return true;
}

void Conversations::stop()
{
    if (!m_thread.joinable()) {
        return;
    }
    {
        const std::lock_guard lock(m_mutex);
        m_running = false;
    }
    const uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(m_wake.get(), &one, sizeof one);
    m_thread.join();
    m_listener = {};
    {
        const std::lock_guard lock(m_mutex);
        for (const One& talk : m_list) {
            if (!talk.ended) {
                ::shutdown(talk.socket.get(), SHUT_RDWR);
            }
        }
    }
    for (One& talk : m_list) { // no lock: no other thread changes the list any more
        talk.thread.join();
    }
    m_list.clear();
}

void Conversations::run()
{
    std::array<pollfd, 2> entries{{{m_wake.get(), POLLIN, 0}, {m_listener.get(), POLLIN, 0}}};
    while (true) {
        ::poll(entries.data(), entries.size(), -1);
        {
            const std::lock_guard lock(m_mutex);
            if (!m_running) {
                return;
            }
        }
        if (entries[1].revents != 0) {
            take();
        }
    }
}

void Conversations::take()
{
    Descriptor socket(::accept4(m_listener.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!socket.isOpen()) {
        if (errno != EAGAIN && errno != EINTR && errno != ECONNABORTED) {
            pollfd entry{m_wake.get(), POLLIN, 0};
            ::poll(&entry, 1, PAUSE);
        }
        return;
    }
    if (!serve(std::move(socket)) && m_turnedAway) {
        m_turnedAway();
    }
}

/// Returns false if there are too many connections.
bool Conversations::serve(Descriptor socket)
{
    const std::lock_guard lock(m_mutex);
    m_list.remove_if([](One& talk) {
        if (talk.ended) {
            talk.thread.join();
        }
        return talk.ended;
    });
    if (m_list.size() >= MOST) {
        return false;
    }
    One& added = m_list.emplace_back();
    added.socket = std::move(socket);
    added.thread = std::thread([this, &added, fd = added.socket.get(), number = ++m_count] {
        m_talk(fd, number);
        const std::lock_guard ending(m_mutex);
        const Descriptor closed = std::move(added.socket);
        added.ended = true;
    });
    return true;
}

bool receiveMore(int socket, int milliseconds, std::string& bytes)
{
    pollfd entry{socket, POLLIN, 0};
    const int ready = ::poll(&entry, 1, milliseconds);
    if (ready < 0 && errno == EINTR) {
        return true;
    }
    if (ready <= 0) {
        return false;
    }
    std::array<char, RECEIVED_PIECE> piece{};
    const ssize_t count = ::recv(socket, piece.data(), piece.size(), 0);
    if (count > 0) {
        bytes.append(piece.data(), static_cast<size_t>(count));
    }
    return count > 0 || (count < 0 && (errno == EAGAIN || errno == EINTR));
}

} // namespace udsim

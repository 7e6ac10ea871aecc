#include "platform/linux/TcpExchange.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <future>
#include <memory>
#include <optional>
#include <utility>

#include <poll.h>
#include <sys/socket.h>

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/HostAddresses.h"

namespace quindle {

namespace {

HostAddresses lookUpUntil(const QString& host, int port, Deadline deadline)
{
    const auto promise = std::make_shared<std::promise<HostAddresses>>();
    std::future<HostAddresses> addresses = promise->get_future();
    lookUpHost(host.toLatin1(), port,
               [promise](HostAddresses found) { promise->set_value(std::move(found)); });
    if (addresses.wait_until(deadline) != std::future_status::ready)
        return nullptr;
    return addresses.get();
}

bool waitFor(int socket, short events, Deadline deadline)
{
    for (;;) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0)
            return false;
        pollfd waited{socket, events, 0};
        const int ready = poll(&waited, 1, static_cast<int>(left.count()));
        if (ready > 0)
            return true;
        if (ready == 0 || errno != EINTR)
            return false;
    }
}

std::optional<FileDescriptor> connectTo(const addrinfo& address, Deadline deadline)
{
    FileDescriptor own(
        socket(address.ai_family, address.ai_socktype | SOCK_NONBLOCK | SOCK_CLOEXEC, address.ai_protocol));
    if (own.get() < 0)
        return std::nullopt;
    if (connect(own.get(), address.ai_addr, address.ai_addrlen) == 0)
        return own;
    if (errno != EINPROGRESS || !waitFor(own.get(), POLLOUT, deadline))
        return std::nullopt;
    int error = 0;
    socklen_t size = sizeof error;
    if (getsockopt(own.get(), SOL_SOCKET, SO_ERROR, &error, &size) != 0 || error != 0)
        return std::nullopt;
    return own;
}

/// An address that does not answer gets no more than its share of the time.
std::optional<FileDescriptor> connectToAny(const HostAddresses& addresses, Deadline deadline)
{
    int count = 0;
    for (const addrinfo* address = addresses.get(); address; address = address->ai_next)
        ++count;
    for (const addrinfo* address = addresses.get(); address; address = address->ai_next, --count) {
        const auto now = std::chrono::steady_clock::now();
        if (auto own = connectTo(*address, now + (deadline - now) / count))
            return own;
    }
    return std::nullopt;
}

bool sendAll(int socket, const QByteArray& bytes, Deadline deadline)
{
    qsizetype sent = 0;
    while (sent < bytes.size()) {
        if (!waitFor(socket, POLLOUT, deadline))
            return false;
        const ssize_t size = send(socket, bytes.constData() + sent,
                                  static_cast<std::size_t>(bytes.size() - sent), MSG_NOSIGNAL);
        if (size < 0 && errno != EAGAIN && errno != EINTR)
            return false;
        sent += std::max<ssize_t>(size, 0);
    }
    return true;
}

} // namespace

void exchangeOverTcp(const QString& host, int port, const QByteArray& request, Deadline deadline,
                     const std::function<bool(const QByteArray& bytes, bool isAtEnd)>& received)
{
    const auto own = connectToAny(lookUpUntil(host, port, deadline), deadline);
    if (!own || !sendAll(own->get(), request, deadline))
        return;
    QByteArray bytes;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): read into before it is read
    std::array<char, 16384> part;
    while (waitFor(own->get(), POLLIN, deadline)) {
        const ssize_t size = recv(own->get(), part.data(), part.size(), 0);
        if (size < 0 && errno != EAGAIN && errno != EINTR)
            return;
        bytes.append(part.data(), std::max<ssize_t>(size, 0));
        if (!received(bytes, size == 0) || size == 0)
            return;
    }
}

} // namespace quindle

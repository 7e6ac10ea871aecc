#include "platform/linux/link/SocketLink.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/socket.h>

namespace quindle {

namespace {

/// A numeric option of a socket; -1 where there is none, as for what is not a socket.
int numberOf(int socket, int option)
{
    int value = -1;
    socklen_t size = sizeof value;
    return ::getsockopt(socket, SOL_SOCKET, option, &value, &size) == 0 ? value : -1;
}

} // namespace

std::array<FileDescriptor, 2> SocketLink::pair()
{
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends.data()) != 0)
        return {};
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

bool SocketLink::isEndOfPair(const FileDescriptor& socket)
{
    return numberOf(socket.get(), SO_DOMAIN) == AF_UNIX && numberOf(socket.get(), SO_TYPE) == SOCK_SEQPACKET;
}

SocketLink::SocketLink(FileDescriptor end)
    : m_socket(std::move(end))
    , m_readable(m_socket.get(), QSocketNotifier::Read)
    , m_writable(m_socket.get(), QSocketNotifier::Write)
{
    // An inherited end is not passed on again.
    ::fcntl(m_socket.get(), F_SETFD, FD_CLOEXEC);
    m_readable.setEnabled(false);
    m_writable.setEnabled(false);
    QObject::connect(&m_readable, &QSocketNotifier::activated, &m_readable, [this] { receive(); });
    QObject::connect(&m_writable, &QSocketNotifier::activated, &m_writable, [this] { sendWaiting(); });
}

SocketLink::~SocketLink() = default;

bool SocketLink::send(const QByteArray& message)
{
    if (message.isEmpty() || message.size() > longestMessage || m_isGone)
        return false;
    // What is waiting goes first, or messages would overtake each other.
    const Outcome outcome = m_waiting.empty() ? sendNow(message) : Outcome::NoRoom;
    if (outcome != Outcome::NoRoom || m_waiting.size() >= mostWaiting)
        return outcome == Outcome::Sent;
    m_waiting.push_back(message);
    m_writable.setEnabled(true);
    return true;
}

SocketLink::Outcome SocketLink::sendNow(const QByteArray& message) const
{
    ssize_t sent = 0;
    do
        sent = ::send(m_socket.get(), message.constData(), static_cast<std::size_t>(message.size()),
                      MSG_DONTWAIT | MSG_NOSIGNAL);
    while (sent < 0 && errno == EINTR);
    if (sent >= 0)
        return Outcome::Sent;
    return errno == EAGAIN || errno == ENOBUFS ? Outcome::NoRoom : Outcome::Lost;
}

void SocketLink::sendWaiting()
{
    while (!m_waiting.empty() && sendNow(m_waiting.front()) != Outcome::NoRoom)
        m_waiting.pop_front();
    m_writable.setEnabled(!m_waiting.empty());
}

void SocketLink::setReceiver(std::function<void(const QByteArray& message)> received)
{
    m_received = std::move(received);
    m_readable.setEnabled(!m_isGone);
}

void SocketLink::setClosed(std::function<void()> closed)
{
    m_closed = std::move(closed);
}

// One message in each turn: what it does may take a while, or destroy this object.
void SocketLink::receive()
{
    QByteArray message(longestMessage, Qt::Uninitialized);
    const ssize_t count = ::recv(m_socket.get(), message.data(), static_cast<std::size_t>(message.size()),
                                 MSG_DONTWAIT | MSG_TRUNC);
    // A reset, of a peer that ended with messages unread, is reported before what it has sent.
    if (count < 0 && (errno == EAGAIN || errno == EINTR || errno == ECONNRESET))
        return;
    if (count <= 0) {
        close();
        return;
    }
    // A longer one is not from our program; a cut message is none.
    if (count > message.size())
        return;
    message.truncate(count);
    // A copy: the receiver may be replaced while it runs.
    const auto received = m_received;
    received(message);
}

void SocketLink::close()
{
    m_isGone = true;
    m_readable.setEnabled(false);
    m_writable.setEnabled(false);
    // Once, whoever notices first that the other end has gone.
    if (const auto closed = std::exchange(m_closed, {}))
        closed();
}

} // namespace quindle

#pragma once

#include <array>
#include <deque>

#include <QSocketNotifier>

#include "platform/MessageLink.h"
#include "platform/posix/FileDescriptor.h"

namespace quindle {

/// A link over one end of a pair of sockets that keep messages apart (SOCK_SEQPACKET). Such a pair has no
/// name, so nobody can connect to it. What the kernel has no room for waits here, up to a bound. Needs a
/// QCoreApplication.
class SocketLink final : public MessageLink
{
public:
    /// The bound of the messages that wait here.
    static constexpr std::size_t mostWaiting = 64;

    /// Both ends of a new pair; both are not open where the system gives none.
    static std::array<FileDescriptor, 2> pair();

    /// Whether that is one end of such a pair; nothing else can be a link.
    static bool isEndOfPair(const FileDescriptor& socket);

    explicit SocketLink(FileDescriptor end);
    ~SocketLink() override;

    bool send(const QByteArray& message) override;
    void setReceiver(std::function<void(const QByteArray& message)> received) override;
    void setClosed(std::function<void()> closed) override;

private:
    enum class Outcome { Sent, NoRoom, Lost };

    Outcome sendNow(const QByteArray& message) const;
    void sendWaiting();
    void receive();
    void close();

    FileDescriptor m_socket;
    QSocketNotifier m_readable;
    QSocketNotifier m_writable;
    std::deque<QByteArray> m_waiting;
    std::function<void(const QByteArray&)> m_received;
    std::function<void()> m_closed;
    bool m_isGone = false; ///< the other end
};

} // namespace quindle

#include "platform/linux/link/SocketLink.h"

#include <memory>
#include <vector>

#include <fcntl.h>
#include <sys/socket.h>

#include <gtest/gtest.h>

#include "tests/support/MessageBus.h"

using namespace quindle;

namespace {

struct SocketLinkTest : testing::Test
{
    SocketLinkTest()
    {
        auto ends = SocketLink::pair();
        link = std::make_unique<SocketLink>(std::move(ends[0]));
        peer = std::move(ends[1]);
    }

    void hear()
    {
        link->setReceiver([this](const QByteArray& message) { received.push_back(message); });
        link->setClosed([this] { ++closed; });
    }

    /// The next message at the other end; empty when there is none.
    QByteArray atPeer() const
    {
        QByteArray bytes(MessageLink::longestMessage + 1, '\0');
        const ssize_t count =
            ::recv(peer.get(), bytes.data(), static_cast<std::size_t>(bytes.size()), MSG_DONTWAIT);
        return bytes.left(std::max<ssize_t>(count, 0));
    }

    void peerSends(const QByteArray& bytes) const
    {
        ASSERT_EQ(::send(peer.get(), bytes.constData(), static_cast<std::size_t>(bytes.size()), 0),
                  bytes.size());
    }

    std::unique_ptr<SocketLink> link;
    FileDescriptor peer;
    std::vector<QByteArray> received;
    int closed = 0;
};

TEST_F(SocketLinkTest, MessagesStayWholeAndInOrder)
{
    EXPECT_TRUE(link->send("one"));
    EXPECT_TRUE(link->send("two"));
    EXPECT_EQ(atPeer(), "one");
    EXPECT_EQ(atPeer(), "two");
    const QByteArray longest(MessageLink::longestMessage, 'x');
    EXPECT_TRUE(link->send(longest));
    EXPECT_EQ(atPeer(), longest);
}

TEST_F(SocketLinkTest, NothingAndTooMuchAreNoMessages)
{
    EXPECT_FALSE(link->send(QByteArray()));
    EXPECT_FALSE(link->send(QByteArray(MessageLink::longestMessage + 1, 'x')));
    EXPECT_EQ(atPeer(), QByteArray());
}

TEST_F(SocketLinkTest, WhatCameBeforeTheReceiverWaitsForIt)
{
    peerSends("early");
    QCoreApplication::processEvents();
    hear();
    EXPECT_TRUE(comesTrue([this] { return received == std::vector<QByteArray>{"early"}; }));
}

TEST_F(SocketLinkTest, APeerThatDoesNotReadKeepsNobodyWaiting)
{
    int sent = 0;
    while (sent < 100'000 && link->send("message " + QByteArray::number(sent)))
        ++sent;
    EXPECT_GE(sent, static_cast<int>(SocketLink::mostWaiting));
    EXPECT_LT(sent, 10'000);
    int read = 0;
    EXPECT_TRUE(comesTrue([&] {
        for (QByteArray message = atPeer(); !message.isEmpty(); message = atPeer())
            EXPECT_EQ(message, "message " + QByteArray::number(read++));
        return read >= sent;
    }));
    EXPECT_TRUE(link->send("again"));
    EXPECT_EQ(atPeer(), "again");
}

TEST_F(SocketLinkTest, TheEndComesAfterTheLastMessageAndOnce)
{
    hear();
    peerSends("last");
    peer.close();
    EXPECT_TRUE(comesTrue([this] { return closed > 0; }));
    EXPECT_EQ(received, std::vector<QByteArray>{"last"});
    EXPECT_FALSE(link->send("late"));
    for (int turn = 0; turn < 5; ++turn)
        QCoreApplication::processEvents();
    EXPECT_EQ(closed, 1);
}

// The kernel then reports a reset before what the peer has sent.
TEST_F(SocketLinkTest, APeerThatEndsWithMessagesUnreadIsHeardToTheEnd)
{
    hear();
    EXPECT_TRUE(link->send("unread"));
    peerSends("last");
    peer.close();
    EXPECT_TRUE(comesTrue([this] { return closed > 0; }));
    EXPECT_EQ(received, std::vector<QByteArray>{"last"});
    EXPECT_EQ(closed, 1);
}

TEST_F(SocketLinkTest, MayBeDestroyedByWhatItCalls)
{
    link->setReceiver([this](const QByteArray&) { link.reset(); });
    peerSends("one");
    peerSends("two");
    EXPECT_TRUE(comesTrue([this] { return link == nullptr; }));
    auto ends = SocketLink::pair();
    link = std::make_unique<SocketLink>(std::move(ends[0]));
    link->setReceiver([](const QByteArray&) {});
    link->setClosed([this] { link.reset(); });
    ends[1].close();
    EXPECT_TRUE(comesTrue([this] { return link == nullptr; }));
}

TEST_F(SocketLinkTest, OnlyAnEndOfSuchAPairIsOne)
{
    EXPECT_TRUE(SocketLink::isEndOfPair(peer));
    EXPECT_FALSE(SocketLink::isEndOfPair(FileDescriptor()));
    EXPECT_FALSE(SocketLink::isEndOfPair(FileDescriptor(::open("/dev/null", O_RDONLY | O_CLOEXEC))));
    EXPECT_FALSE(SocketLink::isEndOfPair(FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))));
}

TEST_F(SocketLinkTest, IsNotPassedOn)
{
    auto ends = SocketLink::pair();
    const int number = ends[0].get();
    ::fcntl(number, F_SETFD, 0); // as it is inherited
    const SocketLink inherited(std::move(ends[0]));
    EXPECT_EQ(::fcntl(number, F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
}

} // namespace

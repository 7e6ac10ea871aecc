#include "platform/linux/display/DisplayEnd.h"

#include <algorithm>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/posix/FileDescriptor.h"
#include "tests/support/MessageBus.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(DisplaySocket, IsThatOfTheSessionsDisplay)
{
    const std::pair<DisplayNames, const char*> cases[]{
        {{"", "", "/run/user/1"}, ""},
        {{"wayland-0", ":0", "/run/user/1"}, "/run/user/1/wayland-0"},
        {{"/elsewhere/socket", "", "/run/user/1"}, "/elsewhere/socket"},
        {{"", ":0", ""}, "/tmp/.X11-unix/X0"},
        {{"", ":12.3", ""}, "/tmp/.X11-unix/X12"},
        {{"", "localhost:10.0", ""}, ""},
        {{"", ":", ""}, ""},
        {{"", ":../x", ""}, ""},
    };
    for (const auto& [names, socket] : cases)
        EXPECT_EQ(displaySocket(names), QString::fromLatin1(socket)) << names.x11.toStdString();
}

/// A server of a display, as far as sockets go.
struct DisplayEndTest : testing::Test
{
    FileDescriptor listening() const
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        std::copy(path.begin(), path.end(), address.sun_path);
        FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
        EXPECT_EQ(::bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(::listen(socket.get(), 5), 0);
        return socket;
    }

    /// Returns when the end was reported, or after it has had ample time to be.
    void wait() const
    {
        const QDeadlineTimer deadline(200);
        comesTrue([&] { return deadline.hasExpired() || ended > 0; });
    }

    QTemporaryDir folder;
    QByteArray path = QFile::encodeName(folder.filePath(QStringLiteral("X0")));
    FileDescriptor server = listening();
    int ended = 0;
    DisplayEnd end{QFile::decodeName(path), std::chrono::milliseconds(20), [this] { ++ended; }};
};

TEST_F(DisplayEndTest, AServerThatGoesIsOne)
{
    wait();
    EXPECT_EQ(ended, 0);
    ::unlink(path.constData());
    server.close();
    EXPECT_TRUE(comesTrue([this] { return ended > 0; }));
    wait();
    EXPECT_EQ(ended, 1);
}

TEST_F(DisplayEndTest, AnotherServerInItsPlaceIsOneToo)
{
    ::unlink(path.constData());
    const FileDescriptor other =
        listening(); // while the first is still open, so that its file is a different one
    EXPECT_TRUE(comesTrue([this] { return ended > 0; }));
}

TEST_F(DisplayEndTest, WhatElseHappensToTheSocketIsNone)
{
    ::chmod(path.constData(), 0600);
    wait();
    EXPECT_EQ(ended, 0);
}

TEST_F(DisplayEndTest, AServerWhoseFileWasTidiedAwayGoesOn)
{
    // The same name in the abstract namespace.
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::copy(path.begin(), path.end(), address.sun_path + 1);
    FileDescriptor second(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    const auto length =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1) + static_cast<socklen_t>(path.size());
    ASSERT_EQ(::bind(second.get(), reinterpret_cast<const sockaddr*>(&address), length), 0);
    ASSERT_EQ(::listen(second.get(), 5), 0);
    ::unlink(path.constData());
    wait();
    EXPECT_EQ(ended, 0);
}

TEST(DisplayEnd, WithoutADisplayThereIsNone)
{
    int ended = 0;
    const DisplayEnd none(QString(), std::chrono::milliseconds(1), [&ended] { ++ended; });
    const DisplayEnd absent(QStringLiteral("/nowhere/X0"), std::chrono::milliseconds(1),
                            [&ended] { ++ended; });
    for (int turn = 0; turn < 5; ++turn)
        QCoreApplication::processEvents();
    EXPECT_EQ(ended, 0);
}

} // namespace

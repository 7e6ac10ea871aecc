// Questions to an X server were asked on the main thread: a server that did not answer held the program up.

#include "platform/linux/display/X11Display.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <thread>

#include <QByteArray>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "platform/linux/display/X11Connection.h"
#include "platform/linux/display/X11Desktop.h"
#include "platform/posix/FileDescriptor.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using namespace std::chrono_literals;

namespace {

struct NameRow
{
    const char* x11;
    const char* wayland;
    const char* toolkit;
    const char* asked;
};

TEST(X11DisplayName, Table)
{
    const NameRow rows[] = {
        {"", "", "", ""},                   //
        {":0", "", "", ":0"},               //
        {":0.1", "", "", ":0.1"},           //
        {":0", "wayland-0", "", ""},        //
        {":0", "wayland-0", "wayland", ""}, //
        {":0", "wayland-0", "xcb", ":0"},   //
        {":0", "", "xcb:arguments", ":0"},  //
        {":0", "", "offscreen", ""},        //
        {"", "", "xcb", ""},
    };
    for (const NameRow& row : rows)
        EXPECT_EQ(x11DisplayName(row.x11, row.wayland, row.toolkit), row.asked)
            << row.x11 << ' ' << row.wayland << ' ' << row.toolkit;
}

/// Listens where a display's server would, and answers nothing.
class SilentServer
{
public:
    SilentServer()
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        // A display has an abstract socket too, which needs no folder.
        const QByteArray name = "/tmp/.X11-unix/X" + number();
        std::copy(name.begin(), name.end(), std::begin(address.sun_path) + 1);
        const auto size = offsetof(sockaddr_un, sun_path) + 1 + static_cast<std::size_t>(name.size());
        EXPECT_EQ(::bind(m_socket.get(), reinterpret_cast<sockaddr*>(&address), static_cast<socklen_t>(size)),
                  0);
        EXPECT_EQ(::listen(m_socket.get(), 8), 0);
    }

    QByteArray display() const { return ':' + number(); }

    /// How many have asked since the last call; their connections are closed.
    int turnAway() const
    {
        int number = 0;
        while (FileDescriptor(::accept(m_socket.get(), nullptr, nullptr)).isOpen())
            ++number;
        return number;
    }

private:
    /// No display's number, and no other process's.
    static QByteArray number() { return QByteArray::number(10'000'000 + ::getpid()); }

    FileDescriptor m_socket{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)};
};

/// How many ask it, as soon as anybody does: a busy machine may give the one who asks its turn late.
int whoAsk(const SilentServer& server)
{
    int number = 0;
    for (int tries = 0; tries < 3000 && number == 0; ++tries) {
        number = server.turnAway();
        std::this_thread::sleep_for(10ms);
    }
    return number + server.turnAway();
}

std::chrono::steady_clock::time_point now()
{
    return std::chrono::steady_clock::now();
}

int answerOf(const X11Connection&)
{
    return 1;
}

TEST(X11Display, WithoutANameNothingIsAsked)
{
    X11Display display(QByteArray(), 100ms);
    EXPECT_FALSE(display.hasName());
    EXPECT_EQ(display.ask(answerOf), std::nullopt);
}

TEST(X11Display, WithoutAServerThereIsNoAnswer)
{
    X11Display display(":9999999", 60s);
    const auto begun = now();
    EXPECT_EQ(display.ask(answerOf), std::nullopt);
    ServerMark mark;
    EXPECT_EQ(x11Tray(display, mark), X11Tray{});
    EXPECT_FALSE(mark.isSet());
    EXPECT_FALSE(hasCompositor(display));
    EXPECT_EQ(pointerPosition(display), std::nullopt);
    EXPECT_LT(now() - begun, 30s);
}

TEST(X11Display, AServerThatAcceptsAndNeverAnswersIsWaitedForOnce)
{
    const SilentServer server;
    X11Display display(server.display(), 100ms);
    ServerMark mark;
    const auto begun = now();
    for (int times = 0; times < 1000; ++times)
        EXPECT_EQ(x11Tray(display, mark), X11Tray{});
    EXPECT_LT(now() - begun, 20s); // a tenth of a second each time takes longer
    EXPECT_EQ(whoAsk(server), 1);
}

TEST(X11Display, OneThatHasGivenTheLastQuestionUpIsAskedAgain)
{
    const SilentServer server;
    X11Display display(server.display(), 100ms);
    EXPECT_EQ(display.ask(answerOf), std::nullopt);
    EXPECT_EQ(whoAsk(server), 1);
    int asked = 0;
    for (int tries = 0; tries < 3000 && asked == 0; ++tries) {
        std::this_thread::sleep_for(10ms);
        EXPECT_EQ(display.ask(answerOf), std::nullopt);
        asked = server.turnAway();
    }
    EXPECT_EQ(asked, 1);
}

} // namespace

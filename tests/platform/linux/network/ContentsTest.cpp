#include "platform/linux/network/CurlUrlSession.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include "mac/ModelNameLookup.h"
#include "platform/posix/FileDescriptor.h"
#include "tests/platform/linux/network/HttpServer.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using namespace std::chrono_literals;

namespace {

std::optional<QByteArray> contents(const QString& address, std::chrono::milliseconds time = 30s)
{
    CurlSettings settings;
    settings.contents.time = time;
    return CurlUrlSession(settings).contents(address);
}

class Contents : public testing::Test
{
protected:
    static void SetUpTestSuite() { server = std::make_unique<HttpServer>(); }
    static void TearDownTestSuite() { server.reset(); }

    static std::optional<QByteArray> get(const char* path, std::chrono::milliseconds time = 30s)
    {
        return contents(server->address(path), time);
    }

    static QList<QByteArray> seen() { return get("/seen").value().split('\n'); }

    static std::unique_ptr<HttpServer> server;
};

std::unique_ptr<HttpServer> Contents::server;

TEST_F(Contents, CompleteAnswers)
{
    for (const char* path :
         {"/ok", "/chunked", "/until-close", "/gzip", "/deflate", "/redirect", "/hang-after-answer"})
        EXPECT_EQ(get(path), QByteArray("hello")) << path;
    EXPECT_EQ(get("/empty"), QByteArray(""));
    EXPECT_EQ(get("/longest").value_or(QByteArray()).size(), 64 * 1024);
}

TEST_F(Contents, FailuresGiveNothing)
{
    for (const char* path : {"/cut", "/cut-chunk", "/404", "/500", "/401", "/no-http", "/no-gzip",
                             "/odd-encoding", "/xml-br", "/reset", "/reset-at-once", "/redirect-loop"})
        EXPECT_EQ(get(path), std::nullopt) << path;
}

TEST_F(Contents, LongAnswersGiveNothingAndAreNotReadToTheirEnd)
{
    for (const char* path : {"/too-long", "/endless", "/endless-head", "/gzip-bomb"})
        EXPECT_EQ(get(path), std::nullopt) << path;
}

TEST_F(Contents, WhatComesAroundTheBodyIsBoundedToo)
{
    for (const char* path : {"/endless", "/endless-head", "/endless-extension", "/endless-extensions",
                             "/endless-trailer", "/endless-continue"}) {
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(get(path, 60s), std::nullopt) << path;
        EXPECT_LT(timer.elapsed(), 59'000) << path << " is not ended by its size";
        EXPECT_LT(get("/poured").value().toLongLong(), 16'000'000) << path;
    }
}

TEST_F(Contents, OtherHostsAreNeverAsked)
{
    for (const char* path : {"/redirect-host", "/redirect-port", "/redirect-tls", "/redirect-file"})
        EXPECT_EQ(get(path), std::nullopt) << path;
    EXPECT_FALSE(seen().contains("/other-service"));
}

TEST_F(Contents, TheWholeExchangeIsBounded)
{
    for (const char* path : {"/slow", "/slow-body", "/silent"}) {
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(get(path, 300ms), std::nullopt) << path;
        EXPECT_GE(timer.elapsed(), 299) << path;
        EXPECT_LT(timer.elapsed(), 15'000) << path;
    }
}

TEST_F(Contents, TheUsualBoundIsThreeSeconds)
{
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(CurlUrlSession().contents(server->address("/slow")), std::nullopt);
    EXPECT_GE(timer.elapsed(), 2999);
    EXPECT_LT(timer.elapsed(), 15'000);
}

TEST_F(Contents, NothingAboutTheUserIsSent)
{
    EXPECT_EQ(get("/redirect-cookie"), "GET /headers HTTP/1.1\r\nHost: " + server->host().toLatin1() +
                                           "\r\nUser-Agent: Quindle-Helper\r\nAccept-Encoding: gzip\r\n"
                                           "Connection: close\r\n\r\n");
}

TEST_F(Contents, NoProxyIsAsked)
{
    for (const char* variable : {"http_proxy", "all_proxy", "ALL_PROXY"}) {
        qputenv(variable, "http://127.0.0.1:1");
        EXPECT_EQ(get("/ok"), QByteArray("hello")) << variable;
        qunsetenv(variable);
    }
}

TEST_F(Contents, AddressesThatAreNotAsked)
{
    const QString unasked = server->host() + QStringLiteral("/unasked");
    for (const QString& address :
         {QString(), QStringLiteral("http://"), QStringLiteral("http:///ok"), QStringLiteral("http://a b/ok"),
          QStringLiteral("http://[::1/ok"), QStringLiteral("file:///etc/hostname"), unasked,
          QStringLiteral("https://") + unasked, QStringLiteral("ftp://") + unasked,
          QStringLiteral("http://user:word@") + unasked})
        EXPECT_EQ(contents(address), std::nullopt) << address.toStdString();
    EXPECT_FALSE(seen().contains("/unasked"));
}

TEST_F(Contents, NobodyListens)
{
    // A port that is taken and not listened on.
    const FileDescriptor taken(socket(AF_INET, SOCK_STREAM, 0));
    sockaddr_in address{};
    socklen_t size = sizeof address;
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ASSERT_EQ(bind(taken.get(), reinterpret_cast<sockaddr*>(&address), size), 0);
    ASSERT_EQ(getsockname(taken.get(), reinterpret_cast<sockaddr*>(&address), &size), 0);
    EXPECT_EQ(contents(QStringLiteral("http://127.0.0.1:%1/ok").arg(ntohs(address.sin_port))), std::nullopt);
}

TEST_F(Contents, NoEventIsDispatchedMeanwhile)
{
    bool dispatched = false;
    QTimer::singleShot(0, QCoreApplication::instance(), [&] { dispatched = true; });
    EXPECT_EQ(get("/slow-body", 200ms), std::nullopt);
    EXPECT_FALSE(dispatched);
    QCoreApplication::processEvents();
    EXPECT_TRUE(dispatched);
}

TEST_F(Contents, RepliesAsModelTexts)
{
    const auto modelText = [](const char* path) {
        return modelTextFromReply(QStringLiteral("F5YX"), get(path).value());
    };
    EXPECT_EQ(modelText("/xml"), QStringLiteral("(x)"));
    EXPECT_EQ(modelText("/xml-gzip"), QStringLiteral("(x)"));
    EXPECT_EQ(modelText("/xml-utf16"), QStringLiteral("(x)"));
    // Letters beyond ASCII begin another piece, and only the last one stays.
    EXPECT_EQ(modelText("/xml-latin1"), std::nullopt);
    for (const char* path :
         {"/xml-broken", "/xml-gzip-cut", "/xml-not-utf8", "/xml-unknown-encoding", "/ok", "/empty", "/204"})
        EXPECT_EQ(modelText(path), std::nullopt) << path;
}

} // namespace

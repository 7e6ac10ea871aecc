#include "platform/linux/HttpAnswer.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

using State = HttpReading::State;

constexpr qsizetype limit = 10;

TEST(HttpAnswer, CompleteOnes)
{
    const struct
    {
        QByteArray bytes;
        bool isAtEnd;
        QByteArray body;
    } cases[] = {
        {"HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello", false, "hello"},
        {"HTTP/1.1 200 OK\r\ncontent-length:5\r\n\r\nhello and more", false, "hello"},
        {"HTTP/1.0 200\r\n\r\nhello", true, "hello"},
        {"HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", false, ""},
        {"HTTP/1.1 204 No Content\r\n\r\n", false, ""},
        {"HTTP/1.1 200 OK\r\nTransfer-Encoding: Chunked\r\n\r\n3;x=y\r\nhel\r\n2\r\nlo\r\n0\r\n\r\n", false,
         "hello"},
        {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nA\r\n0123456789\r\n0\r\n", false,
         "0123456789"},
        {"HTTP/1.1 200 OK\r\nContent-Encoding: identity\r\nContent-Length: 1\r\n\r\nx", false, "x"},
    };
    for (const auto& [bytes, isAtEnd, body] : cases) {
        const HttpReading reading = readHttpAnswer(bytes, isAtEnd, limit);
        EXPECT_EQ(reading.state, State::Complete) << bytes.toStdString();
        EXPECT_EQ(reading.answer.body, body) << bytes.toStdString();
    }
}

TEST(HttpAnswer, StatusAndLocation)
{
    const auto reading =
        readHttpAnswer("HTTP/1.1 302 Found\r\nLOCATION: /a b \r\nContent-Length: 0\r\n\r\n", false, limit);
    EXPECT_EQ(reading.answer.status, 302);
    EXPECT_EQ(reading.answer.location, "/a b");
}

TEST(HttpAnswer, IncompleteUntilTheOtherSideEnds)
{
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("HTTP/1.1 200 OK\r\n"),
          QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhell"),
          QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"),
          QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nhel"),
          QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nhello\r\n")}) {
        EXPECT_EQ(readHttpAnswer(bytes, false, limit).state, State::Incomplete) << bytes.toStdString();
        EXPECT_EQ(readHttpAnswer(bytes, true, limit).state, State::Broken) << bytes.toStdString();
    }
}

TEST(HttpAnswer, BrokenOnes)
{
    for (const QByteArray& bytes :
         {QByteArray("hello\r\n\r\n"), QByteArray("HTTP/2 200 OK\r\n\r\n"),
          QByteArray("HTTP/1.1 200 OK\r\nx\r\n\r\n"),
          QByteArray("HTTP/1.1 200 OK\r\nContent-Length: x\r\n\r\n"),
          QByteArray("HTTP/1.1 200 OK\r\nContent-Length: -1\r\n\r\n"),
          QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 11\r\n\r\n"),
          QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 99999999999999999999\r\n\r\n"),
          QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: gzip\r\n\r\n"),
          QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nx\r\n"),
          QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nb\r\n"),
          QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n7fffffffffffffff\r\n"),
          QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n6\r\nhello \r\n6\r\n"),
          QByteArray("HTTP/1.1 200 OK\r\nContent-Encoding: br\r\nContent-Length: 1\r\n\r\nx"),
          QByteArray("HTTP/1.1 200 OK\r\n\r\n") + QByteArray(11, 'x'),
          QByteArray("HTTP/1.1 200 OK\r\n") + QByteArray(20'000, 'x')})
        EXPECT_EQ(readHttpAnswer(bytes, false, limit).state, State::Broken) << bytes.left(100).toStdString();
}

TEST(HttpAnswer, Decompression)
{
    const QByteArray zlib = qCompress("hello").mid(4);
    EXPECT_EQ(decompressed(zlib, limit), QByteArray("hello"));
    EXPECT_EQ(decompressed(zlib, 5), QByteArray("hello"));
    EXPECT_EQ(decompressed(zlib, 4), std::nullopt);
    EXPECT_EQ(decompressed(zlib.chopped(1), limit), std::nullopt);
    EXPECT_EQ(decompressed("hello", limit), std::nullopt);
    EXPECT_EQ(decompressed({}, limit), std::nullopt);
}

} // namespace

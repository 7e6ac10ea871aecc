#pragma once

#include <optional>

#include <QByteArray>

namespace quindle {

struct HttpAnswer
{
    int status = 0;
    QByteArray location; ///< where a redirection points to; empty without one
    QByteArray body;     ///< decoded and decompressed
};

/// What the bytes that have come so far amount to.
struct HttpReading
{
    enum class State { Incomplete, Broken, Complete };

    State state = State::Incomplete;
    HttpAnswer answer; ///< only when complete
};

/// Reads an HTTP/1 answer to a GET from `bytes`, the first ones of a connection; `isAtEnd` when no more will
/// come. A body longer than `bodyLimit`, before or after decompression, makes it broken.
HttpReading readHttpAnswer(const QByteArray& bytes, bool isAtEnd, qsizetype bodyLimit);

/// `compressed` (gzip or zlib) in full; nothing when it is damaged, cut off or longer than `limit`.
std::optional<QByteArray> decompressed(const QByteArray& compressed, qsizetype limit);

} // namespace quindle

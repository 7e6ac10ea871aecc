#pragma once

#include <chrono>
#include <optional>

#include <QByteArray>
#include <QString>

namespace quindle {

struct HttpLimits
{
    std::chrono::milliseconds time{3000};  ///< for the whole exchange, finding the host included
    qsizetype size = qsizetype{64} * 1024; ///< of the body, before and after decompression
};

/// The body of the answer to a GET of `url`, an http address with a host. Nothing for another address, an
/// answer other than a success, one that is cut off, too late or too long, and a redirection to another host.
/// No cookies are sent or kept. Waits without dispatching any event.
std::optional<QByteArray> httpContents(const QString& url, const HttpLimits& limits = {});

} // namespace quindle

#pragma once

#include <chrono>
#include <optional>
#include <stop_token>

#include <QByteArray>
#include <QList>
#include <QUrl>

namespace quindle {

struct HttpRequest
{
    QUrl url;                         ///< http or https, with a host
    QList<QByteArray> headers;        ///< all there are besides "Host", in this order
    std::optional<QByteArray> body{}; ///< is posted; without one it is a GET
    QByteArray authorities{};         ///< a file of certificate authorities to trust; the system's when empty
};

struct HttpLimits
{
    std::chrono::milliseconds time; ///< for the whole exchange, including the lookup of the host
    qsizetype size; ///< of the answer's body, decompressed; head and framing may take three times as much
};

struct HttpAnswer
{
    long status = 0;
    QByteArray body;    ///< decompressed; of a compressed one that is cut off, what there is
    QUrl redirection{}; ///< where the answer redirects to; empty when nowhere
};

/// Sends `request` once and waits for its answer, without dispatching any event. Nothing without a complete
/// answer within the limits, and as soon as a stop is requested. Certificates and their host names are
/// verified; redirections are not followed; the user's proxies, cookies, passwords and settings are not used.
/// Any thread, after curl_global_init().
std::optional<HttpAnswer> exchangeOverHttp(const HttpRequest& request, const HttpLimits& limits,
                                           const std::stop_token& stop = {});

} // namespace quindle

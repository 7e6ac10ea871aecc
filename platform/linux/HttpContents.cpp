#include "platform/linux/HttpContents.h"

#include <QUrl>

#include "platform/linux/HttpAnswer.h"
#include "platform/linux/TcpExchange.h"

// On plain sockets: the network library's client reads a head without end for ever, whatever its time limit,
// and loading it costs every process 200 kB.
namespace quindle {

namespace {

constexpr int httpPort = 80;

QByteArray requestFor(const QUrl& url)
{
    const QByteArray query = url.query(QUrl::FullyEncoded).toLatin1();
    QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    if (path.isEmpty())
        path = "/";
    if (!query.isEmpty())
        path += '?' + query;
    const QByteArray host = url.authority(QUrl::FullyEncoded).toLatin1();
    return "GET " + path + " HTTP/1.1\r\nHost: " + host +
           "\r\nUser-Agent: Quindle-Helper\r\nAccept-Encoding: gzip\r\nConnection: close\r\n\r\n";
}

bool canBeAsked(const QUrl& url)
{
    return url.isValid() && url.scheme() == u"http" && !url.host().isEmpty() && url.userInfo().isEmpty();
}

bool isSameService(const QUrl& left, const QUrl& right)
{
    return left.host() == right.host() && left.port(httpPort) == right.port(httpPort);
}

std::optional<HttpAnswer> answerOf(const QUrl& url, Deadline deadline, qsizetype sizeLimit)
{
    HttpReading reading;
    exchangeOverTcp(url.host(QUrl::FullyEncoded), url.port(httpPort), requestFor(url), deadline,
                    [&](const QByteArray& bytes, bool isAtEnd) {
                        reading = readHttpAnswer(bytes, isAtEnd, sizeLimit);
                        return reading.state == HttpReading::State::Incomplete;
                    });
    if (reading.state != HttpReading::State::Complete)
        return std::nullopt;
    return reading.answer;
}

bool isSuccess(int status)
{
    return status >= 200 && status < 300;
}

bool isRedirection(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

} // namespace

std::optional<QByteArray> httpContents(const QString& url, const HttpLimits& limits)
{
    constexpr int mostRedirections = 5;
    const Deadline deadline = std::chrono::steady_clock::now() + limits.time;
    QUrl address(url);
    for (int redirections = 0; canBeAsked(address) && redirections <= mostRedirections; ++redirections) {
        const auto answer = answerOf(address, deadline, limits.size);
        if (!answer)
            return std::nullopt;
        if (isSuccess(answer->status))
            return answer->body;
        const QUrl next = address.resolved(QUrl(QString::fromUtf8(answer->location)));
        if (!isRedirection(answer->status) || answer->location.isEmpty() || !isSameService(address, next))
            return std::nullopt;
        address = next;
    }
    return std::nullopt;
}

} // namespace quindle

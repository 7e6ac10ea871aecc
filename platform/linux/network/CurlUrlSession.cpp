#include "platform/linux/network/CurlUrlSession.h"

#include <utility>

#include <QDeadlineTimer>
#include <curl/curl.h>

namespace quindle {

namespace {

constexpr int httpPort = 80;

bool canBeAsked(const QUrl& url, QStringView scheme)
{
    // A password in an address would be sent to whatever host it names.
    return url.isValid() && url.scheme() == scheme && !url.host().isEmpty() && url.userInfo().isEmpty();
}

bool isSameService(const QUrl& left, const QUrl& right)
{
    return left.host() == right.host() && left.port(httpPort) == right.port(httpPort);
}

bool isSuccess(long status)
{
    return status >= 200 && status < 300;
}

} // namespace

CurlUrlSession::CurlUrlSession(CurlSettings settings)
    : m_settings(std::move(settings))
{
    curl_global_init(CURL_GLOBAL_DEFAULT);
}

void CurlUrlSession::post(const QString& url, const QByteArray& body,
                          std::function<void(int status, const QByteArray& body)> answered)
{
    // The same headers for everybody: they say nothing about user, system or language.
    HttpRequest request{.url = QUrl(url),
                        .headers = {"Content-Length: " + QByteArray::number(body.size()),
                                    "User-Agent: Quindle-Helper", "Accept-Language: en",
                                    "Connection: Keep-Alive", "Accept-Encoding: zstd, br, gzip, deflate"},
                        .body = body,
                        .authorities = m_settings.authorities};
    if (!canBeAsked(request.url, u"https"))
        return;
    const auto post = m_posts.insert(m_posts.end(), Post{.answered = std::move(answered), .thread = {}});
    post->thread = std::jthread([this, post, request = std::move(request)](const std::stop_token& stop) {
        const auto answer = exchangeOverHttp(request, m_settings.post, stop);
        const auto finished = [this, post, answer] { finish(post, answer); };
        QMetaObject::invokeMethod(&m_mainThread, finished, Qt::QueuedConnection);
    });
}

void CurlUrlSession::finish(std::list<Post>::iterator post, const std::optional<HttpAnswer>& answer)
{
    const auto answered = std::move(post->answered);
    // Before the callback, which may end this object.
    m_posts.erase(post);
    if (answer)
        answered(static_cast<int>(answer->status), answer->body);
}

std::optional<QByteArray> CurlUrlSession::contents(const QString& url)
{
    constexpr int mostRedirections = 5;
    // One deadline for all redirections together: the start waits for this call.
    const QDeadlineTimer deadline(m_settings.contents.time);
    HttpRequest request{
        .url = QUrl(url),
        .headers = {"User-Agent: Quindle-Helper", "Accept-Encoding: gzip", "Connection: close"}};
    for (int redirections = 0; redirections <= mostRedirections; ++redirections) {
        if (!canBeAsked(request.url, u"http") || deadline.hasExpired())
            return std::nullopt;
        const std::chrono::milliseconds left(deadline.remainingTime());
        const auto answer = exchangeOverHttp(request, {.time = left, .size = m_settings.contents.size});
        if (!answer)
            return std::nullopt;
        if (isSuccess(answer->status))
            return answer->body;
        // Another host would learn the end of the serial number.
        if (!isSameService(request.url, answer->redirection))
            return std::nullopt;
        request.url = answer->redirection;
    }
    return std::nullopt;
}

} // namespace quindle

#include "platform/macos/MacUrlSession.h"

#include <utility>

#include <QUrl>

namespace quindle {

namespace {

constexpr double postPatience = 60.0; // seconds
constexpr double getPatience = 3.0;   // the main thread waits for it

// Longer than any answer of the services; the rest is ignored.
constexpr qsizetype longestBody = 256 * 1024;

bool isUsable(const QString& url, const QString& scheme)
{
    const QUrl parsed(url);
    return parsed.isValid() && parsed.scheme() == scheme && !parsed.host().isEmpty();
}

bool isSuccess(int status)
{
    return status >= 200 && status < 300;
}

} // namespace

MacUrlSession::MacUrlSession(HttpCalls& calls)
    : m_calls(calls)
    , m_alive(std::make_shared<int>())
{
}

void MacUrlSession::post(const QString& url, const QByteArray& body,
                         std::function<void(int status, const QByteArray& body)> answered)
{
    if (!isUsable(url, QStringLiteral("https")))
        return;
    m_calls.post(url, body, postPatience,
                 [alive = std::weak_ptr(m_alive), answered = std::move(answered)](const HttpAnswer& answer) {
                     if (!alive.expired() && answer.body.size() <= longestBody)
                         answered(answer.status, answer.body);
                 });
}

std::optional<QByteArray> MacUrlSession::contents(const QString& url)
{
    if (!isUsable(url, QStringLiteral("http")))
        return std::nullopt;
    const auto answer = m_calls.get(url, getPatience);
    if (!answer || !isSuccess(answer->status) || answer->body.size() > longestBody)
        return std::nullopt;
    return answer->body;
}

} // namespace quindle

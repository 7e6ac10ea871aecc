#include "platform/linux/HttpsPost.h"

#include <utility>

#include <QNetworkAccessManager>
#include <QUrl>

#include "platform/linux/HttpsExchange.h"

namespace quindle {

HttpsPost::HttpsPost(HttpsLimits limits)
    : m_limits(limits)
{
}

HttpsPost::HttpsPost(HttpsLimits limits, const QSslConfiguration& configuration)
    : m_limits(limits)
    , m_configuration(configuration)
{
}

HttpsPost::~HttpsPost() = default;

void HttpsPost::post(const QString& url, const QByteArray& body,
                     std::function<void(int status, const QByteArray& body)> answered)
{
    const QUrl address(url);
    if (address.scheme() != u"https" || address.host().isEmpty())
        return;
    if (!m_manager)
        m_manager = std::make_unique<QNetworkAccessManager>();
    new HttpsExchange(*m_manager, {.url = address, .body = body, .configuration = m_configuration}, m_limits,
                      std::move(answered)); // belongs to the manager
}

} // namespace quindle

#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include <QByteArray>
#include <QSslConfiguration>
#include <QString>

#include "platform/linux/Poster.h"

QT_BEGIN_NAMESPACE
class QNetworkAccessManager;
QT_END_NAMESPACE

namespace quindle {

struct HttpsLimits
{
    std::chrono::milliseconds time{30'000}; ///< for one whole exchange, finding the host included
    qint64 size = qint64{64} * 1024;        ///< of the answer's body
};

/// Posts over HTTPS beside the event loop of the thread it lives in. Certificates are always verified,
/// redirections are not followed, no cookies are sent or kept, nothing is sent twice, and no header tells
/// anything about the user. Destroying it ends what is still under way, at once.
class HttpsPost : public Poster
{
public:
    explicit HttpsPost(HttpsLimits limits = {});

    /// Trusts what `configuration` trusts, in place of the system's authorities.
    HttpsPost(HttpsLimits limits, const QSslConfiguration& configuration);

    ~HttpsPost() override;

    /// Posts `body` to an https address; does nothing for another one. `answered` is called with the status
    /// and body of a complete answer, whatever the status; not at all when there is none within the limits.
    void post(const QString& url, const QByteArray& body,
              std::function<void(int status, const QByteArray& body)> answered) override;

private:
    HttpsLimits m_limits;
    std::optional<QSslConfiguration> m_configuration;
    std::unique_ptr<QNetworkAccessManager> m_manager; ///< made for the first post
};

} // namespace quindle

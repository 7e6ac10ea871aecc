#include "platform/linux/HttpsExchange.h"

#include <algorithm>
#include <future>
#include <utility>

#include <QIODevice>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSocketNotifier>
#include <QTimer>
#include <sys/eventfd.h>

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/HostAddresses.h"

namespace quindle {

namespace {

constexpr int httpsPort = 443;

/// A body that can be read once only. From one that can be read again the network library repeats the whole
/// request, several times, when a server ends the connection without an answer.
class BodyReadOnce : public QIODevice
{
public:
    BodyReadOnce(QByteArray body, QObject* parent)
        : QIODevice(parent)
        , m_body(std::move(body))
    {
        open(ReadOnly | Unbuffered);
    }

    bool isSequential() const override { return true; }
    bool reset() override { return false; }
    bool atEnd() const override { return m_position == m_body.size(); }
    qint64 bytesAvailable() const override { return m_body.size() - m_position; }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        const qint64 length = std::min(maxSize, bytesAvailable());
        std::copy_n(m_body.constData() + m_position, length, data);
        m_position += length;
        return length;
    }
    qint64 writeData(const char* /*data*/, qint64 /*maxSize*/) override { return -1; }

private:
    QByteArray m_body;
    qint64 m_position = 0;
};

/// Errors above these are the server's own words; those below say that no complete answer came.
bool isAnswered(QNetworkReply::NetworkError error)
{
    return error == QNetworkReply::NoError ||
           (error >= QNetworkReply::ContentAccessDenied && error != QNetworkReply::ProtocolFailure);
}

/// A lookup under way, kept alive by the thread that makes it and by whoever still waits.
struct Lookup
{
    std::promise<HostAddresses> addresses;
    FileDescriptor done{eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
};

std::vector<QHostAddress> lastToFirst(const HostAddresses& addresses)
{
    std::vector<QHostAddress> found;
    for (const addrinfo* address = addresses.get(); address; address = address->ai_next)
        found.emplace_back(address->ai_addr);
    std::reverse(found.begin(), found.end());
    return found;
}

QByteArray asciiHost(const QUrl& url)
{
    return url.host(QUrl::FullyEncoded).toLatin1();
}

} // namespace

HttpsExchange::HttpsExchange(QNetworkAccessManager& manager, HttpsMessage message, HttpsLimits limits,
                             Answered answered)
    : QObject(&manager)
    , m_manager(manager)
    , m_message(std::move(message))
    , m_largestAnswer(limits.size)
    , m_deadline(limits.time)
    , m_answered(std::move(answered))
{
    QTimer::singleShot(limits.time, this, &QObject::deleteLater);
    lookUp();
}

void HttpsExchange::lookUp()
{
    const auto lookup = std::make_shared<Lookup>();
    auto* done = new QSocketNotifier(lookup->done.get(), QSocketNotifier::Read, this);
    connect(done, &QSocketNotifier::activated, this, [this, lookup, done] {
        done->setEnabled(false);
        m_addresses = lastToFirst(lookup->addresses.get_future().get());
        tryNextAddress();
    });
    lookUpHost(asciiHost(m_message.url), m_message.url.port(httpsPort), [lookup](HostAddresses addresses) {
        lookup->addresses.set_value(std::move(addresses));
        eventfd_write(lookup->done.get(), 1);
    });
}

void HttpsExchange::tryNextAddress()
{
    if (m_addresses.empty()) {
        deleteLater();
        return;
    }
    const std::size_t addressesLeft = m_addresses.size();
    const QNetworkRequest request = requestTo(m_addresses.back());
    m_addresses.pop_back();
    auto* body = new BodyReadOnce(m_message.body, this);
    // Not its post(), which would add a content type.
    QNetworkReply* reply = m_manager.sendCustomRequest(request, "POST", body);
    reply->setParent(this);
    body->setParent(reply);
    connect(reply, &QNetworkReply::encrypted, this, [this] { m_isEncrypted = true; });
    connect(reply, &QNetworkReply::readyRead, reply, [this, reply] {
        if (reply->bytesAvailable() > m_largestAnswer)
            reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply] { finish(reply); });
    giveAddressItsShare(reply, addressesLeft);
}

/// The host's name stays what the certificate is verified for and what the server is told.
QNetworkRequest HttpsExchange::requestTo(const QHostAddress& address) const
{
    QUrl url = m_message.url;
    url.setHost(address.toString());
    const int port = url.port(httpsPort);
    const QByteArray host = asciiHost(m_message.url);
    QNetworkRequest request(url);
    request.setPeerVerifyName(QString::fromLatin1(host));
    request.setRawHeader("Host", port == httpsPort ? host : host + ':' + QByteArray::number(port));
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false); // would tell the address as the host
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    request.setHeader(QNetworkRequest::ContentLengthHeader, m_message.body.size());
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Quindle-Helper"));
    request.setRawHeader("Accept-Language", "en"); // otherwise the user's language would be told
    if (m_message.configuration)
        request.setSslConfiguration(*m_message.configuration);
    return request;
}

/// An address that does not answer leaves the others their part of the time.
void HttpsExchange::giveAddressItsShare(QNetworkReply* reply, std::size_t addressesLeft)
{
    const auto share = m_deadline.remainingTimeAsDuration() / addressesLeft;
    QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(share), reply, [this, reply] {
        if (!m_isEncrypted)
            reply->abort();
    });
}

/// Before the connection is encrypted nothing has been sent: then another address may be tried.
void HttpsExchange::finish(QNetworkReply* reply)
{
    reply->deleteLater();
    if (!m_isEncrypted && reply->error() != QNetworkReply::SslHandshakeFailedError) {
        tryNextAddress();
        return;
    }
    deleteLater();
    const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (status.isValid() && isAnswered(reply->error()))
        m_answered(status.toInt(), reply->readAll());
}

} // namespace quindle

#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QByteArray>
#include <QDeadlineTimer>
#include <QHostAddress>
#include <QObject>
#include <QSslConfiguration>
#include <QUrl>

#include "platform/linux/HttpsPost.h"

QT_BEGIN_NAMESPACE
class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;
QT_END_NAMESPACE

namespace quindle {

struct HttpsMessage
{
    QUrl url; ///< https, with a host
    QByteArray body;
    std::optional<QSslConfiguration> configuration; ///< the system's when empty
};

/// One post under way: looks the host up, tries its addresses one after the other until one encrypts the
/// connection, and posts there. Belongs to the network manager and ends itself; to delete it ends it at once.
/// The host is looked up here because the network library waits for its own lookups when the program ends.
class HttpsExchange : public QObject
{
public:
    using Answered = std::function<void(int status, const QByteArray& body)>;

    HttpsExchange(QNetworkAccessManager& manager, HttpsMessage message, HttpsLimits limits,
                  Answered answered);

private:
    void lookUp();
    void tryNextAddress();
    QNetworkRequest requestTo(const QHostAddress& address) const;
    void giveAddressItsShare(QNetworkReply* reply, std::size_t addressesLeft);
    void finish(QNetworkReply* reply);

    QNetworkAccessManager& m_manager;
    HttpsMessage m_message;
    qint64 m_largestAnswer;
    QDeadlineTimer m_deadline;
    Answered m_answered;
    std::vector<QHostAddress> m_addresses; ///< those not yet tried, the next one last
    bool m_isEncrypted = false;
};

} // namespace quindle

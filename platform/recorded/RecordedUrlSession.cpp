#include "platform/recorded/RecordedUrlSession.h"

#include <QUrl>
#include <QUrlQuery>

#include "platform/recorded/RecordedComputer.h"

namespace quindle {

void RecordedUrlSession::post(const QString& url, const QByteArray& body,
                              std::function<void(int status, const QByteArray& body)> /*answered*/)
{
    m_posts.emplace_back(url, body);
}

std::optional<QByteArray> RecordedUrlSession::contents(const QString& url)
{
    const QUrlQuery query{QUrl(url)};
    const auto code = query.queryItemValue(QStringLiteral("cc"), QUrl::FullyDecoded);
    const std::optional<QString> reply = m_computer.reply(code);
    if (!reply)
        return std::nullopt;
    return reply->toUtf8();
}

} // namespace quindle

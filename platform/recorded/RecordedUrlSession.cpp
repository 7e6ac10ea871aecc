#include "platform/recorded/RecordedUrlSession.h"

#include "platform/recorded/RecordedComputer.h"

namespace quindle {

namespace {

/// The code as it is in the address, which holds it without escapes whatever its characters are.
QString configurationCodeIn(const QString& url)
{
    const QString before = QStringLiteral("/sp/product?cc=");
    const qsizetype start = url.indexOf(before);
    const qsizetype end = url.lastIndexOf(QStringLiteral("&lang="));
    if (start < 0 || end < start)
        return {};
    return url.mid(start + before.size(), end - start - before.size());
}

} // namespace

void RecordedUrlSession::post(const QString& url, const QByteArray& body,
                              std::function<void(int status, const QByteArray& body)> /*answered*/)
{
    // Kept and never answered: a replay must not reach any service.
    m_posts.emplace_back(url, body);
}

std::optional<QByteArray> RecordedUrlSession::contents(const QString& url)
{
    const std::optional<QString> reply = m_computer.reply(configurationCodeIn(url));
    if (!reply)
        return std::nullopt;
    return reply->toUtf8();
}

} // namespace quindle

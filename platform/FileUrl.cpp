#include "platform/FileUrl.h"

#include <QUrl>

#include "common/Paths.h"

namespace quindle {

QString fileUrl(const QString& path)
{
    if (path.isValidUtf16())
        return QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    // The class would replace each byte that is not UTF-8.
    return QStringLiteral("file://") +
           QString::fromLatin1(pathBytes(path).toPercentEncoding("/!$&'()*+,;=:@[]"));
}

QString pathOfFileUrl(const QString& url)
{
    const QUrl parsed(url); // accepts blanks and the like that were not encoded
    const QByteArray bytes = QByteArray::fromPercentEncoding(parsed.path(QUrl::FullyEncoded).toLatin1());
    return bytes.isValidUtf8() ? parsed.toLocalFile() : pathText(bytes);
}

QString normalFileUrl(const QString& url)
{
    QUrl parsed(url);
    if (parsed.scheme() != u"file")
        return url;
    if (parsed.host() == u"localhost") // the older way to write the same
        parsed.setHost(QString());
    QString path = pathOfFileUrl(parsed.toString(QUrl::FullyEncoded));
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    // Bundles are folders, and items resolve to them with a slash; the disk is not consulted, as they may be
    // gone.
    return fileUrl(path.endsWith(u".app") ? path + u'/' : path);
}

} // namespace quindle

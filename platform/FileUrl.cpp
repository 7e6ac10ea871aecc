#include "platform/FileUrl.h"

#include <QUrl>

namespace quindle {

QString fileUrl(const QString& path)
{
    return QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
}

QString normalFileUrl(const QString& url)
{
    QUrl parsed(url); // takes blanks and the like that were not encoded
    if (parsed.scheme() != u"file")
        return url;
    if (parsed.host() == u"localhost") // the older way to write the same
        parsed.setHost(QString());
    QString path = parsed.toLocalFile();
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return fileUrl(path.endsWith(u".app") ? path + u'/' : path);
}

} // namespace quindle

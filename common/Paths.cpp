#include "common/Paths.h"

#include <QDir>

namespace quindle {

namespace {

QString withoutTrailingSlashes(QString path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

} // namespace

QString pathWithoutLastComponent(const QString& path)
{
    const QString trimmed = withoutTrailingSlashes(path);
    const qsizetype slash = trimmed.lastIndexOf(u'/');
    if (slash < 0)
        return QStringLiteral("");
    if (slash == 0)
        return QStringLiteral("/");
    return withoutTrailingSlashes(trimmed.left(slash));
}

QString pathWithTildeExpanded(const QString& path)
{
    if (path != u"~" && !path.startsWith(QStringLiteral("~/")))
        return path;
    return QDir::homePath() + path.mid(1);
}

} // namespace quindle

#include "inspect/NeutralPath.h"

namespace quindle {

namespace {

/// Where a user's name comes next.
constexpr QStringView foldersOfUsers[] = {
    u"/home/",     u"/Users/",     u"/var/home/", u"/usr/home/", u"/export/home/",   u"/net/home/",
    u"/mnt/home/", u"/run/media/", u"/media/",    u"/Volumes/",  u"/var/lib/homes/",
};

QString withoutName(const QString& path, qsizetype begin)
{
    const qsizetype slash = path.indexOf(u'/', begin);
    const qsizetype end = slash < 0 ? path.size() : slash;
    return end == begin ? path : path.left(begin) + QStringLiteral("user") + path.mid(end);
}

} // namespace

QString neutralPath(const QString& path, const QString& home)
{
    // The home folder first: it may be anywhere. "/", as some system accounts have it, names nobody.
    if (home.size() > 1 && (path == home || path.startsWith(home + u'/')))
        return QStringLiteral("/home/user") + path.mid(home.size());
    for (const QStringView folder : foldersOfUsers)
        if (path.startsWith(folder))
            return withoutName(path, folder.size());
    return path;
}

} // namespace quindle

#include "inspect/NeutralPath.h"

#include <QDir>

namespace quindle {

namespace {

/// Folders in which a user's name comes next.
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
    // The home folder first: it may be anywhere, and HOME may end with a slash. "/", as some system accounts
    // have it, names nobody.
    const QString folder = QDir::cleanPath(home);
    if (folder.size() > 1 && (path == folder || path.startsWith(folder + u'/')))
        return QStringLiteral("/home/user") + path.mid(folder.size());
    for (const QStringView users : foldersOfUsers)
        if (path.startsWith(users))
            return withoutName(path, users.size());
    return path;
}

} // namespace quindle

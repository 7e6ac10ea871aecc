#include "preferences/StartupLaunch_pref.h"

#include <optional>

#include <QString>
#include <QUrl>

#include "platform/LoginItems.h"

namespace quindle {

namespace {

QString helperBundle(const QString& bundlePath, const QString& nestedBundle)
{
    return bundlePath.contains(QStringLiteral("Quindle-Helper")) ? bundlePath : bundlePath + nestedBundle;
}

QString fileUrl(const QString& path)
{
    return QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
}

/// Items are compared with a trailing slash in the nested bundle's path, and are inserted without.
QString searchLocation(const QString& bundlePath)
{
    return fileUrl(helperBundle(bundlePath, QStringLiteral("/Contents/Resources/Quindle-Helper.app/")));
}

QString insertLocation(const QString& bundlePath)
{
    return fileUrl(helperBundle(bundlePath, QStringLiteral("/Contents/Resources/Quindle-Helper.app")));
}

std::optional<LoginItems::Item> helperItem(LoginItems& items, const QString& bundlePath)
{
    const auto snapshot = items.snapshot();
    if (!snapshot)
        return std::nullopt;
    const QString wanted = searchLocation(bundlePath);
    for (const LoginItems::Item item : *snapshot)
        if (items.resolve(item) == wanted)
            return item;
    return std::nullopt;
}

} // namespace

bool StartupLaunch_pref::isAppLoginItem(LoginItems& items, const QString& bundlePath)
{
    return helperItem(items, bundlePath).has_value();
}

void StartupLaunch_pref::setLaunchOnLogin(LoginItems& items, const QString& bundlePath, bool enable)
{
    const auto item = helperItem(items, bundlePath);
    if (!items.snapshot()) // the list is created a second time to be changed, and may be gone by then
        return;
    if (enable && !item)
        items.insertBeforeFirst(insertLocation(bundlePath));
    else if (!enable && item)
        items.remove(*item);
}

} // namespace quindle

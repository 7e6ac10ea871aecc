#include "settings/StartupLaunch_pref.h"

#include <optional>

#include <QString>

#include "platform/Bundle.h"
#include "platform/FileUrl.h"
#include "platform/LoginItems.h"

namespace quindle {

namespace {

QString insertLocation(const QString& bundlePath)
{
    return fileUrl(helperBundlePath(bundlePath));
}

/// inherited: what is inserted has no slash at its end, what is searched for has one, because an item
/// resolves to the bundle's folder. Items are brought to the same form, because a list may hold either.
QString searchLocation(const QString& bundlePath)
{
    return normalFileUrl(insertLocation(bundlePath));
}

std::optional<LoginItems::Item> helperItem(LoginItems& items, const QString& bundlePath)
{
    const auto snapshot = items.snapshot();
    if (!snapshot)
        return std::nullopt;
    // By what an item starts, not by its name: other programs and the user make entries too.
    const QString wanted = searchLocation(bundlePath);
    for (const LoginItems::Item item : *snapshot) {
        const auto url = items.resolve(item);
        if (url && normalFileUrl(*url) == wanted)
            return item;
    }
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
    if (!items.snapshot()) // inherited: fetched again to be changed; it may be gone by then
        return;
    // One item is enough: two would start the helper twice.
    if (enable && !item)
        items.insertBeforeFirst(insertLocation(bundlePath));
    else if (!enable && item)
        items.remove(*item);
}

} // namespace quindle

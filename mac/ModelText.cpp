#include "mac/ModelText.h"

#include "common/NumberConversion.h"
#include "platform/UserDefaults.h"
#include "settings/SettingsTable.h"

namespace quindle {

namespace {

std::optional<QString> fullModelText(const QString& code, UserDefaults& defaults,
                                     const OnlineModelText& online)
{
    QVariantMap cache = defaults.dictionary(Keys::modelStringCache.name());
    // An entry of another type counts as none: anybody may edit the file.
    if (auto cached = convertToText(cache.value(code)))
        return cached;
    // May take seconds, and the start waits for it: hence the cache, which is never emptied.
    auto text = online(code);
    if (text) { // without an answer the next start asks again
        cache.insert(code, *text);
        defaults.setObject(Keys::modelStringCache.name(), cache);
    }
    return text;
}

} // namespace

std::optional<QString> modelText(const QString& code, UserDefaults& defaults, const OnlineModelText& online)
{
    if (code.isEmpty())
        return std::nullopt;
    // inherited: the code of the demonstration serial needs neither cache nor service.
    if (code == QStringLiteral("F5YW"))
        return QStringLiteral("(11-inch, Late 2013)");
    auto text = fullModelText(code, defaults, online);
    if (!text)
        return std::nullopt;
    // Only what is shown is shortened; the cache keeps the service's text.
    return shortenedModelText(std::move(*text));
}

QString shortenedModelText(QString text)
{
    text.replace(QStringLiteral("Aluminium"), QStringLiteral("Al."));
    text.replace(QStringLiteral("Retina 5K"), QStringLiteral("5K"));
    text.replace(QStringLiteral("Retina 4K"), QStringLiteral("4K"));
    return text;
}

} // namespace quindle

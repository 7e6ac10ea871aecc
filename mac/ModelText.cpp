#include "mac/ModelText.h"

#include "common/NumberConversion.h"
#include "platform/UserDefaults.h"

namespace quindle {

namespace {

std::optional<QString> cachedModelText(const QString& code, const UserDefaults& defaults)
{
    return convertToText(defaults.dictionary(QStringLiteral("modelStringCache")).value(code));
}

} // namespace

std::optional<QString> modelText(const QString& code, const UserDefaults& defaults)
{
    if (code.isEmpty())
        return std::nullopt;
    if (code ==
        QStringLiteral("F5YW")) // the code of the demonstration serial needs neither cache nor service
        return QStringLiteral("(11-inch, Late 2013)");
    auto text = cachedModelText(code, defaults);
    if (!text)
        return std::nullopt;
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

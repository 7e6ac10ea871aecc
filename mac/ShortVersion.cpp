#include "mac/ShortVersion.h"

#include "common/ValueDescription.h"
#include "platform/Bundle.h"

namespace quindle {

std::optional<QString> shortVersion(const Bundle& bundle)
{
    const auto info = bundle.infoDictionary();
    if (!info)
        return std::nullopt;
    const QVariant version = info->value(QStringLiteral("CFBundleShortVersionString"));
    if (!version.isValid())
        return std::nullopt;
    return valueDescription(version);
}

} // namespace quindle

#include "platform/macos/MacHost.h"

#include "plist/PropertyList.h"

namespace quindle {

std::optional<QVariantMap> MacSystemFiles::propertyList(const QString& path) const
{
    const auto list = propertyListFromFile(path);
    if (!list || list->typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    return list->toMap();
}

} // namespace quindle

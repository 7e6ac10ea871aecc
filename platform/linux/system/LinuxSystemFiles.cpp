#include "platform/linux/system/LinuxSystemFiles.h"

#include "plist/PropertyList.h"

namespace quindle {

std::optional<QVariantMap> dictionaryFromFile(const QString& path)
{
    const std::optional<QVariant> value = propertyListFromFile(path);
    if (!value || value->typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    return value->toMap();
}

LinuxSystemFiles::LinuxSystemFiles(QString root)
    : m_root(std::move(root))
{
}

std::optional<QVariantMap> LinuxSystemFiles::propertyList(const QString& path) const
{
    return dictionaryFromFile(m_root + path);
}

} // namespace quindle

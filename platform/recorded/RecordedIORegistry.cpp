#include "platform/recorded/RecordedIORegistry.h"

#include "platform/recorded/RecordedComputer.h"

namespace quindle {

RegistryObject RecordedIORegistry::serviceMatchingName(const QString& name)
{
    if (!m_computer.registryEntry(name))
        return 0;
    m_open.emplace(++m_last, name);
    return m_last;
}

RegistryObject RecordedIORegistry::serviceMatchingClass(const QString& className)
{
    return serviceMatchingName(className);
}

QVariant RecordedIORegistry::property(RegistryObject object, const QString& key)
{
    return properties(object).value(key);
}

QVariantMap RecordedIORegistry::properties(RegistryObject object)
{
    const auto found = m_open.find(object);
    if (found == m_open.end())
        return {};
    return m_computer.registryEntry(found->second).value_or(QVariantMap());
}

IOStatus RecordedIORegistry::release(RegistryObject object)
{
    return m_open.erase(object) > 0 ? kIOReturnSuccess : kIOReturnNotFound;
}

} // namespace quindle

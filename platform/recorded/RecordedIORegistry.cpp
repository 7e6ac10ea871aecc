#include "platform/recorded/RecordedIORegistry.h"

#include "platform/recorded/RecordedComputer.h"

namespace quindle {

RegistryObject RecordedIORegistry::serviceMatchingName(const QString& name)
{
    if (!m_computer.registryEntry(name))
        return 0;
    // Counted from 1, since 0 stands for no entry.
    m_open.emplace(++m_last, name);
    return m_last;
}

RegistryObject RecordedIORegistry::serviceMatchingClass(const QString& className)
{
    // A machine file has one name for each entry, by which both ways find it.
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
    // Looked up at each read: steps change the entry under an open handle, or take it out.
    return m_computer.registryEntry(found->second).value_or(QVariantMap());
}

IOStatus RecordedIORegistry::release(RegistryObject object)
{
    return m_open.erase(object) > 0 ? kIOReturnSuccess : kIOReturnNotFound;
}

} // namespace quindle

#include "platform/macos/MacRegistry.h"

namespace quindle {

MacRegistry::~MacRegistry()
{
    for (const auto& [object, entry] : m_open)
        m_calls.release(entry);
}

RegistryObject MacRegistry::serviceMatchingName(const QString& name)
{
    return opened(m_calls.findName(name));
}

RegistryObject MacRegistry::serviceMatchingClass(const QString& className)
{
    return opened(m_calls.findClass(className));
}

RegistryObject MacRegistry::opened(quint32 entry)
{
    if (entry == 0)
        return 0;
    // Numbers of our own: the system gives one number for one entry, however often it is opened.
    m_open.emplace(++m_last, entry);
    return m_last;
}

QVariant MacRegistry::property(RegistryObject object, const QString& key)
{
    const auto found = m_open.find(object);
    return found == m_open.end() ? QVariant() : m_calls.property(found->second, key);
}

QVariantMap MacRegistry::properties(RegistryObject object)
{
    const auto found = m_open.find(object);
    return found == m_open.end() ? QVariantMap() : m_calls.properties(found->second);
}

IOStatus MacRegistry::release(RegistryObject object)
{
    const auto found = m_open.find(object);
    if (found == m_open.end())
        return kIOReturnNotFound;
    const quint32 entry = found->second;
    m_open.erase(found);
    return m_calls.release(entry);
}

} // namespace quindle

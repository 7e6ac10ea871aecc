#include "platform/macos/LaidOutRegistry.h"

#include <utility>

#include "platform/macos/BatteryLayouts.h"

namespace quindle {

namespace {

bool isBattery(const QString& name)
{
    return name == QStringLiteral("AppleSmartBattery");
}

} // namespace

RegistryObject LaidOutRegistry::serviceMatchingName(const QString& name)
{
    const RegistryObject object = m_asItIs.serviceMatchingName(name);
    return isBattery(name) ? batteryUnlessGhost(object) : object;
}

RegistryObject LaidOutRegistry::serviceMatchingClass(const QString& className)
{
    const RegistryObject object = m_asItIs.serviceMatchingClass(className);
    return isBattery(className) ? batteryUnlessGhost(object) : object;
}

RegistryObject LaidOutRegistry::batteryUnlessGhost(RegistryObject object)
{
    if (object == 0)
        return 0;
    if (isGhostBattery(m_asItIs.properties(object))) {
        m_asItIs.release(object);
        return 0;
    }
    m_batteries.insert(object);
    return object;
}

QVariant LaidOutRegistry::property(RegistryObject object, const QString& key)
{
    // Most keys need no change, and reading one is much cheaper than reading all.
    if (hasLayout(key) && m_batteries.count(object) > 0)
        return properties(object).value(key);
    return m_asItIs.property(object, key);
}

QVariantMap LaidOutRegistry::properties(RegistryObject object)
{
    QVariantMap entry = m_asItIs.properties(object);
    return m_batteries.count(object) > 0 ? withModelUnits(std::move(entry)) : entry;
}

std::optional<bool> LaidOutRegistry::isMatched(const QString& name)
{
    const std::optional<bool> below = m_asItIs.isMatched(name);
    if (!below.value_or(false) || !isBattery(name))
        return below;
    const RegistryObject object = serviceMatchingName(name);
    if (object != 0)
        release(object);
    return object != 0;
}

IOStatus LaidOutRegistry::release(RegistryObject object)
{
    m_batteries.erase(object);
    return m_asItIs.release(object);
}

} // namespace quindle

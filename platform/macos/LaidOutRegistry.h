#pragma once

#include <set>

#include "platform/IORegistry.h"

namespace quindle {

/// A Mac's registry as the models read it: the battery's entry with their keys and units (see
/// BatteryLayouts), and none where there is no battery. Everything else is as in the registry below, which
/// must outlive it.
class LaidOutRegistry : public IORegistry
{
public:
    explicit LaidOutRegistry(IORegistry& asItIs)
        : m_asItIs(asItIs)
    {
    }

    RegistryObject serviceMatchingName(const QString& name) override;
    RegistryObject serviceMatchingClass(const QString& className) override;
    QVariant property(RegistryObject object, const QString& key) override;
    QVariantMap properties(RegistryObject object) override;
    std::optional<bool> isMatched(const QString& name) override;
    IOStatus release(RegistryObject object) override;

private:
    RegistryObject batteryUnlessGhost(RegistryObject object);

    IORegistry& m_asItIs;
    std::set<RegistryObject> m_batteries; ///< those that are open
};

} // namespace quindle

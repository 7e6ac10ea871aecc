#pragma once

#include <map>

#include "platform/macos/SystemCalls.h"

namespace quindle {

/// A Mac's registry as it is. What was found at the start stays: the batteries of Macs that run this cannot
/// be taken out.
class MacRegistry : public IORegistry
{
public:
    explicit MacRegistry(RegistryCalls& calls)
        : m_calls(calls)
    {
    }
    ~MacRegistry() override;

    RegistryObject serviceMatchingName(const QString& name) override;
    RegistryObject serviceMatchingClass(const QString& className) override;
    QVariant property(RegistryObject object, const QString& key) override;
    QVariantMap properties(RegistryObject object) override;
    std::optional<bool> isMatched(const QString& /*name*/) override { return std::nullopt; }
    IOStatus release(RegistryObject object) override;

private:
    RegistryObject opened(quint32 entry);

    RegistryCalls& m_calls;
    std::map<RegistryObject, quint32> m_open;
    RegistryObject m_last = 0;
};

} // namespace quindle

#pragma once

#include <map>

#include "platform/IORegistry.h"

namespace quindle {

class RecordedComputer;

/// The registry of a recorded computer. Entries are found by their names, whether a name or a class is asked
/// for. A handle stays open when its entry vanishes; its reads find nothing until the entry is there again.
class RecordedIORegistry : public IORegistry
{
public:
    explicit RecordedIORegistry(const RecordedComputer& computer)
        : m_computer(computer)
    {
    }

    RegistryObject serviceMatchingName(const QString& name) override;
    RegistryObject serviceMatchingClass(const QString& className) override;
    QVariant property(RegistryObject object, const QString& key) override;
    QVariantMap properties(RegistryObject object) override;
    std::optional<bool> isMatched(const QString& /*name*/) override { return std::nullopt; }
    IOStatus release(RegistryObject object) override;

private:
    const RecordedComputer& m_computer;
    std::map<RegistryObject, QString> m_open;
    RegistryObject m_last = 0;
};

} // namespace quindle

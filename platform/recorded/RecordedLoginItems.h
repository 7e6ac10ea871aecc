#pragma once

#include <map>

#include <QStringList>

#include "platform/LoginItems.h"

namespace quindle {

class RecordedComputer;

/// The login items of a recorded computer; changes stay in memory.
class RecordedLoginItems : public LoginItems
{
public:
    explicit RecordedLoginItems(RecordedComputer& computer)
        : m_computer(computer)
    {
    }

    std::optional<std::vector<Item>> snapshot() override;
    std::optional<QString> resolve(Item item) override;
    void insertBeforeFirst(const QString& fileUrl) override;
    void remove(Item item) override;
    void setEnabled(const QString& identifier, bool enabled) override;

    /// Nothing when the identifier was never switched.
    std::optional<bool> isEnabled(const QString& identifier) const;

private:
    RecordedComputer& m_computer;
    QStringList m_snapshot;
    std::map<QString, bool> m_enabled;
};

} // namespace quindle

#pragma once

#include <map>

#include <QStringList>

#include "platform/LoginItems.h"

namespace quindle {

class Bundle;
class RecordedComputer;

/// The login items of a recorded computer; changes stay in memory.
class RecordedLoginItems : public LoginItems
{
public:
    /// `bundle` is the recorded computer's running one.
    RecordedLoginItems(RecordedComputer& computer, const Bundle& bundle)
        : m_computer(computer)
        , m_bundle(bundle)
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
    const Bundle& m_bundle;
    QStringList m_known; ///< the items' texts seen so far; an item is an index into it
    std::map<QString, bool> m_enabled;
};

} // namespace quindle

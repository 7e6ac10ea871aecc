#pragma once

#include <optional>

#include <QDateTime>
#include <QStringList>
#include <QVariantMap>

#include "platform/recorded/MachineFile.h"

namespace quindle {

/// The present state of a recorded computer, which all recorded services answer from. Main thread only.
class RecordedComputer
{
public:
    /// `keys` are those of a checked `Machine`, `machineFile` is its file.
    explicit RecordedComputer(QVariantMap keys, QString machineFile = {});

    /// The path it was read by; empty for an invented computer.
    const QString& machineFile() const { return m_machineFile; }

    /// Enters a later state: removes what the step removes, then overlays its registry and settings on the
    /// present ones property by property and replaces every other key whole. Its actions are not played.
    void enter(const MachineStep& step);

    /// One registry entry; nothing when the computer has none of that name.
    std::optional<QVariantMap> registryEntry(const QString& name) const;

    /// Nothing when the service cannot be asked.
    std::optional<QVariantList> powerSources() const;

    std::optional<QVariantMap> adapterDetails() const;

    /// The property-list file at an absolute path.
    std::optional<QVariantMap> file(const QString& path) const;

    QString hostName() const; ///< empty when not recorded

    /// `Path` and `Info`; nothing when the file has no bundle.
    std::optional<QVariantMap> bundle() const;

    /// The contents of a settings database; empty when not recorded.
    QVariantMap database(const QString& name) const;
    void setInDatabase(const QString& name, const QString& key, const QVariant& value);
    bool isSuiteUnavailable() const;

    /// Absolute, in search order.
    QStringList applicationSupportDirectories() const;

    QStringList loginItems() const;
    void setLoginItems(const QStringList& items);

    /// The answer of the product-information service for a configuration code; nothing for one that is not
    /// recorded.
    std::optional<QString> reply(const QString& configurationCode) const;

    /// The moment that stands still; nothing where the real clock is meant.
    std::optional<QDateTime> now() const;

private:
    std::optional<QVariantMap> dictionary(const QString& key) const;

    QVariantMap m_keys;
    QString m_machineFile;
};

} // namespace quindle

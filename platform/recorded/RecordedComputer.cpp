#include "platform/recorded/RecordedComputer.h"

#include <utility>

namespace quindle {

namespace {

/// Takes out what `path` leads to. Keys may contain slashes themselves (files are known by absolute paths),
/// so the path is matched against the keys that are there rather than split.
bool removePath(QVariantMap& map, const QString& path)
{
    if (map.remove(path) > 0)
        return true;
    for (auto it = map.begin(); it != map.end(); ++it) {
        if (it->typeId() != QMetaType::QVariantMap || !path.startsWith(it.key() + u'/'))
            continue;
        QVariantMap inner = it->toMap();
        if (!removePath(inner, path.mid(it.key().size() + 1)))
            continue;
        *it = inner;
        return true;
    }
    return false;
}

/// `Files//a/b` and `Files/a/b` both mean the file /a/b.
void removeFromComputer(QVariantMap& keys, const QString& path)
{
    const QString files = QStringLiteral("Files/");
    if (!removePath(keys, path) && path.startsWith(files))
        removePath(keys, files + u'/' + path.mid(files.size()));
}

/// Lays dictionaries of properties over others of the same names, property by property.
QVariantMap overlaid(QVariantMap below, const QVariantMap& above)
{
    for (auto entry = above.cbegin(); entry != above.cend(); ++entry) {
        QVariantMap properties = below.value(entry.key()).toMap();
        properties.insert(entry->toMap());
        below.insert(entry.key(), properties);
    }
    return below;
}

std::optional<QVariantMap> entryOf(const std::optional<QVariantMap>& map, const QString& name)
{
    if (!map || !map->contains(name))
        return std::nullopt;
    return map->value(name).toMap();
}

} // namespace

RecordedComputer::RecordedComputer(QVariantMap keys, QString machineFile)
    : m_keys(std::move(keys))
    , m_machineFile(std::move(machineFile))
{
}

void RecordedComputer::enter(const MachineStep& step)
{
    // Taken out first, so that a step can replace what it removes.
    for (const QString& path : step.remove)
        removeFromComputer(m_keys, path);
    for (auto it = step.keys.cbegin(); it != step.keys.cend(); ++it) {
        // A step names only what changes in these two.
        const bool byProperty = it.key() == u"Registry" || it.key() == u"Defaults";
        m_keys.insert(it.key(), byProperty ? overlaid(m_keys.value(it.key()).toMap(), it->toMap()) : *it);
    }
}

std::optional<QVariantMap> RecordedComputer::dictionary(const QString& key) const
{
    const auto found = m_keys.constFind(key);
    if (found == m_keys.cend())
        return std::nullopt;
    // Surely of that type: the file was checked when it was read.
    return found->toMap();
}

std::optional<QVariantMap> RecordedComputer::registryEntry(const QString& name) const
{
    return entryOf(dictionary(QStringLiteral("Registry")), name);
}

std::optional<QVariantList> RecordedComputer::powerSources() const
{
    const auto found = m_keys.constFind(QStringLiteral("PowerSources"));
    if (found == m_keys.cend())
        return std::nullopt;
    return found->toList();
}

std::optional<QVariantMap> RecordedComputer::adapterDetails() const
{
    return dictionary(QStringLiteral("AdapterDetails"));
}

std::optional<QVariantMap> RecordedComputer::file(const QString& path) const
{
    return entryOf(dictionary(QStringLiteral("Files")), path);
}

QString RecordedComputer::hostName() const
{
    return m_keys.value(QStringLiteral("HostName")).toString();
}

std::optional<QVariantMap> RecordedComputer::bundle() const
{
    return dictionary(QStringLiteral("Bundle"));
}

QVariantMap RecordedComputer::database(const QString& name) const
{
    return m_keys.value(QStringLiteral("Defaults")).toMap().value(name).toMap();
}

void RecordedComputer::setInDatabase(const QString& name, const QString& key, const QVariant& value)
{
    // Where steps write too: the last write counts.
    const QVariantMap written{{name, QVariantMap{{key, value}}}};
    const QString defaults = QStringLiteral("Defaults");
    m_keys.insert(defaults, overlaid(m_keys.value(defaults).toMap(), written));
}

bool RecordedComputer::isSuiteUnavailable() const
{
    return m_keys.value(QStringLiteral("SuiteUnavailable")).toBool();
}

QStringList RecordedComputer::applicationSupportDirectories() const
{
    return m_keys.value(QStringLiteral("ApplicationSupport")).toStringList();
}

QStringList RecordedComputer::loginItems() const
{
    return m_keys.value(QStringLiteral("LoginItems")).toStringList();
}

void RecordedComputer::setLoginItems(const QStringList& items)
{
    m_keys.insert(QStringLiteral("LoginItems"), QVariantList(items.cbegin(), items.cend()));
}

std::optional<QString> RecordedComputer::reply(const QString& configurationCode) const
{
    const QVariantMap replies = m_keys.value(QStringLiteral("Replies")).toMap();
    const auto found = replies.constFind(configurationCode);
    if (found == replies.cend())
        return std::nullopt;
    return found->toString();
}

std::optional<QDateTime> RecordedComputer::now() const
{
    const QVariant now = m_keys.value(QStringLiteral("Now"));
    if (!now.isValid())
        return std::nullopt;
    return now.toDateTime();
}

} // namespace quindle

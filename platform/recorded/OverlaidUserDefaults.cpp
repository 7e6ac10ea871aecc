#include "platform/recorded/OverlaidUserDefaults.h"

namespace quindle {

QVariant OverlaidUserDefaults::object(const QString& key) const
{
    const auto written = m_written.constFind(key);
    return written != m_written.cend() ? *written : m_below.object(key);
}

void OverlaidUserDefaults::setObject(const QString& key, const QVariant& value)
{
    // In memory only: quindle-inspect must leave the user's settings as they are.
    m_written.insert(key, value);
}

QVariantMap OverlaidUserDefaults::dictionaryRepresentation() const
{
    QVariantMap all = m_below.dictionaryRepresentation();
    all.insert(m_written);
    return all;
}

OverlaidUserDefaultsDatabases::OverlaidUserDefaultsDatabases(UserDefaultsDatabases& below)
    : m_below(below)
    , m_standard(below.standard())
{
}

UserDefaults* OverlaidUserDefaultsDatabases::suite(const QString& suiteName)
{
    UserDefaults* below = m_below.suite(suiteName);
    // No overlay without a database: that it cannot be opened has to show.
    if (!below)
        return nullptr;
    std::unique_ptr<OverlaidUserDefaults>& overlay = m_suites[suiteName];
    if (!overlay)
        overlay = std::make_unique<OverlaidUserDefaults>(*below);
    return overlay.get();
}

} // namespace quindle

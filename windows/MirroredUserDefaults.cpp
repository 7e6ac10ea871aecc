#include "windows/MirroredUserDefaults.h"

#include <utility>

#include "plist/PropertyList.h"
#include "windows/HelperEnd.h"

namespace quindle {

MirroredUserDefaults::MirroredUserDefaults(UserDefaults& below, QString name, HelperEnd& helper)
    : m_below(below)
    , m_name(std::move(name))
    , m_helper(helper)
{
}

void MirroredUserDefaults::setObject(const QString& key, const QVariant& value)
{
    // By type too: a boolean and a 1 compare equal.
    if (m_below.object(key) == value && m_below.object(key).typeId() == value.typeId())
        return;
    m_below.setObject(key, value);
    m_helper.send({.kind = WindowMessage::Kind::Stored,
                   .text = m_name.toUtf8(),
                   .data = xmlPropertyList(QVariantMap{{key, value}})});
}

MirroredUserDefaultsDatabases::MirroredUserDefaultsDatabases(UserDefaultsDatabases& below, HelperEnd& helper)
    : m_standard(below.standard(), QStringLiteral("standard"), helper)
{
    if (UserDefaults* group = below.suite(groupDatabaseName()))
        m_group.emplace(*group, groupDatabaseName(), helper);
}

UserDefaults* MirroredUserDefaultsDatabases::suite(const QString& suiteName)
{
    return m_group && suiteName == groupDatabaseName() ? &*m_group : nullptr;
}

} // namespace quindle

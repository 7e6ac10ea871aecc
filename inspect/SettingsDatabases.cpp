#include "inspect/SettingsDatabases.h"

#include "platform/UserDefaults.h"

namespace quindle {

QVariantMap settingsDatabases(UserDefaultsDatabases& userDefaults)
{
    const QString groupName = QStringLiteral("group.fernhollow.Quindle");
    const UserDefaults* group = userDefaults.suite(groupName);
    return {
        {QStringLiteral("standard"), userDefaults.standard().dictionaryRepresentation()},
        {groupName, group ? group->dictionaryRepresentation() : QVariantMap()},
    };
}

} // namespace quindle

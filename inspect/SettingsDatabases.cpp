#include "inspect/SettingsDatabases.h"

#include "platform/UserDefaults.h"

namespace quindle {

QVariantMap settingsDatabases(UserDefaultsDatabases& userDefaults)
{
    const UserDefaults* group = userDefaults.suite(groupDatabaseName());
    return {
        {QStringLiteral("standard"), userDefaults.standard().dictionaryRepresentation()},
        {groupDatabaseName(), group ? group->dictionaryRepresentation() : QVariantMap()},
    };
}

} // namespace quindle

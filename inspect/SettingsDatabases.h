#pragma once

#include <QVariantMap>

namespace quindle {

class UserDefaultsDatabases;

/// The content of both settings databases under the names they have in machine files, "standard" and
/// "group.fernhollow.Quindle". One that cannot be opened has no content.
QVariantMap settingsDatabases(UserDefaultsDatabases& userDefaults);

} // namespace quindle

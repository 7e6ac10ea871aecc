#pragma once

#include <QVariantMap>

namespace quindle {

class ApplicationPreferences;
class HelperAppDelegate;
class MainInterface;
class UserDefaultsDatabases;
struct RecordedPlatform;

/// Where the state of a running helper is read from.
struct InspectedHelper
{
    HelperAppDelegate& delegate;
    MainInterface& interface;
    const ApplicationPreferences& preferences;
    UserDefaultsDatabases& userDefaults;
    RecordedPlatform& recorded; ///< its status bar and workspace are the ones the helper was given
};

/// Everything the helper knows and shows at this moment, by the keys of the JSON object. Values are read anew,
/// so one of a wrong type ends the program here. `refreshes` counts those since the state before; the titles
/// set and paths launched since then are taken out of their records.
QVariantMap stateOfHelper(const InspectedHelper& helper, int refreshes);

} // namespace quindle

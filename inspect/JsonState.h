#pragma once

#include <QStringList>
#include <QVariantMap>

namespace quindle {

class ApplicationPreferences;
class HelperAppDelegate;
class MainInterface;
struct Platform;

/// What happened since the previous state; the objects themselves do not keep it.
struct RecentEvents
{
    double fontSize = 0;    ///< points, of the status item at the end
    QStringList titlesSet;  ///< every title, in order
    QString toolTip;        ///< of the status item at the end
    QStringList launched;   ///< paths, in order
    int refreshes = 0;      ///< of the status item
    int uploadsStarted = 0; ///< by the daily gate
};

/// Where the state of a running helper is read from.
struct InspectedHelper
{
    HelperAppDelegate& delegate;
    MainInterface& interface;
    const ApplicationPreferences& preferences;
    const Platform& platform;
};

/// Everything the helper knows and shows at this moment, by the keys of the JSON object. Values are read
/// anew, so one of a wrong type ends the program here.
QVariantMap stateOfHelper(const InspectedHelper& helper, const RecentEvents& recent);

} // namespace quindle

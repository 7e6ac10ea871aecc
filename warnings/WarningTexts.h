#pragma once

#include <QStringList>

#include "platform/Notifier.h"

namespace quindle {

struct WarningAction;

/// The notification that an action shows.
Notification notificationOf(const WarningAction& action);

/// What the level's command gets: level, charge in whole percent, state. docs/settings.md lists the words.
QStringList commandArguments(const WarningAction& action);

} // namespace quindle

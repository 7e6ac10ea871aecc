#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include "common/DesktopWishes.h"

namespace quindle {

/// Settings of the desktop as its portal gives them: namespace, key, value.
using PortalSettings = QMap<QString, QVariantMap>;

/// The namespaces that say how windows should look.
QStringList namespacesOfWishes();

/// From the keys that all desktops share, and where those are missing or say nothing from GTK's. What is not
/// said, or makes no sense, is not wished.
DesktopWishes wishesFrom(const PortalSettings& settings);

/// Whether the toolkit leaves the desktop's colours to the portal, by XDG_CURRENT_DESKTOP and
/// QT_QPA_PLATFORMTHEME: by itself it follows only the desktops that are made with it, and a theme that the
/// user has chosen.
bool leavesColoursToPortal(const QString& currentDesktop, const QByteArray& platformTheme);

/// The same by this process's environment.
bool leavesColoursToPortal();

} // namespace quindle

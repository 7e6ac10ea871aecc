#include "platform/linux/windows/PortalWishes.h"

#include <algorithm>

namespace quindle {

namespace {

const QString shared = QStringLiteral("org.freedesktop.appearance");
const QString interfaceOfGtk = QStringLiteral("org.gnome.desktop.interface");
const QString accessOfGtk = QStringLiteral("org.gnome.desktop.a11y.interface");

QVariant value(const PortalSettings& settings, const QString& space, const char* key)
{
    return settings.value(space).value(QLatin1String(key));
}

/// 1 is the wish itself in all three of them: dark, more contrast, less motion.
bool isWished(const PortalSettings& settings, const char* key)
{
    return value(settings, shared, key).toUInt() == 1;
}

bool isKnown(const PortalSettings& settings, const char* key)
{
    return value(settings, shared, key).isValid();
}

/// Older portals know nothing but the theme's name, such as "Adwaita-dark". The inverse theme of strong
/// contrast is dark, whatever the scheme was before it.
bool isDark(const PortalSettings& settings, const QString& theme)
{
    if (theme == QStringLiteral("HighContrastInverse"))
        return true;
    return isKnown(settings, "color-scheme") ? isWished(settings, "color-scheme")
                                             : theme.endsWith(QStringLiteral("-dark"), Qt::CaseInsensitive);
}

} // namespace

QStringList namespacesOfWishes()
{
    return {shared, interfaceOfGtk, accessOfGtk};
}

DesktopWishes wishesFrom(const PortalSettings& settings)
{
    const QString theme = value(settings, interfaceOfGtk, "gtk-theme").toString();
    const QVariant animations = value(settings, interfaceOfGtk, "enable-animations");
    DesktopWishes wishes;
    wishes.isDark = isDark(settings, theme);
    wishes.hasStrongContrast = isWished(settings, "contrast") ||
                               value(settings, accessOfGtk, "high-contrast").toBool() ||
                               theme.startsWith(QStringLiteral("HighContrast"));
    wishes.isStill = isWished(settings, "reduced-motion") || (animations.isValid() && !animations.toBool());
    return wishes;
}

bool leavesColoursToPortal(const QString& currentDesktop, const QByteArray& platformTheme)
{
    // Of the toolkit's own themes these read no colours from the desktop.
    constexpr const char* colourless[]{"", "gnome", "gtk3", "xdgdesktopportal", "generic"};
    constexpr const char* ofTheToolkit[]{"KDE", "LXQt", "LXQT", "DDE", "UKUI"};
    const QStringList desktops = currentDesktop.split(u':');
    return std::any_of(std::begin(colourless), std::end(colourless),
                       [&](const char* theme) { return platformTheme == theme; }) &&
           std::none_of(std::begin(ofTheToolkit), std::end(ofTheToolkit),
                        [&](const char* name) { return desktops.contains(QLatin1String(name)); });
}

bool leavesColoursToPortal()
{
    return leavesColoursToPortal(qEnvironmentVariable("XDG_CURRENT_DESKTOP"),
                                 qgetenv("QT_QPA_PLATFORMTHEME"));
}

} // namespace quindle

#include "platform/linux/statusitem/ThemeSwitch.h"

#include <utility>
#include <vector>

#include <QString>
#include <QStringList>

namespace quindle {

namespace {

constexpr double panelFollows = 0.4; // seconds

struct Announcement
{
    QString path;
    QString interface;
    QString signal;
    QStringList firstArguments;
};

std::vector<Announcement> announcements()
{
    const QString portal = QStringLiteral("/org/freedesktop/portal/desktop");
    const QString settings = QStringLiteral("org.freedesktop.portal.Settings");
    const QString settingChanged = QStringLiteral("SettingChanged");
    const QString xfce = QStringLiteral("/org/xfce/Xfconf");
    const QString xfconf = QStringLiteral("org.xfce.Xfconf");
    const QString propertyChanged = QStringLiteral("PropertyChanged");
    return {
        {portal, settings, settingChanged, {QStringLiteral("org.freedesktop.appearance")}},
        {portal,
         settings,
         settingChanged,
         {QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("gtk-theme")}},
        {xfce, xfconf, propertyChanged, {QStringLiteral("xsettings"), QStringLiteral("/Net/ThemeName")}},
        {xfce, xfconf, propertyChanged, {QStringLiteral("xfce4-panel"), QStringLiteral("/panels/dark-mode")}},
        {QStringLiteral("/ca/desrt/dconf/Writer/user"),
         QStringLiteral("ca.desrt.dconf.Writer"),
         QStringLiteral("Notify"),
         {QStringLiteral("/org/mate/desktop/interface/gtk-theme")}},
    };
}

} // namespace

ThemeSwitch::ThemeSwitch(RunLoop& runLoop, std::function<void()> look)
    : m_looks(runLoop, panelFollows, std::move(look))
{
}

void ThemeSwitch::setBus(QDBusConnection bus)
{
    if (!bus.isConnected())
        return;
    // From anybody: of the signals only the moment is used.
    for (const Announcement& one : announcements())
        bus.connect(QString(), one.path, one.interface, one.signal, one.firstArguments, QString(), this,
                    SLOT(hear()));
}

void ThemeSwitch::hear()
{
    m_looks.request();
}

} // namespace quindle

#include "moc_ThemeSwitch.cpp"

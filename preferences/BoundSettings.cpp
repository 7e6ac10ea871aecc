#include "preferences/BoundSettings.h"

#include "app/ApplicationPreferences.h"
#include "platform/Bundle.h"
#include "platform/LoginItems.h"
#include "platform/UserDefaults.h"
#include "preferences/StartupLaunch_pref.h"

namespace quindle {

namespace {

constexpr qint64 iconsShown = 1;

QString autoUploadBatteryDataKey()
{
    return QStringLiteral("autoUploadBatteryData");
}

} // namespace

BoundSettings::BoundSettings(ApplicationPreferences& preferences, UserDefaults& standardDefaults,
                             LoginItems& loginItems, const Bundle& bundle, QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_standardDefaults(standardDefaults)
    , m_loginItems(loginItems)
    , m_bundle(bundle)
    , m_startsAtLogin(StartupLaunch_pref::isAppLoginItem(loginItems, bundle.path()))
{
}

QString BoundSettings::customStatusBar() const
{
    return m_preferences.customStatusBar();
}

void BoundSettings::setCustomStatusBar(const QString& value)
{
    m_preferences.setCustomStatusBar(value);
    Q_EMIT changed();
}

qint64 BoundSettings::temperatureSettingIndex() const
{
    return m_preferences.temperatureSettingIndex();
}

void BoundSettings::setTemperatureSettingIndex(qint64 value)
{
    m_preferences.setTemperatureSettingIndex(value);
    Q_EMIT changed();
}

bool BoundSettings::showsIconsInMenuBar() const
{
    return m_preferences.showIconsInMenuBar() == iconsShown;
}

void BoundSettings::setShowsIconsInMenuBar(bool value)
{
    m_preferences.setShowIconsInMenuBar(value ? iconsShown : 0);
    Q_EMIT changed();
}

bool BoundSettings::autoUpload() const
{
    return m_preferences.autoUpload();
}

void BoundSettings::setAutoUpload(bool value)
{
    m_preferences.setAutoUpload(value);
    Q_EMIT changed();
}

bool BoundSettings::autoUploadBatteryData() const
{
    return m_standardDefaults.integer(autoUploadBatteryDataKey()) != 0;
}

void BoundSettings::setAutoUploadBatteryData(bool value)
{
    m_standardDefaults.setInteger(autoUploadBatteryDataKey(), value ? 1 : 0);
    Q_EMIT changed();
}

void BoundSettings::setStartsAtLogin(bool value)
{
    m_loginItems.setEnabled(QStringLiteral("com.fernhollow.Quindle-Helper"), value);
    m_startsAtLogin = value;
    Q_EMIT changed();
}

void BoundSettings::reload()
{
    m_startsAtLogin = StartupLaunch_pref::isAppLoginItem(m_loginItems, m_bundle.path());
    Q_EMIT changed();
}

} // namespace quindle

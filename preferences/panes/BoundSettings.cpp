#include "preferences/panes/BoundSettings.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QPointer>

#include "common/NumberConversion.h"
#include "menubar/MenuBarSettingRule.h"
#include "platform/Bundle.h"
#include "platform/LoginItems.h"
#include "platform/NotificationCenter.h"
#include "platform/UserDefaults.h"
#include "settings/ApplicationPreferences.h"
#include "settings/SettingsTable.h"
#include "settings/StartupLaunch_pref.h"

namespace quindle {

namespace {

constexpr qint64 iconsShown = 1;

// As they are stored; anything else is the first.
constexpr std::array<QLatin1StringView, 4> presentations{
    QLatin1StringView(""),
    QLatin1StringView("label"),
    QLatin1StringView("wide"),
    QLatin1StringView("icon"),
};

} // namespace

BoundSettings::BoundSettings(ApplicationPreferences& preferences, UserDefaults& standardDefaults,
                             LoginItems& loginItems, const Bundle& bundle,
                             DistributedNotificationCenter& distributedCenter, QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_standardDefaults(standardDefaults)
    , m_loginItems(loginItems)
    , m_bundle(bundle)
    , m_distributedCenter(distributedCenter)
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

void BoundSettings::setTemperatureOfTitleAndView(qint64 value)
{
    // First, because the second one's signal makes everybody read both.
    m_standardDefaults.setInteger(Keys::batteryTemperatureMode.name(), value);
    setTemperatureSettingIndex(value);
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
    return m_standardDefaults.integer(Keys::autoUploadBatteryData.name()) != 0;
}

void BoundSettings::setAutoUploadBatteryData(bool value)
{
    m_standardDefaults.setInteger(Keys::autoUploadBatteryData.name(), value ? 1 : 0);
    Q_EMIT changed();
}

void BoundSettings::setStartsAtLogin(bool value)
{
    m_loginItems.setEnabled(QStringLiteral("com.fernhollow.Quindle-Helper"), value);
    m_startsAtLogin = value;
    Q_EMIT changed();
}

qint64 BoundSettings::menuBarSetting() const
{
    const auto row = convertToInteger(m_standardDefaults.object(Keys::menuBarSetting.name()));
    return row == customTextRow ? customTextRow : standardTitleRow;
}

qint64 BoundSettings::shownMenuBarSetting() const
{
    return rowInForce(menuBarSetting(), customStatusBar());
}

void BoundSettings::setMenuBarSetting(qint64 row)
{
    const qint64 before = menuBarSetting();
    m_standardDefaults.setInteger(Keys::menuBarSetting.name(), row);
    const MenuBarTexts texts{m_preferences.customStatusBar(),
                             convertToText(m_standardDefaults.object(Keys::parkedCustomStatusBar.name()))};
    const MenuBarTexts next = textsAfterChoosing(before, row, texts);
    if (next.parked && next.parked != texts.parked) // first: the user's text must always be stored somewhere
        m_standardDefaults.setObject(Keys::parkedCustomStatusBar.name(), *next.parked);
    if (next.customStatusBar != texts.customStatusBar)
        m_preferences.setCustomStatusBar(next.customStatusBar);
    Q_EMIT changed();
}

qint64 BoundSettings::statusItemPresentation() const
{
    const QString stored = m_standardDefaults.object(Keys::statusItemPresentation.name()).toString();
    const auto* const found = std::find(presentations.begin(), presentations.end(), stored);
    return found == presentations.end() ? 0 : found - presentations.begin();
}

void BoundSettings::setStatusItemPresentation(qint64 value)
{
    m_standardDefaults.setObject(Keys::statusItemPresentation.name(),
                                 QString(presentations.at(static_cast<std::size_t>(value))));
    Q_EMIT changed();
}

void BoundSettings::reload()
{
    // Once: an observer cannot be removed, and twice would reload twice.
    if (!std::exchange(m_isObserving, true))
        observeAnnouncements();
    m_startsAtLogin = m_isLoginItem = StartupLaunch_pref::isAppLoginItem(m_loginItems, m_bundle.path());
    Q_EMIT changed();
}

void BoundSettings::followAnnouncement()
{
    // Only what others have changed: a switch that the session did not accept stays as the user left it.
    if (const bool is = StartupLaunch_pref::isAppLoginItem(m_loginItems, m_bundle.path());
        std::exchange(m_isLoginItem, is) != is)
        m_startsAtLogin = is;
    Q_EMIT changed();
}

void BoundSettings::observeAnnouncements()
{
    // An observer stays for as long as the process, which may be longer than the settings do.
    m_distributedCenter.addObserver(QStringLiteral("SettingsChangedNotification"), [self = QPointer(this)] {
        if (self)
            self->followAnnouncement();
    });
}

} // namespace quindle

#include "moc_BoundSettings.cpp"

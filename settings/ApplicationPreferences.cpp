#include "settings/ApplicationPreferences.h"

#include <memory>

#include "common/FatalError.h"
#include "common/NumberConversion.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "settings/SettingsTable.h"

namespace quindle {

namespace {

std::optional<bool> converted(const Setting<bool>& /*setting*/, const QVariant& object)
{
    return convertToBoolean(object);
}

std::optional<qint64> converted(const Setting<qint64>& /*setting*/, const QVariant& object)
{
    return convertToInteger(object);
}

std::optional<QString> converted(const Setting<QStringView>& /*setting*/, const QVariant& object)
{
    return convertToText(object);
}

template <typename Type>
Type withoutView(Type value)
{
    return value;
}

/// The table is made at compile time, where there are views only; a stored value is a text.
QString withoutView(QStringView value)
{
    return value.toString();
}

} // namespace

ApplicationPreferences::ApplicationPreferences(const Platform& platform)
    : m_defaults(platform.userDefaults.standard())
    , m_suiteDefaults(platform.userDefaults.suite(groupDatabaseName()))
    , m_nc(platform.notificationCenter)
{
}

ApplicationPreferences& ApplicationPreferences::sharedInstance(const Platform* platform)
{
    static std::unique_ptr<ApplicationPreferences> instance;
    if (!instance) {
        if (!platform)
            fatalError(u"the settings were asked for before a platform was there");
        instance = std::make_unique<ApplicationPreferences>(*platform);
    }
    return *instance;
}

template <typename Type>
UserDefaults* ApplicationPreferences::databaseOf(const Setting<Type>& setting) const
{
    // Null where the shared database cannot be opened: its settings then read as missing, and are not kept.
    return setting.database == SettingsDatabase::Own ? &m_defaults : m_suiteDefaults;
}

template <typename Type>
auto ApplicationPreferences::stored(const Setting<Type>& setting) const
{
    const UserDefaults* database = databaseOf(setting);
    // Read at each call: another process may have written meanwhile.
    return converted(setting, database ? database->object(setting.name()) : QVariant());
}

template <typename Type>
auto ApplicationPreferences::read(const Setting<Type>& setting) const
{
    // A value of another type counts as missing: files may be edited by hand.
    return stored(setting).value_or(withoutView(*setting.missing));
}

template <typename Type, typename Value>
void ApplicationPreferences::store(const Setting<Type>& setting, const Value& value)
{
    if (UserDefaults* database = databaseOf(setting))
        // With its type: the databases keep a boolean and a 1 apart.
        database->setObject(setting.name(), QVariant::fromValue(value));
}

template <typename Type, typename Value>
void ApplicationPreferences::store(const Setting<Type>& setting, const std::optional<Value>& value)
{
    if (value) // no value writes nothing and removes nothing
        store(setting, *value);
}

bool ApplicationPreferences::autoUpload() const
{
    return read(Keys::autoUpload);
}

void ApplicationPreferences::setAutoUpload(bool value)
{
    store(Keys::autoUpload, value);
}

qint64 ApplicationPreferences::temperatureSettingIndex() const
{
    return read(Keys::temperatureSettingIndex);
}

void ApplicationPreferences::setTemperatureSettingIndex(qint64 value)
{
    store(Keys::temperatureSettingIndex, value);
}

qint64 ApplicationPreferences::showIconsInMenuBar() const
{
    return read(Keys::showIconsInMenuBar);
}

void ApplicationPreferences::setShowIconsInMenuBar(qint64 value)
{
    store(Keys::showIconsInMenuBar, value);
}

qint64 ApplicationPreferences::temperatureWarningTag() const
{
    return read(Keys::temperatureWarningTag);
}

void ApplicationPreferences::setTemperatureWarningTag(qint64 value)
{
    store(Keys::temperatureWarningTag, value);
}

QString ApplicationPreferences::customStatusBar() const
{
    return read(Keys::customStatusBar);
}

void ApplicationPreferences::setCustomStatusBar(const QString& value)
{
    store(Keys::customStatusBar, value);
}

bool ApplicationPreferences::runInBackground() const
{
    return read(Keys::runInBackground);
}

void ApplicationPreferences::setRunInBackground(bool value)
{
    store(Keys::runInBackground, value);
}

bool ApplicationPreferences::firstStart() const
{
    if (!m_suiteDefaults) // inherited: fatal, alone among the suite's settings
        fatalError(u"firstStart was asked for without the shared settings");
    return read(Keys::firstStart);
}

void ApplicationPreferences::setFirstStart(bool value)
{
    store(Keys::firstStart, value);
}

// inherited: one key, read as a number and as text.
std::optional<qint64> ApplicationPreferences::bundleVersionAtQuit() const
{
    return stored(Keys::bundleVersionAtQuit);
}

void ApplicationPreferences::setBundleVersionAtQuit(std::optional<qint64> value)
{
    store(Keys::bundleVersionAtQuit, value);
}

std::optional<QString> ApplicationPreferences::bundleVersionAtQuitText() const
{
    return stored(Keys::bundleVersionAtQuitText);
}

void ApplicationPreferences::setBundleVersionAtQuitText(const std::optional<QString>& value)
{
    store(Keys::bundleVersionAtQuitText, value);
}

std::optional<QString> ApplicationPreferences::statusBarString() const
{
    return stored(Keys::statusBarString);
}

void ApplicationPreferences::setStatusBarString(const std::optional<QString>& value)
{
    store(Keys::statusBarString, value);
}

std::optional<bool> ApplicationPreferences::runInBackgroundOwn() const
{
    return stored(Keys::runInBackgroundOwn);
}

void ApplicationPreferences::setRunInBackgroundOwn(std::optional<bool> value)
{
    store(Keys::runInBackgroundOwn, value);
}

} // namespace quindle

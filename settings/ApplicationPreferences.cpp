#include "settings/ApplicationPreferences.h"

#include <memory>

#include "common/FatalError.h"
#include "common/NumberConversion.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"

namespace quindle {

namespace Keys {

namespace {

const QString suiteName = QStringLiteral("group.fernhollow.Quindle");

const QString autoUpload = QStringLiteral("autoUpload");
const QString temperatureSettingIndex = QStringLiteral("temperatureSettingIndex");
const QString showIconsInMenuBar = QStringLiteral("showIconsInMenuBar");
const QString temperatureWarningTag = QStringLiteral("temperatureWarningTag");
const QString customStatusBar = QStringLiteral("customStatusBar");
const QString runInBackground = QStringLiteral("runInBackground");
const QString bundleVersionAtQuit = QStringLiteral("bundleVersionAtQuit");
const QString statusBarString = QStringLiteral("statusBarString");
const QString firstStart = QStringLiteral("firstStart");

} // namespace

} // namespace Keys

namespace DefaultValues {

namespace {

const QString customStatusBar = QStringLiteral("%p%");
constexpr bool flag = false;
constexpr qint64 number = 0;

} // namespace

} // namespace DefaultValues

namespace {

template <typename Type>
using Conversion = std::optional<Type> (*)(const QVariant&);

template <typename Type>
Type suiteValue(const UserDefaults* suite, const QString& key, Conversion<Type> convert, const Type& fallback)
{
    return suite ? convert(suite->object(key)).value_or(fallback) : fallback;
}

void setSuiteValue(UserDefaults* suite, const QString& key, const QVariant& value)
{
    if (suite)
        suite->setObject(key, value);
}

template <typename Type>
void setOwnValue(UserDefaults& defaults, const QString& key, const std::optional<Type>& value)
{
    if (value) // nothing is not written, and removes nothing
        defaults.setObject(key, QVariant::fromValue(*value));
}

} // namespace

ApplicationPreferences::ApplicationPreferences(const Platform& platform)
    : m_defaults(platform.userDefaults.standard())
    , m_suiteDefaults(platform.userDefaults.suite(Keys::suiteName))
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

bool ApplicationPreferences::autoUpload() const
{
    return suiteValue(m_suiteDefaults, Keys::autoUpload, convertToBoolean, DefaultValues::flag);
}

void ApplicationPreferences::setAutoUpload(bool value)
{
    setSuiteValue(m_suiteDefaults, Keys::autoUpload, value);
}

qint64 ApplicationPreferences::temperatureSettingIndex() const
{
    return suiteValue(m_suiteDefaults, Keys::temperatureSettingIndex, convertToInteger,
                      DefaultValues::number);
}

void ApplicationPreferences::setTemperatureSettingIndex(qint64 value)
{
    setSuiteValue(m_suiteDefaults, Keys::temperatureSettingIndex, value);
}

qint64 ApplicationPreferences::showIconsInMenuBar() const
{
    return suiteValue(m_suiteDefaults, Keys::showIconsInMenuBar, convertToInteger, DefaultValues::number);
}

void ApplicationPreferences::setShowIconsInMenuBar(qint64 value)
{
    setSuiteValue(m_suiteDefaults, Keys::showIconsInMenuBar, value);
}

qint64 ApplicationPreferences::temperatureWarningTag() const
{
    return suiteValue(m_suiteDefaults, Keys::temperatureWarningTag, convertToInteger, DefaultValues::number);
}

void ApplicationPreferences::setTemperatureWarningTag(qint64 value)
{
    setSuiteValue(m_suiteDefaults, Keys::temperatureWarningTag, value);
}

QString ApplicationPreferences::customStatusBar() const
{
    return suiteValue(m_suiteDefaults, Keys::customStatusBar, convertToText, DefaultValues::customStatusBar);
}

void ApplicationPreferences::setCustomStatusBar(const QString& value)
{
    setSuiteValue(m_suiteDefaults, Keys::customStatusBar, value);
}

bool ApplicationPreferences::runInBackground() const
{
    return suiteValue(m_suiteDefaults, Keys::runInBackground, convertToBoolean, DefaultValues::flag);
}

void ApplicationPreferences::setRunInBackground(bool value)
{
    setSuiteValue(m_suiteDefaults, Keys::runInBackground, value);
}

bool ApplicationPreferences::firstStart() const
{
    if (!m_suiteDefaults) // inherited: fatal, alone among the suite's settings
        fatalError(u"firstStart was asked for without the shared settings");
    return suiteValue(m_suiteDefaults, Keys::firstStart, convertToBoolean, DefaultValues::flag);
}

void ApplicationPreferences::setFirstStart(bool value)
{
    setSuiteValue(m_suiteDefaults, Keys::firstStart, value);
}

// inherited: one key, read as a number and as text.
std::optional<qint64> ApplicationPreferences::bundleVersionAtQuit() const
{
    return convertToInteger(m_defaults.object(Keys::bundleVersionAtQuit));
}

void ApplicationPreferences::setBundleVersionAtQuit(std::optional<qint64> value)
{
    setOwnValue(m_defaults, Keys::bundleVersionAtQuit, value);
}

std::optional<QString> ApplicationPreferences::bundleVersionAtQuitText() const
{
    return convertToText(m_defaults.object(Keys::bundleVersionAtQuit));
}

void ApplicationPreferences::setBundleVersionAtQuitText(const std::optional<QString>& value)
{
    setOwnValue(m_defaults, Keys::bundleVersionAtQuit, value);
}

std::optional<QString> ApplicationPreferences::statusBarString() const
{
    return convertToText(m_defaults.object(Keys::statusBarString));
}

void ApplicationPreferences::setStatusBarString(const std::optional<QString>& value)
{
    setOwnValue(m_defaults, Keys::statusBarString, value);
}

std::optional<bool> ApplicationPreferences::runInBackgroundOwn() const
{
    return convertToBoolean(m_defaults.object(Keys::runInBackground));
}

void ApplicationPreferences::setRunInBackgroundOwn(std::optional<bool> value)
{
    setOwnValue(m_defaults, Keys::runInBackground, value);
}

} // namespace quindle

#pragma once

#include <optional>

#include <QString>

namespace quindle {

class NotificationCenter;
class UserDefaults;
struct Platform;
template <typename Type>
struct Setting;

/// The settings of the helper, typed. inherited: the name, and "defaults" for a database (UserDefaults). Each
/// read goes to its database; a value that is missing or of another type reads as the default value given
/// here. "Suite" settings are shared with the main application; when the suite cannot be opened they read as
/// their default value and are not written. Main thread only.
class ApplicationPreferences
{
public:
    /// Opens both databases.
    explicit ApplicationPreferences(const Platform& platform);

    /// The one instance that the whole process shares, made on the first call. The first call must pass the
    /// platform, later ones need not.
    static ApplicationPreferences& sharedInstance(const Platform* platform = nullptr);

    // Suite settings.
    bool autoUpload() const; ///< permits the daily upload; false
    void setAutoUpload(bool value);
    qint64 temperatureSettingIndex() const; ///< unit of "%t": 1 is Fahrenheit, else Celsius; 0
    void setTemperatureSettingIndex(qint64 value);
    qint64 showIconsInMenuBar() const; ///< 1 shows the battery icon; 0
    void setShowIconsInMenuBar(qint64 value);
    qint64 temperatureWarningTag() const; ///< kept for the main application; 0
    void setTemperatureWarningTag(qint64 value);
    QString customStatusBar() const; ///< the title template; "%p%"
    void setCustomStatusBar(const QString& value);
    bool runInBackground() const; ///< the shared flag; false
    void setRunInBackground(bool value);
    bool firstStart() const; ///< kept for the main application; false; fatal without the suite
    void setFirstStart(bool value);

    // Settings in the helper's own database. Setting no value writes nothing and removes nothing.
    std::optional<qint64> bundleVersionAtQuit() const; ///< nothing unless a whole number is stored
    void setBundleVersionAtQuit(std::optional<qint64> value);
    std::optional<QString> bundleVersionAtQuitText() const; ///< the same key; nothing unless a text is stored
    void setBundleVersionAtQuitText(const std::optional<QString>& value);
    std::optional<QString> statusBarString() const; ///< kept for the main application
    void setStatusBarString(const std::optional<QString>& value);
    std::optional<bool> runInBackgroundOwn() const; ///< the own copy of the shared flag
    void setRunInBackgroundOwn(std::optional<bool> value);

    /// False when the shared database could not be opened; `firstStart` must not be asked then.
    bool hasSuite() const { return m_suiteDefaults != nullptr; }

    /// The process's local notification centre, for those who observe settings.
    NotificationCenter& nc() const { return m_nc; }

private:
    template <typename Type>
    UserDefaults* databaseOf(const Setting<Type>& setting) const;
    template <typename Type>
    auto stored(const Setting<Type>& setting) const;
    template <typename Type>
    auto read(const Setting<Type>& setting) const;
    template <typename Type, typename Value>
    void store(const Setting<Type>& setting, const Value& value);
    template <typename Type, typename Value>
    void store(const Setting<Type>& setting, const std::optional<Value>& value);

    UserDefaults& m_defaults;
    UserDefaults* m_suiteDefaults;
    NotificationCenter& m_nc;
};

} // namespace quindle

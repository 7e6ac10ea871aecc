#pragma once

#include <optional>

#include <QString>

namespace quindle {

/// The helper's own database, and the one that it shares with the main application.
enum class SettingsDatabase { Own, Shared };

/// A setting whose value is a dictionary.
struct SettingDictionary
{
};

/// One setting: where it is stored, and what it reads as while no value of its type is stored. `Type` is
/// bool, qint64, QStringView (a text) or SettingDictionary.
template <typename Type>
struct Setting
{
    QStringView key;
    SettingsDatabase database = SettingsDatabase::Own;
    std::optional<Type> missing; ///< nothing: absent

    /// The key as databases take it.
    QString name() const { return QString::fromRawData(key.data(), key.size()); }
};

namespace DefaultValues {

inline constexpr bool flag = false;
inline constexpr qint64 number = 0;
inline constexpr QStringView customStatusBar = u"%p%";
inline constexpr bool recordHistory = true; // on by default: what is recorded stays on the computer
inline constexpr bool warns = true;
inline constexpr qint64 lowPercent = 20;
inline constexpr qint64 veryLowPercent = 10;
inline constexpr qint64 nearlyEmptyPercent = 5;
inline constexpr qint64 fullPercent = 100;

} // namespace DefaultValues

/// Every setting of the helper. Nothing else names a key. docs/settings.md says what each is for.
namespace Keys {

inline constexpr auto own = SettingsDatabase::Own;
inline constexpr auto shared = SettingsDatabase::Shared;

// clang-format off
inline constexpr Setting<bool>        autoUpload{u"autoUpload", shared, DefaultValues::flag};
inline constexpr Setting<qint64>      temperatureSettingIndex{u"temperatureSettingIndex", shared, DefaultValues::number};
inline constexpr Setting<qint64>      showIconsInMenuBar{u"showIconsInMenuBar", shared, DefaultValues::number};
inline constexpr Setting<qint64>      temperatureWarningTag{u"temperatureWarningTag", shared, DefaultValues::number};
inline constexpr Setting<QStringView> customStatusBar{u"customStatusBar", shared, DefaultValues::customStatusBar};
inline constexpr Setting<bool>        runInBackground{u"runInBackground", shared, DefaultValues::flag};
inline constexpr Setting<bool>        firstStart{u"firstStart", shared, DefaultValues::flag};

inline constexpr Setting<qint64>      bundleVersionAtQuit{u"bundleVersionAtQuit", own, std::nullopt};
inline constexpr Setting<QStringView> bundleVersionAtQuitText{u"bundleVersionAtQuit", own, std::nullopt};
inline constexpr Setting<QStringView> statusBarString{u"statusBarString", own, std::nullopt};
inline constexpr Setting<bool>        runInBackgroundOwn{u"runInBackground", own, std::nullopt};
inline constexpr Setting<qint64>      batteryTemperatureMode{u"QDBatteryTemperatureMode", own, DefaultValues::number};
inline constexpr Setting<qint64>      batteryAgeMode{u"QDBatteryAgeMode", own, DefaultValues::number};
inline constexpr Setting<qint64>      macAgeMode{u"QDMacAgeMode", own, DefaultValues::number};
inline constexpr Setting<qint64>      batteryCapacityMode{u"QDBatteryCapacityMode", own, DefaultValues::number};
inline constexpr Setting<SettingDictionary> modelStringCache{u"modelStringCache", own, std::nullopt};
inline constexpr Setting<qint64>      menuBarSetting{u"customMenuBarSettingSelectedIndex", own, DefaultValues::number};
inline constexpr Setting<QStringView> parkedCustomStatusBar{u"parkedCustomStatusBar", own, std::nullopt};
// inherited: beside autoUpload, and the upload does not look at it.
inline constexpr Setting<qint64>      autoUploadBatteryData{u"autoUploadBatteryData", own, DefaultValues::number};
inline constexpr Setting<QStringView> statusItemPresentation{u"statusItemPresentation", own, std::nullopt};
inline constexpr Setting<bool>        recordHistory{u"recordHistory", own, DefaultValues::recordHistory};
inline constexpr Setting<qint64>      historyDays{u"historyDays", own, DefaultValues::number};
inline constexpr Setting<QStringView> warnings{u"warnings", own, std::nullopt};
inline constexpr Setting<bool>        warnLow{u"warnLow", own, DefaultValues::warns};
inline constexpr Setting<qint64>      warnLowPercent{u"warnLowPercent", own, DefaultValues::lowPercent};
inline constexpr Setting<QStringView> warnLowCommand{u"warnLowCommand", own, std::nullopt};
inline constexpr Setting<bool>        warnVeryLow{u"warnVeryLow", own, DefaultValues::warns};
inline constexpr Setting<qint64>      warnVeryLowPercent{u"warnVeryLowPercent", own, DefaultValues::veryLowPercent};
inline constexpr Setting<QStringView> warnVeryLowCommand{u"warnVeryLowCommand", own, std::nullopt};
inline constexpr Setting<bool>        warnNearlyEmpty{u"warnNearlyEmpty", own, DefaultValues::warns};
inline constexpr Setting<qint64>      warnNearlyEmptyPercent{u"warnNearlyEmptyPercent", own, DefaultValues::nearlyEmptyPercent};
inline constexpr Setting<QStringView> warnNearlyEmptyCommand{u"warnNearlyEmptyCommand", own, std::nullopt};
inline constexpr Setting<bool>        warnFull{u"warnFull", own, DefaultValues::warns};
inline constexpr Setting<qint64>      warnFullPercent{u"warnFullPercent", own, DefaultValues::fullPercent};
inline constexpr Setting<QStringView> warnFullCommand{u"warnFullCommand", own, std::nullopt};
inline constexpr Setting<bool>        warnLimit{u"warnLimit", own, DefaultValues::warns};
inline constexpr Setting<qint64>      warnLimitPercent{u"warnLimitPercent", own, DefaultValues::number};
inline constexpr Setting<QStringView> warnLimitCommand{u"warnLimitCommand", own, std::nullopt};
inline constexpr Setting<QStringView> preferencesWindowFrame{u"PreferencesWindowFrameAutoSaveName", own, std::nullopt};
inline constexpr Setting<QStringView> applicationWindowFrame{u"ApplicationWindowFrame", own, std::nullopt};
inline constexpr Setting<QStringView> applicationPage{u"ApplicationPage", own, std::nullopt};
// clang-format on

} // namespace Keys

} // namespace quindle

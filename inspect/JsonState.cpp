#include "inspect/JsonState.h"

#include <QMetaProperty>

#include "app/HelperAppDelegate.h"
#include "battery/QDBattery.h"
#include "history/DailyUpload.h"
#include "inspect/Capture.h"
#include "mac/QDMac.h"
#include "platform/Bundle.h"
#include "platform/Image.h"
#include "platform/Platform.h"
#include "platform/StatusBar.h"
#include "settings/ApplicationPreferences.h"
#include "settings/SettingsTable.h"
#include "settings/StartupLaunch_pref.h"

namespace quindle {

namespace {

template <typename Value>
QVariant orNull(const std::optional<Value>& value)
{
    return value ? QVariant::fromValue(*value) : QVariant();
}

/// Every property that a class declares itself and that is a value, by its exact name.
QVariantMap valueProperties(const QObject& object)
{
    QVariantMap values;
    // Those of QObject itself, such as its name, come before the class's own.
    const QMetaObject& meta = *object.metaObject();
    for (int index = QObject::staticMetaObject.propertyCount(); index < meta.propertyCount(); ++index) {
        const QMetaProperty property = meta.property(index);
        // The computer's battery is an object of its own in the output.
        if (!(property.metaType().flags() & QMetaType::PointerToQObject))
            values.insert(QString::fromLatin1(property.name()), property.read(&object));
    }
    return values;
}

QVariant batteryState(const QDBattery* battery)
{
    if (!battery)
        return {};
    QVariantMap state = valueProperties(*battery);
    state.insert({
        {QStringLiteral("charge"), battery->charge()},
        {QStringLiteral("voltage"), battery->voltage()},
        {QStringLiteral("amperage"), battery->amperage()},
        {QStringLiteral("instantAmperage"), battery->instantAmperage()},
        {QStringLiteral("designCycleCount"), battery->designCycleCount()},
        {QStringLiteral("isACPowered"), battery->isACPowered()},
        {QStringLiteral("isCharging"), battery->isCharging()},
        {QStringLiteral("isCharged"), battery->isCharged()},
        {QStringLiteral("timeRemainingFormatted"), battery->timeRemainingFormatted()},
        {QStringLiteral("avgTimeToFullFormatted"), battery->avgTimeToFullFormatted()},
        {QStringLiteral("avgTimeToEmptyFormatted"), battery->avgTimeToEmptyFormatted()},
        {QStringLiteral("instantTimeToEmptyFormatted"), battery->instantTimeToEmptyFormatted()},
        {QStringLiteral("permanentFailure"), battery->permanentFailure()},
        {QStringLiteral("temperatureMode"), static_cast<int>(battery->temperatureMode())},
        {QStringLiteral("ageMode"), static_cast<int>(battery->ageMode())},
    });
    return state;
}

QVariantMap macState(const QDMac& mac)
{
    QVariantMap state = valueProperties(mac);
    state.insert({
        {QStringLiteral("ageMode"), mac.ageMode()},
        {QStringLiteral("generateMacID"), mac.generateMacID()},
        {QStringLiteral("getBuildDateSerialString"), mac.getBuildDateSerialString()},
        {QStringLiteral("getModelStringFromSerial"), mac.getModelStringFromSerial()},
        {QStringLiteral("hardwareImageName"), orNull(mac.hardwareImageName())},
    });
    return state;
}

QVariantMap settingsState(const ApplicationPreferences& preferences)
{
    // Without the suite this one setting must not be asked: that is fatal.
    const QVariant firstStart = preferences.hasSuite() ? QVariant(preferences.firstStart()) : QVariant();
    return {
        {Keys::autoUpload.name(), preferences.autoUpload()},
        {Keys::temperatureSettingIndex.name(), preferences.temperatureSettingIndex()},
        {Keys::showIconsInMenuBar.name(), preferences.showIconsInMenuBar()},
        {Keys::temperatureWarningTag.name(), preferences.temperatureWarningTag()},
        {Keys::customStatusBar.name(), preferences.customStatusBar()},
        {Keys::runInBackground.name(), preferences.runInBackground()},
        {Keys::bundleVersionAtQuit.name(), orNull(preferences.bundleVersionAtQuit())},
        // One key holds two settings, and one is in both databases: the second has a name of its own here.
        {QStringLiteral("bundleVersionAtQuitText"), orNull(preferences.bundleVersionAtQuitText())},
        {Keys::statusBarString.name(), orNull(preferences.statusBarString())},
        {QStringLiteral("runInBackgroundOwn"), orNull(preferences.runInBackgroundOwn())},
        {Keys::firstStart.name(), firstStart},
    };
}

QVariantMap statusItemState(const StatusItem& item, const RecentEvents& recent)
{
    QVariantMap state{
        {QStringLiteral("title"), item.title()},       {QStringLiteral("image"), QVariant()},
        {QStringLiteral("imageIsTemplate"), false},    {QStringLiteral("imageSize"), QVariant()},
        {QStringLiteral("fontSize"), recent.fontSize}, {QStringLiteral("titlesSet"), recent.titlesSet},
    };
    const std::shared_ptr<Image> image = item.image();
    if (!image)
        return state;
    state.insert(QStringLiteral("image"), image->name());
    state.insert(QStringLiteral("imageIsTemplate"), image->isTemplate());
    state.insert(QStringLiteral("imageSize"), QVariantList{image->size().width(), image->size().height()});
    return state;
}

/// The colour that a bar is drawn in; null for a bar without a filter.
QVariant barColour(const ProgressIndicator& bar)
{
    const std::optional<BarColour> colour =
        bar.contentFilters().empty() ? std::nullopt : bar.contentFilters().front()->colour();
    if (!colour)
        return {};
    switch (*colour) {
    case BarColour::Green:
        return QStringLiteral("green");
    case BarColour::Yellow:
        return QStringLiteral("yellow");
    case BarColour::Red:
        break;
    }
    return QStringLiteral("red");
}

QVariant barsState(const HelperAppDelegate& delegate, MainInterface& interface)
{
    if (!delegate.myMac().Battery())
        return {};
    return QVariantMap{
        {QStringLiteral("stateOfCharge"), barColour(interface.stateOfChargeProgress())},
        {QStringLiteral("stateOfHealth"), barColour(interface.stateOfHealthProgress())},
    };
}

QVariant versionItemText(MainInterface& interface)
{
    const auto row = static_cast<std::size_t>(interface.outlets().versionItem);
    // Rows count from 1.
    return interface.statusMenu().rows().at(row - 1).text;
}

QVariant snapshotState(const QDMac& mac)
{
    return orNull(mac.getDataForSaving(false));
}

QVariant uploadState(const HelperAppDelegate& delegate)
{
    // Made as the gate would, but not sent: inspecting sends nothing.
    const auto upload = delegate.currentDailyUpload();
    if (!upload)
        return {};
    return QVariantMap{
        {QStringLiteral("record"), upload->record},
        {QStringLiteral("body"), QString::fromLatin1(upload->body)},
    };
}

QVariantMap appState(const InspectedHelper& helper, const RecentEvents& recent)
{
    const MenuView* view = helper.delegate.shownView();
    return {
        {QStringLiteral("versionItem"), versionItemText(helper.interface)},
        {QStringLiteral("menuView"), view ? QVariant(view->name) : QVariant()},
        {QStringLiteral("launched"), recent.launched},
        {QStringLiteral("refreshes"), recent.refreshes},
        {QStringLiteral("lastDailyUploadToOnlineService"), helper.delegate.lastDailyUploadToOnlineService()},
    };
}

} // namespace

QVariantMap stateOfHelper(const InspectedHelper& helper, const RecentEvents& recent)
{
    return {
        {QStringLiteral("battery"), batteryState(helper.delegate.myMac().Battery())},
        {QStringLiteral("mac"), macState(helper.delegate.myMac())},
        {QStringLiteral("settings"), settingsState(helper.preferences)},
        {QStringLiteral("statusItem"), statusItemState(helper.delegate.statusItem(), recent)},
        {QStringLiteral("bars"), barsState(helper.delegate, helper.interface)},
        {QStringLiteral("app"), appState(helper, recent)},
        {QStringLiteral("savedRecords"), helper.delegate.getSavedDataArray()},
        {QStringLiteral("snapshot"), snapshotState(helper.delegate.myMac())},
        {QStringLiteral("upload"), uploadState(helper.delegate)},
        {QStringLiteral("uploadsStarted"), recent.uploadsStarted},
        {QStringLiteral("isAppLoginItem"),
         StartupLaunch_pref::isAppLoginItem(helper.platform.loginItems, helper.platform.bundle.path())},
        {QStringLiteral("defaults"), settingsDatabases(helper.platform.userDefaults)},
    };
}

} // namespace quindle

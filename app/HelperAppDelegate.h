#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QDateTime>
#include <QObject>
#include <QVariant>

#include "common/FatalError.h"
#include "menubar/BarColours.h"
#include "menubar/MainInterface.h"
#include "menubar/ProgressIndicator.h"
#include "menubar/StatusIcon.h"
#include "platform/RateLimit.h"
#include "preferences/panes/StatusBarTitle.h"
#include "preferences/window/WindowControllers.h"

namespace quindle {

class ApplicationPreferences;
class HelperAppDelegate;
class QDBattery;
class QDMac;
class StatusItem;
class Timer;
struct DailyUpload;
struct Platform;

/// The controllers of the helper's windows, which the application delegate owns, each under its own name.
/// Null in a program without windows.
struct DelegateControllers
{
    std::unique_ptr<QObject> batteryPopover;
    std::unique_ptr<WindowController> preferencesWindow;
    std::unique_ptr<QDPreferencesWindowControllerProtocol> generalController;
    std::unique_ptr<QDPreferencesWindowControllerProtocol> menuBarController;
    std::unique_ptr<PreferencesWindowController> preferencesController; ///< shows the panes, so it goes first
};

/// Makes them for the delegate that is being made.
using ControllerFactory = std::function<DelegateControllers(HelperAppDelegate& delegate)>;

/// For programs that have no windows.
inline DelegateControllers noControllers(HelperAppDelegate& /*delegate*/)
{
    return {};
}

/// The outlet itself; one that is missing when it is needed is a programming error and fatal.
template <typename Outlet>
Outlet& required(Outlet* outlet)
{
    if (!outlet)
        fatalError(u"an outlet of the main interface is not connected");
    return *outlet;
}

/// The application delegate: owns the computer's model, the status item and the refresh timer, and refreshes
/// everything the helper shows in one method, `updateStatusBarTitle`. Main thread only.
class HelperAppDelegate : public QObject, public StatusMenuActions, public StatusBarTitle
{
    Q_OBJECT

public:
    using MacFactory = std::function<std::unique_ptr<QDMac>(const Platform&)>;

    /// Makes, in this order, the computer's model (by `makeMac`), the status item, the three hue filters, the
    /// controllers (by `makeControllers`); and marks now as the time of the last daily upload, so that the
    /// first one comes a full day after launch.
    HelperAppDelegate(const Platform& platform, ApplicationPreferences& preferences, MainInterface& interface,
                      const MacFactory& makeMac, const ControllerFactory& makeControllers);
    ~HelperAppDelegate() override;

    /// Whose launch it is: programs that show the helper's models beside it leave its own copies of shared
    /// settings alone.
    enum class Program { Helper, Companion };

    /// The launch sequence. A bundle without version information, and a missing outlet, are fatal.
    void applicationDidFinishLaunching(Program program = Program::Helper);

    /// Does nothing: nothing is saved at the end.
    static void applicationWillTerminate();

    /// Copies the shared `runInBackground` to the helper's own database.
    void transferSharedDefaults();

    /// Adds the four notification observers, once more at each call. inherited: two names for one body.
    void loadSettings();
    void registerDistributedNotificationCenter();

    void registerWakeSleepNotification();
    static void receiveSleepNote(); ///< does nothing
    void receiveWakeNote();
    void textFieldTextChanged();
    static void quiteDueToUpdate(); ///< does nothing; inherited: the spelling

    /// Makes the battery read its values, and then refreshes the status item.
    void refreshBatteryAndTitle();

    /// The refresh: daily gate, font, icon, title, tool tip and menu rows, bar colours.
    void updateStatusBarTitle() override;

    void reloadBattery() override;

    /// With the temperature in the unit that the title's setting chooses.
    std::optional<TitleValues> titleValues() const override;

    Punctuality watchValues() const override;

    /// Colours both bars; without a battery they stay as they are.
    void setProgressIndicatorColor();

    /// The once-a-day gate of the upload.
    void checkForAutoSaveData();

    /// The saved history that the main application keeps in the user's first Application Support directory;
    /// empty when nothing there is usable.
    QVariantList getSavedDataArray() const;

    /// Starts sending this moment's record with the serial number masked, and ignores the outcome. Without a
    /// host of the statistics service nothing is sent.
    void uploadDailyMacDataToQNDOnline();

    /// The same with the serial number in clear. inherited: a named entry point that nothing calls.
    void uploadDailyMacDataToQNDOnline_old();

    /// What `uploadDailyMacDataToQNDOnline` would send at this moment if there is a host; nothing when it
    /// would not send.
    std::optional<DailyUpload> currentDailyUpload() const;

    /// The same for people: where it would go, and the body decoded; a sentence when there is no record to
    /// send. Empty without a host.
    QString dailyUploadText() const;

    void quitApp() override;

    /// Launches the main application: the bundle's path without its last four components.
    void openApplication() override;

    /// Both activate the helper and show one of its windows; nothing more in a program without windows.
    void openPreferences() override;
    void openMenuBarText() override;

    QDMac& myMac() const { return *m_myMac; }
    StatusItem& statusItem() const { return *m_statusItem; }
    const MenuView* shownView() const { return m_shownView; }
    QDateTime lastDailyUploadToOnlineService() const { return m_lastDailyUploadToOnlineService; }
    const std::shared_ptr<HueFilter>& hueColorGreen() const { return m_hueColorGreen; }
    const std::shared_ptr<HueFilter>& hueColorYellow() const { return m_hueColorYellow; }
    const std::shared_ptr<HueFilter>& hueColorRed() const { return m_hueColorRed; }

    // Null in a program without windows.
    QObject* batteryPopover() const { return m_controllers.batteryPopover.get(); }
    WindowController* preferencesWindow() const { return m_controllers.preferencesWindow.get(); }
    QDPreferencesWindowControllerProtocol* generalController() const
    {
        return m_controllers.generalController.get();
    }
    QDPreferencesWindowControllerProtocol* menuBarController() const
    {
        return m_controllers.menuBarController.get();
    }
    PreferencesWindowController* preferencesController() const
    {
        return m_controllers.preferencesController.get();
    }

Q_SIGNALS:
    /// The status item has been brought up to date.
    void statusItemRefreshed();

    /// The daily gate has opened for an upload, whether or not there is something to send.
    void dailyUploadStarted();

private:
    void send(const std::optional<DailyUpload>& upload);
    void setVersionItem();
    void chooseView();
    void addBatteryView();
    void startTimer();
    void observePowerEvents();
    void setBarFilters();
    void showNoBattery();
    void updateIcon(const QDBattery& battery);
    void replaceTemplateImage(const QString& name);
    void showImage(const QString& name);
    TitleValues titleValuesOf(const QDBattery& battery) const;
    void updateTitle(const QDBattery& battery);
    void updateFacts();
    const std::shared_ptr<HueFilter>& filterFor(BarColour colour) const;

    const Platform& m_platform;
    ApplicationPreferences& m_preferences;
    MainInterface& m_interface;
    MainOutlets m_outlets;
    NamedImages m_images;
    std::unique_ptr<QDMac> m_myMac;
    std::shared_ptr<Timer> m_statusBarUpdateTimer;
    RateLimit m_powerEventRate;
    std::unique_ptr<StatusItem> m_statusItem;
    std::shared_ptr<HueFilter> m_hueColorGreen;
    std::shared_ptr<HueFilter> m_hueColorYellow;
    std::shared_ptr<HueFilter> m_hueColorRed;
    const MenuView* m_shownView = nullptr;
    DelegateControllers m_controllers;
    QDateTime m_lastDailyUploadToOnlineService;
};

} // namespace quindle

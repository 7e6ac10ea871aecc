#include "app/HelperAppDelegate.h"

#include "battery/QDBattery.h"
#include "common/FatalError.h"
#include "common/Paths.h"
#include "common/Translation.h"
#include "common/ValueDescription.h"
#include "mac/QDMac.h"
#include "platform/Bundle.h"
#include "platform/Host.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/PowerSources.h"
#include "platform/RunLoop.h"
#include "platform/StatusBar.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "settings/ApplicationPreferences.h"

namespace quindle {

namespace {

constexpr double refreshInterval = 10.0; // seconds

// inherited: where the main application carries the helper, this leads to the folder that Quindle.app is in
// (Quindle.app/Contents/Resources/Quindle-Helper.app).
constexpr int componentsToMainBundle = 4;

// inherited: these four names; the main application posts the first two.
QString settingsChanged()
{
    return QStringLiteral("SettingsChangedNotification");
}

QString willUpdateImmediately()
{
    return QStringLiteral("WillUpdateImmediately");
}

QString localSettingsChanged()
{
    return QStringLiteral("lalala");
}

QString localQuitNow()
{
    return QStringLiteral("quitNow");
}

/// inherited: angles in radians, chosen by eye as whole numbers.
void setAngles(HueFilter& green, HueFilter& yellow, HueFilter& red)
{
    green.setInputAngle(4);
    yellow.setInputAngle(-16);
    red.setInputAngle(241);
}

} // namespace

HelperAppDelegate::HelperAppDelegate(const Platform& platform, ApplicationPreferences& preferences,
                                     MainInterface& interface, const MacFactory& makeMac,
                                     const ControllerFactory& makeControllers)
    : m_platform(platform)
    , m_preferences(preferences)
    , m_interface(interface)
    , m_outlets(interface.outlets())
    , m_myMac(makeMac(platform))
    , m_powerEventRate(platform.runLoop, RateLimit::settleTime, [this] { refreshBatteryAndTitle(); })
    , m_statusItem(platform.statusBar.statusItemWithLength(variableStatusItemLength))
    , m_hueColorGreen(std::make_shared<HueFilter>(BarColour::Green))
    , m_hueColorYellow(std::make_shared<HueFilter>(BarColour::Yellow))
    , m_hueColorRed(std::make_shared<HueFilter>(BarColour::Red))
    , m_controllers(makeControllers(*this))
    , m_lastDailyUploadToOnlineService(platform.clock.now())
{
    m_interface.setActions(this);
    m_interface.setPowerSources(m_myMac->isDemonstration() ? nullptr : &platform.powerSources);
    m_interface.setOwnDefaults(&platform.userDefaults.standard());
}

HelperAppDelegate::~HelperAppDelegate()
{
    m_interface.setActions(nullptr);
    m_interface.setPowerSources(nullptr);
    m_interface.setOwnDefaults(nullptr);
    m_platform.powerEvents.setObserver([] {});
    if (m_statusBarUpdateTimer)
        m_statusBarUpdateTimer->invalidate();
}

void HelperAppDelegate::applicationDidFinishLaunching(Program program)
{
    if (program == Program::Helper)
        transferSharedDefaults();
    setVersionItem();
    registerWakeSleepNotification();
    loadSettings();
    required(m_outlets.macObjectController).addObject(m_myMac.get());
    addBatteryView();
    updateStatusBarTitle();
    updateStatusBarTitle(); // inherited: twice, so that the second marks the first one's image as a template
    startTimer();
    observePowerEvents();
    setAngles(*m_hueColorGreen, *m_hueColorYellow, *m_hueColorRed);
    setBarFilters();
    setProgressIndicatorColor();
}

// inherited: an empty step in every application's life; nothing is saved at the end.
void HelperAppDelegate::applicationWillTerminate() {}

void HelperAppDelegate::transferSharedDefaults()
{
    m_preferences.setRunInBackgroundOwn(m_preferences.runInBackground());
}

void HelperAppDelegate::setVersionItem()
{
    const auto info = m_platform.bundle.infoDictionary();
    if (!info) // inherited: fatal, as is a missing version: such a bundle was put together wrongly
        fatalError(u"the bundle has no information dictionary");
    const QVariant version = info->value(QStringLiteral("CFBundleVersion"));
    if (!version.isValid())
        fatalError(u"the bundle's information has no CFBundleVersion");
    if (m_outlets.versionItem == 0)
        fatalError(u"an outlet of the main interface is not connected");
    required(m_outlets.statusMenu)
        .setText(m_outlets.versionItem, translated("Menu", "Version %1").arg(valueDescription(version)));
}

void HelperAppDelegate::registerWakeSleepNotification()
{
    m_platform.workspaceNotifications.addWillSleepObserver([] { receiveSleepNote(); });
    m_platform.workspaceNotifications.addDidWakeObserver([this] { receiveWakeNote(); });
}

void HelperAppDelegate::loadSettings()
{
    NotificationCenter& local = m_platform.notificationCenter;
    local.addObserver(localSettingsChanged(), [this] { textFieldTextChanged(); });
    local.addObserver(localQuitNow(), [] { quiteDueToUpdate(); });
    DistributedNotificationCenter& distributed = m_platform.distributedNotificationCenter;
    distributed.addObserver(settingsChanged(), [&local] { local.post(localSettingsChanged()); });
    distributed.addObserver(willUpdateImmediately(), [&local] { local.post(localQuitNow()); });
}

// inherited: a second name for the same registrations.
void HelperAppDelegate::registerDistributedNotificationCenter()
{
    loadSettings();
}

void HelperAppDelegate::chooseView()
{
    m_shownView = m_myMac->Battery() ? &required(m_outlets.menuView) : &required(m_outlets.noBatteryView);
}

void HelperAppDelegate::addBatteryView()
{
    chooseView();
    m_statusItem->setMenu(&required(m_outlets.statusMenu));
}

void HelperAppDelegate::startTimer()
{
    m_statusBarUpdateTimer =
        m_platform.runLoop.scheduleRepeatingTimer(refreshInterval, 0.0, [this] { updateStatusBarTitle(); });
}

void HelperAppDelegate::observePowerEvents()
{
    m_platform.powerEvents.setObserver([this] { m_powerEventRate.request(); });
}

void HelperAppDelegate::refreshBatteryAndTitle()
{
    QDBattery* battery = m_myMac->Battery();
    if (battery && battery->updateTimer()) // the demonstration battery has none, and is never refreshed
        battery->updateData();
    updateStatusBarTitle();
}

void HelperAppDelegate::setBarFilters()
{
    required(m_outlets.stateOfChargeProgress).setContentFilters({m_hueColorGreen});
    required(m_outlets.stateOfHealthProgress).setContentFilters({m_hueColorGreen});
}

// inherited: registered, and does nothing; only waking changes what is shown.
void HelperAppDelegate::receiveSleepNote() {}

void HelperAppDelegate::receiveWakeNote()
{
    updateStatusBarTitle();
}

void HelperAppDelegate::textFieldTextChanged()
{
    updateStatusBarTitle();
}

// inherited: the name, and that the helper runs on when an update is announced.
void HelperAppDelegate::quiteDueToUpdate() {}

void HelperAppDelegate::quitApp()
{
    m_platform.application.terminate();
}

void HelperAppDelegate::openApplication()
{
    QString path = m_platform.bundle.path();
    for (int component = 0; component < componentsToMainBundle; ++component)
        path = pathWithoutLastComponent(path);
    m_platform.workspace.launchApplication(path);
}

void HelperAppDelegate::openPreferences()
{
    m_platform.application.activateIgnoringOtherApplications();
    if (m_controllers.preferencesController)
        m_controllers.preferencesController->showPreferencesWindow();
}

void HelperAppDelegate::openMenuBarText()
{
    m_platform.application.activateIgnoringOtherApplications();
    if (m_controllers.preferencesWindow)
        m_controllers.preferencesWindow->showWindow();
}

} // namespace quindle

#include "moc_HelperAppDelegate.cpp"

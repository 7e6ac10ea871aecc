#include "windows/HelperControllers.h"

#include "app/HelperAppDelegate.h"
#include "menubar/MainInterface.h"
#include "platform/Bundle.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "preferences/panes/GeneralPreferencesController.h"
#include "preferences/panes/HelperPreferences.h"
#include "preferences/panes/HelperPreferencesWindow.h"
#include "preferences/panes/MenuBarPreferencesController.h"
#include "preferences/window/QDPreferencesWindowController.h"
#include "view/BatteryPopup.h"

namespace quindle {

namespace {

/// Previews and popovers show the values of each refresh.
template <typename Controller>
void refreshWith(const HelperAppDelegate& delegate, Controller& controller)
{
    QObject::connect(&delegate, &HelperAppDelegate::statusItemRefreshed, &controller, &Controller::refresh);
}

std::unique_ptr<QDPreferencesWindowController> preferencesController(const Platform& platform,
                                                                     PreferencesPanes panes)
{
    auto controller = std::make_unique<QDPreferencesWindowController>(platform.userDefaults.standard(),
                                                                      platform.application);
    controller->setShowToolbarItemsAsSegmentedControl(true);
    controller->setCenterToolbarItems(true);
    controller->setShowToolbarSeparator(true);
    controller->setViewControllers(std::move(panes));
    return controller;
}

} // namespace

HelperControllers::HelperControllers(const Platform& platform, ApplicationPreferences& preferences,
                                     MainInterface& interface, TitleOf titleOf,
                                     std::function<InstallationSource()> installationSource)
    : m_platform(platform)
    , m_interface(interface)
    , m_titleOf(std::move(titleOf))
    , m_settings(preferences, platform.userDefaults.standard(), platform.loginItems, platform.bundle,
                 platform.distributedNotificationCenter)
    , m_updateController(platform.bundle, std::move(installationSource))
{
}

DelegateControllers HelperControllers::make(HelperAppDelegate& delegate)
{
    // Windows refresh the item through the helper, which has it.
    StatusBarTitle& title = m_titleOf(delegate);
    auto menuBarText = HelperPreferences::initWithWindow(nullptr, m_settings, title);
    auto general = std::make_unique<GeneralPreferencesController>(
        m_settings, title, m_platform.distributedNotificationCenter, m_platform.bundle,
        [&delegate] { return delegate.dailyUploadText(); });
    auto menuBar = std::make_unique<MenuBarPreferencesController>(
        m_settings, title, [window = menuBarText.get()] { window->showWindow(); });
    refreshWith(delegate, *menuBarText);
    refreshWith(delegate, *general);
    refreshWith(delegate, *menuBar);
    auto window = preferencesController(m_platform, {general.get(), menuBar.get(), &m_updateController});
    auto popover = std::make_unique<BatteryPopup>(m_interface, m_platform.application, m_platform.runLoop);
    return {.batteryPopover = std::move(popover),
            .preferencesWindow = std::move(menuBarText),
            .generalController = std::move(general),
            .menuBarController = std::move(menuBar),
            .preferencesController = std::move(window)};
}

} // namespace quindle

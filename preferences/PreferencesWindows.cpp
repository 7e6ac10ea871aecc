#include "preferences/PreferencesWindows.h"

#include "common/FatalError.h"
#include "platform/InstallationSource.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "preferences/BoundSettings.h"
#include "preferences/GeneralPreferencesController.h"
#include "preferences/HelperPreferences.h"
#include "preferences/HelperPreferencesWindow.h"
#include "preferences/MenuBarPreferencesController.h"
#include "preferences/QDPreferencesWindowController.h"
#include "preferences/UpdatePreferencesController.h"

namespace quindle {

/// Members are made in this order and go in the other: the window gives its view back to a pane that is still
/// there.
struct PreferencesWindows::Windows
{
    Windows(const Platform& platform, ApplicationPreferences& preferences, const PreferencesSources& sources)
        : settings(preferences, platform.userDefaults.standard(), platform.loginItems, platform.bundle)
        , generalController(settings, sources.delegate, platform.distributedNotificationCenter,
                            platform.bundle, sources.dailyUploadText)
        , menuBarController(settings, sources.delegate, [this] { menuBarText->showWindow(); })
        , updateController(platform.bundle, sources.installationSource)
        , menuBarText(HelperPreferences::initWithWindow(nullptr, settings, sources.delegate))
        , preferencesController(platform.userDefaults.standard(), platform.application)
    {
        preferencesController.setShowToolbarItemsAsSegmentedControl(true);
        preferencesController.setCenterToolbarItems(true);
        preferencesController.setShowToolbarSeparator(true);
        preferencesController.setViewControllers({&generalController, &menuBarController, &updateController});
    }

    BoundSettings settings;
    GeneralPreferencesController generalController;
    MenuBarPreferencesController menuBarController;
    UpdatePreferencesController updateController;
    std::unique_ptr<HelperPreferences> menuBarText;
    QDPreferencesWindowController preferencesController;
};

PreferencesWindows::PreferencesWindows(const Platform& platform, ApplicationPreferences& preferences)
    : m_platform(platform)
    , m_preferences(preferences)
{
}

PreferencesWindows::~PreferencesWindows() = default;

void PreferencesWindows::setSources(const PreferencesSources& sources)
{
    m_sources = std::make_unique<PreferencesSources>(sources);
}

PreferencesWindows::Windows& PreferencesWindows::windows()
{
    if (!m_sources)
        fatalError(u"the preferences have no application to speak for");
    if (!m_windows) {
        m_windows = std::make_shared<Windows>(m_platform, m_preferences, *m_sources);
        // An observer stays for as long as the process, which may be longer than the windows do.
        m_platform.distributedNotificationCenter.addObserver(QStringLiteral("SettingsChangedNotification"),
                                                             [weak = std::weak_ptr(m_windows)] {
                                                                 if (const auto windows = weak.lock())
                                                                     windows->settings.reload();
                                                             });
    }
    return *m_windows;
}

void PreferencesWindows::showPreferencesWindow()
{
    windows().preferencesController.showPreferencesWindow();
}

void PreferencesWindows::showHelperPreferences()
{
    windows().menuBarText->showWindow();
}

void PreferencesWindows::refresh()
{
    if (!m_windows)
        return;
    m_windows->generalController.refresh();
    m_windows->menuBarController.refresh();
    m_windows->menuBarText->refresh();
}

} // namespace quindle

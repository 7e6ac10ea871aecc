#pragma once

#include <functional>

#include "app/HelperAppDelegate.h"
#include "preferences/panes/BoundSettings.h"
#include "preferences/panes/UpdatePreferencesController.h"

namespace quindle {

class ApplicationPreferences;
class MainInterface;
class StatusBarTitle;
struct Platform;

/// Makes the controllers of the helper's windows, and holds what they share. None of them makes a widget,
/// reads or observes anything before it is shown for the first time. Must outlive the delegate that it makes
/// them for.
class HelperControllers
{
public:
    /// The title that the preferences refresh, of the delegate that the controllers are made for.
    using TitleOf = std::function<StatusBarTitle&(HelperAppDelegate& delegate)>;

    /// All must outlive it. `installationSource` as for UpdatePreferencesController.
    HelperControllers(const Platform& platform, ApplicationPreferences& preferences, MainInterface& interface,
                      TitleOf titleOf, std::function<InstallationSource()> installationSource);

    /// A ControllerFactory.
    DelegateControllers make(HelperAppDelegate& delegate);

private:
    const Platform& m_platform;
    MainInterface& m_interface;
    TitleOf m_titleOf;
    BoundSettings m_settings;
    UpdatePreferencesController m_updateController;
};

} // namespace quindle

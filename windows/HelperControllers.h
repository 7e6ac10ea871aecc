#pragma once

#include <optional>

#include "app/DelegateControllers.h"
#include "preferences/panes/BoundSettings.h"
#include "preferences/panes/UpdatePreferencesController.h"
#include "windows/SharedServices.h"

namespace quindle {

class ApplicationPreferences;
class HelperEnd;
class MainInterface;
struct Platform;

/// Makes the controllers of the helper's windows, and holds what they share. None of them makes a widget,
/// reads or observes anything before it is shown for the first time. Must outlive the delegate that it makes
/// them for.
class HelperControllers
{
public:
    /// All must outlive it. `installationSource` as for UpdatePreferencesController.
    HelperControllers(const Platform& platform, ApplicationPreferences& preferences, MainInterface& interface,
                      HelperEnd& helper, std::function<InstallationSource()> installationSource);

    /// A ControllerFactory.
    DelegateControllers make(HelperAppDelegate& delegate);

private:
    const Platform& m_platform;
    MainInterface& m_interface;
    HelperEnd& m_helper;
    BoundSettings m_settings;
    std::optional<SharedTitle> m_title;
    UpdatePreferencesController m_updateController;
};

} // namespace quindle

#pragma once

class QString;

namespace quindle {

class LoginItems;

/// Whether the helper starts when the user logs in, by the session's list of login items. All failures are
/// silent: a list that cannot be read holds no item and is not changed. inherited: the name.
///
/// `bundlePath` is the running bundle's: the helper's own where it contains "Quindle-Helper", otherwise the
/// main application's, which carries the helper in its resources.
class StartupLaunch_pref
{
public:
    /// True when an item resolves to the helper's bundle.
    static bool isAppLoginItem(LoginItems& items, const QString& bundlePath);

    /// Puts an item for the helper at the front of the list unless there is one, or takes it out.
    /// inherited: a named entry point that nothing calls.
    static void setLaunchOnLogin(LoginItems& items, const QString& bundlePath, bool enable);
};

} // namespace quindle

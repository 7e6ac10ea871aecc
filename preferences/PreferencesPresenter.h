#pragma once

namespace quindle {

/// Shows the helper's two windows of settings.
class PreferencesPresenter
{
public:
    virtual ~PreferencesPresenter() = default;

    /// Shows the window, or brings it to the front when it is there already.
    virtual void showPreferencesWindow() = 0;

    /// The same for the small window with the menu bar's text.
    virtual void showHelperPreferences() = 0;
};

} // namespace quindle

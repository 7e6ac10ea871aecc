#pragma once

namespace quindle {

/// Shows the helper's preferences window.
class PreferencesPresenter
{
public:
    virtual ~PreferencesPresenter() = default;

    /// Shows the window, or brings it to the front when it is there already.
    virtual void showPreferencesWindow() = 0;
};

} // namespace quindle

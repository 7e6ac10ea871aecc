#pragma once

namespace quindle {

/// The controller of one window, as the application delegate knows it.
class WindowController
{
public:
    virtual ~WindowController() = default;

    /// Shows the window, or brings it to the front when it is there already.
    virtual void showWindow() = 0;
};

/// The controller of the preferences window, as the application delegate knows it.
class PreferencesWindowController
{
public:
    virtual ~PreferencesWindowController() = default;

    /// Shows the window, or brings it to the front when it is there already.
    virtual void showPreferencesWindow() = 0;
};

} // namespace quindle

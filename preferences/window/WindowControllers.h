#pragma once

#include <optional>

#include <QString>

class QIcon;
class QWidget;

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

/// One pane of a preferences window. Its view is made when it is first asked for.
class QDPreferencesWindowControllerProtocol
{
public:
    virtual ~QDPreferencesWindowControllerProtocol() = default;

    /// Unique per pane; names its toolbar item and finds its segment.
    virtual QString preferencesIdentifier() const = 0;

    /// The label of its toolbar item or segment, and the window's title while it is shown.
    virtual QString preferencesTitle() const = 0;

    virtual QIcon preferencesIcon() const = 0;

    /// Nothing for a pane that has no tool tip.
    virtual std::optional<QString> preferencesToolTip() const { return std::nullopt; }

    /// The pane's view, owned by the pane; a window that shows it gives it back without a parent.
    virtual QWidget& view() = 0;

    /// The view is about to be shown.
    virtual void viewWillAppear() {}

    /// What gets the keyboard when the pane is shown; null when nothing in it does.
    virtual QWidget* initialFirstResponder() { return nullptr; }
};

} // namespace quindle

#pragma once

#include <functional>
#include <memory>

#include <QObject>

#include "common/FatalError.h"
#include "preferences/window/QDPreferencesWindowControllerProtocol.h"
#include "preferences/window/WindowControllers.h"

namespace quindle {

class HelperAppDelegate;

/// The controllers of the helper's windows, which the application delegate owns, each under its own name.
/// Null in a program without windows.
struct DelegateControllers
{
    std::unique_ptr<QObject> batteryPopover;
    std::unique_ptr<WindowController> preferencesWindow;
    std::unique_ptr<QDPreferencesWindowControllerProtocol> generalController;
    std::unique_ptr<QDPreferencesWindowControllerProtocol> menuBarController;
    std::unique_ptr<PreferencesWindowController> preferencesController; ///< shows the panes, so it goes first
};

/// Makes them for the delegate that is being made.
using ControllerFactory = std::function<DelegateControllers(HelperAppDelegate& delegate)>;

/// For programs that have no windows.
inline DelegateControllers noControllers(HelperAppDelegate& /*delegate*/)
{
    return {};
}

/// The outlet itself; one that is missing when it is needed is a programming error and fatal.
template <typename Outlet>
Outlet& required(Outlet* outlet)
{
    if (!outlet)
        fatalError(u"an outlet of the main interface is not connected");
    return *outlet;
}

} // namespace quindle

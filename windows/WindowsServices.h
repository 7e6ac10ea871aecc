#pragma once

#include <memory>

#include <QString>

#include "platform/Platform.h"

namespace quindle {

class HelperAppDelegate;
class HelperEnd;
class HelpersNotifications;
struct Machine;
struct WindowMessage;

/// What the windows run on: the helper's computer, without what the helper alone does.
class WindowsServices
{
public:
    virtual ~WindowsServices() = default;

    virtual Platform platform() = 0;

    /// Of `platform`, for what the helper passes on.
    virtual HelpersNotifications& notifications() = 0;

    /// Takes over what the helper's services remember, before any model is made.
    virtual void begin(const WindowMessage& request) = 0;

    /// Brings the computer to where the helper's was when it sent that: a request or Refreshed.
    virtual void follow(const WindowMessage& message, HelperAppDelegate& delegate) = 0;

    /// This computer; `systemRoot` replaces /sys when it is not empty. Both need a QApplication.
    static std::unique_ptr<WindowsServices> ofThisComputer(const QString& systemRoot, HelperEnd& helper);
    static std::unique_ptr<WindowsServices> ofMachine(const Machine& machine, HelperEnd& helper);
};

} // namespace quindle

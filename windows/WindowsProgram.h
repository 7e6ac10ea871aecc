#pragma once

#include <optional>

#include "app/HelperAppDelegate.h"
#include "menubar/MainInterface.h"
#include "platform/Platform.h"
#include "windows/HelperControllers.h"
#include "windows/SharedServices.h"

namespace quindle {

class BatteryPopup;
class HelperEnd;
class WindowsServices;
struct WindowMessage;

/// The windows on models of their own, in a process without a status item. It does what the helper asks for,
/// and passes on what concerns the helper. Main thread only.
class WindowsProgram
{
public:
    /// `services` have begun. All must outlive it.
    WindowsProgram(WindowsServices& services, HelperEnd& helper);

    /// Carries out a message of the helper; others are ignored.
    void handle(const WindowMessage& message);

    /// Says that nothing is open.
    void sendIdle();

private:
    void carryOut(const WindowMessage& request);
    void show(const WindowMessage& request);
    void refresh(const WindowMessage& message);

    WindowsServices& m_services;
    HelperEnd& m_helper;
    Platform m_platform;
    MainInterface m_interface;
    std::optional<SharedTitle> m_title;
    HelperControllers m_controllers;
    HelperAppDelegate m_delegate;
    quint32 m_requests = 0;
};

} // namespace quindle

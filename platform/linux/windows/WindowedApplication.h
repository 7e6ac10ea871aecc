#pragma once

#include "platform/linux/display/X11Display.h"
#include "platform/linux/session/LinuxApplication.h"

namespace quindle {

/// The running QGuiApplication.
class WindowedApplication : public LinuxApplication
{
public:
    /// Raises the visible top-level windows and asks for the keyboard; a Wayland desktop may only mark them
    /// as wanting attention.
    void activateIgnoringOtherApplications() override;

    bool showsTranslucentWindows() const override;

private:
    mutable X11Display m_display; ///< only its pending answer changes
};

} // namespace quindle

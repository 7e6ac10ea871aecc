#pragma once

#include "platform/Workspace.h"
#include "platform/linux/session/X11Display.h"

namespace quindle {

/// The running QCoreApplication; where it has windows, a QGuiApplication.
class LinuxApplication : public Application
{
public:
    /// Takes effect once the caller has returned to the main loop.
    void terminate() override;

    /// Raises the visible top-level windows and asks for the keyboard; a Wayland desktop may only mark them
    /// as wanting attention.
    void activateIgnoringOtherApplications() override;

    bool showsTranslucentWindows() const override;

private:
    mutable X11Display m_display; ///< of its state only what it owes changes
};

} // namespace quindle

#pragma once

#include "platform/Workspace.h"

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
};

} // namespace quindle

#pragma once

#include "platform/Workspace.h"

namespace quindle {

/// The running QCoreApplication, which has no windows.
class LinuxApplication : public Application
{
public:
    /// Takes effect once the caller has returned to the main loop.
    void terminate() override;

    void activateIgnoringOtherApplications() override {}
    bool showsTranslucentWindows() const override { return false; }
};

} // namespace quindle

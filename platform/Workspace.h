#pragma once

#include <QString>

namespace quindle {

/// What the helper asks of the desktop. Main thread only.
class Workspace
{
public:
    virtual ~Workspace() = default;

    /// Launches the application at exactly `path`: a program is run, in a folder the application that was
    /// installed there; a folder without one is opened.
    /// Does not wait for it, and does not learn how it ends.
    /// A path that is not there and a failure are logged, once for each path, and otherwise silent.
    virtual void launchApplication(const QString& path) = 0;
};

/// The running process as an application of the desktop. Main thread only.
class Application
{
public:
    virtual ~Application() = default;

    /// Ends the main loop once the caller has returned to it; the process then exits with 0.
    virtual void terminate() = 0;

    /// Brings this application's windows in front of others, as far as the desktop allows; does nothing
    /// without windows.
    virtual void activateIgnoringOtherApplications() = 0;

    /// Whether the desktop shows translucent windows at the moment, so that a popup may have smooth round
    /// corners.
    /// False where that cannot be found out.
    virtual bool showsTranslucentWindows() const = 0;
};

} // namespace quindle

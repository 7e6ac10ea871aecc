#pragma once

#include <QString>

namespace quindle {

/// What the helper asks of the desktop. Main thread only.
class Workspace
{
public:
    virtual ~Workspace() = default;

    /// Launches the application at exactly `path`: a program is run, a folder is opened. Does not wait; a
    /// failure is logged and otherwise silent.
    virtual void launchApplication(const QString& path) = 0;
};

/// The running process as an application of the desktop. Main thread only.
class Application
{
public:
    virtual ~Application() = default;

    /// Ends the main loop; the process then exits with 0.
    virtual void terminate() = 0;

    /// Brings this application's windows before those of others, as far as the desktop allows it.
    virtual void activateIgnoringOtherApplications() = 0;

    /// Whether the desktop shows translucent windows at the moment, so that a popup may have smooth round
    /// corners.
    virtual bool showsTranslucentWindows() const = 0;
};

} // namespace quindle
